#include "services/kvdbkvn/engines/statement_wait.h"

#include <utility>

#include "services/kvdbkvn/engines/wait_dlg.h"
#include "window/blocked_windows.h"
#include "window/window_system.h"

namespace kv::db {
namespace {

/// A press of the button is heard within this.
constexpr std::chrono::milliseconds kBetweenLooks{25};

StatementWait* g_current = nullptr;

/// A dialog that asks while it starts is not seen yet: then its owner is what a person looks at.
Node* VisibleWindow() {
    Node* active = WindowSystem::Get().ActiveWindow();
    Node* window = active ? active->Root() : nullptr;
    while (window && !window->Visible())
        window = window->Owner();
    return window;
}

}  // namespace

struct StatementWait::Shown {
    BlockedWindows windows;
    CKvWaitDlg dialog;
};

StatementWait::StatementWait(const std::string& sql) : outer_(std::exchange(g_current, this)) {
    if (outer_) return;
    WindowSystem::Get().Guarded([&] {
        if (const ActOnWait act = TellQueryBegins(sql)) ShowTo(act);
    });
}

StatementWait::~StatementWait() {
    shown_.reset();
    g_current = outer_;
    if (!outer_) TellQueryEnds();
}

bool StatementWait::IsOver() noexcept {
    StatementWait* wait = g_current;
    if (!wait || wait->outer_) return false;
    if (!wait->blind_ && Clock::now() >= wait->nextLook_) {
        if (!WindowSystem::Get().Guarded([wait] { wait->LookOn(); })) wait->blind_ = true;
        wait->nextLook_ = Clock::now() + kBetweenLooks;
    }
    return wait->cancelled_;
}

void StatementWait::LookOn() {
    const auto soFar = Clock::now() - begun_;
    if (!shown_) {
        const auto patience = Patience();
        if (patience && soFar >= *patience) Show();
    }
    if (!shown_) return;
    shown_->dialog.ShowTime(std::chrono::duration_cast<std::chrono::seconds>(soFar));
    shown_->windows.Pump();
    cancelled_ = shown_->dialog.IsCancelled();
}

void StatementWait::Show() {
    Node* asking = VisibleWindow();
    if (!asking) return;
    auto shown = std::make_unique<Shown>();
    blind_ = !shown->dialog.Create(asking->AnyHandle());
    if (blind_) return;
    shown->windows.Except(*shown->dialog.m_hWnd);
    shown_ = std::move(shown);
}

/// The query waits meanwhile, and not the other way round.
void StatementWait::ShowTo(const ActOnWait& act) {
    Show();
    if (!shown_) return;
    act(*shown_->dialog.m_hWnd);
    cancelled_ = shown_->dialog.IsCancelled();
    shown_.reset();
}

}  // namespace kv::db
