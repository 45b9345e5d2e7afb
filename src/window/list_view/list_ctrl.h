#pragma once

#include <string>

#include "base/export.h"
#include "window/list_view/list_view_messages.h"
#include "window/wnd.h"

/// A place in a walk over selected rows; null at its end.
using POSITION = struct PositionTag*;

/// A handle on the headings of a list view.
class KVGUICTL_API CHeaderCtrl : public CWnd {
public:
    static constexpr CRuntimeClass classCHeaderCtrl{"CHeaderCtrl"};
    const CRuntimeClass* GetRuntimeClass() const override { return &classCHeaderCtrl; }

    /// -1 without a window.
    int GetItemCount() const;
};

/// A handle on a list view in report form. Rows and columns count from 0.
class KVGUICTL_API CListCtrl : public CWnd {
public:
    static constexpr CRuntimeClass classCListCtrl{"CListCtrl"};
    const CRuntimeClass* GetRuntimeClass() const override { return &classCListCtrl; }

    BOOL Create(DWORD style, const CRect& rect, CWnd* parent, UINT id);

    // Columns.

    /// Returns the index that the column got, -1 for none.
    int InsertColumn(int column, const LVCOLUMN* record);
    /// A width or subitem of -1 is left out of the record.
    int InsertColumn(int column, const char* heading, int format = LVCFMT_LEFT, int width = -1,
                     int subItem = -1);
    /// Fills what the record's mask asks for.
    BOOL GetColumn(int column, LVCOLUMN* record) const;
    BOOL SetColumn(int column, const LVCOLUMN* record);
    BOOL DeleteColumn(int column);
    int GetColumnWidth(int column) const;
    BOOL SetColumnWidth(int column, int width);
    /// Indices from left to right; false unless `count` is the number of columns, which -1 stands
    /// for.
    BOOL GetColumnOrderArray(int* order, int count = -1) const;
    BOOL SetColumnOrderArray(int count, const int* order);
    int GetColumnCount() const;
    /// The headings; null where they are left out.
    CHeaderCtrl* GetHeaderCtrl() const;

    // Rows.

    int GetItemCount() const;
    /// Says how many rows will come.
    BOOL SetItemCountEx(int count, DWORD flags = 0);
    int InsertItem(const LVITEM* item);
    int InsertItem(int row, const char* text, int image = -1);
    /// Fills what the record's mask asks for.
    BOOL GetItem(LVITEM* item) const;
    BOOL SetItem(const LVITEM* item);
    BOOL SetItemText(int row, int column, const char* text);
    /// Empty where there is no such cell.
    std::string GetItemText(int row, int column) const;
    /// Copies what there is room for; returns how many bytes that were.
    int GetItemText(int row, int column, char* buffer, int size) const;
    LPARAM GetItemData(int row) const;
    BOOL SetItemData(int row, LPARAM data);
    BOOL SetItemImage(int row, int column, int image);
    BOOL DeleteItem(int row);
    BOOL DeleteAllItems();
    /// First row behind `start`, -1 for none; without regard to case.
    int FindItem(LVFINDINFO* what, int start = -1) const;

    // States.

    UINT GetItemState(int row, UINT mask) const;
    /// Row -1 means all rows.
    BOOL SetItemState(int row, UINT state, UINT mask);
    BOOL SetItemState(int row, LVITEM* item);
    /// Index of the state image less one: -1 without check boxes, 0 clear, 1 checked.
    int GetCheck(int row) const;
    BOOL SetCheck(int row, BOOL check = TRUE);
    UINT GetSelectedCount() const;
    /// First row behind `start` with all of the states (LVNI_...), -1 for none.
    int GetNextItem(int start, UINT flags) const;
    POSITION GetFirstSelectedItemPosition() const;
    /// Row of the position, which moves on to the next selected row; -1 for null.
    int GetNextSelectedItem(POSITION& position) const;
    int GetSelectionMark() const;
    /// Returns the former mark.
    int SetSelectionMark(int row);
    DWORD GetExtendedStyle() const;
    /// Returns the former style.
    DWORD SetExtendedStyle(DWORD style);

    // Places, in the list view's own coordinates.

    BOOL EnsureVisible(int row, BOOL partialOk);
    int GetTopIndex() const;
    int GetCountPerPage() const;
    int HitTest(LVHITTESTINFO* info) const;
    int HitTest(CPoint at, UINT* flags = nullptr) const;
    int SubItemHitTest(LVHITTESTINFO* info) const;
    /// `area` is LVIR_...
    BOOL GetSubItemRect(int row, int column, int area, CRect& rect) const;
    /// Extent that shows that many rows, -1 for all.
    CSize ApproximateViewRect(CSize extent = {-1, -1}, int count = -1) const;
    /// Width of a text in the list's font, in logical pixels.
    int GetStringWidth(const char* text) const;

    // Looks. Each setter returns what was in force before.

    /// `kind` is LVSIL_...; null takes the images away. Null for none, and where the former list's
    /// handle is gone.
    CImageList* SetImageList(CImageList* images, int kind);
    CImageList* GetImageList(int kind) const;
    int GetHotItem() const;
    int SetHotItem(int row);
    HCURSOR GetHotCursor() const;
    HCURSOR SetHotCursor(HCURSOR cursor);
    /// Milliseconds; all bits set for the system's own time.
    DWORD GetHoverTime() const;
    DWORD SetHoverTime(DWORD milliseconds = 0xFFFFFFFF);
    CSize SetIconSpacing(int cx, int cy);
    CSize SetIconSpacing(CSize size) { return SetIconSpacing(size.cx, size.cy); }
    BOOL GetBkImage(LVBKIMAGE* image) const;
    BOOL SetBkImage(LVBKIMAGE* image);
    /// At most LV_MAX_WORKAREAS; more change nothing.
    void SetWorkAreas(int count, const CRect* areas);
    void GetWorkAreas(int count, CRect* areas) const;
    UINT GetNumberOfWorkAreas() const;

private:
    int Ask(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;

    mutable CHeaderCtrl m_header;
};
