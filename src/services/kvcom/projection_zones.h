#pragma once

#include <span>
#include <string>

namespace kv::coord {

/// A zone that the program knows by itself, as the table of zones of a dataset names it.
struct Zone {
    int code;
    const char* description;
    const char* category;
    /// 0 for a zone that is no state plane zone.
    int statePlaneCode;
    /// PROJ's definition, in metres, without a datum. Of a spheroid, the spheroid alone.
    const char* definition;
};

/// The spheroid of Ireland by its figures: PROJ's own text for it rounds them.
inline constexpr const char* kModifiedAiry = "+a=6377340.189 +rf=299.3249646";

/// Every zone, by code.
///
/// The state plane zones are those of the North American Datum of 1927 (Coast and Geodetic Survey,
/// as in PROJ's own list `nad27`), under the numbers of the Federal Information Processing
/// Standard; the others are as the EPSG dataset has them.
std::span<const Zone> Zones();

/// The zone with that code, null where there is none.
const Zone* FindZone(int code);

/// The zone with that code, or the state plane zone with that number negated; null for others.
const Zone* FindZoneOf(int code);

/// The state plane zone with that number, null where there is none.
const Zone* FindStatePlane(int statePlaneCode);

/// Whether the code stands for Straight Mercator on a spheroid: it takes a rectifying point.
bool IsStraightMercator(int code);

/// PROJ's definition of a projection code: of a zone by its own code or by its negated state plane
/// number, of a UTM zone on a spheroid, or of Straight Mercator, whose latitude of true scale and
/// central meridian are the given ones, in degrees. Empty for any other code.
std::string DefinitionOf(int code, double rectLat = 0.0, double rectLon = 0.0);

}  // namespace kv::coord
