"""A ground plane and a few boxes, spheres and capsules with colours under transforms (bodies.py's
world), written for an OSG viewer: `osgviewer shapes.osgt` shows it.

    python3 examples/shapes.py [shapes.osgt]"""
import sys

import bodies
import osgDB

filename = sys.argv[1] if len(sys.argv) > 1 else "shapes.osgt"
root = bodies.scene()
osgDB.writeNodeFile(root, filename)
print(f"{root.getChild(2).getNumChildren()} bodies on the ground, written to {filename}")
