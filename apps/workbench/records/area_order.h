#pragma once

#include <string>
#include <vector>

namespace workbench {

/// Area codes, as SQL literals, in the order of their names, or in the users' own order. Those that
/// it does not know come last, as they were. Throws CKvException.
std::vector<std::string> Ordered(std::vector<std::string> areaLiterals, bool custom);

}  // namespace workbench
