#pragma once

#include <vector>

#include "adaptors/adaptor.h"
#include "blocks/blk_ext_dlg.h"

namespace adaptors {

/// What the block selection dialogs take and give.
std::vector<Input> BlockInputs();
inline constexpr const char* kBlockOutcome =
    "selection (list of [area, block], a whole area with an empty block), field (the column that "
    "areas are shown by), table, neighbors (list of {block, touches}, each block as [area, "
    "block]), "
    "listFile (its path), useListFile (whether it is in use)";

/// Runs the dialog on a selection of the host's.
void RunBlockDialog(Run& run, CKvGuiBlkExtDlg& dialog);

}  // namespace adaptors
