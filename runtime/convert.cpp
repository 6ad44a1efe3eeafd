// Pointer conversion in both directions, shadow instances and class registration.
#include "swigrt.h"
#include <cstdlib>

PyObject *SWIG_This() {
    // Interned, so attribute lookups by it compare pointers.
    if (!Swig_This_global) Swig_This_global = PyUnicode_InternFromString("this");
    return Swig_This_global;
}

SwigPyObject *SWIG_Python_GetSwigThis(PyObject *pyobj) {
    // A proxy whose `this` is itself a proxy is followed down to the pointer object.
    while (!SwigPyObject_Check(pyobj)) {
        PyObject *obj = nullptr;
        // The optional lookup spares building an AttributeError for every number a dispatcher tests.
        if (PyObject_GetOptionalAttr(pyobj, SWIG_This(), &obj) <= 0) {
            PyErr_Clear();
            return nullptr;
        }
        Py_DECREF(obj);  // kept alive by its owner
        pyobj = obj;
    }
    return (SwigPyObject *)pyobj;
}

static inline int convert_ptr(PyObject *obj, void **ptr, swig_type_info *ty, int flags, SwigPyObject **matched) {
    *matched = nullptr;
    if (!obj) return SWIG_ERROR;
    // None: the general form leaves the out-pointer as the caller set it; the fixed
    // forms (swigrt.h) store null themselves.
    if (obj == Py_None) return (flags & SWIG_POINTER_NO_NULL) ? SWIG_NullReferenceError : SWIG_OK;
    SwigPyObject *sobj = SWIG_Python_GetSwigThis(obj);
    while (sobj) {
        void *vptr = sobj->ptr;
        if (ty) {
            if (ty == sobj->ty) {
                if (ptr) *ptr = vptr;
                break;
            }
            if (ty->cast) {
                if (swig_cast_info *tc = SWIG_TypeCheck(sobj->ty->name, ty)) {
                    if (ptr) {
                        int newmemory = 0;
                        *ptr = SWIG_TypeCast(tc, vptr, &newmemory);
                    }
                    break;
                }
            }
            sobj = (SwigPyObject *)sobj->next;
        } else {
            if (ptr) *ptr = vptr;
            break;
        }
    }
    if (!sobj) return SWIG_ERROR;
    if (flags & SWIG_POINTER_DISOWN) SwigPyObject_setown(sobj, 0);
    *matched = sobj;
    return SWIG_OK;
}

int SWIG_Python_ConvertPtrAndOwn(PyObject *obj, void **ptr, swig_type_info *ty, int flags) {
    SwigPyObject *matched;
    return convert_ptr(obj, ptr, ty, flags, &matched);
}

int SWIG_Python_ConvertPtrMatch(PyObject *obj, void **ptr, swig_type_info *ty, int flags, SwigPyObject **matched) {
    return convert_ptr(obj, ptr, ty, flags, matched);
}

PyObject *SWIG_Python_NewShadowInstance(SwigPyClientData *data, PyObject *swig_this) {
    PyObject *inst = nullptr;
    if (data->newraw) {
        inst = PyObject_Call(data->newraw, data->newargs, nullptr);
        if (inst && PyObject_SetAttr(inst, SWIG_This(), swig_this) == -1) {
            Py_DECREF(inst);
            inst = nullptr;
        }
    } else {
        PyObject *empty_args = PyTuple_New(0);
        if (empty_args) {
            PyObject *empty_kwargs = PyDict_New();
            if (empty_kwargs) {
                auto *klass = (PyTypeObject *)data->newargs;
                inst = klass->tp_new(klass, empty_args, empty_kwargs);
                Py_DECREF(empty_kwargs);
                if (inst) {
                    if (PyObject_SetAttr(inst, SWIG_This(), swig_this) == -1) {
                        Py_DECREF(inst);
                        inst = nullptr;
                    } else {
                        PyType_Modified(Py_TYPE(inst));
                    }
                }
            }
            Py_DECREF(empty_args);
        }
    }
    return inst;
}

PyObject *SWIG_Python_NewPointerObj(void *ptr, swig_type_info *type, int flags) {
    if (!ptr) Py_RETURN_NONE;
    auto *clientdata = type ? (SwigPyClientData *)type->clientdata : nullptr;
    int own = (flags & SWIG_POINTER_OWN) ? SWIG_POINTER_OWN : 0;
    if (clientdata && clientdata->pytype) {
        auto *newobj = PyObject_New(SwigPyObject, clientdata->pytype);
        if (!newobj) Py_RETURN_NONE;
        newobj->ptr = ptr;
        newobj->ty = type;
        newobj->own = own;
        newobj->next = nullptr;
        return (PyObject *)newobj;
    }
    PyObject *robj = SwigPyObject_New(ptr, type, own);
    if (!robj) return nullptr;
    // Every owned proxy keeps the shared type table alive.
    if (own) Py_XINCREF(Swig_Capsule_global);
    if (clientdata && !(flags & SWIG_POINTER_NOSHADOW)) {
        PyObject *inst = SWIG_Python_NewShadowInstance(clientdata, robj);
        Py_DECREF(robj);
        return inst;
    }
    return robj;
}

SwigPyClientData *SwigPyClientData_New(PyObject *obj) {
    if (!obj) return nullptr;
    auto *data = (SwigPyClientData *)std::malloc(sizeof(SwigPyClientData));
    data->klass = Py_NewRef(obj);
    if (PyObject_IsInstance(obj, (PyObject *)&PyType_Type)) {
        data->newraw = nullptr;
        data->newargs = Py_NewRef(obj);
    } else {
        data->newraw = PyObject_GetAttrString(data->klass, "__new__");
        if (data->newraw) {
            data->newargs = PyTuple_New(1);
            if (!data->newargs) {
                Py_DECREF(data->newraw);
                Py_DECREF(data->klass);
                std::free(data);
                return nullptr;
            }
            PyTuple_SET_ITEM(data->newargs, 0, Py_NewRef(obj));
        } else {
            data->newargs = Py_NewRef(obj);
        }
    }
    data->destroy = PyObject_GetAttrString(data->klass, "__swig_destroy__");
    if (PyErr_Occurred()) {
        PyErr_Clear();
        data->destroy = nullptr;
    }
    data->delargs = 0;
    if (data->destroy) {
        int flags = PyCFunction_Check(data->destroy) ? PyCFunction_GET_FLAGS(data->destroy) : 0;
        data->delargs = !(flags & METH_O);
    }
    data->implicitconv = 0;
    data->pytype = nullptr;
    return data;
}

void SwigPyClientData_Del(SwigPyClientData *data) {
    Py_XDECREF(data->klass);
    Py_XDECREF(data->newraw);
    Py_XDECREF(data->newargs);
    Py_XDECREF(data->destroy);
    std::free(data);
}

PyObject *SWIG_Python_Register(swig_type_info *ty, PyObject *args) {
    PyObject *obj[2];
    if (!SWIG_Python_UnpackTuple(args, "swigregister", 1, 1, obj)) return nullptr;
    SWIG_TypeClientData(ty, SwigPyClientData_New(obj[0]));
    ty->owndata = 1;
    Py_RETURN_NONE;
}

PyObject *SWIG_Python_Init(PyObject *args) {
    PyObject *obj[3];
    if (!SWIG_Python_UnpackTuple(args, "swiginit", 2, 2, obj)) return nullptr;
    if (SwigPyObject *sthis = SWIG_Python_GetSwigThis(obj[0])) {
        PyObject *res = SwigPyObject_append((PyObject *)sthis, obj[1]);
        if (!res) return nullptr;
        Py_DECREF(res);
    } else if (PyObject_SetAttr(obj[0], SWIG_This(), obj[1]) != 0) {
        return nullptr;
    }
    Py_RETURN_NONE;
}
