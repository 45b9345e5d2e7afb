#pragma once

#include <QWidget>

#include "window/dialog_keys.h"

namespace kv::qt {

/// From now on the keys that reach the widget go to the layer: to what has the focus in the window
/// around `node`, as long as that lives.
void TakeKeysOf(QWidget* widget, Node& node);

Modifiers ToModifiers(Qt::KeyboardModifiers modifiers);

}  // namespace kv::qt
