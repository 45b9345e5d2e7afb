#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "base/export.h"
#include "window/drawing/raster.h"

namespace kv {

/// The colour that a character of an image's rows stands for, as 0xAARRGGBB.
struct PaletteEntry {
    char symbol;
    std::uint32_t argb;
};

/// An icon or bitmap as data: a character for each pixel. A character without a palette entry, and
/// what a short row leaves out, is transparent.
struct ImageResource {
    int id;
    int width;
    int height;
    std::span<const std::string_view> rows;
    std::span<const PaletteEntry> palette;
};

KVGUICTL_API Raster DecodeImage(const ImageResource& image);

/// The first image with that id in the chain of resources, else null.
KVGUICTL_API const ImageResource* FindImage(int id);
/// Who looks images up; the chain of resources does, by a static object of its own.
class RegisterImageFinder {
public:
    explicit RegisterImageFinder(const ImageResource* (*find)(int id));
};

}  // namespace kv
