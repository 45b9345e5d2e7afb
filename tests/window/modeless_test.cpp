#include "support/dialog_fixture.h"
#include "window/frames/frame_wnd.h"

using enum kv::ControlKind;
using test::FocusedId;
using test::RecordingDialog;
using test::Row;
using test::TestTemplate;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

/// A tool as hosts keep them: OK only hides it.
class Tool : public RecordingDialog {
public:
    void OnOK() override { ShowWindow(SW_HIDE); }
};

class Modeless : public test::DialogTest {
protected:
    /// Acts on a window as a person; a script that does not fit ends the test program.
    kv::User UserOf(CWnd& window) {
        return {*window.m_hWnd, [this](const std::string& words) { desktop.Fail(words); }};
    }

    TestTemplate dialogTemplate_{{Row(11, kEdit), Row(12, kEdit), Row(20, kPushButton, "Go"),
                                  Row(IDOK, kDefaultButton, "OK")}};
    Tool tool_;
};

TEST_F(Modeless, IsShownAndLeavesTheCallerRunning) {
    ASSERT_TRUE(tool_.Create(test::kTestTemplate));
    EXPECT_TRUE(tool_.IsWindowVisible());
    EXPECT_TRUE(tool_.m_hWnd->Shown());
    EXPECT_EQ(FocusedId(), 11);
    EXPECT_THAT(kv::WindowSystem::Get().Modals(), IsEmpty());
    EXPECT_THAT(tool_.ToldOfFocus(), IsEmpty());
    UserOf(tool_).Focus(12);
    EXPECT_THAT(tool_.ToldOfFocus(), ElementsAre("11 lost", "12 gained"));
}

TEST_F(Modeless, StaysHiddenWhereOnInitDialogHidIt) {
    tool_.onInit = [&] {
        tool_.ShowWindow(SW_HIDE);
        return TRUE;
    };
    ASSERT_TRUE(tool_.Create(test::kTestTemplate));
    EXPECT_FALSE(tool_.IsWindowVisible());
    tool_.GetDlgItem(12)->SetFocus();
    EXPECT_THAT(tool_.ToldOfFocus(), IsEmpty());
    tool_.ShowWindow(SW_SHOW);
    UserOf(tool_).Focus(11);
    EXPECT_THAT(tool_.ToldOfFocus(), ElementsAre("12 lost", "11 gained"));
}

/// Counts what comes to be on the screen.
class CountingDesktop : public kv::HeadlessDesktop {
public:
    void Created(kv::Node&) override { ++created; }
    int created = 0;
};

TEST_F(Modeless, MadeHiddenItComesToTheScreenWhenItIsFirstShown) {
    CountingDesktop counting;
    kv::WindowSystem::Get().SetDesktop(&counting);
    tool_.onInit = [&] {
        tool_.ShowWindow(SW_HIDE);
        return TRUE;
    };
    ASSERT_TRUE(tool_.Create(test::kTestTemplate));
    EXPECT_EQ(counting.created, 0);
    tool_.ShowWindow(SW_SHOW);
    EXPECT_EQ(counting.created, 1);
    tool_.DestroyWindow();
    kv::WindowSystem::Get().SetDesktop(&desktop);
}

TEST_F(Modeless, WithoutATemplateIsNotMade) {
    EXPECT_FALSE(tool_.Create(999));
    EXPECT_EQ(tool_.m_hWnd, nullptr);
    EXPECT_TRUE(tool_.Create(test::kTestTemplate));
}

TEST_F(Modeless, EndedInOnInitDialogIsNotLeftOnTheScreen) {
    tool_.onInit = [&] {
        tool_.DestroyWindow();
        return TRUE;
    };
    EXPECT_FALSE(tool_.Create(test::kTestTemplate));
    EXPECT_TRUE(kv::WindowSystem::Get().TopLevels().empty());
}

TEST_F(Modeless, KeepsItsValuesWhileItsOkHidesIt) {
    ASSERT_TRUE(tool_.Create(test::kTestTemplate));
    kv::User user = UserOf(tool_);
    user.Type(11, "28.5");
    user.Key(0, "Enter");
    EXPECT_FALSE(user.Open());
    EXPECT_FALSE(tool_.IsWindowVisible());
    tool_.ShowWindow(SW_SHOW);
    EXPECT_TRUE(user.Open());
    EXPECT_EQ(user.Text(11), "28.5");
}

TEST_F(Modeless, EndDialogHidesItAndTheWindowLivesOn) {
    ASSERT_TRUE(tool_.Create(test::kTestTemplate));
    UserOf(tool_).Key(0, "Escape");
    EXPECT_NE(tool_.m_hWnd, nullptr);
    EXPECT_FALSE(tool_.IsWindowVisible());
}

TEST_F(Modeless, GoesWithItsOwner) {
    CFrameWnd frame;
    frame.Create("Host");
    ASSERT_TRUE(tool_.Create(test::kTestTemplate, &frame));
    EXPECT_EQ(tool_.GetParent(), &frame);
    frame.DestroyWindow();
    EXPECT_EQ(tool_.m_hWnd, nullptr);
    EXPECT_TRUE(kv::WindowSystem::Get().TopLevels().empty());
}

TEST_F(Modeless, CannotBeUsedWhileAModalWindowIsOpenOverIt) {
    ASSERT_TRUE(tool_.Create(test::kTestTemplate));
    RecordingDialog modal(test::kTestTemplate, &tool_);
    Run(modal, [&](kv::User&) {
        kv::Node& button = *tool_.m_hWnd->FindChild(20);
        EXPECT_FALSE(kv::input::Click(button));
        EXPECT_FALSE(kv::input::TypeText(*tool_.m_hWnd->FindChild(11), "x"));
        EXPECT_FALSE(kv::input::CloseWindow(*tool_.m_hWnd));
        EXPECT_EQ(kv::WindowSystem::Get().Focus()->Root(), modal.m_hWnd);
    });
    EXPECT_FALSE(tool_.WasTold("20 clicked"));
    EXPECT_EQ(kv::WindowSystem::Get().Focus(), tool_.m_hWnd->FindChild(11));
}

TEST_F(Modeless, TheActiveWindowIsTheVisibleOneThatHadTheFocusLast) {
    CFrameWnd frame;
    frame.Create("Host");
    frame.ShowWindow(SW_SHOW);
    ASSERT_TRUE(tool_.Create(test::kTestTemplate, &frame));
    EXPECT_EQ(CWnd::GetActiveWindow(), &tool_);
    tool_.ShowWindow(SW_HIDE);
    kv::WindowSystem::Get().Settle();
    EXPECT_EQ(CWnd::GetActiveWindow(), &frame);
}

// Long work that keeps its window alive by pumping.

TEST_F(Modeless, PumpingTakesWhatTheUserDidMeanwhile) {
    ASSERT_TRUE(tool_.Create(test::kTestTemplate));
    bool cancelled = false;
    tool_.when["20 clicked"] = [&] { cancelled = true; };
    desktop.ExpectPump([](kv::User& user) { user.Click(20); }, 2);
    std::vector<bool> seen;
    for (int step = 0; step < 4; ++step) {
        kv::WindowSystem::Get().Pump();
        seen.push_back(cancelled);
    }
    EXPECT_THAT(seen, ElementsAre(false, false, true, true));
}

TEST_F(Modeless, PumpingActsOnTheVisibleWindowInFront) {
    ASSERT_TRUE(tool_.Create(test::kTestTemplate));
    Tool hidden;
    ASSERT_TRUE(hidden.Create(test::kTestTemplate));
    hidden.ShowWindow(SW_HIDE);
    desktop.ExpectPump([](kv::User& user) { user.Click(20); });
    kv::WindowSystem::Get().Pump();
    EXPECT_TRUE(tool_.WasTold("20 clicked"));
}

TEST_F(Modeless, AToolDestroyedByAPumpIsGoneForItsCallerToo) {
    ASSERT_TRUE(tool_.Create(test::kTestTemplate));
    tool_.when["20 clicked"] = [&] { tool_.DestroyWindow(); };
    desktop.ExpectPump([](kv::User& user) { user.Click(20); });
    kv::WindowSystem::Get().Pump();
    EXPECT_EQ(tool_.m_hWnd, nullptr);
    tool_.SetDlgItemText(11, "nowhere");
    EXPECT_EQ(tool_.DlgItemText(11), "");
}

TEST_F(Modeless, AFilterOfTheQueueKnowsTheMessagesOfItsDialog) {
    ASSERT_TRUE(tool_.Create(test::kTestTemplate));
    Tool other;
    ASSERT_TRUE(other.Create(test::kTestTemplate));
    tool_.GetDlgItem(11)->PostMessage(WM_KEYDOWN, VK_TAB, 1);
    other.GetDlgItem(11)->PostMessage(WM_CHAR, 'x', 1);
    tool_.GetDlgItem(11)->SetFocus();

    MSG message;
    std::vector<bool> own;
    while (kv::WindowSystem::Get().Take(message)) {
        own.push_back(tool_.IsDialogMessage(&message));
        if (!own.back()) kv::WindowSystem::Get().Dispatch(message);
    }
    EXPECT_THAT(own, ElementsAre(true, false));
    EXPECT_EQ(FocusedId(), 12);
    EXPECT_EQ(other.DlgItemText(11), "x");
    MSG empty;
    EXPECT_FALSE(tool_.IsDialogMessage(&empty));
    EXPECT_FALSE(Tool().IsDialogMessage(&message));
}

}  // namespace
