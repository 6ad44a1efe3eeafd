// osgUtil::SmoothingVisitor: vertex normals for geometries, sharp above a crease angle.
#include "wrap/osg.h"

using namespace wrap;

namespace {

using V = osgUtil::SmoothingVisitor;
using K = Class<V, "osgUtil::SmoothingVisitor", "SmoothingVisitor">;
constexpr Text smooth = "osgUtil::SmoothingVisitor::smooth";

}  // namespace

void add_smoothing_visitor_rows(Table &t) {
    add(t, {
        K::ctor<TakeRef::None, K::with<>::c<>>(),
        K::dtor_delete(),
        // A static member: no visitor argument. The short form smooths every edge (angle pi).
        overload<"SmoothingVisitor_smooth", fc<smooth, &V::smooth, "osg::Geometry &", "double">,
                 fc<smooth, [](osg::Geometry &g) { V::smooth(g); }, "osg::Geometry &">>(),
        K::fn<"apply", pick<void (V::*)(osg::Geometry &)>(&V::apply), "osg::Geometry &">(),
        K::fn<"setCreaseAngle", &V::setCreaseAngle, "double">(),
        K::fn<"getCreaseAngle", &V::getCreaseAngle>(),
        register_row<ty::p_osgUtil__SmoothingVisitor>("SmoothingVisitor_swigregister"),
        init_row("SmoothingVisitor_swiginit"),
    });
}
