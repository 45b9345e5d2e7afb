#include "mapbuild/dms_dlg.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "frame/module.h"
#include "mapbuild/dms_dlg_ids.h"
#include "support/dialog_fixture.h"

using namespace kv::dms_dlg;

namespace {

using testing::ElementsAre;

class DMSDlg : public test::DialogTest {
protected:
    DMSDlg() { InitControlDll(); }

    static std::string Max(kv::User& user) {
        return user.Text(kMaxDegEdit) + "|" + user.Text(kMaxMinEdit) + "|" + user.Text(kMaxSecEdit);
    }
    static std::string Min(kv::User& user) {
        return user.Text(kMinDegEdit) + "|" + user.Text(kMinMinEdit) + "|" + user.Text(kMinSecEdit);
    }
};

TEST_F(DMSDlg, ShowsBothLatitudes) {
    CKvGuiDMSDlg dialog("28.504236", "-0.5", true);
    const int result = Run(dialog, [&](kv::User& user) {
        CString caption;
        user.Window().GetWindowText(caption);
        EXPECT_STREQ(caption, "DMS Dialog");
        EXPECT_EQ(user.Text(kMaxLabel), "Maximum Lat");
        EXPECT_EQ(user.Text(kMinLabel), "Minimum Lat");
        EXPECT_EQ(Max(user), "28|30|15.25");
        EXPECT_EQ(Min(user), "-0|30|0.00");
        EXPECT_EQ(test::FocusedId(), kMaxDegEdit);
        user.Click(IDOK);
    });
    EXPECT_EQ(result, IDOK);
    EXPECT_NEAR(dialog.GetDMSMax(), 28.504236, 0.005 / 3600.0);
    EXPECT_EQ(dialog.GetDMSMin(), -0.5);
}

TEST_F(DMSDlg, ShowsBothLongitudes) {
    CKvGuiDMSDlg dialog("-200", "-95.5", false);
    Run(dialog, [&](kv::User& user) {
        EXPECT_EQ(user.Text(kMaxLabel), "Maximum Lon");
        EXPECT_EQ(user.Text(kMinLabel), "Minimum Lon");
        EXPECT_EQ(Max(user), "160|0|0.00");
        EXPECT_EQ(Min(user), "-95|30|0.00");
        user.Click(IDOK);
    });
    EXPECT_EQ(dialog.GetDMSMax(), 160.0);
    EXPECT_EQ(dialog.GetDMSMin(), -95.5);
}

TEST_F(DMSDlg, StartsEmptyWithoutTexts) {
    CKvGuiDMSDlg dialog("", "", true);
    EXPECT_EQ(Run(dialog,
                  [&](kv::User& user) {
                      EXPECT_EQ(Max(user), "||");
                      EXPECT_EQ(Min(user), "||");
                      user.Click(IDOK);
                  }),
              IDOK);
    EXPECT_EQ(dialog.GetDMSMax(), 1000.0);
    EXPECT_EQ(dialog.GetDMSMin(), 1000.0);
}

TEST_F(DMSDlg, StartsEmptyWithTextsOutOfRange) {
    CKvGuiDMSDlg dialog("95", "200", true);
    Run(dialog, [&](kv::User& user) {
        EXPECT_EQ(Max(user), "||");
        EXPECT_EQ(Min(user), "||");
    });
}

TEST_F(DMSDlg, AWrongTextReadsAsItsLeadingNumber) {
    CKvGuiDMSDlg dialog("abc", "12.5xyz", true);
    Run(dialog, [&](kv::User& user) {
        EXPECT_EQ(Max(user), "0|0|0.00");
        EXPECT_EQ(Min(user), "12|30|0.00");
    });
}

TEST_F(DMSDlg, AMaximumBelowTheMinimumKeepsItOpen) {
    CKvGuiDMSDlg dialog("29", "28", true);
    const int result = Run(dialog, [&](kv::User& user) {
        user.Type(kMaxDegEdit, "27");
        desktop.ExpectMessage("Invalid!! Max < Min!\n Please re-enter!");
        user.Click(IDOK);
        EXPECT_TRUE(user.Open());
        EXPECT_EQ(dialog.GetDMSMax(), 29.0);
        EXPECT_EQ(dialog.GetDMSMin(), 28.0);
        EXPECT_EQ(Max(user), "27|0|0.00");
        user.Type(kMaxDegEdit, "30");
        user.Key(0, "Enter");
    });
    EXPECT_EQ(result, IDOK);
    EXPECT_EQ(dialog.GetDMSMax(), 30.0);
    EXPECT_THAT(desktop.Messages(), ElementsAre("Invalid!! Max < Min!\n Please re-enter!"));
}

TEST_F(DMSDlg, EqualOnesAreFine) {
    CKvGuiDMSDlg dialog("28.5", "28.5", true);
    EXPECT_EQ(Run(dialog, [&](kv::User& user) { user.Click(IDOK); }), IDOK);
    EXPECT_EQ(dialog.GetDMSMax(), 28.5);
    EXPECT_EQ(dialog.GetDMSMin(), 28.5);
}

TEST_F(DMSDlg, ASideThatIsWhollyEmptyIsNotCompared) {
    CKvGuiDMSDlg dialog("", "28", true);
    EXPECT_EQ(Run(dialog, [&](kv::User& user) { user.Click(IDOK); }), IDOK);
    EXPECT_EQ(dialog.GetDMSMax(), 1000.0);
    EXPECT_EQ(dialog.GetDMSMin(), 28.0);

    CKvGuiDMSDlg other("-28", "28", true);
    EXPECT_EQ(Run(other,
                  [&](kv::User& user) {
                      for (const int id : {kMinDegEdit, kMinMinEdit, kMinSecEdit})
                          user.Type(id, "");
                      user.Click(IDOK);
                  }),
              IDOK);
    EXPECT_EQ(other.GetDMSMax(), -28.0);
    EXPECT_EQ(other.GetDMSMin(), 1000.0);
}

TEST_F(DMSDlg, ASideWithOneBoxFilledIsCompared) {
    CKvGuiDMSDlg dialog("", "28", true);
    Run(dialog, [&](kv::User& user) {
        user.Type(kMaxMinEdit, "30");
        desktop.ExpectMessage("Invalid!! Max < Min!\n Please re-enter!");
        user.Click(IDOK);
        EXPECT_TRUE(user.Open());
    });
}

TEST_F(DMSDlg, CancelStoresNothing) {
    CKvGuiDMSDlg dialog("29", "28", true);
    EXPECT_EQ(Run(dialog,
                  [&](kv::User& user) {
                      user.Type(kMaxDegEdit, "30");
                      user.Click(IDCANCEL);
                  }),
              IDCANCEL);
    EXPECT_EQ(dialog.GetDMSMax(), 29.0);
    EXPECT_EQ(dialog.GetDMSMin(), 28.0);
}

TEST_F(DMSDlg, APastedAngleFillsASide) {
    CKvGuiDMSDlg dialog("", "", false);
    Run(dialog, [&](kv::User& user) {
        user.Paste(kMaxMinEdit, "28°30'15.25\"N 89°07'30\"W");
        user.Paste(kMinDegEdit, "-95.5");
        EXPECT_EQ(Max(user), "-89|7|30.00");
        EXPECT_EQ(Min(user), "-95|30|0.00");
        user.Click(IDOK);
    });
    EXPECT_EQ(dialog.GetDMSMax(), -89.125);
    EXPECT_EQ(dialog.GetDMSMin(), -95.5);
}

TEST_F(DMSDlg, EnterDoesNotTakeDegreesOutOfRange) {
    CKvGuiDMSDlg dialog("29", "28", true);
    EXPECT_EQ(Run(dialog,
                  [&](kv::User& user) {
                      user.Type(kMaxDegEdit, "95");
                      desktop.ExpectMessage("Value out of range");
                      user.Key(kMaxDegEdit, "Enter");
                      ASSERT_TRUE(user.Open());
                      EXPECT_EQ(Max(user), "|0|0.00");
                      user.Type(kMaxDegEdit, "30");
                      user.Key(kMaxDegEdit, "Enter");
                  }),
              IDOK);
    EXPECT_EQ(dialog.GetDMSMax(), 30.0);
}

TEST_F(DMSDlg, RunsAgainAsItRanFirst) {
    CKvGuiDMSDlg dialog("29", "28", true);
    for (int i = 0; i < 2; ++i) {
        EXPECT_EQ(Run(dialog,
                      [&](kv::User& user) {
                          EXPECT_EQ(Max(user), "29|0|0.00");
                          user.Type(kMaxDegEdit, "30");
                          user.Click(IDOK);
                      }),
                  IDOK);
        EXPECT_EQ(dialog.GetDMSMax(), 30.0);
    }
}

}  // namespace
