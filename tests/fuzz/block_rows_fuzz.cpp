#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "map_picks/block_rows.h"

namespace {

void Check(bool holds) {
    if (!holds) std::abort();
}

/// What stands ahead of that sign, which goes with it.
std::string Cut(std::string_view& text, char end) {
    const std::string part(text.substr(0, text.find(end)));
    text.remove_prefix(std::min(part.size() + 1, text.size()));
    return part;
}

}  // namespace

/// Rows, a line each, of six cells with tabs between them.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::string_view text(reinterpret_cast<const char*>(data), size);
    map_picks::BlocksOfRows rows;
    std::size_t count = 0;
    for (; !text.empty(); ++count) {
        const std::string line = Cut(text, '\n');
        std::string_view rest = line;
        std::array<std::string, 6> cells;
        for (std::string& cell : cells)
            cell = Cut(rest, '\t');
        rows.Add({cells[0].c_str(), cells[1].c_str(), cells[2].c_str(), cells[3].c_str(),
                  cells[4].c_str(), cells[5].c_str()});
    }
    std::size_t corners = 0;
    for (const kv::qt::MapBlock& block : rows.Take()) {
        Check(!block.outline.empty());
        corners += block.outline.size();
        for (const kv::map::Place& place : block.outline)
            Check(!std::isnan(place.lat) && !std::isnan(place.lon));
    }
    Check(corners == count);
    return 0;
}
