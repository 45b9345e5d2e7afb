#include "pickers/area_combo_box.h"

#include <array>

#include "base/text.h"
#include "frame/kvdbkvn/db_dataset_set.h"
#include "frame/kvdbkvn/db_util.h"
#include "frame/kvlogs/log.h"

namespace catalogue = kv::catalogue;

namespace {

/// Whether no area box of the process has been filled yet.
bool g_firstFill = true;

/// The rows that switch the mode stand first in the list.
constexpr int kLabelRows = 2;

struct ModeLabel {
    const char* label;
    int mode;
};

constexpr std::array<ModeLabel, 3> kModeLabels{{
    {catalogue::kLabelAreaName, catalogue::kAreaName},
    {catalogue::kLabelAreaCode, catalogue::kAreaCode},
    {catalogue::kLabelMmsCode, catalogue::kMmsCode},
}};

std::string SelectLabels(const char* first, const char* second) {
    return std::string("select '") + first + "' from dual union select '" + second +
           "' from dual union ";
}

std::string Quoted(const std::string& text) {
    return "'" + text + "'";
}

}  // namespace

void CKvAreaComboBox::SetBlkCombo(CKvBlkComboBox* combo) {
    m_pBlkCombo = combo;
    if (m_pBlkCombo) m_pBlkCombo->SetMode(m_nMode);
}

std::string CKvAreaComboBox::AreaQuery() const {
    const auto distinct = [this](const char* column) {
        return std::string("select distinct ") + column + " from " + m_sTable;
    };
    switch (m_nMode) {
        case catalogue::kAreaCode:
            return SelectLabels(catalogue::kLabelAreaName, catalogue::kLabelMmsCode) +
                   distinct(catalogue::kColumnAreaCode);
        case catalogue::kAreaName:
            return SelectLabels(catalogue::kLabelAreaCode, catalogue::kLabelMmsCode) +
                   distinct(catalogue::kColumnAreaName);
        case catalogue::kMmsCode:
            return SelectLabels(catalogue::kLabelAreaName, catalogue::kLabelAreaCode) +
                   distinct(catalogue::kColumnMmsCode) + " where " + catalogue::kColumnMmsCode +
                   " is not null";
        default:
            return {};
    }
}

void CKvAreaComboBox::Fill(const std::string& query, bool& firstFill) {
    if (m_pBlkCombo) m_pBlkCombo->ResetContent();
    const bool clear = !firstFill;
    firstFill = false;
    FillFromQuery(query, clear);
}

void CKvAreaComboBox::V_InitializeCombo() {
    if (m_sTable.empty()) {
        m_sTable = CKvDbDatasetSet::S_GetGlobalOwner() + "." +
                   CKvDbDatasetSet::S_GetGlobalDataset() + catalogue::kAreaTable;
    }
    Fill(AreaQuery(), g_firstFill);
}

void CKvAreaComboBox::V_SelChanged(bool bCommit) {
    const DWORD selection = GetEditSel();
    const int start = LOWORD(selection);
    const int end = HIWORD(selection);
    const int row = GetCurSel();

    std::string text;
    if (row != CB_ERR) {
        CString rowText;
        GetLBText(row, rowText);
        text = rowText.str();
    } else if (bCommit) {
        text = WindowText();
    } else {
        return;
    }

    // A half-typed text that completion has filled up runs no query yet.
    const bool whole = start == 0 && end == static_cast<int>(text.size());
    const bool label = row >= 0 && row < kLabelRows;
    if (start != end && !whole && !label && !bCommit) return;

    TakeText(text);

    if (!m_pBlkCombo) return;
    m_pBlkCombo->EnableWindow(TRUE);
    if (EnableBlkCombo() && m_pBlkCombo->WindowText().empty()) m_pBlkCombo->SetFocus();
}

void CKvAreaComboBox::TakeText(const std::string& text) {
    for (const ModeLabel& each : kModeLabels) {
        if (text == each.label) {
            m_nMode = each.mode;
            V_InitializeCombo();
            return;
        }
    }
    if (text.empty() || !m_pBlkCombo) return;
    m_pBlkCombo->SetMode(m_nMode);
    m_pBlkCombo->SetArea(text);
    m_pBlkCombo->V_InitializeCombo();
}

bool CKvAreaComboBox::EnableBlkCombo() {
    const std::string text = WindowText();
    if (FindStringExact(0, text.c_str()) != CB_ERR) {
        const DWORD selection = GetEditSel();
        const int start = LOWORD(selection);
        const int end = HIWORD(selection);
        if (start == end || (start == 0 && end == static_cast<int>(text.size()))) return true;
    }
    if (m_pBlkCombo && !m_pBlkCombo->WindowText().empty()) m_pBlkCombo->SetWindowText("");
    return false;
}

std::string CKvAreaComboBox::AreacodesOfMms(const std::string& mmsCode, bool bQuoted) const {
    std::string codes;
    for (const std::string& code : CKvDbUtil::S_GetAreacodesFromMMS(mmsCode)) {
        if (!code.empty()) codes += (bQuoted ? Quoted(code) : code) + ",";
    }
    if (codes.empty()) return codes;
    codes.pop_back();
    return bQuoted ? "(" + codes + ")" : codes;
}

std::string CKvAreaComboBox::GetAreacode(bool bQuoted) const {
    const std::string area = GetArea();
    if (area.empty()) return {};

    std::string code;
    if (m_nMode == catalogue::kAreaCode) {
        code = area;
    } else if (m_nMode == catalogue::kAreaName) {
        code = CKvDbUtil::S_GetArea(area, false);
    } else {
        const std::string block = m_pBlkCombo ? m_pBlkCombo->GetBlk(true) : std::string();
        if (block.empty() || block == catalogue::kAllBlocks) return AreacodesOfMms(area, bQuoted);
        code = CKvDbUtil::S_GetAreacodeFromMMSandBlk(area, m_pBlkCombo->GetBlk(false));
    }
    return bQuoted && !code.empty() ? Quoted(code) : code;
}

int CKvAreaComboBox::RowOf(const std::string& area) const {
    const int row = FindString(0, area.c_str());
    CString found;
    if (row != CB_ERR) GetLBText(row, found);
    // A column of fixed width pads its texts.
    return kv::EqualsNoCase(kv::Trim(found.str()), kv::Trim(area)) ? row : CB_ERR;
}

void CKvAreaComboBox::SetArea(const std::string& areacode) {
    std::string text;
    switch (m_nMode) {
        case catalogue::kMmsCode:
            text = CKvDbUtil::S_GetAreaName(areacode, true);
            break;
        case catalogue::kAreaName:
            text = CKvDbUtil::S_GetAreaName(areacode, false);
            break;
        case catalogue::kAreaCode:
            text = areacode;
            break;
        default:
            break;
    }
    const int row = text.empty() ? CB_ERR : RowOf(text);
    if (row == CB_ERR) {
        CKvLog::Output("Selected area could not be found from the database table", 101, false);
        return;
    }
    SetCurSel(row);
    V_SelChanged(true);
}
