#include "services/kvdbkvn/dialect/names.h"

#include <algorithm>

#include "base/text.h"

namespace kv::dialect {

std::string EngineName(std::string_view name, Target target) {
    const bool quoted = name.starts_with('"');
    if (quoted) name = name.substr(1, name.size() - 2);
    const bool mixed =
        quoted && std::ranges::any_of(name, [](char ch) { return ch >= 'a' && ch <= 'z'; });
    const std::string bare =
        quoted ? ReplaceAll(std::string(name), "\"\"", "\"") : std::string(name);
    return target == Target::kPostgres && !mixed ? ToLower(bare) : bare;
}

}  // namespace kv::dialect
