"""A main camera and a HUD camera set up with the osg package as OSG's own examples set up
theirs (view, projection, viewport, clear settings, render order), then read back; the origin
the main camera looks at lands in the middle of its viewport.

    tools/toolchain.sh python3 examples/camera.py"""
import os
import sys

sys.path.insert(0, os.environ.get("OSG_BUILD_DIR") or os.path.join(os.path.dirname(__file__), "..", "build"))

import osg  # noqa: E402

GL_COLOR_BUFFER_BIT = 0x00004000
GL_DEPTH_BUFFER_BIT = 0x00000100
WIDTH, HEIGHT = 1280, 720


def main_camera():
    camera = osg.Camera()
    camera.setViewport(0, 0, WIDTH, HEIGHT)
    camera.setProjectionMatrixAsPerspective(30.0, WIDTH / HEIGHT, 1.0, 1000.0)
    camera.setViewMatrixAsLookAt(osg.Vec3d(0, -12, 5), osg.Vec3d(0, 0, 0), osg.Vec3d(0, 0, 1))
    camera.setClearColor(osg.Vec4f(0.2, 0.2, 0.4, 1.0))
    camera.setClearMask(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT)
    return camera


def hud_camera():
    # As osghud's createHUD: an orthographic overlay drawn after the main camera, clearing depth only.
    camera = osg.Camera()
    camera.setProjectionMatrix(osg.Matrixd.ortho2D(0, WIDTH, 0, HEIGHT))
    camera.setViewMatrix(osg.Matrixd.identity())
    camera.setClearMask(GL_DEPTH_BUFFER_BIT)
    camera.setRenderOrder(osg.Camera.POST_RENDER)
    camera.setAllowEventFocus(False)
    return camera


def num(v):
    return f"{round(v, 4) + 0.0:g}"  # + 0.0: no "-0"


def show(camera, hud):
    vp = camera.getViewport()
    print(f"viewport {vp.x():g} {vp.y():g} {vp.width():g}x{vp.height():g}, aspect {num(vp.aspectRatio())}")
    fovy, aspect, near, far = camera.getProjectionMatrixAsPerspective()
    print("perspective fovy", num(fovy), "aspect", num(aspect), "near", num(near), "far", num(far))
    eye, center, up = camera.getViewMatrixAsLookAt(13.0)  # the eye is 13 from the origin
    print("look at", *(f"({', '.join(num(c) for c in v)})" for v in (eye, center, up)))
    print(f"clear colour {[round(c, 2) for c in camera.getClearColor()]}, mask {camera.getClearMask():#x}")
    window = camera.getViewMatrix() * camera.getProjectionMatrix() * vp.computeWindowMatrix()
    x, y, z = osg.Vec3d(0, 0, 0) * window
    print(f"origin at window ({num(x)}, {num(y)})")
    print("hud ortho", " ".join(num(v) for v in hud.getProjectionMatrixAsOrtho()),
          "order", "post" if hud.getRenderOrder() == osg.Camera.POST_RENDER else "pre",
          f"mask {hud.getClearMask():#x}, event focus {hud.getAllowEventFocus()}")


def main():
    camera, hud = main_camera(), hud_camera()
    show(camera, hud)
    # OSG's cameras start unreferenced and no container here takes one (a viewer would):
    # the program keeps them until it ends.
    camera.thisown = hud.thisown = False


main()
