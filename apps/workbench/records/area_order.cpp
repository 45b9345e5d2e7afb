#include "workbench/records/area_order.h"

#include <algorithm>

#include "frame/catalogue.h"
#include "frame/kvdbkvn/table_owner.h"
#include "workbench/dataset.h"

namespace workbench {

namespace {

std::string OrderStatement(const std::vector<std::string>& areaLiterals, bool custom) {
    std::string list;
    for (const std::string& area : areaLiterals)
        list += (list.empty() ? "" : ", ") + area;
    const std::string of =
        TableName(kv::catalogue::kAreaTable) + " a where a.stcode in (" + list + ")";
    if (!custom) return "select a.stcode from " + of + " order by a.areaname";
    return "select a.stcode from " + CKvTableOwner().GetTableOwner().str() +
           ".nvd2000_area_order o, " + of + " and o.areaname = a.areaname order by o.seq";
}

}  // namespace

std::vector<std::string> Ordered(std::vector<std::string> areaLiterals, bool custom) {
    if (areaLiterals.size() < 2) return areaLiterals;
    const Rows rows(OrderStatement(areaLiterals, custom));
    auto next = areaLiterals.begin();
    for (int row = 0; row < rows.Count(); ++row) {
        const auto at = std::find(next, areaLiterals.end(), Quoted(rows.Cell(row, 0)));
        if (at == areaLiterals.end()) continue;
        std::rotate(next, at, at + 1);
        ++next;
    }
    return areaLiterals;
}

}  // namespace workbench
