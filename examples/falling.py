"""Three dozen bodies fall onto bodies.py's ground and bounce: each frame, Python steps them under
gravity (explicit Euler, a bounce losing energy at the ground and off the walls), sets their
transforms through the osg package and draws the frame offscreen; the frames become an animated
GIF through Pillow. Prints the frames per second of stepping and drawing.

    python3 examples/falling.py [falling.gif] [FRAMES]"""
import math
import os
import sys
import tempfile
import time

import bodies
import osg
import osgDB
import osgViewer
from PIL import Image

WIDTH, HEIGHT = 640, 480
# bench/framefloor.cpp does the same steps in C++: keep the two in step.
GRAVITY, RESTITUTION, FRICTION, WALL, DT = -9.81, 0.6, 0.9, 5.0, 1.0 / 30
EYE, CENTER = osg.Vec3d(12, -16, 11), osg.Vec3d(0, 0, 1.5)


class Body:
    """A body's state beside the transform that draws it."""

    def __init__(self, index, transform, shape):
        self.transform = transform
        self.position = list(transform.getMatrix().getTrans())
        self.velocity = [1.5 * math.cos(index * 2.4), 1.5 * math.sin(index * 2.4), 0.0]
        self.rest = bodies.rest_height(shape)
        self.spin = 0.5 + (index % 3) * 0.5


def drop(count=36):
    """count bodies, shapes and colours taking turns, on a spiral from 2 to 8 units up."""
    colours = [c for c in bodies.COLOURS if c != "ground"]
    made = []
    for i in range(count):
        shape = [osg.Box(osg.Vec3f(0, 0, 0), 0.6), osg.Sphere(osg.Vec3f(0, 0, 0), 0.35),
                 osg.Capsule(osg.Vec3f(0, 0, 0), 0.25, 0.5)][i % 3]
        r = 1 + 3 * i / count
        position = (r * math.cos(i * 0.9), r * math.sin(i * 0.9), 2 + 6 * i / count)
        made.append((bodies.body(f"body {i}", shape, colours[i % len(colours)], position), shape))
    root = bodies.world([transform for transform, _ in made])
    return root, [Body(i, transform, shape) for i, (transform, shape) in enumerate(made)]


def step(state, t):
    """One step of DT for every body, and its transform set to where it is now."""
    for b in state:
        p, v = b.position, b.velocity
        v[2] += GRAVITY * DT
        p[0] += v[0] * DT
        p[1] += v[1] * DT
        p[2] += v[2] * DT
        if p[2] < b.rest:
            p[2] = 2 * b.rest - p[2]
            v[2] = -v[2] * RESTITUTION
            v[0] *= FRICTION
            v[1] *= FRICTION
        for axis in (0, 1):
            if abs(p[axis]) > WALL:
                p[axis] = math.copysign(2 * WALL, p[axis]) - p[axis]
                v[axis] = -v[axis]
        b.transform.setMatrix(osg.Matrixd.rotate(b.spin * t, 0, 0, 1) * osg.Matrixd.translate(*p))


def picture(image):
    """The frame as Pillow's, top row first: through the image's buffer where this build has one,
    else through a PNG that OSG writes."""
    try:
        pixels = memoryview(image)  # type: ignore[arg-type]
    except TypeError:
        with tempfile.TemporaryDirectory() as folder:
            path = os.path.join(folder, "frame.png")
            osgDB.writeImageFile(image, path)
            with Image.open(path) as png:
                return png.convert("RGB")
    return Image.frombytes("RGBA", (image.s(), image.t()), pixels.tobytes(), "raw", "RGBA", 0, -1).convert("RGB")


def main():
    filename = sys.argv[1] if len(sys.argv) > 1 else "falling.gif"
    frames = int(sys.argv[2]) if len(sys.argv) > 2 else 90
    root, state = drop()
    osgViewer.render(root, WIDTH, HEIGHT)  # the display and the viewer are made before the clock starts
    images, drawing = [], 0.0
    for i in range(frames):
        start = time.perf_counter()
        step(state, i * DT)
        image = osgViewer.render(root, WIDTH, HEIGHT, EYE, CENTER, bodies.UP, bodies.SKY)
        drawing += time.perf_counter() - start
        images.append(picture(image).resize((WIDTH // 2, HEIGHT // 2), Image.Resampling.LANCZOS))
    images[0].save(filename, save_all=True, append_images=images[1:], duration=round(DT * 1000), loop=0)
    print(f"{len(state)} bodies, {frames} frames of {WIDTH}x{HEIGHT}: {frames / drawing:.1f} frames per second "
          f"stepped and drawn; written to {filename}")


if __name__ == "__main__":
    main()
