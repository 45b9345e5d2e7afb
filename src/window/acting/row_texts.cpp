#include "window/acting/row_texts.h"

#include "window/controls/combo_box_node.h"
#include "window/controls/list_box_node.h"
#include "window/list_view/list_view_node.h"

namespace kv {

namespace {

/// The rows of a list box or a combo box, null for other controls.
const RowList* RowsOf(const Node& control) {
    if (const auto* list = dynamic_cast<const ListBoxNode*>(&control)) return &list->Rows();
    if (const auto* combo = dynamic_cast<const ComboBoxNode*>(&control)) return &combo->Rows();
    return nullptr;
}

std::string RowText(const ListViewNode& view, int row) {
    std::string text;
    for (std::size_t column = 0; column < view.Columns().size(); ++column) {
        if (column > 0) text += '\t';
        text += view.CellText(row, static_cast<int>(column));
    }
    return text;
}

}  // namespace

bool HasRows(const Node& control) {
    return RowsOf(control) || control.Class() == NodeClass::kListView;
}

std::vector<std::string> RowTexts(Node& control) {
    std::vector<std::string> texts;
    if (const auto* view = dynamic_cast<const ListViewNode*>(&control)) {
        for (int row = 0; row < view->Count(); ++row)
            texts.push_back(RowText(*view, row));
    } else if (const RowList* rows = RowsOf(control)) {
        for (int row = 0; row < rows->Count(); ++row)
            texts.emplace_back(rows->Text(row));
    }
    return texts;
}

std::string RowTextOf(const Node& control, int row) {
    if (const auto* view = dynamic_cast<const ListViewNode*>(&control)) {
        return row >= 0 && row < view->Count() ? RowText(*view, row) : std::string();
    }
    const RowList* rows = RowsOf(control);
    return rows && rows->Has(row) ? std::string(rows->Text(row)) : std::string();
}

std::vector<int> SelectedRows(Node& control) {
    std::vector<int> selected;
    if (control.Class() == NodeClass::kComboBox) {
        const auto row = static_cast<int>(Send(control, CB_GETCURSEL));
        if (row >= 0) selected.push_back(row);
    } else if (const auto* view = dynamic_cast<const ListViewNode*>(&control)) {
        for (int row = view->NextItem(-1, LVNI_SELECTED); row >= 0;
             row = view->NextItem(row, LVNI_SELECTED)) {
            selected.push_back(row);
        }
    } else if (control.Class() == NodeClass::kListBox) {
        const auto count = static_cast<int>(Send(control, LB_GETCOUNT));
        for (int row = 0; row < count; ++row) {
            if (Send(control, LB_GETSEL, static_cast<WPARAM>(row)) > 0) selected.push_back(row);
        }
    }
    return selected;
}

}  // namespace kv
