#include "qt/access/control_interface.h"

#include <QApplication>
#include <algorithm>
#include <utility>
#include <vector>

#include "qt/drawing/text.h"
#include "qt/peers/acting.h"
#include "qt/peers/names.h"
#include "qt/peers/peer.h"
#include "window/acting/input.h"
#include "window/controls/button_node.h"
#include "window/controls/combo_box_node.h"
#include "window/dialog_keys.h"
#include "window/dialogs/dialog.h"
#include "window/mnemonics.h"
#include "window/window_system.h"

namespace kv::qt {

namespace {

DWORD ButtonKind(const Node& node) {
    return node.Class() == NodeClass::kButton ? node.Style() & BS_TYPEMASK : BS_GROUPBOX;
}

bool IsChecked(const Node& node) {
    return static_cast<const ButtonNode&>(node).CheckState() == BST_CHECKED;
}

bool CanBeChecked(const Node& node) {
    return ButtonKind(node) == BS_AUTOCHECKBOX || ButtonKind(node) == BS_AUTORADIOBUTTON;
}

bool TakesFocus(const Node& node) {
    switch (node.Class()) {
        case NodeClass::kButton:
            return ButtonKind(node) != BS_GROUPBOX;
        case NodeClass::kEdit:
        case NodeClass::kComboBox:
        case NodeClass::kListBox:
        case NodeClass::kListView:
            return true;
        default:
            return false;
    }
}

QAccessible::Role RoleOfButton(DWORD kind) {
    if (kind == BS_GROUPBOX) return QAccessible::Grouping;
    if (kind == BS_AUTOCHECKBOX) return QAccessible::CheckBox;
    if (kind == BS_AUTORADIOBUTTON) return QAccessible::RadioButton;
    return QAccessible::Button;
}

QAccessible::Role RoleOfLabel(DWORD kind) {
    const bool picture = kind == SS_ICON || kind == SS_BITMAP;
    return picture ? QAccessible::Graphic : QAccessible::StaticText;
}

/// Of the edit of a combo box the box's.
QString MnemonicText(const Node& node) {
    if (!TakesFocus(node) || !node.Parent()) return {};
    if (node.Parent()->Class() == NodeClass::kComboBox) return MnemonicText(*node.Parent());
    const char letter = KeyOf(node);
    if (letter == 0) return {};
    return QStringLiteral("Alt+") + QChar::fromLatin1(letter);
}

/// The controls beside a label that go by its text.
std::vector<const Node*> LabelledBy(const Node& label) {
    std::vector<const Node*> labelled;
    if (!label.Parent()) return labelled;
    for (const auto& sibling : label.Parent()->Children()) {
        const std::vector<const Node*> labels = LabelsOf(*sibling);
        if (std::find(labels.begin(), labels.end(), &label) != labels.end()) {
            labelled.push_back(sibling.get());
        }
    }
    return labelled;
}

void AddButtonState(const ButtonNode& button, QAccessible::State& state) {
    state.checkable = CanBeChecked(button);
    state.checked = state.checkable && IsChecked(button);
    state.pressed = button.Pushed();
    state.defaultButton = DefaultButton(*const_cast<ButtonNode&>(button).Host()) == &button;
}

void AddComboState(const ComboBoxNode& combo, QAccessible::State& state) {
    state.editable = combo.Editable();
    if (combo.Simple()) return;
    state.hasPopup = true;
    state.expandable = true;
    state.expanded = combo.Dropped();
    state.collapsed = !combo.Dropped();
}

void AddDialogState(const DialogNode& dialog, const QWidget& widget, QAccessible::State& state) {
    state.modal = dialog.Modal();
    state.movable = true;
    state.active = widget.isActiveWindow();
}

}  // namespace

QAccessibleInterface* InterfaceOf(const Node& node) {
    const Peer* peer = PeerOf(node);
    return peer && peer->Widget() ? QAccessible::queryAccessibleInterface(peer->Widget()) : nullptr;
}

void ActLater(Node& node, std::function<void(Node&)> action) {
    QMetaObject::invokeMethod(
        qApp, [weak = node.weak_from_this(), action = std::move(action)] { Act(weak, action); },
        Qt::QueuedConnection);
}

QAccessible::State PlaceState(const Node& node, const QWidget& widget) {
    QAccessible::State state;
    state.invisible = !node.ReallyVisible();
    state.offscreen = !state.invisible && widget.visibleRegion().isEmpty();
    state.disabled = !node.ReallyEnabled();
    return state;
}

bool HasKeyboard(const Node& node, const QWidget& widget) {
    return WindowSystem::Get().Focus() == &node && widget.window()->isActiveWindow();
}

ControlInterface::ControlInterface(QWidget& widget, Node& node)
    : widget_(&widget), node_(node.weak_from_this()) {}

Node* ControlInterface::GetNode() const {
    const auto node = node_.lock();
    return node && !node->Destroyed() ? node.get() : nullptr;
}

QWindow* ControlInterface::window() const {
    return widget_ ? widget_->window()->windowHandle() : nullptr;
}

QList<QAccessibleInterface*> ControlInterface::Children() const {
    QList<QAccessibleInterface*> children;
    const Node* node = GetNode();
    const bool holds =
        node && (node->Class() == NodeClass::kDialog || node->Class() == NodeClass::kBar);
    if (!holds) return children;
    for (const auto& child : node->Children()) {
        if (QAccessibleInterface* shown = InterfaceOf(*child)) children.append(shown);
    }
    return children;
}

int ControlInterface::indexOfChild(const QAccessibleInterface* child) const {
    return static_cast<int>(Children().indexOf(const_cast<QAccessibleInterface*>(child)));
}

QList<QPair<QAccessibleInterface*, QAccessible::Relation>> ControlInterface::relations(
    QAccessible::Relation match) const {
    QList<QPair<QAccessibleInterface*, QAccessible::Relation>> relations;
    const Node* node = GetNode();
    if (!node) return relations;
    const auto add = [&](const std::vector<const Node*>& others, QAccessible::RelationFlag what) {
        if (!match.testFlag(what)) return;
        for (const Node* other : others) {
            if (QAccessibleInterface* shown = InterfaceOf(*other)) relations.append({shown, what});
        }
    };
    add(LabelsOf(*node), QAccessible::Label);
    add(LabelledBy(*node), QAccessible::Labelled);
    return relations;
}

QAccessibleInterface* ControlInterface::focusChild() const {
    const Node* node = GetNode();
    const Node* focus = WindowSystem::Get().Focus();
    const bool inside = node && focus && focus != node && focus->IsSelfOrDescendantOf(*node);
    return inside ? InterfaceOf(*focus) : nullptr;
}

/// A group box lies around the controls that it belongs to.
QAccessibleInterface* ControlInterface::childAt(int x, int y) const {
    QAccessibleInterface* around = nullptr;
    for (QAccessibleInterface* child : Children()) {
        if (child->state().invisible || !child->rect().contains(x, y)) continue;
        if (child->role() != QAccessible::Grouping) return child;
        around = child;
    }
    return around;
}

/// Controls of a bar in a frame lie in the host's window, and in what the platform has around them.
QAccessibleInterface* ControlInterface::parent() const {
    const Node* node = GetNode();
    if (!node || !widget_) return nullptr;
    if (!node->Parent()) return QAccessible::queryAccessibleInterface(qApp);
    QAccessibleInterface* around = InterfaceOf(*node->Parent());
    if (dynamic_cast<ControlInterface*>(around)) return around;
    return QAccessible::queryAccessibleInterface(widget_->parentWidget());
}

QString ControlInterface::text(QAccessible::Text which) const {
    const Node* node = GetNode();
    if (!node) return {};
    switch (which) {
        case QAccessible::Name:
            return AccessibleName(*node);
        case QAccessible::Description:
            return ToQString(node->ToolTip());
        case QAccessible::Value:
            return node->Class() == NodeClass::kComboBox ? ToQString(node->Text()) : QString();
        case QAccessible::Accelerator:
            return MnemonicText(*node);
        default:
            return {};
    }
}

QRect ControlInterface::rect() const {
    if (!widget_) return {};
    return {widget_->mapToGlobal(QPoint(0, 0)), widget_->size()};
}

QAccessible::Role ControlInterface::role() const {
    const Node* node = GetNode();
    if (!node) return QAccessible::NoRole;
    switch (node->Class()) {
        case NodeClass::kDialog:
            return QAccessible::Dialog;
        case NodeClass::kStatic:
            return RoleOfLabel(node->Style() & SS_TYPEMASK);
        case NodeClass::kButton:
            return RoleOfButton(ButtonKind(*node));
        case NodeClass::kEdit:
            return QAccessible::EditableText;
        case NodeClass::kComboBox:
            return QAccessible::ComboBox;
        case NodeClass::kListBox:
            return QAccessible::List;
        case NodeClass::kListView:
            return QAccessible::Table;
        case NodeClass::kSpin:
            return QAccessible::SpinBox;
        case NodeClass::kProgress:
            return QAccessible::ProgressBar;
        default:
            return QAccessible::Pane;
    }
}

QAccessible::State ControlInterface::state() const {
    const Node* node = GetNode();
    QAccessible::State state;
    if (!node || !widget_) {
        state.invalid = true;
        return state;
    }
    state = PlaceState(*node, *widget_);
    state.focusable = TakesFocus(*node) && !state.disabled;
    state.focused = HasKeyboard(*node, *widget_);
    if (const auto* button = dynamic_cast<const ButtonNode*>(node)) AddButtonState(*button, state);
    if (const auto* combo = dynamic_cast<const ComboBoxNode*>(node)) AddComboState(*combo, state);
    if (const auto* dialog = dynamic_cast<const DialogNode*>(node)) {
        AddDialogState(*dialog, *widget_, state);
    }
    return state;
}

void* ControlInterface::interface_cast(QAccessible::InterfaceType type) {
    if (type != QAccessible::ActionInterface) return nullptr;
    return static_cast<QAccessibleActionInterface*>(this);
}

QStringList ControlInterface::actionNames() const {
    const Node* node = GetNode();
    if (!node || !TakesFocus(*node)) return {};
    QStringList names;
    if (node->Class() == NodeClass::kButton) {
        names.append(CanBeChecked(*node) ? toggleAction() : pressAction());
    } else if (node->Class() == NodeClass::kComboBox) {
        names.append(showMenuAction());
    }
    names.append(setFocusAction());
    return names;
}

void ControlInterface::doAction(const QString& name) {
    Node* node = GetNode();
    if (!node || !actionNames().contains(name)) return;
    ActLater(*node, [name](Node& control) {
        if (name == setFocusAction()) {
            input::MoveFocus(control);
        } else if (name == showMenuAction()) {
            input::DropDown(control);
        } else {
            input::Click(control);
        }
    });
}

QStringList ControlInterface::keyBindingsForAction(const QString& name) const {
    const QString key = text(QAccessible::Accelerator);
    if (key.isEmpty() || name == showMenuAction() || !actionNames().contains(name)) return {};
    return {key};
}

}  // namespace kv::qt
