#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string_view>
#include <vector>

#include "window/rows/row_order.h"
#include "window/rows/row_store.h"

namespace kv {

/// Finds rows by their texts without regard to case: those with a whole text, or beginning with
/// one, and of those the first behind a given row.
///
/// Each row has a label, which grows with its place and stays while other rows come and go. The
/// entries lie in blocks in the order of texts, rows of one text in the order of labels. Of a block
/// that a search takes in as a whole it needs only the labels in their own order.
class RowKeyIndex {
public:
    /// Indexes all rows. Both must outlive the index.
    RowKeyIndex(const RowStore& store, const RowOrder& order);

    /// The row stands in the store and in the order, at `place`.
    void Inserted(RowId id, int place);
    /// The row still stands in the store.
    void Removed(RowId id);

    /// First row behind `after` with that whole text, going round; null for `after` means from the
    /// top.
    std::optional<RowId> FindExact(std::string_view text, std::optional<RowId> after) const;
    /// The same for rows that begin with the text.
    std::optional<RowId> FindPrefix(std::string_view prefix, std::optional<RowId> after) const;

private:
    using Label = std::int64_t;

    struct Entry {
        std::uint64_t head;  ///< first bytes of the text, folded: settles most comparisons
        Label label;
        RowId id;
    };
    struct Labelled {
        Label label;
        RowId id;
    };
    struct Block {
        std::vector<Entry> entries;
        /// The same rows in the order of labels, once a search has asked for it.
        std::vector<Labelled> byLabel;

        void SortByLabel();
        void Insert(std::size_t offset, const Entry& entry);
        void Erase(std::size_t offset);
        std::unique_ptr<Block> SplitOff();

    private:
        std::vector<Labelled>::iterator PlaceByLabel(Label label);
    };
    struct Spot {
        std::size_t block = 0;
        std::size_t offset = 0;
    };
    /// A text and a label to be compared with entries.
    struct Key {
        std::string_view text;
        std::uint64_t head;
        Label label;
    };
    class Search;

    bool Less(const Entry& entry, const Key& key) const;
    bool NotBehind(const Entry& entry, std::string_view prefix, std::uint64_t head) const;
    template <typename Before>
    Spot PartitionPoint(Before before) const;
    Spot LowerBound(const Key& key) const;
    const Entry* EntryAt(Spot spot) const;
    Label LabelAfter(std::optional<RowId> after) const;

    Label ChooseLabel(RowId id, int place);
    void LabelAll();
    void Relabel();
    void InsertEntry(const Entry& entry);

    const RowStore& store_;
    const RowOrder& order_;
    std::vector<Label> labels_;
    std::vector<std::unique_ptr<Block>> blocks_;
    std::optional<RowId> lastInserted_;
};

}  // namespace kv
