#include "window/rows/row_store.h"

#include <utility>

namespace kv {

namespace {

/// Texts of removed rows are left in the buffer until they are this much, and most of it.
constexpr std::size_t kDeadBytesKept = std::size_t{1} << 16;

}  // namespace

RowId RowStore::Add(std::string_view text) {
    const std::size_t offset = buffer_.size();
    const auto length = static_cast<std::uint32_t>(text.size());
    buffer_.append(text);
    if (free_.empty()) {
        rows_.push_back({offset, 0, length});
        return static_cast<RowId>(rows_.size() - 1);
    }
    const RowId id = free_.back();
    free_.pop_back();
    rows_[id] = {offset, 0, length};
    return id;
}

void RowStore::Remove(RowId id) {
    Row& row = rows_[id];
    row.alive = false;
    deadBytes_ += row.length;
    free_.push_back(id);
    if (deadBytes_ > kDeadBytesKept && deadBytes_ > buffer_.size() / 2) DropDeadTexts();
}

void RowStore::Clear() {
    *this = RowStore();
}

void RowStore::DropDeadTexts() {
    std::string kept;
    kept.reserve(buffer_.size() - deadBytes_);
    for (Row& row : rows_) {
        if (!row.alive) continue;
        const std::size_t offset = kept.size();
        kept.append(buffer_, row.offset, row.length);
        row.offset = offset;
    }
    buffer_ = std::move(kept);
    deadBytes_ = 0;
}

}  // namespace kv
