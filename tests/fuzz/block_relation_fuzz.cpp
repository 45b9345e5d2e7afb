#include <cstddef>
#include <cstdint>
#include <sstream>
#include <string_view>

#include "fuzz/block_file_checks.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using block_file_checks::Check;
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    kv::blocks::NeighborRelation relation;
    kv::blocks::ReadRelation(text, relation);
    std::size_t bytes = 0;
    for (const auto& [place, neighbors] : relation) {
        Check(!neighbors.empty());
        Check(place.first.find_first_of("[]~\n\t") == std::string::npos);
        for (const auto& [area, block] : neighbors) {
            Check(!area.empty() && area.find('~') == std::string::npos);
            Check(!block.empty() && block.find_first_of(" \n\t") == std::string::npos);
            bytes += area.size() + block.size();
        }
    }
    Check(bytes <= size);

    // What was read, written and read again is the same, but for what stands without a key, and
    // for areas that look like one.
    relation.erase({"", ""});
    std::erase_if(relation,
                  [](const auto& each) { return block_file_checks::LooksLikeAKey(each.second); });
    std::ostringstream out;
    kv::blocks::WriteRelation(out, relation);
    kv::blocks::NeighborRelation again;
    kv::blocks::ReadRelation(out.str(), again);
    Check(again == relation);
    return 0;
}
