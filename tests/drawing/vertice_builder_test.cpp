#include <chrono>
#include <set>

#include "controls/file_pick_ids.h"
#include "support/file_faults.h"
#include "support/temp_folder.h"
#include "vertice_builder_fixture.h"
#include "window/controls/edit.h"

using namespace kv::vertice_builder;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

using VerticeBuilder = test::VerticeBuilderTest;

void TypeXy(kv::User& user, const char* x, const char* y) {
    user.Type(kX, x);
    user.Type(kY, y);
}

// DecodePts.

TEST_F(VerticeBuilder, DecodesXAndYWithAnySeparator) {
    for (const char* text :
         {"100.5 , 200.5", "100.5;200.5", "100.5\t200.5", "100.5 200.5", "1.005e2 2005E-1"}) {
        std::string row = text;
        std::string out;
        EXPECT_TRUE(dialog.DecodePts(row, out, true));
        EXPECT_EQ(out, "100.500000 , 200.500000") << text;
    }
}

TEST_F(VerticeBuilder, TheRowItselfGetsBlanksForItsSeparators) {
    std::string row = "1,2;3\t4";
    std::string out;
    dialog.DecodePts(row, out, true);
    EXPECT_EQ(row, "1 2 3 4");
    row = ",1 2";
    dialog.DecodePts(row, out, true);
    EXPECT_EQ(row, ",1 2");
    EXPECT_EQ(out, "0.000000 , 0.000000");
    row = "abc";
    dialog.DecodePts(row, out, true);
    EXPECT_EQ(out, "0.000000 , 0.000000");
}

TEST_F(VerticeBuilder, DecodesLatitudeAndLongitudeInEachForm) {
    const std::string expected = test::VerticeBuilderTest::XyOf(28.5, -91.25);
    for (const char* text : {"28.5 , -91.25", "28 30 0 , -91 15 0", "28.5 , -91 15 0",
                             "28 30 0.000000  ,   -91 15 0.000000"}) {
        std::string row = text;
        std::string out;
        EXPECT_TRUE(dialog.DecodePts(row, out, false));
        EXPECT_EQ(out, expected) << text;
    }
}

TEST_F(VerticeBuilder, ALongitudeTakesTheLastThreeNumbersThatThereAre) {
    std::string row = "28 30 36.0  ,   -91.250000";
    std::string out;
    EXPECT_TRUE(dialog.DecodePts(row, out, false));
    EXPECT_EQ(out, XyOf(28.51, -91.25 - 0.51));
    row = "28 30 36 -91 15";
    EXPECT_TRUE(dialog.DecodePts(row, out, false));
    EXPECT_EQ(out, XyOf(28.51, -91 - 0.25 - 0.01));
}

TEST_F(VerticeBuilder, DegreesMinutesAndSecondsAreReadInSinglePrecision) {
    std::string row = "28 30 15.123456789 , -91 15.9 7.1";
    std::string out;
    EXPECT_TRUE(dialog.DecodePts(row, out, false));
    const double lat = 28 + 30 / 60.0 + static_cast<double>(15.123456789F) / 3600.0;
    const double lon = -(91 + 15 / 60.0 + static_cast<double>(7.1F) / 3600.0);
    EXPECT_EQ(out, XyOf(lat, lon));
}

TEST_F(VerticeBuilder, AnAngleOutOfRangeIsToldAndRefused) {
    const std::pair<const char*, const char*> kCases[] = {
        {"91.0 , -90.0", "Lat 91.000000 is out of range [-90.00..+90.00]"},
        {"-90.5 , 0.0", "Lat -90.500000 is out of range [-90.00..+90.00]"},
        {"28.0 , 180.5", "Long 180.500000 is out of range [-180.00..+180.00]"},
        {"28.0 , -181.0", "Long -181.000000 is out of range [-180.00..+180.00]"},
    };
    for (const auto& [text, words] : kCases) {
        desktop.ExpectMessage(words);
        std::string row = text;
        std::string out = "as it was";
        EXPECT_FALSE(dialog.DecodePts(row, out, false));
        EXPECT_EQ(out, "as it was");
    }
    for (const char* text : {"90.0 , 180.0", "-90.0 , -180.0"}) {
        std::string row = text;
        std::string out;
        EXPECT_TRUE(dialog.DecodePts(row, out, false)) << text;
    }
}

TEST_F(VerticeBuilder, ConvertsRowsBetweenTheForms) {
    std::string out;
    dialog.ConvertStringDegDegtoDMS("28.504236 , -89.125", out);
    EXPECT_EQ(out, "28 30 15.249600 , -89 7 30.000000");
    dialog.ConvertStringDMStoDegDeg("28 30 15.25 , -89 7 30", out);
    EXPECT_EQ(out, "28.504236 , -89.125000");
    dialog.ConvertStringDMStoDegDeg("28 30", out);
    EXPECT_EQ(out, "28.500000 , 0.000000");
    dialog.ConvertStringLatLontoXY("28.5 , -91.25", out);
    EXPECT_EQ(out, XyOf(28.5, -91.25));
    dialog.ConvertStringXYtoLatLon(out, out);
    EXPECT_EQ(out, "28.500000 , -91.250000");
}

TEST_F(VerticeBuilder, RowsThatAreGivenBecomeCanonicalAndNoneChangesNothing) {
    dialog.SetVertices({"1,2", "3\t4"});
    EXPECT_THAT(Vertices(), ElementsAre("1.000000 , 2.000000", "3.000000 , 4.000000"));
    dialog.SetVertices({});
    EXPECT_EQ(Vertices().size(), 2u);
    std::vector<std::string> rows{"first"};
    dialog.GetVertices(rows);
    EXPECT_EQ(rows.size(), 3u);
    dialog.SetVertices({"5,6"});
    EXPECT_THAT(Vertices(), ElementsAre("5.000000 , 6.000000"));
}

// The dialog.

TEST_F(VerticeBuilder, BeginsInXAndYWithItsBoxesAtZero) {
    Run(dialog, [](kv::User& user) {
        EXPECT_EQ(user.Window().WindowText(), "Vertices Builder");
        EXPECT_TRUE(user.Checked(kXyMode));
        EXPECT_TRUE(user.Checked(kDecimal));
        EXPECT_EQ(user.Text(kX), "0.00");
        EXPECT_EQ(user.Text(kY), "0.00");
        EXPECT_EQ(user.Text(kLatMinute), "0");
        EXPECT_EQ(user.Text(kLonSecond), "0.00");
        EXPECT_EQ(test::FocusedId(), kX);
        for (const int id : {kAdd, kInsert, kAccept, kMoveUp, kMoveDown, kDelete, kSave})
            EXPECT_FALSE(user.Enabled(id)) << id;
        for (const int id : {kLoad, kEditRow, int{IDCANCEL}})
            EXPECT_TRUE(user.Enabled(id)) << id;
        for (const int id : {kLatDegree, kDegreeLabel, kFormat, kDms, kLonLabel})
            EXPECT_FALSE(user.Visible(id)) << id;
        EXPECT_TRUE(user.Visible(kXLabel));
    });
}

TEST_F(VerticeBuilder, ShowsGivenRowsOnceEachAndOnlyInModifyMode) {
    dialog.SetVertices({"1,2", "3,4", "1,2"});
    Run(dialog, [](kv::User& user) { EXPECT_THAT(user.Rows(kRows), IsEmpty()); });
    dialog.SetModifyMode(true);
    Run(dialog, [&](kv::User& user) {
        EXPECT_THAT(user.Rows(kRows), ElementsAre("1.000000 , 2.000000", "3.000000 , 4.000000"));
        EXPECT_FALSE(dialog.GetModifyMode());
        EXPECT_TRUE(user.Enabled(kAccept));
        EXPECT_TRUE(user.Enabled(kSave));
        user.Click(kAccept);
    });
    EXPECT_FALSE(dialog.GetModifyVertices());
    EXPECT_THAT(Vertices(), ElementsAre("1.000000 , 2.000000", "3.000000 , 4.000000"));
}

TEST_F(VerticeBuilder, AddWritesTwoDecimalsAndAnEqualRowOnlyOnce) {
    const int result = Run(dialog, [&](kv::User& user) {
        TypeXy(user, "100.5", "200.25");
        user.Click(kAdd);
        TypeXy(user, "100.501", "200.251");
        user.Click(kAdd);
        EXPECT_THAT(user.Rows(kRows), ElementsAre("100.50   ,   200.25"));
        EXPECT_TRUE(dialog.GetModifyVertices());
        EXPECT_FALSE(dialog.GetModifyMode());
        user.Click(kAccept);
    });
    EXPECT_EQ(result, IDOK);
    EXPECT_THAT(Vertices(), ElementsAre("100.50   ,   200.25"));
}

TEST_F(VerticeBuilder, EnterWalksFromXToYAndAdds) {
    Run(dialog, [](kv::User& user) {
        user.Type(kX, "1");
        user.Key(0, "Enter");
        EXPECT_EQ(test::FocusedId(), kY);
        user.Type(kY, "2");
        user.Key(0, "Enter");
        EXPECT_THAT(user.Rows(kRows), ElementsAre("1.00   ,   2.00"));
        EXPECT_TRUE(user.Open());
    });
}

TEST_F(VerticeBuilder, TheBoxThatAWalkLeadsToIsReadyToBeTypedOver) {
    Run(dialog, [](kv::User& user) {
        const auto expectSelected = [&](int id) {
            EXPECT_EQ(test::FocusedId(), id);
            int start = 0;
            int end = 0;
            user.Window().Control<CEdit>(id).GetSel(start, end);
            EXPECT_EQ(start, 0) << id;
            EXPECT_EQ(end, static_cast<int>(user.Text(id).size())) << id;
        };
        user.Focus(kX);
        user.Key(0, "Enter");
        expectSelected(kY);
        user.Click(kLatLonMode);
        expectSelected(kLatDegree);
        user.Click(kDms);
        user.Type(kLatDegree, "28");
        for (const int next : {kLatMinute, kLatSecond}) {
            user.Key(0, "Enter");
            expectSelected(next);
        }
        user.Focus(kRows);
        expectSelected(kLonDegree);
        user.Type(kLonDegree, "-91");
        for (const int next : {kLonMinute, kLonSecond}) {
            user.Key(0, "Enter");
            expectSelected(next);
        }
    });
}

TEST_F(VerticeBuilder, WhatIsTypedTakesThePlaceOfTheNumberInTheFirstBox) {
    Begin({XyOf(28.5, -91.25), XyOf(28.6, -91.5)});
    Run(dialog, [&](kv::User& user) {
        user.Key(0, "7");
        EXPECT_EQ(user.Text(kX), "7") << "at the start";
        user.Click(kLatLonMode);
        user.Key(0, "2");
        EXPECT_EQ(user.Text(kLatDegree), "2") << "where the list shows angles";
        user.Click(kXyMode);
        user.Key(0, "3");
        EXPECT_EQ(user.Text(kX), "3") << "where it shows X and Y again";
        user.Select(kRows, 0);
        user.Click(kEditRow);
        user.Key(0, "8");
        EXPECT_EQ(user.Text(kX), "8") << "of a row that is edited";
        user.Click(kAdd);
        user.Select(kRows, 1);
        user.Click(kInsert);
        user.Key(0, "9");
        EXPECT_EQ(user.Text(kX), "9") << "for one more row";
    });
}

TEST_F(VerticeBuilder, InsertWritesOtherDecimalsAheadOfTheSelectedRow) {
    Begin({"1,2", "3,4"});
    Run(dialog, [&](kv::User& user) {
        TypeXy(user, "5", "6");
        desktop.ExpectMessage("Must highlight a row for insert");
        user.Click(kInsert);
        user.Select(kRows, 1);
        TypeXy(user, "5", "6");
        user.Click(kInsert);
        EXPECT_THAT(user.Rows(kRows), ElementsAre("1.000000 , 2.000000", "5.000000   ,   6.000000",
                                                  "3.000000 , 4.000000"));
        EXPECT_FALSE(user.Enabled(kAdd));
        EXPECT_FALSE(user.Enabled(kInsert));
        EXPECT_TRUE(user.Enabled(kAccept));
        EXPECT_EQ(test::FocusedId(), kX);
        EXPECT_TRUE(dialog.GetModifyVertices());
    });
}

TEST_F(VerticeBuilder, EditFillsTheBoxesAndApplyPutsTheRowInItsPlace) {
    Begin({"1,2", "3,4"});
    Run(dialog, [](kv::User& user) {
        user.Select(kRows, 0);
        EXPECT_EQ(user.Text(kX), "1.000000");
        EXPECT_EQ(user.Text(kY), "2.000000");
        user.Click(kEditRow);
        EXPECT_EQ(user.Text(kEditRow), "Apply");
        EXPECT_EQ(test::FocusedId(), kX);
        for (const int id : {kAdd, kInsert, kMoveUp, kMoveDown, kDelete})
            EXPECT_FALSE(user.Enabled(id)) << id;
        user.Type(kX, "9");
        user.Click(kEditRow);
        EXPECT_THAT(user.Rows(kRows), ElementsAre("9.00   ,   2.00", "3.000000 , 4.000000"));
        EXPECT_EQ(user.Text(kEditRow), "Edit");
        EXPECT_THAT(user.Selected(kRows), IsEmpty());
    });
}

TEST_F(VerticeBuilder, ApplyOfARowThatIsThereAlreadyGoesOnEditing) {
    Begin({"1,2", "3,4"});
    Run(dialog, [](kv::User& user) {
        TypeXy(user, "7", "8");
        user.Click(kAdd);
        user.Select(kRows, 0);
        user.Click(kEditRow);
        TypeXy(user, "7", "8");
        user.Click(kEditRow);
        EXPECT_EQ(user.Rows(kRows).size(), 3u);
        EXPECT_EQ(user.Text(kEditRow), "Apply");
    });
}

TEST_F(VerticeBuilder, DeleteTakesTheSelectedRow) {
    Begin({"1,2"});
    Run(dialog, [&](kv::User& user) {
        desktop.ExpectMessage("Nothing selected");
        user.Click(kDelete);
        EXPECT_TRUE(user.Enabled(kSave));
        user.Select(kRows, 0);
        user.Click(kDelete);
        EXPECT_THAT(user.Rows(kRows), IsEmpty());
        EXPECT_FALSE(user.Enabled(kSave));
        EXPECT_TRUE(user.Enabled(kAccept));
        user.Click(kAccept);
    });
    EXPECT_THAT(Vertices(), IsEmpty());
    EXPECT_TRUE(dialog.GetModifyVertices());
}

TEST_F(VerticeBuilder, RowsMoveUpAndDownWithTheirSelection) {
    Begin({"1,1", "2,2", "3,3"});
    Run(dialog, [](kv::User& user) {
        const auto firsts = [&] {
            std::string text;
            for (const std::string& row : user.Rows(kRows))
                text += row[0];
            return text;
        };
        user.Select(kRows, 0);
        EXPECT_FALSE(user.Enabled(kMoveUp));
        user.Click(kMoveDown);
        EXPECT_EQ(firsts(), "213");
        EXPECT_THAT(user.Selected(kRows), ElementsAre(1));
        user.Click(kMoveDown);
        EXPECT_EQ(firsts(), "231");
        EXPECT_FALSE(user.Enabled(kMoveDown));
        user.Click(kMoveUp);
        EXPECT_EQ(firsts(), "213");
        EXPECT_TRUE(user.Enabled(kAccept));
    });
}

TEST_F(VerticeBuilder, AHostClosesThePolygonByACommand) {
    Begin({"1,1", "2,2"});
    Run(dialog, [&](kv::User& user) {
        dialog.SendMessage(WM_COMMAND, MAKEWPARAM(29161, 0));
        EXPECT_THAT(user.Rows(kRows), ElementsAre("1.000000 , 1.000000", "2.000000 , 2.000000",
                                                  "1.000000 , 1.000000"));
        user.Click(kAccept);
    });
    EXPECT_EQ(Vertices().size(), 3u);
    CKvGuiVerticeBuilder empty;
    Run(empty, [&](kv::User& user) {
        empty.SendMessage(WM_COMMAND, MAKEWPARAM(29161, 0));
        EXPECT_THAT(user.Rows(kRows), IsEmpty());
        EXPECT_FALSE(user.Enabled(kAccept));
        empty.SendDlgItemMessage(kRows, LB_ADDSTRING, 0, kv::AsParam("1 , 2"));
        empty.SendMessage(WM_COMMAND, MAKEWPARAM(29161, 0));
        EXPECT_EQ(user.Rows(kRows).size(), 2u);
        EXPECT_TRUE(user.Enabled(kAccept));
    });
}

TEST_F(VerticeBuilder, ExitLeavesTheVertices) {
    Begin({"1,1"});
    const int result = Run(dialog, [](kv::User& user) {
        TypeXy(user, "5", "6");
        user.Click(kAdd);
        user.Click(IDCANCEL);
    });
    EXPECT_EQ(result, IDCANCEL);
    EXPECT_THAT(Vertices(), ElementsAre("1.000000 , 1.000000"));
}

// Latitude and longitude.

TEST_F(VerticeBuilder, LatLonConvertsTheRowsAndShowsItsBoxes) {
    Begin({XyOf(28.5, -91.25), XyOf(29, -92)});
    Run(dialog, [&](kv::User& user) {
        user.Select(kRows, 1);
        user.Click(kLatLonMode);
        EXPECT_THAT(user.Rows(kRows),
                    ElementsAre("28.500000 , -91.250000", "29.000000 , -92.000000"));
        EXPECT_THAT(user.Selected(kRows), ElementsAre(1));
        EXPECT_EQ(user.Text(kLatDegree), "29.000000");
        EXPECT_EQ(user.Text(kLonDegree), "-92.000000");
        EXPECT_EQ(test::FocusedId(), kLatDegree);
        EXPECT_FALSE(user.Visible(kX));
        EXPECT_TRUE(user.Visible(kFormat));
        EXPECT_FALSE(user.Enabled(kLatMinute));
        user.Click(kDms);
        EXPECT_THAT(user.Rows(kRows), ElementsAre("28 30 0.000000 , -91 15 0.000000",
                                                  "29 0 0.000000 , -92 0 0.000000"));
        EXPECT_TRUE(user.Enabled(kLatMinute));
        EXPECT_EQ(user.Text(kLonMinute), "0");
        user.Click(kDecimal);
        EXPECT_EQ(user.Rows(kRows)[0], "28.500000 , -91.250000");
        EXPECT_FALSE(user.Enabled(kInsert));
        user.Click(kXyMode);
        EXPECT_EQ(user.Rows(kRows)[0], XyOf(28.5, -91.25));
        EXPECT_EQ(test::FocusedId(), kX);
    });
}

TEST_F(VerticeBuilder, AFormatThatIsOnAlreadyConvertsAgain) {
    Begin({XyOf(28.5, -91.25)});
    Run(dialog, [&](kv::User& user) {
        user.Click(kLatLonMode);
        user.Click(kDecimal);
        // 28.5 read as whole degrees, and nothing behind that.
        EXPECT_EQ(user.Rows(kRows)[0], "28.000000 , 0.000000");
    });
}

TEST_F(VerticeBuilder, RowsThatBecomeEqualAreOneRow) {
    Begin({"500000.000001,3000000", "500000.000002,3000000", "600000,3000000"});
    Run(dialog, [](kv::User& user) {
        EXPECT_EQ(user.Rows(kRows).size(), 3u);
        user.Click(kLatLonMode);
        EXPECT_EQ(user.Rows(kRows).size(), 2u);
    });
}

TEST_F(VerticeBuilder, WhereTheDriverHasNoAnswerNothingIsConverted) {
    Begin({XyOf(28.5, -91.25), "1e12 , 1e12"});
    Run(dialog, [&](kv::User& user) {
        const auto rows = user.Rows(kRows);
        desktop.ExpectMessage(
            "The projection has no answer for the row\n1000000000000.000000 , "
            "1000000000000.000000\nNo row is converted.");
        user.Click(kLatLonMode);
        EXPECT_EQ(user.Rows(kRows), rows);
        EXPECT_TRUE(user.Checked(kXyMode));
        EXPECT_FALSE(user.Checked(kLatLonMode));
        EXPECT_TRUE(user.Visible(kX));
        user.Click(kAccept);
    });
    EXPECT_EQ(Vertices().size(), 2u);
}

TEST_F(VerticeBuilder, ADecimalLongitudeAddsItselfWhenItsBoxIsLeftForAnother) {
    Run(dialog, [](kv::User& user) {
        user.Click(kLatLonMode);
        user.Type(kLatDegree, "28.5");
        user.Type(kLonDegree, "-91.25");
        EXPECT_THAT(user.Rows(kRows), IsEmpty());
        user.Focus(kLatDegree);
        EXPECT_THAT(user.Rows(kRows), ElementsAre("28.500000 ,   -91.250000"));
        EXPECT_TRUE(user.Enabled(kAdd));
    });
}

TEST_F(VerticeBuilder, AWholeLongitudeGetsAPointAndAddsItself) {
    Run(dialog, [](kv::User& user) {
        user.Click(kLatLonMode);
        user.Type(kLatDegree, "28.5");
        user.Type(kLonDegree, "-91");
        user.Key(0, "Enter");
        EXPECT_EQ(user.Text(kLonDegree), "-91.00");
        EXPECT_THAT(user.Rows(kRows), ElementsAre("28.500000 ,   -91.000000"));
    });
}

TEST_F(VerticeBuilder, TabAndEnterFromTheLatitudeEndInTheSameState) {
    std::vector<std::string> states[2];
    for (const int way : {0, 1}) {
        for (const char* latitude : {"28.5", "28"}) {
            for (const bool dms : {false, true}) {
                CKvGuiVerticeBuilder own;
                Run(own, [&](kv::User& user) {
                    user.Click(kLatLonMode);
                    if (dms) user.Click(kDms);
                    user.Type(kLatDegree, latitude);
                    user.Key(0, way == 0 ? "Tab" : "Enter");
                    std::string state = std::to_string(test::FocusedId());
                    for (const int id : {kLatDegree, kLatMinute, kLonDegree, kLonMinute})
                        state += " " + user.Text(id) + (user.Enabled(id) ? "+" : "-");
                    state += user.Checked(kDms) ? " dms" : " decimal";
                    states[way].push_back(state);
                });
            }
        }
    }
    EXPECT_EQ(states[0], states[1]);
    EXPECT_THAT(states[0],
                ElementsAre("29250 28.5+ 0- 0.00+ 0- decimal", "29250 28.5+ 0- 0.00+ 0- decimal",
                            "29250 28.00+ 0+ 0.00+ 0+ decimal", "29244 28+ 0+ 0.00+ 0- dms"));
}

TEST_F(VerticeBuilder, EnterWalksThroughDegreesMinutesAndSeconds) {
    Run(dialog, [](kv::User& user) {
        user.Click(kLatLonMode);
        user.Click(kDms);
        const std::pair<int, const char*> kWalk[] = {{kLatDegree, "28"}, {kLatMinute, "30"},
                                                     {kLatSecond, "15"}, {kLonDegree, "-91"},
                                                     {kLonMinute, "15"}, {kLonSecond, "7.5"}};
        user.Focus(kLatDegree);
        for (const auto& [id, text] : kWalk) {
            EXPECT_EQ(test::FocusedId(), id);
            user.Type(id, text);
            user.Key(0, "Enter");
        }
        EXPECT_THAT(user.Rows(kRows), ElementsAre("28 30 15.000000  ,   -91 15 7.500000"));
    });
}

TEST_F(VerticeBuilder, MixedFormsHaveRowsOfTheirOwn) {
    Begin({XyOf(28.5, -91.25)});
    Run(dialog, [](kv::User& user) {
        user.Click(kLatLonMode);
        kv::Node& window = user.WindowNode();
        const auto set = [&](const char* latitude, const char* longitude) {
            kv::Send(*window.FindChild(kLatDegree), WM_SETTEXT, 0, kv::AsParam(latitude));
            kv::Send(*window.FindChild(kLonDegree), WM_SETTEXT, 0, kv::AsParam(longitude));
            user.Focus(kRows);
        };
        set("28", "-91.5");
        user.Click(kAdd);
        set("28.5", "-91");
        user.Click(kAdd);
        EXPECT_THAT(user.Rows(kRows),
                    ElementsAre("28.500000 , -91.250000", "28 0 0.000000  ,   -91.500000",
                                "28.500000 ,   -91 0 0.000000"));
        user.Select(kRows, 0);
        set("27", "-90.5");
        user.Click(kInsert);
        EXPECT_EQ(user.Rows(kRows)[0], "");
        user.Select(kRows, 1);
        set("27.5", "-90");
        user.Click(kInsert);
        EXPECT_EQ(user.Rows(kRows)[1], "27.50 0 0.00  ,   -90 0 0.00");
        user.Select(kRows, 1);
        set("26", "-89");
        user.Click(kInsert);
        EXPECT_EQ(user.Rows(kRows)[1], "26 0 0.00  ,   -89 0 0.00");
        user.Select(kRows, 1);
        set("25.5", "-88.5");
        user.Click(kInsert);
        EXPECT_EQ(user.Rows(kRows)[1], "25.50 0 0.00  ,   -88.50 0 0.00");
    });
}

TEST_F(VerticeBuilder, AcceptDecodesAnglesAndLeavesAnEmptyRowForABadOne) {
    Begin({XyOf(28.5, -91.25)});
    Run(dialog, [&](kv::User& user) {
        user.Click(kLatLonMode);
        dialog.SendDlgItemMessage(kRows, LB_ADDSTRING, 0, kv::AsParam("91.0 , -90.0"));
        desktop.ExpectMessage("Lat 91.000000 is out of range [-90.00..+90.00]");
        user.Click(kAccept);
    });
    EXPECT_THAT(Vertices(), ElementsAre(XyOf(28.5, -91.25), ""));
}

TEST_F(VerticeBuilder, ABoxOutOfItsRangeIsToldAndExitWaitsUntilItIsRight) {
    Run(dialog, [&](kv::User& user) {
        user.Click(kLatLonMode);
        user.Click(kDms);
        user.Type(kLatDegree, "28");
        user.Key(0, "Enter");
        user.Key(0, "Enter");
        ASSERT_EQ(test::FocusedId(), kLatSecond);
        user.Type(kLatSecond, "3601");
        desktop.ExpectMessage("Please enter a number between 0 and 3600.");
        user.Key(0, "Enter");
        EXPECT_EQ(test::FocusedId(), kLatSecond);
        EXPECT_FALSE(user.Enabled(IDCANCEL));
        desktop.ExpectMessage("Please enter a number between 0 and 3600.");
        user.Key(0, "Tab");
        EXPECT_EQ(test::FocusedId(), kLatSecond);
        EXPECT_FALSE(user.Enabled(IDCANCEL));
        user.Type(kLatSecond, "3000");
        user.Focus(kRows);
        EXPECT_TRUE(user.Enabled(IDCANCEL));
    });
}

TEST_F(VerticeBuilder, EachBoxThatIsLeftWithWhatItCannotHoldIsTold) {
    struct {
        int box;
        const char* text;
        const char* words;
    } const cases[] = {
        {kX, "x", "Please enter a number."},
        {kY, "x", "Please enter a number."},
        {kLatDegree, "91", "Please enter a number between -90 and 90."},
        {kLatMinute, "61", "Please enter a number between 0 and 60."},
        {kLatSecond, "3601", "Please enter a number between 0 and 3600."},
        {kLonDegree, "-181", "Please enter a number between -180 and 180."},
        {kLonMinute, "-1", "Please enter a number between 0 and 60."},
        {kLonSecond, "3601", "Please enter a number between 0 and 3600."},
    };
    for (const auto& [box, text, words] : cases) {
        SCOPED_TRACE(box);
        CKvGuiVerticeBuilder builder;
        Run(builder, [&, box = box, text = text, words = words](kv::User& user) {
            if (box != kX && box != kY) {
                user.Click(kLatLonMode);
                user.Click(kDms);
            }
            user.Type(box, text);
            desktop.ExpectMessage(words);
            user.Focus(kRows);
            EXPECT_EQ(test::FocusedId(), box);
            EXPECT_FALSE(user.Enabled(IDCANCEL));
            user.Type(box, "1");
        });
    }
}

TEST_F(VerticeBuilder, AHiddenBoxThatIsNoNumberBlocksNothing) {
    Run(dialog, [&](kv::User& user) {
        dialog.SetDlgItemText(kLatDegree, "x");
        TypeXy(user, "1", "2");
        user.Click(kAdd);
        EXPECT_EQ(user.Rows(kRows).size(), 1u);
        user.Select(kRows, 0);
        dialog.SetDlgItemText(kX, "x");
        EXPECT_TRUE(user.Open());
    });
}

// The clipboard.

TEST_F(VerticeBuilder, APastedCoordinateFillsTheBoxes) {
    Run(dialog, [](kv::User& user) {
        user.Paste(kX, "1640416.67, 10000000.5");
        EXPECT_EQ(user.Text(kX), "1640416.670000");
        EXPECT_EQ(user.Text(kY), "10000000.500000");
        user.Type(kX, "");
        user.Paste(kX, "42");
        EXPECT_EQ(user.Text(kX), "42");
        user.Click(kLatLonMode);
        user.Paste(kLatDegree,
                   "28\xC2\xB0"
                   "30'15.25\"N 89\xC2\xB0"
                   "07'30\"W");
        EXPECT_EQ(user.Text(kLatDegree), "28.504236");
        EXPECT_EQ(user.Text(kLonDegree), "-89.125000");
        user.Click(kDms);
        user.Paste(kLatDegree, "28.504236, -89.125");
        EXPECT_EQ(user.Text(kLatMinute), "30");
        EXPECT_EQ(user.Text(kLonSecond), "30.000000");
        for (const int id : {kLatMinute, kLatSecond, kLonMinute, kLonSecond})
            EXPECT_TRUE(user.Enabled(id)) << id;
    });
}

TEST_F(VerticeBuilder, APastedListAddsItsRowsAfterAsking) {
    Run(dialog, [&](kv::User& user) {
        const std::string list = "X\tY\r\n1\t2\r\n3\t4\r\n1\t2\r\n";
        desktop.ExpectMessage(
            "Add 3 points to the list?\n1 of the lines are no coordinates and are left out.", IDNO);
        user.Paste(kX, list);
        EXPECT_THAT(user.Rows(kRows), IsEmpty());
        EXPECT_EQ(user.Text(kX), "0.00");
        EXPECT_FALSE(dialog.GetModifyVertices());
        desktop.ExpectMessage("", IDYES);
        user.Paste(kX, list);
        EXPECT_THAT(user.Rows(kRows), ElementsAre("1.000000 , 2.000000", "3.000000 , 4.000000"));
        EXPECT_EQ(user.Text(kX), "0.00");
        EXPECT_TRUE(dialog.GetModifyVertices());
        EXPECT_TRUE(user.Enabled(kAccept));
    });
}

TEST_F(VerticeBuilder, APastedListOfRowsThatAreThereAlreadyChangesNothing) {
    Begin({"1,2", "3,4"});
    Run(dialog, [&](kv::User& user) {
        desktop.ExpectMessage("Add 2 points to the list?", IDYES);
        user.Paste(kX, "1\t2\n3\t4\n");
        EXPECT_EQ(user.Rows(kRows).size(), 2u);
        EXPECT_FALSE(dialog.GetModifyVertices());
    });
}

TEST_F(VerticeBuilder, PastedPositionsGetTheFormOfTheRows) {
    Run(dialog, [&](kv::User& user) {
        user.Click(kLatLonMode);
        desktop.ExpectMessage("Add 2 points to the list?", IDYES);
        user.Paste(kLatDegree, "28.5, -91.25\n29N 92W");
        EXPECT_THAT(user.Rows(kRows),
                    ElementsAre("28.500000 , -91.250000", "29.000000 , -92.000000"));
        user.Click(kDms);
        desktop.ExpectMessage("Add 2 points to the list?", IDYES);
        user.Paste(kLatDegree, "27.5, -90.25\n26.5, -89.25");
        EXPECT_THAT(
            user.Rows(kRows),
            ElementsAre("28 30 0.000000 , -91 15 0.000000", "29 0 0.000000 , -92 0 0.000000",
                        "27 30 0.000000 , -90 15 0.000000", "26 30 0.000000 , -89 15 0.000000"));
    });
}

TEST_F(VerticeBuilder, LinesThatAreNoCoordinatesArePastedAsTheyAre) {
    Run(dialog, [](kv::User& user) {
        user.Paste(kX, "abc\ndef");
        EXPECT_TRUE(user.Text(kX).starts_with("abc"));
        EXPECT_THAT(user.Rows(kRows), IsEmpty());
    });
}

// Files.

class VerticeFiles : public VerticeBuilder {
protected:
    /// A person picks that file in the library's own picker.
    void ExpectPick(const std::string& name) {
        desktop.ExpectWindow("Select Source Folder", [this, name](kv::User& user) {
            user.Window().SetDlgItemText(kv::file_pick::kPath, folder.Dialog(name).c_str());
            user.Click(IDOK);
        });
    }

    test::TempFolder folder;
};

TEST_F(VerticeFiles, ReadsALineByteByByte) {
    folder.Write("points.txt", "100.5\t200.5\r\n1\v2\x01\xE9\r3 4\n5 6");
    CFile file;
    ASSERT_TRUE(file.Open(folder.Dialog("points.txt").c_str(), CFile::modeRead));
    std::string line;
    EXPECT_FALSE(dialog.ReadLine(&file, line));
    EXPECT_EQ(line, "100.5 , 200.5");
    EXPECT_FALSE(dialog.ReadLine(&file, line));
    EXPECT_EQ(line, "1 , 2");
    EXPECT_TRUE(dialog.ReadLine(&file, line));
    EXPECT_EQ(line, "3 45 6\r");
    EXPECT_TRUE(dialog.ReadLine(&file, line));
    EXPECT_EQ(line, "");
}

TEST_F(VerticeFiles, LoadsLinesWithEitherEndAndEachOnce) {
    for (const char* text : {"1,2\r\n3,4\r\n\r\n1,2\r\n", "1,2\r3,4\r\r1,2\r"}) {
        folder.Write("points.txt", text);
        Run(dialog, [&](kv::User& user) {
            TypeXy(user, "9", "9");
            user.Click(kAdd);
            ExpectPick("points.txt");
            user.Click(kLoad);
            EXPECT_THAT(user.Rows(kRows), ElementsAre("1,2", "3,4"));
            EXPECT_TRUE(user.Enabled(kAccept));
            EXPECT_TRUE(user.Enabled(kSave));
            EXPECT_TRUE(dialog.GetModifyMode());
            EXPECT_TRUE(dialog.GetModifyVertices());
        });
    }
}

TEST_F(VerticeFiles, WhatIsLoadedCanBeSavedUnlessItIsNothing) {
    folder.Write("points.txt", "1,2\r\n");
    folder.Write("empty.txt", "\r\n");
    Run(dialog, [&](kv::User& user) {
        EXPECT_FALSE(user.Enabled(kSave));
        ExpectPick("points.txt");
        user.Click(kLoad);
        EXPECT_TRUE(user.Enabled(kSave));
        ExpectPick("empty.txt");
        user.Click(kLoad);
        EXPECT_THAT(user.Rows(kRows), IsEmpty());
        EXPECT_FALSE(user.Enabled(kSave));
    });
}

TEST_F(VerticeFiles, AFileThatIsNotThereIsToldAndTheRowsStay) {
    Run(dialog, [&](kv::User& user) {
        TypeXy(user, "9", "9");
        user.Click(kAdd);
        ExpectPick("none.txt");
        desktop.ExpectMessage(folder.Dialog("none.txt") + "\nThis file cannot be read.");
        user.Click(kLoad);
        EXPECT_EQ(user.Rows(kRows).size(), 1u);
    });
}

TEST_F(VerticeFiles, AFileThatCannotBeReadToItsEndIsToldAndTheRowsStay) {
    folder.Write("points.txt", "1,2\r\n3,4\r\n");
    Run(dialog, [&](kv::User& user) {
        TypeXy(user, "9", "9");
        user.Click(kAdd);
        std::unique_ptr<test::FileFaults> faults;
        desktop.ExpectWindow("Select Source Folder", [&](kv::User& picker) {
            picker.Window().SetDlgItemText(kv::file_pick::kPath,
                                           folder.Dialog("points.txt").c_str());
            faults = std::make_unique<test::FileFaults>(3);
            picker.Click(IDOK);
        });
        desktop.ExpectMessage(folder.Dialog("points.txt") + "\nThis file cannot be read.");
        user.Click(kLoad);
        EXPECT_THAT(user.Rows(kRows), ElementsAre("9.00   ,   9.00"));
    });
}

TEST_F(VerticeFiles, AnglesThatAreLoadedShowTheirFormat) {
    folder.Write("points.txt", "28 30 0 , -91 15 0\r\n");
    Run(dialog, [&](kv::User& user) {
        user.Click(kLatLonMode);
        ExpectPick("points.txt");
        user.Click(kLoad);
        EXPECT_TRUE(user.Checked(kDms));
        EXPECT_FALSE(user.Checked(kDecimal));
        EXPECT_EQ(user.Text(kLatMinute), "30");
        EXPECT_THAT(user.Selected(kRows), ElementsAre(0));
        user.Click(kAccept);
    });
    EXPECT_THAT(Vertices(), ElementsAre(XyOf(28.5, -91.25)));
}

TEST_F(VerticeFiles, SavesItsRowsAndAddsTheExtension) {
    Begin({"1,2", "3,4"});
    Run(dialog, [&](kv::User& user) {
        desktop.ExpectFile(folder.Dialog("points"));
        user.Click(kSave);
        EXPECT_EQ(folder.Read("points.txt"), "1.000000 , 2.000000\r\n3.000000 , 4.000000\r\n");
        EXPECT_EQ(desktop.FileDialogs().back().title, "Custom File");
        EXPECT_EQ(desktop.FileDialogs().back().filter, "Text File |*.txt||");
        EXPECT_EQ(desktop.FileDialogs().back().initialFolder, "\\");
    });
}

TEST_F(VerticeFiles, SavingOverAFileAsks) {
    Begin({"1,2"});
    folder.Write("points.TXT", "old");
    Run(dialog, [&](kv::User& user) {
        const std::string question =
            folder.Dialog("points.TXT") + " exists already.\nDo you want to replace it?";
        desktop.ExpectFile(folder.Dialog("points.TXT"));
        desktop.ExpectMessage(question, IDNO);
        user.Click(kSave);
        EXPECT_EQ(folder.Read("points.TXT"), "old");
        desktop.ExpectFile(folder.Dialog("points.TXT"));
        desktop.ExpectMessage(question, IDYES);
        user.Click(kSave);
        EXPECT_EQ(folder.Read("points.TXT"), "1.000000 , 2.000000\r\n");
    });
}

TEST_F(VerticeFiles, AFileThatCannotBeWrittenIsTold) {
    Begin({"1,2"});
    Run(dialog, [&](kv::User& user) {
        const std::string path = folder.Dialog("none\\points.txt");
        desktop.ExpectFile(path);
        desktop.ExpectMessage(path + "\nThis file cannot be written.");
        user.Click(kSave);
    });
}

TEST_F(VerticeFiles, AHundredThousandVerticesLoadInUnderASecond) {
    std::string text;
    for (int i = 0; i < 100000; ++i)
        text += std::to_string(i) + ".5 , " + std::to_string(i * 7) + "\r\n";
    folder.Write("points.txt", text);
    Run(dialog, [&](kv::User& user) {
        ExpectPick("points.txt");
        const std::clock_t begin = std::clock();
        user.Click(kLoad);
        const double seconds = static_cast<double>(std::clock() - begin) / CLOCKS_PER_SEC;
        EXPECT_EQ(dialog.SendDlgItemMessage(kRows, LB_GETCOUNT), 100000);
        RecordProperty("seconds", std::to_string(seconds));
        // A scan for each row would take minutes.
        EXPECT_LT(seconds, 10.0);
    });
}

}  // namespace
