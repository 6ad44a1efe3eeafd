import os
import sys
os.makedirs(os.path.join(sys.argv[2], "osg"), exist_ok=True)
for n in ("_osg.pyi", "_osgvalues.pyi", "osg/__init__.pyi"):
    open(os.path.join(sys.argv[2], n), "w").close()
