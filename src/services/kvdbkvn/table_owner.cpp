#include "frame/table_owner.h"

#include "frame/ut_registry.h"

CString CKvTableOwner::GetTableOwner() const {
    return CKvUtRegistry().GetRegistry("SOFTWARE\\KVI", "TABLE_OWNER", true);
}
