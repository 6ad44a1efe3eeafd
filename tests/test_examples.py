"""The examples run and print what their scenes hold."""
import os
import subprocess
import sys

HERE = os.path.dirname(__file__)


def run(name, *args):
    proc = subprocess.run([sys.executable, os.path.join(HERE, os.pardir, "examples", name), *args],
                          capture_output=True, text=True, timeout=120)
    assert proc.returncode == 0 and proc.stderr == "", proc.stderr
    return proc.stdout


def test_scene_tree_with_world_positions(tmp_path):
    out = run("scene.py", str(tmp_path / "scene.osgt"))
    assert out.splitlines() == [
        "Group 'root' at (0, 0, 0)",
        "    MatrixTransform 'base' at (0, 0, 5)",
        "        PositionAttitudeTransform 'arm' at (3, 0, 5)",
        "            Geode 'hand' at (3, 0, 5)",
        "            MatrixTransform 'finger' at (3, 1, 5)",  # (1, 0, 0) turned a quarter about z
        "    Switch 'options' at (0, 0, 0)",
        "        Geode 'shown' at (0, 0, 0), on",
        "        Geode 'hidden' at (0, 0, 0), off",
        "    ClipNode 'clip' at (0, 0, 0), 6 clip planes",
        f"written to {tmp_path / 'scene.osgt'}",
    ]
    text = (tmp_path / "scene.osgt").read_text()
    assert all(f'Name "{n}"' in text for n in ("root", "arm", "finger", "hidden"))


def test_state_set():
    assert run("stateset.py").splitlines() == [
        "fog mode on",
        "fog Fog from 10 to 100, colour [0.5, 0.5, 0.6000000238418579, 1.0]",
        "colour mask ColorMask writes alpha: False",
        "clip plane 0 ClipPlane [1.0, 0.0, 0.0, 0.0]",
        "clip plane 1 ClipPlane [0.0, 1.0, 0.0, -2.0]",
    ]


def test_camera():
    # The lookAt's true up is perpendicular to the view from (0, -12, 5): (0, 5, 12) / 13.
    assert run("camera.py").splitlines() == [
        "viewport 0 0 1280x720, aspect 1.7778",
        "perspective fovy 30 aspect 1.7778 near 1 far 1000",
        f"look at (0, -12, 5) (0, 0, 0) (0, {round(5 / 13, 4)}, {round(12 / 13, 4)})",
        "clear colour [0.2, 0.2, 0.4, 1.0], mask 0x4100",
        "origin at window (640, 360)",  # the point looked at: the viewport's middle
        "hud ortho 0 1280 0 720 -1 1 order post mask 0x100, event focus False",
    ]
