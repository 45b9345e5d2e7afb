#include "map_picks/block_rows.h"

#include <algorithm>

#include "base/numbers.h"

namespace map_picks {

void BlocksOfRows::Add(const CornerRow& row) {
    if (blocks_.empty() || reference_ != row.reference) {
        reference_ = row.reference;
        const std::string label = row.label;
        const std::string number = row.number;
        blocks_.push_back(
            {row.area, number, label.substr(std::min(number.size(), label.size())), {}});
    }
    blocks_.back().outline.push_back({kv::Atof(row.lat), kv::Atof(row.lon)});
}

}  // namespace map_picks
