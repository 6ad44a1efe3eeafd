"""What a Python user pays: the osg package's calls next to the same calls on classes bound with
nanobind (bench/nbpeer.cpp), in one process. Each figure is the minimum over REPEATS runs of
CALLS calls, in ns per call with the empty loop's cost subtracted; the frame is 10 000 transforms
each given a new matrix (m.makeTranslate(...), mt.setMatrix(m)), per transform. Figures only;
goals are ratios to nanobind, printed beside them.

    tools/toolchain.sh python3 bench/package.py [--calls N] [--repeats N]   (or ./run bench)"""
import argparse
import gc
import itertools
import os
import sys
import time

sys.path.insert(0, os.environ.get("OSG_BUILD_DIR") or os.path.join(os.path.dirname(__file__), "..", "build"))

import osg  # noqa: E402

try:
    import _nbpeer as nb  # the same calls bound with nanobind, where it was built
except ImportError:
    nb = None

repeat = itertools.repeat
clock = time.perf_counter_ns
TRANSFORMS = 10_000


# Each case as a user writes it, so that the interpreter takes its own path (an operator through
# the type's slot, a method through LOAD_ATTR and CALL without a bound method where it can).
def construct(mod):
    def loop(n, Vec3f=mod.Vec3f):
        for _ in repeat(None, n):
            Vec3f(1.0, 2.0, 3.0)
    return loop


def length(v):
    def loop(n):
        for _ in repeat(None, n):
            v.length()
    return loop


def add(v):
    def loop(n):
        for _ in repeat(None, n):
            v + v
    return loop


def get_trans(m):
    def loop(n):
        for _ in repeat(None, n):
            m.getTrans()
    return loop


def product(m, v3d):
    def loop(n):
        for _ in repeat(None, n):
            m * v3d
    return loop


def set_matrix(mt, m):
    def loop(n):
        for _ in repeat(None, n):
            mt.setMatrix(m)
    return loop


def frame(m, transforms):
    """Frames of every transform getting a new matrix: n transforms in all."""
    def loop(n):
        for _ in range(max(1, n // len(transforms))):
            for i, mt in enumerate(transforms):
                m.makeTranslate(i, 0.0, 1.0)
                mt.setMatrix(m)
    return loop


def empty(n):
    for _ in repeat(None, n):
        pass


def cases(mod):
    """(label, loop, goal ratio to nanobind) for one binding: osg or the nanobind peer."""
    v, m, v3d, mt = mod.Vec3f(1.0, 2.0, 3.0), mod.Matrixd(), mod.Vec3d(1.0, 2.0, 3.0), mod.MatrixTransform()
    return [
        ("osg.Vec3f(1, 2, 3)", construct(mod), 1.2),
        ("v.length()", length(v), 1.1),
        ("v + v", add(v), 1.2),
        ("m.getTrans()", get_trans(m), 1.2),
        ("m * v3d", product(m, v3d), 1.2),
        ("mt.setMatrix(m)", set_matrix(mt, m), 1.2),
        ("frame: m.makeTranslate(...), mt.setMatrix(m), per transform",
         frame(m, [mod.MatrixTransform() for _ in range(TRANSFORMS)]), 1.2),
    ]


def best(loop, n, repeats):
    loop(n // 10)
    gc.disable()
    try:
        return min(_timed(loop, n) for _ in range(repeats)) / n
    finally:
        gc.enable()


def _timed(loop, n):
    t = clock()
    loop(n)
    return clock() - t


def main():
    ap = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    ap.add_argument("--calls", type=int, default=200_000)
    ap.add_argument("--repeats", type=int, default=7)
    a = ap.parse_args()
    base = best(empty, a.calls, a.repeats)
    ours = cases(osg)
    theirs = cases(nb) if nb else [None] * len(ours)
    print(f"osg package against nanobind  (min of {a.repeats} runs x {a.calls:,} calls; empty loop {base:.1f} ns "
          "subtracted)" + ("" if nb else "; nanobind peer not built"))
    w = max(len(label) for label, _, _ in ours)
    print(f"{'call':<{w}}  {'osg ns':>7}  {'nb ns':>6}  {'ratio':>6}  goal")
    for (label, loop, goal), other in zip(ours, theirs):
        mine = best(loop, a.calls, a.repeats) - base
        line = f"{label:<{w}}  {mine:7.1f}"
        if other:
            peer = best(other[1], a.calls, a.repeats) - base
            ratio = mine / peer
            line += f"  {peer:6.1f}  {ratio:5.2f}x  <={goal}x {'met' if ratio <= goal else 'MISSED'}"
        print(line)


main()
