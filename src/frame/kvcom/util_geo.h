#pragma once

#include <vector>

#include "base/export.h"
#include "frame/kvcom/disp_point.h"
#include "frame/kvcom/min_max_2dd.h"

/// Tells which outlines touch.
///
/// An outline is the corners of a block in their order, either way round, its last one joined to
/// its first: latitude in X, longitude in Y, decimal degrees. The corners that two outlines share
/// differ by rounding, so they count as meeting where they are no more than `kTolerance` apart.
///
/// An outline is not its own neighbor: two that run along one another everywhere, to the tolerance,
/// are one and the same, and touch in neither sense. So do outlines with a coordinate that is no
/// finite number, a latitude beyond the poles, or fewer than three corners that differ. One that
/// crosses itself is the area it encloses an odd number of times.
class KVGUICTL_API CKvUtilGeo {
public:
    /// How far apart what meets may be, in meters on the ground.
    static constexpr double kTolerance = 10.0;
    /// How long a piece of boundary must be to count as shared, in meters: longer than what two
    /// outlines that meet in a corner have of each other by the tolerance.
    static constexpr double kSharedLength = 50.0;

    /// Whether they share a piece of boundary.
    bool AreTheyAdjacent(const std::vector<CKvDispPoint>& first,
                         const std::vector<CKvDispPoint>& second) const;

    /// Whether they touch in a point or overlap; sharing a piece of boundary is touching, too.
    bool AreTheyAdjoining(const std::vector<CKvDispPoint>& first,
                          const std::vector<CKvDispPoint>& second) const;

    /// The bounds around the points, whatever X and Y of them stand for; all 0 for no point.
    static CMinMax2Dd_t PolyLineGetMinMax(const std::vector<CKvDispPoint>& points);
};
