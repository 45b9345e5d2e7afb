#pragma once

#include <memory>

#include "window/controls/progress_ctrl.h"
#include "window/dialogs/dialog.h"

/// A modeless dialog that shows how far a long operation has come, and can be told to cancel it.
///
/// The operation runs on the user-interface thread. Each call of this class that moves the bar lets
/// waiting messages through; the operation asks `CheckCancelButton` in its loop and stops by
/// itself.
class KVGUICTL_API CKvGuiProgressDlg : public CDialog {
public:
    /// A caption id other than 0 is kept. Clears the cancel flag, which all dialogs of this class
    /// share.
    explicit CKvGuiProgressDlg(UINT nCaptionID = 0);
    ~CKvGuiProgressDlg() override;

    using CDialog::Create;
    /// Puts the dialog up over the window, whose outermost owner is disabled for as long as the
    /// dialog is up. Null stands for the main window. False when it failed.
    virtual BOOL Create(CWnd* pParent);
    BOOL DestroyWindow() override;

    void SetStatus(const char* pszMessage);
    /// `nUpper` must not be `nLower`: there is no percentage of nothing, and none is shown.
    void SetRange(int nLower, int nUpper);
    /// Returns the former step.
    int SetStep(int nStep);
    /// Each of these returns the former position.
    int SetPos(int nPos);
    int OffsetPos(int nPos);
    int StepIt();

    /// 1 once the user has cancelled this dialog, or another one made since: until the next one is
    /// constructed.
    int CheckCancelButton();

    static const kv::MessageMap& Messages();
    const kv::MessageMap& GetMessageMap() const override { return Messages(); }

protected:
    BOOL OnInitDialog() override;
    void OnOK() override;
    void OnCancel() override;
    void DoDataExchange(CDataExchange* exchange) override;

    static int m_bCancel;

    CProgressCtrl m_Progress;
    UINT m_nCaptionID = 12003;
    int m_nLower = 0;
    int m_nUpper = 100;
    int m_nStep = 20;
    int m_bParentDisabled = 0;
    /// Not owned.
    CWnd* m_pParent = nullptr;

private:
    void PumpMessages();
    void UpdatePercent(long long nPos);
    void ReenableParent();

    /// The window of `m_pParent`, which may go while the dialog is up.
    std::weak_ptr<kv::Node> m_parentWindow;
};
