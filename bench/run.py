"""Per-call cost of _osg's wrappers next to the cheapest C calls CPython can make.

Prints, for each case, the median over REPEATS timed loops of CALLS calls each, in ns
per call with the cost of the empty loop subtracted, and its ratio to a floor measured
the same way in _floor (bench/floor.c): METH_O for one-argument calls, METH_VARARGS of
two arguments for the others.  Figures only; nothing is asserted.

    ./run bench                                  build, then run this
    tools/toolchain.sh python3 bench/run.py      run against an existing build/
    OSG_BUILD_DIR=... python3 bench/run.py [--repeats N] [--calls N]
"""
import argparse
import gc
import itertools
import os
import statistics
import sys
import time

sys.path.insert(0, os.environ.get("OSG_BUILD_DIR") or os.path.join(os.path.dirname(__file__), "..", "build"))

import _floor  # noqa: E402
import _osg  # noqa: E402

repeat = itertools.repeat
clock = time.perf_counter_ns


# ---- the realistic setup: classes registered as the proxy module does -----------------
# Registration gives owned pointers a destroy function (no leak message when they die)
# and makes by-value results such as Vec3f___add__'s come back as shadow instances.
class Vec3f:
    __swig_destroy__ = _osg.delete_Vec3f


class Vec3d:
    __swig_destroy__ = _osg.delete_Vec3d


class Quat:
    __swig_destroy__ = _osg.delete_Quat


class Matrixd:
    __swig_destroy__ = _osg.delete_Matrixd


_osg.Matrixd_swigregister(Matrixd)
_osg.Vec3f_swigregister(Vec3f)
_osg.Vec3d_swigregister(Vec3d)
_osg.Quat_swigregister(Quat)


class Proxy:
    """A minimal proxy: a plain instance whose `this` is the pointer object."""


v = _osg.new_Vec3f(1.0, 2.0, 3.0)  # a bare pointer object (constructors never shadow)
w = _osg.new_Vec3f(4.0, 5.0, 6.0)
p = Proxy()
p.this = v
q = _osg.new_Quat()
axis3d = _osg.new_Vec3d(0.0, 0.0, 1.0)
m = _osg.new_Matrixd(*range(16))


# ---- timed loops: each runs its call n times with everything bound to locals ----------

def loop_empty(n, f=None, a=None):
    for _ in repeat(None, n):
        pass


def one_arg(fn, arg):
    """A loop calling fn(arg), with both bound as locals so lookups do not count."""
    def loop(n, f=fn, a=arg):
        for _ in repeat(None, n):
            f(a)
    return loop


def two_args(fn, arg1, arg2):
    def loop(n, f=fn, a=arg1, b=arg2):
        for _ in repeat(None, n):
            f(a, b)
    return loop


loop_meth_o = one_arg(_floor.meth_o, v)
loop_varargs2 = two_args(_floor.varargs2, v, w)


def loop_raise_floor(n, f=_floor.varargs2, a=v, E=TypeError):
    for _ in repeat(None, n):
        try:
            f(a)
        except E:
            pass


loop_length_bare = one_arg(_osg.Vec3f_length, v)
loop_length_proxy = one_arg(_osg.Vec3f_length, p)
loop_add = two_args(_osg.Vec3f___add__, v, w)


def loop_new_delete(n, new=_osg.new_Vec3f, delete=_osg.delete_Vec3f):
    for _ in repeat(None, n):
        delete(new(1.0, 2.0, 3.0))


def loop_new_drop(n, new=_osg.new_Vec3f):
    for _ in repeat(None, n):
        new(1.0, 2.0, 3.0)


def loop_make_rotate(n, f=_osg.Quat_makeRotate, a=q, angle=1.0, axis=axis3d):
    for _ in repeat(None, n):
        f(a, angle, axis)


def loop_matrix_rotate(n, f=_osg.Matrixd_makeRotate, a=m, angle=1.0, axis=axis3d):
    for _ in repeat(None, n):
        f(a, angle, axis)


loop_matrix_mul = two_args(_osg.Matrixd___mul__, m, axis3d)
loop_get_trans = one_arg(_osg.Matrixd_getTrans, m)


def loop_overload_error(n, new=_osg.new_Vec3f, E=TypeError):
    for _ in repeat(None, n):
        try:
            new(1, 2)
        except E:
            pass


# (key, label, loop, floor key, calls per iteration)
FLOORS = [
    ("meth_o", "_floor.meth_o(v)  [METH_O floor]", loop_meth_o),
    ("varargs", "_floor.varargs2(v, w)  [VARARGS floor]", loop_varargs2),
    ("raise", "_floor.varargs2(v) -> TypeError, caught", loop_raise_floor),
]
CASES = [
    ("length_bare", "Vec3f_length(v), bare pointer object", loop_length_bare, "meth_o"),
    ("length_proxy", "Vec3f_length(p), proxy instance", loop_length_proxy, "meth_o"),
    ("add", "Vec3f___add__(v, w) -> shadow Vec3f, freed", loop_add, "varargs"),
    ("new_delete", "delete_Vec3f(new_Vec3f(1.0, 2.0, 3.0))", loop_new_delete, "new_delete"),
    ("new_drop", "new_Vec3f(1.0, 2.0, 3.0), dropped", loop_new_drop, "varargs"),
    ("make_rotate", "Quat_makeRotate(q, 1.0, axis3d)", loop_make_rotate, "varargs"),
    ("matrix_mul", "Matrixd___mul__(m, v3d) -> shadow Vec3d, freed", loop_matrix_mul, "varargs"),
    ("matrix_rotate", "Matrixd_makeRotate(m, 1.0, axis3d), 8 candidates", loop_matrix_rotate, "varargs"),
    ("get_trans", "Matrixd_getTrans(m) -> shadow Vec3d, freed", loop_get_trans, "meth_o"),
    ("overload_error", "new_Vec3f(1, 2) -> TypeError, caught", loop_overload_error, "varargs"),
]
GOALS = {"length_bare": 1.5, "length_proxy": 2.5}


def measure(loops, repeats, calls):
    """Runs every loop `repeats` times, interleaved so drift hits all cases alike."""
    samples = {key: [] for key, _ in loops}
    for key, loop in loops:  # warm-up: specialise the bytecode, fill the free lists
        loop(calls // 10)
    gc_was_enabled = gc.isenabled()
    gc.disable()
    try:
        for _ in range(repeats):
            for key, loop in loops:
                t0 = clock()
                loop(calls)
                samples[key].append(clock() - t0)
    finally:
        if gc_was_enabled:
            gc.enable()
    return samples


def main():
    ap = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    ap.add_argument("--repeats", type=int, default=7)
    ap.add_argument("--calls", type=int, default=200_000)
    args = ap.parse_args()
    repeats, calls = args.repeats, args.calls

    loops = [("empty", loop_empty)] + [(k, f) for k, _, f in FLOORS] + [(k, f) for k, _, f, _ in CASES]
    started = clock()
    samples = measure(loops, repeats, calls)
    elapsed = (clock() - started) / 1e9

    overhead = statistics.median(samples["empty"]) / calls

    def ns(key):  # median ns per iteration, empty loop subtracted; also the spread
        per = [s / calls - overhead for s in samples[key]]
        return statistics.median(per), min(per), max(per)

    med = {key: ns(key) for key, _ in loops if key != "empty"}
    floor = {key: med[key][0] for key, _, _ in FLOORS}
    # A constructor and a destructor: one VARARGS call and one METH_O call.
    floor["new_delete"] = floor["varargs"] + floor["meth_o"]
    floor_name = {"meth_o": "METH_O", "varargs": "VARARGS", "new_delete": "VARARGS+METH_O"}

    print(f"_osg call benchmark  (Python {sys.version.split()[0]}, {_osg.__file__})")
    print(f"{repeats} repeats x {calls:,} calls per case, interleaved; gc disabled while timing;")
    print(f"ns per call = median over repeats, empty-loop cost ({overhead:.1f} ns/iteration) subtracted;")
    print("min..max is the spread of the repeats.  Vec3f, Vec3d, Quat and Matrixd are registered with")
    print("__swig_destroy__ (owned results free their C++ object, by-value results are shadow instances).")
    print()

    w_label = max(len(label) for _, label, *_ in FLOORS + CASES)
    head = f"{'case':<{w_label}}  {'ns/call':>8}  {'min..max':>13}  {'floor':>14}  {'ratio':>6}  {'goal':>6}"
    rule = "-" * len(head)

    def line(label, key, floor_key=None):
        m, lo, hi = med[key]
        spread = f"{lo:.1f}..{hi:.1f}"
        text = f"{label:<{w_label}}  {m:8.1f}  {spread:>13}"
        if floor_key:
            ratio = m / floor[floor_key]
            goal = GOALS.get(key)
            verdict = ""
            if goal:
                verdict = f"{'<=' if ratio <= goal else '>'}{goal:g}x"
                verdict = f"{verdict:>6}  {'met' if ratio <= goal else 'MISSED'}"
            text += f"  {floor_name[floor_key]:>14}  {ratio:5.2f}x  {verdict}"
        print(text.rstrip())

    print(head)
    print(rule)
    for key, label, _ in FLOORS:
        line(label, key)
    print(rule)
    for key, label, _, floor_key in CASES:
        line(label, key, floor_key)
    print(rule)
    print(f"overload failure vs the raising floor: {med['overload_error'][0] / floor['raise']:.2f}x "
          f"({med['overload_error'][0]:.1f} vs {floor['raise']:.1f} ns)")
    print()
    print("Goals: Vec3f_length on a bare pointer object within 1.5x the METH_O floor;")
    print("       Vec3f_length through a proxy instance within 2.5x the METH_O floor.")
    print("Floors: VARARGS is varargs2(a, b) (size-checked tuple, returns None); new+delete is")
    print("        compared with one VARARGS plus one METH_O floor call.")
    print(f"Total time {elapsed:.1f} s.")


if __name__ == "__main__":
    main()
