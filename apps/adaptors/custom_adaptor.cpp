#include "adaptors/map_inputs.h"
#include "mapbuild/builders/custom_dlg.h"
#include "mapbuild/builders/custom_ids.h"

namespace adaptors {

namespace {

void RunCustom(Run& run) {
    CKvGuiCustomDlg dialog(nullptr);
    dialog.SetMapName(run.Get<std::string>("mapName", ""));
    dialog.SetXYBounded(run.Get("xyBounded", true));
    run.result = dialog.DoModal();
    run.outcome = {{"mapName", dialog.GetMapName()}, {"scale", dialog.GetScale()}};
    run.outcome.update(MapAsJson(dialog.GetBounds()));
}

const Register kRegistered({
    "CKvGuiCustomDlg",
    "Map building",
    "Custom Map Builder Dialog",
    "Map from bounds of one's own",
    kv::custom_bld::kTemplate,
    {
        {"mapName",
         "text",
         "name of the map; the dialog begins with one from the clock anyway",
         {}},
        {"xyBounded", "flag", "kind of bounds; the dialog begins with X/Y anyway", {}},
    },
    std::string("mapName, scale; of the map: ") + kMapOutcome,
    RunCustom,
});

}  // namespace

}  // namespace adaptors
