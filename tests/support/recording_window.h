#pragma once

#include <functional>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

#include "window/window_system.h"
#include "window/wnd.h"

namespace kv::test {

/// A notification as a parent sees it.
struct Notice {
    int id;
    int code;
    bool operator==(const Notice&) const = default;
    friend std::ostream& operator<<(std::ostream& out, const Notice& notice) {
        return out << '(' << notice.id << ", " << notice.code << ')';
    }
};
using Notices = std::vector<Notice>;

/// A window on the screen that writes down what its controls tell it.
class RecordingWindow : public CWnd {
public:
    RecordingWindow() {
        CreateNode(kv::NodeClass::kDialog, "", WS_VISIBLE, {0, 0, 400, 300}, nullptr, 0);
        m_hWnd->SetShown(true);
    }

    BOOL OnCmdMsg(UINT id, int code, void* extra, void* info) override {
        if (code != CN_UPDATE_COMMAND_UI) {
            notices_.push_back({static_cast<int>(id), code});
            if (onNotice) onNotice(notices_.back());
        }
        return CWnd::OnCmdMsg(id, code, extra, info);
    }

    /// What came since it was taken last.
    Notices Take() { return std::exchange(notices_, {}); }
    /// The codes alone.
    std::vector<int> TakeCodes() {
        std::vector<int> codes;
        for (const Notice& notice : Take())
            codes.push_back(notice.code);
        return codes;
    }

    std::function<void(const Notice&)> onNotice;

private:
    Notices notices_;
};

inline constexpr DWORD kControlStyle = WS_CHILD | WS_VISIBLE | WS_TABSTOP;
inline constexpr CRect kControlRect{10, 10, 110, 110};

}  // namespace kv::test
