#include "drawing/search_replace_dlg.h"

#include "drawing/search_replace_ids.h"
#include "frame/module.h"
#include "support/dialog_fixture.h"

using namespace kv::search_replace;
using testing::ElementsAre;

namespace {

class SearchReplaceDlg : public test::DialogTest {
protected:
    SearchReplaceDlg() { InitControlDll(); }
    std::vector<std::string> Outcome() {
        return {dialog.GetLayerSelect(), dialog.GetSearchContent(), dialog.GetReplaceContent()};
    }

    CKvGuiSearchReplaceDlg dialog;
};

TEST_F(SearchReplaceDlg, OffersTheLayersInOrderAndTheFirstOfThem) {
    EXPECT_THAT(Outcome(), ElementsAre("", "", ""));
    Run(dialog, [](kv::User& user) {
        EXPECT_EQ(user.Window().WindowText(), "Search And Replace");
        EXPECT_THAT(user.Rows(kLayer), ElementsAre("LEASES", "PIPELINES", "WELLS"));
        EXPECT_EQ(user.Text(kLayer), "LEASES");
        EXPECT_EQ(user.Text(kSearch), "");
        EXPECT_EQ(user.Text(kReplace), "");
    });
}

TEST_F(SearchReplaceDlg, GivesTheTextsInCapitals) {
    const int result = Run(dialog, [](kv::User& user) {
        user.Select(kLayer, "WELLS");
        user.Type(kSearch, "shell");
        user.Type(kReplace, "Shell Offshore");
        user.Key(0, "Enter");
    });
    EXPECT_EQ(result, IDOK);
    EXPECT_THAT(Outcome(), ElementsAre("WELLS", "SHELL", "SHELL OFFSHORE"));
}

TEST_F(SearchReplaceDlg, TypingStopsAtFiftyCharactersOfAReplacement) {
    const int result = Run(dialog, [](kv::User& user) {
        user.Type(kReplace, std::string(51, 'A'));
        EXPECT_EQ(user.Text(kReplace), std::string(50, 'A'));
        user.Click(IDOK);
    });
    EXPECT_EQ(result, IDOK);
    EXPECT_EQ(dialog.GetReplaceContent(), std::string(50, 'A'));
}

TEST_F(SearchReplaceDlg, ALongerReplacementKeepsTheDialogOpen) {
    desktop.ExpectMessage("Please enter no more than 50 characters.");
    Run(dialog, [](kv::User& user) {
        user.Window().SetDlgItemText(kReplace, std::string(51, 'B').c_str());
        user.Click(IDOK);
        EXPECT_TRUE(user.Open());
        EXPECT_EQ(test::FocusedId(), kReplace);
    });
}

TEST_F(SearchReplaceDlg, ASearchTextIsAsLongAsOneLikes) {
    Run(dialog, [](kv::User& user) {
        user.Type(kSearch, std::string(300, 'C'));
        user.Click(IDOK);
    });
    EXPECT_EQ(dialog.GetSearchContent(), std::string(300, 'C'));
}

TEST_F(SearchReplaceDlg, CancelLeavesTheOutcome) {
    const int result = Run(dialog, [](kv::User& user) {
        user.Type(kSearch, "GULF");
        user.Click(IDCANCEL);
    });
    EXPECT_EQ(result, IDCANCEL);
    EXPECT_THAT(Outcome(), ElementsAre("", "", ""));
}

}  // namespace
