#pragma once

#include <QString>
#include <vector>

#include "window/node.h"

/// What a control is called, to those who do not see where it lies.
namespace kv::qt {

/// Whether what a control of this kind shows is its own text: a button, not a field.
bool ShowsOwnText(const Node& node);

/// The control's own text; of one that has none, that of its labels, or of a list view without a
/// label of its own that of its headings.
QString AccessibleName(const Node& node);

/// The controls by whose texts one without a text of its own goes, in their order: a label or a
/// group box ahead of it, and a unit behind its arrows. Empty for none.
std::vector<const Node*> LabelsOf(const Node& node);

}  // namespace kv::qt
