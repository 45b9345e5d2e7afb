#pragma once

#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "base/export.h"
#include "window/list_view/list_view_messages.h"
#include "window/node.h"
#include "window/rows/row_order.h"
#include "window/rows/type_search.h"

namespace kv {

struct ListColumn {
    std::string text;
    int width = 0;
    int format = LVCFMT_LEFT;
    int subItem = 0;
    int image = -1;
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

/// A list of rows with columns, in report form.
///
/// A row has the focus, which the keyboard acts on; the selection mark is the row from which Shift
/// extends. Rows are found by their place in about the logarithm of their number.
class KVGUICTL_API ListViewNode : public Node {
public:
    ListViewNode(int id, DWORD style)
        : Node(NodeClass::kListView, id, style), selected_(ByPlace{&order_}) {}

    int Count() const { return order_.Count(); }
    bool Has(int row) const { return row >= 0 && row < Count(); }
    /// `row` must be one that there is. Good until rows are added or removed.
    const ListRow& Row(int row) const { return rows_[order_.At(row)]; }
    /// Empty for an absent cell.
    std::string CellText(int row, int column) const;
    int CellImage(int row, int column) const;
    /// The images beside the rows; null for none.
    const ImageList* SmallImages() const { return smallImages_.get(); }
    /// What a cell shows of them; null for none. Columns behind the first do so only with
    /// LVS_EX_SUBITEMIMAGES.
    const Raster* ShownImage(int row, int column) const;
    /// How far to the right the row's first cell begins, in logical pixels.
    int IndentWidth(int row) const;
    /// Of a row, in logical pixels: as high as a text and an image ask for.
    int RowHeight() const;
    int FocusedRow() const { return focused_; }
    int SelectionMark() const { return mark_; }
    bool Selected(int row) const { return Has(row) && (Row(row).state & LVIS_SELECTED) != 0; }
    int SelectedCount() const { return static_cast<int>(selected_.size()); }
    bool HasCheckBoxes() const { return (extendedStyle_ & LVS_EX_CHECKBOXES) != 0; }
    bool Checked(int row) const;

    const std::vector<ListColumn>& Columns() const { return columns_; }
    /// Indices of the columns from left to right.
    const std::vector<int>& ColumnOrder() const { return columnOrder_; }
    /// Returns the index that the column got. Cells of the columns behind it move along.
    int InsertColumn(int index, ListColumn column);
    bool SetColumn(int index, ListColumn column);
    bool DeleteColumn(int index);
    /// In logical pixels, or LVSCW_...
    bool SetColumnWidth(int index, int width);
    /// False unless it names each column once.
    bool SetColumnOrder(std::vector<int> order);

    DWORD ExtendedStyle() const { return extendedStyle_; }
    /// Sets the bits of `mask`, 0 for all of them. Returns the former style. Check boxes that come
    /// up are clear.
    DWORD SetExtendedStyle(DWORD mask, DWORD style);

    /// Index of the new row, -1 for an item of another column than 0. A row behind the last one is
    /// put at the end; a sorted list view finds the place itself.
    int InsertItem(const LVITEM& item);
    bool SetItem(const LVITEM& item);
    /// The focus of a row that goes passes to the one that takes its place.
    bool DeleteItem(int row);
    void DeleteAllItems();
    /// Sets the bits of `mask` to those of `state`; row -1 means all rows. Tells the parent of each
    /// row that is to change, and of each that changed. False where it forbade a change.
    bool SetItemState(int row, UINT state, UINT mask);
    /// First row behind `start` with all of the states, or with LVNI_ABOVE ahead of it (LVNI_...);
    /// -1 for none.
    int NextItem(int start, UINT flags) const;
    /// First row behind `start` by its data, or by the text of its first column (exact, or prefix)
    /// without regard to case; -1 for none.
    int FindItem(int start, const LVFINDINFO& what) const;

    /// Brings a row into view.
    bool EnsureVisible(int row);
    /// The row that was last to be brought into view, -1 for none.
    int VisibleRowWanted() const { return wanted_; }
    int TopRow() const { return top_; }
    int RowsOnPage() const;
    /// Place of a cell, in the list view's own coordinates; column 0 with LVIR_BOUNDS is the whole
    /// row.
    CRect CellRect(int row, int column, int part) const;
    /// Row and column at a point, with what is there (LVHT_...).
    LVHITTESTINFO HitTest(CPoint at) const;

    // What a person does. -1 as the row is the empty place behind the rows.
    void UserClick(int row, bool shift, bool ctrl);
    /// The first by a click, the others with Ctrl held. No rows: a click behind the rows.
    void UserSelectRows(const std::vector<int>& rows);
    void UserDoubleClick(int row);
    /// With the right button: a row that is not selected is then selected alone. Answers whether a
    /// menu of the list view's own may come up, which the parent can forbid.
    bool UserRightClick(int row);
    void UserToggleCheck(int row);
    void UserClickColumn(int column);

    LRESULT Process(UINT message, WPARAM wParam, LPARAM lParam) override;
    int DialogCode() const override { return DLGC_WANTARROWS | DLGC_WANTCHARS; }

private:
    static constexpr UINT kUnchecked = 0x1000;
    static constexpr UINT kChecked = 0x2000;

    /// Rows do not change places, so that this order of ids stays while rows come and go.
    struct ByPlace {
        struct Place {
            int row;
        };
        using is_transparent = void;
        const RowOrder* order;
        bool operator()(RowId a, RowId b) const { return order->PlaceOf(a) < order->PlaceOf(b); }
        bool operator()(Place a, RowId b) const { return a.row < order->PlaceOf(b); }
        bool operator()(RowId a, Place b) const { return order->PlaceOf(a) < b.row; }
    };

    LRESULT ProcessRows(UINT message, WPARAM wParam, LPARAM lParam, bool& handled);
    LRESULT ProcessStates(UINT message, WPARAM wParam, LPARAM lParam, bool& handled);
    LRESULT ProcessColumns(UINT message, WPARAM wParam, LPARAM lParam, bool& handled);
    LRESULT ProcessPlaces(UINT message, WPARAM wParam, LPARAM lParam, bool& handled);
    LRESULT ProcessLook(UINT message, WPARAM wParam, LPARAM lParam, bool& handled);
    LRESULT ProcessUser(UINT message, WPARAM wParam, LPARAM lParam, bool& handled);

    RowId NewRow();
    int PlaceFor(const LVITEM& item) const;
    /// Whether that row still stands there.
    bool IsAt(int row, RowId id) const { return Has(row) && order_.At(row) == id; }
    bool TakeFromOthers(int row, UINT states);
    void StoreState(int row, UINT next);
    bool GetItem(LVITEM& item) const;
    bool GetColumn(int index, LVCOLUMN& column) const;
    int InsertColumnRecord(int index, const LVCOLUMN& record);
    bool GetColumnOrder(int count, int* order) const;
    int NextSelected(int start) const;
    int SelectedAhead(int start) const;
    bool Fits(int row, const LVFINDINFO& what) const;
    void SetTop(int row);
    void Scroll(int code, int position);
    int HeaderHeight() const;
    int ImageWidth(int column) const;
    int ImageStart(int row, int column) const;
    int TextStart(int row, int column) const;
    int WidthOfCells(int column) const;
    int WidthOfHeading(int column) const;
    LRESULT SetImages(int kind, ImageList* images);
    LRESULT Images(int kind) const;
    CSize ApproximateSize(int rows) const;
    Node* Header();
    LRESULT SetWorkAreas(int count, const CRect* areas);
    LRESULT GetWorkAreas(int count, CRect* areas) const;

    void TellInserted(int row);
    void TellRemoved(int row);
    void TellOfTheEnd();
    LRESULT TellParent(int code, int row, int column = 0, UINT newState = 0, UINT oldState = 0,
                       UINT changed = 0, CPoint at = {});
    bool SingleSelection() const { return HasStyle(LVS_SINGLESEL); }
    void SelectOnly(int row);
    void SelectRange(int from, int to, bool keepOthers);
    void ClearSelection();
    void PressRow(int row, bool shift, bool ctrl);
    LVHITTESTINFO HitForPress(CPoint at) const;
    void PressAt(CPoint at);
    void PressRight(int row);
    void DoubleClickAt(CPoint at);
    void Activate(int row);
    void TellKey(int key);
    void ToggleChecks(int row);
    void ToggleSelected(int row);
    bool HandleKey(int key);
    void MoveTo(int row);
    void HandleChar(char ch);
    void JumpTo(char ch);

    RowOrder order_;
    std::vector<ListRow> rows_;
    std::vector<RowId> free_;
    std::set<RowId, ByPlace> selected_;
    std::vector<ListColumn> columns_;
    std::vector<int> columnOrder_;
    DWORD extendedStyle_ = 0;
    int focused_ = -1;
    int mark_ = -1;
    int wanted_ = -1;
    int top_ = 0;
    TypeSearch search_;
    /// Where the mouse button went down: what NM_CLICK will tell, when it comes up again.
    std::optional<LVHITTESTINFO> pressed_;
    /// The same of the right button, and NM_RCLICK.
    std::optional<LVHITTESTINFO> rightPressed_;

    std::shared_ptr<ImageList> normalImages_;
    std::shared_ptr<ImageList> smallImages_;
    int hotItem_ = -1;
    HCURSOR hotCursor_ = nullptr;
    DWORD hoverTime_ = 0xFFFFFFFF;
    CSize iconSpacing_;
    LVBKIMAGE background_;
    std::vector<CRect> workAreas_;
    std::weak_ptr<Node> header_;
};

}  // namespace kv
