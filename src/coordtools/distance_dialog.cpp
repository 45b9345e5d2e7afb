#include "coordtools/distance_dialog.h"

#include <cmath>
#include <utility>

#include "base/numbers.h"
#include "coordtools/angle_group.h"
#include "coordtools/distance_ids.h"
#include "coordtools/readout.h"
#include "frame/kvcom/projection_code.h"
#include "window/controls/combo_box.h"
#include "window/stacking.h"

using namespace kv::distance_dialog;
using kv::projection::kNone;

namespace {

constexpr char kDegreeSign = '\xB0';
constexpr int kSecondDecimals = 2;

std::string TwoDigits(int value) {
    return (value < 10 ? "0" : "") + std::to_string(value);
}

}  // namespace

CKvDistanceDialog::CKvDistanceDialog(int* pMode2, int* pOpenFlag, CWnd* pParent)
    : CDialog(kTemplate, pParent), m_pMode2(pMode2), m_pOpenFlag(pOpenFlag) {}

CKvDistanceDialog::~CKvDistanceDialog() = default;

BOOL CKvDistanceDialog::OnInitDialog() {
    CDialog::OnInitDialog();
    kv::readout::FillUnits(*this, kUnit, {"feet", "meter", "mile", "km"});
    kv::readout::Fill(*this, kFormat, {"degree", "d/m/s"});
    m_bDecimal = false;
    m_pStartLatCtrl = kv::readout::MakeAngle(*this, kStartLatitude, true);
    m_pStartLonCtrl = kv::readout::MakeAngle(*this, kStartLongitude, false);
    m_pEndLatCtrl = kv::readout::MakeAngle(*this, kEndLatitude, true);
    m_pEndLonCtrl = kv::readout::MakeAngle(*this, kEndLongitude, false);
    m_pProjCtrl = kv::readout::MakeProjection(*this, kUserProjection, m_nUserProj);
    return TRUE;
}

void CKvDistanceDialog::CloseDlg() {
    m_pStartLatCtrl.reset();
    m_pStartLonCtrl.reset();
    m_pEndLatCtrl.reset();
    m_pEndLonCtrl.reset();
    m_pProjCtrl.reset();
}

void CKvDistanceDialog::OnOK() {
    if (m_pMode) *m_pMode = static_cast<KVEventMode>(kv::coordtools::kModeAfterReadout);
    if (m_pMode2 && m_pOpenFlag) {
        *m_pMode2 = kv::coordtools::kModeAfterReadout;
        *m_pOpenFlag = 0;
    }
    ShowWindow(SW_HIDE);
}

void CKvDistanceDialog::OnCancel() {
    OnOK();
}

void CKvDistanceDialog::DialogUpdateText(double dX1, double dY1, double dX2, double dY2, int nProj,
                                         std::string strUnit) {
    if (!IsOpen()) return;
    m_dMapStartX = dX1;
    m_dMapStartY = dY1;
    m_dMapEndX = dX2;
    m_dMapEndY = dY2;
    m_nMapProj = nProj;
    m_strMapUnit = std::move(strUnit);
    const bool noEnd = dX2 == 0.0 && dY2 == 0.0;
    const auto line = noEnd ? kv::readout::Line{} : kv::readout::Between(dX1, dY1, dX2, dY2);
    m_dMapOffX = line.offsetX;
    m_dMapOffY = line.offsetY;
    m_dMapDist = line.length;
    TakeMapFrame();
    kv::readout::ToAngles(dX1, dY1, m_dStartLat, m_dStartLon, nProj, m_strMapUnit);
    if (dY2 == 0.0) {
        m_dEndLat = m_dEndLon = 0.0;
    } else {
        kv::readout::ToAngles(dX2, dY2, m_dEndLat, m_dEndLon, nProj, m_strMapUnit);
    }
    OnSelchangeComboDistFormat();
    SetDlgItemInt(kMapProjection, static_cast<UINT>(nProj));
    if (m_nUserProj == 0 || m_nUserProj == kNone) {
        m_nUserProj = nProj;
        m_pProjCtrl->SetProjection(nProj);
    }
    if (m_nUserProj != nProj) ProjectEnds();
    OnSelchangeComboDistUnit();
}

void CKvDistanceDialog::TakeMapFrame() {
    m_dUserStartX = m_dMapStartX;
    m_dUserStartY = m_dMapStartY;
    m_dUserEndX = m_dMapEndX;
    m_dUserEndY = m_dMapEndY;
    m_dUserOffX = m_dMapOffX;
    m_dUserOffY = m_dMapOffY;
    m_dUserDist = m_dMapDist;
}

/// The line under the user's projection. Angles of 0 and 0 are those of an end that is not there.
void CKvDistanceDialog::ProjectEnds() {
    if (m_dStartLat != 0.0 || m_dStartLon != 0.0) {
        kv::readout::ToXY(m_dStartLat, m_dStartLon, m_dUserStartX, m_dUserStartY, m_nUserProj,
                          m_strMapUnit);
    }
    if (m_dEndLat == 0.0 && m_dEndLon == 0.0) return;
    kv::readout::ToXY(m_dEndLat, m_dEndLon, m_dUserEndX, m_dUserEndY, m_nUserProj, m_strMapUnit);
    const auto line = kv::readout::Between(m_dUserStartX, m_dUserStartY, m_dUserEndX, m_dUserEndY);
    m_dUserOffX = line.offsetX;
    m_dUserOffY = line.offsetY;
    m_dUserDist = line.length;
}

/// A length of 0 is shown where the line has a second end, a coordinate of 0 never.
void CKvDistanceDialog::OnSelchangeComboDistUnit() {
    m_strUnit = DlgItemText(kUnit);
    const bool hasEnd = m_dUserEndX != 0.0;
    const struct {
        int box;
        double value;
        bool alsoZero;
    } kBoxes[] = {
        {kDistance, m_dUserDist, hasEnd}, {kOffsetX, m_dUserOffX, hasEnd},
        {kOffsetY, m_dUserOffY, hasEnd},  {kStartX, m_dUserStartX, false},
        {kStartY, m_dUserStartY, false},  {kEndX, m_dUserEndX, false},
        {kEndY, m_dUserEndY, false},
    };
    for (const auto& [box, value, alsoZero] : kBoxes) {
        if (value == 0.0 && !alsoZero) {
            SetDlgItemText(box, "");
        } else {
            kv::readout::ShowLength(*this, box, value, m_strUnit, m_strMapUnit);
        }
    }
}

void CKvDistanceDialog::OnSelchangeComboDistFormat() {
    if (!IsOpen()) return;
    kv::readout::SetFormat(
        {m_pStartLatCtrl.get(), m_pStartLonCtrl.get(), m_pEndLatCtrl.get(), m_pEndLonCtrl.get()},
        kv::coordtools::IsDecimal(Control<CComboBox>(kFormat)), m_bDecimal);
    kv::BringToTop(*m_hWnd);
    m_pStartLatCtrl->SetDMS(m_dStartLat);
    m_pStartLonCtrl->SetDMS(m_dStartLon);
    m_pEndLatCtrl->SetDMS(m_dEndLat);
    m_pEndLonCtrl->SetDMS(m_dEndLon);
}

void CKvDistanceDialog::OnSelchangeComboDistProjection() {
    if (!IsOpen()) return;
    m_nUserProj = m_pProjCtrl->GetProjection();
    if (m_nUserProj == m_nMapProj) {
        TakeMapFrame();
    } else {
        ProjectEnds();
    }
    OnSelchangeComboDistUnit();
}

std::string CKvDistanceDialog::FormatToDMS(double dValue) {
    const double angle = std::abs(dValue);
    const int degrees = kv::ToInt(angle);
    const double rest = (angle - degrees) * 60.0;
    const int minutes = kv::ToInt(rest);
    const double seconds = (rest - minutes) * 60.0;
    return (dValue < 0.0 ? "-" : "") + TwoDigits(degrees) + kDegreeSign + TwoDigits(minutes) + "'" +
           (seconds < 10.0 ? "0" : "") + kv::FormatFixed(seconds, kSecondDecimals) + "\"";
}

void CKvDistanceDialog::ResetToDefault(int nProj, CString strUnit) {
    m_strUnit = strUnit;
    m_dMapStartX = m_dMapStartY = m_dMapEndX = m_dMapEndY = 0.0;
    m_dMapOffX = m_dMapOffY = m_dMapDist = 0.0;
    TakeMapFrame();
    m_dStartLat = m_dStartLon = m_dEndLat = m_dEndLon = CKvGuiDMSCtrl::kNoValue;
    m_nUserProj = m_nMapProj = nProj;
    if (!IsOpen()) return;
    Control<CComboBox>(kUnit).SelectString(-1, m_strUnit.c_str());
    // The angles hear of it with the next line, or when the user picks a format.
    Control<CComboBox>(kFormat).SetCurSel(0);
    for (const auto* angle : {&m_pStartLatCtrl, &m_pStartLonCtrl, &m_pEndLatCtrl, &m_pEndLonCtrl})
        (*angle)->ClearDMS();
    for (const int box : {kDistance, kOffsetX, kOffsetY, kStartX, kStartY, kEndX, kEndY})
        SetDlgItemText(box, "");
    m_pProjCtrl->SetProjection(nProj);
    SetDlgItemInt(kMapProjection, static_cast<UINT>(nProj));
}

const kv::MessageMap& CKvDistanceDialog::Messages() {
    using Self = CKvDistanceDialog;
    static const kv::MessageEntry kEntries[] = {
        kv::OnControl<&Self::OnSelchangeComboDistUnit>(CBN_SELCHANGE, kUnit),
        kv::OnControl<&Self::OnSelchangeComboDistFormat>(CBN_SELCHANGE, kFormat),
        kv::OnControl<&Self::OnSelchangeComboDistProjection>(CBN_SELCHANGE, kUserProjection),
    };
    static const kv::MessageMap kMap{&CDialog::Messages(), kEntries};
    return kMap;
}
