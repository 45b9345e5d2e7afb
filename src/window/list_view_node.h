#pragma once

#include <string>
#include <vector>

#include "window/blocked_list.h"
#include "window/export.h"
#include "window/node.h"
#include "window/wnd.h"

/// Styles of list views.
inline constexpr DWORD LVS_REPORT = 0x0001;
inline constexpr DWORD LVS_SINGLESEL = 0x0004;
inline constexpr DWORD LVS_SHOWSELALWAYS = 0x0008;
inline constexpr DWORD LVS_NOCOLUMNHEADER = 0x4000;
inline constexpr DWORD LVS_EX_GRIDLINES = 0x01;
inline constexpr DWORD LVS_EX_CHECKBOXES = 0x04;
inline constexpr DWORD LVS_EX_FULLROWSELECT = 0x20;

/// Which fields of a record mean something.
inline constexpr UINT LVIF_TEXT = 0x01;
inline constexpr UINT LVIF_IMAGE = 0x02;
inline constexpr UINT LVIF_PARAM = 0x04;
inline constexpr UINT LVIF_STATE = 0x08;
inline constexpr UINT LVIF_INDENT = 0x10;
inline constexpr UINT LVCF_FMT = 0x01;
inline constexpr UINT LVCF_WIDTH = 0x02;
inline constexpr UINT LVCF_TEXT = 0x04;
inline constexpr UINT LVCF_SUBITEM = 0x08;
inline constexpr UINT LVCF_IMAGE = 0x10;
inline constexpr UINT LVCF_ORDER = 0x20;
inline constexpr int LVCFMT_LEFT = 0;
inline constexpr int LVCFMT_RIGHT = 1;
inline constexpr int LVCFMT_CENTER = 2;

/// State of a row. The image of its check box stands in the bits from 0x1000 on: 1 clear, 2 checked.
inline constexpr UINT LVIS_FOCUSED = 0x0001;
inline constexpr UINT LVIS_SELECTED = 0x0002;
inline constexpr UINT LVIS_STATEIMAGEMASK = 0xF000;

inline constexpr UINT LVNI_ALL = 0x0000;
inline constexpr UINT LVNI_FOCUSED = 0x0001;
inline constexpr UINT LVNI_SELECTED = 0x0002;
inline constexpr UINT LVFI_PARAM = 0x0001;
inline constexpr UINT LVFI_STRING = 0x0002;
inline constexpr UINT LVFI_PARTIAL = 0x0008;
inline constexpr UINT LVFI_WRAP = 0x0020;

inline constexpr int NM_CLICK = -2;
inline constexpr int NM_DBLCLK = -3;
inline constexpr int NM_RETURN = -4;
inline constexpr int NM_SETFOCUS = -7;
inline constexpr int NM_KILLFOCUS = -8;
inline constexpr int LVN_ITEMCHANGED = -101;
inline constexpr int LVN_COLUMNCLICK = -108;

/// One cell of a row, with the row's own properties in that of column 0.
struct LVITEM {
    UINT mask = 0;
    int iItem = 0;
    int iSubItem = 0;
    UINT state = 0;
    UINT stateMask = 0;
    const char* pszText = nullptr;
    int iImage = -1;
    LPARAM lParam = 0;
    int iIndent = 0;
};

struct LVCOLUMN {
    UINT mask = 0;
    int fmt = LVCFMT_LEFT;
    int cx = 0;
    const char* pszText = nullptr;
    int iSubItem = 0;
    int iImage = -1;
    int iOrder = 0;
};

/// What LVN_ and mouse notifications of a list view carry.
struct NMLISTVIEW {
    NMHDR hdr;
    int iItem;
    int iSubItem;
    UINT uNewState;
    UINT uOldState;
    UINT uChanged;
    CPoint ptAction;
    LPARAM lParam;
};

namespace kv {

struct ListColumn {
    std::string text;
    int width = 0;
    int format = LVCFMT_LEFT;
    int subItem = 0;
};

struct ListCell {
    std::string text;
    int image = -1;
};

struct ListRow {
    std::vector<ListCell> cells;
    LPARAM data = 0;
    int indent = 0;
    UINT state = 0;
};

/// A list of rows with columns.
class KVGUICTL_API ListViewNode : public Node {
public:
    ListViewNode(int id, DWORD style) : Node(NodeClass::kListView, id, style) {}

    int Count() const { return rows_.Count(); }
    /// `row` and the columns asked for must be in range; an absent cell is an empty one.
    const ListRow& Row(int row) const { return rows_.At(row); }
    std::string CellText(int row, int column) const;
    int FocusedRow() const { return focused_; }
    int SelectionMark() const { return mark_; }
    void SetSelectionMark(int row);
    int SelectedCount() const { return selected_; }

    const std::vector<ListColumn>& Columns() const { return columns_; }
    int InsertColumn(int index, ListColumn column);
    bool SetColumn(int index, ListColumn column);
    bool DeleteColumn(int index);
    void SetColumnWidth(int index, int width);
    /// Indices of the columns from left to right.
    const std::vector<int>& ColumnOrder() const { return order_; }
    bool SetColumnOrder(std::vector<int> order);

    DWORD ExtendedStyle() const { return extendedStyle_; }
    DWORD SetExtendedStyle(DWORD mask, DWORD style);

    /// Index of the new row, -1 when `item` is none of column 0.
    int InsertItem(const LVITEM& item);
    bool SetItem(const LVITEM& item);
    bool DeleteItem(int row);
    void DeleteAllItems();
    /// Sets the bits of `mask` to those of `state`; row -1 means all rows. Tells the parent of each
    /// row that changed.
    bool SetItemState(int row, UINT state, UINT mask);
    /// First row behind `start` with all of the states; -1 for none.
    int NextItem(int start, UINT flags) const;
    /// First row behind `start` by text (exact, or prefix) or data; without regard to case.
    int FindItem(int start, UINT flags, const std::string& text, LPARAM data) const;
    /// Brings a row into view.
    void EnsureVisible(int row);
    int VisibleRowWanted() const { return wanted_; }

    // What a person does.
    void UserClick(int row, bool shift, bool ctrl);
    void UserSelectRows(const std::vector<int>& rows);
    void UserDoubleClick(int row);
    void UserToggleCheck(int row);
    void UserClickColumn(int column);

    LRESULT Process(UINT message, WPARAM wParam, LPARAM lParam) override;
    int DialogCode() const override { return DLGC_WANTARROWS | DLGC_WANTCHARS; }

private:
    LRESULT TellParent(int code, int row, int column, UINT newState, UINT oldState, UINT changed);
    void SelectOnly(int row);
    void SelectRange(int from, int to);
    void MoveBy(int key);
    void JumpTo(char ch);

    BlockedList<ListRow> rows_;
    std::vector<ListColumn> columns_;
    std::vector<int> order_;
    DWORD extendedStyle_ = 0;
    int focused_ = -1;
    int mark_ = -1;
    int selected_ = 0;
    int wanted_ = -1;
};

}  // namespace kv
