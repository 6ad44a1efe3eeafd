// The floor for a Python-driven frame (bench/frames.py): examples/falling.py's scene, read back
// from the file the benchmark writes, drawn by the same offscreen viewer as osgViewer.render
// (viewer/offscreen.cpp), with its bodies moved by a C++ loop doing falling.py's integration.
//
//   frameloop SCENE WIDTH HEIGHT FRAMES EYE_X EYE_Y EYE_Z CENTER_X CENTER_Y CENTER_Z
//
// Prints the seconds the frames took. The X display is $DISPLAY.
#include "viewer/offscreen.h"

#include <osg/ComputeBoundsVisitor>
#include <osg/MatrixTransform>
#include <osgDB/ReadFile>

#include <chrono>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <vector>

namespace {

// falling.py's constants and rules, kept in step with it by hand.
constexpr double gravity = -9.81, restitution = 0.6, friction = 0.9, wall = 5.0, dt = 1.0 / 30;

struct Body {
    osg::MatrixTransform *transform;
    osg::Vec3d position, velocity;
    double rest, spin;
};

void step(std::vector<Body> &bodies, double t) {
    for (Body &b : bodies) {
        b.velocity.z() += gravity * dt;
        b.position += b.velocity * dt;
        if (b.position.z() < b.rest) {
            b.position.z() = 2 * b.rest - b.position.z();
            b.velocity.z() = -b.velocity.z() * restitution;
            b.velocity.x() *= friction;
            b.velocity.y() *= friction;
        }
        for (int axis = 0; axis < 2; ++axis)
            if (std::abs(b.position[axis]) > wall) {
                b.position[axis] = std::copysign(2 * wall, b.position[axis]) - b.position[axis];
                b.velocity[axis] = -b.velocity[axis];
            }
        b.transform->setMatrix(osg::Matrixd::rotate(b.spin * t, 0, 0, 1) * osg::Matrixd::translate(b.position));
    }
}

}  // namespace

int main(int argc, char **argv) {
    if (argc != 11) {
        std::fprintf(stderr, "usage: frameloop SCENE WIDTH HEIGHT FRAMES EYE(3) CENTER(3)\n");
        return 2;
    }
    osg::ref_ptr<osg::Node> scene = osgDB::readNodeFile(argv[1]);
    osg::Group *root = scene ? scene->asGroup() : nullptr;
    if (!root) {
        std::fprintf(stderr, "frameloop: no scene in %s\n", argv[1]);
        return 1;
    }
    // The bodies are the transforms of the group named "bodies", in order; their velocities
    // start as falling.py starts them.
    std::vector<Body> bodies;
    for (unsigned i = 0; i < root->getNumChildren(); ++i) {
        osg::Group *group = root->getChild(i)->asGroup();
        if (!group || group->getName() != "bodies") continue;
        for (unsigned j = 0; j < group->getNumChildren(); ++j) {
            auto *transform = dynamic_cast<osg::MatrixTransform *>(group->getChild(j));
            osg::ComputeBoundsVisitor bounds;
            transform->getChild(0)->accept(bounds);
            bodies.push_back({transform, transform->getMatrix().getTrans(),
                              osg::Vec3d(1.5 * std::cos(j * 2.4), 1.5 * std::sin(j * 2.4), 0),
                              -bounds.getBoundingBox().zMin(), 0.5 + (j % 3) * 0.5});
        }
    }
    int width = std::atoi(argv[2]), height = std::atoi(argv[3]), frames = std::atoi(argv[4]);
    osg::ref_ptr<osgViewer::Viewer> viewer = viewer::offscreen_viewer(width, height, "");
    if (!viewer) {
        std::fprintf(stderr, "frameloop: the graphics context could not be created\n");
        return 1;
    }
    osg::Vec3d eye(std::atof(argv[5]), std::atof(argv[6]), std::atof(argv[7]));
    osg::Vec3d center(std::atof(argv[8]), std::atof(argv[9]), std::atof(argv[10]));
    viewer->getCamera()->setViewMatrixAsLookAt(eye, center, osg::Vec3d(0, 0, 1));
    viewer->setSceneData(root);
    double t = 0;
    for (int i = 0; i < 10; ++i, t += dt) {  // as the Python side: compiled and warm before the clock starts
        step(bodies, t);
        viewer->frame();
    }
    auto start = std::chrono::steady_clock::now();
    for (int i = 0; i < frames; ++i, t += dt) {
        step(bodies, t);
        viewer->frame();
    }
    std::printf("%.6f\n", std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count());
    return 0;
}
