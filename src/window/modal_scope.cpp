#include "window/modal_scope.h"

#include "window/dialog_keys.h"
#include "window/window_system.h"

namespace kv {

ModalScope::ModalScope(bool quietly) : quietly_(quietly) {
    auto& system = WindowSystem::Get();
    system.NoteModalOpened();
    for (const bool quiet : {quietly, true}) {
        // What a focus-lost handler gives the focus to is the holder to come back to.
        if (!system.Focus()) break;
        holder_ = system.Focus()->weak_from_this();
        host_ = system.Focus()->Host()->weak_from_this();
        quiet ? system.SetFocusQuietly(nullptr) : system.SetFocus(nullptr);
    }
}

ModalScope::~ModalScope() {
    auto& system = WindowSystem::Get();
    const auto canHold = [](const std::shared_ptr<Node>& node) {
        return node && !node->Destroyed() && node->ReallyEnabled() && node->ReallyVisible();
    };
    const auto holder = holder_.lock();
    const auto host = host_.lock();
    system.Guarded([&] {
        if (canHold(holder)) {
            quietly_ ? system.SetFocusQuietly(holder.get()) : system.SetFocus(holder.get());
        } else if (canHold(host)) {
            system.SetFocusQuietly(NextTabStop(*host, holder.get(), true));
        }
    });
}

int RunMessageBox(const MessageBoxRequest& request, bool quietly) {
    const ModalScope scope(quietly);
    return WindowSystem::Get().GetDesktop().RunMessageBox(request);
}

}  // namespace kv
