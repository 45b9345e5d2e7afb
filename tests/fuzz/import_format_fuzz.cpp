#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "base/text.h"
#include "blocks/import_format.h"

namespace {

void Check(bool holds) {
    if (!holds) std::abort();
}

std::string Sorted(std::string text) {
    std::ranges::sort(text);
    return text;
}

/// What stands ahead of the next line feed, which goes with it.
std::string CutLine(std::string_view& text) {
    const std::size_t end = std::min(text.find('\n'), text.size());
    const std::string line(text.substr(0, end));
    text.remove_prefix(std::min(text.size(), end + 1));
    return line;
}

}  // namespace

/// The first line is the column delimiter, the second that of the extension, the rest what is read.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::string_view text(reinterpret_cast<const char*>(data), size);
    kv::ImportFormat format;
    format.columnDelimiter = CutLine(text);
    format.extDelimiter = CutLine(text);
    while (!text.empty()) {
        const std::string line = CutLine(text);
        format.blockFirst = true;
        const kv::ImportedBlock numberFirst = kv::ReadImportLine(line, format);
        format.blockFirst = false;
        const kv::ImportedBlock extFirst = kv::ReadImportLine(line, format);

        Check(numberFirst.area == extFirst.area);
        Check(kv::ToUpper(numberFirst.area) == numberFirst.area);
        Check(numberFirst.area.find('\t') == std::string::npos);
        Check(numberFirst.block.find_first_of(" \t") == std::string::npos);
        Check(numberFirst.area.size() + numberFirst.block.size() <= line.size());
        // The same characters, with no letter ahead of the first digit.
        Check(Sorted(numberFirst.block) == Sorted(extFirst.block));
        const std::size_t digit = extFirst.block.find_first_of("0123456789");
        Check(digit == std::string::npos || digit == 0);
    }
    return 0;
}
