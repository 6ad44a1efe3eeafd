"""_osgvalues: values _osg takes as pointer objects, made from Python values and read back.
Importing it registers its value classes for the whole process, so each case runs in a
fresh interpreter."""


def test_values_round_trip_through_osg(run_py):
    out, _ = run_py("""
        import _osg, _osgvalues as v
        class Matrixd:  # matrices come back owned: a class gives them their destroy function
            __swig_destroy__ = _osg.delete_Matrixd
        _osg.Matrixd_swigregister(Matrixd)
        n = _osg.new_Node()
        _osg.Object_setName(n, v.string("héllo"))
        name = _osg.Object_getName(n)
        assert type(name) is v.String and not name.thisown and v.read(name) == "héllo", name
        ss = _osg.new_StateSet()
        _osg.StateSet_setMode(ss, v.glenum(0x0B60), 1)
        assert _osg.StateSet_getMode(ss, v.glenum(0x0B60)) == 1
        assert v.read(v.glbitfield(0x4100)) == 0x4100 and v.read(v.uniform_type(5)) == 5
        _osg.Node_setDescriptions(n, v.description_list(["a", "b"]))
        assert v.read(_osg.Node_getDescriptions(n)) == ["a", "b"]
        root, t = _osg.new_Group(), _osg.new_MatrixTransform(_osg.Matrixd_translate(1, 2, 3))
        _osg.Group_addChild(root, t)
        path = v.node_path([root, t])
        assert [int(x) for x in v.read(path)] == [int(root), int(t)]
        m = _osg.computeLocalToWorld(path)
        assert v.elements(_osg.Matrixd_ptr(m), 16)[12:15] == (1.0, 2.0, 3.0)
        assert [int(g) for g in v.read(_osg.Node_getParents(t))] == [int(root)]
        assert v.read(v.bounding_box(0, 1, 2, 3, 4, 5)) == (0, 1, 2, 3, 4, 5)
        assert v.read(v.bounding_sphere(1, 2, 3, 4)) == ((1, 2, 3), 4)
        assert v.read(v.value_list([True, 0, 1])) == [True, False, True]
        assert v.read(v.vec3d_list([(1, 2, 3)])) == [(1, 2, 3)]
        cells = [v.double_cell() for _ in range(4)]
        assert _osg.Matrixd_getPerspective(_osg.Matrixd_perspective(45, 2, 1, 10), *cells)
        fovy, aspect, near, far = (c.value for c in cells)
        assert abs(fovy - 45) < 1e-9 and abs(aspect - 2) < 1e-9 and abs(far - 10) < 1e-9
        assert v.read(v.float_cell(0.5)) == 0.5 and v.read(v.uint_cell(7)) == 7
        for x in (n, ss):
            _osg.delete_Referenced(x)
        for x in (root, t):
            _osg.delete_Group(x)
        print(repr(v.string("x")), v.String.__swig_destroy__.__name__)
    """)
    assert out == "<_osgvalues.String 'x'> delete_String\n"


def test_refusals(run_py):
    run_py("""
        import _osgvalues as v
        def refused(exc, text, f, *a):
            try:
                f(*a)
            except exc as e:
                assert str(e) == text, str(e)
            else:
                raise AssertionError(f)
        refused(TypeError, "bad argument type for built-in operation", v.string, 3)
        refused(OverflowError, "4294967296 does not fit in 32 bits", v.glenum, 1 << 32)
        refused(TypeError, "item 0 of a node path is not a node", v.node_path, [1])
        refused(TypeError, "read() takes a value of _osgvalues, not 'int'", v.read, 1)
        refused(TypeError, "elements() takes a float *, double * or unsigned int *, not 'str'", v.elements, "x", 1)
    """)


def test_owned_values_free_themselves(run_py):
    """A million-character string made 2000 times: freed each time, or 2 GB would leak."""
    out, _ = run_py("""
        import resource, _osg, _osgvalues as v
        big = "x" * 1_000_000
        def rss():
            return resource.getrusage(resource.RUSAGE_SELF).ru_maxrss
        v.string(big)
        before = rss()
        for _ in range(2000):
            s = v.string(big)
            assert s.thisown
        del s
        n = _osg.new_Node()
        m = _osg.Node_getWorldMatrices(n)  # an owned result _osg has no destroy for
        del m
        _osg.delete_Referenced(n)
        print(rss() - before < 100_000)
    """)
    assert out == "True\n"  # and no "memory leak" message from an owned value without destroy


def test_write_node(run_py, tmp_path):
    target = tmp_path / "scene.osgt"
    out, _ = run_py(f"""
        import _osg, _osgvalues as v
        g = _osg.new_Group()
        _osg.Object_setName(g, "written")
        print(v.write_node(g, {str(target)!r}))
        _osg.delete_Group(g)
    """)
    assert out == "True\n"
    text = target.read_text()
    assert "osg::Group" in text and '"written"' in text
