#pragma once

#include "window/dialogs/dialog.h"

/// Asks for the grid that a map's bounds are snapped to, in the map's units.
class KVGUICTL_API CKvGuiSnapRangeDlg : public CDialog {
public:
    explicit CKvGuiSnapRangeDlg(CWnd* pParent = nullptr);

    void SetRange(int nRange) { m_nRange = nRange; }
    /// 0 for none.
    int GetRange() const { return m_nRange; }

    BOOL OnInitDialog() override;
    void OnOK() override;

protected:
    int m_nRange = 0;
};
