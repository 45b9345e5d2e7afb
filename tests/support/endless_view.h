#pragma once

#include <string>

namespace test {

/// The statement that makes a view on SQLite whose rows never come. SQLite sees by itself that none
/// equals a text, unless the cells are texts, too.
inline std::string EndlessView(const std::string& name, const std::string& columns,
                               const std::string& cell = "i") {
    const bool one = columns.find(',') == std::string::npos;
    return "create view " + name + " (" + columns +
           ") as with recursive n (i) as (select 1 union all select i + 1 from n) select " + cell +
           (one ? "" : ", " + cell + ", " + cell) + " from n where i < 0;";
}
inline constexpr const char* kTextCell = "i||''";

}  // namespace test
