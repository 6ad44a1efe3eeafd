"""_osgvalues: what the other tests take from it (strings, handles, lists, bounding volumes, their
reading back) aside, its cells, messages, freeing and the writer; it is loaded in this process."""
from engine_support import V, _osg, mk, raises  # noqa: F401 (mk)


def test_cells_elements_and_classes(mk):
    cells = [V.double_cell() for _ in range(4)]
    assert _osg.Matrixd_getPerspective(mk(_osg.Matrixd_perspective(45, 2, 1, 10)), *cells)
    assert [round(c.value, 9) for c in cells] == [45, 2, 1, 10]
    assert (V.read(V.float_cell(0.5)), V.read(V.uint_cell(7)), V.elements(cells[0], 1)) == (0.5, 7, (cells[0].value,))
    assert (repr(V.string("x")), str(V.glenum(5)), V.String.__swig_destroy__.__name__) == \
        ("<_osgvalues.String 'x'>", "5", "delete_String")
    raises(TypeError, "bad argument type for built-in operation", V.string, 3)
    raises(OverflowError, "4294967296 does not fit in 32 bits", V.glenum, 1 << 32)
    assert V.read(V.glbitfield(0xFFFFFFFF)) == 0xFFFFFFFF
    s = V.string("freed")
    assert (V.String.__swig_destroy__(s), s.thisown) == (None, False)  # an explicit destroy leaves no owner
    raises(TypeError, "item 0 of a node path is not a node", V.node_path, [1])
    raises(TypeError, "read() takes a value of _osgvalues, not 'int'", V.read, 1)
    raises(TypeError, "elements() takes a float *, double * or unsigned int *, not 'str'", V.elements, "x", 1)


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


def test_write_node(tmp_path):
    g, target = _osg.new_Group(), tmp_path / "scene.osgt"
    _osg.Object_setName(g, "written")
    assert V.write_node(g, str(target)) is True
    _osg.delete_Group(g)
    text = target.read_text()
    assert "osg::Group" in text and '"written"' in text
