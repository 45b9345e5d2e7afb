#include "controls/progress_dlg.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "frame/module.h"
#include "support/dialog_fixture.h"
#include "window/controls/edit.h"
#include "window/frames/frame_wnd.h"

namespace {

constexpr int kBar = 1003;
constexpr int kPercent = 1004;
constexpr int kStatus = 1005;

class Progress : public CKvGuiProgressDlg {
public:
    using CKvGuiProgressDlg::CKvGuiProgressDlg;
    using CKvGuiProgressDlg::m_bParentDisabled;
    using CKvGuiProgressDlg::m_nCaptionID;
    using CKvGuiProgressDlg::m_pParent;
    using CKvGuiProgressDlg::m_Progress;
};

class ProgressDlg : public test::DialogTest {
protected:
    ProgressDlg() {
        InitControlDll();
        app.m_pMainWnd = &frame;
        frame.Create("Host");
        frame.ShowWindow(SW_SHOW);
    }
    std::string Percent(const Progress& dialog) { return dialog.DlgItemText(kPercent); }

    CWinApp app;
    CFrameWnd frame;
};

TEST_F(ProgressDlg, ComesUpAtTheLowerLimit) {
    Progress dialog;
    dialog.SetRange(5, 25);
    ASSERT_TRUE(dialog.Create(&frame));
    EXPECT_EQ(dialog.WindowText(), "Progress");
    EXPECT_EQ(Percent(dialog), " 0 %");
    EXPECT_EQ(dialog.DlgItemText(kStatus), "");
    EXPECT_EQ(dialog.DlgItemText(IDCANCEL), "Cancel");
    EXPECT_EQ(dialog.GetDlgItem(kBar)->m_hWnd, dialog.m_Progress.m_hWnd);
    EXPECT_EQ(dialog.m_Progress.GetPos(), 5);
    EXPECT_EQ(test::FocusedId(), IDCANCEL);
}

TEST_F(ProgressDlg, KeepsTheCaptionIdAndUsesItForNothing) {
    EXPECT_EQ(Progress().m_nCaptionID, 12003u);
    Progress dialog(77);
    EXPECT_EQ(dialog.m_nCaptionID, 77u);
    dialog.Create(&frame);
    EXPECT_EQ(dialog.WindowText(), "Progress");
}

TEST_F(ProgressDlg, DisablesTheOuterWindowAsLongAsItIsUp) {
    CEdit edit;
    edit.Create(WS_CHILD | WS_VISIBLE, {0, 0, 50, 12}, &frame, 5);
    edit.SetFocus();
    Progress dialog;
    ASSERT_TRUE(dialog.Create(&edit));
    EXPECT_FALSE(frame.IsWindowEnabled());
    EXPECT_FALSE(kv::input::Click(*edit.m_hWnd));
    EXPECT_EQ(dialog.m_pParent, &frame);
    dialog.DestroyWindow();
    EXPECT_TRUE(frame.IsWindowEnabled());
    EXPECT_EQ(CWnd::GetFocus(), &edit);
}

TEST_F(ProgressDlg, NoParentMeansTheMainWindow) {
    Progress dialog;
    dialog.Create(nullptr);
    EXPECT_FALSE(frame.IsWindowEnabled());
    dialog.DestroyWindow();
    EXPECT_TRUE(frame.IsWindowEnabled());
}

TEST_F(ProgressDlg, AWindowThatWasDisabledBeforeStaysSo) {
    frame.EnableWindow(FALSE);
    Progress dialog;
    dialog.Create(&frame);
    EXPECT_EQ(dialog.m_bParentDisabled, 0);
    dialog.DestroyWindow();
    EXPECT_FALSE(frame.IsWindowEnabled());
}

TEST_F(ProgressDlg, ItsDestructorTakesItDown) {
    {
        Progress dialog;
        dialog.Create(&frame);
        EXPECT_FALSE(frame.IsWindowEnabled());
    }
    EXPECT_TRUE(frame.IsWindowEnabled());
    EXPECT_EQ(kv::WindowSystem::Get().TopLevels().size(), 1u);
}

TEST_F(ProgressDlg, MayOutliveTheWindowThatItStandsOver) {
    auto other = std::make_unique<CFrameWnd>();
    other->Create("Other");
    Progress dialog;
    dialog.Create(other.get());
    other->DestroyWindow();
    other.reset();
    EXPECT_EQ(dialog.StepIt(), 0);
    EXPECT_EQ(dialog.m_hWnd, nullptr);
}

TEST_F(ProgressDlg, IsTakenDownAfterTheWindowThatItStoodOver) {
    auto other = std::make_unique<CFrameWnd>();
    other->Create("Other");
    Progress dialog;
    dialog.Create(other.get());
    other.reset();
    EXPECT_FALSE(dialog.DestroyWindow());
    EXPECT_EQ(dialog.m_bParentDisabled, 0);
}

TEST_F(ProgressDlg, EnablesTheWindowItStoodOverUnderWhateverHandleThatHasNow) {
    auto other = std::make_unique<CFrameWnd>();
    other->Create("Other");
    Progress dialog;
    dialog.Create(other.get());
    CFrameWnd heir;
    heir.Attach(other->Detach());
    other.reset();
    EXPECT_FALSE(heir.IsWindowEnabled());
    EXPECT_TRUE(dialog.DestroyWindow());
    EXPECT_TRUE(heir.IsWindowEnabled());
}

TEST_F(ProgressDlg, ASecondCreateFailsAndLeavesTheWindowAsItIs) {
    Progress dialog;
    dialog.Create(&frame);
    EXPECT_FALSE(dialog.Create(&frame));
    EXPECT_EQ(kv::WindowSystem::Get().TopLevels().size(), 2u);
}

TEST_F(ProgressDlg, PositionsReturnTheFormerOne) {
    Progress dialog;
    dialog.Create(&frame);
    EXPECT_EQ(dialog.SetPos(30), 0);
    EXPECT_EQ(Percent(dialog), "30%");
    EXPECT_EQ(dialog.OffsetPos(25), 30);
    EXPECT_EQ(Percent(dialog), "55%");
    EXPECT_EQ(dialog.SetStep(15), 20);
    EXPECT_EQ(dialog.StepIt(), 55);
    EXPECT_EQ(Percent(dialog), "70%");
    EXPECT_EQ(dialog.m_Progress.GetPos(), 70);
    dialog.SetStatus("Block 12");
    EXPECT_EQ(dialog.DlgItemText(kStatus), "Block 12");
}

TEST_F(ProgressDlg, StepsByTwentyToAHundredPercent) {
    Progress dialog;
    dialog.Create(&frame);
    std::string seen;
    for (int step = 0; step < 6; ++step) {
        dialog.StepIt();
        seen += Percent(dialog) + " ";
    }
    EXPECT_EQ(seen, "20% 40% 60% 80% 100% 20% ");
}

TEST_F(ProgressDlg, APositionBeyondTheLimitShowsAWrappedPercent) {
    Progress dialog;
    dialog.Create(&frame);
    dialog.SetPos(100);
    EXPECT_EQ(Percent(dialog), "100%");
    dialog.SetPos(150);
    EXPECT_EQ(Percent(dialog), "50%");
    EXPECT_EQ(dialog.m_Progress.GetPos(), 100);
    dialog.SetPos(200);
    EXPECT_EQ(Percent(dialog), "0%");
    dialog.SetPos(-30);
    EXPECT_EQ(Percent(dialog), "-30%");
}

TEST_F(ProgressDlg, PercentsAreCutToWholeOnes) {
    Progress dialog;
    dialog.Create(&frame);
    dialog.SetRange(0, 3);
    dialog.SetStep(1);
    dialog.StepIt();
    EXPECT_EQ(Percent(dialog), "33%");
    dialog.SetRange(10, 20);
    dialog.SetPos(19);
    EXPECT_EQ(Percent(dialog), "90%");
    dialog.SetRange(0, 2000000000);
    dialog.SetPos(1900000000);
    EXPECT_EQ(Percent(dialog), "95%");
}

TEST_F(ProgressDlg, ARangeWithEqualLimitsShowsNoPercent) {
    Progress dialog;
    dialog.Create(&frame);
    dialog.SetPos(40);
    dialog.SetRange(7, 7);
    dialog.StepIt();
    EXPECT_EQ(Percent(dialog), "40%");
}

TEST_F(ProgressDlg, WithoutAWindowItAnswersAsAnEmptyOne) {
    Progress dialog;
    EXPECT_EQ(dialog.SetPos(5), 0);
    EXPECT_EQ(dialog.StepIt(), 0);
    dialog.SetStatus("x");
    EXPECT_EQ(dialog.CheckCancelButton(), 0);
    EXPECT_FALSE(dialog.DestroyWindow());
}

TEST_F(ProgressDlg, CancelIsSeenWhereTheOperationAsks) {
    Progress dialog;
    dialog.SetRange(0, 10);
    dialog.SetStep(1);
    dialog.Create(&frame);
    desktop.ExpectPump([](kv::User& user) { user.Click(IDCANCEL); }, 6);
    int done = 0;
    while (done < 10 && !dialog.CheckCancelButton()) {
        dialog.StepIt();
        ++done;
    }
    EXPECT_EQ(done, 3);
    EXPECT_FALSE(dialog.IsWindowVisible());
}

TEST_F(ProgressDlg, CancelStaysUntilANewDialogIsConstructed) {
    Progress dialog;
    dialog.Create(&frame);
    desktop.ExpectPump([](kv::User& user) { user.Key(0, "Escape"); });
    EXPECT_EQ(dialog.CheckCancelButton(), 1);
    dialog.StepIt();
    dialog.StepIt();
    EXPECT_EQ(dialog.CheckCancelButton(), 1);
    Progress other;
    EXPECT_EQ(other.CheckCancelButton(), 0);
    EXPECT_EQ(dialog.CheckCancelButton(), 0);
}

TEST_F(ProgressDlg, TwoDialogsShareOneFlag) {
    Progress first;
    Progress second;
    first.Create(&frame);
    second.Create(&frame);
    desktop.ExpectPump([](kv::User& user) { user.Click(IDCANCEL); });
    EXPECT_EQ(first.CheckCancelButton(), 1);
    EXPECT_EQ(second.CheckCancelButton(), 1);
    EXPECT_TRUE(first.IsWindowVisible());
}

TEST_F(ProgressDlg, EnterCannotEndIt) {
    Progress dialog;
    dialog.Create(&frame);
    dialog.SendMessage(WM_COMMAND, MAKEWPARAM(IDOK, CN_COMMAND));
    EXPECT_TRUE(dialog.IsWindowVisible());
    EXPECT_EQ(dialog.CheckCancelButton(), 0);
}

TEST_F(ProgressDlg, AFinishedCancelStillGivesTheWindowBack) {
    Progress dialog;
    dialog.Create(&frame);
    kv::input::CloseWindow(*dialog.m_hWnd);
    EXPECT_EQ(dialog.CheckCancelButton(), 1);
    EXPECT_FALSE(frame.IsWindowEnabled());
    dialog.DestroyWindow();
    EXPECT_TRUE(frame.IsWindowEnabled());
}

TEST_F(ProgressDlg, MessagesForOtherWindowsGetThrough) {
    struct Window : CFrameWnd {
        int painted = 0;
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
            if (message == WM_USER + 7) ++painted;
            return CFrameWnd::WindowProc(message, wParam, lParam);
        }
    };
    Window other;
    other.Create("Other");
    Progress dialog;
    dialog.Create(&frame);
    other.PostMessage(WM_USER + 7);
    dialog.PostMessage(WM_COMMAND, MAKEWPARAM(IDCANCEL, CN_COMMAND));
    EXPECT_EQ(dialog.CheckCancelButton(), 1);
    EXPECT_EQ(other.painted, 1);
}

TEST_F(ProgressDlg, EachCallThatMovesTheBarLetsMessagesThrough) {
    Progress dialog;
    dialog.Create(&frame);
    const std::function<void()> kMoves[] = {[&] { dialog.SetPos(10); },
                                            [&] { dialog.OffsetPos(10); }, [&] { dialog.StepIt(); },
                                            [&] { dialog.CheckCancelButton(); }};
    int pumped = 0;
    for (const auto& move : kMoves) {
        desktop.ExpectPump([&](kv::User&) { ++pumped; });
        dialog.PostMessage(WM_SETTEXT, 0, kv::AsParam("Moved"));
        move();
        EXPECT_EQ(dialog.WindowText(), "Moved");
        dialog.SetWindowText("Progress");
    }
    EXPECT_EQ(pumped, 4);
}

TEST_F(ProgressDlg, KeysThatWaitAreItsOwnAsADialogs) {
    Progress dialog;
    dialog.Create(&frame);
    CWnd* cancel = dialog.GetDlgItem(IDCANCEL);
    cancel->PostMessage(WM_KEYDOWN, VK_ESCAPE);
    dialog.SetPos(10);
    EXPECT_EQ(dialog.CheckCancelButton(), 1);
    EXPECT_FALSE(dialog.IsWindowVisible());
}

TEST_F(ProgressDlg, ARangeSetWhileItIsUpIsTheBars) {
    Progress dialog;
    dialog.Create(&frame);
    dialog.SetPos(50);
    dialog.SetRange(100, 300);
    int lower = 0;
    int upper = 0;
    dialog.m_Progress.GetRange(lower, upper);
    EXPECT_EQ(lower, 100);
    EXPECT_EQ(upper, 300);
    EXPECT_EQ(dialog.SetPos(200), 100);
    EXPECT_EQ(dialog.m_Progress.GetPos(), 200);
    EXPECT_EQ(Percent(dialog), "50%");
    dialog.SetStep(50);
    dialog.StepIt();
    EXPECT_EQ(dialog.m_Progress.GetPos(), 250);
}

TEST_F(ProgressDlg, ARangeAndAStepSetAheadOfItAreTheBars) {
    Progress dialog;
    dialog.SetRange(100, 300);
    dialog.SetStep(50);
    dialog.Create(&frame);
    EXPECT_EQ(dialog.m_Progress.GetPos(), 100);
    EXPECT_EQ(dialog.StepIt(), 100);
    EXPECT_EQ(dialog.m_Progress.GetPos(), 150);
    EXPECT_EQ(Percent(dialog), "25%");
}

TEST(ProgressDlgBeforeTheModule, WithoutTheTemplateNothingOpensAndTheWindowIsEnabledAgain) {
    kv::HeadlessDesktop desktop;
    kv::WindowSystem::Get().SetDesktop(&desktop);
    CFrameWnd frame;
    frame.Create("Host");
    CKvGuiProgressDlg dialog;
    EXPECT_FALSE(dialog.Create(&frame));
    EXPECT_TRUE(frame.IsWindowEnabled());
}

}  // namespace
