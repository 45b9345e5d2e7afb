#pragma once

#include <cstdint>
#include <optional>
#include <unordered_map>

#include "workbench/map/map_model.h"
#include "workbench/map/map_projection.h"

namespace workbench {

/// The map as it is drawn in a projection. Every vertex goes through the projection once, when that
/// is set or when its area comes.
///
/// Areas and blocks keep their order. What the projection cannot show has no points.
class ProjectedMap {
public:
    /// `source`, in Mercator's projection, outlives it.
    explicit ProjectedMap(const MapModel& source) : source_(source) {}

    const MapProjection& Projection() const { return projection_; }
    void SetProjection(const MapProjection& projection);
    /// Areas were added to the source.
    void Update();
    /// The source is about to be emptied.
    void Clear();

    const MapModel& Drawn() const { return projection_.IsMercator() ? source_ : projected_; }
    /// How many things the projection cannot show.
    std::int64_t LeftOut() const { return leftOut_; }

    // From the source to what is drawn, and back. An area that has not come yet is none.
    const AreaMap* ToDrawn(const AreaMap* area) const;
    std::optional<BlockRef> ToDrawn(const std::optional<BlockRef>& block) const;
    std::optional<BlockRef> ToSource(const std::optional<BlockRef>& block) const;

private:
    const MapModel& source_;
    MapProjection projection_;
    MapModel projected_;
    std::int64_t leftOut_ = 0;
    std::unordered_map<const AreaMap*, const AreaMap*> drawn_;
    std::unordered_map<const AreaMap*, const AreaMap*> sources_;
};

/// A box of the map in Mercator's projection as a box around it in another one; empty where that
/// has no answer.
Box Projected(const Box& box, const MapProjection& projection);

}  // namespace workbench
