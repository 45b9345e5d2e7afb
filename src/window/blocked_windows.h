#pragma once

#include <chrono>
#include <memory>
#include <optional>
#include <vector>

#include "base/export.h"
#include "window/modal_scope.h"

namespace kv {

/// How long a person is left without a sign of work that blocks the windows.
inline constexpr std::chrono::milliseconds kUsualPatience{500};

/// The same as it is just now: none where nobody waits, and then no sign is ever given. That is how
/// it starts; a desktop with a screen sets the usual one where there is none. It ends with the
/// desktop.
KVGUICTL_API void SetPatience(std::optional<std::chrono::milliseconds> patience);
KVGUICTL_API std::optional<std::chrono::milliseconds> Patience();

/// The time that work blocks the windows, of which one may live on: no other reacts or takes the
/// focus, whose holder is told nothing and has it back at the end; what was posted to the others
/// waits until then. One at a time.
class KVGUICTL_API BlockedWindows {
public:
    BlockedWindows();
    ~BlockedWindows();
    BlockedWindows(const BlockedWindows&) = delete;
    BlockedWindows& operator=(const BlockedWindows&) = delete;

    /// The one that lives on. It came up since, and goes ahead of the end.
    void Except(Node& window);
    /// Lets it live for a moment.
    void Pump();

private:
    ModalScope focus_{true};
    /// Those that were enabled.
    std::vector<std::weak_ptr<Node>> disabled_;
};

}  // namespace kv
