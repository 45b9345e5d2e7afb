#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "frame/kvcom/map_bounds.h"
#include "frame/kvdbkvn/db_util.h"
#include "workbench/drawings/drawings.h"

namespace workbench {

/// A map that was built. Its kind (offshore or onshore), projection, rectifying point, unit and
/// scale are those of its record.
struct BuiltMap {
    std::string name;
    CKvMapBounds bounds;
    /// What it was built of, also where the record keeps none. A county is named by its identifier,
    /// as a block.
    std::vector<CKvDbUtil::Pick> picks;
    /// Whether reports tell X and Y in the map's projection, and not in that of each area.
    bool reportsInMapProjection = true;

    int Projection() const { return bounds.GetPrimeProj(); }
    bool Feet() const { return bounds.GetFeet(); }
    bool Onshore() const { return bounds.GetTemplateType() == KV_TEMPLATE_ONSHORE; }
    bool operator==(const BuiltMap&) const = default;
};

/// What the workbench keeps in a file: a built map, if there is one, and what was drawn on the map.
/// A plain value.
struct MapDocument {
    /// The tables that it belongs to, with their owner ahead.
    std::string dataset;
    std::optional<BuiltMap> map;
    /// Null for none.
    std::shared_ptr<const Drawings> drawings;

    /// Drawings are compared by what they are.
    bool operator==(const MapDocument& other) const;
};

}  // namespace workbench
