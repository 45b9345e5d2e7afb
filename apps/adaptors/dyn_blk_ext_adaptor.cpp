#include "adaptors/block_inputs.h"
#include "adaptors/list_file_inputs.h"
#include "blocks/blk_ext_ids.h"
#include "blocks/dyn_blk_ext_dlg.h"

namespace adaptors {

namespace {

void RunDynBlkExt(Run& run) {
    const auto text = [&run](const char* name) { return run.Get<std::string>(name, ""); };
    CKvGuiDynBlkExtDlg dialog(text("abeTable"), text("areaColumn"), text("blockColumn"),
                              text("areaColumn2"), text("blockColumn2"), run.Get("single", true));
    RunBlockDialog(run, dialog);
}

const Register kRegistered({
    "CKvGuiDynBlkExtDlg",
    "Blocks",
    "Area Block/Extension Selection Dialog, on a table of the host's",
    "Select blocks of a table",
    kv::blk_ext::kTemplate,
    Joined({{"abeTable", "text", "table with the areas and blocks to offer",
             "NORVADON.gulf_mexico_pipeline"},
            {"areaColumn", "text", "its column with the area code", "areacode"},
            {"blockColumn", "text", "its block column or expression", "lbnum||lbext"},
            {"areaColumn2", "text", "the same in a second set of columns", "to_areacode"},
            {"blockColumn2", "text", "the same in a second set of columns", "to_lbnum||to_lbext"},
            {"single", "flag", "whether the first set of columns alone counts; true by default",
             false}},
           BlockInputs()),
    kBlockOutcome,
    RunDynBlkExt,
});

}  // namespace

}  // namespace adaptors
