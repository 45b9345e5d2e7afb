#include "adaptors/adaptor.h"
#include "drawing/clear_custom_obj_dlg.h"
#include "drawing/clear_custom_obj_ids.h"

namespace adaptors {

namespace {

void RunClear(Run& run) {
    CKvGuiClearCustomObjDlg dialog;
    dialog.SetClearTextFlg(run.Get("texts", false));
    dialog.SetClearPolyFlg(run.Get("polygons", false));
    dialog.SetClearColorFillFlg(run.Get("colorFills", false));
    run.result = dialog.DoModal();
    run.outcome = {{"texts", dialog.GetClearTextFlg()},
                   {"polygons", dialog.GetClearPolyFlg()},
                   {"colorFills", dialog.GetClearColorFillFlg()}};
}

const Register kRegistered({
    "CKvGuiClearCustomObjDlg",
    "Drawing tools",
    "Clear Customized Graphics",
    "What to clear of a map's own graphics",
    kv::clear_custom_obj::kTemplate,
    {
        {"texts", "flag", "whether texts are checked at the start", true},
        {"polygons", "flag", "whether lines and polygons are", nullptr},
        {"colorFills", "flag", "whether color-filled blocks are", nullptr},
    },
    "texts, polygons, colorFills (whether each is to be cleared)",
    RunClear,
});

}  // namespace

}  // namespace adaptors
