#include "window/screens.h"

#include <map>

#include "window/desktop.h"
#include "window/window_system.h"

namespace kv {

namespace {

/// Never destroyed: a desktop may outlast any other order.
std::map<const Desktop*, const Screens*>& ScreensOf() {
    static auto* screens = new std::map<const Desktop*, const Screens*>;
    return *screens;
}

}  // namespace

void SetScreens(const Desktop& desktop, const Screens* screens) {
    if (screens) {
        ScreensOf()[&desktop] = screens;
    } else {
        ScreensOf().erase(&desktop);
    }
}

CRect ScreenAround(CPoint at) {
    Desktop& desktop = WindowSystem::Get().GetDesktop();
    const auto several = ScreensOf().find(&desktop);
    if (several != ScreensOf().end()) return several->second->ScreenAround(at);
    const CSize size = desktop.ScreenSize();
    return {0, 0, size.cx, size.cy};
}

CRect ScreenAround(const CRect& place) {
    return ScreenAround(CPoint{(place.left + place.right) / 2, (place.top + place.bottom) / 2});
}

}  // namespace kv
