// The six vector classes: one table, instantiated per class.
#include "wrap/osg.h"

using namespace wrap;

namespace {

// The constructors differ per class; the widening ones go from f to d only.
template <class V>
struct Ctors;

template <class V, Text Spelling, Text Prefix>
void add_vector(Table &t) {
    using K = Class<V, Spelling, Prefix>;
    using T = typename V::value_type;
    constexpr std::size_t N = V::num_components;
    static constexpr auto vt = cat(Spelling, Text("::value_type"));
    static constexpr auto cref = cat(Spelling, Text(" const &"));
    static constexpr auto array = cat(vt, Text(" ["), number<N>(), Text("]"));
    using Ptr = T *(V::*)();
    using CPtr = const T *(V::*)() const;
    using Ref = T &(V::*)();
    using Val = T (V::*)() const;

    // set(x, ...) with N scalars, and set(V const &) where OSG has it.
    constexpr auto set_row = []<std::size_t... I>(std::index_sequence<I...>) {
        using Scalars = typename K::template m<"set", pick<void (V::*)(decltype((void)I, T())...)>(&V::set), ((void)I, vt)...>;
        if constexpr (requires(V v) { v.set(v); }) {
            return K::template overload<"set", Scalars,
                                        typename K::template m<"set", pick<void (V::*)(const V &)>(&V::set), cref>>();
        } else {
            return K::template fn<"set", pick<void (V::*)(decltype((void)I, T())...)>(&V::set), ((void)I, vt)...>();
        }
    }(std::make_index_sequence<N>{});

    add(t, {
        Ctors<V>::template row<K, vt>(),
        K::dtor_delete(),
        K::template fn<"_v_set", [](V *self, ArrayIn<T, N> from) { std::copy(from.data, from.data + N, self->_v); }, array>(),
        K::template fn<"_v_get", [](V *self) -> T * { return self->_v; }>(),
        K::template op<"__eq__", &V::operator==, cref>(),
        K::template op<"__ne__", &V::operator!=, cref>(),
        K::template op<"__lt__", &V::operator<, cref>(),
        K::template pair<"ptr", Ptr(&V::ptr), CPtr(&V::ptr)>(),
        set_row,
        K::template pair<"x", Ref(&V::x), Val(&V::x)>(),
        K::template pair<"y", Ref(&V::y), Val(&V::y)>(),
    });
    if constexpr (N >= 3) add(t, {K::template pair<"z", Ref(&V::z), Val(&V::z)>()});
    if constexpr (N == 4) {
        add(t, {
            K::template pair<"w", Ref(&V::w), Val(&V::w)>(),
            K::template pair<"r", Ref(&V::r), Val(&V::r)>(),
            K::template pair<"g", Ref(&V::g), Val(&V::g)>(),
            K::template pair<"b", Ref(&V::b), Val(&V::b)>(),
            K::template pair<"a", Ref(&V::a), Val(&V::a)>(),
        });
    }
    add(t, {
        K::template fn<"valid", &V::valid>(),
        K::template fn<"isNaN", &V::isNaN>(),
    });
    if constexpr (N == 3) add(t, {K::template op<"__xor__", [](const V *a, const V &b) { return *a ^ b; }, cref>()});
    add(t, {
        K::template overload_op<"__mul__", typename K::template m<"operator *", [](const V *a, const V &b) { return *a * b; }, cref>,
                                typename K::template m<"operator *", [](const V *a, T b) { return *a * b; }, vt>>(),
        K::template inplace<"__imul__", &V::operator*=, vt>(),
        K::template inplace<"__itruediv__", &V::operator/=, vt>(),
        K::template op<"__truediv__", [](const V *a, T b) { return *a / b; }, vt>(),
        K::template op<"__add__", [](const V *a, const V &b) { return *a + b; }, cref>(),
        K::template op<"__sub__", [](const V *a, const V &b) { return *a - b; }, cref>(),
        K::template inplace<"__iadd__", &V::operator+=, cref>(),
        K::template inplace<"__isub__", &V::operator-=, cref>(),
        K::template op<"__neg__", [](const V *a) { return -*a; }>(),
        K::template fn<"length", &V::length>(),
        K::template fn<"length2", &V::length2>(),
        K::template fn<"normalize", &V::normalize>(),
    });
    if constexpr (N == 4) {
        add(t, {
            K::template fn<"asABGR", &V::asABGR>(),
            K::template fn<"asRGBA", &V::asRGBA>(),
        });
    }
    add(t, {
        K::register_hook(),
        K::init_hook(),
    });
}

// clang-format off
template <> struct Ctors<osg::Vec2f> {
    template <class K, Text vt> static constexpr Row row() {
        return K::template ctor<TakeRef::None, typename K::template with<>::template c<>,
                                typename K::template with<float, float>::template c<vt, vt>>();
    }
};
template <> struct Ctors<osg::Vec2d> {
    template <class K, Text vt> static constexpr Row row() {
        return K::template ctor<TakeRef::None, typename K::template with<>::template c<>,
                                typename K::template with<double, double>::template c<vt, vt>,
                                typename K::template with<const osg::Vec2f &>::template c<"osg::Vec2f const &">>();
    }
};
template <> struct Ctors<osg::Vec3f> {
    template <class K, Text vt> static constexpr Row row() {
        return K::template ctor<TakeRef::None, typename K::template with<>::template c<>,
                                typename K::template with<float, float, float>::template c<vt, vt, vt>,
                                typename K::template with<const osg::Vec2f &, float>::template c<"osg::Vec2f const &", vt>>();
    }
};
template <> struct Ctors<osg::Vec3d> {
    template <class K, Text vt> static constexpr Row row() {
        return K::template ctor<TakeRef::None, typename K::template with<>::template c<>,
                                typename K::template with<const osg::Vec3f &>::template c<"osg::Vec3f const &">,
                                typename K::template with<double, double, double>::template c<vt, vt, vt>,
                                typename K::template with<const osg::Vec2d &, double>::template c<"osg::Vec2d const &", vt>>();
    }
};
template <> struct Ctors<osg::Vec4f> {
    template <class K, Text vt> static constexpr Row row() {
        return K::template ctor<TakeRef::None, typename K::template with<>::template c<>,
                                typename K::template with<float, float, float, float>::template c<vt, vt, vt, vt>,
                                typename K::template with<const osg::Vec3f &, float>::template c<"osg::Vec3f const &", vt>>();
    }
};
template <> struct Ctors<osg::Vec4d> {
    template <class K, Text vt> static constexpr Row row() {
        return K::template ctor<TakeRef::None, typename K::template with<>::template c<>,
                                typename K::template with<double, double, double, double>::template c<vt, vt, vt, vt>,
                                typename K::template with<const osg::Vec3d &, double>::template c<"osg::Vec3d const &", vt>,
                                typename K::template with<const osg::Vec4f &>::template c<"osg::Vec4f const &">>();
    }
};
// clang-format on

}  // namespace

void add_vector_rows(Table &t) {
    add_vector<osg::Vec2f, "osg::Vec2f", "Vec2f">(t);
    add_vector<osg::Vec3f, "osg::Vec3f", "Vec3f">(t);
    add_vector<osg::Vec4f, "osg::Vec4f", "Vec4f">(t);
    add_vector<osg::Vec2d, "osg::Vec2d", "Vec2d">(t);
    add_vector<osg::Vec3d, "osg::Vec3d", "Vec3d">(t);
    add_vector<osg::Vec4d, "osg::Vec4d", "Vec4d">(t);
}
