#include "mapbuild/proj_sel.h"

#include "adaptors/adaptor.h"
#include "mapbuild/proj_sel_ids.h"

namespace adaptors {

namespace {

void RunProjSel(Run& run) {
    CKvGuiProjSel dialog(run.Get("projection", 0), nullptr);
    dialog.SetRectSpec(run.Get("rectSpec", false));
    dialog.SetRectSpecLat(run.Get("rectLat", 0.0));
    dialog.SetRectSpecLon(run.Get("rectLon", 0.0));
    run.result = dialog.DoModal();
    run.outcome = {{"projection", dialog.m_nProjection},
                   {"description", dialog.m_sDescription.str()},
                   {"utmZone", dialog.GetUTMZone()},
                   {"straightMercator", dialog.GetStraightMercatorFlag()},
                   {"rectSpec", dialog.GetRectSpec()},
                   {"rectLat", dialog.GetRectSpecLat()},
                   {"rectLon", dialog.GetRectSpecLon()}};
}

const Register kRegistered({
    "CKvGuiProjSel",
    "Map building",
    "Projection Selection Dialog",
    "Projection of a map",
    kv::proj_sel::kTemplate,
    {
        {"projection", "number", "the code to begin with, whose UTM zone is offered", 115},
        {"rectSpec", "flag", "whether the rectifying point is the user's", nullptr},
        {"rectLat", "number", "its latitude, decimal degrees", nullptr},
        {"rectLon", "number", "its longitude, decimal degrees", nullptr},
    },
    "projection (the code), description (its text), utmZone (99 for Straight Mercator), "
    "straightMercator (whether that type was chosen), rectSpec, rectLat, rectLon (the rectifying "
    "point, in whole degrees where Straight Mercator was picked)",
    RunProjSel,
});

}  // namespace

}  // namespace adaptors
