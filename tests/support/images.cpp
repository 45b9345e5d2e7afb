#include "support/images.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string_view>

#include "window/drawing/image_resource.h"

namespace test {

void ExpectWhole(int id, int size) {
    constexpr char kTransparent = '.';
    const kv::ImageResource* image = kv::FindImage(id);
    ASSERT_TRUE(image) << id;
    EXPECT_EQ(image->width, size) << id;
    EXPECT_EQ(image->height, size) << id;
    EXPECT_EQ(image->rows.size(), static_cast<std::size_t>(size)) << id;
    std::size_t seen = 0;
    for (const std::string_view row : image->rows) {
        EXPECT_EQ(row.size(), static_cast<std::size_t>(size)) << id;
        for (const char symbol : row) {
            if (symbol == kTransparent) continue;
            ++seen;
            EXPECT_TRUE(std::ranges::count(image->palette, symbol, &kv::PaletteEntry::symbol) == 1)
                << id << ": " << symbol;
        }
    }
    EXPECT_GT(seen, 0U) << id;
}

}  // namespace test
