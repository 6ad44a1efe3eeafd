// osg::Quat, following the vector family's conventions.
#include "wrap/osg.h"

using namespace wrap;

namespace {

using Q = osg::Quat;
using K = Class<Q, "osg::Quat", "Quat">;
using T = Q::value_type;
constexpr Text vt = "osg::Quat::value_type";
constexpr Text vref = "osg::Quat::value_type &";
constexpr Text cref = "osg::Quat const &";
constexpr Text v3f = "osg::Vec3f const &";
constexpr Text v3d = "osg::Vec3d const &";
using Ref = T &(Q::*)();
using Val = T (Q::*)() const;
using V3f = const osg::Vec3f &;
using V3d = const osg::Vec3d &;

template <class V>
using Rot3 = void (Q::*)(T, const V &, T, const V &, T, const V &);

}  // namespace

void add_quat_rows(Table &t) {
    add(t, {
        K::ctor<TakeRef::None, K::with<>::c<>, K::with<T, T, T, T>::c<vt, vt, vt, vt>,
                K::with<const osg::Vec4f &>::c<"osg::Vec4f const &">, K::with<const osg::Vec4d &>::c<"osg::Vec4d const &">,
                K::with<T, V3f>::c<vt, v3f>, K::with<T, V3d>::c<vt, v3d>,
                K::with<T, V3f, T, V3f, T, V3f>::c<vt, v3f, vt, v3f, vt, v3f>,
                K::with<T, V3d, T, V3d, T, V3d>::c<vt, v3d, vt, v3d, vt, v3d>>(),
        K::dtor_delete(),
        K::fn<"_v_set", [](Q *self, ArrayIn<T, 4> from) { std::copy(from.data, from.data + 4, self->_v); },
              "osg::Quat::value_type [4]">(),
        K::fn<"_v_get", [](Q *self) -> T * { return self->_v; }>(),
        K::op<"__eq__", &Q::operator==, cref>(),
        K::op<"__ne__", &Q::operator!=, cref>(),
        K::op<"__lt__", &Q::operator<, cref>(),
        K::fn<"asVec4", &Q::asVec4>(),
        K::fn<"asVec3", &Q::asVec3>(),
        K::overload<"set", K::m<"set", pick<void (Q::*)(T, T, T, T)>(&Q::set), vt, vt, vt, vt>,
                    K::m<"set", pick<void (Q::*)(const osg::Vec4f &)>(&Q::set), "osg::Vec4f const &">,
                    K::m<"set", pick<void (Q::*)(const osg::Vec4d &)>(&Q::set), "osg::Vec4d const &">,
                    K::m<"set", pick<void (Q::*)(const osg::Matrixf &)>(&Q::set), "osg::Matrixf const &">,
                    K::m<"set", pick<void (Q::*)(const osg::Matrixd &)>(&Q::set), "osg::Matrixd const &">>(),
        K::overload<"get", K::m<"get", pick<void (Q::*)(osg::Matrixf &) const>(&Q::get), "osg::Matrixf &">,
                    K::m<"get", pick<void (Q::*)(osg::Matrixd &) const>(&Q::get), "osg::Matrixd &">>(),
        K::pair<"x", Ref(&Q::x), Val(&Q::x)>(),
        K::pair<"y", Ref(&Q::y), Val(&Q::y)>(),
        K::pair<"z", Ref(&Q::z), Val(&Q::z)>(),
        K::pair<"w", Ref(&Q::w), Val(&Q::w)>(),
        K::fn<"zeroRotation", &Q::zeroRotation>(),
        K::overload_op<"__mul__", K::m<"operator *", [](const Q *a, const Q &b) { return *a * b; }, cref>,
                       K::m<"operator *", [](const Q *a, V3f b) { return *a * b; }, v3f>,
                       K::m<"operator *", [](const Q *a, V3d b) { return *a * b; }, v3d>,
                       K::m<"operator *", [](const Q *a, T b) { return *a * b; }, vt>>(),
        K::overload_inplace<"__imul__", K::m<"operator *=", pick<Q &(Q::*)(T)>(&Q::operator*=), vt>,
                            K::m<"operator *=", pick<Q &(Q::*)(const Q &)>(&Q::operator*=), cref>>(),
        K::overload_op<"__truediv__", K::m<"operator /", [](const Q *a, T b) { return *a / b; }, vt>,
                       K::m<"operator /", [](const Q *a, const Q &b) { return *a / b; }, cref>>(),
        K::overload_inplace<"__itruediv__", K::m<"operator /=", pick<Q &(Q::*)(T)>(&Q::operator/=), vt>,
                            K::m<"operator /=", pick<Q &(Q::*)(const Q &)>(&Q::operator/=), cref>>(),
        K::op<"__add__", [](const Q *a, const Q &b) { return *a + b; }, cref>(),
        K::op<"__sub__", [](const Q *a, const Q &b) { return *a - b; }, cref>(),
        K::inplace<"__iadd__", &Q::operator+=, cref>(),
        K::inplace<"__isub__", &Q::operator-=, cref>(),
        K::op<"__neg__", [](const Q *a) { return -*a; }>(),
        K::fn<"length", &Q::length>(),
        K::fn<"length2", &Q::length2>(),
        K::fn<"conj", &Q::conj>(),
        K::fn<"inverse", &Q::inverse>(),
        K::overload<"makeRotate", K::m<"makeRotate", pick<void (Q::*)(T, T, T, T)>(&Q::makeRotate), vt, vt, vt, vt>,
                    K::m<"makeRotate", pick<void (Q::*)(T, V3f)>(&Q::makeRotate), vt, v3f>,
                    K::m<"makeRotate", pick<void (Q::*)(T, V3d)>(&Q::makeRotate), vt, v3d>,
                    K::m<"makeRotate", Rot3<osg::Vec3f>(&Q::makeRotate), vt, v3f, vt, v3f, vt, v3f>,
                    K::m<"makeRotate", Rot3<osg::Vec3d>(&Q::makeRotate), vt, v3d, vt, v3d, vt, v3d>,
                    K::m<"makeRotate", pick<void (Q::*)(V3f, V3f)>(&Q::makeRotate), v3f, v3f>,
                    K::m<"makeRotate", pick<void (Q::*)(V3d, V3d)>(&Q::makeRotate), v3d, v3d>>(),
        K::fn<"makeRotate_original", &Q::makeRotate_original, v3d, v3d>(),
        K::overload<"getRotate", K::m<"getRotate", pick<void (Q::*)(T &, T &, T &, T &) const>(&Q::getRotate), vref, vref, vref, vref>,
                    K::m<"getRotate", pick<void (Q::*)(T &, osg::Vec3f &) const>(&Q::getRotate), vref, "osg::Vec3f &">,
                    K::m<"getRotate", pick<void (Q::*)(T &, osg::Vec3d &) const>(&Q::getRotate), vref, "osg::Vec3d &">>(),
        K::fn<"slerp", &Q::slerp, vt, cref, cref>(),
        register_row<ty::p_osg__Quat>("Quat_swigregister"),
        init_row("Quat_swiginit"),
    });
}
