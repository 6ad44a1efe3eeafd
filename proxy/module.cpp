// _osgproxy: what the generated packages run on, beside the flat modules.
//
// - Importing it teaches the ring OSG's class hierarchy (its type table, proxy/bind.h).
// - `method(flat)` is a method descriptor over a flat function: called with the instance as
//   argument 1 through vectorcall, it allocates no bound method, and it runs the flat function's
//   wrapper on the argument array (its module's fast entry), without the tuple the flat call
//   makes, so a package call costs no more than the flat one. Its options convert
//   Python values at the edge, read results back as Python values, and downcast results.
// - `init(new)` is the same for `__init__`: the pointer object `new_<Class>` returns becomes the
//   instance's `this`, as `<Class>_swiginit` does; with `adopt`, Python takes the reference that
//   a constructor taking none leaves to its caller.
// - `downcast(proxy)` gives a proxy of the object's own class, found from its dynamic type.
#include "proxy/bind.h"

#include <cstddef>
#include <map>
#include <string>
#include <utility>

swig_type_info *swig_types[proxy::Types::count + 1];
swig_module_info swig_module = {swig_types, proxy::Types::count, nullptr, nullptr, nullptr, nullptr};

namespace {

template <class T>
swig_type_info *type_of() {
    return swig_types[proxy::Types::index_of<T>];
}

// ---- results of their own class ---------------------------------------------------------------

// The registered descriptor of the class an object reports as its own (libraryName::className),
// by those two static strings; null where no module of the ring binds that class.
swig_type_info *dynamic_type(const osg::Object *o) {
    static std::map<std::pair<const char *, const char *>, swig_type_info *> known;
    const char *library = o->libraryName(), *cls = o->className();
    auto [at, added] = known.try_emplace({library, cls}, nullptr);
    if (added) at->second = SWIG_MangledTypeQueryModule(&swig_module, &swig_module,
                                                        ("_p_" + std::string(library) + "__" + cls).c_str());
    return at->second;
}

// Aims a result's pointer object at the object's own class when a module binds it and its class
// is registered: the descriptor and the pointer change in place, and a shadow instance takes
// the class. The object's own address is checked against the declared pointer through the
// cast graph, so an object whose className() names a base (a subclass without its own) stays
// as it was declared.
PyObject *aim(PyObject *result, SwigPyObject *s, osg::Object *o) {
    swig_type_info *own = dynamic_type(o);
    if (!own || own == s->ty || !own->clientdata) return result;
    swig_cast_info *cast = SWIG_TypeCheck(own->name, s->ty);
    void *self = dynamic_cast<void *>(o);
    int fresh = 0;
    if (!cast || SWIG_TypeCast(cast, self, &fresh) != s->ptr) return result;
    s->ptr = self;
    s->ty = own;
    auto *data = static_cast<SwigPyClientData *>(own->clientdata);
    if (result == (PyObject *)s) {  // a bare pointer object: its declared class is not registered
        PyObject *inst = SWIG_Python_NewShadowInstance(data, result);
        Py_DECREF(result);
        return inst;
    }
    if (Py_TYPE(result) != (PyTypeObject *)data->klass &&
        PyObject_SetAttrString(result, "__class__", data->klass) < 0) {
        Py_DECREF(result);
        return nullptr;
    }
    return result;
}

PyObject *destroy_of(swig_type_info *ty) {
    return ty && ty->clientdata ? static_cast<SwigPyClientData *>(ty->clientdata)->destroy : nullptr;
}

// The destroy function that gives back what wrap::take_python_reference takes; a class
// destroyed otherwise (deleted outright) is not adopted.
PyObject *releaser(osg::Object *o) {
    return destroy_of(dynamic_cast<osg::Group *>(o) ? type_of<osg::Group>() : type_of<osg::Referenced>());
}

// A result the flat function lends (a child, a parent, a state set) holds one OSG reference
// while its proxy lives, given back by its class's destroy function, so that it stays valid
// when everything else lets the object go, as an osg::ref_ptr would.
PyObject *downcast(PyObject *result) {
    SwigPyObject *s = SWIG_Python_GetSwigThis(result);
    void *as_object = nullptr;
    if (!s || !s->ptr || SWIG_Python_ConvertPtrAndOwn((PyObject *)s, &as_object, type_of<osg::Object>(), 0) != SWIG_OK)
        return result;
    auto *o = static_cast<osg::Object *>(as_object);
    result = aim(result, s, o);
    if (result && !s->own && o->referenceCount() > 0 && destroy_of(s->ty) && destroy_of(s->ty) == releaser(o)) {
        wrap::take_python_reference(o);
        SwigPyObject_setown(s, SWIG_POINTER_OWN);
    }
    return result;
}

PyObject *downcast_items(PyObject *result) {
    if (!result || !PyList_CheckExact(result)) return result ? downcast(result) : nullptr;
    for (Py_ssize_t i = 0; i < PyList_GET_SIZE(result); ++i) {
        PyObject *item = downcast(Py_NewRef(PyList_GET_ITEM(result, i)));
        if (!item) {
            Py_DECREF(result);
            return nullptr;
        }
        PyList_SetItem(result, i, item);
    }
    return result;
}

// The reference Python holds on an object whose constructor took none, taken the way the
// destroy function of its class gives it back.
int adopt(PyObject *obj) {
    void *p = nullptr;
    if (SWIG_Python_ConvertPtrAndOwn(obj, &p, type_of<osg::Referenced>(), 0) != SWIG_OK || !p) {
        PyErr_SetString(PyExc_TypeError, "adopt() takes a pointer object of a reference-counted class");
        return -1;
    }
    wrap::take_python_reference(static_cast<osg::Referenced *>(p));
    return 0;
}

// ---- the proxy base ----------------------------------------------------------------------------

// The base of the packages' proxy classes: an instance is its `this` and nothing else, so that
// neither the collector nor a dictionary costs anything per result. The pointer objects behind
// `this` hold no Python objects, so no cycle can pass through it. A Python subclass of a
// package class gets its dictionary back, as Python's classes do.
struct Proxy {
    PyObject_HEAD
    PyObject *self_this;
};

void proxy_dealloc(PyObject *self) {
    PyTypeObject *type = Py_TYPE(self);
    Py_CLEAR(((Proxy *)self)->self_this);
    type->tp_free(self);
    if (type->tp_flags & Py_TPFLAGS_HEAPTYPE) Py_DECREF(type);
}

PyMemberDef proxy_members[] = {
    {"this", Py_T_OBJECT_EX, offsetof(Proxy, self_this), 0, "The pointer object of the C++ object."},
    {nullptr, 0, 0, 0, nullptr},
};

PyType_Slot proxy_slots[] = {
    {Py_tp_dealloc, (void *)proxy_dealloc},
    {Py_tp_members, proxy_members},
    {Py_tp_new, (void *)PyType_GenericNew},
    {Py_tp_doc, (void *)"The base of the proxy classes: `this` is the pointer object of the C++ object."},
    {0, nullptr},
};

PyType_Spec proxy_spec = {"_osgproxy.Proxy", sizeof(Proxy), 0, Py_TPFLAGS_DEFAULT | Py_TPFLAGS_BASETYPE, proxy_slots};

// ---- the method descriptor ---------------------------------------------------------------------

enum Mode { Plain, Init };

PyTypeObject *method_type;

struct Method {
    PyObject_HEAD
    vectorcallfunc vectorcall;
    PyObject *flat;  // the flat function: for its messages, its doc and introspection
    PyCFunction body;
    const swig_fast_entry *fast;  // its wrapper without the argument tuple, where its module has one
    PyObject *module;
    int flags;
    Mode mode;
    bool cast;       // results downcast to their own class
    bool own;        // init: Python takes the new object's reference
    PyObject *edge;  // {argument count: (converter or None, ...)}, a converter being (types, maker)
    PyObject *read;  // (classes, reader): results of these classes read back as Python values
    PyTypeObject *owner;  // the class it was set on as a method, whose instances it takes as argument 1
    PyObject *name;       // its name there
};

// Python values converted where the row declares a value of _osgvalues: a str for a
// std::string, an int for a GLenum, a list for a node path...
PyObject *const *convert(Method *m, PyObject *const *args, Py_ssize_t n, PyObject **out, PyObject *&tuple) {
    PyObject *spec = nullptr;
    if (PyObject *key = PyLong_FromSsize_t(n)) {
        spec = PyDict_GetItemWithError(m->edge, key);
        Py_DECREF(key);
    }
    if (!spec) return PyErr_Occurred() ? nullptr : args;
    tuple = PyTuple_New(n);
    if (!tuple) return nullptr;
    for (Py_ssize_t i = 0; i < n; ++i) {
        PyObject *conv = i < PyTuple_GET_SIZE(spec) ? PyTuple_GET_ITEM(spec, i) : Py_None, *a = args[i];
        PyObject *value = nullptr;
        if (conv != Py_None && PySequence_Contains(PyTuple_GET_ITEM(conv, 0), (PyObject *)Py_TYPE(a)) == 1) {
            value = PyObject_CallOneArg(PyTuple_GET_ITEM(conv, 1), a);
            if (!value) return nullptr;
        } else {
            value = Py_NewRef(a);
        }
        PyTuple_SET_ITEM(tuple, i, value);
        out[i] = value;
    }
    return out;
}

PyObject *call_flat(Method *m, PyObject *const *args, Py_ssize_t n) {
    if (m->fast && n >= m->fast->min && n <= m->fast->max) return m->fast->fast(args, n);
    if (m->flags & METH_O) {
        if (n == 1) return m->body(m->module, args[0]);
    } else if (m->flags & METH_NOARGS) {
        if (n == 0) return m->body(m->module, nullptr);
    } else {
        PyObject *tuple = PyTuple_New(n);
        if (!tuple) return nullptr;
        for (Py_ssize_t i = 0; i < n; ++i) PyTuple_SET_ITEM(tuple, i, Py_NewRef(args[i]));
        PyObject *r = m->body(m->module, tuple);
        Py_DECREF(tuple);
        return r;
    }
    return PyObject_Vectorcall(m->flat, args, n, nullptr);  // the flat function's own count message
}

PyObject *finish(Method *m, PyObject *r) {
    if (r && m->read) {
        PyObject *classes = PyTuple_GET_ITEM(m->read, 0);
        int is_value = PyObject_IsInstance(r, classes);
        if (is_value) {
            PyObject *value = is_value > 0 ? PyObject_CallOneArg(PyTuple_GET_ITEM(m->read, 1), r) : nullptr;
            Py_DECREF(r);
            r = value;
        }
    }
    return m->cast ? downcast_items(r) : r;
}

// The empty `this` slot of an instance of a class whose slot is known (a package class's, as
// construct() makes it), or null where the lookup and <Class>_swiginit's rules must decide.
PyObject **empty_this_slot(PyObject *self) {
    PyTypeObject *t = Py_TYPE(self);
    const SwigThisSlot &e = swig_this_slots[SWIG_ThisSlotIndex(t)];
    if (t == SwigPyObject_cached || e.type != t || e.version != t->tp_version_tag || e.offset < 0 ||
        t->tp_basicsize >= (Py_ssize_t)sizeof(SwigPyObject))
        return nullptr;
    auto **slot = (PyObject **)((char *)self + e.offset);
    return *slot ? nullptr : slot;
}

PyObject *method_call(PyObject *callable, PyObject *const *args, size_t nargsf, PyObject *kwnames) {
    auto *m = (Method *)callable;
    Py_ssize_t n = PyVectorcall_NARGS(nargsf);
    if (kwnames && PyTuple_GET_SIZE(kwnames)) return PyObject_Vectorcall(m->flat, args, n, kwnames);
    PyObject *converted[16], *tuple = nullptr;
    if (m->edge && n <= 16) {
        args = convert(m, args, n, converted, tuple);
        if (!args) {
            Py_XDECREF(tuple);
            return nullptr;
        }
    }
    PyObject *r;
    if (m->mode == Init) {
        if (n < 1) {
            PyErr_SetString(PyExc_TypeError, "__init__ needs the instance");
            r = nullptr;
        } else if ((r = call_flat(m, args + 1, n - 1))) {
            if (m->own && adopt(r) < 0) {
                Py_CLEAR(r);
            } else if (PyObject **slot = empty_this_slot(args[0])) {
                *slot = r;  // the reference passes to the instance
                r = Py_NewRef(Py_None);
            } else if (SwigPyObject *sthis = SWIG_Python_GetSwigThis(args[0])) {
                PyObject *done = SwigPyObject_append((PyObject *)sthis, r);
                Py_DECREF(r);
                r = done ? (Py_DECREF(done), Py_NewRef(Py_None)) : nullptr;
            } else {
                int failed = SWIG_Python_SetThis(args[0], r);
                Py_DECREF(r);
                r = failed ? nullptr : Py_NewRef(Py_None);
            }
        }
    } else if (m->owner && (n < 1 || !PyObject_TypeCheck(args[0], m->owner))) {
        // Called through the class with something else as the object: the flat function would
        // take None as a null object and run the member on it.
        if (n < 1)
            PyErr_Format(PyExc_TypeError, "descriptor '%U' of '%s' object needs an argument", m->name, m->owner->tp_name);
        else
            PyErr_Format(PyExc_TypeError, "descriptor '%U' for '%s' objects doesn't apply to a '%s' object", m->name,
                         m->owner->tp_name, Py_TYPE(args[0])->tp_name);
        r = nullptr;
    } else {
        r = finish(m, call_flat(m, args, n));
    }
    Py_XDECREF(tuple);
    return r;
}

// Calling a class whose __init__ is an init(): the instance made as its __new__ makes it and
// initialised by that __init__, as type.__call__ would, without looking __init__ up by name and
// calling it with the instance prepended. A class whose __new__ or __init__ has changed since,
// or a call with keywords, takes type.__call__ itself.
PyObject *type_call(PyObject *callable, PyObject *const *args, Py_ssize_t n, PyObject *kwnames) {
    Py_ssize_t nk = kwnames ? PyTuple_GET_SIZE(kwnames) : 0;
    PyObject *tuple = PyTuple_New(n), *kwargs = nk ? PyDict_New() : nullptr, *r = nullptr;
    if (tuple && (!nk || kwargs)) {
        for (Py_ssize_t i = 0; i < n; ++i) PyTuple_SET_ITEM(tuple, i, Py_NewRef(args[i]));
        bool ok = true;
        for (Py_ssize_t i = 0; ok && i < nk; ++i) ok = PyDict_SetItem(kwargs, PyTuple_GET_ITEM(kwnames, i), args[n + i]) == 0;
        if (ok) r = PyType_Type.tp_call(callable, tuple, kwargs);
    }
    Py_XDECREF(tuple);
    Py_XDECREF(kwargs);
    return r;
}

PyObject *construct(PyObject *callable, PyObject *const *args, size_t nargsf, PyObject *kwnames) {
    auto *cls = (PyTypeObject *)callable;
    static PyObject *init_name = PyUnicode_InternFromString("__init__");
    PyObject *init = init_name ? _PyType_Lookup(cls, init_name) : nullptr;
    Py_ssize_t n = PyVectorcall_NARGS(nargsf);
    if (!init || !Py_IS_TYPE(init, method_type) || ((Method *)init)->mode != Init || n > 16 ||
        (cls->tp_new != PyType_GenericNew && cls->tp_new != PyBaseObject_Type.tp_new) ||
        (kwnames && PyTuple_GET_SIZE(kwnames)))
        return type_call(callable, args, n, kwnames);
    PyObject *self = cls->tp_alloc(cls, 0);
    if (!self) return nullptr;
    PyObject *stack[17];
    stack[0] = self;
    for (Py_ssize_t i = 0; i < n; ++i) stack[i + 1] = args[i];
    PyObject *r = method_call(init, stack, n + 1, nullptr);
    if (!r) {
        Py_DECREF(self);
        return nullptr;
    }
    Py_DECREF(r);
    return self;
}

// An init() set on a class as its __init__ makes the class construct through construct().
// A method remembers its class, to refuse other objects as argument 1.
PyObject *method_set_name(PyObject *self, PyObject *const *args, Py_ssize_t n) {
    auto *m = (Method *)self;
    if (n == 2 && PyType_Check(args[0]) && PyUnicode_Check(args[1])) {
        if (m->mode == Init) {
            if (PyUnicode_EqualToUTF8(args[1], "__init__")) ((PyTypeObject *)args[0])->tp_vectorcall = construct;
        } else if (!m->owner) {
            m->owner = (PyTypeObject *)Py_NewRef(args[0]);
            m->name = Py_NewRef(args[1]);
        }
    }
    Py_RETURN_NONE;
}

PyMethodDef method_methods[] = {
    {"__set_name__", (PyCFunction)(void (*)())method_set_name, METH_FASTCALL, nullptr},
    {nullptr, nullptr, 0, nullptr},
};

PyObject *method_get(PyObject *self, PyObject *obj, PyObject *) {
    if (!obj) return Py_NewRef(self);
    return PyMethod_New(self, obj);
}

void method_dealloc(PyObject *self) {
    auto *m = (Method *)self;
    PyTypeObject *type = Py_TYPE(self);
    Py_XDECREF(m->flat);
    Py_XDECREF(m->module);
    Py_XDECREF(m->edge);
    Py_XDECREF(m->read);
    Py_XDECREF(m->owner);
    Py_XDECREF(m->name);
    type->tp_free(self);
    Py_DECREF(type);
}

PyObject *flat_attr(PyObject *self, void *name) {
    return PyObject_GetAttrString(((Method *)self)->flat, static_cast<const char *>(name));
}

PyGetSetDef method_getset[] = {
    {"__doc__", flat_attr, nullptr, nullptr, const_cast<char *>("__doc__")},
    {"__name__", flat_attr, nullptr, nullptr, const_cast<char *>("__name__")},
    {"__qualname__", flat_attr, nullptr, nullptr, const_cast<char *>("__qualname__")},
    {nullptr, nullptr, nullptr, nullptr, nullptr},
};

PyMemberDef method_members[] = {
    {"__vectorcalloffset__", Py_T_PYSSIZET, offsetof(Method, vectorcall), Py_READONLY, nullptr},
    {nullptr, 0, 0, 0, nullptr},
};

PyType_Slot method_slots[] = {
    {Py_tp_dealloc, (void *)method_dealloc},
    {Py_tp_call, (void *)PyVectorcall_Call},
    {Py_tp_descr_get, (void *)method_get},
    {Py_tp_getset, method_getset},
    {Py_tp_methods, method_methods},
    {Py_tp_members, method_members},
    {0, nullptr},
};

// Immutable, so that the interpreter specializes an attribute lookup that finds one (a
// descriptor of a mutable type could change what it does between lookups).
PyType_Spec method_spec = {"_osgproxy.method", sizeof(Method), 0,
                           Py_TPFLAGS_DEFAULT | Py_TPFLAGS_HAVE_VECTORCALL | Py_TPFLAGS_METHOD_DESCRIPTOR |
                               Py_TPFLAGS_DISALLOW_INSTANTIATION | Py_TPFLAGS_IMMUTABLETYPE,
                           method_slots};
PyObject *make(PyObject *flat, Mode mode, bool cast, bool own, PyObject *edge, PyObject *read) {
    if (!PyCFunction_Check(flat)) return PyErr_Format(PyExc_TypeError, "a flat function is required, not '%s'",
                                                      Py_TYPE(flat)->tp_name);
    int flags = PyCFunction_GET_FLAGS(flat);
    if (flags & ~(METH_O | METH_NOARGS | METH_VARARGS | METH_COEXIST))
        return PyErr_Format(PyExc_TypeError, "%R has a calling convention of its own", flat);
    if ((edge && edge != Py_None && !PyDict_Check(edge)) ||
        (read && read != Py_None && !(PyTuple_Check(read) && PyTuple_GET_SIZE(read) == 2)))
        return PyErr_Format(PyExc_TypeError, "convert takes a dict and read a (classes, reader) pair");
    auto *m = PyObject_New(Method, method_type);
    if (!m) return nullptr;
    m->vectorcall = method_call;
    m->flat = Py_NewRef(flat);
    m->body = PyCFunction_GET_FUNCTION(flat);
    m->fast = SWIG_FindFastEntry(m->body);
    m->module = Py_XNewRef(PyCFunction_GET_SELF(flat));
    m->flags = flags;
    m->mode = mode;
    m->cast = cast;
    m->own = own;
    m->edge = edge && edge != Py_None ? Py_NewRef(edge) : nullptr;
    m->read = read && read != Py_None ? Py_NewRef(read) : nullptr;
    m->owner = nullptr;
    m->name = nullptr;
    return (PyObject *)m;
}

PyObject *py_method(PyObject *, PyObject *args, PyObject *kw) {
    static const char *names[] = {"flat", "downcast", "convert", "read", nullptr};
    PyObject *flat, *edge = nullptr, *read = nullptr;
    int cast = 0;
    if (!PyArg_ParseTupleAndKeywords(args, kw, "O|$pOO:method", const_cast<char **>(names), &flat, &cast, &edge, &read))
        return nullptr;
    return make(flat, Plain, cast, false, edge, read);
}

PyObject *py_init(PyObject *, PyObject *args, PyObject *kw) {
    static const char *names[] = {"new", "adopt", "convert", nullptr};
    PyObject *flat, *edge = nullptr;
    int own = 0;
    if (!PyArg_ParseTupleAndKeywords(args, kw, "O|$pO:init", const_cast<char **>(names), &flat, &own, &edge))
        return nullptr;
    return make(flat, Init, false, own, edge, nullptr);
}

PyObject *py_downcast(PyObject *, PyObject *obj) { return downcast_items(Py_NewRef(obj)); }

PyMethodDef methods[] = {
    {"method", (PyCFunction)(void (*)())py_method, METH_VARARGS | METH_KEYWORDS,
     "method(flat, *, downcast=False, convert=None, read=None)\n\nA method of a proxy class that calls the flat "
     "function with the instance as argument 1."},
    {"init", (PyCFunction)(void (*)())py_init, METH_VARARGS | METH_KEYWORDS,
     "init(new, *, adopt=False, convert=None)\n\nAn __init__ that makes the object with new and keeps its pointer "
     "object as the instance's `this`; with adopt, Python takes the object's reference."},
    {"downcast", py_downcast, METH_O,
     "downcast(proxy)\n\nThe proxy as its object's own registered class (each item of a list likewise)."},
    {nullptr, nullptr, 0, nullptr},
};

}  // namespace

const wrap::ModuleTables &wrap::module_tables() {
    static const ModuleTables tables{"_osgproxy", methods, {}, proxy::Types::sorted_types, proxy::Types::sorted_casts,
                                     proxy::Types::count};
    proxy::Types::build();
    return tables;
}

PyMODINIT_FUNC PyInit__osgproxy() {
    static PyModuleDef def = {PyModuleDef_HEAD_INIT, "_osgproxy",
                              "What the generated packages run on: OSG's class hierarchy for the ring, method "
                              "descriptors over the flat functions, results of their own class.",
                              -1, nullptr, nullptr, nullptr, nullptr, nullptr};
    if (!method_type && !(method_type = (PyTypeObject *)PyType_FromSpec(&method_spec))) return nullptr;
    static PyObject *proxy_type = PyType_FromSpec(&proxy_spec);
    if (!proxy_type) return nullptr;
    PyObject *m = wrap::init_module(def, [] { proxy::Types::join(swig_module); });
    if (m && (PyModule_AddObjectRef(m, "Method", (PyObject *)method_type) < 0 ||
              PyModule_AddObjectRef(m, "Proxy", proxy_type) < 0))
        Py_CLEAR(m);
    return m;
}
