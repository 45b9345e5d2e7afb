// The block selection dialog's relative for whole areas.

#include "blocks/area_dlg.h"

#include <gmock/gmock.h>

#include "blocks/block_fixture.h"

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;
using namespace kv::blk_ext;

class AreaDlg : public BlockTest {
protected:
    AreaDlg() { SetUp(areas, "areaname"); }
    CKvGuiAreaDlg areas;
};

TEST_F(AreaDlg, ShowsNothingOfBlocks) {
    Run(areas, [](kv::User& user) {
        EXPECT_EQ(user.Window().WindowText(), "Area Selection Dialog");
        for (const int id : {kBlocks, kFromMap, kImport, kExport, kNeighbors}) {
            EXPECT_TRUE(user.HasControl(id)) << id;
            EXPECT_FALSE(user.Visible(id)) << id;
        }
        EXPECT_FALSE(user.HasControl(kListFileCheck));
        EXPECT_FALSE(user.HasControl(kListFileButton));
        const CListCtrl& list = user.Window().Control<CListCtrl>(kSelected);
        EXPECT_EQ(list.GetColumnWidth(0), 320);
        EXPECT_EQ(list.GetColumnWidth(1), 0);
    });
}

TEST_F(AreaDlg, ADoubleClickDoesNothing) {
    Run(areas, [](kv::User& user) {
        Search(user, "grand");
        user.DoubleClick(kAvailable, 0);
        EXPECT_THAT(user.Rows(kBlocks), IsEmpty());
    });
    EXPECT_THAT(statements, SizeIs(1));
}

TEST_F(AreaDlg, SpaceSelectsAndListsNothing) {
    Run(areas, [](kv::User& user) {
        Search(user, "grand");
        user.Key(kAvailable, "Home");
        user.Key(0, "Space");
        EXPECT_THAT(user.Rows(kBlocks), IsEmpty());
        EXPECT_THAT(user.Selected(kAvailable), ElementsAre(0));
    });
    EXPECT_THAT(statements, SizeIs(1));
}

TEST_F(AreaDlg, AddTakesWholeAreas) {
    Given({{"PLAIN", "55"}});
    Run(areas, [](kv::User& user) {
        Search(user, "la");
        user.Select(kAvailable, std::vector<int>{0, 1});
        user.Click(kAdd);
        EXPECT_THAT(user.Rows(kAvailable), ElementsAre("SHORE LANDS"));
        EXPECT_THAT(user.Selected(kAvailable), ElementsAre(0));
        user.Click(IDOK);
    });
    EXPECT_THAT(Entries(), ElementsAre("PLAIN/55", "LAKE LANDS/", "PLAIN/"));
}

TEST_F(AreaDlg, OkLeavesTheListFileAloneWithoutItsCheckBox) {
    areas.SetListFileFlag(true);
    areas.SetListFileName("C:\\a.txt");
    Run(areas, [](kv::User& user) { user.Click(IDOK); });
    EXPECT_TRUE(areas.GetListFileFlag());
    EXPECT_EQ(areas.GetListFileName(), "C:\\a.txt");
}

}  // namespace
