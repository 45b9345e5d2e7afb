#include "kvload/targets.h"

#include <algorithm>
#include <array>

namespace kvload {

std::span<const Target> Targets() {
    static const std::vector<Target> targets = {
        {.name = "areas",
         .table = "gulf_mexico_connam2",
         .required = {"areaname", "stcode"},
         .identity = {}},
        {.name = "blocks",
         .table = "gulf_mexico_lbi",
         .places = Places::kOutline,
         .vertices = "gulf_mexico_lbv",
         .required = {"areacode", "lbnum"},
         .identity = {"areacode", "lbnum", "lbext"}},
        {.name = "companies",
         .table = "gulf_mexico_company",
         .required = {"company_no", "company"},
         .identity = {}},
        {.name = "leases",
         .table = "gulf_mexico_lease",
         .required = {"areacode", "lbnum"},
         .identity = {"lease_no", "areacode", "lbnum", "lbext"}},
        {.name = "owners",
         .table = "gulf_mexico_lease_owner",
         .required = {"lease_no", "company"},
         .identity = {"lease_no", "company"}},
        {.name = "wells",
         .table = "gulf_mexico_well_hdr",
         .places = Places::kPoint,
         .lat = "surf_lat",
         .lon = "surf_lon",
         .required = {"api_no"},
         .identity = {}},
        {.name = "platforms",
         .table = "gulf_mexico_platform",
         .places = Places::kPoint,
         .lat = "lat",
         .lon = "lon",
         .required = {"complex_id"},
         .identity = {}},
        {.name = "pipelines",
         .table = "gulf_mexico_pipeline",
         .places = Places::kLine,
         .vertices = "gulf_mexico_pipeline_pt",
         .required = {"segment_no"},
         .identity = {}},
    };
    return targets;
}

const Target* TargetNamed(std::string_view name) {
    const auto found = std::ranges::find(Targets(), name, &Target::name);
    return found == Targets().end() ? nullptr : &*found;
}

const kv::sample::Table& TableOf(const Target& target) {
    return kv::sample::TableNamed(target.table);
}

int ColumnIndex(const kv::sample::Table& table, std::string_view column) {
    const auto found = std::ranges::find(table.columns, column, &kv::sample::Column::name);
    return found == table.columns.end() ? -1 : static_cast<int>(found - table.columns.begin());
}

bool NamesArea(std::string_view column) {
    return column == "areacode" || column == "to_areacode";
}

std::vector<std::string> FillableNames(const Target& target) {
    static constexpr std::array<std::string_view, 7> kOfGeometry = {
        kRefnum, "lat", "lon", "surf_lat", "surf_lon", "bot_lat", "bot_lon"};
    const kv::sample::Table& table = TableOf(target);
    std::vector<std::string> names;
    for (const kv::sample::Column& column : table.columns)
        if (std::ranges::find(kOfGeometry, column.name) == kOfGeometry.end())
            names.emplace_back(column.name);
    if (ColumnIndex(table, "lbnum") >= 0) names.emplace_back(kLabel);
    if (ColumnIndex(table, "to_lbnum") >= 0) names.emplace_back(kToLabel);
    if (ColumnIndex(table, "stcode") >= 0) names.emplace_back(kProjection);
    return names;
}

}  // namespace kvload
