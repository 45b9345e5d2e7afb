#pragma once

/// Ids of the lease status dialog.
namespace kv::lease_status {

inline constexpr int kTemplate = 12002;
inline constexpr int kClear = 12011;

inline constexpr int kAllActive = 12007;
inline constexpr int kAllInactive = 12012;
inline constexpr int kAllState = 12013;
inline constexpr int kAllHeld = 12014;
inline constexpr int kAllSpecial = 12015;

}  // namespace kv::lease_status
