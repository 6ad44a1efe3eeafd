"""Builds a small scene through _osg's flat functions and prints it as an indented tree:
each node's class, name and world position.

_osg makes no node paths and reads no std::string or matrix elements; those come from a
sibling module sharing its type table. Here that is the test sibling _osgpeer, built
alongside _osg."""
import math
import os
import sys

sys.path.insert(0, os.environ.get("OSG_BUILD_DIR") or os.path.join(os.path.dirname(__file__), "..", "build"))

import _osg  # noqa: E402
import _osgpeer as sibling  # noqa: E402

# Every node made here, by address: a child comes back as a plain osg::Node, and this
# gives its own class's functions the proxy they take. Each holds one reference for Python.
made = {}


def node(cls, name, parent=None):
    n = getattr(_osg, f"new_{cls}")()
    made[int(n)] = n
    _osg.Object_setName(n, name)
    if parent is not None:
        _osg.Group_addChild(parent, n)
    return n


def translation(x, y, z):
    return sibling.matrix(1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, x, y, z, 1)


root = node("Group", "root")
base = node("MatrixTransform", "base", root)
_osg.MatrixTransform_setMatrix(base, translation(0, 0, 5))
arm = node("PositionAttitudeTransform", "arm", base)
position, axis = _osg.new_Vec3d(3, 0, 0), _osg.new_Vec3d(0, 0, 1)
turn = _osg.new_Quat(math.pi / 2, axis)  # a quarter turn about z
_osg.PositionAttitudeTransform_setPosition(arm, position)
_osg.PositionAttitudeTransform_setAttitude(arm, turn)
for value, delete in [(position, _osg.delete_Vec3d), (axis, _osg.delete_Vec3d), (turn, _osg.delete_Quat)]:
    delete(value)
hand = node("Geode", "hand", arm)
mesh = sibling.geometry([(0, 0, 0), (1, 0, 0), (0, 1, 0), (0, 0, 1)], [0, 1, 2, 1, 0, 3])
_osg.SmoothingVisitor_smooth(mesh)
_osg.Geode_addDrawable(hand, sibling.as_drawable(mesh))
finger = node("MatrixTransform", "finger", arm)
_osg.MatrixTransform_setMatrix(finger, translation(1, 0, 0))
options = node("Switch", "options", root)
node("Geode", "shown", options)
_osg.Switch_addChild(options, node("Geode", "hidden"), False)
clip = node("ClipNode", "clip", root)
_osg.ClipNode_createClipBox(clip, sibling.bounding_box(-1, -1, -1, 1, 1, 1))


def world_position(path):
    m = _osg.computeLocalToWorld(sibling.node_path(path))
    x, y, z = sibling.read_matrix(m)[12:15]
    sibling.release(m, "_p_osg__Matrixd")
    return x, y, z


def show(n, path=()):
    path = path + (n,)
    name = sibling.read_string(_osg.Object_getName(n))
    x, y, z = world_position(path)
    extra = ""
    if _osg.Node_className(n) == "ClipNode":
        extra = f", {_osg.ClipNode_getNumClipPlanes(made[int(n)])} clip planes"
    elif _osg.Node_asGeode(n) is not None:
        extra = f", {_osg.Geode_getNumDrawables(_osg.Node_asGeode(n))} drawable(s)"
    parent = _osg.Node_asSwitch(path[-2]) if len(path) > 1 else None
    if parent is not None:
        extra += ", on" if _osg.Switch_getChildValue(parent, n) else ", off"
    print(f"{'    ' * (len(path) - 1)}{_osg.Node_className(n)} '{name}' at ({x:g}, {y:g}, {z:g}){extra}")
    group = _osg.Node_asGroup(n)
    if group is not None and _osg.Node_asGeode(n) is None:
        for i in range(_osg.Group_getNumChildren(group)):
            show(_osg.Group_getChild(group, i), path)


show(root)
for n in made.values():
    _osg.delete_Group(n)  # gives back Python's reference; root's release frees the rest
