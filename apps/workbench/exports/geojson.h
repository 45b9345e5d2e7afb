#pragma once

#include <string>
#include <vector>

#include "geofiles/table.h"

namespace workbench {

/// The tables as one collection of features, each of which names its table as "layer". Places,
/// which are on NAD27, are taken to WGS 84, the datum of GeoJSON. Throws std::runtime_error where
/// that cannot be done.
std::string GeoJsonOf(const std::vector<geofiles::Table>& tables);

}  // namespace workbench
