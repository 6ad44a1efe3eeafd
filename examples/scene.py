"""A small scene built with the osg package, printed as a tree with each node's class, name
and world position; with OSG's file writer installed, also written as scene.osgt for a viewer.

    ./run example"""
import math
import os
import sys

sys.path.insert(0, os.environ.get("OSG_BUILD_DIR") or os.path.join(os.path.dirname(__file__), "..", "build"))

import _osgvalues  # noqa: E402
import osg  # noqa: E402


# Children come back as osg.Node proxies; this finds the proxy of each node's own class.
made: dict = {}


def named(node, name):
    node.setName(name)
    made[int(node.this)] = node
    return node


def build():
    root = named(osg.Group(), "root")
    base = named(osg.MatrixTransform(osg.Matrixd.translate(0, 0, 5)), "base")
    root.addChild(base)
    arm = named(osg.PositionAttitudeTransform(), "arm")
    arm.setPosition(osg.Vec3d(3, 0, 0))
    arm.setAttitude(osg.Quat(math.pi / 2, osg.Vec3d(0, 0, 1)))  # a quarter turn about z
    base.addChild(arm)
    arm.addChild(named(osg.Geode(), "hand"))
    arm.addChild(named(osg.MatrixTransform(osg.Matrixd.translate(1, 0, 0)), "finger"))
    options = named(osg.Switch(), "options")
    root.addChild(options)
    options.addChild(named(osg.Geode(), "shown"))
    options.addChild(named(osg.Geode(), "hidden"), False)
    clip = named(osg.ClipNode(), "clip")
    clip.createClipBox(_osgvalues.bounding_box(-1, -1, -1, 1, 1, 1))
    root.addChild(clip)
    return root


def show(node, path=()):
    path = path + (node,)
    x, y, z = osg.computeLocalToWorld(list(path)).getTrans()
    extra = ""
    if node.className() == "ClipNode":
        extra = f", {made[int(node.this)].getNumClipPlanes()} clip planes"
    parent = path[-2].asSwitch() if len(path) > 1 else None
    if parent is not None:
        extra += ", on" if parent.getChildValue(node) else ", off"
    print(f"{'    ' * (len(path) - 1)}{node.className()} '{node.getName()}' at ({x:g}, {y:g}, {z:g}){extra}")
    group = node.asGroup()
    if group is not None and node.asGeode() is None:
        for i in range(group.getNumChildren()):
            show(group.getChild(i), path)


def main():
    root = build()
    show(root)
    if len(sys.argv) > 1 and _osgvalues.write_node(root, sys.argv[1]):
        print(f"written to {sys.argv[1]}")
    made.clear()


main()
