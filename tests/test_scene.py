"""Scene graph: small real scenes: parents, world matrices, ownership and reference counts,
switches, clip boxes, smoothing of a real mesh (its functions' leak tests are test_leaks')."""
import math

import pytest

from engine_support import V, _osg, _osgpeer, free_borrowed, m16, mk, plain, point, raises, refuse, sdk_calls, \
    type_name  # noqa: F401
from test_draw_geometry import D, mesh
from scene_rows import NODES
from test_dispatch import overload_message

# ---- scenes ------------------------------------------------------------------------------

@pytest.fixture
def made():
    """made(proxy) keeps a group-family proxy whose reference the test gives back at the end."""
    held = []
    yield lambda p: held.append(p) or p
    for p in held:
        _osg.delete_Group(p)


def translate(x, y, z, mk):
    return mk(_osg.new_Matrixd(1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, x, y, z, 1))


@pytest.fixture
def scene(made, mk):
    """root -> mt (translate 10, 20, 30) -> pat (scale 2, turn 90 degrees about z, move 1, 2, 3) -> leaf;
    root -> switch -> clip node with a clip box."""
    root, mt, pat, sw, clip = (made(getattr(_osg, f"new_{c}")()) for c in
                               ["Group", "MatrixTransform", "PositionAttitudeTransform", "Switch", "ClipNode"])
    leaf = made(_osg.new_Geode())
    parents = _osg.Node_getParents(leaf)  # taken before the change: it shows the node's own list
    for parent, child in [(root, mt), (mt, pat), (pat, leaf), (root, sw), (sw, clip)]:
        assert _osg.Group_addChild(parent, child) is True
    _osg.MatrixTransform_setMatrix(mt, translate(10, 20, 30, mk))
    _osg.PositionAttitudeTransform_setPosition(pat, mk.Vec3d(1, 2, 3))
    _osg.PositionAttitudeTransform_setAttitude(pat, mk.Quat(math.pi / 2, mk.Vec3d(0, 0, 1)))
    _osg.PositionAttitudeTransform_setScale(pat, mk.Vec3d(2, 2, 2))
    _osg.ClipNode_createClipBox(clip, V.bounding_box(-1, -1, -1, 1, 1, 1))
    return dict(root=root, mt=mt, pat=pat, leaf=leaf, sw=sw, clip=clip, parents=parents)


def test_parents_and_children(scene):
    root, mt, pat, leaf, sw = (scene[k] for k in ["root", "mt", "pat", "leaf", "sw"])
    assert plain(V.read(scene["parents"])) == [int(pat)]
    assert not scene["parents"].thisown and int(_osg.Node_getParent(leaf, 0)) == int(pat)
    assert [int(_osg.Group_getChild(root, i)) for i in range(_osg.Group_getNumChildren(root))] == [int(mt), int(sw)]
    assert _osg.Group_getChildIndex(root, sw) == 1 and _osg.Group_getChildIndex(root, leaf) == 2  # not a child
    assert _osg.Group_containsNode(root, mt) and not _osg.Group_containsNode(root, leaf)
    extra = [_osg.new_Node() for _ in range(3)]
    for n in extra:
        _osg.Group_addChild(root, n)
    assert _osg.Group_removeChild(root, 2) and _osg.Group_getNumChildren(root) == 4  # one child at 2
    assert _osg.Group_removeChild(root, 2, 2) and _osg.Group_getNumChildren(root) == 2
    assert _osg.Group_removeChild(root, leaf) is False and _osg.Group_addChild(root, None) is False
    assert [_osg.Referenced_referenceCount(n) for n in extra] == [1, 1, 1]  # the group dropped its own
    paths = _osg.Node_getParentalNodePaths(leaf, None)
    assert paths.thisown and plain(V.read(paths)) == [[int(root), int(mt), int(pat), int(leaf)]]
    for n in extra:
        _osg.delete_Referenced(n)


def test_world_matrices_of_a_node_path(scene, mk):
    root, mt, pat, leaf = (scene[k] for k in ["root", "mt", "pat", "leaf"])
    path = V.node_path([root, mt, pat, leaf])
    world = mk(_osg.computeLocalToWorld(path))
    assert world.own()
    assert point(world, [1, 0, 0]) == pytest.approx([11, 24, 33])  # scale, turn, move, then translate
    assert point(mk(_osg.computeWorldToLocal(path)), [11, 24, 33]) == pytest.approx([1, 0, 0])
    (only,) = map(mk, V.read(_osg.Node_getWorldMatrices(leaf)))
    assert m16(only) == pytest.approx(m16(world))
    view = translate(0, 0, -5, mk)
    assert point(mk(_osg.computeLocalToEye(view, path)), [1, 0, 0]) == pytest.approx([11, 24, 28])
    assert point(mk(_osg.computeEyeToLocal(view, path, False)), [11, 24, 28]) == pytest.approx([1, 0, 0])
    in_out = translate(0, 0, 0, mk)
    assert _osg.Transform_computeLocalToWorldMatrix(mt, in_out, None) is True
    assert point(in_out, [0, 0, 0]) == [10, 20, 30]
    raises(TypeError, "invalid null reference in method 'MatrixTransform_computeWorldToLocalMatrix', argument 2 of "
           "type 'osg::Matrix &'", _osg.MatrixTransform_computeWorldToLocalMatrix, mt, None, None)
    # None fails the dispatcher's reference test, so the overload message is raised.
    raises(TypeError, overload_message("computeEyeToLocal"), _osg.computeEyeToLocal, view, None)
    raises(TypeError, overload_message("computeLocalToWorld"), _osg.computeLocalToWorld, [root, mt])
    held = _osg.MatrixTransform_getMatrix(mt)
    _osg.MatrixTransform_postMult(mt, translate(1, 1, 1, mk))
    assert point(held, [0, 0, 0]) == [11, 21, 31] and not held.own()  # the node's own matrix
    assert point(_osg.MatrixTransform_getInverseMatrix(mt), [11, 21, 31]) == [0, 0, 0]


def test_transform_accessors(made, mk):
    at, mt = made(_osg.new_AutoTransform()), made(_osg.new_MatrixTransform(translate(4, 5, 6, mk)))
    assert point(_osg.MatrixTransform_getMatrix(mt), [0, 0, 0]) == [4, 5, 6]
    assert _osg.Transform_asAutoTransform(mt) is None
    assert int(_osg.Transform_asAutoTransform(at)) == int(at) and int(_osg.Transform_asMatrixTransform(mt)) == int(mt)
    scale = _osg.AutoTransform_getScale(at)
    _osg.AutoTransform_setScale(at, 2)  # an int takes the uniform form
    assert _osg.Vec3d_length2(scale) == 12 and not scale.own()
    _osg.AutoTransform_setScale(at, mk.Vec3d(1, 2, 3))
    assert _osg.Vec3d_length2(scale) == 14
    refuse((OverflowError, "AutoTransform_setAutoUpdateEyeMovementTolerance", 2, "float", at, 1e39),
           (TypeError, "AutoTransform_setAutoScaleToScreen", 2, "bool", at, 1),
           (TypeError, "!PositionAttitudeTransform_setPosition", 2, "osg::Vec3d const &",
            made(_osg.new_PositionAttitudeTransform()), None))


def test_reference_counts_and_ownership(run_py):
    before = sdk_calls()
    for cls in NODES[1:]:
        p = getattr(_osg, f"new_{cls}")()
        assert p.own() and type_name(p) == f"osg::{cls} *" and _osg.Referenced_referenceCount(p) == 1
        copy = getattr(_osg, f"new_{cls}")(p)  # the copy constructors take the same reference
        assert _osg.Referenced_referenceCount(copy) == 1
        _osg.delete_Group(copy)
        _osg.intrusive_ptr_add_ref(p)
        assert _osg.delete_Group(p) is None and not p.own() and _osg.Referenced_referenceCount(p) == 1
        _osg.intrusive_ptr_release(p)
    node = _osg.new_Node()
    assert _osg.Referenced_referenceCount(node) == 1
    assert [a - b for a, b in zip(sdk_calls(), before)] == [16, 16]  # the plain node calls neither
    _osg.delete_Referenced(node)
    # A proxy dies while its node has a parent: the parent keeps the node.
    out, _ = run_py("""
        import ctypes, os, _osg
        zog = ctypes.CDLL(os.path.join(os.path.dirname(_osg.__file__), "libzogOSG.so"))
        class Group:
            __swig_destroy__ = _osg.delete_Group
            def __init__(self):
                _osg.Group_swiginit(self, _osg.new_Group())
        _osg.Group_swigregister(Group)
        root, child = Group(), Group()
        _osg.Group_addChild(root, child)
        del child
        held = _osg.Group_getChild(root, 0)
        print(held.own(), _osg.Referenced_referenceCount(held), _osg.Node_className(held), zog.zog_stub_unreference_calls())
        _osg.Group_removeChild(root, 0)  # the last reference: the child is deleted
        print(_osg.Group_getNumChildren(root), zog.zog_stub_unreference_calls())
    """)
    assert out == "False 1 Group 1\n0 1\n"


def test_node_values(made, mk):
    n, g = _osg.new_Node(), made(_osg.new_Group())
    assert _osg.Node_asGroup(n) is None and type_name(_osg.Node_asGroup(g)) == "osg::Group *"
    assert _osg.Group_getNumChildren(_osg.Node_asGroup(g)) == 0
    _osg.Node_setNodeMask(n, 2**32 - 1)
    assert _osg.Node_getNodeMask(n) == 2**32 - 1
    refuse(*[(OverflowError, "Node_setNodeMask", 2, "osg::Node::NodeMask", n, bad) for bad in (-1, 2**32)],
           (TypeError, "Node_addDescription", 2, "std::string const &", n, "text"),
           *[(TypeError, f, 2, "osg::Node::DescriptionList const &", n, a) for f, a in [("Node_setDescriptions", ["a"]),
                                                                                        ("!Node_setDescriptions", None)]])
    held = _osg.Node_getDescriptions(n)
    _osg.Node_setDescriptions(n, V.description_list(["first", "second"]))
    _osg.Node_addDescription(n, V.string("third"))
    assert V.read(held) == ["first", "second", "third"]
    assert V.read(_osg.Node_getDescription(n, 2)) == "third" and _osg.Node_getNumDescriptions(n) == 3
    state = _osg.Node_getOrCreateStateSet(n)
    assert int(_osg.Node_getStateSet(n)) == int(state) and not state.own()
    _osg.Node_setInitialBound(n, V.bounding_sphere(1, 2, 3, 4))
    assert V.read(_osg.Node_getBound(n)) == V.read(_osg.Node_getInitialBound(n)) == ((1, 2, 3), 4)
    _osg.delete_Referenced(n)


def test_switch_values(made):
    s, a, b = made(_osg.new_Switch()), made(_osg.new_Group()), made(_osg.new_Geode())
    values = _osg.Switch_getValueList(s)
    raises(TypeError, overload_message("Switch_addChild"), _osg.Switch_addChild, s, a, 1)
    assert _osg.Switch_addChild(s, a, False) and _osg.Switch_addChild(s, b)
    assert V.read(values) == [False, True]
    assert _osg.Switch_setSingleChildOn(s, 0) and (_osg.Switch_getValue(s, 0), _osg.Switch_getChildValue(s, b)) == (True, False)
    _osg.Switch_setValueList(s, V.value_list([False, True]))
    assert V.read(values) == [False, True]
    raises(TypeError, "invalid null reference in method 'Switch_setValueList', argument 2 of type "
           "'osg::Switch::ValueList const &'", _osg.Switch_setValueList, s, None)
    assert _osg.Group_removeChild(s, 0) and V.read(values) == [True]


def test_clip_box(scene, made):
    clip = scene["clip"]
    planes = _osg.ClipNode_getClipPlaneList(clip)
    assert _osg.ClipNode_getNumClipPlanes(clip) == 6 and not planes.thisown
    first = _osg.ClipNode_getClipPlane(clip, 0)
    assert _osgpeer.convert_form(first, "_p_osg__ClipPlane", "plain")[0] == 0  # only a plane converts
    _osg.intrusive_ptr_add_ref(first)  # the node's list holds the only other reference
    assert _osg.ClipNode_removeClipPlane(clip, first) and _osg.ClipNode_removeClipPlane(clip, 4)
    assert len(V.read(planes)) == 4
    other = made(_osg.new_ClipNode())
    _osg.ClipNode_setClipPlaneList(other, planes)
    assert _osg.ClipNode_getNumClipPlanes(other) == 4 and _osg.ClipNode_addClipPlane(other, first)
    _osg.intrusive_ptr_release(first)
    raises(TypeError, overload_message("ClipNode_createClipBox"), _osg.ClipNode_createClipBox, other, None)


# Two right triangles folded 90 degrees along their shared edge from (0, 0, 0) to (1, 0, 0).
FOLD = [(0, 0, 0), (1, 0, 0), (0, 1, 0), (0, 0, 1)]
UP, SIDE, HALF = (0, 0, 1), (0, 1, 0), (0, math.sqrt(0.5), math.sqrt(0.5))


def corner_normals(geometry):
    """The normal at each triangle corner, flat."""
    normals = D.Array___buffer__(D.Geometry_getNormalArray(geometry), 0).tolist()
    sets = [D.Geometry_getPrimitiveSet(geometry, i) for i in range(D.Geometry_getNumPrimitiveSets(geometry))]
    return [c for p in sets for i in range(D.PrimitiveSet_getNumIndices(p)) for c in normals[D.PrimitiveSet_index(p, i)]]


def flat(*normals):
    return pytest.approx([c for n in normals for c in n])


def test_smoothing_a_folded_mesh(made, mk):
    def smoothed(*angle):
        g = mk(mesh(FOLD))
        assert _osg.SmoothingVisitor_smooth(g, *angle) is None
        return corner_normals(g)
    # Every edge smoothed: the corners on the shared edge take the mean of both faces.
    assert smoothed() == smoothed(math.pi) == flat(HALF, HALF, UP, HALF, HALF, SIDE)
    # A crease sharper than the angle stays sharp: each face keeps its own normal.
    assert smoothed(1) == flat(UP, UP, UP, SIDE, SIDE, SIDE)
    # A visitor run over a subgraph reaches the geode's geometry, with its own crease angle.
    visitor, geode, g = _osg.new_SmoothingVisitor(), made(_osg.new_Geode()), mk(mesh(FOLD))
    assert _osg.SmoothingVisitor_getCreaseAngle(visitor) == math.pi
    _osg.SmoothingVisitor_setCreaseAngle(visitor, 0.5)
    assert _osg.Geode_addDrawable(geode, g) and _osg.Geode_getNumDrawables(geode) == 1
    _osg.Node_accept(geode, visitor)
    assert corner_normals(g) == flat(UP, UP, UP, SIDE, SIDE, SIDE)
    assert V.read(_osg.Geode_getBoundingBox(geode)) == (0, 0, 0, 1, 1, 1)
    center, radius = V.read(_osg.Node_getBound(geode))
    assert center == (0.5, 0.5, 0.5) and radius == pytest.approx(math.sqrt(0.75))
    raises(TypeError, overload_message("SmoothingVisitor_smooth"), _osg.SmoothingVisitor_smooth, None)
    _osg.delete_SmoothingVisitor(visitor)
    assert not visitor.own()
