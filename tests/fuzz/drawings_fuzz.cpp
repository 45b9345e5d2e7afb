#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <nlohmann/json.hpp>
#include <string_view>

#include "workbench/drawings/drawings_json.h"

namespace {

void Check(bool holds) {
    if (!holds) std::abort();
}

void CheckPlace(const workbench::Place& place) {
    Check(std::abs(place.lat) <= 90 && std::abs(place.lon) <= 180);
}

/// What was let through can be drawn, and is written as it was read.
void CheckDrawings(const workbench::Drawings& drawings) {
    for (const workbench::DrawnLine& line : drawings.lines) {
        Check(line.points.size() >= 2);
        Check(line.closed || !line.filled);
        Check(line.color >= 0 && line.color < workbench::kColors);
        Check(line.width >= 0 && line.width < workbench::kLineWidths);
        Check(line.type >= 0 && line.type < workbench::kLineTypes);
        for (const workbench::Place& point : line.points)
            CheckPlace(point);
    }
    for (const workbench::DrawnText& text : drawings.texts) {
        CheckPlace(text.at);
        Check(!text.text.empty() && text.height > 0 && text.height <= 1);
    }
    Check(workbench::DrawingsFromJson(workbench::ToJson(drawings)) == drawings);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    const auto json = nlohmann::json::parse(text, nullptr, false);
    if (json.is_discarded()) return 0;
    try {
        CheckDrawings(workbench::DrawingsFromJson(json));
    } catch (const workbench::BadDrawings& e) {
        Check(std::string_view(e.what()).starts_with("drawings"));
    }
    return 0;
}
