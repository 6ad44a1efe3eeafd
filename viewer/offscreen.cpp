#include "viewer/offscreen.h"

namespace viewer {

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

osg::ref_ptr<osg::Image> frame_image(osgViewer::Viewer &viewer) {
    const osg::Camera::BufferAttachmentMap &attached = viewer.getCamera()->getBufferAttachmentMap();
    auto color = attached.find(osg::Camera::COLOR_BUFFER);
    if (color == attached.end() || !color->second._image) return nullptr;
    viewer.frame();
    return new osg::Image(*color->second._image, osg::CopyOp::DEEP_COPY_ALL);
}

}  // namespace viewer
