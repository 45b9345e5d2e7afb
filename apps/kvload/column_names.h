#pragma once

#include <string_view>
#include <vector>

namespace kvload {

/// Names under which a column goes elsewhere, in capitals and without signs; the likeliest first.
/// Beside those that mappings fill, "x", "y", "bottom x", "bottom y" and "wkt" are columns.
const std::vector<const char*>& NamesOfColumn(std::string_view column);

}  // namespace kvload
