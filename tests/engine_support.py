"""Helpers of the class-binding tests: module import, cleanup of owned proxies, raw memory
reads and memory probes."""
import ctypes
import os
import re
import sys

import pytest

HERE = os.path.dirname(os.path.abspath(__file__))
BUILD = os.environ.get("OSG_BUILD_DIR", os.path.join(HERE, "..", "build"))
sys.path.insert(0, BUILD)

import _osg  # noqa: E402
# The test-only sibling _osgpeer shows the runtime's internals; _osgvalues makes the values _osg
# takes and registers their classes, so that _osg's value results free themselves. The peer's own
# GLenum class (for load-order cases in fresh interpreters) is left out.
os.environ["OSG_PEER_NO_HANDLE"] = "1"
import _osgpeer  # noqa: E402
del os.environ["OSG_PEER_NO_HANDLE"]
import _osgvalues as V  # noqa: E402

SwigPyObject = type(_osg.notify())
VECTORS = ["Vec2f", "Vec3f", "Vec4f", "Vec2d", "Vec3d", "Vec4d"]
SIZE = {**{v: int(v[3]) for v in VECTORS}, "Quat": 4}
ELEMENT = {**{v: "float" if v.endswith("f") else "double" for v in VECTORS}, "Quat": "double"}
# Values have destroy functions of their own; the group family gives its reference back through
# the SDK's library; the other counted classes release one reference, except those made at count 0
# with no destroy function (ref matrices, textures, cameras): they are freed through their Referenced part.
_DESTROY = {f"osg::{c} *": getattr(_osg, f"delete_{c}") for c in VECTORS + ["Quat", "CopyOp", "Matrixd", "Matrixf", "Plane",
                                                                          "StandardNotifyHandler", "CameraRenderOrderSortOp"]}
_DESTROY.update({f"osg::{c} *": _osg.delete_Group for c in ["Group", "Geode", "Switch", "Transform", "MatrixTransform",
                                                             "PositionAttitudeTransform", "AutoTransform", "ClipNode"]})
_DESTROY["osgUtil::SmoothingVisitor *"] = _osg.delete_SmoothingVisitor
_AT_ZERO = {f"osg::{c} *" for c in ["RefMatrixd", "RefMatrixf", "Texture2D", "Camera"]}


def type_name(proxy):
    return re.match(r"<Swig Object of type '([^']*)' at", repr(getattr(proxy, "this", proxy))).group(1)


def referenced(p):
    """The object at p's address as an osg::Referenced: the counted classes here start with it."""
    return V.pointer(int(getattr(p, "this", p)), "_p_osg__Referenced")


def count(p):
    return _osg.Referenced_referenceCount(referenced(p))


def release(*proxies):
    """Destroys what the pointer objects own: without registered classes nothing else does
    (the values of _osgvalues free themselves)."""
    for p in proxies:
        if type(p).__name__ == "SwigPyObject" and p.own():  # _osgdraw's proxies have a type of their own
            if type_name(p) in _AT_ZERO:
                p.disown()
                free_borrowed(referenced(p))
            else:
                _DESTROY.get(type_name(p), _osg.delete_Referenced)(p)


def free_borrowed(obj):
    """Deletes an object handed out borrowed at reference count 0 (clone, cloneType)."""
    _osg.intrusive_ptr_add_ref(obj)
    _osg.intrusive_ptr_release(obj)


class Maker:
    """`mk.Vec3d(1, 2, 3)` is new_Vec3d(1, 2, 3); `mk(p)` holds an owned result. All is
    destroyed at teardown."""

    def __init__(self):
        self.held = []

    def __call__(self, obj):
        self.held.append(obj)
        return obj

    def __getattr__(self, cls):
        return lambda *args: self(getattr(_osg, f"new_{cls}")(*args))


@pytest.fixture
def mk():
    m = Maker()
    yield m
    release(*m.held)


def at(pointer, element, n=1):
    """n elements of type element ('float' or 'double') behind an element pointer proxy."""
    address = int(getattr(pointer, "this", pointer))  # element pointers are _osgvalues' cells here
    return list(((ctypes.c_float if element == "float" else ctypes.c_double) * n).from_address(address))


def m16(matrix):
    """The 16 numbers of a Matrixd, in OSG's row-vector layout."""
    return V.elements(_osg.Matrixd_ptr(matrix), 16)


def point(matrix, p):
    """p transformed by a Matrixd of OSG's row-vector layout."""
    m = m16(matrix)
    return [sum(p[i] * m[4 * i + j] for i in range(3)) + m[12 + j] for j in range(3)]


def doubles(n):
    """n doubles in a buffer, and a double * to each: out-parameters."""
    buffer = (ctypes.c_double * n)()
    return buffer, [V.pointer(ctypes.addressof(buffer) + 8 * i, "_p_double") for i in range(n)]


def plain(v):
    """A value read back by _osgvalues, with every object proxy as its address."""
    if isinstance(v, (list, tuple)):
        return type(v)(map(plain, v))
    if isinstance(v, dict):
        return {plain(k): plain(x) for k, x in v.items()}
    this = getattr(v, "this", v)
    return int(this) if type(this).__name__ == "SwigPyObject" else v  # each module has its own proxy type


def values(proxy, kind):
    """The components of a vector or quaternion, read from its storage."""
    return at(getattr(_osg, f"{kind}__v_get")(proxy), ELEMENT[kind], SIZE[kind])


def raises(exc, message, fn, *args):
    """fn(*args) raises exactly exc with exactly this text."""
    with pytest.raises(exc) as info:
        fn(*args)
    kind, text = type(info.value), str(info.value)
    del info  # its traceback holds this frame and the callers': no cycle may keep the arguments alive
    assert kind is exc, f"{kind.__name__}: {text}"
    assert text == message, f"\n got:  {text!r}\n want: {message!r}"


def refuse(*rows):
    """Each row (exception, function name, argument number, C++ type, arguments) raises the message of
    that argument; a name led by "!" takes the null-reference form."""
    for exc, f, n, spelled, *args in rows:
        null, f = f.startswith("!"), f.lstrip("!")
        raises(exc, f"{'invalid null reference ' * null}in method '{f}', argument {n} of type '{spelled}'",
               getattr(_osg, f), *args)


class _MallInfo2(ctypes.Structure):
    _fields_ = [(n, ctypes.c_size_t)
                for n in "arena ordblks smblks hblks hblkhd usmblks fsmblks uordblks fordblks keepcost".split()]


libc = ctypes.CDLL(None)
libc.mallinfo2.restype = _MallInfo2


# Under AddressSanitizer malloc is ASan's, which keeps its own count.
_asan_heap = getattr(libc, "__sanitizer_get_current_allocated_bytes", None)
if _asan_heap:
    _asan_heap.restype = ctypes.c_size_t


def heap_bytes():
    """Bytes in use from malloc, where every C++ object of the module lives."""
    return _asan_heap() if _asan_heap else libc.mallinfo2().uordblks


zog = ctypes.CDLL(os.path.join(BUILD, "libzogOSG.so"))
zog.zog_stub_reference_calls.restype = zog.zog_stub_unreference_calls.restype = ctypes.c_ulong


def sdk_calls():
    """The platform library's reference and unreference calls so far: the SDK's stub counts them."""
    return zog.zog_stub_reference_calls(), zog.zog_stub_unreference_calls()


def rss_bytes():
    with open("/proc/self/statm") as f:
        return int(f.read().split()[1]) * os.sysconf("SC_PAGE_SIZE")
