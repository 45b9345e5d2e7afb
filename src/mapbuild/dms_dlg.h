#pragma once

#include <memory>

#include "base/cstring.h"
#include "mapbuild/dms_ctrl.h"
#include "window/dialogs/dialog.h"

/// Asks for the greatest and the least of two latitudes or longitudes.
class KVGUICTL_API CKvGuiDMSDlg : public CDialog {
public:
    /// Both texts are decimal degrees; an empty one leaves its boxes empty.
    CKvGuiDMSDlg(CString strMax, CString strMin, bool bLat, CWnd* pParent = nullptr);

    /// Decimal degrees as they were entered; 1000.0 for boxes that were left empty.
    double GetDMSMax() const { return m_dMax; }
    double GetDMSMin() const { return m_dMin; }

    BOOL OnInitDialog() override;
    void OnOK() override;

protected:
    CString m_strMax;
    CString m_strMin;
    bool m_bLat;
    double m_dMax = CKvGuiDMSCtrl::kNoValue;
    double m_dMin = CKvGuiDMSCtrl::kNoValue;
    std::unique_ptr<CKvGuiDMSCtrl> m_pMaxCtrl;
    std::unique_ptr<CKvGuiDMSCtrl> m_pMinCtrl;
};
