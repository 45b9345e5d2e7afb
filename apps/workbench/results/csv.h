#pragma once

#include <span>
#include <string>
#include <string_view>

#include "workbench/results/result_table.h"

namespace workbench {

/// A cell as it stands in a line of comma-separated values: in quotation marks, which are doubled
/// within, where it holds a comma, a quotation mark or a line end, or begins or ends with a blank.
std::string CsvCell(std::string_view text);

/// Writes headings and the rows with these numbers, in this order, a line each, ended by CR LF.
/// `path` is in either form. False, with the reason in `error`, when the file cannot be written;
/// what was there before is then still there.
bool SaveCsv(const ResultTable& table, std::span<const int> rows, std::string_view path,
             std::string& error);

/// The same with tabs between the cells, for the clipboard. Line ends and tabs within a cell become
/// blanks.
std::string TabSeparated(const ResultTable& table, std::span<const int> rows);

}  // namespace workbench
