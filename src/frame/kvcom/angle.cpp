#include "frame/kvcom/angle.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double kMinutesPerDegree = 60.0;
constexpr double kSecondsPerMinute = 60.0;
constexpr double kSecondsPerDegree = kMinutesPerDegree * kSecondsPerMinute;
constexpr double kLargestAngle = 100000.0;

bool CanBeSplit(double degrees) {
    return std::abs(degrees) <= kLargestAngle;
}

}  // namespace

namespace kv {

namespace {

void Carry(AngleParts& parts) {
    parts.seconds = 0.0;
    if (++parts.minutes < 60) return;
    parts.minutes = 0;
    ++parts.degrees;
}

}  // namespace

AngleParts SplitAngle(double degrees) {
    // So close to 60 it is the arithmetic that keeps them below.
    constexpr double kClose = 5e-7;
    if (!CanBeSplit(degrees)) return {};
    const double size = std::abs(degrees);
    AngleParts parts{std::signbit(degrees), static_cast<int>(size), 0, 0.0};
    const double minutes = (size - parts.degrees) * kMinutesPerDegree;
    parts.minutes = static_cast<int>(minutes);
    parts.seconds = (minutes - parts.minutes) * kSecondsPerMinute;
    if (parts.seconds >= kSecondsPerMinute - kClose) Carry(parts);
    return parts;
}

AngleParts SplitAngle(double degrees, int decimals) {
    if (!CanBeSplit(degrees)) return {};
    const double unitsPerSecond = std::pow(10.0, std::clamp(decimals, 0, 6));
    const auto units = std::llround(std::abs(degrees) * kSecondsPerDegree * unitsPerSecond);
    const auto unitsPerMinute = std::llround(kSecondsPerMinute * unitsPerSecond);
    const long long minutes = units / unitsPerMinute;
    return {degrees < 0.0 && units > 0, static_cast<int>(minutes / 60),
            static_cast<int>(minutes % 60),
            static_cast<double>(units % unitsPerMinute) / unitsPerSecond};
}

double JoinAngle(const AngleParts& parts) {
    const double size =
        parts.degrees + parts.minutes / kMinutesPerDegree + parts.seconds / kSecondsPerDegree;
    return parts.negative ? -size : size;
}

}  // namespace kv
