#include "kvload/mapping.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>
#include <string>

namespace kvload {
namespace {

using testing::HasSubstr;

/// What is wrong with a mapping; "" where it is right.
std::string WrongWith(const std::string& json) {
    try {
        ReadMapping(json);
        return {};
    } catch (const BadMapping& bad) {
        return bad.what();
    }
}

TEST(Mappings, SayWhichFieldIsWhat) {
    const Mapping mapping = ReadMapping(R"({"table": "leases", "layer": "L", "crs": "EPSG:4267",
        "fields": {"areacode": {"field": "AC", "by": "area_abbr"},
                   "label": {"field": "BLK", "split": "GC#@"},
                   "status": {"field": "ST", "codes": {"prim": "PRIMARY", "*": ""}},
                   "lease_date": {"field": "D", "format": "MM/DD/YYYY"},
                   "lplana": {"value": "C"},
                   "lessee": "OWNER"}})");
    EXPECT_STREQ(mapping.target->table, "gulf_mexico_lease");
    EXPECT_EQ(mapping.layer, "L");
    EXPECT_EQ(mapping.crs, "EPSG:4267");
    std::map<std::string, FieldRule> rules;
    for (const FieldRule& rule : mapping.fields)
        rules[rule.column] = rule;
    ASSERT_EQ(rules.size(), 6u);
    EXPECT_EQ(rules["areacode"].by, "area_abbr");
    EXPECT_EQ(rules["label"].label.Split("GC12A", "").ext, "A");
    EXPECT_EQ(rules["status"].codes.at("PRIM"), "PRIMARY");
    EXPECT_EQ(rules["lease_date"].format, "MM/DD/YYYY");
    EXPECT_EQ(rules["lplana"].value, "C");
    EXPECT_EQ(rules["lessee"].field, "OWNER");
}

TEST(Mappings, ThatAreNoneTellWhy) {
    EXPECT_THAT(WrongWith(""), HasSubstr("no JSON"));
    EXPECT_THAT(WrongWith("[]"), HasSubstr("no object"));
    EXPECT_THAT(WrongWith("{}"), HasSubstr("is none of areas, blocks"));
    EXPECT_THAT(WrongWith(R"({"table": "rocks"})"), HasSubstr("\"rocks\" is none of"));
    EXPECT_THAT(WrongWith(R"({"table": "areas", "feilds": {}})"), HasSubstr("knows no \"feilds\""));
    EXPECT_THAT(WrongWith(R"({"table": "areas", "fields": {"areaname": "N"}})"),
                HasSubstr("cannot do without \"stcode\""));
    EXPECT_THAT(WrongWith(R"({"table": "blocks", "fields": {"areacode": "A"}})"),
                HasSubstr("\"lbnum\" or \"label\""));
}

/// The complaint about a mapping of areas with one rule more.
std::string OfRule(const std::string& rule) {
    return WrongWith(R"({"table": "areas", "fields": {"areaname": "N", "stcode": "C", )" + rule +
                     "}}");
}

TEST(Mappings, WithARuleThatCannotBeFollowedTellWhy) {
    EXPECT_EQ(OfRule(R"("area_abbr": "A")"), "");
    EXPECT_THAT(OfRule(R"("colour": "X")"), HasSubstr("has no \"colour\""));
    EXPECT_THAT(OfRule(R"("refnum": "X")"), HasSubstr("has no \"refnum\""));
    EXPECT_THAT(OfRule(R"("area_abbr": 7)"), HasSubstr("no object"));
    EXPECT_THAT(OfRule(R"("area_abbr": "")"), HasSubstr("needs a \"field\" or a \"value\""));
    const auto words = [](const std::string& rule) {
        return OfRule("\"area_abbr\": {" + rule + "}");
    };
    EXPECT_THAT(words(R"("field": 7)"), HasSubstr("no text in quotes"));
    EXPECT_THAT(words(R"("codes": {"A": "B"})"), HasSubstr("needs a \"field\" or a \"value\""));
    EXPECT_THAT(words(R"("field": "X", "codes": {})"), HasSubstr("\"codes\" is empty"));
    EXPECT_THAT(words(R"("field": "X", "codes": {"A": 1})"), HasSubstr("is no text"));
    EXPECT_THAT(words(R"("field": "X", "format": "MM")"), HasSubstr("no form of a date"));
    EXPECT_THAT(words(R"("field": "X", "by": "stcode")"), HasSubstr("is for area codes"));
    EXPECT_THAT(words(R"("field": "X", "split": "#")"), HasSubstr("only a label is split"));
}

TEST(Mappings, WithALabelOrAPlaceThatCannotBeFollowedTellWhy) {
    const auto ofBlocks = [](const std::string& rest) {
        return WrongWith(R"({"table": "blocks", "fields": {"areacode": "A", )" + rest);
    };
    EXPECT_THAT(ofBlocks(R"("label": {"field": "L", "split": "GC"}}})"),
                HasSubstr("a pattern of one #"));
    EXPECT_THAT(ofBlocks(R"("label": "L", "lbnum": "N"}})"), HasSubstr("tell the same"));
    EXPECT_THAT(ofBlocks(R"("label": "L"}, "bottom": {"x": "X", "y": "Y"}})"),
                HasSubstr("is for wells"));
    EXPECT_THAT(ofBlocks(R"("label": "L"}, "place": {"x": "X", "y": "Y"}})"),
                HasSubstr("this needs \"wkt\""));
    EXPECT_THAT(ofBlocks(R"("label": "L"}, "place": {"x": "X"}})"),
                HasSubstr("needs the fields \"x\" and \"y\""));
}

}  // namespace
}  // namespace kvload
