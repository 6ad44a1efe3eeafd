// Offscreen pictures as two rows: a viewer that draws into an image, and its next frame. Both are
// compositions of OSG's own calls (viewer/offscreen.cpp); osgViewer.render (viewer/package.py)
// finds the display, keeps a viewer per picture size and places the camera.
#include "viewer/bind.h"
#include "viewer/offscreen.h"

using namespace wrap;

void add_offscreen_rows(Table &t, Constants &) {
    add(t, {
        qualified_fn<"offscreenViewer",
                     [](int width, int height, const std::string &display) {
                         return viewer::offscreen_viewer(width, height, display);
                     },
                     "int", "int", "std::string const &">(),
        qualified_fn<"frameImage", [](osgViewer::Viewer &v) { return viewer::frame_image(v); }, "osgViewer::Viewer &">(),
    });
}
