// The module entry PyInit__osg.
#include "module/constants.h"
#include "module/methods.h"
#include "runtime/osg_headers.h"
#include "runtime/type_table.h"

#include <pythread.h>

namespace Swig::Director {
// Created when the shared object loads and freed at process exit; no wrapper takes it.
struct ProcessLock {
    PyThread_type_lock lock = PyThread_allocate_lock();
    ~ProcessLock() {
        if (lock) PyThread_free_lock(lock);
    }
} swig_mutex_own;
}  // namespace Swig::Director

// The axis vectors behind cvar: read through proxies that alias this storage.
static osg::Vec3f X_AXIS(1.0f, 0, 0);
static osg::Vec3f Y_AXIS(0, 1.0f, 0);
static osg::Vec3f Z_AXIS(0, 0, 1.0f);

namespace {

// The pointer/binary constant table: this module has none, only the end marker.
swig_const_info swig_const_table[] = {{0, nullptr, 0, 0, nullptr, nullptr}};

template <osg::Vec3f *V>
PyObject *axis_get() {
    return SWIG_Python_NewPointerObj(V, swig_types[ty::p_osg__Vec3f], 0);
}

PyObject *face_controlled_get() { return PyLong_FromSize_t(osg::Camera::FACE_CONTROLLED_BY_GEOMETRY_SHADER); }

template <const char *Message>
int read_only(PyObject *) {
    SWIG_Python_SetErrorMsg(PyExc_AttributeError, Message);
    return 1;
}

constexpr char x_axis_ro[] = "Variable X_AXIS is read-only.";
constexpr char y_axis_ro[] = "Variable Y_AXIS is read-only.";
constexpr char z_axis_ro[] = "Variable Z_AXIS is read-only.";
constexpr char face_ro[] = "Variable Camera_FACE_CONTROLLED_BY_GEOMETRY_SHADER is read-only.";

}  // namespace

PyMODINIT_FUNC PyInit__osg() {
    static PyModuleDef SWIG_module = {PyModuleDef_HEAD_INIT, "_osg", nullptr, -1, SwigMethods,
                                      nullptr, nullptr, nullptr, nullptr};
    SWIG_This();
    SWIG_Python_TypeCache();
    SwigPyPacked_type();
    SwigPyObject_type();
    SWIG_Python_PatchPointerDocs(SwigMethods, swig_const_table, swig_types);

    PyObject *m = PyModule_Create2(&SWIG_module, 1013);
    PyObject *d = PyModule_GetDict(m);

    swig_module.clientdata = wrap::fast_table();  // the wrappers without their tuples, for the packages
    SWIG_Python_JoinModuleTable(&swig_module, swig_type_initial_ptrs, swig_cast_initial);
    SWIG_Python_InstallConstantTable(d, swig_const_table);
    wrap::install_constants(d, int_constants_before_cvar, int_constants_before_cvar_count);

    PyObject *globals = SWIG_globals();
    if (!globals) {
        Swig_Globals_global = nullptr;
        PyErr_SetString(PyExc_TypeError, "Failure to create SWIG globals.");
        return nullptr;
    }
    PyDict_SetItemString(d, "cvar", globals);

    wrap::install_constants(d, int_constants_after_cvar, int_constants_after_cvar_count);

    SWIG_Python_AddVarLink(globals, "X_AXIS", axis_get<&X_AXIS>, read_only<x_axis_ro>);
    SWIG_Python_AddVarLink(globals, "Y_AXIS", axis_get<&Y_AXIS>, read_only<y_axis_ro>);
    SWIG_Python_AddVarLink(globals, "Z_AXIS", axis_get<&Z_AXIS>, read_only<z_axis_ro>);
    SWIG_Python_AddVarLink(globals, "Camera_FACE_CONTROLLED_BY_GEOMETRY_SHADER", face_controlled_get, read_only<face_ro>);
    return m;
}
