#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

class CListBox;

/// Work on many rows of the multiple-selection dialog's two lists.
namespace kv::list_sel {

std::vector<std::string> RowsOf(const CListBox& list);

/// Adds the selected rows of one list to another, then deletes, for each of them, the first row
/// that begins with its text, and selects the row at the place where the last one went. With
/// `skipEmpty` rows without a text stay.
void MoveSelectedRows(CListBox& from, CListBox& to, bool skipEmpty);

/// Tells whether some row of a list begins with a text, as a search in the list would. Texts that
/// are asked for in their order, as a result has them, are answered without a search each.
class RowBeginnings {
public:
    /// Of the rows as they are now.
    explicit RowBeginnings(const CListBox& list);

    /// No row begins with the empty text.
    bool AnyBeginsWith(std::string_view text);

private:
    void MoveTo(std::string_view text);

    std::vector<std::string> rows_;
    std::size_t at_ = 0;
};

}  // namespace kv::list_sel
