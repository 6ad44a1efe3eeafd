// What _osgdraw's families include: its type table and the engine over it. _osgdraw binds
// what a scene draws: geometry with its arrays and primitive sets, shapes and shape drawables,
// materials, lights and images. The classes it shares with _osg (nodes, vectors, matrices, the
// state attribute) become one record with _osg's when the module joins the ring, and the
// hierarchy among the listed classes becomes their cast graph (wrap/types.h).
#pragma once
#include "draw/headers.h"
#include "wrap/types.h"

#include <string>

namespace draw {

using wrap::Type;
using Types = wrap::TypeTable<
    // Shared with _osg.
    Type<osg::Referenced, "osg::Referenced">, Type<osg::Object, "osg::Object">, Type<osg::CopyOp, "osg::CopyOp">,
    Type<osg::Node, "osg::Node">, Type<osg::Group, "osg::Group">, Type<osg::Drawable, "osg::Drawable">,
    Type<osg::Geometry, "osg::Geometry">, Type<osg::Array, "osg::Array">, Type<osg::PrimitiveSet, "osg::PrimitiveSet">,
    Type<osg::Shape, "osg::Shape">, Type<osg::Image, "osg::Image">, Type<osg::StateAttribute, "osg::StateAttribute">,
    Type<osg::StateSet, "osg::StateSet">, Type<osg::NodeVisitor, "osg::NodeVisitor">,
    Type<osg::Vec2f, "osg::Vec2f">, Type<osg::Vec3f, "osg::Vec3f">, Type<osg::Vec4f, "osg::Vec4f">,
    Type<osg::Vec2d, "osg::Vec2d">, Type<osg::Vec3d, "osg::Vec3d">, Type<osg::Vec4d, "osg::Vec4d">,
    Type<osg::Quat, "osg::Quat">, Type<osg::Matrixd, "osg::Matrixd">, Type<osg::Matrixf, "osg::Matrixf">,
    Type<osg::BoundingBox, "osg::BoundingBox", "_p_osg__BoundingBoxImplT_osg__Vec3d_t">,
    Type<std::string, "std::string">, wrap::Opaque<"_p_GLenum", "GLenum *">,
    // Its own.
    Type<osg::ShapeDrawable, "osg::ShapeDrawable">, Type<osg::Vec2Array, "osg::Vec2Array">,
    Type<osg::Vec3Array, "osg::Vec3Array">, Type<osg::Vec4Array, "osg::Vec4Array">,
    Type<osg::DrawArrays, "osg::DrawArrays">, Type<osg::DrawElementsUInt, "osg::DrawElementsUInt">,
    Type<osg::Box, "osg::Box">, Type<osg::Sphere, "osg::Sphere">, Type<osg::Capsule, "osg::Capsule">,
    Type<osg::Cylinder, "osg::Cylinder">, Type<osg::Cone, "osg::Cone">,
    Type<osg::TessellationHints, "osg::TessellationHints">, Type<osg::Material, "osg::Material">,
    Type<osg::Light, "osg::Light">, Type<osg::LightSource, "osg::LightSource">,
    Type<osg::BoundingSphere, "osg::BoundingSphere", "_p_osg__BoundingSphereImplT_osg__Vec3d_t">,
    Type<osg::State, "osg::State">,
    Type<osg::Geometry::PrimitiveSetList, "std::vector< osg::ref_ptr< osg::PrimitiveSet > >",
         "_p_std__vectorT_ref_ptrT_osg__PrimitiveSet_t_t">>;

inline constexpr int glenum = Types::named<"_p_GLenum">;

}  // namespace draw

namespace wrap {
template <class T>
    requires(draw::Types::has<T>)
inline constexpr int descriptor_of<T> = draw::Types::index_of<T>;
}  // namespace wrap

#include "wrap/module.h"

// The families, in the order their rows appear in the method table; each adds its constants.
void add_array_rows(wrap::Table &t, wrap::Constants &c);
void add_primitive_rows(wrap::Table &t, wrap::Constants &c);
void add_geometry_rows(wrap::Table &t, wrap::Constants &c);
void add_shape_rows(wrap::Table &t, wrap::Constants &c);
void add_lighting_rows(wrap::Table &t, wrap::Constants &c);
void add_image_rows(wrap::Table &t, wrap::Constants &c);
void add_view_rows(wrap::Table &t, wrap::Constants &c);
