#include "workbench/map/projected_map.h"

#include <bit>
#include <memory>
#include <utility>
#include <vector>

#include "workbench/map/projected_points.h"

namespace workbench {

namespace {

std::optional<Point> Projected(const Point& point, const MapProjection& projection) {
    return projection.ToMap(ToPlace(point));
}

/// Projects corners that blocks and outlines share, each once.
class SharedCorners {
public:
    SharedCorners(const MapProjection& projection, std::size_t corners) : projection_(projection) {
        known_.reserve(corners);
    }
    const std::optional<Point>& operator()(const Point& corner) {
        const auto [found, first] = known_.try_emplace(corner);
        if (first) found->second = Projected(corner, projection_);
        return found->second;
    }

private:
    struct Hash {
        std::size_t operator()(const Point& point) const {
            constexpr std::uint64_t kOdd = 0x9E3779B97F4A7C15;
            const auto x = std::bit_cast<std::uint64_t>(point.x) * kOdd;
            const auto y = std::bit_cast<std::uint64_t>(point.y);
            return static_cast<std::size_t>((x ^ (x >> 32) ^ y) * kOdd);
        }
    };

    const MapProjection& projection_;
    std::unordered_map<Point, std::optional<Point>, Hash> known_;
};

/// How many things have no answer.
template <typename Project>
std::int64_t ProjectLayer(const FeatureLayer& layer, FeatureLayer& projected, Project&& project) {
    std::int64_t leftOut = 0;
    for (std::size_t number = 0; number < layer.Size(); ++number) {
        projected.Begin(layer.Label(number), layer.Kind(number));
        const std::vector<Point> points = AllProjected(layer.Points(number), project);
        if (points.empty()) ++leftOut;
        for (const Point& point : points)
            projected.Add(point);
    }
    return leftOut;
}

std::unique_ptr<AreaMap> ProjectArea(const AreaMap& area, const MapProjection& projection,
                                     std::int64_t& leftOut) {
    auto projected = std::make_unique<AreaMap>();
    projected->code = area.code;
    projected->name = area.name;
    projected->mmsCode = area.mmsCode;
    SharedCorners corners(projection, area.blocks.AllPoints().size());
    const std::int64_t blocks = ProjectLayer(area.blocks, projected->blocks, corners);
    leftOut += blocks;
    const auto each = [&](const Point& point) { return Projected(point, projection); };
    for (const auto layer : {&AreaMap::wells, &AreaMap::platforms, &AreaMap::pipelines})
        leftOut += ProjectLayer(area.*layer, (*projected).*layer, each);
    // Without some of its blocks the area looks otherwise.
    projected->Finish(blocks == 0 ? OutlineProjected(area.outline, corners)
                                  : Unite(projected->blocks));
    return projected;
}

template <typename Areas>
std::optional<BlockRef> Changed(const std::optional<BlockRef>& block, const Areas& areas) {
    if (!block) return {};
    const auto found = areas.find(block->area);
    if (found == areas.end()) return {};
    return BlockRef{found->second, block->block};
}

}  // namespace

void ProjectedMap::SetProjection(const MapProjection& projection) {
    Clear();
    projection_ = projection;
    Update();
}

void ProjectedMap::Clear() {
    projected_.Clear();
    drawn_.clear();
    sources_.clear();
    leftOut_ = 0;
}

void ProjectedMap::Update() {
    if (projection_.IsMercator()) return;
    projected_.Expect(Projected(source_.Bounds(), projection_));
    const auto& areas = source_.Areas();
    for (std::size_t i = projected_.Areas().size(); i < areas.size(); ++i) {
        projected_.Add(ProjectArea(*areas[i], projection_, leftOut_));
        drawn_[areas[i].get()] = projected_.Areas().back().get();
        sources_[projected_.Areas().back().get()] = areas[i].get();
    }
}

const AreaMap* ProjectedMap::ToDrawn(const AreaMap* area) const {
    if (projection_.IsMercator()) return area;
    const auto found = drawn_.find(area);
    return found == drawn_.end() ? nullptr : found->second;
}

std::optional<BlockRef> ProjectedMap::ToDrawn(const std::optional<BlockRef>& block) const {
    return projection_.IsMercator() ? block : Changed(block, drawn_);
}

std::optional<BlockRef> ProjectedMap::ToSource(const std::optional<BlockRef>& block) const {
    return projection_.IsMercator() ? block : Changed(block, sources_);
}

Box Projected(const Box& box, const MapProjection& projection) {
    constexpr int kSteps = 16;
    Box projected;
    if (box.Empty()) return projected;
    for (int i = 0; i <= kSteps; ++i) {
        const double x = box.minX + box.Width() * i / kSteps;
        const double y = box.minY + box.Height() * i / kSteps;
        for (const Point& point :
             {Point{x, box.minY}, {x, box.maxY}, {box.minX, y}, {box.maxX, y}}) {
            if (const auto at = Projected(point, projection)) projected.Include(*at);
        }
    }
    return projected;
}

}  // namespace workbench
