#include "workbench/results/result_table.h"

#include <algorithm>

#include "base/text.h"

namespace workbench {

namespace {

/// Digits with one point among them at most, and a minus ahead or none.
bool IsPlainNumber(const std::string& text) {
    const std::size_t start = text.starts_with('-');
    return text.size() > start &&
           text.find_first_not_of("0123456789.", start) == std::string::npos &&
           std::count(text.begin(), text.end(), '.') <= 1;
}

std::size_t Decimals(const std::string& number) {
    const std::size_t point = number.find('.');
    return point == std::string::npos ? 0 : number.size() - point - 1;
}

/// As in the middle of a sentence; an abbreviation stays as it is.
std::string InASentence(std::string words) {
    const bool word = words.size() > 1 && words[1] == kv::ToLower(words[1]);
    if (word) words[0] = kv::ToLower(words[0]);
    return words;
}

std::string Grouped(int count) {
    std::string digits = std::to_string(count);
    for (auto at = static_cast<int>(digits.size()) - 3; at > 0; at -= 3)
        digits.insert(static_cast<std::size_t>(at), ",");
    return digits;
}

}  // namespace

void ResultTable::AlignDecimals() {
    for (std::size_t column = 0; column < columns.size(); ++column) {
        if (!columns[column].number) continue;
        std::size_t most = 0;
        for (std::size_t at = column; at < cells.size(); at += columns.size()) {
            if (IsPlainNumber(cells[at])) most = std::max(most, Decimals(cells[at]));
        }
        for (std::size_t at = column; at < cells.size() && most > 0; at += columns.size()) {
            if (!IsPlainNumber(cells[at])) continue;
            const std::size_t own = Decimals(cells[at]);
            if (cells[at].find('.') == std::string::npos) cells[at] += '.';
            cells[at].append(most - own, '0');
        }
    }
}

std::string ResultTable::Heading(int shown) const {
    if (what.empty()) return {};
    if (RowCount() == 0) return "There are no " + InASentence(what) + ".";
    const std::string count = Grouped(RowCount());
    return what + ": " + (shown == RowCount() ? count : Grouped(shown) + " of " + count) +
           (whole ? "" : ", cancelled");
}

}  // namespace workbench
