#pragma once

#include "base/export.h"
#include "base/types.h"

/// Shows a message box over the active window: type 0 has an OK button, 4 Yes and No (the answer
/// then IDYES or IDNO). The help number is not used. Returns the id of the button.
KVGUICTL_API int AfxMessageBox(const char* text, UINT type = 0, UINT help = 0);
