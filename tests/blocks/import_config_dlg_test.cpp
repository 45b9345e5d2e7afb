#include "blocks/import_config_dlg.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "blocks/import_config_ids.h"
#include "frame/module.h"
#include "support/dialog_fixture.h"

namespace {

using namespace kv::import_config;

class ImportConfigDlg : public test::DialogTest {
protected:
    ImportConfigDlg() { InitControlDll(); }

    int Configure(const std::function<void(kv::User&)>& act) { return Run(dialog, act); }

    CKvImportConfigDlg dialog;
};

TEST_F(ImportConfigDlg, ComesUpWithTabsAndMmsCodesAndWithoutAnExtensionDelimiter) {
    Configure([](kv::User& user) {
        EXPECT_EQ(user.Window().WindowText(), "Import Configuration");
        for (const int id : {kMmsCodes, kBlockFirst, kNoExtDelimiter, kTab})
            EXPECT_TRUE(user.Checked(id)) << id;
        for (const int id : {kAreaNames, kAreaCodes, kExtFirst, kHasExtDelimiter})
            EXPECT_FALSE(user.Checked(id)) << id;
        EXPECT_EQ(user.Text(kExtDelimiter), "-");
        EXPECT_EQ(user.Text(kColumnDelimiter), "-");
        for (const int id : {kExtDelimiter, kColumnDelimiter, kColumnDelimiterLabel})
            EXPECT_FALSE(user.Enabled(id)) << id;
    });
}

TEST_F(ImportConfigDlg, SpeaksTheUsersLanguage) {
    Configure([](kv::User& user) {
        EXPECT_EQ(user.Text(kAreaNames), "Areaname");
        EXPECT_EQ(user.Text(kAreaCodes), "Areacode");
        EXPECT_EQ(user.Text(kMmsCodes), "MMS code");
        EXPECT_EQ(user.Text(kBlockFirst), "Block+Ext");
        EXPECT_EQ(user.Text(kExtFirst), "Ext+Block");
        EXPECT_EQ(user.Text(kHasExtDelimiter), "Yes");
        EXPECT_EQ(user.Text(kNoExtDelimiter), "No");
        EXPECT_EQ(user.Text(kTab), "Use tab as a delimiter");
        EXPECT_EQ(user.Text(kColumnDelimiterLabel), "Use user specified delimiter");
        EXPECT_EQ(user.Text(IDOK), "Close");
        EXPECT_FALSE(user.HasControl(IDCANCEL));
    });
}

TEST_F(ImportConfigDlg, ClosedAtOnceGivesItsDefaults) {
    EXPECT_EQ(Configure([](kv::User& user) { user.Click(IDOK); }), IDOK);
    EXPECT_EQ(dialog.GetAreaType(), "area_abbr");
    EXPECT_TRUE(dialog.GetBlockFirst());
    EXPECT_EQ(dialog.GetColumnDelimiter(), "\t");
    EXPECT_EQ(dialog.GetExtDelimiter(), "");
}

TEST_F(ImportConfigDlg, GivesWhatTheUserChose) {
    Configure([](kv::User& user) {
        user.Click(kAreaNames);
        user.Click(kExtFirst);
        user.Click(kHasExtDelimiter);
        user.Type(kExtDelimiter, "/");
        user.Click(kTab);
        user.Type(kColumnDelimiter, ", ");
        user.Click(IDOK);
    });
    EXPECT_EQ(dialog.GetAreaType(), "areaname");
    EXPECT_FALSE(dialog.GetBlockFirst());
    EXPECT_EQ(dialog.GetColumnDelimiter(), ", ");
    EXPECT_EQ(dialog.GetExtDelimiter(), "/");
}

TEST_F(ImportConfigDlg, NamesTheColumnOfEachKindOfArea) {
    for (const auto& [id, column] :
         {std::pair(kAreaNames, "areaname"), {kAreaCodes, "stcode"}, {kMmsCodes, "area_abbr"}}) {
        Configure([&](kv::User& user) {
            user.Click(id);
            user.Click(IDOK);
        });
        EXPECT_EQ(dialog.GetAreaType(), column);
    }
}

TEST_F(ImportConfigDlg, TheExtensionDelimiterIsOpenOnlyWithYes) {
    Configure([](kv::User& user) {
        user.Click(kHasExtDelimiter);
        EXPECT_TRUE(user.Enabled(kExtDelimiter));
        user.Type(kExtDelimiter, "+");
        user.Click(kNoExtDelimiter);
        EXPECT_FALSE(user.Enabled(kExtDelimiter));
        EXPECT_EQ(user.Text(kExtDelimiter), "+");
        user.Click(IDOK);
    });
    EXPECT_EQ(dialog.GetExtDelimiter(), "");
}

TEST_F(ImportConfigDlg, TheColumnDelimiterIsOpenOnlyWithoutTheTab) {
    Configure([](kv::User& user) {
        user.Click(kTab);
        EXPECT_TRUE(user.Enabled(kColumnDelimiter));
        EXPECT_TRUE(user.Enabled(kColumnDelimiterLabel));
        user.Type(kColumnDelimiter, ";");
        user.Click(kTab);
        EXPECT_FALSE(user.Enabled(kColumnDelimiter));
        EXPECT_FALSE(user.Enabled(kColumnDelimiterLabel));
        user.Click(IDOK);
    });
    EXPECT_EQ(dialog.GetColumnDelimiter(), "\t");
}

TEST_F(ImportConfigDlg, ShowsAgainWhatWasChosen) {
    Configure([](kv::User& user) {
        user.Click(kAreaCodes);
        user.Click(kExtFirst);
        user.Click(kHasExtDelimiter);
        user.Type(kExtDelimiter, "/");
        user.Click(kTab);
        user.Click(IDOK);
    });
    Configure([](kv::User& user) {
        for (const int id : {kAreaCodes, kExtFirst, kHasExtDelimiter})
            EXPECT_TRUE(user.Checked(id)) << id;
        EXPECT_FALSE(user.Checked(kTab));
        EXPECT_EQ(user.Text(kExtDelimiter), "/");
        EXPECT_TRUE(user.Enabled(kExtDelimiter));
        EXPECT_TRUE(user.Enabled(kColumnDelimiter));
    });
}

TEST_F(ImportConfigDlg, EscapeLeavesWhatWasThere) {
    EXPECT_EQ(Configure([](kv::User& user) {
                  user.Click(kAreaNames);
                  user.Click(kTab);
                  user.Key(0, "Escape");
              }),
              IDCANCEL);
    EXPECT_EQ(dialog.GetAreaType(), "area_abbr");
    EXPECT_EQ(dialog.GetColumnDelimiter(), "\t");
}

TEST_F(ImportConfigDlg, EnterCloses) {
    EXPECT_EQ(Configure([](kv::User& user) { user.Key(kTab, "Enter"); }), IDOK);
}

}  // namespace
