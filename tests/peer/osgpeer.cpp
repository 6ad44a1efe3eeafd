// _osgpeer: a test-only sibling module built from the same runtime with its own short
// type table. It shares some descriptors by name with _osg, hands out pointers of them,
// and exposes the shared runtime's internals that Python cannot otherwise see.
#include "runtime/swigrt.h"

#include <osg/BoundingBox>
#include <osg/BoundingSphere>
#include <osg/Matrixd>
#include <osg/Matrixf>
#include <osg/Node>
#include <osg/Vec3f>
#include <osg/ClipNode>
#include <osg/Geometry>
#include <osg/Group>
#include <osg/Switch>
#include <osg/Image>
#include <osg/State>
#include <osg/StateSet>
#include <osg/Texture2D>
#include <osg/Camera>
#include <cstring>
#include <deque>
#include <set>
#include <string>
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

std::string strings[4];
osg::Vec3f vectors[4];
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

PyObject *string_ptr(PyObject *, PyObject *args) {
    int slot;
    const char *text;
    if (!PyArg_ParseTuple(args, "is", &slot, &text)) return nullptr;
    strings[slot & 3] = text;
    return SWIG_Python_NewPointerObj(&strings[slot & 3], types[std__string], 0);
}

PyObject *read_string(PyObject *, PyObject *arg) {
    void *p = nullptr;
    if (SWIG_ConvertPtrNonNull(arg, &p, types[std__string]) != SWIG_OK) {
        PyErr_SetString(PyExc_TypeError, "not a std::string pointer");
        return nullptr;
    }
    return PyUnicode_FromString(static_cast<std::string *>(p)->c_str());
}

PyObject *vec3f_ptr(PyObject *, PyObject *args) {
    int slot;
    float x, y, z;
    if (!PyArg_ParseTuple(args, "ifff", &slot, &x, &y, &z)) return nullptr;
    vectors[slot & 3].set(x, y, z);
    return SWIG_Python_NewPointerObj(&vectors[slot & 3], types[osg__Vec3f], 0);
}

PyObject *read_vec3f(PyObject *, PyObject *arg) {
    void *p = nullptr;
    if (SWIG_ConvertPtrNonNull(arg, &p, types[osg__Vec3f]) != SWIG_OK) {
        PyErr_SetString(PyExc_TypeError, "not a osg::Vec3f pointer");
        return nullptr;
    }
    auto *v = static_cast<osg::Vec3f *>(p);
    return Py_BuildValue("(ddd)", (double)v->x(), (double)v->y(), (double)v->z());
}

PyObject *special_node(PyObject *, PyObject *) {
    if (!special) {
        special = new peer::SpecialNode;
        special->ref();  // kept for the life of the process
    }
    return SWIG_Python_NewPointerObj(special, types[peer__SpecialNode], 0);
}

PyObject *glenum_ptr(PyObject *, PyObject *) {
    static unsigned int value = 0x0B60;
    return SWIG_Python_NewPointerObj(&value, types[GLenum_], 0);
}

// ---- math values _osg takes but cannot make: kept for the life of the process, handed out
// borrowed under the descriptors _osg registered --------------------------------------------

template <class T>
PyObject *keep(T value, const char *type) {
    static std::deque<T> kept;
    swig_type_info *t = find_or_raise(type);
    if (!t) return nullptr;
    kept.push_back(std::move(value));
    return SWIG_Python_NewPointerObj(&kept.back(), t, 0);
}

// points(double?, (x, y, z, x, y, z, ...)): a std::vector of Vec3d or Vec3f.
PyObject *points(PyObject *, PyObject *args) {
    int as_double;
    PyObject *seq;
    if (!PyArg_ParseTuple(args, "pO", &as_double, &seq)) return nullptr;
    PyObject *fast = PySequence_Fast(seq, "a sequence of numbers");
    if (!fast) return nullptr;
    std::vector<double> c;
    for (Py_ssize_t i = 0; i < PySequence_Fast_GET_SIZE(fast); ++i)
        c.push_back(PyFloat_AsDouble(PySequence_Fast_GET_ITEM(fast, i)));
    Py_DECREF(fast);
    if (PyErr_Occurred()) return nullptr;
    if (as_double) {
        std::vector<osg::Vec3d> v;
        for (size_t i = 0; i + 2 < c.size(); i += 3) v.emplace_back(c[i], c[i + 1], c[i + 2]);
        return keep(std::move(v), "_p_std__vectorT_osg__Vec3d_t");
    }
    std::vector<osg::Vec3f> v;
    for (size_t i = 0; i + 2 < c.size(); i += 3) v.emplace_back(c[i], c[i + 1], c[i + 2]);
    return keep(std::move(v), "_p_std__vectorT_osg__Vec3f_t");
}

// ---- state values: handles, strings, images and states that _osg cannot make ----------

// A value behind a non-owned proxy of the named descriptor; equal values share storage.
template <const char *Name>
PyObject *make_handle(PyObject *, PyObject *arg) {
    static std::set<unsigned int> pool;
    unsigned long v = PyLong_AsUnsignedLong(arg);
    if (PyErr_Occurred()) return nullptr;
    swig_type_info *t = find_or_raise(Name);
    if (!t) return nullptr;
    return SWIG_Python_NewPointerObj(const_cast<unsigned int *>(&*pool.insert((unsigned int)v).first), t, 0);
}

template <const char *Name>
PyObject *handle_value(PyObject *, PyObject *arg) {
    swig_type_info *t = find_or_raise(Name);
    void *p = nullptr;
    if (!t) return nullptr;
    if (SWIG_ConvertPtrNonNull(arg, &p, t) != SWIG_OK) return PyErr_Format(PyExc_TypeError, "not a %s pointer", Name);
    return PyLong_FromUnsignedLong(*static_cast<unsigned int *>(p));
}

constexpr char glenum_name[] = "_p_GLenum", glbitfield_name[] = "_p_GLbitfield",
               uniform_type_name[] = "_p_osg__Uniform__Type";

template <class T>
T *pointer(PyObject *arg, const char *name) {
    swig_type_info *t = find_or_raise(name);
    void *p = nullptr;
    if (t && SWIG_ConvertPtr(arg, &p, t) != SWIG_OK) PyErr_Format(PyExc_TypeError, "not a %s pointer", name);
    return static_cast<T *>(p);
}

PyObject *make_string(PyObject *, PyObject *arg) {
    static std::set<std::string> pool;
    const char *text = PyUnicode_AsUTF8(arg);
    if (!text) return nullptr;
    return SWIG_Python_NewPointerObj(const_cast<std::string *>(&*pool.insert(text).first), types[std__string], 0);
}

// make_image(width, height): an RGBA image the peer keeps alive.
PyObject *make_image(PyObject *, PyObject *args) {
    static std::vector<osg::ref_ptr<osg::Image>> images;
    int w, h;
    if (!PyArg_ParseTuple(args, "ii", &w, &h)) return nullptr;
    swig_type_info *t = find_or_raise("_p_osg__Image");
    if (!t) return nullptr;
    images.push_back(new osg::Image);
    images.back()->allocateImage(w, h, 1, GL_RGBA, GL_UNSIGNED_BYTE);
    return SWIG_Python_NewPointerObj(images.back().get(), t, 0);
}

// ref_count(obj, "_p_osg__Image" or "_p_osg__Texture2D"): neither converts to osg::Referenced in _osg.
PyObject *ref_count(PyObject *, PyObject *args) {
    PyObject *obj;
    const char *name;
    if (!PyArg_ParseTuple(args, "Os", &obj, &name)) return nullptr;
    osg::Referenced *r = std::string(name) == "_p_osg__Texture2D" ? static_cast<osg::Referenced *>(pointer<osg::Texture2D>(obj, name))
                                                                  : pointer<osg::Image>(obj, name);
    return PyErr_Occurred() ? nullptr : PyLong_FromLong(r->referenceCount());
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

// A texture made at reference count 0 converts to nothing that could release it.
PyObject *free_texture(PyObject *, PyObject *arg) {
    auto *tex = pointer<osg::Texture2D>(arg, "_p_osg__Texture2D");
    if (PyErr_Occurred()) return nullptr;
    tex->ref();
    tex->unref();
    Py_RETURN_NONE;
}

PyObject *free_type_member_pair(PyObject *, PyObject *arg) {
    auto *p = pointer<osg::StateAttribute::TypeMemberPair>(arg, "_p_std__pairT_osg__StateAttribute__Type_unsigned_int_t");
    if (PyErr_Occurred()) return nullptr;
    delete p;
    Py_RETURN_NONE;
}

// set_state_set(node, state set or None)
PyObject *set_state_set(PyObject *, PyObject *args) {
    PyObject *node, *ss;
    if (!PyArg_ParseTuple(args, "OO", &node, &ss)) return nullptr;
    auto *n = pointer<osg::Node>(node, "_p_osg__Node");
    auto *s = PyErr_Occurred() ? nullptr : pointer<osg::StateSet>(ss, "_p_osg__StateSet");
    if (PyErr_Occurred()) return nullptr;
    n->setStateSet(s);
    Py_RETURN_NONE;
}

PyObject *address(const void *p) { return PyLong_FromVoidPtr(const_cast<void *>(p)); }

template <class L, class F>
PyObject *each(const L &l, F f) {
    PyObject *out = PyList_New(0);
    for (auto &e : l) {
        PyObject *item = f(e);
        PyList_Append(out, item);
        Py_DECREF(item);
    }
    return out;
}

PyObject *mode_items(const osg::StateSet::ModeList &l) {
    return each(l, [](auto &e) { return Py_BuildValue("(kk)", (unsigned long)e.first, (unsigned long)e.second); });
}

PyObject *attribute_items(const osg::StateSet::AttributeList &l) {
    return each(l, [](auto &e) {
        return Py_BuildValue("(ikNk)", (int)e.first.first, (unsigned long)e.first.second, address(e.second.first.get()),
                             (unsigned long)e.second.second);
    });
}

// container_items(proxy): the contents of one of the state set's containers or pairs, by
// the proxy's descriptor; objects appear as their addresses.
PyObject *container_items(PyObject *, PyObject *arg) {
    using S = osg::StateSet;
    auto is = [&](const char *name) -> void * {
        swig_type_info *t = find(name);
        void *p = nullptr;
        return t && SWIG_ConvertPtrNonNull(arg, &p, t) == SWIG_OK ? p : nullptr;
    };
    if (void *p = is("_p_std__mapT_GLenum_unsigned_int_t")) return mode_items(*static_cast<S::ModeList *>(p));
    if (void *p = is("_p_std__mapT_std__pairT_osg__StateAttribute__Type_unsigned_int_t_std__pairT_ref_ptrT_osg__StateAttribute_t_unsigned_int_t_t"))
        return attribute_items(*static_cast<S::AttributeList *>(p));
    if (void *p = is("_p_std__vectorT_std__mapT_GLenum_unsigned_int_t_t"))
        return each(*static_cast<S::TextureModeList *>(p), mode_items);
    if (void *p = is("_p_std__vectorT_std__mapT_std__pairT_osg__StateAttribute__Type_unsigned_int_t_std__pairT_ref_ptrT_osg__StateAttribute_t_unsigned_int_t_t_t"))
        return each(*static_cast<S::TextureAttributeList *>(p), attribute_items);
    if (void *p = is("_p_std__mapT_std__string_std__pairT_ref_ptrT_osg__Uniform_t_unsigned_int_t_t"))
        return each(*static_cast<S::UniformList *>(p), [](auto &e) {
            return Py_BuildValue("(sNk)", e.first.c_str(), address(e.second.first.get()), (unsigned long)e.second.second);
        });
    if (void *p = is("_p_std__mapT_std__string_std__pairT_std__string_unsigned_int_t_t"))
        return each(*static_cast<S::DefineList *>(p), [](auto &e) {
            return Py_BuildValue("(ssk)", e.first.c_str(), e.second.first.c_str(), (unsigned long)e.second.second);
        });
    if (void *p = is("_p_std__pairT_ref_ptrT_osg__StateAttribute_t_unsigned_int_t")) {
        auto *e = static_cast<S::RefAttributePair *>(p);
        return Py_BuildValue("(Nk)", address(e->first.get()), (unsigned long)e->second);
    }
    if (void *p = is("_p_std__pairT_ref_ptrT_osg__Uniform_t_unsigned_int_t")) {
        auto *e = static_cast<S::RefUniformPair *>(p);
        return Py_BuildValue("(Nk)", address(e->first.get()), (unsigned long)e->second);
    }
    if (void *p = is("_p_std__pairT_std__string_unsigned_int_t")) {
        auto *e = static_cast<S::DefinePair *>(p);
        return Py_BuildValue("(sk)", e->first.c_str(), (unsigned long)e->second);
    }
    if (void *p = is("_p_std__pairT_osg__StateAttribute__Type_unsigned_int_t")) {
        auto *e = static_cast<osg::StateAttribute::TypeMemberPair *>(p);
        return Py_BuildValue("(ik)", (int)e->first, (unsigned long)e->second);
    }
    if (void *p = is("_p_std__vectorT_osg__Node_p_t"))
        return each(*static_cast<std::vector<osg::Node *> *>(p), [](auto *e) { return address(e); });
    if (void *p = is("_p_std__vectorT_osg__StateSet_p_t"))
        return each(*static_cast<std::vector<osg::StateSet *> *>(p), [](auto *e) { return address(e); });
    PyErr_SetString(PyExc_TypeError, "not a state container");
    return nullptr;
}

// ---- runtime introspection ------------------------------------------------------------

// The version tag of a class's attribute cache: 0 once CPython stopped caching for it.
PyObject *type_version(PyObject *, PyObject *arg) {
    if (!PyType_Check(arg)) return PyErr_Format(PyExc_TypeError, "a class");
    return PyLong_FromUnsignedLong(((PyTypeObject *)arg)->tp_version_tag);
}

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

// The compiler's offsets of the matrix base inside the reference-counted matrices.
PyObject *matrix_offsets(PyObject *, PyObject *) {
    alignas(osg::RefMatrixd) static char d[sizeof(osg::RefMatrixd)];
    alignas(osg::RefMatrixf) static char f[sizeof(osg::RefMatrixf)];
    auto off = [](auto *derived, auto *base) { return (long)((char *)base - (char *)derived); };
    auto *rd = reinterpret_cast<osg::RefMatrixd *>(d);
    auto *rf = reinterpret_cast<osg::RefMatrixf *>(f);
    return Py_BuildValue("(ll)", off(rd, static_cast<osg::Matrixd *>(rd)), off(rf, static_cast<osg::Matrixf *>(rf)));
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

PyObject *as_long(PyObject *, PyObject *arg) {
    long v = 0;
    int s = SWIG_AsVal_long(arg, &v);
    return status_pair(s, PyLong_FromLong(v));
}
PyObject *as_ulong(PyObject *, PyObject *arg) {
    unsigned long v = 0;
    int s = SWIG_AsVal_unsigned_SS_long(arg, &v);
    return status_pair(s, PyLong_FromUnsignedLong(v));
}
PyObject *as_double(PyObject *, PyObject *arg) {
    double v = 0;
    int s = SWIG_AsVal_double(arg, &v);
    return status_pair(s, PyFloat_FromDouble(v));
}
PyObject *as_float(PyObject *, PyObject *arg) {
    float v = 0;
    int s = SWIG_AsVal_float(arg, &v);
    return status_pair(s, PyFloat_FromDouble(v));
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

// ---- scene-graph values that _osg cannot make: kept for the life of the process --------
// Their descriptors are looked up by name in the shared ring, as a sibling of the SDK sees them.

std::deque<osg::ref_ptr<osg::Geometry>> geometries;
std::deque<osg::NodePath> paths;
std::deque<osg::BoundingBox> boxes;
std::deque<osg::BoundingSphere> spheres;
std::deque<osg::Matrixd> matrices;
std::deque<osg::Node::DescriptionList> description_lists;
std::deque<osg::Switch::ValueList> value_lists;

template <class T>
PyObject *keep(std::deque<T> &store, T value, const char *name) {
    swig_type_info *t = find_or_raise(name);
    if (!t) return nullptr;
    store.push_back(std::move(value));
    return SWIG_Python_NewPointerObj(&store.back(), t, 0);
}

void *pointer(PyObject *obj, const char *name) {
    swig_type_info *t = find_or_raise(name);
    void *p = nullptr;
    if (t && SWIG_ConvertPtr(obj, &p, t) != SWIG_OK) PyErr_Format(PyExc_TypeError, "not a %s pointer", name);
    return PyErr_Occurred() ? nullptr : p;
}

// geometry(((x, y, z), ...), (i0, i1, i2, ...)): a triangle mesh.
PyObject *geometry(PyObject *, PyObject *args) {
    PyObject *vertices, *indices;
    if (!PyArg_ParseTuple(args, "OO", &vertices, &indices)) return nullptr;
    osg::ref_ptr<osg::Vec3Array> v = new osg::Vec3Array;
    osg::ref_ptr<osg::DrawElementsUInt> e = new osg::DrawElementsUInt(GL_TRIANGLES);
    for (Py_ssize_t i = 0; i < PySequence_Size(vertices); ++i) {
        float x, y, z;
        PyObject *item = PySequence_GetItem(vertices, i);
        bool ok = item && PyArg_ParseTuple(item, "fff", &x, &y, &z);
        Py_XDECREF(item);
        if (!ok) return nullptr;
        v->push_back(osg::Vec3(x, y, z));
    }
    for (Py_ssize_t i = 0; i < PySequence_Size(indices); ++i) {
        PyObject *item = PySequence_GetItem(indices, i);
        long index = item ? PyLong_AsLong(item) : -1;
        Py_XDECREF(item);
        if (PyErr_Occurred()) return nullptr;
        e->push_back((unsigned int)index);
    }
    osg::ref_ptr<osg::Geometry> g = new osg::Geometry;
    g->setVertexArray(v.get());
    g->addPrimitiveSet(e.get());
    swig_type_info *t = find_or_raise("_p_osg__Geometry");
    if (!t) return nullptr;
    geometries.push_back(g);
    return SWIG_Python_NewPointerObj(g.get(), t, 0);
}

// The same geometry seen as a drawable.
PyObject *as_drawable(PyObject *, PyObject *arg) {
    auto *g = static_cast<osg::Geometry *>(pointer(arg, "_p_osg__Geometry"));
    if (!g) return nullptr;
    return SWIG_Python_NewPointerObj(static_cast<osg::Drawable *>(g), find("_p_osg__Drawable"), 0);
}

PyObject *vec3_tuple(const osg::Vec3 &v) { return Py_BuildValue("(ddd)", (double)v.x(), (double)v.y(), (double)v.z()); }

// mesh(geometry) -> (vertices, normals, triangle corner indices)
PyObject *mesh(PyObject *, PyObject *arg) {
    auto *g = static_cast<osg::Geometry *>(pointer(arg, "_p_osg__Geometry"));
    if (!g) return nullptr;
    auto list = [](const osg::Array *a) {
        auto *v = dynamic_cast<const osg::Vec3Array *>(a);
        PyObject *out = PyList_New(0);
        for (size_t i = 0; v && i < v->size(); ++i) {
            PyObject *t = vec3_tuple((*v)[i]);
            PyList_Append(out, t);
            Py_DECREF(t);
        }
        return out;
    };
    PyObject *corners = PyList_New(0);
    for (unsigned int p = 0; p < g->getNumPrimitiveSets(); ++p) {
        const osg::PrimitiveSet *set = g->getPrimitiveSet(p);
        for (unsigned int i = 0; i < set->getNumIndices(); ++i) {
            PyObject *index = PyLong_FromUnsignedLong(set->index(i));
            PyList_Append(corners, index);
            Py_DECREF(index);
        }
    }
    return Py_BuildValue("(NNN)", list(g->getVertexArray()), list(g->getNormalArray()), corners);
}

PyObject *node_path(PyObject *, PyObject *arg) {
    osg::NodePath path;
    for (Py_ssize_t i = 0; i < PySequence_Size(arg); ++i) {
        PyObject *item = PySequence_GetItem(arg, i);
        void *p = nullptr;
        int status = item ? SWIG_ConvertPtr(item, &p, types[osg__Node]) : -1;
        Py_XDECREF(item);
        if (status != SWIG_OK) return PyErr_Format(PyExc_TypeError, "item %zd is not a node", i);
        path.push_back(static_cast<osg::Node *>(p));
    }
    return keep(paths, std::move(path), "_p_std__vectorT_osg__Node_p_t");
}

PyObject *bounding_box(PyObject *, PyObject *args) {
    double a, b, c, d, e, f;
    if (!PyArg_ParseTuple(args, "dddddd", &a, &b, &c, &d, &e, &f)) return nullptr;
    return keep(boxes, osg::BoundingBox(a, b, c, d, e, f), "_p_osg__BoundingBoxImplT_osg__Vec3d_t");
}

PyObject *bounding_sphere(PyObject *, PyObject *args) {
    double x, y, z, r;
    if (!PyArg_ParseTuple(args, "dddd", &x, &y, &z, &r)) return nullptr;
    return keep(spheres, osg::BoundingSphere(osg::Vec3d(x, y, z), r), "_p_osg__BoundingSphereImplT_osg__Vec3d_t");
}

PyObject *read_box(PyObject *, PyObject *arg) {
    auto *b = static_cast<osg::BoundingBox *>(pointer(arg, "_p_osg__BoundingBoxImplT_osg__Vec3d_t"));
    if (!b) return nullptr;
    return Py_BuildValue("(dddddd)", (double)b->xMin(), (double)b->yMin(), (double)b->zMin(), (double)b->xMax(),
                         (double)b->yMax(), (double)b->zMax());
}

PyObject *read_sphere(PyObject *, PyObject *arg) {
    auto *s = static_cast<osg::BoundingSphere *>(pointer(arg, "_p_osg__BoundingSphereImplT_osg__Vec3d_t"));
    if (!s) return nullptr;
    return Py_BuildValue("(dddd)", (double)s->center().x(), (double)s->center().y(), (double)s->center().z(),
                         (double)s->radius());
}

PyObject *matrix_tuple(const osg::Matrixd &m) {
    PyObject *out = PyTuple_New(16);
    for (int i = 0; i < 16; ++i) PyTuple_SET_ITEM(out, i, PyFloat_FromDouble(m.ptr()[i]));
    return out;
}

// matrix(16 numbers, row-major as OSG stores them)
PyObject *matrix(PyObject *, PyObject *args) {
    double v[16];
    if (!PyArg_ParseTuple(args, "dddddddddddddddd", v, v + 1, v + 2, v + 3, v + 4, v + 5, v + 6, v + 7, v + 8, v + 9,
                          v + 10, v + 11, v + 12, v + 13, v + 14, v + 15))
        return nullptr;
    return keep(matrices, osg::Matrixd(v), "_p_osg__Matrixd");
}

PyObject *read_matrix(PyObject *, PyObject *arg) {
    auto *m = static_cast<osg::Matrixd *>(pointer(arg, "_p_osg__Matrixd"));
    return m ? matrix_tuple(*m) : nullptr;
}

PyObject *descriptions(PyObject *, PyObject *arg) {
    osg::Node::DescriptionList list;
    for (Py_ssize_t i = 0; i < PySequence_Size(arg); ++i) {
        PyObject *item = PySequence_GetItem(arg, i);
        const char *s = item ? PyUnicode_AsUTF8(item) : nullptr;
        if (s) list.push_back(s);
        Py_XDECREF(item);
        if (!s) return nullptr;
    }
    return keep(description_lists, std::move(list), "_p_std__vectorT_std__string_t");
}

PyObject *value_list(PyObject *, PyObject *arg) {
    osg::Switch::ValueList list;
    for (Py_ssize_t i = 0; i < PySequence_Size(arg); ++i) {
        PyObject *item = PySequence_GetItem(arg, i);
        int v = item ? PyObject_IsTrue(item) : -1;
        Py_XDECREF(item);
        if (v < 0) return nullptr;
        list.push_back(v != 0);
    }
    return keep(value_lists, std::move(list), "_p_std__vectorT_bool_t");
}

template <class C, class F>
PyObject *items(PyObject *arg, const char *name, F item) {
    auto *c = static_cast<C *>(pointer(arg, name));
    if (!c) return nullptr;
    PyObject *out = PyList_New((Py_ssize_t)c->size());
    for (size_t i = 0; i < c->size(); ++i) PyList_SET_ITEM(out, i, item((*c)[i]));
    return out;
}

// read_list(container, descriptor name): the items of an opaque container as Python values;
// objects are given by address.
PyObject *read_list(PyObject *, PyObject *args) {
    PyObject *c;
    const char *name;
    if (!PyArg_ParseTuple(args, "Os", &c, &name)) return nullptr;
    std::string n = name;
    if (n == "_p_std__vectorT_osg__Group_p_t") return items<osg::Node::ParentList>(c, name, address);
    if (n == "_p_std__vectorT_osg__Node_p_t") return items<osg::NodePath>(c, name, address);
    if (n == "_p_std__vectorT_ref_ptrT_osg__ClipPlane_t_t")
        return items<osg::ClipNode::ClipPlaneList>(c, name, [](const osg::ref_ptr<osg::ClipPlane> &p) { return address(p.get()); });
    if (n == "_p_std__vectorT_std__vectorT_osg__Node_p_t_t")
        return items<osg::NodePathList>(c, name, [](const osg::NodePath &p) {
            PyObject *out = PyList_New((Py_ssize_t)p.size());
            for (size_t i = 0; i < p.size(); ++i) PyList_SET_ITEM(out, i, address(p[i]));
            return out;
        });
    if (n == "_p_std__vectorT_osg__Matrixd_t") return items<osg::MatrixList>(c, name, matrix_tuple);
    if (n == "_p_std__vectorT_bool_t") return items<osg::Switch::ValueList>(c, name, [](bool b) { return PyBool_FromLong(b); });
    if (n == "_p_std__vectorT_std__string_t")
        return items<osg::Node::DescriptionList>(c, name, [](const std::string &s) { return PyUnicode_FromString(s.c_str()); });
    return PyErr_Format(PyExc_LookupError, "no reader for %s", name);
}

template <class T>
bool drop(PyObject *obj, const char *name, const char *wanted) {
    if (std::strcmp(name, wanted)) return false;
    void *p = nullptr;
    swig_type_info *t = find_or_raise(name);
    if (t && SWIG_Python_ConvertPtrAndOwn(obj, &p, t, SWIG_POINTER_DISOWN) == SWIG_OK) delete static_cast<T *>(p);
    return true;
}

// release(owned result, descriptor name): the destroy function a sibling supplies for the
// by-value results _osg hands out without one of its own.
PyObject *release(PyObject *, PyObject *args) {
    PyObject *obj;
    const char *name;
    if (!PyArg_ParseTuple(args, "Os", &obj, &name)) return nullptr;
    if (!(drop<osg::Matrixd>(obj, name, "_p_osg__Matrixd") || drop<osg::MatrixList>(obj, name, "_p_std__vectorT_osg__Matrixd_t") ||
          drop<osg::NodePathList>(obj, name, "_p_std__vectorT_std__vectorT_osg__Node_p_t_t") ||
          drop<osg::Node::ParentList>(obj, name, "_p_std__vectorT_osg__Group_p_t")))
        return PyErr_Format(PyExc_LookupError, "no destroy function for %s", name);
    if (PyErr_Occurred()) return nullptr;
    Py_RETURN_NONE;
}

// camera values
// A camera made at reference count 0 converts to nothing that could release it.
PyObject *free_camera(PyObject *, PyObject *arg) {
    auto *camera = static_cast<osg::Camera *>(pointer(arg, "_p_osg__Camera"));
    if (!camera) return nullptr;
    camera->ref();
    camera->unref();
    Py_RETURN_NONE;
}

// free_handle(owned GLenum or GLbitfield result, descriptor name): the heap copy _osg hands out.
PyObject *free_handle(PyObject *, PyObject *args) {
    PyObject *obj;
    const char *name;
    if (!PyArg_ParseTuple(args, "Os", &obj, &name)) return nullptr;
    swig_type_info *t = find_or_raise(name);
    void *p = nullptr;
    if (!t || SWIG_Python_ConvertPtrAndOwn(obj, &p, t, SWIG_POINTER_DISOWN) != SWIG_OK)
        return PyErr_Format(PyExc_TypeError, "not a %s pointer", name);
    delete static_cast<unsigned int *>(p);
    Py_RETURN_NONE;
}

// make_texture(width, height): a 2-D texture the peer keeps, seen as an osg::Texture.
PyObject *make_texture(PyObject *, PyObject *args) {
    static std::vector<osg::ref_ptr<osg::Texture2D>> textures;
    int w, h;
    if (!PyArg_ParseTuple(args, "ii", &w, &h)) return nullptr;
    swig_type_info *t = find_or_raise("_p_osg__Texture");
    if (!t) return nullptr;
    textures.push_back(new osg::Texture2D);
    textures.back()->setTextureSize(w, h);
    return SWIG_Python_NewPointerObj(static_cast<osg::Texture *>(textures.back().get()), t, 0);
}

PyObject *affinity(PyObject *, PyObject *) {
    static OpenThreads::Affinity kept(3);
    swig_type_info *t = find_or_raise("_p_OpenThreads__Affinity");
    return t ? SWIG_Python_NewPointerObj(&kept, t, 0) : nullptr;
}

// affinity_cpus(affinity): the processors it names, sorted.
PyObject *affinity_cpus(PyObject *, PyObject *arg) {
    auto *a = static_cast<OpenThreads::Affinity *>(pointer(arg, "_p_OpenThreads__Affinity"));
    if (!a) return nullptr;
    return each(a->activeCPUs, [](unsigned int cpu) { return PyLong_FromUnsignedLong(cpu); });
}

// attachments(map): [(component, internal format, texture or None, image or None, level, face,
// mipmap generation, samples, colour samples, width, height)], objects by address.
PyObject *attachments(PyObject *, PyObject *arg) {
    auto *m = static_cast<osg::Camera::BufferAttachmentMap *>(
        pointer(arg, "_p_std__mapT_osg__Camera__BufferComponent_osg__Camera__Attachment_t"));
    if (!m) return nullptr;
    auto object = [](const void *p) { return p ? address(p) : Py_NewRef(Py_None); };
    return each(*m, [&](auto &e) {
        const osg::Camera::Attachment &a = e.second;
        return Py_BuildValue("(ikNNkkOkkii)", (int)e.first, (unsigned long)a._internalFormat, object(a._texture.get()),
                             object(a._image.get()), (unsigned long)a._level, (unsigned long)a._face,
                             a._mipMapGeneration ? Py_True : Py_False, (unsigned long)a._multisampleSamples,
                             (unsigned long)a._multisampleColorSamples, a.width(), a.height());
    });
}

PyMethodDef methods[] = {
    {"string_ptr", string_ptr, METH_VARARGS, nullptr},
    {"read_string", read_string, METH_O, nullptr},
    {"vec3f_ptr", vec3f_ptr, METH_VARARGS, nullptr},
    {"read_vec3f", read_vec3f, METH_O, nullptr},
    {"special_node", special_node, METH_NOARGS, nullptr},
    {"glenum_ptr", glenum_ptr, METH_NOARGS, nullptr},
    {"points", points, METH_VARARGS, nullptr},
    {"ring_tables", ring_tables, METH_NOARGS, nullptr},
    {"type_version", type_version, METH_O, nullptr},
    {"own_module", own_module, METH_NOARGS, nullptr},
    {"cast_list", cast_list, METH_O, nullptr},
    {"type_query", type_query, METH_O, nullptr},
    {"type_cache", type_cache, METH_NOARGS, nullptr},
    {"interpreter_counter", counter, METH_NOARGS, nullptr},
    {"clientdata_class", clientdata_class, METH_O, nullptr},
    {"destroy_module", destroy_module, METH_NOARGS, nullptr},
    {"convert", convert, METH_VARARGS, nullptr},
    {"convert_form", convert_form, METH_VARARGS, nullptr},
    {"matrix_offsets", matrix_offsets, METH_NOARGS, nullptr},
    {"new_pointer", new_pointer, METH_VARARGS, nullptr},
    {"packed", packed, METH_VARARGS, nullptr},
    {"as_long", as_long, METH_O, nullptr},
    {"as_ulong", as_ulong, METH_O, nullptr},
    {"as_double", as_double, METH_O, nullptr},
    {"as_float", as_float, METH_O, nullptr},
    {"error_type", error_type, METH_O, nullptr},
    {"unpack", unpack, METH_VARARGS, nullptr},
    {"raise_or_modify", raise_or_modify, METH_VARARGS, nullptr},
    {"set_error_msg", set_error_msg, METH_VARARGS, nullptr},
    {"geometry", geometry, METH_VARARGS, nullptr},
    {"as_drawable", as_drawable, METH_O, nullptr},
    {"mesh", mesh, METH_O, nullptr},
    {"node_path", node_path, METH_O, nullptr},
    {"bounding_box", bounding_box, METH_VARARGS, nullptr},
    {"bounding_sphere", bounding_sphere, METH_VARARGS, nullptr},
    {"read_box", read_box, METH_O, nullptr},
    {"read_sphere", read_sphere, METH_O, nullptr},
    {"matrix", matrix, METH_VARARGS, nullptr},
    {"read_matrix", read_matrix, METH_O, nullptr},
    {"descriptions", descriptions, METH_O, nullptr},
    {"value_list", value_list, METH_O, nullptr},
    {"read_list", read_list, METH_VARARGS, nullptr},
    {"release", release, METH_VARARGS, nullptr},
    // state values
    {"make_glenum", make_handle<glenum_name>, METH_O, nullptr},
    {"glenum_value", handle_value<glenum_name>, METH_O, nullptr},
    {"make_glbitfield", make_handle<glbitfield_name>, METH_O, nullptr},
    {"glbitfield_value", handle_value<glbitfield_name>, METH_O, nullptr},
    {"make_uniform_type", make_handle<uniform_type_name>, METH_O, nullptr},
    {"uniform_type_value", handle_value<uniform_type_name>, METH_O, nullptr},
    {"make_string", make_string, METH_O, nullptr},
    {"make_image", make_image, METH_VARARGS, nullptr},
    {"ref_count", ref_count, METH_VARARGS, nullptr},
    {"null_pointer", null_pointer, METH_O, nullptr},
    {"make_state", make_state, METH_NOARGS, nullptr},
    {"make_mode_usage", make_mode_usage, METH_NOARGS, nullptr},
    {"recorded_modes", recorded_modes, METH_NOARGS, nullptr},
    {"free_texture", free_texture, METH_O, nullptr},
    {"free_type_member_pair", free_type_member_pair, METH_O, nullptr},
    {"set_state_set", set_state_set, METH_VARARGS, nullptr},
    {"container_items", container_items, METH_O, nullptr},
    // camera values
    {"free_camera", free_camera, METH_O, nullptr},
    {"free_handle", free_handle, METH_VARARGS, nullptr},
    {"make_texture", make_texture, METH_VARARGS, nullptr},
    {"affinity", affinity, METH_NOARGS, nullptr},
    {"affinity_cpus", affinity_cpus, METH_O, nullptr},
    {"attachments", attachments, METH_O, nullptr},
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
    // so that joining a ring copies it into the shared record.
    if (!type_initial[GLenum_].clientdata) {
        PyObject *klass = PyObject_CallFunction((PyObject *)&PyType_Type, "s()N", "PeerHandle", PyDict_New());
        if (!klass) return nullptr;
        type_initial[GLenum_].clientdata = SwigPyClientData_New(klass);
        PyModule_AddObject(m, "PeerHandle", klass);
    }
    SWIG_Python_JoinModuleTable(&module, type_initial_ptrs, cast_initial);
    return m;
}
