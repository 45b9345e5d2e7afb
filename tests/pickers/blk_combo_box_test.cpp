#include <gmock/gmock.h>

#include "pickers/picker_fixture.h"

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using namespace kv::abe_bar;

/// The label expression as it is sent, to its last common literal.
const std::string kLabels =
    "select decode(substr(areacode, 1, 3), '426', lbnum||lbext || '-S',"
    "'427', lbnum||lbext || '-L',"
    "'420', lbnum||lbext || '-BAY',"
    "'421', lbnum||lbext || '-BAY',"
    "'422', lbnum||lbext || '-BAY',"
    "'423', lbnum||lbext || '-BAY',"
    "'424', lbnum||lbext || '-BAY',"
    "'425', lbnum||lbext || '-BAY',"
    "'428', lbnum||lbext || '-BAY',"
    "'429', lbnum||lbext || '-BAY',"
    "lbnum||lbext), lbnum from NORVADON.GULF_MEXICO_lbi";
const std::string kAll = "select 'ALL',-1 from dual union ";

class BlkComboBox : public PickerTest {
protected:
    BlkComboBox() {
        CreateBar();
        block = dynamic_cast<CKvBlkComboBox*>(bar.GetDlgItem(kBlock));
    }

    std::vector<std::string> RowsOf(int mode, const std::string& area) {
        block->SetMode(mode);
        block->SetArea(area);
        block->V_InitializeCombo();
        return user->Rows(kBlock);
    }

    CKvBlkComboBox* block = nullptr;
};

TEST_F(BlkComboBox, SendsTheStatementOfEachModeToTheLetter) {
    for (const int mode : {0, 1, 2, 9})
        RowsOf(mode, "X");
    EXPECT_THAT(statements,
                ElementsAre(kAll + kLabels +
                                " where areacode in (select stcode from "
                                "NORVADON.GULF_MEXICO_connam2 where area_abbr = 'X')order by 2",
                            kAll + kLabels +
                                " where areacode = (select stcode from "
                                "NORVADON.GULF_MEXICO_connam2 where areaname = 'X')order by\t2",
                            kAll + kLabels + " where areacode = 'X'order by 2",
                            kAll + kLabels +
                                " where areacode in (select stcode from "
                                "NORVADON.GULF_MEXICO_connam2 where area_abbr = 'X')order by 2"));
}

TEST_F(BlkComboBox, OrdersBlocksByTheirNumbersAsTextsBehindTheRowForAll) {
    EXPECT_THAT(RowsOf(2, "017"), ElementsAre("ALL", "10", "100", "9", "9A"));
}

TEST_F(BlkComboBox, LeavesTheRowForAllOutOnRequest) {
    block->SetIncludeAll(false);
    EXPECT_THAT(RowsOf(2, "018"), ElementsAre("45", "46B"));
    EXPECT_EQ(statements.back(), kLabels + " where areacode = '018'order by 2");
}

TEST_F(BlkComboBox, MarksTheWaterBehindEachBlock) {
    block->SetIncludeAll(false);
    EXPECT_THAT(RowsOf(2, "4261"), ElementsAre("123A-S"));
    EXPECT_THAT(RowsOf(2, "4271"), ElementsAre("7-L"));
    EXPECT_THAT(RowsOf(2, "4281"), ElementsAre("8-BAY"));
    EXPECT_THAT(RowsOf(2, "4201"), ElementsAre("1-BAY"));
    EXPECT_THAT(RowsOf(2, "4301"), ElementsAre("55"));
}

TEST_F(BlkComboBox, ListsAnAreaByName) {
    EXPECT_THAT(RowsOf(1, "GRAND ISLE SOUTH"), ElementsAre("ALL", "45", "46B"));
}

TEST_F(BlkComboBox, AnAreaWithoutBlocksGivesOnlyTheRowForAllOrNothing) {
    EXPECT_THAT(RowsOf(0, "EM"), ElementsAre("ALL"));
    block->SetIncludeAll(false);
    EXPECT_THAT(RowsOf(0, "EM"), IsEmpty());
}

TEST_F(BlkComboBox, AQuoteInAnAreaIsPartOfIt) {
    EXPECT_THAT(RowsOf(1, "O'HARA"), ElementsAre("ALL"));
    EXPECT_THAT(statements.back(), testing::HasSubstr("where areaname = 'O''HARA')order by\t2"));
    EXPECT_THAT(RowsOf(2, "0'7"), ElementsAre("ALL"));
}

TEST_F(BlkComboBox, SettersAloneChangeNoList) {
    RowsOf(2, "017");
    const auto before = user->Rows(kBlock);
    statements.clear();
    block->SetArea("018");
    block->SetMode(0);
    block->SetIncludeAll(false);
    EXPECT_EQ(user->Rows(kBlock), before);
    EXPECT_THAT(statements, IsEmpty());
}

TEST_F(BlkComboBox, CutsTheWaterSuffixOffOnRequest) {
    const auto strip = [this](const char* text) {
        block->SetWindowText(text);
        return block->GetBlk(true);
    };
    EXPECT_EQ(strip("123A-BAY"), "123A");
    EXPECT_EQ(strip("7-L"), "7");
    EXPECT_EQ(strip("ALL"), "ALL");
    EXPECT_EQ(strip(""), "");
    EXPECT_EQ(strip("-7"), "-7");
    EXPECT_EQ(strip("-7-S"), "-7");
    block->SetWindowText("123A-BAY");
    EXPECT_EQ(block->GetBlk(false), "123A-BAY");
}

TEST_F(BlkComboBox, ReactsToNoChangeOfItsOwn) {
    RowsOf(2, "017");
    statements.clear();
    block->V_SelChanged(true);
    block->V_SelChanged(false);
    EXPECT_THAT(statements, IsEmpty());
}

}  // namespace
