#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "base/export.h"

namespace kv::blocks {

/// Two parallel vectors of equal length: the area of each entry, and its block with extension and
/// suffix, an empty one meaning the whole area.
using Selection = std::pair<std::vector<std::string>, std::vector<std::string>>;

/// How many entries it has: of vectors that are not of one length, those of the shorter.
inline std::size_t EntryCount(const Selection& selection) {
    return std::min(selection.first.size(), selection.second.size());
}

/// An area, and a block as a selection has it.
using Place = std::pair<std::string, std::string>;

/// To each selected block the blocks that touch it.
using NeighborRelation = std::map<Place, std::vector<Place>>;

/// A selection of somebody else's, with an index that tells at once whether an entry is in it.
///
/// Entries are compared byte for byte. While it lives the selection may be changed through it only.
class KVGUICTL_API IndexedSelection {
public:
    explicit IndexedSelection(Selection& selection);

    bool Has(std::string_view area, std::string_view block) const;
    /// Puts an entry at the end. False, with nothing changed, when there is such an entry.
    bool Add(std::string area, std::string block);

private:
    std::size_t SlotOf(std::string_view area, std::string_view block, std::uint64_t hash) const;
    void Grow();
    std::size_t Count() const { return selection_.first.size(); }

    /// The number of an entry plus 1, or 0, and the upper half of its hash.
    struct Slot {
        std::uint32_t entry = 0;
        std::uint32_t hash = 0;
    };

    Selection& selection_;
    /// Each entry at the place of its hash, or at the next one that was free.
    std::vector<Slot> slots_;
    std::size_t used_ = 0;
};

/// Takes every entry out that is one of `places`; the others keep their order.
KVGUICTL_API void RemoveEntries(Selection& selection, const std::vector<Place>& places);

}  // namespace kv::blocks
