#pragma once

#include <memory>

#include "kvload/source.h"

namespace kvload {

/// Opens a table of a file, through the module of `geofiles`. Throws std::runtime_error with the
/// file and what is the matter with it, or with what must be installed.
std::unique_ptr<Layer> Open(const SourceName& source);

}  // namespace kvload
