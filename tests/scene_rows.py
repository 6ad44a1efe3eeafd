"""Every flat function of the scene-graph classes, written from OpenSceneGraph's headers, in
the shape and with the argument codes of engine_rows (R: a render info, which nothing makes)."""
from engine_rows import Disp, Row, free, m, pair, protos

NODES = ["Node", "Group", "Geode", "Switch", "Transform", "MatrixTransform", "PositionAttitudeTransform",
         "AutoTransform", "ClipNode"]
FOLDS = ["computeLocalToWorld", "computeWorldToLocal", "computeLocalToEye", "computeEyeToLocal"]


def d(cls, member, *shapes, const=False, goods=(), owner=None):
    return Disp(f"{cls}_{member}", cls, protos(owner or f"osg::{cls}", member, *shapes, const=const), list(goods), False)


def both(cls, member, args, first_const, goods):
    """An accessor pair taking args, in the order the dispatcher lists them."""
    o = f"osg::{cls}::{member}({','.join(args)})"
    return Disp(f"{cls}_{member}", cls, [o + " const", o] if first_const else [o, o + " const"], goods, False)


def common(cls, accept=True):
    """The constructors and META_Node rows every node class repeats."""
    rows = [Disp(f"new_{cls}", cls, protos(f"osg::{cls}", cls, [], [f"osg::{cls} const &", "osg::CopyOp const &"],
                                           [f"osg::{cls} const &"]), ["", "vc", "v"], False),
            m(cls, "cloneType", "s", True), m(cls, "clone", "sc", True), m(cls, "isSameKindAs", "so", True),
            m(cls, "className", "s", True), m(cls, "libraryName", "s", True)]
    return rows + ([m(cls, "accept", "SV")] if accept else [])


def matrices(cls):
    return [m(cls, "computeLocalToWorldMatrix", "sMn", True), m(cls, "computeWorldToLocalMatrix", "sMn", True)]


def node():
    rows = common("Node") + [m("Node", "ascend", "SV"), m("Node", "traverse", "SV"), m("Node", "getNumParents", "s", True),
                             both("Node", "getParents", [], True, ["s"]), both("Node", "getParent", ["unsigned int"], False, []),
                             d("Node", "getParentalNodePaths", ["osg::Node *"], [], const=True, goods=["sn", "s"]),
                             d("Node", "getWorldMatrices", ["osg::Node const *"], [], const=True, goods=["sn", "s"]),
                             both("Node", "getDescription", ["unsigned int"], True, []),
                             d("Node", "releaseGLObjects", ["osg::State *"], [], const=True, goods=["sn", "s"])]
    rows += [pair("Node", f"as{k}") for k in ["Node", "Drawable", "Geometry", "Group", "Transform", "Switch", "Geode",
                                               "Terrain"]]
    rows += [pair("Node", f"get{k}") for k in ["UpdateCallback", "EventCallback", "CullCallback", "StateSet",
                                                "Descriptions", "ComputeBoundingSphereCallback"]]
    for kind in ["Update", "Event", "Cull"]:
        rows += [m("Node", f"{op}{kind}Callback", "Sn") for op in ["set", "add", "remove"]]
    rows += [m("Node", f"getNumChildrenRequiring{k}Traversal", "s", True) for k in ["Update", "Event"]]
    rows += [m("Node", f, "s", True) for f in ["getCullingActive", "getNumChildrenWithCullingDisabled", "isCullingActive",
                                                "getNumChildrenWithOccluderNodes", "containsOccluderNodes", "getNodeMask",
                                                "getNumDescriptions", "getInitialBound", "getBound"]]
    return rows + [m("Node", f, c) for f, c in [
        ("setCullingActive", "Sb"), ("setNodeMask", "Si"), ("setStateSet", "Sn"), ("getOrCreateStateSet", "S"),
        ("setDescriptions", "S1"), ("addDescription", "Sz"), ("setInitialBound", "SB"), ("dirtyBound", "S"),
        ("setComputeBoundingSphereCallback", "Sn"), ("setThreadSafeRefUnref", "Sb"), ("resizeGLObjectBuffers", "Si")]]


def groups():
    G, D, S = "Group", "Geode", "Switch"
    rows = common(G) + common(D) + common(S) + [
        free("delete_Group", "D", "osg::Group *", G), pair(G, "asGroup"), pair(D, "asGeode"), pair(S, "asSwitch"),
        d(G, "removeChild", ["osg::Node *"], ["unsigned int", "unsigned int"], ["unsigned int"], goods=["Sn", "Sii"]),
        both(G, "getChild", ["unsigned int"], False, []),
        d(G, "releaseGLObjects", ["osg::State *"], [], const=True, goods=["Sn", "S"]),
        d(D, "removeDrawables", ["unsigned int", "unsigned int"], ["unsigned int"], goods=["Sii"]),
        both(D, "getDrawable", ["unsigned int"], False, []),
        d(S, "addChild", ["osg::Node *"], ["osg::Node *", "bool"], goods=["Sn", "Snb"]),
        d(S, "insertChild", ["unsigned int", "osg::Node *"], ["unsigned int", "osg::Node *", "bool"], goods=[])]
    rows += [m(G, f, c) for f, c in [("traverse", "SV"), ("addChild", "Sn"), ("insertChild", "Sin"), ("removeChildren", "Sii"),
                                     ("replaceChild", "Snn"), ("setChild", "Sin"), ("setThreadSafeRefUnref", "Sb"),
                                     ("resizeGLObjectBuffers", "Si")]]
    rows += [m(G, f, c, True) for f, c in [("getNumChildren", "s"), ("containsNode", "sn"), ("getChildIndex", "sn")]]
    rows += [m(D, f, c) for f, c in [("addDrawable", "Sn"), ("removeDrawable", "Sn"), ("replaceDrawable", "Snn"),
                                     ("setDrawable", "Sin"), ("compileDrawables", "SR")]]
    rows += [m(D, f, c, True) for f, c in [("getNumDrawables", "s"), ("containsDrawable", "sn"), ("getDrawableIndex", "sn"),
                                           ("getBoundingBox", "s")]]
    rows += [m(S, f, c) for f, c in [("traverse", "SV"), ("setNewChildDefaultValue", "Sb"), ("removeChildren", "Sii"),
                                     ("setValue", "Sib"), ("setChildValue", "Snb"), ("setAllChildrenOff", "S"),
                                     ("setAllChildrenOn", "S"), ("setSingleChildOn", "Si"), ("setValueList", "SW")]]
    return rows + [m(S, f, c, True) for f, c in [("getNewChildDefaultValue", "s"), ("getValue", "si"),
                                                 ("getChildValue", "sn"), ("getValueList", "s")]]


def transforms():
    T, MT, P, A = "Transform", "MatrixTransform", "PositionAttitudeTransform", "AutoTransform"
    rows = [r for c in [T, MT, P] for r in common(c) + matrices(c) + [pair(c, f"as{c}")]]
    rows += common(A, accept=False) + matrices(A) + [pair(A, f"as{A}")]
    rows[rows.index(next(r for r in rows if r.name == "new_MatrixTransform"))] = Disp(
        "new_MatrixTransform", MT, protos(f"osg::{MT}", MT, [], [f"osg::{MT} const &", "osg::CopyOp const &"],
                                          [f"osg::{MT} const &"], ["osg::Matrix const &"]), ["", "vc", "v", "M"], False)
    rows += [m(T, f"as{k}", "S") for k in [MT, P, A]] + [m(T, "setReferenceFrame", "Si"), m(T, "getReferenceFrame", "s", True)]
    rows += [m(MT, f, "SM") for f in ["setMatrix", "preMult", "postMult"]]
    rows += [m(MT, f, "s", True) for f in ["getMatrix", "getInverseMatrix"]]
    for cls, fields in [(P, {"Position": "G", "Attitude": "Q", "Scale": "G", "PivotPoint": "G"}),
                        (A, {"Position": "G", "Rotation": "Q", "MinimumScale": "x", "MaximumScale": "x", "PivotPoint": "G",
                             "AutoUpdateEyeMovementTolerance": "x", "AutoRotateMode": "i", "Axis": "F", "Normal": "F",
                             "AutoScaleToScreen": "b", "AutoScaleTransitionWidthRatio": "x"})]:
        rows += [r for k, c in fields.items() for r in (m(cls, f"set{k}", "S" + c), m(cls, f"get{k}", "s", True))]
    rows += [d(A, "setScale", ["double"], ["osg::Vec3d const &"], goods=["Sx", "SG"]), m(A, "getScale", "s", True)]
    for f in FOLDS:
        eye = ["osg::Matrix const &"] if "Eye" in f else []
        rows.append(Disp(f, None, protos("osg", f, eye + ["osg::NodePath const &", "bool"], eye + ["osg::NodePath const &"]),
                         ["M" * bool(eye) + "Pb", "M" * bool(eye) + "P"], False))
    return rows


def clip_and_smooth():
    C, V = "ClipNode", "SmoothingVisitor"
    rows = common(C) + [
        d(C, "createClipBox", ["osg::BoundingBox const &", "unsigned int"], ["osg::BoundingBox const &"], goods=["SXi", "SX"]),
        d(C, "removeClipPlane", ["osg::ClipPlane *"], ["unsigned int"], goods=["Sn"]),
        both(C, "getClipPlane", ["unsigned int"], False, []), pair(C, "getClipPlaneList"),
        d(C, "setLocalStateSetModes", ["osg::StateAttribute::GLModeValue"], [], goods=["Si", "S"]),
        m(C, "setReferenceFrame", "Si"), m(C, "getReferenceFrame", "s", True), m(C, "addClipPlane", "S9"),
        m(C, "getNumClipPlanes", "s", True), m(C, "setClipPlaneList", "S0"), m(C, "setStateSetModes", "s8i", True),
        free("new_SmoothingVisitor", "", cls=V), free("delete_SmoothingVisitor", "D", "osgUtil::SmoothingVisitor *", V),
        Disp("SmoothingVisitor_smooth", None, protos("osgUtil::SmoothingVisitor", "smooth", ["osg::Geometry &", "double"],
                                                  ["osg::Geometry &"]), ["7x", "7"], False)]
    return rows + [Row(f"{V}_{f}", V, c, f"osgUtil::SmoothingVisitor{k} *", False)
                   for f, c, k in [("apply", "S7", ""), ("setCreaseAngle", "Sx", ""), ("getCreaseAngle", "s", " const")]]


SCENE = node() + groups() + transforms() + clip_and_smooth()
