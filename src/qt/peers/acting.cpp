#include "qt/peers/acting.h"

#include <QPointer>
#include <utility>
#include <vector>

#include "window/window_system.h"

namespace kv::qt {

namespace {

Loops* g_loops = nullptr;

/// How many actions of a person are under way, one within the other.
int g_acting = 0;
/// Widgets that go when none is.
std::vector<QPointer<QWidget>>& Leaving() {
    static std::vector<QPointer<QWidget>> leaving;
    return leaving;
}

void DeleteLeaving() {
    for (const QPointer<QWidget>& widget : std::exchange(Leaving(), {})) {
        if (widget) widget->deleteLater();
    }
}

}  // namespace

void Act(const std::weak_ptr<Node>& node, const std::function<void(Node&)>& action) {
    const auto alive = node.lock();
    if (!alive || alive->Destroyed()) return;
    ++g_acting;
    action(*alive);
    Settle();
    if (--g_acting == 0) DeleteLeaving();
}

void Settle() {
    WindowSystem::Get().Settle();
    if (g_loops) g_loops->LeaveEnded();
}

void LetGo(QWidget* widget) {
    widget->hide();
    if (g_acting == 0) {
        widget->deleteLater();
    } else {
        Leaving().push_back(widget);
    }
}

void SettleSoon() {
    if (g_loops) g_loops->Wake();
}

void SetLoops(Loops* loops) {
    g_loops = loops;
}

}  // namespace kv::qt
