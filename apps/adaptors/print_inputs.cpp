#include "adaptors/print_inputs.h"

#include <algorithm>

#include "print/map_scale.h"

namespace adaptors {

namespace {

bool IsListOfFourNumbers(const Json& value) {
    return value.is_array() && value.size() == 4 &&
           std::all_of(value.begin(), value.end(),
                       [](const Json& each) { return each.is_number(); });
}

}  // namespace

std::optional<kv::PrinterSettings> PrinterFrom(const Json& value) {
    if (!value.is_object()) return std::nullopt;
    kv::PrinterSettings printer;
    try {
        for (const auto& [name, each] : value.items()) {
            if (name == "device") {
                each.get_to(printer.device);
            } else if (name == "form") {
                each.get_to(printer.form);
            } else if (name == "paper") {
                each.get_to(printer.paper);
            } else if (name == "landscape") {
                each.get_to(printer.landscape);
            } else if (name == "width") {
                each.get_to(printer.widthTenthMm);
            } else if (name == "height") {
                each.get_to(printer.heightTenthMm);
            } else {
                return std::nullopt;
            }
        }
    } catch (const nlohmann::json::exception&) {
        return std::nullopt;
    }
    return printer;
}

Input BoundsInput() {
    return {"bounds", "list of four numbers", "minimum X, maximum X, minimum Y, maximum Y",
            Json::array({0, 30000, 0, 20000})};
}

Input UnitInput() {
    return {"unit", "text", "\"feet\" or \"meters\" of the bounds; feet if left out", "feet"};
}

CMinMax2Dd_t BoundsOf(const Run& run) {
    const Json bounds = run.Get("bounds", Json::array({0, 0, 0, 0}));
    if (!IsListOfFourNumbers(bounds)) {
        throw BadInput(
            "The input \"bounds\" takes a list of four numbers, and not " + bounds.dump(),
            "bounds");
    }
    return {bounds[0].get<double>(), bounds[1].get<double>(), bounds[2].get<double>(),
            bounds[3].get<double>()};
}

int UnitOf(const Run& run) {
    const auto unit = run.Get<std::string>("unit", "feet");
    if (unit == "feet") return kv::print::kFeet;
    if (unit == "meters") return kv::print::kMeters;
    throw BadInput("The input \"unit\" takes \"feet\" or \"meters\", and not \"" + unit + "\"",
                   "unit");
}

}  // namespace adaptors
