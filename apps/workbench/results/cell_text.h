#pragma once

#include <string>
#include <string_view>

namespace workbench {

/// A cell as UTF-8, which its bytes may not be: a byte that is none is the letter of its number.
std::string CellInUtf8(std::string_view bytes);

}  // namespace workbench
