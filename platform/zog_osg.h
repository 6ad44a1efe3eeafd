// The physics SDK's scene-graph support entry points that the bindings call.
#pragma once
#include <osg/Group>

namespace osg {
void Group_reference(osg::Group *group);
void Group_unreference(osg::Group *group);
}  // namespace osg
