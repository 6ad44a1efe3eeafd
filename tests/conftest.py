import gc
import os
import subprocess
import sys
import textwrap

import pytest

BUILD_DIR = os.path.abspath(
    os.environ.get("OSG_BUILD_DIR") or os.path.join(os.path.dirname(__file__), os.pardir, "build"))
sys.path.insert(0, BUILD_DIR)
sys.path.append(os.path.join(os.path.dirname(__file__), os.pardir, "tools"))  # the fuzz harness

# _osg first, so that in this process the shared type records are _osg's and the siblings
# join its ring. Load-order cases run in fresh interpreters.
import _osg  # noqa: E402,F401
import engine_support  # noqa: E402,F401


def pytest_collection_finish(session):
    """What collection made lives for the session: out of the collector's way, so that the leak
    tests' collections between measurements stay cheap."""
    gc.collect()
    gc.freeze()


@pytest.fixture
def run_py():
    """Runs a snippet in a fresh interpreter with this sys.path; returns (stdout, stderr)."""
    def run(code):
        prelude = f"import sys\nsys.path[:] = {sys.path!r}\n"
        proc = subprocess.run([sys.executable, "-c", prelude + textwrap.dedent(code)],
                              capture_output=True, text=True, timeout=120)
        assert proc.returncode == 0, proc.stderr
        return proc.stdout, proc.stderr
    return run
