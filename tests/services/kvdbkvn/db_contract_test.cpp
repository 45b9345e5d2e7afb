#include "support/database_contract.h"
#include "support/sqlite_file.h"

namespace test {
namespace {

class SqliteDatabase : public ContractDatabase {
public:
    explicit SqliteDatabase(std::string prefix) : prefix_(std::move(prefix)) {
        MakeSqliteFile(path_);
    }

    CKvDbInfo Info() const override { return {"", "", (prefix_ + path_).c_str()}; }
    void Raw(const std::string& sql) const override { RunOnSqliteFile(path_, sql); }
    std::string ManyRows() const override {
        return "with recursive n(i) as (select 1 union all select i + 1 from n where i < 100000) "
               "insert into kvt select 'row', i from n";
    }
    std::string FailsAtThree() const override {
        return "select abs(case b when 3 then -9223372036854775807 - 1 else b end) from kvt "
               "order by rowid limit 100";
    }
    std::vector<std::string> WritingTexts() const override {
        return {"insert into kvt values ('w', 900) returning a",
                "with x as (select 1 as n) insert into kvt select 'w', n + 900 from x",
                "with x as (select 1 as n) delete from kvt where b in (select n from x)",
                "replace into kvt values ('w', 900)",
                "pragma user_version = 7",
                "pragma case_sensitive_like = off",
                "pragma busy_timeout = 0",
                "pragma writable_schema = on",
                "attach ':memory:' as other",
                "begin",
                "savepoint s",
                "vacuum",
                "analyze",
                "alter table kvt rename to kvx",
                "create temp table z (a)"};
    }

    std::shared_ptr<void> ForbidCommit() const override {
        return std::make_shared<SqliteReader>(path_, "select * from kvt");
    }

private:
    TempFolder folder_;
    std::string path_ = folder_.Native("contract.db");
    std::string prefix_;
};

ContractEngine Engine(const std::string& name, const std::string& prefix) {
    return {name, [=] { return std::make_unique<SqliteDatabase>(prefix); }};
}

INSTANTIATE_TEST_SUITE_P(Engines, DatabaseContract,
                         testing::Values(Engine("Sqlite", "sqlite:"),
                                         Engine("SqliteOverOdbc", "odbc:Driver=SQLite3;Database=")),
                         NameOfEngine);

}  // namespace
}  // namespace test
