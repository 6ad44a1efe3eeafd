// osg::Drawable and osg::Geometry: a drawable made of arrays and primitive sets.
#include "draw/bind.h"

using namespace wrap;

void add_geometry_rows(Table &, Constants &) {}
