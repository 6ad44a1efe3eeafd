// Method-table rows for the class hooks the companion proxy layer calls:
// <Class>_swigregister(cls) and <Class>_swiginit(self, this).
#pragma once
#include "wrap/descriptor.h"

namespace wrap {

template <int T>
PyObject *swigregister(PyObject *, PyObject *arg) {
    return SWIG_Python_Register(swig_types[T], arg);
}

inline PyObject *swiginit(PyObject *, PyObject *args) { return SWIG_Python_Init(args); }

template <int T>
constexpr PyMethodDef register_row(const char *name) {
    return {name, swigregister<T>, METH_O,
            "swigregister(cls)\n\nRegisters cls as the Python proxy class of this C++ class: results of the class "
            "come back as instances of cls, and owned ones are destroyed by cls.__swig_destroy__."};
}

constexpr PyMethodDef init_row(const char *name) {
    return {name, swiginit, METH_VARARGS,
            "swiginit(self, this)\n\nAttaches the pointer object `this` (from new_<Class>) to the proxy instance "
            "self, as its `this` attribute or appended to the one it has."};
}

}  // namespace wrap
