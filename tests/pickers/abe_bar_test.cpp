#include <gmock/gmock.h>

#include <algorithm>

#include "pickers/picker_fixture.h"
#include "window/acting/input.h"
#include "window/drawing/image_resource.h"

namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;
using namespace kv::abe_bar;

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
    struct Host : CFrameWnd {
        static const kv::MessageMap& Messages() {
            static const kv::MessageEntry kEntries[] = {
                kv::OnMessage<&Host::OnRun>(CKvABEBar::kRunMessage)};
            static const kv::MessageMap kHostMap{&CFrameWnd::Messages(), kEntries};
            return kHostMap;
        }
        const kv::MessageMap& GetMessageMap() const override { return Messages(); }
        LRESULT OnRun(WPARAM wParam, LPARAM lParam) {
            ++runs;
            parametersAreZero = wParam == 0 && lParam == 0;
            return 0;
        }
        int runs = 0;
        bool parametersAreZero = false;
    } host;
    host.Create("Main");
    app.m_pMainWnd = &host;
    CompleteThePick();
    user->Click(kRun);
    EXPECT_EQ(host.runs, 1);
    EXPECT_TRUE(host.parametersAreZero);
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

TEST(AbeBarBeforeTheLibraryWasInitialised, IsNotCreated) {
    CFrameWnd frame;
    frame.Create("Host");
    CVZABEBar bar;
    EXPECT_EQ(bar.Create(&frame, kTemplate, CBRS_TOP, kTemplate), 0);
    EXPECT_EQ(bar.m_hWnd, nullptr);
}

}  // namespace
