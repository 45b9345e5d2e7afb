#pragma once

#include "workbench/document/map_document.h"
#include "workbench/exports/export_tables.h"
#include "workbench/map/map_model.h"

namespace workbench {

/// Puts in what was drawn on the map. Filled blocks have their outlines from the map.
void AddDrawings(ExportTables& tables, const Drawings& drawings, const MapModel& model);

/// Puts in the edge of a map that was built, where it has one.
void AddFrame(ExportTables& tables, const BuiltMap& map);

}  // namespace workbench
