#include "adaptors/adaptor.h"
#include "drawing/search_replace_dlg.h"
#include "drawing/search_replace_ids.h"

namespace adaptors {

namespace {

void RunSearchReplace(Run& run) {
    CKvGuiSearchReplaceDlg dialog;
    run.result = dialog.DoModal();
    run.outcome = {{"layer", dialog.GetLayerSelect()},
                   {"search", dialog.GetSearchContent()},
                   {"replace", dialog.GetReplaceContent()}};
}

const Register kRegistered({
    "CKvGuiSearchReplaceDlg",
    "Drawing tools",
    "Search And Replace",
    "A text to find on a layer, and its replacement",
    kv::search_replace::kTemplate,
    {},
    "layer (LEASES, PIPELINES or WELLS), search, replace (in capitals)",
    RunSearchReplace,
});

}  // namespace

}  // namespace adaptors
