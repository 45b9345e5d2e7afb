#include "window/acting/headless_desktop.h"

#include "support/dialog_fixture.h"
#include "window/dialogs/message_box.h"

using enum kv::ControlKind;
using test::RecordingDialog;
using test::Row;
using test::TestTemplate;
using testing::ElementsAre;
using testing::ExitedWithCode;
using testing::IsEmpty;

namespace {

kv::FileDialogRequest FileDialogTitled(const char* title) {
    kv::FileDialogRequest request;
    request.title = title;
    return request;
}

class Headless : public ::testing::Test {
protected:
    Headless() { kv::WindowSystem::Get().SetDesktop(&desktop_); }

    kv::HeadlessDesktop desktop_;
    TestTemplate dialogTemplate_{{Row(11, kEdit), Row(12, kEdit, "", kv::kDisabled),
                                  Row(13, kEdit, "", kv::kHidden), Row(14, kCheckBox, "Check"),
                                  Row(20, kPushButton, "Go"), Row(50, kListBox), Row(51, kDropList),
                                  Row(IDOK, kDefaultButton, "OK")}};
    RecordingDialog dialog_;
};

// Scenes.

TEST_F(Headless, TakesScenesInTheOrderInWhichModalThingsOpen) {
    dialog_.when["20 clicked"] = [] {
        EXPECT_EQ(AfxMessageBox("First", MB_YESNO), IDYES);
        EXPECT_EQ(AfxMessageBox("Second", MB_YESNO), IDNO);
    };
    desktop_.ExpectWindow("Test", [](kv::User& user) {
        user.Click(20);
        user.Click(IDOK);
    });
    desktop_.ExpectMessage("First", IDYES);
    desktop_.ExpectMessage("", IDNO);
    EXPECT_EQ(desktop_.ScenesLeft(), 3);
    EXPECT_EQ(dialog_.DoModal(), IDOK);
    EXPECT_EQ(desktop_.ScenesLeft(), 0);
    EXPECT_THAT(desktop_.Messages(), ElementsAre("First", "Second"));
}

TEST_F(Headless, KnowsAWindowByItsClassOrItsCaption) {
    for (const char* name : {"test::RecordingDialog", "Test", ""}) {
        desktop_.ExpectWindow(name, [](kv::User& user) { user.Click(IDOK); });
        EXPECT_EQ(dialog_.DoModal(), IDOK) << name;
    }
}

TEST_F(Headless, SettlesAfterEveryAction) {
    std::vector<std::string> seen;
    dialog_.when["11 changed"] = [&] { dialog_.PostMessage(WM_COMMAND, MAKEWPARAM(20, 0), 0); };
    desktop_.ExpectWindow("", [&](kv::User& user) {
        user.Type(11, "a");
        EXPECT_TRUE(dialog_.WasTold("20 clicked"));
        user.Click(IDOK);
    });
    dialog_.DoModal();
}

TEST_F(Headless, ShowsTheScriptWhatAPersonSees) {
    dialog_.onInit = [&] {
        dialog_.SendDlgItemMessage(50, LB_ADDSTRING, 0, kv::AsParam("one"));
        dialog_.SendDlgItemMessage(50, LB_ADDSTRING, 0, kv::AsParam("two"));
        dialog_.SendDlgItemMessage(51, CB_ADDSTRING, 0, kv::AsParam("three"));
        return TRUE;
    };
    desktop_.ExpectWindow("", [&](kv::User& user) {
        EXPECT_THAT(user.Rows(50), ElementsAre("one", "two"));
        EXPECT_THAT(user.Selected(50), IsEmpty());
        user.Select(50, "two");
        EXPECT_THAT(user.Selected(50), ElementsAre(1));
        user.Select(51, 0);
        EXPECT_EQ(user.Text(51), "three");
        EXPECT_FALSE(user.Checked(14));
        user.Click(14);
        EXPECT_TRUE(user.Checked(14));
        EXPECT_TRUE(user.Enabled(11));
        EXPECT_FALSE(user.Enabled(12));
        EXPECT_TRUE(user.Visible(12));
        EXPECT_FALSE(user.Visible(13));
        EXPECT_TRUE(user.HasControl(20));
        EXPECT_FALSE(user.HasControl(900));
        user.Paste(11, "pasted");
        EXPECT_EQ(user.Text(11), "pasted");
        EXPECT_EQ(desktop_.ClipboardText(), "pasted");
        user.Type(11, "");
        EXPECT_EQ(user.Text(11), "");
        user.Click(IDOK);
        EXPECT_FALSE(user.Open());
    });
    EXPECT_EQ(dialog_.DoModal(), IDOK);
}

TEST_F(Headless, HandsOutAWindowAsItStoodWhenItClosed) {
    std::string text;
    desktop_.SetWindowClosed([&](kv::Node& window) { text = window.FindChild(11)->Text(); });
    desktop_.ExpectWindow("", [](kv::User& user) {
        user.Type(11, "last");
        user.Click(IDOK);
    });
    dialog_.DoModal();
    EXPECT_EQ(text, "last");
}

TEST_F(Headless, AnswersForTheOutside) {
    desktop_.SetScreenSize({800, 600});
    EXPECT_EQ(desktop_.ScreenSize(), (CSize{800, 600}));
    kv::PrinterSettings printer;
    desktop_.SetPrinter({.device = "Plotter", .paper = 8, .landscape = true});
    EXPECT_TRUE(desktop_.DefaultPrinter(printer));
    EXPECT_EQ(printer.device, "Plotter");
    desktop_.SetNoPrinter();
    EXPECT_FALSE(desktop_.DefaultPrinter(printer));
    const auto moment = std::chrono::system_clock::from_time_t(1000);
    desktop_.SetNow(moment);
    EXPECT_EQ(desktop_.Now(), moment);
    desktop_.SetColor(kv::SystemColor::kWindow, RGB(1, 2, 3));
    EXPECT_EQ(desktop_.Color(kv::SystemColor::kWindow), RGB(1, 2, 3));
    EXPECT_EQ(desktop_.TextExtent("x", desktop_.DefaultFont()).cy, 13);
}

TEST_F(Headless, PrintSetupIsAnsweredOrCancelled) {
    kv::PrinterSettings settings;
    desktop_.ExpectPrintSetup({.device = "Plotter"});
    desktop_.ExpectPrintSetupCancel();
    EXPECT_EQ(desktop_.RunPrintSetup(settings), IDOK);
    EXPECT_EQ(settings.device, "Plotter");
    settings.device = "kept";
    EXPECT_EQ(desktop_.RunPrintSetup(settings), IDCANCEL);
    EXPECT_EQ(settings.device, "kept");
}

TEST_F(Headless, WhatAHostOpensOfItsOwnIsAnsweredInItsTurn) {
    desktop_.ExpectOther("the map", "GREEN CANYON,500,,");
    desktop_.ExpectOther("the atlas", "");
    EXPECT_EQ(desktop_.TakeOther("the map"), "GREEN CANYON,500,,");
    EXPECT_EQ(desktop_.TakeOther("the atlas"), "");
    EXPECT_EQ(desktop_.ScenesLeft(), 0);
}

TEST_F(Headless, AFileDialogIsAnsweredOrCancelled) {
    std::string path = "before";
    desktop_.ExpectFile("C:\\tmp\\a.txt");
    desktop_.ExpectFileCancel();
    EXPECT_EQ(desktop_.RunFileDialog(FileDialogTitled("Import"), path), IDOK);
    EXPECT_EQ(path, "C:\\tmp\\a.txt");
    EXPECT_EQ(desktop_.RunFileDialog(FileDialogTitled(""), path), IDCANCEL);
    EXPECT_EQ(path, "C:\\tmp\\a.txt");
    ASSERT_EQ(desktop_.FileDialogs().size(), 2u);
    EXPECT_EQ(desktop_.FileDialogs()[0].title, "Import");
}

TEST_F(Headless, ADesktopThatGoesIsNotAskedAnyMore) {
    {
        kv::HeadlessDesktop passing;
        passing.SetScreenSize({1, 1});
        kv::WindowSystem::Get().SetDesktop(&passing);
    }
    EXPECT_EQ(kv::WindowSystem::Get().GetDesktop().ScreenSize(), (CSize{1920, 1080}));
}

// What does not fit ends the run.

using HeadlessDeath = Headless;

TEST_F(HeadlessDeath, AMessageBoxWithNoSceneLeft) {
    EXPECT_EXIT(AfxMessageBox("Nobody expects this"), ExitedWithCode(2),
                "the message \"Nobody expects this\" opened, and no scene is left");
}

TEST_F(HeadlessDeath, AWindowWithNoSceneLeft) {
    EXPECT_EXIT(dialog_.DoModal(), ExitedWithCode(2),
                "the window test::RecordingDialog \"Test\" opened, and no scene is left");
}

TEST_F(HeadlessDeath, AFileDialogOrPrintSetupWithNoSceneLeft) {
    std::string path;
    kv::PrinterSettings settings;
    EXPECT_EXIT(desktop_.RunFileDialog(FileDialogTitled("Import"), path), ExitedWithCode(2),
                "the file dialog \"Import\" opened, and no scene is left");
    EXPECT_EXIT(desktop_.RunPrintSetup(settings), ExitedWithCode(2),
                "print setup opened, and no scene is left");
}

TEST_F(HeadlessDeath, AnotherMessageThanTheSceneSays) {
    desktop_.ExpectMessage("No Matches found!");
    EXPECT_EXIT(AfxMessageBox("Disk full"), ExitedWithCode(2),
                "expected the message \"No Matches found!\", and the message \"Disk full\" opened");
}

TEST_F(HeadlessDeath, AnotherKindOfThingThanTheSceneSays) {
    desktop_.ExpectFile("C:\\a.txt");
    EXPECT_EXIT(AfxMessageBox("Disk full"), ExitedWithCode(2),
                "expected a file dialog, and the message \"Disk full\" opened");
}

TEST_F(HeadlessDeath, AnotherWindowThanTheSceneSays) {
    desktop_.ExpectWindow("CSomething", [](kv::User&) {});
    EXPECT_EXIT(dialog_.DoModal(), ExitedWithCode(2), "expected the window \"CSomething\"");
}

TEST_F(HeadlessDeath, ADialogThatItsSceneLeavesOpen) {
    desktop_.ExpectWindow("", [](kv::User&) {});
    EXPECT_EXIT(dialog_.DoModal(), ExitedWithCode(2),
                "the scene of the window .* is over, and it is still open");
}

TEST_F(HeadlessDeath, AnActionOnAControlThatIsNotThere) {
    desktop_.ExpectWindow("", [](kv::User& user) { user.Click(900); });
    EXPECT_EXIT(dialog_.DoModal(), ExitedWithCode(2),
                "click 900: test::RecordingDialog \"Test\" has no such control");
}

TEST_F(HeadlessDeath, AnActionOnADisabledOrHiddenControl) {
    for (const int id : {12, 13}) {
        kv::HeadlessDesktop desktop;
        kv::WindowSystem::Get().SetDesktop(&desktop);
        desktop.ExpectWindow("", [id](kv::User& user) { user.Type(id, "x"); });
        EXPECT_EXIT(dialog_.DoModal(), ExitedWithCode(2),
                    "type " + std::to_string(id) + ": .* is disabled, hidden or of another kind");
    }
}

TEST_F(HeadlessDeath, AnActionOnAControlOfAnotherKind) {
    desktop_.ExpectWindow("", [](kv::User& user) { user.Drop(20); });
    EXPECT_EXIT(dialog_.DoModal(), ExitedWithCode(2), "drop 20: .* of another kind");
}

TEST_F(HeadlessDeath, ARowThatIsNotThere) {
    desktop_.ExpectWindow("", [](kv::User& user) { user.Select(50, "nowhere"); });
    EXPECT_EXIT(dialog_.DoModal(), ExitedWithCode(2), "select 50: no row \"nowhere\"");
}

TEST_F(HeadlessDeath, AKeyThatNobodyKnows) {
    desktop_.ExpectWindow("", [](kv::User& user) { user.Key(11, "Hyper"); });
    EXPECT_EXIT(dialog_.DoModal(), ExitedWithCode(2), "key 11: no key is named \"Hyper\"");
}

TEST_F(HeadlessDeath, AnActionInAWindowThatHasClosed) {
    desktop_.ExpectWindow("", [](kv::User& user) {
        user.Click(IDOK);
        user.Click(20);
    });
    EXPECT_EXIT(dialog_.DoModal(), ExitedWithCode(2),
                "click 20: the window .* is not open any more");
}

TEST_F(HeadlessDeath, APumpWithASceneAndNoWindow) {
    desktop_.ExpectPump([](kv::User&) {});
    EXPECT_EXIT(kv::WindowSystem::Get().Pump(), ExitedWithCode(2), "no window is open");
}

TEST_F(HeadlessDeath, SomethingElseOfTheHostsThanExpected) {
    desktop_.ExpectOther("the atlas", "");
    EXPECT_EXIT(desktop_.TakeOther("the map"), ExitedWithCode(2),
                "expected the atlas, and the map opened");
}

TEST_F(HeadlessDeath, CannotBeCaughtByAHandler) {
    dialog_.when["20 clicked"] = [] {
        try {
            AfxMessageBox("Nobody expects this");
        } catch (...) {
        }
        std::exit(0);
    };
    desktop_.ExpectWindow("", [](kv::User& user) { user.Click(20); });
    EXPECT_EXIT(dialog_.DoModal(), ExitedWithCode(2), "The script does not fit: ");
}

TEST_F(HeadlessDeath, HoldsEvenWhereTheFailureFunctionReturns) {
    desktop_.SetFailure([](const std::string&) { std::fputs("told\n", stderr); });
    EXPECT_EXIT(AfxMessageBox("Nobody expects this"), ExitedWithCode(2), "told");
}

TEST_F(HeadlessDeath, CanEndTheRunInItsOwnWay) {
    desktop_.SetFailure([](const std::string& words) {
        std::fputs(words.c_str(), stderr);
        std::_Exit(7);
    });
    EXPECT_EXIT(AfxMessageBox("Nobody"), ExitedWithCode(7), "no scene is left");
}

}  // namespace
