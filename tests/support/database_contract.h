#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <functional>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include "frame/kvdbkvn/database_fault.h"
#include "services/kvdbkvn/session_pool.h"
#include "support/database_helpers.h"
#include "support/temp_folder.h"
#include "window/acting/headless_desktop.h"
#include "window/window_system.h"

/// What every engine behind `CKvDbAbsDataMgr` keeps to. A program that includes this names its
/// engines with INSTANTIATE_TEST_SUITE_P.
namespace test {

/// An empty database, and what differs from engine to engine in how it is spoken to.
class ContractDatabase {
public:
    virtual ~ContractDatabase() = default;
    virtual CKvDbInfo Info() const = 0;
    /// Runs statements past the library.
    virtual void Raw(const std::string& sql) const = 0;
    /// A statement that puts the rows ('row', 1) to ('row', 100000) into kvt.
    virtual std::string ManyRows() const = 0;
    /// A query of kvt that fails at the row whose b is 3, and not before.
    virtual std::string FailsAtThree() const = 0;
    /// Texts of this engine's own that do more than read.
    virtual std::vector<std::string> WritingTexts() const = 0;
    /// Until the returned object goes, the row ('one', 3) can be put into kvt but not committed.
    virtual std::shared_ptr<void> ForbidCommit() const = 0;
};

struct ContractEngine {
    std::string name;
    std::function<std::unique_ptr<ContractDatabase>()> make;
};

inline void PrintTo(const ContractEngine& engine, std::ostream* out) {
    *out << engine.name;
}

inline std::string NameOfEngine(const testing::TestParamInfo<ContractEngine>& info) {
    return info.param.name;
}

class DatabaseContract : public testing::TestWithParam<ContractEngine> {
protected:
    DatabaseContract() : database_(GetParam().make()) {
        kv::WindowSystem::Get().SetDesktop(&desktop_);
        ConnectTo(database_->Info());
        CKvDbAbsDataMgr manager(1);
        manager.Connect();
        manager.ExecuteDDL("create table kvt (a VARCHAR2(20), b NUMBER, primary key (b))");
        manager.Insert("insert into kvt values ('one', 1)");
        manager.Insert("insert into kvt values ('two', 2)");
        manager.Disconnect();
    }
    ~DatabaseContract() override {
        kv::db::SetDatabaseFault(nullptr);
        kv::db::SessionPool::Instance().Clear();
    }

    /// The rows of kvt as another connection sees them.
    static std::string Table() {
        CKvDbAbsDataMgr manager(1);
        manager.Connect();
        manager.Select("select a, b from kvt order by b");
        return RowsOf(manager, 2);
    }

    TempFolder folder_;
    kv::HeadlessDesktop desktop_;
    std::unique_ptr<ContractDatabase> database_;
    CKvDbAbsDataMgr manager_{1};
};

GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(DatabaseContract);

TEST_P(DatabaseContract, ConnectsAndReadsCellsInTheOrderOfTheSelectList) {
    EXPECT_FALSE(manager_.IsConnected());
    EXPECT_EQ(manager_.Connect(), 1);
    EXPECT_TRUE(manager_.IsConnected());
    EXPECT_EQ(manager_.Select("select b, a from kvt order by b"), 2);
    EXPECT_EQ(manager_.NumberOfRows(), 2);
    EXPECT_STREQ(manager_.GetItem(0, 0), "1");
    EXPECT_STREQ(manager_.GetItem(1, 1), "two");
}

TEST_P(DatabaseContract, AQueryWithoutRowsIsNoFailure) {
    manager_.Connect();
    EXPECT_EQ(manager_.Select("select a from kvt where b = 77"), 0);
    EXPECT_EQ(manager_.NumberOfRows(), 0);
    EXPECT_STREQ(manager_.GetItem(0, 0), "");
}

TEST_P(DatabaseContract, NullIsEmptyTextAndSoIsAPlaceOutsideTheResult) {
    manager_.Connect();
    manager_.Insert("insert into kvt values (null, 3)");
    ASSERT_EQ(manager_.Select("select a, b from kvt where b = 3"), 1);
    EXPECT_STREQ(manager_.GetItem(0, 0), "");
    EXPECT_STREQ(manager_.GetItem(0, 1), "3");
    EXPECT_STREQ(manager_.GetItem(0, 2), "");
    EXPECT_STREQ(manager_.GetItem(0, -1), "");
    EXPECT_STREQ(manager_.GetItem(1, 0), "");
    EXPECT_STREQ(manager_.GetItem(-1, 0), "");
}

TEST_P(DatabaseContract, RowsLastUntilTheyAreFreedAlsoBeyondTheConnection) {
    manager_.Connect();
    manager_.Select("select a from kvt order by b");
    manager_.Disconnect();
    EXPECT_EQ(RowsOf(manager_, 1), "one two");
    manager_.FreeData();
    EXPECT_EQ(manager_.NumberOfRows(), 0);
}

TEST_P(DatabaseContract, ASecondSelectTakesThePlaceOfTheFirst) {
    manager_.Connect();
    manager_.Select("select a, b from kvt order by b");
    manager_.Select("select b from kvt where b = 2");
    EXPECT_EQ(manager_.NumberOfRows(), 1);
    EXPECT_EQ(RowsOf(manager_, 1), "2");
    EXPECT_STREQ(manager_.GetItem(0, 1), "");
}

TEST_P(DatabaseContract, AMissingTableIsNamedWithTheStatementAndTheConnectionGoesOn) {
    manager_.Connect();
    const std::string failure = FailureOf([&] { manager_.Select("select a from kv_missing"); });
    EXPECT_THAT(failure, testing::HasSubstr("kv_missing"));
    EXPECT_THAT(failure, testing::HasSubstr("select a from kv_missing"));
    EXPECT_EQ(manager_.NumberOfRows(), 0);
    EXPECT_EQ(manager_.Select("select a from kvt"), 2);
}

TEST_P(DatabaseContract, AQuoteIsDoubledInATextAndAnythingElseIsAFailure) {
    manager_.Connect();
    manager_.Insert("insert into kvt values ('O''Brien', 3)");
    EXPECT_EQ(manager_.Select("select b from kvt where a = 'O''Brien'"), 1);
    EXPECT_NE(FailureOf([&] { manager_.Select("select b from kvt where a = 'O'Brien'"); }), "");
    EXPECT_NE(FailureOf([&] { manager_.Insert("insert into kvt values ('O'Brien', 4)"); }), "");
    manager_.Disconnect();
    EXPECT_EQ(Table(), "one|1 two|2 O'Brien|3");
}

TEST_P(DatabaseContract, AQueryThatFailsHalfwayLeavesNoRowsAndTheTransactionAsItWas) {
    manager_.Connect();
    manager_.Select("select a from kvt");
    manager_.Insert("insert into kvt values ('three', 3)");
    EXPECT_NE(FailureOf([&] { manager_.Select(database_->FailsAtThree()); }), "");
    EXPECT_EQ(manager_.NumberOfRows(), 0);
    manager_.Disconnect();
    EXPECT_EQ(Table(), "one|1 two|2 three|3");
}

TEST_P(DatabaseContract, SelectRefusesWhatDoesMoreThanReadAndNothingChanges) {
    std::vector<std::string> texts = database_->WritingTexts();
    for (const char* text :
         {"insert into kvt values ('w', 900)", "delete from kvt", "delete from kvt;",
          "update kvt set a = 'w'", "drop table kvt", "create table kvu (a VARCHAR2(5))",
          "select a from kvt; delete from kvt", "select a from kvt; select b from kvt", "commit",
          " Commit;", "rollback", "grant alter on kvt to public", "", "  ", "-- nothing"})
        texts.emplace_back(text);
    for (const std::string& text : texts) {
        SCOPED_TRACE(text);
        manager_.Connect();
        EXPECT_NE(FailureOf([&] { manager_.Select(text); }), "");
        EXPECT_EQ(manager_.NumberOfRows(), 0);
        EXPECT_EQ(manager_.Select("select a from kvt"), 2);
        manager_.Disconnect();
        EXPECT_EQ(Table(), "one|1 two|2");
    }
}

TEST_P(DatabaseContract, ARefusedSelectLeavesTheOpenTransactionOpen) {
    std::vector<std::string> texts = database_->WritingTexts();
    for (const char* text : {"delete from kvt", "commit", "rollback", "drop table kvt",
                             "select a from kvt; delete from kvt"})
        texts.emplace_back(text);
    for (const std::string& text : texts) {
        SCOPED_TRACE(text);
        CKvDbAbsDataMgr manager(1);
        manager.Connect();
        manager.Insert("insert into kvt values ('pending', 3)");
        EXPECT_NE(FailureOf([&] { manager.Select(text); }), "");
        EXPECT_EQ(manager.Select("select a from kvt"), 3);
        EXPECT_EQ(Table(), "one|1 two|2");
    }
    EXPECT_EQ(Table(), "one|1 two|2");
}

TEST_P(DatabaseContract, ASelectSeesTheChangesOfItsConnectionAndOthersSeeThemOnceItDisconnects) {
    manager_.Connect();
    EXPECT_EQ(manager_.Insert("insert into kvt values ('three', 3)"), 1);
    EXPECT_EQ(manager_.Select("select a from kvt"), 3);
    EXPECT_EQ(Table(), "one|1 two|2");
    EXPECT_EQ(manager_.Delete("delete from kvt where b < 3"), 2);
    manager_.Disconnect();
    EXPECT_EQ(Table(), "three|3");
}

TEST_P(DatabaseContract, CommitMakesChangesLastAndRollbackUndoesThem) {
    manager_.Commit();
    manager_.Rollback();
    manager_.Connect();
    manager_.Insert("insert into kvt values ('three', 3)");
    manager_.Commit();
    EXPECT_EQ(Table(), "one|1 two|2 three|3");
    manager_.Delete("delete from kvt");
    manager_.Rollback();
    manager_.Insert("insert into kvt values ('four', 4)");
    manager_.Disconnect();
    EXPECT_EQ(Table(), "one|1 two|2 three|3 four|4");
    manager_.Commit();
    manager_.Rollback();
}

TEST_P(DatabaseContract, ACommitThatFailsIsThrownUndoesAllAndItsSessionGoesOnClean) {
    manager_.Connect();
    {
        const auto forbidden = database_->ForbidCommit();
        manager_.Delete("delete from kvt where b = 2");
        manager_.Insert("insert into kvt values ('one', 3)");
        EXPECT_THAT(FailureOf([&] { manager_.Commit(); }),
                    testing::HasSubstr("The changes could not be committed, and are undone: "));
    }
    // Nobody sees the row that was lost, nor commits it: neither who has the session now, nor who
    // gets it next.
    EXPECT_EQ(manager_.Select("select a from kvt"), 2);
    manager_.Disconnect();
    manager_.Connect();
    EXPECT_EQ(manager_.Select("select a from kvt"), 2);
    manager_.Insert("insert into kvt values ('four', 4)");
    manager_.Commit();
    EXPECT_EQ(Table(), "one|1 two|2 four|4");
}

TEST_P(DatabaseContract, ADisconnectThatCannotCommitShowsWhyAndThrowsNothing) {
    manager_.Connect();
    manager_.Insert("insert into kvt values ('three', 3)");
    kv::db::SetDatabaseFault([](std::string_view call) { return call == "commit"; });
    desktop_.ExpectMessage("");
    manager_.Disconnect();
    kv::db::SetDatabaseFault(nullptr);
    EXPECT_THAT(desktop_.Messages(),
                testing::ElementsAre(testing::StartsWith(
                    "Database error: The changes could not be committed, and are undone: ")));
    EXPECT_FALSE(manager_.IsConnected());
    EXPECT_EQ(Table(), "one|1 two|2");
}

TEST_P(DatabaseContract, WhicheverCallFailsIsToldAndAllOrNothingIsKept) {
    const std::string before = "one|1 two|2";
    const std::string after = "two|2 three|3 four|4";
    std::string failure = "none yet";
    for (int nth = 1; !failure.empty(); ++nth) {
        SCOPED_TRACE(nth);
        ASSERT_LT(nth, 40);
        int calls = 0;
        kv::db::SetDatabaseFault([&](std::string_view) { return ++calls == nth; });
        CKvDbAbsDataMgr manager(1);
        failure = FailureOf([&] {
            manager.Connect();
            manager.Delete("delete from kvt where b = 1");
            manager.Insert("insert into kvt values ('three', 3)");
            manager.Insert("insert into kvt values ('four', 4)");
            manager.Commit();
        });
        if (!failure.empty()) manager.Rollback();
        kv::db::SetDatabaseFault(nullptr);
        EXPECT_EQ(Table(), failure.empty() ? after : before);
    }
}

TEST_P(DatabaseContract, AFailedChangeUndoesItselfAloneAndTheTransactionLivesOn) {
    manager_.Connect();
    manager_.Insert("insert into kvt values ('three', 3)");
    EXPECT_NE(FailureOf([&] { manager_.Insert("insert into kvt values ('again', 3)"); }), "");
    // Its first row could be inserted, its second could not.
    EXPECT_NE(FailureOf([&] {
                  manager_.Insert("insert into kvt select a, b + 1 from kvt where b >= 2");
              }),
              "");
    EXPECT_NE(FailureOf([&] { manager_.Delete("delete from kv_missing"); }), "");
    manager_.Insert("insert into kvt values ('four', 4)");
    manager_.Disconnect();
    EXPECT_EQ(Table(), "one|1 two|2 three|3 four|4");
}

TEST_P(DatabaseContract, AFailedFirstChangeLeavesTheConnectionUsable) {
    manager_.Connect();
    EXPECT_NE(FailureOf([&] { manager_.Insert("insert into kvt values ('again', 1)"); }), "");
    manager_.Insert("insert into kvt values ('three', 3)");
    manager_.Disconnect();
    EXPECT_EQ(Table(), "one|1 two|2 three|3");
}

TEST_P(DatabaseContract, TwoStatementsInOneChangeAreRefusedWhole) {
    manager_.Connect();
    EXPECT_NE(
        FailureOf([&] { manager_.Insert("insert into kvt values ('three', 3); delete from kvt"); }),
        "");
    manager_.Disconnect();
    EXPECT_EQ(Table(), "one|1 two|2");
}

TEST_P(DatabaseContract, CreateTableCommitsWhatCameBeforeItAndItself) {
    {
        CKvDbAbsDataMgr manager(1);
        manager.Connect();
        manager.Insert("insert into kvt values ('three', 3)");
        EXPECT_TRUE(manager.ExecuteDDL("create table kvu (a VARCHAR2(5))"));
        manager.Insert("insert into kvt values ('four', 4)");
    }
    EXPECT_EQ(Table(), "one|1 two|2 three|3");
    manager_.Connect();
    EXPECT_EQ(manager_.Select("select a from kvu"), 0);
}

TEST_P(DatabaseContract, AStatementIsReadAnewOnceItsTableHasOtherColumns) {
    manager_.Connect();
    for (const char* type : {"NUMBER", "VARCHAR2(5)"}) {
        SCOPED_TRACE(type);
        manager_.ExecuteDDL(std::string("create table kvu (a ") + type + ")");
        manager_.Insert("insert into kvu values ('10')");
        EXPECT_EQ(manager_.Select("select a from kvu where a > 9"), 1);
        manager_.ExecuteDDL("drop table kvu");
    }
}

TEST_P(DatabaseContract, CommitWithBlanksAndSemicolonCommits) {
    {
        CKvDbAbsDataMgr manager(1);
        manager.Connect();
        manager.Insert("insert into kvt values ('three', 3)");
        EXPECT_TRUE(manager.ExecuteDML(" Commit;"));
        manager.Insert("insert into kvt values ('four', 4)");
    }
    EXPECT_EQ(Table(), "one|1 two|2 three|3");
}

TEST_P(DatabaseContract, ATableMadeAndGrantedIsThereWithoutADisconnect) {
    CKvDbAbsDataMgr maker(1);
    maker.Connect();
    maker.ExecuteDDL(
        "Create table NORVADON.GULF_WELL_COMMENT(ID VARCHAR2(20) NOT NULL ENABLE,REC_SEQ NUMBER "
        "NOT NULL ENABLE,COMMENTS VARCHAR2(80),USER_ID VARCHAR2(20),REVISION_DATE DATE, PRIMARY "
        "KEY (ID, REC_SEQ))");
    for (const char* right : {"ALTER", "DELETE", "INDEX", "INSERT", "UPDATE", "REFERENCES"})
        maker.ExecuteDML(std::string(" GRANT ") + right + " ON GULF_WELL_COMMENT TO PUBLIC;");
    maker.ExecuteDML(" Commit;");
    manager_.Connect();
    EXPECT_EQ(manager_.Select("select table_name from all_tables where table_name = "
                              "'GULF_WELL_COMMENT' and owner='NORVADON'"),
              1);
    EXPECT_EQ(manager_.Select("select comments from NORVADON.GULF_WELL_COMMENT"), 0);
    EXPECT_TRUE(maker.IsConnected());
}

TEST_P(DatabaseContract, AManagerDestroyedWithoutDisconnectLeavesTheTableAsItWas) {
    {
        CKvDbAbsDataMgr manager(1);
        manager.Connect();
        manager.Delete("delete from kvt");
    }
    EXPECT_EQ(Table(), "one|1 two|2");
}

TEST_P(DatabaseContract, AKilledProcessLeavesTheTableAsItWas) {
    kv::db::SessionPool::Instance().Clear();
    int ready[2];
    ASSERT_EQ(pipe(ready), 0);
    const pid_t child = fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
        char changed = 'n';
        try {
            manager_.Connect();
            manager_.Delete("delete from kvt where b = 1");
            manager_.Insert("insert into kvt values ('three', 3)");
            changed = manager_.Select("select a from kvt") == 2 ? 'y' : 'n';
        } catch (const CKvException&) {
        }
        if (write(ready[1], &changed, 1) == 1) pause();
        _exit(1);
    }
    char changed = '?';
    ASSERT_EQ(read(ready[0], &changed, 1), 1);
    kill(child, SIGKILL);
    int status = 0;
    waitpid(child, &status, 0);
    close(ready[0]);
    close(ready[1]);
    EXPECT_EQ(changed, 'y');
    EXPECT_EQ(Table(), "one|1 two|2");
}

TEST_P(DatabaseContract, TwoManagersWorkAtOnceAndTheRowsOfOneStayWhileTheOtherRuns) {
    CKvDbAbsDataMgr other(1);
    manager_.Connect();
    other.Connect();
    manager_.Select("select b from kvt order by b");
    for (int row = 0; row < manager_.NumberOfRows(); ++row) {
        const std::string b = manager_.GetItem(row, 0);
        ASSERT_EQ(other.Select("select b, a from kvt where b = " + b), 1);
        EXPECT_EQ(other.GetItem(0, 0), b);
    }
    EXPECT_EQ(RowsOf(manager_, 1), "1 2");
}

TEST_P(DatabaseContract, CopiesShareConnectionAndRows) {
    auto first = std::make_unique<CKvDbAbsDataMgr>(1);
    first->Connect();
    CKvDbAbsDataMgr copy(*first);
    copy.Insert("insert into kvt values ('three', 3)");
    EXPECT_EQ(first->Select("select a from kvt"), 3);
    EXPECT_EQ(copy.NumberOfRows(), 3);
    first.reset();
    EXPECT_TRUE(copy.IsConnected());
    copy.Disconnect();
    EXPECT_EQ(Table(), "one|1 two|2 three|3");
}

TEST_P(DatabaseContract, FreeDataAndDisconnectAreHarmlessAtAnyTime) {
    manager_.FreeData();
    manager_.Disconnect();
    manager_.Connect();
    manager_.Select("select a from kvt");
    for (int i = 0; i < 2; ++i) {
        manager_.FreeData();
        manager_.Disconnect();
        EXPECT_FALSE(manager_.IsConnected());
        EXPECT_EQ(manager_.NumberOfRows(), 0);
    }
    EXPECT_EQ(manager_.Connect(), 1);
    EXPECT_EQ(manager_.Select("select a from kvt"), 2);
}

TEST_P(DatabaseContract, WithoutAConnectionAStatementFails) {
    EXPECT_THAT(FailureOf([&] { manager_.Select("select a from kvt"); }),
                testing::HasSubstr("no connection"));
    EXPECT_THAT(FailureOf([&] { manager_.Insert("insert into kvt values ('three', 3)"); }),
                testing::HasSubstr("no connection"));
}

TEST_P(DatabaseContract, AZeroByteInAStatementIsRefused) {
    manager_.Connect();
    const std::string text = std::string("delete from kvt where b = 1") + '\0' + "23";
    EXPECT_THAT(FailureOf([&] { manager_.Delete(text); }), testing::HasSubstr("zero byte"));
    manager_.Disconnect();
    EXPECT_EQ(Table(), "one|1 two|2");
}

TEST_P(DatabaseContract, AHundredThousandRowsAreHeld) {
    database_->Raw("delete from kvt");
    database_->Raw(database_->ManyRows());
    manager_.Connect();
    EXPECT_EQ(manager_.Select("select a, b from kvt order by b"), 100000);
    EXPECT_STREQ(manager_.GetItem(0, 1), "1");
    EXPECT_STREQ(manager_.GetItem(54320, 1), "54321");
    EXPECT_STREQ(manager_.GetItem(99999, 0), "row");
    EXPECT_STREQ(manager_.GetItem(99999, 1), "100000");
}

TEST_P(DatabaseContract, ALongCellComesWhole) {
    manager_.Connect();
    std::string halves = "(select 'abcdefghij' as t from dual)";
    std::string expected = "abcdefghij";
    for (int i = 0; i < 11; ++i) {
        halves = "(select t || t as t from " + halves + " x" + std::to_string(i) + ")";
        expected += expected;
    }
    ASSERT_EQ(manager_.Select("select t from " + halves + " y"), 1);
    EXPECT_EQ(manager_.GetItem(0, 0), expected);
}

TEST_P(DatabaseContract, ConnectingAgainGoesToTheRecordThatIsThenInForce) {
    manager_.Connect();
    manager_.Insert("insert into kvt values ('three', 3)");
    ConnectTo(CKvDbInfo("", "", "nonesuch"));
    EXPECT_NE(FailureOf([&] { manager_.Connect(); }), "");
    EXPECT_FALSE(manager_.IsConnected());
    ConnectTo(database_->Info());
    EXPECT_EQ(Table(), "one|1 two|2 three|3");
}

TEST_P(DatabaseContract, SessionsComeBackToThePoolAndAreLentAgain) {
    kv::db::SessionPool& pool = kv::db::SessionPool::Instance();
    pool.Clear();
    for (int i = 0; i < 3; ++i) {
        CKvDbAbsDataMgr first(1);
        CKvDbAbsDataMgr second(1);
        first.Connect();
        second.Connect();
        EXPECT_EQ(pool.Idle(), 0u);
        second.Disconnect();
        EXPECT_EQ(pool.Idle(), 1u);
        first.Disconnect();
        EXPECT_EQ(pool.Idle(), 2u);
    }
}

}  // namespace test
