#pragma once

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
#include "support/host_forms.h"

/// What hosts write, on every engine, through the database manager. A program that includes this
/// names its engines with INSTANTIATE_TEST_SUITE_P.
namespace test {

using kv::test::DialectForm;
using kv::test::RefusedForm;
using testing::HasSubstr;
using testing::Not;

/// A database with the tables of `kDialectTables`.
class HostDatabase {
public:
    virtual ~HostDatabase() = default;
    virtual std::string Server() const = 0;
};

struct HostEngine {
    std::string name;
    bool isPostgres;
    std::function<std::unique_ptr<HostDatabase>()> make;
};

inline void PrintTo(const HostEngine& engine, std::ostream* out) {
    *out << engine.name;
}

class HostForms : public testing::TestWithParam<HostEngine> {
protected:
    HostForms() : database_(GetParam().make()) {
        ConnectTo(CKvDbInfo("", "", database_->Server().c_str()));
        manager_.Connect();
    }
    ~HostForms() override { kv::db::SessionPool::Instance().Clear(); }

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

    std::unique_ptr<HostDatabase> database_;
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
        if (!(GetParam().isPostgres ? form.onPostgres : form.onSqlite)) continue;
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

TEST_P(HostForms, ThatChangeRowsKnowTheTypesOfTheirConditionsToo) {
    manager_.Insert("insert into plans (area1, blk1) values ('kept', '8')");
    manager_.Insert("insert into plans (area1, blk1) values ('new', '10')");
    manager_.ExecuteDML("update plans set ext1 = 'U' where blk1 > 9 and area1 in ('kept', 'new')");
    EXPECT_EQ(Rows("select area1 from plans where ext1 = 'U'", {""}),
              std::vector<std::string>{"new"});
    manager_.ExecuteDML("delete from plans where blk1 > 9 and ext1 = 'U'");
    EXPECT_EQ(Rows("select blk1 from plans where area1 in ('kept', 'new')", {""}),
              std::vector<std::string>{"8"});
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

TEST_P(HostForms, ReadYearsOfTwoDigitsOutOfAColumn) {
    const std::string sql =
        "select to_date(t, 'DD-MON-RR'), to_date(t, 'DD-MON-YY') from (select '01-JAN-49' t from "
        "dual union select '02-JAN-60' from dual union select '03-JAN-85' from dual) x order by t";
    if (GetParam().name == "SqliteOverOdbc") {
        EXPECT_THAT(FailureOf([&] { manager_.Select(sql); }), HasSubstr("it has no counterpart"));
        return;
    }
    EXPECT_EQ(Rows(sql, {"|"}),
              (std::vector<std::string>{"2049-01-01 00:00:00|2049-01-01 00:00:00",
                                        "1960-01-02 00:00:00|2060-01-02 00:00:00",
                                        "1985-01-03 00:00:00|2085-01-03 00:00:00"}));
}

TEST_P(HostForms, KnowAColumnOnceItsTypeHasChanged) {
    manager_.ExecuteDDL("create table kvt (a VARCHAR2(5))");
    EXPECT_EQ(Rows("select a from kvt where a > 9", {""}).size(), 0u);
    manager_.ExecuteDDL("drop table kvt");
    manager_.ExecuteDDL("create table kvt (a NUMBER)");
    manager_.Insert("insert into kvt values (10)");
    EXPECT_EQ(Rows("select a from kvt where a > '9'", {""}), std::vector<std::string>{"10"});
}

}  // namespace test
