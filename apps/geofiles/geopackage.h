#pragma once

#include <string>
#include <vector>

#include "geofiles/table.h"

namespace geofiles {

/// Throws std::runtime_error, with what must be installed, where no GeoPackage can be made here.
void NeedGeoPackages();

/// The bytes of a GeoPackage with a layer for each table. Places are degrees of the geographic
/// system of that EPSG code. Throws std::runtime_error.
std::string GeoPackageOf(const std::vector<Table>& tables, int epsg);

/// The function that the module exports for it, and its name. False with the reason in `failure`.
using WriteGeoPackage = bool(const std::vector<Table>& tables, int epsg, std::string& bytes,
                             std::string& failure);
inline constexpr const char* kWriteGeoPackage = "KVGuiCtlWriteGeoPackage";

}  // namespace geofiles
