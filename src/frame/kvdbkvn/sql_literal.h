#pragma once

#include <string>
#include <string_view>

#include "base/text.h"

namespace kv::db {

/// A text as a statement writes it: in quotes, with each quote within it doubled.
inline std::string SqlLiteral(std::string_view text) {
    return "'" + ReplaceAll(text, "'", "''") + "'";
}

}  // namespace kv::db
