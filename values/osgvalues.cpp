// _osgvalues: the sibling module that makes, from Python values, what _osg only accepts as
// pointer objects (strings, GL enumerants, out-parameter cells, node paths, lists, bounding
// volumes) and reads them back, the state set's containers and a camera's attachments
// included; `pointer` makes a pointer object for an address from elsewhere (ctypes, another
// library). It shares the type table through the capsule, as the SDK's
// sibling modules do, and registers a small class with a destroy function on each value
// descriptor, so that owned values (its own and _osg's by-value results) free themselves.
#include "runtime/swigrt.h"

#include <osg/BoundingBox>
#include <osg/Camera>
#include <osg/Image>
#include <osg/Texture>
#include <osg/BoundingSphere>
#include <osg/ClipNode>
#include <osg/Group>
#include <osg/Matrixd>
#include <osg/Node>
#include <osg/StateAttribute>
#include <osg/StateSet>
#include <osg/Switch>
#include <osg/Uniform>
#include <osgDB/WriteFile>

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <string>
#include <vector>

namespace {

using Descriptions = osg::Node::DescriptionList;
using Values = osg::Switch::ValueList;
using Parents = osg::Node::ParentList;
using Paths = osg::NodePathList;
using Matrices = osg::MatrixList;
using ClipPlanes = osg::ClipNode::ClipPlaneList;
using StateSets = osg::StateAttribute::ParentList;
using TypeMember = osg::StateAttribute::TypeMemberPair;
using S = osg::StateSet;
using Attachments = osg::Camera::BufferAttachmentMap;

// The value descriptors (registered here), then the classes whose pointers they hold.
// clang-format off
#define VALUE_TYPES(X) \
    X(String, std::string, "_p_std__string", "std::string *", "A std::string.") \
    X(GLenum, unsigned int, "_p_GLenum", "GLenum *", "A GLenum, such as a mode of a state set.") \
    X(GLbitfield, unsigned int, "_p_GLbitfield", "GLbitfield *", "A GLbitfield, such as a camera's clear mask.") \
    X(UniformType, osg::Uniform::Type, "_p_osg__Uniform__Type", "osg::Uniform::Type *", "An osg::Uniform::Type.") \
    X(DoubleCell, double, "_p_double", "double *", "A double, for out-parameters and element pointers.") \
    X(FloatCell, float, "_p_float", "float *", "A float, for out-parameters and element pointers.") \
    X(UIntCell, unsigned int, "_p_unsigned_int", "unsigned int *", "An unsigned int, for out-parameters.") \
    X(NodePath, osg::NodePath, "_p_std__vectorT_osg__Node_p_t", "osg::NodePath *", "An osg::NodePath: nodes from the root down.") \
    X(DescriptionList, Descriptions, "_p_std__vectorT_std__string_t", "osg::Node::DescriptionList *", "A node's description strings.") \
    X(ValueList, Values, "_p_std__vectorT_bool_t", "osg::Switch::ValueList *", "A switch's child values.") \
    X(BoundingBox, osg::BoundingBox, "_p_osg__BoundingBoxImplT_osg__Vec3d_t", "osg::BoundingBox *", "An osg::BoundingBox.") \
    X(BoundingSphere, osg::BoundingSphere, "_p_osg__BoundingSphereImplT_osg__Vec3d_t", "osg::BoundingSphere *", "An osg::BoundingSphere.") \
    X(ParentList, Parents, "_p_std__vectorT_osg__Group_p_t", "osg::Node::ParentList *", "A node's parents.") \
    X(NodePathList, Paths, "_p_std__vectorT_std__vectorT_osg__Node_p_t_t", "osg::NodePathList *", "A list of node paths.") \
    X(MatrixList, Matrices, "_p_std__vectorT_osg__Matrixd_t", "osg::MatrixList *", "A list of matrices.") \
    X(ClipPlaneList, ClipPlanes, "_p_std__vectorT_ref_ptrT_osg__ClipPlane_t_t", "osg::ClipNode::ClipPlaneList *", "A clip node's planes.") \
    X(StateSetList, StateSets, "_p_std__vectorT_osg__StateSet_p_t", "osg::StateAttribute::ParentList *", "An attribute's state sets.") \
    X(Vec3fList, std::vector<osg::Vec3f>, "_p_std__vectorT_osg__Vec3f_t", "std::vector< osg::Vec3f > *", "Points in single precision.") \
    X(Vec3dList, std::vector<osg::Vec3d>, "_p_std__vectorT_osg__Vec3d_t", "std::vector< osg::Vec3d > *", "Points in double precision.") \
    X(TypeMemberPair, TypeMember, "_p_std__pairT_osg__StateAttribute__Type_unsigned_int_t", "osg::StateAttribute::TypeMemberPair *", "An attribute's type and member.") \
    X(ModeList, S::ModeList, "_p_std__mapT_GLenum_unsigned_int_t", "osg::StateSet::ModeList *", "A state set's modes: {mode: value}.") \
    X(AttributeList, S::AttributeList, "_p_std__mapT_std__pairT_osg__StateAttribute__Type_unsigned_int_t_std__pairT_ref_ptrT_osg__StateAttribute_t_unsigned_int_t_t", "osg::StateSet::AttributeList *", "A state set's attributes: {(type, member): (attribute, value)}.") \
    X(TextureModeList, S::TextureModeList, "_p_std__vectorT_std__mapT_GLenum_unsigned_int_t_t", "osg::StateSet::TextureModeList *", "A state set's modes of each texture unit.") \
    X(TextureAttributeList, S::TextureAttributeList, "_p_std__vectorT_std__mapT_std__pairT_osg__StateAttribute__Type_unsigned_int_t_std__pairT_ref_ptrT_osg__StateAttribute_t_unsigned_int_t_t_t", "osg::StateSet::TextureAttributeList *", "A state set's attributes of each texture unit.") \
    X(UniformList, S::UniformList, "_p_std__mapT_std__string_std__pairT_ref_ptrT_osg__Uniform_t_unsigned_int_t_t", "osg::StateSet::UniformList *", "A state set's uniforms: {name: (uniform, value)}.") \
    X(DefineList, S::DefineList, "_p_std__mapT_std__string_std__pairT_std__string_unsigned_int_t_t", "osg::StateSet::DefineList *", "A state set's defines: {name: (definition, value)}.") \
    X(RefAttributePair, S::RefAttributePair, "_p_std__pairT_ref_ptrT_osg__StateAttribute_t_unsigned_int_t", "osg::StateSet::RefAttributePair *", "An attribute and its value.") \
    X(RefUniformPair, S::RefUniformPair, "_p_std__pairT_ref_ptrT_osg__Uniform_t_unsigned_int_t", "osg::StateSet::RefUniformPair *", "A uniform and its value.") \
    X(DefinePair, S::DefinePair, "_p_std__pairT_std__string_unsigned_int_t", "osg::StateSet::DefinePair *", "A definition and its value.") \
    X(BufferAttachmentMap, Attachments, "_p_std__mapT_osg__Camera__BufferComponent_osg__Camera__Attachment_t", "osg::Camera::BufferAttachmentMap *", "A camera's attachments: {buffer component: (internal format, texture, image, level, face, mipmap generation, samples, colour samples, width, height)}.")
#define CLASS_TYPES(X) \
    X(Node, osg::Node, "_p_osg__Node", "osg::Node *") \
    X(Group, osg::Group, "_p_osg__Group", "osg::Group *") \
    X(Matrixd, osg::Matrixd, "_p_osg__Matrixd", "osg::Matrixd *") \
    X(ClipPlane, osg::ClipPlane, "_p_osg__ClipPlane", "osg::ClipPlane *") \
    X(StateSet, osg::StateSet, "_p_osg__StateSet", "osg::StateSet *") \
    X(StateAttribute, osg::StateAttribute, "_p_osg__StateAttribute", "osg::StateAttribute *") \
    X(Uniform, osg::Uniform, "_p_osg__Uniform", "osg::Uniform *") \
    X(Texture, osg::Texture, "_p_osg__Texture", "osg::Texture *") \
    X(Image, osg::Image, "_p_osg__Image", "osg::Image *")
// clang-format on

#define INDEX(N, ...) i_##N,
enum Index { VALUE_TYPES(INDEX) value_count, classes_follow = value_count - 1, CLASS_TYPES(INDEX) type_count };

#define RECORD(N, T, name, str, ...) {name, str, nullptr, nullptr, nullptr, 0},
swig_type_info type_initial[] = {VALUE_TYPES(RECORD) CLASS_TYPES(RECORD)};

// Each descriptor's cast list holds only itself; _osg's records carry the class edges.
swig_cast_info self_casts[type_count][2];
// The module's table is sorted by mangled name, as lookups in the ring expect; live[] keeps
// the records this module uses by its own index.
swig_type_info *type_initial_ptrs[type_count];
swig_cast_info *cast_initial[type_count];
swig_type_info *types[type_count + 1];
swig_type_info *live[type_count];
swig_module_info module = {types, type_count, nullptr, nullptr, nullptr, nullptr};

void join() {
    int order[type_count];
    for (int i = 0; i < type_count; ++i) order[i] = i;
    std::sort(order, order + type_count, [](int a, int b) { return std::strcmp(type_initial[a].name, type_initial[b].name) < 0; });
    for (int k = 0; k < type_count; ++k) {
        type_initial_ptrs[k] = &type_initial[order[k]];
        self_casts[order[k]][0].type = &type_initial[order[k]];
        cast_initial[k] = self_casts[order[k]];
    }
    SWIG_Python_JoinModuleTable(&module, type_initial_ptrs, cast_initial);
    for (int k = 0; k < type_count; ++k) live[order[k]] = types[k];
}

template <int I>
struct Type;
#define TYPE(N, T, ...)            \
    template <>                    \
    struct Type<i_##N> {               \
        using type = T;            \
    };
VALUE_TYPES(TYPE)
CLASS_TYPES(TYPE)

template <int I>
using T_ = typename Type<I>::type;

// A new owned value: with its class registered, an owned shadow instance of that class.
template <int I>
PyObject *owned(T_<I> *p) {
    return SWIG_Python_NewPointerObj(p, live[I], SWIG_POINTER_OWN);
}

template <int I>
T_<I> *pointer(PyObject *o) {
    void *p = nullptr;
    return SWIG_ConvertPtr(o, &p, live[I]) == SWIG_OK ? static_cast<T_<I> *>(p) : nullptr;
}

template <int I>
PyObject *destroy(PyObject *, PyObject *obj) {
    void *p = nullptr;
    if (SWIG_Python_ConvertPtrAndOwn(obj, &p, live[I], SWIG_POINTER_DISOWN) != SWIG_OK) {
        PyErr_Format(PyExc_TypeError, "not a %s", type_initial[I].str);
        return nullptr;
    }
    delete static_cast<T_<I> *>(p);
    Py_RETURN_NONE;
}

#define DESTROY(N, T, name, str, doc) {"delete_" #N, destroy<i_##N>, METH_O, "Destroys an owned " str " value."},
PyMethodDef destroy_defs[] = {VALUE_TYPES(DESTROY){nullptr, nullptr, 0, nullptr}};

// ---- from Python values ----------------------------------------------------------------

template <class F>
bool each(PyObject *seq, F f) {
    PyObject *fast = PySequence_Fast(seq, "a sequence is required");
    if (!fast) return false;
    for (Py_ssize_t i = 0; i < PySequence_Fast_GET_SIZE(fast); ++i) {
        if (!f(PySequence_Fast_GET_ITEM(fast, i), i)) {
            Py_DECREF(fast);
            return false;
        }
    }
    Py_DECREF(fast);
    return true;
}

PyObject *make_string(PyObject *, PyObject *arg) {
    Py_ssize_t n;
    const char *s = PyUnicode_AsUTF8AndSize(arg, &n);
    return s ? owned<i_String>(new std::string(s, (size_t)n)) : nullptr;
}

template <int I>
PyObject *make_uint(PyObject *, PyObject *arg) {
    unsigned long v = PyLong_AsUnsignedLong(arg);
    if (v == (unsigned long)-1 && PyErr_Occurred()) return nullptr;
    if (v > 0xFFFFFFFFul) return PyErr_Format(PyExc_OverflowError, "%lu does not fit in 32 bits", v);
    return owned<I>(new T_<I>(static_cast<T_<I>>(v)));
}

template <int I>
PyObject *make_real(PyObject *, PyObject *args) {
    double v = 0;
    if (!PyArg_ParseTuple(args, "|d", &v)) return nullptr;
    return owned<I>(new T_<I>(static_cast<T_<I>>(v)));
}

PyObject *make_node_path(PyObject *, PyObject *arg) {
    osg::NodePath path;
    bool ok = each(arg, [&](PyObject *item, Py_ssize_t i) {
        osg::Node *n = pointer<i_Node>(item);
        if (!n) PyErr_Format(PyExc_TypeError, "item %zd of a node path is not a node", i);
        path.push_back(n);
        return n != nullptr;
    });
    return ok ? owned<i_NodePath>(new osg::NodePath(std::move(path))) : nullptr;
}

PyObject *make_descriptions(PyObject *, PyObject *arg) {
    Descriptions list;
    bool ok = each(arg, [&](PyObject *item, Py_ssize_t) {
        const char *s = PyUnicode_AsUTF8(item);
        if (s) list.push_back(s);
        return s != nullptr;
    });
    return ok ? owned<i_DescriptionList>(new Descriptions(std::move(list))) : nullptr;
}

PyObject *make_values(PyObject *, PyObject *arg) {
    Values list;
    bool ok = each(arg, [&](PyObject *item, Py_ssize_t) {
        int v = PyObject_IsTrue(item);
        list.push_back(v > 0);
        return v >= 0;
    });
    return ok ? owned<i_ValueList>(new Values(std::move(list))) : nullptr;
}

template <int I>
PyObject *make_points(PyObject *, PyObject *arg) {
    T_<I> list;
    bool ok = each(arg, [&](PyObject *item, Py_ssize_t) {
        double x, y, z;
        PyObject *t = PySequence_Tuple(item);
        bool good = t && PyArg_ParseTuple(t, "ddd", &x, &y, &z);
        Py_XDECREF(t);
        if (good) list.emplace_back(x, y, z);
        return good;
    });
    return ok ? owned<I>(new T_<I>(std::move(list))) : nullptr;
}

// bounding_box() is the empty (invalid) box; bounding_box(xmin, ymin, zmin, xmax, ymax, zmax).
PyObject *make_box(PyObject *, PyObject *args) {
    if (PyTuple_GET_SIZE(args) == 0) return owned<i_BoundingBox>(new osg::BoundingBox);
    double v[6];
    if (!PyArg_ParseTuple(args, "dddddd", v, v + 1, v + 2, v + 3, v + 4, v + 5)) return nullptr;
    return owned<i_BoundingBox>(new osg::BoundingBox(v[0], v[1], v[2], v[3], v[4], v[5]));
}

// bounding_sphere() is the empty (invalid) sphere; bounding_sphere(x, y, z, radius).
PyObject *make_sphere(PyObject *, PyObject *args) {
    if (PyTuple_GET_SIZE(args) == 0) return owned<i_BoundingSphere>(new osg::BoundingSphere);
    double x, y, z, r;
    if (!PyArg_ParseTuple(args, "dddd", &x, &y, &z, &r)) return nullptr;
    return owned<i_BoundingSphere>(new osg::BoundingSphere(osg::Vec3d(x, y, z), r));
}

// ---- back to Python values ---------------------------------------------------------------

template <class C, class F>
PyObject *list_of(const C &c, F item) {
    PyObject *out = PyList_New((Py_ssize_t)c.size());
    if (!out) return nullptr;
    Py_ssize_t i = 0;
    for (const auto &e : c) {
        PyObject *v = item(e);
        if (!v) {
            Py_DECREF(out);
            return nullptr;
        }
        PyList_SET_ITEM(out, i++, v);
    }
    return out;
}

template <int I>
PyObject *borrowed(const void *p) {
    return SWIG_Python_NewPointerObj(const_cast<void *>(p), live[I], 0);
}

PyObject *vec_tuple(const osg::Vec3d &v) { return Py_BuildValue("(ddd)", v.x(), v.y(), v.z()); }

PyObject *node_list(const osg::NodePath &p) { return list_of(p, borrowed<i_Node>); }

template <class C, class K, class V>
PyObject *dict_of(const C &c, K key, V value) {
    PyObject *out = PyDict_New();
    for (const auto &e : c) {
        PyObject *k = out ? key(e) : nullptr, *v = k ? value(e) : nullptr;
        if (!v || PyDict_SetItem(out, k, v) < 0) Py_CLEAR(out);
        Py_XDECREF(k);
        Py_XDECREF(v);
        if (!out) return nullptr;
    }
    return out;
}

template <int I>
PyObject *maybe(const void *p) {
    return p ? borrowed<I>(p) : Py_NewRef(Py_None);
}

// (object, value) of a state set's pair: the object as a borrowed proxy of its class.
template <int I, class P>
PyObject *value_pair(const P &pair) {
    return Py_BuildValue("(Nk)", maybe<I>(pair.first.get()), (unsigned long)pair.second);
}

PyObject *modes(const S::ModeList &m) {
    return dict_of(m, [](auto &e) { return PyLong_FromUnsignedLong(e.first); },
                   [](auto &e) { return PyLong_FromUnsignedLong(e.second); });
}

PyObject *attributes(const S::AttributeList &a) {
    return dict_of(a, [](auto &e) { return Py_BuildValue("(ik)", (int)e.first.first, (unsigned long)e.first.second); },
                   [](auto &e) { return value_pair<i_StateAttribute>(e.second); });
}

// read(value): the Python value behind any of the value descriptors; objects in lists come
// back as (borrowed) proxies of their classes, matrices as owned copies.
PyObject *read(PyObject *, PyObject *obj) {
    if (auto *p = pointer<i_String>(obj)) return PyUnicode_DecodeUTF8(p->data(), (Py_ssize_t)p->size(), "surrogateescape");
    if (auto *p = pointer<i_GLenum>(obj)) return PyLong_FromUnsignedLong(*p);
    if (auto *p = pointer<i_GLbitfield>(obj)) return PyLong_FromUnsignedLong(*p);
    if (auto *p = pointer<i_UniformType>(obj)) return PyLong_FromLong((long)*p);
    if (auto *p = pointer<i_DoubleCell>(obj)) return PyFloat_FromDouble(*p);
    if (auto *p = pointer<i_FloatCell>(obj)) return PyFloat_FromDouble(*p);
    if (auto *p = pointer<i_UIntCell>(obj)) return PyLong_FromUnsignedLong(*p);
    if (auto *p = pointer<i_NodePath>(obj)) return node_list(*p);
    if (auto *p = pointer<i_DescriptionList>(obj))
        return list_of(*p, [](const std::string &s) { return PyUnicode_FromStringAndSize(s.data(), (Py_ssize_t)s.size()); });
    if (auto *p = pointer<i_ValueList>(obj)) return list_of(*p, [](bool b) { return PyBool_FromLong(b); });
    if (auto *p = pointer<i_BoundingBox>(obj))
        return Py_BuildValue("(dddddd)", p->xMin(), p->yMin(), p->zMin(), p->xMax(), p->yMax(), p->zMax());
    if (auto *p = pointer<i_BoundingSphere>(obj)) return Py_BuildValue("(Nd)", vec_tuple(p->center()), p->radius());
    if (auto *p = pointer<i_ParentList>(obj)) return list_of(*p, borrowed<i_Group>);
    if (auto *p = pointer<i_NodePathList>(obj)) return list_of(*p, node_list);
    if (auto *p = pointer<i_MatrixList>(obj))
        return list_of(*p, [](const osg::Matrixd &m) { return SWIG_Python_NewPointerObj(new osg::Matrixd(m), live[i_Matrixd], SWIG_POINTER_OWN); });
    if (auto *p = pointer<i_ClipPlaneList>(obj))
        return list_of(*p, [](const osg::ref_ptr<osg::ClipPlane> &c) { return borrowed<i_ClipPlane>(c.get()); });
    if (auto *p = pointer<i_StateSetList>(obj)) return list_of(*p, borrowed<i_StateSet>);
    if (auto *p = pointer<i_Vec3fList>(obj)) return list_of(*p, [](const osg::Vec3f &v) { return vec_tuple(v); });
    if (auto *p = pointer<i_Vec3dList>(obj)) return list_of(*p, vec_tuple);
    if (auto *p = pointer<i_TypeMemberPair>(obj)) return Py_BuildValue("(ik)", (int)p->first, (unsigned long)p->second);
    if (auto *p = pointer<i_ModeList>(obj)) return modes(*p);
    if (auto *p = pointer<i_AttributeList>(obj)) return attributes(*p);
    if (auto *p = pointer<i_TextureModeList>(obj)) return list_of(*p, modes);
    if (auto *p = pointer<i_TextureAttributeList>(obj)) return list_of(*p, attributes);
    if (auto *p = pointer<i_UniformList>(obj))
        return dict_of(*p, [](auto &e) { return PyUnicode_FromString(e.first.c_str()); },
                       [](auto &e) { return value_pair<i_Uniform>(e.second); });
    if (auto *p = pointer<i_DefineList>(obj))
        return dict_of(*p, [](auto &e) { return PyUnicode_FromString(e.first.c_str()); },
                       [](auto &e) { return Py_BuildValue("(sk)", e.second.first.c_str(), (unsigned long)e.second.second); });
    if (auto *p = pointer<i_RefAttributePair>(obj)) return value_pair<i_StateAttribute>(*p);
    if (auto *p = pointer<i_RefUniformPair>(obj)) return value_pair<i_Uniform>(*p);
    if (auto *p = pointer<i_DefinePair>(obj)) return Py_BuildValue("(sk)", p->first.c_str(), (unsigned long)p->second);
    if (auto *p = pointer<i_BufferAttachmentMap>(obj))
        return dict_of(*p, [](auto &e) { return PyLong_FromLong((long)e.first); }, [](auto &e) {
            const osg::Camera::Attachment &a = e.second;
            return Py_BuildValue("(kNNkkOkkii)", (unsigned long)a._internalFormat, maybe<i_Texture>(a._texture.get()),
                                 maybe<i_Image>(a._image.get()), (unsigned long)a._level, (unsigned long)a._face,
                                 a._mipMapGeneration ? Py_True : Py_False, (unsigned long)a._multisampleSamples,
                                 (unsigned long)a._multisampleColorSamples, a.width(), a.height());
        });
    return PyErr_Format(PyExc_TypeError, "read() takes a value of _osgvalues, not '%s'", Py_TYPE(obj)->tp_name);
}

// elements(pointer, n): n numbers behind a float *, double * or unsigned int *, as a tuple.
PyObject *elements(PyObject *, PyObject *args) {
    PyObject *obj;
    Py_ssize_t n;
    if (!PyArg_ParseTuple(args, "On", &obj, &n)) return nullptr;
    if (n < 0) return PyErr_Format(PyExc_ValueError, "negative length %zd", n);
    auto tuple = [n](auto *p, auto make) -> PyObject * {
        PyObject *out = PyTuple_New(n);
        for (Py_ssize_t i = 0; out && i < n; ++i) PyTuple_SET_ITEM(out, i, make(p[i]));
        return out;
    };
    if (auto *p = pointer<i_FloatCell>(obj)) return tuple(p, [](float v) { return PyFloat_FromDouble(v); });
    if (auto *p = pointer<i_DoubleCell>(obj)) return tuple(p, PyFloat_FromDouble);
    if (auto *p = pointer<i_UIntCell>(obj)) return tuple(p, [](unsigned int v) { return PyLong_FromUnsignedLong(v); });
    return PyErr_Format(PyExc_TypeError, "elements() takes a float *, double * or unsigned int *, not '%s'",
                        Py_TYPE(obj)->tp_name);
}

PyObject *instancemethod(PyObject *, PyObject *f) { return PyInstanceMethod_New(f); }

// pointer(address, type, own=False): a pointer object of the descriptor a mangled or C++ name
// gives ("_p_osg__Node", "osg::Node *"), for memory another library hands over.
PyObject *make_pointer(PyObject *, PyObject *args) {
    unsigned long long address;
    const char *name;
    int own = 0;
    if (!PyArg_ParseTuple(args, "Ks|p:pointer", &address, &name, &own)) return nullptr;
    swig_type_info *ty = SWIG_Python_TypeQuery(name);
    if (!ty) return PyErr_Format(PyExc_ValueError, "no module of the family knows the type '%s'", name);
    return SWIG_Python_NewPointerObj((void *)(uintptr_t)address, ty, own ? SWIG_POINTER_OWN : 0);
}

// write_node(node, file name): OSG's own writer, chosen by the extension (".osgt" for the
// native text format); False when no writer plugin can handle it.
PyObject *write_node(PyObject *, PyObject *args) {
    PyObject *obj;
    const char *name;
    if (!PyArg_ParseTuple(args, "Os", &obj, &name)) return nullptr;
    osg::Node *n = pointer<i_Node>(obj);
    if (!n) return PyErr_Format(PyExc_TypeError, "write_node() takes a node, not '%s'", Py_TYPE(obj)->tp_name);
    return PyBool_FromLong(osgDB::writeNodeFile(*n, name));
}

PyMethodDef methods[] = {
    {"string", make_string, METH_O, "string(text: str) -> String\n\nA new std::string."},
    {"glenum", make_uint<i_GLenum>, METH_O, "glenum(value: int) -> GLenum\n\nA new GLenum."},
    {"glbitfield", make_uint<i_GLbitfield>, METH_O, "glbitfield(value: int) -> GLbitfield\n\nA new GLbitfield."},
    {"uniform_type", make_uint<i_UniformType>, METH_O, "uniform_type(value: int) -> UniformType\n\nA new osg::Uniform::Type."},
    {"double_cell", make_real<i_DoubleCell>, METH_VARARGS, "double_cell(value: float = 0.0) -> DoubleCell\n\nA double, for an out-parameter."},
    {"float_cell", make_real<i_FloatCell>, METH_VARARGS, "float_cell(value: float = 0.0) -> FloatCell\n\nA float, for an out-parameter."},
    {"uint_cell", make_real<i_UIntCell>, METH_VARARGS, "uint_cell(value: int = 0) -> UIntCell\n\nAn unsigned int, for an out-parameter."},
    {"node_path", make_node_path, METH_O, "node_path(nodes) -> NodePath\n\nAn osg::NodePath of the nodes, root first."},
    {"description_list", make_descriptions, METH_O, "description_list(texts) -> DescriptionList\n\nA node's description list."},
    {"value_list", make_values, METH_O, "value_list(flags) -> ValueList\n\nA switch's value list."},
    {"vec3f_list", make_points<i_Vec3fList>, METH_O, "vec3f_list(points) -> Vec3fList\n\nA std::vector<osg::Vec3f> of (x, y, z) points."},
    {"vec3d_list", make_points<i_Vec3dList>, METH_O, "vec3d_list(points) -> Vec3dList\n\nA std::vector<osg::Vec3d> of (x, y, z) points."},
    {"bounding_box", make_box, METH_VARARGS, "bounding_box(xmin, ymin, zmin, xmax, ymax, zmax) -> BoundingBox\n\nA bounding box; without arguments, the empty one."},
    {"bounding_sphere", make_sphere, METH_VARARGS, "bounding_sphere(x, y, z, radius) -> BoundingSphere\n\nA bounding sphere; without arguments, the empty one."},
    {"read", read, METH_O, "read(value) -> object\n\nThe Python value behind a value of this module's descriptors."},
    {"elements", elements, METH_VARARGS, "elements(pointer, n) -> tuple\n\nn numbers behind a float *, double * or unsigned int *."},
    {"instancemethod", instancemethod, METH_O, "instancemethod(function) -> instancemethod\n\nBinds a built-in function as a method: the instance is passed as its first argument."},
    {"pointer", make_pointer, METH_VARARGS, "pointer(address: int, type: str, own: bool = False) -> object\n\nA pointer object of the type a mangled or C++ name gives (\"_p_osg__Node\", \"osg::Node *\") for an address from elsewhere; with own, its class's destroy function frees the object when the proxy dies."},
    {"write_node", write_node, METH_VARARGS, "write_node(node, filename: str) -> bool\n\nWrites the scene below node with OSG's writer for the file's extension."},
    {nullptr, nullptr, 0, nullptr},
};

// Each value class: named, documented, with its destroy function, registered on its descriptor.
constexpr const char *class_source = R"(
class Value:
    """A C++ value behind a pointer object; `value` reads it as a Python value."""
    thisown = property(lambda self: self.this.own(), lambda self, v: self.this.own(v))
    value = property(lambda self: read(self))

    def __repr__(self):
        return f"<_osgvalues.{type(self).__name__} {read(self)!r}>"

    def __str__(self):
        return str(read(self))
)";

struct ClassDef {
    const char *name, *doc;
};
#define CLASSDEF(N, T, name, str, doc) {#N, doc},
constexpr ClassDef class_defs[] = {VALUE_TYPES(CLASSDEF)};

}  // namespace

PyMODINIT_FUNC PyInit__osgvalues() {
    static PyModuleDef def = {PyModuleDef_HEAD_INIT, "_osgvalues", "Values _osg takes as pointer objects, from Python values and back.",
                              -1, methods, nullptr, nullptr, nullptr, nullptr};
    SWIG_This();
    SWIG_Python_TypeCache();
    SwigPyPacked_type();
    SwigPyObject_type();
    PyObject *m = PyModule_Create2(&def, 1013);
    if (!m) return nullptr;
    join();
    SWIG_Python_HoldSharedCapsule();
    PyObject *d = PyModule_GetDict(m);
    PyObject *r = PyRun_String(class_source, Py_file_input, d, d);
    if (!r) return nullptr;
    Py_DECREF(r);
    PyObject *base = PyDict_GetItemString(d, "Value");
    for (int i = 0; i < value_count; ++i) {
        PyObject *destroy = PyCFunction_NewEx(&destroy_defs[i], nullptr, m);
        PyObject *ns = Py_BuildValue("{s:N,s:s,s:s}", "__swig_destroy__", destroy, "__doc__", class_defs[i].doc, "__module__",
                                     "_osgvalues");
        PyObject *cls = ns ? PyObject_CallFunction((PyObject *)&PyType_Type, "s(O)N", class_defs[i].name, base, ns) : nullptr;
        if (!cls) return nullptr;
        // A descriptor another module registered keeps its class.
        if (!live[i]->clientdata) {
            SWIG_TypeClientData(live[i], SwigPyClientData_New(cls));
            live[i]->owndata = 1;
        }
        if (PyModule_AddObject(m, class_defs[i].name, cls) < 0) return nullptr;
    }
    return m;
}
