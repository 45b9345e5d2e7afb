#include "adaptors/adaptor.h"
#include "mapbuild/builders/quick_off_bld_ids.h"
#include "mapbuild/builders/snap_range_dlg.h"

namespace adaptors {

namespace {

void RunSnapRange(Run& run) {
    CKvGuiSnapRangeDlg dialog;
    dialog.SetRange(run.Get("range", 0));
    run.result = dialog.DoModal();
    run.outcome = {{"range", dialog.GetRange()}};
}

const Register kRegistered({
    "CKvGuiSnapRangeDlg",
    "Map building",
    "Map Bounds",
    "Grid for a map's bounds",
    kv::snap_range::kTemplate,
    {{"range", "number", "the grid to begin with, in the map's units; 0 for none", 500}},
    "range (in the map's units, 0 for none)",
    RunSnapRange,
});

}  // namespace

}  // namespace adaptors
