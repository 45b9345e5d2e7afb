#include "geofiles/geopackage.h"

#include <stdexcept>

#include "geofiles/gdal_module.h"

namespace geofiles {

void NeedGeoPackages() {
    GdalFunction(kWriteGeoPackage);
}

std::string GeoPackageOf(const std::vector<Table>& tables, int epsg) {
    auto* write = reinterpret_cast<WriteGeoPackage*>(GdalFunction(kWriteGeoPackage));
    std::string bytes, failure;
    if (!write(tables, epsg, bytes, failure)) throw std::runtime_error(failure);
    return bytes;
}

}  // namespace geofiles
