"""Per-call cost of the osg package's methods next to the flat functions they forward to.

A forwarding method is the built-in itself bound as an instance method, so `v.length()`
should cost about what `_osg.Vec3f_length(v)` costs; conversions at the edge cost more,
and only when a Python value stands where a proxy is declared. Figures only.

    tools/toolchain.sh python3 bench/package.py [--calls N] [--repeats N]"""
import argparse
import itertools
import os
import statistics
import sys
import time

sys.path.insert(0, os.environ.get("OSG_BUILD_DIR") or os.path.join(os.path.dirname(__file__), "..", "build"))

import _osg  # noqa: E402
import _osgvalues  # noqa: E402
import osg  # noqa: E402

repeat = itertools.repeat
v, w = osg.Vec3f(1, 2, 3), osg.Vec3f(4, 5, 6)
m = osg.Matrixd.translate(1, 2, 3)
g = osg.Group()
g.addChild(osg.Node())
name = _osgvalues.string("node")

CASES = [
    ("_osg.Vec3f_length(v)", lambda: _osg.Vec3f_length, (v,)),
    ("v.length()", lambda: v.length, ()),
    ("_osg.Vec3f___add__(v, w)", lambda: _osg.Vec3f___add__, (v, w)),
    ("v + w", lambda: v.__add__, (w,)),
    ("m.getTrans()", lambda: m.getTrans, ()),
    ("g.getNumChildren()", lambda: g.getNumChildren, ()),
    ("g.getChild(0)", lambda: g.getChild, (0,)),
    ("g.setName(String proxy)", lambda: g.setName, (name,)),
    ("g.setName('node')  (a str: the char const * candidate)", lambda: g.setName, ("node",)),
    ("g.getName()  (read back as str)", lambda: g.getName, ()),
    ("ss.getMode(0x0B60)  (int to GLenum at the edge)", lambda: g.getOrCreateStateSet().getMode, (0x0B60,)),
]


def timed(f, args, n):
    t = time.perf_counter_ns()
    for _ in repeat(None, n):
        f(*args)
    return time.perf_counter_ns() - t


def main():
    ap = argparse.ArgumentParser()
    ap.add_argument("--calls", type=int, default=200_000)
    ap.add_argument("--repeats", type=int, default=5)
    a = ap.parse_args()
    empty = statistics.median(timed(lambda: None, (), a.calls) for _ in range(a.repeats))
    print(f"{'call':58} ns/call")
    for label, get, args in CASES:
        f = get()
        t = statistics.median(timed(f, args, a.calls) for _ in range(a.repeats))
        print(f"{label:58} {(t - empty) / a.calls:7.1f}")


main()
