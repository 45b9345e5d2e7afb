#include "frame/module.h"

#include <new>

#include "frame/kvlogs/log.h"
#include "window/window_system.h"

namespace {

AFX_EXTENSION_MODULE& ModuleRecord() {
    static AFX_EXTENSION_MODULE record;
    return record;
}

constexpr int kLogLevel = 101;

}  // namespace

namespace kv::module {

int Main(Event event, HINSTANCE instance) {
    switch (event) {
        case Event::kProcessAttach:
            return AfxInitExtensionModule(ModuleRecord(), instance) ? 1 : 0;
        case Event::kProcessDetach:
            AfxTermExtensionModule(ModuleRecord(), FALSE);
            return 1;
        case Event::kThreadAttach:
        case Event::kThreadDetach:
            return 1;
    }
    return 1;
}

namespace {

/// Stands in for the loader's calls: constructed when the library is loaded, destroyed when it is
/// unloaded.
struct Loader {
    Loader() {
        Main(Event::kProcessAttach, &LibraryResources());
        WindowSystem::Get().SetLog(
            [](const std::string& line) { CKvLog::Output(line, kLogLevel, false); });
    }
    ~Loader() { Main(Event::kProcessDetach, &LibraryResources()); }
};

const Loader g_loader;

}  // namespace

}  // namespace kv::module

CDynLinkLibrary* InitControlDll() {
    if (!ModuleRecord().bInitialized) return nullptr;
    try {
        return new CDynLinkLibrary(ModuleRecord());
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}
