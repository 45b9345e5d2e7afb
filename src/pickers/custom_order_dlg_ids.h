#pragma once

/// Template and controls of the dialog for the user's own order of areas.
namespace kv::custom_order_dlg {

inline constexpr int kTemplate = 15110;

inline constexpr int kHeading = 29100;
inline constexpr int kAreas = 29094;
inline constexpr int kTop = 29096;
inline constexpr int kMoveUp = 29095;
inline constexpr int kMoveDown = 29097;
inline constexpr int kBottom = 29098;
inline constexpr int kReset = 29099;

}  // namespace kv::custom_order_dlg
