#include "mapbuild/builders/picked_places.h"

#include <functional>
#include <utility>

#include "frame/kvcom/projected_bounds.h"
#include "frame/kvcom/util_geo.h"
#include "frame/kvlogs/log.h"

namespace kv::mapbuild {

namespace {

void LogUnknown(const std::string& what) {
    constexpr int kLogLevel = 101;
    CKvLog::Output("The database does not know " + what + ": it is left out of the map's bounds.",
                   kLogLevel, false);
}

/// Bounds of one place after the other, and those around them all.
class Around {
public:
    void Add(const CMinMax2Dd_t& angles, const ProjectedBounds& projected) {
        angles_.push_back(angles.GetMax());
        angles_.push_back(angles.GetMin());
        CMinMax2Dd_t xy;
        if (!projected.Take(xy)) return;
        xy_.push_back(xy.GetMax());
        xy_.push_back(xy.GetMin());
    }

    std::optional<PickedBounds> Bounds() const {
        if (angles_.empty()) return std::nullopt;
        PickedBounds bounds{CKvUtilGeo::PolyLineGetMinMax(angles_), std::nullopt};
        if (!xy_.empty()) bounds.xy = CKvUtilGeo::PolyLineGetMinMax(xy_);
        return bounds;
    }

private:
    std::vector<CKvDispPoint> angles_;
    std::vector<CKvDispPoint> xy_;
};

}  // namespace

std::size_t PickedPlaces::HashOfPick::operator()(const CKvDbUtil::Pick& pick) const {
    return std::hash<std::string>()(pick.area + '#' + pick.block + '#' + pick.ext);
}

void PickedPlaces::LearnBlocks(const Picks& picks, const std::string& dataset, Blocks& blocks) {
    Picks missing;
    for (const CKvDbUtil::Pick& pick : picks) {
        if (!blocks.contains(pick)) missing.push_back(pick);
    }
    if (missing.empty()) return;
    const kv::db::LookUpsThrow failures;
    std::vector<Outline> outlines = CKvDbUtil::S_GetOutlines(missing, dataset);
    for (std::size_t i = 0; i < missing.size(); ++i) {
        CKvDbUtil::Pick& pick = missing[i];
        if (outlines[i].empty()) LogUnknown("the block " + pick.area + " " + pick.block + pick.ext);
        blocks.insert_or_assign(std::move(pick), std::move(outlines[i]));
    }
}

void PickedPlaces::LearnCounties(const Picks& picks) {
    const kv::db::LookUpsThrow failures;
    for (const CKvDbUtil::Pick& pick : picks) {
        if (counties_.contains(pick.block)) continue;
        CMinMax2Dd_t angles;
        const bool known = CKvDbUtil::S_GetLLBoundsOnshore(pick.block, angles);
        if (!known) LogUnknown("the county " + pick.block);
        counties_[pick.block] = known ? std::optional(angles) : std::nullopt;
    }
}

std::optional<PickedBounds> PickedPlaces::OfBlocks(Picks picks, const std::string& dataset,
                                                   const Plane& plane,
                                                   const RectifyingPoint& point) {
    Asked asking{true, std::move(picks), dataset, plane, point};
    if (answered_ && asking == asked_) return answered_;
    Blocks& blocks = blocks_[dataset];
    LearnBlocks(asking.picks, dataset, blocks);
    Around around;
    for (const CKvDbUtil::Pick& pick : asking.picks) {
        const Outline& outline = blocks.at(pick);
        if (outline.empty()) continue;
        ProjectedBounds projected(plane.projection, plane.units);
        for (const CKvDispPoint& corner : outline)
            projected.Add(corner.GetX(), corner.GetY());
        around.Add(CKvUtilGeo::PolyLineGetMinMax(outline), projected);
    }
    asked_ = std::move(asking);
    return answered_ = around.Bounds();
}

std::optional<PickedBounds> PickedPlaces::OfCounties(Picks picks, const Plane& plane,
                                                     const RectifyingPoint& point) {
    Asked asking{false, std::move(picks), "", plane, point};
    if (answered_ && asking == asked_) return answered_;
    LearnCounties(asking.picks);
    Around around;
    for (const CKvDbUtil::Pick& pick : asking.picks) {
        const std::optional<CMinMax2Dd_t>& angles = counties_.at(pick.block);
        if (!angles) continue;
        ProjectedBounds projected(plane.projection, plane.units);
        projected.AddBox(*angles);
        around.Add(*angles, projected);
    }
    asked_ = std::move(asking);
    return answered_ = around.Bounds();
}

}  // namespace kv::mapbuild
