#include "workbench/exports/export_tables.h"

#include <algorithm>
#include <utility>

namespace workbench {

namespace {

std::size_t LeastPlaces(geofiles::ShapeKind kind) {
    switch (kind) {
        case geofiles::ShapeKind::kPoint:
            return 1;
        case geofiles::ShapeKind::kLine:
            return 2;
        default:
            return 3;
    }
}

}  // namespace

void ExportTables::Begin(const geofiles::Table& head) {
    const auto found = std::ranges::find(tables_, head.name, &geofiles::Table::name);
    current_ = static_cast<std::size_t>(found - tables_.begin());
    if (found == tables_.end()) tables_.push_back(head);
}

void ExportTables::Add(geofiles::Row row) {
    geofiles::Table& table = tables_[current_];
    if (row.places.size() < LeastPlaces(table.kind)) {
        ++leftOut_;
    } else if (IsSeen(row)) {
        table.rows.push_back(std::move(row));
        ++count_;
    }
}

std::vector<geofiles::Table> ExportTables::Take() {
    std::erase_if(tables_, [](const geofiles::Table& table) { return table.rows.empty(); });
    return std::move(tables_);
}

bool ExportTables::IsSeen(const geofiles::Row& row) const {
    Box box;
    for (const Place& place : row.places)
        box.Include(ToMap(place));
    return box.Meets(seen_);
}

}  // namespace workbench
