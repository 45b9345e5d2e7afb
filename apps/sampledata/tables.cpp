#include "sampledata/tables.h"

#include <algorithm>
#include <stdexcept>

namespace kv::sample {
namespace {

constexpr Column Text(const char* name, int length) {
    return {name, CellKind::kText, length};
}
constexpr Column Whole(const char* name) {
    return {name, CellKind::kWhole};
}
constexpr Column Number(const char* name) {
    return {name, CellKind::kNumber};
}
constexpr Column Date(const char* name) {
    return {name, CellKind::kDate};
}

const Column kAreaCode = Text("areacode", 5);
const Column kBlockNumber = Text("lbnum", 5);
const Column kBlockExt = Text("lbext", 2);
const Column kLat = Number("lat");
const Column kLon = Number("lon");
const Column kOperator = Text("operator", 60);
const Column kLeaseNumber = Text("lease_no", 12);
const Column kApiNumber = Text("api_no", 12);
const Column kWaterDepth = Whole("water_depth");
/// The area and the block's label as the block queries look it up: a label alone stands for more
/// blocks, the more areas there are.
constexpr const char* kByLabel = "areacode, (coalesce(lbnum, '') || coalesce(lbext, ''))";
constexpr const char* kByBlock = "areacode, lbnum, lbext";

const std::vector<Table>& All() {
    static const std::vector<Table> tables = {
        {"gulf_mexico_connam2",
         {Text("areaname", 60), Text("stcode", 5), Text("area_abbr", 2)},
         {"unique areaname", "unique stcode", "area_abbr"}},
        {"gulf_mexico_lbi",
         {kAreaCode, kBlockNumber, kBlockExt, Whole("refnum")},
         {"unique refnum", kByBlock, kByLabel}},
        {"gulf_mexico_lbv",
         {Whole("refnum"), Whole("ptnum"), kLat, kLon},
         {"unique refnum, ptnum", "lat, lon, refnum", "lon, lat, refnum"}},
        {"gulf_mexico_area_projection", {kAreaCode, Whole("projection")}, {"unique areacode"}},
        {"gulf_mexico_zone_code",
         {Whole("zone_code"), Text("description", 60), Text("category", 30),
          Whole("state_plane_code"), Text("definition", 240)},
         {"unique zone_code", "category"}},
        {"nvd2000_area_order",
         {Text("areaname", 60), Whole("seq"), Whole("defseq")},
         {"areaname", "seq", "defseq"}},
        {"nvd2000_tmp_abe2",
         {Text("machine_ID", 64), Text("o_area", 60), Text("o_bext", 12), Text("n_area", 60),
          Text("n_bext", 12), Text("area_type", 1)},
         {"machine_ID", "n_area, n_bext", "o_area, o_bext"}},
        {"nvd2000_county",
         {Text("county_id", 5), Text("state", 2), Text("county_name", 40), Whole("county_no"),
          Number("min_lat"), Number("max_lat"), Number("min_lon"), Number("max_lon"),
          Whole("projection")},
         {"unique county_id", "state, county_name"}},
        {"gulf_mexico_company",
         {Whole("company_no"), Text("company", 60)},
         {"unique company_no", "unique company"}},
        {"gulf_mexico_lease",
         {kLeaseNumber, kAreaCode, kBlockNumber, kBlockExt, Text("lplana", 1), Text("status", 30),
          Text("lessee", 60), kOperator, Date("lease_date"), Date("expire_date"), Whole("acres"),
          Number("royalty_pct"), Whole("bonus")},
         {"lease_no", kByBlock, "lessee", "operator", "status", "lplana"}},
        {"gulf_mexico_lease_owner",
         {kLeaseNumber, Text("company", 60), Whole("percent")},
         {"lease_no", "company"}},
        {"gulf_mexico_operator",
         {kAreaCode, kOperator, Whole("lease_count")},
         {"unique areacode, operator", "operator"}},
        {"gulf_mexico_bid",
         {kLeaseNumber, kAreaCode, kBlockNumber, kBlockExt, Text("company", 60), Date("sale_date"),
          Whole("amount"), Whole("rank_no")},
         {"lease_no", kByBlock, "company"}},
        {"gulf_mexico_well_hdr",
         {kApiNumber, Text("well_name", 10), kLeaseNumber, kAreaCode, kBlockNumber, kBlockExt,
          kOperator, Text("status", 4), Number("surf_lat"), Number("surf_lon"), Number("bot_lat"),
          Number("bot_lon"), Whole("total_depth"), kWaterDepth, Date("spud_date")},
         {"unique api_no", kByBlock, "lease_no", "operator"}},
        {"gulf_mexico_completion",
         {kApiNumber, Whole("completion_no"), kAreaCode, kBlockNumber, kBlockExt,
          Text("product", 4), Date("completion_date"), kLat, kLon},
         {"unique api_no, completion_no", kByBlock}},
        {"gulf_mexico_apd",
         {Whole("apd_no"), Text("well_name", 10), kAreaCode, kBlockNumber, kBlockExt, kOperator,
          Date("received_date"), kLat, kLon},
         {"unique apd_no", kByBlock}},
        {"gulf_mexico_platform",
         {Whole("complex_id"), Text("structure", 4), kAreaCode, kBlockNumber, kBlockExt, kOperator,
          kWaterDepth, Date("install_date"), Date("removal_date"), kLat, kLon},
         {"unique complex_id", kByBlock}},
        {"gulf_mexico_plan",
         {Text("plan_no", 10), kAreaCode, kBlockNumber, kBlockExt, Text("plan_type", 4), kOperator,
          Date("received_date"), kLat, kLon},
         {"unique plan_no", kByBlock}},
        {"gulf_mexico_prospect",
         {Text("prospect", 40), kAreaCode, kBlockNumber, kBlockExt, Text("company", 60), kLat,
          kLon},
         {"prospect", kByBlock}},
        {"gulf_mexico_field",
         {Text("field", 10), kAreaCode, kBlockNumber, kBlockExt, Date("discovery_date"), kLat,
          kLon},
         {"field", kByBlock}},
        {"gulf_mexico_shotpoint2d",
         {Text("line", 12), Whole("shotpoint"), kAreaCode, kBlockNumber, kBlockExt, kLat, kLon},
         {"unique line, shotpoint", kByBlock}},
        {"gulf_mexico_pipeline",
         {Whole("segment_no"), kOperator, Text("status", 4), Text("product", 4), Number("size_in"),
          kAreaCode, kBlockNumber, kBlockExt, Text("to_areacode", 5), Text("to_lbnum", 5),
          Text("to_lbext", 2), Date("approval_date")},
         {"unique segment_no", kByBlock, "status", "product", "operator"}},
        {"gulf_mexico_pipeline_pt",
         {Whole("segment_no"), Whole("ptnum"), kLat, kLon},
         {"unique segment_no, ptnum", "lat, lon"}},
    };
    return tables;
}

}  // namespace

std::span<const Table> Tables() {
    return All();
}

const Table& TableNamed(std::string_view name) {
    const auto found = std::ranges::find(All(), name, &Table::name);
    if (found == All().end()) throw std::out_of_range("No table " + std::string(name));
    return *found;
}

/// NUMBER gives SQLite's numeric affinity, by which a whole number is stored and read back as one.
std::string SqliteType(const Column& column) {
    switch (column.kind) {
        case CellKind::kText:
            return "VARCHAR(" + std::to_string(column.length) + ")";
        case CellKind::kWhole:
            return "INTEGER";
        case CellKind::kNumber:
            return "NUMBER";
        case CellKind::kDate:
            return "DATE";
    }
    return {};
}

/// Text is compared byte by byte, as the dataset's other engines do.
std::string PostgresType(const Column& column) {
    switch (column.kind) {
        case CellKind::kText:
            return "varchar(" + std::to_string(column.length) + ") collate \"C\"";
        case CellKind::kWhole:
            return "integer";
        case CellKind::kNumber:
            return "double precision";
        case CellKind::kDate:
            return "date";
    }
    return {};
}

namespace {

std::string Owned(std::string_view owner, const char* name) {
    return owner.empty() ? name : std::string(owner) + "." + name;
}

}  // namespace

std::string CreateTable(const Table& table, std::string_view owner,
                        std::string (*typeOf)(const Column&)) {
    std::string sql = "create table " + Owned(owner, table.name) + " (";
    const char* separator = "";
    for (const Column& column : table.columns) {
        sql.append(separator).append(column.name).append(" ").append(typeOf(column));
        separator = ", ";
    }
    return sql + ")";
}

std::string IndexName(const Table& table, std::size_t index) {
    return std::string(table.name) + "_i" + std::to_string(index + 1);
}

std::vector<std::string> CreateIndexes(const Table& table, std::string_view owner) {
    constexpr std::string_view kUnique = "unique ";
    std::vector<std::string> statements;
    for (std::string_view keys : table.indexes) {
        const bool unique = keys.starts_with(kUnique);
        if (unique) keys.remove_prefix(kUnique.size());
        const std::string name = IndexName(table, statements.size());
        statements.push_back(std::string(unique ? "create unique index " : "create index ") + name +
                             " on " + Owned(owner, table.name) + " (" + std::string(keys) + ")");
    }
    return statements;
}

}  // namespace kv::sample
