"""Who owns what: constructors, destroy functions, reference counts, in-place operators,
by-value and borrowed results, and destruction through a SWIG-style proxy layer."""
import math
import sys

import pytest

from engine_support import (SwigPyObject, VECTORS, _osg, _osgpeer, free_borrowed, heap_bytes, libc,  # noqa
                            mk, type_name, values)

NEW = [("Referenced", ()), ("Referenced", (True,)), ("DummyObject", ()), ("StandardNotifyHandler", ()),
       ("CopyOp", ()), ("CopyOp", (1,)), ("Quat", ())] + [(v, ()) for v in VECTORS]


@pytest.mark.parametrize("cls,args", NEW, ids=[f"{c}{a}" for c, a in NEW])
def test_constructors_own_bare_pointer_objects(mk, cls, args):
    p = mk(getattr(_osg, f"new_{cls}")(*args))
    assert (type(p), p.own(), type_name(p)) == (SwigPyObject, True, f"osg::{cls} *")
    if cls in ("Referenced", "DummyObject", "StandardNotifyHandler"):
        assert _osg.Referenced_referenceCount(p) == 1
    if args == () and cls == "Referenced":
        assert _osg.Referenced_referenceCount(mk.Referenced(p)) == 1  # a copy is referenced once too


@pytest.mark.parametrize("new,delete", [("Referenced", "Referenced"), ("DummyObject", "Referenced"),
                                        ("StandardNotifyHandler", "StandardNotifyHandler"),
                                        ("StandardNotifyHandler", "NotifyHandler")])
def test_delete_by_hand_disowns_and_drops_one_reference(new, delete):
    objects = [getattr(_osg, f"new_{new}")() for _ in range(500)]
    for p in objects:
        _osg.intrusive_ptr_add_ref(p)  # keeps the object alive past the delete
        assert getattr(_osg, f"delete_{delete}")(p) is None
        assert p.own() is False and _osg.Referenced_referenceCount(p) == 1
    before = heap_bytes()
    for p in objects:
        _osg.intrusive_ptr_release(p)  # the last reference: the object is deleted
    assert before - heap_bytes() > 500 * 16


@pytest.mark.parametrize("cls", VECTORS + ["Quat", "CopyOp"])
def test_delete_of_a_value_disowns_it(cls):  # that it frees the value, test_leaks' delete_ rows see
    p = getattr(_osg, f"new_{cls}")()
    assert getattr(_osg, f"delete_{cls}")(p) is None and p.own() is False


INPLACE = [(f"{c}___{op}__", c, "v" if op in ("iadd", "isub") else 2.0) for c in VECTORS + ["Quat"]
           for op in ("iadd", "isub", "imul", "itruediv")]
INPLACE += [(f"Quat___{op}__", "Quat", "v") for op in ("imul", "itruediv")]


@pytest.mark.parametrize("name,cls,arg", INPLACE, ids=[f"{n}-{a}" for n, _, a in INPLACE])
def test_in_place_operators_move_ownership(mk, name, cls, arg):
    new, f = getattr(_osg, f"new_{cls}"), getattr(_osg, name)
    a = new()  # not held: only the result may own the object now
    result = mk(f(a, mk(new()) if arg == "v" else arg))
    still_owns = a.own(0)  # reads and clears the flag, so that a fault cannot free the object twice
    assert (type(result), type_name(result), int(result)) == (SwigPyObject, f"osg::{cls} *", int(a))
    assert result.own() is True and still_owns is False
    with pytest.raises(TypeError):
        f(result, None)
    assert result.own() is True


def test_in_place_operators_convert_argument_1_once(mk):
    class Counting:
        reads = 0

        @property
        def this(self):
            Counting.reads += 1
            return held
    held = mk.Vec3f(1, 2, 3)
    r = mk(_osg.Vec3f___iadd__(Counting(), mk.Vec3f(1, 1, 1)))
    assert (Counting.reads, r.own(), held.own(), int(r), values(r, "Vec3f")) == (1, True, False, int(held), [2, 3, 4])


def _child_in_place_on_borrowed_storage():
    import companion as c
    x, capsule = _osg.cvar.X_AXIS, sys.modules["swig_runtime_data4"].type_pointer_capsule
    before = sys.getrefcount(capsule)
    for _ in range(1000):  # each result, were it owned, would free static storage when it dies
        r = _osg.Vec3f___iadd__(x, c.Vec3f(0, 0, 0))
        assert (type(r), r.thisown, int(r.this)) == (c.Vec3f, False, int(x.this))
        del r
        a = old = c.Vec3f(1, 2, 3)
        a += c.Vec3f(1, 1, 1)
        assert (a.thisown, old.thisown) == (True, False)
        del a, old
        x.this.acquire()  # ownership taken by hand, then given back: the capsule reference follows it
        x.this.disown()
    assert sys.getrefcount(capsule) == before and values(x, "Vec3f") == [1, 0, 0]


def test_in_place_operators_on_borrowed_proxies_give_borrowed_results(run_py):
    assert run_py("import test_ownership; test_ownership._child_in_place_on_borrowed_storage()")[0] == ""


def test_by_value_results_own_and_accessors_borrow(mk):
    v, w, q, d = mk.Vec3d(1, 2, 3), mk.Vec3d(4, 5, 6), mk.Quat(), mk.DummyObject()
    for r in map(mk, [_osg.Vec3d___add__(v, w), _osg.Vec3d___sub__(v, w), _osg.Vec3d___neg__(v),
                      _osg.Vec3d___xor__(v, w), _osg.Vec3d___mul__(v, 2.0), _osg.Vec3d___truediv__(v, 2.0),
                      _osg.Quat_conj(q), _osg.Quat_inverse(q), _osg.Quat_asVec4(q), _osg.Quat_asVec3(q),
                      _osg.Quat___mul__(q, v), _osg.Quat___mul__(q, q), _osg.Quat___add__(q, q),
                      _osg.Quat___neg__(q), _osg.Quat___truediv__(q, 2.0)]):
        assert type(r) is SwigPyObject and r.own() is True and int(r) not in (int(v), int(w), int(q))
    for r in [_osg.Vec3d_x(v), _osg.Vec3d_ptr(v), _osg.Vec3d__v_get(v), _osg.Quat_w(q), _osg.Object_getName(d),
              _osg.getNotifyHandler(), _osg.Referenced_getGlobalReferencedMutex()]:
        assert getattr(r, "this", r).own() is False  # element pointers and strings: instances of the values' classes


# ---- the proxy layer of tests/companion.py, each case in a child interpreter -------------

def _child_shadow_instances():
    import companion as c
    a, b = c.Vec3f(1, 2, 3), c.Vec3f(1, 1, 1)
    assert (type(a.this), a.thisown, type(_osg.new_Vec3f())) == (SwigPyObject, True, SwigPyObject)
    s = a + b  # by-value results come back as instances of the registered class
    assert (type(s), s.thisown, values(s, "Vec3f")) == (c.Vec3f, True, [2, 3, 4])
    assert (type(-a), type(a ^ b), a * b, a.__add__("x")) == (c.Vec3f, c.Vec3f, 6.0, NotImplemented)
    old = a
    a += b
    assert (type(a), int(a.this), a.thisown, old.thisown) == (c.Vec3f, int(old.this), True, False)
    turned = c.Quat(math.pi / 2, c.Vec3d(0, 0, 1)) * c.Vec3d(1, 0, 0)
    assert type(turned) is c.Vec3d and values(turned, "Vec3d") == pytest.approx([0, 1, 0])
    d = c.DummyObject()
    same = _osg.CopyOp___call__(c.CopyOp(), d)  # borrowed results too
    assert (type(same), same.thisown, int(same.this), same.className()) == (c.Object, False, int(d.this), "DummyObject")
    assert type(_osg.notify()) is SwigPyObject  # a type without a class


def test_registered_classes_make_shadow_instances(run_py):
    assert run_py("import test_ownership; test_ownership._child_shadow_instances()")[0] == ""


def _child_destroy_on_deallocation():
    import companion as c
    assert c.DummyObject.__swig_destroy__ is _osg.delete_Referenced  # inherited through Object
    assert _osgpeer.clientdata_class("_p_osg__DummyObject") == (c.DummyObject, 0)
    for cls in (c.DummyObject, c.Referenced, c.StandardNotifyHandler):
        p = cls()
        _osg.intrusive_ptr_add_ref(p)
        alias = _osg.CopyOp___call__(c.CopyOp(), p)  # borrowed, the same object
        del p
        assert _osg.Referenced_referenceCount(alias) == 1
        _osg.intrusive_ptr_release(alias)
    for cls in (c.Vec4d, c.Quat, c.CopyOp):
        cls()
        before = heap_bytes()
        for _ in range(20000):
            cls()
        assert heap_bytes() - before < 20000
    libc.fflush(None)


def test_registered_classes_destroy_on_deallocation(run_py):
    assert run_py("import test_ownership; test_ownership._child_destroy_on_deallocation()")[0] == ""
