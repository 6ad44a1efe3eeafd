// osg::Material, osg::Light and osg::LightSource.
#include "draw/bind.h"

using namespace wrap;

void add_lighting_rows(Table &, Constants &) {}
