#pragma once

#include <chrono>
#include <deque>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "base/export.h"
#include "window/node.h"
#include "window/wnd.h"

namespace kv {

class Desktop;

/// Makes the desktop that stands in where none was set. Whoever has one says so by a static object.
class KVGUICTL_API RegisterFallbackDesktop {
public:
    explicit RegisterFallbackDesktop(std::unique_ptr<Desktop> (*make)());
};

/// The time by the desktop's clock.
KVGUICTL_API std::chrono::system_clock::time_point Now();

/// What is common to all windows of the process: the top-level windows, the focus, the message
/// queue, the modal windows that are open, idle time, and the desktop that lies outside.
class KVGUICTL_API WindowSystem {
public:
    static WindowSystem& Get();

    // The desktop. Not owned; where none was set, the fallback that was registered.
    Desktop& GetDesktop();
    void SetDesktop(Desktop* desktop);
    /// A desktop goes: it is not asked any more.
    void ForgetDesktop(const Desktop& desktop);

    // Top-level windows, in the order of their creation.
    void AddTopLevel(std::shared_ptr<Node> node);
    const std::vector<std::shared_ptr<Node>>& TopLevels() const { return topLevels_; }
    /// Destroys a window with its children, and the windows that it owns: WM_DESTROY to each,
    /// parents first; then the handles are let go, and each gets its PostNcDestroy, children first.
    /// A focus in it goes on to the next tab stop, or to the window that owned it. Needs no memory,
    /// and lets no exception out.
    void Destroy(Node& node);
    /// A node that was never destroyed as a window goes away.
    void Forget(const Node& node);

    // The focus.
    Node* Focus() const { return focus_; }
    /// Moves the focus, null takes it away: the old holder is told it lost the focus, when the new
    /// one already has it; then the new one is told, if it still has it. A disabled window refuses.
    void SetFocus(Node* node);
    /// Moves the focus and tells nobody.
    void SetFocusQuietly(Node* node);
    /// A holder that was disabled or hidden meanwhile loses the focus, quietly, to the next tab
    /// stop. Called when a handler has returned.
    void SettleFocus();
    /// Gives a top-level window the focus: the control that had it last, else its first tab stop.
    void Activate(Node& window);
    /// The window that modal windows open on: the innermost modal one, else the visible one that
    /// had the focus last, else the last visible one, else the first of all.
    Node* ActiveWindow() const;
    void SetActiveWindow(Node* node) { active_ = node; }

    // The queue.
    void Post(Node& node, UINT message, WPARAM wParam, LPARAM lParam);
    /// Takes the first message that waits for that window (null: any) and lies within the range
    /// (0, 0: any). False when none waits.
    bool Take(MSG& message, const Node* node = nullptr, UINT first = 0, UINT last = 0);
    /// PreTranslateMessage of the window and its ancestors; true when one swallowed the message.
    bool PreTranslate(MSG& message);
    /// What comes behind that: the keys of dialogs, and then the window itself. A key-down that is
    /// no dialog key puts the character that it types in the queue, ahead of the window's own work,
    /// so that this can take it out. False when nobody took it: a mnemonic that no control has.
    bool Deliver(MSG& message);
    /// Both; false also when the window is gone.
    bool Dispatch(MSG& message);
    /// Dispatches what waits until nothing does.
    void DispatchAll();
    /// What long work calls to keep the windows alive: takes what the user did meanwhile, then
    /// dispatches what waits.
    void Pump();

    // Idle time.
    /// Shows what waits to be shown, then runs idle updates until they change nothing more.
    void Idle();
    /// DispatchAll, then Idle: what happens when the program waits for the user.
    void Settle();
    /// A window that wants idle updates calls `update`; forgotten when it is destroyed.
    void AddIdleUpdate(Node& node, std::function<void()> update);
    /// Grows with every change of any window's state.
    std::uint64_t Changes() const { return changes_; }
    void NoteChange() { ++changes_; }

    // Modal windows, innermost last.
    const std::vector<Node*>& Modals() const { return modals_; }
    void PushModal(Node& node) { modals_.push_back(&node), ++modalsOpened_; }
    void PopModal(Node& node);
    /// How many modal things were ever opened.
    int ModalsOpened() const { return modalsOpened_; }
    void NoteModalOpened() { ++modalsOpened_; }

    // Failures of handlers.
    /// Where lines about failures go. The frame sets it to the log.
    void SetLog(std::function<void(const std::string&)> log) { log_ = std::move(log); }
    void Log(const std::string& line) const;

    /// Runs `handler`. An exception that reaches this place is logged and shown in a message box,
    /// and goes no further; then the answer is false.
    template <typename Handler>
    bool Guarded(const Handler& handler) {
        try {
            handler();
            return true;
        } catch (...) {
            HandlerFailed();
        }
        return false;
    }
    /// The same for the exception that is being caught. Also where there is no memory left, none
    /// comes out of here.
    void HandlerFailed();

private:
    struct IdleUpdate {
        std::weak_ptr<Node> node;
        std::function<void()> update;
        bool running = false;
    };

    WindowSystem();
    ~WindowSystem();

    void SendDestroy(Node& node);
    std::weak_ptr<Node> HeirOfFocus(Node& node);
    void Release(Node& node);
    void TakeOut(Node& node);
    void TellOfFailure();
    void ShowWaiting();
    /// False when an update failed.
    bool RunIdleUpdates();

    Desktop* desktop_ = nullptr;
    std::unique_ptr<Desktop> fallbackDesktop_;
    std::vector<std::shared_ptr<Node>> topLevels_;
    Node* focus_ = nullptr;
    int focusMoves_ = 0;
    Node* active_ = nullptr;
    std::deque<MSG> queue_;
    std::vector<std::shared_ptr<IdleUpdate>> idleUpdates_;
    std::vector<Node*> modals_;
    int modalsOpened_ = 0;
    std::uint64_t changes_ = 0;
    std::function<void(const std::string&)> log_;
};

}  // namespace kv
