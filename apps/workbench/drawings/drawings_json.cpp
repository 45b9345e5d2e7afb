#include "workbench/drawings/drawings_json.h"

#include <algorithm>
#include <array>
#include <initializer_list>
#include <nlohmann/json.hpp>

#include "base/text.h"

namespace workbench {

namespace {

using Json = nlohmann::json;

constexpr double kMostLatitude = 90;
constexpr double kMostLongitude = 180;
constexpr double kMostHeight = 1;
constexpr double kMostAngle = 360;

constexpr std::array kLayers{"LEASES", "WELLS", "PIPELINES"};

/// A value of the file, and where it stands there.
class Value {
public:
    Value(const Json& json, std::string where) : json_(json), where_(std::move(where)) {}

    [[noreturn]] void Fail(const std::string& words) const {
        throw BadDrawings(where_ + ": " + words);
    }

    /// Of an object that has these members and no others.
    void HasOnly(std::initializer_list<const char*> names) const {
        if (!json_.is_object()) Fail("an object is expected");
        for (const auto& [name, value] : json_.items()) {
            if (std::ranges::find(names, std::string_view(name)) == names.end())
                Fail("\"" + name + "\" is not known");
        }
        for (const char* name : names) {
            if (!json_.contains(name)) Fail("\"" + std::string(name) + "\" is missing");
        }
    }
    Value operator[](const char* name) const { return {json_.at(name), where_ + "." + name}; }

    std::size_t Count() const {
        if (!json_.is_array()) Fail("a list is expected");
        return json_.size();
    }
    Value operator[](std::size_t number) const {
        return {json_.at(number), where_ + "[" + std::to_string(number) + "]"};
    }

    double Number(double least, double most) const {
        if (!json_.is_number()) Fail("a number is expected");
        const double number = json_.get<double>();
        if (!(number >= least && number <= most)) {
            Fail(kv::FormatText("%g is not between %g and %g", number, least, most));
        }
        return number;
    }
    int Index(int count) const {
        if (!json_.is_number_integer()) Fail("a whole number is expected");
        return static_cast<int>(Number(0, count - 1));
    }
    bool Flag() const {
        if (!json_.is_boolean()) Fail("true or false is expected");
        return json_.get<bool>();
    }
    std::string Text() const {
        if (!json_.is_string()) Fail("a text is expected");
        return json_.get<std::string>();
    }
    std::string TextToSee() const {
        const std::string text = Text();
        if (kv::TrimSpace(text).empty()) Fail("the text is blank");
        return text;
    }
    template <typename Word, std::size_t Count>
    Word WordOf(const std::array<const char*, Count>& words) const {
        const std::string text = Text();
        const auto at = std::ranges::find(words, text);
        if (at == words.end()) Fail("\"" + text + "\" is not known");
        return static_cast<Word>(at - words.begin());
    }
    Place At() const {
        if (Count() != 2) Fail("longitude and latitude are expected");
        return {(*this)[1].Number(-kMostLatitude, kMostLatitude),
                (*this)[std::size_t{0}].Number(-kMostLongitude, kMostLongitude)};
    }

private:
    const Json& json_;
    std::string where_;
};

Json PairOf(const Place& place) {
    return {place.lon, place.lat};
}

Json InJson(const DrawnLine& line) {
    Json points = Json::array();
    for (const Place& point : line.points)
        points.push_back(PairOf(point));
    return {{"points", points},    {"closed", line.closed},       {"filled", line.filled},
            {"color", line.color}, {"fillColor", line.fillColor}, {"width", line.width},
            {"type", line.type}};
}

Json InJson(const DrawnText& text) {
    return {{"at", PairOf(text.at)},
            {"text", text.text},
            {"height", text.height},
            {"angle", text.angle},
            {"color", text.color},
            {"weight", text.weight},
            {"vertical", WordFor(kTextRows, text.row)},
            {"horizontal", WordFor(kTextParts, text.part)}};
}

DrawnLine ReadLine(const Value& value) {
    value.HasOnly({"points", "closed", "filled", "color", "fillColor", "width", "type"});
    DrawnLine line;
    const Value points = value["points"];
    for (std::size_t i = 0; i < points.Count(); ++i)
        line.points.push_back(points[i].At());
    line.closed = value["closed"].Flag();
    line.filled = value["filled"].Flag();
    line.color = value["color"].Index(kColors);
    line.fillColor = value["fillColor"].Index(kColors);
    line.width = value["width"].Index(kLineWidths);
    line.type = value["type"].Index(kLineTypes);
    if (line.points.size() < 2) points.Fail("a line has two points at least");
    if (line.filled && !line.closed) value["filled"].Fail("only a closed line is filled");
    return line;
}

DrawnText ReadText(const Value& value) {
    value.HasOnly({"at", "text", "height", "angle", "color", "weight", "vertical", "horizontal"});
    DrawnText text;
    text.at = value["at"].At();
    text.text = value["text"].TextToSee();
    text.height = value["height"].Number(0, kMostHeight);
    if (text.height == 0) value["height"].Fail("a text has a height above 0");
    text.angle = value["angle"].Number(-kMostAngle, kMostAngle);
    text.color = value["color"].Index(kColors);
    text.weight = value["weight"].Index(kLineWidths);
    text.row = value["vertical"].WordOf<TextRow>(kTextRows);
    text.part = value["horizontal"].WordOf<TextPart>(kTextParts);
    return text;
}

void ReadFill(const Value& value, Drawings& drawings) {
    value.HasOnly({"area", "block", "color"});
    const BlockKey key{value["area"].Text(), value["block"].Text()};
    if (!drawings.fills.emplace(key, value["color"].Index(kColors)).second) {
        value.Fail("the block " + key.block + " of the area " + key.area + " is there twice");
    }
}

void ReadLabel(const Value& value, Drawings& drawings) {
    value.HasOnly({"layer", "area", "label", "text"});
    const LabelKey key{value["layer"].WordOf<LabelLayer>(kLayers), value["area"].Text(),
                       value["label"].Text()};
    if (!drawings.labels.emplace(key, value["text"].Text()).second) {
        value.Fail("the label \"" + key.label + "\" is there twice");
    }
}

}  // namespace

Json ToJson(const Drawings& drawings) {
    Json json = {{"lines", Json::array()},
                 {"texts", Json::array()},
                 {"blocks", Json::array()},
                 {"labels", Json::array()}};
    for (const DrawnLine& line : drawings.lines)
        json["lines"].push_back(InJson(line));
    for (const DrawnText& text : drawings.texts)
        json["texts"].push_back(InJson(text));
    for (const auto& [key, color] : drawings.fills)
        json["blocks"].push_back({{"area", key.area}, {"block", key.block}, {"color", color}});
    for (const auto& [key, text] : drawings.labels) {
        json["labels"].push_back({{"layer", WordFor(kLayers, key.layer)},
                                  {"area", key.area},
                                  {"label", key.label},
                                  {"text", text}});
    }
    return json;
}

Drawings DrawingsFromJson(const Json& json) {
    const Value value(json, "drawings");
    value.HasOnly({"lines", "texts", "blocks", "labels"});
    Drawings drawings;
    const auto forEach = [&](const char* name, auto&& read) {
        const Value list = value[name];
        for (std::size_t i = 0; i < list.Count(); ++i)
            read(list[i]);
    };
    forEach("lines", [&](const Value& each) { drawings.lines.push_back(ReadLine(each)); });
    forEach("texts", [&](const Value& each) { drawings.texts.push_back(ReadText(each)); });
    forEach("blocks", [&](const Value& each) { ReadFill(each, drawings); });
    forEach("labels", [&](const Value& each) { ReadLabel(each, drawings); });
    return drawings;
}

}  // namespace workbench
