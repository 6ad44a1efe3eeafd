// The pointer proxy types SwigPyObject and SwigPyPacked.
#include "swigrt.h"
// The family's runtime saves and restores the pending exception as a triple.
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"
#include <cstdio>
#include <cstdlib>
#include <cstring>

static const char swigobject_doc[] = "Swig object carries a C/C++ instance pointer";
static const char swigpacked_doc[] = "Swig object carries a C/C++ instance pointer";

char *SWIG_PackData(char *c, const void *ptr, size_t sz) {
    static const char hex[17] = "0123456789abcdef";
    const unsigned char *u = (const unsigned char *)ptr;
    for (size_t i = 0; i < sz; ++i) {
        *c++ = hex[(u[i] & 0xf0) >> 4];
        *c++ = hex[u[i] & 0xf];
    }
    return c;
}

// ---- SwigPyObject -------------------------------------------------------------

int SwigPyObject_CheckByName(PyTypeObject *t) {
    // Anything smaller than a pointer object (every ordinary proxy instance) cannot be one.
    return t->tp_basicsize >= (Py_ssize_t)sizeof(SwigPyObject) && std::strcmp(t->tp_name, "swig_runtime_data4.SwigPyObject") == 0;
}


static PyObject *SwigPyObject_repr(PyObject *o) {
    // Each object of the chain in turn, without a separator; built in a loop, not by
    // recursion, so that a long chain cannot exhaust the stack.
    PyObject *parts = PyList_New(0);
    for (auto *v = (SwigPyObject *)o; v && parts; v = (SwigPyObject *)v->next) {
        PyObject *one = PyUnicode_FromFormat("<Swig Object of type '%s' at %p>", SWIG_TypePrettyName(v->ty), (void *)v);
        if (!one || PyList_Append(parts, one) < 0) Py_CLEAR(parts);
        Py_XDECREF(one);
    }
    if (!parts) return nullptr;
    PyObject *empty = PyUnicode_FromString("");
    PyObject *repr = empty ? PyUnicode_Join(empty, parts) : nullptr;
    Py_XDECREF(empty);
    Py_DECREF(parts);
    return repr;
}

static PyObject *SwigPyObject_repr2(PyObject *v, PyObject *) { return SwigPyObject_repr(v); }

static PyObject *SwigPyObject_richcompare(PyObject *v, PyObject *w, int op) {
    if (PyErr_Occurred()) return nullptr;
    if (op != Py_EQ && op != Py_NE) Py_RETURN_NOTIMPLEMENTED;
    // The second operand is read as a SwigPyObject without a check, as the family's runtime does.
    bool same = ((SwigPyObject *)v)->ptr == ((SwigPyObject *)w)->ptr;
    return PyBool_FromLong(same == (op == Py_EQ));
}

static PyObject *SwigPyObject_long(PyObject *v) { return PyLong_FromVoidPtr(((SwigPyObject *)v)->ptr); }

// The C function of a method of a sibling module's proxy type (the base its class derives from).
static PyCFunction sibling_method(PyTypeObject *t, const char *name) {
    for (; t; t = t->tp_base) {
        if (std::strcmp(t->tp_name, "swig_runtime_data4.SwigPyObject") != 0 || !t->tp_methods) continue;
        for (PyMethodDef *m = t->tp_methods; m->ml_name; ++m)
            if (std::strcmp(m->ml_name, name) == 0) return m->ml_meth;
    }
    return nullptr;
}

void SwigPyObject_setown(SwigPyObject *sobj, int own) {
    // A pointer object of a sibling module (its own proxy type, its own runtime) changes owner
    // through that runtime: the capsule reference it may hold is that runtime's to move, since
    // that runtime's deallocation releases it; moving it here would release a reference a
    // joining module never took. The method is called directly, taking no reference, as this
    // may run inside the object's own deallocation (its destroy function disowns it).
    if (Py_TYPE(sobj) != SwigPyObject_cached && !PyType_IsSubtype(Py_TYPE(sobj), SwigPyObject_type())) {
        PyCFunction move = sibling_method(Py_TYPE(sobj), own ? "acquire" : "disown");
        if (!move || !own == !sobj->own) {
            sobj->own = own;
            return;
        }
        PyObject *type, *value, *traceback;
        PyErr_Fetch(&type, &value, &traceback);
        PyObject *r = move((PyObject *)sobj, nullptr);
        if (r) {
            Py_DECREF(r);
        } else {
            PyErr_Clear();
            sobj->own = own;
        }
        PyErr_Restore(type, value, traceback);
        return;
    }
    // An owner holds one reference to the shared capsule, released when it dies owning;
    // a change of ownership moves that reference with the flag, so it is never released
    // by an object that did not take it, nor kept by one that gave ownership away.
    if (own && !sobj->own) Py_XINCREF(Swig_Capsule_global);
    if (!own && sobj->own) Py_XDECREF(Swig_Capsule_global);
    sobj->own = own;
}

static PyObject *SwigPyObject_disown(PyObject *v, PyObject *) {
    SwigPyObject_setown((SwigPyObject *)v, 0);
    Py_RETURN_NONE;
}

static PyObject *SwigPyObject_acquire(PyObject *v, PyObject *) {
    SwigPyObject_setown((SwigPyObject *)v, SWIG_POINTER_OWN);
    Py_RETURN_NONE;
}

static PyObject *SwigPyObject_own(PyObject *v, PyObject *args) {
    PyObject *val = nullptr;
    if (!PyArg_UnpackTuple(args, "own", 0, 1, &val)) return nullptr;
    auto *sobj = (SwigPyObject *)v;
    PyObject *obj = PyBool_FromLong(sobj->own);
    if (val) SwigPyObject_setown(sobj, PyObject_IsTrue(val) ? SWIG_POINTER_OWN : 0);
    return obj;
}

PyObject *SwigPyObject_append(PyObject *v, PyObject *next) {
    if (!SwigPyObject_Check(next)) {
        PyErr_SetString(PyExc_TypeError, "Attempt to append a non SwigPyObject");
        return nullptr;
    }
    auto *sobj = (SwigPyObject *)v;
    // Appending an object already in the chain would close it into a loop.
    for (PyObject *o = v; o; o = ((SwigPyObject *)o)->next) {
        if (o == next) {
            PyErr_SetString(PyExc_ValueError, "Attempt to append a SwigPyObject already in the chain");
            return nullptr;
        }
    }
    ((SwigPyObject *)next)->next = sobj->next;
    sobj->next = next;
    Py_INCREF(next);
    Py_RETURN_NONE;
}

static PyObject *SwigPyObject_next(PyObject *v, PyObject *) {
    auto *sobj = (SwigPyObject *)v;
    if (sobj->next) return Py_NewRef(sobj->next);
    Py_RETURN_NONE;
}

// Results mostly die within the statement that made them, so a pointer object freed a moment
// ago is nearly always at hand for the next one: the allocator is spared both ways.
static const int free_max = 32;
static PyObject *free_objects[free_max];
static int free_count;

static void SwigPyObject_dealloc(PyObject *v) {
    auto *sobj = (SwigPyObject *)v;
    PyTypeObject *tp = Py_TYPE(v);
    PyObject *next = sobj->next;
    if (sobj->own == SWIG_POINTER_OWN) {
        swig_type_info *ty = sobj->ty;
        auto *data = ty ? (SwigPyClientData *)ty->clientdata : nullptr;
        PyObject *destroy = data ? data->destroy : nullptr;
        if (destroy) {
            PyObject *pending = PyErr_GetRaisedException();
            PyObject *res = nullptr;
            if (data->delargs) {
                // A temporary that does not own, so the destroy call cannot recurse into here.
                PyObject *tmp = SwigPyObject_New(sobj->ptr, ty, 0);
                if (tmp) {
                    res = PyObject_CallFunctionObjArgs(destroy, tmp, nullptr);
                    Py_DECREF(tmp);
                }
            } else {
                PyCFunction meth = PyCFunction_GET_FUNCTION(destroy);
                PyObject *mself = (PyCFunction_GET_FLAGS(destroy) & METH_STATIC) ? nullptr : PyCFunction_GET_SELF(destroy);
                res = meth(mself, v);
            }
            if (res) {
                Py_DECREF(res);
            } else {
                PyErr_WriteUnraisable(destroy);
            }
            PyErr_SetRaisedException(pending);
        } else {
            std::printf("swig/python detected a memory leak of type '%s', no destructor found.\n", SWIG_TypePrettyName(ty));
        }
        // A destroy function that disowned this object has released its capsule reference already.
        if (sobj->own) Py_XDECREF(Swig_Capsule_global);
    }
    // A long chain is released one object at a time, not by recursion.
    while (next && Py_REFCNT(next) == 1) {
        auto *n = (SwigPyObject *)next;
        next = n->next;
        n->next = nullptr;
        Py_DECREF(n);
    }
    Py_XDECREF(next);
    // The instance's own type frees it: a subclass instance carries a collector header. One of
    // this runtime's own type is kept for the next pointer object instead, while there is room.
    if (tp == SwigPyObject_cached && free_count < free_max) {
        free_objects[free_count++] = v;
    } else {
        tp->tp_free(v);
    }
    Py_DECREF(tp);  // every instance of a heap type holds a reference to it
}

static PyMethodDef swigobject_methods[] = {
    {"disown", SwigPyObject_disown, METH_NOARGS, "releases ownership of the pointer"},
    {"acquire", SwigPyObject_acquire, METH_NOARGS, "acquires ownership of the pointer"},
    {"own", SwigPyObject_own, METH_VARARGS, "returns/sets ownership of the pointer"},
    {"append", SwigPyObject_append, METH_O, "appends another 'this' object"},
    {"next", SwigPyObject_next, METH_NOARGS, "returns the next 'this' object"},
    // Coexisting, so that this entry and not the repr slot's wrapper is the visible __repr__.
    {"__repr__", SwigPyObject_repr2, METH_NOARGS | METH_COEXIST, "returns object representation"},
    {nullptr, nullptr, 0, nullptr},
};

static PyTypeObject *SwigPyObject_TypeOnce() {
    static PyType_Slot slots[] = {
        {Py_tp_dealloc, (void *)SwigPyObject_dealloc},
        {Py_tp_repr, (void *)SwigPyObject_repr},
        {Py_tp_getattro, (void *)PyObject_GenericGetAttr},
        {Py_tp_doc, (void *)swigobject_doc},
        {Py_tp_richcompare, (void *)SwigPyObject_richcompare},
        {Py_tp_methods, (void *)swigobject_methods},
        {Py_nb_int, (void *)SwigPyObject_long},
        {0, nullptr},
    };
    static PyType_Spec spec = {"swig_runtime_data4.SwigPyObject", sizeof(SwigPyObject), 0, Py_TPFLAGS_BASETYPE, slots};
    return (PyTypeObject *)PyType_FromSpec(&spec);
}

PyTypeObject *SwigPyObject_cached = nullptr;

PyTypeObject *SwigPyObject_type() {
    if (SwigPyObject_cached) return SwigPyObject_cached;
    // A failed build throws out of the static initialiser, so the next call retries.
    struct Once {
        PyTypeObject *type;
        Once() : type(SwigPyObject_TypeOnce()) {
            if (!type) throw 0;
        }
    };
    try {
        static Once once;
        return SwigPyObject_cached = once.type;
    } catch (int) {
        return nullptr;
    }
}

PyObject *SwigPyObject_New(void *ptr, swig_type_info *ty, int own) {
    SwigPyObject *sobj;
    if (free_count) {
        sobj = (SwigPyObject *)PyObject_Init(free_objects[--free_count], SwigPyObject_cached);
    } else {
        PyTypeObject *type = SwigPyObject_type();
        sobj = type ? PyObject_New(SwigPyObject, type) : nullptr;
    }
    if (sobj) {
        sobj->ptr = ptr;
        sobj->ty = ty;
        sobj->own = own;
        sobj->next = nullptr;
    }
    return (PyObject *)sobj;
}

// ---- SwigPyPacked ---------------------------------------------------------------


static PyObject *SwigPyPacked_repr(PyObject *o) {
    auto *v = (SwigPyPacked *)o;
    char result[1024];
    if (2 * v->size + 2 > sizeof(result)) return PyUnicode_FromFormat("<Swig Packed %s>", v->ty->name);
    result[0] = '_';
    *SWIG_PackData(result + 1, v->pack, v->size) = 0;
    return PyUnicode_FromFormat("<Swig Packed at %s%s>", result, v->ty->name);
}

static PyObject *SwigPyPacked_str(PyObject *o) {
    auto *v = (SwigPyPacked *)o;
    char result[1024];
    if (2 * v->size + 2 > sizeof(result)) return PyUnicode_FromString(v->ty->name);
    result[0] = '_';
    *SWIG_PackData(result + 1, v->pack, v->size) = 0;
    return PyUnicode_FromFormat("%s%s", result, v->ty->name);
}

static void SwigPyPacked_dealloc(PyObject *v) {
    PyTypeObject *tp = Py_TYPE(v);
    if (SwigPyPacked_Check(v)) std::free(((SwigPyPacked *)v)->pack);
    PyObject_Free(v);
    Py_DECREF(tp);
}

static PyType_Slot swigpacked_slots[] = {
    {Py_tp_dealloc, (void *)SwigPyPacked_dealloc},
    {Py_tp_repr, (void *)SwigPyPacked_repr},
    {Py_tp_str, (void *)SwigPyPacked_str},
    {Py_tp_getattro, (void *)PyObject_GenericGetAttr},
    {Py_tp_doc, (void *)swigpacked_doc},
    {0, nullptr},
};
static PyType_Spec swigpacked_spec = {"swig_runtime_data4.SwigPyPacked", sizeof(SwigPyPacked), 0, 0, swigpacked_slots};

int SwigPyPacked_Check(PyObject *op) {
    // The identity test uses a type built afresh from the same PyType_Spec (never released); the name test decides.
    auto *fresh = (PyTypeObject *)PyType_FromSpec(&swigpacked_spec);
    return Py_TYPE(op) == fresh || std::strcmp(Py_TYPE(op)->tp_name, "swig_runtime_data4.SwigPyPacked") == 0;
}

PyTypeObject *SwigPyPacked_type() {
    struct Once {
        PyTypeObject *type;
        Once() : type((PyTypeObject *)PyType_FromSpec(&swigpacked_spec)) {
            if (!type) throw 0;
        }
    };
    try {
        static Once once;
        return once.type;
    } catch (int) {
        return nullptr;
    }
}

PyObject *SwigPyPacked_New(void *ptr, size_t size, swig_type_info *ty) {
    auto *sobj = PyObject_New(SwigPyPacked, SwigPyPacked_type());
    if (!sobj) return nullptr;
    void *pack = std::malloc(size);
    if (!pack) {
        PyObject_Free(sobj);
        Py_DECREF(SwigPyPacked_type());
        return nullptr;
    }
    std::memcpy(pack, ptr, size);
    sobj->pack = pack;
    sobj->ty = ty;
    sobj->size = size;
    return (PyObject *)sobj;
}
