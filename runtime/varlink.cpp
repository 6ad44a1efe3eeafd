// The `cvar` link object: attribute access on it calls a global variable's getter or setter.
#include "swigrt.h"
#include <cstdlib>
#include <cstring>

struct swig_globalvar {
    char *name;
    swig_varlink_get get_attr;
    swig_varlink_set set_attr;
    swig_globalvar *next;
};

struct swig_varlinkobject {
    PyObject_HEAD
    swig_globalvar *vars;
};

static PyObject *swig_varlink_repr(PyObject *) { return PyUnicode_InternFromString("<Swig global variables>"); }

static PyObject *swig_varlink_str(PyObject *o) {
    auto *v = (swig_varlinkobject *)o;
    PyObject *str = PyUnicode_InternFromString("(");
    for (swig_globalvar *var = v->vars; var; var = var->next) {
        PyObject *tail = PyUnicode_FromString(var->name);
        PyObject *joined = PyUnicode_Concat(str, tail);
        Py_DecRef(str);
        Py_DecRef(tail);
        str = joined;
        if (var->next) {
            tail = PyUnicode_InternFromString(", ");
            joined = PyUnicode_Concat(str, tail);
            Py_DecRef(str);
            Py_DecRef(tail);
            str = joined;
        }
    }
    PyObject *tail = PyUnicode_InternFromString(")");
    PyObject *joined = PyUnicode_Concat(str, tail);
    Py_DecRef(str);
    Py_DecRef(tail);
    return joined;
}

static void swig_varlink_dealloc(PyObject *o) {
    // Frees the variable nodes only; the object's own memory stays, as the family's runtime has it.
    auto *v = (swig_varlinkobject *)o;
    swig_globalvar *var = v->vars;
    while (var) {
        swig_globalvar *n = var->next;
        std::free(var->name);
        std::free(var);
        var = n;
    }
}

static PyObject *swig_varlink_getattr(PyObject *o, char *n) {
    auto *v = (swig_varlinkobject *)o;
    PyObject *res = nullptr;
    for (swig_globalvar *var = v->vars; var; var = var->next) {
        if (std::strcmp(var->name, n) == 0) {
            res = var->get_attr();
            break;
        }
    }
    if (!res && !PyErr_Occurred()) PyErr_Format(PyExc_AttributeError, "Unknown C global variable '%s'", n);
    return res;
}

static int swig_varlink_setattr(PyObject *o, char *n, PyObject *p) {
    auto *v = (swig_varlinkobject *)o;
    int res = 1;
    for (swig_globalvar *var = v->vars; var; var = var->next) {
        if (std::strcmp(var->name, n) == 0) {
            res = var->set_attr(p);
            break;
        }
    }
    if (res == 1) {
        if (!PyErr_Occurred()) PyErr_Format(PyExc_AttributeError, "Unknown C global variable '%s'", n);
        // The interpreter reads only a negative result as an error (delattr() checks < 0).
        return -1;
    }
    return res;
}

static PyTypeObject *swig_varlink_type() {
    static const char varlink__doc__[] = "Swig var link object";
    PyType_Slot slots[] = {
        {Py_tp_dealloc, (void *)swig_varlink_dealloc},
        {Py_tp_repr, (void *)swig_varlink_repr},
        {Py_tp_getattr, (void *)swig_varlink_getattr},
        {Py_tp_setattr, (void *)swig_varlink_setattr},
        {Py_tp_str, (void *)swig_varlink_str},
        {Py_tp_doc, (void *)varlink__doc__},
        {0, nullptr},
    };
    PyType_Spec spec = {"swig_runtime_data4.swigvarlink", sizeof(swig_varlinkobject), 0, 0, slots};
    return (PyTypeObject *)PyType_FromSpec(&spec);
}

PyObject *SWIG_newvarlink() {
    PyTypeObject *type = swig_varlink_type();
    if (!type) return nullptr;
    auto *result = PyObject_New(swig_varlinkobject, type);
    Py_DECREF(type);  // instances hold their own reference to a heap type
    if (result) result->vars = nullptr;
    return (PyObject *)result;
}

PyObject *SWIG_globals() {
    if (!Swig_Globals_global) Swig_Globals_global = SWIG_newvarlink();
    return Swig_Globals_global;
}

void SWIG_Python_AddVarLink(PyObject *p, const char *name, swig_varlink_get get_attr, swig_varlink_set set_attr) {
    auto *v = (swig_varlinkobject *)p;
    auto *gv = (swig_globalvar *)std::malloc(sizeof(swig_globalvar));
    if (gv) {
        size_t size = std::strlen(name) + 1;
        gv->name = (char *)std::malloc(size);
        if (gv->name) {
            std::memcpy(gv->name, name, size);
            gv->get_attr = get_attr;
            gv->set_attr = set_attr;
            gv->next = v->vars;
        }
    }
    // The head is replaced even by a failed node: the list is cut there.
    v->vars = gv;
}
