#pragma once

#include "window/list_view/list_ctrl.h"
#include "window/runtime_class.h"

/// A list view with helpers for adding rows.
class KVGUICTL_API CListCtrlEx : public CListCtrl {
public:
    int InsertColumn(int nCol, const LVCOLUMN* pColumn) {
        return CListCtrl::InsertColumn(nCol, pColumn);
    }
    /// A width of -1 is that of the heading and 15 pixels; a subitem of -1 is none. Order and image
    /// are only carried along in the record.
    int InsertColumn(int nCol, const char* pszHeading, int nFormat = LVCFMT_LEFT, int nWidth = -1,
                     int nSubItem = -1, int nOrder = -1, int nImage = -1);

    /// Inserts a row with its first cell, or with a `nSubItem` above 0 fills a further cell of the
    /// row. An image of -1 is none. Returns the new row's index, -1 when it failed; of a further
    /// cell whether it was filled.
    int AddItem(int nItem, int nSubItem, const char* pszText, int nImage = -1);
    /// The same, and sets the row's data value. The indent is only carried along in the record.
    int AddItem(int nItem, int nSubItem, const char* pszText, int nImage, long lParam, int nIndent);

    /// Scrolls the row of the selection mark into view.
    void OnSelchange();

    static const CRuntimeClass classCListCtrlEx;
    const CRuntimeClass* GetRuntimeClass() const override { return &classCListCtrlEx; }

private:
    int AddRecord(LVITEM& item);
};
