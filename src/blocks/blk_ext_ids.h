#pragma once

/// Ids of the block and area selection dialogs.
namespace kv::blk_ext {

inline constexpr int kTemplate = 182;
inline constexpr int kAreaTemplate = 15129;

inline constexpr int kFind = 1191;
inline constexpr int kSearch = 1192;
inline constexpr int kContain = 2101;
inline constexpr int kStartWith = 29148;
inline constexpr int kEndWith = 2100;
inline constexpr int kSearchMode = 12037;
inline constexpr int kInsertMode = 12038;
inline constexpr int kAvailable = 1193;
inline constexpr int kBlocks = 1194;
inline constexpr int kAdd = 1188;
inline constexpr int kRemove = 1189;
inline constexpr int kFromMap = 12001;
inline constexpr int kImport = 12000;
inline constexpr int kExport = 12004;
inline constexpr int kNeighbors = 12002;
inline constexpr int kListFileCheck = 29300;
inline constexpr int kListFileButton = 29299;
inline constexpr int kSelected = 1042;
inline constexpr int kClear = 1190;
/// No template has it.
inline constexpr int kFindLabel = 12039;

}  // namespace kv::blk_ext
