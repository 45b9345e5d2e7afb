#include "workbench/drawings/drawings.h"

#include <algorithm>

#include "base/text.h"

namespace workbench {

namespace {

constexpr double kPole = 90;
/// Longitudes are told once around the earth.
constexpr double kHalfTurn = 180;

/// `by`, as far as nothing between `least` and `most` leaves the range of `limit` to both sides.
double Limited(double by, double least, double most, double limit) {
    return std::clamp(by, std::min(0.0, -limit - least), std::max(0.0, limit - most));
}

std::vector<Place*> PlacesOf(Drawings& drawings, const DrawingRef& ref) {
    std::vector<Place*> places;
    if (ref.kind == DrawingRef::kText) places.push_back(&drawings.texts[ref.number].at);
    if (ref.kind == DrawingRef::kLine) {
        for (Place& point : drawings.lines[ref.number].points)
            places.push_back(&point);
    }
    return places;
}

}  // namespace

bool Drawings::operator==(const Drawings& other) const {
    const auto same = [](const auto& a, const auto& b) {
        return a.first.Parts() == b.first.Parts() && a.second == b.second;
    };
    return lines == other.lines && texts == other.texts && fills == other.fills &&
           std::ranges::equal(labels, other.labels, same);
}

std::string_view TextOf(const LabelTexts& labels, LabelLayer layer, std::string_view area,
                        std::string_view label) {
    if (labels.empty()) return label;
    const auto at = labels.find(LabelKeyView(layer, area, label));
    return at == labels.end() ? label : std::string_view(at->second);
}

void Erase(Drawings& drawings, const DrawingRef& ref) {
    const auto at = static_cast<std::ptrdiff_t>(ref.number);
    switch (ref.kind) {
        case DrawingRef::kLine:
            drawings.lines.erase(drawings.lines.begin() + at);
            break;
        case DrawingRef::kText:
            drawings.texts.erase(drawings.texts.begin() + at);
            break;
        case DrawingRef::kFill:
            drawings.fills.erase(ref.block);
            break;
    }
}

void Shift(Drawings& drawings, const DrawingRef& ref, double north, double east) {
    const std::vector<Place*> places = PlacesOf(drawings, ref);
    if (places.empty()) return;
    const auto [south, top] = std::ranges::minmax(places, {}, &Place::lat);
    const auto [west, right] = std::ranges::minmax(places, {}, &Place::lon);
    const double up = Limited(north, south->lat, top->lat, kPole);
    const double aside = Limited(east, west->lon, right->lon, kHalfTurn);
    for (Place* place : places) {
        place->lat += up;
        place->lon += aside;
    }
}

std::string Replaced(std::string_view text, std::string_view search, std::string_view replacement) {
    const std::string upper = kv::ToUpper(text);
    const std::string wanted = kv::ToUpper(search);
    std::string replaced;
    std::size_t behind = 0;
    for (std::size_t at = upper.find(wanted); at != std::string::npos;
         at = upper.find(wanted, behind)) {
        replaced += text.substr(behind, at - behind);
        replaced += replacement;
        behind = at + wanted.size();
    }
    return replaced += text.substr(behind);
}

}  // namespace workbench
