#pragma once

/// Ids of the projection selection dialog.
namespace kv::proj_sel {

inline constexpr int kTemplate = 15103;

inline constexpr int kStateLambert = 1285;
inline constexpr int kStateTransverseMercator = 2102;
inline constexpr int kMiscLambert = 2105;
inline constexpr int kMiscTransverseMercator = 2100;
inline constexpr int kUtmSpheroids = 2103;
inline constexpr int kMiscOther = 2104;
inline constexpr int kStatePlane = 2107;
inline constexpr int kStraightMercator = 2108;
inline constexpr int kMiscCassini = 2101;
inline constexpr int kMiscBonne = 2106;
inline constexpr int kList = 1287;

}  // namespace kv::proj_sel

/// Ids of the UTM zone dialog.
namespace kv::utm_zone {

inline constexpr int kTemplate = 15114;

inline constexpr int kZone = 29139;
inline constexpr int kStraightMercatorGroup = 29143;
inline constexpr int kRectifyingLabel = 29142;
inline constexpr int kCenterOfMap = 29140;
inline constexpr int kUserSpecified = 29141;
inline constexpr int kLat = 29144;
inline constexpr int kLon = 29145;

}  // namespace kv::utm_zone

/// Ids of the dialog with a projection alone.
namespace kv::projection_dialog {

inline constexpr int kTemplate = 13062;

inline constexpr int kProjection = 29080;

}  // namespace kv::projection_dialog
