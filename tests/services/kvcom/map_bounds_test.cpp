#include "frame/kvcom/map_bounds.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>

#include "frame/kvcom/util_lldrv.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Texts = std::array<std::string, 6>;

Texts MinTexts(const CKvMapBounds& bounds) {
    Texts t;
    bounds.GetMinLL(t[0], t[1], t[2], t[3], t[4], t[5]);
    return t;
}
Texts MaxTexts(const CKvMapBounds& bounds) {
    Texts t;
    bounds.GetMaxLL(t[0], t[1], t[2], t[3], t[4], t[5]);
    return t;
}
Texts SizeTexts(const CKvMapBounds& bounds) {
    Texts t;
    bounds.GetWidthHeightLL(t[0], t[1], t[2], t[3], t[4], t[5]);
    return t;
}

struct Bound {
    double (CKvMapBounds::*get)() const;
    void (CKvMapBounds::*set)(const double&);
};
constexpr Bound kBounds[] = {{&CKvMapBounds::GetXMin, &CKvMapBounds::SetXMin},
                             {&CKvMapBounds::GetXMax, &CKvMapBounds::SetXMax},
                             {&CKvMapBounds::GetYMin, &CKvMapBounds::SetYMin},
                             {&CKvMapBounds::GetYMax, &CKvMapBounds::SetYMax},
                             {&CKvMapBounds::GetZMin, &CKvMapBounds::SetZMin},
                             {&CKvMapBounds::GetZMax, &CKvMapBounds::SetZMax},
                             {&CKvMapBounds::GetLatMin, &CKvMapBounds::SetLatMin},
                             {&CKvMapBounds::GetLatMax, &CKvMapBounds::SetLatMax},
                             {&CKvMapBounds::GetLonMin, &CKvMapBounds::SetLonMin},
                             {&CKvMapBounds::GetLonMax, &CKvMapBounds::SetLonMax},
                             {&CKvMapBounds::GetDepthMin, &CKvMapBounds::SetDepthMin},
                             {&CKvMapBounds::GetDepthMax, &CKvMapBounds::SetDepthMax}};

struct Flag {
    bool (CKvMapBounds::*get)() const;
    void (CKvMapBounds::*set)(bool);
    bool fresh;
};
constexpr Flag kFlags[] = {
    {&CKvMapBounds::GetFeet, &CKvMapBounds::SetFeet, true},
    {&CKvMapBounds::GetXYBounded, &CKvMapBounds::SetXYBounded, true},
    {&CKvMapBounds::GetRectSpec, &CKvMapBounds::SetRectSpec, false},
    {&CKvMapBounds::GetPickOneFlag, &CKvMapBounds::SetPickOneFlag, false},
    {&CKvMapBounds::GetPickMultFlag, &CKvMapBounds::SetPickMultFlag, false},
    {&CKvMapBounds::GetPickWinFlag, &CKvMapBounds::SetPickWinFlag, false},
    {&CKvMapBounds::GetCustomMapFlag, &CKvMapBounds::SetCustomMapFlag, false}};

TEST(MapBounds, EachBoundIsItsOwn) {
    CKvMapBounds bounds;
    double value = 1.25;
    for (const Bound& bound : kBounds) {
        EXPECT_EQ((bounds.*bound.get)(), 0.0);
        (bounds.*bound.set)(value);
        value += 1.0;
    }
    value = 1.25;
    for (const Bound& bound : kBounds) {
        EXPECT_EQ((bounds.*bound.get)(), value);
        value += 1.0;
    }
}

TEST(MapBounds, EachFlagIsItsOwn) {
    for (const Flag& changed : kFlags) {
        CKvMapBounds bounds;
        (bounds.*changed.set)(!changed.fresh);
        for (const Flag& flag : kFlags) {
            EXPECT_EQ((bounds.*flag.get)(), &flag == &changed ? !flag.fresh : flag.fresh);
        }
    }
}

TEST(MapBounds, AFreshRecordIsOffshoreWithoutProjection) {
    const CKvMapBounds bounds;
    EXPECT_EQ(bounds.GetPrimeProj(), -1);
    EXPECT_EQ(bounds.GetTemplateType(), KV_TEMPLATE_OFFSHORE);
    EXPECT_EQ(bounds.GetScale(), 0);
    EXPECT_EQ(bounds.GetProjZoneCode(), 0);
    EXPECT_EQ(bounds.GetSnapBoundsRange(), 0);
    EXPECT_THAT(bounds.GetPickArea(), IsEmpty());
}

TEST(MapBounds, KeepsProjectionScaleAndSnap) {
    CKvMapBounds bounds;
    bounds.SetScale(24000);
    bounds.SetPrimeProj(-1702);
    bounds.SetProjZoneCode(99);
    bounds.SetRectifyingLat(28.5);
    bounds.SetRectifyingLon(-89.25);
    bounds.SetSnapBoundsRange(1000);
    bounds.SetTemplateType(KV_TEMPLATE_ONSHORE);
    EXPECT_EQ(bounds.GetScale(), 24000);
    EXPECT_EQ(bounds.GetPrimeProj(), -1702);
    EXPECT_EQ(bounds.GetProjZoneCode(), 99);
    EXPECT_EQ(bounds.GetRectifyingLat(), 28.5);
    EXPECT_EQ(bounds.GetRectifyingLon(), -89.25);
    EXPECT_EQ(bounds.GetSnapBoundsRange(), 1000);
    EXPECT_EQ(bounds.GetTemplateType(), KV_TEMPLATE_ONSHORE);
}

TEST(MapBounds, PickListsGrowUntilTheyAreReset) {
    CKvMapBounds bounds;
    bounds.SetPickArea("MP");
    bounds.SetPickArea("GC");
    bounds.SetPickBlock("123");
    bounds.SetPickExt("A");
    bounds.SetPickMapWidth("3");
    bounds.SetPickMapHeight("2");
    bounds.SetPickMapPercent("15");
    EXPECT_THAT(bounds.GetPickArea(), ElementsAre("MP", "GC"));
    EXPECT_THAT(bounds.GetPickBlock(), ElementsAre("123"));
    EXPECT_THAT(bounds.GetPickExt(), ElementsAre("A"));
    bounds.ResetABEVec();
    EXPECT_THAT(bounds.GetPickArea(), IsEmpty());
    EXPECT_THAT(bounds.GetPickBlock(), IsEmpty());
    EXPECT_THAT(bounds.GetPickExt(), IsEmpty());
    EXPECT_EQ(bounds.GetPickMapWidth(), "3");
    EXPECT_EQ(bounds.GetPickMapHeight(), "2");
    EXPECT_EQ(bounds.GetPickMapPercent(), "15");
}

TEST(MapBounds, ACopyIsWholeAndItsOwn) {
    CKvMapBounds bounds;
    bounds.SetMinLL("29", "30", "0", "-90", "15", "0");
    bounds.SetPickArea("MP");
    CKvMapBounds copy = bounds;
    EXPECT_EQ(copy, bounds);
    copy.SetPickArea("GC");
    EXPECT_THAT(bounds.GetPickArea(), ElementsAre("MP"));
    EXPECT_NE(copy, bounds);
}

TEST(MapBounds, ACornerGivenAsTextsSetsItsAngles) {
    CKvMapBounds bounds;
    bounds.SetMinLL("29", "30", "45", "-90", "15", "0");
    EXPECT_DOUBLE_EQ(bounds.GetLatMin(), 29.5125);
    EXPECT_DOUBLE_EQ(bounds.GetLonMin(), -90.25);
    bounds.SetMaxLL(" 30.5", "", "0", "-0", "30", "");
    EXPECT_DOUBLE_EQ(bounds.GetLatMax(), 30.5);
    EXPECT_DOUBLE_EQ(bounds.GetLonMax(), -0.5);
    EXPECT_DOUBLE_EQ(bounds.GetLatMin(), 29.5125);
}

TEST(MapBounds, TheTextsOfACornerComeBackAsTheyWereUntilItsAnglesChange) {
    CKvMapBounds bounds;
    bounds.SetMinLL("029", "30", "45.00", "-90", "15", "0");
    bounds.SetMaxLL("30", "0", "0", "-89", "0", "00");
    EXPECT_EQ(MinTexts(bounds), (Texts{"029", "30", "45.00", "-90", "15", "0"}));
    EXPECT_EQ(MaxTexts(bounds), (Texts{"30", "0", "0", "-89", "0", "00"}));
    bounds.SetLatMin(28.0);
    EXPECT_EQ(MinTexts(bounds), (Texts{"28", "0", "0", "-90", "15", "0"}));
    EXPECT_EQ(MaxTexts(bounds), (Texts{"30", "0", "0", "-89", "0", "00"}));
}

TEST(MapBounds, TextsAreMadeFromAnglesWithoutSixtySeconds) {
    CKvMapBounds bounds;
    bounds.SetLatMin(29.5125);
    bounds.SetLonMin(-90.00416666666667);
    EXPECT_EQ(MinTexts(bounds), (Texts{"29", "30", "45", "-90", "0", "15"}));
    bounds.SetLatMin(28.999999999999);
    bounds.SetLonMin(-0.504);
    EXPECT_EQ(MinTexts(bounds), (Texts{"29", "0", "0", "-0", "30", "14.4"}));
    bounds.SetLatMin(-1e-12);
    bounds.SetLonMin(12.3456789);
    EXPECT_EQ(MinTexts(bounds), (Texts{"0", "0", "0", "12", "20", "44.444"}));
}

TEST(MapBounds, SecondsOfTextsHaveSixSignificantDigits) {
    struct Made {
        double seconds;
        const char* minutes;
        const char* text;
    };
    constexpr Made kMade[] = {
        {44.44404, "15", "44.444"},   {44.44456, "15", "44.4446"},   {5.1234561, "15", "5.12346"},
        {0.123456, "15", "0.123456"}, {0.0123456, "15", "0.012346"}, {0.0001234, "15", "0.000123"},
        {9.9999996, "15", "10"},      {9.999996, "15", "10"},        {9.99999, "15", "9.99999"},
        {0.00003, "15", "0"},         {59.9999, "15", "59.9999"},    {59.99996, "16", "0"},
        {59.9999999, "16", "0"},
    };
    for (const Made& made : kMade) {
        CKvMapBounds bounds;
        bounds.SetLatMin(29.25 + made.seconds / 3600.0);
        bounds.SetLonMin(-90.25 - made.seconds / 3600.0);
        EXPECT_EQ(MinTexts(bounds),
                  (Texts{"29", made.minutes, made.text, "-90", made.minutes, made.text}))
            << made.seconds;
    }
}

TEST(MapBounds, AnAngleWithoutValueHasEmptyTexts) {
    CKvMapBounds bounds;
    bounds.SetLatMax(1000.0);
    bounds.SetLonMax(HUGE_VAL);
    EXPECT_EQ(MaxTexts(bounds), Texts{});
    bounds.SetLatMax(std::nan(""));
    EXPECT_EQ(MaxTexts(bounds), Texts{});
}

TEST(MapBounds, TheSizeIsTheDifferenceOfTheCorners) {
    CKvMapBounds bounds;
    bounds.SetMinLL("29", "0", "0", "-90", "0", "0");
    bounds.SetMaxLL("29", "7", "30", "-88", "30", "0");
    EXPECT_EQ(SizeTexts(bounds), (Texts{"0", "7", "30", "1", "30", "0"}));
}

TEST(MapBounds, AHeightAndWidthSetTheMaximumCorner) {
    CKvMapBounds bounds;
    bounds.SetMinLL("29", "0", "0", "-90", "0", "0");
    bounds.UpdateLLMax("0", "7", "30", "1", "0", "0");
    EXPECT_DOUBLE_EQ(bounds.GetLatMax(), 29.125);
    EXPECT_DOUBLE_EQ(bounds.GetLonMax(), -89.0);
    EXPECT_EQ(MaxTexts(bounds), (Texts{"29", "7", "30", "-89", "0", "0"}));
    EXPECT_EQ(SizeTexts(bounds), (Texts{"0", "7", "30", "1", "0", "0"}));
}

TEST(MapBounds, AWidthAndHeightInMapUnitsSetTheMaximum) {
    CKvMapBounds bounds;
    bounds.SetXMin(1000.5);
    bounds.SetYMin(-200.0);
    bounds.UpdateXYMax("16000", "1.5e+003");
    EXPECT_EQ(bounds.GetXMax(), 17000.5);
    EXPECT_EQ(bounds.GetYMax(), 1300.0);
    bounds.UpdateXYMax("", "wrong");
    EXPECT_EQ(bounds.GetXMax(), 1000.5);
    EXPECT_EQ(bounds.GetYMax(), -200.0);
}

/// A map of some blocks in Green Canyon, in degrees.
CKvMapBounds GreenCanyon() {
    CKvMapBounds bounds;
    bounds.SetPrimeProj(115);
    bounds.SetLatMin(27.5);
    bounds.SetLatMax(27.75);
    bounds.SetLonMin(-91.25);
    bounds.SetLonMax(-91.0);
    return bounds;
}

TEST(MapBounds, XyComesFromTheCornersInTheRecordsUnits) {
    CKvMapBounds bounds = GreenCanyon();
    ASSERT_TRUE(bounds.PopulateXY());
    double x = 0.0;
    double y = 0.0;
    CKvUtilLLdrv::LLdrv(27.5, -91.25, &x, &y, 115, 0, 1, 100.0, 0.0, 0.0);
    EXPECT_EQ(bounds.GetXMin(), x);
    EXPECT_EQ(bounds.GetYMin(), y);
    CKvUtilLLdrv::LLdrv(27.75, -91.0, &x, &y, 115, 0, 1, 100.0, 0.0, 0.0);
    EXPECT_EQ(bounds.GetXMax(), x);
    EXPECT_EQ(bounds.GetYMax(), y);

    bounds.SetFeet(false);
    ASSERT_TRUE(bounds.PopulateXY());
    EXPECT_NEAR(bounds.GetXMax(), x * 1200.0 / 3937.0, 1e-6);
}

TEST(MapBounds, AnglesComeBackFromXy) {
    CKvMapBounds bounds = GreenCanyon();
    bounds.PopulateXY();
    bounds.SetLatMin(0.0);
    bounds.SetLonMax(0.0);
    ASSERT_TRUE(bounds.PopulateLL());
    EXPECT_NEAR(bounds.GetLatMin(), 27.5, 1e-9);
    EXPECT_NEAR(bounds.GetLatMax(), 27.75, 1e-9);
    EXPECT_NEAR(bounds.GetLonMin(), -91.25, 1e-9);
    EXPECT_NEAR(bounds.GetLonMax(), -91.0, 1e-9);
}

TEST(MapBounds, TheMiddleOfTheMapRectifiesAStraightMercatorMap) {
    CKvMapBounds bounds = GreenCanyon();
    bounds.SetPrimeProj(199);
    ASSERT_TRUE(bounds.PopulateXY());
    EXPECT_EQ(bounds.GetRectifyingLat(), 27.625);
    EXPECT_EQ(bounds.GetRectifyingLon(), -91.125);
    EXPECT_NEAR(bounds.GetXMin(), -bounds.GetXMax(), 1e-6);
    ASSERT_TRUE(bounds.PopulateLL());
    EXPECT_NEAR(bounds.GetLonMin(), -91.25, 1e-9);
}

TEST(MapBounds, ARectifyingPointOfTheUsersStays) {
    CKvMapBounds bounds = GreenCanyon();
    bounds.SetPrimeProj(199);
    bounds.SetRectSpec(true);
    bounds.SetRectifyingLat(0.0);
    bounds.SetRectifyingLon(-91.25);
    ASSERT_TRUE(bounds.PopulateXY());
    EXPECT_EQ(bounds.GetRectifyingLon(), -91.25);
    EXPECT_NEAR(bounds.GetXMin(), 0.0, 1e-6);
}

TEST(MapBounds, WithoutAnAnswerOfTheDriverNothingIsLost) {
    CKvMapBounds bounds = GreenCanyon();
    bounds.PopulateXY();
    const CKvMapBounds before = bounds;
    bounds.SetLatMax(1000.0);
    EXPECT_FALSE(bounds.PopulateXY());
    EXPECT_EQ(bounds.GetXMin(), before.GetXMin());
    EXPECT_EQ(bounds.GetYMax(), before.GetYMax());

    bounds = before;
    bounds.SetPrimeProj(-1);
    EXPECT_FALSE(bounds.PopulateXY());
    EXPECT_FALSE(bounds.PopulateLL());
    EXPECT_EQ(bounds.GetLatMin(), 27.5);
    EXPECT_EQ(bounds.GetXMax(), before.GetXMax());
}

}  // namespace
