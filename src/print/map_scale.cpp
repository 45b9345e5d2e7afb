#include "print/map_scale.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>
#include <optional>

#include "base/numbers.h"

namespace kv::print {

namespace {

constexpr int kMapFeet[] = {1000, 2000, 4000, 8000, 16000, 32000, 64000};
constexpr int kMapMeters[] = {12500, 25000, 50000, 100000, 200000, 400000, 800000};
constexpr int kPrintFeet[] = {1000, 2000, 4000, 8000, 16000, 32000, 64000, 128000, 256000, 512000};
constexpr int kPrintMeters[] = {12500,  25000,  50000,   100000,  200000,
                                400000, 800000, 1600000, 3200000, 6400000};
/// Rows of the list in meters that are looked up as the largest up to a scale.
constexpr std::size_t kLookedUpInMeters = 5;

constexpr int kLargest = std::numeric_limits<int>::max();
constexpr int kJumps = 100;

int InWholeFeet(double length, int unit) {
    const int whole = ToInt(length);
    return unit == kMeters ? ToInt(whole * kFeetPerMeter) : whole;
}

/// The last of them that is not above; 0 for none.
int LastUpTo(std::span<const int> scales, int scale) {
    const auto behind = std::upper_bound(scales.begin(), scales.end(), scale);
    return behind == scales.begin() ? 0 : *(behind - 1);
}

int StepOf(int scale) {
    if (scale >= 1'000'000) return 1;
    if (scale >= 100'000) return 1000;
    if (scale >= 10'000) return 100;
    return scale >= 1000 ? 10 : 1;
}

/// Bounds the wrong way round have no extent.
Extent WithoutNegatives(const Extent& map) {
    return {map.x > 0.0 ? map.x : 0.0, map.y > 0.0 ? map.y : 0.0};
}

Extent At(const Extent& map, double scale) {
    return {map.x / scale, map.y / scale};
}

bool Exceeds(const Extent& page, const Extent& room) {
    return page.x > room.x || page.y > room.y;
}

bool LiesWithin(const Extent& page, const Extent& room) {
    return page.x < room.x && page.y < room.y;
}

/// Down from `base` to the first scale at which the map is too large for the room, or to 0.
long long SearchDown(const Extent& map, const Extent& room, int base, int step,
                     std::vector<int>& passed) {
    long long scale = base;
    for (long long steps = 1; scale > 0; ++steps) {
        passed.push_back(static_cast<int>(scale));
        if (Exceeds(At(map, static_cast<double>(scale)), room)) break;
        scale = base - steps * step;
    }
    return scale;
}

std::optional<int> SearchUp(const Extent& map, const Extent& room, long long scale, int step) {
    for (int jump = 0; jump < kJumps && scale <= kLargest; ++jump) {
        if (scale > 0 && LiesWithin(At(map, static_cast<double>(scale)), room)) {
            return static_cast<int>(scale);
        }
        scale += static_cast<long long>(jump) * step;
    }
    return std::nullopt;
}

std::optional<int> LeastFitting(const Extent& map, const Extent& room) {
    const double least = std::max({1.0, std::ceil(map.x / room.x), std::ceil(map.y / room.y)});
    if (!(least < kLargest)) return std::nullopt;
    // The quotients were rounded, either way.
    int scale = ToInt(least);
    while (Exceeds(At(map, scale), room))
        ++scale;
    while (scale > 1 && !Exceeds(At(map, scale - 1), room))
        --scale;
    return scale;
}

}  // namespace

Extent ExtentOf(const CMinMax2Dd_t& bounds) {
    return {bounds.maxX - bounds.minX, bounds.maxY - bounds.minY};
}

std::span<const int> MapScales(int unit) {
    if (unit == kMeters) return kMapMeters;
    return kMapFeet;
}

std::span<const int> PrintScales(int unit) {
    if (unit == kMeters) return kPrintMeters;
    return kPrintFeet;
}

int SmallerSideInFeet(const Extent& map, int unit) {
    return std::min(InWholeFeet(map.x, unit), InWholeFeet(map.y, unit));
}

int ClosedMapScale(int feetPerInch, int unit) {
    if (feetPerInch <= 0) return 0;
    const auto limits = MapScales(kFeet);
    const auto at = std::lower_bound(limits.begin(), limits.end() - 1, feetPerInch);
    return MapScales(unit)[static_cast<std::size_t>(at - limits.begin())];
}

int ListedPrintScale(int scale, int unit) {
    if (unit != kMeters) return LastUpTo(kPrintFeet, scale);
    if (scale == 800'000) return scale;
    const auto lookedUp = PrintScales(kMeters).first(kLookedUpInMeters);
    return scale > 400'000 ? 0 : LastUpTo(lookedUp, scale);
}

Extent SizeOnPaper(const Extent& map, int scale, int unit) {
    const Extent size = At(map, scale);
    if (unit != kMeters) return size;
    return {size.x * kInchesPerFoot * kFeetPerMeter, size.y * kInchesPerFoot * kFeetPerMeter};
}

Fit FitScale(const Extent& map, const Extent& room, bool landscape) {
    const Extent extent = WithoutNegatives(map);
    const int quotient = ToInt(landscape ? extent.y / room.y : extent.x / room.x);
    const int step = StepOf(quotient);
    const int base = quotient - quotient % step;

    Fit fit;
    const long long lowest = SearchDown(extent, room, base, step, fit.passed);
    std::optional<int> found;
    if (room.x > 0.0 && room.y > 0.0) {
        found = SearchUp(extent, room, lowest, step);
        if (!found) found = LeastFitting(extent, room);
    }
    fit.scale = found.value_or(base);
    fit.page = At(extent, fit.scale);
    return fit;
}

}  // namespace kv::print
