#!/usr/bin/env bash
# Looks at the programs that were installed, with all that belongs to them, and runs them from there.
#   programs_test.sh PREFIX WORK SAMPLE_DATABASE
# The loader is told nothing: where the tree stands for that of the system, whoever calls does so.
set -euo pipefail
prefix=$1 work=$2 sample=$3
export QT_QPA_PLATFORM=offscreen XDG_CONFIG_HOME=$work/config XDG_DATA_HOME=$work/data
unset KVGUICTL_ENGINES

fail() { printf 'programs_test: %s\n' "$*" >&2; exit 1; }

rm -rf "$work"
mkdir -p "$work"

while read -r file; do
    [ -s "$prefix/$file" ] || fail "$file is not installed"
done <<'END'
bin/kvdlg
bin/kvload
bin/sampledata
bin/workbench
share/applications/kvguictl-workbench.desktop
share/bash-completion/completions/kvdlg
share/icons/hicolor/scalable/apps/kvguictl-workbench.svg
share/icons/hicolor/scalable/mimetypes/application-x-kvguictl-map.svg
share/mime/packages/kvguictl.xml
END

# What is said of a program is what it can do.

# The options that a page explains, and those that it speaks of anywhere.
explained() { gzip -dc "$1" | sed -nE 's/^\.It Fl (-[a-z0-9-]+).*/-\1/p' | sort -u; }
spoken_of() { gzip -dc "$1" | grep -oE 'Fl -[a-z0-9-]+' | sed '/-help$/d; s/Fl /-/' | sort -u; }
# Those that the program tells of, in its own help and in that of its commands.
told() {
    local command
    "$1" --help >"$work/help"
    for command in $(awk '/^[^ ]/ { commands = /^Subcommands:/ } commands && /^  [a-z]/ { print $1 }
                          /^$/ { commands = 0 }' "$work/help"); do
        "$1" "$command" --help >>"$work/help"
    done
    sed -nE '/^  -h,--help/d; s/^  (-[a-z],)?(--[a-z0-9-]+).*/\2/p' "$work/help" | sort -u
}
for program in "$prefix"/bin/*; do
    page=$prefix/share/man/man1/$(basename "$program").1.gz
    [ -f "$page" ] || fail "$program has no man page"
    told "$program" >"$work/told"
    [ -s "$work/told" ] || fail "$program tells of no option"
    diff "$work/told" <(explained "$page") || fail "$page explains other options than there are"
    diff "$work/told" <(spoken_of "$page") || fail "$page speaks of other options than there are"
done
[ "$(find "$prefix/share/man/man1" -type f | wc -l)" = "$(find "$prefix/bin" -type f | wc -l)" ] ||
    fail "a man page tells of no program"

# A file by its name is a map, which the workbench opens.
mkdir -p "$work/mime/packages"
cp "$prefix/share/mime/packages/kvguictl.xml" "$work/mime/packages"
XDG_DATA_DIRS=$work update-mime-database "$work/mime"
map=$(awk -F: '$3 == "*.kvmap" { print $2 }' "$work/mime/globs2")
[ -n "$map" ] || fail "no file type is that of maps"
desktop=$prefix/share/applications/kvguictl-workbench.desktop
grep -qx "MimeType=$map;" "$desktop" || fail "nothing opens $map"
[ -s "$prefix/share/icons/hicolor/scalable/mimetypes/${map/\//-}.svg" ] || fail "$map has no icon"
opener=$(sed -n 's/^Exec=\([a-z]*\) %f$/\1/p' "$desktop")
[ -x "$prefix/bin/$opener" ] || fail "the desktop is to start $opener, which is not installed"

# A run path points into the tree.
inside=$(realpath "$prefix")
while read -r file; do
    path=$(readelf -d "$file" | sed -nE 's/.*\(R(UN)?PATH\).*\[(.*)\]/\2/p')
    [ -n "$path" ] || continue
    [[ $path == '$ORIGIN/'* && $(realpath "${path/'$ORIGIN'/$(dirname "$file")}") == "$inside"/* ]] ||
        fail "the run path of $file is $path"
done < <(find "$prefix/bin" "$prefix/lib" -type f \( -path '*/bin/*' -o -name '*.so*' \))

# A dialog without a screen, on the sample database and through an engine that is loaded on demand.
pick() {
    "$prefix/bin/kvdlg" run CKvGuiListSel --script - --db "$1" --print values <<'END'
{ "inputs": {"column": "lessee", "table": "NORVADON.gulf_mexico_lease"},
  "user": [
    {"window": "CKvGuiListSel",
      "do": [ {"type": [1191, "minerals 12"]}, {"click": 1192}, {"select": [1193, [0, 2]]},
              {"click": 1188}, {"click": 1} ]} ] }
END
}
picked=$(pick "sqlite:$sample")
[ -n "$picked" ] || fail "a dialog gives nothing"
[ "$(pick "odbc:Driver=SQLite3;Database=$sample")" = "$picked" ] ||
    fail "a dialog gives something else through ODBC"
! pick 'postgresql:///none?host=/nowhere' >"$work/said" 2>&1 ||
    fail "a dialog has found a server that is not there"
grep -q '/nowhere/' "$work/said" || fail "the engine for PostgreSQL was not loaded: $(<"$work/said")"

# A file of another program, through the module for those, where there was a GDAL to build it with.
if [ -n "$(find "$prefix/lib" -name KVGuiCtlGdal.so)" ]; then
    printf 'NAME,CODE\nGREEN CANYON,43602\n' >"$work/areas.csv"
    "$prefix/bin/kvload" guess "$work/areas.csv" >"$work/said" 2>&1 &&
        grep -q '"areaname": "NAME"' "$work/said" ||
        fail "a file of another program is not read: $(<"$work/said")"
fi

# A map that cannot be opened is told, by the name that it has from here.
code=0
(cd "$work" && "$prefix/bin/workbench" --db "sqlite:$sample" --picture none.png missing.kvmap) \
    >"$work/said" 2>&1 || code=$?
[ "$code" = 3 ] && grep -qF "$work/missing.kvmap could not be opened." "$work/said" ||
    fail "a map that is missing is not told: $(<"$work/said")"
