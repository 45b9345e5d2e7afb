#pragma once

#include "base/cstring.h"
#include "base/export.h"
#include "window/wnd.h"

/// A handle on a list box. Rows count from 0; LB_ERR (-1) stands for none and for a row that there
/// is not.
class KVGUICTL_API CListBox : public CWnd {
public:
    static constexpr CRuntimeClass classCListBox{"CListBox"};
    const CRuntimeClass* GetRuntimeClass() const override { return &classCListBox; }

    BOOL Create(DWORD style, const CRect& rect, CWnd* parent, UINT id);

    // Rows.
    int GetCount() const;
    /// The index that the row got.
    int AddString(LPCTSTR text);
    /// At that index, -1 for the end; a sorted list does not sort it in.
    int InsertString(int row, LPCTSTR text);
    /// How many rows are left.
    int DeleteString(UINT row);
    void ResetContent();
    /// Empty where there is no such row.
    void GetText(int row, CString& text) const;
    int GetTextLen(int row) const;
    LPARAM GetItemData(int row) const;
    /// -1 means every row.
    int SetItemData(int row, LPARAM data);
    /// First row behind `start` that begins with the text, going round; -1 starts from the top.
    int FindString(int start, LPCTSTR text) const;
    /// First row behind `start` that is the text.
    int FindStringExact(int start, LPCTSTR text) const;

    // One row selected at a time.
    /// The selected row; with multiple selection the caret row.
    int GetCurSel() const;
    int SetCurSel(int row);
    int SelectString(int start, LPCTSTR text);

    // Multiple selection.
    /// Above 0 when the row is selected.
    int GetSel(int row) const;
    /// -1 means every row.
    int SetSel(int row, BOOL select = TRUE);
    int GetSelCount() const;
    /// The first `most` selected rows. Returns how many there are in `rows`.
    int GetSelItems(int most, int* rows) const;
    int SelItemRange(BOOL select, int first, int last);
    int GetCaretIndex() const;
    int SetCaretIndex(int row, BOOL scroll = TRUE);

private:
    int Ask(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;
};
