// The order of areas, the boxes of a built map and the comments on wells, on every engine: the same
// rows, and the same tables in the end.

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <string>
#include <vector>

#include "frame/kvdbkvn/database_fault.h"
#include "frame/module.h"
#include "pickers/built_map_area_combo_box.h"
#include "pickers/custom_order_dlg.h"
#include "pickers/custom_order_dlg_ids.h"
#include "records/create_user_table.h"
#include "records/create_user_table_ids.h"
#include "services/kvdbkvn/session_pool.h"
#include "support/built_map_database.h"
#include "support/database_helpers.h"
#include "support/dialog_fixture.h"
#include "support/engines.h"
#include "support/listening_desktop.h"
#include "support/postgres_cluster.h"
#include "window/frames/frame_wnd.h"
#include "workbench/records/well_comments.h"

namespace test {
namespace {

using testing::HasSubstr;
using testing::Not;

constexpr const char* kOrder = R"(
create table nvd2000_area_order (areaname varchar(60), seq integer, defseq integer);
insert into nvd2000_area_order values ('BETA', 2, 1), ('O''HARA', 1, 2), ('GAMMA', 3, 3);
)";
constexpr const char* kWell = "608110000100";
constexpr const char* kCommentTable =
    "Create table NORVADON.GULF_MEXICO_WELL_COMMENT(ID VARCHAR2(20) NOT NULL ENABLE,REC_SEQ NUMBER "
    "NOT NULL ENABLE,COMMENTS VARCHAR2(80),USER_ID VARCHAR2(20),REVISION_DATE DATE, PRIMARY KEY "
    "(ID, REC_SEQ))";

namespace comments = workbench::well_comments;
using workbench::WellComment;

class RecordTables : public DialogTest, public testing::WithParamInterface<ServerKind> {
protected:
    RecordTables() {
        InitControlDll();
        Use(database.Server());
    }
    ~RecordTables() override {
        kv::db::SetDatabaseFault(nullptr);
        ConnectTo({});
        kv::db::SessionPool::Instance().Clear();
    }

    static void Use(const std::string& server, const char* user = "", const char* password = "") {
        ConnectTo(CKvDbInfo(user, password, server.c_str()));
    }
    static std::string Rows(const std::string& sql, int columns) {
        CKvDbAbsDataMgr manager(1);
        manager.Connect();
        manager.Select(sql);
        return RowsOf(manager, columns);
    }
    static std::string StoredOrder() {
        return Rows("select areaname, seq, defseq from NORVADON.nvd2000_area_order order by seq",
                    3);
    }
    static void MakeCommentTable() {
        CKvDbAbsDataMgr manager(1);
        manager.Connect();
        manager.ExecuteDDL(kCommentTable);
        manager.Disconnect();
    }
    static std::vector<std::string> Texts() {
        std::vector<std::string> texts;
        for (const WellComment& each : comments::Of(kWell))
            texts.push_back(std::to_string(each.number) + " " + each.text);
        return texts;
    }

    OwnDatabase database{GetParam()};
};

TEST_P(RecordTables, WhicheverCallFailsTheOrderIsStoredWholeOrNotAtAll) {
    using namespace kv::custom_order_dlg;
    database.Run(kOrder);
    const std::string before = "O'HARA|1|2 BETA|2|1 GAMMA|3|3";
    bool stored = false;
    int failing = 0;
    while (!stored) {
        ASSERT_LT(++failing, 100);
        ListeningDesktop listening;
        kv::WindowSystem::Get().SetDesktop(&listening);
        listening.ActInNextDialog([&](kv::User& user) {
            user.Select(kAreas, 0);
            user.Click(kBottom);
            int calls = 0;
            kv::db::SetDatabaseFault([&](std::string_view) { return ++calls == failing; });
            user.Click(IDOK);
            kv::db::SetDatabaseFault(nullptr);
            stored = !user.Open();
            if (stored) return;
            EXPECT_EQ(StoredOrder(), before) << failing;
            user.Click(IDCANCEL);
        });
        CCustomOrderDlg().DoModal();
        EXPECT_EQ(listening.shown.size(), stored ? 0U : 1U) << failing;
        kv::WindowSystem::Get().SetDesktop(&desktop);
    }
    EXPECT_GE(failing, 7);
    EXPECT_EQ(StoredOrder(), "BETA|1|1 GAMMA|2|3 O'HARA|3|2");
}

TEST_P(RecordTables, APositionThatNobodyHasUndoesWhatWasWrittenAhead) {
    using namespace kv::custom_order_dlg;
    database.Run(kOrder);
    database.Run("update nvd2000_area_order set seq = 9 where seq = 3");
    desktop.ExpectMessage("");
    CCustomOrderDlg dialog;
    Run(dialog, [&](kv::User& user) {
        user.Select(kAreas, 0);
        user.Click(kBottom);
        user.Click(IDOK);
        EXPECT_TRUE(user.Open());
    });
    EXPECT_THAT(desktop.Messages().back(), HasSubstr("\"O'HARA\" cannot have the position 3"));
    EXPECT_EQ(StoredOrder(), "O'HARA|1|2 BETA|2|1 GAMMA|9|3");
}

TEST_P(RecordTables, TheBoxOfABuiltMapListsTheSameAreas) {
    database.Run(kBuiltMapTables);
    CFrameWnd frame;
    frame.Create("Host");
    CKvBuiltMapAreaComboBox area;
    area.Create(WS_CHILD | WS_VISIBLE | CBS_DROPDOWN, {0, 0, 100, 100}, &frame, 1);
    const std::vector<std::string> expected[] = {
        {" -AREA CODE-", " -AREA NAME-", "GI", "LL"},
        {" -AREA CODE-", " -MMS CODE-", "GRAND ISLE", "GRAND ISLE SOUTH", "LAKE", "O'HARA BAY"},
        {" -AREA NAME-", " -MMS CODE-", "017", "018", "4271", "4281"}};
    for (const bool empty : {false, true}) {
        area.SetMinLat(empty ? 1 : 28);
        area.SetMaxLat(empty ? 2 : 29);
        area.SetMinLon(-91);
        area.SetMaxLon(-90);
        for (int mode = 0; mode < 3; ++mode) {
            area.SetMode(mode);
            area.V_InitializeCombo();
            std::vector<std::string> rows = expected[mode];
            if (empty) rows.resize(2);
            ASSERT_EQ(area.GetCount(), static_cast<int>(rows.size())) << mode;
            for (std::size_t row = 0; row < rows.size(); ++row) {
                CString text;
                area.GetLBText(static_cast<int>(row), text);
                EXPECT_EQ(text.str(), rows[row]);
            }
        }
    }
}

TEST_P(RecordTables, TheTableOfCommentsIsMadeAndFoundAgain) {
    using namespace kv::create_user_table;
    database.Run("create table GULF_MEXICO_WELL_HDR (api_no varchar(12))");
    EXPECT_FALSE(comments::Exist());
    {
        CKvCreateUserTable dialog;
        EXPECT_EQ(Run(dialog, [](kv::User& user) { user.Click(IDOK); }), IDOK);
    }
    EXPECT_TRUE(comments::Exist());
    comments::LetAllRead("GULF_MEXICO_WELL_COMMENT");
    desktop.ExpectMessage("GULF_MEXICO_WELL_COMMENT - Table already existed");
    CKvCreateUserTable again;
    EXPECT_EQ(Run(again, [](kv::User& user) { user.Click(IDOK); }), IDOK);
    if (!database.Postgres()) return;
    EXPECT_EQ(database.Postgres()->Run(
                  "select string_agg(privilege_type, ',' order by privilege_type) from "
                  "information_schema.role_table_grants where grantee = 'PUBLIC' and table_name = "
                  "'gulf_mexico_well_comment'"),
              "DELETE,INSERT,REFERENCES,SELECT,UPDATE");
}

TEST_P(RecordTables, CommentsAreAddedChangedAndRemoved) {
    MakeCommentTable();
    comments::Add(kWell, "it's dry", "O'HARA");
    comments::Add(kWell, "second", "");
    comments::Add("another", "elsewhere", "me");
    std::vector<WellComment> all = comments::Of(kWell);
    ASSERT_EQ(all.size(), 2U);
    EXPECT_EQ(all[0].text, "it's dry");
    EXPECT_EQ(all[0].user, "O'HARA");
    EXPECT_EQ(all[0].date.size(), 19U);
    EXPECT_EQ(all[1].number, 2);
    EXPECT_TRUE(comments::Change(kWell, all[0], "it's wet", "you"));
    EXPECT_TRUE(comments::Remove(kWell, all[1]));
    all = comments::Of(kWell);
    ASSERT_EQ(all.size(), 1U);
    EXPECT_EQ(all[0].text, "it's wet");
    EXPECT_EQ(all[0].user, "you");
    EXPECT_EQ(comments::Of("another").size(), 1U);
}

TEST_P(RecordTables, AChangeOfWhatSomebodyElseChangedIsRefused) {
    MakeCommentTable();
    comments::Add(kWell, "one", "me");
    const WellComment seen = comments::Of(kWell).front();
    EXPECT_TRUE(comments::Change(kWell, seen, "theirs", "you"));
    EXPECT_FALSE(comments::Change(kWell, seen, "mine", "me"));
    EXPECT_FALSE(comments::Remove(kWell, seen));
    EXPECT_EQ(Texts(), std::vector<std::string>{"1 theirs"});
    EXPECT_TRUE(comments::Remove(kWell, comments::Of(kWell).front()));
    EXPECT_FALSE(comments::Change(kWell, seen, "mine", "me"));
    EXPECT_TRUE(Texts().empty());
}

TEST_P(RecordTables, CommentsAreHeldTo80BytesAndUsersTo20) {
    MakeCommentTable();
    std::string degrees;
    for (int i = 0; i < 40; ++i)
        degrees += "\xC2\xB0";
    comments::Add(kWell, degrees, "nineteen characters\xC2\xB0");
    EXPECT_EQ(comments::Of(kWell).front().text, degrees);
    EXPECT_EQ(comments::Of(kWell).front().user, "nineteen characters");
    EXPECT_THAT(FailureOf([&] { comments::Add(kWell, degrees + "x", "me"); }),
                HasSubstr("The comment takes 81 bytes, and one may take 80"));
    EXPECT_NE(FailureOf([&] {
                  comments::Change(kWell, comments::Of(kWell).front(), degrees + "x", "me");
              }),
              "");
    EXPECT_EQ(comments::Of(kWell).size(), 1U);
}

TEST_P(RecordTables, WhicheverCallFailsAChangeIsWholeOrNotMade) {
    MakeCommentTable();
    comments::Add(kWell, "one", "me");
    const WellComment seen = comments::Of(kWell).front();
    int calls = 0;
    bool failed = true;
    for (int failing = 1; failed; ++failing) {
        ASSERT_LT(failing, 100);
        calls = 0;
        kv::db::SetDatabaseFault([&](std::string_view) { return ++calls == failing; });
        failed = !FailureOf([&] { comments::Change(kWell, seen, "two", "me"); }).empty();
        kv::db::SetDatabaseFault(nullptr);
        EXPECT_EQ(Texts(), std::vector<std::string>{failed ? "1 one" : "1 two"}) << failing;
    }
    EXPECT_GE(calls, 3);
}

TEST_P(RecordTables, TwoProcessesThatAddAtOnceLoseNothing) {
    constexpr int kEach = 12;
    MakeCommentTable();
    // What is open here must not be used there.
    kv::db::SessionPool::Instance().Clear();
    std::vector<pid_t> writers;
    for (const char* name : {"first", "second"}) {
        const pid_t child = fork();
        if (child == 0) {
            const std::string failure = FailureOf([&] {
                for (int i = 0; i < kEach; ++i)
                    comments::Add(kWell, name, name);
            });
            if (!failure.empty()) std::fprintf(stderr, "%s\n", failure.c_str());
            _exit(failure.empty() ? 0 : 1);
        }
        writers.push_back(child);
    }
    for (const pid_t writer : writers) {
        int status = -1;
        waitpid(writer, &status, 0);
        EXPECT_EQ(status, 0);
    }
    const std::vector<WellComment> all = comments::Of(kWell);
    ASSERT_EQ(all.size(), 2U * kEach);
    int first = 0;
    for (std::size_t i = 0; i < all.size(); ++i) {
        EXPECT_EQ(all[i].number, static_cast<int>(i) + 1);
        if (all[i].text == "first") ++first;
    }
    EXPECT_EQ(first, kEach);
}

INSTANTIATE_TEST_SUITE_P(, RecordTables, testing::ValuesIn(ServerKinds()),
                         [](const auto& kind) { return kind.param.name; });

/// A login that is no superuser's, with a password.
class GuardedLogin : public DialogTest {
protected:
    GuardedLogin() {
        InitControlDll();
        database.Run(
            "create schema norvadon; grant usage on schema norvadon to public;"
            "create table norvadon.gulf_mexico_well_hdr (api_no text);"
            "grant select on norvadon.gulf_mexico_well_hdr to public");
        ConnectTo(CKvDbInfo("guarded", PostgresCluster::kGuardedPassword, database.Url().c_str()));
    }
    ~GuardedLogin() override {
        ConnectTo({});
        kv::db::SessionPool::Instance().Clear();
    }

    /// Presses OK with a password.
    void PressOk(const std::string& password) {
        CKvCreateUserTable dialog;
        Run(dialog, [&](kv::User& user) {
            user.Type(kv::create_user_table::kPasswordEdit, password);
            user.Click(IDOK);
        });
    }
    void ExpectSecret(const std::string& secret) {
        for (const std::string& message : desktop.Messages())
            EXPECT_THAT(message, Not(HasSubstr(secret)));
        EXPECT_THAT(folder.Read("log.txt"), Not(HasSubstr(secret)));
    }

    TempFolder folder;
    PostgresDatabase database;
};

TEST_F(GuardedLogin, ThatMayNotCreateGetsTheServersWords) {
    desktop.ExpectMessage("");
    PressOk(PostgresCluster::kGuardedPassword);
    EXPECT_THAT(desktop.Messages().back(), HasSubstr("permission denied for schema norvadon"));
    ExpectSecret(PostgresCluster::kGuardedPassword);
}

TEST_F(GuardedLogin, WithAWrongPasswordShowsTwoBoxesAndTellsItNobody) {
    desktop.ExpectMessage("");
    desktop.ExpectMessage("");
    PressOk("s3cret-61");
    EXPECT_THAT(desktop.Messages()[0], HasSubstr("password authentication failed"));
    EXPECT_EQ(desktop.Messages()[1], desktop.Messages()[0]);
    ExpectSecret("s3cret-61");
}

TEST_F(GuardedLogin, ThatMayCreateMakesATableThatOthersMayReadAndWrite) {
    database.Run("grant create on schema norvadon to guarded");
    PressOk(PostgresCluster::kGuardedPassword);
    EXPECT_EQ(desktop.Messages().size(), 0U);
    comments::LetAllRead("GULF_MEXICO_WELL_COMMENT");
    database.Run("create role kv_reader_61 login");
    ConnectTo(CKvDbInfo("kv_reader_61", "", database.Url().c_str()));
    EXPECT_EQ(FailureOf([] { comments::Add(kWell, "hello", "reader"); }), "");
    EXPECT_EQ(comments::Of(kWell).size(), 1U);
    kv::db::SessionPool::Instance().Clear();
    database.Run("drop owned by kv_reader_61; drop role kv_reader_61");
}

}  // namespace
}  // namespace test
