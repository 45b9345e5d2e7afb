#include "window/rows/row_list.h"

#include <algorithm>

#include "base/text.h"

namespace kv {

namespace {

/// So few rows are searched as they stand.
constexpr int kRowsWithoutIndex = 64;
/// Rows behind the start that are looked at ahead of the index: where many rows fit, one of these
/// is likely to.
constexpr int kRowsAheadOfIndex = 16;

}  // namespace

int RowList::Add(std::string_view text) {
    const int row = sorted_ ? SortedPlace(text) : Count();
    InsertAt(row, text);
    return row;
}

void RowList::Insert(int row, std::string_view text) {
    if (sorted_ && inOrder_) {
        const bool behindPrevious = row == 0 || CompareNoCase(Text(row - 1), text) <= 0;
        const bool aheadOfNext = row == Count() || CompareNoCase(text, Text(row)) <= 0;
        inOrder_ = behindPrevious && aheadOfNext;
    }
    InsertAt(row, text);
}

void RowList::InsertAt(int row, std::string_view text) {
    const RowId id = store_.Add(text);
    order_.Insert(row, id);
    if (index_) index_->Inserted(id, row);
}

int RowList::SortedPlace(std::string_view text) const {
    const int count = Count();
    if (count == 0 || CompareNoCase(Text(count - 1), text) <= 0) return count;
    return order_.PartitionPoint(
        [&](RowId id) { return CompareNoCase(store_.Text(id), text) <= 0; });
}

void RowList::Remove(int row) {
    const RowId id = order_.At(row);
    if (IsMarked(id)) Unmark(id);
    if (index_) index_->Removed(id);
    order_.Erase(row);
    store_.Remove(id);
    if (Count() == 0) Clear();
}

void RowList::Clear() {
    index_.reset();
    order_.Clear();
    store_.Clear();
    markedIds_ = {};
    markedAt_ = {};
    inOrder_ = true;
}

const RowKeyIndex& RowList::Index() const {
    if (!index_) index_ = std::make_unique<RowKeyIndex>(store_, order_);
    return *index_;
}

/// First of `count` rows behind `start`, going round, that fits; -1 for none.
template <typename Matches>
int RowList::Scan(int start, int count, Matches matches) const {
    int row = start;
    for (int seen = 0; seen < count; ++seen) {
        if (++row == Count()) row = 0;
        if (matches(Text(row))) return row;
    }
    return -1;
}

/// Where rows stand in the order of their texts, those that fit stand side by side.
template <typename Matches>
int RowList::FindInOrder(std::string_view text, int start, Matches matches) const {
    if (start + 1 < Count() && matches(Text(start + 1))) return start + 1;
    const int first =
        order_.PartitionPoint([&](RowId id) { return CompareNoCase(store_.Text(id), text) < 0; });
    return first < Count() && matches(Text(first)) ? first : -1;
}

int RowList::FindPrefix(std::string_view prefix, int start) const {
    if (prefix.empty() || Count() == 0) return -1;
    if (!Has(start)) start = -1;
    const auto matches = [prefix](std::string_view text) { return StartsWithNoCase(text, prefix); };
    if (Count() <= kRowsWithoutIndex) return Scan(start, Count(), matches);
    if (sorted_ && inOrder_) return FindInOrder(prefix, start, matches);
    const int near = Scan(start, kRowsAheadOfIndex, matches);
    if (near >= 0) return near;
    std::optional<RowId> after;
    if (start >= 0) after = order_.At(start);
    return PlaceOf(Index().FindPrefix(prefix, after));
}

int RowList::FindExact(std::string_view text, int start) const {
    if (Count() == 0) return -1;
    if (!Has(start)) start = -1;
    const auto matches = [text](std::string_view other) { return EqualsNoCase(other, text); };
    if (Count() <= kRowsWithoutIndex) return Scan(start, Count(), matches);
    if (sorted_ && inOrder_) return FindInOrder(text, start, matches);
    std::optional<RowId> after;
    if (start >= 0) after = order_.At(start);
    return PlaceOf(Index().FindExact(text, after));
}

bool RowList::Marked(int row) const {
    return IsMarked(order_.At(row));
}

bool RowList::SetMarked(int row, bool marked) {
    const RowId id = order_.At(row);
    if (IsMarked(id) == marked) return false;
    if (marked) {
        Mark(id);
    } else {
        Unmark(id);
    }
    return true;
}

bool RowList::SetAllMarked(bool marked) {
    if (MarkedCount() == (marked ? Count() : 0)) return false;
    if (marked) {
        order_.ForEach([this](RowId id) {
            if (!IsMarked(id)) Mark(id);
        });
    } else {
        for (const RowId id : markedIds_)
            markedAt_[id] = 0;
        markedIds_.clear();
    }
    return true;
}

void RowList::Mark(RowId id) {
    if (markedAt_.size() < store_.IdCount()) markedAt_.resize(store_.IdCount());
    markedIds_.push_back(id);
    markedAt_[id] = static_cast<std::uint32_t>(markedIds_.size());
}

void RowList::Unmark(RowId id) {
    const std::uint32_t at = markedAt_[id];
    const RowId last = markedIds_.back();
    markedIds_[at - 1] = last;
    markedAt_[last] = at;
    markedIds_.pop_back();
    markedAt_[id] = 0;
}

std::vector<int> RowList::MarkedRows() const {
    std::vector<int> rows;
    rows.reserve(markedIds_.size());
    if (MarkedCount() > Count() / 8) {
        int row = 0;
        order_.ForEach([&](RowId id) {
            if (IsMarked(id)) rows.push_back(row);
            ++row;
        });
        return rows;
    }
    for (const RowId id : markedIds_)
        rows.push_back(order_.PlaceOf(id));
    std::sort(rows.begin(), rows.end());
    return rows;
}

}  // namespace kv
