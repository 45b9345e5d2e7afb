#include "sampledata/blocks.h"

#include <array>
#include <cstdlib>
#include <map>

#include "sampledata/grid.h"

namespace kv::sample {
namespace {

constexpr double kMetresPerFoot = 1200.0 / 3937.0;
constexpr int kNumbersPerRow = 44;
/// Of how many whole blocks one is as long as two.
constexpr int kOneLongIn = 250;
/// A smaller piece of a Louisiana square belongs to the block beside it.
constexpr double kRemnant = 0.15;
constexpr std::uint64_t kSeed = 19'541'013;

/// Side of an area's squares in metres.
double SideOf(Layout layout) {
    switch (layout) {
        case Layout::kProtraction:
            return 4800.0;
        case Layout::kLouisiana:
            return 14'760.0 * kMetresPerFoot;
        case Layout::kTexas:
        case Layout::kTexasLettered:
            return 15'840.0 * kMetresPerFoot;
        case Layout::kTexasStateTract:
            return 7'920.0 * kMetresPerFoot;
        case Layout::kTexasBayTract:
            return 5'280.0 * kMetresPerFoot;
    }
    std::abort();
}

/// Joins a whole square to the whole one east of it, now and then.
void JoinLongBlocks(std::vector<Cell>& cells, Random& random) {
    std::vector<Cell> joined;
    for (size_t i = 0; i < cells.size(); ++i) {
        joined.push_back(std::move(cells[i]));
        Cell& west = joined.back();
        const bool pair = i + 1 < cells.size() && west.whole && cells[i + 1].whole &&
                          cells[i + 1].row == west.row && cells[i + 1].column == west.column + 1;
        if (!pair || random.Below(kOneLongIn) != 0) continue;
        const Outline& east = cells[++i].outline;
        west.outline = {west.outline[0], east[0], east[1], east[2], east[3], west.outline[3]};
    }
    cells = std::move(joined);
}

/// Numbers of one area's pieces, in the way of its layout.
class Numbering {
public:
    /// `counter` holds the last number given among the areas that are numbered together.
    Numbering(Layout layout, int& counter) : layout_(layout), counter_(counter) {}

    void Number(const std::vector<Cell>& cells, std::vector<Block>& blocks) {
        for (size_t i = 0; i < cells.size(); ++i) {
            if (!IsRemnant(cells[i])) blocks[i].number = NumberOf(cells[i]);
            if (layout_ == Layout::kTexasLettered) blocks[i].ext = "A";
        }
        for (size_t i = 0; i < cells.size(); ++i) {
            if (IsRemnant(cells[i])) NumberRemnant(i, cells, blocks);
        }
    }

private:
    bool IsRemnant(const Cell& cell) const {
        return layout_ == Layout::kLouisiana && cell.share < kRemnant;
    }

    int NumberOf(const Cell& cell) {
        return layout_ == Layout::kProtraction ? cell.row * kNumbersPerRow + cell.column + 1
                                               : ++counter_;
    }

    void NumberRemnant(size_t index, const std::vector<Cell>& cells, std::vector<Block>& blocks) {
        for (const size_t beside : {index - 1, index + 1}) {
            if (beside >= cells.size() || cells[beside].row != cells[index].row ||
                IsRemnant(cells[beside])) {
                continue;
            }
            const int number = blocks[beside].number;
            blocks[index].number = number;
            blocks[index].ext = std::string(1, static_cast<char>('A' + remnants_[number]++));
            return;
        }
        blocks[index].number = NumberOf(cells[index]);
    }

    Layout layout_;
    int& counter_;
    std::map<int, int> remnants_;
};

/// Areas with one MMS code, one kind of numbers and one water are numbered together.
std::string NumberedWith(const Area& area) {
    std::string group = *area.mmsCode ? area.mmsCode : area.code;
    if (area.layout == Layout::kTexasLettered) group += "/A";
    return group.append(WaterSuffix(area.code));
}

/// What two blocks share, each has rounded for itself.
void RoundEachCorner(Outline& outline, Random& random) {
    for (GeoPoint& place : outline) {
        place.lat += random.Between(-1, 1);
        place.lon += random.Between(-1, 1);
    }
}

}  // namespace

std::vector<Block> LayOutBlocks(std::span<const Area> areas) {
    Random random(kSeed);
    std::map<std::string, int> counters;
    std::vector<Block> all;
    for (const Area& area : areas) {
        std::vector<Cell> cells = CutIntoSquares(area, SideOf(area.layout));
        JoinLongBlocks(cells, random);
        std::vector<Block> blocks(cells.size());
        Numbering(area.layout, counters[NumberedWith(area)]).Number(cells, blocks);
        for (size_t i = 0; i < cells.size(); ++i) {
            blocks[i].refnum = static_cast<int>(all.size()) + 1;
            blocks[i].area = &area;
            blocks[i].outline = std::move(cells[i].outline);
            RoundEachCorner(blocks[i].outline, random);
            all.push_back(std::move(blocks[i]));
        }
    }
    return all;
}

GeoPoint PlaceInside(const Block& block, Random& random) {
    GeoPoint sum;
    std::int64_t weights = 0;
    for (const GeoPoint& corner : block.outline) {
        const int weight = random.Between(1, 100);
        sum.lat += weight * corner.lat;
        sum.lon += weight * corner.lon;
        weights += weight;
    }
    return {sum.lat / weights, sum.lon / weights};
}

}  // namespace kv::sample
