#pragma once

#include "workbench/document/map_document.h"

namespace workbench {

/// How many feet an inch is at the map's scale, by which drawn texts have their height; a usual
/// scale where the document has no map, or that one no scale.
double FeetPerInch(const MapDocument& document);

}  // namespace workbench
