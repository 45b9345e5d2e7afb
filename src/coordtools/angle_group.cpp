#include "coordtools/angle_group.h"

#include "window/controls/combo_box.h"
#include "window/dialogs/dialog.h"

namespace kv::coordtools {

namespace {

/// "d/m/s" stands before "degree".
constexpr int kDegreeRow = 1;

}  // namespace

std::unique_ptr<CKvGuiDMSCtrl> MakeAngle(CDialog& dialog, const AngleIds& ids, bool latitude) {
    const auto& [degrees, minutes, seconds] = ids;
    auto angle = std::make_unique<CKvGuiDMSCtrl>();
    angle->Initialize(&dialog, degrees.edit, degrees.spin, minutes.edit, minutes.spin, seconds.edit,
                      seconds.spin, kNoAngle, latitude);
    angle->SetCtrl(degrees.edit, degrees.spin, degrees.label, minutes.edit, minutes.spin,
                   minutes.label, seconds.edit, seconds.spin, seconds.label);
    angle->SetFormat(false);
    return angle;
}

void FillFormats(CComboBox& combo) {
    combo.AddString("degree");
    combo.AddString("d/m/s");
    combo.SetCurSel(0);
}

bool IsDecimal(const CComboBox& combo) {
    return combo.GetCurSel() == kDegreeRow;
}

}  // namespace kv::coordtools
