#pragma once

#include <chrono>

#include "window/dialogs/dialog.h"

/// A modeless dialog that stands by itself while a query takes long: how long it takes by now, and
/// a button that cancels it.
class KVGUICTL_API CKvWaitDlg : public CDialog {
public:
    ~CKvWaitDlg() override;

    using CDialog::Create;
    /// Puts it up over the window. False before the library's templates are there.
    BOOL Create(CWnd* owner);
    void ShowTime(std::chrono::seconds soFar);
    /// Whether the person has cancelled.
    bool IsCancelled() const { return m_bCancelled; }

protected:
    /// Enter elsewhere than on the button means nothing.
    void OnOK() override {}
    void OnCancel() override;

private:
    bool m_bCancelled = false;
};
