#include "adaptors/block_inputs.h"
#include "blocks/area_dlg.h"
#include "blocks/blk_ext_ids.h"

namespace adaptors {

namespace {

void RunArea(Run& run) {
    CKvGuiAreaDlg dialog;
    RunBlockDialog(run, dialog);
}

const Register kRegistered({
    "CKvGuiAreaDlg",
    "Blocks",
    "Area Selection Dialog",
    "Select areas",
    kv::blk_ext::kAreaTemplate,
    BlockInputs(),
    kBlockOutcome,
    RunArea,
});

}  // namespace

}  // namespace adaptors
