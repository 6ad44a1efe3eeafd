// The buffer protocol at the boundary, both ways, without a NumPy dependency:
//
//   Values<T>  an argument: a sequence of k-tuples (k = T's number of components), a sequence
//              of T proxies, or any buffer of N x k (or N*k) elements of T's scalar type; a
//              buffer is read in place, so the callable copies it once, straight into OSG.
//   View       a result: a writable memoryview over the C++ object's own memory, whose
//              exporter keeps argument 1 (and one OSG reference to the owner) alive.
//   Checked<R> a result that may instead be an exception (an index past the end, a resize
//              under a live view), for members whose C++ behaviour would be undefined.
//
// See wrap/README.md, "Buffers".
#pragma once
#include "wrap/engine.h"

#include <osg/Referenced>

#include <bit>
#include <cstdint>
#include <cstring>
#include <initializer_list>
#include <string>
#include <type_traits>
#include <unordered_map>
#include <utility>
#include <vector>

namespace wrap {

// ---- elements: what one value of a list is made of ----------------------------------------

// The struct-module code of a scalar type and its name in messages.
template <class S>
struct ScalarCode;
template <>
struct ScalarCode<float> {
    static constexpr char code = 'f';
    static constexpr const char *name = "float32";
};
template <>
struct ScalarCode<double> {
    static constexpr char code = 'd';
    static constexpr const char *name = "float64";
};
template <>
struct ScalarCode<unsigned char> {
    static constexpr char code = 'B';
    static constexpr const char *name = "uint8";
};
template <>
struct ScalarCode<signed char> {
    static constexpr char code = 'b';
    static constexpr const char *name = "int8";
};
template <>
struct ScalarCode<unsigned short> {
    static constexpr char code = 'H';
    static constexpr const char *name = "uint16";
};
template <>
struct ScalarCode<short> {
    static constexpr char code = 'h';
    static constexpr const char *name = "int16";
};
template <>
struct ScalarCode<unsigned int> {
    static constexpr char code = 'I';
    static constexpr const char *name = "uint32";
};
template <>
struct ScalarCode<int> {
    static constexpr char code = 'i';
    static constexpr const char *name = "int32";
};

// A scalar is one component; an OSG vector is num_components of its value_type.
template <class T>
struct Element {
    using Scalar = T;
    static constexpr Py_ssize_t k = 1;
};
template <class T>
    requires requires {
        T::num_components;
        typename T::value_type;
    }
struct Element<T> {
    using Scalar = typename T::value_type;
    static constexpr Py_ssize_t k = T::num_components;
};

// Whether a buffer's struct format is one item of scalar S in native layout ("f", "@f", "=f",
// "<f" on this little-endian machine), as array.array, memoryview.cast and NumPy give it.
template <class S>
bool native_format(const char *format, Py_ssize_t itemsize) {
    if (itemsize != (Py_ssize_t)sizeof(S)) return false;
    if (!format) return ScalarCode<S>::code == 'B';
    if (*format == '@' || *format == '=' || (*format == '<' && std::endian::native == std::endian::little)) ++format;
    return format[0] == ScalarCode<S>::code && format[1] == 0;
}

// ---- values in -----------------------------------------------------------------------------

// What a callable receives: the values in place (in the caller's buffer, or in the converter's
// own copy of a sequence), valid for the call.
template <class T>
struct Values {
    const T *data = nullptr;
    std::size_t size = 0;
    const T *begin() const { return data; }
    const T *end() const { return data + size; }
};

// The converter's store: the buffer it holds until the call returns, or its copy.
template <class T>
struct ValuesStore {
    Py_buffer view{};
    std::vector<T> copy;
    Values<T> values;
    ValuesStore() = default;
    ValuesStore(const ValuesStore &) = delete;
    ValuesStore &operator=(const ValuesStore &) = delete;
    ~ValuesStore() { release(); }
    void release() {
        if (view.obj) PyBuffer_Release(&view);
        view = {};
    }
};

// Whether an object is this kind of argument at all: a buffer or a sequence (not a string).
inline bool values_like(PyObject *o) {
    return PyObject_CheckBuffer(o) || (PySequence_Check(o) && !PyUnicode_Check(o));
}

inline std::string shape_text(const Py_buffer &b) {
    std::string s = "(";
    for (int i = 0; i < b.ndim; ++i) s += std::to_string(b.shape[i]) + (b.ndim == 1 ? "," : i + 1 < b.ndim ? ", " : "");
    return s + ")";
}

template <class T>
struct ValuesIn {
    using E = Element<T>;
    using S = typename E::Scalar;
    static constexpr Py_ssize_t k = E::k;
    static_assert(sizeof(T) == k * sizeof(S) && std::is_trivially_copyable_v<T>, "a value is k packed scalars");

    // A buffer is read where it is; its element type and shape must be T's exactly.
    static bool from_buffer(PyObject *o, ValuesStore<T> &s, const char *prefix) {
        if (PyObject_GetBuffer(o, &s.view, PyBUF_RECORDS_RO) < 0) return false;
        const Py_buffer &b = s.view;
        if (!native_format<S>(b.format, b.itemsize)) {
            PyErr_Format(PyExc_TypeError, "%s: expected a buffer of %s (format '%c'), got format '%s'", prefix,
                         ScalarCode<S>::name, ScalarCode<S>::code, b.format ? b.format : "B");
        } else if (!((b.ndim == 2 && b.shape[1] == k) || (b.ndim == 1 && b.shape[0] % k == 0))) {
            if constexpr (k == 1) {
                PyErr_Format(PyExc_ValueError, "%s: expected a buffer of shape (N,), got shape %s", prefix,
                             shape_text(b).c_str());
            } else {
                PyErr_Format(PyExc_ValueError, "%s: expected a buffer of shape (N, %zd) or (N*%zd,), got shape %s", prefix,
                             k, k, shape_text(b).c_str());
            }
        } else if (!PyBuffer_IsContiguous(&b, 'C')) {
            PyErr_Format(PyExc_ValueError, "%s: expected a C-contiguous buffer", prefix);
        } else {
            std::size_t n = (std::size_t)(b.len / (Py_ssize_t)sizeof(T));
            if (reinterpret_cast<std::uintptr_t>(b.buf) % alignof(T) == 0) {
                s.values = {static_cast<const T *>(b.buf), n};
            } else {  // a misaligned buffer (a cast of an odd offset) is copied, not read in place
                s.copy.resize(n);
                if (n) std::memcpy(static_cast<void *>(s.copy.data()), b.buf, n * sizeof(T));
                s.values = {s.copy.data(), n};
                s.release();
            }
            return true;
        }
        s.release();
        return false;
    }

    static bool number(PyObject *o, S &out, Py_ssize_t i, Py_ssize_t j, const char *prefix) {
        int res = Scalar<S>::as(o, &out);
        if (res >= 0) return true;
        std::string where = "item " + std::to_string(i) + (j < 0 ? "" : ", component " + std::to_string(j));
        if (res == SWIG_OverflowError) {
            PyErr_Format(PyExc_OverflowError, "%s: %s is out of range for %s", prefix, where.c_str(), ScalarCode<S>::name);
        } else {
            PyErr_Format(PyExc_TypeError, "%s: %s is not a number", prefix, where.c_str());
        }
        return false;
    }

    static bool item(PyObject *o, T &out, Py_ssize_t i, const char *prefix) {
        if constexpr (k == 1) {
            return number(o, out, i, -1, prefix);
        } else {
            if constexpr (Wrapped<T>) {  // a proxy of the value class itself
                if (!PyTuple_Check(o) && !PyList_Check(o) && o != Py_None) {
                    void *p = nullptr;
                    if (SWIG_Python_ConvertPtrAndOwn(o, &p, descriptor<T>(), 0) == SWIG_OK && p) {
                        out = *static_cast<const T *>(p);
                        return true;
                    }
                }
            }
            if (!PySequence_Check(o) || PyUnicode_Check(o)) {
                PyErr_Format(PyExc_TypeError, "%s: item %zd is not a sequence of %zd numbers", prefix, i, k);
                return false;
            }
            PyObject *fast = PySequence_Fast(o, "");
            if (!fast) return false;
            Py_ssize_t n = PySequence_Fast_GET_SIZE(fast);
            bool ok = n == k;
            if (!ok) PyErr_Format(PyExc_ValueError, "%s: item %zd has %zd components, expected %zd", prefix, i, n, k);
            S *c = reinterpret_cast<S *>(&out);
            for (Py_ssize_t j = 0; ok && j < k; ++j) ok = number(PySequence_Fast_GET_ITEM(fast, j), c[j], i, j, prefix);
            Py_DECREF(fast);
            return ok;
        }
    }

    static bool from_sequence(PyObject *o, ValuesStore<T> &s, const char *prefix) {
        PyObject *fast = PySequence_Fast(o, "");
        if (!fast) return false;
        Py_ssize_t n = PySequence_Fast_GET_SIZE(fast);
        s.copy.resize((std::size_t)n);
        bool ok = true;
        for (Py_ssize_t i = 0; ok && i < n; ++i) ok = item(PySequence_Fast_GET_ITEM(fast, i), s.copy[(std::size_t)i], i, prefix);
        Py_DECREF(fast);
        if (!ok) {
            s.copy = {};
            return false;
        }
        s.values = {s.copy.data(), s.copy.size()};
        return true;
    }

    // Sets an exception on failure; `plain` is the argument's message without details.
    static bool fill(PyObject *o, ValuesStore<T> &s, const char *plain) {
        if (PyObject_CheckBuffer(o)) return from_buffer(o, s, plain);
        if (PySequence_Check(o) && !PyUnicode_Check(o)) return from_sequence(o, s, plain);
        return fail(PyExc_TypeError, plain);
    }
};

template <class T>
struct Arg<Values<T>> {
    using Store = ValuesStore<T>;
    static constexpr Rank rank = Rank::Other;
    static constexpr const char *kind = "values";
    template <class M>
    static bool convert(PyObject *o, Store &out, int) {
        return ValuesIn<T>::fill(o, out, M::plain.v);
    }
    // A buffer or sequence that does not convert is still this candidate's to refuse: its full
    // conversion says what is wrong with it, where the overload message could not.
    static int probe(PyObject *o, Store &out) {
        if (ValuesIn<T>::fill(o, out, "")) return 1;
        PyErr_Clear();
        return values_like(o) ? 2 : 0;
    }
    static Values<T> get(Store &s) { return s.values; }
};

// A constructor candidate made by a callable, for a constructor that takes values (no C++
// constructor takes Values<T> as such): prototyped as K's constructor with Spell..., F returns
// the new object.
template <class K>
struct ClassTexts;
template <class T, Text Spelling, Text Prefix>
struct ClassTexts<Class<T, Spelling, Prefix>> {
    static constexpr auto constructor = cat(Spelling, Text("::"), unqualified<Spelling>());
};
template <class K, auto F, Text... Spell>
using ctor_by = Cand<prototype<ClassTexts<K>::constructor, false, Spell...>(), F, Spell...>;

// ---- results that may fail -----------------------------------------------------------------

template <class R>
struct Checked {
    R value{};
    PyObject *error = nullptr;  // the exception type; null when value is the result
    const char *message = nullptr;
};
template <>
struct Checked<void> {
    PyObject *error = nullptr;
    const char *message = nullptr;
};

template <class R>
Checked<R> raise(PyObject *type, const char *message) {
    Checked<R> c{};
    c.error = type;
    c.message = message;
    return c;
}

template <class R>
struct ResultOf<Checked<R>> {
    static constexpr ResultKind kind = result_kind<R>();
    static PyObject *convert(Checked<R> &&c, [[maybe_unused]] PyObject *arg1) {
        if (c.error) {
            PyErr_SetString(c.error, c.message);
            return nullptr;
        }
        if constexpr (std::is_void_v<R>) {
            Py_RETURN_NONE;
        } else if constexpr (CustomResult<R>) {
            return ResultOf<R>::convert(std::move(c.value), arg1);
        } else {
            return to_python<R>(std::move(c.value));
        }
    }
};

inline constexpr const char *index_out_of_range = "index out of range";

// ---- views out -----------------------------------------------------------------------------

// Memory a view exposes: C-contiguous unless strides are given.
struct View {
    void *data = nullptr;
    const char *format = "B";
    Py_ssize_t itemsize = 1;
    int ndim = 0;
    Py_ssize_t shape[4] = {};
    Py_ssize_t strides[4] = {};  // in bytes
    const osg::Referenced *owner = nullptr;  // kept alive by one reference while the view lives
    bool readonly = false;
};

inline constexpr char view_formats[][2] = {"f", "d", "B", "b", "H", "h", "I", "i"};

template <class S>
constexpr const char *format_of() {
    for (const auto &f : view_formats)
        if (f[0] == ScalarCode<S>::code) return f;
    return nullptr;
}

// A view of scalars of type S; strides default to C order.
template <class S>
View view_of(S *data, std::initializer_list<Py_ssize_t> shape, const osg::Referenced *owner = nullptr,
             std::initializer_list<Py_ssize_t> strides = {}) {
    View v;
    v.data = const_cast<void *>(static_cast<const void *>(data));
    v.format = format_of<std::remove_const_t<S>>();
    v.itemsize = sizeof(S);
    v.ndim = (int)shape.size();
    v.owner = owner;
    int i = 0;
    for (Py_ssize_t n : shape) v.shape[i++] = n;
    if (strides.size() == shape.size()) {
        i = 0;
        for (Py_ssize_t s : strides) v.strides[i++] = s;
    } else {
        Py_ssize_t step = v.itemsize;
        for (i = v.ndim - 1; i >= 0; --i) {
            v.strides[i] = step;
            step *= v.shape[i];
        }
    }
    return v;
}

// Buffer exports alive per reference-counted object: rows that may move an object's memory
// (resize, push_back, clear, ...) refuse while one is, as bytearray does.
inline std::unordered_map<const osg::Referenced *, Py_ssize_t> &exports() {
    static std::unordered_map<const osg::Referenced *, Py_ssize_t> live;
    return live;
}
inline bool exported(const osg::Referenced *owner) { return exports().count(owner) != 0; }
inline constexpr const char *exported_resize = "Existing exports of data: object cannot be re-sized";

// Checked<void> for a row that may move `owner`'s memory: BufferError while a view is alive.
template <class F>
Checked<void> unless_exported(const osg::Referenced *owner, F &&f) {
    if (exported(owner)) return raise<void>(PyExc_BufferError, exported_resize);
    f();
    return {};
}

// The exporter: the view's memory and what keeps it alive.
struct ViewObject {
    PyObject_HEAD
    PyObject *holder;  // argument 1's Python object
    View view;
};

inline bool c_contiguous(const View &v) {
    Py_ssize_t step = v.itemsize;
    for (int i = v.ndim - 1; i >= 0; --i) {
        if (v.shape[i] > 1 && v.strides[i] != step) return false;
        step *= v.shape[i];
    }
    return true;
}
inline bool f_contiguous(const View &v) {
    Py_ssize_t step = v.itemsize;
    for (int i = 0; i < v.ndim; ++i) {
        if (v.shape[i] > 1 && v.strides[i] != step) return false;
        step *= v.shape[i];
    }
    return true;
}

inline int view_getbuffer(PyObject *self, Py_buffer *b, int flags) {
    static char empty = 0;
    View &v = reinterpret_cast<ViewObject *>(self)->view;
    const char *refused = nullptr;
    if ((flags & PyBUF_WRITABLE) == PyBUF_WRITABLE && v.readonly) refused = "the view is read-only";
    else if ((flags & PyBUF_STRIDES) != PyBUF_STRIDES && !c_contiguous(v)) refused = "the view is not C-contiguous";
    else if ((flags & PyBUF_C_CONTIGUOUS) == PyBUF_C_CONTIGUOUS && !c_contiguous(v)) refused = "the view is not C-contiguous";
    else if ((flags & PyBUF_F_CONTIGUOUS) == PyBUF_F_CONTIGUOUS && !f_contiguous(v)) refused = "the view is not Fortran-contiguous";
    else if ((flags & PyBUF_ANY_CONTIGUOUS) == PyBUF_ANY_CONTIGUOUS && !c_contiguous(v) && !f_contiguous(v))
        refused = "the view is not contiguous";
    if (refused) {
        b->obj = nullptr;
        PyErr_SetString(PyExc_BufferError, refused);
        return -1;
    }
    Py_ssize_t len = v.itemsize;
    for (int i = 0; i < v.ndim; ++i) len *= v.shape[i];
    b->buf = v.data ? v.data : &empty;
    b->obj = Py_NewRef(self);
    b->len = len;
    b->itemsize = v.itemsize;
    b->readonly = v.readonly;
    b->ndim = v.ndim;
    b->format = (flags & PyBUF_FORMAT) ? const_cast<char *>(v.format) : nullptr;
    b->shape = (flags & PyBUF_ND) == PyBUF_ND ? v.shape : nullptr;
    b->strides = (flags & PyBUF_STRIDES) == PyBUF_STRIDES ? v.strides : nullptr;
    b->suboffsets = nullptr;
    b->internal = nullptr;
    if (v.owner) ++exports()[v.owner];
    return 0;
}

inline void view_releasebuffer(PyObject *self, Py_buffer *) {
    const osg::Referenced *owner = reinterpret_cast<ViewObject *>(self)->view.owner;
    if (!owner) return;
    auto it = exports().find(owner);
    if (it != exports().end() && --it->second == 0) exports().erase(it);
}

inline int view_traverse(PyObject *self, visitproc visit, void *arg) {
    Py_VISIT(Py_TYPE(self));
    Py_VISIT(reinterpret_cast<ViewObject *>(self)->holder);
    return 0;
}

inline int view_clear(PyObject *self) {
    Py_CLEAR(reinterpret_cast<ViewObject *>(self)->holder);
    return 0;
}

inline void view_dealloc(PyObject *self) {
    PyTypeObject *type = Py_TYPE(self);
    PyObject_GC_UnTrack(self);
    view_clear(self);
    if (const osg::Referenced *owner = reinterpret_cast<ViewObject *>(self)->view.owner) owner->unref();
    PyObject_GC_Del(self);
    Py_DECREF(type);
}

inline PyTypeObject *view_type() {
    static PyTypeObject *type = [] {
        static PyType_Slot slots[] = {
            {Py_bf_getbuffer, reinterpret_cast<void *>(view_getbuffer)},
            {Py_bf_releasebuffer, reinterpret_cast<void *>(view_releasebuffer)},
            {Py_tp_traverse, reinterpret_cast<void *>(view_traverse)},
            {Py_tp_clear, reinterpret_cast<void *>(view_clear)},
            {Py_tp_dealloc, reinterpret_cast<void *>(view_dealloc)},
            {Py_tp_doc, const_cast<char *>("The memory of a C++ object, exported to a memoryview; keeps the object alive.")},
            {0, nullptr},
        };
        static PyType_Spec spec = {"wrap.BufferView", sizeof(ViewObject), 0,
                                   Py_TPFLAGS_DEFAULT | Py_TPFLAGS_HAVE_GC | Py_TPFLAGS_DISALLOW_INSTANTIATION, slots};
        return reinterpret_cast<PyTypeObject *>(PyType_FromSpec(&spec));
    }();
    return type;
}

template <>
struct ResultOf<View> {
    static constexpr ResultKind kind{"view", -1, 1};
    static PyObject *convert(View &&v, PyObject *arg1) {
        PyTypeObject *type = view_type();
        if (!type) return nullptr;
        ViewObject *self = PyObject_GC_New(ViewObject, type);
        if (!self) return nullptr;
        self->holder = Py_XNewRef(arg1);
        self->view = v;
        if (v.owner) v.owner->ref();
        PyObject_GC_Track(self);
        PyObject *mv = PyMemoryView_FromObject(reinterpret_cast<PyObject *>(self));
        Py_DECREF(self);
        return mv;
    }
};

}  // namespace wrap
