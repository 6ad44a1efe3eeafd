// What _osgViewer's families include: its type table and the engine over it. _osgViewer binds
// the viewer a script shows its scene with (osgViewer::Viewer and its bases), the camera
// manipulators that drive its view (osgGA's trackball and the classes above it), and offscreen
// pictures. The classes it shares with _osg (nodes, the camera, osg::View, images, vectors and
// matrices) become one record with _osg's when the module joins the ring; a viewer's camera is
// _osg's osg::Camera.
#pragma once
#include "viewer/headers.h"
#include "wrap/types.h"

#include <string>

namespace viewer {

using wrap::Type;
using Types = wrap::TypeTable<
    // Shared with _osg.
    Type<osg::Referenced, "osg::Referenced">, Type<osg::Object, "osg::Object">, Type<osg::CopyOp, "osg::CopyOp">,
    Type<osg::Callback, "osg::Callback">, Type<osg::Node, "osg::Node">, Type<osg::Camera, "osg::Camera">,
    Type<osg::View, "osg::View">, Type<osg::Light, "osg::Light">, Type<osg::Image, "osg::Image">,
    Type<osg::Vec3d, "osg::Vec3d">, Type<osg::Quat, "osg::Quat">, Type<osg::Matrixd, "osg::Matrixd">,
    Type<std::string, "std::string">,
    // Its own.
    Type<osgViewer::ViewerBase, "osgViewer::ViewerBase">, Type<osgViewer::View, "osgViewer::View">,
    Type<osgViewer::Viewer, "osgViewer::Viewer">, Type<osgGA::EventHandler, "osgGA::EventHandler">,
    Type<osgGA::GUIEventHandler, "osgGA::GUIEventHandler">, Type<osgGA::CameraManipulator, "osgGA::CameraManipulator">,
    Type<osgGA::StandardManipulator, "osgGA::StandardManipulator">,
    Type<osgGA::OrbitManipulator, "osgGA::OrbitManipulator">,
    Type<osgGA::TrackballManipulator, "osgGA::TrackballManipulator">>;

}  // namespace viewer

namespace wrap {
template <class T>
    requires(viewer::Types::has<T>)
inline constexpr int descriptor_of<T> = viewer::Types::index_of<T>;
}  // namespace wrap

#include "wrap/module.h"

// The families, in the order their rows appear in the method table; each adds its constants.
void add_viewer_rows(wrap::Table &t, wrap::Constants &c);
void add_manipulator_rows(wrap::Table &t, wrap::Constants &c);
void add_offscreen_rows(wrap::Table &t, wrap::Constants &c);
