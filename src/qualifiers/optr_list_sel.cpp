#include "qualifiers/optr_list_sel.h"

CKvGuiOptrListSel::CKvGuiOptrListSel(const std::string& column, const std::string& keyColumn,
                                     const std::string& table, const std::string& condition,
                                     CComboBox* combo, std::vector<std::string>& values,
                                     UINT templateId, CWnd* parent)
    : CKvGuiListSel(column, table, combo, values, templateId, parent),
      m_sOptrKeyColumn(keyColumn),
      m_sOptrTable(table),
      m_sOptrCondition(condition) {}

CKvGuiOptrListSel::CKvGuiOptrListSel(const std::string& column, const std::string& keyColumn,
                                     const std::string& table, const std::string& condition,
                                     CEdit* edit, std::vector<std::string>& values, CWnd* parent)
    : CKvGuiListSel(column, table, edit, values, parent),
      m_sOptrKeyColumn(keyColumn),
      m_sOptrTable(table),
      m_sOptrCondition(condition) {}

std::string CKvGuiOptrListSel::V_SqlQuery() {
    return "SELECT DISTINCT " + m_sColumn + " FROM " + m_sOptrTable + " WHERE " + m_sOptrKeyColumn +
           " in " + m_sOptrCondition + " AND " + m_sColumn + " LIKE '" + FindText() +
           "%' ORDER BY " + m_sColumn;
}

const kv::MessageMap& CKvGuiOptrListSel::Messages() {
    static const kv::MessageMap kMap{&CKvGuiListSel::Messages(), {}};
    return kMap;
}
