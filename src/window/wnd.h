#pragma once

#include <memory>
#include <string>

#include "base/cstring.h"
#include "base/export.h"
#include "base/types.h"
#include "window/messages.h"
#include "window/node.h"
#include "window/runtime_class.h"

namespace kv {
class WindowSystem;
}

class CDC;
class CDataExchange;
class CWnd;

namespace kv {
struct MessageMap;

/// What WM_CTLCOLOR carries: the window that is asked which colours `control` is painted in. The
/// answer is a brush for its background, or null for the platform's own colours.
struct ControlColorRequest {
    CDC* context;
    CWnd* control;
    UINT kind;  ///< CTLCOLOR_...
};
}  // namespace kv

/// Head of what WM_NOTIFY carries.
struct NMHDR {
    HWND hwndFrom;
    int idFrom;
    int code;
};

/// A message as it waits in the queue.
struct MSG {
    HWND hwnd = nullptr;
    UINT message = 0;
    WPARAM wParam = 0;
    LPARAM lParam = 0;
};

/// The state of a command while the program is idle: a handler enables it, checks it, or sets its
/// text, on the control that stands for it.
class KVGUICTL_API CCmdUI {
public:
    UINT m_nID = 0;
    CWnd* m_pOther = nullptr;

    virtual ~CCmdUI() = default;
    virtual void Enable(BOOL on = TRUE);
    virtual void SetCheck(int check = 1);
    virtual void SetText(const char* text);

    bool m_bEnableChanged = false;
};

/// What commands are routed through.
class KVGUICTL_API CCmdTarget {
public:
    virtual ~CCmdTarget() = default;
    /// Offers a command, a control's notification, or an idle update (code CN_UPDATE_COMMAND_UI,
    /// `extra` then a `CCmdUI`). True when somebody took it. With `info` (any address) nobody is
    /// called, and the answer tells whether somebody would take it.
    virtual BOOL OnCmdMsg(UINT id, int code, void* extra, void* info);
};

/// A handle on a window. It owns nothing of it: the window's state lives in its node, which may
/// outlive the handle; a handle may outlive its window, and then every operation does nothing and
/// answers as for an empty window.
class KVGUICTL_API CWnd : public CCmdTarget {
public:
    CWnd() = default;
    ~CWnd() override;
    CWnd(const CWnd&) = delete;
    CWnd& operator=(const CWnd&) = delete;

    static const CRuntimeClass classCWnd;
    /// The class of the object: of those that have a record of their own, the most derived one.
    virtual const CRuntimeClass* GetRuntimeClass() const { return &classCWnd; }

    /// The window, or null.
    HWND m_hWnd = nullptr;
    HWND GetSafeHwnd() const { return m_hWnd; }

    // Handles.

    /// The handle attached to a window, or one kept for look-ups; null for null.
    static CWnd* FromHandle(HWND window);
    /// Makes this the handle that the window's messages go through. False when it has one.
    BOOL Attach(HWND window);
    HWND Detach();
    /// Attaches to the control of that id in a window. False when there is none.
    BOOL SubclassDlgItem(UINT id, CWnd* parent);
    /// Attaches to a window, in front of the handle that it may have: what this one leaves goes on
    /// to that one.
    BOOL SubclassWindow(HWND window);
    HWND UnsubclassWindow() { return Detach(); }

    // The tree.

    /// The control of that id, null where there is none.
    CWnd* GetDlgItem(int id) const;
    /// The control of that id as a handle of the class `Handle`; where there is none, a handle on
    /// no window, every operation of which does nothing and answers as for an empty window.
    template <typename Handle>
    Handle& Control(int id) const;
    /// Whether there is such a control.
    bool HasDlgItem(int id) const;
    /// Of a control the window that it lies in, of a dialog the one that owns it.
    CWnd* GetParent() const;
    CWnd* GetTopLevelParent() const;
    int GetDlgCtrlID() const;
    int SetDlgCtrlID(int id);

    // State.

    void SetWindowText(const char* text);
    void GetWindowText(CString& text) const;
    /// As a standard string.
    std::string WindowText() const;
    int GetWindowTextLength() const;
    BOOL EnableWindow(BOOL enable = TRUE);
    BOOL IsWindowEnabled() const;
    BOOL ShowWindow(int show);
    BOOL IsWindowVisible() const;
    DWORD GetStyle() const;
    BOOL ModifyStyle(DWORD remove, DWORD add, UINT flags = 0);
    void MoveWindow(int x, int y, int width, int height, BOOL repaint = TRUE);
    void MoveWindow(const CRect& rect, BOOL repaint = TRUE);
    BOOL SetWindowPos(const CWnd* after, int x, int y, int width, int height, UINT flags);
    void GetWindowRect(CRect* rect) const;
    void GetClientRect(CRect* rect) const;
    void ScreenToClient(CRect* rect) const;
    void ScreenToClient(CPoint* point) const;
    void ClientToScreen(CRect* rect) const;
    void ClientToScreen(CPoint* point) const;
    void Invalidate(BOOL erase = TRUE);
    void InvalidateRect(const CRect* rect, BOOL erase = TRUE) { (void)rect, Invalidate(erase); }
    void RedrawWindow() { Invalidate(); }
    void UpdateWindow() {}
    CWnd* SetFocus();
    static CWnd* GetFocus();
    static CWnd* GetActiveWindow();

    void SetDlgItemText(int id, const char* text);
    int GetDlgItemText(int id, CString& text) const;
    std::string DlgItemText(int id) const;
    void SetDlgItemInt(int id, UINT value, BOOL isSigned = TRUE);
    /// 0 where the text is no number; `translated` tells.
    UINT GetDlgItemInt(int id, BOOL* translated = nullptr, BOOL isSigned = TRUE) const;
    void CheckDlgButton(int id, UINT check);
    UINT IsDlgButtonChecked(int id) const;
    void CheckRadioButton(int first, int last, int checked);

    // Messages.

    LRESULT SendMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;
    BOOL PostMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;
    /// Whether a message taken from the queue is for this dialog or a control in it; if it is, the
    /// dialog's keys and then the window itself have dealt with it.
    BOOL IsDialogMessage(MSG* message);
    LRESULT SendDlgItemMessage(int id, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;
    int MessageBox(const char* text, const char* caption = nullptr, UINT type = MB_OK);
    /// Moves values between members and controls: true saves, false shows. False when a validation
    /// failed, which has then told the user.
    BOOL UpdateData(BOOL save = TRUE);
    virtual void DoDataExchange(CDataExchange* exchange);

    /// Destroys the window and its children. False when there is none.
    virtual BOOL DestroyWindow();

    /// Looks at a message ahead of its window; true swallows it. Asked of the window and of each of
    /// its ancestors.
    virtual BOOL PreTranslateMessage(MSG* message);
    /// The handle's way in for every message of the window.
    virtual LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    /// The window's own behaviour.
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    /// The window's own behaviour for the message that is being handled.
    LRESULT Default();

    BOOL OnCmdMsg(UINT id, int code, void* extra, void* info) override;

    /// Lets the handle of the control that `lParam` (a `DRAWITEMSTRUCT`) names draw it. False when
    /// no `kv::OwnerDrawn` handle is attached to the control.
    static bool ReflectDrawItem(LPARAM lParam);

    /// Runs the idle updates of the child controls: each may handle its own, else this window, else
    /// `target`. With `disableIfNoHandler`, a push button without an update is enabled as long as
    /// this window or `target` handles its command.
    void UpdateDialogControls(CCmdTarget* target, BOOL disableIfNoHandler);

    static const kv::MessageMap& Messages();
    virtual const kv::MessageMap& GetMessageMap() const { return Messages(); }

protected:
    /// WM_COMMAND and WM_NOTIFY. True when taken.
    virtual BOOL OnCommand(WPARAM wParam, LPARAM lParam);
    virtual BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result);
    /// The last thing that is called for a window; a modeless one may delete itself here.
    virtual void PostNcDestroy() {}
    /// Called once a window has been attached through subclassing.
    virtual void PreSubclassWindow() {}

    /// Creates a window and attaches this handle to it. False when this handle has one already.
    BOOL CreateNode(kv::NodeClass nodeClass, const char* text, DWORD style, const CRect& rect,
                    CWnd* parent, int id);

private:
    friend class kv::Node;
    friend class kv::WindowSystem;

    /// A handle for look-ups of the class that fits the control, beside the attached one.
    static CWnd* LookupHandle(HWND window);
    void UpdateControl(kv::Node& control, CCmdTarget* target, BOOL disableIfNoHandler);
    bool HandleByTable(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result);
    LRESULT PassOn(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

    MSG m_current;
};

template <typename Handle>
Handle& CWnd::Control(int id) const {
    static Handle absent;
    HWND control = m_hWnd ? m_hWnd->FindChild(id) : nullptr;
    if (auto* attached = dynamic_cast<Handle*>(FromHandle(control))) return *attached;
    if (auto* lookup = dynamic_cast<Handle*>(LookupHandle(control))) return *lookup;
    return absent;
}
