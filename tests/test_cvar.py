import json

import pytest

import _osg
import _osgpeer as peer

cvar = _osg.cvar
VARIABLES = ["X_AXIS", "Y_AXIS", "Z_AXIS", "Camera_FACE_CONTROLLED_BY_GEOMETRY_SHADER"]


def test_text_forms_and_type():
    assert str(cvar) == "(Camera_FACE_CONTROLLED_BY_GEOMETRY_SHADER, Z_AXIS, Y_AXIS, X_AXIS)"
    assert repr(cvar) == "<Swig global variables>"
    t = type(cvar)
    assert (f"{t.__module__}.{t.__qualname__}", t.__doc__) == ("swig_runtime_data4.swigvarlink", "Swig var link object")


@pytest.mark.parametrize("name", VARIABLES)
def test_variables_are_read_only(name, raises_exactly):
    message = f"Variable {name} is read-only."
    raises_exactly(AttributeError, message, setattr, cvar, name, 1)
    raises_exactly(AttributeError, message, delattr, cvar, name)


@pytest.mark.parametrize("name", ["nothing", "__dict__", "__class__", "x_axis", "X_AXIS_"])
def test_unknown_names(name, raises_exactly):
    message = f"Unknown C global variable '{name}'"
    raises_exactly(AttributeError, message, getattr, cvar, name)
    raises_exactly(AttributeError, message, setattr, cvar, name, 1)
    raises_exactly(AttributeError, message, delattr, cvar, name)


@pytest.mark.parametrize("name,value", [("X_AXIS", (1, 0, 0)), ("Y_AXIS", (0, 1, 0)), ("Z_AXIS", (0, 0, 1))])
def test_axes(name, value):
    a, b = getattr(cvar, name), getattr(cvar, name)
    assert peer.read_vec3f(a) == value
    assert a is not b and a == b and not a != b
    assert a.own() is False and repr(a).startswith("<Swig Object of type 'osg::Vec3f *' at 0x")


def test_axes_are_three_storages():
    assert len({int(cvar.X_AXIS), int(cvar.Y_AXIS), int(cvar.Z_AXIS)}) == 3


def test_face_controlled_by_geometry_shader():
    value = cvar.Camera_FACE_CONTROLLED_BY_GEOMETRY_SHADER
    assert type(value) is int and 0 <= value < 2**32


def test_axes_become_shadow_instances_once_vec3f_registers(run_py):
    out, _ = run_py("""
        import json, _osg, _osgpeer
        class Vec3f: pass
        _osg.Vec3f_swigregister(Vec3f)
        x = _osg.cvar.X_AXIS
        print(json.dumps([type(x) is Vec3f, type(x.this).__name__, x.this.own(), _osgpeer.read_vec3f(x)]))
        """)
    assert json.loads(out) == [True, "SwigPyObject", False, [1, 0, 0]]
