"""Writes the binding tables as JSON: export_tables.py BUILD_DIR OUT.json

Imports the build-time describer _osgdescribe (made of _osg's own objects) from BUILD_DIR."""
import json
import sys

sys.path.insert(0, sys.argv[1])
import _osgdescribe  # noqa: E402

data = json.loads(_osgdescribe.describe())
with open(sys.argv[2], "w") as f:
    json.dump(data, f, indent=1)
    f.write("\n")
