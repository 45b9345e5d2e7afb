#!/usr/bin/env bash
# Names every function that sends the database a statement that changes it, and compares them with
# those that are known. Where they are, rows are kept or undone as one: there is a Commit, each is
# the last statement of a try block, and the catch behind it has a Rollback. Ends with 1 where
# anything is amiss.
#   check_changes.sh PROJECT [KNOWN]    KNOWN: a file of lines "FILE FUNCTION"
set -euo pipefail
# Whoever is added here has looked at what becomes of the rows when a statement, or the commit,
# fails. Definitions (ExecuteDDL) commit by themselves.
known="apps/workbench/records/well_comments.cpp Add
apps/workbench/records/well_comments.cpp Change
apps/workbench/records/well_comments.cpp LetAllRead
apps/workbench/records/well_comments.cpp Remove
src/blocks/neighbor_blocks.cpp CNeighborBlocks::DeleteFromABE2
src/blocks/neighbor_blocks.cpp CNeighborBlocks::InsertMapToTable
src/blocks/neighbor_blocks.cpp CNeighborBlocks::InsertRows
src/pickers/custom_order_dlg.cpp WriteArea
src/records/create_user_table.cpp CKvCreateUserTable::Create_Comment_Table"
[ $# -lt 2 ] || known=$(cat "$2")
cd "$1"
export LC_ALL=C

# The manager itself, which carries the statements out, is no caller.
mapfile -t files < <(grep -rlw CKvDbAbsDataMgr src apps --include='*.h' --include='*.cpp' |
                     grep -v '/db_abs_data_mgr\.' | sort)
[ ${#files[@]} -gt 0 ] || { echo "nobody under $1 uses the database manager" >&2; exit 2; }

callers=$(awk '
    FNR == 1 { name = "?" }
    # A definition begins at the margin.
    /^[A-Za-z].*[A-Za-z0-9_]\(/ {
        name = $0
        sub(/\(.*/, "", name)
        sub(/.*[ *&]/, "", name)
    }
    /^[ \t]*\/\// { next }
    /(\.|->)(Insert|Delete|ExecuteDDL|ExecuteDML)\(/ { print FILENAME, name }
' "${files[@]}" | sort -u)

status=0
while IFS= read -r line; do
    case $line in
        "> "*) echo "${line#> }: changes the database, but is not in the list of $0"; status=1 ;;
        "< "*) echo "${line#< }: is in the list of $0, but changes nothing"; status=1 ;;
    esac
done < <(diff <(sort <<<"$known") <(echo "$callers") || true)

while IFS= read -r file; do
    awk '
        function complain(why) { printf "%s:%d: %s\n", FILENAME, FNR, why; bad = 1 }
        /^[ \t]*\/\// || /^[ \t]*$/ { next }
        after_commit && !/^[ \t]*\} catch \(/ { complain("a Commit is not the last of its try block") }
        after_commit && /^[ \t]*\} catch \(/ { in_catch = 1; after_commit = 0; next }
        { after_commit = 0 }
        in_catch && /(\.|->)Rollback\(\)/ { in_catch = 0 }
        in_catch && /^[ \t]*\}/ { complain("a catch behind a Commit has no Rollback"); in_catch = 0 }
        /(\.|->)Commit\(\)/ { commits++; after_commit = 1 }
        END {
            if (!commits) { FNR = 1; complain("changes the database and commits nothing") }
            exit bad
        }
    ' "$file" || status=1
done < <(cut -d' ' -f1 <<<"$callers" | sort -u | grep .)
exit "$status"
