#pragma once

#include <string>

/// Projection codes: how a spheroid and a UTM zone make one.
namespace kv::projection {

/// No code chosen.
inline constexpr int kNone = -1;

/// The zone that stands for Straight Mercator.
inline constexpr int kStraightMercator = 99;

/// Whether the code is made of a spheroid's code, a multiple of 100, and a UTM zone.
constexpr bool IsOnSpheroid(int code) {
    return code >= 100 && code <= 4999;
}

/// The zone of such a code.
constexpr int ZoneOf(int code) {
    return code % 100;
}

/// How the code of a zone on a spheroid is shown: 215 UTM, 199 Straight Mercator.
inline std::string ZoneText(int code, int zone) {
    return std::to_string(code) + (zone == kStraightMercator ? " Straight Mercator" : " UTM");
}

}  // namespace kv::projection
