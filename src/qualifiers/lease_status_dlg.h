#pragma once

#include "qualifiers/check_list_dialog.h"

/// Picks lease status words from five groups of check boxes.
class KVGUICTL_API CKvGuiLeaseStatusDlg : public kv::CheckListDialog {
public:
    /// Shows nothing and gives nothing.
    explicit CKvGuiLeaseStatusDlg(CWnd* parent = nullptr);
    CKvGuiLeaseStatusDlg(CComboBox* combo, std::vector<std::string>& values, bool readOnly,
                         CWnd* parent);

    /// Append the group's checked words to the vector.
    void SaveActives();
    void SaveInactives();
    void SaveStates();
    void SaveHelds();
    void SaveSpecials();
    void EnableDisableLeaseStatusDlg() { EnableDisable(); }

    static const kv::MessageMap& Messages();
    const kv::MessageMap& GetMessageMap() const override { return Messages(); }

protected:
    /// A click on an ALL box sets its members.
    void OnCheckActiveAll();
    void OnCheckInactiveAll();
    void OnCheckStateAll();
    void OnCheckHeldAll();
    void OnCheckSpecialAll();
    /// A click on a member sets its ALL box.
    void OnActive();
    void OnInactive();
    void OnState();
    void OnHold();
    void OnSpecial();
    void OnButtonClear() { ClearAll(); }
};
