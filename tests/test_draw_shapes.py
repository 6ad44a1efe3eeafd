"""_osgdraw's shapes, shape drawables, materials, lights and images: values read back against
figures computed here, the bounds OSG tessellates, exact messages, ownership and leaks."""
import ctypes
import math
import os
import sys

import pytest

import _osgdraw as d
import test_leaks
from engine_support import BUILD, _osg, _osgpeer, free_borrowed, mk, raises, type_name, values  # noqa: F401 (mk)

zog = ctypes.CDLL(os.path.join(BUILD, "libzogOSG.so"))
zog.zog_stub_reference_calls.restype = zog.zog_stub_unreference_calls.restype = ctypes.c_ulong
# What gives back an owned result of this module; a reference-counted object releases one reference.
DESTROY = {"osg::LightSource *": _osg.delete_Group, "osg::Matrixd *": _osg.delete_Matrixd,
           "osg::Vec4f *": _osg.delete_Vec4f, "GLenum *": lambda p: _osgpeer.free_handle(p, "_p_GLenum")}
# GL's values, from gl.h: the pixel formats, the data types and the material faces.
RGBA, RGB, LUMINANCE, ALPHA, UBYTE, FLOAT = 0x1908, 0x1907, 0x1909, 0x1906, 0x1401, 0x1406
enum = _osgpeer.make_glenum


def test_constants_are_gl_values():
    assert (d.GL_RGBA, d.GL_RGB, d.GL_LUMINANCE, d.GL_ALPHA, d.GL_UNSIGNED_BYTE, d.GL_FLOAT) == \
        (RGBA, RGB, LUMINANCE, ALPHA, UBYTE, FLOAT)
    assert (d.Material_FRONT, d.Material_BACK, d.Material_FRONT_AND_BACK, d.Material_DIFFUSE) == (0x404, 0x405, 0x408, 0x1201)


@pytest.fixture
def own():
    """own(proxy) holds a pointer object of this module (its own proxy type) until the test ends."""
    held = []
    yield lambda p: held.append(p) or p
    for p in (getattr(p, "this", p) for p in held):  # the peer registers a class for GLenum
        if p.own():
            DESTROY.get(type_name(p), _osg.delete_Referenced)(p)


def bound(cls, dims):
    """The shape's extent about its center along x, y, z: OSG's cone sits a quarter of its height
    below its center, a capsule's caps add the radius."""
    if cls == "Box":
        return [(-w / 2, w / 2) for w in (dims * 3)[:3]]
    r, h = dims[0], (dims + (0,))[1]
    z = {"Sphere": r, "Cone": None, "Cylinder": h / 2, "Capsule": h / 2 + r}[cls]
    return [(-r, r), (-r, r), (-h / 4, 3 * h / 4) if z is None else (-z, z)]


SHAPES = [("Box", (2, 4, 6), {"HalfLengths": [1, 2, 3]}), ("Box", (3,), {"HalfLengths": [1.5] * 3}),
          ("Sphere", (2,), {"Radius": 2}), ("Cone", (2, 4), {"Radius": 2, "Height": 4, "BaseOffset": -1}),
          ("Cylinder", (1, 4), {"Radius": 1, "Height": 4}), ("Capsule", (0.5, 3), {"Radius": 0.5, "Height": 3})]


@pytest.mark.parametrize("cls,dims,reads", SHAPES, ids=lambda v: v if isinstance(v, str) else "")
def test_shapes_read_back_and_tessellate_to_their_bounds(mk, own, cls, dims, reads):
    center = [4, 5, 6]
    shape = own(getattr(d, f"new_{cls}")(mk.Vec3f(*center), *dims))
    got = {k: getattr(d, f"{cls}_get{k}")(shape) for k in reads}
    assert {k: values(v, "Vec3f") if k == "HalfLengths" else v for k, v in got.items()} == reads
    assert values(getattr(d, f"{cls}_getCenter")(shape), "Vec3f") == center
    drawable, geode = own(d.new_ShapeDrawable(shape)), mk(_osg.new_Geode())
    d.ShapeDrawable_setColor(drawable, mk.Vec4f(0.25, 0.5, 0.75, 1))
    assert values(d.ShapeDrawable_getColor(drawable), "Vec4f") == [0.25, 0.5, 0.75, 1]
    _osg.Geode_addDrawable(geode, drawable)
    box = _osgpeer.read_box(_osg.Geode_getBoundingBox(geode))
    extent = bound(cls, dims)
    assert box == pytest.approx([c + e[0] for c, e in zip(center, extent)] + [c + e[1] for c, e in zip(center, extent)],
                                abs=1e-5)
    if cls == "Sphere":
        return
    # A quarter turn about x takes y to z and z to -y; the rebuilt drawable shows it.
    assert getattr(d, f"{cls}_zeroRotation")(shape)
    getattr(d, f"{cls}_setRotation")(shape, mk.Quat(math.pi / 2, mk.Vec3d(1, 0, 0)))
    assert values(getattr(d, f"{cls}_getRotation")(shape), "Quat") == pytest.approx([math.sin(math.pi / 4), 0, 0,
                                                                                     math.cos(math.pi / 4)])
    turned = own(getattr(d, f"{cls}_computeRotationMatrix")(shape))
    assert turned.own() and _osgpeer.read_matrix(turned)[4:7] == pytest.approx([0, 0, 1], abs=1e-12)  # y row
    d.ShapeDrawable_build(drawable)
    extent = [extent[0], (-extent[2][1], -extent[2][0]), extent[1]]
    box = _osgpeer.read_box(_osg.Geode_getBoundingBox(geode))
    assert box == pytest.approx([c + e[0] for c, e in zip(center, extent)] + [c + e[1] for c, e in zip(center, extent)],
                                abs=1e-5)


FLAGS = ["FrontFace", "BackFace", "Normals", "TextureCoords", "Top", "Body", "Bottom"]


def test_tessellation_hints_shared_with_drawables(mk, own):
    hints, sphere = own(d.new_TessellationHints()), own(d.new_Sphere())
    assert [getattr(d, f"TessellationHints_getCreate{f}")(hints) for f in FLAGS] == [1, 0, 1, 0, 1, 1, 1]
    for f in FLAGS:
        getattr(d, f"TessellationHints_setCreate{f}")(hints, f in ("BackFace", "TextureCoords"))
    assert [getattr(d, f"TessellationHints_getCreate{f}")(hints) for f in FLAGS] == [0, 1, 0, 1, 0, 0, 0]
    d.TessellationHints_setDetailRatio(hints, 0.5)
    d.TessellationHints_setTargetNumFaces(hints, 7)
    d.TessellationHints_setTessellationMode(hints, d.TessellationHints_USE_TARGET_NUM_FACES)
    assert (d.TessellationHints_getDetailRatio(hints), d.TessellationHints_getTargetNumFaces(hints),
            d.TessellationHints_getTessellationMode(hints)) == (0.5, 7, 1)
    drawable = own(d.new_ShapeDrawable(sphere, hints))
    got = d.ShapeDrawable_getTessellationHints(drawable)
    assert int(got) == int(hints) and not got.own() and _osg.Referenced_referenceCount(hints) == 2
    d.ShapeDrawable_setTessellationHints(drawable, None)
    assert d.ShapeDrawable_getTessellationHints(drawable) is None and _osg.Referenced_referenceCount(hints) == 1
    copy = d.Sphere_clone(sphere, mk.CopyOp())  # a new object at count 0, borrowed
    assert _osg.Object_className(copy) == "Sphere" and not copy.own() and _osg.Referenced_referenceCount(copy) == 0
    free_borrowed(copy)


def test_material_and_light_in_a_state_set(mk, own):
    ss, mat, light = mk(_osg.new_StateSet()), own(d.new_Material()), own(d.new_Light(3))
    for a in (mat, light):
        _osg.StateSet_setAttributeAndModes(ss, a)
    assert int(_osg.StateSet_getAttribute(ss, _osg.StateAttribute_MATERIAL)) == int(mat)
    assert int(_osg.StateSet_getAttribute(ss, _osg.StateAttribute_LIGHT, 3)) == int(light)
    assert [_osg.Referenced_referenceCount(a) for a in (mat, light)] == [2, 2]
    assert (d.Material_getType(mat), d.Light_getType(light)) == (_osg.StateAttribute_MATERIAL, _osg.StateAttribute_LIGHT)
    front, back, both = d.Material_FRONT, d.Material_BACK, d.Material_FRONT_AND_BACK
    d.Material_setDiffuse(mat, both, mk.Vec4f(0.25, 0.5, 0.75, 1))
    assert d.Material_getDiffuseFrontAndBack(mat)
    d.Material_setTransparency(mat, front, 0.75)  # alpha 1 - 0.75 on the front colors only
    assert values(d.Material_getDiffuse(mat, front), "Vec4f") == [0.25, 0.5, 0.75, 0.25]
    assert values(d.Material_getDiffuse(mat, back), "Vec4f") == [0.25, 0.5, 0.75, 1]
    d.Material_setShininess(mat, back, 32)
    assert not d.Material_getShininessFrontAndBack(mat) and d.Material_getShininess(mat, back) == 32
    d.Light_setPosition(light, mk.Vec4f(1, 2, 3, 0))
    d.Light_setDirection(light, mk.Vec3f(0, 0, -1))
    d.Light_setSpotCutoff(light, 22.5)
    d.Light_setLinearAttenuation(light, 0.125)
    assert values(d.Light_getPosition(light), "Vec4f") == [1, 2, 3, 0] and d.Light_getMember(light) == 3
    assert values(d.Light_getDirection(light), "Vec3f") == [0, 0, -1]
    assert (d.Light_getSpotCutoff(light), d.Light_getLinearAttenuation(light)) == (22.5, 0.125)


def test_light_source_in_a_group(mk, own):
    light, root, refs = own(d.new_Light(2)), mk(_osg.new_Group()), zog.zog_stub_reference_calls()
    source = d.new_LightSource()
    assert zog.zog_stub_reference_calls() == refs + 1 and _osg.Referenced_referenceCount(source) == 1 and source.own()
    assert _osg.Group_addChild(root, source) and _osg.Referenced_referenceCount(source) == 2
    d.LightSource_setLight(source, light)
    got = d.LightSource_getLight(source)
    assert int(got) == int(light) and not got.own() and _osg.Referenced_referenceCount(light) == 2
    assert d.LightSource_getReferenceFrame(source) == d.LightSource_RELATIVE_RF == 0
    d.LightSource_setReferenceFrame(source, d.LightSource_ABSOLUTE_RF)
    assert _osg.Node_getCullingActive(source) is False  # OSG's note: an absolute source is never culled
    d.LightSource_setLocalStateSetModes(source)
    other = mk(_osg.new_StateSet())
    d.LightSource_setStateSetModes(source, other, _osg.StateAttribute_OFF)
    for ss, value in [(_osg.Node_getStateSet(source), _osg.StateAttribute_ON), (other, _osg.StateAttribute_OFF)]:
        assert _osg.StateSet_getMode(ss, enum(0x4002)) == value  # GL_LIGHT0 + 2
    unrefs = zog.zog_stub_unreference_calls()
    _osg.delete_Group(source)
    assert zog.zog_stub_unreference_calls() == unrefs + 1 and _osg.Group_getNumChildren(root) == 1


# s, t, r, pixel format, data type, packing (None: the short form), bytes per pixel
IMAGES = [(4, 3, 2, RGBA, UBYTE, 1, 4), (3, 2, 1, RGB, UBYTE, 4, 3), (5, 2, 3, LUMINANCE, FLOAT, 8, 4),
          (3, 3, 1, ALPHA, UBYTE, None, 1)]


@pytest.mark.parametrize("s,t,r,fmt,kind,packing,size", IMAGES)
def test_image_sizes(own, s, t, r, fmt, kind, packing, size):
    image = own(d.new_Image())
    d.Image_allocateImage(image, s, t, r, enum(fmt), enum(kind), *[packing] * (packing is not None))
    row = -(-s * size // (packing or 1)) * (packing or 1)
    assert (d.Image_s(image), d.Image_t(image), d.Image_r(image), d.Image_getPixelSizeInBits(image)) == (s, t, r, 8 * size)
    assert (d.Image_getRowSizeInBytes(image), d.Image_getImageSizeInBytes(image),
            d.Image_getTotalSizeInBytes(image)) == (row, row * t, row * t * r)
    got = [own(d.Image_getPixelFormat(image)), own(d.Image_getDataType(image))]
    assert [g.this.own() for g in got] == [True, True] and [_osgpeer.glenum_value(g) for g in got] == [fmt, kind]
    assert d.Image_isDataContiguous(image) and d.Image_valid(image)


def test_image_pixels_flip_and_scale(mk, own):
    image = own(d.new_Image())
    d.Image_allocateImage(image, 2, 2, 1, enum(RGBA), enum(UBYTE))
    color = {(s, t): [(s * 2 + t) * 51 / 255, 0, 1, 1] for s in range(2) for t in range(2)}
    for (s, t), c in color.items():
        d.Image_setColor(image, mk.Vec4f(*c), s, t)
    assert not d.Image_isImageTranslucent(image)
    d.Image_flipVertical(image)
    d.Image_flipHorizontal(image)
    assert all(values(own(d.Image_getColor(image, 1 - s, 1 - t)), "Vec4f") == pytest.approx(c) for (s, t), c in color.items())
    d.Image_setColor(image, mk.Vec4f(0, 0, 0, 0.5), 1, 1, 0)
    assert d.Image_isImageTranslucent(image)
    count = d.Image_getModifiedCount(image)
    d.Image_dirty(image)
    assert d.Image_getModifiedCount(image) == count + 1
    d.Image_scaleImage(image, 4, 8, 1)
    assert (d.Image_s(image), d.Image_t(image)) == (4, 8) and d.Image_getModifiedCount(image) > count + 1
    d.Image_setFileName(image, _osgpeer.make_string("bricks.png"))
    assert _osgpeer.read_string(d.Image_getFileName(image)) == "bricks.png"


def test_refusals(own):
    image, light, box = own(d.new_Image()), own(d.new_Light()), own(d.new_Box())
    proto = "Wrong number or type of arguments for overloaded function '{}'.\n  Possible C/C++ prototypes are:\n{}"
    for exc, message, f, *args in [
            (TypeError, "in method 'Image_setPixelFormat', argument 2 of type 'GLenum'", d.Image_setPixelFormat, image, RGBA),
            (TypeError, "invalid null reference in method 'Image_swap', argument 2 of type 'osg::Image &'", d.Image_swap,
             image, None),
            (TypeError, "in method 'Material_setAlpha', argument 1 of type 'osg::Material *'", d.Material_setAlpha, light,
             d.Material_FRONT, 0.5),
            (OverflowError, "in method 'Light_setLightNum', argument 2 of type 'int'", d.Light_setLightNum, light, 1 << 40),
            (TypeError, "Box_setCenter expected 2 arguments, got 1", d.Box_setCenter, box),
            (TypeError, proto.format("new_Box", "".join(f"    osg::Box::Box({a})\n" for a in [
                "", "osg::Vec3 const &,float", "osg::Vec3 const &,float,float,float", "osg::Box const &,osg::CopyOp const &",
                "osg::Box const &"])), d.new_Box, light),
            (TypeError, proto.format("Image_allocateImage", "".join(
                f"    osg::Image::allocateImage(int,int,int,GLenum,GLenum{a})\n" for a in [",int", ""])),
             d.Image_allocateImage, image, 4, 4, 1, RGBA, UBYTE)]:
        raises(exc, message, f, *args)


def test_repeated_calls_leak_nothing(mk, own):
    shape, hints, image, light = own(d.new_Cone()), own(d.new_TessellationHints()), own(d.new_Image()), own(d.new_Light())
    v4, rgba, ubyte, ss = mk.Vec4f(1, 1, 1, 1), enum(RGBA), enum(UBYTE), mk(_osg.new_StateSet())
    calls = [lambda: _osg.delete_Referenced(d.new_ShapeDrawable(shape, hints)),
             lambda: _osg.delete_Group(d.new_LightSource()), lambda: d.Cone_getCenter(shape),
             lambda: _osgpeer.free_handle(d.Image_getPixelFormat(image), "_p_GLenum"),
             lambda: d.Image_allocateImage(image, 3, 3, 1, rgba, ubyte), lambda: d.Light_setAmbient(light, v4),
             lambda: _osg.StateSet_setAttributeAndModes(ss, light), lambda: _osg.delete_Matrixd(d.Cone_computeRotationMatrix(shape))]
    for f, *args in [(d.Image_setPixelFormat, image, 1), (d.new_Box, light), (d.Image_swap, image, None)]:
        calls.append(lambda f=f, args=args: refused(f, *args))
    # The capsule counts the owned objects of every module: one made here and given back by _osg must
    # leave it as it was.
    capsule = sys.modules["swig_runtime_data4"].type_pointer_capsule
    test_leaks.flat(calls, [shape, hints, image, light, v4, rgba, ubyte, ss, capsule])


def refused(f, *args):
    try:
        f(*args)
    except TypeError:
        return
    raise AssertionError(f"{f.__name__} accepted {args}")
