#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

#include "workbench/document/map_document.h"

/// Documents in files: JSON with a version.
namespace workbench {

/// Why a file cannot be opened, or written, in words for the user.
class MapFileError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// The text of a file.
std::string TextOf(const MapDocument& document);
/// The document of a text. Throws `MapFileError` for a text that is no document, that a newer
/// program wrote, and for one of another dataset.
MapDocument DocumentOf(std::string_view text, const std::string& dataset);

/// Writes a file whole or not at all. The path has the form of the dialogs. Throws `MapFileError`.
void WriteWhole(const std::string& path, std::string_view text);
/// All that is in a file. Throws `MapFileError`.
std::string ReadWhole(const std::string& path);

}  // namespace workbench
