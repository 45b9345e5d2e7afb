#include "window/modal_scope.h"

#include "window/dialog_keys.h"
#include "window/window_system.h"

namespace kv {

ModalScope::ModalScope() {
    auto& system = WindowSystem::Get();
    system.NoteModalOpened();
    for (const bool quietly : {false, true}) {
        // What a focus-lost handler gives the focus to is the holder to come back to.
        if (!system.Focus()) break;
        holder_ = system.Focus()->weak_from_this();
        host_ = system.Focus()->Host()->weak_from_this();
        quietly ? system.SetFocusQuietly(nullptr) : system.SetFocus(nullptr);
    }
}

ModalScope::~ModalScope() {
    auto& system = WindowSystem::Get();
    const auto holder = holder_.lock();
    const auto host = host_.lock();
    if (holder && !holder->Destroyed() && holder->ReallyEnabled() && holder->ReallyVisible()) {
        system.SetFocus(holder.get());
    } else if (host && !host->Destroyed() && host->ReallyEnabled() && host->ReallyVisible()) {
        system.SetFocusQuietly(NextTabStop(*host, holder.get(), true));
    }
}

int RunMessageBox(const MessageBoxRequest& request) {
    const ModalScope scope;
    return WindowSystem::Get().GetDesktop().RunMessageBox(request);
}

}  // namespace kv
