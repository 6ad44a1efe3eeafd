"""_osgdraw's shapes, shape drawables, materials, lights and images: values read back against figures
computed here, the bounds OSG tessellates, exact messages, ownership and leaks."""
import contextlib
import math
import sys

import pytest

import _osgdraw as d
import test_leaks
from engine_support import V, _osg, m16, mk, raises, sdk_calls, type_name, values  # noqa: F401 (mk)

RGBA, RGB, LUMINANCE, ALPHA, UBYTE, FLOAT = 0x1908, 0x1907, 0x1909, 0x1906, 0x1401, 0x1406  # gl.h's values
DESTROY = {"osg::LightSource *": _osg.delete_Group, "osg::Matrixd *": _osg.delete_Matrixd,
           "osg::Vec4f *": _osg.delete_Vec4f}
enum, get = V.glenum, lambda cls, member, *a: getattr(d, f"{cls}_{member}")(*a)


@pytest.fixture
def own():
    """own(proxy) holds a pointer object of this module (a proxy type of its own) until the test ends."""
    held = []
    yield lambda p: held.append(p) or p
    for p in (getattr(p, "this", p) for p in held if not isinstance(p, V.Value)):  # values free themselves
        if p.own():
            DESTROY.get(type_name(p), _osg.delete_Referenced)(p)


def box(extent, center=(4, 5, 6)):
    return pytest.approx([c + e[i] for i in (0, 1) for c, e in zip(center, extent)], abs=1e-5)


# class, dimensions, getters, extent about the center along x, y, z (a cone's base lies a quarter of its height below it)
SHAPES = [("Box", (2, 4, 6), {"HalfLengths": [1, 2, 3]}, [(-1, 1), (-2, 2), (-3, 3)]),
          ("Box", (3,), {"HalfLengths": [1.5] * 3}, [(-1.5, 1.5)] * 3), ("Sphere", (2,), {"Radius": 2}, [(-2, 2)] * 3),
          ("Cone", (2, 4), {"Radius": 2, "Height": 4, "BaseOffset": -1}, [(-2, 2), (-2, 2), (-1, 3)]),
          ("Cylinder", (1, 4), {"Radius": 1, "Height": 4}, [(-1, 1), (-1, 1), (-2, 2)]),
          ("Capsule", (0.5, 3), {"Radius": 0.5, "Height": 3}, [(-0.5, 0.5)] * 2 + [(-2, 2)])]


@pytest.mark.parametrize("cls,dims,reads,extent", SHAPES, ids=lambda v: v if isinstance(v, str) else "")
def test_shapes_read_back_and_tessellate_to_their_bounds(mk, own, cls, dims, reads, extent):
    shape = own(getattr(d, f"new_{cls}")(mk.Vec3f(4, 5, 6), *dims))
    got = {k: get(cls, f"get{k}", shape) for k in reads}
    assert {k: values(v, "Vec3f") if k == "HalfLengths" else v for k, v in got.items()} == reads
    assert values(get(cls, "getCenter", shape), "Vec3f") == [4, 5, 6]
    drawable, geode = own(d.new_ShapeDrawable(shape)), mk(_osg.new_Geode())
    d.ShapeDrawable_setColor(drawable, mk.Vec4f(0.25, 0.5, 0.75, 1))
    assert values(d.ShapeDrawable_getColor(drawable), "Vec4f") == [0.25, 0.5, 0.75, 1]
    _osg.Geode_addDrawable(geode, drawable)
    assert V.read(_osg.Geode_getBoundingBox(geode)) == box(extent)
    if cls != "Sphere":  # a quarter turn about x takes y to z and z to -y, in the matrix and the rebuilt drawable
        get(cls, "setRotation", shape, mk.Quat(math.pi / 2, mk.Vec3d(1, 0, 0)))
        assert values(get(cls, "getRotation", shape), "Quat") == pytest.approx([math.sqrt(0.5), 0, 0, math.sqrt(0.5)])
        assert m16(own(get(cls, "computeRotationMatrix", shape)))[4:7] == pytest.approx([0, 0, 1])
        d.ShapeDrawable_build(drawable)
        x, y, z = extent
        assert V.read(_osg.Geode_getBoundingBox(geode)) == box([x, (-z[1], -z[0]), y])


def test_tessellation_hints_shared_with_drawables(own):
    hints, flags = own(d.new_TessellationHints()), "FrontFace BackFace Normals TextureCoords Top Body Bottom".split()
    assert [get("TessellationHints", f"getCreate{f}", hints) for f in flags] == [1, 0, 1, 0, 1, 1, 1]  # the header's
    get("TessellationHints", "setCreateBackFace", hints, True)
    assert d.TessellationHints_getCreateBackFace(hints) is True
    drawable = own(d.new_ShapeDrawable(own(d.new_Sphere()), hints))
    got = d.ShapeDrawable_getTessellationHints(drawable)
    assert int(got) == int(hints) and not got.own() and _osg.Referenced_referenceCount(hints) == 2
    d.ShapeDrawable_setTessellationHints(drawable, None)
    assert d.ShapeDrawable_getTessellationHints(drawable) is None and _osg.Referenced_referenceCount(hints) == 1


def test_material_and_light_in_a_state_set(mk, own):
    ss, mat, light = mk(_osg.new_StateSet()), own(d.new_Material()), own(d.new_Light(3))
    for a in (mat, light):
        _osg.StateSet_setAttributeAndModes(ss, a)
    assert [int(_osg.StateSet_getAttribute(ss, *k)) for k in [(_osg.StateAttribute_MATERIAL,), (_osg.StateAttribute_LIGHT, 3)]
            ] == [int(mat), int(light)] and _osg.Referenced_referenceCount(mat) == 2
    front, back, both = d.Material_FRONT, d.Material_BACK, d.Material_FRONT_AND_BACK
    assert (front, back, both) == (0x404, 0x405, 0x408)  # GL_FRONT, GL_BACK, GL_FRONT_AND_BACK
    d.Material_setDiffuse(mat, both, mk.Vec4f(0.25, 0.5, 0.75, 1))
    d.Material_setTransparency(mat, front, 0.75)  # alpha 1 - 0.75, on the front only
    assert [values(d.Material_getDiffuse(mat, f), "Vec4f")[3] for f in (front, back)] == [0.25, 1]
    d.Light_setPosition(light, mk.Vec4f(1, 2, 3, 0))
    assert values(d.Light_getPosition(light), "Vec4f") == [1, 2, 3, 0]
    assert (d.Light_getMember(light), d.Light_getType(light)) == (3, _osg.StateAttribute_LIGHT)


def test_light_source_in_a_group(mk, own):
    light, root, (refs, unrefs) = own(d.new_Light(2)), mk(_osg.new_Group()), sdk_calls()
    source = d.new_LightSource()  # one reference, through the SDK's library as a group's
    assert sdk_calls() == (refs + 1, unrefs) and _osg.Referenced_referenceCount(source) == 1 and source.own()
    assert _osg.Group_addChild(root, source) and _osg.Referenced_referenceCount(source) == 2
    d.LightSource_setLight(source, light)
    got = d.LightSource_getLight(source)
    assert int(got) == int(light) and not got.own() and _osg.Referenced_referenceCount(light) == 2
    d.LightSource_setLocalStateSetModes(source)  # turns its light's mode on: GL_LIGHT0 + 2
    assert _osg.StateSet_getMode(_osg.Node_getStateSet(source), enum(0x4002)) == _osg.StateAttribute_ON
    _osg.delete_Group(source)
    assert sdk_calls() == (refs + 1, unrefs + 1) and _osg.Group_getNumChildren(root) == 1


# s, t, r, pixel format, data type, packing (None: the short form), bytes per pixel
@pytest.mark.parametrize("s,t,r,fmt,kind,packing,size", [
    (4, 3, 2, RGBA, UBYTE, 1, 4), (3, 2, 1, RGB, UBYTE, 4, 3), (5, 2, 3, LUMINANCE, FLOAT, 8, 4),
    (3, 3, 1, ALPHA, UBYTE, None, 1)])
def test_image_sizes(own, s, t, r, fmt, kind, packing, size):
    image, row = own(d.new_Image()), -(-s * size // (packing or 1)) * (packing or 1)
    d.Image_allocateImage(image, s, t, r, enum(fmt), enum(kind), *[packing] * (packing is not None))
    sizes = "s t r getPixelSizeInBits getRowSizeInBytes getImageSizeInBytes getTotalSizeInBytes".split()
    assert [get("Image", m, image) for m in sizes] == [s, t, r, 8 * size, row, row * t, row * t * r]
    got = [own(d.Image_getPixelFormat(image)), own(d.Image_getDataType(image))]
    assert [g.this.own() for g in got] == [True, True] and [V.read(g) for g in got] == [fmt, kind]
    assert [getattr(d, f"GL_{n}") for n in "RGBA RGB LUMINANCE ALPHA UNSIGNED_BYTE FLOAT".split()] == [
        RGBA, RGB, LUMINANCE, ALPHA, UBYTE, FLOAT]


def test_image_pixels_flip_and_scale(mk, own):
    image, color = own(d.new_Image()), {(s, t): [(s * 2 + t) * 51 / 255, 0, 1, 1] for s in range(2) for t in range(2)}
    d.Image_allocateImage(image, 2, 2, 1, enum(RGBA), enum(UBYTE))
    for (s, t), c in color.items():
        d.Image_setColor(image, mk.Vec4f(*c), s, t)
    d.Image_flipVertical(image)
    d.Image_flipHorizontal(image)
    flipped = [values(own(d.Image_getColor(image, 1 - s, 1 - t)), "Vec4f") for s, t in color]
    assert sum(flipped, []) == pytest.approx(sum(color.values(), []))
    d.Image_scaleImage(image, 4, 8, 1)
    d.Image_setFileName(image, V.string("bricks.png"))
    assert (d.Image_s(image), d.Image_t(image), V.read(d.Image_getFileName(image))) == (4, 8, "bricks.png")


def test_refusals(own):
    image, light = own(d.new_Image()), own(d.new_Light())
    prototypes = "".join(f"    osg::Image::allocateImage(int,int,int,GLenum,GLenum{a})\n" for a in [",int", ""])
    for message, f, *args in [
            ("in method 'Image_setPixelFormat', argument 2 of type 'GLenum'", d.Image_setPixelFormat, image, RGBA),
            ("invalid null reference in method 'Image_swap', argument 2 of type 'osg::Image &'", d.Image_swap, image,
             None),
            ("in method 'Material_setAlpha', argument 1 of type 'osg::Material *'", d.Material_setAlpha, light, 0x404,
             0.5),
            ("Wrong number or type of arguments for overloaded function 'Image_allocateImage'.\n  Possible C/C++ prototypes "
             f"are:\n{prototypes}", d.Image_allocateImage, image, 4, 4, 1, RGBA, UBYTE)]:
        raises(TypeError, message, f, *args)


def test_repeated_calls_leak_nothing(mk, own):
    shape, hints, image, light = own(d.new_Cone()), own(d.new_TessellationHints()), own(d.new_Image()), own(d.new_Light())
    v4, rgba, ubyte, ss = mk.Vec4f(1, 1, 1, 1), enum(RGBA), enum(UBYTE), mk(_osg.new_StateSet())
    # The capsule counts the owned objects of every module: one made here and given back by _osg leaves it as it was.
    capsule = sys.modules["swig_runtime_data4"].type_pointer_capsule
    calls = [lambda: _osg.delete_Referenced(d.new_ShapeDrawable(shape, hints)),
             lambda: _osg.delete_Group(d.new_LightSource()), lambda: d.Cone_getCenter(shape),
             lambda: d.Image_getPixelFormat(image),
             lambda: d.Image_allocateImage(image, 3, 3, 1, rgba, ubyte), lambda: d.Light_setAmbient(light, v4),
             lambda: _osg.StateSet_setAttributeAndModes(ss, light),
             lambda: _osg.delete_Matrixd(d.Cone_computeRotationMatrix(shape))]
    for f, *args in [(d.Image_setPixelFormat, image, 1), (d.new_Box, light), (d.Image_swap, image, None)]:
        calls.append(lambda f=f, args=args: attempt(f, *args))
    test_leaks.flat(calls, [shape, hints, image, light, v4, rgba, ubyte, ss, capsule])


def attempt(f, *args):
    with contextlib.suppress(TypeError):
        f(*args)
