"""The six vector classes: arithmetic results, comparisons, raw storage and the pointer
proxies that the component accessors return."""
import math

import pytest

from engine_support import ELEMENT, SIZE, VECTORS, _osg, at, mk, raises, type_name, values  # noqa: F401


def family(kind):
    return SIZE[kind], lambda member, *args: getattr(_osg, f"{kind}_{member}")(*args), getattr(_osg, f"new_{kind}")


@pytest.mark.parametrize("kind", VECTORS)
def test_arithmetic(mk, kind):
    n, f, new = family(kind)
    a, b = mk(new(*range(1, n + 1))), mk(new(*[2] * n))
    av = values(a, kind)
    assert f("__mul__", a, b) == 2 * sum(av)  # dot product: a float
    for op, arg, expected in [("__mul__", 3, [3 * x for x in av]), ("__add__", b, [x + 2 for x in av]),
                              ("__sub__", b, [x - 2 for x in av]), ("__truediv__", 2, [x / 2 for x in av])]:
        r = mk(f(op, a, arg))
        assert (type_name(r), values(r, kind)) == (f"osg::{kind} *", expected)
    assert values(mk(f("__neg__", a)), kind) == [-x for x in av]
    assert (f("length2", a), f("length", a)) == (sum(x * x for x in av), pytest.approx(math.hypot(*av)))
    assert values(a, kind) == av  # none of these touched the operands
    for op, arg in [("__iadd__", b), ("__imul__", 2), ("__isub__", b), ("__itruediv__", 4)]:
        a = mk(f(op, a, arg))
    assert values(a, kind) == [((x + 2) * 2 - 2) / 4 for x in av]
    c = mk(new(*[3] + [0] * (n - 1)))
    assert f("normalize", c) == 3.0 and values(c, kind) == [1] + [0] * (n - 1)
    for op, arg in [("__mul__", "s"), ("__add__", 2.0), ("__truediv__", a), ("__eq__", 1.0), ("__sub__", None)]:
        assert f(op, a, arg) is NotImplemented


@pytest.mark.parametrize("kind", VECTORS)
def test_comparisons_and_validity(mk, kind):
    n, f, new = family(kind)
    a, same, greater = mk(new(*[1] * n)), mk(new(*[1] * n)), mk(new(*[1] * (n - 1) + [2]))
    assert (f("__eq__", a, same), f("__ne__", a, same), f("__lt__", a, same)) == (True, False, False)
    assert (f("__eq__", a, greater), f("__ne__", a, greater), f("__lt__", a, greater), f("__lt__", greater, a)) == \
        (False, True, True, False)
    assert f("__eq__", a, mk(getattr(_osg, "new_Vec3d" if kind == "Vec3f" else "new_Vec3f")())) is NotImplemented
    nan = mk(new(*[1] * (n - 1) + [math.nan]))
    assert (f("valid", a), f("isNaN", a), f("valid", nan), f("isNaN", nan)) == (True, False, False, True)


@pytest.mark.parametrize("kind", ["Vec3f", "Vec3d"])
def test_cross_product(mk, kind):
    new, cross = getattr(_osg, f"new_{kind}"), getattr(_osg, f"{kind}___xor__")
    assert values(mk(cross(mk(new(1, 0, 0)), mk(new(0, 1, 0)))), kind) == [0, 0, 1]
    assert values(mk(cross(mk(new(1, 2, 3)), mk(new(4, 5, 6)))), kind) == [-3, 6, -3]


@pytest.mark.parametrize("kind", VECTORS)
def test_accessors_are_pointers_into_the_vector(mk, kind):
    n, element = SIZE[kind], ELEMENT[kind]
    v = mk(getattr(_osg, f"new_{kind}")(*range(1, n + 1)))
    base, step = int(getattr(_osg, f"{kind}__v_get")(v).this), 4 if element == "float" else 8
    for i, c in enumerate("xyzw"[:n] + ("rgba" if n == 4 else "")):
        p = getattr(_osg, f"{kind}_{c}")(v)
        assert (type_name(p), p.thisown, at(p, element)) == (f"{element} *", False, [i % 4 + 1])
        assert int(p.this) == base + i % 4 * step
    ptr = getattr(_osg, f"{kind}_ptr")(v)
    assert (type_name(ptr), int(ptr.this), at(ptr, element, n)) == (f"{element} *", base, values(v, kind))


@pytest.mark.parametrize("kind", VECTORS)
def test_raw_storage_copies_through_element_pointers(mk, kind):
    (n, f, new), element = family(kind), ELEMENT[kind]
    v, w = mk(new()), mk(new(*range(10, 10 + n)))
    first = f("x", v)  # taken before the write, it sees it
    assert f("_v_set", v, f("_v_get", w)) is None
    assert values(v, kind) == values(w, kind) and at(first, element) == [10]
    f("_v_set", v, f("ptr", mk(new())))
    assert values(v, kind) == [0] * n
    if n > 2:  # from the y pointer a 2-vector takes y and z
        two = "Vec2" + kind[-1]
        u = mk(getattr(_osg, f"new_{two}")())
        getattr(_osg, f"{two}__v_set")(u, f("y", w))
        assert values(u, two) == [11, 12]


def test_only_type_errors_become_not_implemented(mk):
    v = mk.Vec3f(1, 2, 3)
    # A number out of float range is an OverflowError, which a binary operator passes on,
    raises(OverflowError, "in method 'Vec3f___truediv__', argument 2 of type 'osg::Vec3f::value_type'",
           _osg.Vec3f___truediv__, v, 1e39)
    # while in a dispatcher it only fails the candidate's test: no candidate is a TypeError.
    assert _osg.Vec3f___mul__(v, 1e39) is NotImplemented
    assert _osg.Vec3d___mul__(mk.Vec3d(), None) is NotImplemented  # never the null-reference message
