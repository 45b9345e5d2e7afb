#include "workbench/exports/drawn_tables.h"

#include "base/numbers.h"
#include "workbench/document/map_shape.h"
#include "workbench/drawings/drawing_colors.h"
#include "workbench/results/cell_text.h"

namespace workbench {

namespace {

using geofiles::ShapeKind;
using geofiles::Table;

constexpr int kDecimals = 3;

std::string ColorText(int index) {
    return DrawnColor(index).name().toStdString();
}

/// Open lines and closed ones are of different shapes, and so are in tables of their own.
void AddLines(ExportTables& tables, const Drawings& drawings) {
    const std::vector<geofiles::Column> columns = {
        {"color"}, {"width", true}, {"line_type", true}, {"fill_color"}};
    for (const DrawnLine& line : drawings.lines) {
        tables.Begin(line.closed ? Table{"drawn_areas", ShapeKind::kOutline, columns}
                                 : Table{"drawn_lines", ShapeKind::kLine, columns});
        const bool filled = line.closed && line.filled;
        tables.Add({{ColorText(line.color), std::to_string(line.width), std::to_string(line.type),
                     filled ? ColorText(line.fillColor) : ""},
                    line.points});
    }
}

void AddTexts(ExportTables& tables, const Drawings& drawings) {
    tables.Begin({"drawn_texts",
                  ShapeKind::kPoint,
                  {{"text"}, {"height_in", true}, {"angle", true}, {"color"}}});
    for (const DrawnText& text : drawings.texts)
        tables.Add({{CellInUtf8(text.text), kv::FormatFixed(text.height, kDecimals),
                     kv::FormatFixed(text.angle, kDecimals), ColorText(text.color)},
                    {text.at}});
}

void AddFills(ExportTables& tables, const Drawings& drawings, const MapModel& model) {
    tables.Begin({"filled_blocks", ShapeKind::kOutline, {{"areacode"}, {"block"}, {"color"}}});
    for (const auto& [key, color] : drawings.fills) {
        const AreaMap* area = model.FindArea(key.area);
        const int block = area ? area->blocks.Find(key.block) : -1;
        if (block < 0) continue;
        geofiles::Row row{{key.area, CellInUtf8(key.block), ColorText(color)}, {}};
        for (const Point& corner : area->blocks.Points(static_cast<std::size_t>(block)))
            row.places.push_back(ToPlace(corner));
        tables.Add(std::move(row));
    }
}

}  // namespace

void AddDrawings(ExportTables& tables, const Drawings& drawings, const MapModel& model) {
    AddLines(tables, drawings);
    AddTexts(tables, drawings);
    AddFills(tables, drawings, model);
}

void AddFrame(ExportTables& tables, const BuiltMap& map) {
    std::vector<Place> edge = EdgeOf(map);
    if (edge.empty()) return;
    tables.Begin({"map_frame", ShapeKind::kOutline, {{"name"}, {"projection"}, {"scale"}}});
    tables.Add({{CellInUtf8(map.name), CellInUtf8(ProjectionName(map.Projection())),
                 ScaleText(map).toStdString()},
                std::move(edge)});
}

}  // namespace workbench
