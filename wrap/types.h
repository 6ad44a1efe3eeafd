// A sibling module's type table, one line per type:
//
//   using Types = wrap::TypeTable<
//       wrap::Type<osg::Referenced, "osg::Referenced">,   // _p_osg__Referenced, "osg::Referenced *"
//       wrap::Type<osg::Node, "osg::Node">,
//       wrap::Opaque<"_p_GLenum", "GLenum *">>;            // a handle's descriptor: no class of its own
//
// The cast graph is the C++ hierarchy among the listed classes: each type's cast list holds
// every listed class the compiler can upcast to it, with the compiler's own upcast, so the
// offsets of multiple inheritance come out right and no edge can be wrong by the headers.
// Types another module of the ring knows by the same name become one shared record when the
// module joins, and the join adds only the edges the shared record lacks.
#pragma once
#include "wrap/descriptor.h"
#include "wrap/text.h"

#include <array>
#include <cstddef>
#include <string_view>
#include <tuple>
#include <utility>

namespace wrap {

// "osg::Camera::DrawCallback" -> "_p_osg__Camera__DrawCallback"
template <Text Spelling>
constexpr auto pointer_name() {
    auto out = cat(Text("_p_"), Spelling);
    for (char &c : out.v) c = c == ':' ? '_' : c;
    return out;
}

// Name is the mangled name, where it is not the spelling's (a typedef whose record another
// module of the ring spells by its template: osg::BoundingBox as _p_osg__BoundingBoxImplT_osg__Vec3d_t).
template <class T, Text Spelling, Text Name = pointer_name<Spelling>()>
struct Type {
    using type = T;
    static constexpr auto name = Name;
    static constexpr auto str = cat(Spelling, Text(" *"));
};

template <Text Name, Text Str>
struct Opaque {
    using type = void;
    static constexpr auto name = Name;
    static constexpr auto str = Str;
};

// Whether a D * converts to a B * by an upcast the compiler allows (public and unambiguous).
template <class D, class B>
concept Upcast = !std::is_void_v<D> && !std::is_void_v<B> && !std::is_same_v<D, B> && std::is_base_of_v<B, D> &&
                 requires(D *d) { static_cast<B *>(d); };

template <class D, class B>
void *upcast(void *p, int *) {
    return static_cast<B *>(static_cast<D *>(p));
}

template <class... E>
struct TypeTable {
    static constexpr std::size_t count = sizeof...(E);
    using All = std::tuple<E...>;
    template <std::size_t I>
    using At = typename std::tuple_element_t<I, All>::type;

    static constexpr std::array<std::string_view, count> names{std::string_view(E::name.v)...};
    // The place of each listed type in the table sorted by name, as lookups in the ring expect.
    static constexpr auto rank = [] {
        std::array<int, count> r{};
        for (std::size_t i = 0; i < count; ++i)
            for (std::size_t j = 0; j < count; ++j) r[i] += names[j] < names[i];
        return r;
    }();
    static_assert([] {
        for (std::size_t i = 0; i < count; ++i)
            for (std::size_t j = 0; j < i; ++j)
                if (names[i] == names[j]) return false;
        return true;
    }(), "each type is listed once");

    template <class T>
    static constexpr bool has = !std::is_void_v<T> && (std::is_same_v<T, typename E::type> || ...);
    template <class T>
    static constexpr int index_of = [] {
        int at = -1;
        std::size_t i = 0;
        ((at = std::is_same_v<T, typename E::type> ? rank[i] : at, ++i), ...);
        return at;
    }();
    // The index of a descriptor by mangled name, for the handles: named<"_p_GLenum">.
    template <Text Name>
    static constexpr int named = [] {
        for (std::size_t i = 0; i < count; ++i)
            if (names[i] == std::string_view(Name.v)) return rank[i];
        return -1;
    }();

    template <std::size_t I, std::size_t J>
    static constexpr swig_converter_func converter() {
        if constexpr (Upcast<At<J>, At<I>>) {
            return &upcast<At<J>, At<I>>;
        } else {
            return nullptr;
        }
    }
    // converters[i][j]: how a pointer of listed type j becomes one of type i, null where it does not.
    template <std::size_t I, std::size_t... J>
    static constexpr std::array<swig_converter_func, count> row(std::index_sequence<J...>) {
        return {converter<I, J>()...};
    }
    template <std::size_t... I>
    static constexpr auto matrix(std::index_sequence<I...>) {
        return std::array<std::array<swig_converter_func, count>, count>{row<I>(std::make_index_sequence<count>{})...};
    }
    static constexpr auto converters = matrix(std::make_index_sequence<count>{});
    // Counted from the hierarchy, not by comparing converters with null: under the sanitizers a
    // function's address is no constant the compiler may compare.
    template <std::size_t I, std::size_t... J>
    static constexpr std::size_t row_edges(std::index_sequence<J...>) {
        return (std::size_t(Upcast<At<J>, At<I>>) + ... + 0);
    }
    template <std::size_t... I>
    static constexpr std::size_t count_edges(std::index_sequence<I...>) {
        return (row_edges<I>(std::make_index_sequence<count>{}) + ... + 0);
    }
    static constexpr std::size_t edges = count_edges(std::make_index_sequence<count>{});

    // The static records and cast lists the join links into the ring; never freed.
    static inline swig_type_info initial[count] = {{E::name.v, E::str.v, nullptr, nullptr, nullptr, 0}...};
    static inline swig_cast_info casts[2 * count + edges] = {};
    static inline swig_type_info *sorted_types[count] = {};
    static inline swig_cast_info *sorted_casts[count] = {};

    // Lays out the records by name, each cast list as its own entry, then the types that
    // convert to it, then the end marker.
    static void build() {
        if (sorted_types[0]) return;
        swig_cast_info *at = casts;
        for (std::size_t i = 0; i < count; ++i) {
            sorted_types[rank[i]] = &initial[i];
            sorted_casts[rank[i]] = at;
            *at++ = {&initial[i], nullptr, nullptr, nullptr};
            for (std::size_t j = 0; j < count; ++j)
                if (converters[i][j]) *at++ = {&initial[j], converters[i][j], nullptr, nullptr};
            *at++ = {};
        }
    }

    static void join(swig_module_info &module) {
        build();
        SWIG_Python_JoinModuleTable(&module, sorted_types, sorted_casts);
    }
};

}  // namespace wrap
