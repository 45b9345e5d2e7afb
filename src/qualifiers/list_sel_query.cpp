// The statements that fill the Available list.

#include "qualifiers/list_sel.h"
#include "qualifiers/list_sel_ids.h"

using namespace kv::list_sel;

namespace {

std::string SelectDistinct(const std::string& column, const std::string& table,
                           const std::string& pattern) {
    return "select distinct " + column + " from " + table + " where " + column + " like " + "'" +
           pattern + "'";
}

/// One query for each table of a list with ";" between them.
std::string UnionOverTables(const std::string& column, const std::string& tables,
                            const std::string& pattern) {
    std::string query;
    std::size_t begin = 0;
    for (std::size_t end = tables.find(';'); end != std::string::npos;
         end = tables.find(';', begin)) {
        query += begin == 0 ? " " : " UNION ";
        query += SelectDistinct(column, tables.substr(begin, end - begin), pattern);
        begin = end + 1;
    }
    return query + " UNION " + SelectDistinct(column, tables.substr(begin), pattern);
}

}  // namespace

std::string CKvGuiListSel::MatchPattern() const {
    const std::string text = FindText();
    if (IsDlgButtonChecked(kContain)) return "%" + text + "%";
    if (IsDlgButtonChecked(kStartWith)) return text + "%";
    return "%" + text;
}

std::string CKvGuiListSel::V_SqlQuery() {
    const std::string pattern = MatchPattern();
    if (m_bTwoColumns) {
        const auto member = [&](const std::string& column) {
            return "(SELECT DISTINCT " + column + " FROM " + m_sTable + " WHERE " + column +
                   " LIKE " + "'" + pattern + "')";
        };
        return "(" + member(m_sColumn1) + " UNION " + member(m_sColumn2) + ")" + " ORDER BY " +
               m_sColumn1;
    }
    const std::string query = m_sTable.find(';') == std::string::npos
                                  ? SelectDistinct(m_sColumn, m_sTable, pattern)
                                  : UnionOverTables(m_sColumn, m_sTable, pattern);
    return m_bSpecialOrderBy ? "(" + query + ") order by lesort(" + m_sColumn + ") " : query;
}
