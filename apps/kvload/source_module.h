#pragma once

#include <memory>

#include "kvload/source.h"

namespace kvload {

/// Opens a table of a file, through the library of readers: it is loaded at the first call from the
/// folder that the environment variable KVGUICTL_ENGINES names, otherwise from beside the program
/// or from the folder "lib" next to its own. Throws std::runtime_error with the file and what is
/// the matter with it, or with what must be installed.
std::unique_ptr<Layer> Open(const SourceName& source);

}  // namespace kvload
