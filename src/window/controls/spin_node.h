#pragma once

#include <memory>
#include <optional>

#include "base/export.h"
#include "window/node.h"
#include "window/wnd.h"

inline constexpr UINT UDM_SETRANGE = WM_USER + 101;
inline constexpr UINT UDM_GETRANGE = WM_USER + 102;
inline constexpr UINT UDM_SETPOS = WM_USER + 103;
inline constexpr UINT UDM_GETPOS = WM_USER + 104;
inline constexpr UINT UDM_SETBUDDY = WM_USER + 105;
inline constexpr UINT UDM_GETBUDDY = WM_USER + 106;
inline constexpr UINT UDM_SETRANGE32 = WM_USER + 111;
inline constexpr UINT UDM_GETRANGE32 = WM_USER + 112;
inline constexpr UINT UDM_SETPOS32 = WM_USER + 113;
inline constexpr UINT UDM_GETPOS32 = WM_USER + 114;
inline constexpr int UDN_DELTAPOS = -722;

/// Spin styles: the arrows wrap from end to end; the buddy shows the position; the buddy is the
/// control ahead in the tab order; the up and down keys in the buddy step, too; the arrows point
/// left and right; the number shown has no commas.
inline constexpr DWORD UDS_WRAP = 0x0001;
inline constexpr DWORD UDS_SETBUDDYINT = 0x0002;
inline constexpr DWORD UDS_AUTOBUDDY = 0x0010;
inline constexpr DWORD UDS_ARROWKEYS = 0x0020;
inline constexpr DWORD UDS_HORZ = 0x0040;
inline constexpr DWORD UDS_NOTHOUSANDS = 0x0080;

/// What UDN_DELTAPOS carries: the position, and the step that is proposed. A handler that answers 0
/// lets the step happen; it may change the step.
struct NMUPDOWN {
    NMHDR hdr;
    int iPos;
    int iDelta;
};

namespace kv {

/// A spin button: two arrows that step a position, and with it a buddy. The upper limit may be the
/// smaller number, as it is at first; the up arrow then counts down.
class KVGUICTL_API SpinNode : public Node {
public:
    SpinNode(int id, DWORD style) : Node(NodeClass::kSpin, id, style) {}

    int Lower() const { return lower_; }
    int Upper() const { return upper_; }
    int Position() const { return position_; }
    /// The window beside it, or null.
    Node* Buddy() const;

    /// What a press of an arrow does: offers the step, and then takes it.
    void UserStep(bool up);

    LRESULT Process(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    LRESULT ProcessShort(UINT message, LPARAM lParam, bool& handled);
    void SetRange(int lower, int upper);
    /// Returns the former position.
    int SetPosition(int position);
    /// False when there is no buddy, or it shows no number in the range.
    bool ReadBuddy();
    int Stepped(int delta) const;
    LRESULT SetBuddy(Node* buddy);

    int lower_ = 100;
    int upper_ = 0;
    int position_ = 0;
    std::optional<std::weak_ptr<Node>> buddy_;
};

/// The spin button that the up and down keys, and the wheel, of its buddy step; null where there is
/// none that can be used.
KVGUICTL_API SpinNode* SpinOfKeys(const Node& buddy);

}  // namespace kv
