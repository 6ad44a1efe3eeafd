"""Helpers of the class-binding tests: module import, cleanup of owned proxies, raw memory
reads, child interpreters and memory probes."""
import ctypes
import os
import re
import subprocess
import sys

import pytest

HERE = os.path.dirname(os.path.abspath(__file__))
BUILD = os.environ.get("OSG_BUILD_DIR", os.path.join(HERE, "..", "build"))
sys.path.insert(0, BUILD)

import _osg  # noqa: E402
import _osgpeer  # noqa: E402  (test-only sibling module sharing the type table: reads std::string)

SwigPyObject = type(_osg.notify())
VECTORS = ["Vec2f", "Vec3f", "Vec4f", "Vec2d", "Vec3d", "Vec4d"]
SIZE = {**{v: int(v[3]) for v in VECTORS}, "Quat": 4}
ELEMENT = {**{v: "float" if v.endswith("f") else "double" for v in VECTORS}, "Quat": "double"}
_DESTROY = {**{f"osg::{c} *": getattr(_osg, f"delete_{c}") for c in VECTORS + ["Quat", "CopyOp", "Matrixd", "Matrixf",
                                                                            "Plane"]},
            # No delete function: the object part is at the start, so a Referenced proxy of the
            # same address gives up the last reference.
            **{f"osg::{c} *": lambda p: (p.disown(), free_borrowed(_osgpeer.new_pointer(int(p), "_p_osg__Referenced", 0)))
               for c in ["RefMatrixd", "RefMatrixf"]},
            **{f"osg::{c} *": _osg.delete_Referenced for c in ["Referenced", "DummyObject"]},
            "osg::StandardNotifyHandler *": _osg.delete_StandardNotifyHandler}
_DESTROY.update({f"osg::{c} *": _osg.delete_Group for c in ["Group", "Geode", "Switch", "Transform", "MatrixTransform",
                                                             "PositionAttitudeTransform", "AutoTransform", "ClipNode"]})
_DESTROY.update({"osg::Node *": _osg.delete_Referenced, "osgUtil::SmoothingVisitor *": _osg.delete_SmoothingVisitor})
# Render state: attributes and state sets release one reference; textures and pairs only the
# sibling module can free.
_DESTROY.update({f"osg::{c} *": _osg.delete_Referenced for c in ["StateSet", "Fog", "ColorMask", "ClipPlane", "Viewport"]})
_DESTROY.update({"osg::Texture2D *": lambda p: (p.disown(), _osgpeer.free_texture(p)),
                 "std::pair< enum osg::StateAttribute::Type,unsigned int > *":
                     lambda p: (p.disown(), _osgpeer.free_type_member_pair(p))})
# Camera: no destroy function of its own; the GLenum and GLbitfield results are heap copies.
_DESTROY.update({"osg::Camera *": lambda p: (p.disown(), _osgpeer.free_camera(p)),
                 "osg::CameraRenderOrderSortOp *": _osg.delete_CameraRenderOrderSortOp,
                 **{f"{h} *": lambda p, h=h: _osgpeer.free_handle(p, f"_p_{h}") for h in ["GLenum", "GLbitfield"]}})


def type_name(proxy):
    return re.match(r"<Swig Object of type '([^']*)' at", repr(proxy)).group(1)


def release(*proxies):
    """Destroys what the pointer objects own: without registered classes nothing else does."""
    for p in proxies:
        if isinstance(p, SwigPyObject) and p.own():
            _DESTROY[type_name(p)](p)


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
    return list(((ctypes.c_float if element == "float" else ctypes.c_double) * n).from_address(int(pointer)))


def values(proxy, kind):
    """The components of a vector or quaternion, read from its storage."""
    return at(getattr(_osg, f"{kind}__v_get")(proxy), ELEMENT[kind], SIZE[kind])


def raises(exc, message, fn, *args):
    """fn(*args) raises exactly exc with exactly this text."""
    with pytest.raises(exc) as info:
        fn(*args)
    assert type(info.value) is exc, f"{type(info.value).__name__}: {info.value}"
    assert str(info.value) == message, f"\n got:  {str(info.value)!r}\n want: {message!r}"


def run_child(module, function):
    """Runs module.function() in a fresh interpreter, so that class registration stays out of
    this process; returns its standard output."""
    done = subprocess.run([sys.executable, "-c", f"import {module}; {module}.{function}()"], cwd=HERE,
                          env=dict(os.environ, PYTHONPATH=HERE), capture_output=True, text=True, timeout=120)
    assert done.returncode == 0, done.stderr
    return done.stdout


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


def rss_bytes():
    with open("/proc/self/statm") as f:
        return int(f.read().split()[1]) * os.sysconf("SC_PAGE_SIZE")
