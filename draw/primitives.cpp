// osg::PrimitiveSet, DrawArrays and DrawElementsUInt, with the primitive modes.
#include "draw/bind.h"

using namespace wrap;

void add_primitive_rows(Table &, Constants &) {}
