#include "kvload/mapping.h"

#include <algorithm>
#include <initializer_list>
#include <nlohmann/json.hpp>
#include <stdexcept>

#include "base/text.h"
#include "kvload/cell_value.h"

namespace kvload {
namespace {

using nlohmann::json;

template <typename Names>
std::string Listed(const Names& names) {
    std::string list;
    for (const auto& name : names)
        list.append(list.empty() ? "" : ", ").append(name);
    return list;
}

const json& ObjectAt(const json& value, const std::string& where) {
    if (!value.is_object()) throw BadMapping(where + " is no object in braces");
    return value;
}

void Know(const json& object, const std::string& where, std::initializer_list<const char*> words) {
    for (const auto& [word, value] : object.items()) {
        if (std::ranges::find(words, word) == words.end())
            throw BadMapping(where + " knows no \"" + word + "\"; it takes " + Listed(words));
    }
}

std::string TextAt(const json& object, const char* word, const std::string& where) {
    const auto found = object.find(word);
    if (found == object.end()) return {};
    if (!found->is_string()) throw BadMapping(where + ": \"" + word + "\" is no text in quotes");
    return found->get<std::string>();
}

LabelRule ReadSplit(const json& rule, const std::string& where) {
    const std::string pattern = TextAt(rule, "split", where);
    try {
        return LabelRule(pattern);
    } catch (const std::invalid_argument&) {
        throw BadMapping(where +
                         ": \"split\" is a pattern of one # for the number, and of @ for the " +
                         "extension and * for anything else, as GC#@");
    }
}

void ReadCodes(const json& codes, const std::string& where, FieldRule& rule) {
    for (const auto& [text, code] : ObjectAt(codes, where + ", \"codes\"").items()) {
        if (!code.is_string())
            throw BadMapping(where + ": the code of \"" + text + "\" is no text");
        rule.codes[kv::ToUpper(kv::TrimSpace(text))] = code.get<std::string>();
    }
    if (rule.codes.empty()) throw BadMapping(where + ": \"codes\" is empty");
}

void CheckRule(const FieldRule& rule, const std::string& where) {
    static constexpr std::initializer_list<const char*> kAreaColumns = {"areaname", "stcode",
                                                                        "area_abbr"};
    if (!rule.by.empty() &&
        (!NamesArea(rule.column) || std::ranges::find(kAreaColumns, rule.by) == kAreaColumns.end()))
        throw BadMapping(where + ": \"by\" is for area codes, and is one of " +
                         Listed(kAreaColumns));
    if (!rule.format.empty() && !IsDateFormat(rule.format))
        throw BadMapping(where + ": \"" + rule.format +
                         "\" is no form of a date, as MM/DD/YYYY or DD-MON-YY");
    if (rule.field.empty() && rule.value.empty())
        throw BadMapping(where + " needs a \"field\" or a \"value\"");
}

FieldRule ReadRule(const std::string& column, const json& value) {
    const std::string where = "\"" + column + "\"";
    FieldRule rule;
    rule.column = column;
    if (value.is_string()) {
        rule.field = value.get<std::string>();
    } else {
        Know(ObjectAt(value, where), where, {"field", "value", "codes", "format", "by", "split"});
        rule.field = TextAt(value, "field", where);
        rule.value = TextAt(value, "value", where);
        rule.format = TextAt(value, "format", where);
        rule.by = TextAt(value, "by", where);
        if (value.contains("codes")) ReadCodes(value["codes"], where, rule);
        if (value.contains("split")) {
            if (column != kLabel && column != kToLabel)
                throw BadMapping(where + ": only a label is split");
            rule.label = ReadSplit(value, where);
        }
    }
    CheckRule(rule, where);
    return rule;
}

void ReadFields(const json& fields, Mapping& mapping) {
    const std::vector<std::string> names = FillableNames(*mapping.target);
    for (const auto& [column, value] : ObjectAt(fields, "\"fields\"").items()) {
        if (std::ranges::find(names, column) == names.end())
            throw BadMapping(std::string("\"") + mapping.target->name + "\" has no \"" + column +
                             "\"; it has " + Listed(names));
        mapping.fields.push_back(ReadRule(column, value));
    }
    const auto fills = [&](std::string_view column) {
        return std::ranges::find(mapping.fields, column, &FieldRule::column) !=
               mapping.fields.end();
    };
    for (const auto& [label, number] : {std::pair{kLabel, "lbnum"}, {kToLabel, "to_lbnum"}})
        if (fills(label) && fills(number))
            throw BadMapping(std::string("\"") + label + "\" and \"" + number + "\" tell the same");
    for (const char* column : mapping.target->required) {
        if (fills(column) || (std::string_view(column) == "lbnum" && fills(kLabel))) continue;
        const bool isNumber = std::string_view(column) == "lbnum";
        throw BadMapping(std::string("\"") + mapping.target->name + "\" cannot do without \"" +
                         column + (isNumber ? "\" or \"label\"" : "\"") + " among its fields");
    }
}

PlaceRule ReadPlace(const json& mapping, const char* word) {
    const auto found = mapping.find(word);
    if (found == mapping.end()) return {};
    const std::string where = std::string("\"") + word + "\"";
    Know(ObjectAt(*found, where), where, {"x", "y", "wkt", "crs"});
    PlaceRule rule{TextAt(*found, "x", where), TextAt(*found, "y", where),
                   TextAt(*found, "wkt", where), TextAt(*found, "crs", where)};
    if (rule.x.empty() != rule.y.empty() || rule.x.empty() == rule.wkt.empty())
        throw BadMapping(where + " needs the fields \"x\" and \"y\", or \"wkt\"");
    return rule;
}

}  // namespace

Mapping ReadMapping(const std::string& text) {
    json whole;
    try {
        whole = json::parse(text);
    } catch (const json::parse_error& error) {
        throw BadMapping(std::string("It is no JSON: ") + error.what());
    }
    const std::string where = "The mapping";
    Know(ObjectAt(whole, where), where, {"table", "layer", "crs", "fields", "place", "bottom"});
    Mapping mapping;
    const std::string name = TextAt(whole, "table", where);
    mapping.target = TargetNamed(name);
    if (!mapping.target) {
        std::vector<std::string> names;
        for (const Target& target : Targets())
            names.emplace_back(target.name);
        throw BadMapping("\"table\": \"" + name + "\" is none of " + Listed(names));
    }
    mapping.layer = TextAt(whole, "layer", where);
    mapping.crs = TextAt(whole, "crs", where);
    mapping.place = ReadPlace(whole, "place");
    mapping.bottom = ReadPlace(whole, "bottom");
    if (!mapping.bottom.wkt.empty() ||
        (!mapping.bottom.x.empty() && ColumnIndex(TableOf(*mapping.target), "bot_lat") < 0))
        throw BadMapping("\"bottom\" is for wells, and names the fields \"x\" and \"y\"");
    if (!mapping.place.x.empty() && mapping.target->places != Places::kPoint)
        throw BadMapping("\"place\": X and Y are for what is a point; this needs \"wkt\"");
    ReadFields(whole.contains("fields") ? whole["fields"] : json::object(), mapping);
    return mapping;
}

}  // namespace kvload
