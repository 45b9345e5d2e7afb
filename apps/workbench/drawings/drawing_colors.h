#pragma once

#include <QColor>

namespace workbench {

/// The colour of an index.
QColor DrawnColor(int index);
/// The same as it is shown on a dark map: one too dark to be seen is as light as it was dark.
QColor OnDarkMap(const QColor& color);

}  // namespace workbench
