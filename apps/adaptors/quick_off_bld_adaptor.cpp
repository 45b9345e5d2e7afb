#include "adaptors/map_inputs.h"
#include "mapbuild/builders/quick_off_bld_ids.h"

namespace adaptors {

namespace {

void RunQuickOffBld(Run& run) {
    CKvGuiQuickOffBldDlg dialog(nullptr);
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
    "CKvGuiQuickOffBldDlg",
    "Map building",
    "Quick Offshore Map Builder",
    "Map of picked blocks or counties",
    kv::quick_bld::kTemplate,
    Inputs(),
    std::string(kQuickOutcome) + kMapOutcome,
    RunQuickOffBld,
});

}  // namespace

}  // namespace adaptors
