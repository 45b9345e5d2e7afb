#!/usr/bin/env bash
# console.sh PAGE FILES PROGRAMS WORK: runs every command of a page's blocks "console", one after the
# other in a folder with those files, and compares what it prints with what stands below it.
set -euo pipefail
page=$1 files=$2 programs=$3 work=$4

rm -rf "$work"
mkdir -p "$work/run" "$work/lines"
cp "$files"/* "$work/run/"
awk -v lines="$work/lines" '
    /^```console$/ { inside = 1; next }
    /^```/ { inside = 0 }
    inside && /^\$ / { file = sprintf("%s/%03d", lines, ++n); print substr($0, 3) > (file ".command"); printf "" > (file ".expected"); next }
    inside { print > (file ".expected") }
' "$page"

export PATH=$programs:$PATH
status=0
count=0
for command in "$work"/lines/*.command; do
    [ -e "$command" ] || break
    count=$((count + 1))
    (cd "$work/run" && bash "$command") >"${command%.command}.printed" 2>&1 </dev/null || true
    diff -u "${command%.command}.expected" "${command%.command}.printed" && continue
    echo "not what $(basename "$page") says of: $(cat "$command")"
    status=1
done
echo "$count commands of $(basename "$page") ran"
[ "$count" -gt 0 ] || status=1
exit "$status"
