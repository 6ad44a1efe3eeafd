// _nbpeer: the calls bench/run.py times, bound with nanobind, the peer binding library whose
// per-call cost the benchmark compares with _osg's. Only the benchmark builds it.
#include <nanobind/nanobind.h>
#include <nanobind/operators.h>

#include <osg/CopyOp>
#include <osg/MatrixTransform>
#include <osg/Matrixd>
#include <osg/Matrixf>
#include <osg/Quat>
#include <osg/Vec2f>
#include <osg/Vec3d>
#include <osg/Vec3f>
#include <osg/Vec4d>
#include <osg/Vec4f>

namespace nb = nanobind;
using namespace osg;

namespace {

template <class V, class... Scalars>
nb::class_<V> vector_class(nb::module_ &m, const char *name) {
    return nb::class_<V>(m, name).def(nb::init<Scalars...>()).def("length", &V::length);
}

// A transform node as a package holds one: OSG's destructor is protected, so through a reference.
struct Holder {
    osg::ref_ptr<osg::MatrixTransform> node = new osg::MatrixTransform;
};

// Sixteen products, as _osg's free __mul__ lists them.
template <class A, class B>
void product(nb::module_ &m) {
    m.def("mul", [](const A &a, const B &b) { return a * b; });
}

}  // namespace

NB_MODULE(_nbpeer, m) {
    vector_class<Vec2f, float, float>(m, "Vec2f");
    vector_class<Vec3f, float, float, float>(m, "Vec3f").def("__add__", [](const Vec3f &a, const Vec3f &b) { return a + b; });
    vector_class<Vec4f, float, float, float, float>(m, "Vec4f");
    vector_class<Vec3d, double, double, double>(m, "Vec3d");
    vector_class<Vec4d, double, double, double, double>(m, "Vec4d");
    nb::class_<Quat>(m, "Quat").def(nb::init<>());
    // The package's classes: methods and operators as the osg package has them; __mul__ with
    // Matrixd___mul__'s five candidates in its order, makeTranslate with its three.
    using T = Matrixd::value_type;
    nb::class_<Matrixd>(m, "Matrixd")
        .def(nb::init<>())
        .def("getTrans", &Matrixd::getTrans)
        .def("__mul__", [](const Matrixd &a, const Vec3f &v) { return a * v; })
        .def("__mul__", [](const Matrixd &a, const Vec3d &v) { return a * v; })
        .def("__mul__", [](const Matrixd &a, const Vec4f &v) { return a * v; })
        .def("__mul__", [](const Matrixd &a, const Vec4d &v) { return a * v; })
        .def("__mul__", [](const Matrixd &a, const Matrixd &b) { return a * b; })
        .def("makeTranslate", [](Matrixd &a, const Vec3f &v) { a.makeTranslate(v); })
        .def("makeTranslate", [](Matrixd &a, const Vec3d &v) { a.makeTranslate(v); })
        .def("makeTranslate", [](Matrixd &a, T x, T y, T z) { a.makeTranslate(x, y, z); });
    nb::class_<Holder>(m, "MatrixTransform")
        .def(nb::init<>())
        .def("setMatrix", [](Holder &t, const Matrixd &a) { t.node->setMatrix(a); })
        .def("getMatrix", [](const Holder &t) { return t.node->getMatrix(); });
    nb::class_<Matrixf>(m, "Matrixf").def(nb::init<>());

    m.def("vec3f_length", [](const Vec3f &v) { return v.length(); });
    m.def("vec3f_add", [](const Vec3f &a, const Vec3f &b) { return a + b; });
    m.def("matrixd_get_trans", [](const Matrixd &a) { return a.getTrans(); });
    // Two candidates, the first taken: the dot product, then the scalar product.
    m.def("vec3f_mul", [](const Vec3f &a, const Vec3f &b) { return a * b; });
    m.def("vec3f_mul", [](const Vec3f &a, float b) { return a * b; });
    // Eight candidates in _osg's order; (angle, Vec3d) is the fourth.
    m.def("matrixd_make_rotate", [](Matrixd &s, const Vec3f &a, const Vec3f &b) { s.makeRotate(a, b); });
    m.def("matrixd_make_rotate", [](Matrixd &s, const Vec3d &a, const Vec3d &b) { s.makeRotate(a, b); });
    m.def("matrixd_make_rotate", [](Matrixd &s, T a, const Vec3f &v) { s.makeRotate(a, v); });
    m.def("matrixd_make_rotate", [](Matrixd &s, T a, const Vec3d &v) { s.makeRotate(a, v); });
    m.def("matrixd_make_rotate", [](Matrixd &s, T a, T x, T y, T z) { s.makeRotate(a, x, y, z); });
    m.def("matrixd_make_rotate", [](Matrixd &s, const Quat &q) { s.makeRotate(q); });
    m.def("matrixd_make_rotate", [](Matrixd &s, T a, const Vec3f &x, T b, const Vec3f &y, T c, const Vec3f &z) {
        s.makeRotate(a, x, b, y, c, z);
    });
    m.def("matrixd_make_rotate", [](Matrixd &s, T a, const Vec3d &x, T b, const Vec3d &y, T c, const Vec3d &z) {
        s.makeRotate(a, x, b, y, c, z);
    });
    product<Vec3f, Vec4f>(m);
    product<Vec4f, Vec3f>(m);
    product<Vec3d, Vec4d>(m);
    product<Vec3f, Vec4d>(m);
    product<Vec3d, Vec4f>(m);
    product<Vec4d, Vec3d>(m);
    product<Vec4d, Vec3f>(m);
    product<Vec4f, Vec3d>(m);
    product<Vec3f, Matrixd>(m);
    product<Vec3d, Matrixd>(m);
    product<Vec4f, Matrixd>(m);
    product<Vec4d, Matrixd>(m);
    product<Vec3f, Matrixf>(m);
    product<Vec3d, Matrixf>(m);
    product<Vec4f, Matrixf>(m);
    product<Vec4d, Matrixf>(m);
}
