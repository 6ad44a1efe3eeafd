#!/usr/bin/env python3
"""Seeded faults: which plausible slips does the test suite catch?  Run by hand, not in CI.

    tools/mutants.py [--rev REV] [--tests REV_OR_DIR] [--only ID,ID] [--env VAR=VALUE] [--report PATH] [-- PYTEST_ARGS]
    tools/mutants.py --list
    tools/mutants.py --compare OLD.json [--report NEW.json]

The checkout it runs from is never touched: REV (default HEAD) is exported into --scratch (default
mutants-scratch beside the checkout, so that the toolchain's ../shared resolves), with the tests of
another revision or directory if asked, and built there through its own tools/toolchain.sh. The
unmodified suite must pass first. Then each fault alone is applied, rebuilt incrementally and tested
with `pytest -x` under a time limit (a hang counts as caught); its file is restored, and the next
fault's build covers the restore (faults of one file are listed together: one rebuild for both).
--env settings (e.g. OSG_LEAK_CALLS=1000) reach the test runs; compare runs with equal settings."""
import argparse
import json
import os
import re
import shutil
import signal
import subprocess
import sys
import time
from typing import NamedTuple


class Fault(NamedTuple):
    id: str
    file: str
    old: str  # must occur exactly once in the file
    new: str
    what: str


# One plausible slip each, that still compiles and changes behaviour; ids are stable (reports compare by id).
F = Fault
FAULTS = [
    F("rt-acquire-own", "runtime/pyobject.cpp", "setown((SwigPyObject *)v, SWIG_POINTER_OWN)",
      "setown((SwigPyObject *)v, 0)", "acquire() sets the own flag to 0, as disown() does"),
    F("rt-append-incref", "runtime/pyobject.cpp", "    Py_INCREF(next);\n", "",
      "append() keeps the next object without a reference"),
    F("rt-own-flag", "runtime/convert.cpp", "int own = (flags & SWIG_POINTER_OWN)",
      "int own = (flags & SWIG_POINTER_NOSHADOW)", "owned only with the no-shadow bit: by-value results unowned"),
    F("rt-disown-ignored", "runtime/convert.cpp", "        if (flags & SWIG_POINTER_DISOWN) SwigPyObject_setown(sobj, 0);\n",
      "", "conversion of the very class asked for ignores the disown flag: a destroyed object's proxy still owns it"),
    F("rt-typecheck-swap", "runtime/convert.cpp", "SWIG_TypeCheck(sobj->ty->name, ty)",
      "SWIG_TypeCheck(ty->name, sobj->ty)", "cast lookup with its arguments swapped: downcasts pass, upcasts fail"),
    F("rt-float-negative", "runtime/errors.cpp", "(v < -3.4028234663852886e+38 || v > 3.4028234663852886e+38)",
      "(v > 3.4028234663852886e+38)", "float conversion checks only the upper bound: -1e39 becomes -inf"),
    F("rt-mtf-prev", "runtime/types.cpp", "            if (it->next) it->next->prev = it->prev;\n", "",
      "move-to-front leaves the successor's back link stale (the cast list corrupts after later hits)"),
    F("rt-const-decref", "runtime/module_table.cpp", "value);\n    Py_DECREF(value);\n", "value);\n",
      "SetConstant keeps its own reference to every constant (a leak of each non-immortal int)"),
    F("rt-varlink-result", "runtime/varlink.cpp", "        return -1;\n", "        return 1;\n",
      "cvar's setattr returns 1 for an unknown name: delattr() sees success with an error set"),
    F("rt-cast-edge", "runtime/type_table.cpp",
      "    {T(ty::p_osg__Switch), upcast<osg::Switch, osg::Group>, nullptr, nullptr},\n", "",
      "the Switch -> Group cast edge removed"),
    F("rt-cast-offset", "runtime/type_table.cpp", "{T(ty::p_osg__RefMatrixd), upcast<osg::RefMatrixd, osg::Matrixd>,",
      "{T(ty::p_osg__RefMatrixd), nullptr,", "RefMatrixd -> Matrixd edge without its converter: the base offset is lost"),
    F("eng-ctor-ref", "wrap/engine.h", "                if constexpr (P.take_ref == TakeRef::Count) p->ref();\n", "",
      "constructors of counted classes no longer take their reference"),
    F("eng-notimpl-clear", "wrap/engine.h", "    PyErr_Clear();\n    Py_RETURN_NOTIMPLEMENTED;",
      "    Py_RETURN_NOTIMPLEMENTED;", "NotImplemented returned with the TypeError still set"),
    F("eng-inplace-cast", "wrap/engine.h", "int owned = self && self->ty == descriptor_for<0>() ? self->own : 0;",
      "int owned = self ? self->own : 0;", "in-place operators move ownership out of an object reached by a cast edge"),
    F("eng-msg-arity", "wrap/engine.h", '"%s expected %s%d arguments, got %d"', '"%s expected %s%d argument, got %d"',
      "one character of the single-row arity message"),
    F("eng-exact-policy", "wrap/engine.h", "disown_exact{Result::Disown, false, TakeRef::None, true}",
      "disown_exact{Result::Disown, false, TakeRef::None, false}", "delete_<value class> takes a derived object by a cast"),
    F("eng-bool-probe", "wrap/convert.h", "        return PyBool_Check(o);", "        return PyLong_Check(o);",
      "dispatchers take any int where a bool is declared"),
    F("eng-ref-owned", "wrap/convert.h", "const_cast<T *>(&r), descriptor<T>(), 0)",
      "const_cast<T *>(&r), descriptor<T>(), SWIG_POINTER_OWN)", "reference results come back owned instead of borrowed"),
    F("eng-enum-sign", "wrap/convert.h", "PyLong_FromLong(static_cast<int>(r))",
      "PyLong_FromLong(static_cast<unsigned>(r))", "enumerations read back unsigned: -1 becomes 4294967295"),
    F("eng-join-sep", "wrap/text.h", "for (std::size_t i = 0; i < Sep.length; ++i)",
      "for (std::size_t i = 0; i + 1 < Sep.length; ++i)", "join drops its separator's last character (all of a 1-char one)"),
    F("eng-hook-varargs", "wrap/hooks.h", "swigregister<T>, METH_O,", "swigregister<T>, METH_VARARGS,",
      "the <Class>_swigregister rows (METH_O) made METH_VARARGS"),
    F("node-parents-swap", "scene/node.cpp",
      'K::m<"getParents", pick<const N::ParentList &(N::*)() const>(&N::getParents)>,\n                    '
      'K::m<"getParents", pick<N::ParentList (N::*)()>(&N::getParents)>>(),',
      'K::m<"getParents", pick<N::ParentList (N::*)()>(&N::getParents)>,\n                    '
      'K::m<"getParents", pick<const N::ParentList &(N::*)() const>(&N::getParents)>>(),',
      "Node_getParents's two candidates swapped: the copying member is taken"),
    F("grp-takeref", "scene/group.cpp", "{KG::ctor<TakeRef::Group>(),", "{KG::ctor<TakeRef::Count>(),",
      "new_Group takes its reference with ref() instead of the SDK's Group_reference"),
    F("xf-eye-copy", "scene/transform.cpp", '"osg::computeEyeToLocal", osg::computeEyeToLocal>',
      '"osg::computeEyeToLocal", osg::computeLocalToEye>', "computeEyeToLocal bound to computeLocalToEye"),
    F("cam-takeref", "scene/camera.cpp", "K::ctor<TakeRef::None>());  // the new camera",
      "K::ctor<TakeRef::Count>());  // the new camera", "new_Camera takes a reference: the camera is never freed"),
    F("vec-vset-count", "math/vectors.cpp", "std::copy(from.data, from.data + N, self->_v)",
      "std::copy(from.data, from.data + N - 1, self->_v)", "_v_set copies one element too few"),
    F("vec-lt-op", "math/vectors.cpp", 'K::template op<"__lt__"', 'K::template fn<"__lt__"',
      "vector __lt__ bound as a plain row: a mismatch raises instead of answering NotImplemented"),
    F("mat-premult-scale", "math/matrices.h", '"preMultScale", &M::preMultScale,', '"preMultScale", &M::postMultScale,',
      "preMultScale's Vec3d form bound to postMultScale"),
    F("mat-inverse-copy", "math/matrices.h", '"inverse", Static1(&M::inverse)', '"inverse", Static1(&M::orthoNormal)',
      "Matrix*_inverse bound to orthoNormal (the next row's member)"),
    F("ss-setattr-modes", "state/stateset.cpp", "[](S *s, SA *a) { s->setAttribute(a); }",
      "[](S *s, SA *a) { s->setAttributeAndModes(a); }", "the short setAttribute also switches the attribute's modes on"),
    F("vp-width-height", "state/attributes.cpp", 'KV::pair<"width", Ref(&VP::width)', 'KV::pair<"width", Ref(&VP::height)',
      "Viewport_width returns the height"),
    F("mod-const-value", "module/constants.cpp", "static_cast<int>(osg::Fog::EXP2))", "static_cast<int>(osg::Fog::EXP))",
      "the constant Fog_EXP2 installed with Fog::EXP's value"),
    F("mod-axis-copy", "module/init.cpp", '"Y_AXIS", axis_get<&Y_AXIS>', '"Y_AXIS", axis_get<&X_AXIS>',
      "cvar.Y_AXIS reads the X axis"),
    F("mod-readonly-msg", "module/init.cpp", '"Variable Z_AXIS is read-only."', '"Variable Z_AXIS is read-only"',
      "one character of cvar.Z_AXIS's read-only message"),
    F("docs-line-dropped", "tools/gen_docs.py", 'pending = (pending + "\\n" + text) if pending and prev_comment else text',
      "pending = text", "docstrings keep only the last line of a // comment block"),
    F("val-uint-bound", "values/osgvalues.cpp", "if (v > 0xFFFFFFFFul)", "if (v >= 0xFFFFFFFFul)",
      "_osgvalues.glenum() and friends refuse 0xFFFFFFFF"),
    F("val-destroy-disown", "values/osgvalues.cpp", "live[I], SWIG_POINTER_DISOWN)", "live[I], 0)",
      "the value classes' destroy functions do not disown: an explicit destroy leaves an owner behind"),
    F("pkg-rmul-swap", "tools/gen_package.py", "_osg.__mul__(other, self)", "_osg.__mul__(self, other)",
      "the package's __rmul__ swaps the operands of the free product"),
    F("pkg-result-cells", "tools/gen_package.py", "isinstance(r, _READ + _CELLS)", "isinstance(r, _READ)",
      "the package no longer reads scalar references (cells) back as numbers"),
    F("pkg-index-transpose", "tools/gen_package.py", "return self._elements()[range(4)[r] * 4 + range(4)[c]]",
      "return self._elements()[range(4)[c] * 4 + range(4)[r]]", "matrix m[r, c] reads m[c, r]"),
]
PYTEST = ["python3", "-m", "pytest", "tests", "-x", "-q", "-p", "no:cacheprovider"]


def run(scratch, cmd, env=(), timeout=None):
    """cmd in the scratch tree through its toolchain: (exit status, or None past the time limit; output)."""
    full = [os.path.join(scratch, "tools", "toolchain.sh")] + (["env", *env] if env else []) + cmd
    p = subprocess.Popen(full, cwd=scratch, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, start_new_session=True)
    try:
        out, code = p.communicate(timeout=timeout)[0], p.returncode
    except subprocess.TimeoutExpired:
        os.killpg(p.pid, signal.SIGKILL)  # the whole session: toolchain, chroot, pytest and its children
        out, code = p.communicate()[0], None
    return code, out.decode(errors="replace")


def export(repo, rev, tests, scratch):
    """A fresh copy of rev (and of tests, a revision or a directory) in scratch; its top-level reports stay."""
    os.makedirs(scratch, exist_ok=True)
    marker = os.path.join(scratch, ".mutants-scratch")  # only a directory this tool made is ever cleared
    if os.listdir(scratch) and not os.path.exists(marker):
        sys.exit(f"mutants: {scratch} is not empty and not a scratch tree of this tool; refusing to clear it")
    for name in os.listdir(scratch):
        path = os.path.join(scratch, name)
        if os.path.isdir(path) and not os.path.islink(path):
            shutil.rmtree(path)
        elif not name.endswith((".json", ".log")):
            os.remove(path)
    open(marker, "w").close()

    def untar(what, *paths):
        data = subprocess.run(["git", "-C", repo, "archive", what, *paths], stdout=subprocess.PIPE, check=True).stdout
        subprocess.run(["tar", "-x", "-m", "-C", scratch], input=data, check=True)
    untar(rev)
    if tests:
        shutil.rmtree(os.path.join(scratch, "tests"))
        if os.path.isdir(tests):
            shutil.copytree(tests, os.path.join(scratch, "tests"))
        else:
            untar(tests, "tests")


def verdict(code, out):
    """(status, detail) of one test run: the first failing test's node id when caught."""
    if code is None:
        return "caught", "hang: over the time limit"
    if code == 0:
        return "MISSED", ""
    if m := re.search(r"^(?:FAILED|ERROR) (.+?)(?: - |$)", out, re.M):
        return "caught", m.group(1)
    if m := re.search(r'File "[^"]*/(tests/\w+\.py)", line \d+ in (\w+)', out):  # a crash: faulthandler's frame
        return "caught", f"{m.group(1)}::{m.group(2)} (crashed, exit {code})"
    return "caught", f"exit {code}: " + (out.strip().splitlines() or [""])[-1][:120]


def compare(old_path, new_path):
    old, new = (json.load(open(p))["results"] for p in (old_path, new_path))
    for a, b, name_a, name_b in [(old, new, old_path, new_path), (new, old, new_path, old_path)]:
        ids = [i for i, r in a.items() if r["status"] == "caught" and b.get(i, {}).get("status") != "caught"]
        print(f"caught in {name_a}, not in {name_b}: {', '.join(ids) or 'none'}")


def main():
    repo = subprocess.run(["git", "-C", os.path.dirname(os.path.abspath(__file__)), "rev-parse", "--show-toplevel"],
                          capture_output=True, text=True, check=True).stdout.strip()
    ap = argparse.ArgumentParser(description=__doc__.split("\n\n")[0])
    ap.add_argument("--rev", default="HEAD")
    ap.add_argument("--tests", help="a revision or a directory whose tests/ replace the exported ones")
    ap.add_argument("--only", help="comma-separated fault ids")
    ap.add_argument("--list", action="store_true", help="print the faults and exit")
    ap.add_argument("--scratch", default=os.path.join(os.path.dirname(repo), "mutants-scratch"))
    ap.add_argument("--report", help="JSON report (default SCRATCH/report.json)")
    ap.add_argument("--compare", metavar="OLD.json", help="compare OLD.json with --report and exit")
    ap.add_argument("--env", action="append", default=[], metavar="VAR=VALUE", help="environment of the test runs")
    ap.add_argument("--timeout", type=float, help="seconds per test run (default: twice the unmodified run, plus 60)")
    ap.add_argument("pytest_args", nargs="*", help="extra pytest arguments (after --)")
    a = ap.parse_args()
    report = a.report or os.path.join(a.scratch, "report.json")
    if a.list:
        return print("\n".join(f"{f.id:<20} {f.file:<26} {f.what}" for f in FAULTS))
    if a.compare:
        return compare(a.compare, report)
    wanted = a.only.split(",") if a.only else [f.id for f in FAULTS]
    if unknown := set(wanted) - {f.id for f in FAULTS}:
        sys.exit(f"mutants: unknown fault ids: {', '.join(sorted(unknown))}")
    faults = [f for f in FAULTS if f.id in wanted]
    sha = subprocess.run(["git", "-C", repo, "rev-parse", a.rev], capture_output=True, text=True, check=True).stdout.strip()
    start = time.time()
    export(repo, sha, a.tests, a.scratch)
    jobs = ["-j", str(os.cpu_count() or 2)]
    code, out = run(a.scratch, ["tools/build.sh"])
    if code != 0:
        sys.exit(f"mutants: the unmodified tree does not build:\n{out[-3000:]}")
    t0 = time.time()
    code, out = run(a.scratch, PYTEST + a.pytest_args, a.env)
    baseline = time.time() - t0
    if code != 0:
        sys.exit(f"mutants: the suite fails on the unmodified tree; nothing to measure:\n{out[-3000:]}")
    limit = a.timeout or 2 * baseline + 60
    print(f"rev {sha[:12]}, tests {a.tests or 'of the same revision'}; unmodified suite passes in {baseline:.0f}s; "
          f"limit {limit:.0f}s; pytest {' '.join(PYTEST[3:] + a.pytest_args)}; env {' '.join(a.env) or '-'}", flush=True)
    def save(results):
        ran = [r for r in results.values() if r["status"] in ("caught", "MISSED")]
        caught = sum(r["status"] == "caught" for r in ran)
        json.dump({"rev": sha, "tests": a.tests, "pytest": PYTEST[3:] + a.pytest_args, "env": a.env, "timeout": round(limit),
                   "baseline_seconds": round(baseline), "total_seconds": round(time.time() - start), "caught": caught,
                   "of": len(ran), "results": results}, open(report, "w"), indent=1)
        return caught, len(ran)
    caught = ran = 0
    results, logs = {}, os.path.join(a.scratch, "logs")  # each fault's build and test output
    os.makedirs(logs, exist_ok=True)
    for f in faults:
        t0, path = time.time(), os.path.join(a.scratch, f.file)
        text = open(path).read() if os.path.exists(path) else ""
        build, detail = 0.0, ""
        if (n := text.count(f.old)) != 1:
            status, detail = "not applicable", f"text found {n} times"
        else:
            try:
                open(path, "w").write(text.replace(f.old, f.new))
                code, out = run(a.scratch, ["cmake", "--build", "build", *jobs])
                build = time.time() - t0
                if code != 0:
                    status = "does not build"
                    detail = next((l.strip() for l in out.splitlines() if re.search(r"error:|Error\b", l)), "")[:160]
                else:
                    code, test_out = run(a.scratch, PYTEST + a.pytest_args, a.env, limit)
                    status, detail = verdict(code, test_out)
                    out += test_out
                open(os.path.join(logs, f"{f.id}.log"), "w").write(out)
            finally:
                open(path, "w").write(text)  # the next fault's incremental build covers the restore
        secs = time.time() - t0
        results[f.id] = {"status": status, "seconds": round(secs), "build_seconds": round(build), "test": detail,
                         "file": f.file, "what": f.what}
        print(f"{status:<15} {f.id:<20} {secs:5.0f}s  {detail}", flush=True)
        caught, ran = save(results)  # after every fault, so that an interrupted run still reports
    run(a.scratch, ["cmake", "--build", "build", *jobs])  # leaves the scratch build matching its sources
    others = len(results) - ran
    print(f"{caught} of {ran} caught" + (f"; {others} not applicable or not building" if others else ""))
    print(f"total {time.time() - start:.0f}s; report {report}")
    return 0


if __name__ == "__main__":
    sys.exit(main())
