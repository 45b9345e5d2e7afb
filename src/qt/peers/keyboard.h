#pragma once

#include <QString>
#include <QWidget>

#include "window/dialog_keys.h"

namespace kv::qt {

/// Whether it is a key, or a text that an input method makes of keys.
bool IsOfKeyboard(const QEvent& event);
/// A key that reaches the widget of a control goes to the layer: to what has the focus in the
/// window around `node`. False where it is the host's own.
bool TakeKey(QEvent& event, Node& node);

Modifiers ToModifiers(Qt::KeyboardModifiers modifiers);

/// Takes from an event whether Alt is held; true when that is another answer than before.
bool NoteAlt(const QEvent& event);
/// A control's text as it is drawn: with the letters that the layer gives as long as Alt is held.
QString ShownText(const Node& node);

}  // namespace kv::qt
