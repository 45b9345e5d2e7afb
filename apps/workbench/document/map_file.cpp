#include "workbench/document/map_file.h"

#include <cmath>
#include <limits>
#include <nlohmann/json.hpp>

#include "base/file.h"
#include "frame/kvcom/util_lldrv.h"
#include "workbench/drawings/drawings_json.h"

namespace workbench {

namespace {

using nlohmann::json;

constexpr const char* kFormat = "KVGuiCtl map";
constexpr int kVersion = 1;
constexpr double kNoAngle = 1000.0;
constexpr unsigned int kMostBytes = std::numeric_limits<unsigned int>::max();

/// A minimum and a maximum of a record. `none` in a place says that there is no value, which a file
/// tells by null.
struct Range {
    const char* name;
    double (CKvMapBounds::*least)() const;
    double (CKvMapBounds::*most)() const;
    void (CKvMapBounds::*setLeast)(const double&);
    void (CKvMapBounds::*setMost)(const double&);
    double none;
};
constexpr double kAlways = std::numeric_limits<double>::infinity();
constexpr Range kRanges[] = {
    {"x", &CKvMapBounds::GetXMin, &CKvMapBounds::GetXMax, &CKvMapBounds::SetXMin,
     &CKvMapBounds::SetXMax, CKvUtilLLdrv::kNoXY},
    {"y", &CKvMapBounds::GetYMin, &CKvMapBounds::GetYMax, &CKvMapBounds::SetYMin,
     &CKvMapBounds::SetYMax, CKvUtilLLdrv::kNoXY},
    {"z", &CKvMapBounds::GetZMin, &CKvMapBounds::GetZMax, &CKvMapBounds::SetZMin,
     &CKvMapBounds::SetZMax, kAlways},
    {"latitude", &CKvMapBounds::GetLatMin, &CKvMapBounds::GetLatMax, &CKvMapBounds::SetLatMin,
     &CKvMapBounds::SetLatMax, kNoAngle},
    {"longitude", &CKvMapBounds::GetLonMin, &CKvMapBounds::GetLonMax, &CKvMapBounds::SetLonMin,
     &CKvMapBounds::SetLonMax, kNoAngle},
    {"depth", &CKvMapBounds::GetDepthMin, &CKvMapBounds::GetDepthMax, &CKvMapBounds::SetDepthMin,
     &CKvMapBounds::SetDepthMax, kAlways},
};

struct Flag {
    const char* name;
    bool (CKvMapBounds::*get)() const;
    void (CKvMapBounds::*set)(bool);
};
constexpr Flag kFlags[] = {
    {"feet", &CKvMapBounds::GetFeet, &CKvMapBounds::SetFeet},
    {"boundedByXY", &CKvMapBounds::GetXYBounded, &CKvMapBounds::SetXYBounded},
    {"ofOneBlock", &CKvMapBounds::GetPickOneFlag, &CKvMapBounds::SetPickOneFlag},
    {"ofSeveralBlocks", &CKvMapBounds::GetPickMultFlag, &CKvMapBounds::SetPickMultFlag},
    {"ofAWindow", &CKvMapBounds::GetPickWinFlag, &CKvMapBounds::SetPickWinFlag},
    {"custom", &CKvMapBounds::GetCustomMapFlag, &CKvMapBounds::SetCustomMapFlag},
    {"rectifyingPointIsGiven", &CKvMapBounds::GetRectSpec, &CKvMapBounds::SetRectSpec},
};

struct Number {
    const char* name;
    int (CKvMapBounds::*get)() const;
    void (*set)(CKvMapBounds&, int);
};
constexpr Number kNumbers[] = {
    {"projection", &CKvMapBounds::GetPrimeProj,
     [](CKvMapBounds& bounds, int value) { bounds.SetPrimeProj(value); }},
    {"scale", &CKvMapBounds::GetScale,
     [](CKvMapBounds& bounds, int value) { bounds.SetScale(value); }},
    {"zone", &CKvMapBounds::GetProjZoneCode,
     [](CKvMapBounds& bounds, int value) { bounds.SetProjZoneCode(value); }},
    {"snap", &CKvMapBounds::GetSnapBoundsRange,
     [](CKvMapBounds& bounds, int value) { bounds.SetSnapBoundsRange(value); }},
};

struct Words {
    const char* name;
    const std::string& (CKvMapBounds::*get)() const;
    void (CKvMapBounds::*set)(std::string);
};
constexpr Words kSizes[] = {
    {"width", &CKvMapBounds::GetPickMapWidth, &CKvMapBounds::SetPickMapWidth},
    {"height", &CKvMapBounds::GetPickMapHeight, &CKvMapBounds::SetPickMapHeight},
    {"percent", &CKvMapBounds::GetPickMapPercent, &CKvMapBounds::SetPickMapPercent},
};

struct List {
    const char* name;
    const std::vector<std::string>& (CKvMapBounds::*get)() const;
    void (CKvMapBounds::*add)(std::string);
};
constexpr List kLists[] = {
    {"areas", &CKvMapBounds::GetPickArea, &CKvMapBounds::SetPickArea},
    {"blocks", &CKvMapBounds::GetPickBlock, &CKvMapBounds::SetPickBlock},
    {"extensions", &CKvMapBounds::GetPickExt, &CKvMapBounds::SetPickExt},
};

[[noreturn]] void Refuse(const std::string& why) {
    throw MapFileError(why);
}

double AngleOrLength(const json& value) {
    if (!value.is_number() || !std::isfinite(value.get<double>()))
        Refuse("It is broken: a number is missing.");
    return value.get<double>();
}

int Whole(const json& value) {
    const bool fits = value.is_number_integer() &&
                      value.get<double>() >= std::numeric_limits<int>::min() &&
                      value.get<double>() <= std::numeric_limits<int>::max();
    if (!fits) Refuse("It is broken: a whole number is missing.");
    return value.get<int>();
}

json BoundsAsJson(const CKvMapBounds& bounds) {
    json all;
    for (const Range& range : kRanges) {
        const double least = (bounds.*range.least)();
        all[range.name] =
            least == range.none ? json() : json::array({least, (bounds.*range.most)()});
    }
    for (const Flag& flag : kFlags)
        all[flag.name] = (bounds.*flag.get)();
    for (const Number& number : kNumbers)
        all[number.name] = (bounds.*number.get)();
    for (const Words& words : kSizes)
        all[words.name] = (bounds.*words.get)();
    for (const List& list : kLists)
        all[list.name] = (bounds.*list.get)();
    all["onshore"] = bounds.GetTemplateType() == KV_TEMPLATE_ONSHORE;
    all["rectifyingPoint"] = {bounds.GetRectifyingLat(), bounds.GetRectifyingLon()};
    return all;
}

CKvMapBounds BoundsFrom(const json& all) {
    CKvMapBounds bounds;
    for (const Range& range : kRanges) {
        const json& pair = all.at(range.name);
        const bool none = pair.is_null() && range.none != kAlways;
        (bounds.*range.setLeast)(none ? range.none : AngleOrLength(pair.at(0)));
        (bounds.*range.setMost)(none ? range.none : AngleOrLength(pair.at(1)));
    }
    for (const Flag& flag : kFlags)
        (bounds.*flag.set)(all.at(flag.name).get<bool>());
    for (const Number& number : kNumbers)
        number.set(bounds, Whole(all.at(number.name)));
    for (const Words& words : kSizes)
        (bounds.*words.set)(all.at(words.name).get<std::string>());
    for (const List& list : kLists) {
        for (const json& text : all.at(list.name))
            (bounds.*list.add)(text.get<std::string>());
    }
    bounds.SetTemplateType(all.at("onshore").get<bool>() ? KV_TEMPLATE_ONSHORE
                                                         : KV_TEMPLATE_OFFSHORE);
    bounds.SetRectifyingLat(AngleOrLength(all.at("rectifyingPoint").at(0)));
    bounds.SetRectifyingLon(AngleOrLength(all.at("rectifyingPoint").at(1)));
    return bounds;
}

json MapAsJson(const BuiltMap& map) {
    json picks = json::array();
    for (const CKvDbUtil::Pick& pick : map.picks)
        picks.push_back({pick.area, pick.block, pick.ext});
    return {{"name", map.name},
            {"bounds", BoundsAsJson(map.bounds)},
            {"picks", picks},
            {"reportsInMapProjection", map.reportsInMapProjection}};
}

BuiltMap MapFrom(const json& all) {
    BuiltMap map;
    map.name = all.at("name").get<std::string>();
    map.bounds = BoundsFrom(all.at("bounds"));
    for (const json& pick : all.at("picks")) {
        map.picks.push_back({pick.at(0).get<std::string>(), pick.at(1).get<std::string>(),
                             pick.at(2).get<std::string>()});
    }
    map.reportsInMapProjection = all.at("reportsInMapProjection").get<bool>();
    return map;
}

void CheckHead(const json& all, const std::string& dataset) {
    if (!all.is_object() || all.value("format", json()) != kFormat)
        Refuse("It is no map of the workbench.");
    const int version = Whole(all.at("version"));
    if (version > kVersion) {
        Refuse("A newer workbench has written it (version " + std::to_string(version) +
               "; this one reads up to " + std::to_string(kVersion) + ").");
    }
    if (version < 1) Refuse("It is no map of the workbench.");
    const auto own = all.at("dataset").get<std::string>();
    if (own != dataset) {
        Refuse("It belongs to the dataset " + own + ", and the workbench works on " + dataset +
               ".");
    }
}

}  // namespace

std::string TextOf(const MapDocument& document) {
    constexpr int kIndent = 2;
    json all{{"format", kFormat}, {"version", kVersion}, {"dataset", document.dataset}};
    if (document.map) all["map"] = MapAsJson(*document.map);
    if (document.drawings) all["drawings"] = ToJson(*document.drawings);
    return all.dump(kIndent, ' ', false, json::error_handler_t::replace) + "\n";
}

MapDocument DocumentOf(std::string_view text, const std::string& dataset) {
    try {
        const json all = json::parse(text);
        CheckHead(all, dataset);
        MapDocument document{dataset, {}, {}};
        if (all.contains("map")) document.map = MapFrom(all.at("map"));
        if (all.contains("drawings")) {
            document.drawings =
                std::make_shared<const Drawings>(DrawingsFromJson(all.at("drawings")));
        }
        return document;
    } catch (const json::exception& e) {
        Refuse(std::string("It is broken: ") + e.what());
    } catch (const BadDrawings& e) {
        Refuse(std::string("It is broken: ") + e.what());
    }
}

void WriteWhole(const std::string& path, std::string_view text) {
    CFile file;
    const bool written = file.Open(path.c_str(), CFile::modeCreate | CFile::modeWrite) &&
                         text.size() <= kMostBytes &&
                         file.Write(text.data(), static_cast<unsigned int>(text.size())) &&
                         file.Close();
    if (!written) Refuse("It cannot be written.");
}

std::string ReadWhole(const std::string& path) {
    CFile file;
    if (!file.Open(path.c_str(), CFile::modeRead)) Refuse("It cannot be read.");
    if (file.GetLength() > kMostBytes) Refuse("It is too large.");
    std::string text(file.GetLength(), '\0');
    const unsigned int read = file.Read(text.data(), static_cast<unsigned int>(text.size()));
    if (read != text.size()) Refuse("It cannot be read.");
    return text;
}

}  // namespace workbench
