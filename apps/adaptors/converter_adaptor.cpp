#include "adaptors/tool.h"
#include "coordtools/converter_dialog.h"
#include "coordtools/converter_ids.h"

namespace adaptors {

namespace {

using namespace kv::converter;

Json State(const CKvConverterDialog& dialog) {
    return {{"latitude", AngleTexts(dialog, kLatitude)},
            {"longitude", AngleTexts(dialog, kLongitude)},
            {"x", dialog.DlgItemText(kX)},
            {"y", dialog.DlgItemText(kY)},
            {"unit", dialog.DlgItemText(kUnit)},
            {"projection", dialog.DlgItemText(kProjection)},
            {"toX", dialog.DlgItemText(kToX)},
            {"toY", dialog.DlgItemText(kToY)},
            {"toUnit", dialog.DlgItemText(kToUnit)},
            {"toProjection", dialog.DlgItemText(kToProjection)}};
}

const Register kRegistered(ToolAdaptor<CKvConverterDialog>(
    "CKvConverterDialog", "Coordinate tools", "LatLon and XY Converter",
    "Latitude and longitude to X and Y", kTemplate,
    "latitude, longitude (the texts of the three boxes), x, y, unit, projection (of the upper "
    "converter, as shown); toX, toY, toUnit, toProjection (the result of the lower one, as shown)",
    State));

}  // namespace

}  // namespace adaptors
