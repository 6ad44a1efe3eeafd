"""Prints a short inventory of what the _osg extension module offers."""
import os
import sys

sys.path.insert(0, os.environ.get("OSG_BUILD_DIR") or os.path.join(os.path.dirname(__file__), "..", "build"))

import _osg  # noqa: E402

names = sorted(vars(_osg))
functions = [n for n in names if callable(getattr(_osg, n)) and not n.startswith("__")]
constants = [n for n in names if isinstance(getattr(_osg, n), int)]
classes = sorted(n[: -len("_swigregister")] for n in functions if n.endswith("_swigregister"))
constructible = sorted(n[: -len("_swiginit")] for n in functions if n.endswith("_swiginit"))

print(f"_osg from {_osg.__file__}")
print(f"  {len(functions)} flat functions, {len(constants)} integer constants")
print(f"  {len(classes)} registrable classes: {', '.join(classes)}")
print(f"  {len(constructible)} of them constructible from Python")
print(f"  cvar variables: {str(_osg.cvar)}")
x = _osg.cvar.X_AXIS
print(f"  cvar.X_AXIS -> {x!r}")
print(f"  e.g. StateAttribute_ON={_osg.StateAttribute_ON}, Camera_USE_DISPLAY_SETTINGS_MASK={_osg.Camera_USE_DISPLAY_SETTINGS_MASK}")
