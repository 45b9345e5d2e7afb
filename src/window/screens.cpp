#include "window/screens.h"

#include <map>

#include "window/desktop.h"
#include "window/window_system.h"

namespace kv {

namespace {

/// Never destroyed: a desktop may outlast any other order.
std::map<const Desktop*, const Screens*>& ScreensOfAll() {
    static auto* screens = new std::map<const Desktop*, const Screens*>;
    return *screens;
}

}  // namespace

void SetScreens(const Desktop& desktop, const Screens* screens) {
    if (screens) {
        ScreensOfAll()[&desktop] = screens;
    } else {
        ScreensOfAll().erase(&desktop);
    }
}

const Screens* ScreensOf(const Desktop& desktop) {
    const auto several = ScreensOfAll().find(&desktop);
    return several == ScreensOfAll().end() ? nullptr : several->second;
}

CRect ScreenAround(CPoint at) {
    Desktop& desktop = WindowSystem::Get().GetDesktop();
    if (const Screens* several = ScreensOf(desktop)) return several->ScreenAround(at);
    const CSize size = desktop.ScreenSize();
    return {0, 0, size.cx, size.cy};
}

CRect ScreenAround(const CRect& place) {
    return ScreenAround(CPoint{(place.left + place.right) / 2, (place.top + place.bottom) / 2});
}

}  // namespace kv
