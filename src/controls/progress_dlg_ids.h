#pragma once

/// Template and controls of the progress dialog.
namespace kv::progress_dlg {

inline constexpr int kTemplate = 12001;

inline constexpr int kBar = 1003;
inline constexpr int kPercent = 1004;
inline constexpr int kStatus = 1005;

}  // namespace kv::progress_dlg
