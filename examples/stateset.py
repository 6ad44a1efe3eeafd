"""A state set with fog, a colour mask and two clip planes, built with the osg package and
read back, as OSG's own state examples set up render state.

    tools/toolchain.sh python3 examples/stateset.py"""
import os
import sys

sys.path.insert(0, os.environ.get("OSG_BUILD_DIR") or os.path.join(os.path.dirname(__file__), "..", "build"))

import osg  # noqa: E402

GL_FOG = 0x0B60


def main():
    root = osg.Group()
    state = root.getOrCreateStateSet()

    fog = osg.Fog()
    fog.setMode(osg.Fog.LINEAR)
    fog.setStart(10.0)
    fog.setEnd(100.0)
    fog.setColor(osg.Vec4f(0.5, 0.5, 0.6, 1.0))
    state.setAttributeAndModes(fog, osg.StateAttribute.ON)

    mask = osg.ColorMask(True, True, True, False)
    state.setAttribute(mask)
    planes = [osg.ClipPlane(number, plane) for number, plane in enumerate([osg.Plane(1, 0, 0, 0), osg.Plane(0, 1, 0, -2)])]
    for plane in planes:
        state.setAttributeAndModes(plane, osg.StateAttribute.ON)

    print("fog mode", "on" if state.getMode(GL_FOG) == osg.StateAttribute.ON else "off")
    f = state.getAttribute(osg.StateAttribute.FOG)
    print(f"fog {f.className()} from {fog.getStart():g} to {fog.getEnd():g}, colour {list(fog.getColor())}")
    print("colour mask", state.getAttribute(osg.StateAttribute.COLORMASK).className(),
          "writes alpha:", mask.getAlphaMask())
    for number, plane in enumerate(planes):
        print("clip plane", number, state.getAttribute(osg.StateAttribute.CLIPPLANE, number).className(),
              list(plane.getClipPlane()))


main()
