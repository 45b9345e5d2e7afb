#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/export.h"
#include "base/types.h"
#include "window/drawing/font.h"
#include "window/messages.h"
#include "window/node_class.h"

class CWnd;

namespace kv {

/// What changed in a node, as its view is told.
enum class Change {
    kText,
    kRect,
    kEnabled,
    kVisible,
    kStyle,
    kZOrder,
    kChildren,
    kFocus,
    kCheck,      ///< check of a button
    kDefault,    ///< which button of the dialog Enter presses
    kImage,      ///< icon or bitmap
    kSelection,  ///< selected text and caret of an edit; selected, current or caret row of a list
    kRows,       ///< all rows of a list anew
    kDropped,    ///< list of a combo box opened or closed
    kColumns,
    kRange,
    kPosition,
    kPaint,  ///< colours or owner-drawn content: paint again
    kFont,
    kToolTip,
};

/// What shows a node. It mirrors the node and stores nothing; the node tells it of every change.
class View {
public:
    virtual ~View() = default;
    virtual void Changed(Change change) = 0;
    /// Rows of a list came or went: `count` of them from the index `first` on.
    virtual void RowsInserted(int first, int count) = 0;
    virtual void RowsRemoved(int first, int count) = 0;
};

/// A window: state, children and view. Handles (`CWnd` and its kin) attach to it and detach from
/// it.
///
/// The setters here are the one place at which each property changes; they tell the view, and send
/// no message. What a message does is `Process`, the window's own behaviour, which a handle reaches
/// through `CWnd::DefWindowProc`.
class KVGUICTL_API Node : public std::enable_shared_from_this<Node> {
public:
    Node(NodeClass nodeClass, int id, DWORD style);
    virtual ~Node();
    Node(const Node&) = delete;
    Node& operator=(const Node&) = delete;

    NodeClass Class() const { return class_; }
    int Id() const { return id_; }
    void SetId(int id) { id_ = id; }

    Node* Parent() const { return parent_; }
    const std::vector<std::shared_ptr<Node>>& Children() const { return children_; }
    /// Of a top-level window: the one it lies above and goes away with, or null.
    Node* Owner() const { return owner_; }
    void SetOwner(Node* owner) { owner_ = owner; }
    /// Takes the child in behind its other children, which is also its place in the tab order.
    void AddChild(std::shared_ptr<Node> child);
    /// Moves a child behind `after` in the order of children; null makes it the first.
    void MoveChild(Node& child, Node* after);
    /// First child of that id, else null. Children of children are not looked at.
    Node* FindChild(int id) const;
    /// The nearest ancestor, or the node itself, that is a frame, a dialog or a bar.
    Node* Host();
    /// The outermost ancestor, or the node itself.
    Node* Root();
    bool IsSelfOrDescendantOf(const Node& ancestor) const;

    const std::string& Text() const { return text_; }
    void SetText(std::string text);

    /// The font that WM_SETFONT gave it; none for the one that all controls have.
    const std::optional<Font>& OwnFont() const { return font_; }

    /// What is told where the pointer rests on it, and in a list as long as that is empty; at first
    /// nothing. A control that has no text, neither of its own nor in a label, goes by it.
    const std::string& ToolTip() const { return toolTip_; }
    void SetToolTip(std::string text);

    /// The letter that reaches it with Alt though its text marks none; 0 for none.
    char GivenMnemonic() const { return givenMnemonic_; }
    void SetGivenMnemonic(char letter) { givenMnemonic_ = letter; }

    DWORD Style() const { return style_; }
    bool HasStyle(DWORD style) const { return (style_ & style) == style; }
    void SetStyle(DWORD style);

    /// Whether the node itself is enabled or visible; the `Really...` ask its ancestors, too.
    bool Enabled() const { return !HasStyle(WS_DISABLED); }
    bool Visible() const { return HasStyle(WS_VISIBLE); }
    bool ReallyEnabled() const;
    bool ReallyVisible() const;
    /// False, and nothing done, when it is so already.
    bool SetEnabled(bool enabled);
    bool SetVisible(bool visible);

    /// In logical pixels, relative to the parent; of a top-level window relative to the screen.
    const CRect& Rect() const { return rect_; }
    void SetRect(const CRect& rect);
    CRect ScreenRect() const;

    /// Whether this window has been on the screen; a control asks its hosts. Before that no focus
    /// notification goes out.
    bool Shown() const;
    void SetShown(bool shown) { shown_ = shown; }

    bool Destroyed() const { return destroyed_; }

    /// While data are exchanged with its controls, their notifications are held back.
    bool Exchanging() const { return exchanges_ > 0; }
    void BeginExchange() { ++exchanges_; }
    void EndExchange() { --exchanges_; }

    /// Of a top-level window: the control in it that has the focus, or had it when the focus went
    /// to another window; null where there is none that can hold it now.
    Node* LastFocus() const;

    /// The handle that the node's messages go through, or null.
    CWnd* Handle() const { return handle_; }
    /// Whether it is attached, as the first to be asked or behind others.
    bool HasHandle(const CWnd* handle) const;
    /// The attached handle that is asked next behind that one; null for none.
    CWnd* HandleBehind(const CWnd* handle) const;
    /// The attached handle, or else one that the node keeps for look-ups, of the class that fits
    /// it.
    CWnd* AnyHandle();

    View* GetView() const { return view_.get(); }
    void SetView(std::unique_ptr<View> view) { view_ = std::move(view); }

    /// What the window does with a message when no handle stands in the way.
    virtual LRESULT Process(UINT message, WPARAM wParam, LPARAM lParam);

    /// Bits of WM_GETDLGCODE that this kind of window answers of itself.
    virtual int DialogCode() const { return 0; }

    /// What a click does with a window that can be pressed: a button.
    virtual void Press() {}

    /// Where the focus really goes when this window gets it: a combo box hands it to its edit.
    virtual Node* FocusTarget() { return this; }

    /// Sends a notification of this control to its parent, as WM_COMMAND.
    LRESULT Notify(int code);

    void Tell(Change change);

protected:
    View* ViewForRows() const { return view_.get(); }
    /// Called by SetText after the text changed.
    virtual void TextChanged() {}

private:
    friend class WindowSystem;
    friend class ::CWnd;

    void SetFont(const Font* font);

    NodeClass class_;
    int id_;
    DWORD style_;
    std::string text_;
    std::optional<Font> font_;
    std::string toolTip_;
    char givenMnemonic_ = 0;
    CRect rect_;
    bool shown_ = false;
    bool destroying_ = false;
    bool destroyed_ = false;
    bool losingFocus_ = false;
    int exchanges_ = 0;
    std::weak_ptr<Node> lastFocus_;
    Node* parent_ = nullptr;
    Node* owner_ = nullptr;
    std::vector<std::shared_ptr<Node>> children_;
    CWnd* handle_ = nullptr;
    /// Those that the attached one has subclassed, the first one first.
    std::vector<CWnd*> handlesBehind_;
    std::unique_ptr<CWnd> lookupHandle_;
    std::unique_ptr<View> view_;
};

/// Makes a node of that class: the kind of control that the class and the style bits say.
KVGUICTL_API std::shared_ptr<Node> MakeNode(NodeClass nodeClass, int id, DWORD style);

/// Sends a message to a window: through the attached handle, if there is one. A window that is gone
/// answers 0, and so does one whose handler failed: no exception comes out of here.
KVGUICTL_API LRESULT Send(Node& node, UINT message, WPARAM wParam = 0, LPARAM lParam = 0);

/// Copies as much of a text as a buffer of `size` bytes has room for, with a closing 0. Returns how
/// much; a null buffer gets nothing.
KVGUICTL_API int CopyText(std::string_view text, char* buffer, std::size_t size);

/// Text as a message parameter.
inline LPARAM AsParam(const char* text) {
    return reinterpret_cast<LPARAM>(text);
}
inline const char* TextOf(LPARAM lParam) {
    return reinterpret_cast<const char*>(lParam);
}

}  // namespace kv

/// A window's handle.
using HWND = kv::Node*;
