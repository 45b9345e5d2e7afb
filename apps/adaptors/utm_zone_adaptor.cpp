#include "adaptors/adaptor.h"
#include "mapbuild/proj_sel_ids.h"
#include "mapbuild/utm_zone_dlg.h"

namespace adaptors {

namespace {

void RunUtmZone(Run& run) {
    CKvGuiUTMZoneDlg dialog(nullptr);
    dialog.SetZone(run.Get("zone", 0));
    dialog.SetRectSpec(run.Get("rectSpec", false));
    dialog.SetRectLatLon(run.Get("rectLat", 0), run.Get("rectLon", 0));
    run.result = dialog.DoModal();
    run.outcome = {{"zone", dialog.GetZone()},
                   {"rectSpec", dialog.GetRectSpec()},
                   {"rectLat", dialog.GetRectLat()},
                   {"rectLon", dialog.GetRectLon()}};
}

const Register kRegistered({
    "CKvGuiUTMZoneDlg",
    "Map building",
    "UTM Zone Code",
    "UTM zone and spheroid",
    kv::utm_zone::kTemplate,
    {
        {"zone", "number", "the zone to begin with, 99 for Straight Mercator", 15},
        {"rectSpec", "flag", "whether the rectifying point is the user's", nullptr},
        {"rectLat", "number", "its latitude, whole degrees", nullptr},
        {"rectLon", "number", "its longitude, whole degrees", nullptr},
    },
    "zone, rectSpec (whether the rectifying point is the user's, and not the center of the map), "
    "rectLat, rectLon (whole degrees)",
    RunUtmZone,
});

}  // namespace

}  // namespace adaptors
