#pragma once

#include "window/dialogs/dialog.h"

/// Asks which kinds of a map's own graphics are to be cleared. The host reads the answers and does
/// the clearing.
class KVGUICTL_API CKvGuiClearCustomObjDlg : public CDialog {
public:
    explicit CKvGuiClearCustomObjDlg(CWnd* pParent = nullptr);

    /// What is checked at the start; nothing of itself.
    void SetClearTextFlg(bool bClear) { m_bClearText = bClear; }
    void SetClearPolyFlg(bool bClear) { m_bClearPoly = bClear; }
    void SetClearColorFillFlg(bool bClear) { m_bClearColorFill = bClear; }

    // The outcome, behind OK.
    bool GetClearTextFlg() const { return m_bClearText; }
    bool GetClearPolyFlg() const { return m_bClearPoly; }
    bool GetClearColorFillFlg() const { return m_bClearColorFill; }

    BOOL OnInitDialog() override;
    void OnOK() override;

protected:
    bool m_bClearText = false;
    bool m_bClearPoly = false;
    bool m_bClearColorFill = false;
};
