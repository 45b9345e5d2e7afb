#include "window/dialogs/dialog.h"

#include <memory>
#include <stdexcept>

#include "support/dialog_fixture.h"
#include "support/two_screens.h"
#include "window/frames/frame_wnd.h"

using enum kv::ControlKind;
using test::FocusedId;
using test::RecordingDialog;
using test::Row;
using test::TestTemplate;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class Dialog : public test::DialogTest {
protected:
    TestTemplate dialogTemplate_{{Row(11, kEdit), Row(12, kEdit), Row(20, kPushButton, "Go"),
                                  Row(IDOK, kDefaultButton, "OK"),
                                  Row(IDCANCEL, kPushButton, "Cancel")}};
    RecordingDialog dialog_;
};

// The run of a modal dialog.

TEST_F(Dialog, EndsWithTheButtonThatWasPressed) {
    EXPECT_EQ(Run(dialog_, [](kv::User& user) { user.Click(IDOK); }), IDOK);
    EXPECT_EQ(Run(dialog_, [](kv::User& user) { user.Click(IDCANCEL); }), IDCANCEL);
}

TEST_F(Dialog, WithoutATemplateDoesNotOpen) {
    RecordingDialog lost(999);
    EXPECT_EQ(lost.DoModal(), -1);
    EXPECT_FALSE(lost.Create(999));
    EXPECT_EQ(lost.m_hWnd, nullptr);
    EXPECT_TRUE(kv::WindowSystem::Get().TopLevels().empty());
}

TEST_F(Dialog, CanRunAgain) {
    for (int run = 0; run < 2; ++run) {
        EXPECT_EQ(Run(dialog_, [](kv::User& user) { user.Click(IDOK); }), IDOK);
        EXPECT_EQ(dialog_.m_hWnd, nullptr);
    }
}

TEST_F(Dialog, DoesNotRunTwiceAtOnce) {
    Run(dialog_, [&](kv::User&) {
        EXPECT_EQ(dialog_.DoModal(), -1);
        EXPECT_FALSE(dialog_.Create(test::kTestTemplate));
    });
}

TEST_F(Dialog, EndedInOnInitDialogIsNeverShown) {
    dialog_.onInit = [&] {
        dialog_.EndDialog(77);
        return TRUE;
    };
    EXPECT_EQ(dialog_.DoModal(), 77);
    EXPECT_TRUE(kv::WindowSystem::Get().Modals().empty());
}

TEST_F(Dialog, DestroyedInOnInitDialogAnswersMinusOne) {
    dialog_.onInit = [&] {
        dialog_.DestroyWindow();
        return TRUE;
    };
    EXPECT_EQ(dialog_.DoModal(), -1);
    EXPECT_TRUE(kv::WindowSystem::Get().Modals().empty());
}

TEST_F(Dialog, DestroyedByAHandlerEndsItsRun) {
    dialog_.when["20 clicked"] = [&] { dialog_.DestroyWindow(); };
    EXPECT_EQ(Run(dialog_, [](kv::User& user) { user.Click(20); }), -1);
}

TEST_F(Dialog, IsHiddenInOnInitDialogAndVisibleBehindIt) {
    BOOL visible = TRUE;
    dialog_.onInit = [&] {
        visible = dialog_.IsWindowVisible();
        return TRUE;
    };
    Run(dialog_, [&](kv::User&) { EXPECT_TRUE(dialog_.IsWindowVisible()); });
    EXPECT_FALSE(visible);
}

TEST_F(Dialog, TheLastEndDialogCounts) {
    dialog_.when["20 clicked"] = [&] {
        dialog_.EndDialog(3);
        dialog_.EndDialog(4);
    };
    EXPECT_EQ(Run(dialog_, [](kv::User& user) { user.Click(20); }), 4);
}

TEST_F(Dialog, StandsInTheMiddleOfItsOwnerAndWhollyOnTheScreen) {
    CFrameWnd frame;
    frame.Create("Host", {1700, 100, 1900, 300});
    RecordingDialog owned(test::kTestTemplate, &frame);
    desktop.SetScreenSize({1920, 1080});
    Run(owned, [&](kv::User&) {
        CRect rect;
        owned.GetWindowRect(&rect);
        EXPECT_EQ(rect.Size(), (CSize{450, 325}));
        EXPECT_EQ(rect.right, 1920);
        EXPECT_EQ((rect.top + rect.bottom) / 2, 200);
    });
}

TEST_F(Dialog, StandsOnTheScreenOfItsOwner) {
    test::TwoScreens two;
    CFrameWnd frame;
    frame.Create("Host", {2300, 120, 2540, 300});
    RecordingDialog owned(test::kTestTemplate, &frame);
    CRect rect;
    two.ExpectWindow("", [&](kv::User& user) {
        owned.GetWindowRect(&rect);
        user.Click(IDOK);
    });
    owned.DoModal();
    EXPECT_EQ(rect.right, test::kSecondScreen.right);
    EXPECT_EQ(rect.top, test::kSecondScreen.top);
}

TEST_F(Dialog, DisablesItsOwnerWhileItRuns) {
    CFrameWnd frame;
    frame.Create("Host");
    RecordingDialog owned(test::kTestTemplate, &frame);
    Run(owned, [&](kv::User&) {
        EXPECT_FALSE(frame.IsWindowEnabled());
        EXPECT_EQ(owned.GetParent(), &frame);
    });
    EXPECT_TRUE(frame.IsWindowEnabled());
}

TEST_F(Dialog, LeavesAnOwnerDisabledThatWasSoBefore) {
    CFrameWnd frame;
    frame.Create("Host");
    frame.EnableWindow(FALSE);
    RecordingDialog owned(test::kTestTemplate, &frame);
    Run(owned, [](kv::User&) {});
    EXPECT_FALSE(frame.IsWindowEnabled());
}

TEST_F(Dialog, OpensOverTheInnermostModalOne) {
    RecordingDialog inner;
    RecordingDialog innermost;
    dialog_.when["20 clicked"] = [&] { inner.DoModal(); };
    inner.when["20 clicked"] = [&] { innermost.DoModal(); };
    desktop.ExpectWindow("", [](kv::User& user) {
        user.Click(20);
        user.Click(IDOK);
    });
    desktop.ExpectWindow("", [&](kv::User& user) {
        EXPECT_EQ(inner.GetParent(), &dialog_);
        EXPECT_FALSE(dialog_.IsWindowEnabled());
        user.Click(20);
        user.Click(IDCANCEL);
    });
    desktop.ExpectWindow("", [&](kv::User& user) {
        EXPECT_EQ(innermost.GetParent(), &inner);
        EXPECT_FALSE(inner.IsWindowEnabled());
        EXPECT_EQ(kv::WindowSystem::Get().Modals().size(), 3u);
        user.Key(0, "Escape");
    });
    EXPECT_EQ(dialog_.DoModal(), IDOK);
    EXPECT_TRUE(kv::WindowSystem::Get().Modals().empty());
}

TEST_F(Dialog, GoesWithItsOwner) {
    RecordingDialog inner;
    dialog_.when["20 clicked"] = [&] { EXPECT_EQ(inner.DoModal(), -1); };
    desktop.ExpectWindow("", [](kv::User& user) { user.Click(20); });
    desktop.ExpectWindow("", [&](kv::User&) { dialog_.DestroyWindow(); });
    EXPECT_EQ(dialog_.DoModal(), -1);
    EXPECT_TRUE(kv::WindowSystem::Get().TopLevels().empty());
}

// Lives that end inside a handler.

/// Tells when it is gone.
class Mortal : public RecordingDialog {
public:
    explicit Mortal(bool& gone) : gone_(gone) {}
    ~Mortal() override { gone_ = true; }

    std::function<void()> onDestroy;

    static const kv::MessageMap& Messages() {
        static const kv::MessageEntry kEntries[] = {
            kv::OnMessage<&Mortal::OnDestroy>(WM_DESTROY),
        };
        static const kv::MessageMap kMap{&CDialog::Messages(), kEntries};
        return kMap;
    }
    const kv::MessageMap& GetMessageMap() const override { return Messages(); }

protected:
    void PostNcDestroy() override { delete this; }

private:
    void OnDestroy() {
        if (onDestroy) onDestroy();
    }
    bool& gone_;
};

TEST_F(Dialog, MayDeleteItselfFromAHandlerOfItsOwnButton) {
    bool gone = false;
    auto* mortal = new Mortal(gone);
    mortal->when["20 clicked"] = [mortal] { mortal->DestroyWindow(); };
    ASSERT_TRUE(mortal->Create(test::kTestTemplate));
    kv::Node& button = *mortal->m_hWnd->FindChild(20);
    const auto keep = button.shared_from_this();
    EXPECT_TRUE(kv::input::Click(button));
    EXPECT_TRUE(gone);
    EXPECT_TRUE(button.Destroyed());
    EXPECT_EQ(kv::WindowSystem::Get().Focus(), nullptr);
}

TEST_F(Dialog, MayDeleteItselfFromItsFocusLostHandlerAndWhileTyping) {
    for (const char* words : {"11 lost", "11 changed", "20 clicked"}) {
        bool gone = false;
        auto* mortal = new Mortal(gone);
        mortal->when[words] = [mortal] { mortal->DestroyWindow(); };
        ASSERT_TRUE(mortal->Create(test::kTestTemplate));
        const auto edit = mortal->m_hWnd->FindChild(11)->shared_from_this();
        const auto button = mortal->m_hWnd->FindChild(20)->shared_from_this();
        kv::input::TypeText(*edit, "x");
        kv::input::Click(*button);
        EXPECT_TRUE(gone) << words;
    }
}

TEST_F(Dialog, MayDeleteItselfFromAPostedCommand) {
    bool gone = false;
    auto* mortal = new Mortal(gone);
    mortal->when["20 clicked"] = [mortal] { mortal->DestroyWindow(); };
    ASSERT_TRUE(mortal->Create(test::kTestTemplate));
    mortal->PostMessage(WM_COMMAND, MAKEWPARAM(20, CN_COMMAND), 0);
    mortal->PostMessage(WM_COMMAND, MAKEWPARAM(20, CN_COMMAND), 0);
    kv::WindowSystem::Get().Pump();
    EXPECT_TRUE(gone);
    MSG left;
    EXPECT_FALSE(kv::WindowSystem::Get().Take(left));
}

TEST_F(Dialog, MayDeleteItselfInAModalRun) {
    bool gone = false;
    auto* mortal = new Mortal(gone);
    EXPECT_EQ(Run(*mortal, [](kv::User& user) { user.Click(IDOK); }), IDOK);
    EXPECT_TRUE(gone);
}

TEST_F(Dialog, MayBeDeletedWhileItIsBeingDestroyed) {
    bool gone = false;
    auto* mortal = new Mortal(gone);
    mortal->onDestroy = [mortal] {
        // The handler's own captures go with the object.
        Mortal* self = mortal;
        delete self;
    };
    ASSERT_TRUE(mortal->Create(test::kTestTemplate));
    const auto node = mortal->m_hWnd->shared_from_this();
    kv::WindowSystem::Get().Destroy(*node);
    EXPECT_TRUE(gone);
    EXPECT_TRUE(node->Destroyed());
    EXPECT_EQ(node->Handle(), nullptr);
}

TEST_F(Dialog, DestroyingItInItsOwnDestroyHandlerDoesNothingMore) {
    bool gone = false;
    int times = 0;
    auto* mortal = new Mortal(gone);
    mortal->onDestroy = [mortal, &times] {
        ++times;
        mortal->DestroyWindow();
    };
    ASSERT_TRUE(mortal->Create(test::kTestTemplate));
    mortal->DestroyWindow();
    EXPECT_TRUE(gone);
    EXPECT_EQ(times, 1);
}

TEST_F(Dialog, DeletedWhileOpenTakesItsWindowAlong) {
    auto owned = std::make_unique<RecordingDialog>();
    ASSERT_TRUE(owned->Create(test::kTestTemplate));
    const auto node = owned->m_hWnd->shared_from_this();
    owned.reset();
    EXPECT_TRUE(node->Destroyed());
    EXPECT_TRUE(kv::WindowSystem::Get().TopLevels().empty());
}

TEST_F(Dialog, AControlMayBeDestroyedByItsOwnHandler) {
    dialog_.when["20 clicked"] = [&] { dialog_.GetDlgItem(20)->DestroyWindow(); };
    Run(dialog_, [](kv::User& user) {
        user.Click(20);
        EXPECT_FALSE(user.HasControl(20));
        user.Key(0, "Tab");
    });
}

TEST_F(Dialog, AControlsHandleMayDeleteItselfInItsOwnHandler) {
    class Swatch : public CWnd {
    public:
        BOOL OnCmdMsg(UINT, int, void*, void*) override {
            delete this;
            return TRUE;
        }
    };
    Run(dialog_, [&](kv::User& user) {
        auto* swatch = new Swatch;
        ASSERT_TRUE(swatch->SubclassDlgItem(20, &dialog_));
        user.Click(20);
        EXPECT_EQ(dialog_.m_hWnd->FindChild(20)->Handle(), nullptr);
        user.Click(20);
    });
    EXPECT_TRUE(dialog_.WasTold("20 clicked"));
}

TEST_F(Dialog, AHandleMayGoBeforeItsControl) {
    Run(dialog_, [&](kv::User& user) {
        {
            CWnd handle;
            ASSERT_TRUE(handle.SubclassDlgItem(11, &dialog_));
            handle.SetWindowText("kept");
        }
        EXPECT_EQ(user.Text(11), "kept");
        EXPECT_EQ(dialog_.GetDlgItem(11)->WindowText(), "kept");
    });
}

TEST_F(Dialog, AControlOutlivesSeveralHandles) {
    Run(dialog_, [&](kv::User& user) {
        for (const char* text : {"one", "two"}) {
            CWnd handle;
            ASSERT_TRUE(handle.SubclassDlgItem(11, &dialog_));
            EXPECT_FALSE(CWnd().SubclassDlgItem(11, &dialog_));
            handle.SetWindowText(text);
            EXPECT_EQ(handle.UnsubclassWindow(), dialog_.m_hWnd->FindChild(11));
            EXPECT_EQ(user.Text(11), text);
        }
    });
}

TEST_F(Dialog, AHandleOutlivesItsControlAndThenAnswersAsForAnEmptyWindow) {
    CWnd handle;
    Run(dialog_, [&](kv::User&) { ASSERT_TRUE(handle.SubclassDlgItem(11, &dialog_)); });
    EXPECT_EQ(handle.m_hWnd, nullptr);
    handle.SetWindowText("nowhere");
    EXPECT_EQ(handle.WindowText(), "");
    EXPECT_FALSE(handle.EnableWindow());
    EXPECT_FALSE(handle.DestroyWindow());
    EXPECT_EQ(handle.SendMessage(WM_USER), 0);
    EXPECT_FALSE(handle.PostMessage(WM_USER));
}

// Absent controls.

TEST_F(Dialog, AnOperationOnAnAbsentIdDoesNothingAndAnswersAsForAnEmptyWindow) {
    Run(dialog_, [&](kv::User&) {
        EXPECT_EQ(dialog_.GetDlgItem(900), nullptr);
        EXPECT_FALSE(dialog_.HasDlgItem(900));
        dialog_.SetDlgItemText(900, "x");
        EXPECT_EQ(dialog_.DlgItemText(900), "");
        CString text = "before";
        EXPECT_EQ(dialog_.GetDlgItemText(900, text), 0);
        EXPECT_EQ(text, "");
        dialog_.SetDlgItemInt(900, 7);
        BOOL translated = TRUE;
        EXPECT_EQ(dialog_.GetDlgItemInt(900, &translated), 0u);
        EXPECT_FALSE(translated);
        dialog_.CheckDlgButton(900, 1);
        EXPECT_EQ(dialog_.IsDlgButtonChecked(900), 0u);
        EXPECT_EQ(dialog_.SendDlgItemMessage(900, WM_GETTEXTLENGTH), 0);
        EXPECT_FALSE(CWnd().SubclassDlgItem(900, &dialog_));
        auto& absent = dialog_.Control<CWnd>(900);
        EXPECT_EQ(absent.m_hWnd, nullptr);
        absent.SetWindowText("x");
        absent.SetFocus();
        EXPECT_EQ(absent.WindowText(), "");
        EXPECT_FALSE(absent.IsWindowVisible());
        EXPECT_EQ(FocusedId(), 11);
    });
    EXPECT_THAT(dialog_.told, IsEmpty());
}

TEST_F(Dialog, ItemIntegersAreReadAsThePlatformDoes) {
    Run(dialog_, [&](kv::User&) {
        const auto read = [&](const char* text, BOOL isSigned) {
            dialog_.SetDlgItemText(11, text);
            BOOL translated = FALSE;
            const UINT value = dialog_.GetDlgItemInt(11, &translated, isSigned);
            return std::pair(value, translated != FALSE);
        };
        EXPECT_EQ(read("  12ft", TRUE), std::pair(12u, true));
        EXPECT_EQ(read("-12", TRUE), std::pair(static_cast<UINT>(-12), true));
        EXPECT_EQ(read("-12", FALSE), std::pair(0u, false));
        EXPECT_EQ(read("4294967295", FALSE), std::pair(4294967295u, true));
        EXPECT_EQ(read("4294967296", FALSE), std::pair(0u, false));
        EXPECT_EQ(read("2147483648", TRUE), std::pair(0u, false));
        EXPECT_EQ(read("x", TRUE), std::pair(0u, false));
        EXPECT_EQ(read("", TRUE), std::pair(0u, false));
        dialog_.SetDlgItemInt(11, static_cast<UINT>(-5));
        EXPECT_EQ(dialog_.DlgItemText(11), "-5");
        dialog_.SetDlgItemInt(11, 4294967295u, FALSE);
        EXPECT_EQ(dialog_.DlgItemText(11), "4294967295");
    });
}

// Controls made while the program runs.

class RunTimeControl : public CWnd {
public:
    BOOL Make(kv::NodeClass nodeClass, const char* text, CWnd* parent, int id) {
        return CreateNode(nodeClass, text, WS_CHILD | WS_VISIBLE | WS_TABSTOP, {5, 5, 55, 25},
                          parent, id);
    }
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == WM_CREATE && refuse) return -1;
        return CWnd::WindowProc(message, wParam, lParam);
    }
    bool refuse = false;
};

TEST_F(Dialog, TakesControlsThatAreMadeWithoutATemplate) {
    RunTimeControl button;
    Run(dialog_, [&](kv::User& user) {
        ASSERT_TRUE(button.Make(kv::NodeClass::kButton, "New", &dialog_, 77));
        EXPECT_FALSE(button.Make(kv::NodeClass::kButton, "Twice", &dialog_, 78));
        user.Click(77);
        EXPECT_EQ(FocusedId(), 77);
        user.Key(0, "Tab");
        EXPECT_EQ(FocusedId(), 11);
    });
    EXPECT_TRUE(dialog_.WasTold("77 clicked"));
    EXPECT_EQ(button.m_hWnd, nullptr);
}

TEST_F(Dialog, DoesNotTakeAControlWhoseCreationIsRefused) {
    RunTimeControl button;
    button.refuse = true;
    Run(dialog_, [&](kv::User& user) {
        EXPECT_FALSE(button.Make(kv::NodeClass::kButton, "New", &dialog_, 77));
        EXPECT_FALSE(user.HasControl(77));
        EXPECT_EQ(button.m_hWnd, nullptr);
    });
}

// Exceptions.

class Failures : public Dialog {
protected:
    Failures() {
        kv::WindowSystem::Get().SetLog([this](const std::string& line) { log_.push_back(line); });
    }
    ~Failures() override { kv::WindowSystem::Get().SetLog({}); }

    std::vector<std::string> log_;
};

TEST_F(Failures, InAHandlerAreLoggedAndShownAndGoNoFurther) {
    dialog_.when["20 clicked"] = [] { throw std::runtime_error("no such table"); };
    desktop.ExpectMessage("no such table");
    EXPECT_EQ(Run(dialog_,
                  [](kv::User& user) {
                      user.Click(20);
                      EXPECT_TRUE(user.Open());
                      user.Click(IDOK);
                  }),
              IDOK);
    EXPECT_THAT(log_, ElementsAre("A handler failed: no such table"));
}

TEST_F(Failures, ThatAreNoStandardExceptionsOrHaveNoWordsAreShownToo) {
    dialog_.when["20 clicked"] = [] { throw 42; };
    dialog_.when["11 changed"] = [] { throw std::runtime_error(""); };
    desktop.ExpectMessage("An unknown failure.");
    desktop.ExpectMessage("An unknown failure.");
    Run(dialog_, [](kv::User& user) {
        user.Click(20);
        user.Key(11, "x");
    });
    EXPECT_EQ(log_.size(), 2u);
}

TEST_F(Failures, InOnInitDialogLeaveTheDialogUsable) {
    dialog_.onInit = []() -> BOOL { throw std::runtime_error("no data"); };
    desktop.ExpectMessage("no data");
    EXPECT_EQ(Run(dialog_, [](kv::User& user) { user.Key(0, "Escape"); }), IDCANCEL);
    EXPECT_EQ(log_.size(), 1u);
}

TEST_F(Failures, InOnOkLeaveTheDialogOpen) {
    dialog_.when["1 clicked"] = [] { throw std::runtime_error("cannot store"); };
    desktop.ExpectMessage("cannot store");
    EXPECT_EQ(Run(dialog_,
                  [](kv::User& user) {
                      user.Click(IDOK);
                      EXPECT_TRUE(user.Open());
                      user.Key(0, "Escape");
                  }),
              IDCANCEL);
}

TEST_F(Failures, InPreTranslateMessageLetTheKeyThrough) {
    dialog_.onPreTranslate = [](MSG* message) -> BOOL {
        if (message->message == WM_KEYDOWN) throw std::runtime_error("bad filter");
        return FALSE;
    };
    desktop.ExpectMessage("bad filter");
    EXPECT_EQ(Run(dialog_, [](kv::User& user) { user.Key(0, "Escape"); }), IDCANCEL);
}

TEST_F(Failures, InAPostedMessageDoNotStopTheQueue) {
    dialog_.when["20 clicked"] = [] { throw std::runtime_error("once"); };
    desktop.ExpectMessage("once");
    Run(dialog_, [&](kv::User& user) {
        dialog_.PostMessage(WM_COMMAND, MAKEWPARAM(20, CN_COMMAND), 0);
        dialog_.GetDlgItem(11)->PostMessage(WM_CHAR, 'z', 1);
        kv::WindowSystem::Get().DispatchAll();
        EXPECT_EQ(user.Text(11), "z");
    });
}

TEST_F(Failures, InASentMessageEndAtTheWindowThatItWasSentTo) {
    class Thrower : public CWnd {
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
            if (message == WM_USER) throw std::runtime_error("sent");
            return CWnd::WindowProc(message, wParam, lParam);
        }
    };
    Thrower thrower;
    bool reached = false;
    dialog_.when["20 clicked"] = [&] {
        EXPECT_EQ(dialog_.SendDlgItemMessage(11, WM_USER), 0);
        reached = true;
    };
    desktop.ExpectMessage("sent");
    Run(dialog_, [&](kv::User& user) {
        thrower.SubclassDlgItem(11, &dialog_);
        user.Click(20);
    });
    EXPECT_TRUE(reached);
}

TEST_F(Failures, InPostNcDestroyDoNotKeepTheWindow) {
    class Thrower : public RecordingDialog {
        void PostNcDestroy() override { throw std::runtime_error("at the end"); }
    };
    Thrower thrower;
    desktop.ExpectMessage("at the end");
    ASSERT_TRUE(thrower.Create(test::kTestTemplate));
    thrower.DestroyWindow();
    EXPECT_TRUE(kv::WindowSystem::Get().TopLevels().empty());
}

TEST_F(Failures, OfASceneEndTheRunOfTheDialogCleanly) {
    desktop.ExpectWindow("", [](kv::User&) { throw std::runtime_error("script"); });
    EXPECT_THROW(dialog_.DoModal(), std::runtime_error);
    EXPECT_TRUE(kv::WindowSystem::Get().Modals().empty());
    EXPECT_EQ(dialog_.m_hWnd, nullptr);
}

}  // namespace
