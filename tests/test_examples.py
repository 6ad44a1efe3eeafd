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
