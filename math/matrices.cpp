// Matrixd and the reference-counted matrices; Matrixf is instantiated in matrixf.cpp.
#include "math/matrices.h"

using namespace math_rows;

void add_matrix_rows(Table &t) {
    add_matrix<osg::Matrixd, osg::Matrixf, "osg::Matrixd", "Matrixd", "osg::Matrixf">(t);
    add_float_matrix_rows(t);
    add_ref_matrix<osg::RefMatrixd, osg::Matrixd, osg::Matrixf, "osg::RefMatrixd", "RefMatrixd", "osg::Matrixd",
                   "osg::Matrixf">(t);
    add_ref_matrix<osg::RefMatrixf, osg::Matrixf, osg::Matrixd, "osg::RefMatrixf", "RefMatrixf", "osg::Matrixf",
                   "osg::Matrixd">(t);
}
