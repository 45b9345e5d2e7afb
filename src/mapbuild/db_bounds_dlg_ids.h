#pragma once

/// Template and controls of the dialog for two bounds.
namespace kv::db_bounds_dlg {

inline constexpr int kTemplate = 250;

inline constexpr int kFrom = 3001;
inline constexpr int kTo = 3002;
inline constexpr int kMeters = 2099;
inline constexpr int kFeet = 3000;

}  // namespace kv::db_bounds_dlg
