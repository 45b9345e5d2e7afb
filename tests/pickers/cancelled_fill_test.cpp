// Boxes of the bar whose query takes too long for the person.

#include <gmock/gmock.h>

#include "frame/catalogue.h"
#include "pickers/picker_fixture.h"
#include "support/endless_view.h"
#include "support/sqlite_file.h"
#include "window/acting/wait_scene.h"
#include "window/blocked_windows.h"
#include "window/controls/combo_box_node.h"

namespace {

using ::testing::Contains;
using ::testing::IsEmpty;
using namespace kv::abe_bar;

class CancelledFill : public PickerTest {
protected:
    CancelledFill() { kv::SetPatience(std::chrono::milliseconds(50)); }

    void Change(const std::string& sql) const {
        test::RunOnSqliteFile(folder.Native("small.db"), sql);
    }
    std::string Said(int id) {
        return static_cast<kv::ComboBoxNode&>(*bar.m_hWnd->FindChild(id)).List().ToolTip();
    }
    void ExpectCancel() {
        kv::ExpectWait(desktop, [](kv::User& wait) { wait.Click(IDCANCEL); });
    }
    void MakeBlocksEndless() const {
        Change("alter table gulf_mexico_lbi rename to kept;" +
               test::EndlessView("gulf_mexico_lbi", "areacode, lbnum, lbext"));
    }
    void MakeBlocksShort() const {
        Change("drop view gulf_mexico_lbi; alter table kept rename to gulf_mexico_lbi");
    }
};

TEST_F(CancelledFill, OfTheAreasLeavesTheirListEmptyUntilItIsDroppedAgain) {
    Change("alter table gulf_mexico_connam2 rename to kept;" +
           test::EndlessView("gulf_mexico_connam2", "areaname, stcode, area_abbr"));
    CreateBar();
    ExpectCancel();
    user->Drop(kArea);
    EXPECT_EQ(desktop.ScenesLeft(), 0);
    EXPECT_THAT(user->Rows(kArea), IsEmpty());
    EXPECT_EQ(Said(kArea), "Cancelled");
    user->Drop(kArea);

    Change("drop view gulf_mexico_connam2; alter table kept rename to gulf_mexico_connam2");
    user->Drop(kArea);
    EXPECT_THAT(user->Rows(kArea), Contains("GI"));
    EXPECT_EQ(Said(kArea), "");
}

TEST_F(CancelledFill, OfTheBlocksKeepsTheAreaAndIsNotAskedAgainInPassing) {
    CreateBar();
    user->Drop(kArea);
    user->Drop(kArea);
    MakeBlocksEndless();
    ExpectCancel();
    user->Select(kArea, "GI");
    EXPECT_EQ(desktop.ScenesLeft(), 0);
    EXPECT_EQ(user->Text(kArea), "GI");
    EXPECT_THAT(user->Rows(kBlock), IsEmpty());
    EXPECT_EQ(Said(kBlock), "Cancelled");

    const std::size_t asked = statements.size();
    user->Focus(kArea);
    user->Focus(kBlock);
    EXPECT_EQ(statements.size(), asked);

    MakeBlocksShort();
    user->Drop(kBlock);
    EXPECT_THAT(user->Rows(kBlock), Contains("100"));
    EXPECT_EQ(Said(kBlock), "");
}

TEST_F(CancelledFill, WhatIsTypedStays) {
    Change("alter table gulf_mexico_connam2 rename to kept;" +
           test::EndlessView("gulf_mexico_connam2", "areaname, stcode, area_abbr"));
    CreateBar();
    ExpectCancel();
    user->Type(kArea, "G");
    EXPECT_EQ(user->Text(kArea), "G");
    Change("drop view gulf_mexico_connam2; alter table kept rename to gulf_mexico_connam2");
    user->Drop(kArea);
    EXPECT_EQ(user->Text(kArea), "G");
    EXPECT_THAT(user->Rows(kArea), Contains("GI"));
}

}  // namespace
