#!/usr/bin/env bash
# Runs a command with the project's toolchain: CPython 3.14 with headers, OSG 3.6
# development files, g++ and cmake.  Uses the host when it already has them;
# otherwise a Debian testing root, created on first use and cached outside the
# checkout, rebuilt only when its package list changes.
#
#   tools/toolchain.sh CMD [ARGS...]     run CMD (in the checkout) with the toolchain
#   tools/toolchain.sh --provision       only make sure the root exists
set -euo pipefail

here=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
shared=$(cd "$here/../shared" 2>/dev/null && pwd || true)
ROOT=${OSG_TOOLCHAIN_ROOT:-/var/cache/osg-binding-toolchain/forky}
SUITE=forky
PACKAGES="python3-dev python3-pytest g++ cmake make libopenscenegraph-dev binutils gdb valgrind libc6-dbg nanobind-dev linux-perf mypy python3-scikit-build-core python3-venv python3-pip"

step_start=0
step() { step_name=$1; step_start=$(date +%s); printf 'toolchain: %s ...\n' "$step_name" >&2; }
step_done() { printf 'toolchain: %s done (%ss)\n' "$step_name" "$(( $(date +%s) - step_start ))" >&2; }
fail() { printf 'toolchain: FAILED at step "%s": %s\n' "${step_name:-setup}" "$*" >&2; exit 1; }

native_ok() {
    command -v python3.14 >/dev/null 2>&1 || return 1
    python3.14 -c 'import sysconfig,os,sys; sys.exit(not os.path.exists(os.path.join(sysconfig.get_paths()["include"],"Python.h")))' 2>/dev/null || return 1
    python3.14 -c 'import pytest' 2>/dev/null || return 1
    [ -e /usr/include/osg/Version ] || return 1
    command -v cmake >/dev/null 2>&1 && command -v g++ >/dev/null 2>&1
}

host_mirror() {
    # The first Debian mirror the host's own apt configuration names.
    local m
    m=$(grep -hE '^URIs:' /etc/apt/sources.list.d/*.sources 2>/dev/null | awk '{print $2}' | grep -v security | head -n1 || true)
    if [ -z "$m" ] && [ -f /etc/apt/sources.list ]; then
        m=$(grep -hE '^deb ' /etc/apt/sources.list | awk '{print $2}' | grep -v security | head -n1 || true)
    fi
    [ -n "$m" ] || fail "no Debian mirror found in the host's apt sources"
    printf '%s\n' "$m"
}

stamp_text() { printf 'suite=%s\npackages=%s\n' "$SUITE" "$PACKAGES"; }

# Runs a shell command inside the root as root, with private mounts.  The checkout
# and ../shared appear at the same absolute paths as outside.
in_root() {
    local binds="mount --bind /dev '$ROOT/dev' && mount -t proc proc '$ROOT/proc'"
    local d
    for d in "$here" $shared; do
        mkdir -p "$ROOT$d"
        binds="$binds && mount --bind '$d' '$ROOT$d'"
    done
    if [ -e /etc/resolv.conf ]; then
        binds="$binds && cp -L /etc/resolv.conf '$ROOT/etc/resolv.conf' 2>/dev/null; true"
    fi
    # Only the settings the project reads cross into the root, and only when set.
    local pass="" v
    for v in CI BUILD_DIR BUILD_TYPE OSG_BUILD_DIR; do
        [ -n "${!v:-}" ] && pass="$pass $v='${!v}'"
    done
    unshare -m --propagation private sh -c "$binds && exec chroot '$ROOT' /usr/bin/env -i \
        PATH=/usr/local/sbin:/usr/local/bin:/usr/sbin:/usr/bin:/sbin:/bin HOME=/root LANG=C.UTF-8 \
        PYTHONDONTWRITEBYTECODE=1 $pass bash -c \"\$0\"" "$1"
}

provision() {
    if [ -f "$ROOT/.stamp" ] && [ "$(cat "$ROOT/.stamp")" = "$(stamp_text)" ]; then
        return 0
    fi
    [ "$(id -u)" = 0 ] || fail "provisioning the toolchain root needs root"
    local t0; t0=$(date +%s)
    echo "toolchain: creating the Debian $SUITE root at $ROOT (one-off, a few minutes)" >&2
    rm -rf "$ROOT.tmp"
    mkdir -p "$(dirname "$ROOT")"

    step "install debootstrap on the host"
    if ! command -v debootstrap >/dev/null 2>&1; then
        { apt-get update -qq && DEBIAN_FRONTEND=noninteractive apt-get install -y -qq debootstrap; } >/dev/null 2>&1 \
            || fail "apt-get install debootstrap"
    fi
    step_done

    local mirror script=/usr/share/debootstrap/scripts/sid
    mirror=$(host_mirror)
    step "debootstrap $SUITE from $mirror"
    debootstrap --variant=minbase "$SUITE" "$ROOT.tmp" "$mirror" "$script" >"$ROOT.tmp.log" 2>&1 \
        || { tail -n 20 "$ROOT.tmp.log" >&2; fail "debootstrap (log: $ROOT.tmp.log)"; }
    step_done

    # The mirror's testing Release file may be past its Valid-Until date.
    echo 'Acquire::Check-Valid-Until "false";' > "$ROOT.tmp/etc/apt/apt.conf.d/99no-valid-until"

    local final=$ROOT; ROOT=$ROOT.tmp
    step "apt-get install $PACKAGES"
    in_root "apt-get update -qq && DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends $PACKAGES && apt-get clean" \
        >"$final.tmp.log" 2>&1 || { tail -n 20 "$final.tmp.log" >&2; fail "apt-get install inside the root (log: $final.tmp.log)"; }
    step_done
    ROOT=$final

    stamp_text > "$ROOT.tmp/.stamp"
    rm -rf "$ROOT" && mv "$ROOT.tmp" "$ROOT" && rm -f "$ROOT.tmp.log"
    echo "toolchain: root ready in $(( $(date +%s) - t0 ))s" >&2
}

if [ "${1:-}" = "--provision" ]; then
    native_ok && { echo "toolchain: host has Python 3.14 and OSG; no root needed" >&2; exit 0; }
    provision; exit 0
fi
[ $# -gt 0 ] || { echo "usage: $0 CMD [ARGS...] | --provision" >&2; exit 2; }

if [ -z "${OSG_FORCE_ROOT:-}" ] && native_ok; then
    cd "$here" && exec "$@"
fi
provision
cmd=$(printf '%q ' "$@")
in_root "cd '$here' && $cmd"
