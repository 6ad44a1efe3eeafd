"""_osgdraw's geometry: arrays and element lists from lists and buffers, their views, normals,
bounds, errors, owners kept alive by views, and no leaks."""
import array
import atexit
import sys

import pytest

import _osg
import _osgdraw as D
from engine_support import V, _osgpeer as P, count, values

GL_TRIANGLES, GL_FLOAT, GL_UNSIGNED_INT = 4, 0x1406, 0x1405
rc = _osg.Referenced_referenceCount
TRIANGLES_MODE, LINES_MODE = V.glenum(GL_TRIANGLES), V.glenum(1)
POINTS = [(0.0, 0.0, 0.0), (1.0, 0.0, 0.0), (0.0, 1.0, 0.0), (0.0, 0.0, 2.0)]
TRIANGLES = [0, 1, 2, 1, 0, 3]
VALUES = "std::vector< osg::Vec3f > const &"
VECTORS = [_osg.new_Vec3f(*p) for p in POINTS]


def mesh(points=POINTS):
    g, verts, elements = D.new_Geometry(), D.new_Vec3Array(points), D.new_DrawElementsUInt(TRIANGLES_MODE, TRIANGLES)
    D.Geometry_setVertexArray(g, verts)
    D.Geometry_addPrimitiveSet(g, elements)
    free(verts, elements)                          # the geometry holds them now
    return g


def enum(result):
    """The value of an owned GLenum result, which frees itself."""
    assert result.thisown
    return V.read(result)


def vec3(v):
    """The components of an owned Vec3f result, which is then freed."""
    out = values(v, "Vec3f")
    _osg.delete_Vec3f(v)
    return out


def free(*objects):
    for o in objects:
        _osg.delete_Referenced(o)


@atexit.register
def release_shared():
    """Releases the objects the tests share, however many tests ran (no leak report at exit)."""
    free(EMPTY, GEOMETRY, POINTS3, ELEMENTS, ARRAYS)
    list(map(_osg.delete_Vec3f, VECTORS))


@pytest.mark.parametrize("source", [
    lambda: POINTS, lambda: VECTORS, lambda: array.array("f", sum(POINTS, ())),
    lambda: memoryview(array.array("f", sum(POINTS, ())).tobytes()).cast("f", (4, 3))])
def test_mesh_reads_back_through_views_and_elements(source):
    g = D.new_Geometry()
    verts = D.new_Vec3Array(source())
    D.Geometry_setVertexArray(g, verts)
    view = D.Vec3Array___buffer__(verts, 0)
    assert (view.format, view.shape, view.readonly, view.tolist()) == ("f", (4, 3), False, [list(p) for p in POINTS])
    assert D.Array___buffer__(D.Geometry_getVertexArray(g), 0).tolist() == view.tolist()
    item = D.Vec3Array___getitem__(verts, 3)
    D.Vec3Array___setitem__(verts, 0, item)
    assert vec3(item) == list(POINTS[3]) and view.tolist()[0] == list(POINTS[3])
    view[3, 1] = 5.0                               # the view is the array's own memory
    assert vec3(D.Vec3Array___getitem__(verts, 3)) == [0.0, 5.0, 2.0]
    assert [D.Array_getNumElements(verts), D.Array_getTotalDataSize(verts), enum(D.Array_getDataType(verts))] \
        == [4, 48, GL_FLOAT]
    view.release()
    free(verts, g)


@pytest.mark.parametrize("k", [2, 3, 4])
def test_vector_arrays_of_each_size(k):
    rows = [[float(i * k + j) for j in range(k)] for i in range(5)]
    cls = f"Vec{k}Array"
    a, b = getattr(D, f"new_{cls}")(rows), getattr(D, f"new_{cls}")(array.array("f", sum(rows, [])))
    last = getattr(_osg, f"new_Vec{k}f")(*range(k))
    getattr(D, f"{cls}_push_back")(b, last)
    getattr(_osg, f"delete_Vec{k}f")(last)
    assert getattr(D, f"{cls}___buffer__")(a, 0).tolist() == rows
    assert getattr(D, f"{cls}___buffer__")(b, 0).tolist() == rows + [list(map(float, range(k)))]
    assert [getattr(D, f"{cls}_size")(b), D.Array_getDataSize(b), getattr(D, f"{cls}_compare")(a, 0, 1)] == [6, k, -1]
    free(a, b)


def test_element_list_indices_modes_and_normals():
    g = mesh()
    prims = D.Geometry_getPrimitiveSet(g, 0)
    assert D.PrimitiveSet___buffer__(prims, 0).tolist() == TRIANGLES
    assert [D.PrimitiveSet_index(prims, i) for i in range(6)] == TRIANGLES
    assert [D.PrimitiveSet_getNumIndices(prims), D.PrimitiveSet_getNumPrimitives(prims)] == [6, 2]
    assert enum(D.PrimitiveSet_getMode(prims)) == GL_TRIANGLES
    e = D.new_DrawElementsUInt(LINES_MODE, array.array("I", [3, 2]))
    D.DrawElementsUInt_push_back(e, 7)
    view = D.DrawElementsUInt___buffer__(e, 0)
    assert (view.format, view.tolist(), D.DrawElementsUInt_getElement(e, 2)) == ("I", [3, 2, 7], 7)
    assert enum(D.DrawElementsUInt_getDataType(e)) == GL_UNSIGNED_INT and D.PrimitiveSet_LINES == 1
    _osg.SmoothingVisitor_smooth(g)  # what the normals are, test_scene's folded mesh checks
    assert D.Array_getBinding(D.Geometry_getNormalArray(g)) == D.Array_BIND_PER_VERTEX
    view.release()
    free(e, g)


def test_geometry_in_a_group_and_its_bound(run_py):
    # In a fresh interpreter: groups go through the SDK's library, whose call counts other tests read.
    out, _ = run_py("""
        import math, _osg, _osgdraw as D
        import test_draw_geometry as t
        g, group = t.mesh(), _osg.new_Group()
        print(_osg.Group_addChild(group, g), _osg.Node_getNumParents(g), t.V.read(D.Drawable_getBoundingBox(g)),
              _osg.Node_getOrCreateStateSet(g) == _osg.Node_getStateSet(g) != None)
        (x, y, z), r = t.V.read(_osg.Node_getBound(group))
        print([round(v, 6) for v in (x, y, z, r - math.sqrt(6) / 2)])
        t.free(g)
        _osg.delete_Group(group)
    """)
    assert out == "True 1 (0.0, 0.0, 0.0, 1.0, 1.0, 2.0) True\n[0.5, 0.5, 1.0, 0.0]\n"


EMPTY, GEOMETRY, POINTS3 = D.new_Vec3Array(), D.new_Geometry(), D.new_Vec3Array(POINTS)
ELEMENTS, ARRAYS = D.new_DrawElementsUInt(), D.new_DrawArrays()
BAD = [  # (call, exception, message); None where only the type is checked
    (lambda: D.new_Vec3Array(memoryview(array.array("f", range(8))).cast("B").cast("f", (4, 2))), ValueError,
     f"in method 'new_Vec3Array', argument 1 of type '{VALUES}': expected a buffer of shape (N, 3) or (N*3,), "
     "got shape (4, 2)"),
    (lambda: D.new_Vec3Array(array.array("f", range(7))), ValueError, None),
    (lambda: D.new_Vec3Array(array.array("d", range(6))), TypeError,
     f"in method 'new_Vec3Array', argument 1 of type '{VALUES}': expected a buffer of float32 (format 'f'), got format 'd'"),
    (lambda: D.new_Vec3Array(bytes(12)), TypeError, None),
    (lambda: D.new_Vec3Array(memoryview(array.array("f", range(12))).cast("B").cast("f", (4, 3))[::2]), ValueError,
     f"in method 'new_Vec3Array', argument 1 of type '{VALUES}': expected a C-contiguous buffer"),
    (lambda: D.new_Vec3Array([(0, 0, 0), (0, "x", 0)]), TypeError,
     f"in method 'new_Vec3Array', argument 1 of type '{VALUES}': item 1, component 1 is not a number"),
    (lambda: D.new_Vec3Array([(1, 2)]), ValueError,
     f"in method 'new_Vec3Array', argument 1 of type '{VALUES}': item 0 has 2 components, expected 3"),
    (lambda: D.new_Vec3Array([None]), TypeError, None),
    (lambda: D.new_Vec3Array([(1e39, 0, 0)]), OverflowError, None),
    (lambda: D.new_DrawElementsUInt(TRIANGLES_MODE, [0, -1]), OverflowError,
     "in method 'new_DrawElementsUInt', argument 2 of type 'std::vector< GLuint > const &': item 1 is out of range for uint32"),
    (lambda: D.new_DrawElementsUInt(4, [0]), TypeError, None),        # a mode is a GLenum, not an int
    (lambda: D.Vec3Array_assign(EMPTY, 5), TypeError,
     f"in method 'Vec3Array_assign', argument 2 of type '{VALUES}'"),
    (lambda: D.Vec3Array_push_back(EMPTY, None), TypeError,
     "invalid null reference in method 'Vec3Array_push_back', argument 2 of type 'osg::Vec3Array::value_type const &'"),
    (lambda: D.Vec3Array_size(GEOMETRY), TypeError,
     "in method 'Vec3Array_size', argument 1 of type 'osg::Vec3Array const *'"),
    (lambda: D.Vec3Array___getitem__(POINTS3, 4), IndexError, "index out of range"),
    (lambda: D.Vec3Array_pop_back(EMPTY), IndexError, "pop from an empty array"),
    (lambda: D.DrawElementsUInt_setElement(ELEMENTS, 0, 1), IndexError, "index out of range"),
    (lambda: D.Geometry_getPrimitiveSet(GEOMETRY, 0), IndexError, "index out of range"),
    (lambda: D.PrimitiveSet___buffer__(ARRAYS, 0), BufferError, None),
    (lambda: D.Geometry_setNormalArray(GEOMETRY, 1), TypeError,
     "Wrong number or type of arguments for overloaded function 'Geometry_setNormalArray'.\n  Possible C/C++ prototypes "
     "are:\n    osg::Geometry::setNormalArray(osg::Array *,osg::Array::Binding)\n    osg::Geometry::setNormalArray(osg::Array *)\n"),
]


@pytest.mark.parametrize("call, exc, message", BAD)
def test_bad_input_raises(call, exc, message):
    with pytest.raises(exc) as info:
        call()
    assert message is None or str(info.value) == message


def test_views_keep_owners_alive_and_pin_memory():
    g = mesh()
    verts = D.Geometry_getVertexArray(g)           # borrowed: only the geometry holds the array
    own = D.new_Vec3Array(POINTS)
    D.Geometry_setNormalArray(g, own)
    assert [rc(verts), rc(own)] == [1, 2]
    view, normals = D.Array___buffer__(verts, 0), D.Vec3Array___buffer__(own, 0)
    assert [rc(verts), rc(own)] == [2, 3]
    free(own, g)                                   # the proxy's reference and the geometry are gone
    assert [rc(verts), view.tolist(), normals.tolist()] == [1] + [[list(p) for p in POINTS]] * 2
    with pytest.raises(BufferError, match="^Existing exports of data: object cannot be re-sized$"):
        D.Array_resizeArray(verts, 9)
    normals.release()
    view.release()                                 # the last reference: the array is freed
    v = _osg.new_Vec3f(1, 2, 3)
    before = sys.getrefcount(v)
    mv = D.Vec3f___buffer__(v, 0)
    assert (sys.getrefcount(v), mv.tolist()) == (before + 1, [1, 2, 3])
    mv[2] = 9
    assert values(v, "Vec3f") == [1, 2, 9]
    del mv
    assert sys.getrefcount(v) == before
    _osg.delete_Vec3f(v)


def test_matrix_and_image_views():
    m = _osg.Matrixd_translate(1, 2, 3)
    mv = D.Matrixd___buffer__(m, 0)
    assert (mv.format, mv.shape, mv.tolist()[3]) == ("d", (4, 4), [1, 2, 3, 1])   # OSG: translation in row 3
    mv[0, 1] = 7
    assert _osg.Matrixd___call__(m, 0, 1) == 7
    del mv
    _osg.delete_Matrixd(m)
    image = P.make_image(3, 2)               # RGBA, 8 bits a component
    before = count(image)
    pixels = D.Image___buffer__(image, 0)
    assert (pixels.format, pixels.shape, pixels.strides) == ("B", (2, 3, 4), (12, 4, 1))
    assert count(image) == before + 1
    pixels[1, 2, 3] = 200
    assert D.Image___buffer__(image, 0)[1, 2, 3] == 200
    del pixels
    assert count(image) == before


def raised(exc, f, *args):
    """Whether f(*args) raised exc; no traceback outlives the call, as one held by pytest.raises may."""
    try:
        f(*args)
    except exc:
        return True
    return False


def test_repeated_calls_leak_nothing():
    floats, points, indices = array.array("f", range(3000)), [(1.0, 2.0, 3.0)] * 100, list(range(300))
    wrong = array.array("d", range(30))

    def cycle():
        for source in (floats, points):
            a = D.new_Vec3Array(source)
            D.Vec3Array_assign(a, floats)
            mv, item = D.Vec3Array___buffer__(a, 0), D.Vec3Array___getitem__(a, 0)
            assert raised(BufferError, D.Vec3Array_push_back, a, item)
            _osg.delete_Vec3f(item)
            del mv
            free(a)
        free(D.new_DrawElementsUInt(TRIANGLES_MODE, indices))
        assert all(raised((TypeError, ValueError), D.new_Vec3Array, bad) for bad in (
            wrong, memoryview(floats)[::2], [(1, 2, 3), (1, 2)], [(1, 2, "x")], floats[:7]))
        assert raised(IndexError, D.Vec3Array___getitem__, EMPTY, 0)

    from test_leaks import flat  # here: test_leaks imports this module
    # Owned proxies made here and destroyed by _osg's functions leave the shared capsule as it was.
    flat([cycle], [floats, points, indices, wrong, sys.modules["swig_runtime_data4"].type_pointer_capsule])
    floats.append(0.0)                             # no export of the buffers is left behind
    wrong.append(0.0)


def test_registered_classes_export_through_pep688(run_py):
    out, _ = run_py("""
        import osg, _osg, _osgvalues
        a = osg.Vec3Array([(1, 2, 3), (4, 5, 6)])
        alias = _osgvalues.pointer(int(a.this), "_p_osg__Referenced")
        view = memoryview(a)
        del a                                     # the view holds the instance, whose destroy comes later
        print(view.tolist(), view.shape, _osg.Referenced_referenceCount(alias))
    """)
    assert out == "[[1.0, 2.0, 3.0], [4.0, 5.0, 6.0]] (2, 3) 2\n"
