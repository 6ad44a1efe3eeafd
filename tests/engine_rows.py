"""Every flat function of the classes before the scene graph (scene_rows has those), written
from OpenSceneGraph's headers. Argument codes say what a good call passes, argument 1 first:
S self, s self of a const member, v another object of the row's class, D a fresh one (for
delete_), p the `_v_get` pointer of another; x a number, i an int, b True, t a str, n None; F Vec3f,
G Vec3d, E Vec4f, H Vec4d, Q Quat, M Matrixd, N Matrixf, c CopyOp, o DummyObject, r Referenced,
h a notify handler, A a Fog, Y a Camera, V a node visitor, d and f the element pointers of a
Matrixd and a Matrixf; from the sibling modules and the test peer L and K lists of Vec3f and Vec3d
points, B a bounding sphere, X a bounding box, e a GLenum (GL_FOG), T a texture mode (GL_TEXTURE_2D),
u an osg::Uniform::Type, z a std::string, k a GLbitfield, a an osg::State, I an image, m a mode
usage, U a texture, y a processor affinity; for the scene graph P a node path, W a value list,
1 a description list, 7 a geometry, 8 a state set, 9 a clip plane and 0 a clip plane list."""
from collections import namedtuple

from engine_support import SIZE, VECTORS

# arg1: the spelling of argument 1 in messages; op: a binary operator answering NotImplemented.
Row = namedtuple("Row", "name cls codes arg1 op")
# protos: the prototype lines of the overload message (None for operators); goods: good calls.
# static: a static member, which takes no object argument.
Disp = namedtuple("Disp", "name cls protos goods op static", defaults=[False])


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
        m(D, "clone", "sc", True), m(D, "isSameKindAs", "so", True),
        free("resizeGLObjectBuffers", "oi", "osg::Object *"),
        Disp("releaseGLObjects", None, ["osg::releaseGLObjects(osg::Object *,osg::State *)",
                                        "osg::releaseGLObjects(osg::Object *)"], ["on", "o", "nn"], False)]
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


def matrix(M):
    O, S = {"Matrixd": "Matrixf", "Matrixf": "Matrixd"}[M], f"osg::{M}"
    vt, mr, f3, d3, f4, d4 = f"{S}::value_type", f"{S} const &", "osg::Vec3f const &", "osg::Vec3d const &", \
        "osg::Vec4f const &", "osg::Vec4d const &"
    e, q, fp, dp = "d" if M == "Matrixd" else "f", "osg::Quat const &", "float const *const", "double const *const"
    vec3 = [[f3], [d3], [vt] * 3]
    rot = [[f3, f3], [d3, d3], [vt, f3], [vt, d3], [vt] * 4, [q], [vt, f3] * 3, [vt, d3] * 3]

    def disp(member, shapes, goods, const=False, static=False):
        return Disp(f"{M}_{member}", M, protos(S, member, *shapes, const=const), goods, False, static)

    def static(member, codes, arg1):
        return free(f"{M}_{member}", codes, arg1, M)
    rows = [Disp(f"new_{M}", M, protos(S, M, [], [mr], [f"osg::{O} const &"], [fp], [dp], [q], [vt] * 16),
                 ["", "v", "Q", e, "x" * 16], False),
            free(f"delete_{M}", "D", f"{S} *", M), m(M, "compare", "sv", True), m(M, "__call__", "sii", True),
            disp("set", [[mr], [f"osg::{O} const &"], [fp], [dp], [vt] * 16], ["Sv", "S" + e, "S" + "x" * 16]),
            pair(M, "ptr"), m(M, "makeIdentity", "S"), m(M, "makeLookAt", "SGGG"),
            disp("makeScale", vec3, ["SF", "SG", "Sxxx"]), disp("makeTranslate", vec3, ["SF", "SG", "Sxxx"]),
            disp("makeRotate", rot, ["SFF", "SxG", "Sxxxx", "SQ", "SxFxFxF"]),
            disp("decompose", [["osg::Vec3f &", "osg::Quat &"] * 2, ["osg::Vec3d &", "osg::Quat &"] * 2],
                 ["sFQFQ", "sGQGQ"], const=True),
            disp("getPerspective", [["double &"] * 4, ["float &"] * 4], ["s" + e * 4], const=True),
            disp("getLookAt", [["osg::Vec3f &"] * 3 + [vt], ["osg::Vec3f &"] * 3, ["osg::Vec3d &"] * 3 + [vt],
                               ["osg::Vec3d &"] * 3], ["sFFFx", "sGGG"], const=True),
            static("identity", "", None), disp("scale", vec3, ["F", "G", "xxx"], static=True),
            disp("translate", vec3, ["F", "G", "xxx"], static=True),
            disp("rotate", [rot[0], rot[1], rot[4], rot[2], rot[3], rot[6], rot[7], rot[5]],
                 ["FF", "xxxx", "xG", "Q", "xFxFxF"], static=True),
            disp("lookAt", [[f3] * 3, [d3] * 3], ["FFF", "GGG"], static=True),
            disp("transform3x3", [[f3, mr], [d3, mr], [mr, f3], [mr, d3]], ["Fv", "Gv", "vF", "vG"], static=True),
            m(M, "setRotate", "SQ"), disp("setTrans", [[vt] * 3, [f3], [d3]], ["Sxxx", "SF", "SG"]),
            m(M, "mult", "Svv"), m(M, "preMultRotate", "SQ"), m(M, "postMultRotate", "SQ"),
            Disp(f"{M}___mul__", M, None, ["sF", "sG", "sE", "sH", "sv"] + (["sx"] if O == "Matrixd" else []), True)]
    rows += [disp(f, [["double &"] * 6, ["float &"] * 6], ["s" + e * 6], const=True) for f in ["getOrtho", "getFrustum"]]
    rows += [Disp(f"{M}_{f}", M, protos(S, f, [f3], [d3], [f4], [d4], const=True) + protos(S, f, [mr]),
                  ["sF", "sG", "sE", "sH", "Sv"], False) for f in ["preMult", "postMult"]]
    rows += [disp(f, [[d3], [f3]], ["SG", "SF"]) for f in ["preMultTranslate", "postMultTranslate", "preMultScale",
                                                          "postMultScale"]]
    rows += [m(M, f, "s", True) for f in ["valid", "isNaN", "isIdentity", "getRotate", "getTrans", "getScale"]]
    rows += [m(M, op, "sv", True, True) for op in ["__lt__", "__eq__", "__ne__"]]
    rows += [m(M, f, "S" + "x" * n) for f, n in [("makeOrtho", 6), ("makeFrustum", 6), ("makeOrtho2D", 4),
                                                  ("makePerspective", 4)]]
    rows += [static(f, "x" * n, "double") for f, n in [("ortho", 6), ("frustum", 6), ("ortho2D", 4), ("perspective", 4)]]
    rows += [static(f, "v", mr) for f in ["inverse", "orthoNormal"]]
    rows += [m(M, f, "Sv") for f in ["invert", "invert_4x3", "invert_4x4", "transpose", "transpose3x3",
                                      "orthoNormalize"]]
    if O == "Matrixd":
        return rows + [disp("__imul__", [[mr], [vt]], ["Sv", "Sx"])._replace(
            protos=protos(S, "operator *=", [mr], [vt])), m(M, "__truediv__", "sx", True, True),
            m(M, "__add__", "sv", True, True), m(M, "__itruediv__", "Sx"), m(M, "__iadd__", "Sv")]
    return rows + [m(M, "__imul__", "Sv")]


def ref_matrix(R):
    M, O = R[3:], {"RefMatrixd": "Matrixf", "RefMatrixf": "Matrixd"}[R]
    vt = f"osg::{M}::value_type"
    return [Disp(f"new_{R}", R, protos(f"osg::{R}", R, [], [f"osg::{M} const &"], [f"osg::{O} const &"],
                                       [f"{vt} const *const"], [f"osg::{R} const &"], [vt] * 16),
                 ["", "M" if M == "Matrixd" else "N", "d" if M == "Matrixd" else "f", "x" * 16], False),
            m(R, "clone", "sc", True), m(R, "isSameKindAs", "sn", True)] + \
        [m(R, f, "s", True) for f in ["cloneType", "libraryName", "className"]]


def plane():
    P, vt, v3 = "osg::Plane", "osg::Plane::value_type", "osg::Plane::Vec3_type const &"
    f4, d4 = "osg::Vec4f const &", "osg::Vec4d const &"
    shapes = [[f4], [d4], [v3, vt], [v3] * 3, [v3] * 2]
    rows = [Disp("new_Plane", "Plane", protos(P, "Plane", [], [f"{P} const &"], [vt] * 4, *shapes),
                 ["", "v", "xxxx", "E", "H", "Gx", "GGG", "GG"], False),
            Disp("Plane_set", "Plane", protos(P, "set", [f"{P} const &"], [vt] * 4, *shapes[:2], [v3, "double"],
                                              *shapes[3:]), ["Sv", "Sxxxx", "SE", "SH", "SGx", "SGGG", "SGG"], False),
            Disp("Plane_intersect", "Plane", protos(P, "intersect", ["std::vector< osg::Vec3f > const &"],
                                                    ["std::vector< osg::Vec3d > const &"],
                                                    ["osg::BoundingSphere const &"], ["osg::BoundingBox const &"],
                                                    const=True), ["sL", "sK", "sB", "sX"], False),
            free("delete_Plane", "D", "osg::Plane *", "Plane"), pair("Plane", "ptr"),
            m("Plane", "transform", "SM"), m("Plane", "transformProvidingInverse", "SM")]
    rows += [Disp(f"Plane_{f}", "Plane", protos(P, f, ["osg::Vec3f const &"], ["osg::Vec3d const &"], const=True),
                  ["sF", "sG"], False) for f in ["distance", "dotProductNormal"]]
    rows += [m("Plane", f, "S") for f in ["flip", "makeUnitLength", "calculateUpperLowerBBCorners"]]
    rows += [m("Plane", f, "s", True) for f in ["valid", "isNaN", "asVec4", "getNormal"]]
    return rows + [m("Plane", op, "sv", True, True) for op in ["__eq__", "__ne__", "__lt__"]]


def operators():
    order = ["Vec2f", "Vec3f", "Vec4f", "Vec2d", "Vec3d", "Vec4d"]
    return [Disp("__mul__", None, None, ["FE", "EF", "GH", "FH", "GE", "HG", "HF", "EG", "FM", "GM", "EM", "HM", "FN",
                                         "GN", "EN", "HN"], True)] + \
        [Disp(f, None, [f"osg::{f}(osg::{v} const &,osg::{v} const &)" for v in order], ["FF", "GG", "EE", "HH"],
              False) for f in ["componentMultiply", "componentDivide"]]


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
        m(S, "setTextureMode", "SiTi"), m(S, "removeTextureMode", "SiT"), m(S, "getTextureMode", "siT", True),
        Disp("StateSet_setAttribute", S, protos(O, "setAttribute", [sa, ov], [sa]), ["SAi", "SA"], False),
        Disp("StateSet_setAttributeAndModes", S, protos(O, "setAttributeAndModes", [sa, mv], [sa]), ["SAi", "SA"], False),
        Disp("StateSet_removeAttribute", S, protos(O, "removeAttribute", [ty, ui], [ty], [sa]), ["Sii", "Si", "SA"], False),
        Disp("StateSet_setTextureAttribute", S, protos(O, "setTextureAttribute", [ui, sa, ov], [ui, sa]), ["Sini", "Sin"],
             False),
        Disp("StateSet_setTextureAttributeAndModes", S, protos(O, "setTextureAttributeAndModes", [ui, sa, mv], [ui, sa]),
             ["Sini", "Sin"], False),  # a fog is no texture attribute: OSG would warn on each call
        Disp("StateSet_removeTextureAttribute", S, protos(O, "removeTextureAttribute", [ui, ty], [ui, sa]), ["Sii", "SiA"],
             False),
        pair(S, "getTextureAttribute", ui, ty, goods=["Sii"]), pair(S, "getTextureAttributePair", ui, ty, goods=["Sii"]),
        m(S, "setAssociatedModes", "SAi"), m(S, "removeAssociatedModes", "SA"),
        m(S, "setAssociatedTextureModes", "SiAi"), m(S, "removeAssociatedTextureModes", "SiA"),
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
    own = {"Fog": (True, False, True), "ColorMask": (True, False, False), "ClipPlane": (True, True, True),
           "Viewport": (True, False, False)}
    for C, (typ, member, modes) in own.items():
        O, cref = f"osg::{C}", f"osg::{C} const &"
        rows += [m(C, "clone", "sc", True), m(C, "isSameKindAs", "so", True), m(C, "compare", "sA", True),
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
             m(F, "setColor", "SE"), m(F, "setUseRadialFog", "Sb"), m(F, "setFogCoordinateSource", "Si")]
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
        m(T, "compare", "sA", True), m(T, "isDirty", "si", True), m(T, "getModifiedCount", "si", True),
        Disp("Texture2D_setImage", T, protos(O, "setImage", [img], [ui, img]), ["SI", "SiI"], False),
        Disp("Texture2D_getImage", T, protos(O, "getImage", []) + protos(O, "getImage", [], const=True) +
             protos(O, "getImage", [ui]) + protos(O, "getImage", [ui], const=True), ["S", "Si"], False),
        m(T, "setTextureSize", "sii", True), m(T, "setTextureWidth", "Si"), m(T, "setTextureHeight", "Si"),
        m(T, "setSubloadCallback", "Sn"), pair(T, "getSubloadCallback"), m(T, "setNumMipmapLevels", "si", True),
        m(T, "copyTexImage2D", "Saiiii"), m(T, "copyTexSubImage2D", "Saiiiiii"), m(T, "apply", "sa", True)]
    return rows + [m(T, f, "s", True) for f in ["getTextureTarget", "getNumImages", "getTextureWidth",
                                                 "getTextureHeight", "getTextureDepth", "getNumMipmapLevels"]]


def camera():
    C, O, SO = "Camera", "osg::Camera", "CameraRenderOrderSortOp"
    bc, ui, mask, impl = ("osg::Camera::BufferComponent", "unsigned int", "osg::Camera::ImplicitBufferAttachmentMask",
                          "osg::Camera::RenderTargetImplementation")
    v3, v3f, cref = "osg::Vec3d &", "osg::Vec3f &", "osg::Camera const &"

    def d(member, *shapes, goods, const=False):
        return Disp(f"{C}_{member}", C, protos(O, member, *shapes, const=const), goods, False)

    def const_first(member):
        return Disp(f"{C}_{member}", C, protos(O, member, [], const=True) + protos(O, member, []), ["S"], False)
    texture = [[bc, "osg::Texture *"] + [ui, ui, "bool", ui, ui][:k] for k in range(5, -1, -1)]
    image = [[bc, "osg::Image *"] + [ui, ui][:k] for k in (2, 1, 0)]
    rows = [
        Disp(f"new_{C}", C, protos(O, C, [], [cref, "osg::CopyOp const &"], [cref]), ["", "vc", "v"], False),
        m(C, "clone", "sc", True), m(C, "isSameKindAs", "so", True), m(C, "accept", "SV"),
        d("setColorMask", ["osg::ColorMask *"], ["bool"] * 4, goods=["Sn", "Sbbbb"]), const_first("getColorMask"),
        d("setViewport", ["osg::Viewport *"], ["int"] * 4, goods=["Sn", "Siiii"]), const_first("getViewport"),
        d("getViewMatrixAsLookAt", [v3] * 3 + ["double"], [v3] * 3, [v3f] * 3 + ["float"], [v3f] * 3, const=True,
          goods=["sGGGx", "sGGG", "sFFFx", "sFFF"]),
        d("setRenderOrder", ["osg::Camera::RenderOrder", "int"], ["osg::Camera::RenderOrder"], goods=["Sii", "Si"]),
        d("setRenderTargetImplementation", [impl], [impl, impl], goods=["Si", "Sib"]),  # the fallback rates lower
        d("attach", [bc, "GLenum"], *texture, *image, goods=["Sie", "SiUiibii", "SiUi", "SiU", "SiIii", "SiI"]),
        d("resize", ["int"] * 3, ["int"] * 2, goods=["Siii", "Sii"]),
        d("setImplicitBufferAttachmentMask", [mask] * 2, [mask], [], goods=["Sii", "Si", "S"]),
        d("releaseGLObjects", ["osg::State *"], [], const=True, goods=["Sn", "S"]),
        m(C, "computeLocalToWorldMatrix", "sMn", True), m(C, "computeWorldToLocalMatrix", "sMn", True),
        free(f"new_{SO}", "", cls=SO), free(f"delete_{SO}", "D", f"osg::{SO} *", SO), m(SO, "__call__", "sYY", True)]
    rows += [d(f, ["osg::Matrixf const &"], ["osg::Matrixd const &"], goods=["SN", "SM"])
             for f in ["setProjectionMatrix", "setViewMatrix"]]
    rows += [d(f"getImplicitBufferAttachment{k}Mask", [], ["bool"], const=True, goods=["s", "sb"])
             for k in ["Render", "Resolve"]]
    rows += [pair(C, f) for f in ["asCamera", "getView", "getStats", "getDisplaySettings", "getProjectionMatrix",
                                  "getViewMatrix", "getBufferAttachmentMap", "getProcessorAffinity", "getRenderer",
                                  "getRenderingCache"] + [f"get{k}DrawCallback" for k in ["Initial", "Pre", "Post", "Final"]]]
    rows += [m(C, f"{op}{k}DrawCallback", "Sn") for k in ["Initial", "Pre", "Post", "Final"] for op in ["set", "add", "remove"]]
    rows += [m(C, f, c) for f, c in [
        ("setView", "Sn"), ("setStats", "Sn"), ("setAllowEventFocus", "Sb"), ("setDisplaySettings", "Sn"),
        ("setClearMask", "Sk"), ("setClearColor", "SE"), ("setClearAccum", "SE"), ("setClearDepth", "Sx"),
        ("setClearStencil", "Si"), ("setTransformOrder", "Si"), ("setProjectionResizePolicy", "Si"),
        ("setProjectionMatrixAsOrtho", "S" + "x" * 6), ("setProjectionMatrixAsOrtho2D", "Sxxxx"),
        ("setProjectionMatrixAsFrustum", "S" + "x" * 6), ("setProjectionMatrixAsPerspective", "Sxxxx"),
        ("setViewMatrixAsLookAt", "SGGG"), ("setDrawBuffer", "Se"), ("setReadBuffer", "Se"), ("detach", "Si"),
        ("dirtyAttachmentMap", "S"), ("setAttachmentMapModifiedCount", "Si"), ("resizeAttachments", "Sii"),
        ("setImplicitBufferAttachmentRenderMask", "Si"), ("setImplicitBufferAttachmentResolveMask", "Si"),
        ("setProcessorAffinity", "Sy"), ("createCameraThread", "S"), ("setRenderer", "Sn"),
        ("setRenderingCache", "Sn"), ("resizeGLObjectBuffers", "Si")]]
    return rows + [m(C, f, c, True) for f, c in [
        ("cloneType", "s"), ("className", "s"), ("libraryName", "s"), ("getAllowEventFocus", "s"), ("getClearMask", "s"),
        ("getClearColor", "s"), ("getClearAccum", "s"), ("getClearDepth", "s"), ("getClearStencil", "s"),
        ("getTransformOrder", "s"), ("getProjectionResizePolicy", "s"), ("getProjectionMatrixAsOrtho", "s" + "d" * 6),
        ("getProjectionMatrixAsFrustum", "s" + "d" * 6), ("getProjectionMatrixAsPerspective", "sdddd"),
        ("getInverseViewMatrix", "s"), ("getRenderOrder", "s"), ("getRenderOrderNum", "s"),
        ("isRenderToTextureCamera", "s"), ("getRenderTargetImplementation", "s"), ("getRenderTargetFallback", "s"),
        ("getDrawBuffer", "s"), ("getReadBuffer", "s"), ("getAttachmentMapModifiedCount", "s"),
        ("getDataChangeMutex", "s")]]


STATE = state_set() + attributes() + texture()

ALL = [r for V in VECTORS for r in vector(V)] + quat() + base() + notify() + matrix("Matrixd") + matrix("Matrixf") + \
    ref_matrix("RefMatrixd") + ref_matrix("RefMatrixf") + plane() + operators() + STATE
ALL += camera()
