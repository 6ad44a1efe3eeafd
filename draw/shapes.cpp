// osg::Shape and its shapes, osg::TessellationHints and osg::ShapeDrawable.
#include "draw/bind.h"

using namespace wrap;

void add_shape_rows(Table &, Constants &) {}
