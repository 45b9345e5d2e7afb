#include "support/host_forms.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include "services/kvdbkvn/session_pool.h"
#include "support/database_helpers.h"
#include "support/postgres_database.h"
#include "support/sqlite_file.h"
#include "support/temp_folder.h"

/// What hosts write, on every engine, through the database manager: on PostgreSQL in databases
/// whose own order of texts is that of their bytes, and another.
namespace test {
namespace {

using kv::test::DialectForm;
using kv::test::RefusedForm;
using testing::HasSubstr;
using testing::Not;

constexpr const char* kIcu =
    "template template0 encoding 'UTF8' locale 'C' locale_provider icu icu_locale 'en-US'";

struct Engine {
    std::string name;
    bool postgres;
    bool odbc;
    std::string options = {};
};

void PrintTo(const Engine& engine, std::ostream* out) {
    *out << engine.name;
}

class HostForms : public testing::TestWithParam<Engine> {
protected:
    HostForms() {
        if (GetParam().postgres) {
            postgres_ = std::make_unique<PostgresDatabase>(GetParam().options);
            postgres_->Run("create schema norvadon; set search_path to norvadon; " +
                           std::string(kv::test::kDialectTables));
        } else {
            MakeSqliteFile(path_);
            RunOnSqliteFile(path_, kv::test::kDialectTables);
        }
        ConnectTo(CKvDbInfo("", "", Server().c_str()));
        manager_.Connect();
    }
    ~HostForms() override { kv::db::SessionPool::Instance().Clear(); }

    std::string Server() const {
        if (!postgres_)
            return (GetParam().odbc ? "odbc:Driver=SQLite3;Database=" : "sqlite:") + path_;
        if (!GetParam().odbc) return postgres_->Url();
        return "odbc:Driver=PostgreSQL Unicode;Servername=" + postgres_->SocketFolder() +
               ";Database=" + postgres_->Name() + ";UID=kv";
    }

    std::vector<std::string> Rows(const std::string& sql, const std::vector<std::string>& like) {
        manager_.Select(sql);
        const auto columns = like.empty() ? 1 : 1 + std::ranges::count(like.front(), '|');
        std::vector<std::string> rows;
        for (int row = 0; row < manager_.NumberOfRows(); ++row) {
            std::string cells;
            for (int column = 0; column < columns; ++column)
                cells += (column > 0 ? "|" : "") + std::string(manager_.GetItem(row, column));
            rows.push_back(cells);
        }
        return rows;
    }

    TempFolder folder_;
    std::string path_ = folder_.Native("host.db");
    std::unique_ptr<PostgresDatabase> postgres_;
    CKvDbAbsDataMgr manager_{1};
};

TEST_P(HostForms, GiveTheRowsOfOraclesRules) {
    for (const DialectForm& form : kv::test::HostQueries()) {
        SCOPED_TRACE(form.name);
        std::vector<std::string> rows;
        EXPECT_EQ(FailureOf([&] { rows = Rows(form.sql, form.rows); }).substr(0, 400), "");
        EXPECT_EQ(rows, form.rows);
    }
}

TEST_P(HostForms, ThatAreNotReadAreRefusedWithTheirPlaceAndTheConnectionGoesOn) {
    for (const RefusedForm& form : kv::test::RefusedForms()) {
        if (!(GetParam().postgres ? form.onPostgres : form.onSqlite)) continue;
        SCOPED_TRACE(form.sql);
        EXPECT_THAT(FailureOf([&] { manager_.Select(form.sql); }), HasSubstr(form.place));
        EXPECT_EQ(manager_.Select("select 1 from dual"), 1);
    }
}

TEST_P(HostForms, ThatAreNotReadAreRefusedAsChangesToo) {
    manager_.Insert("insert into plans (area1) values ('kept')");
    for (const char* sql :
         {"update plans set area1 = '' from gulf_mexico_lbi", "delete from plans returning area1",
          "insert into plans (area1) values ('w'), ('')", "create view v as select '' e from plans",
          "create table u as select '' e from plans"})
        EXPECT_THAT(FailureOf([&] { manager_.ExecuteDML(sql); }),
                    HasSubstr("Refused: the statement cannot be translated, since it is not "
                              "understood at character "))
            << sql;
    EXPECT_EQ(Rows("select area1 from plans where area1 = 'kept'", {""}).size(), 1u);
}

TEST_P(HostForms, ThatTheEngineRefusesGetItsOwnWords) {
    manager_.Insert("insert into plans (area1) values ('kept')");
    for (const char* sql : {"select area1 from plans where area1 like '%O'BRIEN%'",
                            "select a, from plans", "select a from plans b c"})
        EXPECT_THAT(FailureOf([&] { manager_.Select(sql); }), Not(HasSubstr("Refused"))) << sql;
    EXPECT_EQ(Rows("select area1 from plans where area1 = 'kept'", {""}).size(), 1u);
}

TEST_P(HostForms, NeverTakeAQuotedNameForAText) {
    EXPECT_THAT(FailureOf([&] { manager_.Select("select \"NOSUCH\" from plans"); }),
                testing::ContainsRegex("[Nn][Oo][Ss][Uu][Cc][Hh]"));
    EXPECT_EQ(Rows("select \"AREA1\" from \"PLANS\" p where p.\"BLK1\" = '5'", {""}),
              std::vector<std::string>{"700"});
}

TEST_P(HostForms, MayHoldATextThatEndsInABackslash) {
    EXPECT_EQ(Rows("select 'C:\\', areaname from gulf_mexico_connam2 where areaname like 'A_B\\%'",
                   {"|"}),
              std::vector<std::string>{"C:\\|A_B\\C"});
}

TEST_P(HostForms, KnowAColumnOnceItsTypeHasChanged) {
    manager_.ExecuteDDL("create table kvt (a VARCHAR2(5))");
    EXPECT_EQ(Rows("select a from kvt where a > 9", {""}).size(), 0u);
    manager_.ExecuteDDL("drop table kvt");
    manager_.ExecuteDDL("create table kvt (a NUMBER)");
    manager_.Insert("insert into kvt values (10)");
    EXPECT_EQ(Rows("select a from kvt where a > '9'", {""}), std::vector<std::string>{"10"});
}

TEST_P(HostForms, AreToldWhenTheServerTakesNoChanges) {
    if (!postgres_) return;
    postgres_->Run("alter database " + postgres_->Name() +
                   " set default_transaction_read_only = on");
    kv::db::SessionPool::Instance().Clear();
    CKvDbAbsDataMgr manager(1);
    manager.Connect();
    const std::string failure =
        FailureOf([&] { manager.Insert("insert into plans (area1) values ('w')"); });
    EXPECT_THAT(failure, HasSubstr("cannot execute INSERT in a read-only transaction"));
    EXPECT_THAT(failure, Not(HasSubstr("only a statement that reads")));
}

INSTANTIATE_TEST_SUITE_P(Engines, HostForms,
                         testing::Values(Engine{"Sqlite", false, false},
                                         Engine{"SqliteOverOdbc", false, true},
                                         Engine{"PostgresByByte", true, false},
                                         Engine{"PostgresByIcu", true, false, kIcu},
                                         Engine{"PostgresByIcuOverOdbc", true, true, kIcu}),
                         [](const auto& engine) { return engine.param.name; });

}  // namespace
}  // namespace test
