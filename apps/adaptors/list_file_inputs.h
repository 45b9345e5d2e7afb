#pragma once

#include <vector>

#include "adaptors/adaptor.h"
#include "qualifiers/list_sel.h"

namespace adaptors {

/// What every qualifier dialog takes and gives beside its own: order, list file.
std::vector<Input> ListSelInputs();
void SetUpListSel(const Run& run, CKvGuiListSel& dialog);
void TellListSel(Run& run, const CKvGuiListSel& dialog);

/// The inputs of two lists, one behind the other.
std::vector<Input> Joined(std::vector<Input> first, const std::vector<Input>& second);

}  // namespace adaptors
