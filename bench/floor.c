/* The floor for the call benchmarks: the cheapest METH_O and METH_VARARGS functions
   CPython can call, doing no conversion work beyond what any wrapper must do. */
#define PY_SSIZE_T_CLEAN
#include <Python.h>

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

static PyMethodDef floor_methods[] = {
    {"meth_o", meth_o, METH_O, "meth_o(x) -> 1.0"},
    {"varargs2", varargs2, METH_VARARGS, "varargs2(a, b) -> None"},
    {NULL, NULL, 0, NULL},
};

static PyModuleDef_Slot floor_slots[] = {
    {Py_mod_multiple_interpreters, Py_MOD_PER_INTERPRETER_GIL_SUPPORTED},
    {Py_mod_gil, Py_MOD_GIL_NOT_USED},
    {0, NULL},
};

static struct PyModuleDef floor_module = {
    PyModuleDef_HEAD_INIT, "_floor", "Call-overhead floor for the benchmarks.", 0, floor_methods, floor_slots,
    NULL, NULL, NULL,
};

PyMODINIT_FUNC PyInit__floor(void) { return PyModuleDef_Init(&floor_module); }
