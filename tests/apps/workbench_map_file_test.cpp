// The map document in its file.

#include <gmock/gmock.h>

#include <cmath>
#include <nlohmann/json.hpp>
#include <random>

#include "frame/kvcom/util_lldrv.h"
#include "support/file_faults.h"
#include "support/temp_folder.h"
#include "workbench/document/boundary_text.h"
#include "workbench/document/map_file.h"

namespace workbench {
namespace {

using nlohmann::json;
using testing::HasSubstr;

constexpr const char* kDataset = "NORVADON.GULF_MEXICO";

/// Nothing in it is what a fresh record has.
MapDocument Full() {
    BuiltMap map;
    map.name = "GREEN \"CANYON\" \xc3\xa9";
    map.picks = {{"017", "10", " "}, {"018", "ALL", ""}};
    map.reportsInMapProjection = false;
    CKvMapBounds& bounds = map.bounds;
    bounds.SetXMin(0.1), bounds.SetXMax(1.0 / 3), bounds.SetYMin(-2.5e-300), bounds.SetYMax(1e17);
    bounds.SetZMin(-1), bounds.SetZMax(2), bounds.SetDepthMin(3), bounds.SetDepthMax(4);
    bounds.SetLatMin(28.123456789012345), bounds.SetLatMax(29);
    bounds.SetLonMin(-91.5), bounds.SetLonMax(-90.00000000000001);
    bounds.SetFeet(false), bounds.SetXYBounded(false), bounds.SetScale(24000);
    bounds.SetPrimeProj(-1702), bounds.SetProjZoneCode(99);
    bounds.SetRectSpec(true), bounds.SetRectifyingLat(28.5), bounds.SetRectifyingLon(-91.25);
    bounds.SetSnapBoundsRange(500), bounds.SetTemplateType(KV_TEMPLATE_ONSHORE);
    bounds.SetPickOneFlag(true), bounds.SetPickMultFlag(true), bounds.SetPickWinFlag(true);
    bounds.SetCustomMapFlag(true);
    bounds.SetPickArea("017"), bounds.SetPickBlock("10"), bounds.SetPickExt(" ");
    bounds.SetPickMapWidth("3"), bounds.SetPickMapHeight("5"), bounds.SetPickMapPercent("15");
    return {kDataset, map, nullptr};
}

std::string Refusal(const std::string& text) {
    try {
        DocumentOf(text, kDataset);
    } catch (const MapFileError& error) {
        return error.what();
    }
    return "no refusal";
}

TEST(MapFile, GivesBackWhatWasSaved) {
    EXPECT_EQ(DocumentOf(TextOf(Full()), kDataset), Full());
    const MapDocument empty{kDataset, {}, {}};
    EXPECT_EQ(DocumentOf(TextOf(empty), kDataset), empty);
}

TEST(MapFile, KeepsThatBoundsHaveNoValue) {
    MapDocument document = Full();
    CKvMapBounds& bounds = document.map->bounds;
    constexpr double kNone = CKvUtilLLdrv::kNoXY;
    bounds.SetXMin(kNone), bounds.SetXMax(kNone), bounds.SetYMin(kNone), bounds.SetYMax(kNone);
    EXPECT_TRUE(json::parse(TextOf(document))["map"]["bounds"]["x"].is_null());
    EXPECT_EQ(DocumentOf(TextOf(document), kDataset), document);
}

TEST(MapFile, GivesBackAnyNumbers) {
    std::mt19937_64 random(5);
    std::uniform_real_distribution<double> exponent(-12, 12);
    const auto number = [&] {
        return std::pow(10, exponent(random)) * (random() % 2 == 0 ? 1 : -1);
    };
    for (int i = 0; i < 500; ++i) {
        MapDocument document = Full();
        CKvMapBounds& bounds = document.map->bounds;
        bounds.SetXMin(number()), bounds.SetXMax(number()), bounds.SetLatMin(number());
        bounds.SetRectifyingLon(number()), bounds.SetScale(static_cast<int>(random()));
        ASSERT_EQ(DocumentOf(TextOf(document), kDataset), document);
    }
}

TEST(MapFile, ATextThatIsCutOffAnywhereIsRefused) {
    const std::string text = TextOf(Full());
    for (std::size_t length = 0; length + 2 < text.size(); ++length)
        ASSERT_THAT(Refusal(text.substr(0, length)), HasSubstr("It is broken: ")) << length;
}

TEST(MapFile, EveryPartHasToBeThereAndOfItsKind) {
    const json whole = json::parse(TextOf(Full()));
    const auto without = [&](const json::json_pointer& place, const json& instead) {
        json changed = whole;
        if (instead.is_discarded()) {
            changed.at(place.parent_pointer()).erase(place.back());
        } else {
            changed.at(place) = instead;
        }
        return Refusal(changed.dump());
    };
    const json missing(json::value_t::discarded);
    std::vector<json::json_pointer> places;
    for (const auto& [key, value] : whole["map"].items())
        places.push_back(json::json_pointer("/map") / key);
    for (const auto& [key, value] : whole["map"]["bounds"].items())
        places.push_back(json::json_pointer("/map/bounds") / key);
    EXPECT_GT(places.size(), 25U);
    for (const json::json_pointer& place : places) {
        EXPECT_THAT(without(place, missing), HasSubstr("It is broken: ")) << place.to_string();
        EXPECT_THAT(without(place, json::object({{"a", 1}})), HasSubstr("It is broken: "))
            << place.to_string();
    }
    EXPECT_THAT(without(json::json_pointer("/map/bounds/scale"), 18446744073709551611U),
                HasSubstr("a whole number is missing"));
    EXPECT_THAT(without(json::json_pointer("/map/bounds/scale"), 1.5),
                HasSubstr("a whole number is missing"));
    EXPECT_THAT(without(json::json_pointer("/map/bounds/z"), json()), HasSubstr("It is broken: "));
}

TEST(MapFile, SaysWhatAFileIsThatItCannotRead) {
    EXPECT_EQ(Refusal("[1]"), "It is no map of the workbench.");
    EXPECT_EQ(Refusal(R"({"type": "Feature"})"), "It is no map of the workbench.");
    json changed = json::parse(TextOf(Full()));
    changed["version"] = 2;
    changed["map"] = "of another kind";
    EXPECT_EQ(Refusal(changed.dump()),
              "A newer workbench has written it (version 2; this one reads up to 1).");
    changed["version"] = 0;
    EXPECT_EQ(Refusal(changed.dump()), "It is no map of the workbench.");
    changed["version"] = 1;
    changed["dataset"] = "NORVADON.ALASKA";
    EXPECT_EQ(Refusal(changed.dump()),
              "It belongs to the dataset NORVADON.ALASKA, and the workbench works on "
              "NORVADON.GULF_MEXICO.");
}

TEST(MapFile, IsWrittenWholeOrNotAtAll) {
    test::TempFolder folder;
    const std::string path = folder.Native("map.kvmap");
    WriteWhole(path, "before");
    int calls = 0;
    {
        const test::FileFaults counted(0);
        WriteWhole(path, "before");
        calls = counted.Calls();
    }
    ASSERT_GT(calls, 1);
    for (int failing = 1; failing <= calls; ++failing) {
        {
            const test::FileFaults fault(failing);
            EXPECT_THROW(WriteWhole(path, TextOf(Full())), MapFileError) << failing;
        }
        EXPECT_EQ(ReadWhole(path), "before") << failing;
        EXPECT_EQ(folder.Count(), 1U) << failing;
    }
}

TEST(MapFile, AFileThatCannotBeReadIsRefused) {
    test::TempFolder folder;
    EXPECT_THROW(ReadWhole(folder.Native("none.kvmap")), MapFileError);
    const std::string path = folder.Native("map.kvmap");
    WriteWhole(path, TextOf(Full()));
    int calls = 0;
    {
        const test::FileFaults counted(0);
        ReadWhole(path);
        calls = counted.Calls();
    }
    for (int failing = 1; failing <= calls; ++failing) {
        const test::FileFaults fault(failing);
        EXPECT_THROW(ReadWhole(path), MapFileError) << failing;
    }
}

TEST(Boundary, IsALineForEachCornerAndTheFirstAgain) {
    EXPECT_EQ(BoundaryAsText({{28.5, -91}, {28.5, -90.25}, {29, -90.25}}),
              "28.500000 -91.000000\n28.500000 -90.250000\n29.000000 -90.250000\n"
              "28.500000 -91.000000\n");
}

TEST(Boundary, OfGeoJsonGoesAgainstTheClockHoweverItsCornersCome) {
    const std::vector<Place> corners = {{28, -91}, {28, -90}, {29, -90}, {29, -91}};
    const std::vector<Place> clockwise(corners.rbegin(), corners.rend());
    for (const auto& each : {corners, clockwise}) {
        const json feature = json::parse(BoundaryAsGeoJson("GC \"500\"", each));
        EXPECT_EQ(feature["type"], "Feature");
        EXPECT_EQ(feature["properties"]["name"], "GC \"500\"");
        EXPECT_EQ(feature["geometry"]["type"], "Polygon");
        const auto ring = feature["geometry"]["coordinates"].at(0);
        ASSERT_EQ(ring.size(), 5U);
        EXPECT_EQ(ring.front(), ring.back());
        double twice = 0;
        for (std::size_t i = 1; i < ring.size(); ++i) {
            twice += ring[i - 1][0].get<double>() * ring[i][1].get<double>() -
                     ring[i][0].get<double>() * ring[i - 1][1].get<double>();
        }
        EXPECT_NEAR(twice / 2, 1, 1e-9);
    }
}

}  // namespace
}  // namespace workbench
