#include "window/acting/wait_scene.h"

#include <utility>

#include "window/blocked_windows.h"

namespace kv {

void ExpectWait(HeadlessDesktop& desktop, std::function<void(User&)> act, int skip) {
    if (!Patience()) SetPatience(kUsualPatience);
    desktop.ExpectPump(std::move(act), skip);
}

}  // namespace kv
