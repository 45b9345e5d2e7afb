#pragma once

#include <string>
#include <utility>
#include <vector>

#include "qt/map/map_block.h"

namespace map_picks {

/// One corner of a block, as the texts of a row tell it.
struct CornerRow {
    const char* label;  ///< number and extension, with the suffix of its water
    const char* area;
    const char* number;
    const char* reference;
    const char* lat;
    const char* lon;
};

/// Puts blocks together from their corners; rows with one reference behind each other are one.
class BlocksOfRows {
public:
    void Add(const CornerRow& row);
    std::vector<kv::qt::MapBlock> Take() { return std::move(blocks_); }

private:
    std::string reference_;
    std::vector<kv::qt::MapBlock> blocks_;
};

}  // namespace map_picks
