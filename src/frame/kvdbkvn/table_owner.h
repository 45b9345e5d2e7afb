#pragma once

#include "base/cstring.h"
#include "base/export.h"

/// The schema owner of the application's own tables, such as `nvd2000_area_order` and the temporary
/// selection table.
class KVGUICTL_API CKvTableOwner {
public:
    CKvTableOwner() = default;
    /// From the registry entry "TABLE_OWNER", "NORVADON" where that is missing.
    CString GetTableOwner() const;
};
