#include "kvload/source_module.h"

#include <dlfcn.h>

#include <cstdlib>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <system_error>
#include <vector>

namespace kvload {
namespace {

namespace fs = std::filesystem;

constexpr const char* kModule = "KVGuiCtlGdal.so";
constexpr const char* kInstall =
    ". On Debian: apt-get install libgdal-dev, then build again; ./run --load does both";

std::vector<fs::path> Folders() {
    if (const char* folder = std::getenv("KVGUICTL_ENGINES"); folder && *folder) return {folder};
    std::error_code ignored;
    const fs::path own = fs::read_symlink("/proc/self/exe", ignored).parent_path();
    return {own, own.parent_path() / "lib"};
}

fs::path FindModule() {
    for (const fs::path& folder : Folders()) {
        std::error_code ignored;
        if (fs::exists(folder / kModule, ignored)) return folder / kModule;
    }
    throw std::runtime_error(
        std::string("Files are read by GDAL, and this was built without it (") + kModule +
        " is missing)" + kInstall);
}

/// Stays loaded: it does not survive being unloaded.
OpenLayer* LoadModule() {
    static OpenLayer* loaded = nullptr;
    if (loaded) return loaded;
    void* module = dlopen(FindModule().c_str(), RTLD_NOW | RTLD_LOCAL);
    void* entry = module ? dlsym(module, kOpenLayer) : nullptr;
    if (!entry) {
        const char* reason = dlerror();
        throw std::runtime_error(std::string("GDAL is not installed (") +
                                 (reason ? reason : kModule) + ")" + kInstall);
    }
    return loaded = reinterpret_cast<OpenLayer*>(entry);
}

}  // namespace

std::unique_ptr<Layer> Open(const SourceName& source) {
    std::error_code ignored;
    if (!fs::exists(source.path, ignored))
        throw std::runtime_error("There is no file " + source.path);
    std::string failure;
    std::unique_ptr<Layer> layer(LoadModule()(source, failure));
    if (!layer) throw std::runtime_error(source.path + " cannot be read. " + failure);
    return layer;
}

}  // namespace kvload
