// Pointer conversion in both directions, shadow instances and class registration.
#include "swigrt.h"
#include <cstdint>
#include <cstdlib>

PyObject *SWIG_This() {
    // Interned, so attribute lookups by it compare pointers.
    if (!Swig_This_global) Swig_This_global = PyUnicode_InternFromString("this");
    return Swig_This_global;
}

// A `this` computed on each access has no owner but the caller; the last few such objects
// are held here, so that each lives past the call that converted it.
static void keep_temporary(PyObject *obj) {
    static PyObject *held[64];
    static unsigned next_slot;
    PyObject *old = held[next_slot];
    held[next_slot] = obj;
    next_slot = (next_slot + 1) % 64;
    Py_XDECREF(old);  // last, since its destroy function may convert again
}

// Where a class keeps `this` in a slot of its instances (the generated packages' classes do),
// its offset; -1 where the attribute protocol must run. The slot is found as the lookup finds
// it (a member descriptor on the class, no __getattribute__, __getattr__ or __setattr__ of the
// class's own) and remembered by the class's version tag, which any change to the class or its
// bases clears.
SwigThisSlot swig_this_slots[SWIG_THIS_SLOTS];

static inline Py_ssize_t this_offset(PyTypeObject *t) {
    SwigThisSlot &e = swig_this_slots[SWIG_ThisSlotIndex(t)];
    if (t->tp_version_tag && e.type == t && e.version == t->tp_version_tag) return e.offset;
    Py_ssize_t offset = -1;
    if (t->tp_getattro == PyObject_GenericGetAttr && t->tp_setattro == PyObject_GenericSetAttr) {
        PyObject *descr = _PyType_Lookup(t, SWIG_This());  // gives the class a version tag
        if (descr && Py_IS_TYPE(descr, &PyMemberDescr_Type)) {
            // Found on the object's own class, the slot is one of its instances'.
            PyMemberDef *member = ((PyMemberDescrObject *)descr)->d_member;
            if (member->type == Py_T_OBJECT_EX && !(member->flags & Py_READONLY)) offset = member->offset;
        }
    }
    if (t->tp_version_tag) e = {t, t->tp_version_tag, offset};
    return offset;
}

// The instance's `this`, read from its slot as the attribute lookup would, without its calls
// or its AttributeError for a slot not yet set: 1 with the value (borrowed) or null, 0 where
// the lookup must run.
static int this_slot(PyObject *pyobj, PyObject **value) {
    Py_ssize_t offset = this_offset(Py_TYPE(pyobj));
    if (offset < 0) return 0;
    *value = *(PyObject **)((char *)pyobj + offset);
    return 1;
}

int SWIG_Python_SetThis(PyObject *inst, PyObject *value) {
    Py_ssize_t offset = this_offset(Py_TYPE(inst));
    if (offset < 0) return PyObject_SetAttr(inst, SWIG_This(), value);
    Py_XSETREF(*(PyObject **)((char *)inst + offset), Py_NewRef(value));
    return 0;
}

// The general walk: a `this` that is itself a proxy, a class without the slot, a sibling
// module's pointer object.
static SwigPyObject *find_this(PyObject *pyobj, int depth) {
    // A proxy whose `this` is itself a proxy is followed down to the pointer object; the
    // depth is bounded, so that a `this` leading back to itself fails instead of looping.
    for (; !SwigPyObject_Check(pyobj); ++depth) {
        PyObject *obj = nullptr;
        if (depth < 32 && this_slot(pyobj, &obj)) {
            if (!obj) return nullptr;
            pyobj = obj;
            continue;
        }
        // The optional lookup spares building an AttributeError for every number a dispatcher tests.
        if (depth == 32 || PyObject_GetOptionalAttr(pyobj, SWIG_This(), &obj) <= 0) {
            PyErr_Clear();
            return nullptr;
        }
        if (Py_REFCNT(obj) == 1) {
            keep_temporary(obj);
        } else {
            Py_DECREF(obj);  // kept alive by its owner
        }
        pyobj = obj;
    }
    return (SwigPyObject *)pyobj;
}

// Nearly every argument is a pointer object of this runtime's type or an instance holding one
// in its slot: those two are answered here without the walk. A type smaller than a pointer
// object cannot be one by name, so an instance of such a type goes straight to its slot.
static inline SwigPyObject *get_this(PyObject *pyobj) {
    PyTypeObject *t = Py_TYPE(pyobj);
    if (t == SwigPyObject_cached) return (SwigPyObject *)pyobj;
    if (t->tp_basicsize < (Py_ssize_t)sizeof(SwigPyObject)) {
        Py_ssize_t offset = this_offset(t);
        if (offset >= 0) {
            PyObject *obj = *(PyObject **)((char *)pyobj + offset);
            if (!obj) return nullptr;
            if (Py_TYPE(obj) == SwigPyObject_cached) return (SwigPyObject *)obj;
            return find_this(obj, 1);
        }
    }
    return find_this(pyobj, 0);
}

SwigPyObject *SWIG_Python_FindThis(PyObject *pyobj) { return get_this(pyobj); }

static inline int convert_ptr(PyObject *obj, void **ptr, swig_type_info *ty, int flags, SwigPyObject **matched) {
    *matched = nullptr;
    if (!obj) return SWIG_ERROR;
    // None: the general form leaves the out-pointer as the caller set it; the fixed
    // forms (swigrt.h) store null themselves.
    if (obj == Py_None) return (flags & SWIG_POINTER_NO_NULL) ? SWIG_NullReferenceError : SWIG_OK;
    SwigPyObject *sobj = get_this(obj);
    // The first pointer object of the chain of the very type asked for: no walk.
    if (sobj && sobj->ty == ty && ty) {
        if (ptr) *ptr = sobj->ptr;
        if (flags & SWIG_POINTER_DISOWN) SwigPyObject_setown(sobj, 0);
        *matched = sobj;
        return SWIG_OK;
    }
    while (sobj) {
        void *vptr = sobj->ptr;
        if (!sobj->ty) {  // made without a descriptor (by calling the type itself): matches nothing
            sobj = (SwigPyObject *)sobj->next;
            continue;
        }
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

int SWIG_Python_ConvertPtrGeneral(PyObject *obj, void **ptr, swig_type_info *ty, int flags) {
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
        if (inst && SWIG_Python_SetThis(inst, swig_this) == -1) {
            Py_DECREF(inst);
            inst = nullptr;
        }
    } else if (!PyType_Check(data->newargs) || !((PyTypeObject *)data->newargs)->tp_new) {
        // Registered with something that cannot make instances.
        PyErr_Format(PyExc_TypeError, "cannot create instances of the class registered for '%s'",
                     SWIG_TypePrettyName(((SwigPyObject *)swig_this)->ty));
    } else {
        // Keyword arguments are none: a null mapping says so without making a dictionary.
        auto *klass = (PyTypeObject *)data->newargs;
        static PyObject *no_args = PyTuple_New(0);
        // PyType_GenericNew does nothing but allocate, so its class's allocation is called directly.
        if (klass->tp_new == PyType_GenericNew) {
            inst = klass->tp_alloc(klass, 0);
        } else {
            inst = no_args ? klass->tp_new(klass, no_args, nullptr) : nullptr;
        }
        // Setting `this` changes the instance, never its class, so the class's attribute
        // cache stays valid; invalidating it here would cost every later method lookup on the
        // class, and after about a thousand results CPython stops caching its attributes.
        if (inst && SWIG_Python_SetThis(inst, swig_this) == -1) Py_CLEAR(inst);
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
        // A package class: allocated as PyType_GenericNew would and given the new pointer object
        // straight into its empty slot, the reference passing with it.
        auto *klass = (PyTypeObject *)clientdata->newargs;
        if (!clientdata->newraw && PyType_Check(klass) && klass->tp_new == PyType_GenericNew) {
            Py_ssize_t offset = this_offset(klass);
            if (offset >= 0) {
                PyObject *inst = klass->tp_alloc(klass, 0);
                if (inst) {
                    Py_XSETREF(*(PyObject **)((char *)inst + offset), robj);
                } else {
                    Py_DECREF(robj);
                }
                return inst;
            }
        }
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
    int is_type = PyObject_IsInstance(obj, (PyObject *)&PyType_Type);
    if (is_type < 0) {  // an object whose class cannot even be asked is no class
        PyErr_Clear();
        is_type = 0;
    }
    if (is_type) {
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
            PyErr_Clear();
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
    } else if (SWIG_Python_SetThis(obj[0], obj[1]) != 0) {
        return nullptr;
    }
    Py_RETURN_NONE;
}
