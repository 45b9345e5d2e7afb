#include <gmock/gmock.h>

#include "pickers/picker_fixture.h"

namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using namespace kv::abe_bar;

/// The bar's two boxes, before the user has touched either.
class AreaComboBox : public PickerTest {
protected:
    AreaComboBox() {
        CreateBar();
        area = bar.GetAreaCombo();
    }

    std::vector<std::string> AreaRows() { return user->Rows(kArea); }
    std::vector<std::string> BlockRows() { return user->Rows(kBlock); }

    CKvAreaComboBox* area = nullptr;
};

TEST_F(AreaComboBox, ListsMmsCodesWithoutAnyCallOfSetMode) {
    area->V_InitializeCombo();
    EXPECT_EQ(area->GetMode(), 0);
    EXPECT_THAT(AreaRows(),
                ElementsAre(" -AREA CODE-", " -AREA NAME-", "EM", "GI", "HB", "LL", "PL", "SL"));
}

TEST_F(AreaComboBox, SendsTheStatementOfEachModeToTheLetter) {
    for (const int mode : {0, 1, 2}) {
        area->SetMode(mode);
        area->V_InitializeCombo();
    }
    EXPECT_THAT(
        statements,
        ElementsAre(
            "select ' -AREA NAME-' from dual union select ' -AREA CODE-' from dual union select "
            "distinct area_abbr from NORVADON.GULF_MEXICO_connam2 where area_abbr is not null",
            "select ' -AREA CODE-' from dual union select ' -MMS CODE-' from dual union select "
            "distinct areaname from NORVADON.GULF_MEXICO_connam2",
            "select ' -AREA NAME-' from dual union select ' -MMS CODE-' from dual union select "
            "distinct stcode from NORVADON.GULF_MEXICO_connam2"));
}

TEST_F(AreaComboBox, AnyOtherModeSendsTheEmptyTextAndListsNothing) {
    area->V_InitializeCombo();  // the first fill of the process does not clear
    area->SetMode(7);
    area->V_InitializeCombo();
    EXPECT_EQ(statements.back(), "");
    EXPECT_THAT(AreaRows(), IsEmpty());
    EXPECT_THAT(folder.Read("log.txt"), ::testing::Not(IsEmpty()));
}

TEST_F(AreaComboBox, OnlyTheFirstFillOfTheProcessKeepsWhatTheListHeld) {
    area->AddString("LEFT OVER");
    area->V_InitializeCombo();
    EXPECT_THAT(AreaRows(), ::testing::Contains("LEFT OVER"));
    area->V_InitializeCombo();
    EXPECT_THAT(AreaRows(), ::testing::Not(::testing::Contains("LEFT OVER")));
}

TEST_F(AreaComboBox, PickingTheNameLabelListsNamesAndEmptiesTheBlockBox) {
    user->Select(kArea, "GI");
    ASSERT_THAT(BlockRows(), ::testing::Not(IsEmpty()));
    user->Select(kArea, " -AREA NAME-");
    EXPECT_EQ(area->GetMode(), 1);
    EXPECT_THAT(AreaRows(), ElementsAre(" -AREA CODE-", " -MMS CODE-", "EMPTY", "GRAND ISLE",
                                        "GRAND ISLE SOUTH", "GULF BAY", "HARBOR", "LAKE LANDS",
                                        "PLAIN", "SHORE LANDS"));
    EXPECT_THAT(BlockRows(), IsEmpty());
}

TEST_F(AreaComboBox, TheLabelsSwitchAllModesRoundAndRound) {
    user->Select(kArea, " -AREA CODE-");
    EXPECT_EQ(area->GetMode(), 2);
    EXPECT_THAT(AreaRows(), ElementsAre(" -AREA NAME-", " -MMS CODE-", "017", "018", "099", "4201",
                                        "4261", "4271", "4281", "4301"));
    user->Select(kArea, " -MMS CODE-");
    EXPECT_EQ(area->GetMode(), 0);
    user->Select(kArea, " -AREA NAME-");
    EXPECT_EQ(area->GetMode(), 1);
}

TEST_F(AreaComboBox, APickFillsTheBlockBoxInTheAreasMode) {
    user->Select(kArea, "GI");
    EXPECT_THAT(BlockRows(), ElementsAre("ALL", "10", "100", "45", "46B", "9", "9A"));
    EXPECT_EQ(area->GetArea(), "GI");
}

TEST_F(AreaComboBox, ATextChangeWithoutACurrentRowDoesNothing) {
    area->V_InitializeCombo();
    area->SetWindowText("NOWHERE");
    statements.clear();
    area->V_SelChanged(false);
    EXPECT_THAT(statements, IsEmpty());
}

TEST_F(AreaComboBox, ATypedTextThatIsNoRowIsStillHandedToTheBlockBoxOnCommit) {
    area->V_InitializeCombo();
    area->SetWindowText("NOWHERE");
    statements.clear();
    area->V_SelChanged(true);
    ASSERT_EQ(statements.size(), 1u);
    EXPECT_THAT(statements[0], HasSubstr("area_abbr = 'NOWHERE'"));
    EXPECT_THAT(BlockRows(), ElementsAre("ALL"));
}

TEST_F(AreaComboBox, AHalfTypedTextRunsNoQuery) {
    area->V_InitializeCombo();
    area->SetCurSel(area->FindString(-1, "GI"));
    area->SetEditSel(1, 2);
    statements.clear();
    area->V_SelChanged(false);
    EXPECT_THAT(statements, IsEmpty());
    area->SetEditSel(0, 2);
    area->V_SelChanged(false);
    EXPECT_EQ(statements.size(), 1u);
    EXPECT_EQ(CWnd::GetFocus()->GetParent(), bar.GetDlgItem(kBlock));
}

TEST_F(AreaComboBox, TheFirstAreaBehindTheLabelsIsNoLabel) {
    area->V_InitializeCombo();
    area->SetCurSel(2);
    ASSERT_EQ(area->GetArea(), "EM");
    area->SetEditSel(1, 2);
    statements.clear();
    area->V_SelChanged(false);
    EXPECT_THAT(statements, IsEmpty());
    EXPECT_THAT(BlockRows(), IsEmpty());
}

TEST_F(AreaComboBox, AnEmptyTextAsksForNoBlocks) {
    user->Select(kArea, "GI");
    area->SetWindowText("");
    statements.clear();
    area->V_SelChanged(true);
    EXPECT_THAT(statements, IsEmpty());
    EXPECT_THAT(BlockRows(), ElementsAre("ALL", "10", "100", "45", "46B", "9", "9A"));
}

TEST_F(AreaComboBox, APickOpensTheBlockBoxAndGoesThere) {
    // Outside of a bar nothing but the pick itself does.
    CKvAreaComboBox areas;
    CKvBlkComboBox blocks;
    areas.Create(WS_CHILD | WS_VISIBLE | CBS_DROPDOWN | CBS_SORT, {0, 0, 90, 90}, &frame, 1);
    blocks.Create(WS_CHILD | WS_VISIBLE | WS_DISABLED | CBS_DROPDOWN, {0, 0, 90, 90}, &frame, 2);
    areas.SetBlkCombo(&blocks);
    areas.V_InitializeCombo();
    areas.SetCurSel(areas.FindStringExact(-1, "GI"));
    areas.V_SelChanged(false);
    EXPECT_TRUE(blocks.IsWindowEnabled());
    EXPECT_EQ(CWnd::GetFocus()->GetParent(), &blocks);
    EXPECT_EQ(blocks.GetCount(), 7);
}

TEST_F(AreaComboBox, ALabelRowSwitchesTheModeAlsoWhileItIsHalfSelected) {
    area->V_InitializeCombo();
    area->SetCurSel(1);
    area->SetEditSel(2, 4);
    area->V_SelChanged(false);
    EXPECT_EQ(area->GetMode(), 1);
}

TEST_F(AreaComboBox, GivesTheAreaCodesOfAnMmsCodeQuotedInBrackets) {
    user->Select(kArea, "GI");
    EXPECT_EQ(area->GetAreacode(true), "('017','018')");
    EXPECT_EQ(area->GetAreacode(false), "017,018");
    user->Select(kBlock, "ALL");
    EXPECT_EQ(area->GetAreacode(true), "('017','018')");
}

TEST_F(AreaComboBox, TakesAllBlocksForAllAlsoWithAWaterBehind) {
    user->Select(kArea, "GI");
    bar.SetBlkExt("ALL-S");
    EXPECT_EQ(area->GetAreacode(true), "('017','018')");
}

TEST_F(AreaComboBox, GivesOneAreaCodeInBracketsForAllItsBlocksAndBareForARealOne) {
    user->Select(kArea, "SL");
    user->Select(kBlock, "ALL");
    EXPECT_EQ(area->GetAreacode(true), "('4261')");
    user->Select(kBlock, "123A-S");
    EXPECT_EQ(area->GetAreacode(true), "'4261'");
    EXPECT_EQ(area->GetAreacode(false), "4261");
}

TEST_F(AreaComboBox, FindsTheOneAreaCodeOfAnMmsCodeThatHoldsTheBlock) {
    user->Select(kArea, "GI");
    user->Select(kBlock, "46B");
    EXPECT_EQ(area->GetAreacode(true), "'018'");
    user->Select(kBlock, "9A");
    EXPECT_EQ(area->GetAreacode(false), "017");
}

TEST_F(AreaComboBox, GivesTheAreaCodeOfANameAndOfACode) {
    user->Select(kArea, " -AREA NAME-");
    user->Select(kArea, "GULF BAY");
    EXPECT_EQ(area->GetAreacode(true), "'4201'");
    user->Select(kArea, " -AREA CODE-");
    user->Select(kArea, "4271");
    EXPECT_EQ(area->GetAreacode(false), "4271");
    EXPECT_EQ(area->GetAreacode(true), "'4271'");
}

TEST_F(AreaComboBox, GivesNoAreaCodeForAnEmptyBoxOrAnUnknownArea) {
    area->V_InitializeCombo();
    EXPECT_EQ(area->GetAreacode(true), "");
    area->SetWindowText("NOWHERE");
    EXPECT_EQ(area->GetAreacode(true), "");
    area->SetMode(1);
    EXPECT_EQ(area->GetAreacode(true), "");
}

TEST_F(AreaComboBox, ATextThatIsNoRowEmptiesTheBlockBoxsTextAndLocksIt) {
    user->Select(kArea, "GI");
    user->Select(kBlock, "9");
    EXPECT_TRUE(area->EnableBlkCombo());
    area->SetWindowText("NOWHERE");
    EXPECT_FALSE(area->EnableBlkCombo());
    EXPECT_EQ(user->Text(kBlock), "");
}

TEST_F(AreaComboBox, APartialSelectionLocksTheBlockBoxToo) {
    user->Select(kArea, "GI");
    area->SetEditSel(1, 2);
    EXPECT_FALSE(area->EnableBlkCombo());
    area->SetEditSel(0, 2);
    EXPECT_TRUE(area->EnableBlkCombo());
    area->SetEditSel(2, 2);
    EXPECT_TRUE(area->EnableBlkCombo());
}

TEST_F(AreaComboBox, SelectsAnAreaByItsCodeInEachMode) {
    area->V_InitializeCombo();
    area->SetArea("018");
    EXPECT_EQ(area->GetArea(), "GI");
    area->SetMode(1);
    area->V_InitializeCombo();
    area->SetArea("018");
    EXPECT_EQ(area->GetArea(), "GRAND ISLE SOUTH");
    area->SetMode(2);
    area->V_InitializeCombo();
    area->SetArea("018");
    EXPECT_EQ(area->GetArea(), "018");
    EXPECT_THAT(BlockRows(), ElementsAre("ALL", "45", "46B"));
}

TEST_F(AreaComboBox, AnUnknownAreaCodeIsLoggedAndLeavesTheBoxAsItWas) {
    user->Select(kArea, "GI");
    testing::internal::CaptureStderr();
    area->SetArea("nowhere");
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
    EXPECT_EQ(area->GetArea(), "GI");
    EXPECT_THAT(folder.Read("log.txt"),
                HasSubstr("Selected area could not be found from the database table"));
}

TEST_F(AreaComboBox, AnAreaCodeThatIsNoRowLeavesAListOfCodesAsItWas) {
    user->Select(kArea, " -AREA CODE-");
    user->Select(kArea, "017");
    user->Select(kBlock, "9A");
    statements.clear();
    // Neither the beginning of a code is one, nor a code with something behind it.
    for (const char* code : {"nowhere", "42", "4201x"}) {
        SCOPED_TRACE(code);
        folder.Write("log.txt", "");
        area->SetArea(code);
        EXPECT_EQ(area->GetMode(), 2);
        EXPECT_EQ(area->GetArea(), "017");
        EXPECT_EQ(user->Text(kBlock), "9A");
        EXPECT_THAT(folder.Read("log.txt"),
                    HasSubstr("Selected area could not be found from the database table"));
    }
    EXPECT_THAT(statements, IsEmpty());
    EXPECT_THAT(BlockRows(), ElementsAre("ALL", "10", "100", "9", "9A"));
}

TEST_F(AreaComboBox, FindsACodeThatItsColumnPadsWithBlanks) {
    area->SetMode(2);
    area->AddString("4202  ");
    area->SetArea("4202");
    EXPECT_EQ(area->GetArea(), "4202  ");
}

TEST_F(AreaComboBox, FindsNoRowInABoxThatWasNotFilled) {
    area->SetArea("018");
    EXPECT_EQ(area->GetArea(), "");
    EXPECT_THAT(folder.Read("log.txt"),
                HasSubstr("Selected area could not be found from the database table"));
}

TEST_F(AreaComboBox, WorksWithoutABlockBox) {
    CKvAreaComboBox alone;
    alone.Create(WS_CHILD | WS_VISIBLE | CBS_DROPDOWN | CBS_SORT, {0, 0, 90, 90}, &frame, 1);
    alone.V_InitializeCombo();
    alone.SetArea("4281");
    EXPECT_EQ(alone.GetArea(), "HB");
    EXPECT_TRUE(alone.EnableBlkCombo());
    EXPECT_EQ(alone.GetAreacode(true), "('4281')");
    alone.SetCurSel(alone.FindStringExact(-1, " -AREA NAME-"));
    alone.V_SelChanged(true);
    EXPECT_EQ(alone.GetMode(), 1);
    EXPECT_EQ(alone.GetArea(), "");
}

TEST_F(AreaComboBox, WithoutAWindowItDoesNothing) {
    CKvAreaComboBox unmade;
    unmade.V_InitializeCombo();
    unmade.SetArea("018");
    EXPECT_EQ(unmade.GetArea(), "");
    EXPECT_FALSE(unmade.EnableBlkCombo());
}

TEST_F(AreaComboBox, BindingHandsTheModeToTheBlockBox) {
    CKvAreaComboBox unbound;
    CKvBlkComboBox blocks;
    unbound.SetMode(2);
    unbound.SetBlkCombo(&blocks);
    blocks.SetArea("017");
    blocks.V_InitializeCombo();
    EXPECT_THAT(statements.back(), HasSubstr(" where areacode = '017'order by 2"));
}

TEST_F(AreaComboBox, ADatabaseFailureIsLoggedAndShowsNoBox) {
    UseDatabase("sqlite:" + folder.Native("missing.db"));
    testing::internal::CaptureStderr();
    area->V_InitializeCombo();
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
    EXPECT_THAT(AreaRows(), IsEmpty());
    EXPECT_THAT(desktop.Messages(), IsEmpty());
    EXPECT_THAT(folder.Read("log.txt"), HasSubstr("missing.db"));
    EXPECT_FALSE(folder.Has("missing.db"));
}

TEST_F(AreaComboBox, AQuoteInTheAreaFillsTheBlocksAsAnyOther) {
    area->V_InitializeCombo();
    area->SetWindowText("O'HARA");
    area->V_SelChanged(true);
    EXPECT_THAT(BlockRows(), ElementsAre("ALL"));
    EXPECT_THAT(folder.Read("log.txt"), Not(HasSubstr("O'HARA")));
}

}  // namespace
