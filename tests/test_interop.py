import json

import pytest

FIRST = {True: "import _osgpeer as peer, _osg", False: "import _osg, _osgpeer as peer"}  # the load order
XYZ = "import ctypes; xyz = lambda v: list((ctypes.c_float * 3).from_address(int(_osg.Vec3f__v_get(v))))"
SHARED = ["_p_GLenum", "_p_osg__Node", "_p_osg__Vec3f", "_p_std__string"]


def result(out):
    """The JSON line a snippet printed (other lines may be the runtime's own output)."""
    return json.loads(next(line for line in out.splitlines() if line.startswith("{")))


@pytest.mark.parametrize("peer_first", [True, False])
def test_two_modules_share_one_ring(run_py, peer_first):
    out, _ = run_py(f"""
        import json, sys
        {FIRST[peer_first]}
        {XYZ}
        tables = {{len(rows): (module, {{name: address for name, _, address in rows}})
                  for module, rows in peer.ring_tables()}}
        mine, theirs = tables[6][1], tables[130][1]
        capsule = sys.modules["swig_runtime_data4"].type_pointer_capsule
        before = sys.getrefcount(capsule)
        owned = peer.new_pointer(0x10, "_p_peer__Widget", 1)
        held = sys.getrefcount(capsule) - before
        del owned
        class Proxy: pass
        a, b = Proxy(), Proxy()
        s1, s2 = peer.new_pointer(0x30, "_p_std__string", 0), peer.new_pointer(0x40, "_p_std__string", 0)
        _osg.Node_swiginit(a, s1)
        _osg.Node_swiginit(a, s2)
        _osg.Node_swiginit(b, _osg.cvar.Z_AXIS)
        print(json.dumps(dict(
            modules=sorted(tables), head_is_peer=peer.ring_tables()[0][0] == peer.own_module() == tables[6][0],
            shared=sorted(n for n in mine if n in theirs), same=all(mine[n] == theirs[n] for n in mine if n in theirs),
            counter=peer.interpreter_counter(), held=held, released=sys.getrefcount(capsule) - before,
            handle=peer.clientdata_class("_p_GLenum")[0] is peer.PeerHandle,
            types_differ=type(s1) is not type(_osg.cvar.X_AXIS),
            chain=[a.this is s1, s1.next() is s2, repr(s2).startswith("<Swig Object of type 'std::string *'")],
            y=xyz(_osg.cvar.Y_AXIS), z=xyz(b),
            special_edge="_p_peer__SpecialNode" in peer.cast_list("_p_osg__Node"),
            special=peer.convert(peer.special_node(), "_p_osg__Node", 0, False)[0],
            widget_as_node=peer.convert(peer.new_pointer(0x20, "_p_peer__Widget", 0), "_p_osg__Node", 0, False)[0])))
        """)
    assert result(out) == dict(
        modules=[6, 130], head_is_peer=peer_first, shared=SHARED, same=True,
        counter=1 if peer_first else 0, held=1 if peer_first else 0, released=0, handle=True, types_differ=True,
        chain=[True, True, True], y=[0, 1, 0], z=[0, 0, 1], special_edge=True, special=0, widget_as_node=-1)


@pytest.mark.parametrize("peer_first", [True, False])
def test_teardown_releases_client_data_only_from_the_last_user(run_py, peer_first):
    out, _ = run_py(f"""
        import json, sys
        {FIRST[peer_first]}
        {XYZ}
        class Vec3f: pass
        base = sys.getrefcount(Vec3f)
        _osg.Vec3f_swigregister(Vec3f)
        registered = sys.getrefcount(Vec3f) - base
        shadow = type(_osg.cvar.X_AXIS) is Vec3f
        peer.destroy_module()
        left = sys.getrefcount(Vec3f) - base
        data = peer.clientdata_class("_p_osg__Vec3f")
        print(json.dumps(dict(
            registered=registered, shadow=shadow, left=left,
            data=None if data is None else data[0] is Vec3f, counter=peer.interpreter_counter(),
            handle=peer.clientdata_class("_p_GLenum")[0] is peer.PeerHandle,
            x=type(_osg.cvar.X_AXIS).__name__, values=xyz(_osg.cvar.X_AXIS))))
        """)
    if peer_first:  # the peer made the capsule: its teardown frees the client data it owns
        expected = dict(left=0, data=None, counter=0, x="SwigPyObject")
    else:  # the peer only joined: its teardown leaves everything in place (its count wraps below 0)
        expected = dict(left=2, data=True, counter=2**32 - 1, x="Vec3f")
    # The handle's record does not own its client data, so teardown keeps it.
    assert result(out) == dict(registered=2, shadow=True, handle=True, values=[1, 0, 0], **expected)


def test_second_import_reuses_the_type_table(run_py):
    out, _ = run_py(f"""
        import json, sys
        import _osg, _osgpeer as peer
        {XYZ}
        first = _osg
        peer.convert(peer.new_pointer(0x1000, "_p_osg__MatrixTransform", 0), "_p_osg__Node", 0, False)
        order = peer.cast_list("_p_osg__Node")
        del sys.modules["_osg"]
        import _osg
        try:
            _osg.Quat_swiginit(1)
        except TypeError as e:
            message = str(e)
        class Quat: pass
        _osg.Quat_swigregister(Quat)
        print(json.dumps(dict(
            fresh=_osg is not first, moved=order[0], kept=peer.cast_list("_p_osg__Node") == order,
            modules=len(peer.ring_tables()), cvar=str(_osg.cvar), x=xyz(_osg.cvar.X_AXIS),
            constants=[_osg.StateAttribute_CAPABILITY, _osg.Camera_USE_DISPLAY_SETTINGS_MASK, _osg.CopyOp_DEEP_COPY_ALL],
            message=message, registered=peer.clientdata_class("_p_osg__Quat")[0] is Quat)))
        """)
    assert result(out) == dict(
        fresh=True, moved="_p_osg__MatrixTransform", kept=True, modules=2,
        cvar="(Camera_FACE_CONTROLLED_BY_GEOMETRY_SHADER, Z_AXIS, Y_AXIS, X_AXIS)", x=[1, 0, 0],
        constants=[100, -1, 2147483647], message="swiginit expected 2 arguments, got 1", registered=True)


@pytest.mark.parametrize("peer_first", [True, False])
def test_exit_with_a_sibling_registered_classes_and_live_owners(run_py, peer_first):
    out, err = run_py(f"""
        {FIRST[peer_first]}
        import companion
        live = [companion.Vec3f(1, 2, 3), companion.Quat(), companion.CopyOp(), companion.DummyObject(),
                companion.StandardNotifyHandler(), companion.Referenced(), _osg.new_Vec4d(), _osg.new_Referenced()]
        live.append(companion.Vec3f(1, 0, 0) + companion.Vec3f(0, 1, 0))  # an owned result
        print("end")
        """)
    assert (out, err) == ("end\n", "")
