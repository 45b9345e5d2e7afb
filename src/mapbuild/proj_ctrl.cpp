#include "mapbuild/proj_ctrl.h"

#include <algorithm>
#include <iterator>

#include "base/numbers.h"
#include "base/text.h"
#include "frame/kvcom/cancelled.h"
#include "frame/kvcom/projection_code.h"
#include "frame/kvcom/util_lldrv.h"
#include "frame/kvdbkvn/db_abs_data_mgr.h"
#include "frame/kvdbkvn/db_dataset_set.h"
#include "frame/kvdbkvn/tell_failure.h"
#include "frame/kvlogs/log.h"
#include "mapbuild/proj_sel.h"
#include "window/controls/combo_box.h"
#include "window/dialogs/dialog.h"
#include "window/dialogs/message_box.h"

using namespace kv::projection;

namespace {

struct Favourite {
    const char* text;
    int code;
};

constexpr Favourite kFavourites[] = {
    {"1   Texas South Central", 1},
    {"2   Texas South", 2},
    {"3   Louisiana South", 3},
    {"114 UTM", 114},
    {"115 UTM", 115},
    {"116 UTM", 116},
    {"117 UTM", 117},
};
constexpr int kMoreLine = static_cast<int>(std::size(kFavourites));
constexpr int kPickedLine = kMoreLine + 1;

/// How much of the combo box's text holds a code.
constexpr std::size_t kCodeDigits = 4;

constexpr const char* kTable = ".gulf_mexico_zone_code";
constexpr const char* kSpheroidCategory = "utm_spheroids";

constexpr int kLogLevel = 101;

/// The line of a favourite, -1 for any other code.
int LineOf(int code) {
    const auto at = std::find_if(std::begin(kFavourites), std::end(kFavourites),
                                 [code](const Favourite& each) { return each.code == code; });
    return at == std::end(kFavourites) ? -1 : static_cast<int>(at - kFavourites);
}

/// Letters and digits alone, since tables differ in the rest.
std::string Bare(const std::string& name) {
    std::string bare;
    for (const char ch : name) {
        const bool letter = kv::ToUpper(ch) >= 'A' && kv::ToUpper(ch) <= 'Z';
        if (letter || kv::IsDigit(ch)) bare += kv::ToUpper(ch);
    }
    return bare;
}

/// The coordinate driver asks no database: a code means there what it is built for.
void LogContradiction(int code, const std::string& name) {
    const std::string builtIn = CKvUtilLLdrv::BuiltInName(code);
    if (builtIn.empty() || Bare(builtIn) == Bare(name)) return;
    CKvLog::Output("Projection code " + std::to_string(code) + " is \"" + name +
                       "\" in the table of zones, but coordinates are converted as \"" + builtIn +
                       "\" until RegisterProjection gives the code another meaning.",
                   kLogLevel, false);
}

}  // namespace

std::map<int, std::string> CKvGuiProjCtrl::m_tMapDesc;
bool CKvGuiProjCtrl::m_bMapDescHasData = false;
int CKvGuiProjCtrl::s_nLastInitCode = kNone;

void CKvGuiProjCtrl::Enter(int nCode, const std::string& name, const std::string& description) {
    if (m_tMapDesc.emplace(nCode, description).second) LogContradiction(nCode, name);
}

void CKvGuiProjCtrl::BuildCodeDescMap() {
    // First, so that a load that fails is not tried again.
    m_bMapDescHasData = true;
    const std::string table = CKvDbDatasetSet::S_GetGlobalOwner() + kTable;
    CKvDbAbsDataMgr manager(1);
    try {
        manager.Connect();
        manager.Select("select zone_code, description, category from " + table +
                       " order by zone_code");
        for (int row = 0; row < manager.NumberOfRows(); ++row) {
            const std::string code = manager.GetItem(row, 0);
            const std::string name = manager.GetItem(row, 1);
            const bool spheroid = manager.GetItem(row, 2) == std::string(kSpheroidCategory);
            Enter(kv::Atoi(code), name, spheroid ? name : "Zone : " + code + ": " + name);
        }
        manager.Select(
            "select 'Zone: ' || to_char(-1*state_plane_code) || ': ' || description, "
            "state_plane_code from " +
            table + " where state_plane_code is not null order by description");
        for (int row = 0; row < manager.NumberOfRows(); ++row) {
            const int code = -kv::Atoi(manager.GetItem(row, 1));
            const std::string description = manager.GetItem(row, 0);
            const std::string ahead = "Zone: " + std::to_string(code) + ": ";
            Enter(code, description.substr(std::min(ahead.size(), description.size())),
                  description);
        }
    } catch (const CKvCancelled&) {
        m_bMapDescHasData = false;
    } catch (const CKvException& e) {
        kv::db::TellFailure(e);
    }
    manager.FreeData();
    manager.Disconnect();
}

void CKvGuiProjCtrl::FillCatalogue() {
    if (!m_bMapDescHasData) BuildCodeDescMap();
}

const std::string& CKvGuiProjCtrl::Description(int nCode) {
    if (m_bMapDescHasData) return m_tMapDesc.emplace(nCode, std::string()).first->second;
    // Kept, an empty one would stand in the way of the row that the next reading finds.
    static const std::string kUnread;
    const auto at = m_tMapDesc.find(nCode);
    return at == m_tMapDesc.end() ? kUnread : at->second;
}

std::string CKvGuiProjCtrl::S_GetProjDesc(int nCode) {
    FillCatalogue();
    const std::string& description = Description(nCode);
    if (!IsOnSpheroid(nCode) || ZoneOf(nCode) == kStraightMercator) return description;
    const int zone = ZoneOf(nCode);
    return "Zone: " + std::to_string(zone) + ": " + Description(nCode - zone);
}

void CKvGuiProjCtrl::LookUpCombo() {
    m_pCombo = &m_pParent->Control<CComboBox>(m_nComboId);
}

void CKvGuiProjCtrl::Initialize(CDialog* pParent, int nComboId, int nProjection, int nUTMZone,
                                bool bRectSpec, double dRectLat, double dRectLon) {
    FillCatalogue();
    m_pParent = pParent;
    m_nComboId = nComboId;
    m_nProjection = nProjection;
    m_nUTMZone = nUTMZone;
    m_bRectSpec = bRectSpec;
    m_dRectLat = dRectLat;
    m_dRectLon = dRectLon;
    s_nLastInitCode = nProjection;
    LookUpCombo();
    for (const Favourite& each : kFavourites)
        m_pCombo->AddString(each.text);
    m_pCombo->AddString("More...");
    m_nMoreCode = kNone;
    if (nProjection != kNone) SetProjection(nProjection);
}

void CKvGuiProjCtrl::SetProjection(int nCode) {
    LookUpCombo();
    if (const int line = LineOf(nCode); line >= 0) {
        m_pCombo->SetCurSel(line);
        return;
    }
    if (m_pCombo->GetCount() > kPickedLine) m_pCombo->DeleteString(kPickedLine);
    std::string text = Description(nCode);
    if (IsOnSpheroid(nCode)) text = ZoneText(nCode, ZoneOf(nCode));
    m_nMoreCode = nCode;
    m_pCombo->AddString(text.c_str());
    m_pCombo->SetCurSel(m_pCombo->FindStringExact(-1, text.c_str()));
}

int CKvGuiProjCtrl::GetProjection() {
    LookUpCombo();
    const int line = m_pCombo->GetCurSel();
    if (line >= 0 && line < kMoreLine) {
        m_nProjection = kFavourites[line].code;
        return m_nProjection;
    }
    if (line == kMoreLine) {
        GetMoreProjection();
        // Left current, the line would open the dialog again with whatever the host asks next.
        if (m_nProjection == kNone) m_pCombo->SetCurSel(-1);
    } else {
        m_nProjection = m_nMoreCode;
    }
    if (m_nProjection != kNone) SetProjection(m_nProjection);
    return m_nProjection;
}

void CKvGuiProjCtrl::TakeMoreCode(int nCode) {
    m_nProjection = nCode;
    m_nMoreCode = nCode;
}

void CKvGuiProjCtrl::GetMoreProjection() {
    LookUpCombo();
    CKvGuiProjSel dialog(kv::Atoi(m_pCombo->WindowText().substr(0, kCodeDigits)), nullptr);
    dialog.SetRectSpec(m_bRectSpec);
    dialog.SetRectSpecLat(m_dRectLat);
    dialog.SetRectSpecLon(m_dRectLon);
    if (dialog.DoModal() != IDOK) {
        TakeMoreCode(s_nLastInitCode);
        return;
    }
    TakeMoreCode(dialog.m_nProjection);
    if (!IsOnSpheroid(m_nProjection)) return;
    m_nUTMZone = dialog.GetUTMZone();
    if (m_nUTMZone != kStraightMercator) return;
    if (m_bXYBounded) {
        AfxMessageBox("Invalid Entry!\n Straight Mercator is not valid for an XY-bounded map!\n", 0,
                      0);
        TakeMoreCode(s_nLastInitCode);
        return;
    }
    m_bRectSpec = dialog.GetRectSpec();
    m_dRectLat = dialog.GetRectSpecLat();
    m_dRectLon = dialog.GetRectSpecLon();
}
