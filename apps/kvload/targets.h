#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "sampledata/tables.h"

namespace kvload {

/// What of a row's geometry its table keeps.
enum class Places { kNone, kPoint, kLine, kOutline };

/// What can be loaded: a table of the dataset, and how its rows are made.
struct Target {
    const char* name;  ///< as mappings call it
    const char* table;
    Places places = Places::kNone;
    /// The table of vertices, by `refnum` or the row's own number.
    const char* vertices = nullptr;
    /// The columns of the row's own place, latitude ahead.
    const char* lat = nullptr;
    const char* lon = nullptr;
    /// Columns that no row may lack, without which a mapping is refused.
    std::vector<const char*> required;
    /// Columns by which a row is told from others, beyond the table's unique indexes.
    std::vector<const char*> identity;
};

/// In the order in which they are loaded: what others refer to comes first.
std::span<const Target> Targets();

/// Null where there is none of that name.
const Target* TargetNamed(std::string_view name);

const kv::sample::Table& TableOf(const Target& target);

/// Place of a column in the rows of a table; -1 where it has none of that name.
int ColumnIndex(const kv::sample::Table& table, std::string_view column);

/// Whether a column holds the code of an area.
bool NamesArea(std::string_view column);

/// The names by which a mapping may fill the target: its columns but those that come of the
/// geometry, "label" for a block's number and extension in one, and of areas "projection".
std::vector<std::string> FillableNames(const Target& target);

inline constexpr const char* kLabel = "label";
inline constexpr const char* kToLabel = "to_label";
inline constexpr const char* kProjection = "projection";
inline constexpr const char* kRefnum = "refnum";

}  // namespace kvload
