# shellcheck shell=bash disable=SC2154
# Shared by run, test and .ci/run, which source it from the project's folder. The caller sets
# `program`, the name under which messages appear.

say() { printf '%s: %s\n' "$program" "$*"; }
fail() { printf '%s: %s\n' "$program" "$*" >&2; exit 1; }

# What of the packages for these purposes is missing, one name a line.
missing_packages() {
    local purpose package
    for purpose in "$@"; do
        awk -v purpose="$purpose" '$1 == purpose { print $2 }' cmake/debian-packages.txt
    done | while read -r package; do
        [ "$(dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null)" = installed ] ||
            printf '%s\n' "$package"
    done
}

# How long another installation of packages is waited for, in seconds, and between two looks.
lock_patience=${KVGUICTL_LOCK_PATIENCE:-900}
lock_pause=${KVGUICTL_LOCK_PAUSE:-3}

# apt_get COMMAND...: as root. While another installation on the machine holds a lock, waits for it.
apt_get() {
    local log=$log_folder/packages.log end=$((SECONDS + lock_patience)) told=
    until "${as_root[@]}" apt-get "$@" </dev/null >"$log" 2>&1; do
        grep -qE 'Could not get lock|Unable to (acquire|lock)' "$log" || return 1
        [ $SECONDS -lt $end ] || return 1
        [ -n "$told" ] || say "packages are being installed on this machine already; waiting for that"
        told=yes
        sleep "$lock_pause"
    done
}

# Installs what is missing for these purposes.
install_packages() {
    if ! command -v dpkg-query >/dev/null; then
        say "no Debian here: the packages of cmake/debian-packages.txt are taken to be installed"
        return
    fi
    local missing
    mapfile -t missing < <(missing_packages "$@")
    [ ${#missing[@]} -gt 0 ] || return 0

    local as_root=()
    if [ "$(id -u)" -ne 0 ]; then
        command -v sudo >/dev/null ||
            fail "not root, and there is no sudo. Please install: ${missing[*]}"
        as_root=(sudo)
        [ -t 0 ] || as_root+=(-n)
    fi
    # The words by which a lock is told are those of no other language.
    as_root+=(env DEBIAN_FRONTEND=noninteractive LC_ALL=C)
    say "installing ${missing[*]}"
    apt_get update -qq ||
        say "the package lists could not be brought up to date; going on with those at hand"
    apt_get install -y -qq --no-install-recommends "${missing[@]}" ||
        fail "could not install them; see $log_folder/packages.log, or install them by hand"
}

# Configures a preset, with further settings of CMake, and builds it.
build_preset() {
    local preset=$1
    shift
    say "configuring build/$preset"
    cmake --preset "$preset" "$@" >"$log_folder/configure-$preset.log" 2>&1 || {
        tail -n 30 "$log_folder/configure-$preset.log" >&2
        fail "configuring failed; see $log_folder/configure-$preset.log"
    }
    say "building build/$preset"
    NINJA_STATUS='[%f/%t, %es] ' cmake --build "build/$preset" </dev/null || fail "the build failed"
}

log_folder=build/log
mkdir -p "$log_folder"
started=$SECONDS
elapsed() { printf '%dm%02ds' $(((SECONDS - started) / 60)) $(((SECONDS - started) % 60)); }
