#!/usr/bin/env bash
# Installs a build, moves it, and builds and runs a host with what was installed and nothing else.
#   install_test.sh BUILD HOST_SOURCE WORK PROJECT
set -euo pipefail
build=$1 host=$2 work=$3 project=$4
cmake=${CMAKE:-cmake} compiler=${CXX:-c++}
flags=(${SANITIZE:+"-fsanitize=$SANITIZE"})

fail() { printf 'install_test: %s\n' "$*" >&2; exit 1; }

rm -rf "$work"
mkdir -p "$work"
"$cmake" --install "$build" --prefix "$work/first" >"$work/install.log"
mv "$work/first" "$work/moved"
prefix=$work/moved
library=$(find "$prefix" -name 'libKVGuiCtl.so')
[ -n "$library" ] || fail "no libKVGuiCtl.so was installed"
libraries=$(dirname "$library")

readelf -d "$library" | grep 'SONAME.*\[libKVGuiCtl\.so\.0\]' || fail "the soname is wrong"
nm -D --defined-only "$library" | grep -E ' T InitControlDll$' ||
    fail "InitControlDll is not exported under that name"
! nm -DC --defined-only "$library" | grep ' T kv::dialect::' || fail "shows what is not marked"
! ldd "$library" | grep -iE 'qt[0-9]|gtk|gdk|libX11|libxcb|wayland|wx|fltk' || fail "links a GUI toolkit"
for engine in KVGuiCtlPostgres KVGuiCtlOdbc; do
    [ -f "$libraries/KVGuiCtl/$engine.so" ] || fail "$engine.so does not lie below the library"
done
! grep -rlF -e "$build" -e "$work/first" "$libraries/cmake" "$libraries/pkgconfig" ||
    fail "the package names the folder it was built in"

"$cmake" -S "$host" -B "$work/host" -DCMAKE_PREFIX_PATH="$prefix" -DCMAKE_CXX_COMPILER="$compiler" \
    -DCMAKE_CXX_FLAGS="${flags[*]}" >"$work/configure.log"
"$cmake" --build "$work/host" >"$work/build.log" || { cat "$work/build.log"; exit 1; }

"$work/host/host" | tee "$work/said"
[ -s "$work/said" ] || fail "the host picked nothing"

# The lines of the README, word by word, where somebody has installed the library as it tells.
mkdir -p "$work/bin" "$work/home/by_hand"
ln -s "$prefix" "$work/home/kvguictl"
printf '#!/bin/sh\nexec %s %s "$@"\n' "$compiler" "${flags[*]}" >"$work/bin/c++"
chmod +x "$work/bin/c++"
cp "$host/main.cpp" "$work/home/by_hand"
lines=$(grep -A2 '^export PKG_CONFIG_PATH=' "$project/README.md")
[ "$(wc -l <<<"$lines")" = 3 ] || fail "the README does not tell how to compile"
(cd "$work/home/by_hand" && HOME=$work/home PATH=$work/bin:$PATH bash -euc "$lines") |
    diff "$work/said" - || fail "the lines of the README do not give a host that works"

# A host with windows: it finds both libraries.
if [ -f "$libraries/pkgconfig/KVGuiCtlQt.pc" ]; then
    export PKG_CONFIG_PATH=$libraries/pkgconfig
    # shellcheck disable=SC2046  # what pkg-config prints is several words
    "$compiler" "${flags[@]}" "$project/docs/examples/with_windows.cpp" -o "$work/with_windows" \
        $(pkg-config --cflags --libs KVGuiCtlQt)
    ! ldd "$work/with_windows" | grep 'not found' || fail "a host with windows does not start"
fi
