#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "base/export.h"

/// Text files that any editor may have written.
namespace kv {

/// The text that the bytes of a file stand for: without a mark of their encoding, UTF-16 with a
/// mark as UTF-8, and each line ended by a line feed, where there was one, a carriage return, or
/// both. What UTF-16 cannot be becomes U+FFFD; other bytes stay as they are.
KVGUICTL_API std::string DecodeText(std::string_view bytes);

/// Whether it may be text: it holds no zero byte.
KVGUICTL_API bool IsText(std::string_view text);

/// The decoded text of a file, which may still be none by `IsText`; none when it cannot be read.
KVGUICTL_API std::optional<std::string> ReadForeignText(std::string_view path);

}  // namespace kv
