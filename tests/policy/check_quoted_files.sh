#!/usr/bin/env bash
# A document that quotes a file of the project says so in a line "<!-- file: PATH -->" ahead of the
# quoted block. Names each block that is not the file as it stands; ends with 1 when there are any.
#   check_quoted_files.sh PROJECT
set -euo pipefail
cd "$1"

status=0
quotes=0
for document in *.md docs/*.md; do
    while IFS=: read -r line path; do
        quotes=$((quotes + 1))
        awk -v from="$line" 'NR <= from { next }
            /^```/ { if (inside) exit; inside = 1; next }
            inside { print }' "$document" | diff -u "$path" - && continue
        echo "$document:$line: not as $path stands"
        status=1
    done < <(sed -nE '/^<!-- file: (.*) -->$/ { =; s//\1/p }' "$document" | paste -d: - -)
done
echo "$quotes files are quoted"
[ "$quotes" -gt 0 ] || status=1
exit "$status"
