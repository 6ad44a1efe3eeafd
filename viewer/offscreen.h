// Offscreen pictures with OSG's own machinery: a pbuffer graphics context, a viewer whose camera
// draws into it, and the image OSG reads each frame back into. Shared by _osgViewer's rows and
// bench/frameloop.cpp, so that the benchmark's floor renders exactly as the package does.
#pragma once
#include <osg/Image>
#include <osgViewer/Viewer>

#include <string>

namespace viewer {

// A single-threaded viewer drawing width x height pixels into a pbuffer on the X display named
// `display` (empty: $DISPLAY); its camera keeps OSG's field of view with the picture's aspect,
// and an RGBA image attached to its color buffer receives every frame. Null when OSG cannot
// create the graphics context.
osg::ref_ptr<osgViewer::Viewer> offscreen_viewer(int width, int height, const std::string &display);

// The viewer's next frame as a new image: frame(), then a copy of what its camera read back
// (bottom row first, as OSG's images and image writers have it). Null when the camera has no
// image attached to its color buffer.
osg::ref_ptr<osg::Image> frame_image(osgViewer::Viewer &viewer);

}  // namespace viewer
