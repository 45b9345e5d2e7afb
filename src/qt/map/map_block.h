#pragma once

#include <string>
#include <vector>

#include "qt/map/geometry.h"

namespace kv::qt {

/// A block as a map shows it.
struct MapBlock {
    std::string area;
    std::string number;
    std::string extension;
    /// Its corners in their order; the first one is not repeated.
    std::vector<map::Place> outline;

    std::string Label() const { return number + extension; }
};

}  // namespace kv::qt
