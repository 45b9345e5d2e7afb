#pragma once

#include <optional>
#include <vector>

#include "kvload/source.h"

namespace kvload {

/// An outline as the dataset keeps it: clockwise, the first corner not repeated, none twice in a
/// row. Empty where what is left has no area.
Spots Tidied(Spots ring);

/// Twice the area, above 0 where the ring runs against the clock.
double TwiceArea(const Spots& ring);

/// Where an outline crosses itself, if it does: edges that pass through each other. To touch is not
/// to cross.
std::optional<Spot> Crossing(const Spots& ring);

/// Whether an outline or a line goes over the meridian of 180 degrees, on the far side of which
/// longitudes begin anew.
bool IsTorn(const Spots& run);

/// A line of several parts made one: parts whose ends meet are joined. What does not meet the rest
/// stays apart; the longest comes first.
std::vector<Spots> Joined(std::vector<Spots> parts);

double LengthOf(const Spots& line);

}  // namespace kvload
