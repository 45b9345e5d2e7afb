#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "kvdlg/script_lines.h"

namespace {

void Check(bool holds) {
    if (!holds) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view json(reinterpret_cast<const char*>(data), size);
    const auto lines = kvdlg::LinesOf(json);
    const auto last = 1 + std::count(json.begin(), json.end(), '\n');
    Check(lines.contains(""));
    for (const auto& [pointer, line] : lines) {
        Check(line >= 1 && line <= last);
        Check(pointer.empty() || pointer.front() == '/');
    }
    return 0;
}
