#include "frame/kvlogs/log.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

#include "support/file_size_limit.h"
#include "support/temp_folder.h"

namespace {

using test::TempFolder;
using testing::MatchesRegex;

const std::string kTime =
    "[0-9][0-9][0-9][0-9]-[0-9][0-9]-[0-9][0-9] [0-9][0-9]:[0-9][0-9]:[0-9][0-9]";

std::string Terminal(const std::string& text, bool terminal) {
    testing::internal::CaptureStderr();
    CKvLog::Output(text, 101, terminal);
    return testing::internal::GetCapturedStderr();
}

TEST(Log, EachTextIsOneLineWithTimeAndLevel) {
    const TempFolder folder;
    CKvLog::Output("first", 101, false);
    CKvLog::Output("  second\r\n  on  two lines \xB0\n", 5, false);
    EXPECT_THAT(folder.Read("log.txt"),
                MatchesRegex(kTime + " 101 first\n" + kTime + " 5 second on two lines \xB0\n"));
}

TEST(Log, AnEmptyTextIsALineToo) {
    const TempFolder folder;
    CKvLog::Output("", 101, false);
    EXPECT_THAT(folder.Read("log.txt"), MatchesRegex(kTime + " 101 \n"));
}

TEST(Log, GoesToTheTerminalOnRequest) {
    TempFolder folder;
    EXPECT_EQ(Terminal("quiet", false), "");
    EXPECT_THAT(Terminal("loud", true), MatchesRegex(kTime + " 101 loud\n"));
    folder.Set("KVGUICTL_LOG_TERMINAL", "1");
    EXPECT_THAT(Terminal("all", false), MatchesRegex(kTime + " 101 all\n"));
    folder.Set("KVGUICTL_LOG_TERMINAL", "0");
    EXPECT_EQ(Terminal("quiet again", false), "");
}

TEST(Log, LivesInTheConfigurationFolderUnlessToldOtherwise) {
    TempFolder folder;
    folder.Set("KVGUICTL_LOG", std::nullopt);
    CKvLog::Output("here", 101, false);
    EXPECT_THAT(folder.Read("config/KVGuiCtl/KVGuiCtl.log"), testing::HasSubstr("here"));
}

TEST(Log, ALogThatCannotBeWrittenIsPassedOver) {
    TempFolder folder;
    std::filesystem::create_directory(folder.Native("log.txt"));
    EXPECT_NO_THROW(CKvLog::Output("lost", 101, false));
    folder.Write("file", "");
    folder.Set("KVGUICTL_LOG", folder.Native("file/log.txt"));
    EXPECT_NO_THROW(CKvLog::Output("lost", 101, false));
    folder.Set("KVGUICTL_LOG", folder.Native("full.txt"));
    {
        const test::FileSizeLimit limit(0);
        EXPECT_NO_THROW(CKvLog::Output("lost", 101, false));
    }
    EXPECT_EQ(folder.Read("full.txt"), "");
    EXPECT_THAT(Terminal("still on the terminal", true), testing::HasSubstr("still"));
}

}  // namespace
