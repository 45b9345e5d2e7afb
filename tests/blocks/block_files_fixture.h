#pragma once

#include <filesystem>
#include <string>

#include "blocks/block_fixture.h"
#include "frame/kvcom/misc.h"
#include "frame/kvcom/ut_registry.h"
#include "window/dialogs/file_dialog.h"

inline constexpr const char* kNotOpened = "Cannot open file.  Please close the file if opened";

/// A user with a home and a work folder.
class BlockFilesTest : public BlockTest {
protected:
    BlockFilesTest() {
        CKvMisc::S_SetImportFilePath("");
        std::filesystem::create_directories(folder.Native("home/App"));
        std::filesystem::create_directories(folder.Native("work/Report"));
        const CKvUtRegistry registry;
        registry.SetRegistry(CKvUtRegistry::S_GetHomePath(), CKvUtRegistry::S_GetHomeKey(),
                             folder.Dialog("home"));
        registry.SetRegistry(CKvUtRegistry::S_GetWorkPath(), CKvUtRegistry::S_GetWorkKey(),
                             folder.Dialog("work"));
    }

    static std::string ImportFolder() { return CKvMisc::S_GetImportFilePath().str(); }
    void ExpectHomeIsCurrent() const { EXPECT_EQ(kv::CurrentFolder(), folder.Dialog("home\\App")); }
};
