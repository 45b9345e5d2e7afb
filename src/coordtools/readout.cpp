#include "coordtools/readout.h"

#include <cmath>

#include "base/numbers.h"
#include "coordtools/angle_group.h"
#include "coordtools/length_unit.h"
#include "frame/kvcom/util_lldrv.h"
#include "window/controls/combo_box.h"
#include "window/dialogs/dialog.h"

namespace kv::readout {

namespace {

constexpr double kNoXY = CKvUtilLLdrv::kNoXY;
constexpr int kDecimals = 2;

int DriverUnit(const std::string& mapUnit) {
    return mapUnit == "feet" ? 0 : 1;
}

}  // namespace

void ToXY(double lat, double lon, double& x, double& y, int projection,
          const std::string& mapUnit) {
    CKvUtilLLdrv::LLdrv(lat, lon, &x, &y, projection, DriverUnit(mapUnit), 1, 100.0F, 0.0F, 0.0F);
}

void ToAngles(double x, double y, double& lat, double& lon, int projection,
              const std::string& mapUnit) {
    CKvUtilLLdrv::XYdrv(x, y, &lat, &lon, projection, DriverUnit(mapUnit), 1, 100.0F, 0.0F, 0.0F);
}

Line Between(double startX, double startY, double endX, double endY) {
    for (const double each : {startX, startY, endX, endY}) {
        if (each == kNoXY) return {kNoXY, kNoXY, kNoXY};
    }
    const double x = endX - startX;
    const double y = endY - startY;
    return {x, y, std::sqrt(x * x + y * y)};
}

void ShowLength(CDialog& dialog, int box, double value, const std::string& unit,
                const std::string& mapUnit) {
    double shown = length::FromFeet(value, unit);
    if (mapUnit == "meter") shown = length::ToFeet(shown, mapUnit);
    const std::string text = value == kNoXY ? std::string() : FormatFixed(shown, kDecimals);
    dialog.SetDlgItemText(box, text.c_str());
}

std::unique_ptr<CKvGuiDMSCtrl> MakeAngle(CDialog& dialog, const coordtools::AngleIds& ids,
                                         bool latitude) {
    auto angle = coordtools::MakeAngle(dialog, ids, latitude);
    angle->SetDMSReadOnly(true);
    return angle;
}

void SetFormat(std::initializer_list<CKvGuiDMSCtrl*> angles, bool decimal, bool& isDecimal) {
    if (decimal == isDecimal) return;
    isDecimal = decimal;
    for (CKvGuiDMSCtrl* angle : angles)
        angle->SetFormat(decimal);
}

void Fill(CDialog& dialog, int combo, std::initializer_list<const char*> rows) {
    auto& box = dialog.Control<CComboBox>(combo);
    for (const char* row : rows)
        box.AddString(row);
    box.SetCurSel(0);
}

void FillUnits(CDialog& dialog, int combo, std::initializer_list<const char*> units) {
    Fill(dialog, combo, units);
    if (CWnd* box = dialog.GetDlgItem(combo)) box->m_hWnd->SetToolTip(length::kFootRemark);
}

std::unique_ptr<CKvGuiProjCtrl> MakeProjection(CDialog& dialog, int combo, int projection) {
    auto control = std::make_unique<CKvGuiProjCtrl>();
    control->Initialize(&dialog, combo, projection, 0, false, 0.0, 0.0);
    return control;
}

}  // namespace kv::readout
