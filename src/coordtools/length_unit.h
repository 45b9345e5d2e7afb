#pragma once

#include <string>
#include <string_view>

#include "base/export.h"

/// Lengths and coordinates of the coordinate tools: held in feet, shown in a unit that the user
/// picks from a list.
namespace kv::length {

/// What a coordinate without a value is held as.
inline constexpr double kNoValue = 100000000.0;

/// The units, as lists have them.
inline constexpr const char* kUnits[] = {"feet", "meter", "mile", "km"};

/// Whether the text is one of them.
KVGUICTL_API bool IsUnit(std::string_view unit);
/// A length in feet as one in the unit, and the reverse; unchanged where the text is no unit. A
/// mile has 1/0.000189394 feet, which is a rounded value, a foot 0.3048 metres.
KVGUICTL_API double FromFeet(double feet, std::string_view unit);
KVGUICTL_API double ToFeet(double value, std::string_view unit);

/// A coordinate in feet as it is shown in the unit: with two decimals, and empty for no value.
KVGUICTL_API std::string ShownIn(std::string_view unit, double feet);

}  // namespace kv::length
