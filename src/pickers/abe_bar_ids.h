#pragma once

/// Ids of the area/block/layer bar: its template, its controls, its icon.
namespace kv::abe_bar {

inline constexpr int kTemplate = 13060;
inline constexpr int kArea = 13070;
inline constexpr int kBlock = 13071;
inline constexpr int kLayer = 29083;
inline constexpr int kMap = 29084;
inline constexpr int kReport = 29085;
inline constexpr int kRun = 29086;
inline constexpr int kRunIcon = 13066;

}  // namespace kv::abe_bar
