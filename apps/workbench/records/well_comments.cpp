#include "workbench/records/well_comments.h"

#include <algorithm>
#include <limits>

#include "base/numbers.h"
#include "base/text.h"
#include "base/utf8.h"
#include "frame/kvdbkvn/db_dataset_set.h"

namespace workbench::well_comments {

namespace {

constexpr const char* kOwner = "NORVADON";
constexpr const char* kEnd = "_WELL_COMMENT";
constexpr const char* kDate = "to_char(REVISION_DATE, 'YYYY-MM-DD HH24:MI:SS')";

std::string Name() {
    return kv::ToUpper(CKvDbDatasetSet::S_GetGlobalDataset()) + kEnd;
}

/// What is true for the rows where an expression is that text; an empty one is stored as none.
std::string Is(const std::string& expression, const std::string& text) {
    return expression + (text.empty() ? " is null" : " = " + Quoted(text));
}

std::string IsNumber(const std::string& well, int number) {
    return Is("ID", well) + " and REC_SEQ = " + std::to_string(number);
}

/// What a statement says of the whole of a comment, so that it does not hit one that is another by
/// now.
std::string DeleteStatement(const std::string& well, const WellComment& was) {
    return "delete from " + Table() + " where " + IsNumber(well, was.number) + " and " +
           Is("COMMENTS", was.text) + " and " + Is("USER_ID", was.user) + " and " +
           Is(kDate, was.date);
}

std::string InsertStatement(const std::string& well, int number, const std::string& text,
                            const std::string& user) {
    return "insert into " + Table() + " (ID, REC_SEQ, COMMENTS, USER_ID, REVISION_DATE) values (" +
           Quoted(well) + ", " + std::to_string(number) + ", " + Quoted(text) + ", " +
           Quoted(user) + ", sysdate)";
}

void CheckLength(const std::string& text) {
    if (text.size() > kMostText) {
        throw CKvException("The comment takes " + std::to_string(text.size()) +
                           " bytes, and one may take " + std::to_string(kMostText));
    }
}

/// As many whole characters as there is room for.
std::string Cut(const std::string& user) {
    std::size_t end = 0;
    while (end < user.size()) {
        const std::size_t next = end + kv::Utf8At(user, end).length;
        if (next > kMostUser) break;
        end = next;
    }
    return user.substr(0, end);
}

/// Lets `change` work on a connection, and keeps all that it changed; where it throws, nothing.
template <typename Change>
void ChangeWhole(const Change& change) {
    CKvDbAbsDataMgr db(KV_CONNECT_DEFAULT);
    try {
        db.Connect();
        change(db);
        db.Commit();
    } catch (const CKvException&) {
        db.Rollback();
        db.Disconnect();
        throw;
    }
    db.Disconnect();
}

bool IsTaken(const std::string& well, int number) {
    return Rows("select REC_SEQ from " + Table() + " where " + IsNumber(well, number)).Count() > 0;
}

int NextNumber(const std::string& well) {
    const Rows last("select max(REC_SEQ) from " + Table() + " where " + Is("ID", well));
    const int number = kv::Atoi(last.Cell(0, 0));
    if (number == std::numeric_limits<int>::max()) {
        throw CKvException("The comments on this well end with the number " +
                           std::string(last.Cell(0, 0)) + ", and none is left for another one");
    }
    return number + 1;
}

}  // namespace

std::string Table() {
    return std::string(kOwner) + "." + Name();
}

std::vector<std::string> Tables() {
    const Rows rows(std::string("select table_name from all_tables where table_name like '%") +
                    kEnd + "' and owner='" + kOwner + "'");
    std::vector<std::string> tables;
    for (int row = 0; row < rows.Count(); ++row)
        tables.emplace_back(rows.Cell(row, 0));
    return tables;
}

bool Exist() {
    const std::vector<std::string> tables = Tables();
    return std::ranges::find(tables, Name()) != tables.end();
}

std::vector<WellComment> Of(const std::string& well) {
    const Rows rows(std::string("select REC_SEQ, COMMENTS, USER_ID, ") + kDate + " from " +
                    Table() + " where " + Is("ID", well) + " order by REC_SEQ");
    std::vector<WellComment> comments;
    for (int row = 0; row < rows.Count(); ++row) {
        comments.push_back(
            {kv::Atoi(rows.Cell(row, 0)), rows.Cell(row, 1), rows.Cell(row, 2), rows.Cell(row, 3)});
    }
    return comments;
}

/// Two who add at once come to the same number: the one who is late takes the next.
void Add(const std::string& well, const std::string& text, const std::string& user) {
    CheckLength(text);
    for (;;) {
        const int number = NextNumber(well);
        try {
            ChangeWhole([&](CKvDbAbsDataMgr& db) {
                db.Insert(InsertStatement(well, number, text, Cut(user)));
            });
            return;
        } catch (const CKvException&) {
            if (!IsTaken(well, number)) throw;
        }
    }
}

bool Change(const std::string& well, const WellComment& was, const std::string& text,
            const std::string& user) {
    CheckLength(text);
    bool found = false;
    ChangeWhole([&](CKvDbAbsDataMgr& db) {
        found = db.Delete(DeleteStatement(well, was)) == 1;
        if (found) db.Insert(InsertStatement(well, was.number, text, Cut(user)));
    });
    return found;
}

bool Remove(const std::string& well, const WellComment& was) {
    bool found = false;
    ChangeWhole([&](CKvDbAbsDataMgr& db) { found = db.Delete(DeleteStatement(well, was)) == 1; });
    return found;
}

void LetAllRead(const std::string& table) {
    ChangeWhole([&](CKvDbAbsDataMgr& db) {
        db.ExecuteDML(std::string("grant select on ") + kOwner + "." + table + " to public");
    });
}

}  // namespace workbench::well_comments
