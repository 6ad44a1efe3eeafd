// The binding runtime shared by every extension module of the family: the type
// table and cast graph, the pointer proxy types, pointer and scalar conversion,
// error reporting and the global-variable link object.
//
// Each module that links this runtime gets its own copy of the module-wide
// globals below; modules meet only through the shared capsule and through the
// type records they share by name.
#pragma once

#define PY_SSIZE_T_CLEAN
#include <Python.h>
#include <cstdint>

// ---- status codes -----------------------------------------------------------
enum : int {
    SWIG_OK = 0,
    SWIG_ERROR = -1,
    SWIG_IOError = -2,
    SWIG_RuntimeError = -3,
    SWIG_IndexError = -4,
    SWIG_TypeError = -5,
    SWIG_DivisionByZero = -6,
    SWIG_OverflowError = -7,
    SWIG_SyntaxError = -8,
    SWIG_ValueError = -9,
    SWIG_SystemError = -10,
    SWIG_AttributeError = -11,
    SWIG_MemoryError = -12,
    SWIG_NullReferenceError = -13,
};

// Conversion flags and creation modes.
enum : int {
    SWIG_POINTER_DISOWN = 1,
    SWIG_POINTER_NO_NULL = 4,
    SWIG_POINTER_OWN = 1,
    SWIG_POINTER_NOSHADOW = 2,
    SWIG_POINTER_NEW = SWIG_POINTER_OWN | SWIG_POINTER_NOSHADOW,
};

// ---- type registry ----------------------------------------------------------
struct swig_type_info;
typedef void *(*swig_converter_func)(void *, int *);
typedef swig_type_info *(*swig_dycast_func)(void **);

struct swig_type_info {
    const char *name;
    const char *str;
    swig_dycast_func dcast;
    struct swig_cast_info *cast;
    void *clientdata;
    int owndata;
};

struct swig_cast_info {
    swig_type_info *type;
    swig_converter_func converter;
    swig_cast_info *next;
    swig_cast_info *prev;
};

struct swig_module_info {
    swig_type_info **types;
    size_t size;
    swig_module_info *next;
    swig_type_info **type_initial;
    swig_cast_info **cast_initial;
    void *clientdata;
};

#define SWIG_CAPSULE_NAME "swig_runtime_data4.type_pointer_capsule"

swig_cast_info *SWIG_TypeCheck(const char *name, swig_type_info *ty);
void *SWIG_TypeCast(swig_cast_info *cast, void *ptr, int *newmemory);
void SWIG_TypeClientData(swig_type_info *ti, void *clientdata);
swig_type_info *SWIG_MangledTypeQueryModule(swig_module_info *start, swig_module_info *end, const char *name);
swig_type_info *SWIG_TypeQueryModule(swig_module_info *start, swig_module_info *end, const char *name);
swig_type_info *SWIG_Python_TypeQuery(const char *name);
const char *SWIG_TypePrettyName(const swig_type_info *type);

// A module's wrappers called with their arguments as an array instead of a tuple, for callers
// that hold them as one (the packages' method descriptors): `fast` does what `wrapper` does for
// a count in [min, max]; any other count is left to `wrapper`, for its own message. A module
// of the family publishes its table as its swig_module_info's client data.
typedef PyObject *(*swig_fast_call)(PyObject *const *args, Py_ssize_t n);
struct swig_fast_entry {
    PyCFunction wrapper;
    swig_fast_call fast;
    Py_ssize_t min, max;
};
struct swig_fast_table {
    unsigned long magic;  // SWIG_FAST_TABLE_MAGIC: client data another module may leave null
    const swig_fast_entry *entries;  // sorted by wrapper
    size_t count;
};
#define SWIG_FAST_TABLE_MAGIC 0x5f6661737474626cUL
const swig_fast_entry *SWIG_FindFastEntry(PyCFunction wrapper);

// ---- module-wide globals (one set per linking module) ------------------------
extern PyObject *Swig_This_global;
extern PyObject *Swig_TypeCache_global;
extern PyObject *Swig_Globals_global;
extern PyObject *Swig_Capsule_global;
extern uint32_t interpreter_counter;

PyObject *SWIG_This();
PyObject *SWIG_Python_TypeCache();
PyObject *SWIG_globals();

// ---- module table: join, constants, teardown --------------------------------
struct swig_const_info {
    int type;
    const char *name;
    long lvalue;
    double dvalue;
    void *pvalue;
    swig_type_info **ptype;
};

void SWIG_Python_JoinModuleTable(swig_module_info *module, swig_type_info **type_initial,
                                 swig_cast_info **cast_initial);
void SWIG_Python_DestroyModule(PyObject *capsule);
// For a module that joined a ring another module started: owned pointer objects hold the shared
// capsule through this module's Swig_Capsule_global too, as the creator's do.
void SWIG_Python_HoldSharedCapsule();
void SWIG_Python_InstallConstantTable(PyObject *d, const swig_const_info *constants);
void SWIG_Python_PatchPointerDocs(PyMethodDef *methods, const swig_const_info *constants,
                                  swig_type_info **types);
void SWIG_Python_SetConstant(PyObject *d, const char *name, PyObject *value);

// ---- pointer proxy objects --------------------------------------------------
struct SwigPyObject {
    PyObject_HEAD
    void *ptr;
    swig_type_info *ty;
    int own;
    PyObject *next;
};

struct SwigPyPacked {
    PyObject_HEAD
    void *pack;
    swig_type_info *ty;
    size_t size;
};

PyTypeObject *SwigPyObject_type();
PyTypeObject *SwigPyPacked_type();
// A pointer object of this module's type, or of another module's by the shared type name.
extern PyTypeObject *SwigPyObject_cached;
int SwigPyObject_CheckByName(PyTypeObject *t);
inline int SwigPyObject_Check(PyObject *op) {
    PyTypeObject *t = Py_TYPE(op);
    return t == SwigPyObject_cached || SwigPyObject_CheckByName(t);
}
int SwigPyPacked_Check(PyObject *op);
PyObject *SwigPyObject_New(void *ptr, swig_type_info *ty, int own);
PyObject *SwigPyPacked_New(void *ptr, size_t size, swig_type_info *ty);
PyObject *SwigPyObject_append(PyObject *v, PyObject *next);
char *SWIG_PackData(char *c, const void *ptr, size_t sz);

// ---- client data, pointer conversion and creation ---------------------------
struct SwigPyClientData {
    PyObject *klass;
    PyObject *newraw;
    PyObject *newargs;
    PyObject *destroy;
    int delargs;
    int implicitconv;
    PyTypeObject *pytype;
};

SwigPyClientData *SwigPyClientData_New(PyObject *obj);
void SwigPyClientData_Del(SwigPyClientData *data);

// Where instances of a class keep `this` in a slot, by the class and its version tag, which
// any change to the class or its bases clears: offset -1 where the attribute protocol must run.
// The conversion fills it; the inline forms below only read it.
struct SwigThisSlot {
    PyTypeObject *type;
    unsigned int version;
    Py_ssize_t offset;
};
enum : int { SWIG_THIS_SLOTS = 64 };
extern SwigThisSlot swig_this_slots[SWIG_THIS_SLOTS];
inline unsigned SWIG_ThisSlotIndex(PyTypeObject *t) {
    // Heap types lie a few hundred bytes apart: a multiplicative hash spreads them over the table.
    return (unsigned)(((uintptr_t)t * 0x9e3779b97f4a7c15ull) >> 58);
}

// The pointer object of an argument where it is found without the general walk: a pointer
// object of this runtime's type, or an instance of a known class whose slot holds one. Null
// leaves the answer to SWIG_Python_GetSwigThis. A type as large as a pointer object might be
// one by name, so it is left to the walk too.
inline SwigPyObject *SWIG_Python_QuickThis(PyObject *obj) {
    PyTypeObject *t = Py_TYPE(obj);
    if (t == SwigPyObject_cached) return (SwigPyObject *)obj;
    const SwigThisSlot &e = swig_this_slots[SWIG_ThisSlotIndex(t)];
    if (e.type != t || e.version != t->tp_version_tag || e.offset < 0 ||
        t->tp_basicsize >= (Py_ssize_t)sizeof(SwigPyObject))
        return nullptr;
    PyObject *value = *(PyObject **)((char *)obj + e.offset);
    return value && Py_TYPE(value) == SwigPyObject_cached ? (SwigPyObject *)value : nullptr;
}

SwigPyObject *SWIG_Python_FindThis(PyObject *pyobj);
inline SwigPyObject *SWIG_Python_GetSwigThis(PyObject *pyobj) {
    SwigPyObject *quick = SWIG_Python_QuickThis(pyobj);
    return quick ? quick : SWIG_Python_FindThis(pyobj);
}
// Stores an instance's `this` as the attribute protocol would, straight into its slot where its
// class keeps it in one.
int SWIG_Python_SetThis(PyObject *inst, PyObject *value);
int SWIG_Python_ConvertPtrGeneral(PyObject *obj, void **ptr, swig_type_info *ty, int flags);
// An argument whose pointer object is quickly found and is of the very type asked for converts
// inline; everything else (None, cast edges, chains, disowning) takes the general conversion.
inline int SWIG_Python_ConvertPtrAndOwn(PyObject *obj, void **ptr, swig_type_info *ty, int flags) {
    if (!(flags & SWIG_POINTER_DISOWN) && ty && obj) {
        SwigPyObject *quick = SWIG_Python_QuickThis(obj);
        if (quick && quick->ty == ty) {
            if (ptr) *ptr = quick->ptr;
            return SWIG_OK;
        }
    }
    return SWIG_Python_ConvertPtrGeneral(obj, ptr, ty, flags);
}
// The same conversion, also reporting which pointer object of the chain matched (null for None).
int SWIG_Python_ConvertPtrMatch(PyObject *obj, void **ptr, swig_type_info *ty, int flags, SwigPyObject **matched);
// Sets the own flag, moving the owner's reference to the shared capsule with it.
void SwigPyObject_setown(SwigPyObject *sobj, int own);
PyObject *SWIG_Python_NewPointerObj(void *ptr, swig_type_info *type, int flags);
PyObject *SWIG_Python_NewShadowInstance(SwigPyClientData *data, PyObject *swig_this);

// The four fixed forms the wrappers use.
inline int SWIG_CheckPtr(PyObject *obj, swig_type_info *ty) {
    return SWIG_Python_ConvertPtrAndOwn(obj, nullptr, ty, SWIG_POINTER_NO_NULL);
}
// Pointer arguments that accept None: None stores null and succeeds.
inline int SWIG_ConvertPtr(PyObject *obj, void **ptr, swig_type_info *ty) {
    if (obj == Py_None) {
        if (ptr) *ptr = nullptr;
        return SWIG_OK;
    }
    return SWIG_Python_ConvertPtrAndOwn(obj, ptr, ty, 0);
}
// Reference arguments: None stores null and fails with SWIG_NullReferenceError.
inline int SWIG_ConvertPtrNonNull(PyObject *obj, void **ptr, swig_type_info *ty) {
    if (obj == Py_None) {
        if (ptr) *ptr = nullptr;
        return SWIG_NullReferenceError;
    }
    return SWIG_Python_ConvertPtrAndOwn(obj, ptr, ty, SWIG_POINTER_NO_NULL);
}

// Bodies of <Class>_swigregister (METH_O) and <Class>_swiginit (METH_VARARGS).
PyObject *SWIG_Python_Register(swig_type_info *ty, PyObject *args);
PyObject *SWIG_Python_Init(PyObject *args);

// ---- scalars and errors -------------------------------------------------------
PyObject *SWIG_Python_ErrorType(int code);
void SWIG_Python_SetErrorMsg(PyObject *errtype, const char *msg);
void SWIG_Python_RaiseOrModifyTypeError(const char *message);
Py_ssize_t SWIG_Python_UnpackTuple(PyObject *args, const char *name, Py_ssize_t min, Py_ssize_t max,
                                   PyObject **objs);
int SWIG_AsVal_long(PyObject *obj, long *val);
int SWIG_AsVal_unsigned_SS_long(PyObject *obj, unsigned long *val);
int SWIG_AsVal_double_general(PyObject *obj, double *val);
int SWIG_AsVal_float_general(PyObject *obj, float *val);
// A float argument converts inline; ints and everything else take the general conversion.
inline int SWIG_AsVal_double(PyObject *obj, double *val) {
    if (!PyFloat_CheckExact(obj)) return SWIG_AsVal_double_general(obj, val);
    if (val) *val = PyFloat_AS_DOUBLE(obj);
    return SWIG_OK;
}
inline int SWIG_AsVal_float(PyObject *obj, float *val) {
    if (!PyFloat_CheckExact(obj)) return SWIG_AsVal_float_general(obj, val);
    double v = PyFloat_AS_DOUBLE(obj);
    // Past float's range, infinite or NaN: the general conversion decides.
    if (!(v >= -3.4028234663852886e+38 && v <= 3.4028234663852886e+38))
        return SWIG_AsVal_float_general(obj, val);
    if (val) *val = (float)v;
    return SWIG_OK;
}

// ---- global variable link object ----------------------------------------------
typedef PyObject *(*swig_varlink_get)();
typedef int (*swig_varlink_set)(PyObject *);
PyObject *SWIG_newvarlink();
void SWIG_Python_AddVarLink(PyObject *p, const char *name, swig_varlink_get get_attr, swig_varlink_set set_attr);
