// osg::Drawable and osg::Geometry: a drawable made of arrays and primitive sets. A drawable is
// a node (OSG 3.6), so the node members it inherits (state set, parents, dirtyBound) are _osg's
// Node_* functions, reached through the cast graph once this module has joined the ring.
#include "draw/bind.h"
#include "wrap/buffers.h"

using namespace wrap;

namespace {

using Dr = osg::Drawable;
using KDr = Class<Dr, "osg::Drawable", "Drawable">;

void add_drawable(Table &t) {
    add(t, {
        KDr::fn<"cloneType", &Dr::cloneType>(),
        KDr::fn<"clone", &Dr::clone, "osg::CopyOp const &">(),
        KDr::fn<"isSameKindAs", &Dr::isSameKindAs, "osg::Object const *">(),
        KDr::fn<"className", &Dr::className>(),
        KDr::fn<"libraryName", &Dr::libraryName>(),
        KDr::fn<"accept", pick<void (Dr::*)(osg::NodeVisitor &)>(&Dr::accept), "osg::NodeVisitor &">(),
        KDr::pair<"asDrawable", pick<Dr *(Dr::*)()>(&Dr::asDrawable), pick<const Dr *(Dr::*)() const>(&Dr::asDrawable)>(),
        KDr::fn<"computeDataVariance", &Dr::computeDataVariance>(),
        KDr::fn<"setInitialBound", &Dr::setInitialBound, "osg::BoundingBox const &">(),
        KDr::fn<"getInitialBound", &Dr::getInitialBound>(),
        KDr::fn<"getBound", &Dr::getBound>(),
        KDr::fn<"getBoundingBox", &Dr::getBoundingBox>(),
        KDr::fn<"computeBound", &Dr::computeBound>(),
        KDr::fn<"computeBoundingBox", &Dr::computeBoundingBox>(),
        KDr::fn<"setShape", pick<void (Dr::*)(osg::Shape *)>(&Dr::setShape), "osg::Shape *">(),
        KDr::pair<"getShape", pick<osg::Shape *(Dr::*)()>(&Dr::getShape), pick<const osg::Shape *(Dr::*)() const>(&Dr::getShape)>(),
        KDr::fn<"setSupportsDisplayList", &Dr::setSupportsDisplayList, "bool">(),
        KDr::fn<"getSupportsDisplayList", &Dr::getSupportsDisplayList>(),
        KDr::fn<"setUseDisplayList", &Dr::setUseDisplayList, "bool">(),
        KDr::fn<"getUseDisplayList", &Dr::getUseDisplayList>(),
        KDr::fn<"setUseVertexBufferObjects", &Dr::setUseVertexBufferObjects, "bool">(),
        KDr::fn<"getUseVertexBufferObjects", &Dr::getUseVertexBufferObjects>(),
        KDr::fn<"setUseVertexArrayObject", &Dr::setUseVertexArrayObject, "bool">(),
        KDr::fn<"getUseVertexArrayObject", &Dr::getUseVertexArrayObject>(),
        KDr::fn<"dirtyDisplayList", &Dr::dirtyDisplayList>(),
        KDr::fn<"dirtyGLObjects", &Dr::dirtyGLObjects>(),
        KDr::fn<"getGLObjectSizeHint", &Dr::getGLObjectSizeHint>(),
        KDr::fn<"setThreadSafeRefUnref", &Dr::setThreadSafeRefUnref, "bool">(),
        KDr::fn<"resizeGLObjectBuffers", &Dr::resizeGLObjectBuffers, "unsigned int">(),
        KDr::release_gl_objects(),
        KDr::register_hook(),
    });
}

using G = osg::Geometry;
using KG = Class<G, "osg::Geometry", "Geometry">;
using P = osg::PrimitiveSet;
using A = osg::Array;
constexpr Text array = "osg::Array *";
constexpr Text binding = "osg::Array::Binding";
constexpr Text uint = "unsigned int";

// setXArray(array, binding) and its short form, and the getXArray pair.
template <Text Set, Text Get, void (G::*Bound)(A *, A::Binding), void (G::*Short)(A *), A *(G::*NonConst)(),
          const A *(G::*Const)() const>
void attribute(Table &t) {
    add(t, {
        KG::overload<Set, KG::m<Set, Bound, array, binding>, KG::m<Set, Short, array>>(),
        KG::pair<Get, NonConst, Const>(),
    });
}

// The primitive set at pos, where the list would be read past its end.
template <class R, class Self>
Checked<R> primitive_set(Self g, unsigned int pos) {
    if (pos >= g->getNumPrimitiveSets()) return raise<R>(PyExc_IndexError, index_out_of_range);
    return {g->getPrimitiveSet(pos)};
}

void add_geometry(Table &t) {
    add(t, {
        KG::ctor<TakeRef::Count, KG::with<>::c<>,
                 KG::with<const G &, const osg::CopyOp &>::c<"osg::Geometry const &", "osg::CopyOp const &">,
                 KG::with<const G &>::c<"osg::Geometry const &">>(),
        KG::fn<"cloneType", &G::cloneType>(),
        KG::fn<"clone", &G::clone, "osg::CopyOp const &">(),
        KG::fn<"isSameKindAs", &G::isSameKindAs, "osg::Object const *">(),
        KG::fn<"className", &G::className>(),
        KG::fn<"libraryName", &G::libraryName>(),
        KG::fn<"accept", pick<void (G::*)(osg::NodeVisitor &)>(&G::accept), "osg::NodeVisitor &">(),
        KG::pair<"asGeometry", pick<G *(G::*)()>(&G::asGeometry), pick<const G *(G::*)() const>(&G::asGeometry)>(),
        KG::fn<"empty", &G::empty>(),
        KG::fn<"setVertexArray", &G::setVertexArray, array>(),
        KG::pair<"getVertexArray", pick<A *(G::*)()>(&G::getVertexArray), pick<const A *(G::*)() const>(&G::getVertexArray)>(),
    });
    attribute<"setNormalArray", "getNormalArray", &G::setNormalArray, &G::setNormalArray, &G::getNormalArray,
              &G::getNormalArray>(t);
    attribute<"setColorArray", "getColorArray", &G::setColorArray, &G::setColorArray, &G::getColorArray, &G::getColorArray>(t);
    attribute<"setSecondaryColorArray", "getSecondaryColorArray", &G::setSecondaryColorArray, &G::setSecondaryColorArray,
              &G::getSecondaryColorArray, &G::getSecondaryColorArray>(t);
    attribute<"setFogCoordArray", "getFogCoordArray", &G::setFogCoordArray, &G::setFogCoordArray, &G::getFogCoordArray,
              &G::getFogCoordArray>(t);
    add(t, {
        KG::overload<"setTexCoordArray",
                     KG::m<"setTexCoordArray", pick<void (G::*)(unsigned int, A *, A::Binding)>(&G::setTexCoordArray), uint,
                           array, binding>,
                     KG::m<"setTexCoordArray", pick<void (G::*)(unsigned int, A *)>(&G::setTexCoordArray), uint, array>>(),
        KG::pair<"getTexCoordArray", pick<A *(G::*)(unsigned int)>(&G::getTexCoordArray),
                 pick<const A *(G::*)(unsigned int) const>(&G::getTexCoordArray), uint>(),
        KG::fn<"getNumTexCoordArrays", &G::getNumTexCoordArrays>(),
        KG::overload<"setVertexAttribArray",
                     KG::m<"setVertexAttribArray", pick<void (G::*)(unsigned int, A *, A::Binding)>(&G::setVertexAttribArray),
                           uint, array, binding>,
                     KG::m<"setVertexAttribArray", pick<void (G::*)(unsigned int, A *)>(&G::setVertexAttribArray), uint, array>>(),
        KG::pair<"getVertexAttribArray", pick<A *(G::*)(unsigned int)>(&G::getVertexAttribArray),
                 pick<const A *(G::*)(unsigned int) const>(&G::getVertexAttribArray), uint>(),
        KG::fn<"getNumVertexAttribArrays", &G::getNumVertexAttribArrays>(),
        // Primitive sets; the list itself crosses as an opaque handle, to copy between geometries.
        KG::fn<"setPrimitiveSetList", &G::setPrimitiveSetList, "osg::Geometry::PrimitiveSetList const &">(),
        KG::pair<"getPrimitiveSetList", pick<G::PrimitiveSetList &(G::*)()>(&G::getPrimitiveSetList),
                 pick<const G::PrimitiveSetList &(G::*)() const>(&G::getPrimitiveSetList)>(),
        KG::fn<"getNumPrimitiveSets", &G::getNumPrimitiveSets>(),
        KG::pair<"getPrimitiveSet", primitive_set<P *, G *>, primitive_set<const P *, const G *>, uint>(),
        KG::fn<"addPrimitiveSet", &G::addPrimitiveSet, "osg::PrimitiveSet *">(),
        KG::fn<"setPrimitiveSet", &G::setPrimitiveSet, uint, "osg::PrimitiveSet *">(),
        KG::fn<"insertPrimitiveSet", &G::insertPrimitiveSet, uint, "osg::PrimitiveSet *">(),
        KG::overload<"removePrimitiveSet", KG::m<"removePrimitiveSet", &G::removePrimitiveSet, uint, uint>,
                     KG::m<"removePrimitiveSet", [](G *g, unsigned int i) { return g->removePrimitiveSet(i); }, uint>>(),
        KG::fn<"getPrimitiveSetIndex", &G::getPrimitiveSetIndex, "osg::PrimitiveSet const *">(),
        KG::fn<"configureBufferObjects", &G::configureBufferObjects>(),
        KG::fn<"containsSharedArrays", &G::containsSharedArrays>(),
        KG::fn<"duplicateSharedArrays", &G::duplicateSharedArrays>(),
        KG::fn<"setUseVertexBufferObjects", &G::setUseVertexBufferObjects, "bool">(),
        KG::fn<"dirtyGLObjects", &G::dirtyGLObjects>(),
        KG::fn<"resizeGLObjectBuffers", &G::resizeGLObjectBuffers, uint>(),
        KG::release_gl_objects(),
        KG::fn<"getGLObjectSizeHint", &G::getGLObjectSizeHint>(),
        KG::fn<"containsDeprecatedData", &G::containsDeprecatedData>(),
        KG::fn<"checkForDeprecatedData", &G::checkForDeprecatedData>(),
        KG::fn<"fixDeprecatedData", &G::fixDeprecatedData>(),
        KG::register_hook(),
        KG::init_hook(),
    });
}

// osg::createTexturedQuadGeometry: a new geometry, owned by its proxy; the short forms take the
// header's defaults (s = t = 1).
using V = const osg::Vec3f &;
using Quad = osg::ref_ptr<G>;
constexpr Text quad = "osg::createTexturedQuadGeometry";
constexpr Text vec = "osg::Vec3 const &";

void add_quad(Table &t) {
    t.push_back(overload<"createTexturedQuadGeometry",
                         fc<quad, [](V c, V w, V h, float l, float b, float r, float tp) {
                             return Quad(osg::createTexturedQuadGeometry(c, w, h, l, b, r, tp));
                         }, vec, vec, vec, "float", "float", "float", "float">,
                         fc<quad, [](V c, V w, V h, float s, float tp) { return Quad(osg::createTexturedQuadGeometry(c, w, h, s, tp)); },
                            vec, vec, vec, "float", "float">,
                         fc<quad, [](V c, V w, V h, float s) { return Quad(osg::createTexturedQuadGeometry(c, w, h, s)); }, vec,
                            vec, vec, "float">,
                         fc<quad, [](V c, V w, V h) { return Quad(osg::createTexturedQuadGeometry(c, w, h)); }, vec, vec, vec>>());
}

}  // namespace

void add_geometry_rows(Table &t, Constants &) {
    add_drawable(t);
    add_geometry(t);
    add_quad(t);
}
