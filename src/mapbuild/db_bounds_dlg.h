#pragma once

#include "base/cstring.h"
#include "window/controls/edit.h"
#include "window/dialogs/dialog.h"

/// Asks for two bounds as text, which it does not look at.
class KVGUICTL_API CKvDbBoundsDlg : public CDialog {
public:
    explicit CKvDbBoundsDlg(CWnd* pParent = nullptr);

    /// What the dialog shows at first.
    void SetBounds(CString& strFrom, CString& strTo);

    BOOL OnInitDialog() override;
    void OnOK() override;

    /// What was entered, once it was left by OK.
    CString m_strFrom;
    CString m_strTo;
    /// 1 once it was left by OK.
    int m_bOK = 0;

protected:
    CEdit m_editFrom;
    CEdit m_editTo;
};
