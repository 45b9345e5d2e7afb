// A search that takes too long for the person.

#include <gmock/gmock.h>

#include "frame/catalogue.h"
#include "qualifiers/list_sel.h"
#include "qualifiers/qualifier_fixture.h"
#include "support/endless_view.h"
#include "support/sqlite_file.h"
#include "window/acting/wait_scene.h"
#include "window/blocked_windows.h"

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using namespace kv::list_sel;

/// A message of the host's, which the dialog's own handlers do not know.
constexpr UINT kHostMessage = 1024;

class CancelledSearch : public QualifierTest {
protected:
    class Dialog : public CKvGuiListSel {
    public:
        using CKvGuiListSel::CKvGuiListSel;
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
            if (message == kHostMessage) ++hostMessages;
            if (message == WM_COMMAND) commands.push_back(HIWORD(wParam));
            return CKvGuiListSel::WindowProc(message, wParam, lParam);
        }
        int hostMessages = 0;
        std::vector<int> commands;
    };

    CancelledSearch() {
        Given(kv::catalogue::kListMarker, {"KEPT", "ALSO KEPT"});
        kv::SetPatience(std::chrono::milliseconds(50));
        Change("create table owner (lessee text); insert into owner values ('AMBER'), ('BLUE')");
    }
    void Change(const std::string& sql) const {
        test::RunOnSqliteFile(folder.Native("qualifiers.db"), sql);
    }
    void MakeEndless() const { Change("drop table owner;" + test::EndlessView("owner", "lessee")); }
    void MakeShort() const {
        Change(
            "drop view owner; create table owner (lessee text);"
            "insert into owner values ('CORAL')");
    }
    static std::string Said(kv::User& user) {
        return user.WindowNode().FindChild(kAvailable)->ToolTip();
    }

    Dialog dialog_{"lessee", "owner", &combo, values, kTemplate, nullptr};
};

TEST_F(CancelledSearch, LeavesTheListEmptyAndItSaysSo) {
    kv::ExpectWait(desktop, [](kv::User& wait) { wait.Click(IDCANCEL); });
    Run(dialog_, [&](kv::User& user) {
        Search(user, "");
        ASSERT_THAT(user.Rows(kAvailable), ElementsAre("AMBER", "BLUE"));
        MakeEndless();
        user.Click(kSearch);
        EXPECT_THAT(user.Rows(kAvailable), IsEmpty());
        EXPECT_EQ(Said(user), "Cancelled");
        EXPECT_FALSE(user.Enabled(kAdd));
        EXPECT_THAT(user.Rows(kSelected), ElementsAre("KEPT", "ALSO KEPT"));
        EXPECT_THAT(desktop.Messages(), IsEmpty());

        MakeShort();
        user.Click(kSearch);
        EXPECT_THAT(user.Rows(kAvailable), ElementsAre("CORAL"));
        user.Select(kAvailable, 0);
        user.Click(kAdd);
        EXPECT_EQ(Said(user), "") << "an empty list of another search";
        user.Click(IDOK);
    });
    EXPECT_THAT(values, ElementsAre("KEPT", "ALSO KEPT", "CORAL"));
}

TEST_F(CancelledSearch, LeavesTheCallersVectorAndControl) {
    MakeEndless();
    kv::ExpectWait(desktop, [](kv::User& wait) { wait.Key(0, "Escape"); });
    Run(dialog_, [&](kv::User& user) {
        Search(user, "");
        EXPECT_EQ(Said(user), "Cancelled");
        user.Click(IDCANCEL);
    });
    EXPECT_THAT(values, ElementsAre("KEPT", "ALSO KEPT"));
    EXPECT_EQ(combo.WindowText(), kv::catalogue::kListMarker);
}

TEST_F(CancelledSearch, RunsNoHandlerOfTheDialogInsideItsOwn) {
    MakeEndless();
    kv::ExpectWait(desktop, [&](kv::User& wait) {
        EXPECT_FALSE(dialog_.IsWindowEnabled());
        EXPECT_FALSE(frame.IsWindowEnabled());
        EXPECT_FALSE(kv::input::Click(*dialog_.m_hWnd->FindChild(kClear)));
        EXPECT_FALSE(kv::input::MoveFocus(*dialog_.m_hWnd->FindChild(kFind)));
        dialog_.PostMessage(kHostMessage);
        dialog_.commands.clear();
        wait.Click(IDCANCEL);
        EXPECT_EQ(dialog_.hostMessages, 0);
        EXPECT_THAT(dialog_.commands, IsEmpty());
    });
    Run(dialog_, [&](kv::User& user) {
        user.Focus(kSearch);
        user.Key(kSearch, "Enter");
        EXPECT_THAT(dialog_.commands, IsEmpty()) << "nobody was told of the focus either";
        EXPECT_EQ(dialog_.hostMessages, 1);
        EXPECT_EQ(test::FocusedId(), kSearch);
        EXPECT_TRUE(dialog_.IsWindowEnabled());
    });
    EXPECT_TRUE(frame.IsWindowEnabled());
}

TEST_F(CancelledSearch, TellsHowLongItTakesAndGoesOnWhereNobodyCancels) {
    MakeEndless();
    std::string first;
    constexpr int kPumpsOfASecond = 30;
    kv::ExpectWait(desktop, [&](kv::User& wait) { first = wait.Text(1003); });
    kv::ExpectWait(
        desktop,
        [&](kv::User& wait) {
            EXPECT_NE(wait.Text(1003), first);
            wait.Click(IDCANCEL);
        },
        kPumpsOfASecond + kPumpsOfASecond);
    Run(dialog_, [&](kv::User& user) {
        Search(user, "");
        EXPECT_EQ(first, "Running for 0 s");
        EXPECT_EQ(Said(user), "Cancelled");
    });
}

/// Counts the windows that come up.
class CountingDesktop : public kv::HeadlessDesktop {
public:
    void Created(kv::Node& node) override { windows += !node.Parent(); }
    int windows = 0;
};

TEST_F(CancelledSearch, AShortOneShowsNothing) {
    CountingDesktop counting;
    kv::WindowSystem::Get().SetDesktop(&counting);
    kv::SetPatience(kv::kUsualPatience);
    counting.ExpectWindow("", [&](kv::User& user) {
        Search(user, "");
        EXPECT_THAT(user.Rows(kAvailable), ElementsAre("AMBER", "BLUE"));
        user.Click(IDCANCEL);
    });
    dialog_.DoModal();
    EXPECT_EQ(counting.windows, 1);
    kv::WindowSystem::Get().SetDesktop(&desktop);
}

}  // namespace
