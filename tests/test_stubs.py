"""The generated stubs: a type checker accepts them and the examples, refuses a wrong argument
class, and infers results the package returns; every stubbed name exists at run time."""
import glob
import os
import subprocess
import sys
import textwrap

import pytest

from conftest import BUILD_DIR

pytest.importorskip("mypy", reason="mypy is not installed (Debian's package mypy)")
EXAMPLES = sorted(glob.glob(os.path.join(os.path.dirname(__file__), os.pardir, "examples", "*.py")))


def mypy(*args, module="mypy"):
    proc = subprocess.run([sys.executable, "-m", module, *args], capture_output=True, text=True, timeout=300,
                          cwd=BUILD_DIR, env={**os.environ, "MYPYPATH": BUILD_DIR, "PYTHONPATH": BUILD_DIR})
    return proc.returncode, (proc.stdout + proc.stderr).splitlines()


def check(*args):
    return mypy("--no-incremental", "--cache-dir", os.devnull, "--hide-error-context", "--check-untyped-defs", *args)


def test_stubs_and_examples_check():
    assert check("osg/__init__.pyi", "_osg.pyi", "_osgvalues.pyi", *EXAMPLES) == (
        0, [f"Success: no issues found in {len(EXAMPLES) + 3} source files"])


def test_wrong_argument_classes_and_inferred_results(tmp_path):
    sample = tmp_path / "sample.py"
    sample.write_text(textwrap.dedent("""\
        import osg, _osg, _osgvalues
        g = osg.Group()
        g.addChild(osg.MatrixTransform())
        g.addChild(osg.Vec3f(1, 2, 3))
        osg.Camera().setViewMatrix(osg.Vec3d())
        _osg.Group_addChild(g, osg.Quat())
        _osgvalues.node_path([osg.Vec3f()])
        g.setName(3)
        reveal_type(osg.Matrixd.perspective(45, 1, 1, 10).getPerspective())
        reveal_type(osg.Camera().getViewMatrixAsLookAt(1.0))
        reveal_type((g.getChild(0), g.getParents(), g.getName(), g.getOrCreateStateSet().getMode(0x0B60)))
        reveal_type((osg.Vec3f() * osg.Vec3f(), osg.Vec3f() * 2, osg.Vec3d() * osg.Matrixd(), osg.X_AXIS))
        reveal_type((_osg.new_Group(), _osg.Group_getChild(g, 0), _osgvalues.string("a").value))
    """))
    code, lines = check(str(sample))
    assert code == 1
    assert [line.removeprefix(f"{sample}:") for line in lines if ": note:     def" not in line] == [
        '4: error: Argument 1 to "addChild" of "Group" has incompatible type "Vec3f"; expected "Node | None"  [arg-type]',
        '5: error: No overload variant of "setViewMatrix" of "Camera" matches argument type "Vec3d"  [call-overload]',
        "5: note: Possible overload variants:",
        '6: error: Argument 2 to "Group_addChild" has incompatible type "Quat"; '
        'expected "Node | _SwigPyObject | None"  [arg-type]',
        '7: error: List item 0 has incompatible type "Vec3f"; expected "Node"  [list-item]',
        '8: error: No overload variant of "setName" of "Object" matches argument type "int"  [call-overload]',
        "8: note: Possible overload variants:",
        '9: note: Revealed type is "tuple[float, float, float, float]"',
        '10: note: Revealed type is "tuple[osg.Vec3d, osg.Vec3d, osg.Vec3d]"',
        '11: note: Revealed type is "tuple[osg.Node, list[osg.Group], str, int]"',
        '12: note: Revealed type is "tuple[float, osg.Vec3f, osg.Vec3d, osg.Vec3f]"',
        '13: note: Revealed type is "tuple[_osg._SwigPyObject, osg.Node, str]"',
        "Found 5 errors in 1 file (checked 1 source file)",
    ]


def test_stubbed_names_exist_at_run_time():
    code, lines = mypy("osg", "osgDB", "osgViewer", "_osg", "_osgvalues", "_osgdraw", "_osgDB", "_osgViewer", module="mypy.stubtest")
    assert code == 0 and lines[-1].startswith("Success: no issues found in "), lines
