#pragma once

#include <QString>

class QMenuBar;
class QWidget;

namespace workbench {

/// What the mouse and the keys do, as rich text: what the map, the bar and the lists understand,
/// and each command of the menus that has a key.
QString KeyHelp(const QMenuBar& menus);

/// Shows it in a window that scrolls, until the person closes that.
void ShowKeyHelp(const QMenuBar& menus, QWidget* parent);

}  // namespace workbench
