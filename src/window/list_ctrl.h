#pragma once

#include <string>

#include "window/export.h"
#include "window/list_view_node.h"
#include "window/wnd.h"

/// A place in a walk over selected rows; null at its end.
using POSITION = struct PositionTag*;

/// A handle on a list view in report form. Rows and columns count from 0.
class KVGUICTL_API CListCtrl : public CWnd {
public:
    // Columns.
    int InsertColumn(int column, const LVCOLUMN* record);
    int InsertColumn(int column, const char* heading, int format = LVCFMT_LEFT, int width = -1,
                     int subItem = -1);
    BOOL GetColumn(int column, LVCOLUMN* record) const;
    BOOL SetColumn(int column, const LVCOLUMN* record);
    BOOL DeleteColumn(int column);
    int GetColumnWidth(int column) const;
    BOOL SetColumnWidth(int column, int width);
    BOOL GetColumnOrderArray(int* order, int count = -1) const;
    BOOL SetColumnOrderArray(int count, const int* order);
    int GetColumnCount() const;

    // Rows.
    int GetItemCount() const;
    int InsertItem(const LVITEM* item);
    int InsertItem(int row, const char* text, int image = -1);
    BOOL GetItem(LVITEM* item) const;
    BOOL SetItem(const LVITEM* item);
    BOOL SetItemText(int row, int column, const char* text);
    std::string GetItemText(int row, int column) const;
    LPARAM GetItemData(int row) const;
    BOOL SetItemData(int row, LPARAM data);
    BOOL SetItemImage(int row, int column, int image);
    BOOL DeleteItem(int row);
    BOOL DeleteAllItems();
    int FindItem(UINT flags, const char* text, LPARAM data, int start = -1) const;
    BOOL EnsureVisible(int row, BOOL partialOk);

    // States.
    UINT GetItemState(int row, UINT mask) const;
    BOOL SetItemState(int row, UINT state, UINT mask);
    /// Index of the state image less one: -1 without check boxes, 0 clear, 1 checked.
    int GetCheck(int row) const;
    BOOL SetCheck(int row, BOOL check = TRUE);
    UINT GetSelectedCount() const;
    int GetNextItem(int start, UINT flags) const;
    POSITION GetFirstSelectedItemPosition() const;
    /// Row of the position, which moves on to the next selected row.
    int GetNextSelectedItem(POSITION& position) const;
    int GetSelectionMark() const;
    int SetSelectionMark(int row);
    DWORD GetExtendedStyle() const;
    /// Returns the former style.
    DWORD SetExtendedStyle(DWORD style);

    /// Width of a text in the list's font, in logical pixels.
    int GetStringWidth(const char* text) const;

protected:
    kv::ListViewNode* List() const;
};
