#include "adaptors/print_inputs.h"
#include "print/sizing_dlg.h"
#include "print/sizing_ids.h"

namespace adaptors {

namespace {

void RunSizing(Run& run) {
    CKvGuiSizingDlg dialog;
    dialog.SetBounds(BoundsOf(run));
    dialog.SetUnit(UnitOf(run));
    if (const int scale = run.Get("scale", 0); scale != 0) dialog.SetScale(scale);
    dialog.IsCGM(run.Get("cgm", false));
    run.result = dialog.DoModal();
    run.outcome = {{"scale", dialog.GetScale()},           {"width", dialog.GetPageWidthSize()},
                   {"height", dialog.GetPageHeightSize()}, {"landscape", dialog.GetLandScapeMode()},
                   {"trueType", dialog.GetTrueTypeFont()}, {"color", dialog.GetColorMode()},
                   {"gray", dialog.GetGrayMode()}};
}

const Register kRegistered({
    "CKvGuiSizingDlg",
    "Print and sizing",
    "Map Sizing Dialog",
    "Scale and size of a map",
    kv::sizing::kTemplate,
    {
        BoundsInput(),
        UnitInput(),
        {"scale", "number", "the scale to begin with; computed if left out", {}},
        {"cgm", "flag", "whether the output goes to a CGM file: only then all of the dialog shows",
         true},
    },
    "scale, width, height (of the map, inches), landscape, trueType, color, gray",
    RunSizing,
});

}  // namespace

}  // namespace adaptors
