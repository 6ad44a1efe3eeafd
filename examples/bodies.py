"""The world the examples share, as the physics SDK simulates one: a ground plane and rigid bodies
(boxes, spheres, capsules), each under a transform, coloured by its material and lit by the sun.
scene.py prints and draws it, shapes.py writes it for an OSG viewer, falling.py drops bodies on
its ground."""
import math
import os
import sys

sys.path.insert(0, os.environ.get("OSG_BUILD_DIR") or os.path.join(os.path.dirname(__file__), "..", "build"))

import osg  # noqa: E402

FACES = osg.Material.FRONT_AND_BACK
# Where the pictures look from and at: down onto the ground at an angle.
EYE, CENTER, UP = osg.Vec3d(7.5, -10, 6.5), osg.Vec3d(0, 0, 0.4), osg.Vec3d(0, 0, 1)
SKY = osg.Vec4f(0.62, 0.75, 0.9, 1)
COLOURS = {"red": (0.85, 0.25, 0.2), "orange": (0.95, 0.6, 0.15), "yellow": (0.95, 0.85, 0.3),
           "green": (0.3, 0.7, 0.35), "teal": (0.2, 0.6, 0.65), "blue": (0.25, 0.4, 0.85),
           "purple": (0.6, 0.35, 0.75), "ground": (0.62, 0.64, 0.6)}


def material(colour):
    """A matte-ish surface of the colour, with a soft highlight."""
    r, g, b = COLOURS[colour]
    m = osg.Material()
    m.setAmbient(FACES, osg.Vec4f(r * 0.35, g * 0.35, b * 0.35, 1))
    m.setDiffuse(FACES, osg.Vec4f(r, g, b, 1))
    m.setSpecular(FACES, osg.Vec4f(0.3, 0.3, 0.3, 1))
    m.setShininess(FACES, 24)
    return m


def rest_height(shape):
    """How far the shape's centre sits above the ground it lies on (upright as made)."""
    if isinstance(shape, osg.Box):
        return shape.getHalfLengths()[2]
    if isinstance(shape, osg.Capsule):
        return shape.getHeight() / 2 + shape.getRadius()
    return shape.getRadius()


def body(name, shape, colour, position, angle=0.0):
    """The shape drawn in its colour under a transform that places it, turned by angle about z."""
    drawable = osg.ShapeDrawable(shape)
    drawable.setName(name)
    drawable.setColor(osg.Vec4f(*COLOURS[colour], 1))
    drawable.getOrCreateStateSet().setAttributeAndModes(material(colour))
    transform = osg.MatrixTransform(osg.Matrixd.rotate(angle, 0, 0, 1) * osg.Matrixd.translate(*position))
    transform.setName(name)
    transform.addChild(drawable)
    return transform


def world(bodies, size=16.0):
    """The sun, a square of ground whose top is z = 0, and the bodies in a group named "bodies"."""
    root = osg.Group()
    root.setName("world")
    light = osg.Light(0)  # the view's own light: the sun replaces the headlight
    light.setPosition(osg.Vec4f(0.45, -0.25, 1, 0))  # w = 0: a direction, high in the sky
    light.setAmbient(osg.Vec4f(0.35, 0.35, 0.38, 1))
    light.setDiffuse(osg.Vec4f(0.85, 0.83, 0.8, 1))
    sun = osg.LightSource()
    sun.setName("sun")
    sun.setLight(light)
    root.addChild(sun)
    root.addChild(body("ground", osg.Box(osg.Vec3f(0, 0, -0.1), size, size, 0.2), "ground", (0, 0, 0)))
    group = osg.Group()
    group.setName("bodies")
    for b in bodies:
        group.addChild(b)
    root.addChild(group)
    return root


def scene():
    """A few bodies at rest: crates, balls and capsules, one lying down, one crate on another."""
    def on_ground(name, shape, colour, x, y, angle=0.0, lift=0.0):
        return body(name, shape, colour, (x, y, rest_height(shape) + lift), angle)
    lying = osg.Capsule(osg.Vec3f(0, 0, 0), 0.3, 1.4)
    lying.setRotation(osg.Quat(math.pi / 2, osg.Vec3d(1, 0, 0)))  # along y
    return world([
        on_ground("crate", osg.Box(osg.Vec3f(0, 0, 0), 1.2), "orange", -2.2, 1.2, 0.35),
        on_ground("small crate", osg.Box(osg.Vec3f(0, 0, 0), 0.7), "teal", -2.2, 1.2, -0.2, lift=1.2),
        on_ground("plank", osg.Box(osg.Vec3f(0, 0, 0), 2.4, 0.6, 0.3), "blue", 1.6, 2.4, -0.3),
        on_ground("ball", osg.Sphere(osg.Vec3f(0, 0, 0), 0.7), "green", 0.2, -0.3),
        on_ground("marble", osg.Sphere(osg.Vec3f(0, 0, 0), 0.35), "yellow", 2.6, -1.6),
        on_ground("pill", osg.Capsule(osg.Vec3f(0, 0, 0), 0.35, 1.2), "purple", -1.2, -2.2),
        body("lying pill", lying, "red", (2.6, 0.4, 0.3), -0.8),
    ])
