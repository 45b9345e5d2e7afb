#pragma once

#include <algorithm>

#include "window/drawing/image_resource.h"

namespace kv {

/// Whether an image has a row for each of its lines and a character for each pixel of a row, each
/// of them in the palette or '.', for a transparent one, and is not all transparent. What draws an
/// image does not ask for it: whoever holds one as data asserts it.
constexpr bool IsWhole(const ImageResource& image) {
    constexpr char kTransparent = '.';
    const auto known = [&](char symbol) {
        return symbol == kTransparent ||
               std::ranges::find(image.palette, symbol, &PaletteEntry::symbol) !=
                   image.palette.end();
    };
    const auto whole = [&](std::string_view row) {
        return row.size() == static_cast<std::size_t>(image.width) &&
               std::ranges::all_of(row, known);
    };
    const auto empty = [](std::string_view row) {
        return row.find_first_not_of(kTransparent) == std::string_view::npos;
    };
    return image.rows.size() == static_cast<std::size_t>(image.height) &&
           std::ranges::all_of(image.rows, whole) && !std::ranges::all_of(image.rows, empty);
}

}  // namespace kv
