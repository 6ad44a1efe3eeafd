"""A small scene built with the osg package, printed as a tree with each node's class, name
and world position; with a file name, also written for an OSG viewer (scene.osgt).

    ./run example [scene.osgt]"""
import math
import os
import sys

sys.path.insert(0, os.environ.get("OSG_BUILD_DIR") or os.path.join(os.path.dirname(__file__), "..", "build"))

import _osgvalues  # noqa: E402
import osg  # noqa: E402
import osgDB  # noqa: E402


def named(node, name):
    node.setName(name)
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
    """Each node as its own class: a child comes back as the class it was made as."""
    path = path + (node,)
    x, y, z = osg.computeLocalToWorld(list(path)).getTrans()
    extra = ""
    if isinstance(node, osg.ClipNode):
        extra = f", {node.getNumClipPlanes()} clip planes"
    if len(path) > 1 and isinstance(path[-2], osg.Switch):
        extra += ", on" if path[-2].getChildValue(node) else ", off"
    print(f"{'    ' * (len(path) - 1)}{type(node).__name__} '{node.getName()}' at ({x:g}, {y:g}, {z:g}){extra}")
    if isinstance(node, osg.Group):
        for i in range(node.getNumChildren()):
            show(node.getChild(i), path)


def main():
    root = build()
    show(root)
    if len(sys.argv) > 1:
        osgDB.writeNodeFile(root, sys.argv[1])
        print(f"written to {sys.argv[1]}")


main()
