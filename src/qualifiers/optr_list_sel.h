#pragma once

#include "qualifiers/list_sel.h"

/// Selects operators that stand under given keys; always matched at the start.
class KVGUICTL_API CKvGuiOptrListSel : public CKvGuiListSel {
public:
    CKvGuiOptrListSel() = default;
    /// `condition` is a ready text that follows "in": a list or a subquery in brackets.
    CKvGuiOptrListSel(const std::string& column, const std::string& keyColumn,
                      const std::string& table, const std::string& condition, CComboBox* combo,
                      std::vector<std::string>& values, UINT templateId, CWnd* parent);
    CKvGuiOptrListSel(const std::string& column, const std::string& keyColumn,
                      const std::string& table, const std::string& condition, CEdit* edit,
                      std::vector<std::string>& values, CWnd* parent);

    std::string V_SqlQuery() override;

    static const kv::MessageMap& Messages();
    const kv::MessageMap& GetMessageMap() const override { return Messages(); }

protected:
    std::string m_sOptrKeyColumn;
    std::string m_sOptrTable;
    std::string m_sOptrCondition;
};
