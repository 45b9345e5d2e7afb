#include "base/foreign_text.h"

#include <cstddef>

#include "base/paths.h"
#include "base/text.h"
#include "base/utf8.h"

namespace kv {

namespace {

constexpr char32_t kReplacement = 0xFFFD;

/// Takes code units off the bytes of a UTF-16 text.
class Utf16 {
public:
    Utf16(std::string_view bytes, bool highFirst) : rest_(bytes), highFirst_(highFirst) {}

    bool AtEnd() const { return rest_.empty(); }
    char32_t Next() {
        const char32_t unit = Take();
        if (!IsHalf(unit, 0xD800)) return IsHalf(unit, 0xDC00) ? kReplacement : unit;
        const std::string_view behind = rest_;
        const char32_t low = AtEnd() ? kReplacement : Take();
        if (IsHalf(low, 0xDC00)) return 0x10000 + ((unit & 0x3FF) << 10) + (low & 0x3FF);
        rest_ = behind;
        return kReplacement;
    }

private:
    static bool IsHalf(char32_t unit, char32_t first) { return (unit & ~0x3FFu) == first; }

    /// One byte alone at the end is no unit.
    char32_t Take() {
        const std::string_view pair = rest_.substr(0, 2);
        rest_.remove_prefix(pair.size());
        if (pair.size() < 2) return kReplacement;
        const auto byte = [&](bool high) {
            return static_cast<unsigned char>(pair[high == highFirst_ ? 0 : 1]);
        };
        return static_cast<char32_t>(byte(true) << 8 | byte(false));
    }

    std::string_view rest_;
    bool highFirst_;
};

std::string FromUtf16(std::string_view bytes, bool highFirst) {
    std::string text;
    for (Utf16 units(bytes, highFirst); !units.AtEnd();)
        AppendUtf8(text, units.Next());
    return text;
}

std::string WithLineFeeds(std::string_view text) {
    return ReplaceAll(ReplaceAll(text, "\r\n", "\n"), "\r", "\n");
}

}  // namespace

std::string DecodeText(std::string_view bytes) {
    if (bytes.starts_with("\xEF\xBB\xBF")) return WithLineFeeds(bytes.substr(3));
    const bool highFirst = bytes.starts_with("\xFE\xFF");
    if (!highFirst && !bytes.starts_with("\xFF\xFE")) return WithLineFeeds(bytes);
    return WithLineFeeds(FromUtf16(bytes.substr(2), highFirst));
}

bool IsText(std::string_view text) {
    return text.find('\0') == std::string_view::npos;
}

std::optional<std::string> ReadForeignText(std::string_view path) {
    const std::optional<std::string> bytes = ReadBinaryFile(path);
    if (!bytes) return std::nullopt;
    return DecodeText(*bytes);
}

}  // namespace kv
