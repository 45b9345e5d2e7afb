#pragma once

#include <optional>
#include <string>

#include "base/export.h"
#include "base/types.h"
#include "window/draw_item.h"
#include "window/drawing/device_context.h"
#include "window/node.h"

namespace kv {

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
