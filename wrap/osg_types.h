// _osg's descriptors by C++ type: a type listed here crosses as a pointer proxy of _osg's
// type table. Only _osg's families include this; a sibling module maps its own types
// (wrap/types.h).
#pragma once
#include "runtime/osg_headers.h"
#include "runtime/type_table.h"
#include "wrap/descriptor.h"

#include <string>
#include <vector>

namespace wrap {

// clang-format off
template <> inline constexpr int descriptor_of<osg::Referenced> = ty::p_osg__Referenced;
template <> inline constexpr int descriptor_of<osg::Object> = ty::p_osg__Object;
template <> inline constexpr int descriptor_of<osg::CopyOp> = ty::p_osg__CopyOp;
template <> inline constexpr int descriptor_of<osg::DummyObject> = ty::p_osg__DummyObject;
template <> inline constexpr int descriptor_of<osg::NotifyHandler> = ty::p_osg__NotifyHandler;
template <> inline constexpr int descriptor_of<osg::StandardNotifyHandler> = ty::p_osg__StandardNotifyHandler;
template <> inline constexpr int descriptor_of<osg::Observer> = ty::p_osg__Observer;
template <> inline constexpr int descriptor_of<osg::ObserverSet> = ty::p_osg__ObserverSet;
template <> inline constexpr int descriptor_of<osg::DeleteHandler> = ty::p_osg__DeleteHandler;
template <> inline constexpr int descriptor_of<OpenThreads::Mutex> = ty::p_OpenThreads__Mutex;
template <> inline constexpr int descriptor_of<osg::Node> = ty::p_osg__Node;
template <> inline constexpr int descriptor_of<osg::NodeVisitor> = ty::p_osg__NodeVisitor;
template <> inline constexpr int descriptor_of<osg::StateSet> = ty::p_osg__StateSet;
template <> inline constexpr int descriptor_of<osg::StateAttribute> = ty::p_osg__StateAttribute;
template <> inline constexpr int descriptor_of<osg::Uniform> = ty::p_osg__Uniform;
template <> inline constexpr int descriptor_of<osg::Camera> = ty::p_osg__Camera;
template <> inline constexpr int descriptor_of<osg::Drawable> = ty::p_osg__Drawable;
template <> inline constexpr int descriptor_of<osg::Callback> = ty::p_osg__Callback;
template <> inline constexpr int descriptor_of<osg::CallbackObject> = ty::p_osg__CallbackObject;
template <> inline constexpr int descriptor_of<osg::UserDataContainer> = ty::p_osg__UserDataContainer;
template <> inline constexpr int descriptor_of<osg::ValueObject> = ty::p_osg__ValueObject;
template <> inline constexpr int descriptor_of<osg::Image> = ty::p_osg__Image;
template <> inline constexpr int descriptor_of<osg::State> = ty::p_osg__State;
template <> inline constexpr int descriptor_of<osg::Texture> = ty::p_osg__Texture;
template <> inline constexpr int descriptor_of<osg::Array> = ty::p_osg__Array;
template <> inline constexpr int descriptor_of<osg::PrimitiveSet> = ty::p_osg__PrimitiveSet;
template <> inline constexpr int descriptor_of<osg::Shape> = ty::p_osg__Shape;
template <> inline constexpr int descriptor_of<osg::StateAttributeCallback> = ty::p_osg__StateAttributeCallback;
template <> inline constexpr int descriptor_of<osg::UniformCallback> = ty::p_osg__UniformCallback;
template <> inline constexpr int descriptor_of<osg::Vec2f> = ty::p_osg__Vec2f;
template <> inline constexpr int descriptor_of<osg::Vec2d> = ty::p_osg__Vec2d;
template <> inline constexpr int descriptor_of<osg::Vec3f> = ty::p_osg__Vec3f;
template <> inline constexpr int descriptor_of<osg::Vec3d> = ty::p_osg__Vec3d;
template <> inline constexpr int descriptor_of<osg::Vec4f> = ty::p_osg__Vec4f;
template <> inline constexpr int descriptor_of<osg::Vec4d> = ty::p_osg__Vec4d;
template <> inline constexpr int descriptor_of<osg::Quat> = ty::p_osg__Quat;
template <> inline constexpr int descriptor_of<osg::Matrixd> = ty::p_osg__Matrixd;
template <> inline constexpr int descriptor_of<osg::Matrixf> = ty::p_osg__Matrixf;
template <> inline constexpr int descriptor_of<osg::RefMatrixd> = ty::p_osg__RefMatrixd;
template <> inline constexpr int descriptor_of<osg::RefMatrixf> = ty::p_osg__RefMatrixf;
template <> inline constexpr int descriptor_of<osg::Plane> = ty::p_osg__Plane;
template <> inline constexpr int descriptor_of<std::vector<osg::Vec3f>> = ty::p_std__vectorT_osg__Vec3f_t;
template <> inline constexpr int descriptor_of<std::vector<osg::Vec3d>> = ty::p_std__vectorT_osg__Vec3d_t;
template <> inline constexpr int descriptor_of<std::string> = ty::p_std__string;
template <> inline constexpr int descriptor_of<std::ostream> = ty::p_std__ostream;
// Render state: attributes, texture, and the state set's opaque containers and callbacks.
template <> inline constexpr int descriptor_of<osg::Fog> = ty::p_osg__Fog;
template <> inline constexpr int descriptor_of<osg::ColorMask> = ty::p_osg__ColorMask;
template <> inline constexpr int descriptor_of<osg::Viewport> = ty::p_osg__Viewport;
template <> inline constexpr int descriptor_of<osg::Texture2D> = ty::p_osg__Texture2D;
template <> inline constexpr int descriptor_of<osg::Texture2D::SubloadCallback> = ty::p_osg__Texture2D__SubloadCallback;
template <> inline constexpr int descriptor_of<osg::StateAttribute::ModeUsage> = ty::p_osg__StateAttribute__ModeUsage;
template <> inline constexpr int descriptor_of<osg::StateAttribute::TypeMemberPair> = ty::p_std__pairT_osg__StateAttribute__Type_unsigned_int_t;
template <> inline constexpr int descriptor_of<osg::StateAttribute::ParentList> = ty::p_std__vectorT_osg__StateSet_p_t;
template <> inline constexpr int descriptor_of<osg::StateSet::Callback> = ty::p_osg__StateSet__Callback;
template <> inline constexpr int descriptor_of<osg::StateSet::ModeList> = ty::p_std__mapT_GLenum_unsigned_int_t;
template <> inline constexpr int descriptor_of<osg::StateSet::AttributeList> = ty::p_std__mapT_std__pairT_osg__StateAttribute__Type_unsigned_int_t_std__pairT_ref_ptrT_osg__StateAttribute_t_unsigned_int_t_t;
template <> inline constexpr int descriptor_of<osg::StateSet::TextureModeList> = ty::p_std__vectorT_std__mapT_GLenum_unsigned_int_t_t;
template <> inline constexpr int descriptor_of<osg::StateSet::TextureAttributeList> = ty::p_std__vectorT_std__mapT_std__pairT_osg__StateAttribute__Type_unsigned_int_t_std__pairT_ref_ptrT_osg__StateAttribute_t_unsigned_int_t_t_t;
template <> inline constexpr int descriptor_of<osg::StateSet::UniformList> = ty::p_std__mapT_std__string_std__pairT_ref_ptrT_osg__Uniform_t_unsigned_int_t_t;
template <> inline constexpr int descriptor_of<osg::StateSet::DefineList> = ty::p_std__mapT_std__string_std__pairT_std__string_unsigned_int_t_t;
template <> inline constexpr int descriptor_of<osg::StateSet::RefAttributePair> = ty::p_std__pairT_ref_ptrT_osg__StateAttribute_t_unsigned_int_t;
template <> inline constexpr int descriptor_of<osg::StateSet::RefUniformPair> = ty::p_std__pairT_ref_ptrT_osg__Uniform_t_unsigned_int_t;
template <> inline constexpr int descriptor_of<osg::StateSet::DefinePair> = ty::p_std__pairT_std__string_unsigned_int_t;
// Also osg::NodePath: the state set's parents and a node path are the same vector type.
template <> inline constexpr int descriptor_of<osg::StateSet::ParentList> = ty::p_std__vectorT_osg__Node_p_t;
// Element pointers and out-parameters.
template <> inline constexpr int descriptor_of<double> = ty::p_double;
template <> inline constexpr int descriptor_of<float> = ty::p_float;
template <> inline constexpr int descriptor_of<unsigned int> = ty::p_unsigned_int;
template <> inline constexpr int descriptor_of<char> = ty::p_char;
// Scene graph.
template <> inline constexpr int descriptor_of<osg::Group> = ty::p_osg__Group;
template <> inline constexpr int descriptor_of<osg::Geode> = ty::p_osg__Geode;
template <> inline constexpr int descriptor_of<osg::Switch> = ty::p_osg__Switch;
template <> inline constexpr int descriptor_of<osg::Transform> = ty::p_osg__Transform;
template <> inline constexpr int descriptor_of<osg::MatrixTransform> = ty::p_osg__MatrixTransform;
template <> inline constexpr int descriptor_of<osg::PositionAttitudeTransform> = ty::p_osg__PositionAttitudeTransform;
template <> inline constexpr int descriptor_of<osg::AutoTransform> = ty::p_osg__AutoTransform;
template <> inline constexpr int descriptor_of<osg::ClipNode> = ty::p_osg__ClipNode;
template <> inline constexpr int descriptor_of<osg::ClipPlane> = ty::p_osg__ClipPlane;
template <> inline constexpr int descriptor_of<osg::Geometry> = ty::p_osg__Geometry;
template <> inline constexpr int descriptor_of<osg::RenderInfo> = ty::p_osg__RenderInfo;
template <> inline constexpr int descriptor_of<osgTerrain::Terrain> = ty::p_osgTerrain__Terrain;
template <> inline constexpr int descriptor_of<osgUtil::SmoothingVisitor> = ty::p_osgUtil__SmoothingVisitor;
template <> inline constexpr int descriptor_of<osg::Node::ComputeBoundingSphereCallback> = ty::p_osg__Node__ComputeBoundingSphereCallback;
// The library's bounding volumes keep these descriptors whatever precision OSG was built with.
template <> inline constexpr int descriptor_of<osg::BoundingSphere> = ty::p_osg__BoundingSphereImplT_osg__Vec3d_t;
template <> inline constexpr int descriptor_of<osg::BoundingBox> = ty::p_osg__BoundingBoxImplT_osg__Vec3d_t;
template <> inline constexpr int descriptor_of<std::vector<osg::Group *>> = ty::p_std__vectorT_osg__Group_p_t;
template <> inline constexpr int descriptor_of<std::vector<std::vector<osg::Node *>>> = ty::p_std__vectorT_std__vectorT_osg__Node_p_t_t;
template <> inline constexpr int descriptor_of<std::vector<osg::Matrixd>> = ty::p_std__vectorT_osg__Matrixd_t;
template <> inline constexpr int descriptor_of<std::vector<std::string>> = ty::p_std__vectorT_std__string_t;
template <> inline constexpr int descriptor_of<std::vector<bool>> = ty::p_std__vectorT_bool_t;
template <> inline constexpr int descriptor_of<std::vector<osg::ref_ptr<osg::ClipPlane>>> = ty::p_std__vectorT_ref_ptrT_osg__ClipPlane_t_t;
// Camera: its render targets, callbacks and the objects it refers to.
template <> inline constexpr int descriptor_of<osg::View> = ty::p_osg__View;
template <> inline constexpr int descriptor_of<osg::Stats> = ty::p_osg__Stats;
template <> inline constexpr int descriptor_of<osg::DisplaySettings> = ty::p_osg__DisplaySettings;
template <> inline constexpr int descriptor_of<osg::GraphicsOperation> = ty::p_osg__GraphicsOperation;
template <> inline constexpr int descriptor_of<osg::Camera::DrawCallback> = ty::p_osg__Camera__DrawCallback;
template <> inline constexpr int descriptor_of<osg::Camera::BufferAttachmentMap> = ty::p_std__mapT_osg__Camera__BufferComponent_osg__Camera__Attachment_t;
template <> inline constexpr int descriptor_of<osg::CameraRenderOrderSortOp> = ty::p_osg__CameraRenderOrderSortOp;
template <> inline constexpr int descriptor_of<OpenThreads::Affinity> = ty::p_OpenThreads__Affinity;
// clang-format on

}  // namespace wrap
