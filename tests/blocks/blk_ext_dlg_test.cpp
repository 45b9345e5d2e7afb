// The block selection dialog through its controls: opening, search, and the lists.

#include "blocks/blk_ext_dlg.h"

#include <gmock/gmock.h>

#include "blocks/block_fixture.h"

namespace {

using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::EndsWith;
using ::testing::IsEmpty;
using ::testing::SizeIs;
using ::testing::StartsWith;
using namespace kv::blk_ext;

class BlkExtDlg : public BlockTest {
protected:
    std::string HeadingOf(int column) const {
        char text[80] = "";
        LVCOLUMN record;
        record.mask = LVCF_TEXT;
        record.pszText = text;
        record.cchTextMax = sizeof text;
        EXPECT_TRUE(dialog.m_listSelected.GetColumn(column, &record));
        return text;
    }
};

// Opening.

TEST_F(BlkExtDlg, OpensInSearchModeWithEmptyListsAndAsksTheDatabaseNothing) {
    Run(dialog, [](kv::User& user) {
        EXPECT_EQ(user.Window().WindowText(), "Area Block/Extension Selection Dialog");
        EXPECT_TRUE(user.Checked(kSearchMode));
        EXPECT_TRUE(user.Checked(kContain));
        EXPECT_FALSE(user.Checked(kListFileCheck));
        for (const int id : {kAvailable, kBlocks, kSelected})
            EXPECT_THAT(user.Rows(id), IsEmpty());
        EXPECT_TRUE(user.Enabled(kSearch));
        for (const int id : {kAdd, kRemove, kClear})
            EXPECT_FALSE(user.Enabled(id)) << id;
        EXPECT_EQ(user.Text(kSearch), "Search...");
    });
    EXPECT_THAT(statements, IsEmpty());
}

TEST_F(BlkExtDlg, ShowsTheCallersSelectionInTwoColumns) {
    Given({{"PLAIN", ""}, {"GRAND ISLE", "9A"}});
    Run(dialog, [this](kv::User& user) {
        EXPECT_THAT(user.Rows(kSelected), ElementsAre("PLAIN\t", "GRAND ISLE\t9A"));
        EXPECT_TRUE(user.Enabled(kClear));
        EXPECT_FALSE(user.Enabled(kRemove));
        EXPECT_EQ(dialog.m_listSelected.GetColumnCount(), 2);
        EXPECT_EQ(HeadingOf(0), "Selected Area");
        EXPECT_EQ(HeadingOf(1), "Block/Extension");
        EXPECT_EQ(dialog.m_listSelected.GetColumnWidth(0), 200);
        EXPECT_EQ(dialog.m_listSelected.GetColumnWidth(1), 120);
        EXPECT_EQ(dialog.m_nSelectedRows, 2);
    });
}

TEST_F(BlkExtDlg, KeepsAnEarlierRelationForTwoEntriesOrMore) {
    const kv::blocks::NeighborRelation relation = {{{"A", "1"}, {{"B", "2"}}}};
    Given({{"A", "1"}, {"B", "2"}});
    dialog.GetNeighborRel() = relation;
    Run(dialog, [](kv::User& user) { user.Click(IDOK); });
    EXPECT_EQ(dialog.GetNeighborRel(), relation);
    Given({{"A", "1"}});
    Run(dialog, [](kv::User& user) { user.Click(IDOK); });
    EXPECT_THAT(dialog.GetNeighborRel(), IsEmpty());
}

TEST_F(BlkExtDlg, HasNoFinderOfNeighborsUntilItWasOpened) {
    EXPECT_EQ(dialog.GetNeighborBlockPointer(), nullptr);
    Run(dialog, [](kv::User& user) { user.Click(IDOK); });
    EXPECT_NE(dialog.GetNeighborBlockPointer(), nullptr);
}

TEST_F(BlkExtDlg, AnEmptyOwnerIsThatOfTheDataset) {
    dialog.SetType(selection, "");
    EXPECT_EQ(dialog.GetBlkExtQuery("A").find("from NORVADON.GULF_MEXICO_lbi"),
              dialog.GetBlkExtQuery("A").find("from "));
}

TEST_F(BlkExtDlg, RunsWithoutAnyCaller) {
    CKvGuiBlkExtDlg alone;
    EXPECT_EQ(Run(alone,
                  [](kv::User& user) {
                      Insert(user, "a");
                      EXPECT_THAT(user.Rows(kSelected), ElementsAre("A\t"));
                      user.Click(IDOK);
                  }),
              IDOK);
}

TEST_F(BlkExtDlg, TakesATemplateOfTheHosts) {
    CKvGuiBlkExtDlg other(kAreaTemplate, nullptr);
    SetUp(other, "areaname");
    Run(other,
        [](kv::User& user) { EXPECT_EQ(user.Window().WindowText(), "Area Selection Dialog"); });
}

TEST_F(BlkExtDlg, KeepsWhatItIsToldAboutItsQuestions) {
    dialog.SetSqlStatement("select nothing");
    EXPECT_EQ(dialog.GetFieldString(), "areaname");
    EXPECT_EQ(dialog.GetTableName(), "NORVADON.gulf_mexico_connam2");
}

// Search.

TEST_F(BlkExtDlg, AllAreasThatASearchFindsStandSelected) {
    Run(dialog, [](kv::User& user) {
        Search(user, "grand");
        EXPECT_THAT(user.Rows(kAvailable), ElementsAre("GRAND ISLE", "GRAND ISLE SOUTH"));
        EXPECT_THAT(user.Selected(kAvailable), ElementsAre(0, 1));
        EXPECT_TRUE(user.Enabled(kAdd));
        user.Click(kAdd);
        EXPECT_THAT(user.Rows(kAvailable), IsEmpty());
        EXPECT_FALSE(user.Enabled(kAdd));
    });
    EXPECT_THAT(Entries(), ElementsAre("GRAND ISLE/", "GRAND ISLE SOUTH/"));
}

TEST_F(BlkExtDlg, TheRadiosTellWhereTheTextStands) {
    Run(dialog, [](kv::User& user) {
        Search(user, "LA");
        EXPECT_THAT(user.Rows(kAvailable), ElementsAre("LAKE LANDS", "PLAIN", "SHORE LANDS"));
        user.Click(kStartWith);
        user.Click(kSearch);
        EXPECT_THAT(user.Rows(kAvailable), ElementsAre("LAKE LANDS"));
        user.Click(kEndWith);
        Search(user, "lands");
        EXPECT_THAT(user.Rows(kAvailable), ElementsAre("LAKE LANDS", "SHORE LANDS"));
    });
}

TEST_F(BlkExtDlg, BlanksAtTheEndsOfTheTextAreSearchedFor) {
    Run(dialog, [](kv::User& user) {
        Search(user, " la");
        EXPECT_THAT(user.Rows(kAvailable), ElementsAre("LAKE LANDS", "SHORE LANDS"));
        Search(user, "gulf ");
        EXPECT_THAT(user.Rows(kAvailable), ElementsAre("GULF BAY"));
    });
    ASSERT_THAT(statements, SizeIs(2));
    EXPECT_THAT(statements[0], EndsWith(" like '% LA%'"));
    EXPECT_THAT(statements[1], EndsWith(" like '%GULF %'"));
}

TEST_F(BlkExtDlg, ASearchWithoutMatchesSaysSoAndEmptiesTheAreas) {
    desktop.ExpectMessage("No Matches found!");
    Run(dialog, [](kv::User& user) {
        Search(user, "grand");
        Search(user, "nowhere");
        EXPECT_THAT(user.Rows(kAvailable), IsEmpty());
        EXPECT_FALSE(user.Enabled(kAdd));
    });
}

TEST_F(BlkExtDlg, AnAreaThatIsSelectedWholeDoesNotComeBackAndABlockHidesNone) {
    Given({{"GRAND ISLE", ""}, {"GRAND ISLE SOUTH", "45"}, {"grand isle south", ""}});
    Run(dialog, [](kv::User& user) {
        Search(user, "grand");
        EXPECT_THAT(user.Rows(kAvailable), ElementsAre("GRAND ISLE SOUTH"));
    });
}

TEST_F(BlkExtDlg, ASearchLeavesTheListOfBlocks) {
    Run(dialog, [](kv::User& user) {
        Search(user, "grand");
        user.DoubleClick(kAvailable, "GRAND ISLE SOUTH");
        Search(user, "plain");
        EXPECT_THAT(user.Rows(kBlocks), ElementsAre("45", "46B"));
    });
}

TEST_F(BlkExtDlg, AFailedSearchIsToldAndTheListsKeepWhatTheyHold) {
    Run(dialog, [this](kv::User& user) {
        Search(user, "grand");
        user.Select(kAvailable, 1);
        desktop.ExpectMessage("");
        Search(user, "o'neil");
        EXPECT_THAT(user.Rows(kAvailable), ElementsAre("GRAND ISLE", "GRAND ISLE SOUTH"));
        EXPECT_THAT(user.Selected(kAvailable), ElementsAre(1));
        desktop.ExpectMessage("");
        dialog.SetFieldString("nosuchcolumn");
        user.Click(kSearch);
        EXPECT_THAT(user.Rows(kAvailable), SizeIs(2));
        user.Click(kAdd);
        EXPECT_THAT(Entries(), ElementsAre("GRAND ISLE SOUTH/"));
    });
    ASSERT_THAT(desktop.Messages(), SizeIs(2));
    EXPECT_THAT(desktop.Messages(), Each(StartsWith("Database error: ")));
    EXPECT_THAT(desktop.Messages()[1], EndsWith(" where nosuchcolumn like '%O'NEIL%'"));
}

TEST_F(BlkExtDlg, TypingLooksAmongTheAreasAndAlwaysLeavesSearchEnabled) {
    Run(dialog, [this](kv::User& user) {
        Search(user, "grand");
        user.Select(kAvailable, 1);
        user.Type(kFind, "zzz");
        EXPECT_EQ(dialog.m_bFound, 1);
        EXPECT_TRUE(user.Enabled(kSearch));
        EXPECT_THAT(user.Selected(kAvailable), ElementsAre(1));
    });
}

// Blocks.

TEST_F(BlkExtDlg, ADoubleClickListsTheBlocksOfAnAreaByNumber) {
    Run(dialog, [](kv::User& user) {
        Search(user, "");
        user.DoubleClick(kAvailable, "GRAND ISLE");
        EXPECT_THAT(user.Rows(kBlocks), ElementsAre("9", "9A", "10", "100"));
        EXPECT_THAT(user.Selected(kAvailable), ElementsAre(1));
        EXPECT_THAT(user.Selected(kBlocks), IsEmpty());
    });
}

TEST_F(BlkExtDlg, ListingTheBlocksOfAnAreaDisablesRemove) {
    Given({{"PLAIN", ""}});
    Run(dialog, [](kv::User& user) {
        Search(user, "");
        user.Click(kSelected);
        EXPECT_TRUE(user.Enabled(kRemove));
        user.DoubleClick(kAvailable, "GRAND ISLE");
        EXPECT_FALSE(user.Enabled(kRemove));
    });
}

TEST_F(BlkExtDlg, SpaceListsTheBlocksOfAnAreaAsADoubleClickDoes) {
    Run(dialog, [](kv::User& user) {
        Search(user, "grand");
        user.Key(kAvailable, "Home");
        user.Key(0, "Space");
        EXPECT_THAT(user.Rows(kBlocks), ElementsAre("9", "9A", "10", "100"));
        EXPECT_THAT(user.Selected(kAvailable), ElementsAre(0));
        user.Key(0, "Down");
        EXPECT_THAT(user.Rows(kBlocks), IsEmpty()) << "other keys list nothing";
        user.Key(0, "Ctrl+Space");
        EXPECT_THAT(user.Rows(kBlocks), IsEmpty());
        EXPECT_THAT(user.Selected(kAvailable), IsEmpty());
    });
}

TEST_F(BlkExtDlg, ABlankWithinATypedNameIsPartOfIt) {
    Run(dialog, [this](kv::User& user) {
        Search(user, "grand");
        statements.clear();
        user.Focus(kAvailable);
        kv::input::TypeHere("GRAND ISLE ");
        EXPECT_THAT(user.Selected(kAvailable), ElementsAre(1));
        EXPECT_THAT(user.Rows(kBlocks), IsEmpty());
    });
    EXPECT_THAT(statements, IsEmpty());
}

TEST_F(BlkExtDlg, BlocksTellTheWaterTheyLieIn) {
    Run(dialog, [](kv::User& user) {
        Search(user, "");
        const auto blocksOf = [&](const char* area) {
            user.DoubleClick(kAvailable, area);
            return user.Rows(kBlocks);
        };
        EXPECT_THAT(blocksOf("SHORE LANDS"), ElementsAre("123A-S"));
        EXPECT_THAT(blocksOf("LAKE LANDS"), ElementsAre("7-L"));
        EXPECT_THAT(blocksOf("GULF BAY"), ElementsAre("1-BAY"));
        EXPECT_THAT(blocksOf("HARBOR"), ElementsAre("8-BAY"));
        EXPECT_THAT(blocksOf("PLAIN"), ElementsAre("55"));
    });
}

TEST_F(BlkExtDlg, AnAreaWithoutBlocksSaysSo) {
    desktop.ExpectMessage("No Matches found!");
    Run(dialog, [](kv::User& user) {
        Search(user, "empty");
        user.DoubleClick(kAvailable, 0);
        EXPECT_THAT(user.Rows(kBlocks), IsEmpty());
    });
}

TEST_F(BlkExtDlg, SelectedBlocksOfTheAreaAreHeldBackAndThoseOfOthersAreNot) {
    Given({{"GRAND ISLE", "9"}, {"PLAIN", "10"}, {"GRAND ISLE", ""}});
    Run(dialog, [](kv::User& user) {
        Search(user, "grand isle south");
        Search(user, "plain");
        Insert(user, "x");
        user.Click(kSearchMode);
        Search(user, "isle");
        EXPECT_THAT(user.Rows(kAvailable), ElementsAre("GRAND ISLE SOUTH"));
    });
    Given({{"GRAND ISLE", "9"}, {"PLAIN", "10"}});
    Run(dialog, [](kv::User& user) {
        Search(user, "isle");
        user.DoubleClick(kAvailable, "GRAND ISLE");
        EXPECT_THAT(user.Rows(kBlocks), ElementsAre("9A", "10", "100"));
    });
}

TEST_F(BlkExtDlg, PickingAnotherAreaEmptiesTheBlocks) {
    Run(dialog, [](kv::User& user) {
        Search(user, "grand");
        user.DoubleClick(kAvailable, 0);
        EXPECT_THAT(user.Rows(kBlocks), SizeIs(4));
        user.Select(kAvailable, 1);
        EXPECT_THAT(user.Rows(kBlocks), IsEmpty());
    });
}

TEST_F(BlkExtDlg, AFailureWhileBlocksAreListedIsTold) {
    Run(dialog, [this](kv::User& user) {
        Search(user, "grand");
        dialog.SetType(selection, "nobody.where");
        desktop.ExpectMessage("");
        user.DoubleClick(kAvailable, 1);
        EXPECT_THAT(user.Rows(kBlocks), IsEmpty());
        EXPECT_THAT(user.Selected(kAvailable), ElementsAre(1));
    });
}

}  // namespace
