#include "workbench/results/csv.h"

#include "base/paths.h"

namespace workbench {

namespace {

template <typename CellAt>
std::string Line(int columns, char separator, CellAt&& cellAt) {
    std::string line;
    for (int column = 0; column < columns; ++column) {
        if (column > 0) line += separator;
        line += cellAt(static_cast<std::size_t>(column));
    }
    return line;
}

std::string TabCell(std::string text) {
    for (char& ch : text) {
        if (ch == '\t' || ch == '\n' || ch == '\r') ch = ' ';
    }
    return text;
}

}  // namespace

std::string CsvCell(std::string_view text) {
    const bool blanks = !text.empty() && (text.front() == ' ' || text.back() == ' ');
    if (!blanks && text.find_first_of(",\"\r\n") == std::string_view::npos) {
        return std::string(text);
    }
    std::string cell = "\"";
    for (const char ch : text) {
        if (ch == '"') cell += '"';
        cell += ch;
    }
    return cell + '"';
}

bool SaveCsv(const ResultTable& table, std::span<const int> rows, std::string_view path,
             std::string& error) {
    kv::FileWriter file;
    bool written = file.Open(path);
    const auto write = [&](auto&& cellAt) {
        written = written && file.Write(Line(table.ColumnCount(), ',', cellAt) + "\r\n");
    };
    write([&](std::size_t column) { return CsvCell(table.columns[column].heading); });
    for (const int row : rows) {
        write(
            [&](std::size_t column) { return CsvCell(table.Cell(row, static_cast<int>(column))); });
    }
    written = written && file.Commit();
    if (!written) error = file.Error();
    return written;
}

std::string TabSeparated(const ResultTable& table, std::span<const int> rows) {
    std::string text;
    const auto add = [&](auto&& cellAt) {
        if (!text.empty()) text += '\n';
        text += Line(table.ColumnCount(), '\t', cellAt);
    };
    add([&](std::size_t column) { return TabCell(table.columns[column].heading); });
    for (const int row : rows) {
        add([&](std::size_t column) { return TabCell(table.Cell(row, static_cast<int>(column))); });
    }
    return text;
}

}  // namespace workbench
