// _osgpeer: a test-only sibling module built from the same runtime with its own short
// type table. It shares some descriptors by name with _osg, hands out pointers of them,
// and exposes the shared runtime's internals that Python cannot otherwise see. The values
// _osg takes come from _osgvalues and _osgdraw; a few objects with their own needs are made here.
#include "runtime/swigrt.h"

#include <osg/Node>
#include <osg/Image>
#include <osg/State>
#include <osg/StateSet>
#include <osg/Texture2D>
#include <osg/Camera>
#include <set>
#include <vector>

namespace peer {
struct SpecialNode : osg::Node {};
struct Widget {
    int value = 0;
};
}  // namespace peer

namespace {

enum { GLenum_, osg__Node, osg__Vec3f, peer__SpecialNode, peer__Widget, std__string, type_count };

swig_type_info type_initial[] = {
    {"_p_GLenum", "GLenum *", nullptr, nullptr, nullptr, 0},
    {"_p_osg__Node", "osg::Node *", nullptr, nullptr, nullptr, 0},
    {"_p_osg__Vec3f", "osg::Vec3f *", nullptr, nullptr, nullptr, 0},
    {"_p_peer__SpecialNode", "peer::SpecialNode *", nullptr, nullptr, nullptr, 0},
    {"_p_peer__Widget", "peer::Widget *", nullptr, nullptr, nullptr, 0},
    {"_p_std__string", "std::string *", nullptr, nullptr, nullptr, 0},
};

void *special_to_node(void *p, int *) { return static_cast<osg::Node *>(static_cast<peer::SpecialNode *>(p)); }

swig_cast_info cast_GLenum[] = {{&type_initial[GLenum_], nullptr, nullptr, nullptr}, {}};
// The peer adds an edge to the shared Node record: SpecialNode converts to osg::Node.
swig_cast_info cast_Node[] = {{&type_initial[osg__Node], nullptr, nullptr, nullptr},
                              {&type_initial[peer__SpecialNode], special_to_node, nullptr, nullptr},
                              {}};
swig_cast_info cast_Vec3f[] = {{&type_initial[osg__Vec3f], nullptr, nullptr, nullptr}, {}};
swig_cast_info cast_Special[] = {{&type_initial[peer__SpecialNode], nullptr, nullptr, nullptr}, {}};
swig_cast_info cast_Widget[] = {{&type_initial[peer__Widget], nullptr, nullptr, nullptr}, {}};
swig_cast_info cast_string[] = {{&type_initial[std__string], nullptr, nullptr, nullptr}, {}};

swig_type_info *type_initial_ptrs[] = {&type_initial[0], &type_initial[1], &type_initial[2],
                                       &type_initial[3], &type_initial[4], &type_initial[5]};
swig_cast_info *cast_initial[] = {cast_GLenum, cast_Node, cast_Vec3f, cast_Special, cast_Widget, cast_string};
swig_type_info *types[type_count + 1];
swig_module_info module = {types, type_count, nullptr, nullptr, nullptr, nullptr};

peer::SpecialNode *special = nullptr;

swig_module_info *ring() {
    auto *head = (swig_module_info *)PyCapsule_Import(SWIG_CAPSULE_NAME, 0);
    if (!head) PyErr_Clear();
    return head;
}

swig_type_info *find(const char *name) {
    swig_module_info *head = ring();
    return head ? SWIG_MangledTypeQueryModule(head, head, name) : nullptr;
}

swig_type_info *find_or_raise(const char *name) {
    swig_type_info *t = find(name);
    if (!t) PyErr_Format(PyExc_LookupError, "no descriptor %s", name);
    return t;
}

// ---- pointers of shared descriptors -------------------------------------------------

PyObject *special_node(PyObject *, PyObject *) {
    if (!special) {
        special = new peer::SpecialNode;
        special->ref();  // kept for the life of the process
    }
    return SWIG_Python_NewPointerObj(special, types[peer__SpecialNode], 0);
}


// ---- objects _osg takes, kept for the life of the process: no sibling makes a state, a mode
// usage or an affinity; the image and textures have the reference counts the tests expect ----

// make_image(width, height): an RGBA image the peer keeps alive.
PyObject *make_image(PyObject *, PyObject *args) {
    int w, h;
    if (!PyArg_ParseTuple(args, "ii", &w, &h)) return nullptr;
    swig_type_info *t = find_or_raise("_p_osg__Image");
    if (!t) return nullptr;
    // The peer's reference is never given back, and the peer never touches the image again:
    // a caller that releases it (the fuzz harness may) leaves nothing dangling here.
    auto *image = new osg::Image;
    image->ref();
    image->allocateImage(w, h, 1, GL_RGBA, GL_UNSIGNED_BYTE);
    return SWIG_Python_NewPointerObj(image, t, 0);
}


// A pointer object of the named descriptor holding null, which None is not.
PyObject *null_pointer(PyObject *, PyObject *arg) {
    swig_type_info *t = find_or_raise(PyUnicode_AsUTF8(arg));
    return t ? SwigPyObject_New(nullptr, t, 0) : nullptr;
}

PyObject *make_state(PyObject *, PyObject *) {
    static osg::ref_ptr<osg::State> state = new osg::State;
    swig_type_info *t = find_or_raise("_p_osg__State");
    return t ? SWIG_Python_NewPointerObj(state.get(), t, 0) : nullptr;
}

// A mode usage that records what attributes report: [(mode, is texture mode), ...], sorted.
struct ModeRecorder : osg::StateAttribute::ModeUsage {
    std::set<std::pair<unsigned int, bool>> modes;
    void usesMode(osg::StateAttribute::GLMode m) override { modes.emplace(m, false); }
    void usesTextureMode(osg::StateAttribute::GLMode m) override { modes.emplace(m, true); }
};
ModeRecorder recorder;

PyObject *make_mode_usage(PyObject *, PyObject *) {
    recorder.modes.clear();
    swig_type_info *t = find_or_raise("_p_osg__StateAttribute__ModeUsage");
    return t ? SWIG_Python_NewPointerObj(static_cast<osg::StateAttribute::ModeUsage *>(&recorder), t, 0) : nullptr;
}

PyObject *recorded_modes(PyObject *, PyObject *) {
    PyObject *out = PyList_New(0);
    for (auto &[mode, texture] : recorder.modes) {
        PyObject *item = Py_BuildValue("(kO)", (unsigned long)mode, texture ? Py_True : Py_False);
        PyList_Append(out, item);
        Py_DECREF(item);
    }
    return out;
}

// ---- runtime introspection ------------------------------------------------------------

PyObject *ring_tables(PyObject *, PyObject *) {
    PyObject *out = PyList_New(0);
    swig_module_info *head = ring();
    if (!head) return out;
    swig_module_info *iter = head;
    do {
        PyObject *table = PyList_New(0);
        for (size_t i = 0; i < iter->size; ++i) {
            swig_type_info *t = iter->types[i];
            PyObject *row = Py_BuildValue("(ssK)", t->name, t->str ? t->str : "", (unsigned long long)(uintptr_t)t);
            PyList_Append(table, row);
            Py_DECREF(row);
        }
        PyObject *entry = Py_BuildValue("(KN)", (unsigned long long)(uintptr_t)iter, table);
        PyList_Append(out, entry);
        Py_DECREF(entry);
        iter = iter->next;
    } while (iter != head);
    return out;
}

PyObject *own_module(PyObject *, PyObject *) { return PyLong_FromVoidPtr(&module); }

PyObject *cast_list(PyObject *, PyObject *arg) {
    swig_type_info *t = find_or_raise(PyUnicode_AsUTF8(arg));
    if (!t) return nullptr;
    PyObject *out = PyList_New(0);
    for (swig_cast_info *c = t->cast; c; c = c->next) {
        PyObject *name = PyUnicode_FromString(c->type->name);
        PyList_Append(out, name);
        Py_DECREF(name);
    }
    return out;
}

PyObject *type_query(PyObject *, PyObject *arg) {
    swig_type_info *t = SWIG_Python_TypeQuery(PyUnicode_AsUTF8(arg));
    if (!t) Py_RETURN_NONE;
    return PyUnicode_FromString(t->name);
}

PyObject *type_cache(PyObject *, PyObject *) {
    PyObject *cache = SWIG_Python_TypeCache();
    return PyDict_Keys(cache);
}

PyObject *counter(PyObject *, PyObject *) { return PyLong_FromUnsignedLong(interpreter_counter); }

PyObject *clientdata_class(PyObject *, PyObject *arg) {
    swig_type_info *t = find_or_raise(PyUnicode_AsUTF8(arg));
    if (!t) return nullptr;
    auto *data = (SwigPyClientData *)t->clientdata;
    if (!data) Py_RETURN_NONE;
    return Py_BuildValue("(Oi)", data->klass, data->delargs);
}

PyObject *destroy_module(PyObject *, PyObject *) {
    PyObject *rt = PyImport_ImportModule("swig_runtime_data4");
    if (!rt) return nullptr;
    PyObject *capsule = PyObject_GetAttrString(rt, "type_pointer_capsule");
    Py_DECREF(rt);
    if (!capsule) return nullptr;
    SWIG_Python_DestroyModule(capsule);
    Py_DECREF(capsule);
    Py_RETURN_NONE;
}

// convert(obj, name, flags, with_out) -> (status, address or None, exception pending?)
PyObject *convert(PyObject *, PyObject *args) {
    PyObject *obj;
    const char *name;
    int flags, with_out;
    if (!PyArg_ParseTuple(args, "Ozip", &obj, &name, &flags, &with_out)) return nullptr;
    swig_type_info *t = nullptr;
    if (name && !(t = find_or_raise(name))) return nullptr;
    void *p = (void *)(uintptr_t)0xdead;
    int status = SWIG_Python_ConvertPtrAndOwn(obj, with_out ? &p : nullptr, t, flags);
    bool pending = PyErr_Occurred() != nullptr;
    PyErr_Clear();
    PyObject *addr = p == (void *)(uintptr_t)0xdead ? Py_NewRef(Py_None) : PyLong_FromVoidPtr(p);
    return Py_BuildValue("(iNO)", status, addr, pending ? Py_True : Py_False);
}

// convert_form(obj, name, form): the fixed forms the wrappers use; form is "check", "plain"
// or "nonnull". Returns (status, address or None when the out-pointer was left alone).
PyObject *convert_form(PyObject *, PyObject *args) {
    PyObject *obj;
    const char *name, *form;
    if (!PyArg_ParseTuple(args, "Oss", &obj, &name, &form)) return nullptr;
    swig_type_info *t = find_or_raise(name);
    if (!t) return nullptr;
    void *p = (void *)(uintptr_t)0xdead;
    int status = form[0] == 'c'   ? SWIG_CheckPtr(obj, t)
                 : form[0] == 'p' ? SWIG_ConvertPtr(obj, &p, t)
                                  : SWIG_ConvertPtrNonNull(obj, &p, t);
    PyObject *addr = p == (void *)(uintptr_t)0xdead ? Py_NewRef(Py_None) : PyLong_FromVoidPtr(p);
    return Py_BuildValue("(iN)", status, addr);
}

PyObject *new_pointer(PyObject *, PyObject *args) {
    unsigned long long address;
    const char *name;
    int flags;
    if (!PyArg_ParseTuple(args, "Ksi", &address, &name, &flags)) return nullptr;
    swig_type_info *t = find_or_raise(name);
    if (!t) return nullptr;
    return SWIG_Python_NewPointerObj((void *)(uintptr_t)address, t, flags);
}

PyObject *packed(PyObject *, PyObject *args) {
    Py_buffer data;
    const char *name;
    if (!PyArg_ParseTuple(args, "y*s", &data, &name)) return nullptr;
    swig_type_info *t = find(name);
    PyObject *res = t ? SwigPyPacked_New(data.buf, (size_t)data.len, t) : nullptr;
    PyBuffer_Release(&data);
    if (!t) PyErr_SetString(PyExc_LookupError, name);
    return res;
}

PyObject *status_pair(int status, PyObject *value) {
    bool pending = PyErr_Occurred() != nullptr;
    PyErr_Clear();
    return Py_BuildValue("(iNO)", status, value, pending ? Py_True : Py_False);
}

// as_number(kind, obj): the scalar converter of kind "long", "ulong", "double" or "float".
PyObject *as_number(PyObject *, PyObject *args) {
    const char *kind;
    PyObject *arg;
    if (!PyArg_ParseTuple(args, "sO", &kind, &arg)) return nullptr;
    long l = 0;
    unsigned long u = 0;
    double d = 0;
    float f = 0;
    switch (kind[0]) {
        case 'l': { int s = SWIG_AsVal_long(arg, &l); return status_pair(s, PyLong_FromLong(l)); }
        case 'u': { int s = SWIG_AsVal_unsigned_SS_long(arg, &u); return status_pair(s, PyLong_FromUnsignedLong(u)); }
        case 'd': { int s = SWIG_AsVal_double(arg, &d); return status_pair(s, PyFloat_FromDouble(d)); }
        default: { int s = SWIG_AsVal_float(arg, &f); return status_pair(s, PyFloat_FromDouble(f)); }
    }
}

PyObject *error_type(PyObject *, PyObject *arg) { return Py_NewRef(SWIG_Python_ErrorType((int)PyLong_AsLong(arg))); }

// unpack(args, name, min, max): args may be any object, or None for a null pointer.
PyObject *unpack(PyObject *, PyObject *args) {
    PyObject *a;
    const char *name;
    Py_ssize_t min, max;
    if (!PyArg_ParseTuple(args, "Osnn", &a, &name, &min, &max)) return nullptr;
    PyObject *objs[8] = {};
    Py_ssize_t r = SWIG_Python_UnpackTuple(a == Py_None ? nullptr : a, name, min, max, objs);
    if (!r) return nullptr;
    PyObject *items = PyList_New(0);
    for (Py_ssize_t i = 0; i < max; ++i) PyList_Append(items, objs[i] ? objs[i] : Py_None);
    return Py_BuildValue("(nN)", r, items);
}

// raise_or_modify(message, exc_or_None): with an exception pending (if given), then raise.
PyObject *raise_or_modify(PyObject *, PyObject *args) {
    const char *message;
    PyObject *pending;
    if (!PyArg_ParseTuple(args, "sO", &message, &pending)) return nullptr;
    if (pending != Py_None) PyErr_SetObject((PyObject *)Py_TYPE(pending), pending);
    SWIG_Python_RaiseOrModifyTypeError(message);
    return nullptr;
}

PyObject *set_error_msg(PyObject *, PyObject *args) {
    int code;
    const char *message;
    if (!PyArg_ParseTuple(args, "is", &code, &message)) return nullptr;
    SWIG_Python_SetErrorMsg(SWIG_Python_ErrorType(code), message);
    return nullptr;
}

// make_texture(width, height): a 2-D texture the peer keeps, seen as an osg::Texture.
PyObject *make_texture(PyObject *, PyObject *args) {
    int w, h;
    if (!PyArg_ParseTuple(args, "ii", &w, &h)) return nullptr;
    swig_type_info *t = find_or_raise("_p_osg__Texture");
    if (!t) return nullptr;
    auto *texture = new osg::Texture2D;  // kept as make_image keeps its image
    texture->ref();
    texture->setTextureSize(w, h);
    return SWIG_Python_NewPointerObj(static_cast<osg::Texture *>(texture), t, 0);
}

PyObject *affinity(PyObject *, PyObject *) {
    static OpenThreads::Affinity kept(3);
    swig_type_info *t = find_or_raise("_p_OpenThreads__Affinity");
    return t ? SWIG_Python_NewPointerObj(&kept, t, 0) : nullptr;
}

// affinity_cpus(affinity): the processors it names, sorted.
PyObject *affinity_cpus(PyObject *, PyObject *arg) {
    swig_type_info *t = find_or_raise("_p_OpenThreads__Affinity");
    void *p = nullptr;
    if (!t || SWIG_ConvertPtrNonNull(arg, &p, t) != SWIG_OK) return PyErr_Format(PyExc_TypeError, "not an affinity");
    PyObject *out = PyList_New(0);
    for (unsigned int cpu : static_cast<OpenThreads::Affinity *>(p)->activeCPUs) {
        PyObject *item = PyLong_FromUnsignedLong(cpu);
        PyList_Append(out, item);
        Py_DECREF(item);
    }
    return out;
}

PyMethodDef methods[] = {
    {"special_node", special_node, METH_NOARGS, nullptr},
    {"ring_tables", ring_tables, METH_NOARGS, nullptr},
    {"own_module", own_module, METH_NOARGS, nullptr},
    {"cast_list", cast_list, METH_O, nullptr},
    {"type_query", type_query, METH_O, nullptr},
    {"type_cache", type_cache, METH_NOARGS, nullptr},
    {"interpreter_counter", counter, METH_NOARGS, nullptr},
    {"clientdata_class", clientdata_class, METH_O, nullptr},
    {"destroy_module", destroy_module, METH_NOARGS, nullptr},
    {"convert", convert, METH_VARARGS, nullptr},
    {"convert_form", convert_form, METH_VARARGS, nullptr},
    {"new_pointer", new_pointer, METH_VARARGS, nullptr},
    {"packed", packed, METH_VARARGS, nullptr},
    {"as_number", as_number, METH_VARARGS, nullptr},
    {"error_type", error_type, METH_O, nullptr},
    {"unpack", unpack, METH_VARARGS, nullptr},
    {"raise_or_modify", raise_or_modify, METH_VARARGS, nullptr},
    {"set_error_msg", set_error_msg, METH_VARARGS, nullptr},
    {"make_image", make_image, METH_VARARGS, nullptr},
    {"null_pointer", null_pointer, METH_O, nullptr},
    {"make_state", make_state, METH_NOARGS, nullptr},
    {"make_mode_usage", make_mode_usage, METH_NOARGS, nullptr},
    {"recorded_modes", recorded_modes, METH_NOARGS, nullptr},
    {"make_texture", make_texture, METH_VARARGS, nullptr},
    {"affinity", affinity, METH_NOARGS, nullptr},
    {"affinity_cpus", affinity_cpus, METH_O, nullptr},
    {nullptr, nullptr, 0, nullptr},
};

}  // namespace

PyMODINIT_FUNC PyInit__osgpeer() {
    static PyModuleDef def = {PyModuleDef_HEAD_INIT, "_osgpeer", nullptr, -1, methods, nullptr, nullptr, nullptr, nullptr};
    SWIG_This();
    SWIG_Python_TypeCache();
    SwigPyPacked_type();
    SwigPyObject_type();
    PyObject *m = PyModule_Create2(&def, 1013);
    if (!m) return nullptr;
    // A handle class whose client data the peer's GLenum descriptor carries from the start,
    // so that joining a ring copies it into the shared record; left out where the test
    // process gets its GLenum class (one with a destroy function) from _osgvalues.
    if (!type_initial[GLenum_].clientdata && !getenv("OSG_PEER_NO_HANDLE")) {
        PyObject *klass = PyObject_CallFunction((PyObject *)&PyType_Type, "s()N", "PeerHandle", PyDict_New());
        if (!klass) return nullptr;
        type_initial[GLenum_].clientdata = SwigPyClientData_New(klass);
        PyModule_AddObject(m, "PeerHandle", klass);
    }
    SWIG_Python_JoinModuleTable(&module, type_initial_ptrs, cast_initial);
    return m;
}
