#include "mapbuild/utm_zone_dlg.h"

#include "base/numbers.h"
#include "frame/kvcom/projection_code.h"
#include "mapbuild/proj_sel_ids.h"
#include "window/controls/button.h"
#include "window/dialogs/message_box.h"

using namespace kv::utm_zone;

namespace {

constexpr int kLastZone = 60;

/// What only Straight Mercator asks for, beside the coordinates.
constexpr int kRectifyingControls[] = {kStraightMercatorGroup, kRectifyingLabel, kCenterOfMap,
                                       kUserSpecified};

}  // namespace

CKvGuiUTMZoneDlg::CKvGuiUTMZoneDlg(CWnd* pParent) : CDialog(kTemplate, pParent) {}

CKvGuiUTMZoneDlg::~CKvGuiUTMZoneDlg() = default;

std::unique_ptr<CNumEdit> CKvGuiUTMZoneDlg::MakeEdit(int id, double min, double max) {
    auto edit = std::make_unique<CNumEdit>();
    edit->SubclassDlgItem(static_cast<UINT>(id), this);
    edit->SetRange(min, max);
    edit->SetDelta(1.0);
    return edit;
}

BOOL CKvGuiUTMZoneDlg::OnInitDialog() {
    CDialog::OnInitDialog();
    m_pZoneEdit = MakeEdit(kZone, 0.0, 99.0);
    m_pLatEdit = MakeEdit(kLat, -90.0, 90.0);
    m_pLonEdit = MakeEdit(kLon, -180.0, 180.0);
    m_pCenterRadio = &Control<CButton>(kCenterOfMap);
    m_pUserRadio = &Control<CButton>(kUserSpecified);
    (m_bRectSpec ? m_pUserRadio : m_pCenterRadio)->SetCheck(BST_CHECKED);

    m_pZoneEdit->SetValue(m_nZone);
    m_pLatEdit->SetValue(m_nRectLat);
    m_pLonEdit->SetValue(m_nRectLon);
    CheckZone();
    m_pZoneEdit->SetFocus();
    m_pZoneEdit->SetSel(0, -1);
    return FALSE;
}

void CKvGuiUTMZoneDlg::CheckZone() {
    if (m_pZoneEdit->GetWindowTextLength() == 0) m_pZoneEdit->SetValue(0.0);
    const bool straightMercator = m_nZone == kv::projection::kStraightMercator;
    m_pZoneEdit->SetReadOnly(straightMercator);
    if (straightMercator) {
        OnCenterRadio();
    } else {
        EnableCoordinates(false);
    }
}

void CKvGuiUTMZoneDlg::EnableCoordinates(bool on) {
    m_pLatEdit->EnableWindow(on);
    m_pLonEdit->EnableWindow(on);
}

void CKvGuiUTMZoneDlg::TakeRectSpec(bool userSpecified) {
    m_bRectSpec = userSpecified;
    EnableCoordinates(userSpecified);
}

void CKvGuiUTMZoneDlg::OnCenterRadio() {
    TakeRectSpec(m_pCenterRadio->GetCheck() == BST_UNCHECKED);
}

void CKvGuiUTMZoneDlg::OnUserRadio() {
    TakeRectSpec(m_pUserRadio->GetCheck() != BST_UNCHECKED);
}

void CKvGuiUTMZoneDlg::OnChangeZone() {
    const double zone = m_pZoneEdit->GetValue();
    if (zone > kLastZone && zone < kv::projection::kStraightMercator) {
        AfxMessageBox("Invalid Entry! Please enter a code zone from 0 - 60 or 99.", 0, 0);
    }
    const bool straightMercator = zone == kv::projection::kStraightMercator;
    for (const int id : kRectifyingControls)
        Control<CWnd>(id).EnableWindow(straightMercator);
    if (straightMercator) {
        OnCenterRadio();
    } else {
        EnableCoordinates(false);
    }
}

void CKvGuiUTMZoneDlg::OnOK() {
    m_nZone = kv::ToInt(m_pZoneEdit->GetValue());
    OnCenterRadio();
    if (m_bRectSpec) {
        m_nRectLat = kv::ToInt(m_pLatEdit->GetValue());
        m_nRectLon = kv::ToInt(m_pLonEdit->GetValue());
    }
    CDialog::OnOK();
}

const kv::MessageMap& CKvGuiUTMZoneDlg::Messages() {
    static const kv::MessageEntry kEntries[] = {
        kv::OnClicked<&CKvGuiUTMZoneDlg::OnCenterRadio>(kCenterOfMap),
        kv::OnClicked<&CKvGuiUTMZoneDlg::OnUserRadio>(kUserSpecified),
        kv::OnControl<&CKvGuiUTMZoneDlg::OnChangeZone>(EN_CHANGE, kZone),
    };
    static const kv::MessageMap kMap{&CDialog::Messages(), kEntries};
    return kMap;
}
