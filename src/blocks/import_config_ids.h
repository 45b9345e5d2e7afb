#pragma once

/// Template and controls of the dialog that asks how a text file is laid out.
namespace kv::import_config {

inline constexpr int kTemplate = 15112;

inline constexpr int kAreaNames = 29104;
inline constexpr int kAreaCodes = 29105;
inline constexpr int kMmsCodes = 29106;
inline constexpr int kBlockFirst = 29107;
inline constexpr int kExtFirst = 29108;
inline constexpr int kHasExtDelimiter = 29113;
inline constexpr int kNoExtDelimiter = 29112;
inline constexpr int kExtDelimiter = 29114;
inline constexpr int kTab = 29109;
inline constexpr int kColumnDelimiterLabel = 29111;
inline constexpr int kColumnDelimiter = 29110;

}  // namespace kv::import_config
