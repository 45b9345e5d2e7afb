#pragma once

#include <string>
#include <string_view>

#include "services/kvdbkvn/dialect/context.h"

namespace kv::dialect {

/// A name as the engine keeps it, without quotes. PostgreSQL keeps in lower case the names that are
/// upper-case elsewhere.
std::string EngineName(std::string_view name, Target target);

}  // namespace kv::dialect
