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
};
