// Argument and result converters, chosen from the C++ type alone.
#pragma once
#include "platform/zog_osg.h"
#include "wrap/descriptor.h"
#include "wrap/text.h"

#include <climits>
#include <cstring>
#include <limits>
#include <type_traits>

namespace wrap {

// A converter's probe is a dispatcher's type test that keeps what it found: 0 when the
// object does not fit, 1 when it fits and the stored value is the conversion, 2 when it
// fits but only the full conversion can say what is wrong with it (a null reference).
//
// Every converter takes the argument's message texts as a type M: M::plain is
// "in method '...', argument N of type '...'", M::null_ref the same prefixed by
// "invalid null reference ", M::spelling the declared type.
inline bool fail(PyObject *type, const char *message) {
    SWIG_Python_SetErrorMsg(type, message);
    return false;
}

// Rank used to order overload candidates: wrapped classes are tried before numbers.
enum class Rank { Class, Other };

template <class P>
struct Arg;

// ---- wrapped pointers and references ----------------------------------------------

template <Wrapped T>
struct Arg<T *> {
    using Store = T *;
    static constexpr Rank rank = Rank::Class;
    static constexpr const char *kind = "pointer";
    template <class M>
    static bool convert(PyObject *o, Store &out, int flags) {
        void *p = nullptr;
        if (SWIG_Python_ConvertPtrAndOwn(o, &p, descriptor<T>(), flags) != SWIG_OK) return fail(PyExc_TypeError, M::plain.v);
        out = static_cast<T *>(p);
        return true;
    }
    // The object of an in-place operator: the matched pointer object is reported too, so
    // that its ownership can move once every other argument has converted.
    template <class M>
    static bool convert_self(PyObject *o, Store &out, SwigPyObject *&matched) {
        void *p = nullptr;
        if (SWIG_Python_ConvertPtrMatch(o, &p, descriptor<T>(), 0, &matched) != SWIG_OK)
            return fail(PyExc_TypeError, M::plain.v);
        out = static_cast<T *>(p);
        return true;
    }
    // The object of a destroy by `delete`: a pointer object of T's own descriptor (or None),
    // disowned; one reached through a cast edge is refused before it gives up ownership.
    template <class M>
    static bool convert_exact(PyObject *o, Store &out) {
        if (Py_TYPE(o) == SwigPyObject_cached && ((SwigPyObject *)o)->ty == descriptor<T>()) {  // as below, sooner
            SwigPyObject_setown((SwigPyObject *)o, 0);
            out = static_cast<T *>(((SwigPyObject *)o)->ptr);
            return true;
        }
        void *p = nullptr;
        SwigPyObject *matched = nullptr;
        if (SWIG_Python_ConvertPtrMatch(o, &p, descriptor<T>(), 0, &matched) != SWIG_OK ||
            (matched && matched->ty != descriptor<T>()))
            return fail(PyExc_TypeError, M::plain.v);
        if (matched) SwigPyObject_setown(matched, 0);
        out = static_cast<T *>(p);
        return true;
    }
    static int probe(PyObject *o, Store &out) {
        void *p = nullptr;
        if (SWIG_ConvertPtr(o, &p, descriptor<T>()) != SWIG_OK) return 0;
        out = static_cast<T *>(p);
        return 1;
    }
    static int probe_self(PyObject *o, Store &out, SwigPyObject *&matched) {
        void *p = nullptr;
        if (SWIG_Python_ConvertPtrMatch(o, &p, descriptor<T>(), 0, &matched) != SWIG_OK) return 0;
        out = static_cast<T *>(p);
        return 1;
    }
    static T *get(Store s) { return s; }
};

template <Wrapped T>
struct Arg<T &> {
    using Store = T *;
    static constexpr Rank rank = Rank::Class;
    static constexpr const char *kind = "reference";
    template <class M>
    static bool convert(PyObject *o, Store &out, int) {
        void *p = nullptr;
        if (SWIG_ConvertPtr(o, &p, descriptor<T>()) != SWIG_OK) return fail(PyExc_TypeError, M::plain.v);
        if (!p) return fail(PyExc_TypeError, M::null_ref.v);
        out = static_cast<T *>(p);
        return true;
    }
    // A proxy holding null passes the test; only its conversion can report it.
    static int probe(PyObject *o, Store &out) {
        void *p = nullptr;
        if (SWIG_Python_ConvertPtrAndOwn(o, &p, descriptor<T>(), SWIG_POINTER_NO_NULL) != SWIG_OK) return 0;
        out = static_cast<T *>(p);
        return p ? 1 : 2;
    }
    static T &get(Store s) { return *s; }
};

// ---- scalars ----------------------------------------------------------------------

template <class T>
struct Scalar {
    using Store = T;
    static constexpr Rank rank = Rank::Other;
    static constexpr const char *kind = "scalar";
    static int as(PyObject *o, T *v) {
        if constexpr (std::is_same_v<T, double>) {
            return SWIG_AsVal_double(o, v);
        } else if constexpr (std::is_same_v<T, float>) {
            return SWIG_AsVal_float(o, v);
        } else if constexpr (std::is_same_v<T, unsigned long>) {
            return SWIG_AsVal_unsigned_SS_long(o, v);
        } else if constexpr (std::is_same_v<T, long>) {
            return SWIG_AsVal_long(o, v);
        } else if constexpr (std::is_unsigned_v<T>) {
            unsigned long l;
            int res = SWIG_AsVal_unsigned_SS_long(o, &l);
            if (res < 0) return res;
            if (l > std::numeric_limits<T>::max()) return SWIG_OverflowError;
            if (v) *v = static_cast<T>(l);
            return res;
        } else {  // int, short and enumerations, through long with a range check
            using I = std::conditional_t<std::is_enum_v<T>, int, T>;
            long l;
            int res = SWIG_AsVal_long(o, &l);
            if (res < 0) return res;
            if (l < std::numeric_limits<I>::min() || l > std::numeric_limits<I>::max()) return SWIG_OverflowError;
            if (v) *v = static_cast<T>(l);
            return res;
        }
    }
    template <class M>
    static bool convert(PyObject *o, Store &out, int) {
        int res = as(o, &out);
        if (res < 0) return fail(SWIG_Python_ErrorType(res), M::plain.v);
        return true;
    }
    static int probe(PyObject *o, Store &out) { return as(o, &out) >= 0; }
    static T get(Store s) { return s; }
};

template <class T>
    requires(std::is_arithmetic_v<T> || std::is_enum_v<T>)
struct Arg<T> : Scalar<T> {};

template <class T>
    requires(std::is_arithmetic_v<T> || std::is_enum_v<T>)
struct Arg<const T> : Scalar<T> {};

// Only True and False are booleans.
template <>
struct Arg<bool> {
    using Store = bool;
    static constexpr Rank rank = Rank::Other;
    static constexpr const char *kind = "bool";
    template <class M>
    static bool convert(PyObject *o, Store &out, int) {
        int r = PyBool_Check(o) ? PyObject_IsTrue(o) : -1;
        if (r < 0) return fail(PyExc_TypeError, M::plain.v);
        out = r != 0;
        return true;
    }
    static int probe(PyObject *o, Store &out) {
        out = o == Py_True;
        return PyBool_Check(o);
    }
    static bool get(Store s) { return s; }
};

// ---- C strings: a str, a char * proxy, or None --------------------------------------

inline swig_type_info *pchar_descriptor() {
    static swig_type_info *info = nullptr;
    if (!info) info = SWIG_Python_TypeQuery("_p_char");
    return info;
}

inline bool as_cstring(PyObject *o, const char **out) {
    if (PyUnicode_Check(o)) {
        Py_ssize_t n;
        const char *s = PyUnicode_AsUTF8AndSize(o, &n);
        if (!s) {
            PyErr_Clear();
            return false;
        }
        if (out) *out = s;
        return true;
    }
    swig_type_info *pchar = pchar_descriptor();
    void *p = nullptr;
    if (!pchar || SWIG_ConvertPtr(o, &p, pchar) != SWIG_OK) return false;
    if (out) *out = static_cast<const char *>(p);
    return true;
}

template <>
struct Arg<const char *> {
    using Store = const char *;
    static constexpr Rank rank = Rank::Other;
    static constexpr const char *kind = "cstring";
    template <class M>
    static bool convert(PyObject *o, Store &out, int) {
        return as_cstring(o, &out) || fail(PyExc_TypeError, M::plain.v);
    }
    static int probe(PyObject *o, Store &out) { return as_cstring(o, &out); }
    static const char *get(Store s) { return s; }
};

// ---- a member array's source: N elements behind a pointer proxy of the element type ----

template <class T, std::size_t N>
struct ArrayIn {
    T *data;
};

template <class T, std::size_t N>
struct Arg<ArrayIn<T, N>> {
    using Store = ArrayIn<T, N>;
    static constexpr Rank rank = Rank::Class;
    static constexpr const char *kind = "array";
    static constexpr int descriptor_index = descriptor_of<T>;
    template <class M>
    static bool convert(PyObject *o, Store &out, int) {
        static constexpr auto null_var = cat(Text("invalid null reference in variable '_v' of type '"), M::spelling, Text("'"));
        void *p = nullptr;
        if (SWIG_ConvertPtr(o, &p, descriptor<T>()) != SWIG_OK) return fail(PyExc_TypeError, M::plain.v);
        if (!p) return fail(PyExc_TypeError, null_var.v);
        out.data = static_cast<T *>(p);
        return true;
    }
    static int probe(PyObject *o, Store &out) {
        void *p = nullptr;
        if (SWIG_ConvertPtr(o, &p, descriptor<T>()) != SWIG_OK) return 0;
        out.data = static_cast<T *>(p);
        return p ? 1 : 2;
    }
    static Store get(Store s) { return s; }
};

// ---- opaque handles: a value that crosses only as a pointer proxy of descriptor D ----

// GLenum and GLbitfield are both unsigned int, so the type cannot choose the descriptor:
// the row does, through the argument's spelling or a result adapter (engine.h).
template <int D, class T>
struct Handle {
    static constexpr int descriptor = D;
    T value;
};

template <class T>
inline constexpr bool is_handle = false;
template <int D, class T>
inline constexpr bool is_handle<Handle<D, T>> = true;

// The value is copied out of the proxy's pointer; None and null pointers are refused.
template <int D, class T>
struct Arg<Handle<D, T>> {
    using Store = T *;
    static constexpr Rank rank = Rank::Class;
    static constexpr const char *kind = "handle";
    static constexpr int descriptor_index = D;
    template <class M>
    static bool convert(PyObject *o, Store &out, int) {
        void *p = nullptr;
        if (SWIG_ConvertPtr(o, &p, swig_types[D]) != SWIG_OK) return fail(PyExc_TypeError, M::plain.v);
        if (!p) return fail(PyExc_TypeError, M::null_ref.v);
        out = static_cast<T *>(p);
        return true;
    }
    static int probe(PyObject *o, Store &out) {
        void *p = nullptr;
        if (SWIG_Python_ConvertPtrAndOwn(o, &p, swig_types[D], SWIG_POINTER_NO_NULL) != SWIG_OK) return 0;
        out = static_cast<T *>(p);
        return p ? 1 : 2;
    }
    static T get(Store s) { return *s; }
};

// ---- results ------------------------------------------------------------------------

template <class T>
inline constexpr bool is_ref_ptr = false;
template <class T>
inline constexpr bool is_ref_ptr<osg::ref_ptr<T>> = true;

// The reference an owned proxy holds on a reference-counted object, taken the way its destroy
// function gives it back: a group's through the SDK's library, as the group constructors do.
template <class T>
void take_python_reference(T *p) {
    if (auto *g = dynamic_cast<osg::Group *>(p)) {
        osg::Group_reference(g);
    } else {
        p->ref();
    }
}

// What to_python makes of a result of type R: its kind and, for pointer objects, descriptor
// and ownership (1 = an owned heap copy).
struct ResultKind {
    const char *kind;
    int descriptor;
    int own;
};

// A result type with a conversion of its own: ResultOf<T> has `static PyObject *convert(T &&,
// PyObject *arg1)`, told the Python object given as argument 1 (so that what it returns can
// keep that object alive), and `static constexpr ResultKind kind` for the table's description.
template <class T>
struct ResultOf;
template <class T>
concept CustomResult = requires { ResultOf<T>::kind; };

template <class R>
PyObject *to_python(R &&r, [[maybe_unused]] PyObject *arg1 = nullptr) {
    using T = std::remove_cvref_t<R>;
    if constexpr (CustomResult<T>) {
        return ResultOf<T>::convert(static_cast<R &&>(r), arg1);
    } else if constexpr (is_handle<T>) {  // a new heap copy, owned
        return SWIG_Python_NewPointerObj(new auto(r.value), swig_types[T::descriptor], SWIG_POINTER_OWN);
    } else if constexpr (std::is_same_v<T, bool>) {
        return PyBool_FromLong(r);
    } else if constexpr (std::is_floating_point_v<T> && !std::is_reference_v<R>) {
        return PyFloat_FromDouble(r);
    } else if constexpr (std::is_same_v<T, unsigned long> && !std::is_reference_v<R>) {
        return PyLong_FromUnsignedLong(r);
    } else if constexpr ((std::is_unsigned_v<T>)&&!std::is_reference_v<R>) {
        return PyLong_FromSize_t(r);
    } else if constexpr (std::is_enum_v<T> && !std::is_reference_v<R>) {
        // Enumerations read back signed, whatever underlying type the compiler chose.
        return PyLong_FromLong(static_cast<int>(r));
    } else if constexpr (std::is_integral_v<T> && !std::is_reference_v<R>) {
        return PyLong_FromLong(static_cast<long>(r));
    } else if constexpr (std::is_same_v<T, const char *> || std::is_same_v<T, char *>) {
        if (!r) Py_RETURN_NONE;
        size_t size = std::strlen(r);
        if (size > INT_MAX) {
            swig_type_info *pchar = pchar_descriptor();
            if (!pchar) Py_RETURN_NONE;
            return SWIG_Python_NewPointerObj(const_cast<char *>(r), pchar, 0);
        }
        return PyUnicode_DecodeUTF8(r, (Py_ssize_t)size, "surrogateescape");
    } else if constexpr (is_ref_ptr<T>) {  // a new object: the proxy owns one reference to it
        using P = std::remove_cv_t<typename T::element_type>;
        static_assert(Wrapped<P>, "reference-counted result of a type without a descriptor");
        P *p = const_cast<P *>(r.get());
        if (!p) Py_RETURN_NONE;
        take_python_reference(p);
        return SWIG_Python_NewPointerObj(p, descriptor<P>(), SWIG_POINTER_OWN);
    } else if constexpr (std::is_pointer_v<T>) {
        using P = std::remove_cv_t<std::remove_pointer_t<T>>;
        static_assert(Wrapped<P>, "pointer result of a type without a descriptor");
        return SWIG_Python_NewPointerObj(const_cast<P *>(r), descriptor<P>(), 0);
    } else if constexpr (std::is_lvalue_reference_v<R>) {
        static_assert(Wrapped<T>, "reference result of a type without a descriptor");
        return SWIG_Python_NewPointerObj(const_cast<T *>(&r), descriptor<T>(), 0);
    } else {
        static_assert(Wrapped<T>, "by-value result of a type without a descriptor");
        return SWIG_Python_NewPointerObj(new T(static_cast<R &&>(r)), descriptor<T>(), SWIG_POINTER_OWN);
    }
}

// ---- kinds as data, for the description of the tables (engine.h) ----------------------

// The descriptor a parameter of type A crosses with, or -1 for numbers, bools and C strings.
template <class A>
constexpr int param_descriptor() {
    using P = std::remove_cv_t<A>;
    if constexpr (requires { Arg<P>::descriptor_index; }) {
        return Arg<P>::descriptor_index;
    } else if constexpr (std::is_same_v<P, const char *>) {
        return -1;
    } else if constexpr (std::is_pointer_v<P> || std::is_reference_v<P>) {
        return descriptor_of<std::remove_cv_t<std::remove_pointer_t<std::remove_reference_t<P>>>>;
    } else {
        return -1;
    }
}

template <class R>
constexpr ResultKind result_kind() {
    using T = std::remove_cvref_t<R>;
    if constexpr (CustomResult<T>) {
        return ResultOf<T>::kind;
    } else if constexpr (std::is_void_v<R>) {
        return {"void", -1, 0};
    } else if constexpr (is_handle<T>) {
        return {"handle", T::descriptor, 1};
    } else if constexpr (std::is_same_v<T, bool>) {
        return {"bool", -1, 0};
    } else if constexpr (std::is_floating_point_v<T> && !std::is_reference_v<R>) {
        return {"float", -1, 0};
    } else if constexpr (std::is_enum_v<T> && !std::is_reference_v<R>) {
        return {"int", -1, 0};
    } else if constexpr (std::is_integral_v<T> && !std::is_reference_v<R>) {
        return {"int", -1, 0};
    } else if constexpr (std::is_same_v<T, const char *> || std::is_same_v<T, char *>) {
        return {"cstring", -1, 0};
    } else if constexpr (is_ref_ptr<T>) {
        return {"pointer", descriptor_of<std::remove_cv_t<typename T::element_type>>, 1};
    } else if constexpr (std::is_pointer_v<T>) {
        return {"pointer", descriptor_of<std::remove_cv_t<std::remove_pointer_t<T>>>, 0};
    } else if constexpr (std::is_lvalue_reference_v<R>) {
        return {"reference", descriptor_of<std::remove_cv_t<T>>, 0};
    } else {
        return {"value", descriptor_of<T>, 1};
    }
}

}  // namespace wrap
