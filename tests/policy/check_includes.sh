#!/usr/bin/env bash
# Reads the includes and the calls of every file under src/ and names those that the order of the
# floors forbids. Ends with 1 when there are any.
#   check_includes.sh PROJECT
set -euo pipefail
cd "$1"
export LC_ALL=C

mapfile -t files < <(find src -name '*.h' -o -name '*.cpp' | sort)
[ ${#files[@]} -gt 0 ] || { echo "no sources under $1/src" >&2; exit 2; }

awk '
BEGIN {
    # What each floor sees besides itself. A family is any folder that is not named here.
    sees["window"] = ""
    sees["frame"] = "window"
    sees["services"] = "frame window"
    sees["controls"] = "frame window"
    sees["qt"] = "window"
    family = "frame controls window"
}
function complain(why) { printf "%s:%d: %s\n", FILENAME, FNR, why; bad = 1 }
function is_family(floor) { return !(floor in sees) }
function may_see(floor, other) {
    if (floor == other) return 1
    if (is_family(floor)) return is_family(other) || index(" " family " ", " " other " ")
    return index(" " sees[floor] " ", " " other " ")
}

FNR == 1 { split(FILENAME, path, "/"); floor = path[2] }

/^[ \t]*#[ \t]*include[ \t]*"/ {
    split($0, quoted, "\"")
    if (split(quoted[2], included, "/") < 2)
        complain("includes \"" quoted[2] "\" without its folder")
    else if (!may_see(floor, included[1]))
        complain(floor " must not include \"" quoted[2] "\"")
    next
}
/^[ \t]*#[ \t]*include[ \t]*</ {
    split($0, header, /[<>]/)
    if (header[2] ~ /^(sqlite3|proj|geos|libpq|postgres|sql[.\/a-z]|proj\/)/ && floor != "services")
        complain("only services may include <" header[2] ">")
    if (header[2] ~ /^Q[A-Z]|^Qt/ && floor != "qt")
        complain("only qt may include <" header[2] ">")
    next
}
/^[ \t]*\/\// { next }
# Paths have drive letters and backslashes; window/paths and window/file turn them into the
# machine'"'"'s own.
floor != "window" && floor != "services" && floor != "qt" {
    if (match($0, /(^|[^A-Za-z0-9_])(fopen|freopen|opendir|chdir|mkdir) *\(|std::(basic_)?[io]?fstream|std::filesystem/)) {
        complain("files go through window/, not through \"" substr($0, RSTART, RLENGTH) "\"")
    }
}
END { exit bad }
' "${files[@]}"
