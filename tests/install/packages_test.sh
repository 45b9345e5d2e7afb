#!/usr/bin/env bash
# packages_test.sh SETUP WORK: installs packages by cmake/setup.sh where another installation holds
# the lock, where it never ends, and where a package cannot be had. What would install is a stand-in.
set -euo pipefail
setup=$1 work=$2

fail() { printf 'packages_test: %s\n' "$*" >&2; exit 1; }

rm -rf "$work"
mkdir -p "$work/bin" "$work/tree/cmake"
cp "$setup" "$work/tree/cmake/setup.sh"
printf 'build  some-tool\n' >"$work/tree/cmake/debian-packages.txt"

stand_in() {
    cat >"$work/bin/$1"
    chmod +x "$work/bin/$1"
}
stand_in dpkg-query <<'END'
#!/usr/bin/env bash
[ ! -f "$STATE/installed" ] || echo installed
END
stand_in sudo <<'END'
#!/usr/bin/env bash
[ "$1" != -n ] || shift
exec "$@"
END
# Fails as often as "locked" has lines, each time with the words of apt-get.
stand_in apt-get <<'END'
#!/usr/bin/env bash
if [ -s "$STATE/locked" ]; then
    echo "E: $(head -n 1 "$STATE/locked")" >&2
    sed -i 1d "$STATE/locked"
    exit 100
fi
if [ "$1" = install ]; then
    [ ! -f "$STATE/unknown" ] || { echo "E: Unable to locate package some-tool" >&2; exit 100; }
    touch "$STATE/installed"
fi
END

# install_with LOCK_LINES: what it says is then in "said", its exit code in "code".
install_with() {
    export STATE=$work/state
    rm -rf "$STATE"
    mkdir -p "$STATE"
    printf '%s' "$1" >"$STATE/locked"
    [ "${2:-}" != unknown ] || touch "$STATE/unknown"
    code=0
    (cd "$work/tree" && PATH=$work/bin:$PATH KVGUICTL_LOCK_PAUSE=0 \
        KVGUICTL_LOCK_PATIENCE=${3:-60} bash -c \
        'set -euo pipefail; program=run; source cmake/setup.sh; install_packages build') \
        >"$work/said" 2>&1 || code=$?
}
waits() { grep -c 'waiting for that' "$work/said" || true; }

lists='Could not get lock /var/lib/apt/lists/lock. It is held by process 7 (apt-get)'
front='Unable to acquire the dpkg frontend lock, is another process using it?'

install_with ''
[ "$code" = 0 ] && [ -f "$STATE/installed" ] || fail "does not install what is missing"
[ "$(waits)" = 0 ] || fail "says that it waits where nothing is in its way"

install_with "$lists"$'\n'"$lists"$'\n'
[ "$code" = 0 ] && [ -f "$STATE/installed" ] || fail "does not wait until the lists are free"
[ "$(waits)" = 1 ] || fail "does not say once that it waits"

install_with "$front"$'\n'
[ "$code" = 0 ] && [ -f "$STATE/installed" ] || fail "does not wait until the packages are free"

install_with "$(yes "$front" | head -n 1000)"$'\n' - 0
[ "$code" != 0 ] || fail "waits without end"

install_with '' unknown
[ "$code" != 0 ] || fail "goes on without a package"
[ "$(waits)" = 0 ] || fail "takes a package that is not there for a lock"
