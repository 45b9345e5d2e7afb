#include "workbench/printing/page_ticks.h"

#include <algorithm>
#include <cmath>

#include "base/text.h"

namespace workbench {

namespace {

constexpr double kSecondsPerDegree = 3600;
constexpr double kSteps[] = {1,   2,   5,   10,   15,   30,   60,    120,
                             300, 600, 900, 1800, 3600, 7200, 18000, 36000};

/// The edge is followed in so many parts, in each of which the angle is all but a straight line.
constexpr int kParts = 16;
constexpr int kHalvings = 40;

/// Where between `from` and `to` the angle is `wanted`, which lies between those that it has there.
double PartOf(const std::function<double(double)>& secondsAt, double wanted, double from,
              double to) {
    const bool grows = secondsAt(from) < secondsAt(to);
    for (int i = 0; i < kHalvings; ++i) {
        const double middle = (from + to) / 2;
        ((secondsAt(middle) < wanted) == grows ? from : to) = middle;
    }
    return (from + to) / 2;
}

}  // namespace

double TickStep(double secondsPerInch, double least) {
    const double wanted = secondsPerInch * least;
    const auto* found = std::find_if(std::begin(kSteps), std::end(kSteps),
                                     [&](double step) { return step >= wanted; });
    return found == std::end(kSteps) ? found[-1] : *found;
}

std::vector<Tick> TicksOn(const std::function<double(double)>& angleAt, double step) {
    const auto secondsAt = [&](double part) { return angleAt(part) * kSecondsPerDegree; };
    std::vector<Tick> ticks;
    for (int part = 0; part < kParts; ++part) {
        const double from = static_cast<double>(part) / kParts;
        const double to = static_cast<double>(part + 1) / kParts;
        const double first = secondsAt(from);
        const double last = secondsAt(to);
        if (!std::isfinite(first) || !std::isfinite(last)) return {};
        // The end of a part belongs to the next one, that of the edge to the last.
        const double high = std::max(first, last);
        for (double at = std::ceil(std::min(first, last) / step) * step; at <= high; at += step) {
            if (at == last && part + 1 < kParts) continue;
            ticks.push_back({PartOf(secondsAt, at, from, to), at});
        }
    }
    return ticks;
}

std::string TickLabel(double seconds, char positive, char negative) {
    const long long all = std::llround(std::abs(seconds));
    const char side = seconds < 0 ? negative : positive;
    const long long degrees = all / 3600;
    const long long minutes = all / 60 % 60;
    if (all % 60 != 0) {
        return kv::FormatText("%lld\u00b0%02lld'%02lld\"%c", degrees, minutes, all % 60, side);
    }
    if (minutes != 0) return kv::FormatText("%lld\u00b0%02lld'%c", degrees, minutes, side);
    return kv::FormatText("%lld\u00b0%c", degrees, side);
}

}  // namespace workbench
