// The Neighbor button, on blocks that lie side by side.

#include <gmock/gmock.h>

#include "blocks/block_files_fixture.h"
#include "support/neighbor_database.h"
#include "window/frames/frame_wnd.h"

namespace {

using ::testing::AllOf;
using ::testing::Contains;
using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::StartsWith;
using ::testing::UnorderedElementsAre;
using namespace kv::blk_ext;
using kv::blocks::NeighborRelation;
using kv::blocks::Place;

class BlkExtNeighbors : public BlockFilesTest {
protected:
    BlkExtNeighbors() {
        app.m_pMainWnd = &frame;
        frame.Create("Host");
        frame.ShowWindow(SW_SHOW);
        UseDatabase("sqlite:" + test::MakeNeighborDatabase(folder.Native("neighbors.db")));
    }

    CWinApp app;
    CFrameWnd frame;
};

TEST_F(BlkExtNeighbors, JoinTheSelectionAndAreShown) {
    Given({{"ALPHA", "7"}});
    Run(dialog, [this](kv::User& user) {
        user.Click(kSelected);
        EXPECT_TRUE(user.Enabled(kRemove));
        user.Click(kNeighbors);
        EXPECT_THAT(user.Rows(kSelected), UnorderedElementsAre("ALPHA\t7", "ALPHA\t4", "ALPHA\t5",
                                                               "ALPHA\t8", "SHORE\t7"));
        EXPECT_EQ(dialog.m_nSelectedRows, 5);
        // As after every refresh.
        EXPECT_FALSE(user.Enabled(kRemove));
        user.Click(IDOK);
    });
    EXPECT_EQ(Entries().front(), "ALPHA/7");
    EXPECT_THAT(Entries(), Contains("SHORE/7"));
    const NeighborRelation& relation = dialog.GetNeighborRel();
    ASSERT_EQ(relation.size(), 1u);
    EXPECT_THAT(relation.at({"ALPHA", "7"}),
                UnorderedElementsAre(Place{"ALPHA", "4"}, Place{"ALPHA", "5"}, Place{"ALPHA", "8"},
                                     Place{"SHORE", "7"}));
}

TEST_F(BlkExtNeighbors, ThoseThatWereAddedAreSoughtFromByTheNextPress) {
    Given({{"ALPHA", "7"}});
    Run(dialog, [](kv::User& user) {
        user.Click(kNeighbors);
        user.Click(kNeighbors);
        EXPECT_THAT(user.Rows(kSelected), Contains("ALPHA\t9"));
        user.Click(IDOK);
    });
    EXPECT_EQ(dialog.GetNeighborRel().size(), 5u);
}

TEST_F(BlkExtNeighbors, OfACancelledDialogStaySelectedAndTheirRelationGoes) {
    Given({{"ALPHA", "99"}, {"ALPHA", "7"}});
    dialog.GetNeighborRel()[{"ALPHA", "99"}] = {{"ALPHA", "1"}};
    const NeighborRelation before = dialog.GetNeighborRel();
    Run(dialog, [this, &before](kv::User& user) {
        user.Click(kNeighbors);
        EXPECT_NE(dialog.GetNeighborRel(), before);
        user.Click(IDCANCEL);
    });
    EXPECT_EQ(dialog.GetNeighborRel(), before);
    EXPECT_THAT(Entries(), Contains("ALPHA/8"));
}

TEST_F(BlkExtNeighbors, AreSoughtByWhatTheDialogShowsAreasBy) {
    dialog.SetFieldString("stcode");
    Given({{"A01", "7"}});
    Run(dialog, [](kv::User& user) { user.Click(kNeighbors); });
    EXPECT_THAT(Entries(), UnorderedElementsAre("A01/7", "A01/4", "A01/5", "A01/8", "42601/7"));
    EXPECT_THAT(statements, Each(Not(HasSubstr("connam2"))));
}

TEST_F(BlkExtNeighbors, AreSoughtByWhatAnImportFound) {
    folder.Write("in.txt", "AREA CODE\tBlock\tExt.\nA01\t7\t \t\n");
    desktop.ExpectFile(folder.Dialog("in.txt"));
    Run(dialog, [this](kv::User& user) {
        user.Click(kImport);
        EXPECT_EQ(dialog.GetFieldString(), "stcode");
        ASSERT_THAT(statements, IsEmpty());
        user.Click(kNeighbors);
    });
    EXPECT_THAT(Entries(), UnorderedElementsAre("A01/7", "A01/4", "A01/5", "A01/8", "42601/7"));
}

TEST_F(BlkExtNeighbors, AreSoughtByWhatTheUserTellsOfAFile) {
    folder.Write("in.txt", "My blocks\nA01\t7\n");
    desktop.ExpectFile(folder.Dialog("in.txt"));
    desktop.ExpectWindow("CKvImportConfigDlg", [](kv::User& user) {
        user.Click(29105);
        user.Click(IDOK);
    });
    Run(dialog, [](kv::User& user) {
        user.Click(kImport);
        user.Click(kNeighbors);
    });
    EXPECT_THAT(Entries(), UnorderedElementsAre("A01/7", "A01/4", "A01/5", "A01/8", "42601/7"));
}

TEST_F(BlkExtNeighbors, AFailureIsToldAsTheDatabasesWithItsStatement) {
    Given({{"O'NEIL", "1"}});
    desktop.ExpectMessage("");
    Run(dialog, [](kv::User& user) {
        user.Click(kNeighbors);
        EXPECT_THAT(user.Rows(kSelected), ElementsAre("O'NEIL\t1"));
    });
    EXPECT_THAT(desktop.Messages(), ElementsAre(AllOf(StartsWith("Database error: "),
                                                      HasSubstr("select distinct areaname"))));
}

TEST_F(BlkExtNeighbors, GoIntoTheWorkTableThroughTheDialogsFinder) {
    Given({{"ALPHA", "7"}});
    Run(dialog, [](kv::User& user) {
        user.Click(kNeighbors);
        user.Click(IDOK);
    });
    dialog.GetNeighborBlockPointer()->InsertMapToTable(dialog.GetNeighborRel());
    CKvDbAbsDataMgr db(1);
    db.Connect();
    EXPECT_EQ(db.Select("select n_area, n_bext, area_type from NORVADON.nvd2000_tmp_abe2"), 4);
    EXPECT_STREQ(db.GetItem(0, 2), "N");
}

}  // namespace
