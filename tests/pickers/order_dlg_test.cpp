#include "pickers/order_dlg.h"

#include "pickers/custom_order_dlg_ids.h"
#include "pickers/order_dlg_ids.h"
#include "support/statement_test.h"

namespace {

using namespace kv::order_dlg;
using testing::IsEmpty;

class OrderDlg : public test::StatementTest {
protected:
    OrderDlg()
        : StatementTest("create table nvd2000_area_order (areaname text, seq int, defseq int)") {}

    COrderDlg dialog;
};

TEST_F(OrderDlg, BeginsWithTheUsersOwnOrder) {
    EXPECT_TRUE(dialog.GetbCustom());
    Run(dialog, [&](kv::User& user) {
        CString caption;
        user.Window().GetWindowText(caption);
        EXPECT_STREQ(caption, "Order By");
        EXPECT_TRUE(user.Checked(kCustom));
        EXPECT_FALSE(user.Checked(kAreaName));
        EXPECT_TRUE(user.Enabled(kCustomize));
        EXPECT_EQ(test::FocusedId(), kCustom);
    });
}

TEST_F(OrderDlg, OnlyTheUsersOwnOrderCanBeCustomized) {
    Run(dialog, [&](kv::User& user) {
        user.Click(kAreaName);
        EXPECT_FALSE(user.Enabled(kCustomize));
        user.Key(kAreaName, "Up");
        EXPECT_TRUE(user.Checked(kCustom));
        EXPECT_TRUE(user.Enabled(kCustomize));
    });
}

TEST_F(OrderDlg, OkRemembersTheAnswerForTheNextTime) {
    EXPECT_EQ(Run(dialog,
                  [&](kv::User& user) {
                      user.Click(kAreaName);
                      user.Click(IDOK);
                  }),
              IDOK);
    EXPECT_FALSE(dialog.GetbCustom());
    Run(dialog, [&](kv::User& user) {
        EXPECT_TRUE(user.Checked(kAreaName));
        EXPECT_FALSE(user.Checked(kCustom));
        EXPECT_FALSE(user.Enabled(kCustomize));
        EXPECT_EQ(test::FocusedId(), kAreaName);
        user.Click(kCustom);
        user.Click(IDOK);
    });
    EXPECT_TRUE(dialog.GetbCustom());
}

TEST_F(OrderDlg, CancelKeepsTheAnswer) {
    EXPECT_EQ(Run(dialog,
                  [&](kv::User& user) {
                      user.Click(kAreaName);
                      user.Click(IDCANCEL);
                  }),
              IDCANCEL);
    EXPECT_TRUE(dialog.GetbCustom());
}

TEST_F(OrderDlg, CustomizeOpensTheDialogForTheOrder) {
    std::string caption;
    desktop.ExpectWindow("CCustomOrderDlg", [&](kv::User& user) {
        caption = user.WindowNode().Text();
        user.Click(IDCANCEL);
    });
    Run(dialog, [&](kv::User& user) {
        user.Click(kCustomize);
        EXPECT_TRUE(user.Open());
        EXPECT_EQ(test::FocusedId(), kCustomize);
    });
    EXPECT_EQ(caption, "Customize Area Name Order");
}

TEST_F(OrderDlg, TouchesNoDatabaseItself) {
    Run(dialog, [&](kv::User& user) { user.Click(IDOK); });
    EXPECT_THAT(statements, IsEmpty());
}

}  // namespace
