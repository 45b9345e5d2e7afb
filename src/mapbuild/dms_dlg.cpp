#include "mapbuild/dms_dlg.h"

#include "base/numbers.h"
#include "mapbuild/dms_dlg_ids.h"
#include "window/dialogs/message_box.h"

using namespace kv::dms_dlg;

namespace {

double ValueOf(const CString& text) {
    return text.IsEmpty() ? CKvGuiDMSCtrl::kNoValue : kv::Atof(text.str());
}

}  // namespace

CKvGuiDMSDlg::CKvGuiDMSDlg(CString strMax, CString strMin, bool bLat, CWnd* pParent)
    : CDialog(kTemplate, pParent),
      m_strMax(std::move(strMax)),
      m_strMin(std::move(strMin)),
      m_bLat(bLat) {}

BOOL CKvGuiDMSDlg::OnInitDialog() {
    CDialog::OnInitDialog();
    m_dMax = ValueOf(m_strMax);
    m_pMaxCtrl = std::make_unique<CKvGuiDMSCtrl>();
    m_pMaxCtrl->Initialize(this, kMaxDegEdit, kMaxDegSpin, kMaxMinEdit, kMaxMinSpin, kMaxSecEdit,
                           kMaxSecSpin, m_dMax, m_bLat);
    m_dMin = ValueOf(m_strMin);
    m_pMinCtrl = std::make_unique<CKvGuiDMSCtrl>();
    m_pMinCtrl->Initialize(this, kMinDegEdit, kMinDegSpin, kMinMinEdit, kMinMinSpin, kMinSecEdit,
                           kMinSecSpin, m_dMin, m_bLat);
    SetDlgItemText(kMaxLabel, m_bLat ? "Maximum Lat" : "Maximum Lon");
    SetDlgItemText(kMinLabel, m_bLat ? "Minimum Lat" : "Minimum Lon");
    m_pMaxCtrl->SetDMS(m_dMax);
    m_pMinCtrl->SetDMS(m_dMin);
    return TRUE;
}

void CKvGuiDMSDlg::OnOK() {
    // Of empty boxes the mark of no value.
    const double max = m_pMaxCtrl->GetDMS();
    const double min = m_pMinCtrl->GetDMS();
    const bool both = max != CKvGuiDMSCtrl::kNoValue && min != CKvGuiDMSCtrl::kNoValue;
    if (both && max < min) {
        AfxMessageBox("Invalid!! Max < Min!\n Please re-enter!");
        return;
    }
    m_dMax = max;
    m_dMin = min;
    CDialog::OnOK();
}
