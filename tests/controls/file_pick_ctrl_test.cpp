#include "controls/file_pick_ctrl.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <filesystem>
#include <functional>

#include "base/paths.h"
#include "controls/file_pick_ids.h"
#include "frame/module.h"
#include "support/dialog_fixture.h"
#include "support/temp_folder.h"
#include "window/acting/headless_desktop.h"
#include "window/window_system.h"

namespace test {
namespace {

namespace fs = std::filesystem;
using namespace kv::file_pick;
using testing::ElementsAre;
using testing::IsEmpty;
using Texts = std::vector<std::string>;

TEST(FileMask, IsReadFromTheLastBrackets) {
    EXPECT_EQ(PatternOf("Text Files (*.txt)"), "*.txt");
    EXPECT_EQ(PatternOf("Files (all) (*.*)"), "*.*");
    EXPECT_EQ(PatternOf("Files (*.a;*.b)"), "*.a;*.b");
    EXPECT_EQ(PatternOf("Text Files"), "");
    EXPECT_EQ(PatternOf(")("), "");
    EXPECT_EQ(PatternOf("*.txt)"), "");
}

TEST(CapitalizedWords, BeginInCapitalsBehindBlanksAlone) {
    EXPECT_EQ(StrToCapitalizedWords("MY gulf DATA"), "My Gulf Data");
    EXPECT_EQ(StrToCapitalizedWords("a-b_c  d"), "A-b_c  D");
    EXPECT_EQ(StrToCapitalizedWords("1ST \xC3\x89t\xC3\xA9"), "1st \xC3\x89t\xC3\xA9");
    EXPECT_EQ(StrToCapitalizedWords(""), "");
}

/// "D:" holds files and folders, "E:" nothing.
class FilePick : public testing::Test {
protected:
    FilePick() {
        InitControlDll();
        kv::WindowSystem::Get().SetDesktop(&desktop_);
        for (const char* file : {"data/b.txt", "data/B.txt", "data/a.txt", "data/map.csv",
                                 "data/README", "data/.hidden.txt", "data/GULF blocks/deep.txt",
                                 "data/atlantic/x.txt", "data/.git/config"})
            folder_.Write(file, "");
        fs::create_directories(folder_.Native("empty"));
        kv::MapDrive('D', folder_.Native("data"));
        kv::MapDrive('E', folder_.Native("empty"));
        dialog_.SetStartPath("D:\\");
    }
    ~FilePick() override { kv::WindowSystem::Get().SetDesktop(nullptr); }

    /// The answer of a run in which the person does that, and is told that, if anything.
    int Run(const std::function<void(kv::User&)>& act, const char* message = nullptr) {
        desktop_.ExpectWindow("Pick", act);
        if (message) desktop_.ExpectMessage(message);
        return dialog_.DoModal("Pick");
    }
    std::string Selected() const {
        std::array<char, kPathSize> out{};
        dialog_.GetSelectedItem(out.data());
        return out.data();
    }
    Texts Multiple() const {
        Texts picked{"what the caller had"};
        const int count = dialog_.GetMultipleSelectedItem(picked);
        EXPECT_EQ(count, static_cast<int>(picked.size()));
        return picked;
    }

    TempFolder folder_;
    kv::HeadlessDesktop desktop_;
    CFilePickCtrl dialog_;
};

TEST_F(FilePick, BeginsWithItsCaptionItsFolderAndItsOwnTypeLine) {
    EXPECT_EQ(Run([](kv::User& user) {
                  EXPECT_EQ(user.Text(kPath), "D:\\");
                  EXPECT_EQ(user.Rows(kTypes), (Texts{"All files (*.txt)"}));
                  EXPECT_EQ(user.Text(kTypes), "All files (*.txt)");
                  EXPECT_FALSE(user.Enabled(kFileName));
                  EXPECT_EQ(user.Rows(kFiles), (Texts{"[Root]", "Atlantic", "Gulf Blocks", "B.txt",
                                                      "a.txt", "b.txt"}));
                  user.Click(IDCANCEL);
              }),
              IDCANCEL);
    EXPECT_EQ(Selected(), "");
}

TEST_F(FilePick, ListsEveryDriveAndGoesToTheRootOfTheChosenOne) {
    Run([](kv::User& user) {
        const Texts drives = user.Rows(kDrives);
        EXPECT_THAT(drives, testing::IsSupersetOf({"(C:)", "(D:)", "(E:)"}));
        EXPECT_EQ(user.Text(kDrives), "(D:)");
        user.Select(kDrives, "(E:)");
        EXPECT_EQ(user.Text(kPath), "E:\\");
        EXPECT_EQ(user.Rows(kFiles), (Texts{"[Root]"}));
        user.Click(IDOK);
    });
    EXPECT_EQ(Selected(), "E:\\");
    Run([](kv::User& user) {
        EXPECT_EQ(user.Text(kDrives), "(E:)");
        user.Click(IDCANCEL);
    });
}

TEST_F(FilePick, DrivesAndLinesHaveImagesOfTheSizeAskedFor) {
    for (const int large : {0, 1}) {
        dialog_.SetLargeDriveIcons(large);
        dialog_.SetLargeFilesIcons(1 - large);
        Run([&](kv::User& user) {
            auto& drives = static_cast<CComboBoxEx&>(*user.Window().GetDlgItem(kDrives));
            auto& files = static_cast<CListCtrl&>(*user.Window().GetDlgItem(kFiles));
            const auto width = [](CImageList* images) {
                return images->GetSafeHandle()->Size().cx;
            };
            EXPECT_EQ(width(drives.GetImageList()), large ? 32 : 16);
            EXPECT_EQ(width(files.GetImageList(LVSIL_SMALL)), large ? 16 : 32);
            EXPECT_EQ(drives.GetImageList()->GetImageCount(), 1);
            EXPECT_EQ(files.GetImageList(LVSIL_SMALL)->GetImageCount(), 2);
            COMBOBOXEXITEM drive;
            drive.mask = CBEIF_IMAGE;
            drive.iItem = 0;
            EXPECT_TRUE(drives.GetItem(&drive));
            EXPECT_EQ(drive.iImage, 0);
            for (const auto& [line, image] : {std::pair(0, 0), {1, 0}, {3, 1}}) {
                LVITEM item;
                item.mask = LVIF_IMAGE;
                item.iItem = line;
                files.GetItem(&item);
                EXPECT_EQ(item.iImage, image) << line;
            }
            user.Click(IDCANCEL);
        });
    }
}

TEST_F(FilePick, TheColumnIsWiderThanTheWidestNameByThirtyFive) {
    folder_.Write("data/WWWWWWWWWWWW.txt", "");
    folder_.Write("data/iiiiiiiiiiiiiiiiii.txt", "");
    Run([](kv::User& user) {
        auto& files = static_cast<CListCtrl&>(*user.Window().GetDlgItem(kFiles));
        EXPECT_EQ(files.GetColumnWidth(0), files.GetStringWidth("WWWWWWWWWWWW.txt") + 35);
        EXPECT_EQ(files.GetHeaderCtrl(), nullptr);
        user.Click(IDCANCEL);
    });
}

TEST_F(FilePick, LargeImagesTakeNothingFromTheNames) {
    folder_.Write("data/WWWWWWWWWWWW.txt", "");
    dialog_.SetLargeFilesIcons(TRUE);
    Run([](kv::User& user) {
        auto& files = static_cast<CListCtrl&>(*user.Window().GetDlgItem(kFiles));
        EXPECT_EQ(files.GetColumnWidth(0), files.GetStringWidth("WWWWWWWWWWWW.txt") + 35 + 16);
        user.Click(IDCANCEL);
    });
}

TEST_F(FilePick, GoesDownByADoubleClickAndUpByTheFirstLine) {
    Run([](kv::User& user) {
        user.DoubleClick(kFiles, "Gulf Blocks");
        EXPECT_EQ(user.Text(kPath), "D:\\GULF blocks\\");
        EXPECT_EQ(user.Rows(kFiles), (Texts{"[Up one directory]", "deep.txt"}));
        user.DoubleClick(kFiles, "deep.txt");
        EXPECT_EQ(user.Text(kPath), "D:\\GULF blocks\\");
        user.DoubleClick(kFiles, 0);
        EXPECT_EQ(user.Text(kPath), "D:\\");
        user.DoubleClick(kFiles, 0);
        EXPECT_EQ(user.Text(kPath), "D:\\");
        EXPECT_EQ(user.Rows(kFiles).front(), "[Root]");
        user.Click(IDCANCEL);
    });
}

TEST_F(FilePick, GoesThereAndBackByKeys) {
    Run([](kv::User& user) {
        user.Focus(kFiles);
        for (const char* key : {"Down", "Down", "Down", "Down", "Up", "Space"})
            user.Key(kFiles, key);
        EXPECT_EQ(user.Text(kPath), "D:\\GULF blocks\\");
        user.Key(kFiles, "Backspace");
        EXPECT_EQ(user.Text(kPath), "D:\\");
        user.Key(kFiles, "Backspace");
        EXPECT_EQ(user.Text(kPath), "D:\\");
        user.Click(IDCANCEL);
    });
}

TEST_F(FilePick, TheTypeLineSaysWhichFilesAreListed) {
    EXPECT_EQ(dialog_.AddFilemask("Tables (*.csv)"), 1);
    EXPECT_EQ(dialog_.AddFilemask("Everything (*.*)"), 1);
    EXPECT_EQ(dialog_.AddFilemask("Two kinds (*.csv;*.txt)"), 1);
    EXPECT_EQ(dialog_.AddFilemask("No brackets *.csv"), 0);
    Run([](kv::User& user) {
        EXPECT_EQ(user.Rows(kTypes).size(), 4u);
        user.Select(kTypes, "Tables (*.csv)");
        EXPECT_EQ(user.Rows(kFiles), (Texts{"[Root]", "Atlantic", "Gulf Blocks", "map.csv"}));
        user.Select(kTypes, "Everything (*.*)");
        EXPECT_EQ(user.Rows(kFiles).size(), 8u);
        user.Select(kTypes, "Two kinds (*.csv;*.txt)");
        EXPECT_EQ(user.Rows(kFiles).size(), 3u);
        user.Select(kTypes, "Tables (*.csv)");
        user.Click(IDCANCEL);
    });
    Run([](kv::User& user) {
        EXPECT_EQ(user.Text(kTypes), "Tables (*.csv)");
        user.Click(IDCANCEL);
    });
}

TEST_F(FilePick, WithoutAnyTypeLineNoFilesAreListed) {
    dialog_.SetCustomFileExt(1);
    Run([](kv::User& user) {
        EXPECT_THAT(user.Rows(kTypes), IsEmpty());
        EXPECT_EQ(user.Rows(kFiles), (Texts{"[Root]", "Atlantic", "Gulf Blocks"}));
        user.Click(IDCANCEL);
    });
    dialog_.AddFilemask("Tables (*.csv)");
    Run([](kv::User& user) {
        EXPECT_EQ(user.Rows(kTypes), (Texts{"Tables (*.csv)"}));
        EXPECT_EQ(user.Rows(kFiles).back(), "map.csv");
        user.Click(IDCANCEL);
    });
    dialog_.DeleteFilemasks();
    Run([](kv::User& user) {
        EXPECT_THAT(user.Rows(kTypes), IsEmpty());
        user.Click(IDCANCEL);
    });
}

TEST_F(FilePick, AMaskIsRefusedWhereItIsTooLongAndWhereAFolderIsPicked) {
    const std::string longest = std::string(kLongestMask - 3, 'x') + "(*)";
    EXPECT_EQ(dialog_.AddFilemask(longest.c_str()), 1);
    EXPECT_EQ(dialog_.AddFilemask(("x" + longest).c_str()), 0);
    EXPECT_EQ(dialog_.AddFilemask(nullptr), 0);
    dialog_.SetDirOnly(1);
    EXPECT_EQ(dialog_.AddFilemask("Tables (*.csv)"), 0);
}

TEST_F(FilePick, OneFileIsGivenWithItsPath) {
    EXPECT_EQ(Run([](kv::User& user) {
                  user.Select(kFiles, "a.txt");
                  user.Click(IDOK);
              }),
              IDOK);
    EXPECT_EQ(Selected(), "D:\\a.txt");
    EXPECT_THAT(Multiple(), ElementsAre("D:\\a.txt"));
}

TEST_F(FilePick, SeveralFilesAreGivenInTheOrderOfTheList) {
    Run([](kv::User& user) {
        user.Select(kFiles, std::vector<int>{5, 3, 4});
        user.Click(IDOK);
    });
    EXPECT_THAT(Multiple(), ElementsAre("D:\\B.txt", "D:\\a.txt", "D:\\b.txt"));
    EXPECT_EQ(Selected(), "D:\\B.txt");
    Run([](kv::User& user) { user.Click(IDCANCEL); });
    EXPECT_THAT(Multiple(), IsEmpty());
    EXPECT_EQ(Selected(), "");
}

TEST_F(FilePick, WithoutALineTheTextOfTheDirectoryBoxIsGiven) {
    Run([](kv::User& user) {
        user.Type(kPath, "E:\\some\\where");
        user.Click(IDOK);
    });
    EXPECT_EQ(Selected(), "E:\\some\\where");
    EXPECT_THAT(Multiple(), IsEmpty());
}

TEST_F(FilePick, AFolderLineAmongFilesGivesTheDirectoryBoxAndTheNextRunBeginsAnew) {
    Run([](kv::User& user) {
        user.DoubleClick(kFiles, "Atlantic");
        user.Select(kFiles, 0);
        user.Click(IDOK);
    });
    EXPECT_EQ(Selected(), "D:\\atlantic\\");
    Run([](kv::User& user) {
        EXPECT_EQ(user.Text(kPath), "C:\\");
        user.Click(IDCANCEL);
    });
}

TEST_F(FilePick, AFolderIsPickedByItsLineItsParentOrItself) {
    dialog_.SetDirOnly(1);
    Run([](kv::User& user) {
        EXPECT_FALSE(user.Visible(kTypes));
        EXPECT_FALSE(user.Visible(kTypesLabel));
        EXPECT_EQ(user.Rows(kFiles), (Texts{"[Root]", "Atlantic", "Gulf Blocks"}));
        user.Select(kFiles, "Gulf Blocks");
        user.Click(IDOK);
    });
    EXPECT_EQ(Selected(), "D:\\GULF blocks\\");
    Run([](kv::User& user) {
        EXPECT_EQ(user.Text(kPath), "D:\\GULF blocks\\");
        user.Select(kFiles, "[Up one directory]");
        user.Click(IDOK);
    });
    EXPECT_EQ(Selected(), "D:\\");
    Run([](kv::User& user) {
        user.Select(kFiles, "[Root]");
        user.Click(IDOK);
    });
    EXPECT_EQ(Selected(), "D:\\");
}

TEST_F(FilePick, TheNameToSaveUnderIsTyped) {
    dialog_.SetSaveFileFlag(1);
    Run([](kv::User& user) {
        EXPECT_TRUE(user.Enabled(kFileName));
        user.DoubleClick(kFiles, "Atlantic");
        user.Type(kFileName, "new.txt");
        user.Select(kFiles, 0);
        user.Click(IDOK);
    });
    EXPECT_EQ(Selected(), "D:\\atlantic\\\\new.txt");
    EXPECT_TRUE(kv::WriteFileWhole(Selected(), "x"));
    EXPECT_TRUE(folder_.Has("data/atlantic/new.txt"));
}

TEST_F(FilePick, CancelAfterBrowsingGivesBackTheFirstPath) {
    Run([](kv::User& user) {
        user.DoubleClick(kFiles, "Atlantic");
        user.Click(IDCANCEL);
    });
    Run([](kv::User& user) {
        EXPECT_EQ(user.Text(kPath), "D:\\");
        user.Click(IDCANCEL);
    });
}

TEST_F(FilePick, TheDirectoryBoxCanBeHidden) {
    dialog_.SetShowPath(0);
    Run([](kv::User& user) {
        EXPECT_FALSE(user.Visible(kPath));
        EXPECT_FALSE(user.Visible(kPathLabel));
        user.Click(IDOK);
    });
    EXPECT_EQ(Selected(), "D:\\");
}

TEST_F(FilePick, AStartPathGetsItsBackslashAndAnEmptyOneIsLeft) {
    dialog_.SetStartPath("D:\\atlantic");
    dialog_.SetStartPath("");
    dialog_.SetStartPath(nullptr);
    Run([](kv::User& user) {
        EXPECT_EQ(user.Text(kPath), "D:\\atlantic\\");
        user.Click(IDCANCEL);
    });
}

TEST_F(FilePick, TwoFoldersThatDifferOnlyInTheirCapitalsCanBothBeReached) {
    folder_.Write("data/GULF Blocks/other.txt", "");
    Run([](kv::User& user) {
        EXPECT_EQ(user.Rows(kFiles)[2], "Gulf Blocks");
        EXPECT_EQ(user.Rows(kFiles)[3], "Gulf Blocks");
        user.DoubleClick(kFiles, 2);
        EXPECT_EQ(user.Rows(kFiles).back(), "other.txt");
        user.DoubleClick(kFiles, 0);
        user.DoubleClick(kFiles, 3);
        EXPECT_EQ(user.Rows(kFiles).back(), "deep.txt");
        user.Click(IDCANCEL);
    });
}

TEST_F(FilePick, AFolderThatVanishesWhileItIsShownIsToldOf) {
    Run(
        [&](kv::User& user) {
            fs::remove_all(folder_.Native("data/atlantic"));
            user.DoubleClick(kFiles, "Atlantic");
            EXPECT_EQ(user.Rows(kFiles), (Texts{"[Up one directory]"}));
            user.DoubleClick(kFiles, 0);
            EXPECT_EQ(user.Text(kPath), "D:\\");
            user.Click(IDCANCEL);
        },
        "D:\\atlantic\\\nThis folder cannot be read.");
}

TEST_F(FilePick, LinksThatGoRoundAndNamesOfEveryScriptCanBePicked) {
    fs::create_directory_symlink(folder_.Native("data"), folder_.Native("data/round"));
    fs::create_symlink("nowhere", folder_.Native("data/dangling.txt"));
    folder_.Write("data/\xD0\xB7\xD0\xB0\xD0\xBB\xD0\xB8\xD0\xB2/\xE6\xB2\xB9.txt", "");
    folder_.Write("data/bad\xFF.txt", "");
    Run([](kv::User& user) {
        EXPECT_THAT(user.Rows(kFiles), testing::IsSupersetOf({"Round", "dangling.txt"}));
        user.DoubleClick(kFiles, "Round");
        user.DoubleClick(kFiles, "Round");
        EXPECT_EQ(user.Text(kPath), "D:\\round\\round\\");
        user.DoubleClick(kFiles, "\xD0\xB7\xD0\xB0\xD0\xBB\xD0\xB8\xD0\xB2");
        user.Select(kFiles, "\xE6\xB2\xB9.txt");
        user.Click(IDOK);
    });
    EXPECT_EQ(Selected(),
              "D:\\round\\round\\\xD0\xB7\xD0\xB0\xD0\xBB\xD0\xB8\xD0\xB2\\\xE6\xB2\xB9.txt");
    EXPECT_TRUE(kv::Exists(Selected()));
    dialog_.SetStartPath("D:\\");
    Run([](kv::User& user) {
        user.Select(kFiles, "bad\xFF.txt");
        user.Click(IDOK);
    });
    EXPECT_TRUE(kv::Exists(Selected()));
}

TEST_F(FilePick, APathThatTheCallersBufferCannotHoldIsRefusedAndTheDialogStays) {
    EXPECT_EQ(Run(
                  [](kv::User& user) {
                      user.Paste(kPath, "D:\\" + std::string(kPathSize, 'x'));
                      user.Click(IDOK);
                      user.Click(IDCANCEL);
                  },
                  "The path is too long."),
              IDCANCEL);
    EXPECT_EQ(Run([](kv::User& user) {
                  EXPECT_EQ(user.Text(kPath), "D:\\");
                  user.Click(IDCANCEL);
              }),
              IDCANCEL);
}

}  // namespace
}  // namespace test
