#pragma once

#include "workbench/drawings/drawings.h"
#include "workbench/exports/export_tables.h"
#include "workbench/map/map_model.h"
#include "workbench/map/map_painter.h"

namespace workbench {

/// Puts an area's blocks in, and its wells, platforms and pipelines where these are among `layers`,
/// as the database has them, each with the label that the map writes: that of `labels` where it is
/// replaced there. What the map could not read is left out. Throws CKvException.
void AddArea(ExportTables& tables, const AreaMap& area, const MapLayers& layers,
             const LabelTexts& labels);

}  // namespace workbench
