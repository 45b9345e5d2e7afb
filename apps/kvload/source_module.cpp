#include "kvload/source_module.h"

#include <filesystem>
#include <stdexcept>
#include <string>
#include <system_error>

#include "geofiles/gdal_module.h"

namespace kvload {

std::unique_ptr<Layer> Open(const SourceName& source) {
    std::error_code ignored;
    if (!std::filesystem::exists(source.path, ignored))
        throw std::runtime_error("There is no file " + source.path);
    auto* open = reinterpret_cast<OpenLayer*>(geofiles::GdalFunction(kOpenLayer));
    std::string failure;
    std::unique_ptr<Layer> layer(open(source, failure));
    if (!layer) throw std::runtime_error(source.path + " cannot be read. " + failure);
    return layer;
}

}  // namespace kvload
