#pragma once

#include <memory>
#include <string>

#include "base/export.h"
#include "window/wnd.h"

/// One run of data exchange between the members of a window and its controls. An exchange with an
/// id that the window lacks does nothing and leaves the member as it is.
class KVGUICTL_API CDataExchange {
public:
    /// True: controls to members; false: members to controls.
    BOOL m_bSaveAndValidate;
    CWnd* m_pDlgWnd;

    /// Exchanges all of `window`. False when a validation failed.
    static BOOL Run(CWnd& window, BOOL save);

    /// The control of that id, which becomes the one that a failure points at; null where there is
    /// none.
    HWND PrepareCtrl(int id);
    HWND PrepareEditCtrl(int id);
    /// Whether the control prepared last is none: there is nothing then to validate.
    bool LastIsAbsent() const;
    /// Limits what can be typed into the control prepared last.
    void LimitLast(int characters);
    /// Shows `message`, puts the focus on the control with its text selected, and stops the
    /// exchange.
    [[noreturn]] void Fail(const std::string& message);

private:
    CDataExchange(CWnd& window, BOOL save) : m_bSaveAndValidate(save), m_pDlgWnd(&window) {}

    std::weak_ptr<kv::Node> m_pLast;
    bool m_bLastIsEdit = false;
};
