#!/usr/bin/env bash
# Each offence, put into a small tree of its own, is found; a tree without one passes.
#   check_includes_test.sh FOLDER_FOR_TREES
set -euo pipefail
check=$(dirname "$(readlink -f "$0")")/check_includes.sh
trees=$1
failures=0

tree() {  # FILE LINE...: a project of these files of one line each
    rm -rf "$trees"
    while [ $# -gt 1 ]; do
        mkdir -p "$trees/$(dirname "$1")"
        printf '%s\n' "$2" >"$trees/$1"
        shift 2
    done
}
passes() {
    tree "$@"
    bash "$check" "$trees" >/dev/null && return
    echo "should pass: $*"
    failures=$((failures + 1))
}
is_caught() {  # in the first of the files
    tree "$@"
    local found
    found=$(bash "$check" "$trees") || { [[ $found == *"$1:1: "* ]] && return; }
    echo "should be caught: $*"
    failures=$((failures + 1))
}
# Units of one floor that reach each other, by way of others, too.
circle() {  # FOLDER UNIT...
    local folder=$1 first=$2 arguments=()
    shift
    while [ $# -gt 0 ]; do
        arguments+=("src/$folder/$1.h" "#include \"$folder/${2:-$first}.h\"")
        shift
    done
    circle=("${arguments[@]}")
}
full_room() {  # COUNT: files in a room of their own
    full_room=()
    for i in $(seq "$1"); do full_room+=("src/pickers/a$i.h" "// $i"); done
}

passes src/frame/a.h '#include "window/b.h"'
passes src/window/a.h '#include "base/b.h"'
passes src/pickers/a.h '#include "qualifiers/b.h"'
passes src/pickers/a.h '#include "controls/b.h"'
passes src/services/a.h '#include <sqlite3.h>'
passes src/qt/a.h '#include <QWidget>'
passes src/services/kvdbkvn/a.cpp 'std::ifstream in(path);'
passes src/pickers/a.cpp '// std::ifstream reads no path of ours'
passes src/pickers/a.cpp '_chdir(folder);'
is_caught src/base/a.h '#include "window/b.h"'
is_caught src/window/a.h '#include "frame/b.h"'
is_caught src/frame/a.h '#include "services/b.h"'
is_caught src/frame/a.h '#include "pickers/b.h"'
is_caught src/controls/a.h '#include "services/b.h"'
is_caught src/services/a.h '#include "controls/b.h"'
is_caught src/pickers/a.h '#include "services/b.h"'
is_caught src/pickers/a.h '  #  include "services/b.h"'
is_caught src/pickers/a.h '#include "qt/b.h"'
is_caught src/qt/a.h '#include "frame/b.h"'
is_caught src/pickers/a.h '#include "b.h"'
is_caught src/pickers/a.h '#include <sqlite3.h>'
is_caught src/controls/a.h '#include <proj.h>'
is_caught src/frame/a.h '#include <libpq-fe.h>'
is_caught src/window/a.h '#include <geos_c.h>'
is_caught src/blocks/a.h '#include <sqlext.h>'
is_caught src/window/a.h '#include <QWidget>'
is_caught src/blocks/a.cpp 'std::ifstream in(path);'
is_caught src/blocks/a.cpp 'auto* file = std::fopen(path, "r");'
is_caught src/blocks/a.cpp '    fopen (path, "r");'
is_caught src/blocks/a.cpp 'std::filesystem::path p;'
is_caught src/blocks/a.cpp '::chdir(path);'
is_caught src/window/drawing/a.cpp 'std::ofstream out(path);'
passes src/base/a.cpp 'auto* file = std::fopen(path, "r");'

# Rooms.
passes src/window/a.h '#include "window/drawing/b.h"'
passes src/window/acting/a.h '#include "window/dialogs/b.h"'
passes src/window/controls/a.h '#include "window/b.h"'
passes src/services/kvdbkvn/engines/a.h '#include "services/kvdbkvn/dialect/b.h"'
passes src/services/kvcom/a.h '#include "services/kvdbkvn/b.h"'
is_caught src/window/a.h '#include "window/controls/b.h"'
is_caught src/window/rows/a.h '#include "window/drawing/b.h"'
is_caught src/window/drawing/a.h '#include "window/b.h"'
is_caught src/window/controls/a.h '#include "window/dialogs/b.h"'
is_caught src/services/kvdbkvn/dialect/a.h '#include "services/kvdbkvn/engines/b.h"'
is_caught src/services/kvdbkvn/a.h '#include "services/kvcom/b.h"'
is_caught src/frame/kvcom/a.h '#include "frame/b.h"'
is_caught src/qt/drawing/a.h '#include "qt/peers/b.h"'
is_caught src/window/cellar/a.h '// a room that the order does not know'
is_caught src/pickers/cellar/a.h '// a room of a floor without any'

# Circles.
circle pickers a b && is_caught "${circle[@]}"
circle pickers a b c && is_caught "${circle[@]}"
circle window node wnd window_system dialog_keys modal_scope && passes "${circle[@]}"
circle window node wnd message_map && is_caught "${circle[@]}"
circle services/kvdbkvn/dialect a b && is_caught "${circle[@]}"
passes src/pickers/a.h '#include "pickers/b.h"' src/pickers/b.h '#include "pickers/c.h"' \
    src/pickers/a.cpp '#include "pickers/c.h"'
is_caught src/pickers/a.h '#include "pickers/b.h"' src/pickers/b.cpp '#include "pickers/a.h"'

# Crowds.
full_room 40 && passes "${full_room[@]}"
full_room 41
tree "${full_room[@]}"
if bash "$check" "$trees" >/dev/null; then
    echo "should be caught: 41 files in one room"
    failures=$((failures + 1))
fi

[ "$failures" -eq 0 ]
