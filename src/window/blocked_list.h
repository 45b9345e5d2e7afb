#pragma once

#include <algorithm>
#include <cstddef>
#include <utility>
#include <vector>

namespace kv {

/// A sequence in blocks: inserting and erasing anywhere moves one block's elements only, so that a
/// list of 100,000 rows can lose them one by one, from either end, in no noticeable time.
template <typename T>
class BlockedList {
public:
    int Count() const { return count_; }

    T& At(int index) {
        const Place place = PlaceOf(index);
        return blocks_[place.block][place.offset];
    }
    const T& At(int index) const {
        const Place place = PlaceOf(index);
        return blocks_[place.block][place.offset];
    }

    void Insert(int index, T value) {
        if (blocks_.empty()) blocks_.emplace_back();
        Place place;
        if (index == count_) {
            place = {blocks_.size() - 1, blocks_.back().size()};
        } else {
            place = PlaceOf(index);
        }
        auto& block = blocks_[place.block];
        block.insert(block.begin() + static_cast<std::ptrdiff_t>(place.offset), std::move(value));
        ++count_;
        if (block.size() > kMost) Split(place.block);
        last_ = {};
    }

    void Erase(int index) {
        const Place place = PlaceOf(index);
        auto& block = blocks_[place.block];
        block.erase(block.begin() + static_cast<std::ptrdiff_t>(place.offset));
        --count_;
        if (block.empty()) blocks_.erase(blocks_.begin() + static_cast<std::ptrdiff_t>(place.block));
        last_ = {};
    }

    void Clear() {
        blocks_.clear();
        count_ = 0;
        last_ = {};
    }

    template <typename F>
    void ForEach(F&& visit) {
        for (auto& block : blocks_) {
            for (T& value : block) visit(value);
        }
    }

private:
    static constexpr std::size_t kMost = 512;

    struct Place {
        std::size_t block = 0;
        std::size_t offset = 0;
    };
    /// Where the last look-up ended: views read rows in order.
    struct Cached {
        std::size_t block = 0;
        std::size_t first = 0;
    };

    Place PlaceOf(int index) const {
        const auto wanted = static_cast<std::size_t>(index);
        Cached at = wanted >= last_.first ? last_ : Cached{};
        while (wanted - at.first >= blocks_[at.block].size()) {
            at.first += blocks_[at.block].size();
            ++at.block;
        }
        last_ = at;
        return {at.block, wanted - at.first};
    }

    void Split(std::size_t index) {
        auto& block = blocks_[index];
        const auto middle = block.begin() + static_cast<std::ptrdiff_t>(block.size() / 2);
        std::vector<T> tail(std::make_move_iterator(middle), std::make_move_iterator(block.end()));
        block.erase(middle, block.end());
        blocks_.insert(blocks_.begin() + static_cast<std::ptrdiff_t>(index + 1), std::move(tail));
    }

    std::vector<std::vector<T>> blocks_;
    int count_ = 0;
    mutable Cached last_;
};

}  // namespace kv
