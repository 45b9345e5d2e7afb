#pragma once

#include <memory>

#include "base/export.h"
#include "window/desktop.h"
#include "window/node.h"

namespace kv {

/// The time that a modal thing is open: it takes the focus, whose holder is told that it lost it,
/// and gives it back: to the holder, or, where that cannot hold it any more, quietly to the next
/// tab stop. Where both are to be quiet, nobody is told.
class KVGUICTL_API ModalScope {
public:
    explicit ModalScope(bool quietly = false);
    ~ModalScope();
    ModalScope(const ModalScope&) = delete;
    ModalScope& operator=(const ModalScope&) = delete;

private:
    std::weak_ptr<Node> holder_;
    std::weak_ptr<Node> host_;
    bool quietly_;
};

/// Runs a message box on the desktop within a modal scope of its own.
KVGUICTL_API int RunMessageBox(const MessageBoxRequest& request, bool quietly = false);

}  // namespace kv
