#pragma once

#include <string>
#include <vector>

#include "base/export.h"
#include "window/node.h"

namespace kv {

/// What a person sees of a list box, a combo box or a list view, the cells of whose rows are put
/// together with tabs; other controls have no rows.
KVGUICTL_API bool HasRows(const Node& control);
KVGUICTL_API std::vector<std::string> RowTexts(Node& control);
/// One of them; "" for a row that is not there.
KVGUICTL_API std::string RowTextOf(const Node& control, int row);
/// Selected rows of a list; the current row of a combo box.
KVGUICTL_API std::vector<int> SelectedRows(Node& control);

}  // namespace kv
