#include "base/paths.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>

#include "base/user_folders.h"
#include "support/file_size_limit.h"
#include "support/plain_user.h"
#include "support/temp_folder.h"

namespace {

namespace fs = std::filesystem;
using test::TempFolder;

std::vector<std::string> Names(const std::vector<kv::FolderEntry>& entries) {
    std::vector<std::string> names;
    for (const kv::FolderEntry& entry : entries)
        names.push_back(entry.name);
    return names;
}

TEST(UserFolders, AreThoseOfTheEnvironmentOrBelowHome) {
    TempFolder folder;
    folder.Set("HOME", "/home/of/one");
    folder.Set("XDG_CONFIG_HOME", "/config");
    folder.Set("XDG_DATA_HOME", "/data");
    EXPECT_EQ(kv::ConfigFolder(), "/config/KVGuiCtl");
    EXPECT_EQ(kv::DataFolder(), "/data/kvguictl");
    for (const char* none : {"", "relative"}) {
        folder.Set("XDG_CONFIG_HOME", none);
        folder.Set("XDG_DATA_HOME", none);
        EXPECT_EQ(kv::ConfigFolder(), "/home/of/one/.config/KVGuiCtl");
        EXPECT_EQ(kv::DataFolder(), "/home/of/one/.local/share/kvguictl");
    }
}

TEST(Paths, DriveCIsTheRootOfTheMachine) {
    const TempFolder folder;
    EXPECT_EQ(kv::ToNative("C:\\"), "/");
    EXPECT_EQ(kv::ToNative("C:"), "/");
    EXPECT_EQ(kv::ToNative("c:\\no such folder\\a.txt"), "/no such folder/a.txt");
    EXPECT_EQ(kv::FromNative("/"), "C:\\");
    EXPECT_EQ(kv::FromNative("/no such folder/a.txt"), "C:\\no such folder\\a.txt");
}

TEST(Paths, EveryMachinePathComesBackAsItWas) {
    const TempFolder folder;
    for (const std::string& path :
         {folder.Native(), folder.Native("x/Y/z.txt"), std::string("/")}) {
        EXPECT_EQ(kv::ToNative(kv::FromNative(path)), path);
        EXPECT_EQ(kv::ToNative(path), path);
    }
}

TEST(Paths, AMappedDriveHasItsOwnRoot) {
    const TempFolder folder;
    kv::MapDrive('d', folder.Native());
    EXPECT_EQ(kv::DriveLetters(), "CD");
    EXPECT_EQ(kv::ToNative("D:\\"), folder.Native());
    EXPECT_EQ(kv::ToNative("d:\\new\\a.txt"), folder.Native("new/a.txt"));
    EXPECT_EQ(kv::FromNative(folder.Native("a.txt")), "D:\\a.txt");
    EXPECT_EQ(kv::FromNative(folder.Native()), "D:\\");
    EXPECT_EQ(kv::FromNative(folder.Native() + "x"),
              "C:" + kv::FromNative(folder.Native() + "x").substr(2));
    kv::MapDrive('D', "");
    EXPECT_EQ(kv::DriveLetters(), "C");
}

TEST(Paths, WhereNoDriveHoldsAPathItStaysTheMachinesOwn) {
    const TempFolder folder;
    kv::MapDrive('C', folder.Native("c"));
    EXPECT_EQ(kv::FromNative("/etc/x"), "/etc/x");
    EXPECT_EQ(kv::ToNative("/etc/x"), "/etc/x");
    EXPECT_EQ(kv::ToNative("C:\\x"), folder.Native("c/x"));
    kv::MapDrive('C', "");
    EXPECT_EQ(kv::ToNative("C:\\x"), "/x");
}

TEST(Paths, AnUnknownDriveAndANetworkPathLeadNowhere) {
    const TempFolder folder;
    EXPECT_EQ(kv::ToNative("Q:\\a.txt"), "");
    EXPECT_EQ(kv::ToNative("\\\\server\\share\\a.txt"), "");
    EXPECT_FALSE(kv::Exists("Q:\\"));
    EXPECT_FALSE(kv::MakeFolders("Q:\\a\\b"));
    EXPECT_FALSE(kv::MakeFolder("\\\\server\\share"));
    EXPECT_EQ(kv::ReadBinaryFile("Q:\\a.txt"), std::nullopt);
    std::string error;
    EXPECT_FALSE(kv::WriteFileWhole("Q:\\a.txt", "x", &error));
    EXPECT_NE(error, "");
}

TEST(Paths, DrivesHaveKinds) {
    const TempFolder folder;
    kv::MapDrive('D', folder.Native("nothing there"));
    EXPECT_GT(kv::GetDriveKind('C'), kv::kDriveNone);
    EXPECT_EQ(kv::GetDriveKind('D'), kv::kDriveNone);
    EXPECT_EQ(kv::GetDriveKind('Q'), kv::kDriveNone);
    EXPECT_EQ(kv::GetDriveKind('?'), kv::kDriveNone);
}

TEST(Paths, ADriveMayBeMappedWithItsKind) {
    const TempFolder folder;
    kv::MapDrive('D', folder.Native(), kv::kDriveCdRom);
    EXPECT_EQ(kv::GetDriveKind('d'), kv::kDriveCdRom);
    kv::MapDrive('D', folder.Native());
    EXPECT_EQ(kv::GetDriveKind('D'), kv::kDriveFixed);
    kv::MapDrive('D', folder.Native(), kv::kDriveRemote);
    kv::ForgetDrives();
    EXPECT_EQ(kv::GetDriveKind('D'), kv::kDriveNone);
    kv::MapDrive('D', folder.Native(), kv::kDriveRemote);
    kv::MapDrive('D', "");
    EXPECT_EQ(kv::GetDriveKind('D'), kv::kDriveNone);
}

TEST(ReadFolder, TellsFoldersAndLinksToThemFromFilesAndWhatCannotBeRead) {
    const TempFolder folder;
    folder.Write("here/a.txt", "");
    folder.Write("here/sub/b.txt", "");
    fs::create_directory_symlink("sub", folder.Native("here/link"));
    fs::create_symlink("nowhere", folder.Native("here/dangling"));
    std::map<std::string, bool> entries;
    const auto read = kv::ReadFolder(folder.Dialog("here"));
    ASSERT_TRUE(read);
    for (const kv::FolderEntry& entry : *read)
        entries[entry.name] = entry.isFolder;
    EXPECT_EQ(entries, (std::map<std::string, bool>{
                           {"a.txt", false}, {"dangling", false}, {"link", true}, {"sub", true}}));
    EXPECT_FALSE(kv::ReadFolder(folder.Dialog("nowhere")));
    EXPECT_FALSE(kv::ReadFolder(folder.Dialog("here/a.txt")));
    EXPECT_FALSE(kv::ReadFolder("Q:\\"));
    EXPECT_FALSE(kv::ReadFolder(""));
}

TEST(Paths, TheSourceOfDrivesIsAskedOnceWhenFirstNeeded) {
    const TempFolder folder;
    int asked = 0;
    const auto before = kv::SetDriveSource([&] {
        ++asked;
        kv::MapDrive('E', folder.Native());
    });
    EXPECT_EQ(asked, 0);
    EXPECT_EQ(kv::ToNative("E:\\x"), folder.Native("x"));
    EXPECT_EQ(kv::ToNative("E:\\y"), folder.Native("y"));
    EXPECT_EQ(asked, 1);
    kv::ForgetDrives();
    EXPECT_EQ(kv::DriveLetters(), "CE");
    EXPECT_EQ(asked, 2);
    kv::SetDriveSource(nullptr);
    EXPECT_EQ(kv::DriveLetters(), "C");
    kv::SetDriveSource(before);
}

TEST(Paths, AnExistingNameIsFoundWithoutRegardToCase) {
    const TempFolder folder;
    folder.Write("Report/Blocks.TXT", "x");
    EXPECT_EQ(kv::ToNative(folder.Dialog() + "\\REPORT\\blocks.txt"),
              folder.Native("Report/Blocks.TXT"));
    EXPECT_EQ(kv::ToNative(folder.Dialog() + "\\report\\new.txt"), folder.Native("Report/new.txt"));
    EXPECT_EQ(kv::ReadBinaryFile(folder.Dialog() + "\\report\\BLOCKS.txt"), "x");
}

TEST(Paths, TheExactNameWinsOverAnotherCase) {
    const TempFolder folder;
    folder.Write("App/a", "");
    folder.Write("app/a", "");
    folder.Write("APP/a", "");
    EXPECT_EQ(kv::ToNative(folder.Dialog() + "\\app\\a"), folder.Native("app/a"));
    EXPECT_EQ(kv::ToNative(folder.Dialog() + "\\App\\a"), folder.Native("App/a"));
    EXPECT_EQ(kv::ToNative(folder.Dialog() + "\\aPP\\a"), folder.Native("APP/a"));
}

TEST(Paths, AFolderMadeInOneCaseIsThereInAnother) {
    const TempFolder folder;
    EXPECT_TRUE(kv::MakeFolder(folder.Dialog() + "\\Report"));
    EXPECT_FALSE(kv::MakeFolder(folder.Dialog() + "\\REPORT"));
    EXPECT_TRUE(kv::IsFolder(folder.Dialog() + "\\rePort"));
    EXPECT_EQ(folder.Count(), 1u);
}

TEST(Paths, RelativePathsStartInTheCurrentFolder) {
    const TempFolder folder;
    folder.Write("Sub/a.txt", "inside");
    ASSERT_TRUE(kv::ChangeFolder(folder.Dialog()));
    EXPECT_EQ(kv::CurrentFolder(), folder.Dialog());
    EXPECT_EQ(kv::ReadBinaryFile("sub\\A.TXT"), "inside");
    EXPECT_EQ(kv::ToNative(".\\sub\\..\\new"), "./Sub/../new");
    EXPECT_EQ(kv::AbsolutePath("sub\\..\\new"), folder.Dialog("new"));
    EXPECT_EQ(kv::AbsolutePath("."), folder.Dialog());
}

TEST(Paths, ABackslashAloneIsTheRootOfTheCurrentDrive) {
    const TempFolder folder;
    folder.Write("deep/a.txt", "");
    kv::MapDrive('D', folder.Native());
    EXPECT_EQ(kv::ToNative("\\x"), "/x");
    ASSERT_TRUE(kv::ChangeFolder("D:\\deep"));
    EXPECT_EQ(kv::CurrentFolder(), "D:\\deep");
    EXPECT_EQ(kv::ToNative("\\x"), folder.Native("x"));
    EXPECT_EQ(kv::ToNative("D:a.txt"), "a.txt");
    EXPECT_EQ(kv::ToNative("C:x"), "/x");
}

TEST(Paths, AFailedChangeOfFolderStaysWhereItWas) {
    const TempFolder folder;
    ASSERT_TRUE(kv::ChangeFolder(folder.Dialog()));
    EXPECT_FALSE(kv::ChangeFolder(folder.Dialog() + "\\nothing"));
    EXPECT_FALSE(kv::ChangeFolder(""));
    EXPECT_EQ(kv::CurrentFolder(), folder.Dialog());
}

TEST(Paths, PartsOfAPath) {
    EXPECT_EQ(kv::FolderOf("C:\\a\\b.txt"), "C:\\a\\");
    EXPECT_EQ(kv::NameOf("C:\\a\\b.txt"), "b.txt");
    EXPECT_EQ(kv::TitleOf("C:\\a.b\\c.d.txt"), "c.d");
    EXPECT_EQ(kv::TitleOf("C:\\a.b\\c"), "c");
    EXPECT_EQ(kv::FolderOf("b.txt"), "");
    EXPECT_EQ(kv::NameOf("C:\\a\\"), "");
    EXPECT_EQ(kv::NameOf("/a/b.txt"), "b.txt");
    EXPECT_EQ(kv::JoinPath("C:\\a", "b"), "C:\\a\\b");
    EXPECT_EQ(kv::JoinPath("C:\\", "b"), "C:\\b");
    EXPECT_EQ(kv::JoinPath("", "b"), "b");
}

TEST(Paths, MakesOneFolderOrAllOfThem) {
    const TempFolder folder;
    EXPECT_FALSE(kv::MakeFolder(folder.Dialog() + "\\a\\b"));
    EXPECT_TRUE(kv::MakeFolders(folder.Dialog() + "\\a\\b\\c\\"));
    EXPECT_TRUE(fs::is_directory(folder.Native("a/b/c")));
    EXPECT_TRUE(kv::MakeFolders(folder.Dialog() + "\\a\\b"));
    folder.Write("file", "");
    EXPECT_FALSE(kv::MakeFolders(folder.Dialog() + "\\file"));
    EXPECT_FALSE(kv::MakeFolders(folder.Dialog() + "\\file\\below"));
}

TEST(Paths, ListsAFolderInOrderOfNames) {
    const TempFolder folder;
    for (const char* name : {"b.txt", "A.txt", "c/x", "B2.txt"})
        folder.Write(name, "");
    const auto entries = kv::ListFolder(folder.Dialog());
    EXPECT_THAT(Names(entries), testing::ElementsAre("A.txt", "b.txt", "B2.txt", "c"));
    EXPECT_FALSE(entries[0].isFolder);
    EXPECT_TRUE(entries[3].isFolder);
    EXPECT_TRUE(kv::ListFolder(folder.Dialog() + "\\nothing").empty());
    EXPECT_TRUE(kv::ListFolder(folder.Dialog() + "\\A.txt").empty());
}

TEST(Paths, RemovesFilesAndNoFolders) {
    const TempFolder folder;
    folder.Write("a.txt", "");
    EXPECT_TRUE(kv::RemoveFile(folder.Dialog() + "\\A.TXT"));
    EXPECT_FALSE(kv::RemoveFile(folder.Dialog() + "\\A.TXT"));
    EXPECT_FALSE(kv::RemoveFile(folder.Dialog()));
    EXPECT_TRUE(fs::exists(folder.Native()));
}

TEST(ReadFile, TextHasLineFeedsAndBytesStayAsTheyAre) {
    const TempFolder folder;
    const std::string content("a\r\nb\rc\n\0\xB0\r\n", 11);
    folder.Write("a.txt", content);
    EXPECT_EQ(kv::ReadBinaryFile(folder.Dialog("a.txt")), content);
    EXPECT_EQ(kv::ReadTextFile(folder.Dialog("a.txt")), std::string("a\nb\rc\n\0\xB0\n", 9));
}

TEST(ReadFile, ReadsALargeFileWhole) {
    const TempFolder folder;
    const std::string content(100'001, 'x');
    folder.Write("large", content);
    EXPECT_EQ(kv::ReadBinaryFile(folder.Dialog("large")), content);
}

TEST(ReadFile, AMissingFileAndAFolderCannotBeRead) {
    const TempFolder folder;
    EXPECT_EQ(kv::ReadTextFile(folder.Dialog("none.txt")), std::nullopt);
    EXPECT_EQ(kv::ReadBinaryFile(folder.Dialog()), std::nullopt);
    EXPECT_EQ(kv::ReadBinaryFile(""), std::nullopt);
}

TEST(ReadFile, APipeAndADeviceAreNoFiles) {
    const TempFolder folder;
    ASSERT_EQ(mkfifo(folder.Native("pipe").c_str(), 0600), 0);
    EXPECT_EQ(kv::ReadBinaryFile(folder.Dialog("pipe")), std::nullopt);
    EXPECT_EQ(kv::ReadBinaryFile("/dev/zero"), std::nullopt);
    EXPECT_EQ(kv::ReadBinaryFile("/dev/null"), std::nullopt);
}

TEST(ReadFile, AFileWithoutEndIsNotRead) {
    const TempFolder folder;
    folder.Write("long", "");
    fs::resize_file(folder.Native("long"), kv::kLongestFile);
    EXPECT_EQ(kv::ReadBinaryFile(folder.Dialog("long")).value_or("").size(), kv::kLongestFile);
    fs::resize_file(folder.Native("long"), kv::kLongestFile + 1);
    EXPECT_EQ(kv::ReadBinaryFile(folder.Dialog("long")), std::nullopt);
}

TEST(WriteFile, WritesANewFileAndReplacesAnOldOne) {
    const TempFolder folder;
    EXPECT_TRUE(kv::WriteFileWhole(folder.Dialog("a.txt"), "first\n"));
    EXPECT_EQ(folder.Read("a.txt"), "first\n");
    EXPECT_TRUE(kv::WriteFileWhole(folder.Dialog("A.TXT"), "second\n"));
    EXPECT_EQ(folder.Read("a.txt"), "second\n");
    EXPECT_EQ(folder.Count(), 1u);
}

TEST(WriteFile, KeepsThePermissionsOfTheOldFile) {
    const TempFolder folder;
    folder.Write("a.txt", "old");
    fs::permissions(folder.Native("a.txt"), fs::perms::owner_read | fs::perms::owner_write);
    ASSERT_TRUE(kv::WriteFileWhole(folder.Dialog("a.txt"), "new"));
    EXPECT_EQ(fs::status(folder.Native("a.txt")).permissions(),
              fs::perms::owner_read | fs::perms::owner_write);
}

TEST(WriteFile, ALinkStillLeadsToItsFile) {
    const TempFolder folder;
    folder.Write("real.txt", "old");
    fs::create_symlink("real.txt", folder.Native("link.txt"));
    ASSERT_TRUE(kv::WriteFileWhole(folder.Dialog("link.txt"), "new"));
    EXPECT_TRUE(fs::is_symlink(folder.Native("link.txt")));
    EXPECT_EQ(folder.Read("real.txt"), "new");
}

TEST(WriteFile, ALinkToWhatIsNotThereYetLeadsToTheNewFile) {
    const TempFolder folder;
    fs::create_directory(folder.Native("sub"));
    fs::create_symlink("sub/real.txt", folder.Native("second.txt"));
    fs::create_symlink(folder.Native("second.txt"), folder.Native("first.txt"));
    ASSERT_TRUE(kv::WriteFileWhole(folder.Dialog("first.txt"), "new"));
    EXPECT_TRUE(fs::is_symlink(folder.Native("first.txt")));
    EXPECT_TRUE(fs::is_symlink(folder.Native("second.txt")));
    EXPECT_EQ(folder.Read("sub/real.txt"), "new");
    EXPECT_EQ(folder.Count(), 3U);
}

TEST(WriteFile, ALinkThatLeadsNowhereIsNoTargetAndStays) {
    const TempFolder folder;
    fs::create_symlink("none/real.txt", folder.Native("lost.txt"));
    fs::create_symlink("round.txt", folder.Native("round.txt"));
    std::string error;
    EXPECT_FALSE(kv::WriteFileWhole(folder.Dialog("lost.txt"), "x", &error));
    EXPECT_EQ(error, "No such file or directory");
    EXPECT_FALSE(kv::WriteFileWhole(folder.Dialog("round.txt"), "x", &error));
    EXPECT_EQ(error, "Too many levels of symbolic links");
    EXPECT_TRUE(fs::is_symlink(folder.Native("lost.txt")));
    EXPECT_TRUE(fs::is_symlink(folder.Native("round.txt")));
    EXPECT_EQ(folder.Count(), 2U);
}

TEST(WriteFile, OnAFullDiskTheOldFileStaysAndNothingIsLeftBehind) {
    const TempFolder folder;
    folder.Write("a.txt", "old");
    std::string error;
    bool written = true;
    {
        const test::FileSizeLimit limit(1024);
        written = kv::WriteFileWhole(folder.Dialog("a.txt"), std::string(100'000, 'x'), &error);
    }
    EXPECT_FALSE(written);
    EXPECT_NE(error, "");
    EXPECT_EQ(folder.Read("a.txt"), "old");
    EXPECT_EQ(folder.Count(), 1u);
}

TEST(WriteFile, ADiskThatFillsAtTheVeryEndIsNoticed) {
    const TempFolder folder;
    folder.Write("a.txt", "old");
    bool written = true;
    {
        // Less than a buffer's worth, so that it reaches the disk in Commit alone.
        const test::FileSizeLimit limit(10);
        written = kv::WriteFileWhole(folder.Dialog("a.txt"), "more than ten bytes");
    }
    EXPECT_FALSE(written);
    EXPECT_EQ(folder.Read("a.txt"), "old");
    EXPECT_EQ(folder.Count(), 1u);
}

TEST(WriteFile, AFolderOrAPipeIsNoTarget) {
    const TempFolder folder;
    fs::create_directory(folder.Native("sub"));
    ASSERT_EQ(mkfifo(folder.Native("pipe").c_str(), 0600), 0);
    std::string error;
    EXPECT_FALSE(kv::WriteFileWhole(folder.Dialog("sub"), "x", &error));
    EXPECT_NE(error, "");
    EXPECT_FALSE(kv::WriteFileWhole(folder.Dialog("pipe"), "x"));
    EXPECT_TRUE(fs::is_fifo(folder.Native("pipe")));
    EXPECT_TRUE(fs::is_empty(folder.Native("sub")));
    EXPECT_EQ(folder.Count(), 2u);
}

TEST(WriteFile, AFolderThatIsNotThereIsToldAsSuch) {
    const TempFolder folder;
    std::string error;
    EXPECT_FALSE(kv::WriteFileWhole(folder.Dialog("none") + "\\a.txt", "x", &error));
    EXPECT_EQ(error, "No such file or directory");
}

TEST(FileWriter, WithoutCommitLeavesTheOldFile) {
    const TempFolder folder;
    folder.Write("a.txt", "old");
    {
        kv::FileWriter writer;
        ASSERT_TRUE(writer.Open(folder.Dialog("a.txt")));
        EXPECT_TRUE(writer.Write("new"));
        EXPECT_EQ(folder.Read("a.txt"), "old");
    }
    EXPECT_EQ(folder.Read("a.txt"), "old");
    EXPECT_EQ(folder.Count(), 1u);
}

TEST(FileWriter, TwoWritersOfOneFileDoNotMeet) {
    const TempFolder folder;
    kv::FileWriter first;
    kv::FileWriter second;
    ASSERT_TRUE(first.Open(folder.Dialog("a.txt")));
    ASSERT_TRUE(second.Open(folder.Dialog("a.txt")));
    EXPECT_TRUE(first.Write("first"));
    EXPECT_TRUE(second.Write("second"));
    EXPECT_TRUE(second.Commit());
    EXPECT_EQ(folder.Read("a.txt"), "second");
    EXPECT_TRUE(first.Commit());
    EXPECT_EQ(folder.Read("a.txt"), "first");
    EXPECT_EQ(folder.Count(), 1u);
}

TEST(FileWriter, IsOfNoUseUnlessOpen) {
    kv::FileWriter writer;
    EXPECT_FALSE(writer.IsOpen());
    EXPECT_FALSE(writer.Write("x"));
    EXPECT_FALSE(writer.Commit());
}

TEST(WriteFile, AReadOnlyFileIsNotReplaced) {
    const TempFolder folder;
    folder.Write("a.txt", "old");
    fs::permissions(folder.Native("a.txt"), fs::perms::owner_read);
    fs::permissions(folder.Native(), fs::perms::all);
    EXPECT_EXIT(
        test::ExitAsPlainUser(folder.Native("a.txt"),
                              [&] { return !kv::WriteFileWhole(folder.Native("a.txt"), "new"); }),
        testing::ExitedWithCode(0), "");
    EXPECT_EQ(folder.Read("a.txt"), "old");
}

}  // namespace
