#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace kv::sample {

/// One ten-millionth of a degree, in which the dataset holds every angle: whole numbers, so that
/// the dataset is the same wherever it is built.
inline constexpr std::int64_t kUnitsPerDegree = 10'000'000;

/// A place on the tables' own datum, in units of `kUnitsPerDegree`.
struct GeoPoint {
    std::int64_t lat = 0;
    std::int64_t lon = 0;
    bool operator==(const GeoPoint&) const = default;
};

/// A closed outline; the first corner is not repeated.
using Outline = std::vector<GeoPoint>;

/// Degrees to units, to the nearest.
std::int64_t Units(double degrees);

/// Decimal degrees without trailing zeros.
std::string DegreesText(std::int64_t units);

}  // namespace kv::sample
