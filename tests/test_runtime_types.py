import json
import sys

import pytest

import _osgpeer as peer

# The typedefs a descriptor also answers to, before its own spelling; a sample of the 34 that have any.
ALIASES = {
    "_p_GLenum": "osg::StateAttribute::GLMode *|GLenum *",
    "_p_double": "|".join(f"osg::{c}::value_type *" for c in "Matrixd Plane Quat Vec2d Vec3d Vec4d Viewport".split()) + "|double *",
    "_p_osg__BoundingBoxImplT_osg__Vec3d_t": "osg::BoundingBox *|osg::BoundingBoxd *|osg::BoundingBoxImpl< osg::Vec3d > *",
    "_p_osg__Matrixd": "osg::Matrix *|osg::Matrixd *",
    "_p_osg__Vec3d": "osg::Plane::Vec3_type *|osg::Vec3d *",
    "_p_std__vectorT_osg__Node_p_t": "osg::NodePath *|osg::StateSet::ParentList *|std::vector< osg::Node * > *",
    "_p_std__vectorT_osg__Vec3f_t": "std::vector< osg::Vec3f > *",  # a template's own spelling
}
NODES = "AutoTransform ClipNode Geode MatrixTransform PositionAttitudeTransform Switch Transform"
ATTRIBUTES = "ClipPlane ColorMask Fog Viewport"
OBJECTS = f"{NODES} {ATTRIBUTES} DummyObject Group Node StateAttribute StateSet"
GRAPH = {"_p_osg__" + base: {"_p_osg__" + d for d in derived.split()} for base, derived in {
    "Group": NODES, "Matrixd": "RefMatrixd", "Matrixf": "RefMatrixf", "Node": f"{NODES} Group",
    "NotifyHandler": "StandardNotifyHandler", "Object": OBJECTS,
    "Referenced": f"{OBJECTS} Object NotifyHandler StandardNotifyHandler", "StateAttribute": ATTRIBUTES,
    "Transform": "AutoTransform MatrixTransform PositionAttitudeTransform"}.items()}
GRAPH["_p_osg__NodeVisitor"] = {"_p_osgUtil__SmoothingVisitor"}


def osg_table():
    (table,) = [rows for _, rows in peer.ring_tables() if len(rows) == 130]
    return table


NAMES = [name for name, _, _ in osg_table()]


def test_descriptor_names_sorted_and_spellings():
    """Sorted by name, as the ring's binary search needs; a plain class is spelled as its name demangles."""
    assert NAMES == sorted(set(NAMES)) and set(GRAPH) | set().union(*GRAPH.values()) <= set(NAMES)
    spellings = {name: text for name, text, _ in osg_table()}
    assert len([s for s in spellings.values() if "|" in s]) == 34
    assert {n: spellings[n] for n in ALIASES} == ALIASES
    assert [n for n in NAMES if "T_" not in n and spellings[n].split("|")[-1] != n[3:].replace("__", "::") + " *"] == \
        ["_p_unsigned_int"]


def test_cast_graph(run_py):
    # In a fresh interpreter: a sibling module loaded in this one (_osgdraw) adds its edges to _osg's records.
    out, _ = run_py(f"""
        import json, _osg, _osgpeer as peer
        print(json.dumps({{name: peer.cast_list(name) for name in {NAMES!r}}}))
    """)
    lists = {name: [n for n in entries if not n.startswith("_p_peer__")] for name, entries in json.loads(out).items()}
    assert all(len(entries) == len(set(entries)) for entries in lists.values())
    assert {name: set(entries) for name, entries in lists.items()} == \
        {name: {name} | GRAPH.get(name, set()) for name in NAMES}


def test_type_check_moves_the_hit_to_the_front():
    node = "_p_osg__Node"
    sequence = ["_p_osg__MatrixTransform", "_p_osg__MatrixTransform", "_p_osg__Switch"]
    sequence += reversed([n for n in peer.cast_list(node) if n in GRAPH[node]])  # tail-most first
    for derived in sequence:
        before = peer.cast_list(node)
        assert peer.convert(peer.new_pointer(0x4000, derived, 0), node, 0, True) == (0, 0x4000, False)
        assert peer.cast_list(node) == [derived] + [n for n in before if n != derived]


@pytest.mark.parametrize("query,found", [
    ("_p_char", "_p_char"), ("osg::Matrix*", "_p_osg__Matrixd"), ("osg::Matrixd *", "_p_osg__Matrixd"),
    ("  osg :: Vec3 *", "_p_osg__Vec3f"), ("osg::Matrix* ", "_p_osg__Matrixd"), ("osg::Matrix *  ", "_p_osg__Matrixd"), ("GLenum *", "_p_GLenum"), ("std::vector<osg::Node*>*", "_p_std__vectorT_osg__Node_p_t"),
    ("peer::Widget *", "_p_peer__Widget"), ("osg::Nothing *", None), ("osg::Matrix", None)])
def test_type_query(query, found):
    assert peer.type_query(query) == found


def test_type_query_is_served_from_its_cache():
    assert peer.type_query("_p_char") == "_p_char"
    assert peer.type_query("_p_char") == "_p_char"
    assert peer.type_cache().count("_p_char") == 1
    runtime = sys.modules["swig_runtime_data4"]
    capsule = runtime.type_pointer_capsule
    del runtime.type_pointer_capsule  # the ring is now out of reach of a table search
    try:
        assert peer.type_query("_p_char") == "_p_char"
        assert peer.type_query("osg::Quat *") is None
    finally:
        runtime.type_pointer_capsule = capsule
    assert peer.type_query("osg::Quat *") == "_p_osg__Quat"
    assert peer.type_query("osg::Nothing *") is None
    assert "osg::Quat *" in peer.type_cache() and "osg::Nothing *" not in peer.type_cache()
