#include "window/message_handlers.h"

#include "support/dialog_fixture.h"
#include "window/frames/control_bar.h"
#include "window/frames/frame_wnd.h"

using enum kv::ControlKind;
using test::Row;
using test::TestTemplate;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr int kCommand = 0x8010;
constexpr int kSystemCommand = 0xF010;

/// What came where, over all targets of a test.
std::vector<std::string> g_trail;

void Note(const std::string& words) {
    g_trail.push_back(words);
}

class Base : public CDialog {
public:
    using CDialog::CDialog;
    static const kv::MessageMap& Messages() {
        static const kv::MessageEntry kEntries[] = {
            kv::OnClicked<&Base::OnGo>(20),
            kv::OnClicked<&Base::OnOther>(21),
            kv::OnControlRange<&Base::OnRange>(BN_CLICKED, 30, 32),
            kv::OnControlRange<&Base::OnEditRange>(EN_CHANGE, 11, 12),
            kv::OnMessage<&Base::OnUser>(WM_USER + 5),
            kv::OnMessage<&Base::OnDefaulted>(WM_SETTEXT),
        };
        static const kv::MessageMap kMap{&CDialog::Messages(), kEntries};
        return kMap;
    }
    const kv::MessageMap& GetMessageMap() const override { return Messages(); }

protected:
    void OnGo() { Note("base 20"); }
    void OnOther() { Note("base 21"); }
    void OnRange(UINT id) { Note("range " + std::to_string(id)); }
    void OnEditRange(UINT id) { Note("edit range " + std::to_string(id)); }
    LRESULT OnUser(WPARAM wParam, LPARAM lParam) {
        Note("user " + std::to_string(wParam) + " " + std::to_string(lParam));
        return 99;
    }
    LRESULT OnDefaulted(WPARAM, LPARAM) {
        Note("ahead of the default");
        return Default();
    }
};

class Derived : public Base {
public:
    using Base::Base;
    bool takes = true;
    static const kv::MessageMap& Messages() {
        static const kv::MessageEntry kEntries[] = {kv::OnClicked<&Derived::OnGoFirst>(20)};
        static const kv::MessageMap kMap{&Base::Messages(), kEntries};
        return kMap;
    }
    const kv::MessageMap& GetMessageMap() const override { return Messages(); }

private:
    bool OnGoFirst() {
        Note("derived 20");
        return takes;
    }
};

/// A control that handles its own notifications.
class Reflecting : public CWnd {
public:
    bool takes = false;
    static const kv::MessageMap& Messages() {
        static const kv::MessageEntry kEntries[] = {
            kv::OnReflected<&Reflecting::OnOwn>(BN_CLICKED)};
        static const kv::MessageMap kMap{&CWnd::Messages(), kEntries};
        return kMap;
    }
    const kv::MessageMap& GetMessageMap() const override { return Messages(); }

private:
    bool OnOwn() {
        Note("own");
        return takes;
    }
};

class Frame : public CFrameWnd {
public:
    CDocument* document = nullptr;
    bool enabled = true;
    CDocument* GetActiveDocument() override { return document; }

    static const kv::MessageMap& Messages() {
        static const kv::MessageEntry kEntries[] = {
            kv::OnClicked<&Frame::OnMenu>(kCommand),
            kv::OnUpdate<&Frame::OnUpdateMenu>(kCommand),
            kv::OnClicked<&Frame::OnMenu>(20),
        };
        static const kv::MessageMap kMap{&CFrameWnd::Messages(), kEntries};
        return kMap;
    }
    const kv::MessageMap& GetMessageMap() const override { return Messages(); }

private:
    void OnMenu() { Note("frame"); }
    void OnUpdateMenu(CCmdUI* update) { update->Enable(enabled); }
};

class Routing : public test::DialogTest {
protected:
    Routing() { g_trail.clear(); }

    TestTemplate dialogTemplate_{
        {Row(11, kEdit), Row(12, kEdit), Row(20, kPushButton, "Go"), Row(21, kPushButton, "Other"),
         Row(30, kPushButton), Row(31, kPushButton), Row(32, kPushButton), Row(33, kPushButton)}};
};

TEST_F(Routing, TheLookUpGoesFromTheDerivedClassToItsBase) {
    Derived dialog(test::kTestTemplate);
    Run(dialog, [](kv::User& user) {
        user.Click(20);
        user.Click(21);
    });
    EXPECT_THAT(g_trail, ElementsAre("derived 20", "base 21"));
}

TEST_F(Routing, AHandlerThatAnswersFalseHasNotTakenIt) {
    Derived dialog(test::kTestTemplate);
    dialog.takes = false;
    Run(dialog, [&](kv::User&) {
        EXPECT_FALSE(dialog.OnCmdMsg(20, CN_COMMAND, nullptr, nullptr));
        dialog.takes = true;
        EXPECT_TRUE(dialog.OnCmdMsg(20, CN_COMMAND, nullptr, nullptr));
    });
}

TEST_F(Routing, ARangeOfIdsGoesToOneHandlerWithTheId) {
    Base dialog(test::kTestTemplate);
    Run(dialog, [](kv::User& user) {
        for (const int id : {30, 31, 32, 33})
            user.Click(id);
        user.Key(12, "x");
    });
    EXPECT_THAT(g_trail, ElementsAre("range 30", "range 31", "range 32", "edit range 12"));
}

TEST_F(Routing, MessagesReachTheirHandlerWithTheirParametersAndAnswer) {
    Base dialog(test::kTestTemplate);
    Run(dialog, [&](kv::User&) {
        EXPECT_EQ(dialog.SendMessage(WM_USER + 5, 3, -4), 99);
        EXPECT_EQ(dialog.SendMessage(WM_USER + 6, 3, -4), 0);
        dialog.SetWindowText("New caption");
        EXPECT_EQ(dialog.WindowText(), "New caption");
    });
    EXPECT_THAT(g_trail, ElementsAre("user 3 -4", "ahead of the default"));
}

TEST_F(Routing, AMessageAsLowAsZeroIsAMessage) {
    class Zero : public Base {
    public:
        using Base::Base;
        int count = 0;
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
            if (message == 0) ++count;
            return Base::WindowProc(message, wParam, lParam);
        }
    };
    Zero dialog(test::kTestTemplate);
    Run(dialog, [&](kv::User&) {
        dialog.SendMessage(0);
        dialog.PostMessage(0);
        kv::WindowSystem::Get().Settle();
    });
    EXPECT_EQ(dialog.count, 2);
}

TEST_F(Routing, AControlsOwnNotificationsReachItAheadOfItsParent) {
    Base dialog(test::kTestTemplate);
    Reflecting control;
    Run(dialog, [&](kv::User& user) {
        control.SubclassDlgItem(20, &dialog);
        user.Click(20);
        control.takes = true;
        user.Click(20);
    });
    EXPECT_THAT(g_trail, ElementsAre("own", "base 20", "own"));
}

TEST_F(Routing, ACommandNeedsNoControl) {
    Base dialog(test::kTestTemplate);
    Run(dialog, [&](kv::User&) {
        EXPECT_NE(dialog.SendMessage(WM_COMMAND, MAKEWPARAM(21, 0), 0), 0);
        // An accelerator counts as a command, too.
        EXPECT_NE(dialog.SendMessage(WM_COMMAND, MAKEWPARAM(21, 1), 0), 0);
        EXPECT_EQ(dialog.SendMessage(WM_COMMAND, MAKEWPARAM(500, 0), 0), 0);
    });
    EXPECT_THAT(g_trail, ElementsAre("base 21", "base 21"));
}

TEST_F(Routing, ACommandWhoseUpdateDisablesItIsNotCarriedOut) {
    Frame frame;
    frame.Create("Host");
    frame.SendMessage(WM_COMMAND, MAKEWPARAM(kCommand, 0), 0);
    frame.enabled = false;
    frame.SendMessage(WM_COMMAND, MAKEWPARAM(kCommand, 0), 0);
    EXPECT_THAT(g_trail, ElementsAre("frame"));
}

TEST_F(Routing, AskingWhetherSomebodyHandlesACommandCallsNobody) {
    Base dialog(test::kTestTemplate);
    int info = 0;
    Run(dialog, [&](kv::User&) {
        EXPECT_TRUE(dialog.OnCmdMsg(20, CN_COMMAND, nullptr, &info));
        EXPECT_FALSE(dialog.OnCmdMsg(33, CN_COMMAND, nullptr, &info));
    });
    EXPECT_THAT(g_trail, IsEmpty());
}

TEST_F(Routing, AControlTakesForItsOwnOnlyWhatComesUnderItsId) {
    class Own : public CWnd {
    public:
        const kv::MessageMap& GetMessageMap() const override {
            static const kv::MessageEntry kEntries[] = {kv::OnReflected<&Own::OnOwn>(BN_CLICKED)};
            static const kv::MessageMap kMap{&CWnd::Messages(), kEntries};
            return kMap;
        }
        bool OnOwn() {
            Note("its own");
            return true;
        }
    };
    CDialog dialog(test::kTestTemplate);
    Own own;
    EXPECT_FALSE(own.OnCmdMsg(0, BN_CLICKED, nullptr, nullptr)) << "without a window";
    Run(dialog, [&](kv::User&) {
        own.SubclassDlgItem(20, &dialog);
        EXPECT_FALSE(own.OnCmdMsg(21, BN_CLICKED, nullptr, nullptr));
        EXPECT_THAT(g_trail, IsEmpty());
        EXPECT_TRUE(own.OnCmdMsg(20, BN_CLICKED, nullptr, nullptr));
    });
    EXPECT_THAT(g_trail, ElementsAre("its own"));
}

TEST_F(Routing, ADialogsCommandsGoOnToItsOwnerAndTheApplication) {
    class App : public CWinApp {
    public:
        BOOL OnCmdMsg(UINT id, int code, void*, void*) override {
            Note("app " + std::to_string(id) + "/" + std::to_string(code));
            return TRUE;
        }
    };
    App app;
    Frame frame;
    frame.Create("Host");
    Base dialog(test::kTestTemplate, &frame);
    CCmdUI update;
    Run(dialog, [&](kv::User&) {
        dialog.OnCmdMsg(kCommand, CN_COMMAND, nullptr, nullptr);
        dialog.OnCmdMsg(kCommand + 1, CN_COMMAND, nullptr, nullptr);
        EXPECT_TRUE(dialog.OnCmdMsg(kCommand, CN_UPDATE_COMMAND_UI, &update, nullptr));
    });
    EXPECT_THAT(g_trail, ElementsAre("frame", "app " + std::to_string(kCommand + 1) + "/0"));
}

TEST_F(Routing, AControlsNotificationsEndInTheDialog) {
    Frame frame;
    frame.Create("Host");
    CDialog dialog(test::kTestTemplate, &frame);
    Run(dialog, [&](kv::User& user) {
        user.Click(20);
        dialog.OnCmdMsg(20, CN_COMMAND, nullptr, nullptr);
        dialog.OnCmdMsg(kCommand, EN_CHANGE, nullptr, nullptr);
        dialog.OnCmdMsg(kSystemCommand, CN_COMMAND, nullptr, nullptr);
    });
    EXPECT_THAT(g_trail, IsEmpty());
}

TEST_F(Routing, AFramesCommandsGoToTheDocumentTheFrameAndTheApplication) {
    class Document : public CDocument {
    public:
        bool takes = false;
        BOOL OnCmdMsg(UINT, int code, void*, void*) override {
            if (code == CN_COMMAND) Note("document");
            return takes && code == CN_COMMAND;
        }
    };
    Document document;
    Frame frame;
    frame.document = &document;
    frame.Create("Host");
    frame.SendMessage(WM_COMMAND, MAKEWPARAM(kCommand, 0), 0);
    document.takes = true;
    frame.SendMessage(WM_COMMAND, MAKEWPARAM(kCommand, 0), 0);
    EXPECT_THAT(g_trail, ElementsAre("document", "frame", "document"));
}

TEST_F(Routing, WhatABarDoesNotTakeGoesToItsFrameAndOnceOnlyToTheControl) {
    Frame frame;
    frame.Create("Host");
    frame.ShowWindow(SW_SHOW);
    CDialogBar bar;
    ASSERT_TRUE(bar.Create(&frame, test::kTestTemplate, CBRS_TOP, 200));
    Reflecting control;
    control.SubclassDlgItem(20, &bar);
    kv::WindowSystem::Get().Settle();
    kv::User user(*bar.m_hWnd, [this](const std::string& words) { desktop.Fail(words); });
    user.Click(20);
    EXPECT_THAT(g_trail, ElementsAre("own", "frame"));
}

TEST_F(Routing, ANotificationWithARecordReachesTheControlAndThenTheParent) {
    class Spinning : public CWnd {
    public:
        static const kv::MessageMap& Messages() {
            static const kv::MessageEntry kEntries[] = {
                kv::OnReflectedNotify<&Spinning::OnOwn>(-5)};
            static const kv::MessageMap kMap{&CWnd::Messages(), kEntries};
            return kMap;
        }
        const kv::MessageMap& GetMessageMap() const override { return Messages(); }
        bool takes = false;

    private:
        bool OnOwn() {
            Note("own");
            return takes;
        }
    };
    class Listening : public CDialog {
    public:
        using CDialog::CDialog;
        static const kv::MessageMap& Messages() {
            static const kv::MessageEntry kEntries[] = {kv::OnNotify<&Listening::OnRecord>(-5, 20)};
            static const kv::MessageMap kMap{&CDialog::Messages(), kEntries};
            return kMap;
        }
        const kv::MessageMap& GetMessageMap() const override { return Messages(); }

    private:
        void OnRecord(NMHDR* header, LRESULT* result) {
            Note("parent " + std::to_string(header->idFrom));
            *result = 7;
        }
    };
    Listening dialog(test::kTestTemplate);
    Spinning control;
    Run(dialog, [&](kv::User&) {
        control.SubclassDlgItem(20, &dialog);
        NMHDR header{control.m_hWnd, 20, -5};
        EXPECT_EQ(dialog.SendMessage(WM_NOTIFY, 20, reinterpret_cast<LPARAM>(&header)), 7);
        control.takes = true;
        EXPECT_EQ(dialog.SendMessage(WM_NOTIFY, 20, reinterpret_cast<LPARAM>(&header)), 0);
    });
    EXPECT_THAT(g_trail, ElementsAre("own", "parent 20", "own"));
}

TEST_F(Routing, AWindowProcThatIsOverriddenSeesEveryMessageOfItsControl) {
    class Watching : public CWnd {
    public:
        std::vector<UINT> seen;
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
            seen.push_back(message);
            return CWnd::WindowProc(message, wParam, lParam);
        }
    };
    Watching watching;
    CDialog dialog(test::kTestTemplate);
    Run(dialog, [&](kv::User&) {
        watching.SubclassDlgItem(11, &dialog);
        dialog.SetDlgItemText(11, "x");
        dialog.SendDlgItemMessage(11, EM_GETSEL);
        watching.PostMessage(WM_USER + 1);
        EXPECT_THAT(watching.seen, ElementsAre(WM_SETTEXT, EM_GETSEL));
        kv::WindowSystem::Get().DispatchAll();
    });
    ASSERT_GE(watching.seen.size(), 3u);
    EXPECT_EQ(watching.seen[2], WM_USER + 1);
}

// The queue.

TEST_F(Routing, TheQueueKeepsItsOrderAndCanBeEmptiedOfOneKindForOneWindow) {
    CDialog dialog(test::kTestTemplate);
    Run(dialog, [&](kv::User&) {
        const HWND edit = dialog.m_hWnd->FindChild(11);
        const HWND other = dialog.m_hWnd->FindChild(12);
        auto& system = kv::WindowSystem::Get();
        system.Post(*edit, WM_USER, 1, 0);
        system.Post(*edit, WM_CHAR, 'a', 0);
        system.Post(*other, WM_CHAR, 'b', 0);
        system.Post(*edit, WM_USER, 2, 0);
        MSG message;
        EXPECT_TRUE(system.Take(message, edit, WM_CHAR, WM_CHAR));
        EXPECT_EQ(message.wParam, static_cast<WPARAM>('a'));
        EXPECT_FALSE(system.Take(message, edit, WM_CHAR, WM_CHAR));
        std::vector<int> rest;
        while (system.Take(message))
            rest.push_back(static_cast<int>(message.wParam));
        EXPECT_THAT(rest, ElementsAre(1, 'b', 2));
    });
}

TEST_F(Routing, MessagesForAWindowThatIsGoneAreDropped) {
    CDialog dialog(test::kTestTemplate);
    Run(dialog, [&](kv::User&) {
        const auto edit = dialog.m_hWnd->FindChild(11)->shared_from_this();
        auto& system = kv::WindowSystem::Get();
        system.Post(*edit, WM_USER, 1, 0);
        MSG inHand{edit.get(), WM_USER, 2, 0};
        system.Destroy(*edit);
        system.Post(*edit, WM_USER, 3, 0);
        MSG message;
        EXPECT_FALSE(system.Take(message));
        EXPECT_FALSE(system.Dispatch(inHand));
        EXPECT_EQ(kv::Send(*edit, WM_GETTEXTLENGTH), 0);
    });
}

}  // namespace
