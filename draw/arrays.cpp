// osg::Array and the vertex arrays Vec2Array, Vec3Array and Vec4Array.
#include "draw/bind.h"

using namespace wrap;

void add_array_rows(Table &, Constants &) {}
