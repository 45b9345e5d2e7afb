#include "workbench/printing/paper_map.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "frame/kvcom/util_lldrv.h"
#include "frame/kvdbkvn/db_util.h"
#include "workbench/map/projected_points.h"

namespace workbench {

namespace {

/// A side of a box is followed in so many steps: it is a curve in another projection.
constexpr int kSteps = 16;
/// What a box reaches beyond what was found by steps, in parts of its own size.
constexpr double kBeyond = 0.02;

FeatureLayer Projected(const FeatureLayer& layer, const PaperProjection& projection,
                       std::int64_t& leftOut) {
    FeatureLayer projected;
    for (std::size_t number = 0; number < layer.Size(); ++number) {
        const std::vector<Point> points = AllProjected(
            layer.Points(number), [&](const Point& point) { return projection.FromMap(point); });
        if (points.empty()) {
            ++leftOut;
            continue;
        }
        projected.Begin(layer.Label(number), layer.Kind(number));
        for (const Point& point : points)
            projected.Add(point);
    }
    projected.Finish();
    return projected;
}

/// Feet for a map unit around a point.
double FeetAt(const Point& point, const PaperProjection& projection) {
    constexpr double kAside = 0.01;
    const auto here = projection.FromMap(point);
    const auto aside = projection.FromMap({point.x + kAside, point.y});
    if (!here || !aside) return 0;
    return std::hypot(aside->x - here->x, aside->y - here->y) / kAside;
}

AreaMap Projected(const AreaMap& area, const PaperProjection& projection, std::int64_t& leftOut) {
    AreaMap projected;
    projected.code = area.code;
    projected.name = area.name;
    projected.mmsCode = area.mmsCode;
    projected.water = area.water;
    for (const auto layer :
         {&AreaMap::blocks, &AreaMap::wells, &AreaMap::platforms, &AreaMap::pipelines})
        projected.*layer = Projected(area.*layer, projection, leftOut);
    projected.outline = OutlineProjected(
        area.outline, [&](const Point& point) { return projection.FromMap(point); });
    const double feet = FeetAt(area.labelAt, projection);
    projected.blockSize = area.blockSize * feet;
    projected.labelAt = projection.FromMap(area.labelAt).value_or(Point{});
    projected.labelRoom = {0, 0, area.labelRoom.Width() * feet, area.labelRoom.Height() * feet};
    return projected;
}

/// Whether something of the area may lie within bounds in X and Y.
bool MayMeet(const AreaMap& area, const PaperProjection& projection, const Box& bounds) {
    const Box reach = ReachOf(area);
    if (reach.Empty()) return false;
    const Box box = BoundsOf(reach, projection);
    return box.Empty() || box.Grown(kBeyond * std::max(box.Width(), box.Height())).Meets(bounds);
}

}  // namespace

std::optional<Point> PaperProjection::FromMap(const Point& onMap) const {
    return Plane().ToXY(ToPlace(onMap));
}

Place PaperProjection::PlaceOf(const Point& xy) const {
    return Plane().ToPlace(xy).value_or(Place{HUGE_VAL, HUGE_VAL});
}

std::optional<PaperProjection> ProjectionOf(const AreaMap& area) {
    const kv::db::LookUpsThrow failures;
    const int code = CKvDbUtil::S_GetProjectionByArea(area.code, "");
    if (code == -1) return {};
    std::string name = CKvUtilLLdrv::BuiltInName(code);
    if (name.empty()) name = "Projection " + std::to_string(code);
    return PaperProjection{code, std::move(name)};
}

std::vector<const AreaMap*> AreasIn(const MapModel& model, const Box& part) {
    std::vector<const AreaMap*> areas;
    const auto middle = model.BlockAt(part.Middle());
    if (middle) areas.push_back(middle->area);
    for (const auto& area : model.Areas()) {
        bool shown = false;
        area->blocks.ForEachIn(part, [&](std::size_t) { shown = true; });
        if (shown && (!middle || area.get() != middle->area)) areas.push_back(area.get());
    }
    return areas;
}

Box BoundsOf(const Pick& pick, const PaperProjection& projection) {
    Box bounds;
    const auto include = [&](std::span<const Point> points) {
        for (const Point& point : points) {
            if (const auto at = projection.FromMap(point)) bounds.Include(*at);
        }
    };
    if (pick.block) {
        include(pick.block->area->blocks.Points(pick.block->block));
    } else {
        for (const AreaMap* area : pick.areas)
            include(area->blocks.AllPoints());
    }
    return bounds;
}

Box BoundsOf(const Box& part, const PaperProjection& projection) {
    Box bounds;
    for (int i = 0; i <= kSteps; ++i) {
        const double x = part.minX + part.Width() * i / kSteps;
        const double y = part.minY + part.Height() * i / kSteps;
        for (const Point& point :
             {Point{x, part.minY}, {x, part.maxY}, {part.minX, y}, {part.maxX, y}}) {
            if (const auto at = projection.FromMap(point)) bounds.Include(*at);
        }
    }
    return bounds;
}

PaperMap MapOnPaper(const MapModel& model, const PaperProjection& projection, const Box& bounds) {
    PaperMap map{projection, {}, 0};
    for (const auto& area : model.Areas()) {
        if (MayMeet(*area, projection, bounds))
            map.areas.push_back(Projected(*area, projection, map.leftOut));
    }
    return map;
}

}  // namespace workbench
