#pragma once

#include "window/dialogs/dialog.h"

/// Asks whether a report uses the map's projection or the base projection.
class KVGUICTL_API CKvGuiMapRptProjChooser : public CDialog {
public:
    explicit CKvGuiMapRptProjChooser(CWnd* pParent);

    void SetRptUseMapProjFlag(bool bUseMapProj) { m_bRptUseMapProj = bUseMapProj; }
    bool GetRptUseMapProjFlag() const { return m_bRptUseMapProj; }

    BOOL OnInitDialog() override;
    void OnOK() override;

protected:
    bool m_bRptUseMapProj = true;
};
