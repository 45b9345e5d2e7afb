// The multiple-selection dialog: a search over a column of many values beside the bare query.

#include <sqlite3.h>

#include <stdexcept>
#include <string>

#include "frame/kvdbkvn/db_abs_data_mgr.h"
#include "list_dialog.h"
#include "peers.h"
#include "qualifiers/list_sel_ids.h"
#include "ratio.h"
#include "services/kvdbkvn/dialect/translate.h"

namespace {

using namespace kv::list_sel;

/// Of those, how many stand in Selected when the search runs.
constexpr int kSelectedValues = 10'000;

/// Two tables with the same values, one of them with an index.
constexpr const char* kTable = "value";
constexpr const char* kIndexedTable = "indexed_value";

/// The two tables, in a file that is gone when the program ends.
class ValueFile : public bench::PassingFile {
public:
    ValueFile() : PassingFile("values") {
        sqlite3* database = nullptr;
        sqlite3_open(Path().c_str(), &database);
        const int code = sqlite3_exec(database, Statements().c_str(), nullptr, nullptr, nullptr);
        sqlite3_close(database);
        if (code != SQLITE_OK) throw std::runtime_error("no table of values could be made");
    }

private:
    static std::string Statements() {
        std::string sql =
            "begin;"
            "create table value (name text);"
            "create table indexed_value (name text);"
            "create index by_name on indexed_value (name);";
        for (int i = 0; i < bench::kValues; ++i)
            sql += "insert into value values ('" + bench::Value(i) + "');";
        return sql + "insert into indexed_value select name from value; commit";
    }
};

const std::string& ValuePath() {
    static const ValueFile file;
    return file.Path();
}

void SearchOurs(benchmark::State& state, const char* table) {
    CKvDbInfo info("", "", ("sqlite:" + ValuePath()).c_str());
    CKvDbAbsDataMgr(1).SetDbInfo(info);
    bench::ListDialog open(table);
    open.Fill(kSelected, kSelectedValues, bench::kValues / kSelectedValues);
    for (auto _ : state) {
        if (!open.Click(kSearch)) state.SkipWithError("the search button cannot be pressed");
    }
    if (open.List(kAvailable).GetCount() != bench::kValues - kSelectedValues) {
        state.SkipWithError("the search did not hold back what is selected");
    }
}

void SearchPeer(benchmark::State& state, const std::string& table) {
    const std::string query = "select distinct name from " + table + " where name like '%%'";
    const std::string sql = kv::dialect::Translate(query, {}).text;
    bench::QueryBareEngine(state, ValuePath(), sql);
}

const bench::Subject kSubjects[] = {
    {"qualifiers/search 100,000 values", 2,
     [](benchmark::State& state) { SearchOurs(state, kTable); },
     [](benchmark::State& state) { SearchPeer(state, kTable); }},
    {"qualifiers/search 100,000 indexed values", 2,
     [](benchmark::State& state) { SearchOurs(state, kIndexedTable); },
     [](benchmark::State& state) { SearchPeer(state, kIndexedTable); }},
};

}  // namespace
