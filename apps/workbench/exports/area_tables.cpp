#include "workbench/exports/area_tables.h"

#include <optional>
#include <span>
#include <string_view>

#include "frame/catalogue.h"
#include "workbench/dataset.h"
#include "workbench/results/cell_text.h"

namespace workbench {

namespace {

using geofiles::ShapeKind;

struct Field {
    const char* name;
    /// SQL; "t" is the layer's table, "a" that of the areas.
    const char* expression;
    bool number = false;
};

/// A layer of the map as the database has it.
struct Source {
    const char* name;
    ShapeKind kind;
    FeatureLayer AreaMap::*things;
    bool MapLayers::*shown;  ///< null for what always is
    const char* table;       ///< suffix of the dataset's table
    const char* key;         ///< the column that tells its rows apart
    const char* vertices;    ///< suffix of the table of their places, by the same column; or null
    const char* latitude;
    const char* longitude;
    const char* label;                   ///< SQL for what the map reads as one
    std::optional<LabelLayer> replaced;  ///< of those labels that a document may replace
    std::span<const Field> fields;
};

constexpr Field kAreaCode{"areacode", "t.areacode"};
constexpr Field kAreaName{"area", "a.areaname"};
constexpr Field kBlock{"block", "t.lbnum||t.lbext"};
constexpr Field kOperator{"operator", "t.operator"};
constexpr Field kStatus{"status", "t.status"};
constexpr Field kWaterDepth{"water_depth", "t.water_depth", true};

constexpr Field kBlockFields[] = {kAreaCode, kAreaName, kBlock};
constexpr Field kWellFields[] = {{"api_no", "t.api_no"},
                                 {"well_name", "t.well_name"},
                                 kAreaCode,
                                 kAreaName,
                                 kBlock,
                                 {"lease_no", "t.lease_no"},
                                 kOperator,
                                 kStatus,
                                 {"total_depth", "t.total_depth", true},
                                 kWaterDepth,
                                 {"spud_date", "t.spud_date"}};
constexpr Field kPlatformFields[] = {{"complex_id", "t.complex_id"},
                                     {"structure", "t.structure"},
                                     kAreaCode,
                                     kAreaName,
                                     kBlock,
                                     kOperator,
                                     kWaterDepth,
                                     {"install_date", "t.install_date"},
                                     {"removal_date", "t.removal_date"}};
constexpr Field kPipelineFields[] = {{"segment_no", "t.segment_no"},
                                     kAreaCode,
                                     kAreaName,
                                     kBlock,
                                     {"to_areacode", "t.to_areacode"},
                                     {"to_block", "t.to_lbnum||t.to_lbext"},
                                     kOperator,
                                     kStatus,
                                     {"product", "t.product"},
                                     {"size_in", "t.size_in", true},
                                     {"approval_date", "t.approval_date"}};

constexpr Source kSources[] = {
    {"blocks", ShapeKind::kOutline, &AreaMap::blocks, nullptr, kv::catalogue::kBlockTable, "refnum",
     kv::catalogue::kVertexTable, "v.lat", "v.lon", kBlock.expression, LabelLayer::kLeases,
     kBlockFields},
    {"wells", ShapeKind::kPoint, &AreaMap::wells, &MapLayers::wells, "_well_hdr", "api_no", nullptr,
     "t.surf_lat", "t.surf_lon", "t.well_name", LabelLayer::kWells, kWellFields},
    {"platforms", ShapeKind::kPoint, &AreaMap::platforms, &MapLayers::platforms, "_platform",
     "complex_id", nullptr, "t.lat", "t.lon", "t.structure||'-'||t.complex_id", std::nullopt,
     kPlatformFields},
    {"pipelines", ShapeKind::kLine, &AreaMap::pipelines, &MapLayers::pipelines, "_pipeline",
     "segment_no", "_pipeline_pt", "v.lat", "v.lon", "t.segment_no", LabelLayer::kPipelines,
     kPipelineFields},
};

/// A row for each place: the key, the fields, the label, latitude and longitude.
std::string Statement(const Source& source, const std::string& areaCode) {
    const std::string key = std::string("t.") + source.key;
    std::string statement = "select " + key;
    for (const Field& field : source.fields)
        statement.append(", ").append(field.expression);
    for (const char* expression : {source.label, source.latitude, source.longitude})
        statement.append(", ").append(expression);
    statement += " from " + TableName(source.table) + " t, ";
    if (source.vertices) statement += TableName(source.vertices) + " v, ";
    statement += TableName(kv::catalogue::kAreaTable) +
                 " a where a.stcode = t.areacode and t.areacode = " + Quoted(areaCode) + " and ";
    statement += source.vertices ? std::string("v.") + source.key + " = " + key
                                 : std::string(source.latitude) + " is not null";
    statement += " order by " + key;
    return source.vertices ? statement + ", v.ptnum" : statement;
}

geofiles::Table HeadOf(const Source& source) {
    geofiles::Table head{source.name, source.kind, {}};
    for (const Field& field : source.fields)
        head.columns.push_back({field.name, field.number});
    head.columns.push_back({"map_label"});
    return head;
}

void AddThings(ExportTables& tables, const Source& source, const std::string& areaCode,
               const LabelTexts& labels) {
    const Rows rows(Statement(source, areaCode));
    const int label = static_cast<int>(source.fields.size()) + 1;
    const int latitude = label + 1;
    for (int row = 0; row < rows.Count();) {
        const int first = row;
        geofiles::Row thing;
        for (int column = 1; column < label; ++column)
            thing.cells.push_back(CellInUtf8(rows.Cell(first, column)));
        std::string_view written = rows.Cell(first, label);
        if (source.replaced) written = TextOf(labels, *source.replaced, areaCode, written);
        thing.cells.push_back(CellInUtf8(written));
        const std::string key = rows.Cell(first, 0);
        do {
            thing.places.push_back({rows.Number(row, latitude), rows.Number(row, latitude + 1)});
            ++row;
        } while (source.vertices && row < rows.Count() && key == rows.Cell(row, 0));
        tables.Add(std::move(thing));
    }
}

}  // namespace

void AddArea(ExportTables& tables, const AreaMap& area, const MapLayers& layers,
             const LabelTexts& labels) {
    for (const Source& source : kSources) {
        const bool shown = !source.shown || layers.*source.shown;
        if (!shown || (area.*source.things).Size() == 0) continue;
        tables.Begin(HeadOf(source));
        AddThings(tables, source, area.code, labels);
    }
}

}  // namespace workbench
