#pragma once

#include "base/export.h"
#include "window/templates/resources.h"

/// Start and end of the library as an extension module of its host.
///
/// Loading it fills the module record; unloading it takes the record back. Both happen by
/// themselves. In between, the host calls `InitControlDll` once, and from then on templates, icons
/// and bitmaps of the library are found.

/// Puts the library's resources in the chain. Returns what it allocated, or null, with the chain as
/// it was, when there was no memory, and where the module is not loaded; it is released with the
/// module. Exported under this undecorated name.
extern "C" KVGUICTL_API CDynLinkLibrary* InitControlDll();

namespace kv::module {

enum class Event { kProcessAttach, kProcessDetach, kThreadAttach, kThreadDetach };

/// What the loader tells the module. 0 when the load failed, else 1.
KVGUICTL_API int Main(Event event, HINSTANCE instance);

}  // namespace kv::module
