#include "adaptors/check_list_adaptor.h"
#include "qualifiers/pipe_ids.h"
#include "qualifiers/pipe_product_dlg.h"

namespace adaptors {

namespace {

const Register kRegistered(CheckListAdaptor<CKvGuiPipeProductDlg>(
    "CKvGuiPipeProductDlg", "Pipeline Product Codes:", "Pipeline products",
    kv::pipe_product::kTemplate, "OIL"));

}  // namespace

}  // namespace adaptors
