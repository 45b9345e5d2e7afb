#include "geofiles/table.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace geofiles {
namespace {

double TwiceArea(const std::vector<Place>& outline) {
    double sum = 0.0;
    const Place* before = &outline.back();
    for (const Place& corner : outline) {
        sum += before->lon * corner.lat - corner.lon * before->lat;
        before = &corner;
    }
    return sum;
}

bool HasIdleZero(std::string_view number) {
    if (number.starts_with('-')) number.remove_prefix(1);
    return number.size() > 1 && number[0] == '0' && number[1] != '.';
}

}  // namespace

std::optional<double> NumberOf(std::string_view cell) {
    double value = 0.0;
    const char* end = cell.data() + cell.size();
    const auto read = std::from_chars(cell.data(), end, value, std::chars_format::fixed);
    const bool whole = read.ec == std::errc() && read.ptr == end && std::isfinite(value);
    return whole && !HasIdleZero(cell) ? std::optional(value) : std::nullopt;
}

std::vector<Place> RingOf(const std::vector<Place>& outline) {
    std::vector<Place> ring = outline;
    if (ring.empty()) return ring;
    if (TwiceArea(ring) < 0) std::reverse(ring.begin() + 1, ring.end());
    ring.push_back(ring.front());
    return ring;
}

}  // namespace geofiles
