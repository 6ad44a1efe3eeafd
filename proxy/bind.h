// _osgproxy's type table: every class of _osg with a C++ class behind it, so that, once the
// module joins the ring, the shared records hold OSG's real hierarchy (wrap/types.h derives it
// from the headers). _osg's own cast graph is deliberately narrower: without this module a
// camera is no node there.
#pragma once
#include "runtime/osg_headers.h"
#include "wrap/types.h"

#include <osg/Callback>
#include <osg/DeleteHandler>
#include <osg/DisplaySettings>
#include <osg/GraphicsThread>
#include <osg/Image>
#include <osg/Observer>
#include <osg/RenderInfo>
#include <osg/Shape>
#include <osg/State>
#include <osg/Stats>
#include <osg/Uniform>
#include <osg/UserDataContainer>
#include <osg/ValueObject>
#include <osg/View>

namespace proxy {

using wrap::Type;
using Types = wrap::TypeTable<
    Type<osg::Referenced, "osg::Referenced">, Type<osg::Object, "osg::Object">, Type<osg::CopyOp, "osg::CopyOp">,
    Type<osg::DummyObject, "osg::DummyObject">, Type<osg::NotifyHandler, "osg::NotifyHandler">,
    Type<osg::StandardNotifyHandler, "osg::StandardNotifyHandler">, Type<osg::Matrixd, "osg::Matrixd">,
    Type<osg::Matrixf, "osg::Matrixf">, Type<osg::RefMatrixd, "osg::RefMatrixd">, Type<osg::RefMatrixf, "osg::RefMatrixf">,
    Type<osg::Node, "osg::Node">, Type<osg::Group, "osg::Group">, Type<osg::Geode, "osg::Geode">,
    Type<osg::Switch, "osg::Switch">, Type<osg::Transform, "osg::Transform">,
    Type<osg::MatrixTransform, "osg::MatrixTransform">, Type<osg::PositionAttitudeTransform, "osg::PositionAttitudeTransform">,
    Type<osg::AutoTransform, "osg::AutoTransform">, Type<osg::ClipNode, "osg::ClipNode">, Type<osg::Camera, "osg::Camera">,
    Type<osg::Drawable, "osg::Drawable">, Type<osg::Geometry, "osg::Geometry">, Type<osg::StateSet, "osg::StateSet">,
    Type<osg::StateAttribute, "osg::StateAttribute">, Type<osg::Texture, "osg::Texture">,
    Type<osg::Texture2D, "osg::Texture2D">, Type<osg::ColorMask, "osg::ColorMask">, Type<osg::Viewport, "osg::Viewport">,
    Type<osg::ClipPlane, "osg::ClipPlane">, Type<osg::Fog, "osg::Fog">, Type<osg::Image, "osg::Image">,
    Type<osg::Array, "osg::Array">, Type<osg::PrimitiveSet, "osg::PrimitiveSet">, Type<osg::Shape, "osg::Shape">,
    Type<osg::Uniform, "osg::Uniform">, Type<osg::Callback, "osg::Callback">,
    Type<osg::CallbackObject, "osg::CallbackObject">, Type<osg::StateAttributeCallback, "osg::StateAttributeCallback">,
    Type<osg::UniformCallback, "osg::UniformCallback">, Type<osg::StateSet::Callback, "osg::StateSet::Callback">,
    Type<osg::Node::ComputeBoundingSphereCallback, "osg::Node::ComputeBoundingSphereCallback">,
    Type<osg::Camera::DrawCallback, "osg::Camera::DrawCallback">,
    Type<osg::Texture2D::SubloadCallback, "osg::Texture2D::SubloadCallback">,
    Type<osg::UserDataContainer, "osg::UserDataContainer">, Type<osg::ValueObject, "osg::ValueObject">,
    Type<osg::NodeVisitor, "osg::NodeVisitor">, Type<osgUtil::SmoothingVisitor, "osgUtil::SmoothingVisitor">,
    Type<osg::DisplaySettings, "osg::DisplaySettings">, Type<osg::View, "osg::View">, Type<osg::Stats, "osg::Stats">,
    Type<osg::GraphicsOperation, "osg::GraphicsOperation">, Type<osg::ObserverSet, "osg::ObserverSet">,
    Type<osg::State, "osg::State">>;

}  // namespace proxy

namespace wrap {
template <class T>
    requires(proxy::Types::has<T>)
inline constexpr int descriptor_of<T> = proxy::Types::index_of<T>;
}  // namespace wrap

#include "wrap/module.h"
