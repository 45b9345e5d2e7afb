#include <cstddef>
#include <cstdint>
#include <string_view>

#include "fuzz/block_file_checks.h"

/// The first three bytes tell the widths; the rest is the file.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    constexpr std::size_t kForm = 3;
    if (size < kForm) return 0;
    const kv::blocks::ColumnWidths widths{data[0], data[1], data[2]};
    const std::string_view text(reinterpret_cast<const char*>(data) + kForm, size - kForm);
    const auto entries = kv::blocks::ReadFixed(text, widths);
    block_file_checks::CheckEntries(text, entries);
    block_file_checks::CheckBlanksAreTrimmed(entries);
    for (const kv::ImportedBlock& entry : entries) {
        block_file_checks::Check(!entry.area.empty() && entry.area.size() <= widths.area);
        block_file_checks::Check(entry.block.size() <= widths.block + widths.ext);
    }
    return 0;
}
