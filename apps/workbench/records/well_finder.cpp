#include "workbench/records/well_finder.h"

#include "base/numbers.h"
#include "frame/catalogue.h"
#include "workbench/dataset.h"

namespace workbench {

namespace {

namespace catalogue = kv::catalogue;

constexpr std::string_view kNothing = "_";

const char* ColumnOf(int areaMode) {
    switch (areaMode) {
        case catalogue::kAreaName:
            return catalogue::kColumnAreaName;
        case catalogue::kAreaCode:
            return catalogue::kColumnAreaCode;
        default:
            return catalogue::kColumnMmsCode;
    }
}

std::string Between(const char* column, double least, double greatest) {
    constexpr int kDecimals = 6;
    return std::string(" and t.") + column + " between " + kv::FormatFixed(least, kDecimals) +
           " and " + kv::FormatFixed(greatest, kDecimals);
}

}  // namespace

std::string WellCondition(const std::string& search, bool byApi, int areaMode,
                          const Place& southWest, const Place& northEast) {
    if (byApi) return "t.api_no = " + Quoted(search);
    const std::size_t block = search.find('#') + 1;
    const std::size_t well = search.find('#', block) + 1;
    const std::string areaText = search.substr(0, block - 1);
    const std::string blockText = search.substr(block, well - 1 - block);
    std::string condition = "t.well_name = " + Quoted(search.substr(well));
    if (areaText != kNothing)
        condition += std::string(" and a.") + ColumnOf(areaMode) + " = " + Quoted(areaText);
    if (blockText != kNothing) {
        condition += " and t.lbnum||t.lbext = " + Quoted(catalogue::StripWaterSuffix(blockText));
    }
    return condition + Between("surf_lat", southWest.lat, northEast.lat) +
           Between("surf_lon", southWest.lon, northEast.lon);
}

}  // namespace workbench
