// OpenSceneGraph's free products over the value types: the vector-on-the-left side of
// matrix products, mixed 3-/4-vector dot products, and element-wise products.
#include "wrap/osg.h"

using namespace wrap;

namespace {

template <class A, class B, Text SA, Text SB>
using product = fc<"osg::operator *", [](const A &a, const B &b) { return a * b; }, SA, SB>;

constexpr Text v3f = "osg::Vec3f const &";
constexpr Text v3d = "osg::Vec3d const &";
constexpr Text v4f = "osg::Vec4f const &";
constexpr Text v4d = "osg::Vec4d const &";
constexpr Text md = "osg::Matrixd const &";
constexpr Text mf = "osg::Matrixf const &";

// componentMultiply or componentDivide over the six vector classes, in their order.
template <Text Name, template <class> class F>
constexpr Row component() {
    constexpr auto q = cat(Text("osg::"), Name);
    return overload<Name, fc<q, F<osg::Vec2f>::f, "osg::Vec2f const &", "osg::Vec2f const &">,
                    fc<q, F<osg::Vec3f>::f, v3f, v3f>, fc<q, F<osg::Vec4f>::f, v4f, v4f>,
                    fc<q, F<osg::Vec2d>::f, "osg::Vec2d const &", "osg::Vec2d const &">,
                    fc<q, F<osg::Vec3d>::f, v3d, v3d>, fc<q, F<osg::Vec4d>::f, v4d, v4d>>();
}
template <class V>
struct Multiply {
    static constexpr auto f = pick<V (*)(const V &, const V &)>(&osg::componentMultiply);
};
template <class V>
struct Divide {
    static constexpr auto f = pick<V (*)(const V &, const V &)>(&osg::componentDivide);
};

}  // namespace

void add_operator_rows(Table &t) {
    using namespace osg;
    add(t, {
        // Each pair of classes matches at most one candidate; the order decides which
        // conversion error a matched candidate reports.
        overload_op<"__mul__", product<Vec3f, Vec4f, v3f, v4f>, product<Vec4f, Vec3f, v4f, v3f>,
                    product<Vec3d, Vec4d, v3d, v4d>, product<Vec3f, Vec4d, v3f, v4d>, product<Vec3d, Vec4f, v3d, v4f>,
                    product<Vec4d, Vec3d, v4d, v3d>, product<Vec4d, Vec3f, v4d, v3f>, product<Vec4f, Vec3d, v4f, v3d>,
                    product<Vec3f, Matrixd, v3f, md>, product<Vec3d, Matrixd, v3d, md>, product<Vec4f, Matrixd, v4f, md>,
                    product<Vec4d, Matrixd, v4d, md>, product<Vec3f, Matrixf, v3f, mf>, product<Vec3d, Matrixf, v3d, mf>,
                    product<Vec4f, Matrixf, v4f, mf>, product<Vec4d, Matrixf, v4d, mf>>(),
        component<"componentMultiply", Multiply>(),
        component<"componentDivide", Divide>(),
    });
}
