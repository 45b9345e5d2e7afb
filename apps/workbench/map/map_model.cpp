#include "workbench/map/map_model.h"

#include <array>
#include <cmath>
#include <limits>
#include <utility>

#include "frame/catalogue.h"

namespace workbench {

namespace {

template <typename Kind, std::size_t Count>
Kind KindOf(const std::array<std::pair<std::string_view, Kind>, Count>& kinds,
            std::string_view text, Kind other) {
    for (const auto& [name, kind] : kinds) {
        if (name == text) return kind;
    }
    return other;
}

/// The middle of the blocks, each by the area it covers.
Point Middle(const FeatureLayer& blocks) {
    double x = 0, y = 0, sum = 0;
    for (std::size_t number = 0; number < blocks.Size(); ++number) {
        const double area = std::abs(SignedArea(blocks.Points(number)));
        const Point middle = blocks.BoxOf(number).Middle();
        x += middle.x * area, y += middle.y * area, sum += area;
    }
    return sum > 0 ? Point{x / sum, y / sum} : blocks.Bounds().Middle();
}

/// The part of a line through the outline that holds `at`; empty where none does. The line lies at
/// `across`, and `along` and `off` give a point's place on it and beside it.
std::pair<double, double> Stretch(const Outline& outline, double at, double across,
                                  double Point::*along, double Point::*off) {
    double before = std::numeric_limits<double>::lowest();
    double behind = std::numeric_limits<double>::max();
    int crossings = 0;
    for (const auto& ring : outline.rings) {
        for (std::size_t i = 0, j = ring.size() - 1; i < ring.size(); j = i++) {
            const Point& a = ring[i];
            const Point& b = ring[j];
            if ((a.*off > across) == (b.*off > across)) continue;
            const double place =
                a.*along + (b.*along - a.*along) * (across - a.*off) / (b.*off - a.*off);
            (place <= at)               ? before = std::max(before, place),
                            ++crossings : behind = std::min(behind, place);
        }
    }
    if (crossings % 2 == 0) return {at, at};
    return {before, behind};
}

Box RoomAt(const Outline& outline, const Point& at) {
    const auto [left, right] = Stretch(outline, at.x, at.y, &Point::x, &Point::y);
    const auto [bottom, top] = Stretch(outline, at.y, at.x, &Point::y, &Point::x);
    return {left, bottom, right, top};
}

double UsualSize(const FeatureLayer& blocks) {
    std::vector<double> areas;
    areas.reserve(blocks.Size());
    for (std::size_t number = 0; number < blocks.Size(); ++number) {
        areas.push_back(std::abs(SignedArea(blocks.Points(number))));
    }
    if (areas.empty()) return 0;
    const auto middle = areas.begin() + static_cast<std::ptrdiff_t>(areas.size() / 2);
    std::nth_element(areas.begin(), middle, areas.end());
    return std::sqrt(*middle);
}

}  // namespace

WellKind WellKindOf(std::string_view status) {
    static constexpr std::array<std::pair<std::string_view, WellKind>, 5> kKinds = {
        {{"COM", kWellCompleted},
         {"DRL", kWellDrilling},
         {"TA", kWellSuspended},
         {"ST", kWellSidetracked},
         {"PA", kWellAbandoned}}};
    return KindOf(kKinds, status, kWellOther);
}

PipelineKind PipelineKindOf(std::string_view product) {
    static constexpr std::array<std::pair<std::string_view, PipelineKind>, 12> kKinds = {
        {{"OIL", kPipeOil},
         {"BLKO", kPipeOil},
         {"BO/L", kPipeOil},
         {"BO/S", kPipeOil},
         {"COND", kPipeOil},
         {"O/W", kPipeOil},
         {"GAS", kPipeGas},
         {"BLKG", kPipeGas},
         {"BG/S", kPipeGas},
         {"BLGH", kPipeGas},
         {"G/C", kPipeGas},
         {"G/O", kPipeGas}}};
    return KindOf(kKinds, product, kPipeOther);
}

Water WaterOf(std::string_view areaCode) {
    const std::string_view region = areaCode.substr(0, 3);
    if (region == "436") return Water::kDeep;
    if (region == "430" || region == "431") return Water::kShelf;
    if (region == "426" || region == "434" || region == "435") return Water::kState;
    return region.substr(0, 2) == "42" ? Water::kBay : Water::kShelf;
}

std::string_view WaterSuffix(std::string_view areaCode) {
    const std::string_view water = areaCode.substr(0, 3);
    if (water == "426") return "-S";
    if (water == "427") return "-L";
    return water >= "420" && water <= "429" ? "-BAY" : "";
}

void AreaMap::Finish() {
    Finish(Unite(blocks));
}

void AreaMap::Finish(Outline known) {
    for (FeatureLayer* layer : {&blocks, &wells, &platforms, &pipelines})
        layer->Finish();
    water = WaterOf(code);
    outline = std::move(known);
    labelAt = Middle(blocks);
    labelRoom = RoomAt(outline, labelAt);
    blockSize = UsualSize(blocks);
}

Box Pick::Bounds() const {
    if (block) return block->Bounds();
    Box box;
    for (const AreaMap* area : areas)
        box.Include(area->blocks.Bounds());
    return box;
}

Box ReachOf(const AreaMap& area) {
    Box box = area.blocks.Bounds();
    for (const FeatureLayer* layer : {&area.wells, &area.platforms, &area.pipelines}) {
        box.Include(layer->Bounds());
    }
    return box;
}

void MapModel::Add(std::unique_ptr<const AreaMap> area) {
    blocks_ += area->blocks.Size();
    bounds_.Include(area->blocks.Bounds());
    areas_.push_back(std::move(area));
}

void MapModel::Clear() {
    *this = {};
}

const AreaMap* MapModel::FindArea(std::string_view code) const {
    for (const auto& area : areas_) {
        if (area->code == code) return area.get();
    }
    return nullptr;
}

Pick MapModel::FindPick(const std::vector<std::string>& codes, std::string_view block) const {
    Pick pick;
    for (const std::string& code : codes) {
        const AreaMap* area = FindArea(code);
        if (!area) continue;
        if (block == kv::catalogue::kAllBlocks) {
            pick.areas.push_back(area);
        } else if (const int found = area->blocks.Find(block); found >= 0) {
            pick.block = BlockRef{area, static_cast<std::size_t>(found)};
            return pick;
        }
    }
    return pick;
}

std::optional<BlockRef> MapModel::BlockAt(const Point& point) const {
    std::optional<BlockRef> hit;
    const Box here{point.x, point.y, point.x, point.y};
    for (const auto& area : areas_) {
        area->blocks.ForEachIn(here, [&](std::size_t number) {
            if (Inside(area->blocks.Points(number), point)) hit = BlockRef{area.get(), number};
        });
        if (hit) break;
    }
    return hit;
}

std::optional<SpotRef> MapModel::SpotAt(const Point& point, double reach) const {
    std::optional<SpotRef> nearest;
    const Box around = Box{point.x, point.y, point.x, point.y}.Grown(reach);
    for (const bool platform : {true, false}) {
        double best = reach * reach;
        for (const auto& area : areas_) {
            const SpotRef any{area.get(), platform, 0};
            any.Layer().ForEachIn(around, [&](std::size_t number) {
                const Point at = any.Layer().Points(number).front();
                const double distance = SquaredDistance(point, {at, at});
                if (distance > best) return;
                best = distance;
                nearest = SpotRef{area.get(), platform, number};
            });
        }
        if (nearest) break;
    }
    return nearest;
}

}  // namespace workbench
