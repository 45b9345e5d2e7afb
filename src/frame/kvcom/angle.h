#pragma once

#include "base/export.h"

/// The parts of an angle as people write it: its sign apart, so that angles between -1 and 0
/// degrees keep it.
namespace kv {

struct AngleParts {
    bool negative = false;
    int degrees = 0;
    int minutes = 0;
    double seconds = 0.0;
};

/// Decimal degrees in parts, with the seconds as they come; those above 59.9999995 are carried
/// over. An angle that is not finite, or beyond 100,000 degrees, is 0.
KVGUICTL_API AngleParts SplitAngle(double degrees);

/// The same, seconds rounded to so many decimals, from 0 to 6, and never 60. An angle that rounds
/// to 0 has no sign.
KVGUICTL_API AngleParts SplitAngle(double degrees, int decimals);

/// The parts as decimal degrees.
KVGUICTL_API double JoinAngle(const AngleParts& parts);

}  // namespace kv
