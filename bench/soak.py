"""Soak: builds a small scene with every kind of object the osg package makes, drops it, and
does so CYCLES times. Prints the resident memory grown after a warm-up, and how many lines the
process wrote to stderr meanwhile (a leak note would be one). Figures only; nothing is asserted.

    tools/toolchain.sh python3 bench/soak.py [--cycles N]
"""
import argparse
import os
import subprocess
import sys

CHILD = r"""
import gc, os, sys
sys.path.insert(0, {build!r})
import numpy, osg

def rss_kib():
    with open("/proc/self/status") as f:
        return next(int(line.split()[1]) for line in f if line.startswith("VmRSS:"))

def scene():
    root = osg.Group()
    camera = osg.Camera()
    camera.addChild(osg.Geode())
    root.addChild(camera)
    state = osg.StateSet()
    state.setTextureAttributeAndModes(0, osg.Texture2D())
    root.setStateSet(state)
    arm = osg.MatrixTransform(osg.Matrixd.translate(1, 2, 3))
    pat = osg.PositionAttitudeTransform()
    pat.setPosition(osg.Vec3d(1, 0, 0))
    clip = osg.ClipNode()
    clip.addClipPlane(osg.ClipPlane(0, 0, 0, 1, 0))
    switch = osg.Switch()
    switch.addChild(osg.Node(), False)
    mesh = osg.Geometry()
    mesh.setVertexArray(osg.Vec3Array(numpy.zeros((3, 3), numpy.float32)))
    mesh.addPrimitiveSet(osg.DrawArrays(osg.PrimitiveSet.TRIANGLES, 0, 3))
    shapes = osg.Geode()
    shapes.addDrawable(mesh)
    shapes.addDrawable(osg.ShapeDrawable(osg.Box(osg.Vec3f(0, 0, 0), 1)))
    for parent, child in [(arm, pat), (pat, clip), (clip, switch), (switch, shapes), (root, arm)]:
        parent.addChild(child)
    return root

for _ in range({warmup}):
    scene()
gc.collect()
before = rss_kib()
for _ in range({cycles}):
    scene()
gc.collect()
print(rss_kib() - before)
"""


def main():
    ap = argparse.ArgumentParser()
    ap.add_argument("--cycles", type=int, default=30000)
    ap.add_argument("--warmup", type=int, default=2000)
    args = ap.parse_args()
    build = os.environ.get("OSG_BUILD_DIR") or os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "build")
    proc = subprocess.run([sys.executable, "-c", CHILD.format(build=build, warmup=args.warmup, cycles=args.cycles)],
                          capture_output=True, text=True)
    if proc.returncode:
        sys.exit(proc.stderr)
    print(f"soak: {args.cycles} scenes built and dropped after {args.warmup} of warm-up: "
          f"resident memory grew {int(proc.stdout)} KiB; {len(proc.stderr.splitlines())} lines on stderr")


if __name__ == "__main__":
    main()
