#pragma once

#include <limits>

#include "base/export.h"
#include "frame/kvcom/min_max_2dd.h"

namespace kv {

/// Bounds in X/Y around positions in degrees, as the coordinate driver projects them. `units` 0
/// gives feet, 1 meters.
class KVGUICTL_API ProjectedBounds {
public:
    ProjectedBounds(int projection, int units) : projection_(projection), units_(units) {}

    void Add(double lat, double lon);
    /// The sides of a box of latitude (in the X places) and longitude, which are curves in X/Y.
    void AddBox(const CMinMax2Dd_t& angles);

    /// False, with `out` untouched, if there was no position, or one without X/Y.
    bool Take(CMinMax2Dd_t& out) const;

private:
    static constexpr double kFar = std::numeric_limits<double>::infinity();

    int projection_;
    int units_;
    bool missed_ = false;
    CMinMax2Dd_t bounds_{kFar, -kFar, kFar, -kFar};
};

}  // namespace kv
