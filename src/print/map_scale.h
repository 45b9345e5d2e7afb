#pragma once

#include <span>
#include <vector>

#include "base/export.h"
#include "frame/kvcom/min_max_2dd.h"

/// What scales make of a map on paper. A unit is 0 for feet and 1 for meters; in feet a scale is
/// feet per inch, in meters a ratio.
namespace kv::print {

inline constexpr int kFeet = 0;
inline constexpr int kMeters = 1;

inline constexpr double kFeetPerMeter = 3.28083333;
inline constexpr double kInchesPerFoot = 12.0;

/// Across and up: of a map in its unit, of paper in inches.
struct Extent {
    double x = 0.0;
    double y = 0.0;

    bool operator==(const Extent&) const = default;
};

KVGUICTL_API Extent ExtentOf(const CMinMax2Dd_t& bounds);

/// The scales that lists offer, ascending.
KVGUICTL_API std::span<const int> MapScales(int unit);
KVGUICTL_API std::span<const int> PrintScales(int unit);

/// The smaller side in whole feet. Of meters, whole ones are taken first.
KVGUICTL_API int SmallerSideInFeet(const Extent& map, int unit);

/// The listed map scale for that many whole feet on an inch of paper: the first one that is not
/// below, else the last one. 0 where it is not above 0.
KVGUICTL_API int ClosedMapScale(int feetPerInch, int unit);

/// The largest scale of `PrintScales` up to that one, as far as it is looked up: in meters not
/// 400000 itself, and of what is above that 800000 alone. 0 for none.
KVGUICTL_API int ListedPrintScale(int scale, int unit);

/// Size of the map in inches. At a scale of 0 it is endless, or no number.
KVGUICTL_API Extent SizeOnPaper(const Extent& map, int scale, int unit);

/// A print scale and what the search for it came by.
struct Fit {
    int scale = 0;
    Extent page;              ///< the map at that scale
    std::vector<int> passed;  ///< scales on the way down, the last of which is too small to fit
};

/// The scale at which the map just fits on paper with that much room, where both are in the same
/// measure. The search begins at the quotient across, in landscape at the one up, rounded down to
/// steps that grow with it, and goes up in jumps that grow. Where those miss, it is the least whole
/// scale that fits; where there is no room at all, or no such scale, the rounded quotient.
KVGUICTL_API Fit FitScale(const Extent& map, const Extent& room, bool landscape);

}  // namespace kv::print
