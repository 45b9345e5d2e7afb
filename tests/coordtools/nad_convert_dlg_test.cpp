#include "coordtools/nad_convert_dlg.h"

#include <cstdlib>

#include "base/numbers.h"
#include "coordtools/nad_convert_ids.h"
#include "coordtools/tool_fixture.h"
#include "frame/kvcom/angle.h"
#include "frame/kvcom/util_lldrv.h"

using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsEmpty;
using namespace kv::nad_convert;

namespace {

constexpr const char* kOneMissing = "Both Latitude and Longitude have to have values.";
constexpr const char* kOutside = "Data is out of North America range.";

using Shift = int (*)(double lon, double lat, double& lonOut, double& latOut);

/// An angle in the boxes.
std::vector<std::string> Boxes(double degrees) {
    const kv::AngleParts parts = kv::SplitAngle(degrees, 2);
    return {(parts.negative ? "-" : "") + std::to_string(parts.degrees),
            std::to_string(parts.minutes), kv::FormatFixed(parts.seconds, 2)};
}

class NadConvert : public test::ToolTest<CKvNadConvertDlg> {
protected:
    std::vector<std::string> AllBoxes() {
        std::vector<std::string> all;
        for (const auto& ids : {kLatitude27, kLongitude27, kLatitude83, kLongitude83}) {
            for (const std::string& text : Texts(ids))
                all.push_back(text);
        }
        return all;
    }
};

/// Conversions themselves need the grid.
class NadConvertWithGrid : public NadConvert {
protected:
    void SetUp() override {
        double lon = 0.0;
        double lat = 0.0;
        if (CKvUtilLLdrv::Nad2783(-91.25, 28.5, lon, lat) == 2) {
            GTEST_SKIP() << "the datum grid us_noaa_conus.tif is not installed";
        }
    }
    /// The boxes that a shift of 28 30 15.25, -91 15 0 fills.
    static std::vector<std::vector<std::string>> Shifted(Shift shift) {
        double lon = 0.0;
        double lat = 0.0;
        EXPECT_EQ(shift(-91.25, 28 + 30 / 60.0 + 15.25 / 3600, lon, lat), 0);
        return {Boxes(lat), Boxes(lon)};
    }
};

TEST_F(NadConvert, OpensFromNad27ToNad83) {
    EXPECT_TRUE(user->Checked(k27To83));
    EXPECT_FALSE(user->Checked(k83To27));
    EXPECT_EQ(user->Text(kConvert), "Convert Nad27 to Nad83");
    EXPECT_FALSE(ReadOnly(kLatitude27));
    EXPECT_FALSE(ReadOnly(kLongitude27));
    EXPECT_TRUE(ReadOnly(kLatitude83));
    EXPECT_TRUE(ReadOnly(kLongitude83));
    EXPECT_THAT(AllBoxes(), testing::Each(""));
    for (const int id : {kFormat27, kFormat83}) {
        EXPECT_THAT(user->Rows(id), ElementsAre("d/m/s", "degree"));
        EXPECT_EQ(user->Text(id), "d/m/s");
    }
    EXPECT_FALSE(user->Visible(IDCANCEL));
}

TEST_F(NadConvert, AnotherDirectionEmptiesBothPanels) {
    Type(kLatitude27, "28", "30", "15.25");
    Type(kLongitude27, "-91", "15", "0");
    user->Click(k83To27);
    EXPECT_THAT(AllBoxes(), testing::Each(""));
    EXPECT_EQ(user->Text(kConvert), "Convert Nad83 to Nad27");
    EXPECT_TRUE(ReadOnly(kLatitude27));
    EXPECT_TRUE(ReadOnly(kLongitude27));
    EXPECT_FALSE(ReadOnly(kLatitude83));
    EXPECT_FALSE(ReadOnly(kLongitude83));

    Type(kLatitude83, "28", "30", "15.25");
    user->Click(k27To83);
    EXPECT_THAT(AllBoxes(), testing::Each(""));
    EXPECT_EQ(user->Text(kConvert), "Convert Nad27 to Nad83");
    EXPECT_FALSE(ReadOnly(kLatitude27));
    EXPECT_TRUE(ReadOnly(kLatitude83));
}

TEST_F(NadConvert, OneAngleAloneIsTold) {
    Type(kLatitude27, "28", "30", "15.25");
    desktop.ExpectMessage(kOneMissing);
    user->Click(kConvert);
    user->Click(k83To27);
    Type(kLongitude83, "-91", "15", "0");
    desktop.ExpectMessage(kOneMissing);
    user->Click(kConvert);
    EXPECT_THAT(Texts(kLatitude27), ElementsAre("", "", ""));
}

TEST_F(NadConvert, EnterInItsBoxesConverts) {
    Type(kLatitude27, "28", "30", "15.25");
    for (const int id : {kLatitude27.degrees.edit, kFormat27, kFormat83, k27To83}) {
        desktop.ExpectMessage(kOneMissing);
        user->Key(id, "Enter");
        EXPECT_TRUE(tool.IsWindowVisible());
    }
    user->Focus(IDOK);
    user->Key(0, "Enter");
    EXPECT_FALSE(tool.IsWindowVisible());
}

TEST_F(NadConvert, ConvertsNothingToNothing) {
    user->Click(kConvert);
    EXPECT_THAT(AllBoxes(), testing::Each(""));
    EXPECT_THAT(desktop.Messages(), IsEmpty());
}

TEST_F(NadConvert, AnotherFormatKeepsTheAnglesOfItsPanel) {
    Type(kLatitude27, "28", "30", "15.25");
    Type(kLongitude27, "-91", "15", "0");
    user->Select(kFormat27, "degree");
    EXPECT_EQ(user->Text(kLatitude27.degrees.edit), "28.504236");
    EXPECT_EQ(user->Text(kLongitude27.degrees.edit), "-91.250000");
    EXPECT_FALSE(user->Visible(kLatitude27.minutes.edit));
    EXPECT_TRUE(user->Visible(kLatitude83.minutes.edit));
    EXPECT_EQ(user->Text(kFormat83), "d/m/s");
    user->Select(kFormat27, "d/m/s");
    EXPECT_THAT(Texts(kLatitude27), ElementsAre("28", "30", "15.25"));
    EXPECT_THAT(Texts(kLongitude27), ElementsAre("-91", "15", "0.00"));
}

TEST_F(NadConvert, AnotherFormatOfEmptyBoxesLeavesThemEmpty) {
    user->Select(kFormat83, "degree");
    EXPECT_FALSE(user->Visible(kLatitude83.minutes.edit));
    EXPECT_EQ(user->Text(kLatitude83.degrees.label), "Degree.Degree");
    EXPECT_THAT(AllBoxes(), testing::Each(""));
}

TEST_F(NadConvert, OkHidesItAndItsValuesLiveOn) {
    Type(kLatitude27, "28", "30", "15.25");
    user->Click(IDOK);
    EXPECT_FALSE(tool.IsWindowVisible());
    tool.ShowWindow(SW_SHOW);
    EXPECT_THAT(Texts(kLatitude27), ElementsAre("28", "30", "15.25"));
    tool.ResetToDefault();
    EXPECT_THAT(AllBoxes(), testing::Each(""));
}

TEST_F(NadConvert, ClosedItLetsItsBoxesGo) {
    for (const auto& ids : {kLatitude27, kLongitude27, kLatitude83, kLongitude83})
        EXPECT_TRUE(Held(ids)) << ids.degrees.edit;
    tool.CloseDlg();
    for (const auto& ids : {kLatitude27, kLongitude27, kLatitude83, kLongitude83})
        EXPECT_FALSE(Held(ids)) << ids.degrees.edit;
}

TEST_F(NadConvert, APastedPositionFillsThePanelThatIsTheInput) {
    user->Paste(kLongitude27.degrees.edit, "28.504236, -91.25");
    EXPECT_THAT(Texts(kLatitude27), ElementsAre("28", "30", "15.25"));
    EXPECT_THAT(Texts(kLongitude27), ElementsAre("-91", "15", "0.00"));
    EXPECT_THAT(Texts(kLatitude83), ElementsAre("", "", ""));
    user->Click(k83To27);
    user->Paste(kLatitude83.minutes.edit, "28.504236, -91.25");
    EXPECT_THAT(Texts(kLatitude83), ElementsAre("28", "30", "15.25"));
    EXPECT_THAT(Texts(kLongitude83), ElementsAre("-91", "15", "0.00"));
    EXPECT_THAT(Texts(kLatitude27), ElementsAre("", "", ""));
}

TEST_F(NadConvert, IsClosedAndCreatedAnew) {
    user.reset();
    tool.CloseDlg();
    EXPECT_TRUE(tool.DestroyWindow());
    ASSERT_TRUE(tool.Create(kTemplate));
    EXPECT_EQ(tool.DlgItemText(kConvert), "Convert Nad27 to Nad83");
}

TEST_F(NadConvert, WithoutTheGridNothingIsConverted) {
    setenv("PROJ_DATA", folder.Native("no grid here").c_str(), 1);
    Type(kLatitude27, "28", "30", "15.25");
    Type(kLongitude27, "-91", "15", "0");
    desktop.ExpectMessage("Conversion Error.");
    user->Click(kConvert);
    EXPECT_THAT(Texts(kLatitude83), ElementsAre("", "", ""));
    EXPECT_THAT(Texts(kLatitude27), ElementsAre("28", "30", "15.25"));
}

TEST_F(NadConvertWithGrid, ConvertsNad27ToNad83) {
    Type(kLatitude27, "28", "30", "15.25");
    Type(kLongitude27, "-91", "15", "0");
    user->Click(kConvert);
    const auto expected = Shifted(&CKvUtilLLdrv::Nad2783);
    EXPECT_THAT(Texts(kLatitude83), ElementsAreArray(expected[0]));
    EXPECT_THAT(Texts(kLongitude83), ElementsAreArray(expected[1]));
    EXPECT_NE(Texts(kLatitude83), Texts(kLatitude27));
}

TEST_F(NadConvertWithGrid, ConvertsNad83ToNad27) {
    user->Click(k83To27);
    Type(kLatitude83, "28", "30", "15.25");
    Type(kLongitude83, "-91", "15", "0");
    user->Click(kConvert);
    const auto expected = Shifted(&CKvUtilLLdrv::Nad8327);
    EXPECT_THAT(Texts(kLatitude27), ElementsAreArray(expected[0]));
    EXPECT_THAT(Texts(kLongitude27), ElementsAreArray(expected[1]));
}

TEST_F(NadConvertWithGrid, ConvertsBetweenTheFormats) {
    user->Select(kFormat83, "degree");
    Type(kLatitude27, "28", "30", "15.25");
    Type(kLongitude27, "-91", "15", "0");
    user->Click(kConvert);
    double lon = 0.0;
    double lat = 0.0;
    CKvUtilLLdrv::Nad2783(-91.25, 28 + 30 / 60.0 + 15.25 / 3600, lon, lat);
    EXPECT_EQ(user->Text(kLatitude83.degrees.edit), kv::FormatFixed(lat, 6));
    EXPECT_EQ(user->Text(kLongitude83.degrees.edit), kv::FormatFixed(lon, 6));
}

TEST_F(NadConvertWithGrid, APointOutsideOfTheGridIsToldAndLeavesTheOutput) {
    Type(kLatitude27, "28", "30", "15.25");
    Type(kLongitude27, "-91", "15", "0");
    user->Click(kConvert);
    const auto before = Texts(kLatitude83);
    Type(kLatitude27, "60", "0", "0");
    Type(kLongitude27, "10", "0", "0");
    desktop.ExpectMessage(kOutside);
    user->Click(kConvert);
    EXPECT_EQ(Texts(kLatitude83), before);
    EXPECT_THAT(Texts(kLatitude27), ElementsAre("60", "0", "0"));
}

TEST_F(NadConvertWithGrid, EmptyInputEmptiesTheLatitudeOfTheOutputAlone) {
    Type(kLatitude27, "28", "30", "15.25");
    Type(kLongitude27, "-91", "15", "0");
    user->Click(kConvert);
    const auto longitude = Texts(kLongitude83);
    Type(kLatitude27, "", "", "");
    Type(kLongitude27, "", "", "");
    user->Click(kConvert);
    EXPECT_THAT(Texts(kLatitude83), ElementsAre("", "", ""));
    EXPECT_EQ(Texts(kLongitude83), longitude);
}

TEST_F(NadConvertWithGrid, TakesAPositionFromTheHostIntoTheInput) {
    const double lat = 28 + 30 / 60.0 + 15.25 / 3600;
    tool.SetPosition(lat, -91.25);
    EXPECT_THAT(Texts(kLatitude27), ElementsAre("28", "30", "15.25"));
    EXPECT_THAT(Texts(kLatitude83), ElementsAreArray(Shifted(&CKvUtilLLdrv::Nad2783)[0]));
    user->Click(k83To27);
    tool.SetPosition(lat, -91.25);
    EXPECT_THAT(Texts(kLatitude83), ElementsAre("28", "30", "15.25"));
    EXPECT_THAT(Texts(kLongitude27), ElementsAreArray(Shifted(&CKvUtilLLdrv::Nad8327)[1]));
}

TEST_F(NadConvertWithGrid, APastedPositionIsConverted) {
    user->Paste(kLongitude27.degrees.edit, "28.504236, -91.25");
    EXPECT_THAT(Texts(kLatitude27), ElementsAre("28", "30", "15.25"));
    user->Click(kConvert);
    EXPECT_THAT(Texts(kLongitude83), ElementsAreArray(Shifted(&CKvUtilLLdrv::Nad2783)[1]));
}

}  // namespace
