#pragma once

#include "base/export.h"
#include "frame/kvcom/exception.h"
#include "window/wnd.h"

namespace kv::db {

/// Shows what the database has to say in a message box. Of a query that the person cancelled it
/// shows nothing: they know.
KVGUICTL_API void TellFailure(const CKvException& failure);

/// The same of a query that was to fill a list box or a combo box. One that was cancelled leaves it
/// empty, and it says "Cancelled" in the place of its rows.
KVGUICTL_API void TellFailure(const CKvException& failure, CWnd& list);

/// Empties such a list, which says so.
KVGUICTL_API void ShowCancelled(CWnd& list);
KVGUICTL_API bool SaysCancelled(const CWnd& list);
/// Lets it say nothing any more: its query is asked anew.
KVGUICTL_API void ShowAskedAnew(CWnd& list);

}  // namespace kv::db
