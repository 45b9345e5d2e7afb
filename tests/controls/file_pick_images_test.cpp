// The pictures of the file pickers: each is whole, and has no pixel of an unknown colour.

#include <gtest/gtest.h>

#include "controls/file_pick_ids.h"
#include "frame/module.h"
#include "support/images.h"

namespace {

TEST(FilePickImages, AreWhole) {
    InitControlDll();
    using namespace kv::file_pick;
    for (const int id : {kSmallFolderIcon, kSmallFileIcon, kSmallDriveIcon}) {
        test::ExpectWhole(id, 16);
    }
    for (const int id : {kLargeFolderIcon, kLargeFileIcon, kLargeDriveIcon}) {
        test::ExpectWhole(id, 32);
    }
}

}  // namespace
