#include "records/import_from_dlg.h"

#include "frame/kvcom/ut_registry.h"
#include "frame/module.h"
#include "records/import_from_dlg_ids.h"
#include "support/exchanging_dialog.h"
#include "support/temp_folder.h"

namespace {

using namespace kv::import_from;

class ImportFrom : public test::DialogTest {
protected:
    ImportFrom() {
        InitControlDll();
        Answer(kUserFolder);
    }
    /// Runs a dialog of its own, picks a folder and presses OK.
    void Answer(int folderRadio) {
        CKvImportFromDlg own;
        Run(own, [&](kv::User& user) {
            user.Click(folderRadio);
            user.Click(IDOK);
        });
    }
    static void Store(const std::string& path, const std::string& key, const std::string& value) {
        ASSERT_TRUE(CKvUtRegistry().SetRegistry(path, key, value));
    }

    test::TempFolder folder;
    CKvImportFromDlg dialog;
};

TEST(ImportFromAtTheStart, TheUsersFolderIsWanted) {
    EXPECT_TRUE(CKvImportFromDlg().IsUserFolder());
}

TEST_F(ImportFrom, TheNextDialogBeginsWithTheLastAnswer) {
    Answer(kSystemFolder);
    EXPECT_FALSE(dialog.IsUserFolder()) << "the answer is that of all dialogs";
    Run(dialog, [](kv::User& user) {
        EXPECT_EQ(user.WindowNode().Text(), "Folder");
        EXPECT_TRUE(user.Checked(kSystemFolder));
        EXPECT_FALSE(user.Checked(kUserFolder));
        EXPECT_EQ(test::FocusedId(), kSystemFolder);
        user.Key(kSystemFolder, "Up");
        user.Key(0, "Enter");
    });
    EXPECT_TRUE(dialog.IsUserFolder());
}

TEST_F(ImportFrom, CancelKeepsTheAnswer) {
    EXPECT_EQ(Run(dialog,
                  [](kv::User& user) {
                      EXPECT_TRUE(user.Checked(kUserFolder));
                      user.Click(kSystemFolder);
                      user.Key(0, "Escape");
                  }),
              IDCANCEL);
    EXPECT_TRUE(dialog.IsUserFolder());
}

TEST_F(ImportFrom, ADerivedOneExchangesItsDataAtTheStartAndAtOk) {
    test::Exchanging<CKvImportFromDlg> own;
    Run(own, [&](kv::User& user) {
        EXPECT_EQ(own.shown, 1);
        user.Click(IDOK);
    });
    EXPECT_EQ(own.taken, 1);
}

TEST_F(ImportFrom, BothFoldersAreOneWhereTheRegistrySaysSo) {
    Store("SOFTWARE\\KVI", "WORK_DIR", "C:\\one");
    Store("SOFTWARE\\KVI", "HOME_DIR", "C:\\two");
    EXPECT_FALSE(dialog.IsUserFolderSameAsSysFolder());
    Store("SOFTWARE\\KVI", "HOME_DIR", "C:\\one");
    EXPECT_TRUE(dialog.IsUserFolderSameAsSysFolder());
}

}  // namespace
