#pragma once

#include <memory>
#include <string>

#include "window/cstring.h"
#include "window/export.h"
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
    /// Whether the notifications of this window's controls are held back just now.
    static bool IsRunningFor(const CWnd& window);

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

/// Attach a handle to a control, when it is not yet.
KVGUICTL_API void DDX_Control(CDataExchange* exchange, int id, CWnd& control);

/// Text of a control, and numbers as text. A text that is no number fails the exchange; an empty
/// text is none.
KVGUICTL_API void DDX_Text(CDataExchange* exchange, int id, CString& value);
KVGUICTL_API void DDX_Text(CDataExchange* exchange, int id, std::string& value);
KVGUICTL_API void DDX_Text(CDataExchange* exchange, int id, int& value);
KVGUICTL_API void DDX_Text(CDataExchange* exchange, int id, double& value);

KVGUICTL_API void DDX_Check(CDataExchange* exchange, int id, int& value);
/// Index of the checked button in the group that begins with `id`, -1 for none.
KVGUICTL_API void DDX_Radio(CDataExchange* exchange, int id, int& value);
/// Text of the current row; shown, the row that begins with it becomes current.
KVGUICTL_API void DDX_LBString(CDataExchange* exchange, int id, CString& value);
KVGUICTL_API void DDX_CBString(CDataExchange* exchange, int id, CString& value);
/// Index of the current row.
KVGUICTL_API void DDX_LBIndex(CDataExchange* exchange, int id, int& value);
KVGUICTL_API void DDX_CBIndex(CDataExchange* exchange, int id, int& value);

/// Validations, right behind the exchange of their control. Shown, DDV_MaxChars limits what can be
/// typed.
KVGUICTL_API void DDV_MaxChars(CDataExchange* exchange, const CString& value, int maximum);
KVGUICTL_API void DDV_MinMaxInt(CDataExchange* exchange, int value, int minimum, int maximum);
KVGUICTL_API void DDV_MinMaxDouble(CDataExchange* exchange, const double& value, double minimum,
                                   double maximum);
