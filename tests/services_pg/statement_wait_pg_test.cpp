// Queries on PostgreSQL that a person cancels, and statements that run into a time limit.

#include <gmock/gmock.h>
#include <signal.h>

#include <cstdlib>

#include "frame/kvcom/cancelled.h"
#include "frame/module.h"
#include "services/kvdbkvn/engines/wait_dlg_ids.h"
#include "services/kvdbkvn/session_pool.h"
#include "support/database_helpers.h"
#include "support/dialog_fixture.h"
#include "support/postgres_database.h"
#include "window/acting/wait_scene.h"
#include "window/blocked_windows.h"
#include "window/frames/frame_wnd.h"

namespace test {
namespace {

using testing::HasSubstr;

/// A query that takes a minute, and gives no row.
constexpr const char* kLong = "select a from slow";

class PostgresWaits : public DialogTest {
protected:
    PostgresWaits() {
        InitControlDll();
        database_.Run(
            "create table kvt (a text); insert into kvt values ('x');"
            "create view slow as select kvt.a from kvt, pg_sleep(60)");
        ConnectTo(CKvDbInfo("", "", database_.Url().c_str()));
        frame_.Create("Host");
        frame_.ShowWindow(SW_SHOW);
        kv::db::SessionPool::Instance().Clear();
        kv::SetPatience(std::chrono::milliseconds(50));
    }
    ~PostgresWaits() override { kv::db::SessionPool::Instance().Clear(); }

    void ExpectCancel() {
        kv::ExpectWait(desktop, [](kv::User& wait) { wait.Click(IDCANCEL); });
    }
    std::string Cell(const std::string& sql) {
        manager_.Select(sql);
        return manager_.GetItem(0, 0);
    }

    PostgresDatabase database_;
    CFrameWnd frame_;
    CKvDbAbsDataMgr manager_{1};
};

TEST_F(PostgresWaits, ACancelledQueryIsOfItsOwnKindAndTheSessionGoesOn) {
    manager_.Connect();
    const std::string backend = Cell("select pg_backend_pid() from kvt");
    ExpectCancel();
    EXPECT_THROW(manager_.Select(kLong), CKvCancelled);
    EXPECT_EQ(Cell("select a from kvt"), "x");
    EXPECT_EQ(Cell("select pg_backend_pid() from kvt"), backend);
    EXPECT_EQ(database_.Run("select count(*) from pg_stat_activity where datname = '" +
                            database_.Name() + "' and state like 'idle in transaction%'"),
              "0");
    manager_.Disconnect();
    EXPECT_EQ(kv::db::SessionPool::Instance().Idle(), 1U);
}

TEST_F(PostgresWaits, ACancelledQueryLosesNoChangeOfItsTransaction) {
    manager_.Connect();
    manager_.Insert("insert into kvt values ('y')");
    ExpectCancel();
    EXPECT_THROW(manager_.Select(kLong), CKvCancelled);
    EXPECT_EQ(Cell("select count(*) from kvt"), "2");
    manager_.Commit();
    EXPECT_EQ(database_.Run("select count(*) from kvt"), "2");
}

TEST_F(PostgresWaits, AQueryThatWaitsForALockCanBeCancelled) {
    manager_.Connect();
    manager_.Select("select a from kvt");
    PostgresClient other(database_.Url());
    other.Run("begin; lock table kvt in access exclusive mode");
    ExpectCancel();
    EXPECT_THROW(manager_.Select("select a from kvt where a = 'x'"), CKvCancelled);
    other.Run("rollback");
    EXPECT_EQ(Cell("select a from kvt"), "x");
}

TEST_F(PostgresWaits, AServerThatDoesNotAnswerTheCancelIsGivenUp) {
    manager_.Connect();
    const int backend = std::atoi(Cell("select pg_backend_pid() from kvt").c_str());
    kv::ExpectWait(desktop, [&](kv::User& wait) {
        ASSERT_EQ(kill(backend, SIGSTOP), 0);
        wait.Click(IDCANCEL);
    });
    kv::ExpectWait(desktop, [](kv::User& wait) {
        EXPECT_EQ(wait.Text(kv::wait_dlg::kTime), "Stopping");
        EXPECT_FALSE(wait.Enabled(IDCANCEL));
    });
    EXPECT_THROW(manager_.Select(kLong), CKvCancelled);
    ASSERT_EQ(kill(backend, SIGCONT), 0);
    EXPECT_EQ(Cell("select a from kvt"), "x") << "over a new connection";
}

TEST_F(PostgresWaits, ATimeLimitStopsAStatementAndTheSessionGoesOn) {
    ConnectTo(CKvDbInfo("", "", (database_.Url() + "?statement_timeout=100").c_str()));
    manager_.Connect();
    EXPECT_THAT(FailureOf([&] { manager_.Select(kLong); }), HasSubstr("statement timeout"));
    EXPECT_EQ(Cell("select a from kvt"), "x");
    EXPECT_THAT(FailureOf([&] { manager_.Insert("insert into kvt select a from slow"); }),
                HasSubstr("statement timeout"));
    EXPECT_EQ(Cell("select count(*) from kvt"), "1");
}

TEST_F(PostgresWaits, OverOdbcATimeLimitStopsAStatement) {
    const std::string server =
        "odbc:Driver=PostgreSQL Unicode;Servername=" + database_.SocketFolder() +
        ";Database=" + database_.Name() + ";UID=kv;statement_timeout=900";
    ConnectTo(CKvDbInfo("", "", server.c_str()));
    manager_.Connect();
    EXPECT_THAT(FailureOf([&] { manager_.Select(kLong); }), HasSubstr("statement timeout"));
    EXPECT_EQ(Cell("select a from kvt"), "x");
}

}  // namespace
}  // namespace test
