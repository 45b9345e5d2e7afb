#include <gtest/gtest.h>

#include "base/paths.h"
#include "support/failing_memory.h"
#include "support/temp_folder.h"

namespace {

TEST(OutOfMemory, IsThrownWhereAPathIsTranslated) {
    const test::TempFolder folder;
    folder.Write("A folder with a long name/A file with a long name.txt", "");
    const std::string path =
        folder.Dialog("A FOLDER WITH A LONG NAME") + "\\A FILE WITH A LONG NAME.TXT";
    const std::string native = kv::ToNative(path);
    EXPECT_TRUE(native.ends_with("/A folder with a long name/A file with a long name.txt"));
    int left = 0;
    for (std::string again; again.empty(); ++left) {
        try {
            const test::FailingMemory fault(left + 1);
            again = kv::ToNative(path);
        } catch (const std::bad_alloc&) {
            continue;
        }
        EXPECT_EQ(again, native);
    }
    EXPECT_GT(left, 10);
}

}  // namespace
