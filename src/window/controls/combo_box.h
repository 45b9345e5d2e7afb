#pragma once

#include "base/cstring.h"
#include "base/export.h"
#include "window/wnd.h"

/// A handle on a combo box. Rows count from 0; CB_ERR (-1) stands for none and for a row that there
/// is not.
class KVGUICTL_API CComboBox : public CWnd {
public:
    static constexpr CRuntimeClass classCComboBox{"CComboBox"};
    const CRuntimeClass* GetRuntimeClass() const override { return &classCComboBox; }

    BOOL Create(DWORD style, const CRect& rect, CWnd* parent, UINT id);

    // Rows.
    int GetCount() const;
    /// The index that the row got.
    int AddString(LPCTSTR text);
    /// At that index, -1 for the end; a sorted box does not sort it in.
    int InsertString(int row, LPCTSTR text);
    /// How many rows are left.
    int DeleteString(UINT row);
    /// Also empties the edit.
    void ResetContent();
    /// Empty where there is no such row.
    void GetLBText(int row, CString& text) const;
    int GetLBTextLen(int row) const;
    LPARAM GetItemData(int row) const;
    int SetItemData(int row, LPARAM data);
    /// First row behind `start` that begins with the text, going round; -1 starts from the top.
    int FindString(int start, LPCTSTR text) const;
    /// First row behind `start` that is the text.
    int FindStringExact(int start, LPCTSTR text) const;

    // The current row. Neither of these notifies anybody.
    int GetCurSel() const;
    /// Shows the row's text; -1 leaves no current row and no text.
    int SetCurSel(int row);
    /// Makes the row current that `FindString` finds.
    int SelectString(int start, LPCTSTR text);

    // The edit and the list.
    /// The selection's start in the low word, its end in the high one.
    DWORD GetEditSel() const;
    /// As `CEdit::SetSel`.
    BOOL SetEditSel(int start, int end);
    /// Limits what a person can enter; 0 means no limit.
    BOOL LimitText(int characters);
    void ShowDropDown(BOOL show = TRUE);
    BOOL GetDroppedState() const;
    void Cut();
    void Copy();
    void Paste();
    void Clear();

private:
    int Ask(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;
};
