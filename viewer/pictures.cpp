// Offscreen pictures with OSG's own machinery, as two rows: a viewer whose camera draws into a
// pbuffer graphics context and reads every frame back into an image, and that viewer's next
// frame. osgViewer.render (viewer/package.py) finds the display, keeps a viewer per picture size
// and places the camera.
#include "viewer/bind.h"

using namespace wrap;

namespace {

// A single-threaded viewer drawing width x height pixels into a pbuffer on the X display named
// `display` (empty: $DISPLAY); its camera keeps OSG's field of view with the picture's aspect, and
// an RGBA image attached to its color buffer receives every frame. Null when OSG cannot create
// the graphics context.
osg::ref_ptr<osgViewer::Viewer> offscreen_viewer(int width, int height, const std::string &display) {
    osg::ref_ptr<osg::GraphicsContext::Traits> traits = new osg::GraphicsContext::Traits;
    if (display.empty()) {
        traits->readDISPLAY();
    } else {
        traits->setScreenIdentifier(display);
    }
    traits->setUndefinedScreenDetailsToDefaultScreen();
    traits->width = width;
    traits->height = height;
    traits->pbuffer = true;
    traits->doubleBuffer = false;
    traits->windowDecoration = false;
    // Mesa's software GLX on Xvfb fails every frame's put of a pbuffer with an alpha channel
    // (BadMatch); reading back GL_RGBA from one without gives alpha 255 anyway.
    traits->alpha = 0;
    osg::ref_ptr<osg::GraphicsContext> gc = osg::GraphicsContext::createGraphicsContext(traits.get());
    if (!gc || !gc->valid()) return nullptr;

    osg::ref_ptr<osgViewer::Viewer> viewer = new osgViewer::Viewer;
    // One thread: frame() returns with the picture read back.
    viewer->setThreadingModel(osgViewer::ViewerBase::SingleThreaded);
    osg::Camera *camera = viewer->getCamera();
    camera->setGraphicsContext(gc.get());
    camera->setViewport(new osg::Viewport(0, 0, width, height));
    camera->setDrawBuffer(GL_FRONT);
    camera->setReadBuffer(GL_FRONT);
    // As osgViewer does for a window: the view's field of view, the picture's aspect.
    double fovy, aspect, near, far;
    camera->getProjectionMatrixAsPerspective(fovy, aspect, near, far);
    camera->setProjectionMatrixAsPerspective(fovy, double(width) / height, near, far);
    osg::ref_ptr<osg::Image> image = new osg::Image;
    image->allocateImage(width, height, 1, GL_RGBA, GL_UNSIGNED_BYTE);
    camera->attach(osg::Camera::COLOR_BUFFER, image.get());
    viewer->realize();
    if (!viewer->isRealized()) return nullptr;
    return viewer;
}

// The viewer's next frame as a new image: frame(), then a copy of what its camera read back
// (bottom row first, as OSG's images and image writers have it). Null when the camera has no
// image attached to its color buffer.
osg::ref_ptr<osg::Image> frame_image(osgViewer::Viewer &viewer) {
    const osg::Camera::BufferAttachmentMap &attached = viewer.getCamera()->getBufferAttachmentMap();
    auto color = attached.find(osg::Camera::COLOR_BUFFER);
    if (color == attached.end() || !color->second._image) return nullptr;
    viewer.frame();
    return new osg::Image(*color->second._image, osg::CopyOp::DEEP_COPY_ALL);
}

}  // namespace

void add_offscreen_rows(Table &t, Constants &) {
    add(t, {
        qualified_fn<"offscreenViewer", offscreen_viewer, "int", "int", "std::string const &">(),
        qualified_fn<"frameImage", frame_image, "osgViewer::Viewer &">(),
    });
}
