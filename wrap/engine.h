// The wrapper engine. A binding row names the Python function, the bound C++ callable and
// the declared type spellings of its arguments; everything else (converters, result,
// calling convention, arity checks and every message) is derived at compile time.
//
//   using K = Class<osg::Vec3f, "osg::Vec3f", "Vec3f">;
//   K::fn<"length", &osg::Vec3f::length>()                 -> Vec3f_length
//   K::inplace<"__iadd__", &V::operator+=, "osg::Vec3f const &">()
//   K::pair<"x", Ref(&V::x), Val(&V::x)>()                 -> dispatcher Vec3f_x
//
// See wrap/README.md for the concepts.
#pragma once
#include "wrap/convert.h"
#include "wrap/hooks.h"
#include "wrap/text.h"
#include "platform/zog_osg.h"

#include <algorithm>
#include <array>

#include <cstring>
#include <functional>
#include <string_view>
#include <limits>
#include <tuple>
#include <utility>
#include <vector>

namespace wrap {

// ---- signatures of the bound callables ------------------------------------------------

template <class... T>
struct List {
    static constexpr std::size_t size = sizeof...(T);
    using First = std::tuple_element_t<0, std::tuple<T..., void>>;
};

template <class F>
struct Signature;
template <class R, class... A>
struct Signature<R (*)(A...)> {
    using Ret = R;
    using Params = List<A...>;
    using Self = void;
    static constexpr bool is_const = false;
};
template <class R, class... A>
struct Signature<R (*)(A...) noexcept> : Signature<R (*)(A...)> {};
template <class R, class C, class... A>
struct Signature<R (C::*)(A...)> {
    using Ret = R;
    using Params = List<C *, A...>;
    using Self = C;
    static constexpr bool is_const = false;
};
template <class R, class C, class... A>
struct Signature<R (C::*)(A...) const> {
    using Ret = R;
    using Params = List<const C *, A...>;
    using Self = C;
    static constexpr bool is_const = true;
};
template <class R, class C, class... A>
struct Signature<R (C::*)(A...) noexcept> : Signature<R (C::*)(A...)> {};
template <class R, class C, class... A>
struct Signature<R (C::*)(A...) const noexcept> : Signature<R (C::*)(A...) const> {};

// A captureless lambda stands for its function pointer.
template <auto F>
constexpr auto callable() {
    if constexpr (std::is_class_v<decltype(F)>) {
        return +F;
    } else {
        return F;
    }
}

// Picks one overload of a member or free function by its exact type.
template <class F>
constexpr F pick(F f) {
    return f;
}

// ---- opaque handles ----------------------------------------------------------------------

// The spelling of a parameter that crosses as an opaque handle of descriptor D:
//   K::fn<"setMode", &S::setMode, handle<ty::p_GLenum>("osg::StateAttribute::GLMode"), ...>()
template <int D, std::size_t N>
constexpr Text<N> handle(const char (&s)[N]) {
    Text<N> t(s);
    t.handle = D;
    return t;
}

// The parameters of a callable with each parameter spelled as a handle replaced by Handle<D, P>.
template <class P, Text... Spell>
struct Handles {
    using type = P;  // a count mismatch is reported by Call
};
template <class... A, Text... Spell>
    requires(sizeof...(A) == sizeof...(Spell))
struct Handles<List<A...>, Spell...> {
    using type = List<std::conditional_t<(Spell.handle < 0), A, Handle<Spell.handle, std::remove_cvref_t<A>>>...>;
};

// F with its result crossing as an opaque handle of descriptor D (a new owned heap copy):
//   K::fn<"getClearMask", returns_handle<ty::p_GLbitfield, &C::getClearMask>>()
template <int D, auto F>
constexpr auto returns_handle = []<class... A>(List<A...>) {
    using R = std::remove_cvref_t<typename Signature<std::remove_const_t<decltype(callable<F>())>>::Ret>;
    return +[](A... a) -> Handle<D, R> { return {std::invoke(callable<F>(), static_cast<A>(a)...)}; };
}(typename Signature<std::remove_const_t<decltype(callable<F>())>>::Params{});

// ---- policies: what the C++ type cannot say -------------------------------------------

enum class Result {
    Plain,    // by the result type: borrowed pointers and references, owned copies of values
    New,      // constructor: owned, no shadow instance
    InPlace,  // in-place operator: argument 1 disowned, the same pointer returned as it was owned
    Disown,   // destroy: argument 1 converted with the disown flag
};

// The reference a constructor takes on its new object.
enum class TakeRef { None, Count, Group };

struct Policy {
    Result result = Result::Plain;
    bool not_implemented = false;  // binary operator: a TypeError becomes NotImplemented
    TakeRef take_ref = TakeRef::None;
    bool exact = false;  // destroy by `delete`: argument 1 must be of the class itself
};

inline constexpr Policy plain{};
inline constexpr Policy binary_op{Result::Plain, true};
inline constexpr Policy in_place{Result::InPlace};
inline constexpr Policy disown{Result::Disown};
inline constexpr Policy disown_exact{Result::Disown, false, TakeRef::None, true};

// ---- messages -------------------------------------------------------------------------

template <Text Name, unsigned Index, Text Spelling>
struct ArgText {
    static constexpr auto spelling = Spelling;
    static constexpr auto plain =
        cat(Text("in method '"), Name, Text("', argument "), number<Index>(), Text(" of type '"), Spelling, Text("'"));
    static constexpr auto null_ref = cat(Text("invalid null reference "), plain);
};

template <class T>
inline void *address(T *p) {
    return const_cast<void *>(static_cast<const void *>(p));
}

inline PyObject *not_implemented(PyObject *r) {
    if (r || !PyErr_ExceptionMatches(PyExc_TypeError)) return r;
    PyErr_Clear();
    Py_RETURN_NOTIMPLEMENTED;
}

// ---- one bound call ---------------------------------------------------------------------

// Converts the arguments of callable F, calls it once and converts its result, raising
// the messages of the Python function `Name` with the spellings `Spell...` (argument 1 first).
template <Text Name, auto F, Policy P, Text... Spell>
struct Call {
    static constexpr Policy Policy_ = P;
    static constexpr auto fn = callable<F>();
    using Sig = Signature<std::remove_const_t<decltype(fn)>>;
    using Ret = typename Sig::Ret;
    using Params = typename Handles<typename Sig::Params, Spell...>::type;
    static constexpr std::size_t arity = Params::size;
    static_assert(sizeof...(Spell) == arity, "one type spelling per argument");

    template <std::size_t I>
    static constexpr auto spelling() {
        return std::get<I>(std::make_tuple(Spell...));
    }

    template <class L>
    struct Run;
    template <class... A>
    struct Run<List<A...>> {
        using Stores = std::tuple<typename Arg<A>::Store...>;

        template <std::size_t... I>
        static PyObject *call(PyObject *const *argv, std::index_sequence<I...>) {
            Stores v{};
            [[maybe_unused]] SwigPyObject *self = nullptr;
            // && folds left to right and stops at the first failure.
            if (!(convert<I, A>(argv[I], std::get<I>(v), self) && ...)) return nullptr;
            return invoke(v, self, argv, std::index_sequence<I...>{});
        }

        // A dispatcher's test of every argument, keeping the values it found (0, 1 or 2 as a
        // converter's probe answers).
        template <std::size_t... I>
        static int probe(PyObject *const *argv, Stores &v, SwigPyObject *&self, std::index_sequence<I...>) {
            int worst = 1;
            [[maybe_unused]] auto one = [&]<std::size_t J, class A1>(PyObject *o, typename Arg<A1>::Store &out) {
                int k;
                if constexpr (J == 0 && P.result == Result::InPlace) {
                    k = Arg<A1>::probe_self(o, out, self);
                } else {
                    k = Arg<A1>::probe(o, out);
                }
                worst = std::max(worst, k);
                return k != 0;
            };
            return (one.template operator()<I, A>(argv[I], std::get<I>(v)) && ...) ? worst : 0;
        }

        template <std::size_t... I>
        static PyObject *invoke(Stores &v, [[maybe_unused]] SwigPyObject *self, [[maybe_unused]] PyObject *const *argv,
                                std::index_sequence<I...>) {
            if constexpr (P.result == Result::InPlace) {
                // Only now that every argument converted does the incoming proxy give up
                // ownership, and the result owns exactly when it did: a borrowed proxy (of a
                // global's or a member's storage) must not turn into an owner of memory this
                // module never allocated, so a borrowed argument gives a borrowed result.
                // An object reached through a cast edge keeps its ownership: the result is a
                // proxy of the base part (the matrix inside a RefMatrixd), which no destroy
                // function of the base may free.
                int owned = self && self->ty == descriptor_for<0>() ? self->own : 0;
                if (owned) SwigPyObject_setown(self, 0);
                std::invoke(fn, Arg<A>::get(std::get<I>(v))...);
                return SWIG_Python_NewPointerObj(address(std::get<0>(v)), descriptor_for<0>(), owned);
            } else if constexpr (std::is_void_v<Ret>) {
                std::invoke(fn, Arg<A>::get(std::get<I>(v))...);
                Py_RETURN_NONE;
            } else if constexpr (P.result == Result::New) {
                auto *p = std::invoke(fn, Arg<A>::get(std::get<I>(v))...);
                PyObject *obj = SWIG_Python_NewPointerObj(p, descriptor<std::remove_pointer_t<Ret>>(), SWIG_POINTER_NEW);
                if constexpr (P.take_ref == TakeRef::Count) p->ref();
                if constexpr (P.take_ref == TakeRef::Group) osg::Group_reference(p);
                return obj;
            } else {
                if constexpr (CustomResult<std::remove_cvref_t<Ret>>) {  // told which object argument 1 was
                    return to_python<Ret>(std::invoke(fn, Arg<A>::get(std::get<I>(v))...), arity ? argv[0] : nullptr);
                } else {
                    return to_python<Ret>(std::invoke(fn, Arg<A>::get(std::get<I>(v))...));
                }
            }
        }

        template <std::size_t I>
        static swig_type_info *descriptor_for() {
            using S = std::tuple_element_t<I, std::tuple<typename Arg<A>::Store...>>;
            return descriptor<std::remove_pointer_t<S>>();
        }

        template <std::size_t I, class A1>
        static bool convert(PyObject *o, typename Arg<A1>::Store &out, SwigPyObject *&self) {
            using M = ArgText<Name, I + 1, spelling<I>()>;
            if constexpr (I == 0 && P.result == Result::InPlace) {
                return Arg<A1>::template convert_self<M>(o, out, self);
            } else if constexpr (I == 0 && P.exact) {
                return Arg<A1>::template convert_exact<M>(o, out);
            } else {
                constexpr int flags = (I == 0 && P.result == Result::Disown) ? SWIG_POINTER_DISOWN : 0;
                return Arg<A1>::template convert<M>(o, out, flags);
            }
        }

    };

    using Stores = typename Run<Params>::Stores;
    static PyObject *call(PyObject *const *argv) {
        return Run<Params>::call(argv, std::make_index_sequence<arity>{});
    }
    static int probe(PyObject *const *argv, Stores &v, SwigPyObject *&self) {
        return Run<Params>::probe(argv, v, self, std::make_index_sequence<arity>{});
    }
    static PyObject *invoke(Stores &v, SwigPyObject *self, PyObject *const *argv) {
        return Run<Params>::invoke(v, self, argv, std::make_index_sequence<arity>{});
    }
};

// ---- calling conventions ---------------------------------------------------------------

// A function without overloads: METH_NOARGS, METH_O or METH_VARARGS by its arity.
template <Text Name, class C, Policy P>
struct Single {
    static constexpr std::size_t n = C::arity;
    static constexpr int flags = n == 0 ? METH_NOARGS : n == 1 ? METH_O : METH_VARARGS;

    static PyObject *finish(PyObject *r) {
        if constexpr (P.not_implemented) return not_implemented(r);
        return r;
    }

    static PyObject *wrapper(PyObject *, PyObject *args) {
        if constexpr (n == 1) {
            if (!args) return nullptr;
            return finish(C::call(&args));
        } else {
            if (!args) {
                if constexpr (n == 0) return finish(C::call(nullptr));
                PyErr_Format(PyExc_TypeError, "%s expected %s%d arguments, got none", Static<Name>::c_str(), "", (int)n);
                return finish(nullptr);
            }
            if (!PyTuple_Check(args)) {
                PyErr_SetString(PyExc_SystemError, "UnpackTuple() argument list is not a tuple");
                return finish(nullptr);
            }
            if (PyTuple_GET_SIZE(args) != (Py_ssize_t)n) {
                PyErr_Format(PyExc_TypeError, "%s expected %s%d arguments, got %d", Static<Name>::c_str(), "", (int)n,
                             (int)PyTuple_GET_SIZE(args));
                return finish(nullptr);
            }
            return finish(C::call(&PyTuple_GET_ITEM(args, 0)));
        }
    }

    static constexpr Py_ssize_t min_args = n, max_args = n;
    static PyObject *fast(PyObject *const *args, Py_ssize_t) { return finish(C::call(args)); }
};

// ---- overload dispatch ----------------------------------------------------------------

// A candidate of a dispatcher: its prototype for the overload message, the callable and
// its argument spellings. The dispatcher supplies the Python name and the policy.
template <Text Proto, auto F, Text... Spell>
struct Cand {
    static constexpr auto proto = Proto;
    template <Text Name, Policy P>
    using bound = Call<Name, F, P, Spell...>;
    using Params = typename Call<Text("?"), F, plain, Spell...>::Params;
};

// Whether a candidate with parameters A is tried before one with B of the same arity:
// at the first parameter whose type differs, a wrapped class goes before a number.
template <class A, class B>
struct TriedBefore {
    static constexpr bool value = false;
};
template <class... PA, class... PB>
    requires(sizeof...(PA) == sizeof...(PB))
struct TriedBefore<List<PA...>, List<PB...>> {
    static constexpr bool value = [] {
        const bool same[] = {true, std::is_same_v<PA, PB>...};
        const Rank ra[] = {Rank::Class, Arg<PA>::rank...};
        const Rank rb[] = {Rank::Class, Arg<PB>::rank...};
        for (std::size_t i = 1; i <= sizeof...(PA); ++i) {
            if (!same[i]) return ra[i] == Rank::Class && rb[i] == Rank::Other;
        }
        return false;
    }();
};

// An explicit try order, for the few dispatchers whose order is not the ranked one.
template <std::size_t... I>
struct Order {};

template <class... C>
constexpr auto ranked_order() {
    constexpr std::size_t n = sizeof...(C);
    using P = std::tuple<typename C::Params...>;
    std::array<std::size_t, n> order{};
    for (std::size_t i = 0; i < n; ++i) order[i] = i;
    auto before = [&]<std::size_t... I>(std::index_sequence<I...>) {
        std::array<std::array<bool, n>, n> b{};
        (([&]<std::size_t X>() {
             ((b[X][I] = TriedBefore<std::tuple_element_t<X, P>, std::tuple_element_t<I, P>>::value), ...);
         }.template operator()<I>()),
         ...);
        return b;
    }(std::make_index_sequence<n>{});
    // Stable insertion sort: equal ranks keep declaration order.
    for (std::size_t i = 1; i < n; ++i) {
        for (std::size_t j = i; j > 0 && before[order[j]][order[j - 1]]; --j) std::swap(order[j], order[j - 1]);
    }
    return order;
}

template <class... C, std::size_t... I>
constexpr auto try_order(Order<I...>) {
    if constexpr (sizeof...(I) == 0) {
        return ranked_order<C...>();
    } else {
        static_assert(sizeof...(I) == sizeof...(C), "the try order names every candidate once");
        return std::array<std::size_t, sizeof...(C)>{I...};
    }
}

template <Text Name, Policy P, class TryOrder, class... C>
struct Dispatch {
    static constexpr std::size_t max_arity = std::max({C::template bound<Name, P>::arity...});
    static constexpr auto message =
        cat(Text("Wrong number or type of arguments for overloaded function '"), Name,
            Text("'.\n  Possible C/C++ prototypes are:\n"), cat(Text("    "), C::proto, Text("\n"))...);
    static constexpr auto doc = join<"\n">(C::proto...);
    static constexpr int flags = METH_VARARGS;
    static constexpr Policy candidate_policy{P.result, false, P.take_ref};
    static constexpr auto order = try_order<C...>(TryOrder{});

    // `tested` holds the arguments as the candidates' tests take them: a proxy as its pointer
    // object, found once for all candidates rather than once a candidate.
    template <std::size_t K>
    static bool try_one(PyObject *const *argv, PyObject *const *tested, Py_ssize_t argc, PyObject *&result) {
        using B = typename std::tuple_element_t<order[K], std::tuple<C...>>::template bound<Name, candidate_policy>;
        if ((Py_ssize_t)B::arity != argc) return false;
        typename B::Stores v{};
        SwigPyObject *self = nullptr;
        int fit = B::probe(tested, v, self);
        if (!fit) return false;
        // What the test kept is the conversion; a converter with more to say converts anew.
        result = fit == 1 ? B::invoke(v, self, argv) : B::call(argv);
        return true;
    }

    static bool run(PyObject *const *argv, Py_ssize_t argc, PyObject *&result) {
        PyObject *tested[max_arity + 1];
        for (Py_ssize_t i = 0; i < argc; ++i) {
            PyObject *a = argv[i];
            bool value = a == Py_None || PyFloat_CheckExact(a) || PyLong_CheckExact(a) || PyBool_Check(a) ||
                         PyUnicode_CheckExact(a);
            SwigPyObject *s = value ? nullptr : SWIG_Python_GetSwigThis(a);
            tested[i] = s ? (PyObject *)s : a;
        }
        return [&]<std::size_t... K>(std::index_sequence<K...>) {
            return (try_one<K>(argv, tested, argc, result) || ...);
        }(std::make_index_sequence<sizeof...(C)>{});
    }

    static PyObject *dispatch(PyObject *args) {
        PyObject *argv[max_arity + 1] = {};
        Py_ssize_t argc = SWIG_Python_UnpackTuple(args, Static<Name>::c_str(), 0, max_arity, argv);
        PyObject *result = nullptr;
        if (argc && run(argv, argc - 1, result)) return result;
        SWIG_Python_RaiseOrModifyTypeError(message.v);
        return nullptr;
    }

    static PyObject *wrapper(PyObject *, PyObject *args) {
        if constexpr (P.not_implemented) return not_implemented(dispatch(args));
        return dispatch(args);
    }

    // The same for a count the unpacking takes, without the tuple.
    static constexpr Py_ssize_t min_args = 0, max_args = max_arity;
    static PyObject *fast(PyObject *const *args, Py_ssize_t argc) {
        PyObject *result = nullptr;
        bool found = run(args, argc, result);
        if (!found) SWIG_Python_RaiseOrModifyTypeError(message.v);
        if constexpr (P.not_implemented) return not_implemented(found ? result : nullptr);
        return found ? result : nullptr;
    }
};

// ---- fast entries: every row's wrapper without its argument tuple -----------------------

inline std::vector<swig_fast_entry> &fast_entries() {
    static std::vector<swig_fast_entry> entries;
    return entries;
}

template <class W>
struct Fast {
    static inline const bool registered = (fast_entries().push_back({W::wrapper, W::fast, W::min_args, W::max_args}), true);
};

// The module's entries sorted, for its swig_module_info's client data.
inline swig_fast_table *fast_table() {
    static swig_fast_table table{};
    auto &e = fast_entries();
    std::sort(e.begin(), e.end(), [](const swig_fast_entry &a, const swig_fast_entry &b) {
        return std::less<const void *>()((const void *)a.wrapper, (const void *)b.wrapper);
    });
    table = {SWIG_FAST_TABLE_MAGIC, e.data(), e.size()};
    return &table;
}

// ---- rows described as data ---------------------------------------------------------------

// Every row also leaves a record of what it binds, read by the build step that exports the
// tables (tools/describe.cpp) and by nothing in the module itself.
struct ParamInfo {
    const char *spelling;
    const char *kind;  // Arg<P>::kind
    int descriptor;    // index into the type table, -1 for numbers, bools and C strings
    bool is_const;     // of a reference or pointer's target
};

struct CandidateInfo {
    const char *prototype;
    const ParamInfo *params;
    std::size_t count;
    ResultKind result;
};

struct RowInfo {
    const char *name;
    const char *owner;   // the class spelling ("osg::Vec3f"), empty for free functions
    const char *prefix;  // the class's Python prefix ("Vec3f")
    const char *policy;  // plain, new, inplace, disown
    bool not_implemented;
    const char *take_ref;  // none, count, group
    const CandidateInfo *candidates;
    std::size_t count;
};

inline std::vector<const RowInfo *> &described_rows() {
    static std::vector<const RowInfo *> rows;
    return rows;
}

constexpr const char *policy_name(Result r) {
    return r == Result::New ? "new" : r == Result::InPlace ? "inplace" : r == Result::Disown ? "disown" : "plain";
}
constexpr const char *take_ref_name(TakeRef r) { return r == TakeRef::Count ? "count" : r == TakeRef::Group ? "group" : "none"; }

template <class A>
constexpr bool target_const = std::is_const_v<std::remove_pointer_t<std::remove_reference_t<A>>>;

// One candidate: a Call's parameters with their spellings and its result.
template <Text Proto, class C>
struct CandidateOf {
    template <class L>
    struct Params;
    template <class... A>
    struct Params<List<A...>> {
        template <std::size_t... I>
        static constexpr auto make(std::index_sequence<I...>) {
            return std::array<ParamInfo, sizeof...(A) + 1>{
                ParamInfo{Static<C::template spelling<I>()>::c_str(), Arg<A>::kind, param_descriptor<A>(), target_const<A>}...,
                ParamInfo{}};
        }
        static constexpr auto value = make(std::index_sequence_for<A...>{});
    };
    using P = Params<typename C::Params>;
    static constexpr ResultKind result =
        C::Policy_.result == Result::New ? ResultKind{"new", result_kind<typename C::Ret>().descriptor, 1}
        : C::Policy_.result == Result::InPlace ? ResultKind{"inplace", param_descriptor<typename C::Params::First>(), 1}
                                               : result_kind<typename C::Ret>();
    static constexpr CandidateInfo info{Static<Proto>::c_str(), P::value.data(), C::arity, result};
};

template <Text Name, Text Owner, Text Prefix, Policy P, class... Cands>
struct Described {
    static constexpr CandidateInfo candidates[] = {Cands::info...};
    static constexpr RowInfo info{Static<Name>::c_str(), Static<Owner>::c_str(), Static<Prefix>::c_str(),
                                  policy_name(P.result), P.not_implemented, take_ref_name(P.take_ref), candidates,
                                  sizeof...(Cands)};
    static inline const bool registered = (described_rows().push_back(&info), true);
};

// ---- short forms: a member's trailing default arguments ----------------------------------

// Several candidates given as one, spliced into the dispatcher in place (see forms<...>).
template <class... C>
struct Cands {};

template <class Done, class... C>
struct Flat {
    using type = Done;
};
template <class... D, class C, class... Rest>
struct Flat<Cands<D...>, C, Rest...> : Flat<Cands<D..., C>, Rest...> {};
template <class... D, class... E, class... Rest>
struct Flat<Cands<D...>, Cands<E...>, Rest...> : Flat<Cands<D..., E...>, Rest...> {};

template <Text Name, Policy P, class TryOrder, class L>
struct Spliced;
template <Text Name, Policy P, class TryOrder, class... C>
struct Spliced<Name, P, TryOrder, Cands<C...>> {
    using type = Dispatch<Name, P, TryOrder, C...>;
};
template <Text Name, Policy P, class TryOrder, class... C>
using DispatchOf = typename Spliced<Name, P, TryOrder, typename Flat<Cands<>, C...>::type>::type;

template <std::size_t I, Text... S>
inline constexpr auto nth_text = std::get<I>(std::make_tuple(S...));

// The form of a member that passes its first sizeof...(I) parameters: Invoke, a captureless
// generic lambda naming the member, called through a function pointer of exactly those types.
template <class K, Text Member, auto Invoke, class Self, class Args, class Index, Text... Spell>
struct Form;
template <class K, Text Member, auto Invoke, class Self, class... A, std::size_t... I, Text... Spell>
struct Form<K, Member, Invoke, Self, std::tuple<A...>, std::index_sequence<I...>, Spell...> {
    template <std::size_t J>
    using P = std::tuple_element_t<J, std::tuple<A...>>;
    using R = decltype(Invoke(std::declval<Self>(), std::declval<P<I>>()...));
    static constexpr auto fn = static_cast<R (*)(Self, P<I>...)>(Invoke);
    using type = typename K::template m<Member, fn, nth_text<I, Spell...>...>;
};

// All forms of a member whose parameters after the first Min have defaults, longest first.
template <class K, Text Member, auto Invoke, std::size_t Min, class Params, Text... Spell>
struct Forms;
template <class K, Text Member, auto Invoke, std::size_t Min, class Self, class... A, Text... Spell>
struct Forms<K, Member, Invoke, Min, List<Self, A...>, Spell...> {
    static_assert(sizeof...(A) == sizeof...(Spell) && Min <= sizeof...(A), "one spelling per parameter");
    template <std::size_t... J>
    static auto make(std::index_sequence<J...>)
        -> Cands<typename Form<K, Member, Invoke, Self, std::tuple<A...>, std::make_index_sequence<sizeof...(A) - J>,
                               Spell...>::type...>;
    using type = decltype(make(std::make_index_sequence<sizeof...(A) - Min + 1>{}));
};

// ---- rows -----------------------------------------------------------------------------

using Row = PyMethodDef;

template <class W, Text Doc>
struct Describe;
template <Text Name, class C, Policy P, Text Doc>
struct Describe<Single<Name, C, P>, Doc> {
    template <Text N, Text Owner, Text Prefix>
    using as = Described<N, Owner, Prefix, P, CandidateOf<Doc, C>>;
};
template <Text Name, Policy P, class TryOrder, class... C, Text Doc>
struct Describe<Dispatch<Name, P, TryOrder, C...>, Doc> {
    static constexpr Policy candidate_policy{P.result, false, P.take_ref};
    template <Text N, Text Owner, Text Prefix>
    using as = Described<N, Owner, Prefix, P, CandidateOf<C::proto, typename C::template bound<Name, candidate_policy>>...>;
};

// A method-table entry; its docstring starts as the C++ prototypes the row binds, one a
// line (the module adds OSG's header comments to it when it loads). Owner and Prefix name
// the class whose table the row belongs to, for the row's description.
template <class W, Text Name, Text Doc, Text Owner = Text(""), Text Prefix = Text("")>
constexpr Row row() {
    (void)&Describe<W, Doc>::template as<Name, Owner, Prefix>::registered;
    (void)&Fast<W>::registered;
    return {Static<Name>::c_str(), W::wrapper, W::flags, Static<Doc>::c_str()};
}
// A dispatcher documents itself: its candidates' prototypes.
template <class W, Text Name>
constexpr Row row() {
    return row<W, Name, W::doc>();
}

template <class... C>
constexpr auto prototypes() {
    return join<"\n">(C::proto...);
}

// The C++ member a Python name binds: the operators by their C++ spelling.
template <Text Suffix>
constexpr auto cxx_member() {
    constexpr std::string_view s(Suffix.v);
    if constexpr (s == "__eq__") return Text("operator ==");
    else if constexpr (s == "__ne__") return Text("operator !=");
    else if constexpr (s == "__lt__") return Text("operator <");
    else if constexpr (s == "__add__") return Text("operator +");
    else if constexpr (s == "__sub__" || s == "__neg__") return Text("operator -");
    else if constexpr (s == "__mul__") return Text("operator *");
    else if constexpr (s == "__truediv__") return Text("operator /");
    else if constexpr (s == "__xor__") return Text("operator ^");
    else if constexpr (s == "__iadd__") return Text("operator +=");
    else if constexpr (s == "__isub__") return Text("operator -=");
    else if constexpr (s == "__imul__") return Text("operator *=");
    else if constexpr (s == "__itruediv__") return Text("operator /=");
    else if constexpr (s == "__call__") return Text("operator ()");
    else if constexpr (s == "__getitem__" || s == "__setitem__") return Text("operator []");
    else return Suffix;
}

// The last "::"-separated component of a qualified name: "osg::Vec3f" -> "Vec3f".
template <Text Q>
constexpr auto unqualified() {
    constexpr std::size_t start = [] {
        std::size_t s = 0;
        for (std::size_t i = 0; i + 1 < Q.length; ++i)
            if (Q.v[i] == ':' && Q.v[i + 1] == ':') s = i + 2;
        return s;
    }();
    Text<Q.length - start + 1> out;
    for (std::size_t i = start; i <= Q.length; ++i) out.v[i - start] = Q.v[i];
    return out;
}

template <Text Qualified, bool Const, Text... Spell>
constexpr auto prototype() {
    if constexpr (Const) {
        return cat(Qualified, Text("("), join<",">(Spell...), Text(") const"));
    } else {
        return cat(Qualified, Text("("), join<",">(Spell...), Text(")"));
    }
}

template <class T, class... A>
T *construct(A... a) {
    return new T(std::forward<A>(a)...);
}

// Rows of free functions and static members, named in full.
template <Text Name, auto F, Text... Spell>
constexpr Row fn() {
    return row<Single<Name, Call<Name, F, plain, Spell...>, plain>, Name,
               prototype<cat(Text("osg::"), Name), false, Spell...>()>();
}

template <Text Name, class... C>
constexpr Row overload() {
    return row<DispatchOf<Name, plain, Order<>, C...>, Name>();
}

// A free function of another namespace, named in Python by its last component:
//   qualified_fn<"osgDB::readNodeFile", F, "std::string const &">()  -> readNodeFile
template <Text Qualified, auto F, Text... Spell>
constexpr Row qualified_fn() {
    constexpr auto name = unqualified<Qualified>();
    return row<Single<name, Call<name, F, plain, Spell...>, plain>, name, prototype<Qualified, false, Spell...>()>();
}

// A candidate free function, e.g. fc<"osg::notify", F, "osg::NotifySeverity const">.
template <Text Qualified, auto F, Text... Spell>
using fc = Cand<prototype<Qualified, false, Spell...>(), F, Spell...>;

// A free binary operator: when no candidate matches, NotImplemented.
template <Text Name, class... C>
constexpr Row overload_op() {
    return row<Dispatch<Name, binary_op, Order<>, C...>, Name>();
}

// For families written as templates over the class: K's candidates without
// `typename K::template` at every use.
template <class K, Text Member, auto F, Text... Spell>
using mem = typename K::template m<Member, F, Spell...>;
template <class K, Text Member, auto F, Text... Spell>
using smem = typename K::template sm<Member, F, Spell...>;
template <class K, class Args, Text... Spell>
struct CtorOf;
template <class K, class... A, Text... Spell>
struct CtorOf<K, List<A...>, Spell...> {
    using type = typename K::template with<A...>::template c<Spell...>;
};
template <class K, class Args, Text... Spell>
using ctor_of = typename CtorOf<K, Args, Spell...>::type;

// The same type N times, for long uniform signatures: Same<I, T>... over an index sequence.
template <std::size_t, class T>
using Same = T;
template <std::size_t, Text S>
inline constexpr auto same_text = S;

// Rows of one wrapped class T, spelled `Spelling` in messages, whose Python names are
// "<Prefix>_<suffix>". Argument 1 of a member is spelled "<Spelling> *", or
// "<Spelling> const *" for a const member.
template <class T, Text Spelling, Text Prefix>
struct Class {
    template <Text Suffix>
    static constexpr auto name = cat(Prefix, Text("_"), Suffix);
    static constexpr auto new_name = cat(Text("new_"), Prefix);
    static constexpr auto delete_name = cat(Text("delete_"), Prefix);

    template <auto F>
    static constexpr bool const_self =
        std::is_const_v<std::remove_pointer_t<typename Signature<std::remove_const_t<decltype(callable<F>())>>::Params::First>>;

    template <auto F>
    static constexpr auto self() {
        if constexpr (const_self<F>) {
            return cat(Spelling, Text(" const *"));
        } else {
            return cat(Spelling, Text(" *"));
        }
    }

    // A row of this class's table.
    template <class W, Text N, Text Doc>
    static constexpr Row crow() { return row<W, N, Doc, Spelling, Prefix>(); }
    template <class W, Text N>
    static constexpr Row crow() { return row<W, N, W::doc, Spelling, Prefix>(); }

    template <Text Member>
    static constexpr auto qualified = cat(Spelling, Text("::"), Member);

    template <Text Suffix, auto F, Policy P, Text... Spell>
    static constexpr Row single() {
        return crow<Single<name<Suffix>, Call<name<Suffix>, F, P, self<F>(), Spell...>, P>, name<Suffix>,
                   prototype<qualified<cxx_member<Suffix>()>, const_self<F>, Spell...>()>();
    }

    // One member (or a callable whose argument 1 is the object).
    template <Text Suffix, auto F, Text... Spell>
    static constexpr Row fn() { return single<Suffix, F, plain, Spell...>(); }
    // A binary operator: mismatched arguments answer NotImplemented.
    template <Text Suffix, auto F, Text... Spell>
    static constexpr Row op() { return single<Suffix, F, binary_op, Spell...>(); }
    // An in-place operator: ownership moves from argument 1 to the result.
    template <Text Suffix, auto F, Text... Spell>
    static constexpr Row inplace() { return single<Suffix, F, in_place, Spell...>(); }
    // A static member: no object argument.
    template <Text Suffix, auto F, Text... Spell>
    static constexpr Row static_fn() {
        return crow<Single<name<Suffix>, Call<name<Suffix>, F, plain, Spell...>, plain>, name<Suffix>,
                   prototype<qualified<Suffix>, false, Spell...>()>();
    }
    // delete_<Prefix>: argument 1 disowned, then the action.
    template <auto Action, Policy P = disown>
    static constexpr Row dtor() {
        return crow<Single<delete_name, Call<delete_name, Action, P, cat(Spelling, Text(" *"))>, P>,
                   delete_name, cat(qualified<cat(Text("~"), unqualified<Spelling>())>, Text("()"))>();
    }

    static void unref_object(T *p) { p->unref(); }
    static void delete_object(T *p) { delete p; }
    // delete_<Prefix> for a reference-counted class: one unref().
    static constexpr Row dtor_unref() { return dtor<unref_object>(); }
    // delete_<Prefix> for a plain value: delete.
    // Deleting a derived object through T * is undefined, so only T itself is accepted.
    static constexpr Row dtor_delete() { return dtor<delete_object, disown_exact>(); }
    // <Prefix>_swigregister and <Prefix>_swiginit, the class hooks of the companion layer.
    static constexpr Row register_hook() {
        return register_row<descriptor_of<T>>(Static<cat(Prefix, Text("_swigregister"))>::c_str());
    }
    static constexpr Row init_hook() { return init_row(Static<cat(Prefix, Text("_swiginit"))>::c_str()); }
    // releaseGLObjects(osg::State * = 0) const, which every object class repeats: the full form,
    // then the short one.
    static constexpr Row release_gl_objects() {
        return overload<"releaseGLObjects",
                        m<"releaseGLObjects", [](const T *self, osg::State *state) { self->releaseGLObjects(state); },
                          "osg::State *">,
                        m<"releaseGLObjects", [](const T *self) { self->releaseGLObjects(); }>>();
    }

    // A candidate member named `Member` in the prototype.
    template <Text Member, auto F, Text... Spell>
    using m = Cand<prototype<cat(Spelling, Text("::"), Member), const_self<F>, Spell...>(), F, self<F>(), Spell...>;
    // A candidate static member: no object argument.
    template <Text Member, auto F, Text... Spell>
    using sm = Cand<prototype<cat(Spelling, Text("::"), Member), false, Spell...>(), F, Spell...>;
    // A candidate constructor taking A..., spelled Spell...
    template <class... A>
    struct with {
        template <Text... Spell>
        using c = Cand<prototype<cat(Spelling, Text("::"), unqualified<Spelling>()), false, Spell...>(), &construct<T, A...>,
                       Spell...>;
    };

    template <Text Suffix, class... C>
    static constexpr Row overload() {
        return crow<DispatchOf<name<Suffix>, plain, Order<>, C...>, name<Suffix>>();
    }
    // The forms of a member with trailing defaults, longest first down to Min parameters after
    // the object; Invoke names the member, so the library's own defaults fill in the rest:
    //   forms<"resize", [](C *c, auto... a) { c->resize(a...); }, 2, List<C *, int, int, int>, "int", "int", "int">
    template <Text Member, auto Invoke, std::size_t Min, class Params, Text... Spell>
    using forms = typename Forms<Class, Member, Invoke, Min, Params, Spell...>::type;
    // A const/non-const accessor pair; the non-const member, listed first, is always taken.
    // Spell... spells the arguments both members share.
    template <Text Member, auto NonConst, auto Const, Text... Spell>
    static constexpr Row pair() {
        return overload<Member, m<Member, NonConst, Spell...>, m<Member, Const, Spell...>>();
    }
    template <Text Suffix, class... C>
    static constexpr Row overload_op() {
        return crow<Dispatch<name<Suffix>, binary_op, Order<>, C...>, name<Suffix>>();
    }
    template <Text Suffix, class... C>
    static constexpr Row overload_inplace() {
        return crow<Dispatch<name<Suffix>, in_place, Order<>, C...>, name<Suffix>>();
    }
    template <Text Suffix, class TryOrder, class... C>
    static constexpr Row overload_ordered() {
        return crow<Dispatch<name<Suffix>, plain, TryOrder, C...>, name<Suffix>>();
    }

    // new_<Prefix>: one constructor, or a dispatcher over several.
    template <TakeRef R, class... C>
    static constexpr Row ctor() {
        constexpr Policy p{Result::New, false, R};
        if constexpr (sizeof...(C) == 1) {
            return crow<Single<new_name, typename C::template bound<new_name, p>..., p>, new_name, prototypes<C...>()>();
        } else {
            return crow<Dispatch<new_name, p, Order<>, C...>, new_name>();
        }
    }
};

}  // namespace wrap
