#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "qt/map/geometry.h"

/// Maps in files of other programs.
namespace geofiles {

using kv::map::Place;

enum class ShapeKind { kPoint, kLine, kOutline };

struct Column {
    std::string name;
    bool number = false;  ///< a cell that holds something else makes it one of texts
};

/// A thing on the map.
struct Row {
    std::vector<std::string> cells;  ///< in UTF-8; "" is null
    /// Of an outline, each corner once.
    std::vector<Place> places;
};

/// Things of one sort.
struct Table {
    std::string name;
    ShapeKind kind = ShapeKind::kPoint;
    std::vector<Column> columns;
    std::vector<Row> rows = {};
};

/// The number that is all of a cell; none for what would not come back as it stands, as 007.
std::optional<double> NumberOf(std::string_view cell);

/// An outline as a closed ring that goes against the clock.
std::vector<Place> RingOf(const std::vector<Place>& outline);

}  // namespace geofiles
