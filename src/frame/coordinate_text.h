#pragma once

#include <optional>
#include <string_view>

#include "base/export.h"

namespace kv {

/// The angles that a text tells, in decimal degrees, north and east positive.
struct Coordinate {
    std::optional<double> latitude = std::nullopt;
    std::optional<double> longitude = std::nullopt;
    /// A single angle of which the text does not tell which of the two it is.
    std::optional<double> angle = std::nullopt;
};

/// Understands a position, or one of its angles, in the notations that people write. None for any
/// other text.
///
/// - An angle is degrees, degrees and minutes, or degrees, minutes and seconds; the last of them
/// may
///   have decimals, minutes and seconds are below 60. Their marks are those of print or of the
///   keyboard (degree sign, d, deg; prime, apostrophe, m, min; double prime, quote, s, sec), in
///   UTF-8 or in the single bytes of Western systems. Instead of marks there may be blanks, colons
///   or hyphens, as 28 30 15.25, 28:30:15.25, 28-30-15.25.
/// - It has a sign ahead, or N, S, E or W at either end, but not a minus along with one of those.
///   "Lat" or "Lon" may stand ahead of it.
/// - Two angles have a comma, a semicolon or white space between them. Their order does not matter
///   where they tell which they are, and both or none have to; else the latitude comes first,
///   unless the first one is beyond 90. Six numbers without marks are three and three, four are two
///   and two; two are degrees each, unless they can be degrees and minutes.
/// - Brackets around the whole are looked over. Decimals begin with a point, whatever the locale.
///
/// A latitude lies within 90, a longitude or an angle that does not tell within 360.
KVGUICTL_API std::optional<Coordinate> ParseCoordinate(std::string_view text);

}  // namespace kv
