#pragma once

#include "qualifiers/check_list_dialog.h"

/// Picks pipeline status codes from two groups of check boxes.
class KVGUICTL_API CKvGuiPipeStatusDlg : public kv::CheckListDialog {
public:
    /// Shows nothing and gives nothing.
    explicit CKvGuiPipeStatusDlg(CWnd* parent = nullptr);
    CKvGuiPipeStatusDlg(CComboBox* combo, std::vector<std::string>& values, bool readOnly,
                        CWnd* parent);

    void SaveActives();
    void SaveInactives();
    void EnableDisableStatusDlg() { EnableDisable(); }

    static const kv::MessageMap& Messages();
    const kv::MessageMap& GetMessageMap() const override { return Messages(); }

protected:
    /// A click on an ALL box sets its members.
    void OnCheckActiveAll();
    void OnCheckInactiveAll();
    /// A click on a member sets its ALL box.
    void OnActive();
    void OnInActive();
};
