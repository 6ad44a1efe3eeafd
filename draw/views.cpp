// The buffer protocol for _osg's vectors and matrices and for osg::Image: `__buffer__` rows
// that the package makes each class's __buffer__ (PEP 688), so numpy.asarray(x) is a writable
// view of x's own memory. The arrays' and element lists' views are in their class tables.
#include "draw/bind.h"
#include "wrap/buffers.h"

using namespace wrap;

namespace {

// (k,) of the vector's value_type.
template <class V, Text Spelling, Text Prefix>
Row vector_view() {
    return Class<V, Spelling, Prefix>::template fn<"__buffer__", [](V *v, int) {
        return view_of(v->ptr(), {(Py_ssize_t)V::num_components});
    }, "int">();
}

// (4, 4) in OSG's order: row r is m(r, 0..3), which is how the matrix lies in memory.
template <class M, Text Spelling, Text Prefix>
Row matrix_view() {
    return Class<M, Spelling, Prefix>::template fn<"__buffer__", [](M *m, int) { return view_of(m->ptr(), {4, 4}); }, "int">();
}

using I = osg::Image;

template <class S>
Checked<View> pixels(I *image, unsigned int components) {
    Py_ssize_t c = components, pixel = image->getPixelSizeInBits() / 8;
    if ((Py_ssize_t)sizeof(S) * c != pixel || image->getPixelSizeInBits() % 8)
        return raise<View>(PyExc_BufferError, "the image's pixels are not whole components of its data type");
    S *data = reinterpret_cast<S *>(image->data());
    // The steps OSG's own data(column, row, image) takes.
    Py_ssize_t row = image->getRowStepInBytes(), slice = image->getImageSizeInBytes();
    if (image->r() > 1)
        return {view_of(data, {image->r(), image->t(), image->s(), c}, image, {slice, row, pixel, (Py_ssize_t)sizeof(S)})};
    return {view_of(data, {image->t(), image->s(), c}, image, {row, pixel, (Py_ssize_t)sizeof(S)})};
}

// (t, s, components), or (r, t, s, components) for a 3D image, of the image's data type.
Checked<View> image_view(I *image, int) {
    if (!image->data()) return raise<View>(PyExc_BufferError, "the image has no data");
    if (image->isCompressed()) return raise<View>(PyExc_BufferError, "a compressed image has no pixel view");
    unsigned int c = I::computeNumComponents(image->getPixelFormat());
    switch (image->getDataType()) {
        case GL_UNSIGNED_BYTE: return pixels<GLubyte>(image, c);
        case GL_BYTE: return pixels<GLbyte>(image, c);
        case GL_UNSIGNED_SHORT: return pixels<GLushort>(image, c);
        case GL_SHORT: return pixels<GLshort>(image, c);
        case GL_UNSIGNED_INT: return pixels<GLuint>(image, c);
        case GL_INT: return pixels<GLint>(image, c);
        case GL_FLOAT: return pixels<GLfloat>(image, c);
        case GL_DOUBLE: return pixels<GLdouble>(image, c);
        default: return raise<View>(PyExc_BufferError, "the image's data type has no buffer format");
    }
}

}  // namespace

void add_view_rows(Table &t, Constants &) {
    add(t, {
        vector_view<osg::Vec2f, "osg::Vec2f", "Vec2f">(),
        vector_view<osg::Vec3f, "osg::Vec3f", "Vec3f">(),
        vector_view<osg::Vec4f, "osg::Vec4f", "Vec4f">(),
        vector_view<osg::Vec2d, "osg::Vec2d", "Vec2d">(),
        vector_view<osg::Vec3d, "osg::Vec3d", "Vec3d">(),
        vector_view<osg::Vec4d, "osg::Vec4d", "Vec4d">(),
        matrix_view<osg::Matrixd, "osg::Matrixd", "Matrixd">(),
        matrix_view<osg::Matrixf, "osg::Matrixf", "Matrixf">(),
        Class<I, "osg::Image", "Image">::fn<"__buffer__", image_view, "int">(),
    });
}
