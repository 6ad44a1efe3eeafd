"""Matrices, planes and the free products, checked against values computed here."""
import ctypes
import math

import pytest

from engine_support import V, _osg, _osgpeer, at, doubles, mk, raises, type_name, values  # noqa: F401

approx = pytest.approx


def elements(m, kind="Matrixd"):
    return at(getattr(_osg, f"{kind}_ptr")(m), "double" if kind == "Matrixd" else "float", 16)


def rows(m, kind="Matrixd"):
    e = elements(m, kind)
    return [e[4 * r:4 * r + 4] for r in range(4)]


def product(a, b):
    return [[sum(a[r][k] * b[k][c] for k in range(4)) for c in range(4)] for r in range(4)]


def flat(nested):
    return [x for row in nested for x in row]


def rotation_z(angle):
    """Row-vector convention: v * R turns (1, 0, 0) towards (0, 1, 0) for a positive angle."""
    c, s = math.cos(angle), math.sin(angle)
    return [[c, s, 0, 0], [-s, c, 0, 0], [0, 0, 1, 0], [0, 0, 0, 1]]


def test_construction_and_element_reads(mk):
    seq = [float(i) for i in range(16)]
    m = mk.Matrixd(*seq)
    assert elements(m) == seq and _osg.Matrixd___call__(m, 1, 2) == 6.0 and _osg.Matrixd___call__(m, 3, 0) == 12.0
    assert elements(mk.Matrixd(_osg.Matrixd_ptr(m))) == seq == elements(mk.Matrixf(_osg.Matrixd_ptr(m)), "Matrixf")
    assert elements(mk.Matrixd(mk.Matrixf(*seq))) == seq and elements(mk.Matrixd(m)) == seq
    assert elements(mk.Matrixd(mk.Quat(math.pi / 2, mk.Vec3d(0, 0, 1)))) == approx(flat(rotation_z(math.pi / 2)),
                                                                               abs=1e-12)
    identity = mk(_osg.Matrixd_identity())
    assert _osg.Matrixd_isIdentity(identity) and not _osg.Matrixd_isIdentity(m)
    assert _osg.Matrixd_makeIdentity(m) is None and _osg.Matrixd_isIdentity(m)
    raises(TypeError, "_osg.Matrixd_identity() takes no arguments (1 given)", _osg.Matrixd_identity, m)
    raises(TypeError, "in method 'Matrixd___call__', argument 3 of type 'int'", _osg.Matrixd___call__, m, 0, 1.5)
    assert _osg.Matrixd_compare(m, identity) == 0 and _osg.Matrixd___eq__(m, identity) is True
    _osg.Matrixd_set(m, *seq)
    assert (_osg.Matrixd_compare(m, identity), _osg.Matrixd___lt__(m, identity)) == (-1, True)


def test_rotations_agree_with_the_quaternion(mk):
    axis, angle = mk.Vec3d(1, 2, 2), 0.7
    q, m = mk.Quat(angle, axis), mk(_osg.Matrixd_rotate(angle, axis))
    v = mk.Vec3d(0.3, -1, 2)
    by_quat = values(mk(_osg.Quat___mul__(q, v)), "Vec3d")
    assert values(mk(_osg.__mul__(v, m)), "Vec3d") == approx(by_quat)  # row vector times matrix
    assert values(mk(_osg.Matrixd_preMult(m, v)), "Vec3d") == approx(by_quat)
    inverse_turn = values(mk(_osg.Quat___mul__(mk(_osg.Quat_inverse(q)), v)), "Vec3d")
    assert values(mk(_osg.Matrixd___mul__(m, v)), "Vec3d") == approx(inverse_turn)  # matrix times column vector
    rebuilt = mk.Quat()
    _osg.Quat_set(rebuilt, m)
    assert values(rebuilt, "Quat") == approx(values(q, "Quat"))
    assert values(mk(_osg.Matrixd_getRotate(m)), "Quat") == approx(values(q, "Quat"))


def test_products_inverses_and_transposes(mk):
    a = mk.Matrixd(2, 0, 0, 0, 1, 3, 0, 0, 0, 1, 4, 0, 5, 6, 7, 1)
    b = mk(_osg.Matrixd_rotate(0.4, mk.Vec3d(0, 0, 1)))
    assert elements(mk(_osg.Matrixd___mul__(a, b))) == approx(flat(product(rows(a), rows(b))))
    c = mk.Matrixd()
    _osg.Matrixd_mult(c, a, b)
    assert elements(c) == approx(flat(product(rows(a), rows(b))))
    for invert in ("invert", "invert_4x3", "invert_4x4"):
        inv = mk.Matrixd()
        assert getattr(_osg, f"Matrixd_{invert}")(inv, a) is True
        assert elements(mk(_osg.Matrixd___mul__(a, inv))) == approx(elements(mk.Matrixd()), abs=1e-12)
    assert elements(mk(_osg.Matrixd_inverse(a))) == approx(elements(inv))
    t = mk.Matrixd()
    assert _osg.Matrixd_transpose(t, a) is True and rows(t) == [list(col) for col in zip(*rows(a))]
    p = mk.Matrixd(a)
    moved = mk(_osg.Matrixd___imul__(p, b))
    assert (moved.own(), p.own(), int(moved)) == (True, False, int(p))
    assert elements(p) == approx(flat(product(rows(a), rows(b))))


def test_out_parameters(mk):
    m = mk(_osg.Matrixd_perspective(30.0, 1.5, 1.0, 100.0))
    buffer, slots = doubles(6)
    assert _osg.Matrixd_getPerspective(m, *slots[:4]) is True
    assert list(buffer[:4]) == approx([30.0, 1.5, 1.0, 100.0])
    floats = (ctypes.c_float * 6)()
    fslots = [_osgpeer.new_pointer(ctypes.addressof(floats) + 4 * i, "_p_float", 0) for i in range(6)]
    assert _osg.Matrixd_getPerspective(m, *fslots[:4]) is True and list(floats[:4]) == approx([30, 1.5, 1, 100])
    o = mk(_osg.Matrixd_ortho(-1.0, 2.0, -3.0, 4.0, 5.0, 6.0))
    assert _osg.Matrixd_getOrtho(o, *slots) is True and list(buffer) == approx([-1, 2, -3, 4, 5, 6])
    eye, center, up = mk.Vec3d(), mk.Vec3d(), mk.Vec3d()
    look = mk(_osg.Matrixd_lookAt(mk.Vec3d(1, 2, 3), mk.Vec3d(1, 2, 0), mk.Vec3d(0, 1, 0)))
    assert _osg.Matrixd_getLookAt(look, eye, center, up) is None  # the default look distance: 1
    assert [v for x in (eye, center, up) for v in values(x, "Vec3d")] == approx([1, 2, 3, 1, 2, 2, 0, 1, 0])
    _osg.Matrixd_getLookAt(look, eye, center, up, 5.0)
    assert values(center, "Vec3d") == approx([1, 2, -2])
    trs = mk(_osg.Matrixd_scale(2.0, 3.0, 4.0))
    _osg.Matrixd_postMultRotate(trs, mk.Quat(0.5, mk.Vec3d(0, 1, 0)))
    _osg.Matrixd_postMultTranslate(trs, mk.Vec3d(7, 8, 9))
    t, r, s, so = mk.Vec3d(), mk.Quat(), mk.Vec3d(), mk.Quat()
    assert _osg.Matrixd_decompose(trs, t, r, s, so) is None
    assert (values(t, "Vec3d"), values(s, "Vec3d")) == (approx([7, 8, 9]), approx([2, 3, 4]))
    assert values(r, "Quat") == approx(values(mk.Quat(0.5, mk.Vec3d(0, 1, 0)), "Quat"))
    assert values(mk(_osg.Matrixd_getTrans(trs)), "Vec3d") == approx([7, 8, 9])


def test_matrixf_scalar_operators_and_not_implemented(mk):
    d, f = mk.Matrixd(), mk.Matrixf(*range(16))
    assert _osg.Matrixd___mul__(d, 2.0) is NotImplemented and _osg.Matrixd___mul__(d, "x") is NotImplemented
    assert elements(mk(_osg.Matrixf___mul__(f, 2.0)), "Matrixf") == [2.0 * i for i in range(16)]
    assert elements(mk(_osg.Matrixf___truediv__(f, 2.0)), "Matrixf") == [i / 2 for i in range(16)]
    assert elements(mk(_osg.Matrixf___add__(f, f)), "Matrixf") == [2.0 * i for i in range(16)]
    assert _osg.Matrixf___add__(f, d) is NotImplemented  # no mixed sum
    for op, arg, factor in [("__imul__", 3.0, 3), ("__itruediv__", 3.0, 1), ("__iadd__", None, 2)]:
        f = mk(getattr(_osg, f"Matrixf_{op}")(f, f if arg is None else arg))
        assert f.own()
    assert elements(f, "Matrixf") == approx([2.0 * i for i in range(16)])
    assert not any(hasattr(_osg, f"Matrixd_{op}") for op in ("__truediv__", "__add__", "__iadd__", "__itruediv__"))


def test_ref_matrices(mk):
    seq = [float(i) for i in range(16)]
    r = mk.RefMatrixd(*seq)
    # Accepted as its matrix part, which does not start at the object's address.
    assert values(mk(_osg.Matrixd_getTrans(r)), "Vec3d") == [12, 13, 14] and int(_osg.Matrixd_ptr(r).this) != int(r)
    for refused in (_osg.Object_getName, _osg.Referenced_referenceCount):
        with pytest.raises(TypeError):
            refused(r)
    assert (_osg.RefMatrixd_className(r), _osg.RefMatrixd_libraryName(r)) == ("Matrix", "osg")
    copy = _osg.RefMatrixd_clone(r, mk.CopyOp())
    assert (type_name(copy), copy.own(), _osg.Object_className(copy)) == ("osg::Object *", False, "Matrix")
    assert _osg.RefMatrixd_isSameKindAs(r, copy) is True and _osg.RefMatrixd_isSameKindAs(r, None) is False
    _osg.intrusive_ptr_add_ref(copy)
    _osg.intrusive_ptr_release(copy)
    assert elements(mk.RefMatrixf(mk.Matrixd(*seq)), "Matrixf") == seq
    assert elements(mk.RefMatrixd(mk.RefMatrixd(r))) == seq


def test_planes(mk):
    up = mk.Vec3d(0, 0, 2)
    by_normal = mk.Plane(up, -4.0)
    through = mk.Plane(up, mk.Vec3d(0, 0, 2))  # normal and point
    assert [at(_osg.Plane_ptr(p), "double", 4) for p in (by_normal, through)] == [[0, 0, 2, -4]] * 2
    normal = _osg.Plane_getNormal(by_normal)
    _osg.Vec3d_set(normal, 9.0, 9.0, 9.0)
    assert values(mk(_osg.Plane_getNormal(by_normal)), "Vec3d") == [0, 0, 2]
    _osg.delete_Vec3d(normal)
    _osg.Plane_makeUnitLength(by_normal)
    assert _osg.Plane_distance(by_normal, mk.Vec3d(5, 5, 7)) == 5.0 and _osg.Plane_distance(by_normal, mk.Vec3f()) == -2
    assert [_osg.Plane_intersect(by_normal, x) for x in (
        V.vec3f_list([(0, 0, 3), (1, 1, 4)]), V.vec3d_list([(0, 0, 0), (0, 0, 5)]), V.bounding_sphere(0, 0, 0, 1),
        V.bounding_box(0, 0, 3, 1, 1, 4))] == [1, 0, -1, 1]
    raises(TypeError, "invalid null reference in method 'Plane_transform', argument 2 of type 'osg::Matrix const &'",
           _osg.Plane_transform, by_normal, None)
    shifted = mk.Plane(by_normal)
    _osg.Plane_transform(shifted, mk.RefMatrixd(*[1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 1, 1]))
    assert at(_osg.Plane_ptr(shifted), "double", 4) == approx([0, 0, 1, -3])


def test_free_products(mk):
    v3f, v4f, v3d = mk.Vec3f(1, 2, 3), mk.Vec4f(1, 1, 1, 10), mk.Vec3d(1, 0, 0)
    assert _osg.__mul__(v3f, v4f) == 16.0 == _osg.__mul__(v4f, v3f)
    assert _osg.__mul__(v3f, 2.0) is NotImplemented and _osg.__mul__(v3d, v3d) is NotImplemented
    mf = mk(_osg.Matrixf_translate(1.0, 2.0, 3.0))
    moved = mk(_osg.__mul__(mk.Vec4f(1, 1, 1, 1), mf))
    assert (type_name(moved), values(moved, "Vec4f")) == ("osg::Vec4f *", [2, 3, 4, 1])
    assert values(mk(_osg.componentMultiply(mk.Vec3d(1, 2, 3), mk.Vec3d(4, 5, 6))), "Vec3d") == [4, 10, 18]
    assert values(mk(_osg.componentDivide(mk.Vec2f(1, -1), mk.Vec2f(0, 2))), "Vec2f") == [math.inf, -0.5]
    with pytest.raises(TypeError, match=r"^Wrong number or type of arguments for overloaded function 'componentDivide'"):
        _osg.componentDivide(mk.Vec3f(), mk.Vec3d())
