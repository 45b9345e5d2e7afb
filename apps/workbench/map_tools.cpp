#include "workbench/map_tools.h"

#include <QWidget>
#include <algorithm>

#include "qt/qt_desktop.h"
#include "window/acting/input.h"
#include "window/desktop.h"
#include "window/window_system.h"

namespace workbench {

namespace {

/// What a window manager puts over the contents of a window.
constexpr int kTitle = 32;

}  // namespace

CPoint MapTools::PlaceBeside(const CWnd& tool) const {
    CRect place;
    CRect around;
    tool.GetWindowRect(&place);
    owner_.GetWindowRect(&around);
    const CSize screen = kv::WindowSystem::Get().GetDesktop().ScreenSize();
    const int left = std::max(0, std::min(around.right, screen.cx - place.Width()));
    int top = around.top;
    for (const CDialog* other : Shown()) {
        CRect taken;
        other->GetWindowRect(&taken);
        if (other != &tool && taken.right > left) top = std::max(top, taken.bottom + kTitle);
    }
    return {left, std::max(0, std::min(top, screen.cy - place.Height()))};
}

void MapTools::SetMaker(const std::string& className, Make make) {
    makers_[className] = std::move(make);
}

adaptors::Tool* MapTools::Find(const std::string& className) const {
    const auto at = tools_.find(className);
    return at == tools_.end() ? nullptr : at->second.get();
}

bool MapTools::Show(const adaptors::Adaptor& adaptor) {
    const auto maker = makers_.find(adaptor.className);
    const Make& make = maker == makers_.end() ? adaptor.makeTool : maker->second;
    if (!make) return false;
    auto& tool = tools_[adaptor.className];
    if (!tool) {
        tool = make(&owner_);
        if (CDialog* window = tool->Window()) {
            const CPoint at = PlaceBeside(*window);
            window->SetWindowPos(nullptr, at.x, at.y, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
        }
    }
    if (CDialog* window = tool->Window()) {
        window->ShowWindow(SW_SHOW);
        kv::input::Activate(*window->m_hWnd);
    }
    kv::WindowSystem::Get().Settle();
    return true;
}

std::vector<CDialog*> MapTools::Shown() const {
    std::vector<CDialog*> shown;
    for (const auto& [className, tool] : tools_) {
        CDialog* window = tool->Window();
        if (window && window->IsWindowVisible()) shown.push_back(window);
    }
    return shown;
}

void MapTools::Activate(CDialog& tool) {
    if (QWidget* widget = kv::qt::WidgetOf(*tool.m_hWnd)) {
        widget->raise();
        widget->activateWindow();
    }
    kv::input::Activate(*tool.m_hWnd);
    kv::WindowSystem::Get().Settle();
}

void MapTools::SetPosition(const Place& place) {
    for (const auto& [className, tool] : tools_) {
        const CDialog* window = tool->Window();
        if (window && window->IsWindowVisible()) tool->SetPosition(place.lat, place.lon);
    }
    kv::WindowSystem::Get().Settle();
}

}  // namespace workbench
