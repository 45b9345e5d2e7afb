#include "mapbuild/proj_sel.h"

#include "base/numbers.h"
#include "frame/kvcom/projection_code.h"
#include "frame/kvdbkvn/db_abs_data_mgr.h"
#include "frame/kvdbkvn/db_dataset_set.h"
#include "frame/kvdbkvn/tell_failure.h"
#include "mapbuild/proj_sel_ids.h"
#include "mapbuild/utm_zone_dlg.h"
#include "window/controls/list_box.h"
#include "window/dialogs/message_box.h"

using namespace kv::proj_sel;

namespace {

constexpr const char* kSpheroids = "utm_spheroids";

std::string ZoneTable() {
    return CKvDbDatasetSet::S_GetGlobalOwner() + ".gulf_mexico_zone_code";
}

}  // namespace

CKvGuiProjSel::CKvGuiProjSel(int nCode, CWnd* pParent)
    : CDialog(kTemplate, pParent), m_nInitCode(nCode) {}

CListBox& CKvGuiProjSel::List() const {
    return Control<CListBox>(kList);
}

void CKvGuiProjSel::FillList(const std::string& sql, int sign) {
    m_vCodes.clear();
    List().ResetContent();
    kv::db::ShowAskedAnew(List());
    CKvDbAbsDataMgr manager(1);
    try {
        manager.Connect();
        manager.Select(sql);
        for (int row = 0; row < manager.NumberOfRows(); ++row) {
            List().AddString(manager.GetItem(row, 0));
            m_vCodes.push_back(sign * kv::Atoi(manager.GetItem(row, 1)));
        }
        List().SetCurSel(0);
    } catch (const CKvException& e) {
        kv::db::TellFailure(e, List());
    }
    manager.FreeData();
    manager.Disconnect();
}

void CKvGuiProjSel::PopulateListBox(CString& strCategory) {
    const std::string category = strCategory.str();
    if (category == kSpheroids) {
        FillList("select description,zone_code from " + ZoneTable() + " where category='" +
                     category + "'" + " order by zone_code",
                 1);
    } else {
        FillList("select 'Zone: ' || to_char(zone_code) || ': ' || description,zone_code from " +
                     ZoneTable() + " where category in ('" + category + "')" +
                     " order by zone_code",
                 1);
    }
}

void CKvGuiProjSel::ShowCategory(const char* category, bool straightMercator) {
    m_strCategory = category;
    PopulateListBox(m_strCategory);
    m_bStraightMercator = straightMercator;
}

void CKvGuiProjSel::OnStastalamRadio() {
    // Alone among them it leaves the flag as it was.
    ShowCategory("state_lambert", m_bStraightMercator);
}

void CKvGuiProjSel::OnStatramerRadio() {
    ShowCategory("state_trans_mercator", false);
}

void CKvGuiProjSel::OnMislamRadio() {
    ShowCategory("misc_lambert", false);
}

void CKvGuiProjSel::OnMistramerRadio() {
    ShowCategory("misc_trans_mercator", false);
}

void CKvGuiProjSel::OnUtmsphRadio() {
    ShowCategory(kSpheroids, false);
}

void CKvGuiProjSel::OnMisothRadio() {
    // The quote marks belong to the text: it goes into an SQL list.
    ShowCategory("misc_boone','misc_cassini', 'misc_other", false);
}

void CKvGuiProjSel::OnStaplaRadio() {
    m_strCategory = "state_plane";
    FillList(
        "select 'Zone: ' || to_char(-1*state_plane_code) || ': ' || "
        "description,state_plane_code from " +
            ZoneTable() + " where state_plane_code is not null order by description",
        -1);
    m_bStraightMercator = false;
}

void CKvGuiProjSel::OnStraigthMercatorRadio() {
    ShowCategory(kSpheroids, true);
}

void CKvGuiProjSel::Describe(const std::string& text) {
    m_sDescription.str({});
    m_sDescription << text;
}

bool CKvGuiProjSel::AskForZone() {
    CKvGuiUTMZoneDlg dialog(this);
    dialog.SetZone(m_bStraightMercator ? kv::projection::kStraightMercator
                                       : m_nInitCode - m_nProjection);
    dialog.SetRectSpec(m_bRectSpec);
    dialog.SetRectLatLon(kv::ToInt(m_dRectSpecLat), kv::ToInt(m_dRectSpecLon));
    if (dialog.DoModal() != IDOK) return false;

    m_nUTMZone = dialog.GetZone();
    m_nProjection += m_nUTMZone;
    Describe(kv::projection::ZoneText(m_nProjection, m_nUTMZone));
    if (m_nUTMZone == kv::projection::kStraightMercator) {
        m_bRectSpec = dialog.GetRectSpec();
        m_dRectSpecLat = dialog.GetRectLat();
        m_dRectSpecLon = dialog.GetRectLon();
    }
    return true;
}

void CKvGuiProjSel::OnOK() {
    const int line = List().GetCurSel();
    if (line == LB_ERR) {
        AfxMessageBox("You have not chosen a projection yet.", 0, 0);
        return;
    }
    CString text;
    List().GetText(line, text);
    m_nProjection = m_vCodes[static_cast<std::size_t>(line)];
    Describe(text.str());
    if (m_strCategory == kSpheroids && !AskForZone()) {
        CDialog::OnCancel();
    } else {
        CDialog::OnOK();
    }
}

const kv::MessageMap& CKvGuiProjSel::Messages() {
    static const kv::MessageEntry kEntries[] = {
        kv::OnClicked<&CKvGuiProjSel::OnStastalamRadio>(kStateLambert),
        kv::OnClicked<&CKvGuiProjSel::OnStatramerRadio>(kStateTransverseMercator),
        kv::OnClicked<&CKvGuiProjSel::OnMislamRadio>(kMiscLambert),
        kv::OnClicked<&CKvGuiProjSel::OnMistramerRadio>(kMiscTransverseMercator),
        kv::OnClicked<&CKvGuiProjSel::OnUtmsphRadio>(kUtmSpheroids),
        kv::OnClicked<&CKvGuiProjSel::OnMisothRadio>(kMiscOther),
        kv::OnClicked<&CKvGuiProjSel::OnStaplaRadio>(kStatePlane),
        kv::OnClicked<&CKvGuiProjSel::OnStraigthMercatorRadio>(kStraightMercator),
    };
    static const kv::MessageMap kMap{&CDialog::Messages(), kEntries};
    return kMap;
}
