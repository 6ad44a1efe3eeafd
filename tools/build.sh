#!/usr/bin/env bash
# Configures and builds into build/ (or $BUILD_DIR): every target, or only those named with
# --target. The remaining arguments go to cmake's configure step, e.g. -DCMAKE_BUILD_TYPE=Debug.
# Run through tools/toolchain.sh.
set -euo pipefail
cd "$(dirname "$0")/.."
targets=()
while [ "${1:-}" = --target ]; do targets+=(--target "$2"); shift 2; done
build=${BUILD_DIR:-build}
start=$(date +%s%N)
cmake -S . -B "$build" -DCMAKE_BUILD_TYPE="${BUILD_TYPE:-Release}" "$@" >"$build.configure.log" 2>&1 \
  || { cat "$build.configure.log" >&2; exit 1; }
rm -f "$build.configure.log"
cmake --build "$build" -j "$(nproc)" "${targets[@]}"
ms=$(( ($(date +%s%N) - start) / 1000000 ))
printf 'build: done in %d.%03ds\n' $((ms / 1000)) $((ms % 1000))
