#include "recording/recorder.h"

#include <gtest/gtest.h>

#include "kvdlg/actions.h"
#include "recording/recording.h"
#include "support/dialog_fixture.h"
#include "support/two_screens.h"
#include "window/acting/wait_scene.h"
#include "window/controls/spin_node.h"
#include "window/dialogs/file_dialog.h"
#include "window/dialogs/message_box.h"
#include "window/dialogs/print_dialog.h"
#include "window/frames/control_bar.h"
#include "window/frames/frame_wnd.h"

using enum kv::ControlKind;
using recording::Json;
using test::RecordingDialog;
using test::Row;
using test::TestTemplate;

namespace {

namespace input = kv::input;

constexpr int kOfWork = 101;

class Recorder : public test::DialogTest {
protected:
    Recorder() {
        EXPECT_TRUE(dialog.Create(test::kTestTemplate));
        for (const int list : {31, 32}) {
            for (const char* text : {"alpha", "beta", "gamma", "beta"})
                dialog.SendDlgItemMessage(list, LB_ADDSTRING, 0, kv::AsParam(text));
        }
        for (const int combo : {15, 16}) {
            for (const char* text : {"one", "two"})
                dialog.SendDlgItemMessage(combo, CB_ADDSTRING, 0, kv::AsParam(text));
        }
        recorder.WindowOpens(*dialog.m_hWnd);
        input::SetListener([this](const input::Deed& deed) { recorder.Did(deed, now); });
    }
    ~Recorder() override { input::SetListener(nullptr); }

    kv::Node& NodeOf(int id) { return *dialog.m_hWnd->FindChild(id); }
    /// The deeds so far, each as it stands in a script.
    std::string Deeds() {
        std::string words;
        for (const Json& deed : recorder.Scenes().at(0).at("do"))
            words += deed.dump() + "\n";
        return words;
    }

    /// What has been recorded, once more.
    void Play() {
        kv::User user(*dialog.m_hWnd, [](const std::string& words) { FAIL() << words; });
        for (const Json& deed : Json(recorder.Scenes().at(0).at("do")))
            kvdlg::MakeAction(deed, "here", desktop, {})(user);
    }

    TestTemplate template_{{Row(11, kEdit, "some text"), Row(12, kEdit, "5"),
                            Row(42, kSpin, "", {UDS_AUTOBUDDY | UDS_SETBUDDYINT, 0}),
                            Row(13, kEdit, "", kv::kPassword), Row(15, kDropDown),
                            Row(16, kDropList), Row(20, kPushButton, "&Go"), Row(21, kCheckBox),
                            Row(31, kListBox), Row(32, kMultiList), Row(5, kLabel, "&Name")}};
    RecordingDialog dialog;
    recording::Recorder recorder;
    recording::Recorder::Time now{};
};

TEST_F(Recorder, WritesClicksByTheIdsOfControls) {
    input::Click(NodeOf(20));
    input::Press(NodeOf(21), {2, 2});
    input::Release(NodeOf(21), {2, 2});
    input::Press(NodeOf(5), {2, 2});
    input::PressAgain(NodeOf(20), {2, 2});
    input::Release(NodeOf(20), {2, 2});
    input::MoveFocus(NodeOf(11));
    input::CloseWindow(*dialog.m_hWnd);
    EXPECT_EQ(Deeds(), R"({"click":20}
{"click":21}
{"doubleclick":20}
{"focus":11}
{"close":null}
)");
}

TEST_F(Recorder, AButtonThatIsLetGoBesideItIsHeldAndNotClicked) {
    input::Press(NodeOf(20), {2, 2});
    input::HoldOver(NodeOf(20), false);
    input::Release(NodeOf(20), {-9, 2});
    const std::string heldAlone = "{\"hold\":20}\n{\"letgo\":20}\n";
    EXPECT_EQ(Deeds(), heldAlone);
    dialog.told.clear();
    Play();
    EXPECT_FALSE(dialog.WasTold("20 clicked"));
    EXPECT_EQ(Deeds(), heldAlone + heldAlone);
    input::Press(NodeOf(21), {2, 2});
    input::HoldOver(NodeOf(21), false);
    input::HoldOver(NodeOf(21), true);
    input::Release(NodeOf(21), {2, 2});
    EXPECT_EQ(Deeds(), heldAlone + heldAlone + "{\"click\":21}\n");
}

TEST_F(Recorder, AKeyBetweenPressAndReleaseStandsBetweenThem) {
    input::Press(NodeOf(20), {2, 2});
    input::PressKey(VK_DOWN);
    input::Release(NodeOf(20), {2, 2});
    EXPECT_EQ(Deeds(), "{\"hold\":20}\n{\"key\":[20,\"Down\"]}\n{\"release\":20}\n");
}

TEST_F(Recorder, WritesRowsByTheirTextAndOnesThatAreToldTwiceByNumber) {
    input::ClickRow(NodeOf(31), 1);
    input::ClickRow(NodeOf(31), 3);
    input::DoubleClick(NodeOf(31), 0);
    input::SelectRows(NodeOf(32), {0, 3});
    input::ClickRow(NodeOf(32), 2, {.ctrl = true});
    input::ClickRow(NodeOf(32), 0, {.shift = true});
    input::DropDown(NodeOf(16));
    input::ClickRow(NodeOf(16), 1);
    EXPECT_EQ(Deeds(), R"({"select":[31,"beta"]}
{"select":[31,3]}
{"doubleclick":[31,"alpha"]}
{"select":[32,["alpha",3]]}
{"select":[32,"gamma","Ctrl"]}
{"select":[32,"alpha","Shift"]}
{"drop":16}
{"select":[16,"two"]}
)");
}

TEST_F(Recorder, WritesARowByNumberWhoseTextIsNoUtf8) {
    for (const char* text : {"caf\xe9", "caf\xc3\xa9", "\xe2\x82"})
        dialog.SendDlgItemMessage(31, LB_ADDSTRING, 0, kv::AsParam(text));
    for (const int row : {4, 5, 6})
        input::ClickRow(NodeOf(31), row);
    EXPECT_EQ(Deeds(), R"({"select":[31,4]}
{"select":[31,"café"]}
{"select":[31,6]}
)");
}

TEST_F(Recorder, WritesTextsAndPlacesInThem) {
    input::TypeText(NodeOf(11), "new");
    input::TypeHere(" \u00e9");
    input::PressKey(VK_HOME, {.shift = true});
    input::SelectText(NodeOf(11), 1, 2);
    input::SelectText(NodeOf(11), 1, 3);
    input::EditCommand(NodeOf(11), WM_CUT);
    input::Paste(NodeOf(11), "pasted");
    input::StepSpin(NodeOf(42), true);
    input::TurnWheel(NodeOf(42), -2);
    EXPECT_EQ(Deeds(), R"({"type":[11,"new"]}
{"keys":[11," é"]}
{"key":[11,"Shift+Home"]}
{"mark":[11,1,3]}
{"edit":[11,"cut"]}
{"paste":[11,"pasted"]}
{"step":[42,"up"]}
{"wheel":[42,-2]}
)");
}

TEST_F(Recorder, WritesKeysByTheirNames) {
    input::MoveFocus(NodeOf(16));
    input::PressKey(VK_DOWN, {.alt = true});
    input::ClickRow(NodeOf(16), 1);
    input::PressKey(VK_TAB, {.shift = true});
    input::MoveFocus(NodeOf(32));
    input::PressKey(VK_DOWN, {.shift = true});
    input::PressKey(0x71);
    input::PressKey(VK_RETURN);
    EXPECT_EQ(Deeds(), R"({"focus":16}
{"key":[16,"Alt+Down"]}
{"select":[16,"two"]}
{"key":[16,"Shift+Tab"]}
{"focus":32}
{"key":[32,"Shift+Down"]}
{"key":[32,"F2"]}
{"key":[32,"Enter"]}
)");
}

TEST_F(Recorder, TheEditOfAComboBoxGoesByItsBox) {
    kv::Node& edit = *NodeOf(15).FocusTarget();
    input::Press(edit, {2, 2});
    input::TypeHere("x");
    EXPECT_EQ(Deeds(), "{\"click\":15}\n{\"keys\":[15,\"x\"]}\n");
}

TEST_F(Recorder, WhatAPasswordBoxHoldsIsNotWritten) {
    input::TypeText(NodeOf(13), "secret");
    input::TypeHere("one");
    desktop.SetClipboardText("hidden");
    input::Paste(NodeOf(13), "hidden");
    recorder.ClipboardIsRead("hidden");
    input::PressKey('V', {.ctrl = true});
    recorder.ClipboardIsRead("hidden");
    input::PressKey(VK_SPACE);
    input::PressKey('P', {.shift = true});
    input::PressKey(VK_HOME);
    EXPECT_EQ(NodeOf(13).Text(), "hiddenhidden P") << "what is typed is that all the same";
    EXPECT_EQ(Deeds(), R"({"type":[13,"******"]}
{"keys":[13,"***"]}
{"paste":[13,"******"]}
{"clipboard":"******"}
{"key":[13,"Ctrl+V"]}
{"keys":[13,"**"]}
{"key":[13,"Home"]}
)");
}

TEST_F(Recorder, AClickBesideABarTakesTheFocusFromIt) {
    CFrameWnd frame;
    ASSERT_TRUE(frame.Create("Frame"));
    frame.ShowWindow(SW_SHOW);
    CDialogBar bar;
    ASSERT_TRUE(bar.Create(&frame, test::kTestTemplate, CBRS_TOP, kOfWork));
    recorder.WindowOpens(*bar.m_hWnd);
    kv::Node& edit = *bar.m_hWnd->FindChild(11);
    input::MoveFocus(edit);
    input::Press(*frame.m_hWnd, {1, 1});
    const Json expected = Json::parse(R"([{"focus": 11}, {"focus": 0}])");
    EXPECT_EQ(recorder.Scenes().at(1).at("do"), expected);

    input::MoveFocus(edit);
    kv::User user(*bar.m_hWnd, [](const std::string& words) { FAIL() << words; });
    kvdlg::MakeAction(expected[1], "here", desktop, {})(user);
    EXPECT_NE(kv::WindowSystem::Get().Focus(), &edit);
}

TEST_F(Recorder, AnotherTextThatIsTypedIntoAListBeginsBehindAPause) {
    using namespace std::chrono_literals;
    input::MoveFocus(NodeOf(31));
    input::TypeHere("b");
    now += 999ms;
    input::TypeHere("e");
    now += 1s;
    input::TypeHere("g");
    EXPECT_EQ(Deeds(), R"({"focus":31}
{"keys":[31,"be"]}
{"pause":null}
{"keys":[31,"g"]}
)");
}

TEST_F(Recorder, TimeThatGoesByInATextIsNotWritten) {
    input::MoveFocus(NodeOf(11));
    input::TypeHere("b");
    now += std::chrono::hours(1);
    input::TypeHere("e");
    EXPECT_EQ(Deeds(), "{\"focus\":11}\n{\"keys\":[11,\"be\"]}\n");
}

TEST_F(Recorder, WhatComesToNothingIsNotWritten) {
    input::MoveFocus(NodeOf(11));
    EXPECT_FALSE(input::PressKey('Q', {.alt = true}));
    EXPECT_TRUE(input::PressKey('G', {.alt = true}));
    dialog.GetDlgItem(20)->EnableWindow(FALSE);
    EXPECT_FALSE(input::Click(NodeOf(20)));
    EXPECT_FALSE(input::ClickRow(NodeOf(16), 0)) << "its list is not open";
    EXPECT_EQ(Deeds(), "{\"focus\":11}\n{\"key\":[11,\"Alt+G\"]}\n");
}

TEST_F(Recorder, WhatIsReadFromTheClipboardStandsAheadOfTheDeedOnce) {
    input::MoveFocus(NodeOf(11));
    for (int time = 0; time < 2; ++time) {
        input::PressKey('V', {.ctrl = true});
        recorder.ClipboardIsRead("theirs");
    }
    recorder.ClipboardIsSet();
    input::PressKey('V', {.ctrl = true});
    recorder.ClipboardIsRead("own");
    EXPECT_EQ(Deeds(), R"({"focus":11}
{"clipboard":"theirs"}
{"key":[11,"Ctrl+V"]}
{"key":[11,"Ctrl+V"]}
{"clipboard":"own"}
{"key":[11,"Ctrl+V"]}
)");
}

TEST_F(Recorder, WhatIsDoneInsideLongWorkIsASceneBehindSoManySteps) {
    for (int step = 0; step < 3; ++step) {
        recorder.PumpBegins();
        if (step == 2) input::Click(NodeOf(20));
        recorder.PumpEnds();
    }
    EXPECT_EQ(Deeds(), "");
    EXPECT_EQ(recorder.Scenes().at(1), (Json{{"pump", 2}, {"do", {{{"click", 20}}}}}));
}

/// A window of long work, with a button that cancels it.
class WindowOfWork {
public:
    WindowOfWork() { EXPECT_TRUE(dialog_.Create(kOfWork)); }
    void Cancel() {
        input::MoveFocus(*dialog_.m_hWnd->FindChild(IDCANCEL));
        input::Click(*dialog_.m_hWnd->FindChild(IDCANCEL));
    }

private:
    TestTemplate template_{{Row(IDCANCEL, kPushButton, "Cancel")}, kOfWork};
    RecordingDialog dialog_{kOfWork};
};

TEST_F(Recorder, WhatIsDoneInAWindowOfLongWorkIsInTheSceneOfItsStep) {
    WindowOfWork work;
    recorder.PumpBegins();
    work.Cancel();
    recorder.PumpEnds();
    ASSERT_EQ(recorder.Scenes().size(), 2U);
    EXPECT_EQ(recorder.Scenes().at(1),
              Json::parse(R"({"pump": 0, "do": [{"focus": 2}, {"click": 2}]})"));
    EXPECT_EQ(Deeds(), "");
}

TEST_F(Recorder, WhatIsDoneInTheWindowOfAQueryIsASceneOfThatQuery) {
    recorder.QueryBegins("select 1");
    recorder.QueryEnds();
    recorder.QueryBegins("select 2");
    WindowOfWork().Cancel();
    recorder.QueryEnds();
    ASSERT_EQ(recorder.Scenes().size(), 2U);
    EXPECT_EQ(recorder.Scenes().at(1),
              Json::parse(R"({"query": "select 2", "do": [{"focus": 2}, {"click": 2}]})"));
}

TEST_F(Recorder, OfQueriesWithOneTextItIsToldHowManyHaveGoneBySinceTheSceneBefore) {
    const std::string other = "select 'caf\xe9'";
    for (const char* sql : {"a", "b", "a", "b", "a"}) {
        recorder.QueryBegins(sql);
        recorder.QueryEnds();
    }
    for (const std::string& sql : {std::string("a"), std::string("a"), other}) {
        recorder.QueryBegins(sql);
        WindowOfWork().Cancel();
        recorder.QueryEnds();
    }
    EXPECT_EQ(recorder.Scenes().at(1).value("after", 0), 3);
    EXPECT_EQ(recorder.Scenes().at(2).value("after", 0), 0);
    EXPECT_EQ(recorder.Scenes().at(3).at("query"), "") << "it may be any, since it cannot be told";
}

TEST_F(Recorder, TheWindowOfAQueryIsOneSceneHoweverLongItIsUp) {
    recorder.QueryBegins("select 1");
    for (int look = 0; look < 9; ++look)
        recorder.WaitIsSeen();
    recorder.QueryEnds();
    recorder.PumpBegins();
    input::Click(NodeOf(20));
    recorder.PumpEnds();
    ASSERT_EQ(recorder.Scenes().size(), 3U);
    EXPECT_EQ(recorder.Scenes().at(1), Json::parse(R"({"query": "select 1", "do": []})"));
    EXPECT_EQ(recorder.Scenes().at(2).at("pump"), 0);
}

/// What stands ahead of the desktop that the windows ask.
class Recording : public test::DialogTest {
protected:
    static Json User(const recording::Recording& recording) { return recording.Script()["user"]; }

    TestTemplate template_{
        {Row(20, kPushButton, "&Go"), Row(IDCANCEL, kPushButton, "Cancel"), Row(31, kListBox)}};
    RecordingDialog dialog;
};

TEST_F(Recording, WritesWhatOpensInItsOrder) {
    dialog.when["20 clicked"] = [] { AfxMessageBox("Really?", MB_YESNO); };
    desktop.ExpectWindow("", [](kv::User& user) {
        user.Click(20);
        user.Click(IDCANCEL);
    });
    desktop.ExpectMessage("Really?", IDNO);
    const recording::Recording recording(Json::object());
    dialog.DoModal();
    EXPECT_EQ(User(recording), Json::parse(R"([{"window": "test::RecordingDialog",
                               "do": [{"click": 20}, {"click": 2}]},
                              {"message": "Really?", "answer": "no"}])"));
}

TEST_F(Recording, WritesADialogInADialogAndItsMessage) {
    RecordingDialog inner;
    dialog.when["20 clicked"] = [&] { inner.DoModal(); };
    inner.when["20 clicked"] = [] { AfxMessageBox("Inside"); };
    desktop.ExpectWindow("", [](kv::User& user) {
        user.Click(20);
        user.Key(0, "Escape");
    });
    desktop.ExpectWindow("", [](kv::User& user) {
        user.Key(0, "Alt+G");
        user.Click(IDCANCEL);
    });
    desktop.ExpectMessage("Inside");
    const recording::Recording recording(Json::object());
    dialog.DoModal();
    EXPECT_EQ(User(recording), Json::parse(R"([{"window": "test::RecordingDialog",
                               "do": [{"click": 20}, {"key": [20, "Escape"]}]},
                              {"window": "test::RecordingDialog",
                               "do": [{"key": [20, "Alt+G"]}, {"click": 2}]},
                              {"message": "Inside", "answer": "ok"}])"));
}

TEST_F(Recording, WritesTheAnswersOfFileDialogsAndPrintSetup) {
    desktop.ExpectFile("C:\\a.txt");
    desktop.ExpectFileCancel();
    desktop.ExpectPrintSetup({.device = "Plotter", .paper = 8, .landscape = true});
    const recording::Recording recording(Json::object());
    CFileDialog(TRUE).DoModal();
    CFileDialog(TRUE).DoModal();
    CPrintDialog(TRUE).DoModal();
    kv::ResetPrinter();
    EXPECT_EQ(User(recording), Json::parse(R"([{"file": "C:\\a.txt"}, {"file": null},
                              {"print": {"device": "Plotter", "paper": 8, "landscape": true,
                                         "width": 2159, "height": 2794}}])"));
}

TEST_F(Recording, AMessageThatIsNoUtf8MayBeAny) {
    desktop.ExpectMessage("");
    const recording::Recording recording(Json::object());
    AfxMessageBox("caf\xe9");
    EXPECT_EQ(User(recording), Json::parse(R"([{"message": "", "answer": "ok"}])"));
}

TEST_F(Recording, WritesThePicksOfTheMap) {
    std::string answer = "BLOCKS,1,GREEN CANYON,200,A,";
    kv::SetGraphics([&](const auto&...) { return answer; });
    {
        const recording::Recording recording(Json::object());
        EXPECT_EQ(graphics("", "", "", 1, "", ""), answer);
        answer.clear();
        EXPECT_EQ(graphics("", "", "", 1, "", ""), "");
        EXPECT_EQ(User(recording),
                  Json::parse(R"([{"map": ["GREEN CANYON,200,A"]}, {"map": null}])"));
    }
    answer = "as before";
    EXPECT_EQ(graphics("", "", "", 1, "", ""), "as before");
    kv::SetGraphics(nullptr);
}

TEST_F(Recording, WhatTheMapAsksAndTellsIsPartOfItsAnswer) {
    kv::QueryWaits told;
    desktop.ExpectMessage("The map cannot be read.");
    kv::SetGraphics([&](const auto&...) {
        told.begins("select outlines");
        told.ends();
        AfxMessageBox("The map cannot be read.");
        return std::string();
    });
    kv::QueryScenes scenes(desktop);
    scenes.Expect(
        "", [](kv::User& wait) { wait.Click(IDCANCEL); }, 1);
    {
        const recording::Recording recording(Json::object());
        told = kv::SetQueryWaits({});
        graphics("", "", "", 1, "", "");
        ASSERT_TRUE(dialog.Create(test::kTestTemplate));
        told.begins("select outlines")(*dialog.m_hWnd);
        told.ends();
        EXPECT_EQ(User(recording), Json::parse(R"([{"map": null},
                                  {"query": "select outlines", "do": [{"click": 2}]}])"));
    }
    kv::SetGraphics(nullptr);
}

TEST_F(Recording, TellsWhatIsOutside) {
    desktop.SetPrinter({.device = "Office", .form = "A4"});
    desktop.SetScreenSize({1366, 728});
    using namespace std::chrono;
    desktop.SetNow(sys_days(year(2024) / 5 / 6) + hours(7) + minutes(8) + seconds(9));
    const Json inputs{{"text", "ACT"}};
    const Json script = recording::Recording(inputs).Script();
    EXPECT_EQ(script.at("inputs"), inputs);
    EXPECT_EQ(script.at("printer").at("device"), "Office");
    EXPECT_EQ(script.at("printer").at("form"), "A4");
    EXPECT_EQ(script.at("screen"), Json::array({1366, 728}));
    EXPECT_EQ(script.at("time"), "2024-05-06T07:08:09Z");
    EXPECT_TRUE(script.at("folder").is_string());
    EXPECT_TRUE(script.at("registry").is_object());
    desktop.SetNoPrinter();
    EXPECT_TRUE(recording::Recording(Json::object()).Script().at("printer").is_null());
}

TEST_F(Recording, WindowsFindTheSameScreens) {
    const test::TwoScreens screens;
    const recording::Recording recording(Json::object());
    EXPECT_EQ(kv::ScreenAround(test::kSecondScreen), test::kSecondScreen);
}

TEST_F(Recording, IsOverWhenItGoes) {
    std::size_t told = 0;
    {
        const recording::Recording recording(Json::object(), [&] { ++told; });
    }
    EXPECT_EQ(&kv::WindowSystem::Get().GetDesktop(), &desktop);
    ASSERT_TRUE(dialog.Create(test::kTestTemplate));
    input::Click(*dialog.m_hWnd->FindChild(20));
    EXPECT_EQ(told, 0U);
}

TEST_F(Recording, ItsClockStandsButForPauses) {
    using namespace std::chrono_literals;
    const recording::Recorder::Time begin = std::chrono::sys_days(std::chrono::year(2024) / 5 / 6);
    std::vector<std::chrono::milliseconds> seen;
    const auto type = [&](const char* text) {
        input::TypeHere(text);
        seen.push_back(std::chrono::duration_cast<std::chrono::milliseconds>(kv::Now() - begin));
    };
    desktop.SetNow(begin + 300ms);
    desktop.ExpectWindow("", [&](kv::User& user) {
        user.Focus(31);
        type("a");
        desktop.SetNow(desktop.Now() + 900ms);
        type("b");
        desktop.SetNow(desktop.Now() + 1h);
        type("c");
        user.Click(IDCANCEL);
    });
    const recording::Recording recording(Json::object());
    dialog.DoModal();
    EXPECT_THAT(seen, testing::ElementsAre(0ms, 0ms, 1000ms));
}

}  // namespace
