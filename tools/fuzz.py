"""Calls every function of _osg and its sibling modules with random argument lists and checks that each call returns
or raises a Python exception; hard crashes and hangs are caught by running the calls in
chunks in child interpreters and replayed to a one-line reproducer.

    python3 tools/fuzz.py [N] [--seed S] [--chunk C]     (or ./run fuzz [N])
    python3 tools/fuzz.py --leaks     the leak tests with 10**4 calls a row (./run fuzz --leaks)

The functions come from dir() of each module (a sibling's named `_osgdraw.Geometry_...`); a probe in a child interpreter learns each one's argument
counts and types from its own messages (count messages, "argument k of type 'T'", overload
prototypes), without running it. Arguments are numbers at the edges of every integer range,
floats with nan and inf, booleans, strings, bytes, None, tuples, lists, plain objects and
classes, objects whose `this` is wrong, refers to itself or raises, and fresh proxies of every
class the module or its siblings make, bare or behind a `this`. Every argument is made afresh
for its call; only the values of _osgvalues (whose classes it registers) are destroyed by a
destroy function, after their call. Registration hooks are called too, so registered classes
also take part.

Hazards kept on purpose, which the harness never produces:
- None as argument 1 (the object itself: the member runs on a null object).
- None where OSG dereferences the pointer: the (function, argument) pairs of NULL_DEREF.
- Unchecked indices, and indices, counts and sizes OSG grows its containers to (context ids,
  texture units, switch positions, uniform element counts): the pairs of INDICES and SIZES get
  only integers no C++ integer type holds, so that only the overflow error is exercised.
- GL work without a GL context: the `_apply`, `_compileGLObjects` and `_copyTex...` functions
  never get the sibling's osg::State, and what opens windows or renders (a viewer's realize,
  run, frame...) never gets its argument 1 (it would wait for a display or draw without one).
- Files: the calls run in a fresh temporary directory, which is all osgDB writes into.
- Element pointers read past their end: element pointers come only from 16-element matrices,
  as long as anything reads.
- Use after an explicit delete: an argument is never used again after its call, so neither
  `delete_<Class>`, `intrusive_ptr_release` nor a container dropping an object of count 0
  leaves a dangling pointer that a later call reads.
"""
import json
import os
import random
import re
import subprocess
import sys
import time

HERE = os.path.dirname(os.path.abspath(__file__))
BUILD = os.environ.get("OSG_BUILD_DIR") or os.path.join(HERE, os.pardir, "build")
TESTS = os.path.join(HERE, os.pardir, "tests")

# None reaches OSG, which dereferences it: (function, 1-based argument).
NULL_DEREF = {("NotifyHandler_notify", 3), ("StandardNotifyHandler_notify", 3), ("Referenced_addObserver", 2),
              ("StateSet_setAssociatedModes", 2), ("StateSet_removeAssociatedModes", 2),
              ("StateSet_setAssociatedTextureModes", 3), ("StateSet_removeAssociatedTextureModes", 3),
              ("Matrixd_set", 2), ("Matrixf_set", 2),  # None takes set(float const *) and is read
              ("CameraRenderOrderSortOp___call__", 2), ("CameraRenderOrderSortOp___call__", 3)}
# Indices OSG reads without a bound check, or grows a container to: (function, 1-based argument).
INDICES = {("Group_getChild", 2), ("Geode_getDrawable", 2), ("Node_getParent", 2), ("Node_getDescription", 2),
           ("StateAttribute_getParent", 2), ("StateSet_getParent", 2), ("Switch_getValue", 2),
           ("ClipNode_getClipPlane", 2), ("Matrixd___call__", 2), ("Matrixd___call__", 3), ("Matrixf___call__", 2),
           ("Matrixf___call__", 3), ("Texture2D_getModifiedCount", 2), ("Texture2D_isDirty", 2),
           ("Switch_setValue", 2), ("Switch_setSingleChildOn", 2), ("StateSet_setTextureMode", 2),
           ("StateSet_setTextureAttribute", 2), ("StateSet_setTextureAttributeAndModes", 2), ("StateSet_setAssociatedTextureModes", 2),
           ("StateSet_getOrCreateUniform", 4)}
# The same in the siblings: image texels, array elements and primitive indices OSG reads or
# writes unchecked; texture units and attribute indices it grows its lists to; image and array
# sizes it allocates at once (too big, they throw from inside OSG, as they would in C++); and
# image dimensions it loops over halving (a negative one never reaches zero); row packings it
# divides by.
ARRAYS = ["Array", "Vec2Array", "Vec3Array", "Vec4Array"]
INDICES |= {(f"_osgdraw.{f}", k) for f, ks in [
    ("Image_getColor", (2, 3, 4)), ("Image_setColor", (3, 4, 5)), ("Image_allocateImage", (2, 3, 4)),
    ("Image_scaleImage", (2, 3, 4)), ("Image_copySubImage", (2, 3, 4)), ("Image_computeNumberOfMipmapLevels", (1, 2, 3)),
    ("Image_computeImageSizeInBytes", (1, 2, 3, 6)),
    ("Image_computeRowWidthInBytes", (4,)), ("Image_allocateImage", (7,)), ("PrimitiveSet_index", (2,)), ("DrawElementsUInt_index", (2,)),
    ("DrawElementsUInt_getElement", (2,)), ("DrawElementsUInt_setElement", (2,)), ("Geometry_getPrimitiveSet", (2,)),
    ("Geometry_setTexCoordArray", (2,)), ("Geometry_setVertexAttribArray", (2,)), ("new_DrawElementsUInt", (2,))]
    + [(f"{a}_compare", (2, 3)) for a in ARRAYS] + [(f"new_{a}", (1, 2)) for a in ARRAYS] for k in ks}
# Sizes OSG resizes its per-context buffers and its arrays to (argument 2): a size too big
# to allocate throws from inside OSG, as it would in C++.
SIZES = re.compile(r"(.*_)?resizeGLObjectBuffers$|.*_(reserve|resize|reserveArray|resizeArray|reserveElements|resizeElements)$")
# GL work needs a context, which no test process has: these never get a live osg::State.
STATE = "_osgpeer.make_state()"
GL_WORK = re.compile(r".*_(apply|compileGLObjects|copyTexImage2D|copyTexSubImage2D)$")
WINDOWED = re.compile(r"_osgViewer\.(\w*_(realize|run|frame|renderingTraversals|setUpView\w*|startThreading|setUpThreading"
                      r"|advance|eventTraversal|updateTraversal|checkEvents|checkWindowStatus)|frameImage|offscreenViewer)$")
MODULES = ["_osg", "_osgdraw", "_osgDB", "_osgViewer", "_osgproxy"]
NAMESPACES = ["osg", "osgUtil", "osgDB", "osgViewer", "osgGA"]

INTS = ["0", "1", "-1", "127", "-128", "255", "32767", "-32768", "65535", "2147483647", "-2147483648",
        "2147483648", "-2147483649", "4294967295", "4294967296", "9223372036854775807", "-9223372036854775808",
        "9223372036854775808", "18446744073709551615", "18446744073709551616", "-18446744073709551617", "10**30"]
HUGE = ["18446744073709551616", "-18446744073709551617", "10**30"]  # too big for any C++ integer
FLOATS = ["0.0", "-0.0", "1.5", "-2.5", "float('nan')", "float('inf')", "float('-inf')", "1e308", "-1e308",
          "5e-324", "3.4028234663852886e+38", "3.5e+38", "1e-45"]
BOOLS = ["True", "False"]
STRS = ["''", "'abc'", "'a\\x00b'", "'\\udcff'", "'\\xe9\\u20ac'", "'x' * 4096"]
OTHERS = ["None", "b''", "b'abc'", "()", "(1, 2.0)", "[]", "[1.0, 2.0, 3.0]", "{}", "object()",
          "type('K', (), {})", "type('K', (), {})()",
          "type('T', (), {'this': 5})()", "type('T', (), {'this': object()})()",
          "type('T', (), {'this': property(lambda s: 1 / 0)})()",
          "(lambda o: setattr(o, 'this', o) or o)(type('T', (), {})())"]
# A triangle, never freed.
GEOMETRY = ("(lambda g, v, e: (_osgdraw.Geometry_setVertexArray(g, v), _osgdraw.Geometry_addPrimitiveSet(g, e), "
            "v.disown(), e.disown(), g.disown(), g)[-1])(_osgdraw.new_Geometry(), "
            "_osgdraw.new_Vec3Array([(0, 0, 0), (1, 0, 0), (0, 1, 0)]), _osgdraw.new_DrawElementsUInt(_osgvalues.glenum(4), [0, 1, 2]))")
# The siblings' values; those of _osgvalues are owned and free themselves after their call.
PEER = [GEOMETRY, f"_osgvalues.pointer(int({GEOMETRY}), 'osg::Drawable *')", "_osgvalues.node_path([])",
        "_osgvalues.node_path([_osg.new_Group(), _osg.new_MatrixTransform()])",
        "_osgvalues.bounding_box(0, 0, 0, 1, 1, 1)", "_osgvalues.bounding_sphere(0, 0, 0, 1)",
        "_osgvalues.description_list(['a'])", "_osgvalues.value_list([True, False])",
        "_osgvalues.vec3f_list([(0, 0, 0), (1, 1, 1)])", "_osgvalues.vec3d_list([(0, 0, 0)])",
        "_osgvalues.glenum(0x0B60)", "_osgvalues.glenum(0x0DE1)", "_osgvalues.glenum(0xFFFFFFFF)",
        "_osgvalues.glbitfield(0x4100)", "_osgvalues.uniform_type(0x1406)", "_osgvalues.string('name')",
        "_osgvalues.string('')", "_osgpeer.make_image(4, 4)", "_osgpeer.make_state()",
        "_osgpeer.make_mode_usage()", "_osgpeer.special_node()",
        "_osg.Matrixd_ptr(_osg.new_Matrixd())", "_osg.Matrixf_ptr(_osg.new_Matrixf())"]
P_SHAPE, P_HINT = 0.85, 0.8  # how often a call follows a learned shape, an argument its learned type


def functions(module):
    builtin = type(len)
    prefix = "" if module.__name__ == "_osg" else module.__name__ + "."
    return sorted(prefix + n for n in dir(module) if type(getattr(module, n)) is builtin)


def callee(ns, name):
    """The function a table name stands for: `Vec3f_length` is _osg's, `_osgDB.readNodeFile` a sibling's."""
    module, _, fn = name.rpartition(".")
    return getattr(ns[module or "_osg"], fn)


def classes(module):
    return sorted({n[4:] for n in dir(module) if n.startswith("new_")} |
                  {n[:-13] for n in dir(module) if n.endswith("_swigregister")})


# ---- probe: learns shapes without running the functions ----------------------------------------------

def split_params(text):
    out, depth, cur = [], 0, ""
    for ch in text:
        depth += ch == "<"
        depth -= ch == ">"
        if ch == "," and not depth:
            out.append(cur)
            cur = ""
        else:
            cur += ch
    return [p for p in out + [cur] if p]


def probe():
    """Runs in a child: returns the table {"tokens": [...], "groups": {...}, "shapes": {name: [[group]]}}."""
    ns = siblings()
    _osgpeer = ns["_osgpeer"]
    objects = [f"{m}.new_{c}()" for m in MODULES for c in classes(ns[m]) if hasattr(ns[m], f"new_{c}")]
    objects = [e for e in objects if _try(lambda e=e: eval(e, ns))] + PEER
    objects += [f"type('T', (), {{'this': {e}}})()" for e in objects if ".new_" in e]
    made = {e: eval(e, ns) for e in objects}
    groups = {"ints": INTS, "nums": FLOATS + INTS, "bools": BOOLS, "strs": STRS + ["None"]}
    sentinel, arg_error = object(), re.compile(r"in method '[^']*', argument (\d+) of type '(.*)'$")

    def group(typ):
        base = re.sub(r"\b(const)\b|[&*]", "", typ).strip()
        if base == "bool":
            return "bools"
        if base == "char" and "*" in typ:
            return "strs"
        name = _osgpeer.type_query(base + " *")
        if name is None or ("*" not in typ and "&" not in typ and not name.startswith(("_p_osg", "_p_std", "_p_GL"))):
            return "nums" if base in ("float", "double") or base.endswith("value_type") else "ints"
        key = "ptr:" + name
        if key not in groups:
            groups[key] = [e for e in objects if _osgpeer.convert(made[e], name, 4, 0)[0] == 0]
        return key

    def class_group(cls):
        spelled = [f"{n}::{cls} *" for n in NAMESPACES if _osgpeer.type_query(f"{n}::{cls} *")]
        return group(spelled[0]) if spelled else "any"

    def good(g):
        return made[groups[g][0]] if groups[g] and groups[g][0] in made else eval(groups[g][0], ns) \
            if groups[g] else None

    shapes = {}
    for name in [n for m in MODULES for n in functions(ns[m])]:
        short = name.rpartition(".")[2]
        if short.endswith("_swigregister"):
            shapes[name] = [["any"]]
            continue
        if short.endswith("_swiginit"):
            shapes[name] = [["any", class_group(short[:-9])]]
            continue
        f = callee(ns, name)
        text = _message(f, [sentinel] * 20)
        cls = short.split("_")[0] if short.split("_")[0] in classes(ns[name.rpartition(".")[0] or "_osg"]) else None
        self_group = class_group(cls) if cls and not short.startswith(("new_", "delete_")) else None
        if text is None:  # a binary operator answering NotImplemented
            shapes[name] = [[self_group or "any", "any"]]
        elif "takes no arguments" in text:
            shapes[name] = [[]]
        elif "takes exactly one argument" in text or " expected " in text and "Additional" not in text:
            n = 1 if "exactly one" in text else int(re.search(r"expected (\d+) arguments", text).group(1))
            args, shape = [sentinel] * n, ["any"] * n
            for k in range(n):
                hit = arg_error.search(_message(f, args) or "")
                if not hit or int(hit.group(1)) != k + 1:
                    break
                shape[k] = group(hit.group(2))
                value = good(shape[k])
                if value is None:
                    break
                args[k] = value
            shapes[name] = [shape]
        elif "prototypes are:" not in text:  # an operator answering NotImplemented, or the like
            shapes[name] = [[self_group, "any"]] if self_group else []
        else:
            top = int((re.search(r"at most (\d+) arguments", text) or re.search("()", "99")).group(1) or 99)
            found = []
            for proto in text.split("prototypes are:\n")[1].splitlines():
                owner, params = re.match(r"\s*(.*?)\((.*)\)( const)?$", proto.replace("()(", "_call(")).group(1, 2)
                params = [group(p) for p in split_params(params)]
                member = cls and not short.startswith("new_") and len(params) < top
                found.append(([group(owner.rsplit("::", 1)[0] + " *")] if member else []) + params)
                if member:
                    found.append(params)  # static members look the same
            shapes[name] = found
    return {"tokens": INTS + FLOATS + BOOLS + STRS + OTHERS + objects, "groups": groups, "shapes": shapes}


def _try(fn):
    try:
        fn()
        return True
    except Exception:
        return False


def _message(f, args):
    try:
        f(*args)
    except Exception as e:
        return str(e)
    return None


# ---- calls ---------------------------------------------------------------------------------------------

def make_calls(table, seed, chunk, size):
    """The calls of one chunk: [(function, [argument expression, ...])]; function i of the
    chunk is the (offset + i)-th of the sorted list, so every run covers every function."""
    rng = random.Random(f"{seed}:{chunk}")
    names, tokens, groups = sorted(table["shapes"]), table["tokens"], table["groups"]
    offset, calls = rng.randrange(len(names)), []
    for i in range(size):
        name = names[(offset + chunk * size + i) % len(names)]
        shapes = table["shapes"][name]
        if shapes and rng.random() < P_SHAPE:
            shape = rng.choice(shapes)
        else:
            shape = ["any"] * rng.randrange(0, 1 + max([len(s) for s in shapes] + [1]) + 1)
        args = []
        for k, g in enumerate(shape, 1):
            pool = groups.get(g) if g and rng.random() < P_HINT else None
            arg = rng.choice(pool or tokens)
            if arg == "None" and (k == 1 or (name, k) in NULL_DEREF):
                arg = "object()"
            if arg == STATE and GL_WORK.match(name) or k == 1 and WINDOWED.match(name):
                arg = "object()"
            if ((name, k) in INDICES or (k == 2 and SIZES.match(name))) and (arg in INTS or arg in BOOLS):
                arg = rng.choice(HUGE)
            args.append(arg)
        calls.append((name, args))
    return calls


def line(calls):
    """One line of Python that makes the calls; needs only sys.path to reach the modules."""
    text = "; ".join(f"{'' if '.' in name else '_osg.'}{name}({', '.join(args)})" for name, args in calls)
    return f"import {', '.join(m for m in MODULES + ['_osgpeer', '_osgvalues'] if m + '.' in text)}; " + text


def siblings():
    """The namespace arguments are made in: _osg and the sibling modules."""
    import importlib
    os.environ["OSG_PEER_NO_HANDLE"] = "1"  # GLenum's class is _osgvalues', with its destroy function
    return {m: importlib.import_module(m) for m in MODULES + ["_osgpeer", "_osgvalues"]}


def worker(table_path, seed, chunk, size, picks):
    """Child: runs the picked calls of a chunk, reporting each index on $FUZZ_FD before the call."""
    with open(table_path) as f:
        calls = make_calls(json.load(f), seed, chunk, size)
    ns = siblings()
    made = {}
    out = os.fdopen(int(os.environ["FUZZ_FD"]), "w", buffering=1)
    for i in _picks(picks, size):
        name, args = calls[i]
        out.write(f"{i}\n")
        try:
            values = [eval(made.setdefault(a, compile(a, "<arg>", "eval")), ns) for a in args]
            callee(ns, name)(*values)
        except SystemError as e:  # null returned without an exception, or the like
            out.write(f"S {i} {e!r}\n")
        except Exception:
            pass
    out.write("done\n")


def _picks(text, size):
    """"all", or indices and half-open ranges: "3,7-12"."""
    if text == "all":
        return range(size)
    out = []
    for part in text.split(","):
        a, _, b = part.partition("-")
        out += range(int(a), int(b)) if b else [int(a)]
    return out


def _cwd():
    """The temporary directory the calls run in (what osgDB writes lands there), removed at exit."""
    global _CWD
    if _CWD is None:
        import atexit
        import shutil
        import tempfile
        _CWD = tempfile.mkdtemp(prefix="osg-fuzz-")
        atexit.register(shutil.rmtree, _CWD, True)
    return _CWD


def _env(env, **more):
    """The calls' environment: the modules on the path, and no display to open windows on."""
    out = dict(env or os.environ, PYTHONPATH=os.pathsep.join([BUILD, HERE]), **more)
    out.pop("DISPLAY", None)
    return out


_CWD = None


def _limit():
    import resource
    if "asan" not in os.environ.get("LD_PRELOAD", ""):  # turns runaway allocations into bad_alloc
        resource.setrlimit(resource.RLIMIT_AS, (3 << 30, 3 << 30))


def run_worker(table_path, seed, chunk, size, picks="all", timeout=60, env=None):
    """Returns (the index of the call that crashed or hung, None, or "start" or "exit" for a
    crash outside the calls; SystemError reports)."""
    r, w = os.pipe()
    cmd = [sys.executable, __file__, "--worker", table_path, str(seed), str(chunk), str(size), picks]
    proc = subprocess.Popen(cmd, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
                            pass_fds=(w,), env=_env(env, FUZZ_FD=str(w)), preexec_fn=_limit, cwd=_cwd())
    os.close(w)
    os.set_blocking(r, False)
    text, deadline = b"", time.monotonic() + timeout
    while proc.poll() is None and time.monotonic() < deadline:
        time.sleep(0.01)
        text += _drain(r)
    if proc.poll() is None:
        proc.kill()
        proc.wait()
    text += _drain(r)
    os.close(r)
    lines = text.decode().splitlines()
    errors = [ln for ln in lines if ln.startswith("S ")]
    started = [int(ln) for ln in lines if ln.isdigit()]
    if lines and lines[-1] == "done":
        return (None if proc.returncode == 0 else "exit"), errors
    return (started[-1] if started else "start"), errors


def _drain(fd):
    chunks = []
    while True:
        try:
            data = os.read(fd, 65536)
        except BlockingIOError:
            break
        if not data:
            break
        chunks.append(data)
    return b"".join(chunks)


def crashes(code, env=None):
    """Whether a line of Python crashes or hangs a fresh interpreter."""
    try:
        done = subprocess.run([sys.executable, "-c", code], capture_output=True, timeout=60, preexec_fn=_limit,
                              env=_env(env), cwd=_cwd())
    except subprocess.TimeoutExpired:
        return True
    return done.returncode != 0 and "Traceback" not in done.stderr.decode(errors="replace")


def reproduce(table_path, table, seed, chunk, size, index, env=None):
    """Shrinks the calls of a chunk up to a crashing one to a one-line reproducer."""
    calls = make_calls(table, seed, chunk, size)
    if crashes(line([calls[index]]), env):
        return line([calls[index]])
    picks = list(range(index + 1))

    def fails(p):
        spec = f"{p[0]}-{p[-1] + 1}" if p == list(range(p[0], p[-1] + 1)) else ",".join(map(str, p))
        return run_worker(table_path, seed, chunk, size, spec, env=env)[0] == index
    lo, hi = 0, index  # the latest start from which the crash still happens
    while lo < hi:
        mid = (lo + hi + 1) // 2
        lo, hi = (mid, hi) if fails(picks[mid:]) else (lo, mid - 1)
    picks = picks[lo:]
    for i in list(picks[:-1]):
        if len(picks) > 40:
            break
        if fails([p for p in picks if p != i]):
            picks.remove(i)
    text = line([calls[p] for p in picks])
    return text if crashes(text, env) else f"# needs the raising calls too: {text}"


def make_table(path, env=None):
    done = subprocess.run([sys.executable, __file__, "--probe", path], capture_output=True, text=True, timeout=300,
                          env=_env(env), cwd=_cwd())
    if done.returncode:
        raise RuntimeError(done.stderr)
    with open(path) as f:
        return json.load(f)


def fuzz(n, seed=1, chunk_size=2000, table_path=None, env=None, log=print, table=None):
    """Runs n calls; returns (reproducers of crashes and hangs, SystemError reports). A given
    table replaces the probe's."""
    table_path = table_path or os.path.join(BUILD, "fuzz-table.json")
    if table is None:
        table = make_table(table_path, env)
    else:
        with open(table_path, "w") as f:
            json.dump(table, f)
    found, errors = [], []
    for chunk in range((n + chunk_size - 1) // chunk_size):
        size = min(chunk_size, n - chunk * chunk_size)
        start = 0
        while start < size:
            index, errs = run_worker(table_path, seed, chunk, size, f"{start}-{size}", env=env)
            errors += errs
            if index is None:
                break
            if not isinstance(index, int):  # the interpreter failed at its start or at its exit
                found.append(f"# seed {seed}, chunk {chunk} of {size}, calls {start}-{size}: crash at {index}")
                if log:
                    log(f"crash: {found[-1]}", flush=True)
                break
            repro = reproduce(table_path, table, seed, chunk, size, index, env)
            if repro not in found:
                found.append(repro)
                if log:
                    log(f"crash: {repro}", flush=True)
            start = index + 1  # go on with the rest of the chunk
        if log and (chunk + 1) % 10 == 0:
            log(f"fuzz: {min(n, (chunk + 1) * chunk_size)} calls, {len(found)} crashes", flush=True)
    return found, errors


def main(argv):
    if argv[:1] == ["--probe"]:
        with open(argv[1], "w") as f:
            json.dump(probe(), f)
        return 0
    if argv[:1] == ["--worker"]:
        worker(argv[1], int(argv[2]), int(argv[3]), int(argv[4]), argv[5])
        return 0
    import argparse
    parser = argparse.ArgumentParser(description=__doc__.split("\n\n")[0])
    parser.add_argument("n", nargs="?", type=int, default=100000)
    parser.add_argument("--seed", type=int, default=int(time.time()))
    parser.add_argument("--chunk", type=int, default=2000)
    parser.add_argument("--leaks", action="store_true", help="instead, run the leak tests with 10**4 calls a row")
    a = parser.parse_args(argv)
    if a.leaks:
        return subprocess.call([sys.executable, "-m", "pytest", "-q", "-p", "no:cacheprovider", "-k", "leak",
                                os.path.join(TESTS, "test_leaks.py")],
                               env=dict(os.environ, OSG_LEAK_CALLS="10000"))
    start = time.time()
    print(f"fuzz: {a.n} calls, seed {a.seed}")
    found, errors = fuzz(a.n, a.seed, a.chunk)
    for e in errors:
        print("SystemError:", e)
    print(f"fuzz: {a.n} calls in {time.time() - start:.0f}s: {len(found)} crashes or hangs, "
          f"{len(errors)} SystemErrors")
    return 1 if found or errors else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
