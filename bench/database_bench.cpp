// The database layer beside its client libraries. Connecting needs a PostgreSQL server: the one
// that KVGUICTL_BENCH_PG names by its URL, otherwise one that is started here, where one is
// installed.

#include <sqlite3.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

#include "frame/kvdbkvn/db_abs_data_mgr.h"
#include "ratio.h"
#include "services/kvdbkvn/dialect/translate.h"
#include "services/kvdbkvn/engines/open_session.h"
#include "support/postgres_cluster.h"
#include "support/sqlite_file.h"

namespace {

namespace fs = std::filesystem;

constexpr const char* kQuery = "select areacode, lbnum, lbext, refnum from kv_blocks";

/// A database file of 30,000 blocks, gone when the program ends.
class BlockFile {
public:
    BlockFile()
        : path_((fs::temp_directory_path() / ("kvbench-" + std::to_string(getpid()) + ".db"))
                    .string()) {
        test::RunOnSqliteFile(
            path_,
            "create table kv_blocks (areacode text, lbnum text, lbext text, refnum integer);"
            "with recursive n(i) as (select 1 union all select i + 1 from n where i < 30000) "
            "insert into kv_blocks select '0' || (i / 1000), i % 1000, "
            "case when i % 7 = 0 then 'A' end, i from n");
    }
    ~BlockFile() { fs::remove(path_); }
    const std::string& Path() const { return path_; }

private:
    std::string path_;
};

const std::string& BlockPath() {
    static const BlockFile file;
    return file.Path();
}

void ConnectTo(const std::string& server) {
    CKvDbInfo info("", "", server.c_str());
    CKvDbAbsDataMgr(1).SetDbInfo(info);
}

void SelectOurs(benchmark::State& state) {
    ConnectTo("sqlite:" + BlockPath());
    CKvDbAbsDataMgr manager(1);
    manager.Connect();
    for (auto _ : state) {
        benchmark::DoNotOptimize(manager.Select(kQuery));
        manager.FreeData();
    }
}
void SelectPeer(benchmark::State& state) {
    sqlite3* database = nullptr;
    sqlite3_open(BlockPath().c_str(), &database);
    for (auto _ : state) {
        std::vector<std::string> cells;
        sqlite3_stmt* statement = nullptr;
        sqlite3_prepare_v2(database, kQuery, -1, &statement, nullptr);
        while (sqlite3_step(statement) == SQLITE_ROW) {
            for (int column = 0; column < 4; ++column) {
                const auto* text =
                    reinterpret_cast<const char*>(sqlite3_column_text(statement, column));
                cells.emplace_back(text ? text : "");
            }
        }
        sqlite3_finalize(statement);
        benchmark::DoNotOptimize(cells);
    }
    sqlite3_close(database);
}
const bench::Subject kSelect("database/select 30,000 rows", 1.5, SelectOurs, SelectPeer);

/// The rows of ten blocks with eight neighbors each, as they are stored in one statement.
std::string LongestStatement() {
    std::string sql = "insert into NORVADON.nvd2000_tmp_abe2";
    for (int i = 0; i < 80; ++i) {
        if (i > 0) sql += " union ";
        const std::string block = std::to_string(i);
        sql += "(select 'MACHINE-1','GRAND ISLE','" + block + "','WEST DELTA','" + block +
               "A','N' from dual) ";
    }
    return sql;
}

void TranslateOurs(benchmark::State& state) {
    const std::string sql = LongestStatement();
    for (auto _ : state)
        benchmark::DoNotOptimize(kv::dialect::Translate(sql, {}));
}
/// SQLite reads the same statement, and lays out how to run it.
void TranslatePeer(benchmark::State& state) {
    sqlite3* database = nullptr;
    sqlite3_open(":memory:", &database);
    sqlite3_exec(database,
                 "create table nvd2000_tmp_abe2 (machine_id text, o_area text, o_bext text, "
                 "n_area text, n_bext text, kind text)",
                 nullptr, nullptr, nullptr);
    const std::string sql = kv::dialect::Translate(LongestStatement(), {}).text;
    for (auto _ : state) {
        sqlite3_stmt* statement = nullptr;
        if (sqlite3_prepare_v2(database, sql.c_str(), -1, &statement, nullptr) != SQLITE_OK) {
            state.SkipWithError(sqlite3_errmsg(database));
            break;
        }
        sqlite3_finalize(statement);
    }
    sqlite3_close(database);
}
const bench::Subject kTranslate("database/translate the longest statement", 2.0, TranslateOurs,
                                TranslatePeer);

bool HasPostgres() {
    return std::getenv("KVGUICTL_BENCH_PG") || fs::exists("/usr/lib/postgresql");
}

std::string PostgresUrl() {
    if (const char* url = std::getenv("KVGUICTL_BENCH_PG")) return url;
    static const test::PostgresCluster cluster;
    return cluster.Url();
}

void ConnectOurs(benchmark::State& state) {
    ConnectTo(PostgresUrl());
    CKvDbAbsDataMgr manager(1);
    for (auto _ : state) {
        manager.Connect();
        manager.Disconnect();
    }
}
void ConnectPeer(benchmark::State& state) {
    const CKvDbInfo info("", "", PostgresUrl().c_str());
    for (auto _ : state)
        benchmark::DoNotOptimize(kv::db::Open(info));
}

const bool kConnect = [] {
    const char* name = "database/connect and disconnect";
    if (HasPostgres())
        bench::Subject(name, 0.01, ConnectOurs, ConnectPeer, bench::Clock::kWall);
    else
        std::fprintf(stderr, "%s: skipped, since no PostgreSQL server is installed\n", name);
    return true;
}();

}  // namespace
