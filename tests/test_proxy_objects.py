import sys

import pytest

from engine_support import _osg, _osgpeer as peer, raises

PLAIN = "_p_osg__Matrixd"  # never registered in this process: pointers of it stay bare


def pointer(address, name=PLAIN, own=0):
    return peer.new_pointer(address, name, own)


def test_proxy_types():
    obj, packed = type(pointer(0x10)), type(peer.packed(b"x", PLAIN))
    for t, name, base in ((obj, "SwigPyObject", True), (packed, "SwigPyPacked", False)):
        assert f"{t.__module__}.{t.__qualname__}" == f"swig_runtime_data4.{name}"
        assert t.__doc__ == "Swig object carries a C/C++ instance pointer"
        assert bool(t.__flags__ & 1024) is base  # subclassable or not
    # Each module builds its own type; they meet by name.
    assert type(_osg.cvar.X_AXIS) is not obj and type(_osg.cvar.X_AXIS).__name__ == "SwigPyObject"


def test_repr_shows_last_spelling_and_the_chain():
    first, second = pointer(0x10), pointer(0x20, "_p_osg__Node")
    head = f"<Swig Object of type 'osg::Matrixd *' at {hex(id(first))}>"
    assert repr(first) == first.__repr__() == head
    assert type(first).__dict__["__repr__"].__doc__ == "returns object representation"
    first.append(second)
    assert repr(first) == head + f"<Swig Object of type 'osg::Node *' at {hex(id(second))}>"


def test_compare_by_pointer_only():
    a, same, other = pointer(0x30), pointer(0x30, "_p_osg__Node"), pointer(0x40)
    assert (a == same, a != same, a == other, a != other) == (True, False, False, True)
    with pytest.raises(TypeError):
        a < same
    assert (int(a), int(other)) == (0x30, 0x40)  # int() gives the C++ address


def test_ownership_flag():
    p = pointer(0x50)
    assert p.own() is False
    assert (p.own(1), p.own()) == (False, True)
    assert (p.own(0), p.own()) == (True, False)
    assert (p.acquire(), p.own()) == (None, True)
    assert (p.disown(), p.own()) == (None, False)
    assert (p.own("yes"), p.own([]), p.own()) == (False, True, False)
    raises(TypeError, "own expected at most 1 argument, got 2", p.own, 1, 2)


def test_append_and_next():
    chain = [pointer(0x1000), pointer(0x2000), pointer(0x3000)]
    p, q, r = chain
    base = [sys.getrefcount(chain[i]) for i in (1, 2)]
    assert p.next() is None
    appended = p.append(q)
    held = sys.getrefcount(chain[1])  # outside the asserts, whose rewriting keeps temporaries
    assert (appended, p.next(), held) == (None, q, base[0] + 1)
    p.append(r)  # goes right after p
    assert (p.next(), r.next(), q.next()) == (r, q, None)
    raises(TypeError, "Attempt to append a non SwigPyObject", p.append, object())
    raises(TypeError, "Attempt to append a non SwigPyObject", p.append, peer.packed(b"x", PLAIN))
    del p, chain[0]  # chain is now [q, r]
    assert sys.getrefcount(chain[1]) == base[1]
    del r, chain[1]
    assert sys.getrefcount(chain[0]) == base[0]


def test_dropped_objects_release_their_type():
    kinds = [type(pointer(0x10)), type(peer.packed(b"x", PLAIN))]
    before = [sys.getrefcount(t) for t in kinds]
    for _ in range(100):
        pointer(0x10), peer.packed(b"x", PLAIN)
    assert [sys.getrefcount(t) for t in kinds] == before


@pytest.mark.parametrize("size", [1, 511, 512])
def test_packed_text(size):
    data = bytes((i * 37 + 5) % 256 for i in range(size))
    packed = peer.packed(data, "_p_osg__Vec3f")
    if size < 512:  # 2 * size + 2 <= 1024: the digits are shown
        assert repr(packed) == f"<Swig Packed at _{data.hex()}_p_osg__Vec3f>"
        assert str(packed) == f"_{data.hex()}_p_osg__Vec3f"
    else:
        assert (repr(packed), str(packed)) == ("<Swig Packed _p_osg__Vec3f>", "_p_osg__Vec3f")


@pytest.mark.parametrize("register,destroy,delargs", [
    (_osg.ClipPlane_swigregister, None, 0), (_osg.ColorMask_swigregister, lambda obj: None, 1),
    (_osg.Viewport_swigregister, id, 0), (_osg.Switch_swigregister, getattr, 1)])
def test_destroy_calling_convention(register, destroy, delargs):
    klass = type("K", (), {} if destroy is None else {"__swig_destroy__": staticmethod(destroy)})
    register(klass)
    name = "_p_osg__" + register.__name__.split("_")[0]
    assert peer.clientdata_class(name) == (klass, delargs)


def test_destroy_gets_a_non_owning_temporary():
    seen = []

    class Geode:
        @staticmethod
        def __swig_destroy__(obj):
            seen.append((type(obj).__name__, int(obj), obj.own(), obj.next(), id(obj)))

    _osg.Geode_swigregister(Geode)
    borrowed = peer.new_pointer(0x7100, "_p_osg__Geode", 0)
    inst = peer.new_pointer(0x7000, "_p_osg__Geode", 1)
    assert type(inst) is Geode and inst.this.own() is True
    inst.this.append(pointer(0x7200))
    this_id = id(inst.this)
    del borrowed, inst
    assert [row[:4] for row in seen] == [("SwigPyObject", 0x7000, False, None)]
    assert seen[0][4] != this_id


def test_destroy_errors_are_unraisable_and_keep_the_pending_exception(monkeypatch):
    reports = []
    monkeypatch.setattr(sys, "unraisablehook", reports.append)

    def destroy(obj):
        raise ValueError("destroy failed")

    _osg.Fog_swigregister(type("Fog", (), {"__swig_destroy__": staticmethod(destroy)}))
    # The failed unpacking drops the list, and with it the owning proxy, while its error is set.
    with pytest.raises(ValueError, match="^not enough values to unpack"):
        a, b = [peer.new_pointer(0x9000, "_p_osg__Fog", 1)]
    assert [(type(r.exc_value), str(r.exc_value), r.object) for r in reports] == \
        [(ValueError, "destroy failed", destroy)]


def test_leak_message_for_owned_pointer_without_destroy(run_py):
    out, err = run_py("""
        import ctypes, _osgpeer, _osg
        class Matrixd: pass
        _osg.Matrixd_swigregister(Matrixd)
        m = _osgpeer.new_pointer(0x1000, "_p_osg__Matrixd", 1)
        assert type(m) is Matrixd and m.this.own()
        del m
        _osgpeer.new_pointer(0x2000, "_p_peer__Widget", 1)  # unregistered, dropped at once
        _osgpeer.new_pointer(0x3000, "_p_peer__Widget", 0)  # not owned: nothing to report
        ctypes.CDLL(None).fflush(None)
        print("end")  # the messages came as the objects died, not at exit
        """)
    message = "swig/python detected a memory leak of type '{}', no destructor found.\n"
    assert (out, err) == (message.format("osg::Matrixd *") + message.format("peer::Widget *") + "end\n", "")


MISUSE = [  # (code, what it ends in): each raises or works, none crashes or hangs
    ("_osg.Vec3f_length(type(_osg.cvar.X_AXIS)())",
     "TypeError: in method 'Vec3f_length', argument 1 of type 'osg::Vec3f const *'"),
    ("class O: pass\no = O(); o.this = o; _osg.Vec3f_length(o)",
     "TypeError: in method 'Vec3f_length', argument 1 of type 'osg::Vec3f const *'"),
    ("p = _osg.new_Vec3f(); p.disown(); _osg.Vec3f_swiginit(p, p)",
     "ValueError: Attempt to append a SwigPyObject already in the chain"),
    ("_osg.Vec3f_swigregister(type(iter(()))); _osg.Vec3f___neg__(_osg.cvar.X_AXIS)",
     "TypeError: cannot create instances of the class registered for 'osg::Vec3f *'"),
    ("class Bad:\n    __class__ = property(lambda self: 1 / 0)\n_osg.Vec3f_swigregister(Bad()); _osg.cvar.X_AXIS",
     "TypeError: object.__new__(X): X is not a type object (Bad)"),
    ("c = sys.modules['swig_runtime_data4'].type_pointer_capsule; n = sys.getrefcount(c)\n"
     "for _ in range(100):\n    p = _osg.cvar.X_AXIS; p.acquire(); p.disown(); p.acquire(); p.own(0); del p\n"
     "print(sys.getrefcount(c) - n)", "0"),
    ("class P:\n    this = property(lambda self: _osg.new_Vec3f(3, 4, 12))\n"  # a new owner on each access
     "_osg.Vec3f_swigregister(type('V', (), {'__swig_destroy__': _osg.delete_Vec3f}))\n"
     "print(sum(_osg.Vec3f_length(P()) for _ in range(1000)))", "13000.0"),
    ("p = _osg.new_Vec3f(); p.disown()\ntail = p\nfor _ in range(300000):\n    n = _osg.new_Vec3f(); n.disown(); tail.append(n); tail = n\n"
     "print(repr(p).count('osg::Vec3f'))\ndel p, n, tail", "300001"),  # freed and shown in a loop, not by recursion
    ("S = type('S', (type(_osg.cvar.X_AXIS),), {})\nfor _ in range(20000):\n    s = S(); s.x = repr(s)\n"
     "import gc; gc.collect(); print(s.x[:30])", "<Swig Object of type 'unknown'"),
    ("_osg.delete_Matrixf(_osg.new_RefMatrixf())",  # delete through the matrix base is undefined
     "TypeError: in method 'delete_Matrixf', argument 1 of type 'osg::Matrixf *'"),
    ("_osg.delete_Matrixd(type('T', (), {'this': _osg.new_RefMatrixd()})())",
     "TypeError: in method 'delete_Matrixd', argument 1 of type 'osg::Matrixd *'"),
    ("r, m = _osg.new_RefMatrixd(), _osg.new_Matrixd(); p = _osg.Matrixd___imul__(r, m)\n"
     "print(r.own(), p.own()); r.disown(); m.disown()", "True False"),  # the matrix part of a RefMatrixd never owns
]


@pytest.mark.parametrize("code,last", MISUSE, ids=range(len(MISUSE)))
def test_misuse_raises_or_works(code, last):
    import subprocess
    done = subprocess.run([sys.executable, "-c", f"import sys\nsys.path[:] = {sys.path!r}\nimport _osg\n{code}"],
                          capture_output=True, text=True, timeout=120)
    assert (done.stdout + done.stderr).strip().splitlines()[-1] == last
