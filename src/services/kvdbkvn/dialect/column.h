#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace kv::dialect {

enum class Type : std::uint8_t {
    kUnknown,       ///< nobody tells, or none of these
    kNumberAsText,  ///< a written text that reads as a number: an engine may take it as either
    kText,
    kNumber,
    kDate,  ///< with the time of day
    kNull,
};

/// A column of a table, by the name that the engine knows it by.
struct Column {
    std::string name;
    Type type = Type::kUnknown;
    bool operator==(const Column&) const = default;
};

using Columns = std::vector<Column>;

}  // namespace kv::dialect
