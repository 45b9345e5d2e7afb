#include "window/dialogs/file_dialog.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "base/paths.h"
#include "support/temp_folder.h"
#include "window/acting/headless_desktop.h"
#include "window/templates/resources.h"
#include "window/window_system.h"

namespace {

using kv::FileFilter;
using kv::ParseFilter;
using namespace kv::file_dialog;

TEST(FileFilter, DescriptionsAndPatternsTakeTurns) {
    EXPECT_EQ(ParseFilter("Text File |*.txt|All Files |*.*|"),
              (std::vector<FileFilter>{{"Text File ", "*.txt"}, {"All Files ", "*.*"}}));
    EXPECT_EQ(ParseFilter("Text File |*.txt||"),
              (std::vector<FileFilter>{{"Text File ", "*.txt"}}));
    EXPECT_EQ(ParseFilter("Show Folders Only|.|All Files (*.*)|*.*||"),
              (std::vector<FileFilter>{{"Show Folders Only", "."}, {"All Files (*.*)", "*.*"}}));
}

TEST(FileFilter, EndsAtAnEmptyDescription) {
    EXPECT_EQ(ParseFilter("A|*.a||B|*.b||"), (std::vector<FileFilter>{{"A", "*.a"}}));
    EXPECT_TRUE(ParseFilter("").empty());
    EXPECT_TRUE(ParseFilter("||").empty());
}

TEST(FileFilter, NeedsNoEnd) {
    EXPECT_EQ(ParseFilter("A|*.a"), (std::vector<FileFilter>{{"A", "*.a"}}));
    EXPECT_EQ(ParseFilter("A"), (std::vector<FileFilter>{{"A", ""}}));
}

TEST(FileFilter, KeepsPatternsOfSeveralKindsTogether) {
    EXPECT_EQ(ParseFilter("Tables|*.csv;*.txt||"),
              (std::vector<FileFilter>{{"Tables", "*.csv;*.txt"}}));
}

class FileDialog : public ::testing::Test {
protected:
    FileDialog() { kv::WindowSystem::Get().SetDesktop(&desktop_); }
    ~FileDialog() override { kv::WindowSystem::Get().SetDesktop(nullptr); }

    test::TempFolder folder_;
    kv::HeadlessDesktop desktop_;
};

TEST_F(FileDialog, AsksTheDesktopWithAllThatItWasGiven) {
    desktop_.ExpectFileCancel();
    CFileDialog dialog(FALSE, "TXT", "blocks.txt", OFN_HIDEREADONLY | OFN_FILEMUSTEXIST,
                       "Text File |*.txt||");
    dialog.m_ofn.lpstrTitle = "Save Text File";
    dialog.m_ofn.lpstrInitialDir = "C:\\Report\\";
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
    ASSERT_EQ(desktop_.FileDialogs().size(), 1u);
    const kv::FileDialogRequest& request = desktop_.FileDialogs().front();
    EXPECT_FALSE(request.open);
    EXPECT_EQ(request.title, "Save Text File");
    EXPECT_EQ(request.defaultExtension, "TXT");
    EXPECT_EQ(request.fileName, "blocks.txt");
    EXPECT_EQ(request.initialFolder, "C:\\Report\\");
    EXPECT_EQ(request.filter, "Text File |*.txt||");
    EXPECT_EQ(request.flags, OFN_HIDEREADONLY | OFN_FILEMUSTEXIST);
    EXPECT_EQ(request.parent, nullptr);
}

TEST_F(FileDialog, CancelledItKeepsTheNameItBeganWith) {
    desktop_.ExpectFileCancel();
    CFileDialog dialog(TRUE, nullptr, "old.txt");
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
    EXPECT_EQ(dialog.GetPathName(), "old.txt");
    EXPECT_TRUE(dialog.IsOpenDialog());
}

TEST_F(FileDialog, GivesThePartsOfTheChosenPath) {
    desktop_.ExpectFile("C:\\Data\\My.Blocks\\gulf.2.Txt");
    CFileDialog dialog(TRUE);
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_EQ(dialog.GetPathName(), "C:\\Data\\My.Blocks\\gulf.2.Txt");
    EXPECT_EQ(dialog.GetFileName(), "gulf.2.Txt");
    EXPECT_EQ(dialog.GetFileTitle(), "gulf.2");
    EXPECT_EQ(dialog.GetFileExt(), "Txt");
    EXPECT_EQ(dialog.GetFolderPath(), "C:\\Data\\My.Blocks");
}

TEST_F(FileDialog, AFileInTheRootLiesInTheRoot) {
    desktop_.ExpectFile("C:\\gulf");
    CFileDialog dialog(TRUE);
    dialog.DoModal();
    EXPECT_EQ(dialog.GetFolderPath(), "C:\\");
    EXPECT_EQ(dialog.GetFileTitle(), "gulf");
    EXPECT_EQ(dialog.GetFileExt(), "");
}

TEST_F(FileDialog, ANameWithoutAnExtensionGetsTheDefaultOne) {
    desktop_.ExpectFile("C:\\Data\\gulf");
    desktop_.ExpectFile("C:\\Data\\gulf.dat");
    desktop_.ExpectFile("C:\\My.Data\\gulf");
    CFileDialog dialog(FALSE, "txt");
    dialog.DoModal();
    EXPECT_EQ(dialog.GetPathName(), "C:\\Data\\gulf.txt");
    dialog.DoModal();
    EXPECT_EQ(dialog.GetPathName(), "C:\\Data\\gulf.dat");
    dialog.DoModal();
    EXPECT_EQ(dialog.GetPathName(), "C:\\My.Data\\gulf.txt");
}

TEST_F(FileDialog, WithoutADefaultExtensionTheNameStaysAsItIs) {
    desktop_.ExpectFile("C:\\Data\\gulf");
    CFileDialog dialog(FALSE);
    dialog.DoModal();
    EXPECT_EQ(dialog.GetPathName(), "C:\\Data\\gulf");
}

TEST_F(FileDialog, SpeaksTheDialogsPathsAlsoWhereTheMachinesIsGiven) {
    desktop_.ExpectFile(folder_.Native("a.txt"));
    CFileDialog dialog(TRUE);
    dialog.DoModal();
    EXPECT_EQ(dialog.GetPathName(), folder_.Dialog("a.txt"));
}

TEST_F(FileDialog, TheChosenFolderBecomesTheCurrentOne) {
    folder_.Write("lists/a.txt", "");
    const std::string before = kv::CurrentFolder();
    desktop_.ExpectFile(folder_.Dialog("lists/a.txt"));
    CFileDialog staying(TRUE, nullptr, nullptr, OFN_NOCHANGEDIR);
    staying.DoModal();
    EXPECT_EQ(kv::CurrentFolder(), before);

    desktop_.ExpectFile(folder_.Dialog("lists/a.txt"));
    CFileDialog moving(TRUE);
    moving.DoModal();
    EXPECT_EQ(kv::CurrentFolder(), folder_.Dialog("lists"));
}

/// A dialog that is not the platform's own, and notes what its hooks were called for.
class DrawnDialog : public CFileDialog {
public:
    explicit DrawnDialog(BOOL open, DWORD flags = 0, const char* filter = nullptr,
                         const char* extension = nullptr)
        : CFileDialog(open, extension, nullptr, flags, filter) {
        DrawByItself();
    }
    void OnInitDone() override { calls.push_back("done"); }
    void OnFolderChange() override { calls.push_back("folder " + GetFolderPath().str()); }
    BOOL OnFileNameOK() override {
        calls.push_back("file " + GetFileName().str());
        return refuses;
    }
    std::vector<std::string> calls;
    BOOL refuses = FALSE;
};

class DrawnFileDialog : public FileDialog {
protected:
    DrawnFileDialog() {
        kv::AddToResourceChain(kv::LibraryResources());
        folder_.Write("data/a.txt", "");
        folder_.Write("data/b.csv", "");
        folder_.Write("data/deep/c.txt", "");
        data_ = folder_.Dialog("data");
    }
    ~DrawnFileDialog() override { kv::RemoveFromResourceChain(kv::LibraryResources()); }

    std::string data_;
};

TEST_F(DrawnFileDialog, ShowsFoldersAndTheFilesOfTheChosenType) {
    DrawnDialog dialog(TRUE, 0, "Text|*.txt|Tables|*.csv|Both|*.txt;*.csv||");
    dialog.m_ofn.lpstrInitialDir = data_.c_str();
    desktop_.ExpectWindow("Open", [this](kv::User& user) {
        EXPECT_EQ(user.Text(kFolder), data_);
        EXPECT_EQ(user.Rows(kFiles), (std::vector<std::string>{"[..]", "[deep]", "a.txt"}));
        user.Select(kTypes, "Tables");
        EXPECT_EQ(user.Rows(kFiles), (std::vector<std::string>{"[..]", "[deep]", "b.csv"}));
        user.Select(kTypes, "Both");
        EXPECT_EQ(user.Rows(kFiles),
                  (std::vector<std::string>{"[..]", "[deep]", "a.txt", "b.csv"}));
        user.Click(IDCANCEL);
    });
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
    EXPECT_EQ(dialog.GetPathName(), "");
}

TEST_F(DrawnFileDialog, TakesTheFileThatIsPickedAndMakesItsFolderCurrent) {
    DrawnDialog dialog(TRUE);
    dialog.m_ofn.lpstrInitialDir = data_.c_str();
    desktop_.ExpectWindow("Open", [](kv::User& user) {
        user.Select(kFiles, "a.txt");
        EXPECT_EQ(user.Text(kName), "a.txt");
        user.Click(IDOK);
    });
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_EQ(dialog.GetPathName(), data_ + "\\a.txt");
    EXPECT_EQ(kv::CurrentFolder(), data_);
    EXPECT_EQ(dialog.calls, (std::vector<std::string>{"done", "folder " + data_, "file a.txt"}));
}

TEST_F(DrawnFileDialog, GoesIntoFoldersAndOutOfThem) {
    DrawnDialog dialog(TRUE);
    dialog.m_ofn.lpstrInitialDir = data_.c_str();
    desktop_.ExpectWindow("Open", [this](kv::User& user) {
        user.DoubleClick(kFiles, "[deep]");
        EXPECT_EQ(user.Text(kFolder), data_ + "\\deep");
        EXPECT_EQ(user.Rows(kFiles), (std::vector<std::string>{"[..]", "c.txt"}));
        user.DoubleClick(kFiles, "[..]");
        EXPECT_EQ(user.Text(kFolder), data_);
        user.Type(kName, "deep");
        user.Click(IDOK);
        EXPECT_EQ(user.Text(kFolder), data_ + "\\deep");
        EXPECT_EQ(user.Text(kName), "");
        user.DoubleClick(kFiles, "c.txt");
    });
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_EQ(dialog.GetPathName(), data_ + "\\deep\\c.txt");
}

TEST_F(DrawnFileDialog, AFileThatIsRefusedLeavesItOpen) {
    DrawnDialog dialog(TRUE);
    dialog.refuses = TRUE;
    dialog.m_ofn.lpstrInitialDir = data_.c_str();
    desktop_.ExpectWindow("Open", [](kv::User& user) {
        user.Type(kName, "a.txt");
        user.Click(IDOK);
        EXPECT_TRUE(user.Open());
        user.Click(IDCANCEL);
    });
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
    EXPECT_EQ(dialog.GetPathName(), "");
}

TEST_F(DrawnFileDialog, TellsWhenAFileOrItsFolderMustExistAndDoesNot) {
    DrawnDialog dialog(TRUE, OFN_FILEMUSTEXIST);
    dialog.m_ofn.lpstrInitialDir = data_.c_str();
    desktop_.ExpectWindow("Open", [](kv::User& user) {
        user.Type(kName, "none.txt");
        user.Click(IDOK);
        EXPECT_TRUE(user.Open());
        user.Click(IDCANCEL);
    });
    desktop_.ExpectMessage(data_ + "\\none.txt\nThis file is not there.\nPlease check its name.");
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);

    DrawnDialog saving(FALSE, OFN_PATHMUSTEXIST);
    saving.m_ofn.lpstrInitialDir = data_.c_str();
    desktop_.ExpectWindow("Save As", [](kv::User& user) {
        user.Type(kName, "none\\x.txt");
        user.Click(IDOK);
        EXPECT_TRUE(user.Open());
        user.Click(IDCANCEL);
    });
    desktop_.ExpectMessage(data_ +
                           "\\none\\x.txt\nThis folder is not there.\nPlease check the path.");
    EXPECT_EQ(saving.DoModal(), IDCANCEL);
}

TEST_F(DrawnFileDialog, AsksBeforeAFileIsReplaced) {
    DrawnDialog dialog(FALSE, OFN_OVERWRITEPROMPT, nullptr, "txt");
    dialog.m_ofn.lpstrInitialDir = data_.c_str();
    desktop_.ExpectWindow("Save As", [](kv::User& user) {
        user.Type(kName, "a");
        user.Click(IDOK);
        EXPECT_TRUE(user.Open());
        user.Click(IDOK);
    });
    const std::string question = data_ + "\\a.txt is there already.\nDo you want to replace it?";
    desktop_.ExpectMessage(question, IDNO);
    desktop_.ExpectMessage(question, IDYES);
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_EQ(dialog.GetPathName(), data_ + "\\a.txt");
}

TEST_F(DrawnFileDialog, OpensAFileThatIsThereWithoutAsking) {
    DrawnDialog dialog(TRUE, OFN_OVERWRITEPROMPT | OFN_FILEMUSTEXIST | OFN_PATHMUSTEXIST);
    dialog.m_ofn.lpstrInitialDir = data_.c_str();
    desktop_.ExpectWindow("Open", [](kv::User& user) {
        user.Type(kName, "deep\\c.txt");
        user.Click(IDOK);
    });
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_EQ(dialog.GetPathName(), data_ + "\\deep\\c.txt");
}

TEST_F(DrawnFileDialog, HasNoWayUpAtTheRoot) {
    kv::MapDrive('D', folder_.Native("data"));
    DrawnDialog dialog(TRUE);
    dialog.m_ofn.lpstrInitialDir = "D:\\";
    desktop_.ExpectWindow("Open", [](kv::User& user) {
        EXPECT_EQ(user.Text(kFolder), "D:\\");
        EXPECT_EQ(user.Rows(kFiles), (std::vector<std::string>{"[deep]", "a.txt", "b.csv"}));
        user.Click(IDCANCEL);
    });
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
    EXPECT_EQ(dialog.calls, (std::vector<std::string>{"done", "folder D:\\"}));
}

TEST_F(DrawnFileDialog, BeginsInTheCurrentFolderWithoutAnother) {
    kv::ChangeFolder(data_);
    DrawnDialog dialog(TRUE);
    dialog.m_ofn.lpstrTitle = "Choose Folder";
    dialog.m_ofn.lpstrInitialDir = "C:\\no such folder";
    desktop_.ExpectWindow("Choose Folder", [this](kv::User& user) {
        EXPECT_EQ(user.Text(kFolder), data_);
        user.Click(IDCANCEL);
    });
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
}

}  // namespace
