#include "qualifiers/list_rows.h"

#include <algorithm>

#include "base/text.h"
#include "window/controls/list_box.h"

namespace kv::list_sel {

namespace {

bool IsLess(const std::string& a, const std::string& b) {
    return CompareNoCase(a, b) < 0;
}

std::vector<int> SelectedIndices(const CListBox& list) {
    std::vector<int> indices(static_cast<std::size_t>(std::max(list.GetSelCount(), 0)));
    if (!indices.empty()) list.GetSelItems(static_cast<int>(indices.size()), indices.data());
    return indices;
}

/// Adds these rows of one list to another. Returns their texts.
std::vector<std::string> AddRows(const CListBox& from, const std::vector<int>& indices,
                                 CListBox& to, bool skipEmpty) {
    std::vector<std::string> texts;
    texts.reserve(indices.size());
    CString text;
    for (const int index : indices) {
        from.GetText(index, text);
        if (skipEmpty && text.IsEmpty()) continue;
        to.AddString(text);
        texts.push_back(text.str());
    }
    return texts;
}

/// Returns the place of the row deleted last, or LB_ERR.
int DeleteBySearch(CListBox& list, const std::vector<std::string>& texts) {
    int last = LB_ERR;
    for (const std::string& text : texts) {
        // No search finds the empty text by its beginning.
        const int row =
            text.empty() ? list.FindStringExact(-1, "") : list.FindString(-1, text.c_str());
        if (row == LB_ERR) continue;
        list.DeleteString(static_cast<UINT>(row));
        last = row;
    }
    return last;
}

/// The same where the rows, `rows`, stand in the order of their texts: of those that begin with a
/// text the first is then one that equals it. `texts` are some of `rows`, in their order.
int DeleteInOrder(CListBox& list, const std::vector<std::string>& rows,
                  const std::vector<std::string>& texts) {
    int last = LB_ERR;
    int deleted = 0;
    auto row = rows.begin();
    const std::string* previous = nullptr;
    for (const std::string& text : texts) {
        if (!previous || !EqualsNoCase(*previous, text)) {
            row = std::find_if(row, rows.end(),
                               [&](const std::string& each) { return EqualsNoCase(each, text); });
            last = static_cast<int>(row - rows.begin()) - deleted;
        }
        list.DeleteString(static_cast<UINT>(last));
        ++deleted;
        previous = &text;
    }
    return last;
}

/// Many rows are not looked for one by one if their order tells where they stand.
int DeleteRows(CListBox& list, const std::vector<std::string>& texts) {
    constexpr std::size_t kFew = 8;
    if (texts.size() > static_cast<std::size_t>(list.GetCount()) / kFew) {
        const std::vector<std::string> rows = RowsOf(list);
        if (std::is_sorted(rows.begin(), rows.end(), IsLess)) {
            return DeleteInOrder(list, rows, texts);
        }
    }
    return DeleteBySearch(list, texts);
}

}  // namespace

std::vector<std::string> RowsOf(const CListBox& list) {
    std::vector<std::string> rows;
    const int count = list.GetCount();
    rows.reserve(static_cast<std::size_t>(count));
    CString text;
    for (int row = 0; row < count; ++row) {
        list.GetText(row, text);
        rows.push_back(text.str());
    }
    return rows;
}

void MoveSelectedRows(CListBox& from, CListBox& to, bool skipEmpty) {
    const std::vector<std::string> texts = AddRows(from, SelectedIndices(from), to, skipEmpty);
    const int last = DeleteRows(from, texts);
    if (last != LB_ERR && from.GetCount() > 0) {
        from.SetSel(std::min(last, from.GetCount() - 1), TRUE);
    }
}

RowBeginnings::RowBeginnings(const CListBox& list) : rows_(RowsOf(list)) {
    std::sort(rows_.begin(), rows_.end(), IsLess);
}

bool RowBeginnings::AnyBeginsWith(std::string_view text) {
    if (text.empty()) return false;
    MoveTo(text);
    return at_ < rows_.size() && StartsWithNoCase(rows_[at_], text);
}

/// To the first row that is not below the text: most often this one, or the next.
void RowBeginnings::MoveTo(std::string_view text) {
    const auto isBelow = [text](const std::string& row) { return CompareNoCase(row, text) < 0; };
    const auto here = rows_.begin() + static_cast<std::ptrdiff_t>(at_);
    const bool ahead = here != rows_.end() && isBelow(*here);
    if (!ahead && (at_ == 0 || isBelow(*std::prev(here)))) return;
    if (ahead && (here + 1 == rows_.end() || !isBelow(here[1]))) {
        ++at_;
        return;
    }
    const auto found = std::partition_point(rows_.begin(), rows_.end(), isBelow);
    at_ = static_cast<std::size_t>(found - rows_.begin());
}

}  // namespace kv::list_sel
