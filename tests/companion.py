"""A SWIG-style proxy layer over _osg, shaped like the SDK's companion Python module: one
class per wrapped class, whose constructor adopts the pointer object that `new_<Class>`
returns, whose `__swig_destroy__` names the destroy function, and which registers itself
with `<Class>_swigregister` when this module is imported. Importing it changes how _osg
returns objects for the rest of the process, so tests import it in a child interpreter."""
import engine_support  # noqa: F401  (puts the build directory on sys.path)

import _osg


class _Proxy:
    thisown = property(lambda self: self.this.own(), lambda self, value: self.this.own(value))

    def __repr__(self):
        return f"<{type(self).__module__}.{type(self).__name__}; proxy of {self.this!r} >"


def _abstract(self, *args):
    raise AttributeError("No constructor defined - class is abstract")


def _constructor(name):
    new, init = getattr(_osg, f"new_{name}"), getattr(_osg, f"{name}_swiginit")

    def __init__(self, *args):
        init(self, new(*args))
    return __init__


def _forward(function):
    return lambda self, *args: function(self, *args)


def _class(name, bases, methods, constructible=True, destroy=True, prefix=None):
    ns = {"__init__": _constructor(name) if constructible else _abstract}
    if destroy:
        ns["__swig_destroy__"] = getattr(_osg, f"delete_{name}")
    for method in methods:
        ns[method] = _forward(getattr(_osg, f"{prefix or name}_{method}"))
    cls = type(name, bases, ns)
    getattr(_osg, f"{name}_swigregister")(cls)
    return cls


Referenced = _class("Referenced", (_Proxy,), ["referenceCount", "getThreadSafeRefUnref"])
Object = _class("Object", (Referenced,), ["className", "getName", "setName", "clone"], constructible=False,
                destroy=False)
DummyObject = _class("DummyObject", (Object,), ["className"], destroy=False)
CopyOp = _class("CopyOp", (_Proxy,), ["getCopyFlags", "__call__"])
NotifyHandler = _class("NotifyHandler", (Referenced,), ["notify"], constructible=False)
StandardNotifyHandler = _class("StandardNotifyHandler", (NotifyHandler,), ["notify"])

_ARITHMETIC = ["length", "length2", "__eq__", "__ne__", "__lt__", "__add__", "__sub__", "__mul__", "__truediv__",
               "__neg__", "__iadd__", "__isub__", "__imul__", "__itruediv__", "_v_get"]
Vec2f, Vec3f, Vec4f, Vec2d, Vec3d, Vec4d = (
    _class(name, (_Proxy,), _ARITHMETIC + (["__xor__"] if name[3] == "3" else []))
    for name in ["Vec2f", "Vec3f", "Vec4f", "Vec2d", "Vec3d", "Vec4d"])
Quat = _class("Quat", (_Proxy,), _ARITHMETIC + ["conj", "inverse", "getRotate", "slerp", "asVec3"])
