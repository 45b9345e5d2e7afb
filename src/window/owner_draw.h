#pragma once

#include <optional>
#include <string>

#include "window/device_context.h"
#include "window/export.h"
#include "window/node.h"
#include "window/types.h"

/// What WM_DRAWITEM carries: the control that is to be drawn, in what state, and where.
struct DRAWITEMSTRUCT {
    UINT CtlType = 0;
    UINT CtlID = 0;
    UINT itemID = 0;
    UINT itemAction = 0;  ///< ODA_...
    UINT itemState = 0;   ///< ODS_...
    HWND hwndItem = nullptr;
    CDC* hDC = nullptr;
    CRect rcItem;
};
using LPDRAWITEMSTRUCT = DRAWITEMSTRUCT*;

inline constexpr UINT ODT_BUTTON = 4;
inline constexpr UINT ODA_DRAWENTIRE = 0x0001;
inline constexpr UINT ODA_SELECT = 0x0002;
inline constexpr UINT ODA_FOCUS = 0x0004;
inline constexpr UINT ODS_SELECTED = 0x0001;
inline constexpr UINT ODS_GRAYED = 0x0002;
inline constexpr UINT ODS_DISABLED = 0x0004;
inline constexpr UINT ODS_CHECKED = 0x0008;
inline constexpr UINT ODS_FOCUS = 0x0010;
inline constexpr UINT ODS_DEFAULT = 0x0020;

namespace kv {

/// A handle that draws its control, when that control is owner-drawn.
class KVGUICTL_API OwnerDrawn {
public:
    virtual ~OwnerDrawn() = default;
    virtual void DrawItem(DRAWITEMSTRUCT* item) = 0;
};

/// Lets the handle of the control that `lParam` (a `DRAWITEMSTRUCT`) names draw it. False when no
/// `OwnerDrawn` handle is attached to the control.
KVGUICTL_API bool ReflectDrawItem(LPARAM lParam);

/// Lets a control paint itself, its top left corner being the origin of `context`: an owner-drawn
/// button by WM_DRAWITEM to its parent, any other control by WM_PAINT to its handle. An owner-drawn
/// button that nobody draws becomes a plain push button. An owner-drawn label may draw beyond
/// its edges, all else is cut there. False when the control leaves its picture to the view.
KVGUICTL_API bool PaintControl(Node& control, CDC& context);

/// A push button in the system's colours with its text, in a state of ODS_... bits.
KVGUICTL_API void DrawPushButton(CDC& context, const CRect& rect, UINT state,
                                 const std::string& text);

/// The colours that a control is painted in. No background: what lies below shows through.
struct ControlColors {
    COLORREF text = 0;
    std::optional<COLORREF> background;
    bool operator==(const ControlColors&) const = default;
};

/// Asks by WM_CTLCOLOR for the colours of a control: its own handle, then its parent, and behind a
/// combo box the combo's parent. Without an answer they are the system's.
KVGUICTL_API ControlColors AskColors(Node& control, CDC& context);

/// The context that `PaintControl` has at work for a window at this moment; null for none.
CDC* PaintingContext(const Node* window);

}  // namespace kv
