#pragma once

/// Template, controls and images of the dialog that picks files and folders.
namespace kv::file_pick {

inline constexpr int kTemplate = 15124;

inline constexpr int kPath = 29183;
inline constexpr int kTypes = 29184;
inline constexpr int kFiles = 29185;
inline constexpr int kTypesLabel = 29186;
inline constexpr int kPathLabel = 29187;
inline constexpr int kFileName = 29188;
inline constexpr int kDrives = 29189;

inline constexpr int kSmallFolderIcon = 13080;
inline constexpr int kSmallFileIcon = 13081;
inline constexpr int kSmallDriveIcon = 13082;
inline constexpr int kLargeFolderIcon = 13083;
inline constexpr int kLargeFileIcon = 13084;
inline constexpr int kLargeDriveIcon = 13085;

}  // namespace kv::file_pick
