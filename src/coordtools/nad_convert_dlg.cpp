#include "coordtools/nad_convert_dlg.h"

#include "coordtools/angle_group.h"
#include "coordtools/nad_convert_ids.h"
#include "frame/kvcom/util_lldrv.h"
#include "window/controls/combo_box.h"
#include "window/dialogs/message_box.h"

using namespace kv::nad_convert;
using kv::coordtools::kNoAngle;

namespace {

/// What a shift answers.
enum ShiftResult { kShifted = 0, kOutsideGrid = 1 };

}  // namespace

CKvNadConvertDlg::CKvNadConvertDlg(CWnd* pParent) : CDialog(kTemplate, pParent) {}

CKvNadConvertDlg::~CKvNadConvertDlg() = default;

void CKvNadConvertDlg::Panel::Read() {
    lat = latCtrl.GetDMS();
    lon = lonCtrl.GetDMS();
}

void CKvNadConvertDlg::Panel::Show() {
    latCtrl.SetDMS(lat);
    lonCtrl.SetDMS(lon);
}

void CKvNadConvertDlg::Panel::SetReadOnly(bool readOnly) {
    latCtrl.SetDMSReadOnly(readOnly);
    lonCtrl.SetDMSReadOnly(readOnly);
}

CKvNadConvertDlg::Panel CKvNadConvertDlg::Nad27() {
    return {*m_pLat27Ctrl, *m_pLon27Ctrl, m_dLat27, m_dLon27};
}

CKvNadConvertDlg::Panel CKvNadConvertDlg::Nad83() {
    return {*m_pLat83Ctrl, *m_pLon83Ctrl, m_dLat83, m_dLon83};
}

bool CKvNadConvertDlg::Is27To83() const {
    return IsDlgButtonChecked(k27To83) != 0;
}

BOOL CKvNadConvertDlg::OnInitDialog() {
    CDialog::OnInitDialog();
    m_pLat27Ctrl = kv::coordtools::MakeAngle(*this, kLatitude27, true);
    m_pLon27Ctrl = kv::coordtools::MakeAngle(*this, kLongitude27, false);
    m_pLat27Ctrl->SetPartner(m_pLon27Ctrl.get());
    m_pLat83Ctrl = kv::coordtools::MakeAngle(*this, kLatitude83, true);
    m_pLon83Ctrl = kv::coordtools::MakeAngle(*this, kLongitude83, false);
    m_pLat83Ctrl->SetPartner(m_pLon83Ctrl.get());
    for (const int id : {kFormat27, kFormat83})
        kv::coordtools::FillFormats(Control<CComboBox>(id));
    CheckDlgButton(k27To83, BST_CHECKED);
    OnRadioNad27to83();
    return TRUE;
}

void CKvNadConvertDlg::CloseDlg() {
    m_pLat27Ctrl.reset();
    m_pLon27Ctrl.reset();
    m_pLat83Ctrl.reset();
    m_pLon83Ctrl.reset();
}

void CKvNadConvertDlg::OnOK() {
    ShowWindow(SW_HIDE);
}

void CKvNadConvertDlg::ResetToDefault() {
    m_dLat27 = m_dLon27 = kNoAngle;
    m_dLat83 = m_dLon83 = kNoAngle;
    Nad27().Show();
    Nad83().Show();
}

void CKvNadConvertDlg::ShowDirection() {
    const bool is27To83 = Is27To83();
    Nad27().SetReadOnly(!is27To83);
    Nad83().SetReadOnly(is27To83);
    SetDlgItemText(kConvert, is27To83 ? "Convert Nad27 to Nad83" : "Convert Nad83 to Nad27");
    ResetToDefault();
}

void CKvNadConvertDlg::OnRadioNad27to83() {
    ShowDirection();
}

void CKvNadConvertDlg::OnRadioNad83to27() {
    ShowDirection();
}

void CKvNadConvertDlg::ChangeFormat(Panel panel, const CComboBox& format) {
    const double lat = panel.latCtrl.GetDMS();
    const double lon = panel.lonCtrl.GetDMS();
    const bool decimal = kv::coordtools::IsDecimal(format);
    panel.latCtrl.SetFormat(decimal);
    panel.lonCtrl.SetFormat(decimal);
    panel.latCtrl.SetDMS(lat);
    panel.lonCtrl.SetDMS(lon);
}

void CKvNadConvertDlg::OnSelchangeComboNad27Format() {
    ChangeFormat(Nad27(), Control<CComboBox>(kFormat27));
}

void CKvNadConvertDlg::OnSelchangeComboNad83Format() {
    ChangeFormat(Nad83(), Control<CComboBox>(kFormat83));
}

void CKvNadConvertDlg::Convert(Panel from, Panel to, Shift shift) {
    from.Read();
    const bool noLat = from.lat == kNoAngle;
    const bool noLon = from.lon == kNoAngle;
    if (noLat != noLon) {
        AfxMessageBox("Both Latitude and Longitude have to have values.", 0, 0);
        return;
    }
    if (noLat) {
        // The longitude of the result is kept, and shown once more.
        to.lat = kNoAngle;
    } else if (const int result = shift(from.lon, from.lat, to.lon, to.lat); result != kShifted) {
        AfxMessageBox(
            result == kOutsideGrid ? "Data is out of North America range." : "Conversion Error.", 0,
            0);
        return;
    }
    to.Show();
}

void CKvNadConvertDlg::OnButtonNad() {
    if (Is27To83()) {
        Convert(Nad27(), Nad83(), &CKvUtilLLdrv::Nad2783);
    } else {
        Convert(Nad83(), Nad27(), &CKvUtilLLdrv::Nad8327);
    }
}

void CKvNadConvertDlg::SetPosition(double dLat, double dLon) {
    Panel input = Is27To83() ? Nad27() : Nad83();
    input.lat = dLat;
    input.lon = dLon;
    input.Show();
    OnButtonNad();
}

const kv::MessageMap& CKvNadConvertDlg::Messages() {
    using Self = CKvNadConvertDlg;
    static const kv::MessageEntry kEntries[] = {
        kv::OnControl<&Self::OnSelchangeComboNad27Format>(CBN_SELCHANGE, kFormat27),
        kv::OnControl<&Self::OnSelchangeComboNad83Format>(CBN_SELCHANGE, kFormat83),
        kv::OnClicked<&Self::OnRadioNad27to83>(k27To83),
        kv::OnClicked<&Self::OnRadioNad83to27>(k83To27),
        kv::OnClicked<&Self::OnButtonNad>(kConvert),
    };
    static const kv::MessageMap kMap{&CDialog::Messages(), kEntries};
    return kMap;
}
