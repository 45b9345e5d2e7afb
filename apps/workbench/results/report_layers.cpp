#include "workbench/results/report_layers.h"

#include <algorithm>
#include <utility>

#include "base/text.h"
#include "workbench/dataset.h"

namespace workbench {

namespace {

using Column = ReportLayer::Column;

constexpr std::string_view kLatitude = "Latitude";
constexpr std::string_view kLongitude = "Longitude";
constexpr std::string_view kAreaName = "a.areaname";
constexpr std::string_view kBlockName = "t.lbnum||t.lbext";
constexpr std::string_view kOfArea = "t.areacode = {area}";
constexpr std::string_view kOfBlock = "t.lbnum||t.lbext = {block}";

constexpr Column kWells[] = {
    {"t.api_no", "API number"},
    {"t.well_name", "Well"},
    {kAreaName, "Area"},
    {kBlockName, "Block", true},
    {"t.lease_no", "Lease"},
    {"t.operator", "Operator"},
    {"t.status", "Status"},
    {"t.total_depth", "Total depth (ft)", true},
    {"t.water_depth", "Water depth (ft)", true},
    {"t.spud_date", "Spudded"},
    {"t.surf_lat", kLatitude, true},
    {"t.surf_lon", kLongitude, true},
};
constexpr Column kLeases[] = {
    {"t.lease_no", "Lease"},        {kAreaName, "Area"},
    {kBlockName, "Block", true},    {"t.status", "Status"},
    {"t.lessee", "Lessee"},         {"t.operator", "Operator"},
    {"t.lease_date", "Leased"},     {"t.expire_date", "Expires"},
    {"t.acres", "Acres", true},     {"t.royalty_pct", "Royalty (%)", true},
    {"t.bonus", "Bonus ($)", true},
};
constexpr Column kApds[] = {
    {"t.apd_no", "APD", true},   {"t.well_name", "Well"},     {kAreaName, "Area"},
    {kBlockName, "Block", true}, {"t.operator", "Operator"},  {"t.received_date", "Received"},
    {"t.lat", kLatitude, true},  {"t.lon", kLongitude, true},
};
constexpr Column kPlatforms[] = {
    {"t.complex_id", "Complex", true},
    {"t.structure", "Structure"},
    {kAreaName, "Area"},
    {kBlockName, "Block", true},
    {"t.operator", "Operator"},
    {"t.water_depth", "Water depth (ft)", true},
    {"t.install_date", "Installed"},
    {"t.removal_date", "Removed"},
    {"t.lat", kLatitude, true},
    {"t.lon", kLongitude, true},
};
constexpr Column kPlans[] = {
    {"t.plan_no", "Plan"},       {"t.plan_type", "Type"},     {kAreaName, "Area"},
    {kBlockName, "Block", true}, {"t.operator", "Operator"},  {"t.received_date", "Received"},
    {"t.lat", kLatitude, true},  {"t.lon", kLongitude, true},
};
constexpr Column kPipelines[] = {
    {"t.segment_no", "Segment", true},
    {kAreaName, "From area"},
    {kBlockName, "From block", true},
    {"(select o.areaname from {areas} o where o.stcode = t.to_areacode)", "To area"},
    {"t.to_lbnum||t.to_lbext", "To block", true},
    {"t.operator", "Operator"},
    {"t.status", "Status"},
    {"t.product", "Product"},
    {"t.size_in", "Size (in)", true},
    {"t.approval_date", "Approved"},
};
constexpr Column kProspects[] = {
    {"t.prospect", "Prospect"}, {kAreaName, "Area"},        {kBlockName, "Block", true},
    {"t.company", "Company"},   {"t.lat", kLatitude, true}, {"t.lon", kLongitude, true},
};
constexpr Column kFields[] = {
    {"t.field", "Field"},        {kAreaName, "Area"},
    {kBlockName, "Block", true}, {"t.discovery_date", "Discovered"},
    {"t.lat", kLatitude, true},  {"t.lon", kLongitude, true},
};
constexpr Column kShotpoints[] = {
    {"t.line", "Line"},          {"t.shotpoint", "Shotpoint", true}, {kAreaName, "Area"},
    {kBlockName, "Block", true}, {"t.lat", kLatitude, true},         {"t.lon", kLongitude, true},
};

/// A pipeline belongs to the block it begins in and to the one it ends in.
constexpr std::string_view kPipelineOfArea = "(t.areacode = {area} or t.to_areacode = {area})";
constexpr std::string_view kPipelineOfBlock =
    "(t.areacode = {area} and t.lbnum||t.lbext = {block} or "
    "t.to_areacode = {area} and t.to_lbnum||t.to_lbext = {block})";

constexpr ReportLayer kLayers[] = {
    {KV_LAYER_WELLS, "Wells", "_well_hdr", kOfArea, kOfBlock, "t.api_no", kWells},
    {KV_LAYER_LEASES, "Leases", "_lease", kOfArea, kOfBlock, "t.lease_no", kLeases},
    {KV_LAYER_APDS, "APDs", "_apd", kOfArea, kOfBlock, "t.apd_no", kApds},
    {KV_LAYER_PLATFORMS, "Platforms", "_platform", kOfArea, kOfBlock, "t.complex_id", kPlatforms},
    {KV_LAYER_PLANS, "Plans", "_plan", kOfArea, kOfBlock, "t.plan_no", kPlans},
    {KV_LAYER_PIPELINES, "Pipelines", "_pipeline", kPipelineOfArea, kPipelineOfBlock,
     "t.segment_no", kPipelines, true},
    {KV_LAYER_PROSPECTS, "Prospects", "_prospect", kOfArea, kOfBlock, "t.prospect", kProspects},
    {KV_LAYER_FIELDS, "Fields", "_field", kOfArea, kOfBlock, "t.field", kFields},
    {KV_LAYER_2D_SHOTPOINTS, "2D Shotpoints", "_shotpoint2d", kOfArea, kOfBlock,
     "t.line, t.shotpoint", kShotpoints},
};

}  // namespace

std::span<const ReportLayer> ReportLayers() {
    return kLayers;
}

const ReportLayer* FindReportLayer(E_Layer layer) {
    const auto* found = std::find_if(std::begin(kLayers), std::end(kLayers),
                                     [&](const ReportLayer& each) { return each.layer == layer; });
    return found == std::end(kLayers) ? nullptr : found;
}

std::string BlockCondition(const ReportLayer& layer, const std::string& quotedArea,
                           const std::string& block) {
    std::string condition(layer.ofArea);
    if (block != kv::catalogue::kAllBlocks) condition.append(" and ").append(layer.ofBlock);
    condition = kv::ReplaceAll(condition, "{area}", quotedArea);
    return kv::ReplaceAll(condition, "{block}", Quoted(block));
}

std::string ReportStatement(const ReportLayer& layer, const std::string& condition) {
    const std::string areas = TableName(kv::catalogue::kAreaTable);
    std::string statement = "select ";
    for (const Column& column : layer.columns) {
        statement += kv::ReplaceAll(std::string(column.expression), "{areas}", areas) + ", ";
    }
    statement.append("t.areacode, ").append(kBlockName);
    statement += " from " + TableName(std::string(layer.table)) + " t, " + areas +
                 " a where a.stcode = t.areacode and ";
    return statement.append(condition).append(" order by ").append(layer.order);
}

std::vector<std::string> AreaLiterals(const std::string& areacode) {
    std::string list = areacode;
    if (list.starts_with('(') && list.ends_with(')')) list = list.substr(1, list.size() - 2);
    if (list.empty()) return {};
    return kv::Split(list, ',');
}

ReportLoader::ReportLoader(const ReportLayer& layer, std::string what,
                           std::vector<std::string> conditions,
                           std::function<void(ResultTable)> finished)
    : layer_(layer), conditions_(std::move(conditions)), finished_(std::move(finished)) {
    table_.title = layer.title;
    table_.what = std::move(what);
    for (const Column& column : layer.columns) {
        if (column.heading == kLatitude) latitude_ = table_.ColumnCount();
        if (column.heading == kLongitude) longitude_ = table_.ColumnCount();
        table_.columns.push_back({std::string(column.heading), column.number});
    }
}

std::string ReportLoader::Title() const {
    return "Reading " + std::string(layer_.title);
}

bool ReportLoader::Step() {
    if (next_ == conditions_.size()) return false;
    const Rows rows(ReportStatement(layer_, conditions_[next_++]));
    std::vector<std::string> fresh;
    for (int row = 0; row < rows.Count(); ++row) {
        if (!Read(rows.Cell(row, 0))) AddRow(rows, row);
        fresh.emplace_back(rows.Cell(row, 0));
    }
    read_.insert(fresh.begin(), fresh.end());
    return next_ < conditions_.size();
}

bool ReportLoader::Read(const std::string& first) const {
    return layer_.reachesOut && read_.count(first) > 0;
}

void ReportLoader::AddRow(const Rows& rows, int row) {
    const int columns = table_.ColumnCount();
    for (int column = 0; column < columns; ++column) {
        table_.cells.emplace_back(rows.Cell(row, column));
    }
    ResultTable::Key key{rows.Cell(row, columns), rows.Cell(row, columns + 1)};
    if (latitude_ >= 0 && longitude_ >= 0 && *rows.Cell(row, latitude_))
        key.place = Place{rows.Number(row, latitude_), rows.Number(row, longitude_)};
    table_.keys.push_back(std::move(key));
}

void ReportLoader::Finished(bool whole) {
    // Of what was not looked for to the end nobody knows that there is none.
    if (!whole && table_.RowCount() == 0) return;
    table_.whole = whole;
    table_.AlignDecimals();
    finished_(std::move(table_));
}

}  // namespace workbench
