#include "qt/access/row_reader.h"

#include "qt/drawing/text.h"
#include "window/controls/list_box_node.h"
#include "window/list_view/list_view_node.h"

namespace kv::qt {

RowReader::RowReader(const Node* list)
    : box_(dynamic_cast<const ListBoxNode*>(list)),
      view_(dynamic_cast<const ListViewNode*>(list)) {}

int RowReader::Rows() const {
    if (box_) return box_->Rows().Count();
    return view_ ? view_->Count() : 0;
}

int RowReader::Columns() const {
    if (view_) return static_cast<int>(view_->Columns().size());
    return box_ ? 1 : 0;
}

QString RowReader::Heading(int column) const {
    if (!view_ || column < 0 || column >= Columns()) return {};
    return ToQString(view_->Columns()[static_cast<std::size_t>(column)].text);
}

QString RowReader::Text(int row, int column) const {
    if (!Has(row)) return {};
    return box_ ? ToQString(box_->Rows().Text(row)) : ToQString(view_->CellText(row, column));
}

int RowReader::Caret() const {
    if (box_) return box_->Caret();
    return view_ ? view_->FocusedRow() : -1;
}

bool RowReader::Selected(int row) const {
    if (!Has(row)) return false;
    return box_ ? box_->Selected(row) : view_->Selected(row);
}

QList<int> RowReader::SelectedRows() const {
    QList<int> rows;
    if (box_) {
        for (const int row : box_->SelectedRows())
            rows.append(row);
    } else if (view_) {
        for (int row = view_->NextItem(-1, LVNI_SELECTED); row >= 0;
             row = view_->NextItem(row, LVNI_SELECTED)) {
            rows.append(row);
        }
    }
    return rows;
}

bool RowReader::Multiple() const {
    if (box_) return box_->Multiple();
    return view_ && !view_->HasStyle(LVS_SINGLESEL);
}

bool RowReader::HasCheckBoxes() const {
    return view_ && view_->HasCheckBoxes();
}

bool RowReader::Checked(int row) const {
    return HasCheckBoxes() && Has(row) && view_->Checked(row);
}

}  // namespace kv::qt
