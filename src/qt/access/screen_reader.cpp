#include "qt/access/screen_reader.h"

#include "qt/access/combo_interface.h"
#include "qt/access/edit_interface.h"
#include "qt/access/list_interface.h"
#include "qt/access/value_interface.h"
#include "qt/drawing/text.h"
#include "qt/peers/peer.h"
#include "window/controls/combo_box_node.h"
#include "window/controls/spin_node.h"
#include "window/list_view/list_view_node.h"
#include "window/window_system.h"

namespace kv::qt {

namespace {

/// Null for the widgets that are the platform's own, or the host's.
QAccessibleInterface* MakeInterface(const QString&, QObject* object) {
    auto* widget = qobject_cast<QWidget*>(object);
    const Peer* peer = widget ? PeerOf(widget) : nullptr;
    if (!peer || peer->Widget() != widget) return nullptr;
    Node& node = peer->GetNode();
    switch (node.Class()) {
        case NodeClass::kFrame:
        case NodeClass::kToolBar:
        case NodeClass::kOther:
            return nullptr;
        case NodeClass::kBar:
            if (node.Parent() && node.Parent()->Class() == NodeClass::kFrame) return nullptr;
            return new ControlInterface(*widget, node);
        case NodeClass::kEdit:
            return new EditInterface(*widget, node);
        case NodeClass::kComboBox:
            return new ComboInterface(*widget, node);
        case NodeClass::kListBox:
        case NodeClass::kListView:
            return new ListInterface(*widget, node);
        case NodeClass::kSpin:
        case NodeClass::kProgress:
            return new ValueInterface(*widget, node);
        default:
            return new ControlInterface(*widget, node);
    }
}

ListInterface* RowsOf(QWidget& widget) {
    QAccessibleInterface* shown = QAccessible::queryAccessibleInterface(&widget);
    const auto* combo = dynamic_cast<ComboInterface*>(shown);
    return combo ? combo->List() : dynamic_cast<ListInterface*>(shown);
}

void TellState(QWidget& widget, void (*set)(QAccessible::State&)) {
    QAccessible::State changed;
    set(changed);
    QAccessibleStateChangeEvent event(&widget, changed);
    QAccessible::updateAccessibility(&event);
}

void TellValue(QWidget& widget, const QVariant& value) {
    QAccessibleValueChangeEvent event(&widget, value);
    QAccessible::updateAccessibility(&event);
}

void Tell(QAccessibleInterface* shown, QAccessible::Event what) {
    QAccessibleEvent event(shown, what);
    QAccessible::updateAccessibility(&event);
}

/// The row that the keyboard acts on is the one that changed.
void TellSelection(QWidget& widget) {
    const ListInterface* rows = RowsOf(widget);
    QAccessibleInterface* caret = rows ? rows->CaretCell() : nullptr;
    if (!caret) return;
    const QAccessible::State state = caret->state();
    Tell(caret, state.selected ? QAccessible::SelectionAdd : QAccessible::SelectionRemove);
    if (!state.checkable) return;
    QAccessible::State checked;
    checked.checked = true;
    QAccessibleStateChangeEvent event(caret, checked);
    QAccessible::updateAccessibility(&event);
}

void TellCaretRow(QWidget& widget, const Node& node) {
    const ListInterface* rows = RowsOf(widget);
    QAccessibleInterface* caret = rows && HasKeyboard(node, widget) ? rows->CaretCell() : nullptr;
    if (caret) Tell(caret, QAccessible::Focus);
}

/// What the widget does not tell of itself.
void Announce(const Peer& peer, Change change) {
    QWidget* widget = peer.Widget();
    if (!QAccessible::isActive() || !widget) return;
    const Node& node = peer.GetNode();
    const bool combo = node.Class() == NodeClass::kComboBox;
    switch (change) {
        case Change::kText:
            if (combo) TellValue(*widget, ToQString(node.Text()));
            break;
        case Change::kPosition:
            if (const auto* spin = dynamic_cast<const SpinNode*>(&node)) {
                TellValue(*widget, spin->Position());
            }
            break;
        case Change::kDropped:
            if (ListInterface* rows = RowsOf(*widget)) rows->ForgetCells();
            TellState(*widget, [](QAccessible::State& state) { state.expanded = true; });
            break;
        case Change::kStyle:
            if (node.Class() != NodeClass::kEdit) break;
            TellState(*widget,
                      [](QAccessible::State& state) { state.readOnly = state.editable = true; });
            break;
        case Change::kFocus:
            if (!combo) TellCaretRow(*widget, node);
            break;
        case Change::kSelection:
            TellSelection(*widget);
            break;
        case Change::kToolTip: {
            QAccessibleEvent event(widget, QAccessible::DescriptionChanged);
            QAccessible::updateAccessibility(&event);
            break;
        }
        default:
            break;
    }
}

}  // namespace

void AnswerScreenReaders() {
    QAccessible::installFactory(MakeInterface);
    SetAnnouncer(Announce);
}

void ForgetScreenReaders() {
    QAccessible::removeFactory(MakeInterface);
    SetAnnouncer(nullptr);
}

}  // namespace kv::qt
