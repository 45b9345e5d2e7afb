#include "coordtools/converter_dialog.h"

#include <algorithm>

#include "base/numbers.h"
#include "coordtools/angle_group.h"
#include "coordtools/converter_ids.h"
#include "coordtools/length_unit.h"
#include "frame/kvcom/util_lldrv.h"
#include "window/controls/button.h"
#include "window/controls/combo_box.h"
#include "window/controls/edit.h"
#include "window/dialogs/message_box.h"

using namespace kv::converter;
using kv::coordtools::kNoAngle;
using kv::length::kNoValue;

namespace {

constexpr int kDefaultProjection = 115;
constexpr int kLowerBoxes[] = {kFromProjection, kFromUnit, kFromX, kFromY,
                               kToProjection,   kToUnit,   kToX,   kToY};
constexpr const char* kOneAngleMissing = "Both Latitude and Longitude have to have values.";

struct Position {
    double lat;
    double lon;

    bool OnEarth() const { return lat >= -90.0 && lat <= 90.0 && lon >= -180.0 && lon <= 180.0; }
};

struct PointInFeet {
    double x;
    double y;
};

PointInFeet Project(const Position& position, int projection) {
    PointInFeet point{};
    CKvUtilLLdrv::LLdrv(position.lat, position.lon, &point.x, &point.y, projection, 0, 1, 100.0F,
                        0.0F, 0.0F);
    return point;
}

Position Locate(const PointInFeet& point, int projection) {
    Position position{};
    CKvUtilLLdrv::XYdrv(point.x, point.y, &position.lat, &position.lon, projection, 0, 1, 100.0F,
                        0.0F, 0.0F);
    return position;
}

}  // namespace

CKvConverterDialog::CKvConverterDialog(CWnd* pParent) : CDialog(kTemplate, pParent) {}

CKvConverterDialog::~CKvConverterDialog() = default;

void CKvConverterDialog::SetDefaults() {
    m_strX.clear();
    m_strY.clear();
    m_strProj = std::to_string(kDefaultProjection);
    m_dX = m_dY = kNoValue;
    m_dLat = m_dLon = kNoAngle;
    m_nProj = kDefaultProjection;
}

std::unique_ptr<CKvGuiProjCtrl> CKvConverterDialog::MakeProjection(int comboId, int code) {
    auto control = std::make_unique<CKvGuiProjCtrl>();
    control->Initialize(this, comboId, code, 0, false, 0.0, 0.0);
    return control;
}

BOOL CKvConverterDialog::OnInitDialog() {
    CDialog::OnInitDialog();
    SetDefaults();
    m_nProjFrom = m_nProjTo = kDefaultProjection;
    m_strUnit.clear();

    m_pLatCtrl = kv::coordtools::MakeAngle(*this, kLatitude, true);
    m_pLonCtrl = kv::coordtools::MakeAngle(*this, kLongitude, false);
    m_pLatCtrl->SetPartner(m_pLonCtrl.get());
    CheckDlgButton(kToXY, BST_CHECKED);
    ShowDirection();

    for (const int id : {kUnit, kFromUnit, kToUnit}) {
        for (const char* unit : kv::length::kUnits)
            Control<CComboBox>(id).AddString(unit);
        Control<CComboBox>(id).SetCurSel(0);
        if (CWnd* box = GetDlgItem(id)) box->m_hWnd->SetToolTip(kv::length::kFootRemark);
    }
    kv::coordtools::FillFormats(Control<CComboBox>(kFormat));

    m_pProjCtrl = MakeProjection(kProjection, m_nProj);
    m_pProjFromCtrl = MakeProjection(kFromProjection, m_nProjFrom);
    m_pProjToCtrl = MakeProjection(kToProjection, m_nProjTo);

    SetDlgItemText(kConvertXY, "Convert -->");
    for (const int id : {kFromX, kFromY})
        Control<CEdit>(id).SetReadOnly(FALSE);
    for (const int id : {kToX, kToY})
        Control<CEdit>(id).SetReadOnly(TRUE);
    return TRUE;
}

void CKvConverterDialog::CloseDlg() {
    m_pLatCtrl.reset();
    m_pLonCtrl.reset();
    m_pProjCtrl.reset();
    m_pProjFromCtrl.reset();
    m_pProjToCtrl.reset();
}

void CKvConverterDialog::OnOK() {
    ShowWindow(SW_HIDE);
}

void CKvConverterDialog::ShowDirection() {
    const bool toXY = IsDlgButtonChecked(kToXY) != 0;
    for (const int id : {kX, kY})
        Control<CEdit>(id).SetReadOnly(toXY);
    m_pLatCtrl->SetDMSReadOnly(!toXY);
    m_pLonCtrl->SetDMSReadOnly(!toXY);
    SetDlgItemText(kConvert, toXY ? "<-- Convert" : "Convert -->");
}

void CKvConverterDialog::OnRadioConvertLlxy() {
    ShowDirection();
}

void CKvConverterDialog::OnRadioConvertXyll() {
    ShowDirection();
}

BOOL CKvConverterDialog::PreTranslateMessage(MSG* message) {
    MarkDefaultButton();
    return CDialog::PreTranslateMessage(message);
}

/// Enter converts where the focus is.
void CKvConverterDialog::MarkDefaultButton() {
    const CWnd* focus = GetFocus();
    if (!focus || !m_hWnd || !focus->m_hWnd->IsSelfOrDescendantOf(*m_hWnd)) return;
    const bool inLower = std::ranges::any_of(kLowerBoxes, [&](int id) {
        const kv::Node* box = m_hWnd->FindChild(id);
        return box && focus->m_hWnd->IsSelfOrDescendantOf(*box);
    });
    Control<CButton>(kConvert).SetButtonStyle(inLower ? BS_PUSHBUTTON : BS_DEFPUSHBUTTON);
    Control<CButton>(kConvertXY).SetButtonStyle(inLower ? BS_DEFPUSHBUTTON : BS_PUSHBUTTON);
}

void CKvConverterDialog::SetReferencePoint() {
    const bool given = m_pProjCtrl->m_bRectSpec;
    CKvUtilLLdrv::SetRectLat(given ? m_pProjCtrl->m_dRectLat : m_dLat);
    CKvUtilLLdrv::SetRectLon(given ? m_pProjCtrl->m_dRectLon : m_dLon);
}

void CKvConverterDialog::OnButtonConvert() {
    if (IsDlgButtonChecked(kToXY)) {
        ConvertToXY();
    } else {
        ConvertToLatLon();
    }
}

void CKvConverterDialog::ConvertToXY() {
    m_dLat = m_pLatCtrl->GetDMS();
    m_dLon = m_pLonCtrl->GetDMS();
    const bool noLat = m_dLat == kNoAngle;
    const bool noLon = m_dLon == kNoAngle;
    if (noLat != noLon) {
        AfxMessageBox(kOneAngleMissing, 0, 0);
        return;
    }
    if (noLat) {
        m_dX = m_dY = kNoValue;
    } else {
        SetReferencePoint();
        const PointInFeet point = Project({m_dLat, m_dLon}, m_nProj);
        m_dX = point.x;
        m_dY = point.y;
    }
    UpdateOutputBoxes();
}

void CKvConverterDialog::ConvertToLatLon() {
    m_strX = DlgItemText(kX);
    m_strY = DlgItemText(kY);
    // In the unit that they are shown in, which a pick in the unit's list has not changed yet.
    if (kv::length::IsUnit(m_strUnit)) {
        m_dX = kv::length::ToFeet(kv::Atof(m_strX), m_strUnit);
        m_dY = kv::length::ToFeet(kv::Atof(m_strY), m_strUnit);
    }
    if (m_strX.empty() != m_strY.empty()) {
        AfxMessageBox(kOneAngleMissing, 0, 0);
        return;
    }
    if (m_strX.empty()) {
        m_dX = m_dY = kNoValue;
        m_dLat = m_dLon = kNoAngle;
    } else {
        SetReferencePoint();
        const Position position = Locate({m_dX, m_dY}, m_nProj);
        m_dLat = position.lat;
        m_dLon = position.lon;
    }
    UpdateOutputBoxes();
}

void CKvConverterDialog::UpdateOutputBoxes() {
    m_strUnit = DlgItemText(kUnit);
    m_strX = kv::length::ShownIn(m_strUnit, m_dX);
    m_strY = kv::length::ShownIn(m_strUnit, m_dY);
    SetDlgItemText(kX, m_strX.c_str());
    SetDlgItemText(kY, m_strY.c_str());

    const bool decimal = kv::coordtools::IsDecimal(Control<CComboBox>(kFormat));
    m_pLatCtrl->SetFormat(decimal);
    m_pLonCtrl->SetFormat(decimal);
    const bool latShown = m_pLatCtrl->SetDMS(m_dLat);
    const bool lonShown = m_pLonCtrl->SetDMS(m_dLon);
    if (latShown && lonShown) return;
    AfxMessageBox("The value of lat, lon converted from x, y are out of range.", 0, 0);
    Control<CEdit>(kX).SetFocus();
}

void CKvConverterDialog::SetPosition(double dLat, double dLon) {
    m_dLat = dLat;
    m_dLon = dLon;
    SetReferencePoint();
    const PointInFeet point = Project({dLat, dLon}, m_nProj);
    m_dX = point.x;
    m_dY = point.y;
    UpdateOutputBoxes();
}

void CKvConverterDialog::ResetToDefault() {
    SetDefaults();
    m_strUnit = "feet";
    Control<CComboBox>(kUnit).SetCurSel(0);
    m_pProjCtrl->SetProjection(m_nProj);
    UpdateOutputBoxes();
}

void CKvConverterDialog::OnSelchangeComboConvertFormat() {
    OnButtonConvert();
    UpdateOutputBoxes();
}

void CKvConverterDialog::OnSelchangeComboConvertUnit() {
    OnButtonConvert();
    UpdateOutputBoxes();
}

void CKvConverterDialog::OnSelchangeComboConvertProj() {
    m_nProj = m_pProjCtrl->GetProjection();
    OnButtonConvert();
    UpdateOutputBoxes();
}

void CKvConverterDialog::OnButtonConvertXY() {
    const std::string x = DlgItemText(kFromX);
    const std::string y = DlgItemText(kFromY);
    if (x.empty() || y.empty()) {
        AfxMessageBox("Both X and Y have to have values.", 0, 0);
        return;
    }
    const std::string from = DlgItemText(kFromUnit);
    const std::string to = DlgItemText(kToUnit);
    // The reference point stays as the upper converter left it.
    const Position position =
        Locate({kv::length::ToFeet(kv::Atof(x), from), kv::length::ToFeet(kv::Atof(y), from)},
               m_nProjFrom);
    if (!position.OnEarth()) {
        AfxMessageBox("The input X/Y pair is not valid", 0, 0);
        return;
    }
    const PointInFeet point = Project(position, m_nProjTo);
    SetDlgItemText(kToX, kv::length::ShownIn(to, point.x).c_str());
    SetDlgItemText(kToY, kv::length::ShownIn(to, point.y).c_str());
}

void CKvConverterDialog::OnSelchangeComboConvertProjFrom() {
    m_nProjFrom = m_pProjFromCtrl->GetProjection();
    OnButtonConvertXY();
}

void CKvConverterDialog::OnSelchangeComboConvertProjTo() {
    m_nProjTo = m_pProjToCtrl->GetProjection();
    OnButtonConvertXY();
}

void CKvConverterDialog::OnSelchangeComboConvertUnitFrom() {
    OnButtonConvertXY();
}

void CKvConverterDialog::OnSelchangeComboConvertUnitTo() {
    OnButtonConvertXY();
}

const kv::MessageMap& CKvConverterDialog::Messages() {
    using Self = CKvConverterDialog;
    static const kv::MessageEntry kEntries[] = {
        kv::OnClicked<&Self::OnButtonConvert>(kConvert),
        kv::OnClicked<&Self::OnButtonConvertXY>(kConvertXY),
        kv::OnClicked<&Self::OnRadioConvertLlxy>(kToXY),
        kv::OnClicked<&Self::OnRadioConvertXyll>(kToLatLon),
        kv::OnControl<&Self::OnSelchangeComboConvertFormat>(CBN_SELCHANGE, kFormat),
        kv::OnControl<&Self::OnSelchangeComboConvertProj>(CBN_SELCHANGE, kProjection),
        kv::OnControl<&Self::OnSelchangeComboConvertUnit>(CBN_SELCHANGE, kUnit),
        kv::OnControl<&Self::OnKillfocusEditConvertX>(EN_KILLFOCUS, kX),
        kv::OnControl<&Self::OnKillfocusEditConvertY>(EN_KILLFOCUS, kY),
        kv::OnControl<&Self::OnSelchangeComboConvertProjFrom>(CBN_SELCHANGE, kFromProjection),
        kv::OnControl<&Self::OnSelchangeComboConvertProjTo>(CBN_SELCHANGE, kToProjection),
        kv::OnControl<&Self::OnSelchangeComboConvertUnitFrom>(CBN_SELCHANGE, kFromUnit),
        kv::OnControl<&Self::OnSelchangeComboConvertUnitTo>(CBN_SELCHANGE, kToUnit),
    };
    static const kv::MessageMap kMap{&CDialog::Messages(), kEntries};
    return kMap;
}
