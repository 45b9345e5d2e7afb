// What was drawn on a map, as a value and in a file.

#include "workbench/drawings/drawings.h"

#include <gmock/gmock.h>

#include <nlohmann/json.hpp>

#include "workbench/document/map_document.h"
#include "workbench/drawing_tools/replace_labels.h"
#include "workbench/drawing_tools/text_scale.h"
#include "workbench/drawings/drawings_json.h"

namespace workbench {
namespace {

using nlohmann::json;
using testing::ElementsAre;
using testing::Pair;
using testing::SizeIs;

Drawings Some() {
    Drawings drawings;
    drawings.lines = {{{{28.5, -91.25}, {28.75, -91}, {28.5, -90.5}}, true, true, 9, 30, 3, 2},
                      {{{-10, 0}, {10.123456789, 179.5}}, false, false, 0, 255, 9, 5}};
    drawings.texts = {
        {{28.5, -91.25}, "Platform \u00c4", 0.1, -30.5, 12, 4, TextRow::kAbove, TextPart::kRight},
        {{0, 0}, "b", 1, 360, 255, 0, TextRow::kBelow, TextPart::kLeft}};
    drawings.fills = {{{"43113", "391"}, 11}, {{"43113", "12"}, 0}};
    drawings.labels = {{{LabelLayer::kLeases, "43113", "391"}, "OURS"},
                       {{LabelLayer::kWells, "43113", "A-1"}, ""},
                       {{LabelLayer::kPipelines, "42701", "100"}, "MAIN"}};
    return drawings;
}

TEST(DrawingsInAFile, AreReadAsTheyWereWritten) {
    for (const Drawings& drawings : {Some(), Drawings()}) {
        const std::string text = ToJson(drawings).dump();
        EXPECT_EQ(DrawingsFromJson(json::parse(text)), drawings) << text;
    }
}

TEST(DrawingsInAFile, HavePlacesAsLongitudeAndLatitude) {
    const json file = ToJson(Some());
    EXPECT_EQ(file["lines"][0]["points"][0], json({-91.25, 28.5}));
    EXPECT_EQ(file["texts"][0]["at"], json({-91.25, 28.5}));
    EXPECT_EQ(file["texts"][0]["vertical"], "ABOVE");
    EXPECT_EQ(file["texts"][0]["horizontal"], "RIGHT");
    EXPECT_EQ(file["labels"][0]["layer"], "LEASES");
}

TEST(DrawingsInAFile, EveryDifferenceCounts) {
    const Drawings before = Some();
    const auto differs = [&](auto&& change) {
        Drawings after = before;
        change(after);
        return after != before && DrawingsFromJson(ToJson(after)) == after;
    };
    EXPECT_TRUE(differs([](Drawings& d) { d.lines[0].points[1].lat += 1; }));
    EXPECT_TRUE(differs([](Drawings& d) { d.lines[0].fillColor = 1; }));
    EXPECT_TRUE(differs([](Drawings& d) { d.texts[1].part = TextPart::kCenter; }));
    EXPECT_TRUE(differs([](Drawings& d) { d.fills.begin()->second = 1; }));
    EXPECT_TRUE(differs([](Drawings& d) { d.labels.begin()->second = "THEIRS"; }));
    EXPECT_TRUE(differs([](Drawings& d) { d.labels.erase(d.labels.begin()); }));
}

/// A way to break a file, and what is said of it.
struct Broken {
    const char* at;
    json value;
    const char* words;
};

TEST(DrawingsInAFile, WhatIsBrokenIsRefusedWithItsPlace) {
    const Broken ways[] = {
        {"/lines", 5, "drawings.lines: a list is expected"},
        {"/lines/0", json::array(), "drawings.lines[0]: an object is expected"},
        {"/lines/0/more", 1, "drawings.lines[0]: \"more\" is not known"},
        {"/more", 1, "drawings: \"more\" is not known"},
        {"/lines/0/points", json::array({{0, 0}}),
         "drawings.lines[0].points: a line has two points at least"},
        {"/lines/0/points/1", json::array({0}),
         "drawings.lines[0].points[1]: longitude and latitude are expected"},
        {"/lines/0/points/1/1", 91, "drawings.lines[0].points[1][1]: 91 is not between -90 and 90"},
        {"/lines/0/points/1/0", -181,
         "drawings.lines[0].points[1][0]: -181 is not between -180 and 180"},
        {"/lines/0/points/1/0", "west", "drawings.lines[0].points[1][0]: a number is expected"},
        {"/lines/0/closed", 1, "drawings.lines[0].closed: true or false is expected"},
        {"/lines/1/filled", true, "drawings.lines[1].filled: only a closed line is filled"},
        {"/lines/0/color", 256, "drawings.lines[0].color: 256 is not between 0 and 255"},
        {"/lines/0/color", 1.5, "drawings.lines[0].color: a whole number is expected"},
        {"/lines/0/fillColor", -1, "drawings.lines[0].fillColor: -1 is not between 0 and 255"},
        {"/lines/0/width", 10, "drawings.lines[0].width: 10 is not between 0 and 9"},
        {"/lines/0/type", 6, "drawings.lines[0].type: 6 is not between 0 and 5"},
        {"/texts/0/text", " \t", "drawings.texts[0].text: the text is blank"},
        {"/texts/0/text", 3, "drawings.texts[0].text: a text is expected"},
        {"/texts/0/height", 0, "drawings.texts[0].height: a text has a height above 0"},
        {"/texts/0/height", 1.01, "drawings.texts[0].height: 1.01 is not between 0 and 1"},
        {"/texts/0/angle", 361, "drawings.texts[0].angle: 361 is not between -360 and 360"},
        {"/texts/0/weight", 10, "drawings.texts[0].weight: 10 is not between 0 and 9"},
        {"/texts/0/vertical", "OVER", "drawings.texts[0].vertical: \"OVER\" is not known"},
        {"/texts/0/horizontal", "", "drawings.texts[0].horizontal: \"\" is not known"},
        {"/labels/0/layer", "AREAS", "drawings.labels[0].layer: \"AREAS\" is not known"},
    };
    for (const Broken& way : ways) {
        json file = ToJson(Some());
        file[json::json_pointer(way.at)] = way.value;
        try {
            DrawingsFromJson(file);
            ADD_FAILURE() << way.words;
        } catch (const BadDrawings& e) {
            EXPECT_STREQ(e.what(), way.words);
        }
    }
}

TEST(DrawingsInAFile, WhatIsThereTwiceOrNotAtAllIsRefused) {
    json file = ToJson(Some());
    file["blocks"].push_back(file["blocks"][0]);
    EXPECT_THROW(DrawingsFromJson(file), BadDrawings);
    file = ToJson(Some());
    file["labels"].push_back(file["labels"][0]);
    EXPECT_THROW(DrawingsFromJson(file), BadDrawings);
    for (const char* name : {"lines", "texts", "blocks", "labels"}) {
        file = ToJson(Some());
        file.erase(name);
        EXPECT_THROW(DrawingsFromJson(file), BadDrawings) << name;
    }
}

// Deeds.

TEST(DrawingsValue, OneIsErasedAndTheOthersStay) {
    Drawings drawings = Some();
    Erase(drawings, {DrawingRef::kLine, 0});
    EXPECT_EQ(drawings.lines, std::vector{Some().lines[1]});
    Erase(drawings, {DrawingRef::kText, 1});
    EXPECT_EQ(drawings.texts, std::vector{Some().texts[0]});
    Erase(drawings, {DrawingRef::kFill, 0, {"43113", "391"}});
    EXPECT_THAT(drawings.fills, ElementsAre(Pair(BlockKey{"43113", "12"}, 0)));
    EXPECT_THAT(drawings.labels, SizeIs(3));
}

TEST(DrawingsValue, IsMovedAsAWholeAndNeverOffTheEarth) {
    Drawings drawings = Some();
    Shift(drawings, {DrawingRef::kLine, 0}, 0.5, -1);
    EXPECT_THAT(drawings.lines[0].points,
                ElementsAre(Place{29, -92.25}, Place{29.25, -92}, Place{29, -91.5}));
    Shift(drawings, {DrawingRef::kLine, 1}, 100, 3);
    EXPECT_NEAR(drawings.lines[1].points[1].lat, 90, 1e-9);
    EXPECT_NEAR(drawings.lines[1].points[0].lat, 90 - 20.123456789, 1e-9);
    EXPECT_NEAR(drawings.lines[1].points[1].lon, 180, 1e-9);
    EXPECT_NEAR(drawings.lines[1].points[0].lon, 0.5, 1e-9);
    Shift(drawings, {DrawingRef::kText, 1}, -1, -2);
    EXPECT_EQ(drawings.texts[1].at, (Place{-1, -2}));
    const Drawings before = drawings;
    Shift(drawings, {DrawingRef::kFill, 0, {"43113", "391"}}, 1, 1);
    EXPECT_EQ(drawings, before);
}

TEST(DrawingsValue, ReplacesWhateverTheCaseAndFromLeftToRight) {
    EXPECT_EQ(Replaced("Platform A, platform B", "PLATFORM", "RIG"), "RIG A, RIG B");
    EXPECT_EQ(Replaced("aaaa", "AA", "A"), "AA");
    EXPECT_EQ(Replaced("abc", "ABC", ""), "");
    EXPECT_EQ(Replaced("abc", "D", "X"), "abc");
    EXPECT_EQ(Replaced("\u00e4b", "B", "\u00c4"), "\u00e4\u00c4");
}

// Labels of the map.

class ReplacedLabels : public testing::Test {
protected:
    ReplacedLabels() {
        auto area = std::make_unique<AreaMap>();
        area->code = "1";
        Add(area->blocks, {"391", "39", "40"});
        Add(area->wells, {"A-1", "a-2", "B-1"});
        Add(area->pipelines, {"391"});
        area->Finish();
        model.Add(std::move(area));
    }
    static void Add(FeatureLayer& layer, std::initializer_list<const char*> labels) {
        double at = 0;
        for (const char* label : labels) {
            layer.Begin(label);
            for (const Point& corner : {Point{at, 0}, {at + 1, 0}, {at + 1, 1}, {at, 1}})
                layer.Add(corner);
            ++at;
        }
    }
    std::string Label(LabelLayer layer, const char* label) {
        return std::string(TextOf(drawings.labels, layer, "1", label));
    }

    MapModel model;
    Drawings drawings;
};

TEST_F(ReplacedLabels, AreThoseOfTheLayerThatHoldTheText) {
    const ReplaceCount count = ReplaceEverywhere(drawings, model, LabelLayer::kLeases, "39", "X");
    EXPECT_EQ(count.labels, 2);
    EXPECT_EQ(count.texts, 0);
    EXPECT_EQ(Label(LabelLayer::kLeases, "391"), "X1");
    EXPECT_EQ(Label(LabelLayer::kLeases, "39"), "X");
    EXPECT_EQ(Label(LabelLayer::kLeases, "40"), "40");
    EXPECT_EQ(Label(LabelLayer::kPipelines, "391"), "391");
    EXPECT_EQ(TextOf(drawings.labels, LabelLayer::kLeases, "2", "391"), "391");
}

TEST_F(ReplacedLabels, AreReplacedOnAndBack) {
    ReplaceEverywhere(drawings, model, LabelLayer::kWells, "A-", "ALPHA ");
    EXPECT_EQ(Label(LabelLayer::kWells, "a-2"), "ALPHA 2");
    ReplaceEverywhere(drawings, model, LabelLayer::kWells, "ALPHA 1", "A-1");
    EXPECT_EQ(Label(LabelLayer::kWells, "A-1"), "A-1");
    EXPECT_THAT(drawings.labels, SizeIs(1)) << "what is as the database has it is no override";
}

TEST_F(ReplacedLabels, DrawnTextsAreReplacedTooAndGoWhereNothingIsLeft) {
    drawings.texts = {{{0, 0}, "Lease 39"}, {{1, 1}, "39"}, {{2, 2}, "other"}};
    const ReplaceCount count = ReplaceEverywhere(drawings, model, LabelLayer::kWells, "39", "");
    EXPECT_EQ(count.texts, 2);
    EXPECT_EQ(count.labels, 0);
    ASSERT_THAT(drawings.texts, SizeIs(2));
    EXPECT_EQ(drawings.texts[0].text, "Lease ");
    EXPECT_EQ(drawings.texts[1].text, "other");
}

TEST(LayerNames, AreThoseOfTheDialog) {
    EXPECT_EQ(LayerOf("LEASES"), LabelLayer::kLeases);
    EXPECT_EQ(LayerOf("WELLS"), LabelLayer::kWells);
    EXPECT_EQ(LayerOf("PIPELINES"), LabelLayer::kPipelines);
}

TEST(TextScale, IsThatOfTheMapInFeetOrMeters) {
    MapDocument document;
    const double usual = FeetPerInch(document);
    EXPECT_GT(usual, 0);
    document.map.emplace();
    EXPECT_EQ(FeetPerInch(document), usual);
    document.map->bounds.SetScale(2000);
    EXPECT_EQ(FeetPerInch(document), 2000);
    document.map->bounds.SetFeet(false);
    document.map->bounds.SetScale(24000);
    EXPECT_EQ(FeetPerInch(document), 2000);
}

}  // namespace
}  // namespace workbench
