#pragma once

#include <span>

#include "window/controls/combo_box.h"

/// Combo boxes of scales. A row holds its number beside its text, since a text of six digits does
/// not tell all of a larger one.
namespace kv::print {

void FillScales(CComboBox& box, std::span<const int> scales);

/// Makes the row current whose whole text is the number; where there is none, writes the number
/// into the edit.
void ShowScale(CComboBox& box, int scale);

/// The number of the current row, or of the row whose text stands in the edit; of any other text
/// what it begins with, and 0 where that is no number.
int ScaleIn(const CComboBox& box);

/// Puts a row for the scale in, with rows in the order of their numbers and in texts of six digits.
/// A row of the same text stands for the scale from then on. Leaves no current row. False, and
/// nothing changes, for a negative scale.
bool AddScale(CComboBox& box, double scale);

/// Makes the row current that `AddScale` has put in.
void SelectAddedScale(CComboBox& box, double scale);

}  // namespace kv::print
