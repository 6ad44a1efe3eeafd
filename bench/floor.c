/* The floor for the call benchmarks: the cheapest METH_O and METH_VARARGS functions
   CPython can call, doing no conversion work beyond what any wrapper must do. */
#define PY_SSIZE_T_CLEAN
#include <Python.h>
#include <stdlib.h>

/* meth_o(x): one argument, returns a float. */
static PyObject *meth_o(PyObject *self, PyObject *arg) {
    (void)self;
    (void)arg;
    return PyFloat_FromDouble(1.0);
}

/* varargs2(a, b): two arguments through the tuple, size-checked, returns None. */
static PyObject *varargs2(PyObject *self, PyObject *args) {
    (void)self;
    if (!PyTuple_Check(args) || PyTuple_GET_SIZE(args) != 2) {
        PyErr_SetString(PyExc_TypeError, "varargs2 expected 2 arguments");
        return NULL;
    }
    PyObject *a = PyTuple_GET_ITEM(args, 0);
    PyObject *b = PyTuple_GET_ITEM(args, 1);
    (void)a;
    (void)b;
    Py_RETURN_NONE;
}

/* The least a by-value result of this object model costs: a heap copy of the value, a pointer
   object holding it, an instance of the registered class made through its tp_new, and the
   pointer object stored as the instance's `this`. by_value(a, b) does that for a 12-byte value
   and the class given to set_class; the pointer object is a bare object with a pointer. */
typedef struct {
    PyObject_HEAD
    void *ptr;
} Pointer;

static void pointer_dealloc(PyObject *self) {
    free(((Pointer *)self)->ptr);
    PyObject_Free(self);
}

static PyTypeObject pointer_type = {
    PyVarObject_HEAD_INIT(NULL, 0).tp_name = "_floor.Pointer",
    .tp_basicsize = sizeof(Pointer),
    .tp_dealloc = pointer_dealloc,
    .tp_flags = Py_TPFLAGS_DEFAULT,
};

static PyTypeObject *result_class;
static PyObject *this_name;

static PyObject *set_class(PyObject *self, PyObject *cls) {
    (void)self;
    if (!PyType_Check(cls)) {
        PyErr_SetString(PyExc_TypeError, "set_class takes a class");
        return NULL;
    }
    Py_XSETREF(result_class, (PyTypeObject *)Py_NewRef(cls));
    Py_RETURN_NONE;
}

static PyObject *by_value(PyObject *self, PyObject *args) {
    (void)self;
    if (!PyTuple_Check(args) || PyTuple_GET_SIZE(args) != 2 || !result_class) {
        PyErr_SetString(PyExc_TypeError, "by_value expected 2 arguments and a class");
        return NULL;
    }
    float *copy = malloc(3 * sizeof(float));
    Pointer *p = copy ? PyObject_New(Pointer, &pointer_type) : NULL;
    if (!p) {
        free(copy);
        return PyErr_NoMemory();
    }
    copy[0] = copy[1] = copy[2] = 1.0f;
    p->ptr = copy;
    PyObject *empty = PyTuple_New(0);
    PyObject *inst = empty ? result_class->tp_new(result_class, empty, NULL) : NULL;
    Py_XDECREF(empty);
    if (inst && PyObject_SetAttr(inst, this_name, (PyObject *)p) < 0) Py_CLEAR(inst);
    Py_DECREF(p);
    return inst;
}

static PyMethodDef floor_methods[] = {
    {"set_class", set_class, METH_O, "set_class(cls): the class by_value makes instances of"},
    {"by_value", by_value, METH_VARARGS, "by_value(a, b) -> an instance of the class, its `this` a new pointer object"},
    {"meth_o", meth_o, METH_O, "meth_o(x) -> 1.0"},
    {"varargs2", varargs2, METH_VARARGS, "varargs2(a, b) -> None"},
    {NULL, NULL, 0, NULL},
};

static PyModuleDef_Slot floor_slots[] = {
    {Py_mod_multiple_interpreters, Py_MOD_MULTIPLE_INTERPRETERS_NOT_SUPPORTED},
    {Py_mod_gil, Py_MOD_GIL_NOT_USED},
    {0, NULL},
};

static struct PyModuleDef floor_module = {
    PyModuleDef_HEAD_INIT, "_floor", "Call-overhead floor for the benchmarks.", 0, floor_methods, floor_slots,
    NULL, NULL, NULL,
};

PyMODINIT_FUNC PyInit__floor(void) {
    if (PyType_Ready(&pointer_type) < 0) return NULL;
    if (!this_name && !(this_name = PyUnicode_InternFromString("this"))) return NULL;
    return PyModuleDef_Init(&floor_module);
}
