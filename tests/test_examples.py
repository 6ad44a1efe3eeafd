"""The examples run and print what their scenes hold; their pictures show them."""
import os
import re
import subprocess
import sys

from PIL import Image

HERE = os.path.dirname(__file__)


def run(name, *args):
    proc = subprocess.run([sys.executable, os.path.join(HERE, os.pardir, "examples", name), *args],
                          capture_output=True, text=True, timeout=120)
    assert proc.returncode == 0 and proc.stderr == "", proc.stderr
    return proc.stdout


def test_scene_tree_picture_and_file(tmp_path):
    osgt, png = tmp_path / "scene.osgt", tmp_path / "scene.png"
    lines = run("scene.py", str(osgt), str(png)).splitlines()
    assert lines[:6] + lines[-4:] == [
        "Group 'world' at (0, 0, 0)",
        "    LightSource 'sun' at (0, 0, 0)",
        "    MatrixTransform 'ground' at (0, 0, 0)",
        "        ShapeDrawable 'ground' at (0, 0, 0)",
        "    Group 'bodies' at (0, 0, 0)",
        "        MatrixTransform 'crate' at (-2.2, 1.2, 0.6)",  # a 1.2 cube resting on the ground
        "        MatrixTransform 'lying pill' at (2.6, 0.4, 0.3)",  # a capsule of radius 0.3 on its side
        "            ShapeDrawable 'lying pill' at (2.6, 0.4, 0.3)",
        f"written to {osgt}",
        f"drawn to {png}",
    ]
    assert "        MatrixTransform 'small crate' at (-2.2, 1.2, 1.55)" in lines  # on the crate: 1.2 + 0.35
    with Image.open(png) as picture:
        sky, middle = picture.convert("RGB").getpixel((5, 5)), picture.getpixel((320, 240))
        assert picture.size == (640, 480) and all(abs(a - b) <= 1 for a, b in zip(sky, (158, 191, 230)))
        assert middle[1] > 1.5 * middle[0]  # the green ball


def test_shapes_written_for_a_viewer_and_bodies_falling(tmp_path):
    assert run("shapes.py", str(tmp_path / "shapes.osgt")) == f"7 bodies on the ground, written to {tmp_path / 'shapes.osgt'}\n"
    text = (tmp_path / "shapes.osgt").read_text()
    assert text.count("osg::ShapeDrawable") == 8 and all(f'Name "{n}"' in text for n in ("ground", "marble", "pill"))
    out = run("falling.py", str(tmp_path / "falling.gif"), "3")
    assert re.fullmatch(rf"36 bodies, 3 frames of 640x480: [0-9.]+ frames per second stepped and drawn; "
                        rf"written to {re.escape(str(tmp_path / 'falling.gif'))}\n", out)
    with Image.open(tmp_path / "falling.gif") as gif:
        assert (gif.n_frames, gif.size) == (3, (320, 240))
