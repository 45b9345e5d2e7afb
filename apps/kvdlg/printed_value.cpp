#include "kvdlg/printed_value.h"

#include "base/text.h"
#include "kvdlg/failure.h"

namespace kvdlg {

namespace {

using adaptors::Json;

/// Null where there is none.
const Json* Step(const Json& value, const std::string& name) {
    if (value.is_object()) return value.contains(name) ? &value.at(name) : nullptr;
    const bool isPlace = !name.empty() && name.size() < 10 &&
                         name.find_first_not_of("0123456789") == std::string::npos;
    if (!value.is_array() || !isPlace) return nullptr;
    const auto place = static_cast<std::size_t>(std::stoul(name));
    return place < value.size() ? &value[place] : nullptr;
}

const Json* Follow(const Json& value, const std::string& key) {
    const Json* at = &value;
    for (const std::string& name : kv::Split(key, '.')) {
        at = Step(*at, name);
        if (!at) break;
    }
    return at;
}

std::string OnOneLine(const Json& value) {
    return value.dump(-1, ' ', false, Json::error_handler_t::replace);
}

std::string BareItem(const Json& value) {
    return value.is_string() ? value.get<std::string>() : OnOneLine(value);
}

}  // namespace

const Json& ValueOf(const Json& outcome, const std::string& key) {
    const Json& values = outcome.at("outcome");
    if (const Json* value = Follow(values, key)) return *value;
    if (key == "result" || key == "messages") return outcome.at(key);
    throw BadUse("There is no \"" + key + "\" in the outcome, which is " + OnOneLine(values));
}

std::string Bare(const Json& value, char end) {
    if (!value.is_array()) return BareItem(value) + end;
    std::string items;
    for (const Json& each : value)
        items += BareItem(each) + end;
    return items;
}

}  // namespace kvdlg
