#include "frame/kvcom/ut_registry.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <thread>

#include "frame/kvdbkvn/table_owner.h"
#include "support/file_size_limit.h"
#include "support/temp_folder.h"

namespace {

namespace fs = std::filesystem;
using test::TempFolder;
using testing::HasSubstr;
using testing::Not;

const std::string kPath = "SOFTWARE\\KVI";

std::string Get(const std::string& key) {
    return CKvUtRegistry().GetRegistry(kPath, key, true);
}

std::string Home() {
    return CKvUtRegistry().GetRegistry(CKvUtRegistry::S_GetHomePath(),
                                       CKvUtRegistry::S_GetHomeKey(), true);
}
std::string Work() {
    return CKvUtRegistry().GetRegistry(CKvUtRegistry::S_GetWorkPath(),
                                       CKvUtRegistry::S_GetWorkKey(), true);
}

std::size_t CountOf(const std::string& word, const std::string& text) {
    std::size_t count = 0;
    for (std::size_t at = text.find(word); at != std::string::npos; at = text.find(word, at + 1))
        ++count;
    return count;
}

TEST(Registry, IsReadAgainWhenAnotherHasChangedIt) {
    const TempFolder folder;
    folder.Write("registry.ini", "[SOFTWARE\\KVI]\nDATASET=A\n");
    EXPECT_EQ(Get("DATASET"), "A");
    folder.Write("registry.ini", "[SOFTWARE\\KVI]\nDATASET=B\n");
    EXPECT_EQ(Get("DATASET"), "B") << "within a tick of the file system's clock";
    std::this_thread::sleep_for(std::chrono::milliseconds(3100));
    EXPECT_EQ(Get("DATASET"), "B");
    EXPECT_EQ(Get("DATASET"), "B");
    folder.Write("registry.ini", "[SOFTWARE\\KVI]\nDATASET=C\n");
    EXPECT_EQ(Get("DATASET"), "C");
    fs::remove(folder.Native("registry.ini"));
    EXPECT_EQ(Get("DATASET"), "GULF_MEXICO");
}

TEST(Registry, TheEntriesOfTheFoldersHaveTheseNames) {
    EXPECT_EQ(CKvUtRegistry::S_GetHomePath(), "SOFTWARE\\KVI");
    EXPECT_EQ(CKvUtRegistry::S_GetHomeKey(), "HOME_DIR");
    EXPECT_EQ(CKvUtRegistry::S_GetWorkPath(), "SOFTWARE\\KVI");
    EXPECT_EQ(CKvUtRegistry::S_GetWorkKey(), "WORK_DIR");
}

TEST(Registry, AFreshMachineHasFoldersOfTheUsers) {
    const TempFolder folder;
    EXPECT_EQ(Home(), folder.Dialog("data/kvguictl/home"));
    EXPECT_EQ(Work(), folder.Dialog("data/kvguictl/work"));
    EXPECT_TRUE(kv::ChangeFolder(Home() + "\\App"));
    EXPECT_TRUE(kv::ChangeFolder(Home() + "\\app"));
    EXPECT_TRUE(kv::IsFolder(Work() + "\\REPORT"));
    EXPECT_FALSE(folder.Has("registry.ini"));
}

TEST(Registry, AnEmptyFolderCountsAsNone) {
    const TempFolder folder;
    folder.Write("registry.ini", "[SOFTWARE\\KVI]\nHOME_DIR=\nWORK_DIR=  \n");
    EXPECT_EQ(Home(), folder.Dialog("data/kvguictl/home"));
    EXPECT_EQ(Work(), folder.Dialog("data/kvguictl/work"));
}

TEST(Registry, GivesAStoredFolderWithoutItsLastBackslash) {
    const TempFolder folder;
    folder.Write("registry.ini",
                 "[SOFTWARE\\KVI]\nHOME_DIR = C:\\Norvadon\\\nWORK_DIR=/srv/work/\n");
    EXPECT_EQ(Home(), "C:\\Norvadon");
    EXPECT_EQ(Work(), "C:\\srv\\work");
    EXPECT_FALSE(folder.Has("data"));
}

TEST(Registry, FindsPathsAndNamesWithoutRegardToCase) {
    const TempFolder folder;
    folder.Write("registry.ini", "[software\\kvi]\ndataset=ALASKA\n");
    EXPECT_EQ(Get("DATASET"), "ALASKA");
    EXPECT_EQ(Get("Dataset"), "ALASKA");
}

TEST(Registry, UnknownEntriesAreEmpty) {
    const TempFolder folder;
    EXPECT_EQ(Get("NO_SUCH_ENTRY"), "");
    EXPECT_EQ(CKvUtRegistry().GetRegistry("OTHER\\PATH", "DATASET", true), "");
}

TEST(Registry, KnowsTheOwnerOfTheTables) {
    const TempFolder folder;
    EXPECT_EQ(CKvTableOwner().GetTableOwner(), "NORVADON");
    folder.Write("registry.ini", "[SOFTWARE\\KVI]\nTABLE_OWNER=SOMEONE\n");
    EXPECT_EQ(CKvTableOwner().GetTableOwner(), "SOMEONE");
}

TEST(Registry, WhatIsStoredIsReadBack) {
    const TempFolder folder;
    const CKvUtRegistry registry;
    EXPECT_TRUE(registry.SetRegistry(kPath, "WORK_DIR", "D:\\work"));
    EXPECT_TRUE(registry.SetRegistry("OTHER\\PATH", "Name", " blanks and = signs "));
    EXPECT_TRUE(registry.SetRegistry("OTHER\\PATH", "Quoted", "\"q\""));
    EXPECT_EQ(Work(), "D:\\work");
    EXPECT_EQ(registry.GetRegistry("OTHER\\PATH", "Name", true), " blanks and = signs ");
    EXPECT_EQ(registry.GetRegistry("OTHER\\PATH", "Quoted", true), "\"q\"");
}

TEST(Registry, KeepsWhatAPersonWroteIntoTheFile) {
    const TempFolder folder;
    folder.Write("registry.ini",
                 "; mine\n[SOFTWARE\\KVI]\n# the work\nWork_Dir = old\nnonsense\n\n[Other]\nx=1\n");
    const CKvUtRegistry registry;
    EXPECT_TRUE(registry.SetRegistry(kPath, "WORK_DIR", "new"));
    EXPECT_TRUE(registry.SetRegistry(kPath, "DATASET", "ALASKA"));
    EXPECT_TRUE(registry.SetRegistry("New", "y", "2"));
    EXPECT_EQ(folder.Read("registry.ini"),
              "; mine\n[SOFTWARE\\KVI]\n# the work\nWORK_DIR=new\nnonsense\nDATASET=ALASKA\n\n"
              "[Other]\nx=1\n\n[New]\ny=2\n");
}

TEST(Registry, ReadsAFileWithLineEndsOfAnotherPlatform) {
    const TempFolder folder;
    folder.Write("registry.ini", "[SOFTWARE\\KVI]\r\nDATASET=ALASKA\r\n");
    EXPECT_EQ(Get("DATASET"), "ALASKA");
}

TEST(Registry, RefusesWhatALineCannotHold) {
    const TempFolder folder;
    const CKvUtRegistry registry;
    EXPECT_FALSE(registry.SetRegistry(kPath, "a=b", "1"));
    EXPECT_FALSE(registry.SetRegistry(kPath, "", "1"));
    EXPECT_FALSE(registry.SetRegistry(kPath, "a", "1\n2"));
    EXPECT_FALSE(registry.SetRegistry("x\ny", "a", "1"));
    EXPECT_FALSE(registry.SetRegistry(kPath, ";a", "1"));
    EXPECT_FALSE(registry.SetRegistry(kPath, "[a", "1"));
    EXPECT_FALSE(folder.Has("registry.ini"));
}

TEST(Registry, AFileThatCannotBeReadIsLoggedOnceAndCountsAsEmpty) {
    const TempFolder folder;
    fs::create_directory(folder.Native("registry.ini"));
    EXPECT_EQ(Get("DATASET"), "GULF_MEXICO");
    EXPECT_EQ(Home(), folder.Dialog("data/kvguictl/home"));
    EXPECT_EQ(CountOf("Cannot read the settings in " + folder.Native("registry.ini"),
                      folder.Read("log.txt")),
              1u);
    EXPECT_FALSE(CKvUtRegistry().SetRegistry(kPath, "DATASET", "ALASKA"));
    EXPECT_THAT(folder.Read("log.txt"), HasSubstr("Cannot write DATASET"));
    EXPECT_TRUE(fs::is_directory(folder.Native("registry.ini")));
}

TEST(Registry, AFolderThatCannotBeMadeIsNoFault) {
    TempFolder folder;
    folder.Write("file", "");
    folder.Set("XDG_DATA_HOME", folder.Native("file"));
    EXPECT_EQ(Home(), folder.Dialog("file/kvguictl/home"));
    EXPECT_FALSE(kv::IsFolder(Home()));
}

TEST(Registry, AFileThatCannotBeWrittenIsLoggedAndStays) {
    TempFolder folder;
    folder.Write("file", "");
    folder.Set("KVGUICTL_REGISTRY", folder.Native("file/registry.ini"));
    EXPECT_FALSE(CKvUtRegistry().SetRegistry(kPath, "DATASET", "ALASKA"));
    EXPECT_THAT(folder.Read("log.txt"), HasSubstr("Cannot write DATASET to the settings in"));
}

TEST(Registry, OnAFullDiskTheFileStays) {
    const TempFolder folder;
    folder.Write("registry.ini", "[SOFTWARE\\KVI]\nDATASET=ALASKA\n");
    const std::string before = folder.Read("registry.ini");
    bool written = true;
    {
        const test::FileSizeLimit limit(40);
        written = CKvUtRegistry().SetRegistry(kPath, "DATASET", std::string(100, 'x'));
    }
    EXPECT_FALSE(written);
    EXPECT_EQ(folder.Read("registry.ini"), before);
}

TEST(Registry, LivesInTheConfigurationFolderUnlessToldOtherwise) {
    TempFolder folder;
    folder.Set("KVGUICTL_REGISTRY", std::nullopt);
    EXPECT_TRUE(CKvUtRegistry().SetRegistry(kPath, "DATASET", "ALASKA"));
    EXPECT_TRUE(folder.Has("config/KVGuiCtl/registry.ini"));
    EXPECT_EQ(Get("DATASET"), "ALASKA");
    folder.Set("XDG_CONFIG_HOME", "relative");
    EXPECT_EQ(Get("DATASET"), "GULF_MEXICO");
    EXPECT_TRUE(CKvUtRegistry().SetRegistry(kPath, "DATASET", "PACIFIC"));
    EXPECT_TRUE(folder.Has("home/.config/KVGuiCtl/registry.ini"));
}

TEST(Registry, MapsTheDrivesOfTheMachine) {
    const TempFolder folder;
    folder.Write("registry.ini", "[SOFTWARE\\KVI\\Drives]\nD=" + folder.Native("maps") +
                                     "\ne:=" + folder.Native("reports") +
                                     "/\nF=relative\nname=/x\n[SOFTWARE\\KVI]\nWORK_DIR=" +
                                     folder.Native("maps/gulf") + "\n");
    kv::ForgetDrives();
    EXPECT_EQ(kv::DriveLetters(), "CDE");
    EXPECT_EQ(kv::ToNative("D:\\a"), folder.Native("maps/a"));
    EXPECT_EQ(kv::ToNative("E:\\a"), folder.Native("reports/a"));
    EXPECT_EQ(Work(), "D:\\gulf");
    EXPECT_THAT(folder.Read("log.txt"), HasSubstr("F=relative"));
    EXPECT_THAT(folder.Read("log.txt"), HasSubstr("name=/x"));
    EXPECT_THAT(folder.Read("log.txt"), Not(HasSubstr("maps")));
}

TEST(Registry, MapsDriveCElsewhere) {
    const TempFolder folder;
    folder.Write("registry.ini", "[SOFTWARE\\KVI\\Drives]\nC=" + folder.Native("c") +
                                     "\n[SOFTWARE\\KVI]\nHOME_DIR=C:\\Norvadon\\\n");
    kv::ForgetDrives();
    EXPECT_EQ(kv::ToNative(Home() + "\\App"), folder.Native("c/Norvadon/App"));
}

}  // namespace
