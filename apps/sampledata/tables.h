#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace kv::sample {

enum class CellKind {
    kText,
    kWhole,   ///< a whole number
    kNumber,  ///< a number with a fraction
    kDate,    ///< year-month-day
};

struct Column {
    const char* name;
    CellKind kind;
    /// Greatest length of a text.
    int length = 0;
};

/// One table, as every engine is to have it.
struct Table {
    const char* name;
    std::vector<Column> columns;
    /// What stands in the brackets of each index. A first word "unique" makes it so.
    std::vector<const char*> indexes;
};

/// The schema that owns the tables, on an engine that knows schemas.
inline constexpr const char* kOwner = "norvadon";

/// Every table, in the order in which it is filled.
std::span<const Table> Tables();

/// The table of that name; std::out_of_range where there is none.
const Table& TableNamed(std::string_view name);

/// The engines' types for a column.
std::string SqliteType(const Column& column);
std::string PostgresType(const Column& column);

/// The statements that make a table without rows, and its indexes. `owner` stands ahead of each
/// name where it is not empty.
std::string CreateTable(const Table& table, std::string_view owner,
                        std::string (*typeOf)(const Column&));
/// The name of the index at that place in the table's list.
std::string IndexName(const Table& table, std::size_t index);
std::vector<std::string> CreateIndexes(const Table& table, std::string_view owner);

}  // namespace kv::sample
