#include "coordtools/length_unit.h"

#include <algorithm>
#include <iterator>

#include "base/numbers.h"

namespace kv::length {

namespace {

/// How many of each unit, in the order of the list, are a foot.
constexpr double kInAFoot[] = {1.0, 0.3048, 0.000189394, 0.0003048};
constexpr int kDecimals = 2;

const char* const* Find(std::string_view unit) {
    return std::find(std::begin(kUnits), std::end(kUnits), unit);
}

double InAFoot(std::string_view unit) {
    return IsUnit(unit) ? kInAFoot[Find(unit) - std::begin(kUnits)] : 1.0;
}

}  // namespace

bool IsUnit(std::string_view unit) {
    return Find(unit) != std::end(kUnits);
}

double FromFeet(double feet, std::string_view unit) {
    return feet * InAFoot(unit);
}

double ToFeet(double value, std::string_view unit) {
    return value / InAFoot(unit);
}

std::string ShownIn(std::string_view unit, double feet) {
    return feet == kNoValue ? std::string() : FormatFixed(FromFeet(feet, unit), kDecimals);
}

}  // namespace kv::length
