#include "adaptors/check_list_adaptor.h"
#include "qualifiers/pipe_ids.h"
#include "qualifiers/pipe_status_dlg.h"

namespace adaptors {

namespace {

const Register kRegistered(
    CheckListAdaptor<CKvGuiPipeStatusDlg>("CKvGuiPipeStatusDlg", "Pipeline Status",
                                          "Pipeline status", kv::pipe_status::kTemplate, "ACT"));

}  // namespace

}  // namespace adaptors
