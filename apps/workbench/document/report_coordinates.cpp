#include "workbench/document/report_coordinates.h"

#include <algorithm>

#include "base/numbers.h"
#include "workbench/document/map_shape.h"

namespace workbench {

namespace {

constexpr int kDecimals = 2;

std::optional<Point> XyOf(const Place& place, const BuiltMap& map, MapPositions& usual) {
    DriverPlane plane = PlaneOf(map);
    if (!map.reportsInMapProjection) plane.code = usual.ProjectionAt(place);
    return plane.ToXY(place);
}

}  // namespace

void AddCoordinates(ResultTable& table, const BuiltMap& map, MapPositions& usual) {
    const bool any = std::ranges::any_of(
        table.keys, [](const ResultTable::Key& key) { return key.place.has_value(); });
    if (!any) return;
    const std::string where = std::string(map.Feet() ? "feet, " : "meters, ") +
                              (map.reportsInMapProjection ? "map projection" : "base projection");
    std::vector<std::string> cells;
    cells.reserve(table.cells.size() + 2 * table.keys.size());
    for (int row = 0; row < table.RowCount(); ++row) {
        for (int column = 0; column < table.ColumnCount(); ++column)
            cells.push_back(table.Cell(row, column));
        const auto& place = table.keys[static_cast<std::size_t>(row)].place;
        const auto xy = place ? XyOf(*place, map, usual) : std::nullopt;
        cells.push_back(xy ? kv::FormatFixed(xy->x, kDecimals) : "");
        cells.push_back(xy ? kv::FormatFixed(xy->y, kDecimals) : "");
    }
    table.columns.push_back({"X (" + where + ")", true});
    table.columns.push_back({"Y (" + where + ")", true});
    table.cells = std::move(cells);
}

}  // namespace workbench
