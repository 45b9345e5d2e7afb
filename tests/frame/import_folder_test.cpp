#include "frame/import_folder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <optional>

#include "base/paths.h"
#include "frame/kvcom/misc.h"
#include "frame/kvcom/ut_registry.h"
#include "support/dialog_fixture.h"
#include "support/failing_memory.h"
#include "support/file_faults.h"
#include "support/temp_folder.h"
#include "window/dialogs/file_dialog.h"

namespace {

class BackToHome : public testing::Test {
protected:
    BackToHome() {
        std::filesystem::create_directories(folder.Native("home/App"));
        CKvUtRegistry().SetRegistry(CKvUtRegistry::S_GetHomePath(), CKvUtRegistry::S_GetHomeKey(),
                                    folder.Dialog("home"));
        std::filesystem::current_path(folder.Native());
    }

    test::TempFolder folder;
};

TEST_F(BackToHome, GoesThereAtTheEndWhateverTheCaseOfTheName) {
    {
        const kv::BackToHome back("\\app");
        EXPECT_EQ(kv::CurrentFolder(), folder.Dialog());
    }
    EXPECT_EQ(kv::CurrentFolder(), folder.Dialog("home\\App"));
}

TEST_F(BackToHome, NeedsNoMemoryForIt) {
    std::optional<kv::BackToHome> back("\\App");
    {
        const test::FailingMemory none;
        back.reset();
    }
    EXPECT_EQ(kv::CurrentFolder(), folder.Dialog("home\\App"));
}

TEST_F(BackToHome, StaysWhereItIsIfThatFails) {
    std::optional<kv::BackToHome> back("\\App");
    {
        const test::FileFaults faults(1);
        back.reset();
    }
    EXPECT_EQ(kv::CurrentFolder(), folder.Dialog());
}

/// Begins with no import folder.
class ImportFolder : public test::DialogTest {
protected:
    ImportFolder() { CKvMisc::S_SetImportFilePath(""); }

    static std::string Remembered() { return CKvMisc::S_GetImportFilePath().str(); }

    test::TempFolder folder;
    CFileDialog dialog{TRUE};
};

TEST_F(ImportFolder, LiesBelowTheWorkFolderUnlessOneIsRemembered) {
    CKvUtRegistry().SetRegistry(CKvUtRegistry::S_GetWorkPath(), CKvUtRegistry::S_GetWorkKey(),
                                "D:\\Work");
    kv::EnsureImportFolder("\\Report");
    EXPECT_EQ(Remembered(), "D:\\Work\\Report");
    kv::EnsureImportFolder("\\Other");
    EXPECT_EQ(Remembered(), "D:\\Work\\Report");
}

TEST_F(ImportFolder, IsThatOfTheFileThatIsChosen) {
    CKvMisc::S_SetImportFilePath("D:\\Before");
    desktop.ExpectFile(folder.Dialog("wells.txt"));
    EXPECT_TRUE(kv::AskForFile(dialog, "Load Wells", true));
    EXPECT_EQ(dialog.GetPathName(), folder.Dialog("wells.txt"));
    EXPECT_EQ(Remembered(), folder.Dialog() + "\\");
}

TEST_F(ImportFolder, StaysWhenNoFileIsChosen) {
    CKvMisc::S_SetImportFilePath("D:\\Before");
    desktop.ExpectFileCancel();
    EXPECT_FALSE(kv::AskForFile(dialog, "Load Wells", true));
    EXPECT_EQ(Remembered(), "D:\\Before");
}

TEST_F(ImportFolder, IsWhereTheQuestionForAFileBeginsIfItIsToldSo) {
    CKvMisc::S_SetImportFilePath("D:\\Before");
    for (const bool there : {true, false}) {
        CFileDialog asking(TRUE);
        desktop.ExpectFileCancel();
        kv::AskForFile(asking, "Load Wells", there);
        EXPECT_EQ(desktop.FileDialogs().back().title, "Load Wells");
        EXPECT_EQ(desktop.FileDialogs().back().initialFolder, there ? "D:\\Before" : "");
    }
}

}  // namespace
