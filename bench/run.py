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

try:
    import _nbpeer as nb  # the same calls bound with nanobind, where it was built
except ImportError:
    nb = None

repeat = itertools.repeat
clock = time.perf_counter_ns


# ---- the realistic setup: classes registered as the proxy module does -----------------
# Registration gives owned pointers a destroy function (no leak message when they die)
# and makes by-value results such as Vec3f___add__'s come back as shadow instances.
for _name in ["Vec3f", "Vec3d", "Vec4d", "Quat", "Matrixd", "Matrixf"]:
    getattr(_osg, f"{_name}_swigregister")(type(_name, (), {"__swig_destroy__": getattr(_osg, f"delete_{_name}")}))


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


def three_args(fn, arg1, arg2, arg3):
    def loop(n, f=fn, a=arg1, b=arg2, c=arg3):
        for _ in repeat(None, n):
            f(a, b, c)
    return loop


def construct_drop(new, *args):
    """A constructor whose result dies at once: for _osg, new_ then delete_ by hand; for
    nanobind, the instance's own death."""
    def loop(n, f=new, a=args):
        for _ in repeat(None, n):
            f(*a)
    return loop


def failing(fn, *args):
    def loop(n, f=fn, a=args, E=TypeError):
        for _ in repeat(None, n):
            try:
                f(*a)
            except E:
                pass
    return loop


def loop_new_delete(n, new=_osg.new_Vec3f, delete=_osg.delete_Vec3f):
    for _ in repeat(None, n):
        delete(new(1.0, 2.0, 3.0))


v4d, mf = _osg.new_Vec4d(1.0, 2.0, 3.0, 1.0), _osg.new_Matrixf()
if nb:
    nv, nw, nm, naxis = nb.Vec3f(1, 2, 3), nb.Vec3f(4, 5, 6), nb.Matrixd(), nb.Vec3d(0, 0, 1)
    nv4d, nmf = nb.Vec4d(1, 2, 3, 1), nb.Matrixf()

# (key, label, _osg loop, floor key, nanobind loop or None)
FLOORS = [
    ("meth_o", "_floor.meth_o(v)  [METH_O floor]", loop_meth_o),
    ("varargs", "_floor.varargs2(v, w)  [VARARGS floor]", loop_varargs2),
    ("raise", "_floor.varargs2(v) -> TypeError, caught", loop_raise_floor),
]
CASES = [
    ("length_bare", "Vec3f_length(v), bare pointer object", one_arg(_osg.Vec3f_length, v), "meth_o",
     nb and one_arg(nb.vec3f_length, nv)),
    ("length_proxy", "Vec3f_length(p), proxy instance", one_arg(_osg.Vec3f_length, p), "meth_o",
     nb and one_arg(nb.vec3f_length, nv)),
    ("add", "Vec3f___add__(v, w) -> shadow Vec3f", two_args(_osg.Vec3f___add__, v, w), "varargs",
     nb and two_args(nb.vec3f_add, nv, nw)),
    ("get_trans", "Matrixd_getTrans(m) -> shadow Vec3d", one_arg(_osg.Matrixd_getTrans, m), "meth_o",
     nb and one_arg(nb.matrixd_get_trans, nm)),
    ("new_delete", "delete_Vec3f(new_Vec3f(1.0, 2.0, 3.0))", loop_new_delete, "new_delete",
     nb and construct_drop(nb.Vec3f, 1.0, 2.0, 3.0)),
    ("dispatch2", "Vec3f___mul__(v, w), 2 candidates", two_args(_osg.Vec3f___mul__, v, w), "varargs",
     nb and two_args(nb.vec3f_mul, nv, nw)),
    ("dispatch8", "Matrixd_makeRotate(m, 1.0, axis), 8 candidates", three_args(_osg.Matrixd_makeRotate, m, 1.0, axis3d),
     "varargs", nb and three_args(nb.matrixd_make_rotate, nm, 1.0, naxis)),
    ("dispatch16", "__mul__(v4d, mf), 16 candidates, the last", two_args(_osg.__mul__, v4d, mf), "varargs",
     nb and two_args(nb.mul, nv4d, nmf)),
    ("matrix_mul", "Matrixd___mul__(m, v3d) -> shadow Vec3d", two_args(_osg.Matrixd___mul__, m, axis3d), "varargs", None),
    ("quat_rotate", "Quat_makeRotate(q, 1.0, axis3d)", three_args(_osg.Quat_makeRotate, q, 1.0, axis3d), "varargs",
     None),
    ("overload_error", "new_Vec3f(1, 2) -> TypeError, caught", failing(_osg.new_Vec3f, 1, 2), "varargs",
     nb and failing(nb.Vec3f, 1, 2)),
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

    loops = [("empty", loop_empty)] + [(k, f) for k, _, f in FLOORS] + [(k, f) for k, _, f, _, _ in CASES]
    loops += [("nb_" + k, f) for k, _, _, _, f in CASES if f]
    started = clock()
    samples = measure(loops, repeats, calls)
    elapsed = (clock() - started) / 1e9

    overhead = statistics.median(samples["empty"]) / calls

    def ns(key):  # median ns per iteration, empty-loop cost subtracted
        return statistics.median(s / calls - overhead for s in samples[key])

    med = {key: ns(key) for key, _ in loops if key != "empty"}
    floor = {key: med[key] for key, _, _ in FLOORS}
    # A constructor and a destructor: one VARARGS call and one METH_O call.
    floor["new_delete"] = floor["varargs"] + floor["meth_o"]
    floor_name = {"meth_o": "METH_O", "varargs": "VARARGS", "new_delete": "VARARGS+O"}

    print(f"_osg call benchmark  (Python {sys.version.split()[0]}, {_osg.__file__})")
    print(f"{repeats} repeats x {calls:,} calls per case, interleaved; gc disabled while timing; ns per call is the")
    print(f"median over repeats with the empty loop ({overhead:.1f} ns/iteration) subtracted.  Vec3f, Vec3d, Quat and")
    print("Matrixd are registered with __swig_destroy__, so by-value results are shadow instances and owned")
    print("results free their C++ object.  nb: the same call bound with nanobind (bench/nbpeer.cpp)" +
          ("." if nb else "; not built here."))
    print()
    w = max(len(label) for _, label, *_ in FLOORS + CASES)
    head = (f"{'case':<{w}}  {'ns/call':>7}  {'floor':>9}  {'x floor':>7}  {'nb ns':>6}  {'x nb':>5}  "
            f"{'above floor: _osg vs nb':>24}")
    print(head)
    print("-" * len(head))
    for key, label, _ in FLOORS:
        print(f"{label:<{w}}  {med[key]:7.1f}")
    print("-" * len(head))
    for key, label, _, fkey, nbloop in CASES:
        line = f"{label:<{w}}  {med[key]:7.1f}  {floor_name[fkey]:>9}  {med[key] / floor[fkey]:6.2f}x"
        if nbloop:
            ours, theirs = med[key] - floor[fkey], med["nb_" + key] - floor[fkey]
            verdict = "<=" if ours <= theirs else ">"
            line += f"  {med['nb_' + key]:6.1f}  {med[key] / med['nb_' + key]:4.2f}x  {ours:8.1f} {verdict} {theirs:6.1f} ns"
        goal = GOALS.get(key)
        if goal:
            ratio = med[key] / floor[fkey]
            line += f"   goal <={goal:g}x floor: {'met' if ratio <= goal else 'MISSED'}"
        print(line)
    print("-" * len(head))
    print(f"overload failure vs the raising floor: {med['overload_error'] / floor['raise']:.2f}x "
          f"({med['overload_error']:.1f} vs {floor['raise']:.1f} ns)")
    print()
    print("Floors: METH_O is meth_o(v); VARARGS is varargs2(a, b) (size-checked tuple, returns None);")
    print("        a constructor and its destroy are one VARARGS plus one METH_O floor call.")
    print("Goals: a call's cost above its floor at or below nanobind's for the same call; by-value results")
    print("       within 1.5x nanobind's.")
    print(f"Total time {elapsed:.1f} s.")


if __name__ == "__main__":
    main()
