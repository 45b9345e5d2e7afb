#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <memory>
#include <vector>

#include "base/export.h"
#include "window/rows/row_store.h"

namespace kv {

/// The order of rows: which row stands at a place, and at which place a row stands.
///
/// The ids lie in blocks, and a tree over the blocks counts what lies ahead of each, so that each
/// operation costs a walk down the tree and one block.
class KVGUICTL_API RowOrder {
public:
    int Count() const { return count_; }
    /// `place` must be inside.
    RowId At(int place) const;
    int PlaceOf(RowId id) const;
    /// `place` is at most `Count()`.
    void Insert(int place, RowId id);
    void Erase(int place);
    void Clear();

    /// First place whose row is not `before`; the rows that are must stand ahead of all others.
    template <typename Before>
    int PartitionPoint(Before before) const;

    /// Calls `visit` with each id in order.
    template <typename Visit>
    void ForEach(Visit visit) const;

private:
    static constexpr int kBlockSize = 512;

    struct Block {
        std::size_t number = 0;
        int count = 0;
        std::array<RowId, kBlockSize> ids;
    };
    struct Spot {
        std::size_t block;
        int offset;
    };

    Spot Locate(int place) const;
    Spot SpotForInsert(int place);
    int CountAhead(std::size_t block) const;
    void AddToCount(std::size_t block, int change);
    void InsertBlock(std::size_t at);
    void Split(std::size_t block);
    void Renumber();

    std::vector<std::unique_ptr<Block>> blocks_;
    /// Element i counts the rows of the blocks that end with block i - 1, as many blocks as the
    /// lowest bit of i says.
    std::vector<int> tree_;
    std::vector<Block*> blockOf_;
    int count_ = 0;
};

template <typename Before>
int RowOrder::PartitionPoint(Before before) const {
    const auto behind = std::partition_point(
        blocks_.begin(), blocks_.end(),
        [&](const std::unique_ptr<Block>& block) { return before(block->ids.front()); });
    if (behind == blocks_.begin()) return 0;
    const Block& block = **std::prev(behind);
    const auto first = block.ids.begin();
    const auto at = std::partition_point(first, first + block.count, before);
    return CountAhead(block.number) + static_cast<int>(at - first);
}

template <typename Visit>
void RowOrder::ForEach(Visit visit) const {
    for (const auto& block : blocks_) {
        for (int offset = 0; offset < block->count; ++offset) {
            visit(block->ids[static_cast<std::size_t>(offset)]);
        }
    }
}

}  // namespace kv
