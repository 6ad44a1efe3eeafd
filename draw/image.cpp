// osg::Image.
#include "draw/bind.h"

using namespace wrap;

void add_image_rows(Table &, Constants &) {}
