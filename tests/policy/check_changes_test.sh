#!/usr/bin/env bash
# A change of the database that nobody knows of, or that is not kept or undone as one, is found; one
# that is passes.
#   check_changes_test.sh FOLDER_FOR_TREES
set -euo pipefail
check=$(dirname "$(readlink -f "$0")")/check_changes.sh
tree=$1/changes
failures=0

# The body of a function of the one file of a tree, in which the database is changed.
check_tree() {  # BODY KNOWN
    rm -rf "$tree"
    mkdir -p "$tree/src/blocks" "$tree/apps"
    printf 'void CBlocks::Store(CKvDbAbsDataMgr& db) {\n%s\n}\n' "$1" >"$tree/src/blocks/a.cpp"
    printf '%s\n' "$2" >"$tree/known"
    bash "$check" "$tree" "$tree/known"
}
passes() {
    check_tree "$@" >/dev/null && return
    echo "should pass: $1"
    failures=$((failures + 1))
}
is_caught() {  # WORDS BODY KNOWN
    local found words=$1
    shift
    found=$(check_tree "$@") || { [[ $found == *"$words"* ]] && return; }
    echo "should be caught ($words): $1"
    failures=$((failures + 1))
}

store="src/blocks/a.cpp CBlocks::Store"
whole='    try {
        db.Insert(sql);
        db.Commit();
    } catch (const CKvException& failure) {
        // A remark.
        db.Rollback();
    }'
passes "$whole" "$store"
passes "${whole//db./db->}" "$store"
is_caught "but is not in the list" "$whole" "src/blocks/b.cpp CBlocks::Store"
is_caught "but changes nothing" "$whole" "$store
src/blocks/a.cpp CBlocks::Other"
for call in Delete ExecuteDML ExecuteDDL; do
    is_caught "but is not in the list" "${whole/Insert/$call}" "src/blocks/a.cpp CBlocks::Other"
done
is_caught "commits nothing" '    db.Insert(sql);' "$store"
is_caught "not the last of its try block" "${whole/'db.Commit();'/'db.Commit();
        db.FreeData();'}" "$store"
is_caught "has no Rollback" "${whole/'db.Rollback'/'db.FreeData'}" "$store"

[ "$failures" -eq 0 ]
