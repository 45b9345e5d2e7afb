#pragma once

#include "base/export.h"

class CComboBox;
class CEdit;
class QComboBox;
class QLineEdit;

namespace kv::qt {

/// Makes the handle stand for a widget of the host's own, so that a dialog can be handed it: what
/// the dialog does to the control shows in the widget, and what the person does in the widget is in
/// the control. The handle must be attached to no window; it is detached when the widget goes.
/// False when it is attached.
///
/// A combo box's rows become those of the control, which begins with the widget's; the widget reads
/// them on demand.
KVGUICTL_API bool BindComboBox(QComboBox& widget, CComboBox& control);
KVGUICTL_API bool BindLineEdit(QLineEdit& widget, CEdit& control);

}  // namespace kv::qt
