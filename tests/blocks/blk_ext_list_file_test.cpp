// The list file, through the controls.

#include <gmock/gmock.h>
#include <sys/stat.h>

#include "blocks/block_files_fixture.h"

namespace {

using namespace kv::blk_ext;

class BlkExtListFile : public BlockFilesTest {
protected:
    /// Checks the box and chooses a file with that content; whether the box is checked then.
    bool CheckAndChoose(const std::string& content, const char* message = nullptr) {
        folder.Write("list.txt", content);
        desktop.ExpectFile(folder.Dialog("list.txt"));
        if (message) desktop.ExpectMessage(message);
        bool checked = false;
        Run(dialog, [&](kv::User& user) {
            user.Click(kListFileCheck);
            checked = user.Checked(kListFileCheck);
        });
        return checked;
    }
};

TEST_F(BlkExtListFile, IsTakenByTheBoxAndBeginsInTheImportFolder) {
    EXPECT_TRUE(CheckAndChoose("area name\n"));
    EXPECT_TRUE(dialog.GetListFileFlag());
    EXPECT_EQ(dialog.GetListFileName(), folder.Dialog("list.txt"));
    const kv::FileDialogRequest& asked = desktop.FileDialogs()[0];
    EXPECT_TRUE(asked.open);
    EXPECT_EQ(asked.title, "Import Norvadon PC Qualifiers");
    EXPECT_EQ(asked.filter, "Text File |*.txt|All Files |*.*|");
    EXPECT_EQ(asked.flags, OFN_FILEMUSTEXIST | OFN_HIDEREADONLY);
    EXPECT_EQ(asked.fileName, "");
    EXPECT_EQ(asked.initialFolder, folder.Dialog("work") + "\\Report\\");
    EXPECT_EQ(ImportFolder(), kv::FolderOf(folder.Dialog("list.txt")));
    ExpectHomeIsCurrent();
}

TEST_F(BlkExtListFile, TheNameInForceIsProposed) {
    dialog.SetListFileName("C:\\lists\\old.txt");
    desktop.ExpectFileCancel();
    Run(dialog, [](kv::User& user) { user.Click(kListFileButton); });
    EXPECT_EQ(desktop.FileDialogs()[0].fileName, "C:\\lists\\old.txt");
    EXPECT_EQ(desktop.FileDialogs()[0].initialFolder, "");
}

TEST_F(BlkExtListFile, CancelPutsTheBoxBack) {
    desktop.ExpectFileCancel();
    Run(dialog, [](kv::User& user) {
        user.Click(kListFileCheck);
        EXPECT_FALSE(user.Checked(kListFileCheck));
        EXPECT_TRUE(user.Enabled(kListFileCheck));
    });
    dialog.SetListFileFlag(true);
    desktop.ExpectFileCancel();
    Run(dialog, [](kv::User& user) {
        EXPECT_TRUE(user.Checked(kListFileCheck));
        user.Click(kListFileButton);
        EXPECT_TRUE(user.Checked(kListFileCheck));
        user.Click(IDOK);
    });
    EXPECT_TRUE(dialog.GetListFileFlag());
}

TEST_F(BlkExtListFile, UncheckingTakesItOutOfUseAndKeepsItsName) {
    dialog.SetListFileName("C:\\lists\\old.txt");
    dialog.SetListFileFlag(true);
    Run(dialog, [this](kv::User& user) {
        user.Click(kListFileCheck);
        EXPECT_FALSE(dialog.GetListFileFlag());
        user.Click(IDOK);
    });
    EXPECT_FALSE(dialog.GetListFileFlag());
    EXPECT_EQ(dialog.GetListFileName(), "C:\\lists\\old.txt");
}

TEST_F(BlkExtListFile, AFileThatCannotBeUsedLeavesTheBoxAsTheClickLeftIt) {
    desktop.ExpectFile(folder.Dialog("none.txt"));
    desktop.ExpectMessage(kNotOpened);
    Run(dialog, [](kv::User& user) {
        user.Click(kListFileCheck);
        EXPECT_TRUE(user.Checked(kListFileCheck));
        user.Click(IDCANCEL);
    });
    EXPECT_FALSE(dialog.GetListFileFlag());

    folder.Write("list.txt", "no header");
    desktop.ExpectFile(folder.Dialog("list.txt"));
    desktop.ExpectMessage(
        "Norvadon format required. Use import to convert and export user-defined format.");
    Run(dialog, [](kv::User& user) {
        user.Click(kListFileCheck);
        EXPECT_TRUE(user.Checked(kListFileCheck));
        user.Click(IDOK);
    });
    EXPECT_TRUE(dialog.GetListFileFlag());
    EXPECT_EQ(dialog.GetListFileName(), "");
}

TEST_F(BlkExtListFile, MayComeFromAnyEditorAndMustBeText) {
    using namespace std::string_literals;
    EXPECT_TRUE(CheckAndChoose("\xFE\xFF\0A\0R\0E\0A\0 \0N\0A\0M\0E"s));
    EXPECT_EQ(dialog.GetListFileName(), folder.Dialog("list.txt"));
    dialog.SetListFileFlag(false);
    dialog.SetListFileName("");
    CheckAndChoose("AREA NAME\0"s, "The file is wrong format");
    EXPECT_EQ(dialog.GetListFileName(), "");
}

TEST_F(BlkExtListFile, APipeOrADeviceIsToldAndNotWaitedFor) {
    ASSERT_EQ(mkfifo(folder.Native("pipe").c_str(), 0600), 0);
    for (const std::string& path : {folder.Dialog("pipe"), std::string("/dev/zero")}) {
        desktop.ExpectFile(path);
        desktop.ExpectMessage(kNotOpened);
        Run(dialog, [](kv::User& user) { user.Click(kListFileButton); });
        EXPECT_EQ(desktop.ScenesLeft(), 0);
    }
    EXPECT_EQ(dialog.GetListFileName(), "");
}

TEST_F(BlkExtListFile, AnotherVocabularyIsToldAndTakenAllTheSame) {
    const std::pair<const char*, const char*> cases[] = {
        {"areaname", "Please use area name format as set in ABE control."},
        {"stcode", "Please use area code format as set in ABE control."},
        {"area_abbr", "Please use MMS code format as set in ABE control."}};
    const char* const headers[] = {"MMS CODE", "AREA NAME", "AreaCode"};
    for (std::size_t i = 0; i < std::size(cases); ++i) {
        SCOPED_TRACE(headers[i]);
        dialog.SetListFileFlag(false);
        dialog.SetFieldString(cases[i].first);
        folder.Write("list.txt", headers[i]);
        desktop.ExpectFile(folder.Dialog("list.txt"));
        desktop.ExpectMessage(cases[i].second);
        Run(dialog, [](kv::User& user) {
            user.Click(kListFileButton);
            EXPECT_TRUE(user.Checked(kListFileCheck));
        });
        EXPECT_TRUE(dialog.GetListFileFlag());
        EXPECT_EQ(dialog.GetFieldString(), cases[i].first);
    }
}

TEST_F(BlkExtListFile, OnlyTheFirstHeaderWordCounts) {
    dialog.SetFieldString("area_abbr");
    EXPECT_TRUE(CheckAndChoose("MMS CODE AREA NAME\n",
                               "Please use MMS code format as set in ABE control."));
}

TEST_F(BlkExtListFile, EveryVocabularyFitsAFieldThatIsNoneOfTheThree) {
    dialog.SetFieldString("region");
    EXPECT_TRUE(CheckAndChoose("AREA NAME\n"));
}

}  // namespace
