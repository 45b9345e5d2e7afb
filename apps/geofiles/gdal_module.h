#pragma once

namespace geofiles {

/// A function of the module that goes through GDAL, by the name that it is exported under. The
/// module is loaded at the first call: from the folder that the environment variable
/// KVGUICTL_ENGINES names, otherwise from the folder of the library's modules next to the program's
/// own. Throws std::runtime_error with what must be installed where it cannot be had.
void* GdalFunction(const char* name);

}  // namespace geofiles
