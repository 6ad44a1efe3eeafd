import json
import sys

import pytest

import _osgpeer as peer

NAMES = """_p_AttributeList _p_BufferAttachmentMap _p_Callback _p_ClipPlaneList _p_CopyFlags _p_DefineList
    _p_DefinePair _p_DescriptionList _p_GLMode _p_GLModeValue _p_GLbitfield _p_GLenum _p_ImplicitBufferAttachmentMask
    _p_ModeList _p_NodeMask _p_OpenThreads__Affinity _p_OpenThreads__Mutex _p_OverrideValue _p_ParentList
    _p_RefAttributePair _p_RefUniformPair _p_TextureAttributeList _p_TextureModeList _p_TypeMemberPair
    _p_UniformList _p_ValueList _p_Vec3_type _p_Vec4_type _p_char _p_double _p_float _p_osgTerrain__Terrain
    _p_osgUtil__SmoothingVisitor _p_osg__Array _p_osg__AutoTransform _p_osg__BoundingBoxImplT_osg__Vec3d_t
    _p_osg__BoundingBoxImplT_osg__Vec3f_t _p_osg__BoundingSphereImplT_osg__Vec3d_t
    _p_osg__BoundingSphereImplT_osg__Vec3f_t _p_osg__Callback _p_osg__CallbackObject _p_osg__Camera
    _p_osg__CameraRenderOrderSortOp _p_osg__Camera__DrawCallback _p_osg__ClipNode _p_osg__ClipPlane
    _p_osg__ColorMask _p_osg__CopyOp _p_osg__DeleteHandler _p_osg__DisplaySettings _p_osg__Drawable
    _p_osg__DummyObject _p_osg__Fog _p_osg__Geode _p_osg__Geometry _p_osg__GraphicsOperation _p_osg__Group
    _p_osg__Image _p_osg__MatrixTransform _p_osg__Matrixd _p_osg__Matrixf _p_osg__Node _p_osg__NodeVisitor
    _p_osg__Node__ComputeBoundingSphereCallback _p_osg__NotifyHandler _p_osg__Object _p_osg__Observer
    _p_osg__ObserverSet _p_osg__Plane _p_osg__PositionAttitudeTransform _p_osg__PrimitiveSet _p_osg__Quat
    _p_osg__RefMatrixd _p_osg__RefMatrixf _p_osg__Referenced _p_osg__RenderInfo _p_osg__Shape
    _p_osg__StandardNotifyHandler _p_osg__State _p_osg__StateAttribute _p_osg__StateAttributeCallback
    _p_osg__StateAttribute__ModeUsage _p_osg__StateSet _p_osg__StateSet__Callback _p_osg__Stats _p_osg__Switch
    _p_osg__Texture _p_osg__Texture2D _p_osg__Texture2D__SubloadCallback _p_osg__Transform _p_osg__Uniform
    _p_osg__UniformCallback _p_osg__Uniform__Type _p_osg__UserDataContainer _p_osg__ValueObject _p_osg__Vec2d
    _p_osg__Vec2f _p_osg__Vec3d _p_osg__Vec3f _p_osg__Vec4d _p_osg__Vec4f _p_osg__View _p_osg__Viewport
    _p_other_value_type _p_std__mapT_GLenum_unsigned_int_t
    _p_std__mapT_osg__Camera__BufferComponent_osg__Camera__Attachment_t
    _p_std__mapT_std__pairT_osg__StateAttribute__Type_unsigned_int_t_std__pairT_ref_ptrT_osg__StateAttribute_t_unsigned_int_t_t
    _p_std__mapT_std__string_std__pairT_ref_ptrT_osg__Uniform_t_unsigned_int_t_t
    _p_std__mapT_std__string_std__pairT_std__string_unsigned_int_t_t _p_std__ostream
    _p_std__pairT_osg__StateAttribute__Type_unsigned_int_t _p_std__pairT_ref_ptrT_osg__StateAttribute_t_unsigned_int_t
    _p_std__pairT_ref_ptrT_osg__Uniform_t_unsigned_int_t _p_std__pairT_std__string_unsigned_int_t _p_std__string
    _p_std__vectorT_bool_t _p_std__vectorT_osg__Group_p_t _p_std__vectorT_osg__Matrixd_t
    _p_std__vectorT_osg__Node_p_t _p_std__vectorT_osg__StateSet_p_t _p_std__vectorT_osg__Vec3d_t
    _p_std__vectorT_osg__Vec3f_t _p_std__vectorT_ref_ptrT_osg__ClipPlane_t_t _p_std__vectorT_ref_ptrT_osg__Node_t_t
    _p_std__vectorT_std__mapT_GLenum_unsigned_int_t_t
    _p_std__vectorT_std__mapT_std__pairT_osg__StateAttribute__Type_unsigned_int_t_std__pairT_ref_ptrT_osg__StateAttribute_t_unsigned_int_t_t_t
    _p_std__vectorT_std__string_t _p_std__vectorT_std__vectorT_osg__Node_p_t_t _p_unsigned_int _p_value_type""".split()

ATTR_MAP = "std::map< std::pair< enum osg::StateAttribute::Type,unsigned int >,std::pair< ref_ptr< osg::StateAttribute >,unsigned int > >"
SPELLINGS = {  # descriptors whose str joins several spellings, and the irregular single ones
    "_p_GLenum": "osg::StateAttribute::GLMode *|GLenum *",
    "_p_double": "|".join(f"osg::{c}::value_type *" for c in "Matrixd Plane Quat Vec2d Vec3d Vec4d Viewport".split()) + "|double *",
    "_p_float": "|".join(f"osg::{c}::value_type *" for c in "Matrixf Vec2f Vec3f Vec4f".split()) + "|float *",
    "_p_osg__BoundingBoxImplT_osg__Vec3d_t": "osg::BoundingBox *|osg::BoundingBoxd *|osg::BoundingBoxImpl< osg::Vec3d > *",
    "_p_osg__BoundingBoxImplT_osg__Vec3f_t": "osg::BoundingBoxf *|osg::BoundingBoxImpl< osg::Vec3f > *",
    "_p_osg__BoundingSphereImplT_osg__Vec3d_t": "osg::BoundingSphere *|osg::BoundingSphered *|osg::BoundingSphereImpl< osg::Vec3d > *",
    "_p_osg__BoundingSphereImplT_osg__Vec3f_t": "osg::BoundingSpheref *|osg::BoundingSphereImpl< osg::Vec3f > *",
    "_p_osg__Matrixd": "osg::Matrix *|osg::Matrixd *",
    "_p_osg__RefMatrixd": "osg::RefMatrix *|osg::RefMatrixd *",
    "_p_osg__Vec2f": "osg::Vec2 *|osg::Vec2f *",
    "_p_osg__Vec3d": "osg::Plane::Vec3_type *|osg::Vec3d *",
    "_p_osg__Vec3f": "osg::Vec3 *|osg::Vec3f *",
    "_p_osg__Vec4d": "osg::Plane::Vec4_type *|osg::Vec4d *",
    "_p_osg__Vec4f": "osg::Vec4 *|osg::Vec4f *",
    "_p_std__mapT_GLenum_unsigned_int_t": "osg::StateSet::ModeList *|std::map< GLenum,unsigned int > *",
    "_p_std__mapT_osg__Camera__BufferComponent_osg__Camera__Attachment_t": "osg::Camera::BufferAttachmentMap *|std::map< enum osg::Camera::BufferComponent,osg::Camera::Attachment > *",
    "_p_std__mapT_std__pairT_osg__StateAttribute__Type_unsigned_int_t_std__pairT_ref_ptrT_osg__StateAttribute_t_unsigned_int_t_t": f"osg::StateSet::AttributeList *|{ATTR_MAP} *",
    "_p_std__mapT_std__string_std__pairT_ref_ptrT_osg__Uniform_t_unsigned_int_t_t": "osg::StateSet::UniformList *|std::map< std::string,std::pair< ref_ptr< osg::Uniform >,unsigned int > > *",
    "_p_std__mapT_std__string_std__pairT_std__string_unsigned_int_t_t": "osg::StateSet::DefineList *|std::map< std::string,std::pair< std::string,unsigned int > > *",
    "_p_std__pairT_osg__StateAttribute__Type_unsigned_int_t": "osg::StateAttribute::TypeMemberPair *|std::pair< enum osg::StateAttribute::Type,unsigned int > *",
    "_p_std__pairT_ref_ptrT_osg__StateAttribute_t_unsigned_int_t": "osg::StateSet::RefAttributePair *|std::pair< ref_ptr< osg::StateAttribute >,unsigned int > *",
    "_p_std__pairT_ref_ptrT_osg__Uniform_t_unsigned_int_t": "osg::StateSet::RefUniformPair *|std::pair< ref_ptr< osg::Uniform >,unsigned int > *",
    "_p_std__pairT_std__string_unsigned_int_t": "osg::StateSet::DefinePair *|std::pair< std::string,unsigned int > *",
    "_p_std__vectorT_bool_t": "osg::Switch::ValueList *|std::vector< bool > *",
    "_p_std__vectorT_osg__Group_p_t": "osg::Node::ParentList *|std::vector< osg::Group * > *",
    "_p_std__vectorT_osg__Matrixd_t": "osg::MatrixList *|std::vector< osg::Matrixd > *",
    "_p_std__vectorT_osg__Node_p_t": "osg::NodePath *|osg::StateSet::ParentList *|std::vector< osg::Node * > *",
    "_p_std__vectorT_osg__StateSet_p_t": "osg::StateAttribute::ParentList *|std::vector< osg::StateSet * > *",
    "_p_std__vectorT_ref_ptrT_osg__ClipPlane_t_t": "osg::ClipNode::ClipPlaneList *|std::vector< ref_ptr< osg::ClipPlane > > *",
    "_p_std__vectorT_ref_ptrT_osg__Node_t_t": "osg::NodeList *|std::vector< ref_ptr< osg::Node > > *",
    "_p_std__vectorT_std__mapT_GLenum_unsigned_int_t_t": "osg::StateSet::TextureModeList *|std::vector< std::map< GLenum,unsigned int > > *",
    "_p_std__vectorT_std__mapT_std__pairT_osg__StateAttribute__Type_unsigned_int_t_std__pairT_ref_ptrT_osg__StateAttribute_t_unsigned_int_t_t_t": f"osg::StateSet::TextureAttributeList *|std::vector< {ATTR_MAP} > *",
    "_p_std__vectorT_std__string_t": "osg::Node::DescriptionList *|std::vector< std::string > *",
    "_p_std__vectorT_std__vectorT_osg__Node_p_t_t": "osg::NodePathList *|std::vector< std::vector< osg::Node * > > *",
    # Single spellings that are not the mangled name with "::" for "__" (Plane's intersect overloads).
    "_p_std__vectorT_osg__Vec3d_t": "std::vector< osg::Vec3d > *",
    "_p_std__vectorT_osg__Vec3f_t": "std::vector< osg::Vec3f > *",
    "_p_unsigned_int": "unsigned int *",
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


def test_descriptor_names_in_table_order():
    assert [name for name, _, _ in osg_table()] == NAMES


def test_descriptor_spellings():
    assert len([s for s in SPELLINGS.values() if "|" in s]) == 34
    expected = {name: SPELLINGS.get(name, name[3:].replace("__", "::") + " *") for name in NAMES}
    assert {name: text for name, text, _ in osg_table()} == expected


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


@pytest.mark.parametrize("derived,base", [
    ("Camera", "Node"), ("Camera", "Group"), ("Camera", "Transform"), ("Camera", "Object"), ("Camera", "Referenced"),
    ("Texture2D", "StateAttribute"), ("Texture2D", "Object"), ("Texture2D", "Referenced"),
    ("RefMatrixd", "Referenced"), ("RefMatrixd", "Object"), ("RefMatrixf", "Referenced"), ("Node", "Group")])
def test_types_outside_the_graph_are_refused(derived, base):
    before = peer.cast_list("_p_osg__" + base)
    pointer = peer.new_pointer(0x5000, "_p_osg__" + derived, 0)
    assert peer.convert(pointer, "_p_osg__" + base, 0, True) == (-1, None, False)
    assert peer.cast_list("_p_osg__" + base) == before


@pytest.mark.parametrize("which", ["d", "f"])
def test_ref_matrix_converts_to_its_matrix_part(which):
    offset = peer.matrix_offsets()["df".index(which)]
    assert offset > 0
    pointer = peer.new_pointer(0x10000, f"_p_osg__RefMatrix{which}", 0)
    assert peer.convert(pointer, f"_p_osg__Matrix{which}", 0, True) == (0, 0x10000 + offset, False)


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
