#pragma once

#include <string>
#include <vector>

#include "window/templates/dialog_template.h"

namespace test {

/// What is wrong with the layout of a dialog, a sentence for each fault; empty when it is sound.
///
/// Looked at are the rows that can be seen: the visible ones, and those that take turns with them
/// (`kv::Alternate`). The faults are
/// - a dialog larger than a screen of 960 by 540 logical pixels;
/// - a control outside its dialog;
/// - two controls that overlap, but for a group box around its members, whose caption they must not
///   cover, and rows that take turns in one place;
/// - a text that does not fit its control, or a caption its dialog;
/// - a mnemonic that two controls have, but for the one pair of texts that are given so;
/// - a tab order that jumps about. It has to go in reading order: rightward in a row, and downward
///   from row to row; columns may be read one after the other. A group box is read as one, from
///   within as from without. OK and Cancel may come last wherever they stand.
std::vector<std::string> CheckTemplate(const kv::DialogTemplate& dialogTemplate);

}  // namespace test
