// A query that a person cancels when the server's host has gone without a word.

#include <gmock/gmock.h>

#include <chrono>

#include "frame/kvcom/cancelled.h"
#include "frame/module.h"
#include "services/kvdbkvn/session_pool.h"
#include "services_pg/line.h"
#include "support/database_helpers.h"
#include "support/dialog_fixture.h"
#include "support/postgres_database.h"
#include "window/acting/wait_scene.h"
#include "window/blocked_windows.h"
#include "window/frames/frame_wnd.h"

namespace test {
namespace {

using std::chrono::steady_clock;

class LostHost : public DialogTest {
protected:
    LostHost() {
        InitControlDll();
        database_.Run(
            "create table kvt (a text); insert into kvt values ('x');"
            "create view slow as select kvt.a from kvt, pg_sleep(600)");
        frame_.Create("Host");
        frame_.ShowWindow(SW_SHOW);
        kv::db::SessionPool::Instance().Clear();
        kv::SetPatience(std::chrono::milliseconds(50));
    }
    ~LostHost() override { kv::db::SessionPool::Instance().Clear(); }

    PostgresDatabase database_;
    CFrameWnd frame_;
    CKvDbAbsDataMgr manager_{1};
};

TEST_F(LostHost, ACancelledQueryIsGivenUpWithoutWaitingForIt) {
    Line line(database_);
    ConnectTo(CKvDbInfo("", "", line.Url().c_str()));
    manager_.Connect();
    manager_.Select("select a from kvt");
    EXPECT_STREQ(manager_.GetItem(0, 0), "x");
    steady_clock::time_point cancelled;
    kv::ExpectWait(desktop, [&](kv::User& wait) {
        line.Break();
        cancelled = steady_clock::now();
        wait.Click(IDCANCEL);
    });
    EXPECT_THROW(manager_.Select("select a from slow"), CKvCancelled);
    // The client library alone waits half a minute for an answer to its call.
    EXPECT_LT(steady_clock::now() - cancelled, std::chrono::seconds(15));
    ConnectTo(CKvDbInfo("", "", database_.Url().c_str()));
    manager_.Connect();
    EXPECT_EQ(manager_.Select("select a from kvt"), 1);
}

}  // namespace
}  // namespace test
