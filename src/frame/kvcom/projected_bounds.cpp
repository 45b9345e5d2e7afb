#include "frame/kvcom/projected_bounds.h"

#include <algorithm>
#include <cmath>

#include "frame/kvcom/util_lldrv.h"

namespace kv {

void ProjectedBounds::Add(double lat, double lon) {
    double x = 0.0;
    double y = 0.0;
    CKvUtilLLdrv::LLdrv(lat, lon, &x, &y, projection_, units_, 1, 100.0, 0.0, 0.0);
    if (x == CKvUtilLLdrv::kNoXY) missed_ = true;
    bounds_ = {std::min(bounds_.minX, x), std::max(bounds_.maxX, x), std::min(bounds_.minY, y),
               std::max(bounds_.maxY, y)};
}

void ProjectedBounds::AddBox(const CMinMax2Dd_t& angles) {
    // Between two of so many points a side strays from the straight by less than the width of a
    // line on the map.
    constexpr int kPartsOfSide = 64;
    for (int part = 0; part <= kPartsOfSide; ++part) {
        const double share = static_cast<double>(part) / kPartsOfSide;
        const double lat = std::lerp(angles.minX, angles.maxX, share);
        const double lon = std::lerp(angles.minY, angles.maxY, share);
        Add(lat, angles.minY);
        Add(lat, angles.maxY);
        Add(angles.minX, lon);
        Add(angles.maxX, lon);
    }
}

bool ProjectedBounds::Take(CMinMax2Dd_t& out) const {
    if (missed_ || bounds_.minX > bounds_.maxX) return false;
    out = bounds_;
    return true;
}

}  // namespace kv
