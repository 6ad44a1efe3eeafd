// _framefloor: the floor for a Python-driven frame (bench/frames.py). The same viewer and the same
// transforms as the Python loop, moved by examples/falling.py's steps done in C++, one
// Viewer::frame() each: what is left of a frame when Python is not driving it.
//
//   frames(viewer, bodies, count, t) -> [seconds of each frame]
//
// viewer is the address of an osgViewer::Viewer (int(viewer.this)), or 0 for the steps alone; bodies a list of
// (address of an osg::MatrixTransform, x, y, z, vx, vy, vz, rest height, spin), falling.py's Body.
// The benchmark makes both; nothing here checks what an address points at.
#include <Python.h>

#include <osg/MatrixTransform>
#include <osgViewer/Viewer>

#include <chrono>
#include <cmath>
#include <vector>

namespace {

// falling.py's constants and rules, kept in step with it by hand.
constexpr double gravity = -9.81, restitution = 0.6, friction = 0.9, wall = 5.0, dt = 1.0 / 30;

struct Body {
    osg::MatrixTransform *transform;
    osg::Vec3d p, v;
    double rest, spin;
};

void step(std::vector<Body> &bodies, double t) {
    for (Body &b : bodies) {
        b.v.z() += gravity * dt;
        b.p += b.v * dt;
        if (b.p.z() < b.rest) {
            b.p.z() = 2 * b.rest - b.p.z();
            b.v.z() = -b.v.z() * restitution;
            b.v.x() *= friction;
            b.v.y() *= friction;
        }
        for (int axis = 0; axis < 2; ++axis)
            if (std::abs(b.p[axis]) > wall) {
                b.p[axis] = std::copysign(2 * wall, b.p[axis]) - b.p[axis];
                b.v[axis] = -b.v[axis];
            }
        b.transform->setMatrix(osg::Matrixd::rotate(b.spin * t, 0, 0, 1) * osg::Matrixd::translate(b.p));
    }
}

PyObject *frames(PyObject *, PyObject *args) {
    unsigned long long viewer_address;
    PyObject *list;
    int count;
    double t;
    if (!PyArg_ParseTuple(args, "KO!id", &viewer_address, &PyList_Type, &list, &count, &t)) return nullptr;
    std::vector<Body> bodies;
    for (Py_ssize_t i = 0; i < PyList_GET_SIZE(list); ++i) {
        unsigned long long address;
        Body b{};
        if (!PyArg_ParseTuple(PyList_GET_ITEM(list, i), "Kdddddddd", &address, &b.p.x(), &b.p.y(), &b.p.z(), &b.v.x(),
                              &b.v.y(), &b.v.z(), &b.rest, &b.spin))
            return nullptr;
        b.transform = reinterpret_cast<osg::MatrixTransform *>(address);
        bodies.push_back(b);
    }
    auto *viewer = reinterpret_cast<osgViewer::Viewer *>(viewer_address);
    // Each frame timed alone, as the Python loop times its own: the machine is shared, and a
    // quantile of frames resists others' bursts better than a total.
    std::vector<double> seconds(count > 0 ? count : 0);
    for (int i = 0; i < count; ++i, t += dt) {
        auto start = std::chrono::steady_clock::now();
        step(bodies, t);
        if (viewer) viewer->frame();
        seconds[i] = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    }
    PyObject *out = PyList_New(0);
    if (!out) return nullptr;
    for (double s : seconds) {
        PyObject *f = PyFloat_FromDouble(s);
        if (!f || PyList_Append(out, f) < 0) {
            Py_XDECREF(f);
            Py_DECREF(out);
            return nullptr;
        }
        Py_DECREF(f);
    }
    return out;
}

PyMethodDef methods[] = {
    {"frames", frames, METH_VARARGS, "frames(viewer, bodies, count, t) -> [seconds of each]: count steps and frames in C++."},
    {nullptr, nullptr, 0, nullptr},
};

PyModuleDef module = {PyModuleDef_HEAD_INIT, "_framefloor", "The floor of a Python-driven frame.", -1, methods,
                      nullptr, nullptr, nullptr, nullptr};

}  // namespace

PyMODINIT_FUNC PyInit__framefloor() { return PyModule_Create(&module); }
