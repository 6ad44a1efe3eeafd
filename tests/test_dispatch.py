"""Overload dispatch: prototype lists, the count message composed with them, and which
candidate a call reaches."""
import ctypes
import math
import re

import pytest

from all_rows import BY_NAME, DISPATCHERS
from engine_support import V, _osg, _osgpeer, doubles, free_borrowed, mk, raises, type_name, values  # noqa: F401


def overload_message(name):
    lines = "".join(f"    {p}\n" for p in BY_NAME[name].protos)
    return (f"Wrong number or type of arguments for overloaded function '{name}'.\n"
            f"  Possible C/C++ prototypes are:\n{lines}")


def max_arity(d):
    counts = [len(p.split(",")) if p else 0 for p in (re.search(r"\(([^()]*)\)( const)?$", s)[1] for s in d.protos)]
    return max(counts) + (0 if d.name.startswith("new_") or d.cls is None or d.static else 1)


LISTED = [d for d in DISPATCHERS if not d.op]


@pytest.mark.parametrize("d", LISTED, ids=lambda d: d.name)
def test_overload_message(d):
    f, message, top = getattr(_osg, d.name), overload_message(d.name), max_arity(d)
    for n in {1, top}:
        raises(TypeError, message, f, *[object()] * n)
    raises(TypeError, f"{d.name} expected at most {top} arguments, got {top + 1}\nAdditional information:\n{message}",
           f, *[object()] * (top + 1))


@pytest.mark.parametrize("d", [d for d in DISPATCHERS if d.op], ids=lambda d: d.name)
def test_operator_dispatchers_answer_not_implemented(mk, d):
    self = mk(getattr(_osg, f"new_{d.cls or 'Vec3f'}")())
    for args in [(), (self,), (self, "x"), (self, None), (self, object()), (object(), 2.0), (self, 2.0, 2.0)]:
        assert getattr(_osg, d.name)(*args) is NotImplemented


def test_tests_are_as_strict_as_conversions(mk):
    # None fails a reference test, so the out-parameters' null-reference message is never
    # reached; only True and False pass a bool test; ranges are checked by the tests.
    raises(TypeError, overload_message("Quat_getRotate"), _osg.Quat_getRotate, mk.Quat(), None, mk.Vec3d())
    raises(TypeError, overload_message("new_Referenced"), _osg.new_Referenced, 1)
    raises(TypeError, overload_message("new_CopyOp"), _osg.new_CopyOp, -1)
    raises(TypeError, overload_message("notify"), _osg.notify, 2**40)
    m, (_, slots) = mk.Matrixd(), doubles(4)  # a number, None or a list is no double &
    for bad in ([1.0] + slots[1:], [None] + slots[1:], slots[:3] + [[0.0]]):
        raises(TypeError, overload_message("Matrixd_getPerspective"), _osg.Matrixd_getPerspective, m, *bad)


def test_vector_constructors(mk):
    assert values(mk.Vec3f(), "Vec3f") == [0, 0, 0] and values(mk.Vec3f(1, 2, 3), "Vec3f") == [1, 2, 3]
    assert values(mk.Vec3f(mk.Vec2f(1, 2), 3), "Vec3f") == [1, 2, 3]
    assert values(mk.Vec4f(mk.Vec3f(1, 2, 3), 4), "Vec4f") == values(mk.Vec4d(mk.Vec3d(1, 2, 3), 4), "Vec4d")
    # Widening goes from f to d only.
    assert values(mk.Vec2d(mk.Vec2f(0.5, 2)), "Vec2d") == [0.5, 2]
    assert values(mk.Vec3d(mk.Vec3f(0.1, 2, 3)), "Vec3d") == values(mk.Vec3f(0.1, 2, 3), "Vec3f")
    assert values(mk.Vec4d(mk.Vec4f(1, 2, 3, 4)), "Vec4d") == [1, 2, 3, 4]
    for kind, args in [("Vec3f", (mk.Vec3d(),)), ("Vec2f", (mk.Vec2d(),)), ("Vec4f", (mk.Vec4d(),)),
                       ("Vec3f", (mk.Vec2d(), 1.0)), ("Vec4f", (mk.Vec3d(), 1.0)), ("Vec2f", (1.0,)),
                       ("Vec3f", (1, 2)), ("Vec3d", (mk.Vec3d(),)), ("Vec3f", (mk.Vec2f(), None))]:
        raises(TypeError, overload_message(f"new_{kind}"), getattr(_osg, f"new_{kind}"), *args)
    v = mk.Vec3f()
    _osg.Vec3f_set(v, 1, 2, 3)
    _osg.Vec3f_set(v, mk(_osg.Vec3f___add__(v, v)))
    assert values(v, "Vec3f") == [2, 4, 6]


def test_set_name_routes_str_none_and_string_proxies(mk):
    d, text = mk.DummyObject(), ctypes.create_string_buffer(b"from char *")
    chars = _osgpeer.new_pointer(ctypes.addressof(text), "_p_char", 0)
    for name, expected in [("from str", "from str"), (V.string("from std::string"), "from std::string"),
                           (chars, "from char *"), (None, "")]:  # None: a null C string, never a null std::string
        _osg.Object_setName(d, name)
        assert V.read(_osg.Object_getName(d)) == expected


def test_copyop_call_routing(mk):
    shallow, deep = mk.CopyOp(), mk.CopyOp(1)  # SHALLOW_COPY, DEEP_COPY_OBJECTS
    d, r, h = mk.DummyObject(), mk.Referenced(), mk.StandardNotifyHandler()
    assert _osg.CopyOp___call__(shallow, None) is None  # the osg::Node const * candidate
    same = _osg.CopyOp___call__(shallow, d)  # a DummyObject reaches the osg::Object candidate
    assert (type_name(same), int(same), same.own()) == ("osg::Object *", int(d), False)
    for referenced in (r, h):
        result = _osg.CopyOp___call__(shallow, referenced)
        assert (type_name(result), int(result)) == ("osg::Referenced *", int(referenced))
    copy = _osg.CopyOp___call__(deep, d)
    assert int(copy) != int(d) and not copy.own() and _osg.Object_className(copy) == "DummyObject"
    assert _osg.Referenced_referenceCount(copy) == 0  # the module takes no reference on copies
    free_borrowed(copy)
    raises(TypeError, overload_message("CopyOp___call__"), _osg.CopyOp___call__, shallow, mk.Vec3f())


def test_accessor_pairs_and_release(mk):
    d, r = mk.DummyObject(), mk.Referenced()
    assert _osg.Object_asNode(d) is None and _osg.Object_getUserData(d) is None and _osg.Object_getUserDataContainer(d) is None
    created = _osg.Object_getOrCreateUserDataContainer(d)
    assert int(_osg.Object_getUserDataContainer(d)) == int(created)
    _osg.Object_setUserData(d, r)
    held = _osg.Object_getUserData(d)
    assert (type_name(held), int(held), held.own(), _osg.Referenced_referenceCount(r)) == \
        ("osg::Referenced *", int(r), False, 2)
    assert _osg.Object_releaseGLObjects(d) is None and _osg.Object_releaseGLObjects(d, None) is None


def test_quat_overloads(mk):
    half = [0, 0, math.sin(math.pi / 4), math.cos(math.pi / 4)]
    made = [mk.Quat(math.pi / 2, mk.Vec3f(0, 0, 1)), mk.Quat(math.pi / 2, mk.Vec3d(0, 0, 1), 0.0, mk.Vec3d(1, 0, 0), 0.0,
                                                              mk.Vec3d(0, 1, 0))]
    for rotation in [(math.pi / 2, 0, 0, 1), (math.pi / 2, mk.Vec3d(0, 0, 1)), (mk.Vec3f(1, 0, 0), mk.Vec3f(0, 1, 0)),
                     (math.pi / 2, mk.Vec3f(0, 0, 1), 0.0, mk.Vec3f(1, 0, 0), 0.0, mk.Vec3f(1, 0, 0))]:
        assert _osg.Quat_makeRotate(q := mk.Quat(), *rotation) is None
        made.append(q)
    assert [values(q, "Quat") for q in made] == [pytest.approx(half, abs=1e-7)] * len(made)
    assert values(mk.Quat(), "Quat") == [0, 0, 0, 1] and values(mk.Quat(1, 2, 3, 4), "Quat") == [1, 2, 3, 4]
    assert values(mk.Quat(mk.Vec4f(1, 2, 3, 4)), "Quat") == values(mk.Quat(mk.Vec4d(1, 2, 3, 4)), "Quat")
    q = mk.Quat()
    for args, expected in [((1, 2, 3, 4), [1, 2, 3, 4]), ((mk.Vec4d(4, 3, 2, 1),), [4, 3, 2, 1]),
                           ((mk.Vec4f(1, 1, 1, 1),), [1, 1, 1, 1])]:
        _osg.Quat_set(q, *args)
        assert values(q, "Quat") == expected
    for bad in [(mk.Vec3f(),), (mk.Quat(),), (1.0, mk.Vec4d()), (1, 2, 3), (None,)]:
        raises(TypeError, overload_message("new_Quat"), _osg.new_Quat, *bad)
