#include "frame/import_folder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <optional>

#include "base/paths.h"
#include "frame/kvcom/ut_registry.h"
#include "support/failing_memory.h"
#include "support/file_faults.h"
#include "support/temp_folder.h"

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

}  // namespace
