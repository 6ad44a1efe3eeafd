// osg::PrimitiveSet, DrawArrays and DrawElementsUInt, with the primitive modes. Modes cross as
// GLenum handles, as OSG declares them; the element list takes its indices from sequences or
// buffers and gives its memory out as a view (wrap/buffers.h).
#include "draw/bind.h"
#include "wrap/buffers.h"

using namespace wrap;

namespace {

using P = osg::PrimitiveSet;
using KP = Class<P, "osg::PrimitiveSet", "PrimitiveSet">;
constexpr auto mode = handle<draw::glenum>("GLenum");
constexpr Text uint = "unsigned int";

// The index of position pos, where DrawElements would read past its end.
template <class T>
Checked<unsigned int> checked_index(const T *p, unsigned int pos) {
    if (pos >= p->getNumIndices() && p->getDrawElements()) return raise<unsigned int>(PyExc_IndexError, index_out_of_range);
    return {p->index(pos)};
}

// The element list of a DrawElements as (N,) of its index type; other sets have no memory.
Checked<View> elements_view(P *p, int) {
    osg::DrawElements *e = p->getDrawElements();
    if (!e) return raise<View>(PyExc_BufferError, "a primitive set without an element list has no view");
    void *data = const_cast<GLvoid *>(e->getDataPointer());
    Py_ssize_t n = e->getNumIndices();
    switch (e->getDataType()) {
        case GL_UNSIGNED_BYTE: return {view_of(static_cast<GLubyte *>(data), {n}, p)};
        case GL_UNSIGNED_SHORT: return {view_of(static_cast<GLushort *>(data), {n}, p)};
        default: return {view_of(static_cast<GLuint *>(data), {n}, p)};
    }
}

void add_primitive_set(Table &t, Constants &c) {
    add(t, {
        KP::fn<"isSameKindAs", &P::isSameKindAs, "osg::Object const *">(),
        KP::fn<"libraryName", &P::libraryName>(),
        KP::fn<"className", &P::className>(),
        KP::fn<"getType", &P::getType>(),
        KP::pair<"asPrimitiveSet", pick<P *(P::*)()>(&P::asPrimitiveSet), pick<const P *(P::*)() const>(&P::asPrimitiveSet)>(),
        KP::fn<"getTotalDataSize", &P::getTotalDataSize>(),
        KP::fn<"supportsBufferObject", &P::supportsBufferObject>(),
        KP::fn<"setNumInstances", &P::setNumInstances, "int">(),
        KP::fn<"getNumInstances", &P::getNumInstances>(),
        KP::fn<"setMode", &P::setMode, mode>(),
        KP::fn<"getMode", returns_handle<draw::glenum, &P::getMode>>(),
        KP::fn<"index", checked_index<P>, uint>(),
        KP::fn<"getNumIndices", &P::getNumIndices>(),
        KP::fn<"offsetIndices", &P::offsetIndices, "int">(),
        KP::fn<"getNumPrimitives", &P::getNumPrimitives>(),
        KP::fn<"computeRange", &P::computeRange>(),
        // BufferData's, not bound on its own.
        KP::fn<"dirty", [](P *self) { self->dirty(); }>(),
        KP::fn<"setModifiedCount", [](P *self, unsigned int n) { self->setModifiedCount(n); }, uint>(),
        KP::fn<"getModifiedCount", [](const P *self) { return self->getModifiedCount(); }>(),
        KP::fn<"__buffer__", elements_view, "int">(),
        KP::register_hook(),
    });
    c.insert(c.end(), {
        {"PrimitiveSet_PrimitiveType", P::PrimitiveType},
        {"PrimitiveSet_DrawArraysPrimitiveType", P::DrawArraysPrimitiveType},
        {"PrimitiveSet_DrawArrayLengthsPrimitiveType", P::DrawArrayLengthsPrimitiveType},
        {"PrimitiveSet_DrawElementsUBytePrimitiveType", P::DrawElementsUBytePrimitiveType},
        {"PrimitiveSet_DrawElementsUShortPrimitiveType", P::DrawElementsUShortPrimitiveType},
        {"PrimitiveSet_DrawElementsUIntPrimitiveType", P::DrawElementsUIntPrimitiveType},
        {"PrimitiveSet_MultiDrawArraysPrimitiveType", P::MultiDrawArraysPrimitiveType},
        {"PrimitiveSet_DrawArraysIndirectPrimitiveType", P::DrawArraysIndirectPrimitiveType},
        {"PrimitiveSet_DrawElementsUByteIndirectPrimitiveType", P::DrawElementsUByteIndirectPrimitiveType},
        {"PrimitiveSet_DrawElementsUShortIndirectPrimitiveType", P::DrawElementsUShortIndirectPrimitiveType},
        {"PrimitiveSet_DrawElementsUIntIndirectPrimitiveType", P::DrawElementsUIntIndirectPrimitiveType},
        {"PrimitiveSet_MultiDrawArraysIndirectPrimitiveType", P::MultiDrawArraysIndirectPrimitiveType},
        {"PrimitiveSet_MultiDrawElementsUByteIndirectPrimitiveType", P::MultiDrawElementsUByteIndirectPrimitiveType},
        {"PrimitiveSet_MultiDrawElementsUShortIndirectPrimitiveType", P::MultiDrawElementsUShortIndirectPrimitiveType},
        {"PrimitiveSet_MultiDrawElementsUIntIndirectPrimitiveType", P::MultiDrawElementsUIntIndirectPrimitiveType},
        {"PrimitiveSet_POINTS", P::POINTS},
        {"PrimitiveSet_LINES", P::LINES},
        {"PrimitiveSet_LINE_STRIP", P::LINE_STRIP},
        {"PrimitiveSet_LINE_LOOP", P::LINE_LOOP},
        {"PrimitiveSet_TRIANGLES", P::TRIANGLES},
        {"PrimitiveSet_TRIANGLE_STRIP", P::TRIANGLE_STRIP},
        {"PrimitiveSet_TRIANGLE_FAN", P::TRIANGLE_FAN},
        {"PrimitiveSet_QUADS", P::QUADS},
        {"PrimitiveSet_QUAD_STRIP", P::QUAD_STRIP},
        {"PrimitiveSet_POLYGON", P::POLYGON},
        {"PrimitiveSet_LINES_ADJACENCY", P::LINES_ADJACENCY},
        {"PrimitiveSet_LINE_STRIP_ADJACENCY", P::LINE_STRIP_ADJACENCY},
        {"PrimitiveSet_TRIANGLES_ADJACENCY", P::TRIANGLES_ADJACENCY},
        {"PrimitiveSet_TRIANGLE_STRIP_ADJACENCY", P::TRIANGLE_STRIP_ADJACENCY},
        {"PrimitiveSet_PATCHES", P::PATCHES},
    });
}

using D = osg::DrawArrays;
using KD = Class<D, "osg::DrawArrays", "DrawArrays">;

void add_draw_arrays(Table &t) {
    add(t, {
        KD::ctor<TakeRef::Count, KD::with<>::c<>, KD::with<GLenum>::c<mode>, KD::with<GLenum, GLint, GLsizei>::c<mode, "GLint", "GLsizei">,
                 KD::with<GLenum, GLint, GLsizei, int>::c<mode, "GLint", "GLsizei", "int">,
                 KD::with<const D &, const osg::CopyOp &>::c<"osg::DrawArrays const &", "osg::CopyOp const &">,
                 KD::with<const D &>::c<"osg::DrawArrays const &">>(),
        KD::fn<"cloneType", &D::cloneType>(),
        KD::fn<"clone", &D::clone, "osg::CopyOp const &">(),
        KD::fn<"isSameKindAs", &D::isSameKindAs, "osg::Object const *">(),
        KD::fn<"libraryName", &D::libraryName>(),
        KD::fn<"className", &D::className>(),
        KD::fn<"set", &D::set, mode, "GLint", "GLsizei">(),
        KD::fn<"setFirst", &D::setFirst, "GLint">(),
        KD::fn<"getFirst", &D::getFirst>(),
        KD::fn<"setCount", &D::setCount, "GLsizei">(),
        KD::fn<"getCount", &D::getCount>(),
        KD::fn<"getNumIndices", &D::getNumIndices>(),
        KD::fn<"index", &D::index, uint>(),
        KD::fn<"offsetIndices", &D::offsetIndices, "int">(),
        KD::register_hook(),
        KD::init_hook(),
    });
}

using E = osg::DrawElementsUInt;
using KE = Class<E, "osg::DrawElementsUInt", "DrawElementsUInt">;
using N = E::size_type;
constexpr Text size = "osg::DrawElementsUInt::size_type";
constexpr Text vref = "osg::DrawElementsUInt::value_type const &";
constexpr Text indices = "std::vector< GLuint > const &";

Checked<GLuint> element(const E *e, N i) {
    if (i >= e->size()) return raise<GLuint>(PyExc_IndexError, index_out_of_range);
    return {(*e)[i]};
}

void add_draw_elements(Table &t) {
    add(t, {
        KE::ctor<TakeRef::Count, KE::with<>::c<>, KE::with<GLenum>::c<mode>, KE::with<GLenum, unsigned int>::c<mode, uint>,
                 ctor_by<KE, [](GLenum m, Values<GLuint> v) { return new E(m, (unsigned int)v.size, v.data); }, mode, indices>,
                 ctor_by<KE, [](GLenum m, Values<GLuint> v, int n) { return new E(m, (unsigned int)v.size, v.data, n); }, mode,
                         indices, "int">,
                 KE::with<const E &, const osg::CopyOp &>::c<"osg::DrawElementsUInt const &", "osg::CopyOp const &">,
                 KE::with<const E &>::c<"osg::DrawElementsUInt const &">>(),
        KE::fn<"cloneType", &E::cloneType>(),
        KE::fn<"clone", &E::clone, "osg::CopyOp const &">(),
        KE::fn<"isSameKindAs", &E::isSameKindAs, "osg::Object const *">(),
        KE::fn<"libraryName", &E::libraryName>(),
        KE::fn<"className", &E::className>(),
        KE::fn<"getTotalDataSize", &E::getTotalDataSize>(),
        KE::fn<"supportsBufferObject", &E::supportsBufferObject>(),
        KE::fn<"getNumIndices", &E::getNumIndices>(),
        KE::fn<"index", checked_index<E>, uint>(),
        KE::fn<"offsetIndices", &E::offsetIndices, "int">(),
        KE::fn<"getDataType", returns_handle<draw::glenum, &E::getDataType>>(),
        KE::fn<"resizeElements", [](E *e, unsigned int n) { return unless_exported(e, [&] { e->resizeElements(n); }); }, uint>(),
        KE::fn<"reserveElements", [](E *e, unsigned int n) { return unless_exported(e, [&] { e->reserveElements(n); }); },
               uint>(),
        KE::fn<"setElement", [](E *e, unsigned int i, unsigned int v) -> Checked<void> {
            if (i >= e->size()) return raise<void>(PyExc_IndexError, index_out_of_range);
            e->setElement(i, v);
            return {};
        }, uint, uint>(),
        KE::fn<"getElement", [](E *e, unsigned int i) -> Checked<unsigned int> {
            if (i >= e->size()) return raise<unsigned int>(PyExc_IndexError, index_out_of_range);
            return {e->getElement(i)};
        }, uint>(),
        KE::fn<"addElement", [](E *e, unsigned int v) { return unless_exported(e, [&] { e->addElement(v); }); }, uint>(),
        // The vector it is.
        KE::fn<"size", [](const E *e) { return e->size(); }>(),
        KE::fn<"empty", [](const E *e) { return e->empty(); }>(),
        KE::fn<"capacity", [](const E *e) { return e->capacity(); }>(),
        KE::fn<"clear", [](E *e) { return unless_exported(e, [&] { e->clear(); }); }>(),
        KE::overload<"resize", KE::m<"resize", [](E *e, N n, GLuint v) { return unless_exported(e, [&] { e->resize(n, v); }); },
                                     size, vref>,
                     KE::m<"resize", [](E *e, N n) { return unless_exported(e, [&] { e->resize(n); }); }, size>>(),
        KE::fn<"reserve", [](E *e, N n) { return unless_exported(e, [&] { e->reserve(n); }); }, size>(),
        KE::fn<"push_back", [](E *e, GLuint v) { return unless_exported(e, [&] { e->push_back(v); }); }, vref>(),
        KE::fn<"pop_back", [](E *e) -> Checked<void> {
            if (e->empty()) return raise<void>(PyExc_IndexError, "pop from an empty array");
            return unless_exported(e, [&] { e->pop_back(); });
        }>(),
        KE::fn<"assign", [](E *e, Values<GLuint> v) { return unless_exported(e, [&] { e->assign(v.begin(), v.end()); }); },
               indices>(),
        KE::fn<"__getitem__", element, size>(),
        KE::fn<"__setitem__", [](E *e, N i, GLuint v) -> Checked<void> {
            if (i >= e->size()) return raise<void>(PyExc_IndexError, index_out_of_range);
            (*e)[i] = v;
            return {};
        }, size, vref>(),
        // (N,) uint32, the list's own memory.
        KE::fn<"__buffer__", [](E *e, int) { return view_of(e->empty() ? nullptr : &e->front(), {(Py_ssize_t)e->size()}, e); },
               "int">(),
        KE::register_hook(),
        KE::init_hook(),
    });
}

}  // namespace

void add_primitive_rows(Table &t, Constants &c) {
    add_primitive_set(t, c);
    add_draw_arrays(t);
    add_draw_elements(t);
}
