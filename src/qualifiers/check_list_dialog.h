#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <vector>

#include "window/dialogs/dialog.h"
#include "window/message_map.h"

class CComboBox;

namespace kv {

/// One check box of a group, and the word that it stands for.
struct CheckMember {
    int id;
    const char* word;
};

/// A group of check boxes under an "ALL" box. Words are saved in the order of the members, but for
/// the two exceptions: `allOrder`, where it is not empty, is the order when the ALL box is checked,
/// `singleOrder` the one when it is not.
struct CheckGroup {
    int allId;
    std::span<const CheckMember> members;
    std::span<const CheckMember> allOrder = {};
    std::span<const CheckMember> singleOrder = {};
};

/// What makes the entries of a group's boxes in the message table: of its ALL box, and of a member.
struct CheckHandlers {
    MessageEntry (*all)(int id);
    MessageEntry (*member)(int id);
};

/// The entries of every box; `handlers` in the order of the groups.
template <std::size_t kCount>
std::vector<MessageEntry> CheckEntries(const CheckGroup (&groups)[kCount],
                                       const CheckHandlers (&handlers)[kCount]) {
    std::vector<MessageEntry> entries;
    for (std::size_t group = 0; group < kCount; ++group) {
        entries.push_back(handlers[group].all(groups[group].allId));
        for (const CheckMember& member : groups[group].members)
            entries.push_back(handlers[group].member(member.id));
    }
    return entries;
}

/// Picks words from groups of check boxes. The status, product and lease dialogs are this machine
/// with three tables.
///
/// A combo box and a vector of the caller's go in, neither owned. When it is made: "<LIST>" in the
/// combo box lets the vector stand, any other text replaces its content. On IDOK the vector holds
/// the checked words, group by group in the order of saving, and the combo box reads "<LIST>" for
/// more than one, the word for one, nothing for none. On IDCANCEL both stand.
class KVGUICTL_API CheckListDialog : public CDialog {
public:
    BOOL OnInitDialog() override;
    void OnOK() override;

protected:
    /// `groups` in the order of the template, with static lifetime; `saveOrder` are their indices.
    CheckListDialog(UINT templateId, CWnd* parent, std::span<const CheckGroup> groups,
                    std::span<const int> saveOrder);
    CheckListDialog(UINT templateId, CWnd* parent, std::span<const CheckGroup> groups,
                    std::span<const int> saveOrder, CComboBox* combo,
                    std::vector<std::string>& values, bool readOnly);

    /// Groups go by their indices. Sets every member to the state of the ALL box.
    void TakeAllBox(int group);
    /// Checks the ALL box where every member is checked, else unchecks it.
    void UpdateAllBox(int group);
    /// Unchecks every box.
    void ClearAll();
    /// Appends a group's checked words to the vector.
    void SaveGroup(int group);
    /// Where the dialog only shows the selection, nothing but OK can be used.
    void EnableDisable();

    std::vector<std::string>* m_pValues = nullptr;
    CComboBox* m_pCombo = nullptr;
    bool m_bReadOnly = false;

private:
    const CheckGroup& Group(int index) const;

    std::span<const CheckGroup> m_groups;
    std::span<const int> m_saveOrder;
};

}  // namespace kv
