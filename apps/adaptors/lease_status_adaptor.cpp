#include "adaptors/check_list_adaptor.h"
#include "qualifiers/lease_status_dlg.h"
#include "qualifiers/lease_status_ids.h"

namespace adaptors {

namespace {

const Register kRegistered(CheckListAdaptor<CKvGuiLeaseStatusDlg>("CKvGuiLeaseStatusDlg",
                                                                  "Lease Status", "Lease status",
                                                                  kv::lease_status::kTemplate,
                                                                  "EXPIRED"));

}  // namespace

}  // namespace adaptors
