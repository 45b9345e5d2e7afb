#pragma once

#include <memory>
#include <string_view>
#include <vector>

#include "base/export.h"
#include "base/types.h"
#include "window/rows/row_key_index.h"
#include "window/rows/row_order.h"
#include "window/rows/row_store.h"

namespace kv {

/// The rows of a list or a combo box: a text, a piece of item data, and a mark each.
///
/// Every operation on one row, searches included, takes about the logarithm of the number of rows.
/// What searches need is made at the first search and kept up from then on.
class KVGUICTL_API RowList {
public:
    /// A sorted list keeps what is added in the order of its texts, without regard to case.
    explicit RowList(bool sorted = false) : sorted_(sorted) {}
    RowList(const RowList&) = delete;
    RowList& operator=(const RowList&) = delete;

    bool Sorted() const { return sorted_; }
    int Count() const { return order_.Count(); }
    bool Has(int row) const { return row >= 0 && row < Count(); }

    /// Good until rows are added or removed. `row` must be one that there is, here and below.
    std::string_view Text(int row) const { return store_.Text(order_.At(row)); }
    LPARAM Data(int row) const { return store_.Data(order_.At(row)); }
    void SetData(int row, LPARAM data) { store_.SetData(order_.At(row), data); }
    /// An index into a list of images; -1 for none.
    int Image(int row) const { return store_.Image(order_.At(row)); }
    void SetImage(int row, int image) { store_.SetImage(order_.At(row), image); }

    /// Adds a row at its sorted place, behind rows with the same text, or at the end of a list that
    /// is not sorted. Returns its index.
    int Add(std::string_view text);
    /// Puts a row at that index, from 0 to `Count()`, whatever its text.
    void Insert(int row, std::string_view text);
    void Remove(int row);
    void Clear();

    /// First row behind `start` that begins with a text, or that is the text, without regard to
    /// case, going round to `start` itself. A start that is no row, as -1, means from the top.
    /// Returns -1 when there is none; no row begins with the empty text.
    int FindPrefix(std::string_view prefix, int start) const;
    int FindExact(std::string_view text, int start) const;

    // Marks, which go along with their rows.
    bool Marked(int row) const;
    /// False when the row was so already.
    bool SetMarked(int row, bool marked);
    bool SetAllMarked(bool marked);
    int MarkedCount() const { return static_cast<int>(markedIds_.size()); }
    /// In order.
    std::vector<int> MarkedRows() const;

private:
    void InsertAt(int row, std::string_view text);
    int SortedPlace(std::string_view text) const;
    template <typename Matches>
    int Scan(int start, int count, Matches matches) const;
    template <typename Matches>
    int FindInOrder(std::string_view text, int start, Matches matches) const;
    const RowKeyIndex& Index() const;
    int PlaceOf(std::optional<RowId> id) const { return id ? order_.PlaceOf(*id) : -1; }
    bool IsMarked(RowId id) const { return id < markedAt_.size() && markedAt_[id] != 0; }
    void Mark(RowId id);
    void Unmark(RowId id);

    bool sorted_;
    /// Whether the rows of a sorted list stand in the order of their texts.
    bool inOrder_ = true;
    RowStore store_;
    RowOrder order_;
    mutable std::unique_ptr<RowKeyIndex> index_;
    std::vector<RowId> markedIds_;
    /// Of each row its place in `markedIds_` plus 1, or 0.
    std::vector<std::uint32_t> markedAt_;
};

}  // namespace kv
