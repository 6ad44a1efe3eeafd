// osg::Array and the vertex arrays Vec2Array, Vec3Array and Vec4Array. The arrays take their
// values from sequences or buffers (wrap::Values) and give their memory out as views; element
// access is checked against the size, and rows that may move the memory refuse while a view
// of it is alive (wrap/buffers.h).
#include "draw/bind.h"
#include "wrap/buffers.h"

using namespace wrap;

namespace {

using A = osg::Array;
using KA = Class<A, "osg::Array", "Array">;
constexpr Text binding = "osg::Array::Binding";

template <class T>
using NC = T *(A::*)();
template <class T>
using CC = const T *(A::*)() const;

// The members of BufferData (not bound on its own) that scripts call on an array.
void buffer_data_rows(Table &t) {
    add(t, {
        KA::fn<"dirty", [](A *self) { self->dirty(); }>(),
        KA::fn<"setModifiedCount", [](A *self, unsigned int n) { self->setModifiedCount(n); }, "unsigned int">(),
        KA::fn<"getModifiedCount", [](const A *self) { return self->getModifiedCount(); }>(),
    });
}

}  // namespace

namespace {

template <class S>
Checked<View> typed(A *a, GLint k) {
    if ((unsigned int)k * sizeof(S) != a->getElementSize())
        return raise<View>(PyExc_BufferError, "the array's elements are not whole components of its data type");
    S *data = static_cast<S *>(const_cast<GLvoid *>(a->getDataPointer()));
    Py_ssize_t n = a->getNumElements();
    return {k == 1 ? view_of(data, {n}, a) : view_of(data, {n, (Py_ssize_t)k}, a)};
}

// Any array as (N, k), or (N,) when k is 1, of the data type and size it reports.
Checked<View> array_view(A *a, int) {
    switch (a->getDataType()) {
        case GL_FLOAT: return typed<GLfloat>(a, a->getDataSize());
        case GL_DOUBLE: return typed<GLdouble>(a, a->getDataSize());
        case GL_UNSIGNED_BYTE: return typed<GLubyte>(a, a->getDataSize());
        case GL_BYTE: return typed<GLbyte>(a, a->getDataSize());
        case GL_UNSIGNED_SHORT: return typed<GLushort>(a, a->getDataSize());
        case GL_SHORT: return typed<GLshort>(a, a->getDataSize());
        case GL_UNSIGNED_INT: return typed<GLuint>(a, a->getDataSize());
        case GL_INT: return typed<GLint>(a, a->getDataSize());
        default: return raise<View>(PyExc_BufferError, "the array's data type has no buffer format");
    }
}

void add_array_base(Table &t, Constants &c) {
    add(t, {
        KA::fn<"isSameKindAs", &A::isSameKindAs, "osg::Object const *">(),
        KA::fn<"libraryName", &A::libraryName>(),
        KA::fn<"className", &A::className>(),
        KA::fn<"compare", [](const A *a, unsigned int lhs, unsigned int rhs) -> Checked<int> {
            if (lhs >= a->getNumElements() || rhs >= a->getNumElements()) return raise<int>(PyExc_IndexError, index_out_of_range);
            return {a->compare(lhs, rhs)};
        }, "unsigned int", "unsigned int">(),
        KA::fn<"getType", &A::getType>(),
        KA::fn<"getDataSize", &A::getDataSize>(),
        KA::fn<"getDataType", returns_handle<draw::glenum, &A::getDataType>>(),
        KA::pair<"asArray", NC<A>(&A::asArray), CC<A>(&A::asArray)>(),
        KA::fn<"getElementSize", &A::getElementSize>(),
        KA::fn<"getTotalDataSize", &A::getTotalDataSize>(),
        KA::fn<"getNumElements", &A::getNumElements>(),
        KA::fn<"reserveArray", [](A *a, unsigned int n) { return unless_exported(a, [&] { a->reserveArray(n); }); },
               "unsigned int">(),
        KA::fn<"resizeArray", [](A *a, unsigned int n) { return unless_exported(a, [&] { a->resizeArray(n); }); },
               "unsigned int">(),
        KA::fn<"setBinding", &A::setBinding, binding>(),
        KA::fn<"getBinding", &A::getBinding>(),
        KA::fn<"setNormalize", &A::setNormalize, "bool">(),
        KA::fn<"getNormalize", &A::getNormalize>(),
        KA::fn<"setPreserveDataType", &A::setPreserveDataType, "bool">(),
        KA::fn<"getPreserveDataType", &A::getPreserveDataType>(),
        KA::fn<"trim", [](A *a) { return unless_exported(a, [&] { a->trim(); }); }>(),
        KA::fn<"__buffer__", array_view, "int">(),
    });
    buffer_data_rows(t);
    t.push_back(KA::register_hook());
    c.insert(c.end(), {
             {"Array_BIND_UNDEFINED", A::BIND_UNDEFINED}, {"Array_BIND_OFF", A::BIND_OFF},
             {"Array_BIND_OVERALL", A::BIND_OVERALL}, {"Array_BIND_PER_PRIMITIVE_SET", A::BIND_PER_PRIMITIVE_SET},
             {"Array_BIND_PER_VERTEX", A::BIND_PER_VERTEX}, {"Array_ArrayType", A::ArrayType},
             {"Array_ByteArrayType", A::ByteArrayType}, {"Array_ShortArrayType", A::ShortArrayType},
             {"Array_IntArrayType", A::IntArrayType}, {"Array_UByteArrayType", A::UByteArrayType},
             {"Array_UShortArrayType", A::UShortArrayType}, {"Array_UIntArrayType", A::UIntArrayType},
             {"Array_FloatArrayType", A::FloatArrayType}, {"Array_DoubleArrayType", A::DoubleArrayType},
             {"Array_Vec2bArrayType", A::Vec2bArrayType}, {"Array_Vec3bArrayType", A::Vec3bArrayType},
             {"Array_Vec4bArrayType", A::Vec4bArrayType}, {"Array_Vec2sArrayType", A::Vec2sArrayType},
             {"Array_Vec3sArrayType", A::Vec3sArrayType}, {"Array_Vec4sArrayType", A::Vec4sArrayType},
             {"Array_Vec2iArrayType", A::Vec2iArrayType}, {"Array_Vec3iArrayType", A::Vec3iArrayType},
             {"Array_Vec4iArrayType", A::Vec4iArrayType}, {"Array_Vec2ubArrayType", A::Vec2ubArrayType},
             {"Array_Vec3ubArrayType", A::Vec3ubArrayType}, {"Array_Vec4ubArrayType", A::Vec4ubArrayType},
             {"Array_Vec2usArrayType", A::Vec2usArrayType}, {"Array_Vec3usArrayType", A::Vec3usArrayType},
             {"Array_Vec4usArrayType", A::Vec4usArrayType}, {"Array_Vec2uiArrayType", A::Vec2uiArrayType},
             {"Array_Vec3uiArrayType", A::Vec3uiArrayType}, {"Array_Vec4uiArrayType", A::Vec4uiArrayType},
             {"Array_Vec2ArrayType", A::Vec2ArrayType}, {"Array_Vec3ArrayType", A::Vec3ArrayType},
             {"Array_Vec4ArrayType", A::Vec4ArrayType}, {"Array_Vec2dArrayType", A::Vec2dArrayType},
             {"Array_Vec3dArrayType", A::Vec3dArrayType}, {"Array_Vec4dArrayType", A::Vec4dArrayType},
             {"Array_MatrixArrayType", A::MatrixArrayType}, {"Array_MatrixdArrayType", A::MatrixdArrayType},
             {"Array_QuatArrayType", A::QuatArrayType}, {"Array_UInt64ArrayType", A::UInt64ArrayType},
             {"Array_Int64ArrayType", A::Int64ArrayType}, {"Array_LastArrayType", A::LastArrayType}});
}

// Vec2Array, Vec3Array and Vec4Array: one table over the element class V ("osg::Vec3f").
template <class T, Text Spelling, Text Prefix, Text Value>
void add_vector_array(Table &t) {
    using K = Class<T, Spelling, Prefix>;
    using V = typename T::ElementDataType;
    using N = typename T::size_type;
    constexpr auto cref = cat(Spelling, Text(" const &"));
    constexpr auto vref = cat(Spelling, Text("::value_type const &"));
    constexpr auto size = cat(Spelling, Text("::size_type"));
    constexpr auto values = cat(Text("std::vector< "), Value, Text(" > const &"));
    add(t, {
        K::template ctor<TakeRef::Count, ctor_of<K, List<>>, ctor_of<K, List<unsigned int>, "unsigned int">,
                         ctor_of<K, List<A::Binding, unsigned int>, binding, "unsigned int">,
                         ctor_by<K, [](Values<V> v) { return new T(v.begin(), v.end()); }, values>,
                         ctor_by<K, [](A::Binding b, Values<V> v) { return new T(b, (unsigned int)v.size, v.data); }, binding,
                                 values>,
                         ctor_of<K, List<const T &, const osg::CopyOp &>, cref, "osg::CopyOp const &">,
                         ctor_of<K, List<const T &>, cref>>(),
        K::template fn<"cloneType", [](const T *a) { return a->cloneType(); }>(),
        K::template fn<"clone", [](const T *a, const osg::CopyOp &op) { return a->clone(op); }, "osg::CopyOp const &">(),
        K::template fn<"compare", [](const T *a, unsigned int lhs, unsigned int rhs) -> Checked<int> {
            if (lhs >= a->size() || rhs >= a->size()) return raise<int>(PyExc_IndexError, index_out_of_range);
            return {a->compare(lhs, rhs)};
        }, "unsigned int", "unsigned int">(),
        K::template fn<"trim", [](T *a) { return unless_exported(a, [&] { a->trim(); }); }>(),
        K::template fn<"getElementSize", [](const T *a) { return a->getElementSize(); }>(),
        K::template fn<"getTotalDataSize", [](const T *a) { return a->getTotalDataSize(); }>(),
        K::template fn<"getNumElements", [](const T *a) { return a->getNumElements(); }>(),
        K::template fn<"reserveArray", [](T *a, unsigned int n) { return unless_exported(a, [&] { a->reserveArray(n); }); },
                       "unsigned int">(),
        K::template fn<"resizeArray", [](T *a, unsigned int n) { return unless_exported(a, [&] { a->resizeArray(n); }); },
                       "unsigned int">(),
        // The vector it is.
        K::template fn<"size", [](const T *a) { return a->size(); }>(),
        K::template fn<"empty", [](const T *a) { return a->empty(); }>(),
        K::template fn<"capacity", [](const T *a) { return a->capacity(); }>(),
        K::template fn<"clear", [](T *a) { return unless_exported(a, [&] { a->clear(); }); }>(),
        K::template overload<"resize",
                             mem<K, "resize", [](T *a, N n, const V &v) { return unless_exported(a, [&] { a->resize(n, v); }); },
                                 size, vref>,
                             mem<K, "resize", [](T *a, N n) { return unless_exported(a, [&] { a->resize(n); }); }, size>>(),
        K::template fn<"reserve", [](T *a, N n) { return unless_exported(a, [&] { a->reserve(n); }); }, size>(),
        K::template fn<"push_back", [](T *a, const V &v) { return unless_exported(a, [&] { a->push_back(v); }); }, vref>(),
        K::template fn<"pop_back", [](T *a) -> Checked<void> {
            if (a->empty()) return raise<void>(PyExc_IndexError, "pop from an empty array");
            return unless_exported(a, [&] { a->pop_back(); });
        }>(),
        K::template fn<"assign", [](T *a, Values<V> v) { return unless_exported(a, [&] { a->assign(v.begin(), v.end()); }); },
                       values>(),
        K::template fn<"__getitem__", [](const T *a, N i) -> Checked<V> {
            if (i >= a->size()) return raise<V>(PyExc_IndexError, index_out_of_range);
            return {(*a)[i]};
        }, size>(),
        K::template fn<"__setitem__", [](T *a, N i, const V &v) -> Checked<void> {
            if (i >= a->size()) return raise<void>(PyExc_IndexError, index_out_of_range);
            (*a)[i] = v;
            return {};
        }, size, vref>(),
        // (N, k) scalars, the array's own memory.
        K::template fn<"__buffer__", [](T *a, int) {
            return view_of(a->empty() ? nullptr : a->front().ptr(), {(Py_ssize_t)a->size(), (Py_ssize_t)V::num_components}, a);
        }, "int">(),
        K::register_hook(),
        K::init_hook(),
    });
}

}  // namespace

void add_array_rows(Table &t, Constants &c) {
    add_array_base(t, c);
    add_vector_array<osg::Vec2Array, "osg::Vec2Array", "Vec2Array", "osg::Vec2f">(t);
    add_vector_array<osg::Vec3Array, "osg::Vec3Array", "Vec3Array", "osg::Vec3f">(t);
    add_vector_array<osg::Vec4Array, "osg::Vec4Array", "Vec4Array", "osg::Vec4f">(t);
}
