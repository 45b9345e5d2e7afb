#include "adaptors/adaptor.h"
#include "frame/kvdbkvn/db_abs_data_mgr.h"
#include "frame/kvdbkvn/table_owner.h"
#include "pickers/custom_order_dlg.h"
#include "pickers/custom_order_dlg_ids.h"

namespace adaptors {

namespace {

/// The areas as the table has them; null where it cannot be read, which is told.
Json StoredOrder() {
    Json areas = Json::array();
    CKvDbAbsDataMgr manager(KV_CONNECT_DEFAULT);
    try {
        manager.Connect();
        manager.Select("select areaname from " + CKvTableOwner().GetTableOwner().str() +
                       ".nvd2000_area_order order by seq");
        for (int row = 0; row < manager.NumberOfRows(); ++row)
            areas.push_back(manager.GetItem(row, 0));
    } catch (const CKvException& e) {
        AfxMessageBox(e.GetErrorMessage(true, true).c_str(), 0, 0);
        areas = nullptr;
    }
    manager.FreeData();
    manager.Disconnect();
    return areas;
}

void RunCustomOrder(Run& run) {
    CCustomOrderDlg dialog;
    run.result = dialog.DoModal();
    run.outcome = {{"areas", StoredOrder()}};
}

const Register kRegistered({
    "CCustomOrderDlg",
    "Area and block pickers",
    "Customize Area Name Order",
    "The user's own order of areas",
    kv::custom_order_dlg::kTemplate,
    {},
    "areas (in the stored order; null where it cannot be read)",
    RunCustomOrder,
});

}  // namespace

}  // namespace adaptors
