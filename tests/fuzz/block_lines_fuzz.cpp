#include <cstddef>
#include <cstdint>
#include <string_view>

#include "fuzz/block_file_checks.h"

/// The first byte tells the order, the next two the delimiters, 0 for an empty one; the rest is the
/// file.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    constexpr std::size_t kForm = 3;
    if (size < kForm) return 0;
    const auto delimiter = [data](std::size_t at) {
        return std::string(data[at] ? 1 : 0, static_cast<char>(data[at]));
    };
    kv::ImportFormat format;
    format.blockFirst = data[0] % 2 == 0;
    format.columnDelimiter = delimiter(1);
    format.extDelimiter = delimiter(2);
    const std::string_view text(reinterpret_cast<const char*>(data) + kForm, size - kForm);
    const auto entries = kv::blocks::ReadLines(text, format);
    block_file_checks::CheckEntries(text, entries);
    for (const kv::ImportedBlock& entry : entries) {
        block_file_checks::Check(entry.area.find_first_of("\t\n") == std::string::npos);
        block_file_checks::Check(entry.block.find_first_of(" \t\n") == std::string::npos);
    }
    return 0;
}
