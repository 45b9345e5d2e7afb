#include "adaptors/map_inputs.h"
#include "mapbuild/builders/pick_bdry_dlg.h"
#include "mapbuild/builders/quick_off_bld_ids.h"

namespace adaptors {

namespace {

void RunPickBdry(Run& run) {
    CKvPickBdryDlg dialog(nullptr);
    TakePickInputs(run, dialog);
    TakeMode(run, dialog);
    RunMapDialog(run, dialog);
}

std::vector<Input> Inputs() {
    std::vector<Input> inputs = PickInputs();
    inputs.insert(inputs.begin() + 1, ModeInput());
    return inputs;
}

const Register kRegistered({
    "CKvPickBdryDlg",
    "Map building",
    "Export Pick Boundary Dialog",
    "Boundary of picked blocks",
    kv::quick_bld::kBoundaryTemplate,
    Inputs(),
    std::string(kQuickOutcome) + kMapOutcome,
    RunPickBdry,
});

}  // namespace

}  // namespace adaptors
