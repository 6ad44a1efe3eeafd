"""osgViewer: offscreen pictures checked pixel by pixel against what the scene must show, the display
they are drawn on, and the viewer rows' messages and ownership. Loading _osgViewer teaches the ring
OSG's hierarchy and the package registers its classes, so each case runs in a fresh interpreter,
where render() starts its own Xvfb."""
import json
import math
import os
import struct
import time

import pytest

W, H = 64, 48
RED, BLUE = [255, 0, 0, 255], [0, 0, 255, 255]

PICTURES = f"""
import json, osg, osgViewer
def pixels(image):
    assert (image.s(), image.t(), image.r(), image.getPixelFormat(), image.getDataType()) == ({W}, {H}, 1, 0x1908, 0x1401)
    return [[[round(c * 255) for c in image.getColor(s, t)] for s in range({W})] for t in range({H})]
box = osg.ShapeDrawable(osg.Box(osg.Vec3f(0, 0, 0), 1))
box.setColor(osg.Vec4f(1, 0, 0, 1))
box.getOrCreateStateSet().setMode(0x0B50, osg.StateAttribute.OFF)  # GL_LIGHTING off: the box is exactly its colour
blue, viewer = osg.Vec4f(0, 0, 1, 1), osgViewer.Viewer()
camera = viewer.getCamera()  # borrowed: valid while the viewer lives
print(json.dumps({{"fovy": camera.getProjectionMatrixAsPerspective()[0],
                  "clear": [round(c * 255) for c in camera.getClearColor()],
                  "home": pixels(osgViewer.render(box, {W}, {H}, clear=blue)),
                  "near": pixels(osgViewer.render(box, {W}, {H}, (0, -5, 0), (0, 0, 0), (0, 0, 1), blue)),
                  "away": pixels(osgViewer.render(box, {W}, {H}, (0, -5, 0), (0, -10, 0), clear=blue)),
                  "again": pixels(osgViewer.render(box, {W}, {H}, clear=(0, 0, 1, 1))),
                  "empty": pixels(osgViewer.render(osg.Group(), {W}, {H})),
                  "png": box._repr_png_()[:24].hex()}}))
"""


def test_pictures_show_what_the_scene_must(run_py):
    out = json.loads(run_py(PICTURES)[0])
    t = math.tan(math.radians(out["fovy"]) / 2)
    home = out["home"]
    red_rows, red_columns = [sum(p == RED for p in line) for line in (list(zip(*home))[W // 2], home[H // 2])]
    assert home[H // 2][W // 2] == RED and [home[t][s] for t in (0, -1) for s in (0, -1)] == [BLUE] * 4
    assert all(p in (RED, BLUE) for line in home for p in line)
    # OSG's home position puts the bounding sphere (radius sqrt(3)/2) just inside the field of view:
    # its eye is r / sin(fovy / 2) away, so the front face, half a unit nearer, spans this many rows.
    distance = math.sqrt(3) / 2 / math.sin(math.radians(out["fovy"]) / 2) - 0.5
    assert abs(red_rows - H * 0.5 / distance / t) <= 1.5 and abs(red_columns - red_rows) <= 1  # square: the aspect is W / H
    assert abs(sum(p[W // 2] == RED for p in out["near"]) - H * 0.5 / 4.5 / t) <= 1.5
    assert all(p == BLUE for line in out["away"] for p in line)
    assert out["again"] == home
    assert out["clear"] == [51, 51, 102, 255] and all(p == out["clear"] for line in out["empty"] for p in line)
    png = bytes.fromhex(out["png"])
    assert png[:8] == b"\x89PNG\r\n\x1a\n" and png[12:16] == b"IHDR" and struct.unpack(">II", png[16:24]) == (320, 240)


def test_own_display_reused_stopped_and_display_taken_from_the_environment(run_py):
    out, _ = run_py("""
        import json, os, subprocess, sys, osg, osgViewer
        osgViewer.render(osg.Group(), 8, 8)
        first = osgViewer._xvfb
        osgViewer._viewers.clear()  # their graphics contexts leave: our own connection keeps Xvfb
        osgViewer.render(osg.Group(), 8, 8), osgViewer.render(osg.Group(), 16, 8)
        child = subprocess.run([sys.executable, "-c", f"import sys; sys.path[:] = {sys.path!r}; import osg, osgViewer; "
                                "osgViewer.render(osg.Group(), 8, 8); print(osgViewer._xvfb, osgViewer._display)"],
                               env={**os.environ, "DISPLAY": osgViewer._display}, capture_output=True, text=True)
        print(json.dumps([first.pid, osgViewer._xvfb is first, first.poll(), osgViewer._display, child.stdout, child.stderr]))
    """)
    pid, same, running, display, child, errors = json.loads(out)
    assert (same, running, child, errors) == (True, None, f"None {display}\n", "")

    def alive():
        try:
            return open(f"/proc/{pid}/stat").read().split(") ")[1][0] != "Z"
        except FileNotFoundError:
            return False
    deadline = time.monotonic() + 10
    while alive() and time.monotonic() < deadline:
        time.sleep(0.05)
    assert not alive()


def test_errors_say_what_is_missing(run_py):
    out, _ = run_py("""
        import os, osg, osgViewer
        osg.setNotifyLevel(osg.WARN)  # OSG's own notice of the display it cannot open
        def error(*size):
            try:
                osgViewer.render(osg.Group(), *size)
            except (RuntimeError, ValueError) as e:
                return f"{type(e).__name__}: {e}"
        os.environ.pop("DISPLAY", None)
        os.environ["PATH"] = "/nonexistent"
        print(error(8, 8))
        os.environ["DISPLAY"] = ":97"
        print(error(8, 8))
        print(error(0, 8))
    """)
    assert out.splitlines() == [
        "RuntimeError: osgViewer.render: no display: DISPLAY is unset and Xvfb is not on PATH (Debian's package xvfb)",
        "RuntimeError: osgViewer.render: no display: the X display ':97' cannot be opened",
        "ValueError: osgViewer.render: the picture's size must be positive integers, not 0 x 8"]


def test_viewer_rows_messages_and_ownership(run_py):
    out, _ = run_py("""
        import osg, osgViewer, _osg, _osgViewer
        def error(f, *args):
            try:
                f(*args)
            except TypeError as e:
                print(str(e).replace("\\n", "|"))
        error(_osgViewer.Viewer_setSceneData, osg.Group(), None)
        error(_osgViewer.ViewerBase_frame, osgViewer.Viewer(), "now")
        error(_osgViewer.frameImage, None)
        v = _osgViewer.new_Viewer()
        camera = _osgViewer.View_getCamera(v)
        print(v.own(), _osg.Referenced_referenceCount(v), camera.this.own(), camera.referenceCount(),
              int(camera.getView().this) == int(v))
        node, manipulator = osg.Group(), osgViewer.TrackballManipulator()
        viewer = osgViewer.Viewer()
        viewer.setSceneData(node), viewer.setCameraManipulator(manipulator)
        got = viewer.getCameraManipulator()
        print(node.referenceCount(), manipulator.referenceCount(), type(got).__name__, got.thisown)  # the scene, camera, manipulator; got holds one
        del viewer, got
        print(node.referenceCount(), manipulator.referenceCount())  # the manipulator keeps its node
        offscreen = osgViewer.offscreenViewer(8, 8, osgViewer._display_name())
        images = [osgViewer.frameImage(offscreen) for _ in range(2)]
        print(offscreen.referenceCount(), [(i.thisown, i.referenceCount()) for i in images], int(images[0].this) != int(images[1].this))
    """)
    assert out.splitlines() == [
        "in method 'Viewer_setSceneData', argument 1 of type 'osgViewer::Viewer *'",
        "Wrong number or type of arguments for overloaded function 'ViewerBase_frame'.|  Possible C/C++ prototypes are:|"
        "    osgViewer::ViewerBase::frame(double)|    osgViewer::ViewerBase::frame()|",
        "invalid null reference in method 'frameImage', argument 1 of type 'osgViewer::Viewer &'",
        "True 1 False 1 True",
        "4 3 TrackballManipulator True",
        "2 1",
        "1 [(True, 1), (True, 1)] True"]
