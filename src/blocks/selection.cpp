#include "blocks/selection.h"

#include <bit>
#include <functional>

namespace kv::blocks {

namespace {

std::uint64_t HashOf(std::string_view area, std::string_view block) {
    constexpr std::uint64_t kSpread = 0x9E3779B97F4A7C15;
    const std::hash<std::string_view> hash;
    return (hash(area) * kSpread) ^ std::rotl<std::uint64_t>(hash(block), 17);
}

std::uint32_t UpperHalf(std::uint64_t hash) {
    return static_cast<std::uint32_t>(hash >> 32);
}

}  // namespace

IndexedSelection::IndexedSelection(Selection& selection) : selection_(selection) {
    // A caller's vectors that are not parallel are made so.
    const std::size_t count = EntryCount(selection);
    selection.first.resize(count);
    selection.second.resize(count);
    Grow();
}

/// Where the entry is, or where it would be put.
std::size_t IndexedSelection::SlotOf(std::string_view area, std::string_view block,
                                     std::uint64_t hash) const {
    const std::size_t mask = slots_.size() - 1;
    std::size_t at = hash & mask;
    for (; slots_[at].entry != 0; at = (at + 1) & mask) {
        const std::size_t entry = slots_[at].entry - 1;
        if (slots_[at].hash == UpperHalf(hash) && selection_.second[entry] == block &&
            selection_.first[entry] == area) {
            break;
        }
    }
    return at;
}

bool IndexedSelection::Has(std::string_view area, std::string_view block) const {
    return slots_[SlotOf(area, block, HashOf(area, block))].entry != 0;
}

bool IndexedSelection::Add(std::string area, std::string block) {
    const std::uint64_t hash = HashOf(area, block);
    Slot& slot = slots_[SlotOf(area, block, hash)];
    if (slot.entry != 0) return false;
    selection_.first.push_back(std::move(area));
    selection_.second.push_back(std::move(block));
    slot = {static_cast<std::uint32_t>(Count()), UpperHalf(hash)};
    if (++used_ * 2 > slots_.size()) Grow();
    return true;
}

/// Makes the index anew, with room for as many entries again.
void IndexedSelection::Grow() {
    slots_.assign(std::bit_ceil(Count() * 4 + 16), Slot());
    used_ = 0;
    for (std::size_t entry = 0; entry < Count(); ++entry) {
        const std::string& area = selection_.first[entry];
        const std::string& block = selection_.second[entry];
        const std::uint64_t hash = HashOf(area, block);
        Slot& slot = slots_[SlotOf(area, block, hash)];
        if (slot.entry != 0) continue;
        slot = {static_cast<std::uint32_t>(entry + 1), UpperHalf(hash)};
        ++used_;
    }
}

void RemoveEntries(Selection& selection, const std::vector<Place>& places) {
    Selection unwanted;
    IndexedSelection index(unwanted);
    for (const auto& [area, block] : places)
        index.Add(area, block);
    auto& [areas, blocks] = selection;
    std::size_t kept = 0;
    for (std::size_t entry = 0; entry < EntryCount(selection); ++entry) {
        if (index.Has(areas[entry], blocks[entry])) continue;
        if (kept != entry) {
            areas[kept] = std::move(areas[entry]);
            blocks[kept] = std::move(blocks[entry]);
        }
        ++kept;
    }
    areas.resize(kept);
    blocks.resize(kept);
}

}  // namespace kv::blocks
