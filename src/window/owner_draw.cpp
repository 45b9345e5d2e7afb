#include "window/owner_draw.h"

#include <vector>

#include "window/drawing/look.h"
#include "window/messages.h"
#include "window/window_system.h"
#include "window/wnd.h"

namespace kv {

namespace {

constexpr LRESULT kPushedState = 0x0004;

/// A window that is being painted, as long as that lasts.
struct Painting {
    const Node* window;
    CDC* context;
    bool painted = false;
};

std::vector<Painting*>& Paintings() {
    static std::vector<Painting*> paintings;
    return paintings;
}

class PaintScope {
public:
    PaintScope(const Node& window, CDC& context) : painting_{&window, &context} {
        Paintings().push_back(&painting_);
    }
    ~PaintScope() { Paintings().pop_back(); }
    PaintScope(const PaintScope&) = delete;
    PaintScope& operator=(const PaintScope&) = delete;

    bool Painted() const { return painting_.painted; }

private:
    Painting painting_;
};

Painting* PaintingOf(const Node* window) {
    auto& paintings = Paintings();
    for (auto at = paintings.rbegin(); at != paintings.rend(); ++at) {
        if ((*at)->window == window) return *at;
    }
    return nullptr;
}

bool IsOwnerDrawnButton(const Node& node) {
    return node.Class() == NodeClass::kButton && (node.Style() & BS_TYPEMASK) == BS_OWNERDRAW;
}

/// It draws on its parent's surface, and may reach beyond its own edges.
bool IsOwnerDrawnLabel(const Node& node) {
    return node.Class() == NodeClass::kStatic && (node.Style() & SS_TYPEMASK) == SS_OWNERDRAW;
}

UINT DrawStateOf(Node& button) {
    UINT state = 0;
    // Its own state: under a modal window it goes on showing what it holds.
    if (!button.Enabled()) state |= ODS_DISABLED;
    if (WindowSystem::Get().Focus() == &button) state |= ODS_FOCUS;
    if (Send(button, BM_GETSTATE) & kPushedState) state |= ODS_SELECTED;
    return state;
}

void PaintButton(Node& button, CDC& context) {
    DRAWITEMSTRUCT item;
    item.CtlType = ODT_BUTTON;
    item.CtlID = static_cast<UINT>(button.Id());
    item.itemAction = ODA_DRAWENTIRE;
    item.itemState = DrawStateOf(button);
    item.hwndItem = &button;
    item.hDC = &context;
    item.rcItem = {0, 0, button.Rect().Width(), button.Rect().Height()};

    const PaintScope scope(button, context);
    const auto lParam = reinterpret_cast<LPARAM>(&item);
    Node* parent = button.Parent();
    const bool drawn =
        parent && parent->Handle()
            ? Send(*parent, WM_DRAWITEM, static_cast<WPARAM>(button.Id()), lParam) != 0
            : CWnd::ReflectDrawItem(lParam);
    if (!drawn && !scope.Painted()) {
        DrawPushButton(context, item.rcItem, item.itemState, button.Text());
    }
}

COLORREF SystemColorOf(SystemColor which) {
    return CurrentLook().Color(which);
}

/// Which kind of control the platform says it asks for; one that cannot be typed into counts as a
/// label.
UINT ColorKindOf(const Node& control) {
    switch (control.Class()) {
        case NodeClass::kEdit:
            return control.ReallyEnabled() && !control.HasStyle(ES_READONLY) ? CTLCOLOR_EDIT
                                                                             : CTLCOLOR_STATIC;
        case NodeClass::kComboBox:
            return CTLCOLOR_EDIT;
        case NodeClass::kListBox:
        case NodeClass::kListView:
            return CTLCOLOR_LISTBOX;
        case NodeClass::kButton:
            return CTLCOLOR_BTN;
        case NodeClass::kDialog:
        case NodeClass::kBar:
        case NodeClass::kToolBar:
        case NodeClass::kFrame:
            return CTLCOLOR_DLG;
        default:
            return CTLCOLOR_STATIC;
    }
}

ControlColors DefaultColors(const Node& control, UINT kind) {
    const bool enabled = control.ReallyEnabled();
    const bool field = (kind == CTLCOLOR_EDIT || kind == CTLCOLOR_LISTBOX) && enabled;
    ControlColors colors;
    colors.text = SystemColorOf(!enabled ? SystemColor::kGrayText
                                : field  ? SystemColor::kWindowText
                                         : SystemColor::kButtonText);
    colors.background = SystemColorOf(field ? SystemColor::kWindow : SystemColor::kButtonFace);
    return colors;
}

/// Asks the control itself, then the windows around it, until one answers.
HBRUSH AskBrush(Node& control, const ControlColorRequest& request) {
    for (Node* asked = &control; asked; asked = asked->Parent()) {
        const LRESULT answer = Send(*asked, WM_CTLCOLOR, reinterpret_cast<WPARAM>(request.context),
                                    reinterpret_cast<LPARAM>(&request));
        if (answer) return reinterpret_cast<HBRUSH>(answer);
        if (asked != &control && asked->Class() != NodeClass::kComboBox) break;
    }
    return nullptr;
}

}  // namespace

CDC* PaintingContext(const Node* window) {
    Painting* painting = PaintingOf(window);
    if (!painting) return nullptr;
    painting->painted = true;
    return painting->context;
}

bool PaintControl(Node& control, CDC& context) {
    if (control.Destroyed()) return false;
    const auto keep = control.shared_from_this();
    const int saved = context.SaveDC();
    if (!IsOwnerDrawnLabel(control)) {
        context.IntersectClipRect({0, 0, control.Rect().Width(), control.Rect().Height()});
    }
    bool painted = true;
    if (IsOwnerDrawnButton(control)) {
        PaintButton(control, context);
    } else {
        const PaintScope scope(control, context);
        if (control.Handle()) Send(control, WM_PAINT);
        painted = scope.Painted();
    }
    context.RestoreDC(saved);
    return painted;
}

void DrawPushButton(CDC& context, const CRect& rect, UINT state, const std::string& text) {
    const bool pressed = state & ODS_SELECTED;
    const bool disabled = state & (ODS_DISABLED | ODS_GRAYED);
    const int saved = context.SaveDC();
    CRect inner = rect;
    if (state & ODS_DEFAULT) {
        const COLORREF frame = SystemColorOf(SystemColor::kButtonText);
        context.Draw3dRect(&inner, frame, frame);
        inner.DeflateRect(1, 1);
    }
    const COLORREF shadow = SystemColorOf(SystemColor::kButtonShadow);
    context.FillSolidRect(&inner, SystemColorOf(SystemColor::kButtonFace));
    if (pressed) {
        context.Draw3dRect(&inner, shadow, shadow);
    } else {
        context.Draw3dRect(&inner, SystemColorOf(SystemColor::kButtonHighlight),
                           SystemColorOf(SystemColor::kDarkShadow));
        CRect second = inner;
        second.DeflateRect(1, 1);
        context.Draw3dRect(&second, SystemColorOf(SystemColor::kLight), shadow);
    }
    CRect label = inner;
    label.DeflateRect(3, 3);
    context.SetTextColor(
        SystemColorOf(disabled ? SystemColor::kGrayText : SystemColor::kButtonText));
    if (state & ODS_FOCUS) context.DrawFocusRect(&label);
    if (pressed) label.OffsetRect(1, 1);
    context.SetBkMode(TRANSPARENT);
    context.DrawText(text, &label, DT_CENTER | DT_VCENTER | DT_SINGLELINE);
    context.RestoreDC(saved);
}

ControlColors AskColors(Node& control, CDC& context) {
    const UINT kind = ColorKindOf(control);
    ControlColors colors = DefaultColors(control, kind);
    const int saved = context.SaveDC();
    context.SetTextColor(colors.text);
    context.SetBkColor(*colors.background);
    const ControlColorRequest request{&context, control.AnyHandle(), kind};
    if (const HBRUSH brush = AskBrush(control, request)) {
        colors.text = context.GetTextColor();
        colors.background = std::nullopt;
        if (!brush->hollow) colors.background = brush->color;
    }
    context.RestoreDC(saved);
    return colors;
}

}  // namespace kv
