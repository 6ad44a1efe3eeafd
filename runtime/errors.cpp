// Status codes to exceptions, argument unpacking and the scalar converters.
#include "swigrt.h"
// The family's runtime moves the pending exception as a (type, value, traceback) triple.
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"

PyObject *SWIG_Python_ErrorType(int code) {
    switch (code) {
    case SWIG_MemoryError: return PyExc_MemoryError;
    case SWIG_IOError: return PyExc_IOError;
    case SWIG_RuntimeError: return PyExc_RuntimeError;
    case SWIG_IndexError: return PyExc_IndexError;
    case SWIG_TypeError: return PyExc_TypeError;
    case SWIG_DivisionByZero: return PyExc_ZeroDivisionError;
    case SWIG_OverflowError: return PyExc_OverflowError;
    case SWIG_SyntaxError: return PyExc_SyntaxError;
    case SWIG_ValueError: return PyExc_ValueError;
    case SWIG_SystemError: return PyExc_SystemError;
    case SWIG_AttributeError: return PyExc_AttributeError;
    case SWIG_NullReferenceError: return PyExc_TypeError;
    default: return PyExc_RuntimeError;
    }
}

void SWIG_Python_SetErrorMsg(PyObject *errtype, const char *msg) {
    // RAII so the lock state is released even if something unwinds through here.
    struct Gil {
        PyGILState_STATE state = PyGILState_Ensure();
        ~Gil() { PyGILState_Release(state); }
    } gil;
    PyErr_SetString(errtype, msg);
}

void SWIG_Python_RaiseOrModifyTypeError(const char *message) {
    if (PyErr_Occurred() && PyErr_GivenExceptionMatches(PyErr_Occurred(), PyExc_TypeError)) {
        PyObject *type = nullptr, *value = nullptr, *traceback = nullptr;
        PyErr_Fetch(&type, &value, &traceback);
        PyObject *newvalue = PyUnicode_FromFormat("%S\nAdditional information:\n%s", value, message);
        if (newvalue) {
            Py_XDECREF(value);
            PyErr_Restore(type, newvalue, traceback);
        } else {
            PyErr_Restore(type, value, traceback);
        }
    } else {
        PyErr_SetString(PyExc_TypeError, message);
    }
}

Py_ssize_t SWIG_Python_UnpackTuple(PyObject *args, const char *name, Py_ssize_t min, Py_ssize_t max,
                                   PyObject **objs) {
    if (!args) {
        if (!min && !max) return 1;
        PyErr_Format(PyExc_TypeError, "%s expected %s%d arguments, got none", name, (min == max ? "" : "at least "),
                     (int)min);
        return 0;
    }
    if (!PyTuple_Check(args)) {
        // A lone object stands for itself where one argument is allowed (METH_O callers).
        if (min <= 1 && max >= 1) {
            objs[0] = args;
            for (Py_ssize_t i = 1; i < max; ++i) objs[i] = nullptr;
            return 2;
        }
        PyErr_SetString(PyExc_SystemError, "UnpackTuple() argument list is not a tuple");
        return 0;
    }
    Py_ssize_t l = PyTuple_GET_SIZE(args);
    if (l < min) {
        PyErr_Format(PyExc_TypeError, "%s expected %s%d arguments, got %d", name, (min == max ? "" : "at least "),
                     (int)min, (int)l);
        return 0;
    }
    if (l > max) {
        PyErr_Format(PyExc_TypeError, "%s expected %s%d arguments, got %d", name, (min == max ? "" : "at most "),
                     (int)max, (int)l);
        return 0;
    }
    Py_ssize_t i = 0;
    for (; i < l; ++i) objs[i] = PyTuple_GET_ITEM(args, i);
    for (; i < max; ++i) objs[i] = nullptr;
    return l + 1;
}

int SWIG_AsVal_long(PyObject *obj, long *val) {
    if (!PyLong_Check(obj)) return SWIG_TypeError;
    long v = PyLong_AsLong(obj);
    if (PyErr_Occurred()) {
        PyErr_Clear();
        return SWIG_OverflowError;
    }
    if (val) *val = v;
    return SWIG_OK;
}

int SWIG_AsVal_unsigned_SS_long(PyObject *obj, unsigned long *val) {
    if (!PyLong_Check(obj)) return SWIG_TypeError;
    unsigned long v = PyLong_AsUnsignedLong(obj);
    if (PyErr_Occurred()) {
        PyErr_Clear();
        return SWIG_OverflowError;
    }
    if (val) *val = v;
    return SWIG_OK;
}

int SWIG_AsVal_double_general(PyObject *obj, double *val) {
    if (PyFloat_Check(obj)) {
        if (val) *val = PyFloat_AsDouble(obj);
        return SWIG_OK;
    }
    if (PyLong_Check(obj)) {
        double v = PyLong_AsDouble(obj);
        if (PyErr_Occurred()) {
            PyErr_Clear();
            return SWIG_TypeError;
        }
        if (val) *val = v;
        return SWIG_OK;
    }
    return SWIG_TypeError;
}

int SWIG_AsVal_float_general(PyObject *obj, float *val) {
    double v;
    int res = SWIG_AsVal_double(obj, &v);
    if (res < 0) return res;
    if ((v < -3.4028234663852886e+38 || v > 3.4028234663852886e+38) &&
        (v >= -1.7976931348623157e+308 && v <= 1.7976931348623157e+308))
        return SWIG_OverflowError;
    if (val) *val = (float)v;
    return SWIG_OK;
}
