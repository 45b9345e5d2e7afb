#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <string_view>
#include <vector>

#include "base/text.h"
#include "blocks/block_file.h"

/// What holds for whatever the readers of block selection files are given.
namespace block_file_checks {

inline void Check(bool holds) {
    if (!holds) std::abort();
}

inline void CheckEntries(std::string_view text, const std::vector<kv::ImportedBlock>& entries) {
    const auto lines = static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n'));
    Check(entries.size() <= lines);
    std::size_t bytes = 0;
    for (const kv::ImportedBlock& entry : entries) {
        Check(kv::ToUpper(entry.area) == entry.area);
        bytes += entry.area.size() + entry.block.size();
    }
    Check(bytes <= text.size());
}

inline void CheckBlanksAreTrimmed(const std::vector<kv::ImportedBlock>& entries) {
    for (const kv::ImportedBlock& entry : entries)
        Check(kv::Trim(entry.area) == entry.area && kv::Trim(entry.block) == entry.block);
}

/// Whether one of these would be read as a key.
inline bool LooksLikeAKey(const std::vector<kv::blocks::Place>& neighbors) {
    return std::any_of(neighbors.begin(), neighbors.end(), [](const kv::blocks::Place& place) {
        return place.first.starts_with('[') && place.first.find(']') == place.first.size() - 1;
    });
}

}  // namespace block_file_checks
