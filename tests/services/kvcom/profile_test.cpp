#include "frame/kvcom/profile.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <limits>

#include "support/plain_user.h"
#include "support/temp_folder.h"

namespace {

using test::TempFolder;
namespace profile = kv::profile;

TEST(Profile, GivesTheFallbackWhereNothingIsStored) {
    const TempFolder folder;
    EXPECT_EQ(profile::GetInt("Map-Summary", "Tools-Visible", 0), 0);
    EXPECT_EQ(profile::GetInt("Map-Summary", "Tools-Visible", 7), 7);
    EXPECT_EQ(profile::GetString("Map-Summary", "Name", "none"), "none");
    EXPECT_FALSE(folder.Has("profile.ini"));
}

TEST(Profile, KeepsNumbersAndTextsBySection) {
    const TempFolder folder;
    EXPECT_TRUE(profile::WriteInt("Map-Summary", "Tools-Visible", 1));
    EXPECT_TRUE(profile::WriteInt("Map-Summary", "-Visible", std::numeric_limits<int>::min()));
    EXPECT_TRUE(profile::WriteInt("Well-Summary", "Tools-Visible", 0));
    EXPECT_TRUE(profile::WriteString("Map-Summary", "Name", "Gulf \xE4"));
    EXPECT_EQ(profile::GetInt("map-summary", "TOOLS-visible", 9), 1);
    EXPECT_EQ(profile::GetInt("Map-Summary", "-Visible", 9), std::numeric_limits<int>::min());
    EXPECT_EQ(profile::GetInt("Well-Summary", "Tools-Visible", 9), 0);
    EXPECT_EQ(profile::GetString("Map-Summary", "Name", ""), "Gulf \xE4");
    EXPECT_EQ(folder.Read("profile.ini"),
              "[Map-Summary]\nTools-Visible=1\n-Visible=-2147483648\nName=Gulf \xE4\n\n"
              "[Well-Summary]\nTools-Visible=0\n");
}

TEST(Profile, AnEmptyTextIsAStoredText) {
    const TempFolder folder;
    EXPECT_TRUE(profile::WriteString("S", "e", ""));
    EXPECT_EQ(profile::GetString("S", "e", "fallback"), "");
}

TEST(Profile, ATextThatIsNoNumberGivesTheFallback) {
    const TempFolder folder;
    EXPECT_TRUE(profile::WriteString("S", "e", "yes"));
    EXPECT_EQ(profile::GetInt("S", "e", 3), 3);
}

TEST(Profile, RefusesWhatALineCannotHold) {
    const TempFolder folder;
    EXPECT_FALSE(profile::WriteString("S", "e", "two\nlines"));
    EXPECT_FALSE(profile::WriteInt("S", "a=b", 1));
    EXPECT_FALSE(folder.Has("profile.ini"));
    EXPECT_THAT(folder.Read("log.txt"),
                testing::HasSubstr("Cannot write a=b to the settings in " +
                                   folder.Native("profile.ini") + ": no line can hold it\n"));
}

TEST(Profile, LivesInTheConfigurationFolderUnlessToldOtherwise) {
    TempFolder folder;
    folder.Set("KVGUICTL_PROFILE", std::nullopt);
    EXPECT_TRUE(profile::WriteInt("S", "e", 1));
    EXPECT_EQ(folder.Read("config/KVGuiCtl/profile.ini"), "[S]\ne=1\n");
}

TEST(Profile, AFileThatCannotBeReadOrWrittenIsToldByTheResult) {
    const TempFolder folder;
    std::filesystem::create_directory(folder.Native("profile.ini"));
    EXPECT_EQ(profile::GetInt("S", "e", 5), 5);
    EXPECT_FALSE(profile::WriteInt("S", "e", 1));
    EXPECT_THAT(folder.Read("log.txt"),
                testing::HasSubstr("Cannot write e to the settings in " +
                                   folder.Native("profile.ini") + ": it cannot be read\n"));
}

TEST(Profile, AFileThatCannotBeReadIsNotWrittenOver) {
    const TempFolder folder;
    folder.Write("profile.ini", "[S]\ne=1\n");
    std::filesystem::permissions(folder.Native("profile.ini"), std::filesystem::perms::owner_write);
    std::filesystem::permissions(folder.Native(), std::filesystem::perms::all);
    EXPECT_EXIT(test::ExitAsPlainUser(folder.Native("profile.ini"),
                                      [] { return !profile::WriteInt("S", "other", 2); }),
                testing::ExitedWithCode(0), "");
    EXPECT_EQ(folder.Read("profile.ini"), "[S]\ne=1\n");
}

}  // namespace
