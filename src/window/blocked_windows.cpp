#include "window/blocked_windows.h"

#include "window/desktop.h"
#include "window/held_back.h"
#include "window/window_system.h"

namespace kv {

namespace {

std::optional<std::chrono::milliseconds> g_patience;

}  // namespace

void SetPatience(std::optional<std::chrono::milliseconds> patience) {
    g_patience = patience;
}

std::optional<std::chrono::milliseconds> Patience() {
    return g_patience;
}

BlockedWindows::BlockedWindows() {
    const auto windows = WindowSystem::Get().TopLevels();
    disabled_.reserve(windows.size());
    HoldBack([](const Node&) { return true; });
    for (const auto& window : windows) {
        if (window->SetEnabled(false)) disabled_.push_back(window);
    }
}

BlockedWindows::~BlockedWindows() {
    HoldBack(nullptr);
    for (const auto& each : disabled_) {
        const auto window = each.lock();
        if (window && !window->Destroyed()) window->SetEnabled(true);
    }
    WindowSystem::Get().GetDesktop().Wake();
}

void BlockedWindows::Except(Node& window) {
    HoldBack([&window](const Node& node) { return !node.IsSelfOrDescendantOf(window); });
}

void BlockedWindows::Pump() {
    WindowSystem::Get().Pump();
    WindowSystem::Get().SettleFocus();
}

}  // namespace kv
