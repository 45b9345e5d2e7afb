#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <exception>
#include <filesystem>
#include <string_view>
#include <system_error>

#include "frame/kvdbkvn/database_fault.h"
#include "services/kvdbkvn/engines/engine_module.h"
#include "support/database_helpers.h"
#include "support/failing_memory.h"
#include "support/plain_user.h"
#include "support/sqlite_file.h"
#include "support/temp_folder.h"

namespace test {
namespace {

using testing::HasSubstr;

class OdbcEngine : public testing::Test {
protected:
    OdbcEngine() {
        RunOnSqliteFile(path_, "create table kvt (a text, b integer primary key)");
        Use("Driver=SQLite3;Database=" + path_);
    }

    static void Use(const std::string& connection) {
        ConnectTo(CKvDbInfo("", "", ("odbc:" + connection).c_str()));
    }

    TempFolder folder_;
    std::string path_ = folder_.Native("kv.db");
    CKvDbAbsDataMgr manager_{1};
};

TEST_F(OdbcEngine, ADataSourceIsFoundByItsName) {
    folder_.Write("odbc.ini", "[KVSample]\nDriver=SQLite3\nDatabase=" + path_ + "\n");
    folder_.Set("ODBCINI", folder_.Native("odbc.ini"));
    RunOnSqliteFile(path_, "insert into kvt values ('one', 1)");
    Use("KVSample");
    manager_.Connect();
    manager_.Select("select a from kvt");
    EXPECT_EQ(RowsOf(manager_, 1), "one");
}

TEST_F(OdbcEngine, AnUnknownDataSourceIsAFailure) {
    Use("KVNoSuchSource");
    EXPECT_THAT(FailureOf([&] { manager_.Connect(); }),
                HasSubstr("Cannot connect through ODBC: Data source name not found"));
    EXPECT_FALSE(manager_.IsConnected());
}

TEST_F(OdbcEngine, AnUnknownDriverIsAFailureWithoutThePassword) {
    ConnectTo(CKvDbInfo("scott", "tig;er", "odbc:Driver=KVNoSuchDriver;PWD=li0n"));
    const std::string failure = FailureOf([&] { manager_.Connect(); });
    EXPECT_THAT(failure, HasSubstr("Cannot connect through ODBC"));
    EXPECT_THAT(failure, Not(HasSubstr("tig")));
    EXPECT_THAT(failure, Not(HasSubstr("li0n")));
}

TEST_F(OdbcEngine, ADatabaseFileThatDoesNotExistIsAFailureAndNoneIsMade) {
    Use("Driver=SQLite3;Database=" + folder_.Native("missing.db"));
    EXPECT_NE(FailureOf([&] {
                  manager_.Connect();
                  manager_.Select("select a from kvt");
              }),
              "");
    EXPECT_FALSE(folder_.Has("missing.db"));
}

TEST_F(OdbcEngine, ALockedFileIsConnectedToAndToldOfWithinSecondsWhenItIsAsked) {
    sqlite3* other = nullptr;
    sqlite3_open(path_.c_str(), &other);
    ASSERT_EQ(sqlite3_exec(other, "begin exclusive", nullptr, nullptr, nullptr), SQLITE_OK);
    EXPECT_EQ(FailureOf([&] { manager_.Connect(); }), "");
    EXPECT_THAT(FailureOf([&] { manager_.Select("select a from kvt"); }), HasSubstr("locked"));
    sqlite3_close(other);
    EXPECT_EQ(manager_.Select("select a from kvt"), 0);
}

TEST_F(OdbcEngine, AChangeOfAFileThatIsClosedToWritingIsToldInTrueWords) {
    std::filesystem::permissions(path_, std::filesystem::perms(0444));
    std::filesystem::permissions(folder_.Native(), std::filesystem::perms(0755));
    EXPECT_EXIT(ExitAsPlainUser(
                    path_,
                    [&] {
                        manager_.Connect();
                        const std::string failure =
                            FailureOf([&] { manager_.Insert("insert into kvt values ('x', 1)"); });
                        return failure.find("readonly") != std::string::npos &&
                               failure.find("only a statement that reads") == std::string::npos;
                    }),
                testing::ExitedWithCode(0), "");
}

TEST_F(OdbcEngine, ASessionOfAFileThatWasReplacedIsNotLentAgain) {
    manager_.Connect();
    EXPECT_EQ(manager_.Select("select a from kvt"), 0);
    manager_.Disconnect();
    const std::string fresh = folder_.Native("fresh.db");
    RunOnSqliteFile(fresh, "create table kvt (a text); insert into kvt values ('new')");
    std::filesystem::rename(fresh, path_);
    manager_.Connect();
    EXPECT_EQ(manager_.Select("select a from kvt"), 1);
}

TEST_F(OdbcEngine, WhenTheDatabaseUndoesTheWholeTransactionTheFailureSaysSo) {
    RunOnSqliteFile(path_,
                    "create trigger t before insert on kvt when new.b = 13 "
                    "begin select raise(rollback, 'unlucky'); end");
    manager_.Connect();
    manager_.Insert("insert into kvt values ('one', 1)");
    EXPECT_THAT(FailureOf([&] { manager_.Insert("insert into kvt values ('bad', 13)"); }),
                testing::AllOf(HasSubstr("unlucky"),
                               HasSubstr("; the earlier changes of this connection were undone, "
                                         "too")));
    manager_.Disconnect();
    manager_.Connect();
    EXPECT_EQ(manager_.Select("select a from kvt"), 0);
}

TEST_F(OdbcEngine, ASessionThatEndsLeavesNoConnectionOpen) {
    const auto timesOpen = [&] {
        namespace fs = std::filesystem;
        const fs::path file = fs::canonical(path_);
        std::error_code closed;
        return std::ranges::count_if(
            fs::directory_iterator("/proc/self/fd"),
            [&](const auto& each) { return fs::read_symlink(each, closed) == file; });
    };
    const CKvDbInfo info("", "", ("odbc:Driver=SQLite3;Database=" + path_).c_str());
    auto session = kv::db::OpenThroughModule("KVGuiCtlOdbc", "ODBC", info);
    EXPECT_EQ(session->Query("select a from kvt")->Count(), 0);
    EXPECT_EQ(timesOpen(), 1);
    session.reset();
    EXPECT_EQ(timesOpen(), 0);
}

TEST_F(OdbcEngine, ASessionThatRunsOutOfMemoryInAQueryIsNotUsedAgain) {
    RunOnSqliteFile(path_, "insert into kvt values ('a text that needs memory to be kept', 1)");
    const CKvDbInfo info("", "", ("odbc:Driver=SQLite3;Database=" + path_).c_str());
    const auto open = [&] { return kv::db::OpenThroughModule("KVGuiCtlOdbc", "ODBC", info); };
    const std::string sql = "select a from kvt";
    ASSERT_EQ(open()->Query(sql)->Count(), 1);
    bool answered = false;
    int first = 1;
    for (; !answered && first < 1000; ++first) {
        const auto session = open();
        {
            const FailingMemory fault(first);
            try {
                answered = session->Query(sql)->Count() == 1;
            } catch (const std::exception&) {
                answered = false;
            }
        }
        EXPECT_TRUE(answered || !session->IsAlive()) << first;
    }
    EXPECT_TRUE(answered);
    EXPECT_GT(first, 5);
}

TEST_F(OdbcEngine, TextThatIsNotUtf8ComesAsItsBytes) {
    RunOnSqliteFile(path_, "insert into kvt values (cast(x'41FF42B0' as text), 1)");
    manager_.Connect();
    ASSERT_EQ(manager_.Select("select a from kvt"), 1);
    EXPECT_STREQ(manager_.GetItem(0, 0),
                 "A\xFF"
                 "B\xB0");
}

TEST_F(OdbcEngine, LikeTellsUpperFromLowerCaseOnSqlite) {
    RunOnSqliteFile(path_, "insert into kvt values ('Shell', 1), ('SHELL', 2)");
    manager_.Connect();
    ASSERT_EQ(manager_.Select("select a from kvt where a like 'SH%'"), 1);
    EXPECT_STREQ(manager_.GetItem(0, 0), "SHELL");
}

TEST_F(OdbcEngine, LesortSortsAsTheFunctionDoesOnSqlite) {
    RunOnSqliteFile(path_,
                    "insert into kvt values ('G12', 1), ('G2', 2), ('00934', 3), "
                    "('G 0100', 4), (null, 5)");
    const std::string sql = "select a from kvt order by lesort(a), b";
    manager_.Connect();
    manager_.Select(sql);
    const std::string overOdbc = RowsOf(manager_, 1);
    ConnectTo(CKvDbInfo("", "", ("sqlite:" + path_).c_str()));
    CKvDbAbsDataMgr direct(1);
    direct.Connect();
    ASSERT_EQ(direct.Select(sql), 5);
    EXPECT_EQ(overOdbc, RowsOf(direct, 1));
}

TEST_F(OdbcEngine, ACellIsHeldWholeAtAnyLength) {
    for (const std::size_t length : {1u, 4094u, 4095u, 4096u, 8190u, 8191u, 100000u}) {
        const std::string text(length, 'x');
        RunOnSqliteFile(path_, "delete from kvt; insert into kvt values ('" + text + "', 1)");
        CKvDbAbsDataMgr manager(1);
        manager.Connect();
        ASSERT_EQ(manager.Select("select a, b from kvt"), 1);
        EXPECT_EQ(manager.GetItem(0, 0), text);
        EXPECT_STREQ(manager.GetItem(0, 1), "1");
    }
}

TEST_F(OdbcEngine, AQueryThatMayDoMoreIsToldWhy) {
    const CKvDbInfo info("", "", ("odbc:Driver=SQLite3;Database=" + path_).c_str());
    const auto session = kv::db::OpenThroughModule("KVGuiCtlOdbc", "ODBC", info);
    EXPECT_THAT(FailureOf([&] { session->Query("select [a'b] from kvt"); }),
                HasSubstr(kv::db::kDoubtfulEnd));
    EXPECT_THAT(FailureOf([&] { session->Query("delete from kvt"); }),
                HasSubstr(kv::db::kOnlyReads));
    EXPECT_EQ(session->Query("select a from kvt")->Count(), 0);
}

TEST_F(OdbcEngine, EachCallMayBeMadeToFailAndTheConnectionGoesOn) {
    const auto failureWhere = [&](std::string_view failing, auto call) {
        kv::db::SetDatabaseFault([=](std::string_view each) { return each == failing; });
        const std::string failure = FailureOf(call);
        kv::db::SetDatabaseFault(nullptr);
        return failure;
    };
    manager_.Connect();
    EXPECT_NE(failureWhere("query", [&] { manager_.Select("select a from kvt"); }), "");
    const auto insert = [&] { manager_.Insert("insert into kvt values ('x', 1)"); };
    EXPECT_NE(failureWhere("execute", insert), "");
    insert();
    EXPECT_NE(failureWhere("commit", [&] { manager_.Commit(); }), "");
    EXPECT_EQ(manager_.Select("select a from kvt"), 0);
}

}  // namespace
}  // namespace test
