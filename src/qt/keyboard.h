#pragma once

#include <QWidget>

#include "window/dialog_keys.h"

namespace kv::qt {

/// From now on the keys that reach the widget go to the layer.
void TakeKeysOf(QWidget* widget);

Modifiers ToModifiers(Qt::KeyboardModifiers modifiers);

}  // namespace kv::qt
