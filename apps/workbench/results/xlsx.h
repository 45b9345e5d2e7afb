#pragma once

#include <span>
#include <string>
#include <string_view>

#include "workbench/results/result_table.h"

namespace workbench {

/// Writes headings and the rows with these numbers, in this order, as a workbook for a spreadsheet.
/// A number is a number there, unless digits of it would be lost; all else is text. `path` is in
/// either form. False, with the reason in `error`, when the file cannot be written; what was there
/// before is then still there.
bool SaveXlsx(const ResultTable& table, std::span<const int> rows, std::string_view path,
              std::string& error);

}  // namespace workbench
