#include "adaptors/adaptor.h"
#include "mapbuild/proj_sel_ids.h"
#include "mapbuild/projection_dialog.h"

namespace adaptors {

namespace {

void RunProjectionDialog(Run& run) {
    CKvGuiProjectionDialog dialog(nullptr);
    dialog.SetProjection(run.Get("projection", -1));
    run.result = dialog.DoModal();
    const int code = dialog.GetProjection();
    run.outcome = {{"projection", code}, {"description", CKvGuiProjCtrl::S_GetProjDesc(code)}};
}

const Register kRegistered({
    "CKvGuiProjectionDialog",
    "Map building",
    "Projection",
    "Projection of any zone",
    kv::projection_dialog::kTemplate,
    {{"projection", "number", "the code to begin with, -1 for none", 115}},
    "projection (the code that was picked last, -1 for none), description (its text)",
    RunProjectionDialog,
});

}  // namespace

}  // namespace adaptors
