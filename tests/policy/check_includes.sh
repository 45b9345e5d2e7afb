#!/usr/bin/env bash
# Reads the includes and the calls of every file under src/ and names those that the order of the
# floors and of their rooms forbids, units that reach each other, and rooms that are too full. Ends
# with 1 when there are any.
#   check_includes.sh PROJECT
set -euo pipefail
cd "$1"
export LC_ALL=C

mapfile -t files < <(find src -name '*.h' -o -name '*.cpp' | sort)
[ ${#files[@]} -gt 0 ] || { echo "no sources under $1/src" >&2; exit 2; }

awk '
BEGIN {
    # What each floor sees besides itself. A family is any folder that is not named here.
    sees["base"] = ""
    sees["window"] = "base"
    sees["frame"] = "base window"
    sees["services"] = "base frame window"
    sees["controls"] = "base frame window"
    sees["qt"] = "base window"
    family = "base frame controls window"

    # The rooms of a floor from the ground up: each sees itself and those before it. A dot is the
    # floor itself. A floor that is not named here has no rooms.
    order("window", "rows drawing . templates frames controls list_view dialogs acting")
    order("frame", "kvcom kvdbkvn kvlogs .")
    order("services", "kvlogs kvdbkvn/dialect kvdbkvn/engines kvdbkvn kvcom")
    order("mapbuild", ". builders")
    order("drawing", "swatches .")
    order("qt", "drawing peers access map .")

    # A window is its node, its handle, its keys, and what is common to all windows: one unit of
    # several files, and the only one.
    split("node wnd window_system dialog_keys mnemonics modal_scope stacking", parts, " ")
    for (i in parts) one_unit["window/" parts[i]] = "window/node and its kin"
    most_files = 40
}
function order(floor, rooms,    list, n, i) {
    n = split(rooms, list, " ")
    for (i = 1; i <= n; i++) level[floor, list[i]] = i
}
function complain(why) { printf "%s:%d: %s\n", FILENAME, FNR, why; bad = 1 }
function is_family(floor) { return !(floor in sees) }
function may_see(floor, other) {
    if (floor == other) return 1
    if (is_family(floor)) return is_family(other) || index(" " family " ", " " other " ")
    return index(" " sees[floor] " ", " " other " ")
}
# "window/rows/row_list.h" lies in the room "rows" of the floor "window".
function floor_of(path) { return substr(path, 1, index(path, "/") - 1) }
function room_of(path) {
    sub(/^[^\/]*\//, "", path)
    if (!sub(/\/[^\/]*$/, "", path)) return "."
    return path
}
function unit_of(path) {
    sub(/\.[a-z]+$/, "", path)
    return path in one_unit ? one_unit[path] : path
}
function check_room(path,    mine, other) {
    mine = level[floor, room]
    other = level[floor_of(path), room_of(path)]
    if (mine && other && other > mine)
        complain("the room " floor "/" room " must not include \"" path "\"")
}
function note_edge(from, to) {
    units[from]; units[to]
    if (!(from in file_of)) file_of[from] = FILENAME
    if (from == to || (from, to) in edge) return
    edge[from, to]
    reaches[from] = reaches[from] SUBSEP to
    reached_by[to] = reached_by[to] SUBSEP from
}
# Takes away, again and again, the units that reach no other one that is left, or that none reaches;
# what stays is in a circle, or between two.
function take_away(links,    unit, changed, list, n, i, open) {
    do {
        changed = 0
        for (unit in units) {
            n = split(links[unit], list, SUBSEP)
            open = 0
            for (i = 1; i <= n; i++) if (list[i] in units) open = 1
            if (!open) { delete units[unit]; changed = 1 }
        }
    } while (changed)
}

FNR == 1 {
    path = substr(FILENAME, 5)
    floor = floor_of(path)
    room = room_of(path)
    if (++count[floor "/" room] == most_files + 1)
        complain("more than " most_files " files in one room")
    if (room != "." && !((floor, room) in level))
        complain("the room \"" room "\" has no place in the order of " floor)
}

/^[ \t]*#[ \t]*include[ \t]*"/ {
    split($0, quoted, "\"")
    if (split(quoted[2], included, "/") < 2) {
        complain("includes \"" quoted[2] "\" without its folder")
        next
    }
    if (!may_see(floor, included[1])) complain(floor " must not include \"" quoted[2] "\"")
    else if (included[1] == floor) check_room(quoted[2])
    note_edge(unit_of(path), unit_of(quoted[2]))
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
# Paths have drive letters and backslashes; base/paths and base/file turn them into the machine'"'"'s
# own.
floor != "base" && floor != "services" && floor != "qt" {
    if (match($0, /(^|[^A-Za-z0-9_])(fopen|freopen|opendir|chdir|mkdir) *\(|std::(basic_)?[io]?fstream|std::filesystem/)) {
        complain("files go through base/, not through \"" substr($0, RSTART, RLENGTH) "\"")
    }
}
END {
    take_away(reaches)
    take_away(reached_by)
    for (unit in units) {
        printf "%s:1: reaches others that reach it, or lies between such:", file_of[unit]
        n = split(reaches[unit], list, SUBSEP)
        for (i = 1; i <= n; i++) if (list[i] in units) printf " %s", list[i]
        printf "\n"
        bad = 1
    }
    exit bad
}
' "${files[@]}"
