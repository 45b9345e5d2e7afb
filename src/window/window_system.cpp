#include "window/window_system.h"

#include <algorithm>
#include <cstdio>
#include <exception>
#include <new>

#include "window/desktop.h"
#include "window/dialog_keys.h"
#include "window/held_back.h"
#include "window/modal_scope.h"
#include "window/stacking.h"

namespace kv {

namespace {

/// Updates that go on changing things would keep the program from ever being idle.
constexpr int kMostIdleRounds = 50;

std::unique_ptr<Desktop> (*g_makeFallback)() = nullptr;

/// The first window that fits, or null. What handlers may change is asked again for each, and not
/// walked through in a copy: windows go without any memory to be had.
template <typename Fits>
std::shared_ptr<Node> FirstOf(const std::vector<std::shared_ptr<Node>>& windows, const Fits& fits) {
    const auto at = std::find_if(windows.begin(), windows.end(), fits);
    return at == windows.end() ? nullptr : *at;
}

}  // namespace

RegisterFallbackDesktop::RegisterFallbackDesktop(std::unique_ptr<Desktop> (*make)()) {
    g_makeFallback = make;
}

std::chrono::system_clock::time_point Now() {
    return WindowSystem::Get().GetDesktop().Now();
}

WindowSystem::WindowSystem() = default;
WindowSystem::~WindowSystem() = default;

WindowSystem& WindowSystem::Get() {
    // Never destroyed: handles with static lifetime may outlast any other order.
    static auto* system = new WindowSystem;
    return *system;
}

Desktop& WindowSystem::GetDesktop() {
    if (desktop_) return *desktop_;
    if (!fallbackDesktop_) fallbackDesktop_ = g_makeFallback();
    return *fallbackDesktop_;
}

void WindowSystem::SetDesktop(Desktop* desktop) {
    desktop_ = desktop;
    SetLook(desktop);
}

void WindowSystem::ForgetDesktop(const Desktop& desktop) {
    if (desktop_ == &desktop) SetDesktop(nullptr);
}

void WindowSystem::AddTopLevel(std::shared_ptr<Node> node) {
    NoteOnTop(*node);
    topLevels_.push_back(std::move(node));
}

void WindowSystem::Forget(const Node& node) {
    std::erase_if(queue_, [&](const MSG& message) { return message.hwnd == &node; });
    std::erase(modals_, &node);
    if (focus_ == &node) focus_ = nullptr;
    if (active_ == &node) active_ = nullptr;
    for (const auto& window : topLevels_) {
        if (window->owner_ == &node) window->owner_ = nullptr;
    }
}

void WindowSystem::SendDestroy(Node& node) {
    if (node.destroying_) return;
    node.destroying_ = true;
    Send(node, WM_DESTROY);
    const auto stands = [](const auto& child) { return !child->destroying_; };
    while (const auto child = FirstOf(node.children_, stands))
        SendDestroy(*child);
}

/// Takes the focus out of a window that goes. Returns who is to have it then.
std::weak_ptr<Node> WindowSystem::HeirOfFocus(Node& node) {
    std::weak_ptr<Node> heir;
    if (!focus_ || !focus_->IsSelfOrDescendantOf(node)) return heir;
    const bool modal = std::find(modals_.begin(), modals_.end(), &node) != modals_.end();
    Node* next = nullptr;
    if (node.parent_) {
        next = NextTabStop(*node.parent_->Host(), focus_, true);
    } else if (!modal) {
        next = node.owner_;
    }
    if (next && !next->IsSelfOrDescendantOf(node)) heir = next->weak_from_this();
    SetFocusQuietly(nullptr);
    return heir;
}

void WindowSystem::Release(Node& node) {
    if (node.destroyed_) return;
    const auto stands = [](const auto& child) { return !child->destroyed_; };
    while (const auto child = FirstOf(node.children_, stands))
        Release(*child);
    node.destroyed_ = true;
    Forget(node);
    node.view_.reset();
    if (node.lookupHandle_) node.lookupHandle_->m_hWnd = nullptr;
    while (CWnd* handle = node.handle_) {
        handle->Detach();
        Guarded([handle] { handle->PostNcDestroy(); });
    }
}

/// Takes a window that is gone out of the tree.
void WindowSystem::TakeOut(Node& node) {
    const auto isNode = [&](const auto& each) { return each.get() == &node; };
    if (node.parent_) {
        const auto parent = node.parent_->shared_from_this();
        node.parent_ = nullptr;
        std::erase_if(parent->children_, isNode);
        if (!parent->destroyed_) Guarded([&] { parent->Tell(Change::kChildren); });
    } else {
        std::erase_if(topLevels_, isNode);
        NoteChange();
    }
    std::erase_if(idleUpdates_, [](const auto& each) {
        const auto window = each->node.lock();
        return !window || window->Destroyed();
    });
}

void WindowSystem::Destroy(Node& node) {
    if (node.destroying_) return;
    const auto keep = node.shared_from_this();
    const auto isOwned = [&](const auto& window) {
        return window->owner_ && !window->destroying_ && window->owner_->IsSelfOrDescendantOf(node);
    };
    while (const auto window = FirstOf(topLevels_, isOwned))
        Destroy(*window);
    // All handles still stand while the windows are told.
    SendDestroy(node);

    std::weak_ptr<Node> heir;
    Guarded([&] { heir = HeirOfFocus(node); });
    const bool inParent = node.parent_ != nullptr;
    // Off the screen as a whole, and not control by control.
    if (node.Class() == NodeClass::kDialog) {
        Guarded([&] { node.SetVisible(false); });
        node.view_.reset();
    }
    Release(node);
    TakeOut(node);

    const auto next = heir.lock();
    if (!next || focus_ || !next->ReallyVisible()) return;
    Guarded([&] { inParent ? SetFocusQuietly(next.get()) : Activate(*next->Root()); });
}

void WindowSystem::SetFocus(Node* node) {
    if (node) node = node->FocusTarget();
    if (node == focus_ || (node && (node->Destroyed() || !node->ReallyEnabled()))) return;
    const auto former = focus_ ? focus_->shared_from_this() : nullptr;
    const auto next = node ? node->shared_from_this() : nullptr;
    SetFocusQuietly(node);
    const int move = focusMoves_;
    if (former && former->Shown() && !former->losingFocus_) {
        former->losingFocus_ = true;
        Send(*former, WM_KILLFOCUS, reinterpret_cast<WPARAM>(node));
        former->losingFocus_ = false;
    }
    // Whoever moved it on meanwhile has told the next holder, too.
    if (next && focusMoves_ == move && next->Shown()) {
        Send(*next, WM_SETFOCUS, reinterpret_cast<WPARAM>(former.get()));
    }
}

void WindowSystem::SetFocusQuietly(Node* node) {
    if (node) node = node->FocusTarget();
    if (node == focus_) return;
    Node* former = focus_;
    focus_ = node;
    ++focusMoves_;
    if (node) {
        active_ = node->Root();
        active_->lastFocus_ = node->weak_from_this();
        NoteOnTop(*active_);
    }
    if (former) former->Tell(Change::kFocus);
    if (node) node->Tell(Change::kFocus);
}

void WindowSystem::SettleFocus() {
    if (!focus_ || (focus_->ReallyEnabled() && focus_->ReallyVisible())) return;
    Node* host = focus_->Host();
    if (host->ReallyEnabled() && host->ReallyVisible()) {
        SetFocusQuietly(NextTabStop(*host, focus_, true));
        return;
    }
    // A window that is disabled as a whole has it back when what disabled it is over, and a modal
    // one that has ended gives it back to whom it took it from.
    Node* root = focus_->Root();
    const bool modal = std::find(modals_.begin(), modals_.end(), root) != modals_.end();
    if (!root->Enabled() || modal) return;
    SetFocusQuietly(nullptr);
    Node* owner = root->Visible() ? nullptr : root->Owner();
    if (owner && owner->ReallyEnabled() && owner->ReallyVisible()) Activate(*owner->Root());
}

void WindowSystem::Activate(Node& window) {
    if (window.Destroyed() || !window.ReallyEnabled()) return;
    NoteOnTop(window);
    if (focus_ && focus_->IsSelfOrDescendantOf(window)) return;
    active_ = &window;
    Node* last = window.LastFocus();
    SetFocus(last ? last : &window);
}

Node* WindowSystem::ActiveWindow() const {
    if (!modals_.empty()) return modals_.back();
    if (active_ && active_->Visible()) return active_;
    const auto visible = std::find_if(topLevels_.rbegin(), topLevels_.rend(),
                                      [](const auto& window) { return window->Visible(); });
    if (visible != topLevels_.rend()) return visible->get();
    return topLevels_.empty() ? nullptr : topLevels_.front().get();
}

void WindowSystem::PopModal(Node& node) {
    std::erase(modals_, &node);
}

void WindowSystem::Post(Node& node, UINT message, WPARAM wParam, LPARAM lParam) {
    if (node.Destroyed()) return;
    queue_.push_back({&node, message, wParam, lParam});
    GetDesktop().Wake();
}

bool WindowSystem::Take(MSG& message, const Node* node, UINT first, UINT last) {
    const auto at = std::find_if(queue_.begin(), queue_.end(), [&](const MSG& each) {
        return (!node || each.hwnd == node) && !IsHeldBack(*each.hwnd) &&
               ((!first && !last) || (each.message >= first && each.message <= last));
    });
    if (at == queue_.end()) return false;
    message = *at;
    queue_.erase(at);
    return true;
}

bool WindowSystem::PreTranslate(MSG& message) {
    auto node = message.hwnd ? message.hwnd->shared_from_this() : nullptr;
    while (node) {
        if (CWnd* handle = node->Handle()) {
            BOOL swallowed = FALSE;
            Guarded([&] { swallowed = handle->PreTranslateMessage(&message); });
            if (swallowed || node->Destroyed()) return true;
        }
        node = node->Parent() ? node->Parent()->shared_from_this() : nullptr;
    }
    return false;
}

bool WindowSystem::Deliver(MSG& message) {
    if (!message.hwnd || message.hwnd->Destroyed()) return false;
    const auto keep = message.hwnd->shared_from_this();
    switch (message.message) {
        case WM_SYSCHAR:
            return HandleMnemonic(*keep->Host(), static_cast<char>(message.wParam));
        case WM_KEYDOWN:
            if (HandleDialogKey(message)) return true;
            if (const char ch = CharacterOf(message)) {
                Post(*keep, WM_CHAR, static_cast<unsigned char>(ch), 1);
            }
            break;
        case WM_CHAR:
            if (HandleDialogCharacter(message)) return true;
            break;
        default:
            break;
    }
    Send(*keep, message.message, message.wParam, message.lParam);
    return true;
}

bool WindowSystem::Dispatch(MSG& message) {
    if (!message.hwnd || message.hwnd->Destroyed()) return false;
    const auto keep = message.hwnd->shared_from_this();
    const bool taken = PreTranslate(message) || Deliver(message);
    SettleFocus();
    return taken;
}

void WindowSystem::DispatchAll() {
    MSG message;
    while (Take(message))
        Dispatch(message);
}

void WindowSystem::Pump() {
    GetDesktop().Pump();
    DispatchAll();
}

void WindowSystem::ShowWaiting() {
    // A bar's creation ends only after its base's `Create`, so it counts as shown from here on.
    const auto show = [](auto&& self, Node& node) -> void {
        if (!node.Visible()) return;
        const bool host = node.Host() == &node;
        if (host && node.Class() == NodeClass::kBar && !node.shown_) node.SetShown(true);
        const auto children = node.children_;
        for (const auto& child : children)
            self(self, *child);
    };
    const auto windows = topLevels_;
    for (const auto& window : windows)
        show(show, *window);
}

bool WindowSystem::RunIdleUpdates() {
    bool succeeded = true;
    const auto updates = idleUpdates_;
    for (const auto& each : updates) {
        const auto node = each->node.lock();
        if (!node || node->Destroyed() || each->running) continue;
        each->running = true;
        succeeded = Guarded(each->update) && succeeded;
        each->running = false;
    }
    SettleFocus();
    return succeeded;
}

void WindowSystem::Idle() {
    if (HoldsBack()) return;
    SettleFocus();
    ShowWaiting();
    for (int round = 0; round < kMostIdleRounds; ++round) {
        const std::uint64_t before = changes_;
        // One that failed would only fail again; it gets its next chance after the next action.
        if (!RunIdleUpdates()) return;
        if (changes_ == before && queue_.empty()) return;
        DispatchAll();
    }
    Log("Idle updates go on changing the windows that they update");
}

void WindowSystem::Settle() {
    DispatchAll();
    Idle();
}

void WindowSystem::AddIdleUpdate(Node& node, std::function<void()> update) {
    idleUpdates_.push_back(
        std::make_shared<IdleUpdate>(IdleUpdate{node.weak_from_this(), std::move(update)}));
}

void WindowSystem::Log(const std::string& line) const {
    if (log_) log_(line);
}

void WindowSystem::HandlerFailed() {
    try {
        TellOfFailure();
        return;
    } catch (const std::bad_alloc&) {
    }
    try {
        // Short enough to need no memory of its own.
        RunMessageBox({"Out of memory.", "", MB_OK, nullptr}, true);
    } catch (const std::bad_alloc&) {
        std::fputs("A handler failed, and there is no memory left to tell of it.\n", stderr);
    }
}

/// Of the exception that is being caught.
void WindowSystem::TellOfFailure() {
    std::string words;
    try {
        throw;
    } catch (const std::exception& failure) {
        words = failure.what();
    } catch (...) {
    }
    if (words.empty()) words = "An unknown failure.";
    Log("A handler failed: " + words);
    // Quietly: what failed over a change of the focus would fail again.
    RunMessageBox({words, "", MB_OK, ActiveWindow() ? ActiveWindow()->AnyHandle() : nullptr}, true);
}

}  // namespace kv
