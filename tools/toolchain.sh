#!/usr/bin/env bash
# Runs a command with the project's toolchain: CPython 3.14 with headers, OSG 3.6
# development files, g++ and cmake.  Uses the host when it already has them;
# otherwise a Debian testing root cached outside the checkout.  The root grows by
# stages, so that the first command on a new machine waits only for what it needs:
# each command names the stages it uses and the missing ones are installed then.
#
#   tools/toolchain.sh [--stage NAME]... CMD [ARGS...]   run CMD (in the checkout) with the
#                                                        build stage and the named ones
#   tools/toolchain.sh [--stage NAME]...                 only provision them
set -euo pipefail

here=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
shared=$(cd "$here/../shared" 2>/dev/null && pwd || true)
ROOT=${OSG_TOOLCHAIN_ROOT:-/var/cache/osg-binding-toolchain/forky}
# Everything downloaded (the base root as a tarball, every .deb) is kept here, so that a
# root rebuilt on this machine downloads nothing.
CACHE=${OSG_TOOLCHAIN_CACHE:-/var/cache/osg-binding-toolchain/cache}
SUITE=forky

# Stage, package, and why.  A package dropped from a stage stays in existing roots.
STAGES="
build   python3-dev
build   g++
build   cmake
build   make
build   libopenscenegraph-dev
build   binutils
test    python3-pytest
test    mypy                        tests/test_stubs.py type-checks the stubs and examples
test    python3-venv                tests/test_install.py: pip install into a fresh venv
test    python3-pip
test    python3-scikit-build-core
test    python3-numpy               tests and examples use them; the modules do not
test    python3-pil
bench   nanobind-dev                the benchmark's peer module, bench/nbpeer.cpp
bench   linux-perf                  for profiling the benchmark by hand
bench   python3-numpy               bench/arrays.py and bench/soak.py
render  xvfb                        offscreen rendering: an X server without a screen
render  xauth                       xvfb-run needs it
render  libgl1-mesa-dri             Mesa's software OpenGL
debug   gdb                         no command uses these: tools/toolchain.sh --stage debug
debug   valgrind
debug   libc6-dbg
"
packages() { awk -v s="$1" '$1 == s { print $2 }' <<<"$STAGES" | xargs; }
stamp_of() { if [ "$1" = base ]; then echo "debootstrap --variant=minbase $SUITE"; else packages "$1"; fi; }
# A root made before the stages (with one .stamp) is kept: its stages only need checking.
have() {
    [ "$(cat "$ROOT/.stage-$1" 2>/dev/null)" = "$(stamp_of "$1")" ] ||
        { [ "$1" = base ] && grep -qsx "suite=$SUITE" "$ROOT/.stamp"; }
}
# The stages to add; all of them when the base system itself is missing or out of date.
missing() {
    local s
    have base || { echo base build "$@"; return; }
    for s in build "$@"; do have "$s" || echo "$s"; done
}

fail() { printf 'toolchain: %s\n' "$*" >&2; exit 1; }
# step NAME CMD [ARGS...]: CMD's output goes to a log, shown only when CMD fails.
step() {
    local name=$1 t0 log; shift
    t0=$(date +%s); log=$(mktemp "$CACHE/log.XXXXXX")
    printf 'toolchain: %s ...\n' "$name" >&2
    if ! "$@" >"$log" 2>&1; then
        tail -n 20 "$log" >&2
        printf 'toolchain: FAILED at step "%s" (log: %s)\n' "$name" "$log" >&2
        return 1
    fi
    rm -f "$log"
    printf 'toolchain: %s done (%ss)\n' "$name" "$(( $(date +%s) - t0 ))" >&2
}

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

# The host's apt, pointed at $SUITE with lists of its own and none of the host's settings,
# fetches a new root's packages into the cache while debootstrap runs.  It does not know
# what debootstrap installs, so it fetches a few of those packages again.
host_apt() { APT_CONFIG=$CACHE/host/apt.conf apt-get -q -y "$@"; }
prefetch() { host_apt update && host_apt install -d --no-install-recommends "$@"; }
host_apt_setup() {
    local h=$CACHE/host
    mkdir -p "$h/etc/apt/apt.conf.d" "$h/etc/apt/preferences.d" "$h/etc/apt/sources.list.d" \
        "$h/var/lib/apt/lists/partial"
    : >"$h/status"
    echo "deb [signed-by=/usr/share/keyrings/debian-archive-keyring.gpg] $1 $SUITE main" >"$h/etc/apt/sources.list"
    printf '%s\n' "Dir \"$h/\";" "Dir::State::status \"$h/status\";" "Dir::Cache::archives \"$CACHE/archives/\";" \
        'Acquire::Check-Valid-Until "false";' 'Acquire::Languages "none";' >"$h/apt.conf"
}

# in_root CMD [apt]: runs a shell command inside the root as root, with private mounts.  The
# checkout and ../shared appear at the same absolute paths as outside; with "apt", so does
# the cache's .deb store at apt's own place.
in_root() {
    local binds="mount --bind /dev '$ROOT/dev' && mount -t proc proc '$ROOT/proc'"
    local d
    for d in "$here" $shared; do
        mkdir -p "$ROOT$d"
        binds="$binds && mount --bind '$d' '$ROOT$d'"
    done
    [ "${2:-}" = apt ] && binds="$binds && mount --bind '$CACHE/archives' '$ROOT/var/cache/apt/archives'"
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

# create_root STAGES: the base system, from the cached tarball (delete it to bootstrap
# afresh) or else with debootstrap while the host fetches the packages of STAGES.
create_root() {
    local base=$CACHE/$SUITE-base.tar mirror fetch
    rm -rf "$ROOT" && mkdir -p "$ROOT"
    if [ -f "$base" ]; then
        step "unpack the base system from $base" tar --numeric-owner -C "$ROOT" -xf "$base"
        return
    fi
    if ! command -v debootstrap >/dev/null 2>&1; then
        step "install debootstrap on the host" sh -c \
            'apt-get update -qq && DEBIAN_FRONTEND=noninteractive apt-get install -y -qq debootstrap'
    fi
    mirror=$(host_mirror)
    host_apt_setup "$mirror"
    step "fetch the packages of $* (in the background)" prefetch $(for s; do packages "$s"; done) &
    fetch=$!
    step "debootstrap $SUITE from $mirror" \
        debootstrap --variant=minbase "$SUITE" "$ROOT" "$mirror" /usr/share/debootstrap/scripts/sid
    wait "$fetch"
    # The mirror's testing Release file may be past its Valid-Until date.  No fsync: the root
    # is a cache, rebuilt when it breaks.
    printf '%s\n' 'Acquire::Check-Valid-Until "false";' 'Acquire::Languages "none";' \
        >"$ROOT/etc/apt/apt.conf.d/99osg-toolchain"
    echo force-unsafe-io >"$ROOT/etc/dpkg/dpkg.cfg.d/99osg-toolchain"
    # The root resolves with the lists the host fetched with, so that the fetched .debs fit it.
    rm -f "$ROOT"/var/lib/apt/lists/*_dists_*
    cp "$CACHE"/host/var/lib/apt/lists/*_dists_* "$ROOT/var/lib/apt/lists/"
    step "save the base system as $base" sh -c "tar --numeric-owner -C '$ROOT' -cf '$base.tmp' . && mv '$base.tmp' '$base'"
}

provision() {
    local todo s t0 pkgs get
    [ -n "$(missing "$@")" ] || return 0
    [ "$(id -u)" = 0 ] || fail "provisioning the toolchain root needs root"
    mkdir -p "$CACHE/archives/partial"
    # One provisioning at a time: all roots share the cache, and a root's stages share its apt.
    exec 9>"$CACHE/lock"
    flock 9
    todo=$(missing "$@" | xargs)
    if [ -n "$todo" ]; then
        t0=$(date +%s)
        echo "toolchain: adding stages $todo to the Debian $SUITE root at $ROOT" >&2
        pkgs=$(for s in $todo; do [ "$s" = base ] || packages "$s"; done | xargs)
        if [[ " $todo " = *" base "* ]]; then create_root ${todo#base }; fi
        # The root's lists are those of the day it was made, which the cached .debs fit;
        # once the archive has dropped those versions, update the lists and fetch again.
        get="DEBIAN_FRONTEND=noninteractive apt-get install -y -q --no-install-recommends $pkgs"
        step "install the packages of ${todo#base }" in_root "$get || { apt-get update -q && $get; }" apt
        for s in $todo; do stamp_of "$s" >"$ROOT/.stage-$s"; done
        echo "toolchain: root ready in $(( $(date +%s) - t0 ))s" >&2
    fi
    exec 9>&-
}

stages=()
while [ "${1:-}" = --stage ]; do
    [ -n "$(packages "${2:-}")" ] || fail "no stage \"${2:-}\"; stages: $(awk 'NF { print $1 }' <<<"$STAGES" | uniq | xargs)"
    stages+=("$2"); shift 2
done
if [ -z "${OSG_FORCE_ROOT:-}" ] && native_ok; then
    [ $# -gt 0 ] || { echo "toolchain: host has Python 3.14 and OSG; no root needed" >&2; exit 0; }
    cd "$here" && exec "$@"
fi
provision "${stages[@]}"
[ $# -gt 0 ] || exit 0
cmd=$(printf '%q ' "$@")
in_root "cd '$here' && $cmd"
