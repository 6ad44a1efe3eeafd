#!/usr/bin/env bash
# Builds the module, its siblings and the libzogOSG stand-in with AddressSanitizer and
# UndefinedBehaviorSanitizer into build-sanitize/ (or $SANITIZE_BUILD_DIR), then runs the test
# suite under them; extra arguments go to pytest. The interpreter is not instrumented, so the
# ASan runtime is preloaded. Any sanitizer report, in the suite's process or in a child
# interpreter, fails the run. Run through tools/toolchain.sh.
set -euo pipefail
cd "$(dirname "$0")/.."
build=$PWD/${SANITIZE_BUILD_DIR:-build-sanitize}
BUILD_DIR=$build BUILD_TYPE=${BUILD_TYPE:-RelWithDebInfo} tools/build.sh -DOSG_SANITIZE=ON
reports=$build/reports
rm -rf "$reports" && mkdir -p "$reports"
# Leak checking is off: the interpreter itself never frees much of what it allocates; the
# leak tests measure the module's own leaks. Python objects go through malloc, so that ASan
# sees use-after-free of proxies too.
export LD_PRELOAD=$(g++ -print-file-name=libasan.so)
export ASAN_OPTIONS=detect_leaks=0:log_path=$reports/asan
export UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1:log_path=$reports/ubsan
export PYTHONMALLOC=malloc OSG_BUILD_DIR=$build OSG_SANITIZED=1
status=0
python3 -m pytest tests -p no:cacheprovider "$@" || status=$?
if compgen -G "$reports/*" >/dev/null; then
    echo "sanitize: sanitizer reports:" >&2
    cat "$reports"/* >&2
    exit 1
fi
echo "sanitize: no sanitizer reports"
exit $status
