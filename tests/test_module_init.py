import json
import os

import pytest

from engine_support import _osg, raises


def pairs(text):
    tokens = text.split()
    return [(name, int(value)) for name, value in zip(tokens[::2], tokens[1::2])]


BEFORE_CVAR = pairs("""
    OSG_REFERENCED 1 OSG_COPYOP 1 CopyOp_SHALLOW_COPY 0 CopyOp_DEEP_COPY_OBJECTS 1 CopyOp_DEEP_COPY_NODES 2
    CopyOp_DEEP_COPY_DRAWABLES 4 CopyOp_DEEP_COPY_STATESETS 8 CopyOp_DEEP_COPY_STATEATTRIBUTES 16
    CopyOp_DEEP_COPY_TEXTURES 32 CopyOp_DEEP_COPY_IMAGES 64 CopyOp_DEEP_COPY_ARRAYS 128
    CopyOp_DEEP_COPY_PRIMITIVES 256 CopyOp_DEEP_COPY_SHAPES 512 CopyOp_DEEP_COPY_UNIFORMS 1024
    CopyOp_DEEP_COPY_CALLBACKS 2048 CopyOp_DEEP_COPY_USERDATA 4096 CopyOp_DEEP_COPY_ALL 2147483647
    OSG_VEC2F 1 Vec2f_num_components 2 OSG_VEC3F 1 Vec3f_num_components 3""")

ATTRIBUTE_TYPES = """TEXTURE POLYGONMODE POLYGONOFFSET MATERIAL ALPHAFUNC ANTIALIAS COLORTABLE CULLFACE FOG
    FRONTFACE LIGHT POINT LINEWIDTH LINESTIPPLE POLYGONSTIPPLE SHADEMODEL TEXENV TEXENVFILTER TEXGEN TEXMAT
    LIGHTMODEL BLENDFUNC BLENDEQUATION LOGICOP STENCIL COLORMASK DEPTH VIEWPORT SCISSOR BLENDCOLOR MULTISAMPLE
    CLIPPLANE COLORMATRIX VERTEXPROGRAM FRAGMENTPROGRAM POINTSPRITE PROGRAM CLAMPCOLOR HINT SAMPLEMASKI
    PRIMITIVERESTARTINDEX CLIPCONTROL VALIDATOR VIEWMATRIXEXTRACTOR OSGNV_PARAMETER_BLOCK OSGNVEXT_TEXTURE_SHADER
    OSGNVEXT_VERTEX_PROGRAM OSGNVEXT_REGISTER_COMBINERS OSGNVCG_PROGRAM OSGNVSLANG_PROGRAM OSGNVPARSE_PROGRAM_PARSER
    UNIFORMBUFFERBINDING TRANSFORMFEEDBACKBUFFERBINDING ATOMICCOUNTERBUFFERBINDING PATCH_PARAMETER
    FRAME_BUFFER_OBJECT VERTEX_ATTRIB_DIVISOR SHADERSTORAGEBUFFERBINDING INDIRECTDRAWBUFFERBINDING VIEWPORTINDEXED
    DEPTHRANGEINDEXED SCISSORINDEXED BINDIMAGETEXTURE SAMPLER""".split()

AFTER_CVAR = pairs("""
    OSG_VEC4F 1 Vec4f_num_components 4 OSG_VEC2D 1 Vec2d_num_components 2 OSG_VEC3D 1 Vec3d_num_components 3
    OSG_VEC4D 1 Vec4d_num_components 4 OSG_VEC4 1 OSG_VEC3 1 OSG_VEC2 1 OSG_QUAT 1 Quat_num_components 4
    OSG_MATRIXD 1 OSG_MATRIXF 1 OSG_MATRIX 1 OSG_NOTIFY_H 1 ALWAYS 0 FATAL 1 WARN 2 NOTICE 3 INFO 4
    DEBUG_INFO 5 DEBUG_FP 6 OSG_BOUNDINGBOX 1 OSG_RENDERINFO 1 OSG_OBJECT 1 Object_DYNAMIC 0 Object_STATIC 1
    Object_UNSPECIFIED 2 OSG_BOUNDINGSPHERE 1 OSG_NODE 1 OSG_TEXTURE2D 1 OSG_STATESET 1 GL_RESCALE_NORMAL 32826
    StateSet_DEFAULT_BIN 0 StateSet_OPAQUE_BIN 1 StateSet_TRANSPARENT_BIN 2 StateSet_INHERIT_RENDERBIN_DETAILS 0
    StateSet_USE_RENDERBIN_DETAILS 1 StateSet_OVERRIDE_RENDERBIN_DETAILS 2 StateSet_PROTECTED_RENDERBIN_DETAILS 4
    StateSet_OVERRIDE_PROTECTED_RENDERBIN_DETAILS 6 OSG_STATEATTRIBUTE 1 GL_COLOR_SUM 33880 StateAttribute_OFF 0
    StateAttribute_ON 1 StateAttribute_OVERRIDE 2 StateAttribute_PROTECTED 4 StateAttribute_INHERIT 8""") + [
    (f"StateAttribute_{name}", value) for value, name in enumerate(ATTRIBUTE_TYPES)] + pairs("""
    StateAttribute_CAPABILITY 100 OSG_COLORMASK 1 OSG_VIEWPORT 1 OSG_GROUP 1 OSG_CAMERA 1 Camera_PRE_MULTIPLY 0
    Camera_POST_MULTIPLY 1 Camera_FIXED 0 Camera_HORIZONTAL 1 Camera_VERTICAL 2 Camera_PRE_RENDER 0
    Camera_NESTED_RENDER 1 Camera_POST_RENDER 2 Camera_FRAME_BUFFER_OBJECT 0 Camera_PIXEL_BUFFER_RTT 1
    Camera_PIXEL_BUFFER 2 Camera_FRAME_BUFFER 3 Camera_SEPARATE_WINDOW 4 Camera_DEPTH_BUFFER 0
    Camera_STENCIL_BUFFER 1 Camera_PACKED_DEPTH_STENCIL_BUFFER 2 Camera_COLOR_BUFFER 3""") + [
    (f"Camera_COLOR_BUFFER{i}", 4 + i) for i in range(16)] + pairs("""
    Camera_RESIZE_VIEWPORT 1 Camera_RESIZE_ATTACHMENTS 2 Camera_RESIZE_PROJECTIONMATRIX 4 Camera_RESIZE_DEFAULT 3
    Camera_IMPLICIT_DEPTH_BUFFER_ATTACHMENT 1 Camera_IMPLICIT_STENCIL_BUFFER_ATTACHMENT 2
    Camera_IMPLICIT_COLOR_BUFFER_ATTACHMENT 4 Camera_USE_DISPLAY_SETTINGS_MASK -1 OSG_SWITCH 1 OSGUTIL_EXPORT_ 1
    OSGUTIL_SMOOTHINGVISITOR 1 OSG_TRANSFORM 1 GL_NORMALIZE 2977 Transform_RELATIVE_RF 0 Transform_ABSOLUTE_RF 1
    Transform_ABSOLUTE_RF_INHERIT_VIEWPOINT 2 OSG_GEODE 1 OSG_MATRIXTRANSFORM 1 OSG_AUTOTRANSFORM 1
    AutoTransform_NO_ROTATION 0 AutoTransform_ROTATE_TO_SCREEN 1 AutoTransform_ROTATE_TO_CAMERA 2
    AutoTransform_ROTATE_TO_AXIS 3 OSG_POSITIONATTITUDETRANSFORM 1 OSG_PLANE 1 Plane_num_components 3
    OSG_CLIPPLANE 1""") + [(f"GL_CLIP_PLANE{i}", 0x3000 + i) for i in range(6)] + pairs("""
    OSG_CLIPNODE 1 ClipNode_RELATIVE_RF 0 ClipNode_ABSOLUTE_RF 1 OSG_FOG 1 GL_FOG_DISTANCE_MODE_NV 34138
    GL_EYE_PLANE_ABSOLUTE_NV 34140 GL_EYE_RADIAL_NV 34139 GL_FOG_COORDINATE 33873 GL_FRAGMENT_DEPTH 33874
    GL_FOG 2912 GL_EXP 2048 GL_EXP2 2049 GL_FOG_HINT 3156 Fog_LINEAR 9729 Fog_EXP 2048 Fog_EXP2 2049
    Fog_FOG_COORDINATE 33873 Fog_FRAGMENT_DEPTH 33874""")

REGISTERED = """Referenced CopyOp Vec2f Vec3f Vec4f Vec2d Vec3d Vec4d Quat Matrixd Matrixf RefMatrixd RefMatrixf
    NotifyHandler StandardNotifyHandler Object DummyObject Node Texture2D StateSet StateAttribute ColorMask Viewport
    Group Camera CameraRenderOrderSortOp Switch SmoothingVisitor Transform Geode MatrixTransform AutoTransform
    PositionAttitudeTransform Plane ClipPlane ClipNode Fog""".split()
REGISTER_ROWS = [f"{c}_swigregister" for c in REGISTERED]
INIT_ROWS = [f"{c}_swiginit" for c in REGISTERED if c not in ("NotifyHandler", "Object", "StateAttribute")]


def test_module_has_no_docstring():
    assert _osg.__doc__ is None


def test_constants_and_cvar_in_installation_order():
    assert (len(BEFORE_CVAR), len(AFTER_CVAR)) == (21, 203)
    installed = [(k, v) for k, v in vars(_osg).items() if k == "cvar" or type(v) is int]
    assert installed == BEFORE_CVAR + [("cvar", _osg.cvar)] + AFTER_CVAR


def test_constants_keep_no_reference_of_their_own(run_py):
    out, _ = run_py("""
        import gc, sys, _osg
        big = [k for k, v in vars(_osg).items() if type(v) is int and v > 256]  # not the interpreter's shared ints
        print(len(big) > 20, {sys.getrefcount(getattr(_osg, k)) - len(gc.get_referrers(getattr(_osg, k))) for k in big})
    """)
    assert out == "True {1}\n"  # the module's dict and the call's argument


@pytest.mark.parametrize("name", REGISTER_ROWS)
def test_swigregister_takes_one_object(name):
    fn = getattr(_osg, name)
    raises(TypeError, f"_osg.{name}() takes exactly one argument (2 given)", fn, object, object)
    # A lone tuple is unpacked as the argument list.
    raises(TypeError, "swigregister expected 1 arguments, got 2", fn, (object, object))
    raises(TypeError, "swigregister expected 1 arguments, got 0", fn, ())


@pytest.mark.parametrize("name", INIT_ROWS)
@pytest.mark.parametrize("args", [(), (1,), (1, 2, 3)])
def test_swiginit_takes_two_arguments(name, args):
    raises(TypeError, f"swiginit expected 2 arguments, got {len(args)}", getattr(_osg, name), *args)


def test_each_swigregister_binds_its_class_descriptor(run_py):
    out, _ = run_py(f"""
        import json, _osg, _osgpeer
        names = {REGISTERED!r}
        for n in names:
            getattr(_osg, n + "_swigregister")(type(n, (), {{}}))
        def descriptor(n):
            return "_p_osgUtil__SmoothingVisitor" if n == "SmoothingVisitor" else "_p_osg__" + n
        print(json.dumps({{n: _osgpeer.clientdata_class(descriptor(n))[0].__name__ for n in names}}))
        """)
    assert json.loads(out) == {n: n for n in REGISTERED}


def test_includes_run_one_way():
    """runtime, then the engine, then the families, then the entry: no layer includes one above it."""
    import glob
    import re
    root = os.path.join(os.path.dirname(__file__), os.pardir)
    layer = {"runtime": 0, "platform": 0, "wrap": 1, "math": 2, "scene": 2, "state": 2, "module": 3}
    for path in glob.glob(os.path.join(root, "*", "*.[ch]*")):
        here = os.path.basename(os.path.dirname(path))
        if here in layer:
            for target in re.findall(r'#include "(\w+)/', open(path).read()):
                assert layer[target] <= layer[here] and (layer[target] < 2 or target == here), (path, target)


def test_every_function_tabled_with_the_calling_convention_of_its_arity():
    """One argument is METH_O and none METH_NOARGS, as SWIG builds them; a dispatcher, a
    constructor with arguments or a longer row takes a tuple."""
    import ctypes
    from all_rows import BY_NAME, Disp

    class MethodDef(ctypes.Structure):
        _fields_ = [("name", ctypes.c_char_p), ("meth", ctypes.c_void_p), ("flags", ctypes.c_int), ("doc", ctypes.c_char_p)]

    def flags(f):  # the PyMethodDef behind a built-in function: after the object head
        return ctypes.cast(ctypes.c_void_p.from_address(id(f) + 16), ctypes.POINTER(MethodDef)).contents.flags

    def expected(name):
        if name.endswith(("_swigregister", "_swiginit")):
            return 8 if name.endswith("_swigregister") else 1
        row = BY_NAME.get(name)  # every function is tabled
        return row and (1 if isinstance(row, Disp) else {0: 4, 1: 8}.get(len(row.codes), 1))
    got = {n: flags(f) for n, f in vars(_osg).items() if type(f) is type(_osg.notify)}
    assert got == {n: expected(n) for n in got} and set(BY_NAME) <= set(got)
    assert (len(got), [sum(f == k for f in got.values()) for k in (1, 8, 4)]) == (1053, [715, 328, 10])
