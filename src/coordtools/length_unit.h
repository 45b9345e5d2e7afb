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

/// What a person is told beside the list, since figures in feet and in meters are compared.
inline constexpr const char* kFootRemark =
    "Feet are US survey feet (1200/3937 m), as the coordinates are computed in. For meters and "
    "kilometers they are multiplied by 0.3048 m, which is 2 millionths less: 6.5 m of northing in "
    "the Gulf.";

/// Whether the text is one of them.
KVGUICTL_API bool IsUnit(std::string_view unit);
/// A length in feet as one in the unit, and the reverse; unchanged where the text is no unit. A
/// mile has 1/0.000189394 feet, which is a rounded value, a foot 0.3048 metres: 2 millionths less
/// than the US survey foot that the coordinate driver gives.
KVGUICTL_API double FromFeet(double feet, std::string_view unit);
KVGUICTL_API double ToFeet(double value, std::string_view unit);

/// A coordinate in feet as it is shown in the unit: with two decimals, and empty for no value.
KVGUICTL_API std::string ShownIn(std::string_view unit, double feet);

}  // namespace kv::length
