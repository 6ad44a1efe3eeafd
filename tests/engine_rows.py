"""Every flat function of Referenced, CopyOp, Object, DummyObject, notification, the six
vectors and Quat, written from OpenSceneGraph's headers.

Argument codes say what a good call passes, argument 1 first: S self, s self of a const
member, v another object of the row's class, D a fresh object of the row's class (for
delete_), x a number, i an int, b True, t a str, n None, p the `_v_get` pointer of another
object of the row's class, F a Vec3f, G a Vec3d, c a CopyOp, o a DummyObject, r a
Referenced, h a notify handler."""
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


def pair(cls, member):
    """A non-const/const accessor pair; the non-const member is listed first."""
    return Disp(f"{cls}_{member}", cls, [f"osg::{cls}::{member}()", f"osg::{cls}::{member}() const"], ["S"], False)


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


ALL = [r for V in VECTORS for r in vector(V)] + quat() + base() + notify()
ROWS = [r for r in ALL if isinstance(r, Row)]
DISPATCHERS = [d for d in ALL if isinstance(d, Disp)]
BY_NAME = {r.name: r for r in ALL}
