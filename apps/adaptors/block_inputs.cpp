#include "adaptors/block_inputs.h"

namespace adaptors {

namespace {

using kv::blocks::NeighborRelation;
using kv::blocks::Place;
using kv::blocks::Selection;

Place PlaceFrom(const Json& json, const std::string& input) {
    const bool fits =
        json.is_array() && json.size() == 2 && json[0].is_string() && json[1].is_string();
    if (!fits) throw BadInput("A block is [area, block], and not " + json.dump(), input);
    return {json[0], json[1]};
}

Json PlaceAsJson(const Place& place) {
    return Json::array({place.first, place.second});
}

Selection SelectionFrom(const Run& run) {
    Selection selection;
    for (const Json& each : run.Get("selection", Json::array())) {
        const Place place = PlaceFrom(each, "selection");
        selection.first.push_back(place.first);
        selection.second.push_back(place.second);
    }
    return selection;
}

Json SelectionAsJson(const Selection& selection) {
    Json list = Json::array();
    for (std::size_t i = 0; i < selection.first.size(); ++i)
        list.push_back(PlaceAsJson({selection.first[i], selection.second[i]}));
    return list;
}

NeighborRelation RelationFrom(const Run& run) {
    NeighborRelation relation;
    for (const Json& each : run.Get("neighbors", Json::array())) {
        if (!each.is_object() || !each.contains("block") || !each.contains("touches")) {
            throw BadInput(
                "\"neighbors\" takes objects with block and touches, and not " + each.dump(),
                "neighbors");
        }
        std::vector<Place>& touches = relation[PlaceFrom(each.at("block"), "neighbors")];
        for (const Json& touching : each.at("touches"))
            touches.push_back(PlaceFrom(touching, "neighbors"));
    }
    return relation;
}

Json RelationAsJson(const NeighborRelation& relation) {
    Json list = Json::array();
    for (const auto& [place, neighbors] : relation) {
        Json touches = Json::array();
        for (const Place& each : neighbors)
            touches.push_back(PlaceAsJson(each));
        list.push_back({{"block", PlaceAsJson(place)}, {"touches", touches}});
    }
    return list;
}

}  // namespace

std::vector<Input> BlockInputs() {
    return {
        {"field", "text", "column that areas are shown by: areaname, stcode or area_abbr",
         "areaname"},
        {"table", "text", "table that areas are searched in", "NORVADON.gulf_mexico_connam2"},
        {"owner", "text", "owner of the dataset's tables; that of the dataset by default", nullptr},
        {"selection", "list of [area, block]", "what is selected; a whole area has an empty block",
         nullptr},
        {"neighbors", "list of {block, touches}", "neighbors that were found earlier", nullptr},
        {"listFile", "text", "path of the list file", nullptr},
        {"useListFile", "flag", "whether the list file is in use", nullptr},
    };
}

void RunBlockDialog(Run& run, CKvGuiBlkExtDlg& dialog) {
    Selection selection = SelectionFrom(run);
    dialog.SetType(selection, run.Get<std::string>("owner", ""));
    dialog.SetFieldString(run.Get<std::string>("field", ""));
    dialog.SetTableName(run.Get<std::string>("table", ""));
    dialog.SetListFileName(run.Get<std::string>("listFile", ""));
    dialog.SetListFileFlag(run.Get("useListFile", false));
    dialog.GetNeighborRel() = RelationFrom(run);
    run.result = dialog.DoModal();
    run.outcome["selection"] = SelectionAsJson(selection);
    run.outcome["field"] = dialog.GetFieldString();
    run.outcome["table"] = dialog.GetTableName();
    run.outcome["neighbors"] = RelationAsJson(dialog.GetNeighborRel());
    run.outcome["listFile"] = dialog.GetListFileName();
    run.outcome["useListFile"] = dialog.GetListFileFlag();
}

}  // namespace adaptors
