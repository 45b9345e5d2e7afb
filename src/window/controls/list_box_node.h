#pragma once

#include <string_view>
#include <vector>

#include "base/export.h"
#include "window/node.h"
#include "window/rows/row_list.h"
#include "window/rows/type_search.h"

namespace kv {

/// A list box: one row selected at a time, or any number of them.
///
/// A list with multiple selection has a caret, the row that the keyboard acts on, and an anchor,
/// the row from which Shift extends. Caret and anchor are the first row until they are moved.
class KVGUICTL_API ListBoxNode : public Node {
public:
    ListBoxNode(int id, DWORD style);

    const RowList& Rows() const { return rows_; }
    bool Multiple() const { return (Style() & (LBS_EXTENDEDSEL | LBS_MULTIPLESEL)) != 0; }
    /// The selected row; with multiple selection the caret row. -1 for none.
    int CurrentRow() const { return Multiple() ? Caret() : current_; }
    /// -1 in an empty list.
    int Caret() const;
    int Anchor() const;
    bool Selected(int row) const;
    /// In order.
    std::vector<int> SelectedRows() const;

    // Changes of the program, which notify nobody. Rows outside change nothing and answer false, or
    // LB_ERR.

    int AddRow(std::string_view text);
    /// -1 puts it at the end.
    int InsertRow(int row, std::string_view text);
    bool RemoveRow(int row);
    void Clear();
    /// In a list with one selected row; -1 takes the selection away.
    bool SetCurrentRow(int row);
    /// With multiple selection; -1 means every row. Selecting one row moves the caret there.
    bool SetSelected(int row, bool selected);
    bool SetCaret(int row);
    /// -1 means every row.
    bool SetData(int row, LPARAM data);
    /// An index into the images of the combo box whose list it is; -1 for none.
    void SetImage(int row, int image) { rows_.SetImage(row, image); }

    // What a person does. Each notifies once for each thing that they do.

    /// A click on a row with these keys held.
    void UserSelect(int row, bool shift, bool ctrl);
    /// Picks rows: the first by a click, the others with Ctrl held. No rows: takes the selection
    /// back.
    void UserSelectRows(const std::vector<int>& rows);
    void UserDoubleClick(int row);

    LRESULT Process(UINT message, WPARAM wParam, LPARAM lParam) override;
    int DialogCode() const override { return DLGC_WANTARROWS | DLGC_WANTCHARS; }

protected:
    virtual void TellInserted(int first, int count);
    virtual void TellRemoved(int first, int count);
    virtual void TellList(Change change) { Tell(change); }

private:
    LRESULT ProcessRows(UINT message, WPARAM wParam, LPARAM lParam, bool& handled);
    LRESULT ProcessSelection(UINT message, WPARAM wParam, LPARAM lParam, bool& handled);
    LRESULT GetSelectedItems(int most, int* rows) const;
    LRESULT SelectRange(int first, int last);
    LRESULT SelectString(const char* text, int start);

    bool SelectOnly(int row);
    bool ExtendTo(int row, bool keepOthers);
    bool MoveCaret(int row);
    void UserChanged(bool changed);
    void TakeSelectionBack();
    void NotifyIfAsked(int code);

    bool HandleKey(int key);
    void HandleChar(char ch);
    void MoveByKey(int row, bool shift, bool ctrl);
    int RowsOnPage() const;
    void MoveAlong(int& row, int inserted) const;

    RowList rows_;
    int current_ = -1;
    int caret_ = -1;
    int anchor_ = -1;
    TypeSearch search_;
};

/// Copies a row's text, with a closing 0, to the buffer that a message brought. Answers its length.
LRESULT CopyRowText(std::string_view text, LPARAM buffer);

/// Height that a row takes, in logical pixels.
inline constexpr int kListRowHeight = 13;

}  // namespace kv
