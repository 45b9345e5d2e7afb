#pragma once

/// What the folder chooser adds to the file dialog.
namespace kv::dir_dialog {

inline constexpr int kFolderEdit = 181;
inline constexpr int kOpen = 182;

}  // namespace kv::dir_dialog
