#include <gmock/gmock.h>

#include <algorithm>
#include <functional>

#include "frame/kvdbkvn/database_fault.h"
#include "pickers/picker_fixture.h"
#include "window/acting/input.h"
#include "window/controls/combo_box.h"
#include "window/drawing/image_resource.h"

namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;
using namespace kv::abe_bar;

/// A main window that counts the runs.
class RunHost : public CFrameWnd {
public:
    RunHost() { Create("Main"); }

    static const kv::MessageMap& Messages() {
        static const kv::MessageEntry kEntries[] = {
            kv::OnMessage<&RunHost::OnRun>(CKvABEBar::kRunMessage)};
        static const kv::MessageMap kHostMap{&CFrameWnd::Messages(), kEntries};
        return kHostMap;
    }
    const kv::MessageMap& GetMessageMap() const override { return Messages(); }

    int runs = 0;
    bool parametersAreZero = false;

private:
    LRESULT OnRun(WPARAM wParam, LPARAM lParam) {
        ++runs;
        parametersAreZero = wParam == 0 && lParam == 0;
        return 0;
    }
};

class AbeBar : public PickerTest {
protected:
    void SetUp() override { CreateBar(); }

    void CompleteThePick() {
        user->Select(kArea, "GI");
        user->Select(kBlock, "9A");
    }
};

TEST_F(AbeBar, ComesUpWithMapCheckedLayerWellsAndNothingToRun) {
    EXPECT_TRUE(user->Checked(kMap));
    EXPECT_FALSE(user->Checked(kReport));
    EXPECT_TRUE(bar.IsMapSelected());
    EXPECT_EQ(user->Text(kLayer), "Wells");
    EXPECT_EQ(user->Text(kArea), "");
    for (const int id : {kRun, kMap, kReport, kLayer, kBlock})
        EXPECT_FALSE(user->Enabled(id)) << id;
    EXPECT_TRUE(user->Enabled(kArea));
}

TEST_F(AbeBar, ReadsTheLayerThatItShows) {
    EXPECT_EQ(bar.GetLayer(), 25);
}

TEST_F(AbeBar, CreationMovesTheFocusAndTouchesNoDatabase) {
    EXPECT_EQ(CWnd::GetFocus()->GetParent(), bar.GetDlgItem(kArea));
    EXPECT_THAT(statements, IsEmpty());
    EXPECT_THAT(user->Rows(kArea), IsEmpty());
}

TEST_F(AbeBar, OffersNineLayersInTheirOrder) {
    EXPECT_THAT(user->Rows(kLayer),
                ElementsAre("Wells", "Leases", "APDs", "Platforms", "Plans", "Pipelines",
                            "Prospects", "Fields", "2D Shotpoints"));
}

TEST_F(AbeBar, RunCarriesItsIcon) {
    EXPECT_NE(bar.GetDlgItem(kRun)->SendMessage(BM_GETIMAGE, 1), 0);
    EXPECT_NE(kv::FindImage(kRunIcon), nullptr);
}

TEST_F(AbeBar, TheIconIsDrawnWhole) {
    const kv::ImageResource* icon = kv::FindImage(13066);
    ASSERT_NE(icon, nullptr);
    EXPECT_THAT(icon->rows, ::testing::SizeIs(icon->height));
    for (const std::string_view row : icon->rows) {
        EXPECT_THAT(row, ::testing::SizeIs(icon->width));
        for (const char pixel : row) {
            EXPECT_TRUE(pixel == '.' ||
                        std::ranges::count(icon->palette, pixel, &kv::PaletteEntry::symbol) == 1)
                << pixel;
        }
    }
}

TEST_F(AbeBar, FillsTheAreasWhenTheListIsFirstDropped) {
    user->Drop(kArea);
    ASSERT_EQ(statements.size(), 1u);
    EXPECT_THAT(statements[0], HasSubstr("area_abbr is not null"));
    user->Drop(kArea);
    user->Drop(kArea);
    EXPECT_EQ(statements.size(), 1u);
}

TEST_F(AbeBar, FillsTheAreasWhenTheBoxGetsTheFocus) {
    kv::WindowSystem::Get().SetFocusQuietly(bar.GetDlgItem(kArea)->m_hWnd->Parent());
    user->Focus(kArea);
    EXPECT_EQ(statements.size(), 1u);
    EXPECT_THAT(user->Rows(kArea), Not(IsEmpty()));
}

TEST_F(AbeBar, FillsTheAreasAtTheFirstKey) {
    user->Key(kArea, "G");
    ASSERT_THAT(statements, Not(IsEmpty()));
    EXPECT_THAT(statements[0], HasSubstr("area_abbr is not null"));
}

TEST_F(AbeBar, SetAreaFillsTheListFirst) {
    bar.SetArea("018");
    EXPECT_EQ(bar.GetArea(), "GI");
    EXPECT_EQ(bar.GetAreaMode(), 0);
    EXPECT_THAT(user->Rows(kBlock), ElementsAre("ALL", "10", "100", "45", "46B", "9", "9A"));
}

TEST_F(AbeBar, ACompletePickEnablesRunAndTheRadios) {
    CompleteThePick();
    for (const int id : {kRun, kMap, kReport, kBlock})
        EXPECT_TRUE(user->Enabled(id)) << id;
    EXPECT_FALSE(user->Enabled(kLayer));
    user->Click(kReport);
    EXPECT_TRUE(user->Enabled(kLayer));
    EXPECT_FALSE(bar.IsMapSelected());
    EXPECT_EQ(bar.GetAreacode(true), "'017'");
    EXPECT_EQ(bar.GetBlk(true), "9A");
}

TEST_F(AbeBar, AnAreaAloneEnablesTheBlockBoxAndNoMore) {
    user->Select(kArea, "GI");
    EXPECT_TRUE(user->Enabled(kBlock));
    EXPECT_FALSE(user->Enabled(kRun));
}

TEST_F(AbeBar, ShotpointsHaveNoReport) {
    CompleteThePick();
    user->Click(kReport);
    user->Select(kLayer, "2D Shotpoints");
    EXPECT_FALSE(user->Enabled(kReport));
    EXPECT_TRUE(user->Enabled(kMap));
    user->Select(kLayer, "Leases");
    EXPECT_TRUE(user->Enabled(kReport));
}

TEST_F(AbeBar, RunTellsTheMainWindow) {
    RunHost host;
    app.m_pMainWnd = &host;
    CompleteThePick();
    user->Click(kRun);
    EXPECT_EQ(host.runs, 1);
    EXPECT_TRUE(host.parametersAreZero);
}

TEST_F(AbeBar, AHostPressesRunWhereItIsEnabled) {
    RunHost host;
    app.m_pMainWnd = &host;
    EXPECT_FALSE(bar.Run());
    EXPECT_EQ(host.runs, 0);
    CompleteThePick();
    EXPECT_TRUE(bar.Run());
    EXPECT_EQ(host.runs, 1);
}

TEST_F(AbeBar, DisablingThePickersEmptiesAndLocksThem) {
    CompleteThePick();
    bar.SetEnableABE(false);
    kv::WindowSystem::Get().Settle();
    EXPECT_FALSE(bar.GetEnableABE());
    EXPECT_FALSE(user->Enabled(kArea));
    EXPECT_FALSE(user->Enabled(kBlock));
    EXPECT_EQ(user->Text(kArea), "");
    EXPECT_EQ(user->Text(kBlock), "");
    EXPECT_FALSE(user->Enabled(kRun));
    bar.SetEnableABE(true);
    kv::WindowSystem::Get().Settle();
    EXPECT_TRUE(user->Enabled(kArea));
}

TEST_F(AbeBar, TurnsLayerTitlesIntoNumbers) {
    CompleteThePick();
    user->Click(kReport);
    const std::vector<std::pair<const char*, int>> layers{
        {"Wells", 25}, {"Leases", 13},    {"APDs", 67},      {"Platforms", 66},
        {"Plans", 68}, {"Pipelines", 15}, {"Prospects", 54}, {"Fields", 28}};
    for (const auto& [title, number] : layers) {
        user->Select(kLayer, title);
        EXPECT_EQ(bar.GetLayer(), number) << title;
    }
    const auto& layerBox = bar.GetDlgItem(kLayer);
    EXPECT_EQ(layerBox->WindowText(), "Fields");
}

TEST_F(AbeBar, SetsTheRadiosTogether) {
    bar.SetRadioState(true);
    EXPECT_TRUE(user->Checked(kReport));
    EXPECT_FALSE(user->Checked(kMap));
    bar.SetRadioState(false);
    EXPECT_FALSE(user->Checked(kReport));
    EXPECT_TRUE(user->Checked(kMap));
}

TEST_F(AbeBar, SetsTheTextOfTheBlockBox) {
    bar.SetBlkExt("123A");
    EXPECT_EQ(bar.GetBlk(false), "123A");
}

TEST_F(AbeBar, LeavesTheRowForAllOutOnRequest) {
    bar.SetIncludeAll(false);
    user->Select(kArea, "SL");
    EXPECT_THAT(user->Rows(kBlock), ElementsAre("123A-S"));
}

TEST_F(AbeBar, TypingAWholeAreaAndLeavingTheBoxFillsTheBlocks) {
    user->Type(kArea, "HB");
    EXPECT_EQ(user->Text(kArea), "HB");
    EXPECT_THAT(user->Rows(kBlock), ElementsAre("ALL", "8-BAY"));
    user->Key(kArea, "Tab");
    EXPECT_TRUE(user->Enabled(kBlock));
}

TEST_F(AbeBar, AFrameWithoutADatabaseStillComesUp) {
    UseDatabase("sqlite:" + folder.Native("missing.db"));
    user->Drop(kArea);
    EXPECT_THAT(user->Rows(kArea), IsEmpty());
    EXPECT_THAT(desktop.Messages(), IsEmpty());
}

TEST_F(AbeBar, WithoutAWindowItTakesAnAreaAndFillsAsAnyOther) {
    CVZABEBar unmade;
    unmade.SetArea("018");
    // The one question is what the area is called.
    EXPECT_THAT(statements, ::testing::SizeIs(1));
    EXPECT_EQ(unmade.GetArea(), "");
    EXPECT_EQ(unmade.GetAreacode(true), "");
    bar.DestroyWindow();
    bar.SetArea("018");
    CreateBar();
    user->Drop(kArea);
    EXPECT_THAT(user->Rows(kArea), Not(IsEmpty()));
}

TEST_F(AbeBar, MadeAgainItIsANewOne) {
    CompleteThePick();
    user->Click(kReport);
    user->Select(kLayer, "2D Shotpoints");
    bar.DestroyWindow();
    CreateBar();
    EXPECT_EQ(user->Text(kLayer), "Wells");
    EXPECT_EQ(user->Text(kArea), "");
    CompleteThePick();
    EXPECT_TRUE(user->Enabled(kReport));
    EXPECT_EQ(bar.GetBlk(false), "9A");
}

/// A second bar, in a frame of its own, in a process where areas were listed before.
class SecondAbeBar : public AbeBar {
protected:
    void SetUp() override {
        CreateBar();
        user->Drop(kArea);
        statements.clear();
        other.Create("Other");
        second.Create(&other, kTemplate, CBRS_TOP, kTemplate);
        other.ShowWindow(SW_SHOW);
        kv::WindowSystem::Get().Settle();
        user = std::make_unique<kv::User>(*second.m_hWnd,
                                          [](const std::string& words) { FAIL() << words; });
    }

    CFrameWnd other;
    CVZABEBar second;
};

TEST_F(SecondAbeBar, KeepsTheFirstKeyAndFillsTheAreasAtIt) {
    ASSERT_THAT(statements, IsEmpty());
    ASSERT_EQ(CWnd::GetFocus()->GetParent(), second.GetDlgItem(kArea));
    kv::input::TypeHere("H");
    kv::WindowSystem::Get().Settle();
    EXPECT_EQ(user->Text(kArea), "H");
    EXPECT_THAT(user->Rows(kArea), ::testing::Contains("HB"));
    kv::input::TypeHere("B");
    kv::WindowSystem::Get().Settle();
    EXPECT_EQ(user->Text(kArea), "HB");
    EXPECT_THAT(user->Rows(kBlock), ElementsAre("ALL", "8-BAY"));
}

TEST_F(SecondAbeBar, KeepsTheCaretBehindTheFirstKey) {
    kv::input::TypeHere("G");
    EXPECT_EQ(second.GetAreaCombo()->GetEditSel(), static_cast<DWORD>(MAKELPARAM(1, 1)));
}

// What is told of the area box.

TEST_F(AbeBar, AKeyListsTheBlocksOfTheAreaThatItCompletes) {
    user->Drop(kArea);
    user->Key(kArea, "H");
    EXPECT_EQ(user->Text(kArea), "HB");
    EXPECT_THAT(user->Rows(kBlock), ElementsAre("ALL", "8-BAY"));
}

TEST_F(AbeBar, WhatAHostTellsOfTheAreaBoxIsAPick) {
    user->Drop(kArea);
    for (const int code : {CBN_SELCHANGE, CBN_EDITCHANGE}) {
        bar.GetAreaCombo()->SetWindowText("SL");
        bar.OnCmdMsg(kBlock, code, nullptr, nullptr);
        bar.OnCmdMsg(kArea, CBN_DROPDOWN, nullptr, nullptr);
        EXPECT_THAT(user->Rows(kBlock), IsEmpty());
        bar.OnCmdMsg(kArea, code, nullptr, nullptr);
        EXPECT_THAT(user->Rows(kBlock), ElementsAre("ALL", "123A-S"));
        bar.GetAreaCombo()->SetWindowText("NOWHERE");
        bar.OnCmdMsg(kArea, code, nullptr, nullptr);
        user->Select(kArea, " -AREA NAME-");
        user->Select(kArea, " -MMS CODE-");
    }
}

TEST_F(AbeBar, WhatItHearsGoesOnToADerivedBar) {
    struct HostBar : CKvABEBar {
        static const kv::MessageMap& Messages() {
            static const kv::MessageEntry kEntries[] = {
                kv::OnControl<&HostBar::OnArea>(CBN_SELCHANGE, kArea)};
            static const kv::MessageMap kHostMap{&CKvABEBar::Messages(), kEntries};
            return kHostMap;
        }
        const kv::MessageMap& GetMessageMap() const override { return Messages(); }
        void OnArea() { ++picks; }
        int picks = 0;
    } host;
    ASSERT_EQ(host.Create(&frame, kTemplate, CBRS_TOP, kTemplate), 1);
    kv::WindowSystem::Get().Settle();
    kv::User person(*host.m_hWnd, [](const std::string& words) { FAIL() << words; });
    person.Select(kArea, "GI");
    EXPECT_EQ(host.picks, 1);
    EXPECT_EQ(host.OnCmdMsg(kArea, CBN_SELCHANGE, nullptr, nullptr), TRUE);
    EXPECT_EQ(host.OnCmdMsg(kArea, CBN_CLOSEUP, nullptr, nullptr), FALSE);
}

// What was picked is not lost.

TEST_F(AbeBar, PassingThroughTheAreaBoxKeepsTheBlockAndAsksNothing) {
    CompleteThePick();
    statements.clear();
    user->Focus(kArea);
    user->Key(kArea, "Tab");
    EXPECT_EQ(test::FocusedId(), kBlock);
    EXPECT_EQ(user->Text(kBlock), "9A");
    EXPECT_TRUE(user->Enabled(kRun));
    user->Focus(kArea);
    user->Click(kRun);
    EXPECT_EQ(bar.GetBlk(false), "9A");
    EXPECT_THAT(statements, IsEmpty());
}

TEST_F(AbeBar, WhoPassesThroughTheAreaBoxWithoutABlockGoesWhereTheyWantTo) {
    user->Select(kArea, "GI");
    user->Focus(kArea);
    kv::WindowSystem::Get().SetFocus(frame.m_hWnd);
    EXPECT_EQ(CWnd::GetFocus(), &frame);
}

TEST_F(AbeBar, AWidgetOfTheHostsKeepsTheFocusWhenTheHostSetsTheArea) {
    kv::WindowSystem::Get().SetFocus(nullptr);
    bar.SetArea("4281");
    EXPECT_EQ(user->Text(kArea), "HB");
    EXPECT_THAT(user->Rows(kBlock), ElementsAre("ALL", "8-BAY"));
    EXPECT_EQ(CWnd::GetFocus(), nullptr);
}

TEST_F(AbeBar, AWidgetOfTheHostsTakesTheFocusFromAHalfTypedArea) {
    user->Select(kArea, " -AREA NAME-");
    user->Type(kArea, "GRAND I");
    kv::WindowSystem::Get().SetFocus(nullptr);
    EXPECT_EQ(CWnd::GetFocus(), nullptr);
    EXPECT_EQ(user->Text(kArea), "GRAND ISLE");
    EXPECT_THAT(user->Rows(kBlock), ElementsAre("ALL", "10", "100", "9", "9A"));
}

TEST_F(AbeBar, ThePickedAreaOnceMoreKeepsTheBlock) {
    CompleteThePick();
    statements.clear();
    user->Select(kArea, "GI");
    EXPECT_EQ(user->Text(kBlock), "9A");
    EXPECT_THAT(statements, IsEmpty());
}

TEST_F(AbeBar, AnotherAreaOrModeTakesTheBlockAway) {
    CompleteThePick();
    user->Select(kArea, "SL");
    EXPECT_EQ(user->Text(kBlock), "");
    CompleteThePick();
    user->Select(kArea, " -AREA NAME-");
    EXPECT_EQ(user->Text(kBlock), "");
    EXPECT_THAT(user->Rows(kBlock), IsEmpty());
    user->Select(kArea, " -MMS CODE-");
    user->Select(kArea, "GI");
    EXPECT_THAT(user->Rows(kBlock), ElementsAre("ALL", "10", "100", "45", "46B", "9", "9A"));
}

TEST_F(AbeBar, TypingAnAreaAsksForItsBlocksOnce) {
    user->Focus(kArea);
    user->Select(kArea, " -AREA NAME-");
    statements.clear();
    user->Type(kArea, "SHORE LANDS");
    EXPECT_THAT(statements, ElementsAre(HasSubstr("areaname = 'SHORE LANDS'")));
}

TEST_F(AbeBar, BlocksThatCouldNotBeListedAreAskedForAgain) {
    user->Drop(kArea);
    kv::db::SetDatabaseFault([](std::string_view call) { return call == "step"; });
    user->Select(kArea, "GI");
    kv::db::SetDatabaseFault(nullptr);
    ASSERT_THAT(user->Rows(kBlock), IsEmpty());
    user->Select(kArea, "GI");
    EXPECT_THAT(user->Rows(kBlock), Not(IsEmpty()));
}

TEST_F(AbeBar, AnotherConnectionIsAskedForTheBlocksOfTheSameArea) {
    CompleteThePick();
    UseDatabase("sqlite:" + test::MakeSmallDatabase(folder.Native("other.db")));
    statements.clear();
    user->Focus(kArea);
    user->Focus(kBlock);
    EXPECT_THAT(statements, ::testing::SizeIs(1));
    EXPECT_EQ(user->Text(kBlock), "");
}

TEST_F(AbeBar, AListThatTheHostChangedIsMadeAnew) {
    user->Select(kArea, "GI");
    auto& blocks = bar.Control<CComboBox>(kBlock);
    blocks.DeleteString(0);
    user->Select(kArea, "GI");
    EXPECT_THAT(user->Rows(kBlock), ElementsAre("ALL", "10", "100", "45", "46B", "9", "9A"));
    bar.SetIncludeAll(false);
    user->Select(kArea, "GI");
    EXPECT_THAT(user->Rows(kBlock), ElementsAre("10", "100", "45", "46B", "9", "9A"));
}

// Typing an area.

TEST_F(AbeBar, AnAreaThatAnotherOneGoesOnFromCanBeTypedAndSoCanThatOne) {
    user->Select(kArea, " -AREA NAME-");
    user->Type(kArea, "GRAND ISLE");
    EXPECT_EQ(test::FocusedId(), kArea);
    EXPECT_THAT(user->Rows(kBlock), ElementsAre("ALL", "10", "100", "9", "9A"));
    EXPECT_TRUE(user->Enabled(kBlock));
    kv::input::TypeHere(" SOUTH");
    EXPECT_EQ(user->Text(kArea), "GRAND ISLE SOUTH");
    EXPECT_EQ(test::FocusedId(), kBlock);
    EXPECT_THAT(user->Rows(kBlock), ElementsAre("ALL", "45", "46B"));
}

TEST_F(AbeBar, ABlankAloneDoesNotSwitchTheMode) {
    user->Type(kArea, " ");
    EXPECT_EQ(bar.GetAreaMode(), 0);
    EXPECT_EQ(user->Text(kArea), " ");
    kv::WindowSystem::Get().SetFocus(frame.m_hWnd);
    EXPECT_EQ(bar.GetAreaMode(), 0);
    user->Type(kArea, " -");
    EXPECT_EQ(bar.GetAreaMode(), 2) << "a label that is begun does";
}

TEST_F(AbeBar, TabBehindTheLastLetterOfAnAreaStaysInTheBlockBox) {
    user->Type(kArea, "HB");
    ASSERT_EQ(test::FocusedId(), kBlock);
    // The letter's own key comes up in the block box.
    kv::WindowSystem::Get().Post(*kv::WindowSystem::Get().Focus(), WM_KEYUP, 'B', 0);
    kv::WindowSystem::Get().Settle();
    user->Key(0, "Tab");
    EXPECT_EQ(test::FocusedId(), kBlock);
    user->Key(0, "Tab");
    EXPECT_EQ(test::FocusedId(), kArea) << "a second one goes on";
}

TEST_F(AbeBar, OtherKeysAndClicksBehindTheLastLetterLetTabGoOn) {
    for (const char* key : {"Shift+Tab", "Home"}) {
        user->Type(kArea, "HB");
        user->Key(0, key);
        user->Focus(kBlock);
        user->Key(0, "Tab");
        EXPECT_EQ(test::FocusedId(), kArea) << key;
    }
    user->Type(kArea, "HB");
    kv::input::Click(*bar.m_hWnd->FindChild(kBlock));
    user->Key(0, "Tab");
    EXPECT_EQ(test::FocusedId(), kArea);
}

TEST_F(AbeBar, TabTakesTheAreaThatTheTextWasCompletedTo) {
    user->Select(kArea, " -AREA NAME-");
    user->Type(kArea, "GRAND I");
    ASSERT_EQ(user->Text(kArea), "GRAND ISLE");
    ASSERT_FALSE(user->Enabled(kBlock));
    user->Key(0, "Tab");
    EXPECT_EQ(test::FocusedId(), kBlock);
    EXPECT_EQ(user->Text(kArea), "GRAND ISLE");
    EXPECT_THAT(user->Rows(kBlock), ElementsAre("ALL", "10", "100", "9", "9A"));
}

// The open list.

TEST_F(AbeBar, ArrowsInTheOpenListPickNothingAndEnterDoes) {
    user->Drop(kArea);
    statements.clear();
    for (const char* row : {" -AREA CODE-", " -AREA NAME-", "EM", "GI"}) {
        user->Key(0, "Down");
        EXPECT_EQ(user->Text(kArea), row);
        EXPECT_EQ(bar.GetAreaMode(), 0);
        EXPECT_EQ(test::FocusedId(), kArea);
    }
    EXPECT_THAT(statements, IsEmpty());
    user->Key(0, "Enter");
    EXPECT_FALSE(bar.GetAreaCombo()->GetDroppedState());
    EXPECT_THAT(statements, ElementsAre(HasSubstr("area_abbr = 'GI'")));
    EXPECT_EQ(test::FocusedId(), kBlock);
}

TEST_F(AbeBar, TabAltUpAndClosingPickTheRowOfTheOpenListToo) {
    const auto close = [this] { kv::input::CloseList(*bar.m_hWnd->FindChild(kArea)); };
    const std::vector<std::function<void()>> ways = {[this] { user->Key(0, "Tab"); },
                                                     [this] { user->Key(0, "Alt+Up"); }, close};
    for (const auto& pick : ways) {
        user->Select(kArea, "HB");
        user->Focus(kArea);
        user->Drop(kArea);
        user->Key(0, "Up");
        ASSERT_EQ(user->Text(kArea), "GI");
        ASSERT_THAT(user->Rows(kBlock), ElementsAre("ALL", "8-BAY"));
        pick();
        EXPECT_EQ(user->Text(kArea), "GI");
        EXPECT_THAT(user->Rows(kBlock), ElementsAre("ALL", "10", "100", "45", "46B", "9", "9A"));
        EXPECT_EQ(test::FocusedId(), kBlock);
    }
}

TEST_F(AbeBar, EscapeInTheOpenListKeepsThePick) {
    CompleteThePick();
    statements.clear();
    user->Drop(kArea);
    user->Key(0, "Down");
    ASSERT_EQ(user->Text(kArea), "HB");
    user->Key(0, "Escape");
    EXPECT_EQ(user->Text(kArea), "GI");
    EXPECT_EQ(user->Text(kBlock), "9A");
    EXPECT_THAT(statements, IsEmpty());
}

TEST_F(AbeBar, EnterOnALabelOfTheOpenListSwitchesTheMode) {
    user->Drop(kArea);
    user->Key(0, "Down");
    user->Key(0, "Enter");
    EXPECT_EQ(bar.GetAreaMode(), 2);
    EXPECT_EQ(user->Text(kArea), "");
    EXPECT_EQ(test::FocusedId(), kArea);
}

TEST_F(AbeBar, ArrowsOfTheClosedBoxPick) {
    user->Drop(kArea);
    user->Drop(kArea);
    user->Type(kArea, "E");
    user->Key(kArea, "Down");
    EXPECT_EQ(user->Text(kArea), "GI");
    EXPECT_THAT(user->Rows(kBlock), ElementsAre("ALL", "10", "100", "45", "46B", "9", "9A"));
}

TEST_F(AbeBar, TheAreaBoxTellsItsMode) {
    const kv::Node& box = *bar.m_hWnd->FindChild(kArea);
    EXPECT_EQ(box.ToolTip(), "Areas by MMS code");
    EXPECT_EQ(bar.GetAreaCombo()->SpokenName(), "Area, by MMS code");
    user->Select(kArea, " -AREA NAME-");
    EXPECT_EQ(box.ToolTip(), "Areas by name");
    EXPECT_EQ(bar.GetAreaCombo()->SpokenName(), "Area, by name");
    bar.GetAreaCombo()->SetMode(2);
    EXPECT_EQ(box.ToolTip(), "Areas by area code");
    EXPECT_EQ(bar.GetAreaCombo()->SpokenName(), "Area, by area code");
    bar.GetAreaCombo()->SetMode(7);
    EXPECT_EQ(box.ToolTip(), "");
    EXPECT_EQ(bar.GetAreaCombo()->SpokenName(), "");
}

// Running by keys.

TEST_F(AbeBar, EnterInTheBlockBoxRunsWhereRunIsEnabled) {
    RunHost host;
    app.m_pMainWnd = &host;
    user->Type(kArea, "HB");
    user->Key(0, "Enter");
    EXPECT_EQ(host.runs, 0);
    user->Type(kBlock, "8");
    user->Key(0, "Enter");
    EXPECT_EQ(host.runs, 1);
    EXPECT_EQ(test::FocusedId(), kBlock);
    user->Key(kArea, "Enter");
    EXPECT_EQ(host.runs, 1) << "in the area box it does not";
}

TEST_F(AbeBar, EnterInTheOpenListOfBlocksClosesItAndTheNextOneRuns) {
    RunHost host;
    app.m_pMainWnd = &host;
    CompleteThePick();
    user->Drop(kBlock);
    user->Key(0, "Enter");
    EXPECT_EQ(host.runs, 0);
    user->Key(0, "Enter");
    EXPECT_EQ(host.runs, 1);
}

TEST_F(AbeBar, AHostMovesTheFocusIntoTheAreaBoxAsTabDoes) {
    CompleteThePick();
    bar.GoToArea();
    EXPECT_EQ(test::FocusedId(), kArea);
    EXPECT_EQ(bar.GetAreaCombo()->GetEditSel(), static_cast<DWORD>(MAKELPARAM(0, 2)));
    CVZABEBar unmade;
    unmade.GoToArea();
    EXPECT_FALSE(unmade.Run());
    EXPECT_EQ(test::FocusedId(), kArea);
}

TEST(AbeBarBeforeTheLibraryWasInitialised, IsNotCreated) {
    CFrameWnd frame;
    frame.Create("Host");
    CVZABEBar bar;
    EXPECT_EQ(bar.Create(&frame, kTemplate, CBRS_TOP, kTemplate), 0);
    EXPECT_EQ(bar.m_hWnd, nullptr);
}

}  // namespace
