#pragma once

#include <memory>

#include "mapbuild/proj_ctrl.h"
#include "window/dialogs/dialog.h"

/// Asks for a projection, and nothing else.
class KVGUICTL_API CKvGuiProjectionDialog : public CDialog {
public:
    explicit CKvGuiProjectionDialog(CWnd* pParent);
    ~CKvGuiProjectionDialog() override;

    /// The code to begin with, -1 for none.
    void SetProjection(int nProjection) { m_nProjection = nProjection; }
    /// The code that was picked last, whether the dialog ended with OK or not.
    int GetProjection() const { return m_nProjection; }

    BOOL OnInitDialog() override;
    void OnOK() override;

    static const kv::MessageMap& Messages();
    const kv::MessageMap& GetMessageMap() const override { return Messages(); }

protected:
    void OnSelchangeComboProjection();

    int m_nProjection = -1;
    std::unique_ptr<CKvGuiProjCtrl> m_pProjCtrl;
};
