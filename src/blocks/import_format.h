#pragma once

#include <string>
#include <string_view>

namespace kv {

/// How the lines of a file that the user laid out tell an area and a block.
struct ImportFormat {
    /// Behind the area.
    std::string columnDelimiter = "\t";
    /// Whether a block's number stands ahead of its extension.
    bool blockFirst = true;
    /// Between the two; empty for none.
    std::string extDelimiter = "";
};

/// An area and a block as a selection holds them.
struct ImportedBlock {
    std::string area;
    std::string block;
    bool operator==(const ImportedBlock&) const = default;
};

/// Reads one line, without its line feed. A line without the column delimiter, and any line where
/// that is empty, is an area alone: the whole of it.
ImportedBlock ReadImportLine(std::string_view line, const ImportFormat& format);

}  // namespace kv
