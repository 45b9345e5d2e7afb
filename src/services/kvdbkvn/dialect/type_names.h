#pragma once

#include <string_view>

#include "services/kvdbkvn/dialect/column.h"

namespace kv::dialect {

/// A type of columns, and what the engines call it.
struct TypeName {
    std::string_view name;
    std::string_view sqlite;
    std::string_view postgres;
    bool sized;  ///< whether the sizes are kept
    Type type;
};

/// Of any case. Unknown types are left to the engine.
TypeName FindTypeName(std::string_view name);

}  // namespace kv::dialect
