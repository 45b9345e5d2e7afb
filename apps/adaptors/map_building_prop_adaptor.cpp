#include "adaptors/map_inputs.h"
#include "mapbuild/builders/map_building_prop.h"
#include "mapbuild/builders/quick_off_bld_ids.h"

namespace adaptors {

namespace {

void TakePickedAs(const Run& run, CKvMapBounds& map) {
    const auto how = run.Get<std::string>("pickedAs", "block");
    if (how != "block" && how != "blocks" && how != "all" && how != "custom" && how != "none") {
        throw BadInput(
            "The input \"pickedAs\" takes \"block\", \"blocks\", \"all\", \"custom\" or \"none\", "
            "and not \"" +
                how + "\"",
            "pickedAs");
    }
    map.SetPickOneFlag(how == "block");
    map.SetPickMultFlag(how == "blocks");
    map.SetPickWinFlag(how == "all");
    map.SetCustomMapFlag(how == "custom");
}

void RunMapBuildingProp(Run& run) {
    CKvGuiMapBuildingProp dialog(nullptr);
    TakePickInputs(run, dialog);
    TakePickedAs(run, dialog.GetBounds());
    dialog.SetMapWidth(run.Get<std::string>("width", ""));
    dialog.SetMapHeight(run.Get<std::string>("height", ""));
    dialog.SetMapPercent(run.Get<std::string>("percent", ""));
    dialog.SetMapSnapRange(run.Get("snap", 0));
    RunMapDialog(run, dialog);
}

std::vector<Input> Inputs() {
    std::vector<Input> inputs = PickInputs();
    for (Input& input : inputs) {
        if (input.name == "projection") input.sample = 115;
        if (input.name == "mapName") input.sample = "GC500";
        if (input.name == "map") {
            input.sample = {{"x", Json::array({2173200, 2220500})},
                            {"y", Json::array({9968400, 10015800})},
                            {"lat", Json::array({27.46, 27.59})},
                            {"lon", Json::array({-91.36, -91.21})},
                            {"feet", true}};
        }
    }
    inputs.push_back(
        {"pickedAs", "text",
         "how the map was made: \"block\", \"blocks\", \"all\", \"custom\" or \"none\"", "block"});
    inputs.push_back({"width", "text", "width in blocks that the map was made with", "3"});
    inputs.push_back({"height", "text", "the same of its height", "3"});
    inputs.push_back({"percent", "text", "percentage that the map was made with", "10"});
    inputs.push_back({"snap", "number", "grid of its bounds; 0 for none", {}});
    return inputs;
}

const Register kRegistered({
    "CKvGuiMapBuildingProp",
    "Map building",
    "Map Properties",
    "Properties of a map",
    kv::quick_bld::kTemplate,
    Inputs(),
    std::string(kQuickOutcome) + kMapOutcome,
    RunMapBuildingProp,
});

}  // namespace

}  // namespace adaptors
