#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "drawing/vertex_row.h"

namespace {

void Check(bool holds) {
    if (!holds) std::abort();
}

}  // namespace

/// The bytes are a vertex file. Each is taken once, and a line holds nothing but what is printed,
/// and the mark of the last one.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::size_t at = 0;
    std::size_t returns = 0;
    for (std::size_t i = 0; i < size; ++i)
        returns += data[i] == '\r';
    const auto next = [&] { return at < size ? int{data[at++]} : -1; };
    std::string row;
    std::size_t lines = 0;
    bool last = false;
    while (!last) {
        const std::size_t begin = at;
        last = kv::vertices::ReadRow(next, row);
        ++lines;
        Check(row.size() <= 3 * (at - begin) + 1);
        const bool marked = !row.empty() && row.back() == '\r';
        Check(!marked || last);
        for (std::size_t i = 0; i + (marked ? 1 : 0) < row.size(); ++i)
            Check(row[i] >= ' ' && row[i] <= '~');
    }
    Check(at == size && lines == returns + 1);
    return 0;
}
