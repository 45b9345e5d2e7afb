#pragma once

#include <string>
#include <string_view>

namespace kv::dialect {

/// Thrown for a text that is not of the grammar, or cannot be said to the engine. `near` is the
/// part of the text that this is about; empty at its end.
struct Unreadable {
    std::string_view near;
};

/// Thrown for a text that must not run on any engine.
struct Refused {
    std::string words;
};

}  // namespace kv::dialect
