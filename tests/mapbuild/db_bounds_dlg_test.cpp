#include "mapbuild/db_bounds_dlg.h"

#include <gtest/gtest.h>

#include "frame/module.h"
#include "mapbuild/db_bounds_dlg_ids.h"
#include "support/dialog_fixture.h"

using namespace kv::db_bounds_dlg;

namespace {

class DbBoundsDlg : public test::DialogTest {
protected:
    DbBoundsDlg() {
        InitControlDll();
        CString from("1000");
        CString to("2000");
        dialog.SetBounds(from, to);
    }

    CKvDbBoundsDlg dialog;
};

TEST_F(DbBoundsDlg, ShowsTheBoundsAndGivesThemBack) {
    EXPECT_EQ(dialog.m_bOK, 0);
    const int result = Run(dialog, [&](kv::User& user) {
        CString caption;
        user.Window().GetWindowText(caption);
        EXPECT_STREQ(caption, "Dialog");
        EXPECT_EQ(user.Text(kFrom), "1000");
        EXPECT_EQ(user.Text(kTo), "2000");
        EXPECT_EQ(user.Text(kMeters), "Meters");
        EXPECT_EQ(user.Text(kFeet), "Feet");
        user.Type(kFrom, "1500");
        user.Click(kFeet);
        user.Click(IDOK);
    });
    EXPECT_EQ(result, IDOK);
    EXPECT_STREQ(dialog.m_strFrom, "1500");
    EXPECT_STREQ(dialog.m_strTo, "2000");
    EXPECT_EQ(dialog.m_bOK, 1);
}

TEST_F(DbBoundsDlg, DoesNotLookAtTheTexts) {
    Run(dialog, [&](kv::User& user) {
        user.Type(kFrom, "deep");
        user.Type(kTo, "");
        user.Key(0, "Enter");
    });
    EXPECT_STREQ(dialog.m_strFrom, "deep");
    EXPECT_STREQ(dialog.m_strTo, "");
    EXPECT_EQ(dialog.m_bOK, 1);
}

TEST_F(DbBoundsDlg, CancelStoresNothing) {
    EXPECT_EQ(Run(dialog,
                  [&](kv::User& user) {
                      user.Type(kFrom, "1500");
                      user.Key(0, "Escape");
                  }),
              IDCANCEL);
    EXPECT_STREQ(dialog.m_strFrom, "1000");
    EXPECT_EQ(dialog.m_bOK, 0);
}

TEST_F(DbBoundsDlg, UnitsAreOneChoiceWithoutAnEffect) {
    Run(dialog, [&](kv::User& user) {
        EXPECT_FALSE(user.Checked(kMeters));
        EXPECT_FALSE(user.Checked(kFeet));
        user.Click(kMeters);
        user.Click(kFeet);
        EXPECT_FALSE(user.Checked(kMeters));
        EXPECT_TRUE(user.Checked(kFeet));
        EXPECT_EQ(user.Text(kFrom), "1000");
        user.Click(IDOK);
    });
    EXPECT_STREQ(dialog.m_strFrom, "1000");
}

}  // namespace
