#include "sampledata/geo_point.h"

#include <cmath>
#include <cstdlib>

namespace kv::sample {

std::int64_t Units(double degrees) {
    return std::llround(degrees * static_cast<double>(kUnitsPerDegree));
}

std::string DegreesText(std::int64_t units) {
    const std::int64_t size = std::abs(units);
    std::string fraction = std::to_string(size % kUnitsPerDegree + kUnitsPerDegree).substr(1);
    fraction.erase(fraction.find_last_not_of('0') + 1);
    std::string text = units < 0 ? "-" : "";
    text += std::to_string(size / kUnitsPerDegree);
    return fraction.empty() ? text : text + "." + fraction;
}

}  // namespace kv::sample
