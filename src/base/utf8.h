#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "base/export.h"

/// Characters of Unicode as bytes.
namespace kv {

struct Utf8Character {
    char32_t code = 0;
    std::size_t length = 0;  ///< in bytes
};

/// The character that begins at a byte, which must be within the text. A byte that begins no
/// sequence, or one that is cut short, written too long or half of a pair, is one by itself with
/// its own value.
KVGUICTL_API Utf8Character Utf8At(std::string_view bytes, std::size_t at);

/// Puts a character at the end.
KVGUICTL_API void AppendUtf8(std::string& text, char32_t code);

}  // namespace kv
