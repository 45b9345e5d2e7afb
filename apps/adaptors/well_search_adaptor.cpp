#include <string>
#include <vector>

#include "adaptors/adaptor.h"
#include "records/well_search.h"
#include "records/well_search_ids.h"

namespace adaptors {

namespace {

struct Corner {
    double lon = 0;
    double lat = 0;
};

Corner CornerOf(const Run& run, const std::string& name, Corner otherwise) {
    const auto corner = run.Get<std::vector<double>>(name, {otherwise.lon, otherwise.lat});
    if (corner.size() != 2)
        throw BadInput("The input \"" + name + "\" takes a longitude and a latitude, and not " +
                           run.Inputs().at(name).dump(),
                       name);
    return {corner[0], corner[1]};
}

void RunWellSearch(Run& run) {
    CKvGuiWellSearch dialog;
    const Corner min = CornerOf(run, "minimum", {-180, -90});
    const Corner max = CornerOf(run, "maximum", {180, 90});
    dialog.SetMinLatLon(min.lon, min.lat);
    dialog.SetMaxLatLon(max.lon, max.lat);
    dialog.SearchByAPI(run.Get("byApi", true));
    dialog.SetMode(run.Get("areaMode", 0));
    dialog.SetAreaCode(run.Get<std::string>("areacode", ""));
    dialog.SetBlockNumber(run.Get<std::string>("block", ""));
    dialog.SetExtension(run.Get<std::string>("extension", ""));
    dialog.SetSearchString(run.Get<std::string>("searchString", ""));
    for (const std::string& number : run.Get<std::vector<std::string>>("apiNumbers", {}))
        dialog.AddApiNum(number);
    run.result = dialog.DoModal();
    run.outcome = {{"searchString", dialog.GetSearchString()},
                   {"byApi", dialog.IsSearchByAPI()},
                   {"areaMode", dialog.GetMode()},
                   {"confirmed", dialog.GetTermination()}};
}

const Register kRegistered({
    "CKvGuiWellSearch",
    "Record tools",
    "Wells Search",
    "Which well to look for",
    kv::well_search::kTemplate,
    {
        {"minimum", "corner: longitude and latitude in degrees",
         "south-west corner of the map; without it the whole earth", Json::array({-92.0, 27.0})},
        {"maximum", "corner: longitude and latitude in degrees", "its north-east corner",
         Json::array({-90.0, 28.5})},
        {"byApi", "flag", "whether to begin with the search by API number; true by default", true},
        {"apiNumbers", "list of texts", "API numbers to offer",
         Json::array({"608110000100", "608110000200"})},
        {"areaMode", "number", "how areas are named: 0 MMS code, 1 area name, 2 area code",
         nullptr},
        {"areacode", "text", "area code to select at the start", nullptr},
        {"block", "text", "block to show at the start", nullptr},
        {"extension", "text", "its extension", nullptr},
        {"searchString", "text", "what is the outcome after Cancel", nullptr},
    },
    "searchString (an API number, or area#block#well number with _ for what was left empty), byApi "
    "(what the well was asked for by), areaMode, confirmed (whether OK was pressed)",
    RunWellSearch,
});

}  // namespace

}  // namespace adaptors
