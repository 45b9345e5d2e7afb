#pragma once

#include <QPainter>
#include <string_view>

#include "workbench/map/label_layer.h"
#include "workbench/map/map_model.h"
#include "workbench/map/map_view.h"

namespace workbench {

/// What is drawn into the map beside what the database has, and what its labels are.
class MapOverlay {
public:
    virtual ~MapOverlay() = default;

    /// Under the lines of the blocks of `model`, which is drawn.
    virtual void DrawFills(QPainter& painter, const MapModel& model, const MapView& view) const = 0;
    /// Over all that stands in the blocks, under names and legend.
    virtual void DrawOnTop(QPainter& painter, const MapView& view) const = 0;
    /// What is written in the place of a label of the database, `label` itself where that stays. An
    /// empty one is not written. Valid as long as both are.
    virtual std::string_view Label(LabelLayer layer, std::string_view area,
                                   std::string_view label) const = 0;
};

}  // namespace workbench
