#include "window/drawing/image_resource.h"

#include <algorithm>

namespace kv {

namespace {

const ImageResource* (*g_find)(int id) = nullptr;

}  // namespace

Raster DecodeImage(const ImageResource& image) {
    Raster picture(image.width, image.height);
    for (std::size_t y = 0; y < image.rows.size(); ++y) {
        for (std::size_t x = 0; x < image.rows[y].size(); ++x) {
            const auto entry = std::find_if(
                image.palette.begin(), image.palette.end(),
                [symbol = image.rows[y][x]](const auto& each) { return each.symbol == symbol; });
            if (entry == image.palette.end()) continue;
            picture.SetArgb(static_cast<int>(x), static_cast<int>(y), entry->argb);
        }
    }
    return picture;
}

const ImageResource* FindImage(int id) {
    return g_find ? g_find(id) : nullptr;
}

RegisterImageFinder::RegisterImageFinder(const ImageResource* (*find)(int id)) {
    g_find = find;
}

}  // namespace kv
