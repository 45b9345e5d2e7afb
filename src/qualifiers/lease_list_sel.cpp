#include "qualifiers/lease_list_sel.h"

#include <algorithm>

#include "qualifiers/list_sel_ids.h"

using namespace kv::list_sel;

namespace {

struct LeaseDataset {
    int id;
    const char* codes;  ///< of the column lplana
};

constexpr LeaseDataset kDatasets[] = {
    {kFederal, "'C', 'E', 'W'"},
    {kLouisiana, "'L'"},
    {kTexas, "'T'"},
};

}  // namespace

CKvGuiLeaseListSel::CKvGuiLeaseListSel(const std::string& column, const std::string& table,
                                       CComboBox* combo, std::vector<std::string>& values,
                                       UINT templateId, CWnd* parent)
    : CKvGuiListSel(column, table, combo, values, templateId, parent) {}

BOOL CKvGuiLeaseListSel::OnInitDialog() {
    for (const LeaseDataset& each : kDatasets)
        CheckDlgButton(each.id, BST_CHECKED);
    return CKvGuiListSel::OnInitDialog();
}

std::string CKvGuiLeaseListSel::V_SqlQuery() {
    std::string query = "select distinct " + m_sColumn + " from " + m_sTable + " where " +
                        m_sColumn + " like " + "'" + MatchPattern() + "'";
    const auto isChecked = [this](const LeaseDataset& each) {
        return IsDlgButtonChecked(each.id) != 0;
    };
    if (!std::all_of(std::begin(kDatasets), std::end(kDatasets), isChecked)) {
        std::string codes;
        for (const LeaseDataset& each : kDatasets) {
            if (isChecked(each)) codes += (codes.empty() ? "" : ", ") + std::string(each.codes);
        }
        if (codes.empty()) {
            AfxMessageBox("Please select at least one lease dataset.", 0, 0);
            return {};
        }
        query += " and lplana in (" + codes + ") ";
    }
    return m_bSpecialOrderBy ? "(" + query + ") order by lesort(" + m_sColumn + ") " : query;
}

void CKvGuiLeaseListSel::OnButtonListFile() {
    CKvGuiListSel::OnButtonListFile();
}

void CKvGuiLeaseListSel::OnCheckListFile() {
    CKvGuiListSel::OnCheckListFile();
}

const kv::MessageMap& CKvGuiLeaseListSel::Messages() {
    static const kv::MessageEntry kEntries[] = {
        kv::OnClicked<&CKvGuiLeaseListSel::OnButtonListFile>(kListFileButton),
        kv::OnClicked<&CKvGuiLeaseListSel::OnCheckListFile>(kListFileCheck),
    };
    static const kv::MessageMap kMap{&CKvGuiListSel::Messages(), kEntries};
    return kMap;
}
