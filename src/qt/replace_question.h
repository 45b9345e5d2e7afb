#pragma once

#include <QString>

#include "base/export.h"

class QFileDialog;

namespace kv::qt {

/// Whether a chosen file may be written, where it would take the place of one whose name differs in
/// case alone: it asks. Of one of the very name the dialog has asked itself.
KVGUICTL_API bool MayReplace(QFileDialog& dialog, const QString& path);

}  // namespace kv::qt
