// Method-table rows for the class hooks the companion proxy layer calls:
// <Class>_swigregister(cls) and <Class>_swiginit(self, this).
#pragma once
#include "runtime/type_table.h"

namespace wrap {

template <int T>
PyObject *swigregister(PyObject *, PyObject *arg) {
    return SWIG_Python_Register(swig_types[T], arg);
}

inline PyObject *swiginit(PyObject *, PyObject *args) { return SWIG_Python_Init(args); }

template <int T>
constexpr PyMethodDef register_row(const char *name) {
    return {name, swigregister<T>, METH_O, nullptr};
}

constexpr PyMethodDef init_row(const char *name) { return {name, swiginit, METH_VARARGS, nullptr}; }

}  // namespace wrap
