#include "pickers/built_map_area_combo_box.h"

#include <vector>

#include "base/text.h"
#include "frame/kvcom/cancelled.h"
#include "frame/kvdbkvn/db_abs_data_mgr.h"
#include "frame/kvdbkvn/db_dataset_set.h"
#include "frame/kvdbkvn/db_util.h"
#include "frame/kvdbkvn/sql_literal.h"
#include "frame/kvdbkvn/tell_failure.h"
#include "pickers/inside_map.h"

namespace catalogue = kv::catalogue;

namespace {

/// Whether no area box of a built map has been filled yet in the process.
bool g_firstFill = true;

/// Column 0 of every row.
std::vector<std::string> ColumnOf(const std::string& sql) {
    CKvDbAbsDataMgr manager(1);
    manager.Connect();
    manager.Select(sql);
    std::vector<std::string> cells;
    for (int row = 0; row < manager.NumberOfRows(); ++row)
        cells.emplace_back(manager.GetItem(row, 0));
    manager.FreeData();
    manager.Disconnect();
    return cells;
}

}  // namespace

std::string CKvBuiltMapAreaComboBox::AreaCodesInside(const char* select) const {
    const std::string dataset =
        CKvDbDatasetSet::S_GetGlobalOwner() + "." + CKvDbDatasetSet::S_GetGlobalDataset();
    return std::string(select) + " areacode from " + dataset + "_LBI I, " + dataset +
           "_LBV V  where (I.refnum = V.refnum)" +
           kv::pickers::InsideMap(GetMinLat(), GetMaxLat(), GetMinLon(), GetMaxLon());
}

std::string CKvBuiltMapAreaComboBox::AreasInside() const {
    const bool abbreviated = m_nMode == catalogue::kMmsCode;
    const kv::db::LookUpsThrow failures;
    std::string list;
    for (const std::string& code : ColumnOf(AreaCodesInside("select distinct"))) {
        const std::string area = CKvDbUtil::S_GetAreaName(code, abbreviated);
        list += (list.empty() ? "" : ",") + kv::db::SqlLiteral(area);
    }
    return list;
}

std::string CKvBuiltMapAreaComboBox::QueryInside() const {
    if (!AreaColumn()) return {};
    const std::string column = AreaColumn();
    const std::string query = LabelQuery() + "(" + DistinctAreas() + " where ";
    switch (m_nMode) {
        case catalogue::kAreaCode:
            // The bracket too many has always been there; the server does without it.
            return query + column + " in (" + AreaCodesInside("select") + ")))";
        case catalogue::kAreaName:
            return query + column + " in (" + AreasInside() + "))";
        default:
            return query + column + " is not null and (" + column + " in (" + AreasInside() + ")))";
    }
}

void CKvBuiltMapAreaComboBox::V_InitializeCombo() {
    EnsureTable();
    std::string query;
    try {
        query = QueryInside();
    } catch (const CKvCancelled&) {
        kv::db::ShowCancelled(*this);
        return;
    } catch (const CKvException&) {
        ShowLabelsAlone();
        throw;
    }
    const bool filled = Fill(query, g_firstFill);
    if (!filled && !kv::db::SaysCancelled(*this) && GetCount() == 0) ShowLabelsAlone();
}
