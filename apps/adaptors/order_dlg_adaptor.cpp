#include "adaptors/adaptor.h"
#include "pickers/order_dlg.h"
#include "pickers/order_dlg_ids.h"

namespace adaptors {

namespace {

void RunOrder(Run& run) {
    COrderDlg dialog;
    run.result = dialog.DoModal();
    run.outcome = {{"custom", dialog.GetbCustom()}};
}

const Register kRegistered({
    "COrderDlg",
    "Area and block pickers",
    "Order By",
    "Order of areas",
    kv::order_dlg::kTemplate,
    {},
    "custom (whether areas are wanted in the user's own order, and not by their names)",
    RunOrder,
});

}  // namespace

}  // namespace adaptors
