// osg::ClipNode: a group that owns clip planes and enables them for its subgraph.
#include "scene/node_class.h"

using namespace wrap;

namespace {

using C = osg::ClipNode;
using K = scene::NodeClass<C, "osg::ClipNode", "ClipNode">;
using Planes = C::ClipPlaneList;
using Mode = osg::StateAttribute::GLModeValue;
constexpr Text box = "osg::BoundingBox const &";
constexpr Text mode = "osg::StateAttribute::GLModeValue";

}  // namespace

void add_clip_node_rows(Table &t) {
    t.push_back(K::ctor<TakeRef::Group>());
    K::meta(t);
    add(t, {
        K::fn<"setReferenceFrame", &C::setReferenceFrame, "osg::ClipNode::ReferenceFrame">(),
        K::fn<"getReferenceFrame", &C::getReferenceFrame>(),
        K::overload<"createClipBox", K::m<"createClipBox", &C::createClipBox, box, "unsigned int">,
                    K::m<"createClipBox", [](C *self, const osg::BoundingBox &bb) { self->createClipBox(bb); }, box>>(),
        K::fn<"addClipPlane", &C::addClipPlane, "osg::ClipPlane *">(),
        K::overload<"removeClipPlane", K::m<"removeClipPlane", pick<bool (C::*)(osg::ClipPlane *)>(&C::removeClipPlane),
                                            "osg::ClipPlane *">,
                    K::m<"removeClipPlane", pick<bool (C::*)(unsigned int)>(&C::removeClipPlane), "unsigned int">>(),
        K::fn<"getNumClipPlanes", &C::getNumClipPlanes>(),
        K::overload<"getClipPlane", K::m<"getClipPlane", pick<osg::ClipPlane *(C::*)(unsigned int)>(&C::getClipPlane),
                                         "unsigned int">,
                    K::m<"getClipPlane", pick<const osg::ClipPlane *(C::*)(unsigned int) const>(&C::getClipPlane),
                         "unsigned int">>(),
        K::fn<"setClipPlaneList", &C::setClipPlaneList, "osg::ClipNode::ClipPlaneList const &">(),
        K::pair<"getClipPlaneList", pick<Planes &(C::*)()>(&C::getClipPlaneList),
                pick<const Planes &(C::*)() const>(&C::getClipPlaneList)>(),
        K::fn<"setStateSetModes", &C::setStateSetModes, "osg::StateSet &", mode>(),
        K::overload<"setLocalStateSetModes", K::m<"setLocalStateSetModes", &C::setLocalStateSetModes, mode>,
                    K::m<"setLocalStateSetModes", [](C *self) { self->setLocalStateSetModes(); }>>(),
    });
    K::hooks(t);
}
