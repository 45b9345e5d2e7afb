#include "qt/peers/list_box_peer.h"

#include "qt/peers/acting.h"
#include "qt/peers/keyboard.h"
#include "window/acting/input.h"
#include "window/controls/combo_box_node.h"

namespace kv::qt {

namespace {

class ListSource : public RowSource {
public:
    explicit ListSource(ListBoxNode& list) : list_(list.weak_from_this()) {}

    const RowList* Rows() const override {
        const ListBoxNode* list = List();
        return list ? &list->Rows() : nullptr;
    }
    bool Selected(int row) const override {
        const ListBoxNode* list = List();
        return list && list->Selected(row);
    }
    int CaretRow() const override {
        const ListBoxNode* list = List();
        return list ? list->Caret() : -1;
    }
    const Raster* Image(int row) const override {
        const ComboBoxNode* box = Box();
        return box ? box->RowImage(row) : nullptr;
    }
    CSize ImageSize() const override {
        const ComboBoxNode* box = Box();
        return box && box->Images() ? box->Images()->Size() : CSize();
    }

private:
    /// The combo box whose list it is; null for a list box.
    const ComboBoxNode* Box() const {
        const ListBoxNode* list = List();
        return list ? dynamic_cast<const ComboBoxNode*>(list->Parent()) : nullptr;
    }
    const ListBoxNode* List() const {
        const auto node = list_.lock();
        return node && !node->Destroyed() ? static_cast<const ListBoxNode*>(node.get()) : nullptr;
    }

    std::weak_ptr<Node> list_;
};

}  // namespace

std::shared_ptr<RowSource> SourceOf(ListBoxNode& list) {
    return std::make_shared<ListSource>(list);
}

ListBoxPeer::ListBoxPeer(ListBoxNode& node, QWidget* host)
    : Peer(node, new RowsView(SourceOf(node), host)) {
    const auto weak = node.weak_from_this();
    const bool extended = node.HasStyle(LBS_EXTENDEDSEL);
    View()->onPress = [weak](int row, Qt::KeyboardModifiers keys) {
        Act(weak, [&](Node& list) { input::ClickRow(list, row, ToModifiers(keys)); });
    };
    View()->onDrag = [weak, extended](int row, Qt::KeyboardModifiers keys) {
        Modifiers modifiers = ToModifiers(keys);
        modifiers.shift = extended;
        Act(weak, [&](Node& list) { input::ClickRow(list, row, modifiers); });
    };
    View()->onDoubleClick = [weak](int row) {
        Act(weak, [&](Node& list) { input::DoubleClick(list, row); });
    };
}

void ListBoxPeer::ShowAll() {
    Peer::ShowAll();
    View()->SelectionChanged();
}

void ListBoxPeer::Changed(Change change) {
    if (!Widget()) return;
    if (change == Change::kRows) {
        View()->RowsChanged();
    } else if (change == Change::kSelection) {
        View()->SelectionChanged();
        Announce(change);
    } else {
        Peer::Changed(change);
    }
}

void ListBoxPeer::RowsInserted(int first, int count) {
    if (Widget()) View()->Model().Inserted(first, count);
}

void ListBoxPeer::RowsRemoved(int first, int count) {
    if (Widget()) View()->Model().Removed(first, count);
}

void ListBoxPeer::ShowFocus() {
    Peer::ShowFocus();
    View()->update();
    View()->viewport()->update();
}

}  // namespace kv::qt
