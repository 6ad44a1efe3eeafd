"""Writes a module's binding tables as JSON: export_tables.py BUILD_DIR MODULE OUT.json

Imports the build-time describer <MODULE>describe (made of the module's own objects) from BUILD_DIR."""
import importlib
import json
import sys

sys.path.insert(0, sys.argv[1])
data = json.loads(importlib.import_module(sys.argv[2] + "describe").describe())
with open(sys.argv[3], "w") as f:
    json.dump(data, f, indent=1)
    f.write("\n")
