"""Every class function, called many times with good and with bad arguments, leaves the
arguments' reference counts, the C++ heap, Python's allocated blocks and the RSS flat."""
import gc
import importlib
import os
import sys

import pytest

from engine_rows import ALL
from scene_rows import SCENE
from test_draw_geometry import mesh
from engine_support import SwigPyObject, V, _osg, _osgpeer, free_borrowed, heap_bytes, mk, release, rss_bytes  # noqa: F401

N = int(os.environ.get("OSG_LEAK_CALLS", 4000))  # `./run fuzz --leaks` uses 10**4
NUMBERS = {"x": 1.0, "i": 0, "b": True, "t": "name", "n": None}
NAMED = {"F": "Vec3f", "G": "Vec3d", "E": "Vec4f", "H": "Vec4d", "Q": "Quat", "M": "Matrixd", "N": "Matrixf",
         "c": "CopyOp", "o": "DummyObject", "r": "Referenced", "h": "StandardNotifyHandler"}
# Values made by the sibling modules (given the Env), and element pointers of a matrix.
VALUES = {"L": lambda e: V.vec3f_list([(0, 0, 0), (1, 1, 1)]), "K": lambda e: V.vec3d_list([(0, 0, 0)]),
          "B": lambda e: V.bounding_sphere(0, 0, 0, 1), "X": lambda e: V.bounding_box(0, 0, 0, 1, 1, 1)}
NAMED.update({"A": "Fog"})
# Render-state values; a state, an image and a mode usage only the test peer makes.
VALUES.update({"e": lambda e: V.glenum(0x0B60), "T": lambda e: V.glenum(0x0DE1), "u": lambda e: V.uniform_type(0x1406),
               "z": lambda e: V.string("name"), "a": lambda e: _osgpeer.make_state(),
               "I": lambda e: _osgpeer.make_image(4, 4), "m": lambda e: _osgpeer.make_mode_usage()})
# Good calls needing a partner call to leave the state as it was.
PAIRED = {"intrusive_ptr_add_ref": (_osg.intrusive_ptr_add_ref, _osg.intrusive_ptr_release),
          "intrusive_ptr_release": (_osg.intrusive_ptr_add_ref, _osg.intrusive_ptr_release),
          "Referenced_unref_nodelete": (_osg.intrusive_ptr_add_ref, _osg.Referenced_unref_nodelete),
          "Referenced_addObserver": (lambda r: _osg.Referenced_addObserver(r, None),
                                     lambda r: _osg.Referenced_removeObserver(r, None))}
SAME_AGAIN = {"setNotifyLevel": lambda: _osg.setNotifyLevel(_osg.getNotifyLevel()),
              "setNotifyHandler": lambda: _osg.setNotifyHandler(_osg.getNotifyHandler())}
# No good call: the handlers print each message; Quat_get needs a matrix.
NO_GOOD_CALL = {"NotifyHandler_notify", "StandardNotifyHandler_notify", "Quat_get"}
# No good call: GL work needs a context; container setters take the getters' results (tested apart).
NO_GOOD_CALL |= {f"{c}_apply" for c in ["StateAttribute", "Fog", "ColorMask", "ClipPlane", "Viewport", "Texture2D"]}
NO_GOOD_CALL |= {"Texture2D_copyTexImage2D", "Texture2D_copyTexSubImage2D", "Viewport_computeWindowMatrix"}
NO_GOOD_CALL |= {f"StateSet_set{c}List" for c in ["Mode", "Attribute", "TextureMode", "TextureAttribute", "Uniform",
                                                  "Define"]}
# Camera values.
NAMED.update({"Y": "Camera", "V": "SmoothingVisitor"})
VALUES.update({"k": lambda e: V.glbitfield(0x4100), "U": lambda e: _osgpeer.make_texture(4, 4),
               "y": lambda e: _osgpeer.affinity()})
# The scene graph: its values hang off one clip node with a clip box; a geometry from _osgdraw.
VALUES.update({"P": lambda e: V.node_path([e.clip()]), "W": lambda e: V.value_list([]),
               "1": lambda e: V.description_list(["a"]), "7": lambda e: e.mk(mesh()),
               "8": lambda e: _osg.Node_getOrCreateStateSet(e.clip()), "9": lambda e: _osg.ClipNode_getClipPlane(e.clip(), 0),
               "0": lambda e: _osg.ClipNode_getClipPlaneList(e.clip())})
# Calls that grow a list each time (or need a render info no module makes).
NO_GOOD_CALL |= {"Node_addDescription", "ClipNode_createClipBox", "Geode_compileDrawables"}


class Env:
    """The objects a row's good calls use, held for the test."""

    def __init__(self, mk, cls):
        self.mk, self.cls, self.objects = mk, cls, {}

    def make(self, cls):
        cls = {"Object": "DummyObject", "NotifyHandler": "StandardNotifyHandler", "StateAttribute": "Fog"}.get(cls, cls)
        return getattr(_osg, f"new_{cls}")(*[1.0] * (4 if cls == "Quat" else int(cls[3]) if cls[:3] == "Vec" else 0))

    def clip(self):
        if "clip" not in self.objects:
            self.objects["clip"] = self.mk(_osg.new_ClipNode())
            _osg.ClipNode_createClipBox(self.objects["clip"], self.arg("X"))
        return self.objects["clip"]

    def arg(self, code):
        if code in NUMBERS:
            return NUMBERS[code]
        if code in VALUES or code in "df":
            if code not in self.objects:
                self.objects[code] = VALUES[code](self) if code in VALUES else \
                    getattr(_osg, f"Matrix{code}_ptr")(self.arg("M" if code == "d" else "N"))
            return self.objects[code]
        key = (NAMED.get(code, self.cls), code in "vp")
        if key not in self.objects:
            self.objects[key] = self.mk(self.make(key[0]))
        return getattr(_osg, f"{self.cls}__v_get")(self.objects[key]) if code == "p" else self.objects[key]


def settle(name, result, args):
    """Gives back what a good call handed out, so that only a leak of the wrapper remains."""
    if isinstance(result, V.Value):  # a value of the sibling's classes frees itself
        return
    result = getattr(result, "this", result)  # a shadow instance of a class another test registered
    if name.endswith(("_clone", "_cloneType")):
        free_borrowed(result)
    elif isinstance(result, SwigPyObject) and result.own():
        if args and isinstance(args[0], SwigPyObject) and int(result) == int(args[0]):
            result.disown()  # in-place operator: ownership goes back to the operand
            args[0].acquire()
        else:
            release(result)


def good_calls(env, row):
    f = getattr(_osg, row.name)
    if row.name in PAIRED:
        first, second = PAIRED[row.name]
        return [lambda r=env.arg("r"): (first(r), second(r))], [env.arg("r")]
    if row.name in SAME_AGAIN:
        return [SAME_AGAIN[row.name]], []
    calls, kept = [], []
    for codes in [row.codes] if hasattr(row, "codes") else row.goods:
        fixed = [None if c == "D" else env.arg(c) for c in codes]
        kept += [a for a in fixed if a is not None]

        def call(fixed=fixed, codes=codes):
            args = [env.make(env.cls) if c == "D" else a for c, a in zip(codes, fixed)]
            settle(row.name, f(*args), args)
        calls.append(call)
    return calls, kept


def bad_calls(env, row):
    f, bad = getattr(_osg, row.name), object()
    n = len(row.codes) if hasattr(row, "codes") else max(map(len, row.goods or ["S"]))
    shapes = [(bad,) * n, (bad,) * (n + 1)] if n else []
    if n >= 2 and row.cls and not row.name.startswith(("new_", "delete_")):
        shapes.append((env.arg("S"),) + (bad,) * (n - 1))

    def call(args):
        try:
            f(*args)
        except (TypeError, OverflowError):
            pass
    return [lambda a=a: call(a) for a in shapes], [a for s in shapes for a in s]


def flat(calls, kept, n=N):
    def repeat():
        for call in calls:
            for _ in range(n):
                call()
    repeat()  # warms up the interpreter's caches and specialisations as well as the module
    gc.collect()  # the garbage of earlier tests, which the collector would otherwise free (or not) while measured
    gc.disable()  # so that a cycle a call leaves behind counts as growth
    try:
        refs, heap, blocks, rss = [sys.getrefcount(a) for a in kept], heap_bytes(), sys.getallocatedblocks(), rss_bytes()
        repeat()
    finally:
        gc.enable()
    assert [sys.getrefcount(a) for a in kept] == refs
    assert heap_bytes() - heap < 4096 + n
    # A leak per call is n blocks; the interpreter's own caches move the count by about a hundred.
    assert sys.getallocatedblocks() - blocks < max(n // 8, 256)
    # ASan's quarantine holds freed memory back, so the process grows under the sanitizers.
    assert rss_bytes() - rss < 1 << 20 or os.environ.get("OSG_SANITIZED")


@pytest.mark.parametrize("row", ALL + SCENE, ids=lambda r: r.name)
def test_repeated_calls_leak_nothing(mk, row):
    env = Env(mk, row.cls)
    if row.name not in NO_GOOD_CALL:
        flat(*good_calls(env, row))
    flat(*bad_calls(env, row))


def outside_the_tables():
    """The functions no row table names (the class hooks, the sibling modules' functions), with
    the argument counts the fuzz harness learned for them. _osgproxy's and _osgViewer's are the
    packages' test's: they would teach this process's _osg that a camera is a node."""
    import fuzz
    known = {r.name for r in ALL + SCENE}
    table = fuzz.make_table(os.path.join(fuzz.BUILD, "leak-table.json"))
    return [(n, max(map(len, table["shapes"][n]), default=0)) for n in table["shapes"]
            if n not in known and not n.startswith(("_osgproxy.", "_osgViewer."))]


@pytest.mark.parametrize("name,n", outside_the_tables(), ids=lambda v: v if isinstance(v, str) else "")
def test_functions_outside_the_tables_leak_nothing(name, n):
    module, _, short = name.rpartition(".")
    f, bad, holder = getattr(importlib.import_module(module or "_osg"), short), object(), type("Proxy", (), {})

    def call(*args):
        try:
            f(*args)
        except (TypeError, OverflowError, AttributeError):
            pass
    # A class hook given one argument registers it: only wrong counts there.
    calls = [lambda k=k: call(*[bad] * k) for k in ({0, 2} if name.endswith("_swigregister") else {max(n, 1), n + 1})]
    if name.endswith("_swiginit"):  # good: a fresh instance adopts a borrowed pointer object
        calls.append(lambda: call(holder(), _osg.cvar.X_AXIS))
    flat(calls, [bad, holder])



def test_the_packages_leak_nothing(run_py):
    """A scene of the siblings' classes built through the packages, written, read back and
    handed to a viewer, again and again; and _osgproxy's and _osgViewer's functions given bad
    arguments. In a child: they teach the ring OSG's hierarchy, which this process's _osg must not know."""
    out, _ = run_py(f"""
        import array, gc, os, sys, tempfile
        import osg, osgDB, osgViewer, _osgproxy, _osgViewer
        from engine_support import heap_bytes
        path = os.path.join(tempfile.mkdtemp(), "scene.osgt")
        viewer = osgViewer.Viewer()  # one for all: osgViewer itself keeps ~200 bytes of every viewer, in C++ too

        def cycle():
            mesh = osg.Geometry()
            mesh.setVertexArray(osg.Vec3Array([(0, 0, 0), (1, 0, 0), (0, 1, 0)]))
            mesh.setColorArray(osg.Vec4Array(array.array("f", [1.0] * 4)), osg.Array.BIND_OVERALL)
            mesh.addPrimitiveSet(osg.DrawElementsUInt(osg.PrimitiveSet.TRIANGLES, [0, 1, 2]))
            shape = osg.ShapeDrawable(osg.Capsule(osg.Vec3f(0, 0, 0), 1, 2))
            shape.setColor(osg.Vec4f(1, 0, 0, 1))
            geode = osg.Geode()
            geode.addDrawable(mesh), geode.addDrawable(shape)
            geode.getOrCreateStateSet().setAttributeAndModes(osg.Material())
            osg.Image().allocateImage(4, 4, 1, osg.GL_RGBA, osg.GL_UNSIGNED_BYTE)
            osgDB.writeNodeFile(geode, path)
            viewer.setSceneData(osgDB.readNodeFile(path))
            viewer.setCameraManipulator(osgViewer.TrackballManipulator())
            assert type(viewer.getSceneData().getDrawable(1).getShape()) is osg.Capsule

        functions = [getattr(m, n) for m in (_osgproxy, _osgViewer) for n in dir(m) if type(getattr(m, n)) is type(len)]

        def bad():
            for f in functions:
                for k in range(1 + f.__name__.endswith("_swigregister"), 5):  # one argument registers a class
                    try:
                        f(*[object()] * k)
                    except (TypeError, AttributeError):  # a class hook cannot set `this` on an object()
                        pass
        for call, n in ((cycle, {N // 10}), (bad, {N})):
            for _ in range(n):
                call()
            gc.collect()
            gc.disable()
            heap, blocks = heap_bytes(), sys.getallocatedblocks()
            for _ in range(n):
                call()
            print(n, heap_bytes() - heap, sys.getallocatedblocks() - blocks)
            gc.enable()
    """)
    figures = [tuple(map(int, line.split())) for line in out.splitlines()]
    assert len(figures) == 2 and all(heap < 4096 + n and blocks < max(n // 8, 256) for n, heap, blocks in figures), figures
