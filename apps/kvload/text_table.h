#pragma once

#include <string>

#include "geofiles/gdal_handles.h"

/// Tables in text under names, and in letters, that GDAL does not know them by. For the module
/// alone.
namespace kvload {

/// Whether a file is by its name a text that may hold a table.
bool IsTextByName(const std::string& path);

/// Whether the first line is one of columns of a fixed width, which nothing tells apart.
bool HasFixedColumns(const std::string& path);

/// A text whose cells are parted by commas, semicolons, tabs or upright strokes, in UTF-8, UTF-16
/// or letters of western Europe. Null where it is none.
geofiles::Dataset OpenTextTable(const std::string& path);

}  // namespace kvload
