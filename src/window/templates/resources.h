#pragma once

#include <vector>

#include "base/export.h"
#include "window/drawing/image_resource.h"
#include "window/templates/dialog_template.h"

/// What a module brings of templates and images, and the chain in which they are found.
namespace kv {

struct ResourceModule {
    std::vector<const DialogTemplate*> templates;
    std::vector<const ImageResource*> images;
};

/// The resources of this library. They are found once `InitControlDll` has put them in the chain.
KVGUICTL_API ResourceModule& LibraryResources();

/// A template or an image joins a module; defined as a static object beside the data, which must
/// have static lifetime, too.
class KVGUICTL_API RegisterTemplate {
public:
    explicit RegisterTemplate(const DialogTemplate& dialogTemplate,
                              ResourceModule& module = LibraryResources());
};
class KVGUICTL_API RegisterImage {
public:
    explicit RegisterImage(const ImageResource& image, ResourceModule& module = LibraryResources());
};

/// Modules in the order in which they are searched: the last one added first.
KVGUICTL_API void AddToResourceChain(const ResourceModule& module);
KVGUICTL_API void RemoveFromResourceChain(const ResourceModule& module);

/// First in the chain with that id, else null; `FindImage` does the same for images.
KVGUICTL_API const DialogTemplate* FindTemplate(int id);

}  // namespace kv

/// Instance of a module, which here is its resources.
using HINSTANCE = kv::ResourceModule*;

/// The record of an extension module.
struct AFX_EXTENSION_MODULE {
    BOOL bInitialized = FALSE;
    HINSTANCE hModule = nullptr;
};

/// Fills the record. 0 when there is no instance. `AfxTermExtensionModule` empties it again.
KVGUICTL_API BOOL AfxInitExtensionModule(AFX_EXTENSION_MODULE& state, HINSTANCE instance);
KVGUICTL_API void AfxTermExtensionModule(AFX_EXTENSION_MODULE& state, BOOL all = FALSE);

/// As long as it lives, the module's resources are in the chain. Terminating the module takes it
/// out and deletes it.
class KVGUICTL_API CDynLinkLibrary {
public:
    explicit CDynLinkLibrary(AFX_EXTENSION_MODULE& state, BOOL system = FALSE);
    ~CDynLinkLibrary();
    CDynLinkLibrary(const CDynLinkLibrary&) = delete;
    CDynLinkLibrary& operator=(const CDynLinkLibrary&) = delete;

    /// Null, and in no chain, where the record was not filled.
    HINSTANCE m_hModule;

private:
    friend void AfxTermExtensionModule(AFX_EXTENSION_MODULE& state, BOOL all);

    /// The one that was made before.
    CDynLinkLibrary* m_pNextDLL;
};

enum class ResourceKind { kDialog, kImage };
/// The module in the chain that has the resource, else null.
KVGUICTL_API HINSTANCE AfxFindResourceHandle(int id, ResourceKind kind);
