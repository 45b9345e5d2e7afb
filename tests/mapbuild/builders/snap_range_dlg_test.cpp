#include "mapbuild/builders/snap_range_dlg.h"

#include "frame/module.h"
#include "mapbuild/builders/quick_off_bld_ids.h"
#include "support/exchanging_dialog.h"

using namespace kv::snap_range;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class SnapRangeDlg : public test::DialogTest {
protected:
    SnapRangeDlg() { InitControlDll(); }

    /// The range that OK gives for a text.
    int Typed(const std::string& text) {
        Run(dialog, [&](kv::User& user) {
            user.Type(kRange, text);
            user.Click(IDOK);
        });
        return dialog.GetRange();
    }

    CKvGuiSnapRangeDlg dialog;
};

TEST_F(SnapRangeDlg, OpensOnItsRangeReadyToBeTypedOver) {
    Run(dialog, [&](kv::User& user) {
        EXPECT_EQ(user.Window().WindowText(), "Map Bounds");
        EXPECT_EQ(user.Text(kRange), "0");
        EXPECT_THAT(user.Rows(kRange), ElementsAre("0", "100", "500", "1000", "10000", "20000"));
        EXPECT_THAT(user.Selected(kRange), ElementsAre(0));
        EXPECT_EQ(test::FocusedId(), kRange);
    });
    dialog.SetRange(10000);
    Run(dialog, [&](kv::User& user) {
        EXPECT_EQ(user.Text(kRange), "10000");
        EXPECT_THAT(user.Selected(kRange), ElementsAre(4));
    });
}

TEST_F(SnapRangeDlg, ADerivedOneExchangesItsDataAtTheStartAndAtOk) {
    test::Exchanging<CKvGuiSnapRangeDlg> own;
    Run(own, [&](kv::User& user) {
        EXPECT_EQ(own.shown, 1);
        user.Click(IDOK);
    });
    EXPECT_EQ(own.taken, 1);
}

TEST_F(SnapRangeDlg, ShowsARangeThatIsNoLine) {
    dialog.SetRange(750);
    Run(dialog, [&](kv::User& user) {
        EXPECT_EQ(user.Text(kRange), "750");
        EXPECT_THAT(user.Selected(kRange), IsEmpty());
        user.Click(IDOK);
    });
    EXPECT_EQ(dialog.GetRange(), 750);
}

TEST_F(SnapRangeDlg, TakesALineOrATypedNumber) {
    Run(dialog, [](kv::User& user) {
        user.Select(kRange, "500");
        user.Click(IDOK);
    });
    EXPECT_EQ(dialog.GetRange(), 500);
    EXPECT_EQ(Typed("250"), 250);
    EXPECT_EQ(Typed("-5"), -5);
    EXPECT_EQ(Typed("12.9"), 12);
}

TEST_F(SnapRangeDlg, AnEmptyTextIsNone) {
    dialog.SetRange(500);
    Run(dialog, [](kv::User& user) {
        user.Key(kRange, "Delete");
        EXPECT_EQ(user.Text(kRange), "");
        user.Click(IDOK);
    });
    EXPECT_EQ(dialog.GetRange(), 0);
}

TEST_F(SnapRangeDlg, ATextWithALetterIsToldAndTheDialogStays) {
    Run(dialog, [&](kv::User& user) {
        for (const char* text : {"abc", "100m", "1E3", "A", "1Z", "a", "z"}) {
            user.Type(kRange, text);
            desktop.ExpectMessage("Error! Please enter a number.");
            user.Click(IDOK);
            EXPECT_TRUE(user.Open());
            EXPECT_EQ(user.Text(kRange), text);
        }
        user.Click(IDCANCEL);
    });
    EXPECT_EQ(dialog.GetRange(), 0);
}

}  // namespace
