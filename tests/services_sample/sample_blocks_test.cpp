#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <map>
#include <set>

#include "sampledata/blocks.h"

namespace test {
namespace {

using kv::sample::Block;
using kv::sample::GeoPoint;
using kv::sample::Outline;

/// A block's corners are rounded by at most a unit, so two blocks' differ by two.
constexpr std::int64_t kRounding = 2;

const std::vector<Block>& Blocks() {
    static const std::vector<Block> blocks = kv::sample::LayOutBlocks();
    return blocks;
}

/// Positive where the way turns right, seen with north up.
std::int64_t Turn(const GeoPoint& a, const GeoPoint& b, const GeoPoint& c) {
    return (b.lat - a.lat) * (c.lon - b.lon) - (c.lat - b.lat) * (b.lon - a.lon);
}

/// The greater of the extents in latitude and longitude.
std::int64_t Span(const GeoPoint& a, const GeoPoint& b) {
    return std::max(std::abs(a.lat - b.lat), std::abs(a.lon - b.lon));
}

bool Holds(const Outline& outline, const GeoPoint& place) {
    for (std::size_t i = 0; i < outline.size(); ++i) {
        if (Turn(outline[i], outline[(i + 1) % outline.size()], place) < 0) return false;
    }
    return true;
}

GeoPoint Middle(const Outline& outline) {
    GeoPoint sum;
    for (const GeoPoint& corner : outline) {
        sum.lat += corner.lat;
        sum.lon += corner.lon;
    }
    const auto count = static_cast<std::int64_t>(outline.size());
    return {sum.lat / count, sum.lon / count};
}

/// Blocks by the tenths of a degree that they lie in.
class Lookup {
public:
    Lookup() {
        for (const Block& block : Blocks()) {
            for (const auto& square : SquaresOf(block.outline))
                squares_[square].push_back(&block);
        }
    }
    const std::vector<const Block*>& Near(const GeoPoint& place) const {
        static const std::vector<const Block*> none;
        const auto found = squares_.find(SquareOf(place));
        return found == squares_.end() ? none : found->second;
    }

private:
    using Square = std::pair<std::int64_t, std::int64_t>;
    static constexpr std::int64_t kSide = 1'000'000;
    static Square SquareOf(const GeoPoint& place) { return {place.lat / kSide, place.lon / kSide}; }
    /// A block is smaller than a square, so it lies in those of its corners and their like.
    static std::set<Square> SquaresOf(const Outline& outline) {
        std::set<Square> squares;
        for (const GeoPoint& a : outline) {
            for (const GeoPoint& b : outline) {
                for (const std::int64_t off : {-kRounding, kRounding}) {
                    squares.insert(SquareOf({a.lat + off, b.lon + off}));
                }
            }
        }
        return squares;
    }
    std::map<Square, std::vector<const Block*>> squares_;
};

bool Near(const GeoPoint& a, const GeoPoint& b) {
    return std::abs(a.lat - b.lat) <= kRounding && std::abs(a.lon - b.lon) <= kRounding;
}

TEST(SampleBlocks, HaveConvexOutlinesThatRunClockwise) {
    // The projection's straight lines are curves here: over a long block, by a metre.
    constexpr std::int64_t kDent = 120;
    for (const Block& block : Blocks()) {
        const Outline& outline = block.outline;
        ASSERT_GE(outline.size(), 3U);
        for (std::size_t i = 0; i < outline.size(); ++i) {
            const GeoPoint& before = outline[i];
            const GeoPoint& corner = outline[(i + 1) % outline.size()];
            const GeoPoint& after = outline[(i + 2) % outline.size()];
            ASSERT_GT(Turn(before, corner, after), -kDent * Span(before, after))
                << block.area->name << " " << block.number << block.ext;
        }
        ASSERT_TRUE(Holds(outline, Middle(outline))) << block.area->name << " " << block.number;
    }
}

TEST(SampleBlocks, AreOfSeveralShapes) {
    std::map<std::size_t, int> shapes;
    for (const Block& block : Blocks())
        ++shapes[block.outline.size()];
    EXPECT_GE(shapes[3], 100);
    EXPECT_GE(shapes[5], 100);
    EXPECT_GE(shapes[6], 50);
    EXPECT_GE(shapes[4], 20'000);
}

TEST(SampleBlocks, AreSkewedWhereTheirProjectionIs) {
    int skewed = 0;
    for (const Block& block : Blocks()) {
        if (block.area->projection != kv::sample::Areas().front().projection &&
            block.outline.size() == 4) {
            skewed += block.outline[0].lat != block.outline[1].lat &&
                      block.outline[0].lon != block.outline[3].lon;
        }
    }
    EXPECT_GE(skewed, 20'000);
}

TEST(SampleBlocks, DoNotOverlap) {
    const Lookup lookup;
    for (const Block& block : Blocks()) {
        const GeoPoint middle = Middle(block.outline);
        for (const Block* other : lookup.Near(middle)) {
            ASSERT_EQ(Holds(other->outline, middle), other == &block)
                << block.area->name << " " << block.number << " and " << other->area->name << " "
                << other->number;
        }
    }
}

TEST(SampleBlocks, ShareCornersWithTheirNeighboursToRounding) {
    const Lookup lookup;
    int corners = 0, shared = 0, exact = 0;
    for (const Block& block : Blocks()) {
        if (std::string(block.area->name) != "GREEN CANYON") continue;
        for (const GeoPoint& corner : block.outline) {
            ++corners;
            for (const Block* other : lookup.Near(corner)) {
                if (other == &block) continue;
                const auto same = std::ranges::find_if(
                    other->outline, [&](const GeoPoint& place) { return Near(place, corner); });
                if (same == other->outline.end()) continue;
                ++shared;
                exact += *same == corner;
                break;
            }
        }
    }
    EXPECT_GT(corners, 3'500);
    EXPECT_GT(shared, corners * 95 / 100);
    EXPECT_GT(exact, 0);
    EXPECT_LT(exact, shared / 2);
}

TEST(SampleBlocks, OfBorderingAreasEndAtTheSameLine) {
    std::map<std::string, std::pair<std::int64_t, std::int64_t>> span;
    for (const Block& block : Blocks()) {
        auto& [west, east] =
            span.try_emplace(block.area->name, block.outline[0].lon, block.outline[0].lon)
                .first->second;
        for (const GeoPoint& corner : block.outline) {
            west = std::min(west, corner.lon);
            east = std::max(east, corner.lon);
        }
    }
    EXPECT_LE(std::abs(span.at("GARDEN BANKS").second + 920'000'000), 1);
    EXPECT_LE(std::abs(span.at("GREEN CANYON").first + 920'000'000), 1);
    // The one is laid out on zone 15, the other on zone 16.
    EXPECT_LE(std::abs(span.at("GREEN CANYON").second + 900'000'000), 1);
    EXPECT_LE(std::abs(span.at("ATWATER VALLEY").first + 900'000'000), 1);
    // The one in feet on the state's plane, the other likewise, in another state.
    EXPECT_LE(std::abs(span.at("HIGH ISLAND EAST ADDITION").second + 938'500'000), 1);
    EXPECT_LE(std::abs(span.at("WEST CAMERON WEST ADDITION").first + 938'500'000), 1);
}

TEST(SampleBlocks, HaveTheSizeOfTheirLayout) {
    // 4,800 m at 27.5 degrees north are 0.0433 degrees of latitude and 0.0486 of longitude.
    for (const Block& block : Blocks()) {
        if (std::string(block.area->name) != "GREEN CANYON" || block.number != 500) continue;
        EXPECT_LE(std::abs(block.outline[0].lat - block.outline[3].lat - 433'000), 1'500);
        EXPECT_LE(std::abs(block.outline[1].lon - block.outline[0].lon - 486'000), 1'500);
        return;
    }
    FAIL() << "GREEN CANYON has no block 500";
}

TEST(SampleBlocks, AreToldApartByNumberAndExtensionWithinAnAreaCode) {
    std::set<std::string> seen;
    for (const Block& block : Blocks()) {
        const std::string key =
            std::string(block.area->code) + " " + std::to_string(block.number) + block.ext;
        EXPECT_TRUE(seen.insert(key).second) << key;
    }
}

TEST(SampleBlocks, AreToldApartByTheirLabelUnderOneMmsCode) {
    std::set<std::string> seen;
    std::set<std::string> repeated;
    for (const Block& block : Blocks()) {
        if (!*block.area->mmsCode) continue;
        const std::string number =
            std::string(block.area->mmsCode) + " " + std::to_string(block.number) + block.ext;
        const std::string label = number + std::string(kv::sample::WaterSuffix(block.area->code));
        EXPECT_TRUE(seen.insert(label).second) << label;
        if (number != label && seen.contains(number)) repeated.insert(number);
    }
    EXPECT_GT(repeated.size(), 100U);
}

TEST(SampleBlocks, HaveNumbersOfOneToFourDigitsAndAFewExtensions) {
    std::map<std::size_t, int> widths;
    std::map<std::string, int> exts;
    for (const Block& block : Blocks()) {
        EXPECT_GE(block.number, 1);
        ++widths[std::to_string(block.number).size()];
        ++exts[block.ext];
    }
    EXPECT_EQ(widths.size(), 4U);
    EXPECT_GT(exts["A"], 500);
    EXPECT_GT(exts["B"], 0);
    EXPECT_GT(exts[""], exts["A"] * 10);
}

TEST(SampleBlocks, HoldThePlacesThatAreMadeUpInThem) {
    kv::sample::Random random(7);
    for (const Block& block : Blocks()) {
        ASSERT_TRUE(Holds(block.outline, kv::sample::PlaceInside(block, random)))
            << block.area->name << " " << block.number << block.ext;
    }
}

}  // namespace
}  // namespace test
