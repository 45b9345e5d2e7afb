#pragma once

#include <string>

namespace kv::pickers {

/// The end of a condition that joins blocks ("I") with their vertices ("V"): those with a vertex
/// inside these bounds, edges included. Degrees, of which a statement holds six decimals.
std::string InsideMap(double minLat, double maxLat, double minLon, double maxLon);

}  // namespace kv::pickers
