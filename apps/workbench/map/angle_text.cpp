#include "workbench/map/angle_text.h"

#include <cmath>

#include "base/text.h"

namespace workbench {

namespace {

constexpr long long kHundredthsPerMinute = 60 * 100;
constexpr long long kHundredthsPerDegree = 60 * kHundredthsPerMinute;

std::string FullAngle(double degrees, char positive, char negative) {
    const long long hundredths = std::llround(std::abs(degrees) * kHundredthsPerDegree);
    const long long rest = hundredths % kHundredthsPerDegree;
    return kv::FormatText("%lld\u00b0%02lld'%05.2f\"%c", hundredths / kHundredthsPerDegree,
                          rest / kHundredthsPerMinute,
                          static_cast<double>(rest % kHundredthsPerMinute) / 100,
                          degrees < 0 ? negative : positive);
}

}  // namespace

std::string DegreesMinutesSeconds(const Place& place) {
    return FullAngle(place.lat, 'N', 'S') + " " + FullAngle(place.lon, 'E', 'W');
}

std::string DecimalDegrees(const Place& place) {
    return kv::FormatText("%.6f %.6f", place.lat, place.lon);
}

std::string ShortAngle(double degrees, char positive, char negative) {
    const long long minutes = std::llround(std::abs(degrees) * 60);
    const char side = degrees < 0 ? negative : positive;
    if (minutes % 60 == 0) return kv::FormatText("%lld\u00b0%c", minutes / 60, side);
    return kv::FormatText("%lld\u00b0%02lld'%c", minutes / 60, minutes % 60, side);
}

}  // namespace workbench
