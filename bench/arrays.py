"""Building a 10^6-vertex Vec3Array from a buffer, next to copying the same 12 MB.

Prints, for each source, the minimum over REPEATS runs of the time to build the array (the
array is freed outside the timed part), and its ratio to the floor: `bytearray(view)`, which
also allocates and copies 12 MB. `ctypes.memmove` into memory allocated beforehand is shown
too (a copy without the allocation and first-touch page faults). The goal is a ratio of 2 or
less for the buffer sources. Figures only; nothing is asserted.

    tools/toolchain.sh python3 bench/arrays.py [--vertices N] [--repeats N]
"""
import argparse
import array
import ctypes
import gc
import os
import sys
import time

sys.path.insert(0, os.environ.get("OSG_BUILD_DIR") or os.path.join(os.path.dirname(__file__), "..", "build"))

import _osg  # noqa: E402
import _osgdraw  # noqa: E402

try:
    import numpy
except ImportError:
    numpy = None

clock = time.perf_counter


def best(make, free, repeats):
    """The shortest time of make() over the runs; free(result) is not timed."""
    times = []
    for _ in range(repeats):
        gc.collect()
        start = clock()
        out = make()
        times.append(clock() - start)
        free(out)
        del out
    return min(times)


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--vertices", type=int, default=10**6)
    parser.add_argument("--repeats", type=int, default=15)
    args = parser.parse_args()
    n, repeats = args.vertices, args.repeats
    floats = array.array("f", range(3 * n))
    raw = floats.tobytes()
    flat = memoryview(raw).cast("f")
    shaped = memoryview(raw).cast("f", (n, 3))
    target = ctypes.create_string_buffer(len(raw))

    def build(source):
        return lambda: _osgdraw.new_Vec3Array(source)

    floor = best(lambda: bytearray(flat), lambda b: None, repeats)
    copy = best(lambda: ctypes.memmove(target, raw, len(raw)), lambda r: None, repeats)
    rows = [("bytearray(view), the floor", floor), ("ctypes.memmove into allocated memory", copy)]
    sources = [("array.array('f'), 3N floats", floats), ("memoryview of bytes as 'f'", flat),
               ("memoryview of bytes as 'f', (N, 3)", shaped)]
    if numpy is not None:
        sources.append(("numpy float32 (N, 3)", numpy.arange(3 * n, dtype=numpy.float32).reshape(n, 3)))
    for label, source in sources:
        rows.append((f"new_Vec3Array({label})", best(build(source), _osg.delete_Referenced, repeats)))
    points = [tuple(map(float, range(i, i + 3))) for i in range(0, 3 * min(n, 10**5), 3)]
    list_time = best(build(points), _osg.delete_Referenced, max(3, repeats // 5)) * n / len(points)
    rows.append(("new_Vec3Array(list of 3-tuples), scaled", list_time))

    print(f"Vec3Array of {n} vertices ({len(raw) / 1e6:.0f} MB), minimum of {repeats} runs"
          + ("" if numpy else "; NumPy not importable"))
    for label, t in rows:
        print(f"  {label:<58} {t * 1e3:9.3f} ms  {t / floor:6.2f}x")


if __name__ == "__main__":
    main()
