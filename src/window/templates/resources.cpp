#include "window/templates/resources.h"

#include <algorithm>
#include <utility>

namespace kv {

namespace {

/// Searched from the back.
std::vector<const ResourceModule*>& Chain() {
    // Never destroyed: modules leave it while the process ends.
    static auto* chain = new std::vector<const ResourceModule*>;
    return *chain;
}

template <typename Resource>
const Resource* FindIn(const std::vector<const Resource*>& resources, int id) {
    const auto at = std::find_if(resources.begin(), resources.end(),
                                 [id](const Resource* each) { return each->id == id; });
    return at == resources.end() ? nullptr : *at;
}

template <typename Resource>
const Resource* FindInChain(std::vector<const Resource*> ResourceModule::*resources, int id,
                            const ResourceModule** module = nullptr) {
    for (auto each = Chain().rbegin(); each != Chain().rend(); ++each) {
        if (const Resource* found = FindIn((*each)->*resources, id)) {
            if (module) *module = *each;
            return found;
        }
    }
    return nullptr;
}

const RegisterImageFinder kImages{[](int id) { return FindInChain(&ResourceModule::images, id); }};

/// The one that was made last; the others follow from it.
CDynLinkLibrary* g_linked = nullptr;

}  // namespace

ResourceModule& LibraryResources() {
    static auto* module = new ResourceModule;
    return *module;
}

RegisterTemplate::RegisterTemplate(const DialogTemplate& dialogTemplate, ResourceModule& module) {
    module.templates.push_back(&dialogTemplate);
}

RegisterImage::RegisterImage(const ImageResource& image, ResourceModule& module) {
    module.images.push_back(&image);
}

void AddToResourceChain(const ResourceModule& module) {
    Chain().push_back(&module);
}

void RemoveFromResourceChain(const ResourceModule& module) {
    auto& chain = Chain();
    const auto last = std::find(chain.rbegin(), chain.rend(), &module);
    if (last != chain.rend()) chain.erase(std::next(last).base());
}

const DialogTemplate* FindTemplate(int id) {
    return FindInChain(&ResourceModule::templates, id);
}

}  // namespace kv

BOOL AfxInitExtensionModule(AFX_EXTENSION_MODULE& state, HINSTANCE instance) {
    if (!instance) return FALSE;
    if (state.bInitialized) return TRUE;
    state.bInitialized = TRUE;
    state.hModule = instance;
    return TRUE;
}

void AfxTermExtensionModule(AFX_EXTENSION_MODULE& state, BOOL) {
    if (!state.bInitialized) return;
    const AFX_EXTENSION_MODULE ended = std::exchange(state, {});
    for (CDynLinkLibrary** each = &kv::g_linked; *each;) {
        if ((*each)->m_hModule == ended.hModule) {
            delete *each;
        } else {
            each = &(*each)->m_pNextDLL;
        }
    }
}

CDynLinkLibrary::CDynLinkLibrary(AFX_EXTENSION_MODULE& state, BOOL) : m_hModule(state.hModule) {
    // What may fail comes first.
    if (m_hModule) kv::AddToResourceChain(*m_hModule);
    m_pNextDLL = std::exchange(kv::g_linked, this);
}

CDynLinkLibrary::~CDynLinkLibrary() {
    if (m_hModule) kv::RemoveFromResourceChain(*m_hModule);
    CDynLinkLibrary** each = &kv::g_linked;
    while (*each != this)
        each = &(*each)->m_pNextDLL;
    *each = m_pNextDLL;
}

HINSTANCE AfxFindResourceHandle(int id, ResourceKind kind) {
    const kv::ResourceModule* module = nullptr;
    if (kind == ResourceKind::kDialog) {
        kv::FindInChain(&kv::ResourceModule::templates, id, &module);
    } else {
        kv::FindInChain(&kv::ResourceModule::images, id, &module);
    }
    return const_cast<HINSTANCE>(module);
}
