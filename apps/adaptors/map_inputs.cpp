#include "adaptors/map_inputs.h"

#include <cmath>

#include "frame/kvcom/util_lldrv.h"

namespace adaptors {

namespace {

constexpr double kNoAngle = 1000.0;

Json RangeAsJson(double minimum, double maximum, double noValue) {
    return minimum == noValue ? Json() : Json::array({minimum, maximum});
}

[[noreturn]] void RefuseMap(const Json& value) {
    throw BadInput(
        "The input \"map\" takes " + std::string(kMapBoundsInWords) + ", and not " + value.dump(),
        "map");
}

/// Sets minimum and maximum from a list of two numbers.
void TakeRange(const Json& map, const Json& range, CKvMapBounds& bounds,
               void (CKvMapBounds::*setMin)(const double&),
               void (CKvMapBounds::*setMax)(const double&)) {
    const bool fits =
        range.is_array() && range.size() == 2 && range[0].is_number() && range[1].is_number();
    if (!fits) RefuseMap(map);
    (bounds.*setMin)(range[0].get<double>());
    (bounds.*setMax)(range[1].get<double>());
}

CKvMapBounds MapFrom(const Json& map) {
    if (!map.is_object()) RefuseMap(map);
    CKvMapBounds bounds;
    for (const auto& [name, value] : map.items()) {
        using Map = CKvMapBounds;
        if (name == "x") {
            TakeRange(map, value, bounds, &Map::SetXMin, &Map::SetXMax);
        } else if (name == "y") {
            TakeRange(map, value, bounds, &Map::SetYMin, &Map::SetYMax);
        } else if (name == "lat") {
            TakeRange(map, value, bounds, &Map::SetLatMin, &Map::SetLatMax);
        } else if (name == "lon") {
            TakeRange(map, value, bounds, &Map::SetLonMin, &Map::SetLonMax);
        } else if (name == "feet" && value.is_boolean()) {
            bounds.SetFeet(value.get<bool>());
        } else {
            RefuseMap(map);
        }
    }
    return bounds;
}

const char* PickedAs(const CKvMapBounds& map) {
    if (map.GetPickOneFlag()) return "block";
    if (map.GetPickMultFlag()) return "blocks";
    if (map.GetPickWinFlag()) return "all";
    return map.GetCustomMapFlag() ? "custom" : "none";
}

}  // namespace

Json MapAsJson(const CKvMapBounds& map) {
    constexpr double kNoXY = CKvUtilLLdrv::kNoXY;
    return {{"x", RangeAsJson(map.GetXMin(), map.GetXMax(), kNoXY)},
            {"y", RangeAsJson(map.GetYMin(), map.GetYMax(), kNoXY)},
            {"lat", RangeAsJson(map.GetLatMin(), map.GetLatMax(), kNoAngle)},
            {"lon", RangeAsJson(map.GetLonMin(), map.GetLonMax(), kNoAngle)},
            {"feet", map.GetFeet()},
            {"xyBounded", map.GetXYBounded()},
            {"mapProjection", map.GetPrimeProj()},
            {"mapScale", map.GetScale()},
            {"zone", map.GetProjZoneCode()},
            {"rectifyingPoint",
             Json::array({map.GetRectifyingLat(), map.GetRectifyingLon(), map.GetRectSpec()})},
            {"snap", map.GetSnapBoundsRange()},
            {"width", map.GetPickMapWidth()},
            {"height", map.GetPickMapHeight()},
            {"percent", map.GetPickMapPercent()},
            {"areas", map.GetPickArea()},
            {"blocks", map.GetPickBlock()},
            {"extensions", map.GetPickExt()},
            {"pickedAs", PickedAs(map)}};
}

std::vector<Input> PickInputs() {
    return {
        {"picks", "list of texts",
         "area + \"#\" + block and extension of each, \"ALL\" for all blocks; onshore, identifiers "
         "of counties",
         Json::array({"GC#500"})},
        {"onshore", "flag", "whether counties are picked", false},
        {"dataset",
         "text",
         "dataset that bounds are looked up in; the current one if left out",
         {}},
        {"projection", "number", "the code to begin with, where the picks do not tell it", {}},
        {"xyBounded", "flag", "whether X/Y bounds the map, or latitude/longitude", true},
        {"mapName", "text", "name of the map; made from the picks, or the clock, if left out", {}},
        {"map", "map", std::string("bounds of a map that there is: ") + kMapBoundsInWords, {}},
    };
}

Input ModeInput() {
    return {"mode", "text", "\"block\" for one block, \"blocks\" for several, \"all\" for a window",
            "block"};
}

void TakePickInputs(const Run& run, CKvGuiQuickOffBldDlg& dialog) {
    auto picks = run.Get("picks", std::vector<std::string>());
    const bool onshore = run.Get("onshore", false);
    dialog.SetTemplateType(onshore ? KV_TEMPLATE_ONSHORE : KV_TEMPLATE_OFFSHORE);
    if (onshore) {
        for (const std::string& county : picks)
            dialog.SetBlock(county);
    } else {
        dialog.SetIDs(picks);
    }
    dialog.GetOwnerDataset(run.Get<std::string>("dataset", ""));
    if (const int projection = run.Get("projection", 0); projection != 0)
        dialog.SetProj(projection);
    if (const Json map = run.Get("map", Json()); !map.is_null()) {
        CKvMapBounds bounds = MapFrom(map);
        dialog.SetBounds(bounds);
    }
    dialog.SetXYBounded(run.Get("xyBounded", false));
    dialog.SetMapName(run.Get<std::string>("mapName", ""));
}

void TakeMode(const Run& run, CKvGuiQuickOffBldDlg& dialog) {
    const auto mode = run.Get<std::string>("mode", "block");
    if (mode != "block" && mode != "blocks" && mode != "all") {
        throw BadInput(
            "The input \"mode\" takes \"block\", \"blocks\" or \"all\", and not \"" + mode + "\"",
            "mode");
    }
    dialog.SetMode(mode == "block", mode == "blocks", mode == "all");
}

void RunMapDialog(Run& run, CKvGuiQuickOffBldDlg& dialog) {
    run.result = dialog.DoModal();
    run.outcome = {{"termination", dialog.GetTermination()},
                   {"mapName", dialog.GetMapName()},
                   {"projection", dialog.GetProjection()},
                   {"scale", dialog.GetScale()}};
    run.outcome.update(MapAsJson(dialog.GetBounds()));
}

}  // namespace adaptors
