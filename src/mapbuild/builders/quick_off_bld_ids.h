#pragma once

#include <array>

/// Templates and controls of the quick map builder and of the dialogs that derive from it.
namespace kv::quick_bld {

inline constexpr int kTemplate = 15100;
/// The same controls for the boundary of picks.
inline constexpr int kBoundaryTemplate = 15108;

inline constexpr int kMapBasics = 7020;
inline constexpr int kMapNameLabel = 7026;
inline constexpr int kMapName = 1237;
inline constexpr int kXYBounded = 1288;
inline constexpr int kLatLonBounded = 2100;
inline constexpr int kFeet = 1369;
inline constexpr int kMeters = 1370;

inline constexpr int kWidth = 1280;
inline constexpr int kHeight = 1281;
inline constexpr int kPercent = 1284;

// Origin, the lower left corner.
inline constexpr int kLatMinDeg = 1500;
inline constexpr int kLatMinMin = 1501;
inline constexpr int kLatMinSec = 1502;
inline constexpr int kLonMinDeg = 1503;
inline constexpr int kLonMinMin = 1504;
inline constexpr int kLonMinSec = 1505;
inline constexpr int kXMinLabel = 7021;
inline constexpr int kYMinLabel = 7022;
inline constexpr int kXMin = 1292;
inline constexpr int kYMin = 1233;

// The upper right corner.
inline constexpr int kLatMaxDeg = 1506;
inline constexpr int kLatMaxMin = 1507;
inline constexpr int kLatMaxSec = 1508;
inline constexpr int kLonMaxDeg = 1509;
inline constexpr int kLonMaxMin = 1510;
inline constexpr int kLonMaxSec = 1511;
inline constexpr int kXMaxLabel = 7023;
inline constexpr int kYMaxLabel = 7024;
inline constexpr int kXMax = 1236;
inline constexpr int kYMax = 1293;

inline constexpr int kProjection = 1234;
inline constexpr int kSizingOptions = 1235;
inline constexpr int kSnapBounds = 29259;

inline constexpr std::array kXYBoxes{kXMin, kXMax, kYMin, kYMax};
inline constexpr std::array kAngleBoxes{kLatMinDeg, kLatMinMin, kLatMinSec, kLatMaxDeg,
                                        kLatMaxMin, kLatMaxSec, kLonMinDeg, kLonMinMin,
                                        kLonMinSec, kLonMaxDeg, kLonMaxMin, kLonMaxSec};

}  // namespace kv::quick_bld

/// Template and controls of the dialog for the grid that bounds are snapped to.
namespace kv::snap_range {

inline constexpr int kTemplate = 15128;

inline constexpr int kRange = 29265;

}  // namespace kv::snap_range
