#include "blocks/import_format.h"

#include <algorithm>

#include "base/text.h"

namespace kv {

namespace {

std::string Without(std::string_view text, std::string_view unwanted) {
    std::string kept(text);
    std::erase_if(kept, [&](char ch) { return unwanted.find(ch) != std::string_view::npos; });
    return kept;
}

/// The extension that stands ahead of the first digit goes behind.
std::string NumberFirst(const std::string& text) {
    const auto digit = std::find_if(text.begin(), text.end(), IsDigit);
    return std::string(digit, text.end()) + std::string(text.begin(), digit);
}

}  // namespace

ImportedBlock ReadImportLine(std::string_view line, const ImportFormat& format) {
    const std::string& delimiter = format.columnDelimiter;
    const std::size_t end = delimiter.empty() ? std::string_view::npos : line.find(delimiter);
    const std::string_view behind =
        end == std::string_view::npos ? "" : line.substr(end + delimiter.size());
    std::string block = ReplaceAll(behind, format.extDelimiter, "");
    if (!format.blockFirst) block = NumberFirst(block);
    return {ToUpper(Without(Trim(line.substr(0, end)), "\t")), Without(block, " \t")};
}

}  // namespace kv
