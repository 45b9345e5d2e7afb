#include "adaptors/adaptor.h"
#include "mapbuild/dms_dlg.h"
#include "mapbuild/dms_dlg_ids.h"

namespace adaptors {

namespace {

void RunDmsDlg(Run& run) {
    CKvGuiDMSDlg dialog(run.Get<std::string>("max", ""), run.Get<std::string>("min", ""),
                        run.Get("latitude", true), nullptr);
    run.result = dialog.DoModal();
    run.outcome = {{"max", dialog.GetDMSMax()}, {"min", dialog.GetDMSMin()}};
}

const Register kRegistered({
    "CKvGuiDMSDlg",
    "Map building",
    "DMS Dialog",
    "Maximum and minimum angle",
    kv::dms_dlg::kTemplate,
    {
        {"max", "text", "the maximum in decimal degrees; empty for none", "28.504236"},
        {"min", "text", "the minimum in decimal degrees; empty for none", "27.5"},
        {"latitude", "flag", "whether they are latitudes, and not longitudes; true by itself",
         nullptr},
    },
    "max, min (decimal degrees; 1000 for one that was left empty)",
    RunDmsDlg,
});

}  // namespace

}  // namespace adaptors
