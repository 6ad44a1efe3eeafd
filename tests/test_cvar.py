import pytest

from engine_support import _osg, raises, values

cvar = _osg.cvar
VARIABLES = ["X_AXIS", "Y_AXIS", "Z_AXIS", "Camera_FACE_CONTROLLED_BY_GEOMETRY_SHADER"]


def test_text_forms_and_type():
    assert str(cvar) == "(Camera_FACE_CONTROLLED_BY_GEOMETRY_SHADER, Z_AXIS, Y_AXIS, X_AXIS)"
    assert repr(cvar) == "<Swig global variables>"
    t = type(cvar)
    assert (f"{t.__module__}.{t.__qualname__}", t.__doc__) == ("swig_runtime_data4.swigvarlink", "Swig var link object")


@pytest.mark.parametrize("name", VARIABLES)
def test_variables_are_read_only(name):
    message = f"Variable {name} is read-only."
    raises(AttributeError, message, setattr, cvar, name, 1)
    raises(AttributeError, message, delattr, cvar, name)


@pytest.mark.parametrize("name", ["nothing", "__dict__", "__class__", "x_axis", "X_AXIS_"])
def test_unknown_names(name):
    message = f"Unknown C global variable '{name}'"
    raises(AttributeError, message, getattr, cvar, name)
    raises(AttributeError, message, setattr, cvar, name, 1)
    raises(AttributeError, message, delattr, cvar, name)


def test_axes_and_the_face_constant():
    axes = [getattr(cvar, n) for n in VARIABLES[:3]]
    assert [values(a, "Vec3f") for a in axes] == [[1, 0, 0], [0, 1, 0], [0, 0, 1]]
    assert len({int(a) for a in axes}) == 3 and cvar.X_AXIS is not cvar.X_AXIS and cvar.X_AXIS == cvar.X_AXIS
    assert all(a.own() is False and repr(a).startswith("<Swig Object of type 'osg::Vec3f *' at 0x") for a in axes)
    value = cvar.Camera_FACE_CONTROLLED_BY_GEOMETRY_SHADER
    assert type(value) is int and 0 <= value < 2**32
