#include "pickers/area_combo_box.h"

#include <algorithm>
#include <array>
#include <set>
#include <utility>

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
    const char* column;
    const char* toolTip;
    const char* name;
};

constexpr std::array<ModeLabel, 3> kModeLabels{{
    {catalogue::kLabelAreaName, catalogue::kAreaName, catalogue::kColumnAreaName, "Areas by name",
     "Area, by name"},
    {catalogue::kLabelAreaCode, catalogue::kAreaCode, catalogue::kColumnAreaCode,
     "Areas by area code", "Area, by area code"},
    {catalogue::kLabelMmsCode, catalogue::kMmsCode, catalogue::kColumnMmsCode, "Areas by MMS code",
     "Area, by MMS code"},
}};

/// Null for an unknown mode.
const ModeLabel* FindMode(int mode) {
    const auto at = std::ranges::find(kModeLabels, mode, &ModeLabel::mode);
    return at == kModeLabels.end() ? nullptr : &*at;
}

std::string Quoted(const std::string& text) {
    return "'" + text + "'";
}

}  // namespace

void CKvAreaComboBox::SetBlkCombo(CKvBlkComboBox* combo) {
    m_pBlkCombo = combo;
    if (m_pBlkCombo) m_pBlkCombo->SetMode(m_nMode);
}

void CKvAreaComboBox::SetMode(int mode) {
    m_nMode = mode;
    ShowMode();
}

void CKvAreaComboBox::ShowMode() {
    const ModeLabel* mode = FindMode(m_nMode);
    if (m_hWnd) m_hWnd->SetToolTip(mode ? mode->toolTip : "");
}

std::string CKvAreaComboBox::SpokenName() const {
    const ModeLabel* mode = FindMode(m_nMode);
    return mode ? mode->name : "";
}

const char* CKvAreaComboBox::AreaColumn() const {
    const ModeLabel* mode = FindMode(m_nMode);
    return mode ? mode->column : nullptr;
}

std::string CKvAreaComboBox::LabelQuery() const {
    std::string query;
    for (const ModeLabel& each : kModeLabels) {
        if (each.mode != m_nMode)
            query += std::string("select '") + each.label + "' from dual union ";
    }
    return query;
}

std::string CKvAreaComboBox::DistinctAreas() const {
    return std::string("select distinct ") + AreaColumn() + " from " + m_sTable;
}

std::string CKvAreaComboBox::AreaQuery() const {
    if (!AreaColumn()) return {};
    const std::string query = LabelQuery() + DistinctAreas();
    if (m_nMode != catalogue::kMmsCode) return query;
    return query + " where " + catalogue::kColumnMmsCode + " is not null";
}

bool CKvAreaComboBox::Fill(const std::string& query, bool& firstFill) {
    if (m_pBlkCombo) m_pBlkCombo->ResetContent();
    const bool clear = !firstFill;
    firstFill = false;
    return FillFromQuery(query, clear);
}

void CKvAreaComboBox::ShowLabelsAlone() {
    if (m_pBlkCombo) m_pBlkCombo->ResetContent();
    ResetContent();
    if (!AreaColumn()) return;
    std::set<std::string> labels;
    for (const ModeLabel& each : kModeLabels) {
        if (each.mode != m_nMode) labels.insert(each.label);
    }
    for (const std::string& label : labels)
        AddString(label.c_str());
}

void CKvAreaComboBox::EnsureTable() {
    if (!m_sTable.empty()) return;
    m_sTable = CKvDbDatasetSet::S_GetGlobalOwner() + "." + CKvDbDatasetSet::S_GetGlobalDataset() +
               catalogue::kAreaTable;
}

void CKvAreaComboBox::V_InitializeCombo() {
    EnsureTable();
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

    const bool filled = TakeText(text);

    if (!m_pBlkCombo) return;
    m_pBlkCombo->EnableWindow(TRUE);
    if (!EnableBlkCombo() || !m_pBlkCombo->WindowText().empty()) return;
    const bool typing = HoldsFocus() && start == end && text == WindowText();
    if (typing) {
        if (!GoesOn(text)) m_pBlkCombo->SetFocusBehindTyping();
    } else if (HoldsFocus() || (filled && GetFocus())) {
        // Who only passes through the box goes where they want to, and where no control has the
        // focus, a widget of the host's own has it and keeps it.
        m_pBlkCombo->SetFocus();
    }
}

bool CKvAreaComboBox::HoldsFocus() const {
    const CWnd* focus = GetFocus();
    return m_hWnd && focus && focus->m_hWnd->IsSelfOrDescendantOf(*m_hWnd);
}

bool CKvAreaComboBox::GoesOn(const std::string& text) const {
    const int row = FindStringExact(-1, text.c_str());
    return FindString(row, text.c_str()) != row;
}

bool CKvAreaComboBox::TakeText(const std::string& text) {
    for (const ModeLabel& each : kModeLabels) {
        if (text == each.label) {
            SetMode(each.mode);
            V_InitializeCombo();
            return true;
        }
    }
    if (text.empty() || !m_pBlkCombo) return false;
    m_pBlkCombo->SetMode(m_nMode);
    m_pBlkCombo->SetArea(text);
    if (m_pBlkCombo->IsFilled()) return false;
    m_pBlkCombo->V_InitializeCombo();
    return true;
}

bool CKvAreaComboBox::IsLookingAtRow() const {
    const bool drops = (GetStyle() & CBS_TYPEMASK) != CBS_SIMPLE;
    return drops && GetDroppedState() && GetCurSel() != CB_ERR;
}

BOOL CKvAreaComboBox::OnCmdMsg(UINT id, int code, void* extra, void* info) {
    if (code == CBN_SELCHANGE && IsLookingAtRow()) {
        m_bLookedAtRow = true;
        return CComboBoxExx::OnCmdMsg(id, code, extra, info);
    }
    if (code == CBN_CLOSEUP && std::exchange(m_bLookedAtRow, false)) V_SelChanged(true);
    return CKvDbComboBox::OnCmdMsg(id, code, extra, info);
}

BOOL CKvAreaComboBox::PreTranslateMessage(MSG* message) {
    if (message->message == WM_KEYDOWN && message->wParam == VK_TAB) TakeWhatIsShown();
    return CKvDbComboBox::PreTranslateMessage(message);
}

/// Takes the row of the open list, or the completed text, so that Tab finds the block box open.
void CKvAreaComboBox::TakeWhatIsShown() {
    ShowDropDown(FALSE);
    const auto end = static_cast<int>(WindowText().size());
    SetEditSel(end, end);
    if (m_pBlkCombo && EnableBlkCombo()) m_pBlkCombo->EnableWindow(TRUE);
}

void CKvAreaComboBox::OnEditUpdate() {
    // The labels begin with a blank, and so a blank alone would complete to the first of them.
    if (!kv::Trim(WindowText()).empty()) CKvDbComboBox::OnEditUpdate();
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

const kv::MessageMap& CKvAreaComboBox::Messages() {
    static const kv::MessageEntry kEntries[] = {
        kv::OnReflected<&CKvAreaComboBox::OnEditUpdate>(CBN_EDITUPDATE),
    };
    static const kv::MessageMap kMap{&CKvDbComboBox::Messages(), kEntries};
    return kMap;
}
