"""Every flat function of Referenced, CopyOp, Object, DummyObject, notification, the six
vectors and Quat, written from OpenSceneGraph's headers.

Argument codes say what a good call passes, argument 1 first: S self, s self of a const
member, v another object of the row's class, D a fresh object of the row's class (for
delete_), x a number, i an int, b True, t a str, n None, p the `_v_get` pointer of another
object of the row's class, F a Vec3f, G a Vec3d, c a CopyOp, o a DummyObject, r a
Referenced, h a notify handler; for the render state also f a Fog, K a Vec4f, H a Vec4d, and
from the sibling module e a GLenum (GL_FOG), E a texture mode (GL_TEXTURE_2D), u an osg::Uniform::Type, z a std::string, a an osg::State,
I an image and m a mode usage."""
from collections import namedtuple

from engine_support import SIZE, VECTORS

# arg1: the spelling of argument 1 in messages; op: a binary operator answering NotImplemented.
Row = namedtuple("Row", "name cls codes arg1 op")
# protos: the prototype lines of the overload message (None for operators); goods: good calls.
Disp = namedtuple("Disp", "name cls protos goods op")


def m(cls, suffix, codes, const=False, op=False):
    return Row(f"{cls}_{suffix}", cls, codes, f"osg::{cls}{' const' if const else ''} *", op)


def free(name, codes, arg1=None, cls=None):
    return Row(name, cls, codes, arg1, False)


def protos(owner, member, *shapes, const=False):
    return [f"{owner}::{member}({','.join(s)})" + (" const" if const else "") for s in shapes]


def pair(cls, member, *args, goods=("S",)):
    """A non-const/const accessor pair; the non-const member is listed first."""
    return Disp(f"{cls}_{member}", cls, protos(f"osg::{cls}", member, args) + protos(f"osg::{cls}", member, args, const=True),
                list(goods), False)


def vector(V):
    n, S = SIZE[V], f"osg::{V}"
    vt = f"{S}::value_type"
    ctors = {"Vec2f": [[], [vt] * 2], "Vec2d": [[], [vt] * 2, ["osg::Vec2f const &"]],
             "Vec3f": [[], [vt] * 3, ["osg::Vec2f const &", vt]],
             "Vec3d": [[], ["osg::Vec3f const &"], [vt] * 3, ["osg::Vec2d const &", vt]],
             "Vec4f": [[], [vt] * 4, ["osg::Vec3f const &", vt]],
             "Vec4d": [[], [vt] * 4, ["osg::Vec3d const &", vt], ["osg::Vec4f const &"]]}[V]
    rows = [Disp(f"new_{V}", V, protos(S, V, *ctors), ["", "x" * n], False), free(f"delete_{V}", "D", f"{S} *", V),
            m(V, "_v_set", "Sp"), m(V, "_v_get", "S"), pair(V, "ptr"), m(V, "valid", "s", True),
            m(V, "isNaN", "s", True), Disp(f"{V}___mul__", V, None, ["sv", "sx"], True), m(V, "__imul__", "Sx"),
            m(V, "__itruediv__", "Sx"), m(V, "__iadd__", "Sv"), m(V, "__isub__", "Sv"),
            m(V, "__neg__", "s", True, True),
            m(V, "__truediv__", "sx", True, True), m(V, "length", "s", True), m(V, "length2", "s", True),
            m(V, "normalize", "S")]
    rows += [m(V, op, "sv", True, True) for op in ["__eq__", "__ne__", "__lt__", "__add__", "__sub__"]]
    rows += [pair(V, c) for c in "xyzwrgba"[: n if n < 4 else 8]]
    if V in ("Vec2f", "Vec3f", "Vec3d"):  # OSG 3.6 has set(const Vn&) only for these three
        rows.append(Disp(f"{V}_set", V, protos(S, "set", [vt] * n, [f"{S} const &"]), ["S" + "x" * n, "Sv"], False))
    else:
        rows.append(m(V, "set", "S" + "x" * n))
    rows += [m(V, "__xor__", "sv", True, True)] if n == 3 else []
    return rows + ([m(V, "asABGR", "s", True), m(V, "asRGBA", "s", True)] if n == 4 else [])


def quat():
    Q, vt, vr, f3, d3 = "osg::Quat", "osg::Quat::value_type", "osg::Quat::value_type &", "osg::Vec3f const &", \
        "osg::Vec3d const &"
    rows = [
        Disp("new_Quat", "Quat", protos(Q, "Quat", [], [vt] * 4, ["osg::Vec4f const &"], ["osg::Vec4d const &"],
                                        [vt, f3], [vt, d3], [vt, f3] * 3, [vt, d3] * 3), ["", "xxxx", "xF", "xGxGxG"],
             False),
        Disp("Quat_set", "Quat", protos(Q, "set", [vt] * 4, ["osg::Vec4f const &"], ["osg::Vec4d const &"],
                                        ["osg::Matrixf const &"], ["osg::Matrixd const &"]), ["Sxxxx"], False),
        Disp("Quat_get", "Quat", protos(Q, "get", ["osg::Matrixf &"], ["osg::Matrixd &"], const=True), [], False),
        Disp("Quat___mul__", "Quat", None, ["sv", "sF", "sG", "sx"], True),
        Disp("Quat___truediv__", "Quat", None, ["sx", "sv"], True),
        Disp("Quat___imul__", "Quat", protos(Q, "operator *=", [vt], ["osg::Quat const &"]), ["Sx", "Sv"], False),
        Disp("Quat___itruediv__", "Quat", protos(Q, "operator /=", [vt], ["osg::Quat const &"]), ["Sx", "Sv"], False),
        Disp("Quat_makeRotate", "Quat", protos(Q, "makeRotate", [vt] * 4, [vt, f3], [vt, d3], [vt, f3] * 3,
                                               [vt, d3] * 3, [f3, f3], [d3, d3]), ["Sxxxx", "SxF", "SGG"], False),
        Disp("Quat_getRotate", "Quat", protos(Q, "getRotate", [vr] * 4, [vr, "osg::Vec3f &"], [vr, "osg::Vec3d &"],
                                              const=True), ["spppp", "spG"], False),
        free("delete_Quat", "D", "osg::Quat *", "Quat"), m("Quat", "_v_set", "Sp"), m("Quat", "_v_get", "S"),
        m("Quat", "__iadd__", "Sv"), m("Quat", "__isub__", "Sv"), m("Quat", "__neg__", "s", True, True),
        m("Quat", "makeRotate_original", "SGG"), m("Quat", "slerp", "Sxvv")]
    rows += [m("Quat", op, "sv", True, True) for op in ["__eq__", "__ne__", "__lt__", "__add__", "__sub__"]]
    rows += [m("Quat", f, "s", True) for f in ["asVec4", "asVec3", "zeroRotation", "length", "length2", "conj",
                                                "inverse"]]
    return rows + [pair("Quat", c) for c in "xyzw"]


def base():
    R, O, C, D = "Referenced", "Object", "CopyOp", "DummyObject"
    copied = ["Referenced", "Object", "Node", "Drawable", "StateSet", "StateAttribute", "Texture", "Image", "Array",
              "PrimitiveSet", "Shape", "Uniform", "Callback", "StateAttributeCallback", "UniformCallback"]
    rows = [
        Disp("new_Referenced", R, protos("osg::Referenced", R, [], ["bool"], ["osg::Referenced const &"]),
             ["", "b", "r"], False),
        m(R, "setThreadSafeRefUnref", "Sb"), free("Referenced_getGlobalReferencedMutex", ""),
        free("Referenced_setDeleteHandler", "n", "osg::DeleteHandler *"), free("Referenced_getDeleteHandler", ""),
        free("delete_Referenced", "D", "osg::Referenced *", R), m(R, "addObserver", "sn", True),
        m(R, "removeObserver", "sn", True),
        free("intrusive_ptr_add_ref", "r", "osg::Referenced *"),
        free("intrusive_ptr_release", "r", "osg::Referenced *"),
        Disp("new_CopyOp", C, protos("osg::CopyOp", C, ["osg::CopyOp::CopyFlags"], []), ["", "i"], False),
        free("delete_CopyOp", "D", "osg::CopyOp *", C), m(C, "setCopyFlags", "Si"), m(C, "getCopyFlags", "s", True),
        Disp("CopyOp___call__", C, [f"osg::CopyOp::operator ()(osg::{k} const *) const" for k in copied],
             ["sn", "so"], False),
        m(O, "clone", "sc", True), m(O, "isSameKindAs", "so", True), m(O, "setThreadSafeRefUnref", "Sb"),
        Disp("Object_setName", O, protos("osg::Object", "setName", ["std::string const &"], ["char const *"]),
             ["St", "Sn"], False),
        m(O, "setDataVariance", "Si"), m(O, "computeDataVariance", "S"), m(O, "setUserDataContainer", "Sn"),
        m(O, "getOrCreateUserDataContainer", "S"), m(O, "setUserData", "Sr"), m(O, "resizeGLObjectBuffers", "Si"),
        pair(O, "getUserDataContainer"), pair(O, "getUserData"),
        Disp("Object_releaseGLObjects", O, protos("osg::Object", "releaseGLObjects", ["osg::State *"], [], const=True),
             ["Sn", "S"], False),
        Disp("new_DummyObject", D,
             protos("osg::DummyObject", D, [], ["osg::DummyObject const &", "osg::CopyOp const &"]), ["", "vc"], False),
        m(D, "clone", "sc", True), m(D, "isSameKindAs", "so", True)]
    rows += [m(R, f, "s", True) for f in ["getThreadSafeRefUnref", "getRefMutex", "unref_nodelete", "referenceCount",
                                           "getObserverSet", "getOrCreateObserverSet"]]
    rows += [m(O, f, "s", True) for f in ["cloneType", "libraryName", "className", "getCompoundClassName", "getName",
                                           "getDataVariance"]]
    rows += [m(D, f, "s", True) for f in ["cloneType", "libraryName", "className"]]
    return rows + [pair(O, "as" + k) for k in ["Node", "NodeVisitor", "StateSet", "StateAttribute", "Uniform", "Camera",
                                                "Drawable", "Callback", "CallbackObject", "UserDataContainer",
                                                "ValueObject", "Image"]]


def notify():
    H, SH = "NotifyHandler", "StandardNotifyHandler"
    return [free("setNotifyLevel", "i", "osg::NotifySeverity"), free("isNotifyEnabled", "i", "osg::NotifySeverity"),
            free("getNotifyLevel", ""), free("initNotifyLevel", ""), free("getNotifyHandler", ""),
            Disp("notify", None, ["osg::notify(osg::NotifySeverity const)", "osg::notify()"], ["", "i"], False),
            free("setNotifyHandler", "h", "osg::NotifyHandler *"), m(H, "notify", "Sit"), m(SH, "notify", "Sit"),
            free("delete_NotifyHandler", "D", "osg::NotifyHandler *", H), free("new_StandardNotifyHandler", "", cls=SH),
            free("delete_StandardNotifyHandler", "D", "osg::StandardNotifyHandler *", SH)]


def state_set():
    S, O = "StateSet", "osg::StateSet"
    cref, ui, ty, sa, ov, mv, st = ("osg::StateSet const &", "unsigned int", "osg::StateAttribute::Type",
                                    "osg::StateAttribute *", "osg::StateAttribute::OverrideValue",
                                    "osg::StateAttribute::GLModeValue", "std::string const &")
    rows = [
        Disp("new_StateSet", S, protos(O, S, [], [cref, "osg::CopyOp const &"], [cref]), ["", "vc", "v"], False),
        m(S, "clone", "sc", True), m(S, "isSameKindAs", "so", True), m(S, "merge", "Sv"),
        Disp("StateSet_compare", S, protos(O, "compare", [cref, "bool"], [cref], const=True), ["svb", "sv"], False),
        pair(S, "asStateSet"),
        Disp("StateSet_getParents", S, [f"{O}::getParents() const", f"{O}::getParents()"], ["s"], False),
        pair(S, "getParent", ui, goods=()),
        m(S, "setMode", "Sei"), m(S, "removeMode", "Se"), m(S, "getMode", "se", True),
        m(S, "setTextureMode", "SiEi"), m(S, "removeTextureMode", "SiE"), m(S, "getTextureMode", "siE", True),
        Disp("StateSet_setAttribute", S, protos(O, "setAttribute", [sa, ov], [sa]), ["Sfi", "Sf"], False),
        Disp("StateSet_setAttributeAndModes", S, protos(O, "setAttributeAndModes", [sa, mv], [sa]), ["Sfi", "Sf"], False),
        Disp("StateSet_removeAttribute", S, protos(O, "removeAttribute", [ty, ui], [ty], [sa]), ["Sii", "Si", "Sf"], False),
        Disp("StateSet_setTextureAttribute", S, protos(O, "setTextureAttribute", [ui, sa, ov], [ui, sa]), ["Sini", "Sin"],
             False),
        Disp("StateSet_setTextureAttributeAndModes", S, protos(O, "setTextureAttributeAndModes", [ui, sa, mv], [ui, sa]),
             ["Sini", "Sin"], False),  # a fog is no texture attribute: OSG would warn on each call
        Disp("StateSet_removeTextureAttribute", S, protos(O, "removeTextureAttribute", [ui, ty], [ui, sa]), ["Sii", "Sif"],
             False),
        pair(S, "getTextureAttribute", ui, ty, goods=["Sii"]), pair(S, "getTextureAttributePair", ui, ty, goods=["Sii"]),
        m(S, "setAssociatedModes", "Sfi"), m(S, "removeAssociatedModes", "Sf"),
        m(S, "setAssociatedTextureModes", "Sifi"), m(S, "removeAssociatedTextureModes", "Sif"),
        Disp("StateSet_addUniform", S, protos(O, "addUniform", ["osg::Uniform *", ov], ["osg::Uniform *"]), ["Sni", "Sn"], False),
        Disp("StateSet_removeUniform", S, protos(O, "removeUniform", [st], ["osg::Uniform *"]), ["Sz", "Sn"], False),
        Disp("StateSet_getOrCreateUniform", S, protos(O, "getOrCreateUniform", [st, "osg::Uniform::Type", ui],
                                                      [st, "osg::Uniform::Type"]), ["Szu"], False),
        pair(S, "getUniform", st, goods=["Sz"]), m(S, "getUniformPair", "sz", True),
        Disp("StateSet_setDefine", S, protos(O, "setDefine", [st, ov], [st], [st, st, ov], [st, st]),
             ["Szi", "Sz", "Szzi", "Szz"], False),
        pair(S, "getDefinePair", st, goods=["Sz"]), m(S, "removeDefine", "Sz"),
        Disp("StateSet_setRenderBinDetails", S, protos(O, "setRenderBinDetails", ["int", st, "osg::StateSet::RenderBinMode"],
                                                       ["int", st]), ["Sizi", "Siz"], False),
        m(S, "setRenderingHint", "Si"), m(S, "setRenderBinMode", "Si"), m(S, "setBinNumber", "Si"),
        m(S, "setBinName", "Sz"), m(S, "setNestRenderBins", "Sb"), m(S, "setUpdateCallback", "Sn"),
        m(S, "runUpdateCallbacks", "Sn"), m(S, "setEventCallback", "Sn"), m(S, "runEventCallbacks", "Sn"),
        m(S, "checkValidityOfAssociatedModes", "sa", True), m(S, "setThreadSafeRefUnref", "Sb"),
        m(S, "compileGLObjects", "sa", True), m(S, "resizeGLObjectBuffers", "Si"),
        Disp("StateSet_getAttribute", S, protos(O, "getAttribute", [ty, ui], [ty]) +
             protos(O, "getAttribute", [ty, ui], [ty], const=True), ["Sii", "Si"], False),
        Disp("StateSet_getAttributePair", S, protos(O, "getAttributePair", [ty, ui], [ty]) +
             protos(O, "getAttributePair", [ty, ui], [ty], const=True), ["Sii", "Si"], False),
        Disp("StateSet_releaseGLObjects", S, protos(O, "releaseGLObjects", ["osg::State *"], [], const=True), ["Sn", "S"],
             False)]
    rows += [m(S, f"set{c}List", "Sl") for c in ["Mode", "Attribute", "TextureMode", "TextureAttribute", "Uniform",
                                                  "Define"]]
    rows += [pair(S, f"get{c}List") for c in ["Mode", "Attribute", "TextureMode", "TextureAttribute", "Uniform",
                                               "Define"]]
    rows += [pair(S, f"get{c}Callback") for c in ["Update", "Event"]]
    rows += [m(S, op, "sv", True, True) for op in ["__lt__", "__eq__", "__ne__"]]
    rows += [m(S, f, "S") for f in ["computeDataVariance", "setGlobalDefaults", "clear", "setRenderBinToInherit"]]
    return rows + [m(S, f, "s", True) for f in [
        "cloneType", "libraryName", "className", "getNumParents", "getNumTextureModeLists",
        "getNumTextureAttributeLists", "getRenderingHint", "useRenderBinDetails", "getRenderBinMode", "getBinNumber",
        "getBinName", "getNestRenderBins", "requiresUpdateTraversal", "getNumChildrenRequiringUpdateTraversal",
        "requiresEventTraversal", "getNumChildrenRequiringEventTraversal"]]


def attributes():
    SA, cp = "StateAttribute", "osg::CopyOp const &"
    rows = [m(SA, "clone", "sc", True), m(SA, "isSameKindAs", "so", True), m(SA, "compare", "sv", True),
            m(SA, "getModeUsage", "sm", True), m(SA, "checkValidityOfAssociatedModes", "sa", True),
            m(SA, "setUpdateCallback", "Sn"), m(SA, "setEventCallback", "Sn"), m(SA, "apply", "sa", True),
            m(SA, "compileGLObjects", "sa", True), m(SA, "resizeGLObjectBuffers", "Si"),
            pair(SA, "getParent", "unsigned int", goods=()),
            Disp("StateAttribute_releaseGLObjects", SA, protos("osg::StateAttribute", "releaseGLObjects", ["osg::State *"],
                                                               [], const=True), ["Sn", "S"], False)]
    rows += [m(SA, op, "sv", True, True) for op in ["__lt__", "__eq__", "__ne__"]]
    rows += [pair(SA, f) for f in ["asStateAttribute", "asTexture", "getUpdateCallback", "getEventCallback"]]
    rows += [m(SA, f, "s", True) for f in ["cloneType", "libraryName", "className", "getType", "getMember",
                                            "getTypeMemberPair", "isTextureAttribute", "getParents", "getNumParents"]]
    own = {"Fog": (True, False, True), "ColorMask": (True, False, False), "ClipPlane": (False, True, True),
           "Viewport": (True, False, False)}
    for C, (typ, member, modes) in own.items():
        O, cref = f"osg::{C}", f"osg::{C} const &"
        rows += [m(C, "clone", "sc", True), m(C, "isSameKindAs", "so", True), m(C, "compare", "sf", True),
                 m(C, "apply", "sa", True)] + [m(C, f, "s", True) for f in ["cloneType", "libraryName", "className"]]
        rows += ([m(C, "getType", "s", True)] if typ else []) + ([m(C, "getMember", "s", True)] if member else [])
        rows += [m(C, "getModeUsage", "sm", True)] if modes else []
        ctors = {"Fog": ([], ["", "vc", "v"]), "ColorMask": ([["bool"] * 4], ["", "bbbb", "vc", "v"]),
                 "ClipPlane": ([["unsigned int"], ["unsigned int", "osg::Vec4d const &"],
                                ["unsigned int", "osg::Plane const &"], ["unsigned int"] + ["double"] * 4],
                               ["", "i", "iH", "ixxxx", "vc", "v"]),
                 "Viewport": ([["osg::Viewport::value_type"] * 4], ["", "xxxx", "vc", "v"])}[C]
        rows.append(Disp(f"new_{C}", C, protos(O, C, [], *ctors[0], [cref, cp], [cref]), ctors[1], False))
    F, CM, CP, VP = "Fog", "ColorMask", "ClipPlane", "Viewport"
    rows += [m(F, "setMode", "Si"), m(F, "setDensity", "Sx"), m(F, "setStart", "Sx"), m(F, "setEnd", "Sx"),
             m(F, "setColor", "SK"), m(F, "setUseRadialFog", "Sb"), m(F, "setFogCoordinateSource", "Si")]
    rows += [m(F, f"get{g}", "s", True) for g in ["Mode", "Density", "Start", "End", "Color", "UseRadialFog",
                                                    "FogCoordinateSource"]]
    rows += [m(CM, "setMask", "Sbbbb")] + [m(CM, f"{a}{c}Mask", "Sb" if a == "set" else "s", a == "get")
                                           for c in ["Red", "Green", "Blue", "Alpha"] for a in ["set", "get"]]
    rows += [Disp("ClipPlane_setClipPlane", CP, protos("osg::ClipPlane", "setClipPlane", ["osg::Plane const &"],
                                                       ["double"] * 4, ["osg::Vec4d const &"]), ["Sxxxx", "SH"], False),
             m(CP, "getClipPlane", "s", True), m(CP, "setClipPlaneNum", "Si"), m(CP, "getClipPlaneNum", "s", True)]
    rows += [m(VP, "setViewport", "Sxxxx")] + [pair(VP, c) for c in ["x", "y", "width", "height"]]
    return rows + [m(VP, f, "s", True) for f in ["valid", "aspectRatio", "computeWindowMatrix"]]


def texture():
    T, O, ui, img = "Texture2D", "osg::Texture2D", "unsigned int", "osg::Image *"
    rows = [
        Disp("new_Texture2D", T, protos(O, T, [], [img], ["osg::Texture2D const &", "osg::CopyOp const &"],
                                        ["osg::Texture2D const &"]), ["", "n", "I", "vc", "v"], False),
        m(T, "compare", "sf", True), m(T, "isDirty", "si", True), m(T, "getModifiedCount", "si", True),
        Disp("Texture2D_setImage", T, protos(O, "setImage", [img], [ui, img]), ["SI", "SiI"], False),
        Disp("Texture2D_getImage", T, protos(O, "getImage", []) + protos(O, "getImage", [], const=True) +
             protos(O, "getImage", [ui]) + protos(O, "getImage", [ui], const=True), ["S", "Si"], False),
        m(T, "setTextureSize", "sii", True), m(T, "setTextureWidth", "Si"), m(T, "setTextureHeight", "Si"),
        m(T, "setSubloadCallback", "Sn"), pair(T, "getSubloadCallback"), m(T, "setNumMipmapLevels", "si", True),
        m(T, "copyTexImage2D", "Saiiii"), m(T, "copyTexSubImage2D", "Saiiiiii"), m(T, "apply", "sa", True)]
    return rows + [m(T, f, "s", True) for f in ["getTextureTarget", "getNumImages", "getTextureWidth",
                                                 "getTextureHeight", "getTextureDepth", "getNumMipmapLevels"]]


STATE = state_set() + attributes() + texture()
ALL = [r for V in VECTORS for r in vector(V)] + quat() + base() + notify() + STATE
ROWS = [r for r in ALL if isinstance(r, Row)]
DISPATCHERS = [d for d in ALL if isinstance(d, Disp)]
BY_NAME = {r.name: r for r in ALL}
