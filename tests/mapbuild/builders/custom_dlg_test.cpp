#include "mapbuild/builders/custom_dlg.h"

#include <random>

#include "mapbuild/builders/custom_ids.h"
#include "mapbuild/builders/map_fixture.h"
#include "print/sizing_dlg.h"
#include "print/sizing_ids.h"
#include "support/exchanging_dialog.h"

using namespace kv::custom_bld;
using test::ExpectNear;
using test::kFeetUnits;
using test::kMeterUnits;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

namespace {

class CustomDialog : public CKvGuiCustomDlg {
public:
    using CKvGuiCustomDlg::CKvGuiCustomDlg;
    using CKvGuiCustomDlg::m_nProjection;
    using CKvGuiCustomDlg::m_tBounds;
    using CKvGuiCustomDlg::PopulateIsbLL;
};

constexpr std::array kXYBoxes{kX, kY, kFarX, kFarY};
constexpr std::array kOriginBoxes{kLat, kLatMin, kLatSec, kLon, kLonMin, kLonSec};
constexpr std::array kFarBoxes{kFarLat, kFarLatMin, kFarLatSec, kFarLon, kFarLonMin, kFarLonSec};

class CustomDlg : public test::MapTest {
protected:
    static constexpr const char* kInvalid = "Invalid values";

    static void TypeXY(kv::User& user, const std::array<const char*, 4>& texts) {
        for (std::size_t i = 0; i < texts.size(); ++i)
            user.Type(kXYBoxes[i], texts[i]);
    }
    /// Degrees and minutes of a corner.
    static void TypeOrigin(kv::User& user, const char* lat, const char* lon) {
        user.Type(kLat, lat);
        user.Type(kLon, lon);
    }
    static void TypeFar(kv::User& user, const char* lat, const char* lon) {
        user.Type(kFarLat, lat);
        user.Type(kFarLon, lon);
    }
    template <typename Ids>
    static std::vector<std::string> Texts(kv::User& user, const Ids& ids) {
        std::vector<std::string> texts;
        for (const int id : ids)
            texts.push_back(user.Text(id));
        return texts;
    }
    static void ExpectShown(kv::User& user, bool xy, bool size) {
        for (const int id : {kX, kY, kFarX, kFarY, kXLabel, kYLabel, kFarXLabel, kFarYLabel})
            EXPECT_EQ(user.Visible(id), xy) << id;
        for (const auto& boxes : {kOriginBoxes, kFarBoxes}) {
            for (const int id : boxes)
                EXPECT_EQ(user.Visible(id), !xy) << id;
        }
        for (const int id :
             {kLatLabel, kLatDegLabel, kLatMinLabel, kLatSecLabel, kLonLabel, kLonDegLabel,
              kLonMinLabel, kLonSecLabel, kFarLatLabel, kFarLatDegLabel, kFarLatMinLabel,
              kFarLatSecLabel, kFarLonLabel, kFarLonDegLabel, kFarLonMinLabel, kFarLonSecLabel}) {
            EXPECT_EQ(user.Visible(id), !xy) << id;
        }
        for (const int id : {kFarLatPlus, kFarLonPlus})
            EXPECT_EQ(user.Visible(id), size) << id;
        for (const int id : {kSize, kSizeLabel})
            EXPECT_EQ(user.Visible(id), size && !xy) << id;
        EXPECT_EQ(user.Text(kFarGroup), size ? "Height/Width" : "Opposite (Upper Right Corner)");
    }

    CustomDialog dialog{nullptr};
};

// The start.

TEST_F(CustomDlg, BeginsWithAnOriginAndAnUpperRightCornerInXY) {
    dialog.SetMapName("whatever was set");
    EXPECT_EQ(dialog.GetMapName(), "whatever was set");
    Run(dialog, [&](kv::User& user) {
        EXPECT_EQ(user.Window().WindowText(), "Custom Map Builder Dialog");
        for (const int id : {kFeet, kXYBounded, kOriginXY, kUpperRight})
            EXPECT_TRUE(user.Checked(id)) << id;
        for (const int id : {kMeters, kLatLonBounded, kOriginLatLon, kWidthAndHeight})
            EXPECT_FALSE(user.Checked(id)) << id;
        ExpectShown(user, true, false);
        EXPECT_THAT(Texts(user, kXYBoxes), ElementsAre("", "", "", ""));
        EXPECT_EQ(user.Text(kMapName), "2000JAN14_09H30M15S");
        EXPECT_EQ(user.Text(kProjection), "1   Texas South Central");
        EXPECT_FALSE(user.Visible(kSecondaryProjection));
    });
    EXPECT_EQ(dialog.GetMapName(), "2000JAN14_09H30M15S");
    EXPECT_TRUE(dialog.GetXYBounded());
}

TEST_F(CustomDlg, BeginsSoAgain) {
    Run(dialog, [&](kv::User& user) {
        TypeXY(user, {"3000000", "500000", "3100000", "600000"});
        user.Click(kOriginLatLon);
        user.Click(kWidthAndHeight);
        user.Click(IDCANCEL);
    });
    Run(dialog, [&](kv::User& user) {
        ExpectShown(user, true, false);
        TypeXY(user, {"3000000", "500000", "3100000", "600000"});
        user.Click(kOriginXY);
        EXPECT_EQ(user.Text(kX), "3000000");
        user.Click(kWidthAndHeight);
        EXPECT_EQ(user.Text(kFarX), "100000.00");
        ExpectShown(user, true, true);
    });
}

TEST_F(CustomDlg, ADerivedOneExchangesItsDataAtTheStartAndAtOk) {
    test::Exchanging<CKvGuiCustomDlg> own(nullptr);
    Run(own, [&](kv::User& user) {
        EXPECT_EQ(own.shown, 1);
        TypeXY(user, {"3000000", "500000", "3100000", "600000"});
        user.Click(IDOK);
    });
    EXPECT_EQ(own.taken, 1);
}

TEST_F(CustomDlg, OKTakesTheUnitThatIsSeen) {
    dialog.m_tBounds.SetFeet(false);
    Run(dialog, [&](kv::User& user) {
        EXPECT_TRUE(user.Checked(kFeet));
        TypeXY(user, {"600000", "100000", "700000", "200000"});
        user.Click(IDOK);
    });
    EXPECT_TRUE(dialog.GetBounds().GetFeet());
}

TEST_F(CustomDlg, ItsScreenAndItsRecordBeginWithTheSameKindOfBounds) {
    dialog.SetXYBounded(false);
    EXPECT_FALSE(dialog.GetXYBounded());
    Run(dialog, [](kv::User& user) { EXPECT_TRUE(user.Checked(kXYBounded)); });
    EXPECT_TRUE(dialog.GetXYBounded());
}

TEST_F(CustomDlg, OffersPredefinedSizes) {
    Run(dialog, [](kv::User& user) {
        EXPECT_THAT(user.Rows(kSize), ElementsAre("7.5 Minutes", "15  Minutes", "30  Minutes",
                                                  "1   Degree", "2   Degrees", "User Defined"));
    });
}

TEST_F(CustomDlg, KeepsBackWhatIsNoPartOfACoordinate) {
    Run(dialog, [](kv::User& user) {
        for (const int id : kXYBoxes) {
            user.Type(id, "-1a2b.5");
            EXPECT_EQ(user.Text(id), "-12.5") << id;
        }
        user.Click(kOriginLatLon);
        for (const int id : {kLat, kLon, kFarLat, kFarLon}) {
            user.Type(id, "2x9");
            EXPECT_EQ(user.Text(id), "29") << id;
        }
    });
}

// Invalid values.

TEST_F(CustomDlg, AnEmptyBoxOfXYIsInvalid) {
    Run(dialog, [&](kv::User& user) {
        for (const int empty : kXYBoxes) {
            TypeXY(user, {"3000000", "500000", "3100000", "600000"});
            user.Window().SetDlgItemText(empty, "");
            desktop.ExpectMessage(kInvalid);
            user.Click(IDOK);
            EXPECT_TRUE(user.Open());
        }
    });
}

TEST_F(CustomDlg, ALoneSignOrPointInABoxOfDegreesIsInvalid) {
    Run(dialog, [&](kv::User& user) {
        user.Click(kOriginLatLon);
        for (const int box : {kLat, kLon, kFarLat, kFarLon}) {
            for (const char* text : {"-", "+", ".", ""}) {
                TypeOrigin(user, "28", "-96");
                TypeFar(user, "29", "-95");
                user.Window().SetDlgItemText(box, text);
                desktop.ExpectMessage(kInvalid);
                user.Click(IDOK);
                EXPECT_TRUE(user.Open()) << box << text;
            }
        }
        TypeFar(user, "29", "-95");
        user.Click(IDOK);
        EXPECT_FALSE(user.Open());
    });
}

TEST_F(CustomDlg, WhatTheProjectionHasNoAnswerForIsInvalidToo) {
    Run(dialog, [&](kv::User& user) {
        TypeXY(user, {"9000000000", "500000", "9000100000", "600000"});
        desktop.ExpectMessage(kInvalid);
        user.Click(IDOK);
        desktop.ExpectMessage(kInvalid);
        user.Click(kOriginLatLon);
        EXPECT_TRUE(user.Checked(kOriginXY));
        EXPECT_FALSE(user.Checked(kOriginLatLon));
        ExpectShown(user, true, false);
        EXPECT_EQ(user.Text(kX), "9000000000");
    });
}

TEST_F(CustomDlg, AnglesWithoutXYStayAndSoDoesTheirOrigin) {
    Run(dialog, [&](kv::User& user) {
        user.Click(kOriginLatLon);
        TypeOrigin(user, "28", "-96");
        TypeFar(user, "29", "-95");
        ExpectPick(kv::proj_sel::kMiscOther, "Zone: 7777: Nowhere");
        user.Select(kProjection, "More...");
        desktop.ExpectMessage(kInvalid);
        user.Click(kOriginXY);
        EXPECT_TRUE(user.Checked(kOriginLatLon));
        EXPECT_EQ(user.Text(kLat), "28");
        ExpectShown(user, false, false);
        desktop.ExpectMessage(kInvalid);
        user.Click(IDOK);
        // A projection that has an answer needs no word about the one that had none.
        user.Select(kProjection, "115 UTM");
        user.Click(IDOK);
    });
    EXPECT_EQ(dialog.GetBounds().GetPrimeProj(), 115);
    EXPECT_NEAR(dialog.GetBounds().GetLatMin(), 28.0, 1e-12);
    EXPECT_EQ(dialog.GetBounds().GetXMin(), test::Projected(28, -96, 115, kFeetUnits).first);
}

// The outcome.

TEST_F(CustomDlg, OKGivesBothKindsOfBounds) {
    EXPECT_EQ(Run(dialog,
                  [&](kv::User& user) {
                      TypeXY(user, {"3000000", "500000", "3100000", "600000"});
                      user.Type(kMapName, "MINE");
                      user.Click(IDOK);
                  }),
              IDOK);
    const CKvMapBounds& map = dialog.GetBounds();
    ExpectNear(test::XYOf(map), {3'000'000, 3'100'000, 500'000, 600'000}, 0);
    double lat = 0.0;
    double lon = 0.0;
    CKvUtilLLdrv::XYdrv(3'000'000, 500'000, &lat, &lon, 1, kFeetUnits, 1, 100.0, 0.0, 0.0);
    EXPECT_EQ(map.GetLatMin(), lat);
    EXPECT_EQ(map.GetLonMin(), lon);
    EXPECT_EQ(dialog.GetMapName(), "MINE");
    EXPECT_TRUE(map.GetCustomMapFlag());
    EXPECT_TRUE(map.GetFeet());
    EXPECT_EQ(map.GetPrimeProj(), 1);
    EXPECT_EQ(dialog.GetScale(), 4000);
    EXPECT_EQ(map.GetScale(), 4000);
}

TEST_F(CustomDlg, EmptyMinutesAndSecondsAreZeroOnTheScreenToo) {
    Run(dialog, [&](kv::User& user) {
        user.Click(kOriginLatLon);
        TypeOrigin(user, "28", "-96");
        TypeFar(user, "29", "-95");
        user.Click(kMeters);
        user.Click(IDOK);
    });
    EXPECT_FALSE(dialog.GetBounds().GetFeet());
    ExpectNear(test::AnglesOf(dialog.GetBounds()), {28, 29, -96, -95}, 1e-12);
    const auto [x, y] = test::Projected(28, -96, 1, kMeterUnits);
    EXPECT_EQ(dialog.GetBounds().GetXMin(), x);
    EXPECT_EQ(dialog.GetBounds().GetYMin(), y);
    Run(dialog, [&](kv::User& user) {
        user.Click(kOriginLatLon);
        TypeOrigin(user, "28", "-96");
        TypeFar(user, "29", "-95");
        user.Click(kWidthAndHeight);
        EXPECT_EQ(user.Text(kLatMin), "0");
        EXPECT_EQ(user.Text(kLonSec), "0");
        EXPECT_THAT(Texts(user, kFarBoxes), ElementsAre("1", "0", "0", "1", "0", "0"));
    });
}

TEST_F(CustomDlg, AScaleOfOnesOwnIsKept) {
    Run(dialog, [&](kv::User& user) {
        desktop.ExpectMessage(kInvalid);
        user.Click(kSizingOptions);
        TypeXY(user, {"3000000", "500000", "3100000", "600000"});
        desktop.ExpectWindow("CKvGuiSizingDlg", [](kv::User& sizing) {
            EXPECT_EQ(sizing.Text(kv::sizing::kScaleUnit), "Feet");
            sizing.Type(kv::sizing::kScale, "3000");
            sizing.Click(IDOK);
        });
        user.Click(kSizingOptions);
        user.Click(IDOK);
    });
    EXPECT_EQ(dialog.GetScale(), 3000);
}

TEST_F(CustomDlg, ASizingThatFoundNoBoundsLeavesTheScaleToOK) {
    Run(dialog, [&](kv::User& user) {
        desktop.ExpectMessage(kInvalid);
        user.Click(kSizingOptions);
        TypeXY(user, {"3000000", "500000", "3100000", "600000"});
        user.Click(IDOK);
    });
    EXPECT_EQ(dialog.GetScale(), 4000);
}

TEST_F(CustomDlg, TheSizingBeginsWithTheBoundsTheScaleAndTheUnit) {
    Run(dialog, [&](kv::User& user) {
        TypeXY(user, {"500000", "3000000", "530000", "3020000"});
        user.Select(kProjection, "115 UTM");
        user.Click(kMeters);
        desktop.ExpectWindow("CKvGuiSizingDlg", [](kv::User& sizing) {
            EXPECT_EQ(sizing.Text(kv::sizing::kScaleUnit), "Meters");
            sizing.Type(kv::sizing::kScale, "3000");
            sizing.Click(IDOK);
        });
        user.Click(kSizingOptions);
        desktop.ExpectWindow("CKvGuiSizingDlg", [](kv::User& sizing) {
            EXPECT_EQ(sizing.Text(kv::sizing::kScale), "3000");
            EXPECT_EQ(sizing.Text(kv::sizing::kWidth), "393.7");
            EXPECT_EQ(sizing.Text(kv::sizing::kHeight), "262.467");
            sizing.Click(IDCANCEL);
        });
        user.Click(kSizingOptions);
        user.Click(IDOK);
    });
    EXPECT_EQ(dialog.GetScale(), 3000);
}

TEST_F(CustomDlg, TheScaleOfOKIsOneOfTheUnit) {
    for (const bool meters : {true, false}) {
        CustomDialog it(nullptr);
        Run(it, [&](kv::User& user) {
            TypeXY(user, {"500000", "3000000", "530000", "3020000"});
            user.Select(kProjection, "115 UTM");
            if (meters) user.Click(kMeters);
            user.Click(IDOK);
        });
        CKvGuiSizingDlg sizing(nullptr);
        sizing.SetBounds({500'000, 530'000, 3'000'000, 3'020'000});
        sizing.SetUnit(meters);
        EXPECT_EQ(it.GetScale(), sizing.CalculateScaleClosed()) << meters;
    }
}

// The far side.

TEST_F(CustomDlg, EachFormOfTheFarSideGivesBothKindsOfBoundsToTheRecord) {
    const auto xyOf = [](double lat, double lon, double farLat, double farLon) {
        const auto low = test::Projected(lat, lon, 115, kFeetUnits);
        const auto high = test::Projected(farLat, farLon, 115, kFeetUnits);
        return CMinMax2Dd_t{low.first, high.first, low.second, high.second};
    };
    Run(dialog, [&](kv::User& user) {
        TypeXY(user, {"500000", "3000000", "600000", "3100000"});
        user.Select(kProjection, "115 UTM");
        // The boxes of X/Y go with the person.
        for (const int id : kXYBoxes)
            user.Window().SetDlgItemText(id, "");
        user.Click(kOriginLatLon);
        TypeOrigin(user, "28", "-96");
        TypeFar(user, "29", "-95");
        user.Click(kWidthAndHeight);
        ExpectNear(test::AnglesOf(dialog.GetBounds()), {28, 29, -96, -95}, 1e-9);
        ExpectNear(test::XYOf(dialog.GetBounds()), xyOf(28, -96, 29, -95), 1e-6);
        // A height and a width that are typed count from the origin.
        TypeOrigin(user, "27", "-95");
        TypeFar(user, "2", "3");
        user.Click(kUpperRight);
        ExpectNear(test::AnglesOf(dialog.GetBounds()), {27, 29, -95, -92}, 1e-9);
        ExpectNear(test::XYOf(dialog.GetBounds()), xyOf(27, -95, 29, -92), 1e-6);
        EXPECT_EQ(user.Text(kFarLat), "29");
        EXPECT_EQ(user.Text(kFarLon), "-92");
    });
}

TEST_F(CustomDlg, EachFormOfAFarXYGivesItsAngles) {
    const auto expectAngles = [&](double x, double y, double farX, double farY) {
        double lat = 0.0;
        double lon = 0.0;
        CKvUtilLLdrv::XYdrv(x, y, &lat, &lon, 1, kFeetUnits, 1, 100.0, 0.0, 0.0);
        EXPECT_NEAR(dialog.GetBounds().GetLatMin(), lat, 1e-9);
        EXPECT_NEAR(dialog.GetBounds().GetLonMin(), lon, 1e-9);
        CKvUtilLLdrv::XYdrv(farX, farY, &lat, &lon, 1, kFeetUnits, 1, 100.0, 0.0, 0.0);
        EXPECT_NEAR(dialog.GetBounds().GetLatMax(), lat, 1e-9);
        EXPECT_NEAR(dialog.GetBounds().GetLonMax(), lon, 1e-9);
    };
    Run(dialog, [&](kv::User& user) {
        TypeXY(user, {"3000000", "500000", "3100000", "620000"});
        user.Click(kWidthAndHeight);
        expectAngles(3'000'000, 500'000, 3'100'000, 620'000);
        TypeXY(user, {"2900000", "400000", "50000", "60000"});
        user.Click(kUpperRight);
        expectAngles(2'900'000, 400'000, 2'950'000, 460'000);
    });
}

TEST_F(CustomDlg, ATypedHeightAndWidthAreTheMapsFarSide) {
    for (const bool throughXY : {false, true}) {
        CustomDialog it(nullptr);
        Run(it, [&](kv::User& user) {
            user.Click(kOriginLatLon);
            user.Click(kWidthAndHeight);
            TypeOrigin(user, "28", "-96");
            TypeFar(user, "0", "1");
            user.Type(kFarLatMin, "30");
            if (throughXY) user.Click(kOriginXY);
            user.Click(IDOK);
        });
        ExpectNear(test::AnglesOf(it.GetBounds()), {28, 28.5, -96, -95}, throughXY ? 1e-6 : 1e-12);
    }
}

TEST_F(CustomDlg, TheUpperRightCornerBecomesAWidthAndHeightAndBack) {
    Run(dialog, [&](kv::User& user) {
        TypeXY(user, {"3000000", "500000", "3100000", "620000"});
        user.Click(kWidthAndHeight);
        EXPECT_THAT(Texts(user, kXYBoxes),
                    ElementsAre("3000000.00", "500000.00", "100000.00", "120000.00"));
        ExpectShown(user, true, true);
        // Once only.
        user.Click(kWidthAndHeight);
        EXPECT_EQ(user.Text(kFarX), "100000.00");
        user.Click(kUpperRight);
        EXPECT_THAT(Texts(user, kXYBoxes),
                    ElementsAre("3000000.00", "500000.00", "3100000.00", "620000.00"));
        ExpectShown(user, true, false);
        user.Click(kUpperRight);
        EXPECT_EQ(user.Text(kFarX), "3100000.00");
    });
}

TEST_F(CustomDlg, ALargeSpanHasSixDigits) {
    Run(dialog, [&](kv::User& user) {
        TypeXY(user, {"0", "500000", "1234567.5", "620000"});
        user.Click(kWidthAndHeight);
        EXPECT_EQ(user.Text(kFarX), "1234570.00");
    });
}

TEST_F(CustomDlg, WithoutXYTheBoxesOfASizeAreEmpty) {
    Run(dialog, [&](kv::User& user) {
        user.Click(kWidthAndHeight);
        EXPECT_THAT(Texts(user, kXYBoxes), ElementsAre("", "", "", ""));
        ExpectShown(user, true, true);
        user.Click(kUpperRight);
        EXPECT_THAT(Texts(user, kXYBoxes), ElementsAre("", "", "", ""));
    });
}

TEST_F(CustomDlg, APredefinedSizeIsAHeightAndAWidth) {
    const struct {
        const char* line;
        std::vector<std::string> texts;
        double degrees;
    } cases[] = {
        {"7.5 Minutes", {"0", "7", "30", "0", "7", "30"}, 0.125},
        {"15  Minutes", {"0", "15", "0", "0", "15", "0"}, 0.25},
        {"30  Minutes", {"0", "30", "0", "0", "30", "0"}, 0.5},
        {"1   Degree", {"1", "0", "0", "1", "0", "0"}, 1.0},
        {"2   Degrees", {"2", "0", "0", "2", "0", "0"}, 2.0},
    };
    for (const auto& each : cases) {
        CustomDialog it(nullptr);
        Run(it, [&](kv::User& user) {
            user.Click(kOriginLatLon);
            user.Click(kWidthAndHeight);
            TypeOrigin(user, "29", "-96");
            user.Select(kSize, each.line);
            EXPECT_EQ(Texts(user, kFarBoxes), each.texts);
            ExpectShown(user, false, true);
            user.Click(IDOK);
        });
        ExpectNear(test::AnglesOf(it.GetBounds()), {29, 29 + each.degrees, -96, -96 + each.degrees},
                   1e-12);
    }
}

TEST_F(CustomDlg, APredefinedSizeGivesTheOriginToTheRecord) {
    Run(dialog, [&](kv::User& user) {
        user.Click(kOriginLatLon);
        TypeOrigin(user, "28", "-96");
        TypeFar(user, "29", "-95");
        user.Click(kWidthAndHeight);
        TypeOrigin(user, "29", "-96");
        user.Select(kSize, "1   Degree");
        ExpectNear(test::AnglesOf(dialog.GetBounds()), {29, 30, -96, -95}, 1e-12);
        const auto [x, y] = test::Projected(29, -96, 1, kFeetUnits);
        EXPECT_EQ(dialog.GetBounds().GetXMin(), x);
        EXPECT_EQ(dialog.GetBounds().GetYMin(), y);
    });
}

TEST_F(CustomDlg, NoLineOfTheSizesChangesNothing) {
    Run(dialog, [&](kv::User& user) {
        user.Click(kOriginLatLon);
        user.Click(kWidthAndHeight);
        TypeOrigin(user, "29", "-96");
        TypeFar(user, "1", "2");
        auto& sizes = dialog.Control<CComboBox>(kSize);
        sizes.AddString("a line of the host's");
        for (const int line : {-1, 6}) {
            sizes.SetCurSel(line);
            dialog.OnCmdMsg(kSize, CBN_SELCHANGE, nullptr, nullptr);
            EXPECT_EQ(user.Text(kFarLat), "1") << line;
            EXPECT_EQ(user.Text(kFarLon), "2") << line;
        }
    });
}

TEST_F(CustomDlg, UserDefinedLeavesZerosAndTheRecord) {
    Run(dialog, [&](kv::User& user) {
        user.Click(kOriginLatLon);
        user.Click(kWidthAndHeight);
        TypeOrigin(user, "29", "-96");
        const CKvMapBounds before = dialog.m_tBounds;
        user.Select(kSize, "User Defined");
        EXPECT_THAT(Texts(user, kFarBoxes), ElementsAre("0", "0", "0", "0", "0", "0"));
        EXPECT_EQ(dialog.m_tBounds, before);
    });
}

// The origin, and the units.

TEST_F(CustomDlg, XYThatAreSeenAreKeptByTheirOwnOriginAndByTheUnits) {
    Run(dialog, [&](kv::User& user) {
        const std::array<const char*, 4> texts{"3000000", "500000", "3100000", "600000"};
        TypeXY(user, texts);
        for (const int radio : {kOriginXY, kMeters, kFeet, kXYBounded, kMeters}) {
            user.Click(radio);
            EXPECT_THAT(Texts(user, kXYBoxes), testing::ElementsAreArray(texts)) << radio;
            ExpectNear(test::XYOf(dialog.m_tBounds), {3'000'000, 3'100'000, 500'000, 600'000}, 0);
        }
        EXPECT_FALSE(dialog.m_tBounds.GetFeet());
        // Also where some are missing.
        user.Window().SetDlgItemText(kFarY, "");
        user.Click(kFeet);
        user.Click(kOriginXY);
        EXPECT_THAT(Texts(user, kXYBoxes), ElementsAre("3000000", "500000", "3100000", ""));
    });
}

TEST_F(CustomDlg, AMapOfXYWithAnglesAsOriginDoesNotReconvertForAUnit) {
    Run(dialog, [&](kv::User& user) {
        TypeXY(user, {"3000000", "500000", "3100000", "600000"});
        user.Click(kOriginLatLon);
        const auto angles = Texts(user, kOriginBoxes);
        user.Click(kMeters);
        EXPECT_FALSE(dialog.m_tBounds.GetFeet());
        EXPECT_EQ(Texts(user, kOriginBoxes), angles);
    });
}

TEST_F(CustomDlg, AMapOfAnglesReconvertsItsXYForAUnit) {
    Run(dialog, [&](kv::User& user) {
        TypeXY(user, {"3000000", "500000", "3100000", "600000"});
        user.Click(kLatLonBounded);
        const auto angles = Texts(user, kOriginBoxes);
        user.Click(kMeters);
        EXPECT_NE(Texts(user, kOriginBoxes), angles);
        user.Click(kFeet);
        EXPECT_EQ(Texts(user, kOriginBoxes), angles);
    });
}

TEST_F(CustomDlg, TypedAnglesAreNotEmptiedByAUnitOrTheirOwnOrigin) {
    Run(dialog, [&](kv::User& user) {
        user.Click(kLatLonBounded);
        TypeOrigin(user, "28", "-96");
        TypeFar(user, "29", "-95");
        for (const int radio : {kMeters, kFeet, kOriginLatLon}) {
            user.Click(radio);
            EXPECT_EQ(user.Text(kLat), "28") << radio;
            EXPECT_EQ(user.Text(kFarLon), "-95") << radio;
            ExpectShown(user, false, false);
        }
    });
}

TEST_F(CustomDlg, WithoutAValidSideTheOtherIsEmpty) {
    Run(dialog, [&](kv::User& user) {
        user.Type(kX, "5");
        user.Click(kOriginLatLon);
        ExpectShown(user, false, false);
        EXPECT_THAT(Texts(user, kOriginBoxes), ElementsAre("", "", "", "", "", ""));
        EXPECT_EQ(user.Text(kX), "");
        user.Type(kLat, "28");
        user.Click(kOriginXY);
        ExpectShown(user, true, false);
        EXPECT_THAT(Texts(user, kXYBoxes), ElementsAre("", "", "", ""));
        EXPECT_EQ(user.Text(kLat), "");
    });
}

TEST_F(CustomDlg, TheKindOfBoundsBringsItsOrigin) {
    Run(dialog, [&](kv::User& user) {
        user.Click(kLatLonBounded);
        EXPECT_TRUE(user.Checked(kOriginLatLon));
        EXPECT_FALSE(user.Checked(kOriginXY));
        EXPECT_FALSE(dialog.GetXYBounded());
        ExpectShown(user, false, false);
        user.Click(kXYBounded);
        EXPECT_TRUE(user.Checked(kOriginXY));
        EXPECT_TRUE(dialog.GetXYBounded());
        ExpectShown(user, true, false);
        // The origin alone leaves the kind.
        user.Click(kOriginLatLon);
        EXPECT_TRUE(dialog.GetXYBounded());
        EXPECT_TRUE(user.Checked(kXYBounded));
        user.Click(kLatLonBounded);
        EXPECT_FALSE(dialog.GetXYBounded());
    });
}

// The projection.

TEST_F(CustomDlg, APickedProjectionIsTheRecords) {
    Run(dialog, [&](kv::User& user) {
        TypeXY(user, {"3000000", "500000", "3100000", "600000"});
        user.Select(kProjection, "115 UTM");
        EXPECT_EQ(dialog.m_tBounds.GetPrimeProj(), 115);
        EXPECT_EQ(user.Text(kX), "3000000");
        // The middle of what the projection before made of it.
        EXPECT_NEAR(dialog.m_tBounds.GetRectifyingLat(),
                    (dialog.m_tBounds.GetLatMin() + dialog.m_tBounds.GetLatMax()) / 2, 1e-12);
        EXPECT_NEAR(dialog.m_tBounds.GetRectifyingLon(),
                    (dialog.m_tBounds.GetLonMin() + dialog.m_tBounds.GetLonMax()) / 2, 1e-12);
        // It is the driver's at once.
        test::ExpectRectifyingPoint(dialog.m_tBounds.GetRectifyingLat(),
                                    dialog.m_tBounds.GetRectifyingLon());
    });
}

TEST_F(CustomDlg, AProjectionForEmptyBoxesIsTakenAllTheSame) {
    Run(dialog, [&](kv::User& user) {
        desktop.ExpectMessage(kInvalid);
        user.Select(kProjection, "115 UTM");
    });
    EXPECT_EQ(dialog.GetBounds().GetPrimeProj(), 115);
}

TEST_F(CustomDlg, ARectifyingPointOfTheUsersIsTheRecords) {
    Run(dialog, [&](kv::User& user) {
        ExpectPick(kv::proj_sel::kStraightMercator, "Clarke 1866");
        desktop.ExpectWindow("CKvGuiUTMZoneDlg", [](kv::User& zone) {
            zone.Click(kv::utm_zone::kUserSpecified);
            zone.Type(kv::utm_zone::kLat, "27");
            zone.Type(kv::utm_zone::kLon, "-91");
            zone.Click(IDOK);
        });
        user.Select(kProjection, "More...");
        EXPECT_EQ(user.Text(kProjection), "199 Straight Mercator");
        // It is the driver's at once.
        test::ExpectRectifyingPoint(27, -91);
        user.Click(kOriginLatLon);
        TypeOrigin(user, "27", "-91");
        TypeFar(user, "28", "-90");
        user.Click(kOriginXY);
        EXPECT_THAT(user.Text(kX), testing::AnyOf("0.00", "-0.00"));
        user.Click(IDOK);
    });
    EXPECT_TRUE(dialog.GetBounds().GetRectSpec());
    EXPECT_EQ(dialog.GetBounds().GetProjZoneCode(), 99);
    EXPECT_EQ(dialog.GetBounds().GetRectifyingLat(), 27.0);
}

TEST_F(CustomDlg, ADroppedListShowsTheFavouritesAndMoreAlone) {
    Run(dialog, [&](kv::User& user) {
        TypeXY(user, {"3000000", "500000", "3100000", "600000"});
        ExpectPick(kv::proj_sel::kStateLambert, "Zone: 4: North Coast");
        user.Select(kProjection, "More...");
        EXPECT_EQ(user.Text(kProjection), "Zone : 4: North Coast");
        EXPECT_THAT(user.Rows(kProjection), SizeIs(9));
        user.Drop(kProjection);
        EXPECT_THAT(user.Rows(kProjection), SizeIs(8));
        EXPECT_EQ(user.Text(kProjection), "Zone : 4: North Coast");
        user.Key(kProjection, "Escape");
    });
    EXPECT_EQ(dialog.m_nProjection, 4);
}

TEST_F(CustomDlg, TheBoxAroundTheWholeRectangleHoldsItsCorners) {
    CKvMapBounds map;
    map.SetXMin(1'000'000);
    map.SetXMax(2'000'000);
    map.SetYMin(3'000'000);
    map.SetYMax(4'000'000);
    dialog.m_nProjection = 115;
    const auto expectAround = [&](int units) {
        CMinMax2Dd_t around{HUGE_VAL, -HUGE_VAL, HUGE_VAL, -HUGE_VAL};
        for (const double x : {map.GetXMin(), map.GetXMax()}) {
            for (const double y : {map.GetYMin(), map.GetYMax()}) {
                double lat = 0.0;
                double lon = 0.0;
                CKvUtilLLdrv::XYdrv(x, y, &lat, &lon, 115, units, 1, 100.0, 0.0, 0.0);
                around = {std::min(around.minX, lat), std::max(around.maxX, lat),
                          std::min(around.minY, lon), std::max(around.maxY, lon)};
            }
        }
        dialog.PopulateIsbLL(map);
        ExpectNear(test::AnglesOf(map), around, 1e-12);
    };
    // Without a window, and so without a mark at "Feet".
    expectAround(kMeterUnits);
    map.SetYMin(9'000'000);
    map.SetYMax(9'900'000);
    Run(dialog, [&](kv::User&) {
        dialog.m_nProjection = 115;
        expectAround(kFeetUnits);
    });
}

TEST_F(CustomDlg, TheBoxAroundARectangleWithACornerThatIsNoPlaceStaysAsItWas) {
    constexpr double kNowhere = 1e12;
    double lat = 0.0;
    double lon = 0.0;
    CKvUtilLLdrv::XYdrv(kNowhere, 4'000'000, &lat, &lon, 115, kMeterUnits, 1, 100.0, 0.0, 0.0);
    ASSERT_EQ(lat, HUGE_VAL);
    CKvMapBounds map;
    map.SetXMin(1'000'000);
    map.SetXMax(kNowhere);
    map.SetYMin(3'000'000);
    map.SetYMax(4'000'000);
    map.SetLatMin(27);
    map.SetLatMax(28);
    map.SetLonMin(-91);
    map.SetLonMax(-90);
    dialog.m_nProjection = 115;
    dialog.PopulateIsbLL(map);
    ExpectNear(test::AnglesOf(map), {27, 28, -91, -90}, 0.0);
}

// Every order of choosing, against a plain model of what a person sees.

enum Choice {
    kChooseXYBounds,
    kChooseAngleBounds,
    kChooseXYOrigin,
    kChooseAngleOrigin,
    kChooseSize,
    kChooseCorner,
    kChooseFeet,
    kChooseMeters,
    kChoose115,
    kChoose114,
};

/// Origin and far side of one axis.
struct Sides {
    double origin = 0.0;
    double far = 0.0;
};

/// The boxes as numbers, and the choices.
class Model {
public:
    Model(double x, double y, double farX, double farY) : x_{x, farX}, y_{y, farY} {}

    void Choose(Choice choice) {
        switch (choice) {
            case kChooseXYBounds:
                xyBounds_ = true;
                ToXY();
                break;
            case kChooseAngleBounds:
                xyBounds_ = false;
                if (xy_) ToAngles();
                break;
            case kChooseXYOrigin:
                ToXY();
                break;
            case kChooseAngleOrigin:
                ToAngles();
                break;
            case kChooseSize:
                ToSize();
                break;
            case kChooseCorner:
                ToCorner();
                break;
            case kChooseFeet:
            case kChooseMeters:
                units_ = choice == kChooseFeet ? kFeetUnits : kMeterUnits;
                if (!xy_ && !xyBounds_) ToAngles();
                break;
            case kChoose115:
            case kChoose114:
                projection_ = choice == kChoose115 ? 115 : 114;
                break;
        }
    }

    bool InXY() const { return xy_; }
    bool HasSize() const { return size_; }
    bool HasXYBounds() const { return xyBounds_; }
    bool InFeet() const { return units_ == kFeetUnits; }
    int Projection() const { return projection_; }
    std::array<double, 4> Boxes() const {
        return xy_ ? std::array{x_.origin, y_.origin, x_.far, y_.far}
                   : std::array{lat_.origin, lon_.origin, lat_.far, lon_.far};
    }
    /// What OK makes of it.
    CMinMax2Dd_t XY() const {
        if (xy_) return {x_.origin, Far(x_), y_.origin, Far(y_)};
        const auto low = test::Projected(lat_.origin, lon_.origin, projection_, units_);
        const auto high = test::Projected(Far(lat_), Far(lon_), projection_, units_);
        return {low.first, high.first, low.second, high.second};
    }
    CMinMax2Dd_t Angles() const {
        if (!xy_) return {lat_.origin, Far(lat_), lon_.origin, Far(lon_)};
        const auto low = Inverted(x_.origin, y_.origin);
        const auto high = Inverted(Far(x_), Far(y_));
        return {low.first, high.first, low.second, high.second};
    }

private:
    double Far(const Sides& sides) const { return size_ ? sides.origin + sides.far : sides.far; }
    std::pair<double, double> Inverted(double x, double y) const {
        double lat = 0.0;
        double lon = 0.0;
        CKvUtilLLdrv::XYdrv(x, y, &lat, &lon, projection_, units_, 1, 100.0, 0.0, 0.0);
        return {lat, lon};
    }
    void ToXY() {
        if (xy_) return;
        const CMinMax2Dd_t bounds = XY();
        xy_ = true;
        const auto shown = [](double value) { return std::round(value * 100.0) / 100.0; };
        x_ = {shown(bounds.minX), shown(size_ ? bounds.maxX - bounds.minX : bounds.maxX)};
        y_ = {shown(bounds.minY), shown(size_ ? bounds.maxY - bounds.minY : bounds.maxY)};
    }
    /// From the boxes of X/Y, seen or not.
    void ToAngles() {
        xy_ = true;
        const CMinMax2Dd_t bounds = Angles();
        xy_ = false;
        lat_ = {bounds.minX, size_ ? bounds.maxX - bounds.minX : bounds.maxX};
        lon_ = {bounds.minY, size_ ? bounds.maxY - bounds.minY : bounds.maxY};
    }
    static double SixDigits(double value) { return kv::Atof(kv::FormatG(value)); }
    /// The boxes of X/Y take the size whichever are seen.
    void ToSize() {
        if (size_) return;
        x_.far = SixDigits(x_.far - x_.origin);
        y_.far = SixDigits(y_.far - y_.origin);
        lat_.far -= lat_.origin;
        lon_.far -= lon_.origin;
        size_ = true;
    }
    /// Those of X/Y only where they are seen.
    void ToCorner() {
        if (!size_) return;
        size_ = false;
        if (xy_) {
            x_.far += x_.origin;
            y_.far += y_.origin;
        }
        lat_.far += lat_.origin;
        lon_.far += lon_.origin;
    }

    Sides x_;
    Sides y_;
    Sides lat_;
    Sides lon_;
    bool xy_ = true;
    bool xyBounds_ = true;
    bool size_ = false;
    int units_ = kFeetUnits;
    int projection_ = 1;
};

class CustomWalk : public CustomDlg {
protected:
    static constexpr double kXYTolerance = 0.5;
    static constexpr double kAngleTolerance = 5e-6;

    static void Press(kv::User& user, Choice choice) {
        switch (choice) {
            case kChooseXYBounds:
                return user.Click(kXYBounded);
            case kChooseAngleBounds:
                return user.Click(kLatLonBounded);
            case kChooseXYOrigin:
                return user.Click(kOriginXY);
            case kChooseAngleOrigin:
                return user.Click(kOriginLatLon);
            case kChooseSize:
                return user.Click(kWidthAndHeight);
            case kChooseCorner:
                return user.Click(kUpperRight);
            case kChooseFeet:
                return user.Click(kFeet);
            case kChooseMeters:
                return user.Click(kMeters);
            case kChoose115:
                return user.Select(kProjection, "115 UTM");
            case kChoose114:
                return user.Select(kProjection, "114 UTM");
        }
    }
    static double Angle(kv::User& user, int deg, int min, int sec) {
        const std::string degrees = user.Text(deg);
        const double rest = kv::Atof(user.Text(min)) / 60.0 + kv::Atof(user.Text(sec)) / 3600.0;
        const double value = std::abs(kv::Atof(degrees)) + rest;
        return degrees.starts_with('-') ? -value : value;
    }
    static std::array<double, 4> Shown(kv::User& user, bool xy) {
        const auto number = [&](int id) { return kv::Atof(user.Text(id)); };
        if (xy) return {number(kX), number(kY), number(kFarX), number(kFarY)};
        return {Angle(user, kLat, kLatMin, kLatSec), Angle(user, kLon, kLonMin, kLonSec),
                Angle(user, kFarLat, kFarLatMin, kFarLatSec),
                Angle(user, kFarLon, kFarLonMin, kFarLonSec)};
    }
    /// Walks, looking at every step at what is seen, and in the end at what OK gives.
    void Walk(const std::vector<Choice>& choices) {
        std::string way;
        for (const Choice choice : choices)
            way += std::to_string(choice) + " ";
        SCOPED_TRACE(way);
        CustomDialog it(nullptr);
        Model model(500'000, 3'000'000, 612'345.67, 3'112'345.67);
        Run(it, [&](kv::User& user) {
            TypeXY(user, {"500000", "3000000", "612345.67", "3112345.67"});
            for (const Choice choice : choices) {
                Press(user, choice);
                model.Choose(choice);
                SCOPED_TRACE(choice);
                ExpectShown(user, model.InXY(), model.HasSize());
                EXPECT_EQ(user.Checked(kXYBounded), model.HasXYBounds());
                EXPECT_EQ(user.Checked(kOriginXY), model.InXY());
                const auto shown = Shown(user, model.InXY());
                const auto expected = model.Boxes();
                for (std::size_t i = 0; i < shown.size(); ++i) {
                    EXPECT_NEAR(shown[i], expected[i],
                                model.InXY() ? kXYTolerance : kAngleTolerance)
                        << i;
                }
                if (HasFailure()) return;
            }
            user.Click(IDOK);
        });
        if (HasFailure()) return;
        ExpectNear(test::XYOf(it.GetBounds()), model.XY(), kXYTolerance);
        ExpectNear(test::AnglesOf(it.GetBounds()), model.Angles(), kAngleTolerance);
        EXPECT_EQ(it.GetBounds().GetXYBounded(), model.HasXYBounds());
        EXPECT_EQ(it.GetBounds().GetFeet(), model.InFeet());
        EXPECT_EQ(it.GetBounds().GetPrimeProj(), model.Projection());
        EXPECT_THAT(desktop.Messages(), IsEmpty());
    }
};

TEST_F(CustomWalk, EveryOrderOfTheFiveChoicesGivesWhatThePersonSees) {
    // Each of the five is made twice, there and back, in the order of a permutation.
    std::vector<std::pair<Choice, Choice>> turns{{kChooseAngleBounds, kChooseXYBounds},
                                                 {kChooseAngleOrigin, kChooseXYOrigin},
                                                 {kChooseSize, kChooseCorner},
                                                 {kChooseMeters, kChooseFeet},
                                                 {kChoose115, kChoose114}};
    do {
        std::vector<Choice> choices;
        for (const auto& [there, back] : turns)
            choices.push_back(there);
        for (const auto& [there, back] : turns)
            choices.push_back(back);
        Walk(choices);
        if (HasFailure()) return;
    } while (std::next_permutation(turns.begin(), turns.end()));
}

TEST_F(CustomWalk, AnyWayThroughTheChoicesGivesWhatThePersonSees) {
    std::mt19937 random(15101);
    for (int way = 0; way < 150; ++way) {
        std::vector<Choice> choices;
        for (int step = 0; step < 12; ++step)
            choices.push_back(static_cast<Choice>(random() % 10));
        Walk(choices);
        if (HasFailure()) return;
    }
}

}  // namespace
