// osg::Node, the base of every scene-graph node.
#include "scene/node_class.h"

using namespace wrap;

namespace {

using N = osg::Node;
using K = scene::NodeClass<N, "osg::Node", "Node">;

// Member pointers of a non-const/const accessor pair returning T, optionally taking A.
template <class T, class... A>
using NC = T *(N::*)(A...);
template <class T, class... A>
using CC = const T *(N::*)(A...) const;
using Cb = void (N::*)(osg::Callback *);
using Descriptions = N::DescriptionList;

}  // namespace

void add_node_rows(Table &t) {
    t.push_back(K::ctor<TakeRef::Count>());
    add(t, {
        K::fn<"cloneType", &N::cloneType>(),
        K::fn<"clone", &N::clone, "osg::CopyOp const &">(),
        K::fn<"isSameKindAs", &N::isSameKindAs, "osg::Object const *">(),
        K::fn<"libraryName", &N::libraryName>(),
        K::fn<"className", &N::className>(),
        K::pair<"asNode", NC<N>(&N::asNode), CC<N>(&N::asNode)>(),
        K::pair<"asDrawable", NC<osg::Drawable>(&N::asDrawable), CC<osg::Drawable>(&N::asDrawable)>(),
        K::pair<"asGeometry", NC<osg::Geometry>(&N::asGeometry), CC<osg::Geometry>(&N::asGeometry)>(),
        K::pair<"asGroup", NC<osg::Group>(&N::asGroup), CC<osg::Group>(&N::asGroup)>(),
        K::pair<"asTransform", NC<osg::Transform>(&N::asTransform), CC<osg::Transform>(&N::asTransform)>(),
        K::pair<"asSwitch", NC<osg::Switch>(&N::asSwitch), CC<osg::Switch>(&N::asSwitch)>(),
        K::pair<"asGeode", NC<osg::Geode>(&N::asGeode), CC<osg::Geode>(&N::asGeode)>(),
        K::pair<"asTerrain", NC<osgTerrain::Terrain>(&N::asTerrain), CC<osgTerrain::Terrain>(&N::asTerrain)>(),
        K::fn<"accept", &N::accept, "osg::NodeVisitor &">(),
        K::fn<"ascend", &N::ascend, "osg::NodeVisitor &">(),
        K::fn<"traverse", &N::traverse, "osg::NodeVisitor &">(),
        // The const member is tried first and accepts every node: the result is never a copy.
        K::overload<"getParents", K::m<"getParents", pick<const N::ParentList &(N::*)() const>(&N::getParents)>,
                    K::m<"getParents", pick<N::ParentList (N::*)()>(&N::getParents)>>(),
        K::overload<"getParent", K::m<"getParent", NC<osg::Group, unsigned int>(&N::getParent), "unsigned int">,
                    K::m<"getParent", CC<osg::Group, unsigned int>(&N::getParent), "unsigned int">>(),
        K::fn<"getNumParents", &N::getNumParents>(),
        K::overload<"getParentalNodePaths", K::m<"getParentalNodePaths", &N::getParentalNodePaths, "osg::Node *">,
                    K::m<"getParentalNodePaths", [](const N *self) { return self->getParentalNodePaths(); }>>(),
        K::overload<"getWorldMatrices", K::m<"getWorldMatrices", &N::getWorldMatrices, "osg::Node const *">,
                    K::m<"getWorldMatrices", [](const N *self) { return self->getWorldMatrices(); }>>(),
        K::fn<"setUpdateCallback", Cb(&N::setUpdateCallback), "osg::Callback *">(),
        K::pair<"getUpdateCallback", NC<osg::Callback>(&N::getUpdateCallback), CC<osg::Callback>(&N::getUpdateCallback)>(),
        K::fn<"addUpdateCallback", Cb(&N::addUpdateCallback), "osg::Callback *">(),
        K::fn<"removeUpdateCallback", Cb(&N::removeUpdateCallback), "osg::Callback *">(),
        K::fn<"getNumChildrenRequiringUpdateTraversal", &N::getNumChildrenRequiringUpdateTraversal>(),
        K::fn<"setEventCallback", Cb(&N::setEventCallback), "osg::Callback *">(),
        K::pair<"getEventCallback", NC<osg::Callback>(&N::getEventCallback), CC<osg::Callback>(&N::getEventCallback)>(),
        K::fn<"addEventCallback", Cb(&N::addEventCallback), "osg::Callback *">(),
        K::fn<"removeEventCallback", Cb(&N::removeEventCallback), "osg::Callback *">(),
        K::fn<"getNumChildrenRequiringEventTraversal", &N::getNumChildrenRequiringEventTraversal>(),
        K::fn<"setCullCallback", Cb(&N::setCullCallback), "osg::Callback *">(),
        K::pair<"getCullCallback", NC<osg::Callback>(&N::getCullCallback), CC<osg::Callback>(&N::getCullCallback)>(),
        K::fn<"addCullCallback", Cb(&N::addCullCallback), "osg::Callback *">(),
        K::fn<"removeCullCallback", Cb(&N::removeCullCallback), "osg::Callback *">(),
        K::fn<"setCullingActive", &N::setCullingActive, "bool">(),
        K::fn<"getCullingActive", &N::getCullingActive>(),
        K::fn<"getNumChildrenWithCullingDisabled", &N::getNumChildrenWithCullingDisabled>(),
        K::fn<"isCullingActive", &N::isCullingActive>(),
        K::fn<"getNumChildrenWithOccluderNodes", &N::getNumChildrenWithOccluderNodes>(),
        K::fn<"containsOccluderNodes", &N::containsOccluderNodes>(),
        K::fn<"setNodeMask", &N::setNodeMask, "osg::Node::NodeMask">(),
        K::fn<"getNodeMask", &N::getNodeMask>(),
        K::fn<"setStateSet", pick<void (N::*)(osg::StateSet *)>(&N::setStateSet), "osg::StateSet *">(),
        K::fn<"getOrCreateStateSet", &N::getOrCreateStateSet>(),
        K::pair<"getStateSet", NC<osg::StateSet>(&N::getStateSet), CC<osg::StateSet>(&N::getStateSet)>(),
        K::fn<"setDescriptions", &N::setDescriptions, "osg::Node::DescriptionList const &">(),
        K::pair<"getDescriptions", pick<Descriptions &(N::*)()>(&N::getDescriptions),
                pick<const Descriptions &(N::*)() const>(&N::getDescriptions)>(),
        K::overload<"getDescription",
                    K::m<"getDescription", pick<const std::string &(N::*)(unsigned int) const>(&N::getDescription), "unsigned int">,
                    K::m<"getDescription", pick<std::string &(N::*)(unsigned int)>(&N::getDescription), "unsigned int">>(),
        K::fn<"getNumDescriptions", &N::getNumDescriptions>(),
        K::fn<"addDescription", &N::addDescription, "std::string const &">(),
        K::fn<"setInitialBound", &N::setInitialBound, "osg::BoundingSphere const &">(),
        K::fn<"getInitialBound", &N::getInitialBound>(),
        K::fn<"dirtyBound", &N::dirtyBound>(),
        K::fn<"getBound", &N::getBound>(),
        K::fn<"setComputeBoundingSphereCallback",
              pick<void (N::*)(N::ComputeBoundingSphereCallback *)>(&N::setComputeBoundingSphereCallback),
              "osg::Node::ComputeBoundingSphereCallback *">(),
        K::pair<"getComputeBoundingSphereCallback", NC<N::ComputeBoundingSphereCallback>(&N::getComputeBoundingSphereCallback),
                CC<N::ComputeBoundingSphereCallback>(&N::getComputeBoundingSphereCallback)>(),
        K::fn<"setThreadSafeRefUnref", &N::setThreadSafeRefUnref, "bool">(),
        K::fn<"resizeGLObjectBuffers", &N::resizeGLObjectBuffers, "unsigned int">(),
        K::release_gl_objects(),
    });
    K::hooks(t);
}
