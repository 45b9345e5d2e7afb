#include "adaptors/tool.h"
#include "coordtools/nad_convert_dlg.h"
#include "coordtools/nad_convert_ids.h"

namespace adaptors {

namespace {

using namespace kv::nad_convert;

Json State(const CKvNadConvertDlg& dialog) {
    return {{"latitude27", AngleTexts(dialog, kLatitude27)},
            {"longitude27", AngleTexts(dialog, kLongitude27)},
            {"latitude83", AngleTexts(dialog, kLatitude83)},
            {"longitude83", AngleTexts(dialog, kLongitude83)}};
}

const Register kRegistered(ToolAdaptor<CKvNadConvertDlg>(
    "CKvNadConvertDlg", "Coordinate tools", "Nad27 and Nad83 Converter", "NAD27 to NAD83",
    kTemplate,
    "latitude27, longitude27, latitude83, longitude83 (the texts of the three boxes of each)",
    State));

}  // namespace

}  // namespace adaptors
