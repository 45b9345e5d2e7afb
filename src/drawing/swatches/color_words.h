#pragma once

#include <string>

#include "base/export.h"

namespace kv::swatches {

/// What a colour of the table is called, as "teal" or "light orange"; empty outside the table.
KVGUICTL_API std::string NameOfColor(int index);

/// With its number, which is one more than its index: "Color 7, teal".
KVGUICTL_API std::string ColorInWords(int index);

}  // namespace kv::swatches
