#include "controls/dir_dialog.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <functional>

#include "base/paths.h"
#include "controls/dir_dialog_ids.h"
#include "frame/module.h"
#include "support/dialog_fixture.h"
#include "support/file_faults.h"
#include "support/temp_folder.h"

namespace test {
namespace {

namespace fs = std::filesystem;
using namespace kv::dir_dialog;
namespace file_dialog = kv::file_dialog;
using testing::IsEmpty;

TEST(RestOfName, IsWrittenAsTheFolderIs) {
    EXPECT_EQ(RestOfName("Gu", "Gulf Blocks"), "lf Blocks");
    EXPECT_EQ(RestOfName("Gulf Blocks", "Gulf Blocks"), "");
    EXPECT_EQ(RestOfName("", "Gulf"), "");
    EXPECT_EQ(RestOfName("Gulf", "Gu"), "");
}

TEST(RestOfName, OfANameInCapitalsIsInSmallLettersUnlessItHasBlanks) {
    EXPECT_EQ(RestOfName("G", "GULF"), "ulf");
    EXPECT_EQ(RestOfName("G", "GULF_2"), "ulf_2");
    EXPECT_EQ(RestOfName("G", "GULF BLOCKS"), "ULF BLOCKS");
    EXPECT_EQ(RestOfName("2", "2024"), "024");
    EXPECT_EQ(RestOfName("A", "AZ"), "z");
    EXPECT_EQ(RestOfName("Z", "ZA"), "a");
    EXPECT_EQ(RestOfName("Z", "ZZ"), "z");
    EXPECT_EQ(RestOfName("A", "AA"), "a");
    EXPECT_EQ(RestOfName("A", "ABz"), "Bz");
    EXPECT_EQ(RestOfName("A", "ABa"), "Ba");
}

TEST(RestOfName, FollowsTheCaseOfTheLastTypedCharacter) {
    EXPECT_EQ(RestOfName("g", "Gulf Blocks"), "ulf blocks");
    EXPECT_EQ(RestOfName("GU", "Gulf Blocks"), "LF BLOCKS");
    EXPECT_EQ(RestOfName("gu", "Gulf Blocks"), "lf Blocks");
    EXPECT_EQ(RestOfName("GU", "GULF"), "LF");
    EXPECT_EQ(RestOfName("g", "GULF"), "ulf");
    EXPECT_EQ(RestOfName("QA", "Qatar"), "TAR");
    EXPECT_EQ(RestOfName("QZ", "Qzar"), "AR");
}

/// "D:" is a drive with some folders, each other letter a drive of its kind that holds nothing.
class DirDialog : public testing::Test {
protected:
    DirDialog() {
        InitControlDll();
        kv::WindowSystem::Get().SetDesktop(&desktop_);
        folder_.Write("data/Gulf/2024/a.txt", "");
        folder_.Write("data/Gulf of Mexico/b.txt", "");
        folder_.Write("data/ATLANTIC/c.txt", "");
        folder_.Write("data/plain.txt", "");
        fs::create_directories(folder_.Native("data/Empty"));
        kv::MapDrive('D', folder_.Native("data"));
        // Below a plain file no folder can be made, whoever asks.
        folder_.Write("blocked", "");
        for (const auto& [letter, kind] : {std::pair('R', kv::kDriveRemovable),
                                           {'N', kv::kDriveRemote},
                                           {'O', kv::kDriveCdRom},
                                           {'F', kv::kDriveFixed},
                                           {'U', kv::kDriveUnknown}})
            kv::MapDrive(letter, folder_.Native("blocked"), kind);
    }
    ~DirDialog() override { kv::WindowSystem::Get().SetDesktop(nullptr); }

    int Run(const std::function<void(kv::User&)>& act, bool exports = false) {
        ExpectWindow(act);
        CDirDialog dialog("D:\\", nullptr, nullptr, exports);
        const int answer = dialog.DoModal();
        path_ = dialog.GetPath().str();
        EXPECT_EQ(dialog.GetOpenExportDir(), exports);
        return answer;
    }
    /// The window, and then what `Tells` has said.
    void ExpectWindow(const std::function<void(kv::User&)>& act) {
        desktop_.ExpectWindow("Choose Folder", act);
        for (const auto& [words, answer] : std::exchange(messages_, {}))
            desktop_.ExpectMessage(words, answer);
    }
    /// In the next window that message opens.
    void Tells(const std::string& words, int answer = IDOK) {
        messages_.emplace_back(words, answer);
    }
    /// Types that, presses Open, is told that, and cancels.
    void ExpectRefusal(const std::string& text, const std::string& words) {
        SCOPED_TRACE(text);
        Tells(words);
        EXPECT_EQ(Run([&](kv::User& user) {
                      user.Paste(kFolderEdit, text);
                      user.Click(kOpen);
                      EXPECT_EQ(user.Text(kFolderEdit), text);
                      EXPECT_EQ(FocusedId(), kFolderEdit);
                      user.Close();
                  }),
                  IDCANCEL);
    }
    int Open(const std::string& text, bool exports = false) {
        return Run(
            [&](kv::User& user) {
                user.Paste(kFolderEdit, text);
                user.Click(kOpen);
            },
            exports);
    }

    TempFolder folder_;
    kv::HeadlessDesktop desktop_;
    std::string path_;
    std::vector<std::pair<std::string, int>> messages_;
};

TEST_F(DirDialog, IsTheFileDialogRebuilt) {
    EXPECT_EQ(Run([](kv::User& user) {
                  EXPECT_EQ(user.Text(file_dialog::kNameLabel), "Folder:");
                  EXPECT_EQ(user.Text(kFolderEdit), "D:\\");
                  EXPECT_EQ(user.Text(kOpen), "Open");
                  EXPECT_EQ(FocusedId(), kFolderEdit);
                  EXPECT_FALSE(user.Visible(file_dialog::kName));
                  EXPECT_FALSE(user.Visible(IDOK));
                  EXPECT_EQ(user.Rows(file_dialog::kTypes),
                            (std::vector<std::string>{"Show Folders Only", "All Files (*.*)"}));
                  EXPECT_EQ(user.Rows(file_dialog::kFiles),
                            (std::vector<std::string>{"[ATLANTIC]", "[Empty]", "[Gulf]",
                                                      "[Gulf of Mexico]"}));
                  user.Click(IDCANCEL);
              }),
              IDCANCEL);
}

TEST_F(DirDialog, TheCallersFilterStandsBehindItsOwn) {
    ExpectWindow([](kv::User& user) {
        EXPECT_EQ(user.Rows(file_dialog::kTypes),
                  (std::vector<std::string>{"Show Folders Only", "Text"}));
        user.Select(file_dialog::kTypes, "Text");
        EXPECT_EQ(user.Rows(file_dialog::kFiles).back(), "plain.txt");
        user.DoubleClick(file_dialog::kFiles, "plain.txt");
        EXPECT_TRUE(user.Open());
        user.Click(IDCANCEL);
    });
    CDirDialog dialog("D:\\", "Text|*.txt||", nullptr, false);
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
}

TEST_F(DirDialog, TheBoxGoesAlongWithTheFolderThatIsShown) {
    EXPECT_EQ(Run([](kv::User& user) {
                  user.DoubleClick(file_dialog::kFiles, "[Gulf]");
                  EXPECT_EQ(user.Text(kFolderEdit), "D:\\Gulf\\");
                  EXPECT_EQ(FocusedId(), kFolderEdit);
                  user.DoubleClick(file_dialog::kFiles, "[2024]");
                  user.Click(kOpen);
              }),
              IDOK);
    EXPECT_EQ(path_, "D:\\Gulf\\2024\\");
}

TEST_F(DirDialog, OpensAFolderThatIsThere) {
    EXPECT_EQ(Open("D:\\Gulf\\"), IDOK);
    EXPECT_EQ(path_, "D:\\Gulf\\");
    EXPECT_EQ(Open("d:\\gulf\\2024"), IDOK);
    EXPECT_THAT(path_, testing::StrCaseEq("D:\\Gulf\\2024\\"));
    EXPECT_EQ(Open("Empty"), IDOK);
    EXPECT_EQ(path_, "D:\\Empty\\");
    EXPECT_EQ(Open("D:"), IDOK);
    EXPECT_EQ(path_, "D:\\");
    EXPECT_EQ(Open("\\"), IDOK);
    EXPECT_EQ(path_, "D:\\");
    EXPECT_EQ(Open(""), IDOK);
    EXPECT_EQ(path_, "D:\\");
}

TEST_F(DirDialog, MakesAFolderAndItsParents) {
    EXPECT_EQ(Open("D:\\new\\and\\deep"), IDOK);
    EXPECT_EQ(path_, "D:\\new\\and\\deep\\");
    EXPECT_TRUE(fs::is_directory(folder_.Native("data/new/and/deep")));
}

TEST_F(DirDialog, RefusesWhatIsNoFolder) {
    ExpectRefusal("\\\\", "\\\\\nThis is not a valid folder.");
    ExpectRefusal("\\\\server", "\\\\server\nThis is not a valid folder.");
    ExpectRefusal("\\\\server\\share", "\\\\server\\share\nThis is not a valid folder.");
    ExpectRefusal("D:\\plain.txt", "D:\\plain.txt\nThis is a file not a directory.");
    ExpectRefusal("Q:", "Q:\nThe drive is invalid.");
    ExpectRefusal("Q:\\", "Q:\\\nThe drive is invalid.");
    ExpectRefusal("Q:\\deep", "Q:\\deep\nThe drive is invalid.");
    ExpectRefusal("U:\\", "U:\\\nThe drive is invalid.");
}

TEST_F(DirDialog, TellsByTheKindOfDriveWhyAFolderCannotBeMade) {
    ExpectRefusal("R:\\x", "You cannot create this folder.\nThe medium may be write-protected.");
    ExpectRefusal("N:\\x", "You do not have permission to create\nthis folder on the network.");
    ExpectRefusal("\\\\server\\share\\x",
                  "You do not have permission to create\nthis folder on the network.");
    ExpectRefusal("O:\\x", "You cannot create this folder\nas the CD ROM medium is read-only.");
    ExpectRefusal("F:\\x", "You do not have permission\nto create this folder.");
    ExpectRefusal("D:\\plain.txt\\x", "You do not have permission\nto create this folder.");
}

TEST_F(DirDialog, AnExportIntoAFolderWithFilesIsAskedAbout) {
    const std::string question =
        "D:\\Gulf\nThis folder contains files already.\nYou could override your existing files. "
        "\nDo you still want to export files into this folder?";
    Tells(question, IDNO);
    Tells(question, IDYES);
    EXPECT_EQ(Run(
                  [](kv::User& user) {
                      user.Paste(kFolderEdit, "D:\\Gulf\\");
                      user.Click(kOpen);
                      EXPECT_TRUE(user.Open());
                      user.Click(kOpen);
                  },
                  true),
              IDOK);
    EXPECT_EQ(path_, "D:\\Gulf\\");
    EXPECT_EQ(Open("D:\\Empty", true), IDOK);
    EXPECT_EQ(Open("D:\\made", true), IDOK);
    EXPECT_EQ(Open("D:\\Gulf", false), IDOK);
}

TEST_F(DirDialog, AnExportIntoAFolderThatCannotBeReadIsRefused) {
    Tells("D:\\Gulf\nThis folder cannot be read.");
    EXPECT_EQ(Run(
                  [](kv::User& user) {
                      user.Paste(kFolderEdit, "D:\\Gulf");
                      const FileFaults faults(1);
                      user.Click(kOpen);
                      EXPECT_TRUE(user.Open());
                      user.Click(IDCANCEL);
                  },
                  true),
              IDCANCEL);
}

TEST_F(DirDialog, ValidatePathIsOpenWithThatPath) {
    Tells("D:\\plain.txt\nThis is a file not a directory.");
    CDirDialog dialog("D:\\", nullptr, nullptr, false);
    ExpectWindow([&](kv::User& user) {
        dialog.ValidatePath("D:\\plain.txt");
        EXPECT_EQ(user.Text(kFolderEdit), "D:\\plain.txt");
        dialog.ValidatePath("D:\\Gulf");
    });
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_EQ(dialog.GetPath(), "D:\\Gulf\\");
}

TEST_F(DirDialog, ATypedFolderIsGoneToOnceItsBackslashIsTyped) {
    Run([](kv::User& user) {
        user.Type(kFolderEdit, "D:\\ATLANTIC\\");
        EXPECT_EQ(user.Text(file_dialog::kFolder), "D:\\ATLANTIC");
        EXPECT_EQ(user.Text(kFolderEdit), "D:\\ATLANTIC\\");
        user.Type(kFolderEdit, "\\\\");
        EXPECT_EQ(user.Text(file_dialog::kFolder), "D:\\");
        EXPECT_EQ(user.Text(kFolderEdit), "\\\\");
        user.Click(IDCANCEL);
    });
}

TEST_F(DirDialog, TypingCompletesTheOneFolderThatFits) {
    Run([](kv::User& user) {
        auto& box = static_cast<CEdit&>(*user.Window().GetDlgItem(kFolderEdit));
        user.Type(kFolderEdit, "D:\\E");
        EXPECT_EQ(user.Text(kFolderEdit), "D:\\Empty");
        EXPECT_EQ(box.GetSel(), static_cast<DWORD>(MAKEWPARAM(4, 8)));
        user.Key(kFolderEdit, "Backspace");
        EXPECT_EQ(user.Text(kFolderEdit), "D:\\E");
        user.Type(kFolderEdit, "D:\\Gulf");
        EXPECT_EQ(user.Text(kFolderEdit), "D:\\Gulf");
        user.Type(kFolderEdit, "D:\\Gulf o");
        EXPECT_EQ(user.Text(kFolderEdit), "D:\\Gulf of Mexico");
        user.Type(kFolderEdit, "D:\\A");
        EXPECT_EQ(user.Text(kFolderEdit), "D:\\Atlantic");
        user.Type(kFolderEdit, "D:\\p");
        EXPECT_EQ(user.Text(kFolderEdit), "D:\\p");
        user.Type(kFolderEdit, "em");
        EXPECT_EQ(user.Text(kFolderEdit), "empty");
        user.Click(kOpen);
    });
    EXPECT_THAT(path_, testing::StrCaseEq("D:\\Empty\\"));
}

TEST_F(DirDialog, NothingIsCompletedAheadOfOtherTextOrInsideACharacter) {
    folder_.Write("data/\xC3\x89t\xC3\xA9/x", "");
    Run([](kv::User& user) {
        user.Paste(kFolderEdit, "D:\\mpty");
        for (const char* key : {"Home", "Right", "Right", "Right"})
            user.Key(kFolderEdit, key);
        user.Key(kFolderEdit, "Shift+E");
        EXPECT_EQ(user.Text(kFolderEdit), "D:\\Empty");
        user.Type(kFolderEdit, "D:\\\xC3\x89");
        EXPECT_EQ(user.Text(kFolderEdit), "D:\\\xC3\x89t\xC3\xA9");
        user.Type(kFolderEdit, "D:\\\xC3\xA9");
        EXPECT_EQ(user.Text(kFolderEdit), "D:\\\xC3\xA9");
        user.Click(IDCANCEL);
    });
}

TEST_F(DirDialog, DeleteGoesAlongWithoutCompleting) {
    Run([](kv::User& user) {
        user.Paste(kFolderEdit, "D:\\Gulf\\x");
        user.Key(kFolderEdit, "Left");
        user.Key(kFolderEdit, "Delete");
        EXPECT_EQ(user.Text(kFolderEdit), "D:\\Gulf\\");
        EXPECT_EQ(user.Text(file_dialog::kFolder), "D:\\Gulf");
        user.Paste(kFolderEdit, "D:\\Ex");
        user.Key(kFolderEdit, "Left");
        user.Key(kFolderEdit, "Delete");
        EXPECT_EQ(user.Text(kFolderEdit), "D:\\E");
        user.Click(IDCANCEL);
    });
}

TEST_F(DirDialog, EnterGoesThereAndStays) {
    EXPECT_EQ(Run([&](kv::User& user) {
                  user.Paste(kFolderEdit, "D:\\Gulf");
                  user.Key(kFolderEdit, "Enter");
                  EXPECT_EQ(user.Text(file_dialog::kFolder), "D:\\Gulf");
                  EXPECT_EQ(user.Text(kFolderEdit), "D:\\Gulf\\");
                  user.Paste(kFolderEdit, "D:\\made\\by Enter\\");
                  user.Key(kFolderEdit, "Enter");
                  EXPECT_EQ(user.Text(file_dialog::kFolder), "D:\\made\\by Enter");
                  EXPECT_TRUE(fs::is_directory(folder_.Native("data/made/by Enter")));
                  user.Paste(kFolderEdit, "D:");
                  user.Key(kFolderEdit, "Enter");
                  EXPECT_EQ(user.Text(file_dialog::kFolder), "D:\\");
                  EXPECT_EQ(user.Text(kFolderEdit), "D:");
                  user.Click(IDCANCEL);
              }),
              IDCANCEL);
}

TEST_F(DirDialog, EnterTellsWhyItCannotGoThere) {
    Tells("You do not have permission or\notherwise cannot create this folder.");
    Tells("Q:\\x\nThe drive is invalid.");
    Tells("D:\\plain.txt\nThis is a file not a directory.");
    Run([](kv::User& user) {
        for (const char* text : {"F:\\x", "Q:\\x", "D:\\plain.txt"}) {
            user.Paste(kFolderEdit, text);
            user.Key(kFolderEdit, "Enter");
            EXPECT_EQ(user.Text(kFolderEdit), text);
            EXPECT_EQ(FocusedId(), kFolderEdit);
        }
        user.Click(IDCANCEL);
    });
}

TEST_F(DirDialog, TabGoesToOpenAndBackAndEscapeCancels) {
    EXPECT_EQ(Run([](kv::User& user) {
                  user.Key(kFolderEdit, "Tab");
                  EXPECT_EQ(FocusedId(), kOpen);
                  user.Key(kOpen, "Tab");
                  EXPECT_EQ(FocusedId(), kv::file_dialog::kTypes);
                  user.Focus(kFolderEdit);
                  user.Key(kFolderEdit, "Shift+Tab");
                  EXPECT_NE(FocusedId(), kFolderEdit);
                  EXPECT_NE(FocusedId(), kOpen);
                  user.Focus(kFolderEdit);
                  user.Key(kFolderEdit, "Escape");
                  EXPECT_FALSE(user.Open());
              }),
              IDCANCEL);
}

TEST_F(DirDialog, ATextMeansWhatItMeansInTheFolderThatIsShown) {
    fs::create_directories(folder_.Native("other/here"));
    kv::MapDrive('E', folder_.Native("other"));
    kv::ChangeFolder("E:\\");
    EXPECT_EQ(Open("Gulf"), IDOK);
    EXPECT_EQ(path_, "D:\\Gulf\\");
    kv::ChangeFolder("E:\\");
    EXPECT_EQ(Open("\\Gulf\\2024"), IDOK);
    EXPECT_EQ(path_, "D:\\Gulf\\2024\\");
    EXPECT_EQ(Open("E:here"), IDOK);
    EXPECT_EQ(path_, "E:\\here\\");
}

}  // namespace
}  // namespace test
