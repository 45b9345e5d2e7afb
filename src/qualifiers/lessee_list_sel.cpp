#include "qualifiers/lessee_list_sel.h"

#include "base/numbers.h"
#include "qualifiers/list_sel_ids.h"
#include "window/controls/combo_box.h"
#include "window/controls/list_box.h"

using namespace kv::list_sel;

namespace {

constexpr const char* kPercents[] = {"0",  "10", "20", "30", "40", "50",
                                     "60", "70", "80", "90", "100"};
constexpr int kLeastPercent = 0;
constexpr int kMostPercent = 100;

/// What a person may use only when any lessee may match.
constexpr int kAnyOptions[] = {kOr, kAnd, kSpecifyPercent};
constexpr int kRangeControls[] = {kMinLabel, kMaxLabel, kMin, kMax};

}  // namespace

CKvGuiLesseeListSel::CKvGuiLesseeListSel(CWnd* parent)
    : CKvGuiListSel(kLesseeTemplate, parent),
      m_pSpecPercent(&m_bNoSpecPercent),
      m_pAnd(&m_bNoAnd),
      m_pOr(&m_bNoOr),
      m_pAny(&m_bNoAny),
      m_pHigh(&m_bNoHigh),
      m_pPercents(&m_noPercents) {}

CKvGuiLesseeListSel::CKvGuiLesseeListSel(const std::string& column, const std::string& table,
                                         CComboBox* combo, std::vector<std::string>& values,
                                         bool& high, bool& any, bool& orFlag, bool& andFlag,
                                         bool& specifyPercent,
                                         std::vector<T_KV_LESSEE_PER_STRUCT>& percents,
                                         UINT templateId, CWnd* parent)
    : CKvGuiListSel(column, table, combo, values, templateId, parent),
      m_pSpecPercent(&specifyPercent),
      m_pAnd(&andFlag),
      m_pOr(&orFlag),
      m_pAny(&any),
      m_pHigh(&high),
      m_pPercents(&percents) {}

BOOL CKvGuiLesseeListSel::OnInitDialog() {
    ConvertToMap();
    CKvGuiListSel::OnInitDialog();
    for (const int id : {kMin, kMax}) {
        for (const char* percent : kPercents)
            Control<CComboBox>(id).AddString(percent);
    }
    UpdateControls();
    return TRUE;
}

void CKvGuiLesseeListSel::ConvertToMap() {
    m_mapPercent.clear();
    for (const T_KV_LESSEE_PER_STRUCT& each : *m_pPercents) {
        m_mapPercent[each.sCompany] = {each.nMinPercent, each.nMaxPercent};
    }
}

void CKvGuiLesseeListSel::Choose(bool* on, bool* off) {
    *on = true;
    *off = false;
    UpdateControls();
}

void CKvGuiLesseeListSel::OnRadioAny() {
    Choose(m_pAny, m_pHigh);
}

void CKvGuiLesseeListSel::OnRadioHigh() {
    Choose(m_pHigh, m_pAny);
}

void CKvGuiLesseeListSel::OnRadioAnd() {
    Choose(m_pAnd, m_pOr);
}

void CKvGuiLesseeListSel::OnRadioOr() {
    Choose(m_pOr, m_pAnd);
}

void CKvGuiLesseeListSel::OnCheckSpecPer() {
    *m_pSpecPercent = IsDlgButtonChecked(kSpecifyPercent) != 0;
    UpdateControls();
}

void CKvGuiLesseeListSel::ShowPercent(int id, const std::string& text) {
    auto& combo = Control<CComboBox>(id);
    combo.SetWindowText(text.c_str());
    const int row = combo.FindStringExact(-1, text.c_str());
    if (row != CB_ERR) combo.SetCurSel(row);
}

void CKvGuiLesseeListSel::ShowRange(const std::string& company) {
    const auto range = m_mapPercent.find(company);
    const bool known = range != m_mapPercent.end();
    ShowPercent(kMin, std::to_string(known ? range->second.first : kLeastPercent));
    ShowPercent(kMax, std::to_string(known ? range->second.second : kMostPercent));
}

void CKvGuiLesseeListSel::UpdateControls() {
    const auto enable = [this](const auto& ids, bool on) {
        for (const int id : ids)
            Control<CWnd>(id).EnableWindow(on);
    };
    ShowPercent(kMin, std::to_string(kLeastPercent));
    ShowPercent(kMax, std::to_string(kMostPercent));
    const bool hasRows = Selected().GetCount() > 0;
    const bool any = hasRows && !*m_pHigh;
    const bool ranges = any && *m_pSpecPercent && IsCaretRowSelected();
    for (const int id : {kHighest, kAny})
        Control<CWnd>(id).EnableWindow(hasRows);
    enable(kAnyOptions, any);
    enable(kRangeControls, ranges);
    if (!hasRows) return;

    CheckDlgButton(kHighest, !any);
    CheckDlgButton(kAny, any);
    if (!any) return;
    CheckDlgButton(kOr, *m_pOr);
    CheckDlgButton(kAnd, !*m_pOr);
    if (*m_pSpecPercent) CheckDlgButton(kSpecifyPercent, BST_CHECKED);
    if (ranges) ShowRange(CurrentCompany());
}

bool CKvGuiLesseeListSel::IsCaretRowSelected() const {
    const int row = Selected().GetCurSel();
    return row != LB_ERR && Selected().GetSel(row) > 0;
}

std::string CKvGuiLesseeListSel::CurrentCompany() const {
    const int row = Selected().GetCurSel();
    CString name;
    if (row != LB_ERR) Selected().GetText(row, name);
    return name.str();
}

void CKvGuiLesseeListSel::OnSelchangeSelectList() {
    const std::string company = CurrentCompany();
    if (!company.empty() && *m_pAny && *m_pSpecPercent && m_mapPercent.count(company)) {
        ShowRange(company);
    }
    UpdateControls();
}

bool CKvGuiLesseeListSel::AddCompany(const std::string& name) {
    return !m_mapPercent.emplace(name, Range{kLeastPercent, kMostPercent}).second;
}

void CKvGuiLesseeListSel::TakePercent(int Range::*limit, const std::string& text) {
    const std::string company = CurrentCompany();
    if (company.empty()) return;
    AddCompany(company);
    m_mapPercent[company].*limit = kv::Atoi(text);
}

std::string CKvGuiLesseeListSel::PickedText(int id) const {
    const auto& combo = Control<CComboBox>(id);
    const int row = combo.GetCurSel();
    CString text;
    if (row != CB_ERR) combo.GetLBText(row, text);
    return text.str();
}

void CKvGuiLesseeListSel::OnEditchangeComboMin() {
    TakePercent(&Range::first, DlgItemText(kMin));
}

void CKvGuiLesseeListSel::OnSelchangeComboMin() {
    TakePercent(&Range::first, PickedText(kMin));
}

void CKvGuiLesseeListSel::OnEditchangeComboMax() {
    TakePercent(&Range::second, DlgItemText(kMax));
}

void CKvGuiLesseeListSel::OnSelchangeComboMax() {
    TakePercent(&Range::second, PickedText(kMax));
}

void CKvGuiLesseeListSel::OnClearButton() {
    RemoveAll();
    *m_pHigh = true;
    *m_pAny = false;
    *m_pOr = true;
    *m_pAnd = false;
    *m_pSpecPercent = false;
    CheckDlgButton(kSpecifyPercent, BST_UNCHECKED);
    Control<CWnd>(kSpecifyPercent).EnableWindow(FALSE);
    UpdateControls();
}

void CKvGuiLesseeListSel::OnOK() {
    if (IsDlgButtonChecked(kHighest)) {
        *m_pHigh = true;
        *m_pOr = true;
        *m_pAnd = false;
    } else {
        *m_pAny = true;
        *m_pAnd = IsDlgButtonChecked(kAnd) != 0;
        *m_pOr = !*m_pAnd;
        *m_pSpecPercent = IsDlgButtonChecked(kSpecifyPercent) != 0;
        if (*m_pSpecPercent) ConvertToVector();
    }
    CKvGuiListSel::OnOK();
}

void CKvGuiLesseeListSel::ConvertToVector() {
    m_pPercents->clear();
    const int count = Selected().GetCount();
    if (count == 0) {
        AfxMessageBox("Nothing in listbox!", 0, 0);
        return;
    }
    for (int row = 0; row < count; ++row) {
        CString name;
        Selected().GetText(row, name);
        AddCompany(name.str());
        const auto& [least, most] = m_mapPercent[name.str()];
        if (most < least) AfxMessageBox("NOTE: Max Percent is less than Min Percent!", 0, 0);
        m_pPercents->push_back({name.str(), least, most});
    }
}

const kv::MessageMap& CKvGuiLesseeListSel::Messages() {
    using Self = CKvGuiLesseeListSel;
    static const kv::MessageEntry kEntries[] = {
        kv::OnClicked<&Self::OnRadioAny>(kAny),
        kv::OnClicked<&Self::OnRadioHigh>(kHighest),
        kv::OnClicked<&Self::OnRadioAnd>(kAnd),
        kv::OnClicked<&Self::OnRadioOr>(kOr),
        kv::OnClicked<&Self::OnCheckSpecPer>(kSpecifyPercent),
        kv::OnControl<&Self::OnEditchangeComboMin>(CBN_EDITCHANGE, kMin),
        kv::OnControl<&Self::OnSelchangeComboMin>(CBN_SELCHANGE, kMin),
        kv::OnControl<&Self::OnEditchangeComboMax>(CBN_EDITCHANGE, kMax),
        kv::OnControl<&Self::OnSelchangeComboMax>(CBN_SELCHANGE, kMax),
        kv::OnControl<&Self::OnSelchangeSelectList>(LBN_SELCHANGE, kSelected),
        kv::OnClicked<&Self::OnClearButton>(kClear),
    };
    static const kv::MessageMap kMap{&CKvGuiListSel::Messages(), kEntries};
    return kMap;
}
