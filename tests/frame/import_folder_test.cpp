#include "frame/import_folder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>

#include "support/out_of_memory.h"
#include "support/temp_folder.h"

namespace test {
namespace {

namespace fs = std::filesystem;

class ImportFolder : public testing::Test {
protected:
    ImportFolder() {
        fs::create_directories(folder_.Native("home/App"));
        folder_.Write("registry.ini", "[SOFTWARE\\KVI]\nHOME_DIR=" + folder_.Dialog("home") + "\n");
        fs::current_path(folder_.Native());
    }

    TempFolder folder_;
};

TEST_F(ImportFolder, BackToHomeMakesTheFolderBelowHomeTheCurrentOne) {
    { const kv::BackToHome back("\\App"); }
    EXPECT_EQ(fs::current_path(), fs::canonical(folder_.Native("home/App")));
}

TEST_F(ImportFolder, WithoutMemoryTheCurrentFolderStays) {
    const fs::path before = fs::current_path();
    auto back = std::make_unique<kv::BackToHome>("\\App");
    {
        const OutOfMemory out;
        back.reset();
    }
    EXPECT_EQ(fs::current_path(), before);
}

}  // namespace
}  // namespace test
