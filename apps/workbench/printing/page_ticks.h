#pragma once

#include <functional>
#include <string>
#include <vector>

namespace workbench {

/// Where a line of latitude or longitude meets an edge of a page.
struct Tick {
    double at = 0;       ///< from 0 at the beginning of the edge to 1 at its end
    double seconds = 0;  ///< the angle, in seconds
};

/// The least round step, in seconds, whose lines lie `least` inches apart or more, where so many
/// seconds go on an inch; the largest there is, where none does.
double TickStep(double secondsPerInch, double least);

/// All ticks of that step on an edge. `angleAt` gives the angle, in degrees, at a part of the edge
/// from 0 to 1; along the edge it grows or falls. None where it has no angle.
std::vector<Tick> TicksOn(const std::function<double(double)>& angleAt, double step);

/// An angle with no more minutes and seconds than it has: 28°30'N, 89°07'30"W.
std::string TickLabel(double seconds, char positive, char negative);

}  // namespace workbench
