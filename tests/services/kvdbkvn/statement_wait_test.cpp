// Queries that a person cancels, and statements that run into a time limit.

#include <gmock/gmock.h>

#include "frame/kvcom/cancelled.h"
#include "frame/kvdbkvn/db_util.h"
#include "frame/kvdbkvn/tell_failure.h"
#include "services/kvdbkvn/engines/time_limit.h"
#include "support/endless_view.h"
#include "support/statement_test.h"
#include "window/acting/wait_scene.h"
#include "window/blocked_windows.h"
#include "window/frames/frame_wnd.h"

namespace test {
namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

constexpr const char* kTables = "create table kvt (a text); insert into kvt values ('x');";

class StatementWaits : public StatementTest {
protected:
    StatementWaits() : StatementTest(kTables + EndlessView("endless", "a")) {
        frame_.Create("Host");
        frame_.ShowWindow(SW_SHOW);
        kv::SetPatience(std::chrono::milliseconds(50));
    }
    void ExpectCancel() {
        kv::ExpectWait(desktop, [](kv::User& wait) { wait.Click(IDCANCEL); });
    }
    void Limit(const std::string& setting) {
        ConnectTo(CKvDbInfo("", "", (Server() + setting).c_str()));
    }

    CFrameWnd frame_;
    CKvDbAbsDataMgr manager_{1};
};

TEST_F(StatementWaits, ACancelledQueryIsOfItsOwnKindAndTheSessionGoesOn) {
    manager_.Connect();
    ExpectCancel();
    EXPECT_THROW(manager_.Select("select a from endless"), CKvCancelled);
    EXPECT_EQ(manager_.NumberOfRows(), 0);
    EXPECT_EQ(manager_.Select("select a from kvt"), 1);
    manager_.Disconnect();
    EXPECT_EQ(kv::db::SessionPool::Instance().Idle(), 1U);
}

TEST_F(StatementWaits, ACancelledQueryLosesNoChangeOfItsTransaction) {
    manager_.Connect();
    manager_.Insert("insert into kvt values ('y')");
    ExpectCancel();
    EXPECT_THROW(manager_.Select("select a from endless"), CKvCancelled);
    manager_.Commit();
    EXPECT_EQ(Rows("select count(*) from kvt", 1), "2");
}

TEST_F(StatementWaits, AnotherStatementHasAWaitOfItsOwn) {
    manager_.Connect();
    for (int i = 0; i < 2; ++i) {
        ExpectCancel();
        EXPECT_THROW(manager_.Select("select a from endless"), CKvCancelled);
    }
}

TEST_F(StatementWaits, AQueryThatWaitsForALockCanBeCancelled) {
    Change("pragma journal_mode=delete");
    manager_.Connect();
    manager_.Select("select a from kvt");
    const SqliteLock lock(path);
    ExpectCancel();
    EXPECT_THROW(manager_.Select("select a from kvt where a = 'x'"), CKvCancelled);
    ExpectCancel();
    EXPECT_THROW(manager_.Select("select a from kvt"), CKvCancelled);
}

TEST_F(StatementWaits, ATimeLimitEndsTheWaitForALock) {
    Change("pragma journal_mode=delete");
    Limit("?statement_timeout=50");
    manager_.Connect();
    manager_.Select("select a from kvt");
    const SqliteLock lock(path);
    EXPECT_THAT(FailureOf([&] { manager_.Insert("insert into kvt values ('y')"); }),
                HasSubstr("locked"));
}

/// Asks for what never ends while it starts.
class AskingDialog : public CDialog {
public:
    explicit AskingDialog(CKvDbAbsDataMgr& manager) : CDialog(kTestTemplate), manager_(manager) {}
    bool Cancelled() const { return cancelled_; }

protected:
    BOOL OnInitDialog() override {
        CDialog::OnInitDialog();
        try {
            manager_.Select("select a from endless");
        } catch (const CKvCancelled&) {
            cancelled_ = true;
        }
        EndDialog(IDCANCEL);
        return TRUE;
    }

private:
    CKvDbAbsDataMgr& manager_;
    bool cancelled_ = false;
};

TEST_F(StatementWaits, ADialogThatAsksWhileItStartsCanBeCancelledBeforeItIsSeen) {
    const TestTemplate form({Row(IDCANCEL, kv::ControlKind::kPushButton, "Cancel")});
    manager_.Connect();
    AskingDialog dialog(manager_);
    ExpectCancel();
    dialog.DoModal();
    EXPECT_TRUE(dialog.Cancelled());
    EXPECT_TRUE(frame_.IsWindowEnabled());
}

TEST_F(StatementWaits, WhereNoWindowIsInSightNoneComesUp) {
    frame_.ShowWindow(SW_HIDE);
    Limit("?statement_timeout=200");
    bool pumped = false;
    kv::ExpectWait(desktop, [&](kv::User&) { pumped = true; });
    manager_.Connect();
    EXPECT_THAT(FailureOf([&] { manager_.Select("select a from endless"); }),
                HasSubstr("time limit"));
    EXPECT_FALSE(pumped);
    frame_.ShowWindow(SW_SHOW);
    kv::WindowSystem::Get().Pump();
}

constexpr const char* kQuery = "select a from kvt";

void PressCancel(kv::User& wait) {
    wait.Click(IDCANCEL);
}

TEST_F(StatementWaits, ASceneOfAQueryCancelsItHoweverLittleTimeItTakes) {
    kv::SetPatience({});
    kv::QueryScenes scenes(desktop);
    scenes.Expect(kQuery, PressCancel, 1);
    scenes.Expect("", PressCancel);
    manager_.Connect();
    EXPECT_EQ(manager_.Select(kQuery), 1);
    EXPECT_EQ(manager_.Select("select a from kvt where a = 'x'"), 1) << "another text";
    EXPECT_THROW(manager_.Select(kQuery), CKvCancelled);
    EXPECT_THROW(manager_.Select("select a from endless"), CKvCancelled) << "any, and it never ran";
    EXPECT_EQ(scenes.Left(), 0);
    EXPECT_EQ(manager_.Select(kQuery), 1);
}

TEST_F(StatementWaits, AQueryThatItsSceneDoesNotCancelRuns) {
    kv::SetPatience({});
    kv::QueryScenes scenes(desktop);
    std::string caption;
    scenes.Expect("", [&](kv::User& wait) {
        caption = wait.WindowNode().Text();
        EXPECT_FALSE(frame_.IsWindowEnabled());
        wait.Key(0, "Tab");
    });
    manager_.Connect();
    EXPECT_EQ(manager_.Select(kQuery), 1);
    EXPECT_EQ(caption, "Waiting for the Database");
    EXPECT_EQ(kv::WindowSystem::Get().TopLevels().size(), 1U);
    EXPECT_TRUE(frame_.IsWindowEnabled());
}

TEST_F(StatementWaits, WhereNoWindowIsInSightTheSceneOfAQueryIsLeft) {
    frame_.ShowWindow(SW_HIDE);
    kv::QueryScenes scenes(desktop);
    scenes.Expect("", PressCancel);
    manager_.Connect();
    EXPECT_EQ(manager_.Select(kQuery), 1);
    EXPECT_EQ(scenes.Left(), 1);
}

TEST_F(StatementWaits, OfACancelledQueryNoMessageTells) {
    kv::db::TellFailure(CKvCancelled());
    EXPECT_THAT(desktop.Messages(), IsEmpty());
    desktop.ExpectMessage("Database error: no such thing\n\nselect 1");
    kv::db::TellFailure(CKvException("no such thing", "select 1"));
}

TEST_F(StatementWaits, ACancelledLookUpIsLoggedAsSuchAndAnswersAsForNoPlace) {
    Change(EndlessView("gulf_mexico_connam2", "areaname, stcode, area_abbr", kTextCell));
    ExpectCancel();
    EXPECT_EQ(CKvDbUtil::S_GetArea("GREEN CANYON", false), "");
    EXPECT_THAT(folder.Read("log.txt"),
                AllOf(HasSubstr("The person cancelled a look-up"), Not(HasSubstr("rror"))));
}

TEST_F(StatementWaits, ACancelledLookUpThrowsForWhoeverWouldKeepItsAnswerAndAFailedOneDoesNot) {
    Change(EndlessView("gulf_mexico_connam2", "areaname, stcode, area_abbr", kTextCell));
    const kv::db::CancelledLookUpsThrow asked;
    ExpectCancel();
    EXPECT_THROW(CKvDbUtil::S_GetArea("GREEN CANYON", false), CKvCancelled);
    CMinMax2Dd_t bounds;
    EXPECT_FALSE(CKvDbUtil::S_GetLLBoundsOnshore("22109", bounds)) << "there is no such table";
}

TEST_F(StatementWaits, ATimeLimitStopsAQueryAndTheSessionGoesOn) {
    Limit("?statement_timeout=50");
    manager_.Connect();
    EXPECT_THAT(FailureOf([&] { manager_.Select("select a from endless"); }),
                HasSubstr("The statement was stopped: it took longer than the time limit of the "
                          "connection, 50 ms"));
    EXPECT_EQ(manager_.Select("select a from kvt"), 1);
}

TEST_F(StatementWaits, ATimeLimitStopsAChangeAndUndoesIt) {
    Limit("?statement_timeout=50");
    manager_.Connect();
    EXPECT_THAT(FailureOf([&] { manager_.Insert("insert into kvt select a from endless"); }),
                HasSubstr("time limit"));
    manager_.Commit();
    EXPECT_EQ(Rows("select count(*) from kvt", 1), "1");
}

TEST_F(StatementWaits, ATimeLimitThatStopsALaterChangeTellsThatTheEarlierAreUndone) {
    Limit("?statement_timeout=50");
    manager_.Connect();
    manager_.Insert("insert into kvt values ('y')");
    EXPECT_THAT(FailureOf([&] { manager_.Insert("insert into kvt select a from endless"); }),
                HasSubstr("the earlier changes of this connection were undone, too"));
    manager_.Commit();
    EXPECT_EQ(Rows("select count(*) from kvt", 1), "1");
}

TEST_F(StatementWaits, ATimeLimitThatIsNoNumberIsRefused) {
    for (const char* value : {"5s", "", "-1", "1e3", "99999999999"}) {
        Limit(std::string("?statement_timeout=") + value);
        EXPECT_THAT(FailureOf([&] { manager_.Connect(); }),
                    HasSubstr(std::string("sets statement_timeout to \"") + value +
                              "\", which is no number of milliseconds"));
    }
}

TEST(TimeLimitText, IsTakenOutOfEveryKindOfServerText) {
    struct {
        const char* server;
        const char* rest;
        int limit;
    } const cases[] = {
        {"sqlite:/a/b.db?statement_timeout=5000", "sqlite:/a/b.db", 5000},
        {"sqlite:C:\\what?.db", "sqlite:C:\\what?.db", 0},
        {"sqlite:/my_statement_timeout=5.db", "sqlite:/my_statement_timeout=5.db", 0},
        {"postgresql://h/d?statement_timeout=7", "postgresql://h/d", 7},
        {"postgresql://h/d?a=b&statement_timeout=7", "postgresql://h/d?a=b", 7},
        {"postgresql://h/d?Statement_Timeout=7&a=b", "postgresql://h/d?a=b", 7},
        {"postgresql://h/d?options=-cstatement_timeout=7",
         "postgresql://h/d?options=-cstatement_timeout=7", 0},
        {"odbc:KV;statement_timeout=2500", "odbc:KV", 2500},
        {"odbc:Driver=D;statement_timeout=0;UID=u", "odbc:Driver=D;UID=u", 0}};
    for (const auto& [server, rest, limit] : cases) {
        const kv::db::TimeLimited taken =
            kv::db::TakeTimeLimit(CKvDbInfo("scott", "tiger", server));
        EXPECT_EQ(taken.info, CKvDbInfo("scott", "tiger", rest)) << server;
        EXPECT_EQ(taken.limit, std::chrono::milliseconds(limit)) << server;
    }
}

}  // namespace
}  // namespace test
