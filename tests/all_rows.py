"""Every tabled function, the engine's rows and the scene graph's, for the message tests."""
from engine_rows import ALL, Disp, Row
from scene_rows import SCENE

EVERY = ALL + SCENE
ROWS = [r for r in EVERY if isinstance(r, Row)]
DISPATCHERS = [d for d in EVERY if isinstance(d, Disp)]
BY_NAME = {r.name: r for r in EVERY}
assert len(BY_NAME) == len(EVERY)  # no function tabled twice
