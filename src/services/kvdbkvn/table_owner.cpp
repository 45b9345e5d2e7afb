#include "frame/kvdbkvn/table_owner.h"

#include "frame/kvcom/ut_registry.h"

CString CKvTableOwner::GetTableOwner() const {
    return CKvUtRegistry().GetRegistry("SOFTWARE\\KVI", "TABLE_OWNER", true);
}
