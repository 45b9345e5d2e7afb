#include <stdexcept>

#include "support/dialog_fixture.h"
#include "window/frames/control_bar.h"
#include "window/frames/frame_wnd.h"

using enum kv::ControlKind;
using test::Row;
using test::TestTemplate;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

/// A bar whose updates are set by the test.
class Bar : public CDialogBar {
public:
    std::function<void(CCmdUI*)> onUpdate;
    int updates = 0;
    std::vector<std::string> told;

    BOOL OnCmdMsg(UINT id, int code, void* extra, void* info) override {
        if (code >= 0 && !info) told.push_back(test::InWords(id, code));
        return CDialogBar::OnCmdMsg(id, code, extra, info);
    }

    static const kv::MessageMap& Messages() {
        static const kv::MessageEntry kEntries[] = {
            kv::OnUpdate<&Bar::OnUpdateGo>(20),
            kv::OnClicked<&Bar::OnHandled>(21),
        };
        static const kv::MessageMap kMap{&CDialogBar::Messages(), kEntries};
        return kMap;
    }
    const kv::MessageMap& GetMessageMap() const override { return Messages(); }

private:
    void OnUpdateGo(CCmdUI* update) {
        ++updates;
        if (onUpdate) onUpdate(update);
    }
    void OnHandled() {}
};

class Frame : public CFrameWnd {
public:
    bool enable = true;
    int commands = 0;

    static const kv::MessageMap& Messages() {
        static const kv::MessageEntry kEntries[] = {
            kv::OnUpdate<&Frame::OnUpdateInFrame>(23),
            kv::OnClicked<&Frame::OnFrameCommand>(22),
        };
        static const kv::MessageMap kMap{&CFrameWnd::Messages(), kEntries};
        return kMap;
    }
    const kv::MessageMap& GetMessageMap() const override { return Messages(); }

private:
    void OnUpdateInFrame(CCmdUI* update) { update->Enable(enable); }
    void OnFrameCommand() { ++commands; }
};

class Idle : public test::DialogTest {
protected:
    Idle() {
        frame_.Create("Host");
        frame_.ShowWindow(SW_SHOW);
        EXPECT_TRUE(bar_.Create(&frame_, 200, CBRS_TOP, 200));
    }

    kv::WindowSystem& system_ = kv::WindowSystem::Get();
    TestTemplate barTemplate_{
        {Row(11, kEdit), Row(12, kCheckBox, "Check"), Row(20, kPushButton), Row(21, kPushButton),
         Row(22, kPushButton), Row(23, kPushButton), Row(24, kPushButton)},
        200};
    Frame frame_;
    Bar bar_;
};

TEST_F(Idle, UpdatesRunWhenTheQueueIsEmpty) {
    EXPECT_EQ(bar_.updates, 0);
    system_.Settle();
    EXPECT_GT(bar_.updates, 0);
}

TEST_F(Idle, UpdatesRunAfterEveryActionOfTheScript) {
    system_.Settle();
    kv::User user(*bar_.m_hWnd, [this](const std::string& words) { desktop.Fail(words); });
    bar_.onUpdate = [&](CCmdUI* update) { update->Enable(!bar_.DlgItemText(11).empty()); };
    user.Click(12);
    EXPECT_FALSE(user.Enabled(20));
    user.Type(11, "x");
    EXPECT_TRUE(user.Enabled(20));
    user.Type(11, "");
    EXPECT_FALSE(user.Enabled(20));
}

TEST_F(Idle, AnUpdateThatWritesWhatIsThereAsksForNoFurtherIdle) {
    bar_.onUpdate = [&](CCmdUI* update) {
        update->Enable(TRUE);
        update->SetText("same");
        update->SetCheck(0);
        bar_.SetDlgItemText(11, "same");
        bar_.CheckDlgButton(12, 1);
        bar_.GetDlgItem(24)->ShowWindow(SW_HIDE);
        bar_.GetDlgItem(24)->MoveWindow(1, 2, 3, 4);
    };
    system_.Settle();
    const auto changes = system_.Changes();
    bar_.updates = 0;
    system_.Settle();
    EXPECT_EQ(bar_.updates, 1);
    EXPECT_EQ(system_.Changes(), changes);
}

TEST_F(Idle, UpdatesRunAnewUntilTheyChangeNothing) {
    int wanted = 3;
    bar_.onUpdate = [&](CCmdUI* update) {
        if (wanted > 0) update->SetText(std::to_string(--wanted).c_str());
    };
    system_.Settle();
    EXPECT_EQ(wanted, 0);
    EXPECT_EQ(bar_.DlgItemText(20), "0");
}

TEST_F(Idle, UpdatesThatNeverComeToRestAreLoggedAndLetGo) {
    std::vector<std::string> log;
    system_.SetLog([&log](const std::string& line) { log.push_back(line); });
    int count = 0;
    bar_.onUpdate = [&](CCmdUI* update) { update->SetText(std::to_string(++count).c_str()); };
    system_.Settle();
    system_.SetLog({});
    EXPECT_THAT(log, ElementsAre("Idle updates go on changing the windows that they update"));
}

TEST_F(Idle, AFailedUpdateIsShownOnceAndTheOthersRun) {
    Bar second;
    ASSERT_TRUE(second.Create(&frame_, 200, CBRS_TOP, 201));
    bar_.onUpdate = [](CCmdUI*) { throw std::runtime_error("update failed"); };
    desktop.ExpectMessage("update failed");
    system_.Settle();
    EXPECT_EQ(bar_.updates, 1);
    EXPECT_EQ(second.updates, 1);
}

TEST_F(Idle, MessagesThatAnUpdatePostsAreDispatched) {
    bool posted = false;
    bar_.onUpdate = [&](CCmdUI*) {
        if (!posted) frame_.PostMessage(WM_COMMAND, MAKEWPARAM(22, CN_COMMAND), 0);
        posted = true;
    };
    system_.Settle();
    EXPECT_EQ(frame_.commands, 1);
}

TEST_F(Idle, AHiddenBarIsNotUpdated) {
    frame_.ShowControlBar(&bar_, FALSE, FALSE);
    system_.Settle();
    EXPECT_EQ(bar_.updates, 0);
    frame_.ShowControlBar(&bar_, TRUE, FALSE);
    system_.Settle();
    EXPECT_GT(bar_.updates, 0);
}

TEST_F(Idle, ABarMayGoInItsOwnUpdate) {
    auto* mortal = new Bar;
    ASSERT_TRUE(mortal->Create(&frame_, 200, CBRS_TOP, 202));
    mortal->onUpdate = [mortal](CCmdUI*) { mortal->DestroyWindow(); };
    system_.Settle();
    EXPECT_EQ(mortal->updates, 1);
    delete mortal;
    system_.Settle();
}

TEST_F(Idle, ABarWhoseHandleWasTakenOffIsLeftAlone) {
    {
        Bar passing;
        ASSERT_TRUE(passing.Create(&frame_, 200, CBRS_TOP, 202));
        passing.Detach();
    }
    system_.Settle();
    EXPECT_NE(frame_.m_hWnd->FindChild(202), nullptr);
}

TEST_F(Idle, ABarsUpdatesAreItsOwnThenItsFrames) {
    frame_.enable = false;
    system_.Settle();
    EXPECT_FALSE(bar_.GetDlgItem(23)->IsWindowEnabled());
    frame_.enable = true;
    system_.Settle();
    EXPECT_TRUE(bar_.GetDlgItem(23)->IsWindowEnabled());
}

TEST_F(Idle, APushButtonWithoutAnUpdateIsEnabledAsLongAsSomebodyHandlesIt) {
    bar_.GetDlgItem(22)->EnableWindow(FALSE);
    system_.Settle();
    EXPECT_TRUE(bar_.GetDlgItem(21)->IsWindowEnabled()) << "handled by the bar";
    EXPECT_TRUE(bar_.GetDlgItem(22)->IsWindowEnabled()) << "handled by the frame";
    EXPECT_FALSE(bar_.GetDlgItem(24)->IsWindowEnabled()) << "handled by nobody";
    EXPECT_TRUE(bar_.GetDlgItem(12)->IsWindowEnabled()) << "no push button";
    EXPECT_EQ(frame_.commands, 0) << "asking is not doing";
}

TEST_F(Idle, AControlMayUpdateItself) {
    class Own : public CWnd {
    public:
        static const kv::MessageMap& Messages() {
            static const kv::MessageEntry kEntries[] = {kv::OnUpdate<&Own::OnUpdateSelf>(24)};
            static const kv::MessageMap kMap{&CWnd::Messages(), kEntries};
            return kMap;
        }
        const kv::MessageMap& GetMessageMap() const override { return Messages(); }

    private:
        void OnUpdateSelf(CCmdUI* update) { update->SetText("own"); }
    };
    Own own;
    own.SubclassDlgItem(24, &bar_);
    system_.Settle();
    EXPECT_EQ(bar_.DlgItemText(24), "own");
}

TEST_F(Idle, AHolderThatAnUpdateDisablesPassesTheFocusOn) {
    system_.Settle();
    bar_.GetDlgItem(20)->SetFocus();
    bar_.onUpdate = [](CCmdUI* update) { update->Enable(FALSE); };
    system_.Settle();
    EXPECT_EQ(test::FocusedId(), 21);
}

// The bar and the focus.

TEST_F(Idle, ABarThatTakesTheFocusInItsCreationTellsNobodyBeforeItIsShown) {
    class Eager : public Bar {
    public:
        BOOL Create(CWnd* parent, UINT templateId, UINT style, UINT id) override {
            if (!CDialogBar::Create(parent, templateId, style, id)) return FALSE;
            GetDlgItem(11)->SetFocus();
            return TRUE;
        }
    };
    Eager eager;
    ASSERT_TRUE(eager.Create(&frame_, 200, CBRS_TOP, 203));
    EXPECT_EQ(system_.Focus(), eager.m_hWnd->FindChild(11));
    EXPECT_THAT(eager.told, IsEmpty());
    system_.Settle();
    EXPECT_THAT(eager.told, IsEmpty());
    EXPECT_TRUE(kv::input::MoveFocus(*eager.m_hWnd->FindChild(12)));
    EXPECT_THAT(eager.told, ElementsAre("11 lost"));
}

TEST_F(Idle, TabAndEnterWorkInABar) {
    system_.Settle();
    kv::User user(*bar_.m_hWnd, [this](const std::string& words) { desktop.Fail(words); });
    user.Focus(11);
    user.Key(0, "Tab");
    EXPECT_EQ(test::FocusedId(), 12);
    user.Key(0, "Escape");
    user.Key(0, "Enter");
    user.Key(22, "Enter");
    EXPECT_EQ(frame_.commands, 1);
}

TEST_F(Idle, AHiddenBarDropsTheFocus) {
    system_.Settle();
    bar_.GetDlgItem(11)->SetFocus();
    frame_.ShowControlBar(&bar_, FALSE, FALSE);
    system_.Settle();
    EXPECT_EQ(system_.Focus(), nullptr);
}

TEST_F(Idle, ABarWithoutATemplateIsNotMade) {
    Bar lost;
    EXPECT_FALSE(lost.Create(&frame_, 999, CBRS_TOP, 204));
    EXPECT_EQ(lost.m_hWnd, nullptr);
    EXPECT_EQ(frame_.m_hWnd->FindChild(204), nullptr);
}

}  // namespace
