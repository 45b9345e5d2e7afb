#include "base/file_fault.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "base/file.h"
#include "base/foreign_text.h"
#include "base/paths.h"
#include "support/file_faults.h"
#include "support/temp_folder.h"

namespace {

using test::FileFaults;

/// The drives, whose registry is a file, are known before anything fails.
class TempFolder : public test::TempFolder {
public:
    TempFolder() { kv::DriveLetters(); }
};

TEST(FileFault, IsAskedAheadOfEachCallAndLetsItFail) {
    const TempFolder folder;
    folder.Write("a", "old");
    const std::pair<const char*, std::function<bool()>> calls[] = {
        {"read", [&] { return kv::ReadBinaryFile(folder.Dialog("a")).has_value(); }},
        {"read text", [&] { return kv::ReadForeignText(folder.Dialog("a")).has_value(); }},
        {"write", [&] { return kv::WriteFileWhole(folder.Dialog("a"), "new"); }},
        {"list", [&] { return !kv::ListFolder(folder.Dialog()).empty(); }},
        {"make", [&] { return kv::MakeFolder(folder.Dialog("sub")); }},
        {"make all", [&] { return kv::MakeFolders(folder.Dialog("x\\y")); }},
        {"change", [&] { return kv::ChangeFolder(folder.Dialog("sub")); }},
        {"remove", [&] { return kv::RemoveFile(folder.Dialog("a")); }},
    };
    for (const auto& [name, call] : calls) {
        SCOPED_TRACE(name);
        bool worked = false;
        for (int failing = 1; !worked; ++failing) {
            const FileFaults faults(failing);
            worked = call();
            EXPECT_EQ(worked, faults.Calls() < failing);
            EXPECT_LT(failing, 10);
        }
    }
}

TEST(FileFault, LeavesTheOldFileOfAWriteThatFailsAnywhereAndNothingBesideIt) {
    const TempFolder folder;
    folder.Write("a", "old");
    std::vector<std::string> told;
    for (int failing = 1; folder.Read("a") == "old"; ++failing) {
        const FileFaults faults(failing);
        std::string error;
        const bool written = kv::WriteFileWhole(folder.Dialog("a"), "new", &error);
        EXPECT_EQ(folder.Read("a"), written ? "new" : "old");
        EXPECT_EQ(folder.Count(), 1U);
        if (!written) told.push_back(error);
    }
    EXPECT_THAT(told, testing::SizeIs(4));  // open, write, flush, rename
    EXPECT_THAT(told, testing::Each(std::string("Input/output error")));
}

TEST(FileFault, OfAFileIsToldByOpenReadWriteAndClose) {
    const TempFolder folder;
    folder.Write("a", "old");
    const auto read = [&] {
        CFile file;
        char byte = 0;
        return file.Open(folder.Dialog("a").c_str(), CFile::modeRead) && file.Read(&byte, 1) == 1;
    };
    const auto write = [&] {
        CFile file;
        return file.Open(folder.Dialog("a").c_str(), CFile::modeCreate | CFile::modeWrite) &&
               file.Write("new", 3) && file.Close();
    };
    for (int failing : {1, 2}) {
        const FileFaults faults(failing);
        EXPECT_FALSE(read());
    }
    for (int failing : {1, 2, 3, 4}) {
        const FileFaults faults(failing);
        EXPECT_FALSE(write());
        EXPECT_EQ(folder.Read("a"), "old");
    }
    const FileFaults none(0);
    EXPECT_TRUE(read());
    EXPECT_TRUE(write());
    EXPECT_EQ(none.Calls(), 6);
}

TEST(FileFault, IsPutBackByTheOneWhoSetIt) {
    int asked = 0;
    kv::SetFileFault([&] { return ++asked > 100; });
    {
        const FileFaults faults(1);
        EXPECT_FALSE(kv::MakeFolder("/none/none"));
        EXPECT_EQ(asked, 0);
    }
    EXPECT_FALSE(kv::ChangeFolder("/none/none"));
    EXPECT_EQ(asked, 1);
    EXPECT_TRUE(kv::SetFileFault(nullptr));
    EXPECT_FALSE(kv::ChangeFolder("/none/none"));
    EXPECT_EQ(asked, 1);
    EXPECT_FALSE(kv::SetFileFault(nullptr));
}

}  // namespace
