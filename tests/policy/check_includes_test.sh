#!/usr/bin/env bash
# Each offence, put into a small tree of its own, is found; a tree without one passes.
#   check_includes_test.sh FOLDER_FOR_TREES
set -euo pipefail
check=$(dirname "$(readlink -f "$0")")/check_includes.sh
trees=$1
failures=0

tree() {  # FILE LINE: a project of that one file
    rm -rf "$trees"
    mkdir -p "$trees/$(dirname "$1")"
    printf '%s\n' "$2" >"$trees/$1"
}
passes() {
    tree "$@"
    bash "$check" "$trees" >/dev/null && return
    echo "should pass: $1: $2"
    failures=$((failures + 1))
}
is_caught() {
    tree "$@"
    local found
    found=$(bash "$check" "$trees") || { [[ $found == "$1:1: "* ]] && return; }
    echo "should be caught: $1: $2"
    failures=$((failures + 1))
}

passes src/frame/a.h '#include "window/b.h"'
passes src/pickers/a.h '#include "qualifiers/b.h"'
passes src/pickers/a.h '#include "controls/b.h"'
passes src/services/a.h '#include <sqlite3.h>'
passes src/qt/a.h '#include <QWidget>'
passes src/services/deep/a.cpp 'std::ifstream in(path);'
passes src/pickers/a.cpp '// std::ifstream reads no path of ours'
passes src/pickers/a.cpp '_chdir(folder);'
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

[ "$failures" -eq 0 ]
