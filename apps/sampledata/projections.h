#pragma once

#include <span>

namespace kv::sample {

/// One row of the table of projection zones.
struct Zone {
    int code;
    const char* description;
    const char* category;
    /// 0 for a zone that is no state plane zone.
    int statePlaneCode;
    /// PROJ's definition, in metres, without a datum. Of a spheroid, the spheroid alone.
    const char* definition;
};

/// Projection codes that the areas are laid out on.
inline constexpr int kTexasSouthCentral = 1;
inline constexpr int kTexasSouth = 2;
inline constexpr int kLouisianaSouth = 3;
inline constexpr int kUtm14 = 114;
inline constexpr int kUtm15 = 115;
inline constexpr int kUtm16 = 116;
inline constexpr int kUtm17 = 117;

/// Every zone, by code.
///
/// The state plane zones are those of the North American Datum of 1927 (Coast and Geodetic Survey,
/// as in PROJ's own list `nad27`), under the numbers of the Federal Information Processing
/// Standard; the others are as the EPSG dataset has them.
std::span<const Zone> Zones();

/// The zone with that code, null where there is none.
const Zone* FindZone(int code);

}  // namespace kv::sample
