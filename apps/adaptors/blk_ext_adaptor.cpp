#include "adaptors/block_inputs.h"
#include "blocks/blk_ext_ids.h"

namespace adaptors {

namespace {

void RunBlkExt(Run& run) {
    CKvGuiBlkExtDlg dialog;
    RunBlockDialog(run, dialog);
}

const Register kRegistered({
    "CKvGuiBlkExtDlg",
    "Blocks",
    "Area Block/Extension Selection Dialog",
    "Select blocks",
    kv::blk_ext::kTemplate,
    BlockInputs(),
    kBlockOutcome,
    RunBlkExt,
});

}  // namespace

}  // namespace adaptors
