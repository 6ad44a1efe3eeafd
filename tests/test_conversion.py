import math
import types

import pytest

from engine_support import _osg, _osgpeer as peer, raises

V = "_p_osg__Vec4d"  # never registered in this process


class Holder:
    def __init__(self, this):
        self.this = this


class BrokenThis:
    @property
    def this(self):
        raise RuntimeError("no pointer here")


def test_this_attributes_are_followed_down_to_the_pointer():
    p = peer.new_pointer(0xA000, V, 0)
    assert peer.convert(Holder(Holder(p)), V, 0, True) == (0, 0xA000, False)
    assert peer.convert(p, None, 0, True) == (0, 0xA000, False)  # no expected type: anything goes


@pytest.mark.parametrize("obj", [object(), 5, "text", Holder(7), BrokenThis(), peer.packed(b"x", V)])
@pytest.mark.parametrize("flags", [0, 4])
def test_unrelated_objects_fail_quietly(obj, flags):
    assert peer.convert(obj, V, flags, True) == (-1, None, False)


@pytest.mark.parametrize("flags,status", [(0, 0), (1, 0), (4, -13), (5, -13)])
def test_none_in_the_general_form_leaves_the_out_pointer(flags, status):
    assert peer.convert(None, V, flags, True) == (status, None, False)


@pytest.mark.parametrize("form,none_result", [("check", (-13, None)), ("plain", (0, 0)), ("nonnull", (-13, 0))])
def test_fixed_forms(form, none_result):
    assert peer.convert_form(None, V, form) == none_result
    expected = None if form == "check" else 0xA100
    assert peer.convert_form(peer.new_pointer(0xA100, V, 0), V, form) == (0, expected)
    assert peer.convert_form(object(), V, form) == (-1, None)


def test_chain_is_searched_and_disown_clears_only_the_match():
    p = peer.new_pointer(0xB000, V, 1)
    q = peer.new_pointer(0xC000, "_p_osg__MatrixTransform", 1)
    p.append(q)
    assert peer.convert(p, "_p_osg__Transform", 1, True) == (0, 0xC000, False)
    assert (p.own(), q.own()) == (True, False)
    assert peer.convert(p, V, 1, False) == (0, None, False)
    assert p.own() is False


def test_registered_class_gets_shadow_instances():
    class Plane:
        def __init__(self):
            raise AssertionError("instances are made without __init__")

    assert _osg.Plane_swigregister(Plane) is None
    inst = peer.new_pointer(0xD000, "_p_osg__Plane", 0)
    assert type(inst) is Plane and type(inst.this).__name__ == "SwigPyObject"
    assert (int(inst.this), inst.this.own()) == (0xD000, False)
    assert peer.convert(inst, "_p_osg__Plane", 0, True) == (0, 0xD000, False)
    bare = peer.new_pointer(0xD000, "_p_osg__Plane", 3)  # owned, without shadow
    assert type(bare).__name__ == "SwigPyObject" and bare.own() is True
    bare.disown()


def test_registered_non_class_is_instantiated_through_its_new():
    calls = []
    factory = types.SimpleNamespace()
    factory.__new__ = lambda klass: calls.append(klass) or types.SimpleNamespace()
    _osg.Texture2D_swigregister(factory)
    inst = peer.new_pointer(0xE000, "_p_osg__Texture2D", 0)
    assert calls == [factory] and int(inst.this) == 0xE000


def test_swiginit_sets_this_then_chains():
    inst = Holder(None)
    del inst.this
    a, b = peer.new_pointer(0xF000, V, 0), peer.new_pointer(0xF100, V, 0)
    assert _osg.Node_swiginit(inst, a) is None and inst.this is a
    assert _osg.Node_swiginit(inst, b) is None and inst.this is a and a.next() is b
    raises(TypeError, "Attempt to append a non SwigPyObject", _osg.Node_swiginit, inst, 5)
    assert b.next() is None
    with pytest.raises(AttributeError):
        _osg.Node_swiginit(5, a)


INF = float("inf")


@pytest.mark.parametrize("kind,arg,status,value", [
    ("long", 7, 0, 7), ("long", True, 0, 1), ("long", -2**63, 0, -2**63),
    ("long", 2**63, -7, 0), ("long", 2.5, -5, 0), ("long", "1", -5, 0),
    ("ulong", 2**64 - 1, 0, 2**64 - 1), ("ulong", -1, -7, 0), ("ulong", 2**64, -7, 0), ("ulong", 1.0, -5, 0),
    ("double", True, 0, 1.0), ("double", 3, 0, 3.0), ("double", 0.5, 0, 0.5),
    ("double", 10**400, -5, 0.0), ("double", "1", -5, 0.0), ("double", None, -5, 0.0),
    ("float", 1e39, -7, 0.0), ("float", -1e39, -7, 0.0), ("float", 3.4028234663852886e38, 0, 3.4028234663852886e38),
    ("float", INF, 0, INF), ("float", -INF, 0, -INF), ("float", 0.1, 0, 0.10000000149011612),
    ("float", 2, 0, 2.0), ("float", 10**400, -5, 0.0), ("float", "1", -5, 0.0), ("float", float("nan"), 0, None)])
def test_scalar_converters(kind, arg, status, value):
    got = peer.as_number(kind, arg)
    assert got == (status, value, False) if value is not None else (got[0], math.isnan(got[1]), got[2]) == (0, True, False)


@pytest.mark.parametrize("code,exc", [
    (-1, RuntimeError), (-2, OSError), (-3, RuntimeError), (-4, IndexError), (-5, TypeError), (-6, ZeroDivisionError),
    (-7, OverflowError), (-8, SyntaxError), (-9, ValueError), (-10, SystemError), (-11, AttributeError),
    (-12, MemoryError), (-13, TypeError), (-14, RuntimeError), (0, RuntimeError), (5, RuntimeError)])
def test_error_types(code, exc):
    assert peer.error_type(code) is exc
    raises(exc, "it failed", peer.set_error_msg, code, "it failed")


@pytest.mark.parametrize("args,low,high,message", [
    (None, 1, 1, "f expected 1 arguments, got none"), (None, 1, 3, "f expected at least 1 arguments, got none"),
    ((1, 2, 3), 2, 2, "f expected 2 arguments, got 3"), ((), 1, 3, "f expected at least 1 arguments, got 0"),
    ((1, 2, 3, 4), 1, 3, "f expected at most 3 arguments, got 4"), ((1,), 2, 2, "f expected 2 arguments, got 1")])
def test_unpack_count_messages(args, low, high, message):
    raises(TypeError, message, peer.unpack, args, "f", low, high)


def test_unpack_results():
    assert peer.unpack((7, 8), "f", 1, 3) == (3, [7, 8, None])
    assert peer.unpack(None, "f", 0, 0) == (1, [])
    assert peer.unpack("solo", "f", 1, 2) == (2, ["solo", None])
    raises(SystemError, "UnpackTuple() argument list is not a tuple", peer.unpack, "solo", "f", 2, 2)


class NarrowTypeError(TypeError):
    pass


@pytest.mark.parametrize("pending,exc,message", [
    (None, TypeError, "outer"),
    (TypeError("inner"), TypeError, "inner\nAdditional information:\nouter"),
    (NarrowTypeError("inner"), NarrowTypeError, "inner\nAdditional information:\nouter"),
    (ValueError("inner"), TypeError, "outer")])
def test_raise_or_modify_type_error(pending, exc, message):
    raises(exc, message, peer.raise_or_modify, "outer", pending)
