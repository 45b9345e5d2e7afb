#include "window/rows/row_key_index.h"

#include <algorithm>
#include <limits>

#include "base/text.h"

namespace kv {

namespace {

constexpr std::size_t kBlockSize = 256;
constexpr std::size_t kHeadBytes = 8;

/// Between the labels of rows that come to stand side by side.
constexpr std::int64_t kGap = std::int64_t{1} << 40;
/// Left between rows that are inserted one behind the other in the middle.
constexpr std::int64_t kStep = std::int64_t{1} << 20;
constexpr std::int64_t kFirstLabel = std::numeric_limits<std::int64_t>::min();
constexpr std::int64_t kLastLabel = std::numeric_limits<std::int64_t>::max();

std::uint64_t HeadOf(std::string_view text) {
    std::uint64_t head = 0;
    for (std::size_t i = 0; i < kHeadBytes; ++i) {
        const char ch = i < text.size() ? ToLower(text[i]) : '\0';
        head = head << 8 | static_cast<unsigned char>(ch);
    }
    return head;
}

std::string_view Tail(std::string_view text) {
    return text.substr(std::min(text.size(), kHeadBytes));
}

}  // namespace

/// Gathers, over parts of the index, the row with the least label above a bound, and the row with
/// the least label of all.
class RowKeyIndex::Search {
public:
    explicit Search(Label after) : after_(after) {}

    void Offer(Label label, RowId id) {
        if (label > after_ && label < behind_) {
            behind_ = label;
            behindId_ = id;
        }
        if (label < least_) {
            least_ = label;
            leastId_ = id;
        }
    }
    void OfferBlock(Block& block) {
        if (block.byLabel.empty()) block.SortByLabel();
        const std::vector<Labelled>& rows = block.byLabel;
        Offer(rows.front().label, rows.front().id);
        if (rows.front().label > after_ || rows.back().label <= after_) return;
        const auto next =
            std::upper_bound(rows.begin(), rows.end(), after_,
                             [](Label label, const Labelled& row) { return label < row.label; });
        Offer(next->label, next->id);
    }
    void OfferPart(const Block& block, std::size_t from, std::size_t to) {
        for (std::size_t i = from; i < to; ++i)
            Offer(block.entries[i].label, block.entries[i].id);
    }
    std::optional<RowId> Found() const {
        if (behindId_) return behindId_;
        return leastId_;
    }

private:
    Label after_;
    Label behind_ = kLastLabel;
    Label least_ = kLastLabel;
    std::optional<RowId> behindId_;
    std::optional<RowId> leastId_;
};

void RowKeyIndex::Block::SortByLabel() {
    byLabel.clear();
    byLabel.reserve(kBlockSize);
    for (const Entry& entry : entries)
        byLabel.push_back({entry.label, entry.id});
    std::sort(byLabel.begin(), byLabel.end(),
              [](const Labelled& a, const Labelled& b) { return a.label < b.label; });
}

std::vector<RowKeyIndex::Labelled>::iterator RowKeyIndex::Block::PlaceByLabel(Label label) {
    return std::lower_bound(byLabel.begin(), byLabel.end(), label,
                            [](const Labelled& row, Label value) { return row.label < value; });
}

void RowKeyIndex::Block::Insert(std::size_t offset, const Entry& entry) {
    if (!byLabel.empty()) byLabel.insert(PlaceByLabel(entry.label), {entry.label, entry.id});
    entries.insert(entries.begin() + static_cast<std::ptrdiff_t>(offset), entry);
}

void RowKeyIndex::Block::Erase(std::size_t offset) {
    if (!byLabel.empty()) byLabel.erase(PlaceByLabel(entries[offset].label));
    entries.erase(entries.begin() + static_cast<std::ptrdiff_t>(offset));
}

/// Takes away the upper half.
std::unique_ptr<RowKeyIndex::Block> RowKeyIndex::Block::SplitOff() {
    auto upper = std::make_unique<Block>();
    const auto middle = entries.begin() + static_cast<std::ptrdiff_t>(entries.size() / 2);
    upper->entries.reserve(kBlockSize);
    upper->entries.assign(middle, entries.end());
    entries.erase(middle, entries.end());
    byLabel.clear();
    return upper;
}

RowKeyIndex::RowKeyIndex(const RowStore& store, const RowOrder& order)
    : store_(store), order_(order) {
    LabelAll();
    std::vector<Entry> entries;
    entries.reserve(static_cast<std::size_t>(order_.Count()));
    order_.ForEach([&](RowId id) {
        entries.push_back({HeadOf(store_.Text(id)), labels_[id], id});
    });
    std::sort(entries.begin(), entries.end(), [this](const Entry& a, const Entry& b) {
        return Less(a, {store_.Text(b.id), b.head, b.label});
    });
    constexpr std::size_t kFill = kBlockSize / 2;
    for (std::size_t at = 0; at < entries.size(); at += kFill) {
        const auto first = entries.begin() + static_cast<std::ptrdiff_t>(at);
        const auto count = static_cast<std::ptrdiff_t>(std::min(kFill, entries.size() - at));
        auto block = std::make_unique<Block>();
        block->entries.reserve(kBlockSize);
        block->entries.assign(first, first + count);
        blocks_.push_back(std::move(block));
    }
}

bool RowKeyIndex::Less(const Entry& entry, const Key& key) const {
    if (entry.head != key.head) return entry.head < key.head;
    const int order = CompareNoCase(Tail(store_.Text(entry.id)), Tail(key.text));
    return order != 0 ? order < 0 : entry.label < key.label;
}

/// Whether the entry comes ahead of the texts with that prefix, or is one of them.
bool RowKeyIndex::NotBehind(const Entry& entry, std::string_view prefix, std::uint64_t head) const {
    const std::size_t free = prefix.size() < kHeadBytes ? 8 * (kHeadBytes - prefix.size()) : 0;
    const std::uint64_t ours = entry.head >> free;
    const std::uint64_t theirs = head >> free;
    if (ours != theirs) return ours < theirs;
    const std::string_view tail = Tail(prefix);
    return CompareNoCase(Tail(store_.Text(entry.id)).substr(0, tail.size()), tail) <= 0;
}

template <typename Before>
RowKeyIndex::Spot RowKeyIndex::PartitionPoint(Before before) const {
    const auto behind = std::partition_point(
        blocks_.begin(), blocks_.end(),
        [&](const std::unique_ptr<Block>& block) { return before(block->entries.front()); });
    if (behind == blocks_.begin()) return {};
    const auto number = static_cast<std::size_t>(behind - blocks_.begin()) - 1;
    const std::vector<Entry>& entries = blocks_[number]->entries;
    const auto at = std::partition_point(entries.begin(), entries.end(), before);
    return {number, static_cast<std::size_t>(at - entries.begin())};
}

RowKeyIndex::Spot RowKeyIndex::LowerBound(const Key& key) const {
    return PartitionPoint([&](const Entry& entry) { return Less(entry, key); });
}

/// The entry at a spot, which may lie just behind its block; null behind the last one.
const RowKeyIndex::Entry* RowKeyIndex::EntryAt(Spot spot) const {
    if (spot.block >= blocks_.size()) return nullptr;
    const std::vector<Entry>& entries = blocks_[spot.block]->entries;
    if (spot.offset < entries.size()) return &entries[spot.offset];
    if (spot.block + 1 == blocks_.size()) return nullptr;
    return &blocks_[spot.block + 1]->entries.front();
}

RowKeyIndex::Label RowKeyIndex::LabelAfter(std::optional<RowId> after) const {
    return after ? labels_[*after] : kFirstLabel;
}

std::optional<RowId> RowKeyIndex::FindExact(std::string_view text,
                                            std::optional<RowId> after) const {
    const std::uint64_t head = HeadOf(text);
    const auto firstFrom = [&](Label label) -> std::optional<RowId> {
        const Entry* entry = EntryAt(LowerBound({text, head, label}));
        if (!entry || !EqualsNoCase(store_.Text(entry->id), text)) return std::nullopt;
        return entry->id;
    };
    if (after) {
        if (const auto found = firstFrom(LabelAfter(after) + 1)) return found;
    }
    return firstFrom(kFirstLabel);
}

std::optional<RowId> RowKeyIndex::FindPrefix(std::string_view prefix,
                                             std::optional<RowId> after) const {
    const std::uint64_t head = HeadOf(prefix);
    const Spot from = LowerBound({prefix, head, kFirstLabel});
    const Spot to =
        PartitionPoint([&](const Entry& entry) { return NotBehind(entry, prefix, head); });
    Search search(LabelAfter(after));
    for (std::size_t number = from.block; number <= to.block && number < blocks_.size(); ++number) {
        Block& block = *blocks_[number];
        const std::size_t first = number == from.block ? from.offset : 0;
        const std::size_t last = number == to.block ? to.offset : block.entries.size();
        if (first == 0 && last == block.entries.size()) {
            search.OfferBlock(block);
        } else {
            search.OfferPart(block, first, last);
        }
    }
    return search.Found();
}

void RowKeyIndex::Inserted(RowId id, int place) {
    if (labels_.size() <= id) labels_.resize(id + std::size_t{1});
    const Label label = ChooseLabel(id, place);
    labels_[id] = label;
    lastInserted_ = id;
    InsertEntry({HeadOf(store_.Text(id)), label, id});
}

RowKeyIndex::Label RowKeyIndex::ChooseLabel(RowId id, int place) {
    const bool hasPrevious = place > 0;
    const bool hasNext = place + 1 < order_.Count();
    const RowId previous = hasPrevious ? order_.At(place - 1) : id;
    const RowId next = hasNext ? order_.At(place + 1) : id;
    if (!hasPrevious && !hasNext) return 0;
    if (!hasNext && labels_[previous] < kLastLabel - kGap) return labels_[previous] + kGap;
    if (!hasPrevious && labels_[next] > kFirstLabel + kGap) return labels_[next] - kGap;
    const Label gap = hasPrevious && hasNext ? labels_[next] - labels_[previous] : 0;
    if (gap < 2) {
        Relabel();
        return labels_[id];
    }
    // Rows often come one behind the other, or each ahead of the one before.
    const Label step = std::min(gap / 2, kStep);
    if (lastInserted_ == previous) return labels_[previous] + step;
    if (lastInserted_ == next) return labels_[next] - step;
    return labels_[previous] + gap / 2;
}

void RowKeyIndex::LabelAll() {
    labels_.resize(store_.IdCount());
    const Label gap = std::min(kGap, kLastLabel / 2 / (order_.Count() + 1));
    Label label = 0;
    order_.ForEach([&](RowId id) { labels_[id] = label += gap; });
}

void RowKeyIndex::Relabel() {
    LabelAll();
    for (const auto& block : blocks_) {
        for (Entry& entry : block->entries)
            entry.label = labels_[entry.id];
        block->byLabel.clear();
    }
}

void RowKeyIndex::InsertEntry(const Entry& entry) {
    if (blocks_.empty()) blocks_.push_back(std::make_unique<Block>());
    Spot spot = LowerBound({store_.Text(entry.id), entry.head, entry.label});
    if (blocks_[spot.block]->entries.size() >= kBlockSize) {
        auto upper = blocks_[spot.block]->SplitOff();
        const std::size_t half = blocks_[spot.block]->entries.size();
        blocks_.insert(blocks_.begin() + static_cast<std::ptrdiff_t>(spot.block) + 1,
                       std::move(upper));
        if (spot.offset > half) spot = {spot.block + 1, spot.offset - half};
    }
    blocks_[spot.block]->Insert(spot.offset, entry);
}

void RowKeyIndex::Removed(RowId id) {
    const std::string_view text = store_.Text(id);
    Spot spot = LowerBound({text, HeadOf(text), labels_[id]});
    if (spot.offset == blocks_[spot.block]->entries.size()) spot = {spot.block + 1, 0};
    blocks_[spot.block]->Erase(spot.offset);
    if (blocks_[spot.block]->entries.empty()) {
        blocks_.erase(blocks_.begin() + static_cast<std::ptrdiff_t>(spot.block));
    }
    if (lastInserted_ == id) lastInserted_.reset();
}

}  // namespace kv
