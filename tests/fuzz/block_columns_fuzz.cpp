#include <cstddef>
#include <cstdint>
#include <sstream>
#include <string_view>

#include "fuzz/block_file_checks.h"

/// The first byte tells the number of columns; the rest is the file.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0) return 0;
    const int columns = 1 + data[0] % 3;
    const std::string_view text(reinterpret_cast<const char*>(data) + 1, size - 1);
    const auto entries = kv::blocks::ReadColumns(text, columns);
    block_file_checks::CheckEntries(text, entries);
    block_file_checks::CheckBlanksAreTrimmed(entries);
    return 0;
}
