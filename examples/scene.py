"""The world the examples share (bodies.py: a ground plane and bodies under transforms), printed as
a tree with each node's class, name and world position, and drawn offscreen to scene.png. Other
arguments: a file name ending in .png is where the picture goes; any other is a scene file that
OSG writes in the format of its extension (scene.osgt, for an OSG viewer).

    ./run example [scene.osgt] [docs/scene.png]"""
import sys

import bodies
import osg
import osgDB
import osgViewer


def show(node, path=()):
    """Each node as its own class: a child comes back as the class it was made as."""
    path = path + (node,)
    x, y, z = osg.computeLocalToWorld(list(path)).getTrans()
    print(f"{'    ' * (len(path) - 1)}{type(node).__name__} '{node.getName()}' at ({x:g}, {y:g}, {z:g})")
    if isinstance(node, osg.Group):
        for i in range(node.getNumChildren()):
            show(node.getChild(i), path)


def picture(root, filename):
    """Drawn at twice the size and halved by OSG's own scaling, so that the edges are smooth."""
    image = osgViewer.render(root, 1280, 960, bodies.EYE, bodies.CENTER, bodies.UP, bodies.SKY)
    image.scaleImage(640, 480, 1)
    osgDB.writeImageFile(image, filename)
    print(f"drawn to {filename}")


def main():
    root = bodies.scene()
    show(root)
    pictures = [a for a in sys.argv[1:] if a.endswith(".png")] or ["scene.png"]
    for filename in sys.argv[1:]:
        if not filename.endswith(".png"):
            osgDB.writeNodeFile(root, filename)
            print(f"written to {filename}")
    for filename in pictures:
        picture(root, filename)


main()
