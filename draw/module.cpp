// The entry PyInit__osgdraw, on the same runtime and engine as _osg.
#include "draw/bind.h"

#include "docs.inc"
#include "wrap/sibling.h"

WRAP_SIBLING(_osgdraw, draw::Types,
             "OpenSceneGraph's geometry, arrays, primitive sets, shapes, materials, lights and images.",
             add_array_rows, add_primitive_rows, add_geometry_rows, add_shape_rows, add_lighting_rows, add_image_rows,
             add_view_rows)
