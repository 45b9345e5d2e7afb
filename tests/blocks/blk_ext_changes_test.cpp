// What the user makes of the selection: Add, Remove, Clear, Insert, and the end of the dialog.

#include <gmock/gmock.h>

#include "blocks/block_fixture.h"

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;
using namespace kv::blk_ext;

class BlkExtChanges : public BlockTest {};

// Add.

TEST_F(BlkExtChanges, AddsBlocksInTheirOrderAndSelectsTheOneBehind) {
    Run(dialog, [](kv::User& user) {
        Search(user, "grand");
        user.DoubleClick(kAvailable, 0);
        user.Select(kBlocks, std::vector<int>{2, 0});
        user.Click(kAdd);
        EXPECT_THAT(user.Rows(kBlocks), ElementsAre("9A", "100"));
        EXPECT_THAT(user.Selected(kBlocks), ElementsAre(1));
        EXPECT_THAT(user.Rows(kAvailable), SizeIs(2));
        EXPECT_THAT(user.Rows(kSelected), ElementsAre("GRAND ISLE\t9", "GRAND ISLE\t10"));
        user.Click(kAdd);
        EXPECT_THAT(user.Rows(kBlocks), ElementsAre("9A"));
        EXPECT_THAT(user.Selected(kBlocks), ElementsAre(0));
    });
    EXPECT_THAT(Entries(), ElementsAre("GRAND ISLE/9", "GRAND ISLE/10", "GRAND ISLE/100"));
}

TEST_F(BlkExtChanges, AnAreaWhoseBlocksWereAllTakenAtOnceLeavesTheList) {
    Run(dialog, [](kv::User& user) {
        Search(user, "grand");
        user.DoubleClick(kAvailable, 0);
        user.Select(kBlocks, std::vector<int>{0, 1, 2, 3});
        user.Click(kAdd);
        EXPECT_THAT(user.Rows(kBlocks), IsEmpty());
        EXPECT_THAT(user.Rows(kAvailable), ElementsAre("GRAND ISLE SOUTH"));
        EXPECT_THAT(user.Selected(kAvailable), ElementsAre(0));
    });
    EXPECT_THAT(Entries(), SizeIs(4));
}

TEST_F(BlkExtChanges, BlocksAreTakenForTheFirstSelectedAreaAlone) {
    Run(dialog, [](kv::User& user) {
        Search(user, "");
        user.DoubleClick(kAvailable, "PLAIN");
        user.Select(kBlocks, 0);
        // As a program does, which does not tell the dialog.
        user.Window().Control<CListBox>(kAvailable).SetSel(-1, TRUE);
        user.Click(kAdd);
    });
    EXPECT_THAT(Entries(), ElementsAre("EMPTY/55"));
}

TEST_F(BlkExtChanges, AWholeAreaAndItsBlockStandSideBySide) {
    Run(dialog, [](kv::User& user) {
        Search(user, "plain");
        user.DoubleClick(kAvailable, 0);
        user.Select(kBlocks, 0);
        user.Click(kAdd);
        EXPECT_THAT(user.Rows(kAvailable), IsEmpty());
        Search(user, "plain");
        EXPECT_THAT(user.Rows(kAvailable), ElementsAre("PLAIN"));
        user.Click(kAdd);
    });
    EXPECT_THAT(Entries(), ElementsAre("PLAIN/55", "PLAIN/"));
}

TEST_F(BlkExtChanges, ABlockThatIsSelectedAlreadyStaysInTheList) {
    Run(dialog, [this](kv::User& user) {
        Search(user, "plain");
        user.DoubleClick(kAvailable, 0);
        Given({{"PLAIN", "55"}});
        user.Select(kBlocks, 0);
        user.Click(kAdd);
        EXPECT_THAT(user.Rows(kBlocks), ElementsAre("55"));
    });
    EXPECT_THAT(Entries(), ElementsAre("PLAIN/55"));
}

TEST_F(BlkExtChanges, WithoutAnAreaSelectedAddDoesNothing) {
    Run(dialog, [](kv::User& user) {
        Search(user, "plain");
        user.DoubleClick(kAvailable, 0);
        user.Select(kBlocks, 0);
        user.Window().Control<CListBox>(kAvailable).SetSel(-1, FALSE);
        user.Click(kAdd);
    });
    EXPECT_THAT(Entries(), IsEmpty());
}

TEST_F(BlkExtChanges, AnEntryIsAddedOnce) {
    EXPECT_TRUE(dialog.AddSelectedExts("A", "1"));
    EXPECT_TRUE(dialog.AddSelectedExts("a", "1"));
    EXPECT_FALSE(dialog.AddSelectedExts("A", "1"));
    EXPECT_THAT(Entries(), ElementsAre("A/1", "a/1"));
}

TEST_F(BlkExtChanges, WithNothingLeftToAddTheFocusGoesToTheNextSearch) {
    Run(dialog, [](kv::User& user) {
        Search(user, "grand");
        user.Select(kAvailable, 0);
        user.Click(kAdd);
        EXPECT_EQ(test::FocusedId(), kAdd);
        user.Click(kAdd);
        EXPECT_THAT(user.Rows(kAvailable), IsEmpty());
        EXPECT_EQ(test::FocusedId(), kFind);
        kv::input::TypeHere("x");
        EXPECT_EQ(user.Text(kFind), "x") << "its text is selected";
    });
}

// Remove and Clear.

TEST_F(BlkExtChanges, RemoveComesOnBySpaceInTheSelectionToo) {
    Given({{"PLAIN", ""}, {"EMPTY", ""}});
    Run(dialog, [](kv::User& user) {
        user.Key(kSelected, "Down");
        EXPECT_FALSE(user.Enabled(kRemove));
        user.Key(0, "Space");
        EXPECT_TRUE(user.Enabled(kRemove));
        EXPECT_THAT(user.Selected(kSelected), ElementsAre(0));
        user.Click(kRemove);
    });
    EXPECT_THAT(Entries(), ElementsAre("EMPTY/"));
}

TEST_F(BlkExtChanges, RemoveComesOnByAClickAndGoesOffWithEveryRefresh) {
    Given({{"A", "1"}, {"B", "2"}});
    Run(dialog, [](kv::User& user) {
        EXPECT_FALSE(user.Enabled(kRemove));
        user.Select(kSelected, 0);
        EXPECT_TRUE(user.Enabled(kRemove));
        EXPECT_EQ(user.Window().Control<CListCtrl>(kSelected).GetExtendedStyle(),
                  LVS_EX_FULLROWSELECT);
        Insert(user, "x");
        EXPECT_FALSE(user.Enabled(kRemove));
    });
}

TEST_F(BlkExtChanges, RemovesTheSelectedRowsAndSelectsTheOneBehind) {
    Given({{"A", "1"}, {"B", ""}, {"C", "3"}, {"D", "4"}, {"E", "5"}});
    dialog.GetNeighborRel()[{"B", ""}] = {{"C", "3"}};
    Run(dialog, [this](kv::User& user) {
        user.Select(kSelected, std::vector<int>{1, 3});
        user.Click(kRemove);
        EXPECT_THAT(user.Rows(kSelected), ElementsAre("A\t1", "C\t3", "E\t5"));
        EXPECT_THAT(user.Selected(kSelected), ElementsAre(1));
        EXPECT_EQ(dialog.m_listSelected.GetNextItem(-1, LVNI_FOCUSED), 2);
        EXPECT_EQ(test::FocusedId(), kSelected);
        EXPECT_TRUE(user.Enabled(kRemove));
        EXPECT_EQ(dialog.m_nSelectedRows, 3);
    });
    EXPECT_THAT(Entries(), ElementsAre("A/1", "C/3", "E/5"));
    EXPECT_THAT(dialog.GetNeighborRel(), SizeIs(1));
}

TEST_F(BlkExtChanges, RemovingTheLastRowSelectsTheOneAhead) {
    Given({{"A", "1"}, {"B", ""}, {"C", "3"}});
    Run(dialog, [](kv::User& user) {
        user.Select(kSelected, 2);
        user.Click(kRemove);
        EXPECT_THAT(user.Selected(kSelected), ElementsAre(1));
        user.Click(kRemove);
        EXPECT_THAT(user.Selected(kSelected), ElementsAre(0));
        user.Click(kRemove);
        EXPECT_THAT(user.Rows(kSelected), IsEmpty());
        EXPECT_FALSE(user.Enabled(kRemove));
        EXPECT_FALSE(user.Enabled(kClear));
    });
    EXPECT_THAT(Entries(), IsEmpty());
}

TEST_F(BlkExtChanges, RemoveWithoutASelectedRowDoesNothing) {
    Given({{"A", "1"}});
    Run(dialog, [](kv::User& user) {
        user.Select(kSelected, 0);
        user.Window().Control<CListCtrl>(kSelected).SetItemState(-1, 0, LVIS_SELECTED);
        user.Click(kRemove);
        EXPECT_TRUE(user.Enabled(kRemove));
    });
    EXPECT_THAT(Entries(), ElementsAre("A/1"));
}

TEST_F(BlkExtChanges, ClearTakesTheSelectionAndTheRelation) {
    Given({{"A", "1"}, {"B", "2"}});
    dialog.GetNeighborRel()[{"A", "1"}] = {{"B", "2"}};
    Run(dialog, [](kv::User& user) {
        user.Click(kClear);
        EXPECT_THAT(user.Rows(kSelected), IsEmpty());
        user.Click(IDOK);
    });
    EXPECT_THAT(Entries(), IsEmpty());
    EXPECT_THAT(dialog.GetNeighborRel(), IsEmpty());
}

// Insert.

TEST_F(BlkExtChanges, InsertTakesAnAreaThatIsInNoList) {
    Run(dialog, [](kv::User& user) {
        user.Click(kInsertMode);
        EXPECT_EQ(user.Text(kSearch), "Insert...");
        user.Type(kFind, "my area");
        user.Key(kFind, "Enter");
        EXPECT_THAT(user.Rows(kSelected), ElementsAre("MY AREA\t"));
        user.Click(IDOK);
    });
    EXPECT_THAT(statements, IsEmpty());
}

TEST_F(BlkExtChanges, InsertRefusesAnEmptyText) {
    desktop.ExpectMessage("Error! The string is blank!!");
    Run(dialog, [](kv::User& user) { Insert(user, ""); });
    EXPECT_THAT(Entries(), IsEmpty());
}

TEST_F(BlkExtChanges, InsertTellsOfAnAreaThatIsThereAndAddsItInNoCase) {
    Given({{"A", ""}, {"B", ""}});
    desktop.ExpectMessage("The string has already been added!!");
    desktop.ExpectMessage("The string has already been added!!");
    Run(dialog, [](kv::User& user) {
        Insert(user, "b");
        EXPECT_EQ(user.Text(kFind), "b");
        user.Type(kFind, "a");
        user.Click(kSearch);
    });
    EXPECT_THAT(Entries(), ElementsAre("A/", "B/"));
}

TEST_F(BlkExtChanges, InsertOfAnEmptyTextMeetsAnEntryWithoutAnArea) {
    Given({{"", ""}});
    desktop.ExpectMessage("Error! The string is blank!!");
    desktop.ExpectMessage("The string has already been added!!");
    Run(dialog, [](kv::User& user) { Insert(user, ""); });
    EXPECT_THAT(Entries(), ElementsAre("/"));
}

TEST_F(BlkExtChanges, AfterInsertTheTextIsReplacedByTheNextTyping) {
    Run(dialog, [](kv::User& user) {
        Insert(user, "one");
        user.Focus(kFind);
        EXPECT_TRUE(kv::input::TypeHere("two"));
        EXPECT_EQ(user.Text(kFind), "two");
    });
}

TEST_F(BlkExtChanges, InsertModeDisablesThePatternRadios) {
    Run(dialog, [](kv::User& user) {
        user.Click(kInsertMode);
        for (const int id : {kContain, kStartWith, kEndWith})
            EXPECT_FALSE(user.Enabled(id));
        Insert(user, "x");
        user.Click(kClear);
        EXPECT_FALSE(user.Enabled(kContain));
        user.Click(kSearchMode);
        for (const int id : {kContain, kStartWith, kEndWith})
            EXPECT_TRUE(user.Enabled(id));
        EXPECT_EQ(user.Text(kSearch), "Search...");
    });
}

// The end.

TEST_F(BlkExtChanges, CancelGivesTheRelationBackAndNotTheSelection) {
    Given({{"A", "1"}, {"B", "2"}});
    const kv::blocks::NeighborRelation relation = {{{"A", "1"}, {{"B", "2"}}}};
    dialog.GetNeighborRel() = relation;
    EXPECT_EQ(Run(dialog,
                  [](kv::User& user) {
                      user.Click(kClear);
                      Insert(user, "c");
                      user.Click(IDCANCEL);
                  }),
              IDCANCEL);
    EXPECT_THAT(Entries(), ElementsAre("C/"));
    EXPECT_EQ(dialog.GetNeighborRel(), relation);
    dialog.ClearNBMap();
    EXPECT_THAT(dialog.GetNeighborRel(), IsEmpty());
}

TEST_F(BlkExtChanges, OkClosesAnEmptySelectionToo) {
    EXPECT_EQ(Run(dialog, [](kv::User& user) { user.Click(IDOK); }), IDOK);
}

TEST_F(BlkExtChanges, NeighborsAreSoughtForWhatIsSelected) {
    Given({{"PLAIN", ""}});
    desktop.ExpectMessage("Operation skipped for area PLAIN\nPlease provide block number");
    Run(dialog, [](kv::User& user) { user.Click(kNeighbors); });
    EXPECT_THAT(Entries(), ElementsAre("PLAIN/"));
}

TEST_F(BlkExtChanges, TheSmallestValueIsNeverAboveMinusOne) {
    const int values[] = {3, 2, -7, 0};
    EXPECT_EQ(OpenBlkExtDlg::MinVal(values, 0), -1);
    EXPECT_EQ(OpenBlkExtDlg::MinVal(values, -1), -1);
    EXPECT_EQ(OpenBlkExtDlg::MinVal(values, 2), -1);
    EXPECT_EQ(OpenBlkExtDlg::MinVal(values, 4), -7);
}

}  // namespace
