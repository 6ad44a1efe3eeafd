"""pip install of the checkout into a fresh virtual environment: the modules, the stand-in
libzogOSG (found without LD_LIBRARY_PATH), the osg package and its stubs, used from elsewhere."""
import importlib.util
import os
import subprocess
import sys
import tempfile
import textwrap

import pytest

CHECKOUT = os.path.abspath(os.path.join(os.path.dirname(__file__), os.pardir))
missing = [m for m in ("pip", "venv", "scikit_build_core") if importlib.util.find_spec(m) is None]
pytestmark = [pytest.mark.skipif(bool(missing), reason=f"no {', '.join(missing)} for this Python "
                                 "(Debian's python3-pip, python3-venv, python3-scikit-build-core)"),
              # Packaging is checked by the plain run; under the sanitizers the preloaded runtime
              # would instrument pip, cmake and the compiler instead of the module.
              pytest.mark.skipif(bool(os.environ.get("OSG_SANITIZED")), reason="packaging: checked by the plain run")]


def run(*cmd, cwd=None, codes=(0,)):
    env = {k: v for k, v in os.environ.items() if k not in ("LD_LIBRARY_PATH", "PYTHONPATH", "MYPYPATH")}
    env["CMAKE_BUILD_PARALLEL_LEVEL"] = str(os.cpu_count() or 1)
    proc = subprocess.run(cmd, cwd=cwd, env=env, capture_output=True, text=True, timeout=1800)
    assert proc.returncode in codes, proc.stdout[-3000:] + proc.stderr[-3000:]
    return proc


def test_pip_install_in_a_fresh_virtual_environment():
    with tempfile.TemporaryDirectory() as tmp:
        venv, elsewhere = os.path.join(tmp, "venv"), os.path.join(tmp, "elsewhere")
        os.mkdir(elsewhere)
        run(sys.executable, "-m", "venv", "--system-site-packages", venv)
        python = os.path.join(venv, "bin", "python")
        proc = run(python, "-m", "pip", "install", "--no-build-isolation", "--no-index", "--no-cache-dir",
                   "--config-settings", f"build-dir={os.path.join(tmp, 'build')}", CHECKOUT)
        assert "Successfully installed osg-binding-0.1.0" in proc.stdout
        site = run(python, "-c", "import sysconfig; print(sysconfig.get_path('platlib'))").stdout.strip()
        stubbed, packages = ["_osg", "_osgvalues", "_osgDB", "_osgdraw", "_osgViewer"], ["osg", "osgDB", "osgViewer"]
        assert sorted(os.listdir(site)) == sorted([
            *(f"{m}{end}" for m in stubbed for end in ("-stubs", ".cpython-314-x86_64-linux-gnu.so", ".pyi")),
            "_osgproxy.cpython-314-x86_64-linux-gnu.so", "libzogOSG.so", *packages,
            "osg_binding-0.1.0.dist-info", *[n for n in os.listdir(site) if n.startswith("pip")]])

        out = run(python, "-c", textwrap.dedent("""\
            import os, osg, _osg, _osgvalues
            print(*(os.path.dirname(m.__file__) for m in (osg, _osg, _osgvalues)))
            print(*sorted({os.path.basename(l.split()[-1]) for l in open("/proc/self/maps") if "zogOSG" in l}))
            root = osg.Group()
            root.setName("root")
            arm = osg.MatrixTransform(osg.Matrixd.translate(1, 2, 3))
            root.addChild(arm)
            arm.addChild(osg.Geode())
            print(root.getName(), root.getNumChildren(), osg.computeLocalToWorld([root, arm]).getTrans())
        """), cwd=elsewhere).stdout.splitlines()
        assert out == [" ".join([os.path.dirname(os.path.join(site, "osg", "x")), site, site]),
                       "libzogOSG.so", "root 1 osg.Vec3d(1.0, 2.0, 3.0)"]

        # The installed stubs are the ones a type checker finds.
        with open(os.path.join(elsewhere, "sample.py"), "w") as f:
            f.write("import osg, _osg\nosg.Group().addChild(osg.Vec3f())\nreveal_type(_osg.new_Group())\n")
        proc = run(python, "-m", "mypy", "--no-incremental", "--cache-dir", os.devnull, "sample.py", cwd=elsewhere, codes=(1,))
        assert proc.stdout.splitlines() == [
            'sample.py:2: error: Argument 1 to "addChild" of "Group" has incompatible type "Vec3f"; '
            'expected "Node | None"  [arg-type]',
            'sample.py:3: note: Revealed type is "_osg._SwigPyObject"',
            "Found 1 error in 1 file (checked 1 source file)"]
