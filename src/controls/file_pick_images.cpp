#include <string_view>

#include "controls/file_pick_ids.h"
#include "window/drawing/whole_image.h"
#include "window/templates/resources.h"

/// Folder, file and drive, each with a rim that a dark ground leaves to be seen.
namespace kv::file_pick {

namespace {

constexpr PaletteEntry kFolderPalette[] = {
    {'D', 0xFF9A6B12},
    {'G', 0xFFF0BE4B},
    {'L', 0xFFFFDF92},
    {'S', 0xFFD9A233},
};

constexpr std::string_view kSmallFolderRows[] = {
    "................",  //
    "................",  //
    "................",  //
    ".DDDDDD.........",  //
    ".DLLLDDDDDDDDDD.",  //
    ".DLLLLLLLLLLLLD.",  //
    ".DGGGGGGGGGGGGD.",  //
    ".DGGGGGGGGGGGGD.",  //
    ".DGGGGGGGGGGGGD.",  //
    ".DGGGGGGGGGGGGD.",  //
    ".DGGGGGGGGGGGGD.",  //
    ".DGGGGGGGGGGGGD.",  //
    ".DSSSSSSSSSSSSD.",  //
    ".DDDDDDDDDDDDDD.",  //
    "................",  //
    "................",  //
};

constexpr ImageResource kSmallFolder{kSmallFolderIcon, 16, 16, kSmallFolderRows, kFolderPalette};
static_assert(IsWhole(kSmallFolder));
const RegisterImage kSmallFolderRegistered(kSmallFolder);

constexpr std::string_view kLargeFolderRows[] = {
    "................................",  //
    "................................",  //
    "................................",  //
    "................................",  //
    "................................",  //
    "................................",  //
    "..DDDDDDDDDDDDD.................",  //
    "..DLLLLLLLLLLLD.................",  //
    "..DLLLLLLLLLLLD.................",  //
    "..DLLLLLLLLLLDDDDDDDDDDDDDDDDD..",  //
    "..DLLLLLLLLLLLLLLLLLLLLLLLLLLD..",  //
    "..DGGGGGGGGGGGGGGGGGGGGGGGGGGD..",  //
    "..DGGGGGGGGGGGGGGGGGGGGGGGGGGD..",  //
    "..DGGGGGGGGGGGGGGGGGGGGGGGGGGD..",  //
    "..DGGGGGGGGGGGGGGGGGGGGGGGGGGD..",  //
    "..DGGGGGGGGGGGGGGGGGGGGGGGGGGD..",  //
    "..DGGGGGGGGGGGGGGGGGGGGGGGGGGD..",  //
    "..DGGGGGGGGGGGGGGGGGGGGGGGGGGD..",  //
    "..DGGGGGGGGGGGGGGGGGGGGGGGGGGD..",  //
    "..DGGGGGGGGGGGGGGGGGGGGGGGGGGD..",  //
    "..DGGGGGGGGGGGGGGGGGGGGGGGGGGD..",  //
    "..DGGGGGGGGGGGGGGGGGGGGGGGGGGD..",  //
    "..DGGGGGGGGGGGGGGGGGGGGGGGGGGD..",  //
    "..DGGGGGGGGGGGGGGGGGGGGGGGGGGD..",  //
    "..DGGGGGGGGGGGGGGGGGGGGGGGGGGD..",  //
    "..DSSSSSSSSSSSSSSSSSSSSSSSSSSD..",  //
    "..DDDDDDDDDDDDDDDDDDDDDDDDDDDD..",  //
    "................................",  //
    "................................",  //
    "................................",  //
    "................................",  //
    "................................",  //
};

constexpr ImageResource kLargeFolder{kLargeFolderIcon, 32, 32, kLargeFolderRows, kFolderPalette};
static_assert(IsWhole(kLargeFolder));
const RegisterImage kLargeFolderRegistered(kLargeFolder);

constexpr PaletteEntry kFilePalette[] = {
    {'D', 0xFF6B7684},
    {'W', 0xFFF7F9FB},
    {'S', 0xFFC9D1DA},
    {'T', 0xFF8FA3B8},
};

constexpr std::string_view kSmallFileRows[] = {
    "................",  //
    "...DDDDDDD......",  //
    "...DWWWWWDD.....",  //
    "...DWWWWWDSD....",  //
    "...DWWWWWDDDD...",  //
    "...DWWWWWWWWD...",  //
    "...DWTTTTTTWD...",  //
    "...DWWWWWWWWD...",  //
    "...DWTTTTTTWD...",  //
    "...DWWWWWWWWD...",  //
    "...DWTTTTTTWD...",  //
    "...DWWWWWWWWD...",  //
    "...DWTTTTTTWD...",  //
    "...DWWWWWWWWD...",  //
    "...DDDDDDDDDD...",  //
    "................",  //
};

constexpr ImageResource kSmallFile{kSmallFileIcon, 16, 16, kSmallFileRows, kFilePalette};
static_assert(IsWhole(kSmallFile));
const RegisterImage kSmallFileRegistered(kSmallFile);

constexpr std::string_view kLargeFileRows[] = {
    "................................",  //
    "................................",  //
    "......DDDDDDDDDDDDDD............",  //
    "......DWWWWWWWWWWWWDD...........",  //
    "......DWWWWWWWWWWWWDSD..........",  //
    "......DWWWWWWWWWWWWDSSD.........",  //
    "......DWWWWWWWWWWWWDSSSD........",  //
    "......DWWWWWWWWWWWWDSSSSD.......",  //
    "......DWWWWWWWWWWWWDDDDDDD......",  //
    "......DWWWWWWWWWWWWWWWWWWD......",  //
    "......DWWWWWWWWWWWWWWWWWWD......",  //
    "......DWWWWWWWWWWWWWWWWWWD......",  //
    "......DWWWTTTTTTTTTTTTWWWD......",  //
    "......DWWWWWWWWWWWWWWWWWWD......",  //
    "......DWWWWWWWWWWWWWWWWWWD......",  //
    "......DWWWWWWWWWWWWWWWWWWD......",  //
    "......DWWWTTTTTTTTTTTTWWWD......",  //
    "......DWWWWWWWWWWWWWWWWWWD......",  //
    "......DWWWWWWWWWWWWWWWWWWD......",  //
    "......DWWWWWWWWWWWWWWWWWWD......",  //
    "......DWWWTTTTTTTTTTTTWWWD......",  //
    "......DWWWWWWWWWWWWWWWWWWD......",  //
    "......DWWWWWWWWWWWWWWWWWWD......",  //
    "......DWWWWWWWWWWWWWWWWWWD......",  //
    "......DWWWTTTTTTTTTTTTWWWD......",  //
    "......DWWWWWWWWWWWWWWWWWWD......",  //
    "......DWWWWWWWWWWWWWWWWWWD......",  //
    "......DWWWWWWWWWWWWWWWWWWD......",  //
    "......DWWWWWWWWWWWWWWWWWWD......",  //
    "......DDDDDDDDDDDDDDDDDDDD......",  //
    "................................",  //
    "................................",  //
};

constexpr ImageResource kLargeFile{kLargeFileIcon, 32, 32, kLargeFileRows, kFilePalette};
static_assert(IsWhole(kLargeFile));
const RegisterImage kLargeFileRegistered(kLargeFile);

constexpr PaletteEntry kDrivePalette[] = {
    {'D', 0xFF5C6672}, {'G', 0xFFB4BDC7}, {'L', 0xFFDCE2E8}, {'S', 0xFF87929E}, {'A', 0xFF2EB457},
};

constexpr std::string_view kSmallDriveRows[] = {
    "................",  //
    "................",  //
    "................",  //
    "................",  //
    "................",  //
    "..DDDDDDDDDDDD..",  //
    ".DLLLLLLLLLLLLD.",  //
    ".DGGGGGGGGGGGGD.",  //
    ".DSSSSSSSSSSSSD.",  //
    ".DGGGGGGGGGGGGD.",  //
    ".DGSSSSSGGGAAGD.",  //
    ".DGGGGGGGGGGGGD.",  //
    "..DDDDDDDDDDDD..",  //
    "................",  //
    "................",  //
    "................",  //
};

constexpr ImageResource kSmallDrive{kSmallDriveIcon, 16, 16, kSmallDriveRows, kDrivePalette};
static_assert(IsWhole(kSmallDrive));
const RegisterImage kSmallDriveRegistered(kSmallDrive);

constexpr std::string_view kLargeDriveRows[] = {
    "................................",  //
    "................................",  //
    "................................",  //
    "................................",  //
    "................................",  //
    "................................",  //
    "................................",  //
    "................................",  //
    "................................",  //
    "................................",  //
    "...DDDDDDDDDDDDDDDDDDDDDDDDDD...",  //
    "..DLLLLLLLLLLLLLLLLLLLLLLLLLLD..",  //
    "..DGGGGGGGGGGGGGGGGGGGGGGGGGGD..",  //
    "..DGGGGGGGGGGGGGGGGGGGGGGGGGGD..",  //
    "..DGGGGGGGGGGGGGGGGGGGGGGGGGGD..",  //
    "..DGGGGGGGGGGGGGGGGGGGGGGGGGGD..",  //
    "..DSSSSSSSSSSSSSSSSSSSSSSSSSSD..",  //
    "..DGGGGGGGGGGGGGGGGGGGGGGGGGGD..",  //
    "..DGGGGGGGGGGGGGGGGGGGGGGGGGGD..",  //
    "..DGGGSSSSSSSSSSGGGGGGGAAAGGGD..",  //
    "..DGGGSSSSSSSSSSGGGGGGGAAAGGGD..",  //
    "..DGGGGGGGGGGGGGGGGGGGGGGGGGGD..",  //
    "..DGGGGGGGGGGGGGGGGGGGGGGGGGGD..",  //
    "..DGGGGGGGGGGGGGGGGGGGGGGGGGGD..",  //
    "...DDDDDDDDDDDDDDDDDDDDDDDDDD...",  //
    "................................",  //
    "................................",  //
    "................................",  //
    "................................",  //
    "................................",  //
    "................................",  //
    "................................",  //
};

constexpr ImageResource kLargeDrive{kLargeDriveIcon, 32, 32, kLargeDriveRows, kDrivePalette};
static_assert(IsWhole(kLargeDrive));
const RegisterImage kLargeDriveRegistered(kLargeDrive);

}  // namespace

}  // namespace kv::file_pick
