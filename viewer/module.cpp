// The entry PyInit__osgViewer, on the same runtime and engine as _osg.
#include "viewer/bind.h"

#include "docs.inc"
#include "wrap/sibling.h"

WRAP_SIBLING(_osgViewer, viewer::Types, "OpenSceneGraph's viewer, its camera manipulators, and offscreen pictures.",
             add_viewer_rows, add_manipulator_rows, add_offscreen_rows)
