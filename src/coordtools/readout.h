#pragma once

#include <initializer_list>
#include <memory>
#include <string>

#include "coordtools/angle_ids.h"
#include "mapbuild/dms_ctrl.h"
#include "mapbuild/proj_ctrl.h"

class CDialog;

/// What the readouts have in common: positions of a map, held in the map's own unit, "feet" or
/// "meter", and shown in the user's projection, unit and format.
namespace kv::readout {

/// X and Y of a position in the map's unit; both the driver's mark where it has no answer.
void ToXY(double lat, double lon, double& x, double& y, int projection, const std::string& mapUnit);
/// The reverse; angles without an answer lie out of every range.
void ToAngles(double x, double y, double& lat, double& lon, int projection,
              const std::string& mapUnit);

/// A straight line on the plane of a projection.
struct Line {
    double offsetX;
    double offsetY;
    double length;
};
/// All three have the driver's mark where one of the coordinates has.
Line Between(double startX, double startY, double endX, double endY);

/// Writes a length of the map into a box, in a unit and with two decimals; nothing where the driver
/// had no answer.
void ShowLength(CDialog& dialog, int box, double value, const std::string& unit,
                const std::string& mapUnit);

/// The boxes of a readout's angles, which nobody types into.
std::unique_ptr<CKvGuiDMSCtrl> MakeAngle(CDialog& dialog, const coordtools::AngleIds& ids,
                                         bool latitude);
/// Changes the format of angles that are not in it.
void SetFormat(std::initializer_list<CKvGuiDMSCtrl*> angles, bool decimal, bool& isDecimal);

/// Fills a sorted combo box, and selects its first row.
void Fill(CDialog& dialog, int combo, std::initializer_list<const char*> rows);
/// Fills that of the units, which tells what a foot is.
void FillUnits(CDialog& dialog, int combo, std::initializer_list<const char*> units);
std::unique_ptr<CKvGuiProjCtrl> MakeProjection(CDialog& dialog, int combo, int projection);

}  // namespace kv::readout
