#pragma once

#include <QString>

class QMenuBar;

namespace workbench {

/// What the mouse and the keys do, as rich text: what the map, the bar and the lists understand,
/// and each command of the menus that has a key.
QString KeyHelp(const QMenuBar& menus);

}  // namespace workbench
