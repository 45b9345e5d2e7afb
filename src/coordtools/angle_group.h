#pragma once

#include <memory>

#include "coordtools/angle_ids.h"
#include "mapbuild/dms_ctrl.h"

class CComboBox;
class CDialog;

/// What the coordinate tools have in common: angles in groups of three boxes, and the format that
/// they are shown in.
namespace kv::coordtools {

/// What an angle without a value is held as.
inline constexpr double kNoAngle = CKvGuiDMSCtrl::kNoValue;

/// A control on an angle's boxes in a dialog: empty, in degrees, minutes and seconds.
std::unique_ptr<CKvGuiDMSCtrl> MakeAngle(CDialog& dialog, const AngleIds& ids, bool latitude);

/// Fills a sorted combo box with the formats, and selects the first.
void FillFormats(CComboBox& combo);
/// Whether the combo box stands on decimal degrees.
bool IsDecimal(const CComboBox& combo);

}  // namespace kv::coordtools
