#include "geofiles/gdal_module.h"

#include <dlfcn.h>

#include <cstdlib>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <system_error>
#include <vector>

namespace geofiles {
namespace {

namespace fs = std::filesystem;

constexpr const char* kModule = "KVGuiCtlGdal.so";
constexpr const char* kInstall =
    ". On Debian: apt-get install libgdal-dev, then build again; ./run --load does both";

/// Beside a program: where it was built, and where it is installed.
std::vector<fs::path> Folders() {
    if (const char* folder = std::getenv("KVGUICTL_ENGINES"); folder && *folder) return {folder};
    std::error_code ignored;
    const fs::path prefix = fs::read_symlink("/proc/self/exe", ignored).parent_path().parent_path();
    return {prefix / "lib" / "KVGuiCtl", prefix / LIBRARIES_FROM_PREFIX / "KVGuiCtl"};
}

fs::path FindModule() {
    for (const fs::path& folder : Folders()) {
        std::error_code ignored;
        if (fs::exists(folder / kModule, ignored)) return folder / kModule;
    }
    throw std::runtime_error(
        std::string("Such files go through GDAL, and this was built without it (") + kModule +
        " is missing)" + kInstall);
}

[[noreturn]] void Fail() {
    const char* reason = dlerror();
    throw std::runtime_error(std::string("GDAL is not installed (") + (reason ? reason : kModule) +
                             ")" + kInstall);
}

/// Stays loaded: it does not survive being unloaded.
void* Module() {
    static void* loaded = nullptr;
    if (!loaded) loaded = dlopen(FindModule().c_str(), RTLD_NOW | RTLD_LOCAL);
    if (!loaded) Fail();
    return loaded;
}

}  // namespace

void* GdalFunction(const char* name) {
    void* function = dlsym(Module(), name);
    if (!function) Fail();
    return function;
}

}  // namespace geofiles
