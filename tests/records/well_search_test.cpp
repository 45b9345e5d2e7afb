#include "records/well_search.h"

#include "records/well_search_ids.h"
#include "support/built_map_database.h"
#include "support/exchanging_dialog.h"
#include "support/listening_desktop.h"
#include "support/statement_test.h"

namespace {

using namespace kv::well_search;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr const char* kNoApi =
    "Invalid! Please enter a valid API number.\n If you do not want to search, please click "
    "Cancel!";
constexpr const char* kNoWell =
    "Invalid! Please enter a valid Well number.\n If you do not want to search, please click "
    "Cancel!";
constexpr const char* kNoArea = "Invalid! Please specify the area associating with this block!";

class WellSearch : public test::StatementTest {
protected:
    WellSearch() : StatementTest(test::kBuiltMapTables) {
        dialog.SetMinLatLon(-91, 28);
        dialog.SetMaxLatLon(-90, 29);
    }

    CKvGuiWellSearch dialog;
};

TEST_F(WellSearch, BeginsWithTheApiNumbersAndTheFocusThere) {
    dialog.AddApiNum("608110000200");
    dialog.AddApiNum("608110000100");
    dialog.AddApiNum("608110000200");
    EXPECT_EQ(Run(dialog,
                  [&](kv::User& user) {
                      EXPECT_EQ(user.WindowNode().Text(), "Wells Search");
                      EXPECT_TRUE(user.Checked(kByApi));
                      EXPECT_FALSE(user.Checked(kByArea));
                      EXPECT_THAT(user.Rows(kApi), ElementsAre("608110000100", "608110000200"));
                      EXPECT_EQ(user.Text(kApi), "608110000100");
                      EXPECT_TRUE(user.Enabled(kApi));
                      for (const int id : {kArea, kBlock, kWell, kAreaLabel, kWellLabel})
                          EXPECT_FALSE(user.Enabled(id)) << id;
                      EXPECT_EQ(test::FocusedId(), kApi);
                      user.Select(kApi, "608110000200");
                      user.Click(IDOK);
                  }),
              IDOK);
    EXPECT_EQ(dialog.GetSearchString(), "608110000200");
    EXPECT_TRUE(dialog.IsSearchByAPI());
    EXPECT_TRUE(dialog.GetTermination());
}

TEST_F(WellSearch, ByAreaItBeginsWithTheWholeTextOfTheAreaSelected) {
    dialog.SearchByAPI(false);
    dialog.SetMode(1);
    dialog.SetAreaCode("4271");
    dialog.SetBlockNumber("7");
    dialog.SetExtension("B ");
    Run(dialog, [&](kv::User& user) {
        EXPECT_TRUE(user.Checked(kByArea));
        EXPECT_FALSE(user.Enabled(kApi));
        EXPECT_FALSE(user.Enabled(kApiLabel));
        for (const int id : {kArea, kBlock, kWell, kAreaLabel, kWellLabel})
            EXPECT_TRUE(user.Enabled(id)) << id;
        EXPECT_EQ(user.Text(kArea), "LAKE");
        EXPECT_EQ(user.Text(kBlock), "7B");
        EXPECT_THAT(user.Rows(kArea), ElementsAre(" -AREA CODE-", " -MMS CODE-", "GRAND ISLE",
                                                  "GRAND ISLE SOUTH", "LAKE", "O'HARA BAY"));
        EXPECT_THAT(user.Rows(kBlock), ElementsAre("7-L")) << "there is no ALL";
        EXPECT_EQ(test::FocusedId(), kArea);
        user.Key(0, "X");
        EXPECT_EQ(user.Text(kArea), "x");
    });
    EXPECT_EQ(dialog.GetMode(), 1);
    EXPECT_EQ(dialog.GetAreaCode(), "4271");
    EXPECT_EQ(dialog.GetBlockNumber(), "7");
    EXPECT_EQ(dialog.GetExtension(), "B ");
}

TEST_F(WellSearch, TheLongitudeOfACornerComesFirst) {
    dialog.SetMode(2);
    Run(dialog, [](kv::User&) {});
    EXPECT_THAT(statements.front(),
                HasSubstr("(V.lat between 28.000000 and 29.000000) and (V.lon between -91.000000 "
                          "and -90.000000)"));
}

TEST_F(WellSearch, TheBlockBoxStaysOffWhileTheSearchIsByApiNumber) {
    dialog.SetAreaCode("017");
    dialog.SetMode(2);
    Run(dialog, [&](kv::User& user) {
        EXPECT_EQ(user.Text(kArea), "017");
        EXPECT_FALSE(user.Enabled(kBlock));
        EXPECT_EQ(test::FocusedId(), kApi);
        user.Click(kByArea);
        EXPECT_TRUE(user.Enabled(kBlock));
        user.Type(kArea, "018");
        user.Click(kByApi);
        EXPECT_FALSE(user.Enabled(kBlock));
        EXPECT_FALSE(user.Enabled(kArea));
    });
}

TEST_F(WellSearch, TheArrowKeysOfTheChoiceSwitchTheBoxes) {
    Run(dialog, [&](kv::User& user) {
        user.Key(kByApi, "Down");
        EXPECT_TRUE(user.Checked(kByArea));
        EXPECT_TRUE(user.Enabled(kWell));
        EXPECT_FALSE(dialog.IsSearchByAPI());
        user.Key(kByArea, "Up");
        EXPECT_FALSE(user.Enabled(kWell));
        EXPECT_TRUE(dialog.IsSearchByAPI());
    });
}

TEST_F(WellSearch, NoAreaAndNoBlockGiveTwoMarks) {
    dialog.SearchByAPI(false);
    Run(dialog, [](kv::User& user) {
        user.Type(kWell, "123");
        user.Click(IDOK);
    });
    EXPECT_EQ(dialog.GetSearchString(), "_#_#123");
}

TEST_F(WellSearch, AnAreaWithoutABlockGivesOneMark) {
    dialog.SearchByAPI(false);
    Run(dialog, [](kv::User& user) {
        user.Select(kArea, "LL");
        user.Type(kWell, "A001");
        user.Click(IDOK);
    });
    EXPECT_EQ(dialog.GetSearchString(), "LL#_#A001");
}

TEST_F(WellSearch, AnAreaAndABlockStandAheadOfTheWell) {
    dialog.SearchByAPI(false);
    Run(dialog, [](kv::User& user) {
        user.Select(kArea, "LL");
        user.Select(kBlock, "7-L");
        user.Type(kWell, "A001");
        user.Click(IDOK);
    });
    EXPECT_EQ(dialog.GetSearchString(), "LL#7-L#A001");
    EXPECT_TRUE(dialog.GetTermination());
}

TEST_F(WellSearch, ABlockWithoutAnAreaIsRefusedAtTheArea) {
    dialog.SearchByAPI(false);
    desktop.ExpectMessage(kNoArea);
    Run(dialog, [&](kv::User& user) {
        user.Type(kBlock, "7");
        user.Type(kWell, "1");
        user.Click(IDOK);
        EXPECT_TRUE(user.Open());
        EXPECT_EQ(test::FocusedId(), kArea);
        EXPECT_EQ(user.Text(kWell), "1");
    });
    EXPECT_FALSE(dialog.GetTermination());
}

TEST_F(WellSearch, NoWellNumberIsRefusedThere) {
    dialog.SearchByAPI(false);
    desktop.ExpectMessage(kNoWell);
    Run(dialog, [&](kv::User& user) {
        user.Click(IDOK);
        EXPECT_TRUE(user.Open());
        EXPECT_EQ(test::FocusedId(), kWell);
    });
}

TEST_F(WellSearch, NoApiNumberIsRefusedThere) {
    desktop.ExpectMessage(kNoApi);
    Run(dialog, [&](kv::User& user) {
        user.Key(0, "Enter");
        EXPECT_TRUE(user.Open());
        EXPECT_EQ(test::FocusedId(), kApi);
        user.Type(kApi, "608");
        user.Key(0, "Enter");
    });
    EXPECT_EQ(dialog.GetSearchString(), "608");
}

TEST_F(WellSearch, CancelKeepsTheSearchStringThatWasSet) {
    dialog.SetSearchString("before");
    dialog.AddApiNum("608110000100");
    EXPECT_EQ(Run(dialog, [](kv::User& user) { user.Click(IDCANCEL); }), IDCANCEL);
    EXPECT_EQ(dialog.GetSearchString(), "before");
    EXPECT_FALSE(dialog.GetTermination());
}

TEST_F(WellSearch, CancelBehindAnOkTakesTheConfirmationBack) {
    dialog.AddApiNum("608110000100");
    Run(dialog, [](kv::User& user) { user.Click(IDOK); });
    EXPECT_TRUE(dialog.GetTermination());
    Run(dialog, [](kv::User& user) { user.Click(IDCANCEL); });
    EXPECT_FALSE(dialog.GetTermination());
    EXPECT_EQ(dialog.GetSearchString(), "608110000100");
}

class OpenWellSearch : public CKvGuiWellSearch {
public:
    using CKvGuiWellSearch::CKvGuiWellSearch;
    using CKvGuiWellSearch::OnEditchangeCombo3dAbeMms;
    using CKvGuiWellSearch::OnSelchangeCombo3dAbeMms;
};

TEST_F(WellSearch, AHostsOwnRoutesOfTheAreaBoxFillAndEnableTheBlockBox) {
    OpenWellSearch open;
    open.SetMinLatLon(-91, 28);
    open.SetMaxLatLon(-90, 29);
    open.SearchByAPI(false);
    open.SetMode(2);
    for (void (OpenWellSearch::*route)() :
         {&OpenWellSearch::OnEditchangeCombo3dAbeMms, &OpenWellSearch::OnSelchangeCombo3dAbeMms}) {
        Run(open, [&](kv::User& user) {
            open.SetDlgItemText(kArea, "4271");
            (open.*route)();
            EXPECT_THAT(user.Rows(kBlock), ElementsAre("7-L"));
            EXPECT_TRUE(user.Enabled(kBlock));
            open.SetDlgItemText(kArea, "nowhere");
            (open.*route)();
            EXPECT_FALSE(user.Enabled(kBlock));
        });
    }
}

TEST_F(WellSearch, TheHiddenControlsAreThereAndCannotBeReached) {
    Run(dialog, [](kv::User& user) {
        for (const int id : {1170, 1171, 1146, 1147, 1148, 1149}) {
            ASSERT_TRUE(user.HasControl(id)) << id;
            EXPECT_FALSE(user.Visible(id)) << id;
        }
    });
}

TEST_F(WellSearch, WithNeitherKindOfSearchNothingIsValid) {
    Run(dialog, [&](kv::User& user) {
        dialog.CheckDlgButton(kByApi, BST_UNCHECKED);
        user.Window().SetDlgItemText(kApi, "608110000100");
        user.Window().SetDlgItemText(kWell, "1");
        EXPECT_FALSE(dialog.CheckForValidEntry());
        user.Click(IDOK);
        EXPECT_TRUE(user.Open());
    });
}

TEST_F(WellSearch, ADerivedOneExchangesItsDataAtTheStartAndAtOk) {
    test::Exchanging<CKvGuiWellSearch> own;
    own.AddApiNum("608110000100");
    Run(own, [&](kv::User& user) {
        EXPECT_EQ(own.shown, 1);
        user.Click(IDOK);
    });
    EXPECT_EQ(own.taken, 1);
}

TEST_F(WellSearch, WhicheverCallFailsAtTheStartItIsToldAndTheDialogCanBeUsed) {
    dialog.SearchByAPI(false);
    dialog.SetAreaCode("4271");
    // Each run begins with no session open, and so makes the same calls.
    kv::db::SessionPool::Instance().Clear();
    FailAt(0);
    Run(dialog, [](kv::User& user) { user.Click(IDCANCEL); });
    const int all = calls;
    EXPECT_GE(all, 8);
    std::size_t shown = 0;
    for (int failing = 1; failing <= all; ++failing) {
        SCOPED_TRACE(failing);
        const std::size_t logged = folder.Read("log.txt").size();
        test::ListeningDesktop listening;
        kv::WindowSystem::Get().SetDesktop(&listening);
        listening.ActInNextDialog([&](kv::User& user) {
            EXPECT_EQ(test::FocusedId(), kArea);
            // Whoever leaves the area box while the blocks are not listed is led to the block box.
            user.Focus(kBlock);
            user.Type(kWell, "1");
            user.Click(IDOK);
        });
        kv::db::SessionPool::Instance().Clear();
        FailAt(failing);
        EXPECT_EQ(dialog.DoModal(), IDOK);
        kv::db::SetDatabaseFault(nullptr);
        kv::WindowSystem::Get().SetDesktop(&desktop);
        EXPECT_TRUE(!listening.shown.empty() || folder.Read("log.txt").size() > logged);
        shown += listening.shown.size();
    }
    // The reading step alone shows its words; the boxes tell the log.
    EXPECT_GT(shown, 0U);
    EXPECT_LT(shown, static_cast<std::size_t>(all));
}

TEST_F(WellSearch, WithoutADatabaseTheWordsAreShownAndTheDialogGoesOn) {
    test::ConnectTo(CKvDbInfo("", "", "sqlite:/nowhere/at_all.db"));
    desktop.ExpectMessage("");
    dialog.AddApiNum("608110000100");
    EXPECT_EQ(Run(dialog,
                  [](kv::User& user) {
                      EXPECT_EQ(test::FocusedId(), kApi);
                      EXPECT_THAT(user.Rows(kArea), ElementsAre(" -AREA CODE-", " -AREA NAME-"));
                      user.Click(IDOK);
                  }),
              IDOK);
    EXPECT_THAT(desktop.Messages().back(), HasSubstr("Cannot open the database file"));
    EXPECT_EQ(dialog.GetSearchString(), "608110000100");
}

}  // namespace
