#include "adaptors/readout_inputs.h"

namespace adaptors {

namespace {

Input Projection() {
    return {"projection", "number", "code of the map's projection", 115};
}

Input Unit() {
    return {"unit", "text", "the map's unit, \"feet\" or \"meter\"", "feet"};
}

}  // namespace

std::vector<Input> ReadoutInputs(std::vector<Input> position) {
    std::vector<Input> inputs{Projection(), Unit()};
    for (Input& each : position)
        inputs.push_back(std::move(each));
    return inputs;
}

std::vector<Method> ReadoutMethods(std::vector<Input> position) {
    position.push_back(Projection());
    position.push_back(Unit());
    return {
        {"DialogUpdateText", std::move(position), "feeds it, as the mouse on a map does"},
        {"ResetToDefault",
         {Projection(), Unit()},
         "empties it, and begins with a map in that projection and unit"},
        {"Show", {}, "shows it again once it was closed"},
    };
}

}  // namespace adaptors
