#pragma once

#include <string>

namespace test {

/// The statement that makes a view on SQLite whose rows never come.
inline std::string EndlessView(const std::string& name, const std::string& columns) {
    return "create view " + name + " (" + columns +
           ") as with recursive n (i) as (select 1 union all select i + 1 from n) select " +
           std::string(columns.find(',') == std::string::npos ? "i" : "i, i, i") +
           " from n where i < 0;";
}

}  // namespace test
