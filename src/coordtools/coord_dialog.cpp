#include "coordtools/coord_dialog.h"

#include <utility>

#include "coordtools/angle_group.h"
#include "coordtools/coord_ids.h"
#include "coordtools/readout.h"
#include "frame/kvcom/projection_code.h"
#include "window/controls/combo_box.h"
#include "window/stacking.h"

using namespace kv::coord_dialog;
using kv::projection::kNone;

CKvCoordDialog::CKvCoordDialog(int* pOpenFlag, CWnd* pParent)
    : CDialog(kTemplate, pParent), m_pOpenFlag(pOpenFlag) {}

CKvCoordDialog::~CKvCoordDialog() = default;

BOOL CKvCoordDialog::OnInitDialog() {
    CDialog::OnInitDialog();
    kv::readout::FillUnits(*this, kUnit, {"feet", "meter"});
    kv::readout::Fill(*this, kFormat, {"degree.degree", "d/m/s"});
    m_bDecimal = false;
    m_pLatCtrl = kv::readout::MakeAngle(*this, kLatitude, true);
    m_pLonCtrl = kv::readout::MakeAngle(*this, kLongitude, false);
    m_pProjCtrl = kv::readout::MakeProjection(*this, kUserProjection, m_nUserProj);
    return TRUE;
}

void CKvCoordDialog::CloseDlg() {
    m_pLatCtrl.reset();
    m_pLonCtrl.reset();
    m_pProjCtrl.reset();
}

void CKvCoordDialog::OnOK() {
    ShowWindow(SW_HIDE);
    if (m_pOpenFlag) *m_pOpenFlag = 0;
    if (m_pMode) *m_pMode = static_cast<KVEventMode>(kv::coordtools::kModeAfterReadout);
}

void CKvCoordDialog::OnCancel() {
    OnOK();
}

void CKvCoordDialog::DialogUpdateText(double dX, double dY, int nProj, std::string strUnit) {
    if (!IsOpen()) return;
    m_dUserX = m_dMapX = dX;
    m_dUserY = m_dMapY = dY;
    m_nMapProj = nProj;
    m_strMapUnit = std::move(strUnit);
    kv::readout::ToAngles(dX, dY, m_dLat, m_dLon, nProj, m_strMapUnit);
    OnSelchangeComboCoordFormat();
    SetDlgItemInt(kMapProjection, static_cast<UINT>(nProj));
    if (m_nUserProj == kNone) {
        m_nUserProj = nProj;
        m_pProjCtrl->SetProjection(nProj);
    }
    if (m_nUserProj != nProj) {
        kv::readout::ToXY(m_dLat, m_dLon, m_dUserX, m_dUserY, m_nUserProj, m_strMapUnit);
    }
    OnSelchangeComboCoordUnit();
}

void CKvCoordDialog::OnSelchangeComboCoordFormat() {
    if (!IsOpen()) return;
    kv::readout::SetFormat({m_pLatCtrl.get(), m_pLonCtrl.get()},
                           kv::coordtools::IsDecimal(Control<CComboBox>(kFormat)), m_bDecimal);
    kv::BringToTop(*m_hWnd);
    m_pLatCtrl->SetDMS(m_dLat);
    m_pLonCtrl->SetDMS(m_dLon);
}

void CKvCoordDialog::OnSelchangeComboCoordUnit() {
    m_strUnit = DlgItemText(kUnit);
    ShowPlane(kX, m_dUserX);
    ShowPlane(kY, m_dUserY);
}

/// Exactly 0 stands for nothing.
void CKvCoordDialog::ShowPlane(int box, double value) {
    if (value == 0.0) {
        SetDlgItemText(box, "");
    } else {
        kv::readout::ShowLength(*this, box, value, m_strUnit, m_strMapUnit);
    }
}

void CKvCoordDialog::OnSelchangeComboCoordProj() {
    if (!IsOpen()) return;
    m_nUserProj = m_pProjCtrl->GetProjection();
    if (m_nUserProj == m_nMapProj) {
        m_dUserX = m_dMapX;
        m_dUserY = m_dMapY;
    } else if (m_dLat != 0.0 || m_dLon != 0.0) {
        kv::readout::ToXY(m_dLat, m_dLon, m_dUserX, m_dUserY, m_nUserProj, m_strMapUnit);
    }
    OnSelchangeComboCoordUnit();
}

void CKvCoordDialog::ResetToDefault(int nProj, CString strUnit) {
    m_dUserX = m_dMapX = m_dUserY = m_dMapY = 0.0;
    m_dLat = m_dLon = CKvGuiDMSCtrl::kNoValue;
    m_nUserProj = m_nMapProj = nProj;
    m_strUnit = strUnit;
    if (!IsOpen()) return;
    Control<CComboBox>(kUnit).SelectString(-1, m_strUnit.c_str());
    // The angles hear of it with the next position, or when the user picks a format.
    Control<CComboBox>(kFormat).SetCurSel(0);
    SetDlgItemInt(kMapProjection, static_cast<UINT>(nProj));
    m_pProjCtrl->SetProjection(nProj);
    for (const int box : {kX, kY})
        SetDlgItemText(box, "");
    m_pLatCtrl->ClearDMS();
    m_pLonCtrl->ClearDMS();
}

const kv::MessageMap& CKvCoordDialog::Messages() {
    using Self = CKvCoordDialog;
    static const kv::MessageEntry kEntries[] = {
        kv::OnControl<&Self::OnSelchangeComboCoordFormat>(CBN_SELCHANGE, kFormat),
        kv::OnControl<&Self::OnSelchangeComboCoordUnit>(CBN_SELCHANGE, kUnit),
        kv::OnControl<&Self::OnSelchangeComboCoordProj>(CBN_SELCHANGE, kUserProjection),
    };
    static const kv::MessageMap kMap{&CDialog::Messages(), kEntries};
    return kMap;
}
