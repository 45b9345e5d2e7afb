#pragma once

#include <QString>
#include <QWidget>

#include "window/dialog_keys.h"

namespace kv::qt {

/// From now on the keys that reach the widget go to the layer: to what has the focus in the window
/// around `node`, as long as that lives.
void TakeKeysOf(QWidget* widget, Node& node);

Modifiers ToModifiers(Qt::KeyboardModifiers modifiers);

/// Takes from an event whether Alt is held; true when that is another answer than before.
bool NoteAlt(const QEvent& event);
/// A control's text as it is drawn: with the letters that the layer gives as long as Alt is held.
QString ShownText(const Node& node);

}  // namespace kv::qt
