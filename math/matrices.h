// The 4x4 matrices: Matrixd and Matrixf from one table template, and their reference-counted
// forms. The template is instantiated in two sources, so that the two largest tables of the
// module compile in parallel.
#pragma once
#include "wrap/osg.h"

namespace math_rows {

using namespace wrap;

constexpr Text v3f = "osg::Vec3f const &";
constexpr Text v3d = "osg::Vec3d const &";
constexpr Text v4f = "osg::Vec4f const &";
constexpr Text v4d = "osg::Vec4d const &";
constexpr Text quat = "osg::Quat const &";
constexpr Text dbl = "double";
using V3f = const osg::Vec3f &;
using V3d = const osg::Vec3d &;
using Q = const osg::Quat &;

// The sixteen-element forms: a constructor of class K and set(), elements T spelled S.
template <class K, class T, Text S, class = std::make_index_sequence<16>>
struct Sixteen;
template <class K, class T, Text S, std::size_t... I>
struct Sixteen<K, T, S, std::index_sequence<I...>> {
    using ctor = ctor_of<K, List<Same<I, T>...>, same_text<I, S>...>;
    template <class M>
    using set = mem<K, "set", pick<void (M::*)(Same<I, T>...)>(&M::set), same_text<I, S>...>;
};

template <class M, class X>
using Out6 = bool (M::*)(X &, X &, X &, X &, X &, X &) const;
template <class M, class X>
using Out4 = bool (M::*)(X &, X &, X &, X &) const;
template <class M, class V, class T = typename M::value_type>
using Rot3 = void (M::*)(T, const V &, T, const V &, T, const V &);
template <class M, class V, class T = typename M::value_type>
using StaticRot3 = M (*)(T, const V &, T, const V &, T, const V &);
template <class M, class V>
using LookAt = void (M::*)(V &, V &, V &, typename M::value_type) const;
template <class M, class V>
using Decompose = void (M::*)(V &, osg::Quat &, V &, osg::Quat &) const;

// One member with a Vec3d and a Vec3f form (the translate and scale products).
template <class K, class M, Text Member, void (M::*D)(V3d), void (M::*F)(V3f)>
constexpr Row by_vec3() {
    return K::template overload<Member, mem<K, Member, D, v3d>, mem<K, Member, F, v3f>>();
}

// M is the class bound, O its twin of the other element type.
template <class M, class O, Text Spelling, Text Prefix, Text OSpelling>
void add_matrix(Table &t) {
    using K = Class<M, Spelling, Prefix>;
    using T = typename M::value_type;
    static constexpr auto vt = cat(Spelling, Text("::value_type"));
    static constexpr auto mref = cat(Spelling, Text(" const &"));
    static constexpr auto oref = cat(OSpelling, Text(" const &"));
    static constexpr auto vf = Text("osg::Vec3f &");
    static constexpr auto vd = Text("osg::Vec3d &");
    using MR = const M &;
    using OR = const O &;
    using S = Sixteen<K, T, vt>;
    using Set = void (M::*)(MR);
    using Scale = void (M::*)(T, T, T);
    using Static1 = M (*)(MR);
    constexpr bool scalar_ops = requires(M a, T x) { a / x; };

    add(t, {
        K::template ctor<TakeRef::None, ctor_of<K, List<>>, ctor_of<K, List<MR>, mref>, ctor_of<K, List<OR>, oref>,
                         ctor_of<K, List<const float *>, "float const *const">,
                         ctor_of<K, List<const double *>, "double const *const">, ctor_of<K, List<Q>, quat>,
                         typename S::ctor>(),
        K::dtor_delete(),
        K::template fn<"compare", &M::compare, mref>(),
        K::template op<"__lt__", &M::operator<, mref>(),
        K::template op<"__eq__", &M::operator==, mref>(),
        K::template op<"__ne__", &M::operator!=, mref>(),
        // An element read: the indices are used as given.
        K::template fn<"__call__", pick<T (M::*)(int, int) const>(&M::operator()), "int", "int">(),
        K::template fn<"valid", &M::valid>(),
        K::template fn<"isNaN", &M::isNaN>(),
        K::template overload<"set", mem<K, "set", Set(&M::set), mref>, mem<K, "set", pick<void (M::*)(OR)>(&M::set), oref>,
                             mem<K, "set", pick<void (M::*)(const float *)>(&M::set), "float const *const">,
                             mem<K, "set", pick<void (M::*)(const double *)>(&M::set), "double const *const">,
                             typename S::template set<M>>(),
        K::template pair<"ptr", pick<T *(M::*)()>(&M::ptr), pick<const T *(M::*)() const>(&M::ptr)>(),
        K::template fn<"isIdentity", &M::isIdentity>(),
        K::template fn<"makeIdentity", &M::makeIdentity>(),
        K::template overload<"makeScale", mem<K, "makeScale", pick<void (M::*)(V3f)>(&M::makeScale), v3f>,
                             mem<K, "makeScale", pick<void (M::*)(V3d)>(&M::makeScale), v3d>,
                             mem<K, "makeScale", Scale(&M::makeScale), vt, vt, vt>>(),
        K::template overload<"makeTranslate", mem<K, "makeTranslate", pick<void (M::*)(V3f)>(&M::makeTranslate), v3f>,
                             mem<K, "makeTranslate", pick<void (M::*)(V3d)>(&M::makeTranslate), v3d>,
                             mem<K, "makeTranslate", Scale(&M::makeTranslate), vt, vt, vt>>(),
        K::template overload<"makeRotate", mem<K, "makeRotate", pick<void (M::*)(V3f, V3f)>(&M::makeRotate), v3f, v3f>,
                             mem<K, "makeRotate", pick<void (M::*)(V3d, V3d)>(&M::makeRotate), v3d, v3d>,
                             mem<K, "makeRotate", pick<void (M::*)(T, V3f)>(&M::makeRotate), vt, v3f>,
                             mem<K, "makeRotate", pick<void (M::*)(T, V3d)>(&M::makeRotate), vt, v3d>,
                             mem<K, "makeRotate", pick<void (M::*)(T, T, T, T)>(&M::makeRotate), vt, vt, vt, vt>,
                             mem<K, "makeRotate", pick<void (M::*)(Q)>(&M::makeRotate), quat>,
                             mem<K, "makeRotate", Rot3<M, osg::Vec3f>(&M::makeRotate), vt, v3f, vt, v3f, vt, v3f>,
                             mem<K, "makeRotate", Rot3<M, osg::Vec3d>(&M::makeRotate), vt, v3d, vt, v3d, vt, v3d>>(),
        K::template overload<"decompose",
                             mem<K, "decompose", Decompose<M, osg::Vec3f>(&M::decompose), vf, "osg::Quat &", vf, "osg::Quat &">,
                             mem<K, "decompose", Decompose<M, osg::Vec3d>(&M::decompose), vd, "osg::Quat &", vd, "osg::Quat &">>(),
        K::template fn<"makeOrtho", &M::makeOrtho, dbl, dbl, dbl, dbl, dbl, dbl>(),
        K::template overload<"getOrtho", mem<K, "getOrtho", Out6<M, double>(&M::getOrtho), "double &", "double &",
                                             "double &", "double &", "double &", "double &">,
                             mem<K, "getOrtho", Out6<M, float>(&M::getOrtho), "float &", "float &", "float &", "float &",
                                 "float &", "float &">>(),
        K::template fn<"makeOrtho2D", &M::makeOrtho2D, dbl, dbl, dbl, dbl>(),
        K::template fn<"makeFrustum", &M::makeFrustum, dbl, dbl, dbl, dbl, dbl, dbl>(),
        K::template overload<"getFrustum", mem<K, "getFrustum", Out6<M, double>(&M::getFrustum), "double &", "double &",
                                               "double &", "double &", "double &", "double &">,
                             mem<K, "getFrustum", Out6<M, float>(&M::getFrustum), "float &", "float &", "float &",
                                 "float &", "float &", "float &">>(),
        K::template fn<"makePerspective", &M::makePerspective, dbl, dbl, dbl, dbl>(),
        K::template overload<"getPerspective", mem<K, "getPerspective", Out4<M, double>(&M::getPerspective), "double &",
                                                   "double &", "double &", "double &">,
                             mem<K, "getPerspective", Out4<M, float>(&M::getPerspective), "float &", "float &",
                                 "float &", "float &">>(),
        K::template fn<"makeLookAt", &M::makeLookAt, v3d, v3d, v3d>(),
        // The three-vector forms use the member's default look distance.
        K::template overload<"getLookAt", mem<K, "getLookAt", LookAt<M, osg::Vec3f>(&M::getLookAt), vf, vf, vf, vt>,
                             mem<K, "getLookAt", [](const M *m, osg::Vec3f &e, osg::Vec3f &c, osg::Vec3f &u) {
                                 m->getLookAt(e, c, u); }, vf, vf, vf>,
                             mem<K, "getLookAt", LookAt<M, osg::Vec3d>(&M::getLookAt), vd, vd, vd, vt>,
                             mem<K, "getLookAt", [](const M *m, osg::Vec3d &e, osg::Vec3d &c, osg::Vec3d &u) {
                                 m->getLookAt(e, c, u); }, vd, vd, vd>>(),
        K::template fn<"invert", &M::invert, mref>(),
        K::template fn<"invert_4x3", &M::invert_4x3, mref>(),
        K::template fn<"invert_4x4", &M::invert_4x4, mref>(),
        K::template fn<"transpose", &M::transpose, mref>(),
        K::template fn<"transpose3x3", &M::transpose3x3, mref>(),
        K::template fn<"orthoNormalize", &M::orthoNormalize, mref>(),
        K::template static_fn<"identity", &M::identity>(),
        K::template overload<"scale", smem<K, "scale", pick<M (*)(V3f)>(&M::scale), v3f>,
                             smem<K, "scale", pick<M (*)(V3d)>(&M::scale), v3d>,
                             smem<K, "scale", pick<M (*)(T, T, T)>(&M::scale), vt, vt, vt>>(),
        K::template overload<"translate", smem<K, "translate", pick<M (*)(V3f)>(&M::translate), v3f>,
                             smem<K, "translate", pick<M (*)(V3d)>(&M::translate), v3d>,
                             smem<K, "translate", pick<M (*)(T, T, T)>(&M::translate), vt, vt, vt>>(),
        K::template overload<"rotate", smem<K, "rotate", pick<M (*)(V3f, V3f)>(&M::rotate), v3f, v3f>,
                             smem<K, "rotate", pick<M (*)(V3d, V3d)>(&M::rotate), v3d, v3d>,
                             smem<K, "rotate", pick<M (*)(T, T, T, T)>(&M::rotate), vt, vt, vt, vt>,
                             smem<K, "rotate", pick<M (*)(T, V3f)>(&M::rotate), vt, v3f>,
                             smem<K, "rotate", pick<M (*)(T, V3d)>(&M::rotate), vt, v3d>,
                             smem<K, "rotate", StaticRot3<M, osg::Vec3f>(&M::rotate), vt, v3f, vt, v3f, vt, v3f>,
                             smem<K, "rotate", StaticRot3<M, osg::Vec3d>(&M::rotate), vt, v3d, vt, v3d, vt, v3d>,
                             smem<K, "rotate", pick<M (*)(Q)>(&M::rotate), quat>>(),
        K::template static_fn<"inverse", Static1(&M::inverse), mref>(),
        K::template static_fn<"orthoNormal", Static1(&M::orthoNormal), mref>(),
        K::template static_fn<"ortho", &M::ortho, dbl, dbl, dbl, dbl, dbl, dbl>(),
        K::template static_fn<"ortho2D", &M::ortho2D, dbl, dbl, dbl, dbl>(),
        K::template static_fn<"frustum", &M::frustum, dbl, dbl, dbl, dbl, dbl, dbl>(),
        K::template static_fn<"perspective", &M::perspective, dbl, dbl, dbl, dbl>(),
        K::template overload<"lookAt", smem<K, "lookAt", pick<M (*)(V3f, V3f, V3f)>(&M::lookAt), v3f, v3f, v3f>,
                             smem<K, "lookAt", pick<M (*)(V3d, V3d, V3d)>(&M::lookAt), v3d, v3d, v3d>>(),
        K::template fn<"setRotate", &M::setRotate, quat>(),
        K::template fn<"getRotate", &M::getRotate>(),
        K::template overload<"setTrans", mem<K, "setTrans", Scale(&M::setTrans), vt, vt, vt>,
                             mem<K, "setTrans", pick<void (M::*)(V3f)>(&M::setTrans), v3f>,
                             mem<K, "setTrans", pick<void (M::*)(V3d)>(&M::setTrans), v3d>>(),
        K::template fn<"getTrans", &M::getTrans>(),
        K::template fn<"getScale", &M::getScale>(),
        K::template overload<"transform3x3",
                             smem<K, "transform3x3", pick<osg::Vec3f (*)(V3f, MR)>(&M::transform3x3), v3f, mref>,
                             smem<K, "transform3x3", pick<osg::Vec3d (*)(V3d, MR)>(&M::transform3x3), v3d, mref>,
                             smem<K, "transform3x3", pick<osg::Vec3f (*)(MR, V3f)>(&M::transform3x3), mref, v3f>,
                             smem<K, "transform3x3", pick<osg::Vec3d (*)(MR, V3d)>(&M::transform3x3), mref, v3d>>(),
        K::template fn<"mult", &M::mult, mref, mref>(),
        K::template overload<"preMult", mem<K, "preMult", pick<osg::Vec3f (M::*)(V3f) const>(&M::preMult), v3f>,
                             mem<K, "preMult", pick<osg::Vec3d (M::*)(V3d) const>(&M::preMult), v3d>,
                             mem<K, "preMult", pick<osg::Vec4f (M::*)(const osg::Vec4f &) const>(&M::preMult), v4f>,
                             mem<K, "preMult", pick<osg::Vec4d (M::*)(const osg::Vec4d &) const>(&M::preMult), v4d>,
                             mem<K, "preMult", Set(&M::preMult), mref>>(),
        K::template overload<"postMult", mem<K, "postMult", pick<osg::Vec3f (M::*)(V3f) const>(&M::postMult), v3f>,
                             mem<K, "postMult", pick<osg::Vec3d (M::*)(V3d) const>(&M::postMult), v3d>,
                             mem<K, "postMult", pick<osg::Vec4f (M::*)(const osg::Vec4f &) const>(&M::postMult), v4f>,
                             mem<K, "postMult", pick<osg::Vec4d (M::*)(const osg::Vec4d &) const>(&M::postMult), v4d>,
                             mem<K, "postMult", Set(&M::postMult), mref>>(),
        by_vec3<K, M, "preMultTranslate", &M::preMultTranslate, &M::preMultTranslate>(),
        by_vec3<K, M, "postMultTranslate", &M::postMultTranslate, &M::postMultTranslate>(),
        by_vec3<K, M, "preMultScale", &M::preMultScale, &M::preMultScale>(),
        by_vec3<K, M, "postMultScale", &M::postMultScale, &M::postMultScale>(),
        K::template fn<"preMultRotate", &M::preMultRotate, quat>(),
        K::template fn<"postMultRotate", &M::postMultRotate, quat>(),
    });
    using Mul = mem<K, "operator *=", Set(&M::operator*=), mref>;
    if constexpr (scalar_ops) {
        add(t, {K::template overload_inplace<"__imul__", Mul,
                                             mem<K, "operator *=", pick<M &(M::*)(T)>(&M::operator*=), vt>>()});
    } else {
        add(t, {K::template inplace<"__imul__", Set(&M::operator*=), mref>()});
    }
    // Products with a column vector, then with a matrix; Matrixf also scales.
    using Products = List<mem<K, "operator *", [](const M *m, V3f v) { return *m * v; }, v3f>,
                          mem<K, "operator *", [](const M *m, V3d v) { return *m * v; }, v3d>,
                          mem<K, "operator *", [](const M *m, const osg::Vec4f &v) { return *m * v; }, v4f>,
                          mem<K, "operator *", [](const M *m, const osg::Vec4d &v) { return *m * v; }, v4d>,
                          mem<K, "operator *", [](const M *m, MR n) { return *m * n; }, mref>>;
    if constexpr (scalar_ops) {
        add(t, {
            []<class... C>(List<C...>) {
                return K::template overload_op<"__mul__", C...,
                                               mem<K, "operator *", [](const M *m, T x) { return *m * x; }, vt>>();
            }(Products{}),
            K::template op<"__truediv__", [](const M *m, T x) { return *m / x; }, vt>(),
            K::template inplace<"__itruediv__", &M::operator/=, vt>(),
            K::template op<"__add__", [](const M *m, MR n) { return *m + n; }, mref>(),
            K::template inplace<"__iadd__", &M::operator+=, mref>(),
        });
    } else {
        add(t, {[]<class... C>(List<C...>) { return K::template overload_op<"__mul__", C...>(); }(Products{})});
    }
    add(t, {
        K::register_hook(),
        K::init_hook(),
    });
}

// RefMatrixd and RefMatrixf: constructors and the members of osg::Object they override.
// They take no reference when made, and have no delete function: their lifetime is
// reference counting's.
template <class R, class M, class O, Text Spelling, Text Prefix, Text MSpelling, Text OSpelling>
void add_ref_matrix(Table &t) {
    using K = Class<R, Spelling, Prefix>;
    using T = typename M::value_type;
    static constexpr auto vt = cat(MSpelling, Text("::value_type"));
    add(t, {
        K::template ctor<TakeRef::None, ctor_of<K, List<>>, ctor_of<K, List<const M &>, cat(MSpelling, Text(" const &"))>,
                         ctor_of<K, List<const O &>, cat(OSpelling, Text(" const &"))>,
                         ctor_of<K, List<const T *>, cat(vt, Text(" const *const"))>,
                         ctor_of<K, List<const R &>, cat(Spelling, Text(" const &"))>,
                         typename Sixteen<K, T, vt>::ctor>(),
        K::template fn<"cloneType", &R::cloneType>(),
        K::template fn<"clone", &R::clone, "osg::CopyOp const &">(),
        K::template fn<"isSameKindAs", &R::isSameKindAs, "osg::Object const *">(),
        K::template fn<"libraryName", &R::libraryName>(),
        K::template fn<"className", &R::className>(),
        K::register_hook(),
        K::init_hook(),
    });
}

}  // namespace math_rows

void add_float_matrix_rows(wrap::Table &t);
