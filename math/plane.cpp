// osg::Plane: its normal and point arguments are the double vectors, spelled by the
// plane's own typedefs.
#include "wrap/osg.h"

using namespace wrap;

namespace {

using P = osg::Plane;
using K = Class<P, "osg::Plane", "Plane">;
using T = P::value_type;
using V3 = const P::Vec3_type &;
constexpr Text vt = "osg::Plane::value_type";
constexpr Text v3 = "osg::Plane::Vec3_type const &";
constexpr Text pref = "osg::Plane const &";
constexpr Text v4f = "osg::Vec4f const &";
constexpr Text v4d = "osg::Vec4d const &";
constexpr Text matrix = "osg::Matrix const &";
using Ptr = T *(P::*)();
using CPtr = const T *(P::*)() const;

}  // namespace

void add_plane_rows(Table &t) {
    add(t, {
        K::ctor<TakeRef::None, K::with<>::c<>, K::with<const P &>::c<pref>, K::with<T, T, T, T>::c<vt, vt, vt, vt>,
                K::with<const osg::Vec4f &>::c<v4f>, K::with<const osg::Vec4d &>::c<v4d>, K::with<V3, T>::c<v3, vt>,
                K::with<V3, V3, V3>::c<v3, v3, v3>, K::with<V3, V3>::c<v3, v3>>(),
        K::overload<"set", K::m<"set", pick<void (P::*)(const P &)>(&P::set), pref>,
                    K::m<"set", pick<void (P::*)(T, T, T, T)>(&P::set), vt, vt, vt, vt>,
                    K::m<"set", pick<void (P::*)(const osg::Vec4f &)>(&P::set), v4f>,
                    K::m<"set", pick<void (P::*)(const osg::Vec4d &)>(&P::set), v4d>,
                    K::m<"set", pick<void (P::*)(V3, double)>(&P::set), v3, "double">,
                    K::m<"set", pick<void (P::*)(V3, V3, V3)>(&P::set), v3, v3, v3>,
                    K::m<"set", pick<void (P::*)(V3, V3)>(&P::set), v3, v3>>(),
        K::fn<"flip", &P::flip>(),
        K::fn<"makeUnitLength", &P::makeUnitLength>(),
        K::fn<"calculateUpperLowerBBCorners", &P::calculateUpperLowerBBCorners>(),
        K::fn<"valid", &P::valid>(),
        K::fn<"isNaN", &P::isNaN>(),
        K::op<"__eq__", &P::operator==, pref>(),
        K::op<"__ne__", &P::operator!=, pref>(),
        K::op<"__lt__", &P::operator<, pref>(),
        K::pair<"ptr", Ptr(&P::ptr), CPtr(&P::ptr)>(),
        K::fn<"asVec4", &P::asVec4>(),
        K::fn<"getNormal", &P::getNormal>(),
        K::overload<"distance", K::m<"distance", pick<float (P::*)(const osg::Vec3f &) const>(&P::distance), "osg::Vec3f const &">,
                    K::m<"distance", pick<double (P::*)(const osg::Vec3d &) const>(&P::distance), "osg::Vec3d const &">>(),
        K::overload<"dotProductNormal",
                    K::m<"dotProductNormal", pick<float (P::*)(const osg::Vec3f &) const>(&P::dotProductNormal), "osg::Vec3f const &">,
                    K::m<"dotProductNormal", pick<double (P::*)(const osg::Vec3d &) const>(&P::dotProductNormal), "osg::Vec3d const &">>(),
        K::overload<"intersect",
                    K::m<"intersect", pick<int (P::*)(const std::vector<osg::Vec3f> &) const>(&P::intersect),
                         "std::vector< osg::Vec3f > const &">,
                    K::m<"intersect", pick<int (P::*)(const std::vector<osg::Vec3d> &) const>(&P::intersect),
                         "std::vector< osg::Vec3d > const &">,
                    K::m<"intersect", pick<int (P::*)(const osg::BoundingSphere &) const>(&P::intersect), "osg::BoundingSphere const &">,
                    K::m<"intersect", pick<int (P::*)(const osg::BoundingBox &) const>(&P::intersect), "osg::BoundingBox const &">>(),
        K::fn<"transform", &P::transform, matrix>(),
        K::fn<"transformProvidingInverse", &P::transformProvidingInverse, matrix>(),
        K::dtor_delete(),
        register_row<ty::p_osg__Plane>("Plane_swigregister"),
        init_row("Plane_swiginit"),
    });
}
