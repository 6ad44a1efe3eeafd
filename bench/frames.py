"""Frames per second of examples/falling.py's scene (36 bodies) at 640x480 offscreen, on one
offscreen viewer:

- python: falling.py's step, its transforms set through the osg package, then the viewer's frame()
  through osgViewer;
- render: the same step, then osgViewer.render(), which also places the camera and copies the
  picture out;
- C++: the same steps on the same transforms done in C++, each followed by Viewer::frame()
  (_framefloor, bench/framefloor.cpp, a module only this benchmark loads): the floor for Python
  driving it.

Each runs ROUNDS times, interleaved, with every frame timed alone. The machine is shared, so the
figure of each is its lower quartile of frame times (the frames others left alone), beside the
median. Prints the figures and the ratio of a Python-driven frame to the C++ one; asserts
nothing.

    tools/toolchain.sh python3 bench/frames.py [FRAMES]"""
import os
import statistics
import sys
import time

HERE = os.path.dirname(os.path.abspath(__file__))
sys.path[:0] = [os.environ.get("OSG_BUILD_DIR") or os.path.join(HERE, os.pardir, "build"), os.path.join(HERE, os.pardir, "examples")]

import _framefloor  # noqa: E402
import bodies  # noqa: E402
import falling  # noqa: E402
import osg  # noqa: E402
import osgViewer  # noqa: E402

WIDTH, HEIGHT, WARM, ROUNDS = 640, 480, 10, 5
VIEWER = osgViewer.offscreenViewer(WIDTH, HEIGHT, osgViewer._display_name())
VIEWER.getCamera().setViewMatrixAsLookAt(falling.EYE, falling.CENTER, bodies.UP)


def start():
    """A fresh drop on the viewer, stepped and drawn WARM frames so that its GL objects exist."""
    root, state = falling.drop()
    VIEWER.setSceneData(root)
    for i in range(WARM):
        falling.step(state, i * falling.DT)
        VIEWER.frame()
    return root, state


def python(frames):
    _, state = start()
    clock, seconds = time.perf_counter, []
    for i in range(WARM, WARM + frames):
        begin = clock()
        falling.step(state, i * falling.DT)
        VIEWER.frame()
        seconds.append(clock() - begin)
    return seconds


def render(frames):
    root, state = start()
    clock, seconds = time.perf_counter, []
    for i in range(WARM, WARM + frames):
        begin = clock()
        falling.step(state, i * falling.DT)
        osgViewer.render(root, WIDTH, HEIGHT, falling.EYE, falling.CENTER, bodies.UP)
        seconds.append(clock() - begin)
    return seconds


def cxx(frames, draw=True):
    _, state = start()
    assert type(VIEWER) is osgViewer.Viewer and all(type(b.transform) is osg.MatrixTransform for b in state)
    return _framefloor.frames(int(VIEWER.this) if draw else 0, [(int(b.transform.this), *b.position, *b.velocity,
                                                                 b.rest, b.spin) for b in state], frames, WARM * falling.DT)


def steps(frames):
    """Python's steps alone: what it adds to a frame, without the drawing's noise."""
    _, state = start()
    clock, seconds = time.perf_counter, []
    for i in range(WARM, WARM + frames):
        begin = clock()
        falling.step(state, i * falling.DT)
        seconds.append(clock() - begin)
    return seconds


def main():
    frames = int(sys.argv[1]) if len(sys.argv) > 1 else 300
    runs = {"python": python, "render": render, "C++": cxx, "python steps": steps,
            "C++ steps": lambda n: cxx(n, draw=False)}
    times = {name: [] for name in runs}
    for _ in range(ROUNDS):
        for name, run in runs.items():
            times[name] += run(frames)
    ms = {name: 1000 * statistics.quantiles(v, n=4)[0] for name, v in times.items()}
    median = {name: 1000 * statistics.median(v) for name, v in times.items()}
    print(f"36 bodies, {WIDTH}x{HEIGHT}, {ROUNDS} x {frames} frames each; lower quartile (median) of a frame:")
    for name in ("python", "render", "C++"):
        print(f"  {name:7} {1000 / ms[name]:7.1f} frames per second  {ms[name]:7.3f} ms a frame  ({median[name]:.3f} ms)")
    print(f"  python / C++ {ms['python'] / ms['C++']:.3f} ({median['python'] / median['C++']:.3f})   "
          f"render / C++ {ms['render'] / ms['C++']:.3f} ({median['render'] / median['C++']:.3f})")
    share = ms["python steps"] - ms["C++ steps"]
    print(f"  the steps alone: Python {ms['python steps']:.3f} ms, C++ {ms['C++ steps']:.3f} ms a frame; Python adds "
          f"{share:.3f} ms to a {ms['C++']:.3f} ms frame: {(ms['C++'] + share) / ms['C++']:.3f} x")


main()
