#include "pickers/inside_map.h"

#include "base/numbers.h"

namespace kv::pickers {

namespace {

std::string Between(const char* column, double min, double max) {
    constexpr int kDecimals = 6;
    return std::string(" and (V.") + column + " between " + FormatFixed(min, kDecimals) + " and " +
           FormatFixed(max, kDecimals) + ")";
}

}  // namespace

std::string InsideMap(double minLat, double maxLat, double minLon, double maxLon) {
    return Between("lat", minLat, maxLat) + Between("lon", minLon, maxLon);
}

}  // namespace kv::pickers
