#pragma once

#include <initializer_list>

#include "window/dialogs/dialog.h"

namespace kv::print {

/// Leaves of a dialog what stands above the middle between two controls: the bottom of `last` and
/// the top of `next`, which is below it. `hidden` are hidden, and OK and Cancel, which stand above
/// each other, move up until the lower one is level with `last`.
void CutDialog(CDialog& dialog, std::initializer_list<int> hidden, int last, int next);

}  // namespace kv::print
