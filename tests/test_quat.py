"""The quaternion: products, rotation of vectors, out-parameters, interpolation."""
import math

import pytest

from engine_support import _osg, at, mk, type_name, values  # noqa: F401

S = math.sin(math.pi / 4)


def test_products_by_operand_kind(mk):
    q = mk.Quat(math.pi / 2, mk.Vec3d(0, 0, 1))
    for kind in ("Vec3d", "Vec3f"):  # a vector is rotated into a new vector of its class
        r = mk(_osg.Quat___mul__(q, mk(getattr(_osg, f"new_{kind}")(1, 0, 0))))
        assert type_name(r) == f"osg::{kind} *" and values(r, kind) == pytest.approx([0, 1, 0], abs=1e-7)
    qq = mk(_osg.Quat___mul__(q, q))  # two quarter turns make a half turn
    assert type_name(qq) == "osg::Quat *" and values(qq, "Quat") == pytest.approx([0, 0, 1, 0], abs=1e-12)
    assert values(mk(_osg.Quat___mul__(q, 2)), "Quat") == pytest.approx([0, 0, 2 * S, 2 * S])
    assert values(mk(_osg.Quat___truediv__(q, 2)), "Quat") == pytest.approx([0, 0, S / 2, S / 2])
    assert values(mk(_osg.Quat___truediv__(qq, q)), "Quat") == pytest.approx(values(q, "Quat"))


def test_algebra(mk):
    q = mk.Quat(1, 2, 3, 4)
    assert values(mk(_osg.Quat_conj(q)), "Quat") == [-1, -2, -3, 4]
    assert values(mk(_osg.Quat_inverse(q)), "Quat") == pytest.approx([-1 / 30, -2 / 30, -3 / 30, 4 / 30])
    assert (_osg.Quat_length2(q), _osg.Quat_length(q)) == (30.0, pytest.approx(math.sqrt(30)))
    assert values(mk(_osg.Quat___add__(q, q)), "Quat") == [2, 4, 6, 8]
    assert values(mk(_osg.Quat___sub__(q, mk.Quat())), "Quat") == [1, 2, 3, 3]
    assert values(mk(_osg.Quat___neg__(q)), "Quat") == [-1, -2, -3, -4]
    assert (values(mk(_osg.Quat_asVec4(q)), "Vec4d"), values(mk(_osg.Quat_asVec3(q)), "Vec3d")) == ([1, 2, 3, 4],
                                                                                                    [1, 2, 3])
    assert (_osg.Quat_zeroRotation(q), _osg.Quat_zeroRotation(mk.Quat())) == (False, True)
    assert (_osg.Quat___eq__(q, mk.Quat(1, 2, 3, 4)), _osg.Quat___ne__(q, q), _osg.Quat___lt__(mk.Quat(), q)) == \
        (True, False, True)
    assert _osg.Quat___eq__(q, mk.Vec4d(1, 2, 3, 4)) is NotImplemented


def test_get_rotate_fills_the_objects_passed_in(mk):
    q = mk.Quat(math.pi / 2, mk.Vec3d(0, 0, 1))
    out = mk.Vec4d()
    assert _osg.Quat_getRotate(q, *[getattr(_osg, f"Vec4d_{c}")(out) for c in "xyzw"]) is None
    assert values(out, "Vec4d") == pytest.approx([math.pi / 2, 0, 0, 1])
    for kind in ("Vec3d", "Vec3f"):
        angle, axis = mk.Vec2d(), mk(getattr(_osg, f"new_{kind}")())
        assert _osg.Quat_getRotate(q, _osg.Vec2d_y(angle), axis) is None
        assert values(angle, "Vec2d") == pytest.approx([0, math.pi / 2])
        assert values(axis, kind) == pytest.approx([0, 0, 1])


def test_slerp_rotate_original_and_storage(mk):
    q, end = mk.Quat(), mk.Quat(math.pi / 2, mk.Vec3d(0, 0, 1))
    assert _osg.Quat_slerp(q, 0.5, mk.Quat(), end) is None
    half = [0, 0, math.sin(math.pi / 8), math.cos(math.pi / 8)]
    assert values(q, "Quat") == pytest.approx(half)
    base = int(_osg.Quat__v_get(q).this)
    for i, c in enumerate("xyzw"):
        p = getattr(_osg, f"Quat_{c}")(q)
        assert (type_name(p), p.thisown, int(p.this), at(p, "double")) == ("double *", False, base + 8 * i,
                                                                     pytest.approx([half[i]]))
    copy = mk.Quat()
    assert _osg.Quat__v_set(copy, _osg.Quat__v_get(q)) is None and values(copy, "Quat") == values(q, "Quat")
    assert _osg.Quat_makeRotate_original(copy, mk.Vec3d(1, 0, 0), mk.Vec3d(0, 1, 0)) is None
    assert values(copy, "Quat") == pytest.approx(values(end, "Quat"))
