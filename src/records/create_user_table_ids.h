#pragma once

/// Template and controls of the dialog that makes the table of comments.
namespace kv::create_user_table {

inline constexpr int kTemplate = 15131;

inline constexpr int kUser = 29280;
inline constexpr int kPasswordEdit = 29281;
inline constexpr int kAlias = 29282;
inline constexpr int kDataset = 29283;
inline constexpr int kTable = 29286;

}  // namespace kv::create_user_table
