#include "window/rows/row_order.h"

#include <bit>

namespace kv {

RowOrder::Spot RowOrder::Locate(int place) const {
    std::size_t block = 0;
    int rest = place;
    for (std::size_t step = std::bit_floor(blocks_.size()); step > 0; step /= 2) {
        const std::size_t next = block + step;
        if (next < tree_.size() && tree_[next] <= rest) {
            block = next;
            rest -= tree_[next];
        }
    }
    return {block, rest};
}

int RowOrder::CountAhead(std::size_t block) const {
    int count = 0;
    for (std::size_t i = block; i > 0; i &= i - 1)
        count += tree_[i];
    return count;
}

void RowOrder::AddToCount(std::size_t block, int change) {
    for (std::size_t i = block + 1; i < tree_.size(); i += i & (~i + 1))
        tree_[i] += change;
    blocks_[block]->count += change;
    count_ += change;
}

RowId RowOrder::At(int place) const {
    const Spot spot = Locate(place);
    return blocks_[spot.block]->ids[static_cast<std::size_t>(spot.offset)];
}

int RowOrder::PlaceOf(RowId id) const {
    const Block& block = *blockOf_[id];
    const auto first = block.ids.begin();
    const auto at = std::find(first, first + block.count, id);
    return CountAhead(block.number) + static_cast<int>(at - first);
}

RowOrder::Spot RowOrder::SpotForInsert(int place) {
    if (blocks_.empty()) InsertBlock(0);
    const std::size_t last = blocks_.size() - 1;
    Spot spot = place == count_ ? Spot{last, blocks_[last]->count} : Locate(place);
    if (blocks_[spot.block]->count < kBlockSize) return spot;
    if (place == count_) {
        // Rows added at the end leave full blocks behind.
        InsertBlock(blocks_.size());
        return {blocks_.size() - 1, 0};
    }
    Split(spot.block);
    const int half = blocks_[spot.block]->count;
    if (spot.offset <= half) return spot;
    return {spot.block + 1, spot.offset - half};
}

void RowOrder::Insert(int place, RowId id) {
    const Spot spot = SpotForInsert(place);
    Block& block = *blocks_[spot.block];
    const auto at = block.ids.begin() + spot.offset;
    std::move_backward(at, block.ids.begin() + block.count, block.ids.begin() + block.count + 1);
    *at = id;
    if (blockOf_.size() <= id) blockOf_.resize(id + std::size_t{1});
    blockOf_[id] = &block;
    AddToCount(spot.block, 1);
}

void RowOrder::Erase(int place) {
    const Spot spot = Locate(place);
    Block& block = *blocks_[spot.block];
    const auto at = block.ids.begin() + spot.offset;
    std::move(at + 1, block.ids.begin() + block.count, at);
    AddToCount(spot.block, -1);
    if (block.count > 0) return;
    blocks_.erase(blocks_.begin() + static_cast<std::ptrdiff_t>(spot.block));
    Renumber();
}

void RowOrder::Clear() {
    *this = RowOrder();
}

void RowOrder::InsertBlock(std::size_t at) {
    blocks_.insert(blocks_.begin() + static_cast<std::ptrdiff_t>(at), std::make_unique<Block>());
    Renumber();
}

void RowOrder::Split(std::size_t block) {
    blocks_.insert(blocks_.begin() + static_cast<std::ptrdiff_t>(block) + 1,
                   std::make_unique<Block>());
    Block& lower = *blocks_[block];
    Block& upper = *blocks_[block + 1];
    upper.count = lower.count / 2;
    lower.count -= upper.count;
    const auto middle = lower.ids.begin() + lower.count;
    std::copy(middle, middle + upper.count, upper.ids.begin());
    for (int offset = 0; offset < upper.count; ++offset) {
        blockOf_[upper.ids[static_cast<std::size_t>(offset)]] = &upper;
    }
    Renumber();
}

void RowOrder::Renumber() {
    tree_.assign(blocks_.size() + 1, 0);
    for (std::size_t i = 1; i < tree_.size(); ++i) {
        blocks_[i - 1]->number = i - 1;
        tree_[i] += blocks_[i - 1]->count;
        const std::size_t above = i + (i & (~i + 1));
        if (above < tree_.size()) tree_[above] += tree_[i];
    }
}

}  // namespace kv
