// Matrixf, from the matrix table template.
#include "math/matrices.h"

using namespace math_rows;

void add_float_matrix_rows(Table &t) {
    add_matrix<osg::Matrixf, osg::Matrixd, "osg::Matrixf", "Matrixf", "osg::Matrixd">(t);
}
