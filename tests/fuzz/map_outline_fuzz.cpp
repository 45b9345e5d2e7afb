#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <limits>
#include <string_view>

#include "workbench/map/map_model.h"

namespace {

void Check(bool holds) {
    if (!holds) std::abort();
}

/// Takes coordinates off the input: mostly corners of a small grid, which meet each other.
class Coordinates {
public:
    explicit Coordinates(std::string_view bytes) : rest_(bytes) {}

    bool AtEnd() const { return rest_.empty(); }
    /// Whether the thing that comes next is a new one.
    bool BeginsNext() { return Take() % 4 == 0; }
    double Next() {
        constexpr double kInfinite = std::numeric_limits<double>::infinity();
        constexpr double kFar[] = {1e300, -1e300, 1e18, 1e-7, kInfinite, -kInfinite};
        const unsigned char byte = Take();
        return byte < 250 ? (byte % 10) * 0.05 : kFar[byte - 250];
    }

private:
    unsigned char Take() {
        if (rest_.empty()) return 0;
        const auto byte = static_cast<unsigned char>(rest_.front());
        rest_.remove_prefix(1);
        return byte;
    }

    std::string_view rest_;
};

void CheckOutline(const workbench::Outline& outline, std::size_t corners) {
    std::size_t sides = 0;
    for (const auto& ring : outline.rings) {
        Check(ring.size() >= 3);
        sides += ring.size();
    }
    // A side is divided where a corner lies on it, and there is no more to divide it.
    Check(sides + outline.inner.size() <= corners * (corners + 1));
}

void CheckFinding(const workbench::MapModel& map, const workbench::AreaMap& area) {
    Check(map.FindArea(area.code) == &area);
    Check(map.FindPick({area.code}, "ALL").areas.size() == 1);
    for (std::size_t number = 0; number < area.blocks.Size(); ++number) {
        const auto pick = map.FindPick({area.code}, area.blocks.Label(number));
        Check(pick.block && pick.block->Label() == area.blocks.Label(number));
        const auto points = area.blocks.Points(number);
        if (!points.empty()) (void)map.SpotAt(points.front(), 0.1);
        (void)map.BlockAt(area.blocks.BoxOf(number).Middle());
    }
}

}  // namespace

/// Blocks and wells of an area.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    constexpr std::size_t kLongest = 600;
    Coordinates from({reinterpret_cast<const char*>(data), std::min(size, kLongest)});
    auto area = std::make_unique<workbench::AreaMap>();
    area->code = "43113";
    while (!from.AtEnd()) {
        if (area->blocks.Size() == 0 || from.BeginsNext())
            area->blocks.Begin(std::to_string(area->blocks.Size()));
        area->blocks.Add(workbench::ToMap({from.Next(), from.Next()}));
    }
    if (area->blocks.Size() > 0) {
        area->wells.Begin("A-1", workbench::WellKindOf("COM"));
        area->wells.Add(area->blocks.AllPoints().front());
    }
    area->Finish();
    CheckOutline(area->outline, area->blocks.AllPoints().size());
    workbench::MapModel map;
    const workbench::AreaMap& added = *area;
    map.Add(std::move(area));
    CheckFinding(map, added);
    return 0;
}
