#include "qt/peers/keyboard.h"

#include <QInputMethodEvent>
#include <QKeyEvent>
#include <array>
#include <utility>

#include "qt/drawing/text.h"
#include "qt/peers/acting.h"
#include "window/acting/input.h"
#include "window/acting/row_texts.h"
#include "window/mnemonics.h"
#include "window/window_system.h"

namespace kv::qt {

namespace {

constexpr int kVirtualF1 = 0x70;

constexpr std::array<std::pair<int, int>, 18> kNamedKeys{{
    {Qt::Key_Backspace, VK_BACK},
    {Qt::Key_Tab, VK_TAB},
    {Qt::Key_Backtab, VK_TAB},
    {Qt::Key_Return, VK_RETURN},
    {Qt::Key_Enter, VK_RETURN},
    {Qt::Key_Escape, VK_ESCAPE},
    {Qt::Key_Space, VK_SPACE},
    {Qt::Key_PageUp, VK_PRIOR},
    {Qt::Key_PageDown, VK_NEXT},
    {Qt::Key_End, VK_END},
    {Qt::Key_Home, VK_HOME},
    {Qt::Key_Left, VK_LEFT},
    {Qt::Key_Up, VK_UP},
    {Qt::Key_Right, VK_RIGHT},
    {Qt::Key_Down, VK_DOWN},
    {Qt::Key_Insert, VK_INSERT},
    {Qt::Key_Delete, VK_DELETE},
    {Qt::Key_F4, VK_F4},
}};

/// 0 for a key that is told apart by its text alone.
int VirtualKey(int key) {
    for (const auto& [named, number] : kNamedKeys) {
        if (named == key) return number;
    }
    if (key >= Qt::Key_F1 && key <= Qt::Key_F24) return kVirtualF1 + (key - Qt::Key_F1);
    return 0;
}

bool IsLetterOrDigit(int key) {
    return (key >= Qt::Key_A && key <= Qt::Key_Z) || (key >= Qt::Key_0 && key <= Qt::Key_9);
}

bool IsPrintable(const QString& text) {
    return !text.isEmpty() && (text.at(0).isPrint() || text.at(0).isSurrogate());
}

/// Whether both are held that make a third level of the keyboard, or neither.
bool TypesText(const QKeyEvent& event) {
    const bool ctrl = event.modifiers() & Qt::ControlModifier;
    const bool alt = event.modifiers() & Qt::AltModifier;
    return ctrl == alt && IsPrintable(event.text());
}

bool IsEditCommand(int key) {
    return key == Qt::Key_A || key == Qt::Key_C || key == Qt::Key_V || key == Qt::Key_X ||
           key == Qt::Key_Z;
}

/// In a frame the host's menus have their shortcuts: what is no key of the controls is theirs.
bool IsForControls(const QKeyEvent& event, const Node& root) {
    if (root.Class() != NodeClass::kFrame) return true;
    if (event.modifiers() & Qt::AltModifier) {
        return event.key() == Qt::Key_Down || event.key() == Qt::Key_Up || TypesText(event);
    }
    if (event.modifiers() & Qt::ControlModifier) {
        return IsEditCommand(event.key()) || (VirtualKey(event.key()) && event.key() < Qt::Key_F1);
    }
    return event.key() < Qt::Key_F1 || event.key() == Qt::Key_F4;
}

/// Whether a key that a window or a bar gets, and no control, comes from a widget of the host's own
/// in a frame: such keys bubble up, also those of shortcuts and bare modifiers. In a frame the
/// layer acts on a key only where one of its controls has the focus.
bool IsHosts(const Node& receiver, const Node& root) {
    if (root.Class() != NodeClass::kFrame) return false;
    const NodeClass kind = receiver.Class();
    const bool control =
        kind != NodeClass::kFrame && kind != NodeClass::kBar && kind != NodeClass::kToolBar;
    const Node* focus = WindowSystem::Get().Focus();
    return !control && (!focus || focus == &root || !focus->IsSelfOrDescendantOf(root));
}

bool HasLayersFocus(const Node& root) {
    const Node* focus = WindowSystem::Get().Focus();
    return focus && focus->IsSelfOrDescendantOf(root);
}

bool CopyFromList() {
    Node* focus = WindowSystem::Get().Focus();
    return focus && HasRows(*focus) && input::CopyRows(*focus);
}

void HandleKey(const QKeyEvent& event, Node& root) {
    const Modifiers modifiers = ToModifiers(event.modifiers());
    if (!HasLayersFocus(root)) input::Activate(root);
    if (!input::CanAct(root)) return;
    const bool mnemonic = modifiers.alt && !modifiers.ctrl && IsLetterOrDigit(event.key());
    const bool copies = modifiers.ctrl && !modifiers.alt &&
                        (event.key() == Qt::Key_C || event.key() == Qt::Key_Insert);
    if (mnemonic) {
        input::PressKey(event.key(), modifiers);
    } else if (copies && CopyFromList()) {
        return;
    } else if (const int key = VirtualKey(event.key())) {
        input::PressKey(key, modifiers);
    } else if (TypesText(event)) {
        input::TypeHere(ToBytes(event.text()));
    } else if (IsLetterOrDigit(event.key())) {
        input::PressKey(event.key(), modifiers);
    }
}

bool g_altHeld = false;

/// A mnemonic of the bar's own controls comes ahead of those of the host's menus.
bool TakeMnemonic(QKeyEvent& event, Node& root) {
    const Modifiers modifiers = ToModifiers(event.modifiers());
    const bool mnemonic = modifiers.alt && !modifiers.ctrl && IsLetterOrDigit(event.key());
    bool taken = false;
    if (mnemonic && event.type() == QEvent::ShortcutOverride && HasLayersFocus(root)) {
        Act(root.weak_from_this(), [&](Node&) { taken = input::PressKey(event.key(), modifiers); });
    }
    if (taken) event.accept();
    return taken;
}

bool Commit(const QInputMethodEvent& event, Node& root) {
    if (event.commitString().isEmpty()) return false;
    Act(root.weak_from_this(), [&](Node& window) {
        if (!HasLayersFocus(window)) input::Activate(window);
        input::TypeHere(ToBytes(event.commitString()));
    });
    return true;
}

}  // namespace

Modifiers ToModifiers(Qt::KeyboardModifiers modifiers) {
    return {modifiers.testFlag(Qt::ShiftModifier), modifiers.testFlag(Qt::ControlModifier),
            modifiers.testFlag(Qt::AltModifier)};
}

bool NoteAlt(const QEvent& event) {
    bool held = g_altHeld;
    if (event.type() == QEvent::WindowDeactivate) held = false;
    if (event.type() == QEvent::KeyPress || event.type() == QEvent::KeyRelease) {
        const auto& key = static_cast<const QKeyEvent&>(event);
        held = key.key() == Qt::Key_Alt ? event.type() == QEvent::KeyPress
                                        : key.modifiers().testFlag(Qt::AltModifier);
    }
    return std::exchange(g_altHeld, held) != held;
}

QString ShownText(const Node& node) {
    return ToQString(g_altHeld ? MarkedText(node) : node.Text());
}

bool IsOfKeyboard(const QEvent& event) {
    const auto type = event.type();
    return type == QEvent::KeyPress || type == QEvent::ShortcutOverride ||
           type == QEvent::KeyRelease || type == QEvent::InputMethod;
}

bool TakeKey(QEvent& event, Node& node) {
    const auto keep = node.shared_from_this();
    Node& root = *node.Root();
    if (IsHosts(node, root)) return false;
    if (event.type() == QEvent::InputMethod) {
        return Commit(static_cast<QInputMethodEvent&>(event), root);
    }
    auto& key = static_cast<QKeyEvent&>(event);
    if (!IsForControls(key, root)) return TakeMnemonic(key, root);
    event.accept();
    if (event.type() == QEvent::KeyPress) {
        Act(root.weak_from_this(), [&](Node& window) { HandleKey(key, window); });
    }
    return true;
}

}  // namespace kv::qt
