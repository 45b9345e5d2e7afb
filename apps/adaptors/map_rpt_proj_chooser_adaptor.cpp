#include "adaptors/adaptor.h"
#include "mapbuild/builders/map_rpt_proj_chooser.h"
#include "mapbuild/builders/map_rpt_proj_chooser_ids.h"

namespace adaptors {

namespace {

void RunChooser(Run& run) {
    CKvGuiMapRptProjChooser dialog(nullptr);
    dialog.SetRptUseMapProjFlag(run.Get("useMapProjection", true));
    run.result = dialog.DoModal();
    run.outcome = {{"useMapProjection", dialog.GetRptUseMapProjFlag()}};
}

const Register kRegistered({
    "CKvGuiMapRptProjChooser",
    "Map building",
    "Choose Projection",
    "Projection of a map report",
    kv::rpt_proj::kTemplate,
    {{"useMapProjection", "flag", "whether it begins with the map's projection", true}},
    "useMapProjection (whether the report uses the map's projection)",
    RunChooser,
});

}  // namespace

}  // namespace adaptors
