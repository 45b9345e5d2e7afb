#pragma once

#include "qualifiers/check_list_dialog.h"

/// Picks pipeline product codes from four groups of check boxes.
class KVGUICTL_API CKvGuiPipeProductDlg : public kv::CheckListDialog {
public:
    /// Shows nothing and gives nothing.
    explicit CKvGuiPipeProductDlg(CWnd* parent = nullptr);
    CKvGuiPipeProductDlg(CComboBox* combo, std::vector<std::string>& values, bool readOnly,
                         CWnd* parent);

    void SaveCombServ();
    void SaveGasRel();
    void SaveOilRel();
    void SaveOtherServ();
    void EnableDisableProductDlg() { EnableDisable(); }

    static const kv::MessageMap& Messages();
    const kv::MessageMap& GetMessageMap() const override { return Messages(); }

protected:
    /// A click on an ALL box sets its members.
    void OnCheckPpCombServAll();
    void OnCheckPpOilRelAll();
    void OnCheckPpGasRelAll();
    void OnCheckPpOtherServAll();
    /// A click on a member sets its ALL box.
    void OnCombServ();
    void OnOilRel();
    void OnGasRel();
    void OnOtherServ();
};
