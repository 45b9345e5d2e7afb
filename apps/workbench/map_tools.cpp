#include "workbench/map_tools.h"

#include <QWidget>
#include <algorithm>

#include "qt/qt_desktop.h"
#include "window/acting/input.h"
#include "window/desktop.h"
#include "window/window_system.h"

namespace workbench {

namespace {

/// At the right edge of the main window, as far as the screen has room there.
void PutBeside(CWnd& tool, const CWnd& mainWindow) {
    CRect place;
    CRect around;
    tool.GetWindowRect(&place);
    mainWindow.GetWindowRect(&around);
    const CSize screen = kv::WindowSystem::Get().GetDesktop().ScreenSize();
    const int left = std::max(0, std::min(around.right, screen.cx - place.Width()));
    const int top = std::max(0, std::min(around.top, screen.cy - place.Height()));
    tool.MoveWindow(left, top, place.Width(), place.Height());
}

}  // namespace

adaptors::Tool* MapTools::Find(const std::string& className) const {
    const auto at = tools_.find(className);
    return at == tools_.end() ? nullptr : at->second.get();
}

void MapTools::Show(const adaptors::Adaptor& adaptor) {
    auto& tool = tools_[adaptor.className];
    if (!tool) {
        tool = adaptor.makeTool(&owner_);
        if (tool->Window()) PutBeside(*tool->Window(), owner_);
    }
    if (CDialog* window = tool->Window()) {
        window->ShowWindow(SW_SHOW);
        kv::input::Activate(*window->m_hWnd);
    }
    kv::WindowSystem::Get().Settle();
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
