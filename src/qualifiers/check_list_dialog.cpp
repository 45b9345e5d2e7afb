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
      m_groups(groups),
      m_saveOrder(saveOrder),
      m_pValues(&values),
      m_pCombo(combo),
      m_bReadOnly(readOnly) {
    const std::string shown = combo ? combo->WindowText() : std::string();
    if (shown == catalogue::kListMarker) return;
    values.clear();
    if (!shown.empty()) values.push_back(shown);
}

BOOL CheckListDialog::OnInitDialog() {
    CDialog::OnInitDialog();
    for (const CheckGroup& group : m_groups) {
        for (const CheckMember& member : group.members) {
            const bool chosen = m_pValues && std::find(m_pValues->begin(), m_pValues->end(),
                                                       member.word) != m_pValues->end();
            if (chosen) CheckDlgButton(member.id, BST_CHECKED);
        }
        UpdateAllBox(group);
    }
    EnableDisable();
    return TRUE;
}

void CheckListDialog::OnBox(UINT id) {
    const auto box = static_cast<int>(id);
    for (const CheckGroup& group : m_groups) {
        if (box == group.allId) {
            CheckMembers(group, IsDlgButtonChecked(box) != 0);
            return;
        }
        const bool isMember =
            std::any_of(group.members.begin(), group.members.end(),
                        [box](const CheckMember& member) { return member.id == box; });
        if (isMember) {
            UpdateAllBox(group);
            return;
        }
    }
}

void CheckListDialog::CheckMembers(const CheckGroup& group, bool checked) {
    for (const CheckMember& member : group.members)
        CheckDlgButton(member.id, checked);
}

bool CheckListDialog::AllChecked(const CheckGroup& group) const {
    return std::all_of(group.members.begin(), group.members.end(), [this](const CheckMember& each) {
        return IsDlgButtonChecked(each.id) != 0;
    });
}

void CheckListDialog::UpdateAllBox(const CheckGroup& group) {
    CheckDlgButton(group.allId, AllChecked(group));
}

void CheckListDialog::ClearAll() {
    for (const CheckGroup& group : m_groups) {
        CheckDlgButton(group.allId, BST_UNCHECKED);
        CheckMembers(group, false);
    }
}

void CheckListDialog::SaveGroup(int index) {
    if (!m_pValues) return;
    const CheckGroup& group = m_groups[static_cast<std::size_t>(index)];
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
    const auto controls = m_hWnd->Children();
    for (const auto& control : controls) {
        CWnd::FromHandle(control.get())->EnableWindow(!m_bReadOnly || control->Id() == IDOK);
    }
}

}  // namespace kv
