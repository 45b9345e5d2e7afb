#pragma once

#include "qualifiers/list_sel.h"

/// Selects leases, in the lease datasets that its check boxes tell: all three when it opens.
class KVGUICTL_API CKvGuiLeaseListSel : public CKvGuiListSel {
public:
    CKvGuiLeaseListSel(const std::string& column, const std::string& table, CComboBox* combo,
                       std::vector<std::string>& values, UINT templateId, CWnd* parent);

    /// Empty, and the user told, when no dataset is checked.
    std::string V_SqlQuery() override;
    BOOL OnInitDialog() override;

    static const kv::MessageMap& Messages();
    const kv::MessageMap& GetMessageMap() const override { return Messages(); }

protected:
    void OnButtonListFile();
    void OnCheckListFile();
};
