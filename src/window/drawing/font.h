#pragma once

#include <string>

namespace kv {

/// A font, as far as text is measured and drawn with it.
struct Font {
    std::string face;
    int height = 13;  ///< of a line, in logical pixels
    bool bold = false;
    bool italic = false;
    bool operator==(const Font&) const = default;
};

}  // namespace kv
