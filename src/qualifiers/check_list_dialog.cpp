#include "qualifiers/check_list_dialog.h"

#include <algorithm>

#include "frame/catalogue.h"
#include "window/controls/combo_box.h"

namespace kv {

CheckListDialog::CheckListDialog(UINT templateId, CWnd* parent, std::span<const CheckGroup> groups,
                                 std::span<const int> saveOrder)
    : CDialog(templateId, parent), m_groups(groups), m_saveOrder(saveOrder) {}

CheckListDialog::CheckListDialog(UINT templateId, CWnd* parent, std::span<const CheckGroup> groups,
                                 std::span<const int> saveOrder, CComboBox* combo,
                                 std::vector<std::string>& values, bool readOnly)
    : CDialog(templateId, parent),
      m_pValues(&values),
      m_pCombo(combo),
      m_bReadOnly(readOnly),
      m_groups(groups),
      m_saveOrder(saveOrder) {
    const std::string shown = combo ? combo->WindowText() : std::string();
    if (shown == catalogue::kListMarker) return;
    values.clear();
    if (!shown.empty()) values.push_back(shown);
}

BOOL CheckListDialog::OnInitDialog() {
    CDialog::OnInitDialog();
    for (int group = 0; group < static_cast<int>(m_groups.size()); ++group) {
        for (const CheckMember& member : Group(group).members) {
            const bool chosen = m_pValues && std::find(m_pValues->begin(), m_pValues->end(),
                                                       member.word) != m_pValues->end();
            if (chosen) CheckDlgButton(member.id, BST_CHECKED);
        }
        UpdateAllBox(group);
    }
    EnableDisable();
    return TRUE;
}

const CheckGroup& CheckListDialog::Group(int index) const {
    return m_groups[static_cast<std::size_t>(index)];
}

void CheckListDialog::TakeAllBox(int group) {
    const UINT checked = IsDlgButtonChecked(Group(group).allId);
    for (const CheckMember& member : Group(group).members)
        CheckDlgButton(member.id, checked);
}

void CheckListDialog::UpdateAllBox(int group) {
    const auto isChecked = [this](const CheckMember& each) {
        return IsDlgButtonChecked(each.id) != 0;
    };
    const auto& members = Group(group).members;
    CheckDlgButton(Group(group).allId, std::all_of(members.begin(), members.end(), isChecked));
}

void CheckListDialog::ClearAll() {
    for (int group = 0; group < static_cast<int>(m_groups.size()); ++group) {
        CheckDlgButton(Group(group).allId, BST_UNCHECKED);
        TakeAllBox(group);
    }
}

void CheckListDialog::SaveGroup(int index) {
    if (!m_pValues) return;
    const CheckGroup& group = Group(index);
    const bool all = IsDlgButtonChecked(group.allId) != 0;
    const auto exception = all ? group.allOrder : group.singleOrder;
    for (const CheckMember& member : exception.empty() ? group.members : exception) {
        if (all || IsDlgButtonChecked(member.id)) m_pValues->push_back(member.word);
    }
}

void CheckListDialog::OnOK() {
    if (m_pValues) {
        m_pValues->clear();
        for (const int group : m_saveOrder)
            SaveGroup(group);
        const std::string text = m_pValues->size() > 1    ? catalogue::kListMarker
                                 : m_pValues->size() == 1 ? m_pValues->front()
                                                          : std::string();
        if (m_pCombo) m_pCombo->SetWindowText(text.c_str());
    }
    CDialog::OnOK();
}

void CheckListDialog::EnableDisable() {
    if (!m_hWnd) return;
    const auto controls = m_hWnd->Children();
    for (const auto& control : controls) {
        CWnd::FromHandle(control.get())->EnableWindow(!m_bReadOnly || control->Id() == IDOK);
    }
}

}  // namespace kv
