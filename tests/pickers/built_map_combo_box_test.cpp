#include "frame/kvdbkvn/tell_failure.h"
#include "pickers/built_map_area_combo_box.h"
#include "pickers/built_map_blk_combo_box.h"
#include "support/built_map_database.h"
#include "support/endless_view.h"
#include "support/statement_test.h"
#include "window/acting/wait_scene.h"
#include "window/blocked_windows.h"
#include "window/frames/frame_wnd.h"

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

constexpr int kArea = 10;
constexpr int kBlock = 11;

/// The two boxes in a window of their own.
class BuiltMapBoxes : public test::StatementTest {
protected:
    BuiltMapBoxes() : StatementTest(test::kBuiltMapTables) {
        frame.Create("Host");
        frame.ShowWindow(SW_SHOW);
        area.Create(WS_CHILD | WS_VISIBLE | CBS_DROPDOWN, {0, 0, 100, 100}, &frame, kArea);
        block.Create(WS_CHILD | WS_VISIBLE | CBS_DROPDOWN, {100, 0, 200, 100}, &frame, kBlock);
        area.SetBlkCombo(&block);
        SetBounds(28, 29, -91, -90);
    }

    void SetBounds(double minLat, double maxLat, double minLon, double maxLon) {
        area.SetMinLat(minLat);
        area.SetMaxLat(maxLat);
        area.SetMinLon(minLon);
        area.SetMaxLon(maxLon);
        block.SetMinLat(minLat);
        block.SetMaxLat(maxLat);
        block.SetMinLon(minLon);
        block.SetMaxLon(maxLon);
    }
    void Fill(int mode) {
        area.SetMode(mode);
        statements.clear();
        area.V_InitializeCombo();
    }
    static std::vector<std::string> RowsIn(const CComboBox& box) {
        std::vector<std::string> rows;
        for (int row = 0; row < box.GetCount(); ++row) {
            CString text;
            box.GetLBText(row, text);
            rows.push_back(text.str());
        }
        return rows;
    }
    kv::User Person() {
        return {*frame.m_hWnd, [](const std::string& words) { FAIL() << words; }};
    }

    CFrameWnd frame;
    CKvBuiltMapBlkComboBox block;
    CKvBuiltMapAreaComboBox area;
};

const std::string kInside =
    " areacode from NORVADON.GULF_MEXICO_LBI I, NORVADON.GULF_MEXICO_LBV V  where (I.refnum = "
    "V.refnum) and (V.lat between 28.000000 and 29.000000) and (V.lon between -91.000000 and "
    "-90.000000)";

TEST_F(BuiltMapBoxes, AreaCodesAreAskedForInOneStatement) {
    Fill(2);
    EXPECT_THAT(statements,
                ElementsAre("select ' -AREA NAME-' from dual union select ' -MMS CODE-' from dual "
                            "union (select distinct stcode from NORVADON.GULF_MEXICO_connam2 where "
                            "stcode in (select" +
                            kInside + ")))"));
    EXPECT_THAT(RowsIn(area),
                ElementsAre(" -AREA NAME-", " -MMS CODE-", "017", "018", "4271", "4281"));
}

TEST_F(BuiltMapBoxes, AreaNamesAreAskedForInTwoStepsWithQuotesDoubled) {
    Fill(1);
    ASSERT_EQ(statements.size(), 6U);  // a look-up for each of four areas
    EXPECT_EQ(statements.front(), "select distinct" + kInside);
    EXPECT_THAT(statements[1], HasSubstr("'017'"));
    EXPECT_EQ(statements.back(),
              "select ' -AREA CODE-' from dual union select ' -MMS CODE-' from dual union (select "
              "distinct areaname from NORVADON.GULF_MEXICO_connam2 where areaname in ('GRAND "
              "ISLE','GRAND ISLE SOUTH','LAKE','O''HARA BAY'))");
    EXPECT_THAT(RowsIn(area), ElementsAre(" -AREA CODE-", " -MMS CODE-", "GRAND ISLE",
                                          "GRAND ISLE SOUTH", "LAKE", "O'HARA BAY"));
}

TEST_F(BuiltMapBoxes, MmsCodesAreAskedForInTwoStepsAndAnAreaWithoutOneIsAnEmptyText) {
    Fill(0);
    EXPECT_EQ(statements.front(), "select distinct" + kInside);
    EXPECT_EQ(statements.back(),
              "select ' -AREA NAME-' from dual union select ' -AREA CODE-' from dual union (select "
              "distinct area_abbr from NORVADON.GULF_MEXICO_connam2 where area_abbr is not null "
              "and (area_abbr in ('GI','GI','LL','')))");
    EXPECT_THAT(RowsIn(area), ElementsAre(" -AREA CODE-", " -AREA NAME-", "GI", "LL"));
}

TEST_F(BuiltMapBoxes, AnyOtherModeSendsTheEmptyTextAndListsNothing) {
    Fill(2);
    Fill(7);
    EXPECT_THAT(statements, ElementsAre(""));
    EXPECT_THAT(RowsIn(area), IsEmpty());
}

TEST_F(BuiltMapBoxes, TheBoundsAreCutToSixDecimals) {
    SetBounds(28.12345678, 29.00000051, -91, -90.0000004);
    Fill(2);
    EXPECT_THAT(statements.back(),
                HasSubstr("(V.lat between 28.123457 and 29.000001) and (V.lon between -91.000000 "
                          "and -90.000000)"));
}

TEST_F(BuiltMapBoxes, ABlockIsInsideWithOneVertexOnTheEdge) {
    block.SetMode(2);
    block.SetArea("017");
    block.SetIncludeAll(false);
    block.V_InitializeCombo();
    // 9A has its vertex in a corner of the map; 11 lies ahead of it by two millionths.
    EXPECT_THAT(RowsIn(block), ElementsAre("10", "9A"));
    block.SetArea("018");
    block.V_InitializeCombo();
    EXPECT_THAT(RowsIn(block), ElementsAre("45"));
}

TEST_F(BuiltMapBoxes, BlocksAreAskedForInEachMode) {
    const std::string label =
        "select distinct decode(substr(areacode, 1, 3), '426', lbnum||lbext || '-S','427', "
        "lbnum||lbext || '-L','420', lbnum||lbext || '-BAY','421', lbnum||lbext || '-BAY','422', "
        "lbnum||lbext || '-BAY','423', lbnum||lbext || '-BAY','424', lbnum||lbext || "
        "'-BAY','425', lbnum||lbext || '-BAY','428', lbnum||lbext || '-BAY','429', lbnum||lbext || "
        "'-BAY',lbnum||lbext), lbnum from NORVADON.GULF_MEXICO_lbi I, NORVADON.GULF_MEXICO_lbv V  "
        "where areacode ";
    const std::string box =
        " and (I.refnum = V.refnum) and (V.lat between 28.000000 and 29.000000) and (V.lon between "
        "-91.000000 and -90.000000)order by";
    const std::string areas = "(select stcode from NORVADON.GULF_MEXICO_connam2 where ";
    const std::string all = "select 'ALL',-1 from dual union ";
    const std::pair<const char*, std::string> modes[] = {
        {"GI", "in " + areas + "area_abbr = 'GI')" + box + " 2"},
        {"O'HARA BAY", "= " + areas + "areaname = 'O''HARA BAY')" + box + "\t2"},
        {"4271", "= '4271'" + box + " 2"}};
    int mode = 0;
    for (const auto& [name, rest] : modes) {
        for (const bool includeAll : {true, false}) {
            block.SetMode(mode);
            block.SetArea(name);
            block.SetIncludeAll(includeAll);
            statements.clear();
            block.V_InitializeCombo();
            EXPECT_THAT(statements, ElementsAre((includeAll ? all : "") + label + rest));
        }
        ++mode;
    }
    EXPECT_THAT(RowsIn(block), ElementsAre("7-L"));
}

TEST_F(BuiltMapBoxes, APickedAreaListsItsBlocksInsideTheMap) {
    Fill(0);
    kv::User person = Person();
    person.Select(kArea, "GI");
    EXPECT_THAT(person.Rows(kBlock), ElementsAre("ALL", "10", "45", "9A"));
    person.Select(kArea, " -AREA NAME-");
    EXPECT_EQ(area.GetMode(), 1);
    EXPECT_THAT(person.Rows(kBlock), IsEmpty());
    person.Select(kArea, "O'HARA BAY");
    EXPECT_THAT(person.Rows(kBlock), ElementsAre("ALL", "1-BAY"));
}

TEST_F(BuiltMapBoxes, AMapWithoutAreasOffersTheLabelsAllTheSame) {
    SetBounds(1, 2, 1, 2);
    Fill(0);
    EXPECT_THAT(statements.back(), HasSubstr("(area_abbr in ())"));
    EXPECT_THAT(RowsIn(area), ElementsAre(" -AREA CODE-", " -AREA NAME-"));
    EXPECT_THAT(folder.Read("log.txt"), HasSubstr("the list behind \"in\" is empty"));
    Fill(1);
    EXPECT_THAT(RowsIn(area), ElementsAre(" -AREA CODE-", " -MMS CODE-"));
    Person().Select(kArea, " -AREA CODE-");
    EXPECT_EQ(area.GetMode(), 2);
    EXPECT_THAT(RowsIn(area), ElementsAre(" -AREA NAME-", " -MMS CODE-"));
}

TEST_F(BuiltMapBoxes, AFailureOfTheReadingStepIsThrownAndTheLabelsAreOffered) {
    Fill(2);
    FailAt(1);
    EXPECT_NE(test::FailureOf([&] { Fill(1); }), "");
    EXPECT_THAT(RowsIn(area), ElementsAre(" -AREA CODE-", " -MMS CODE-"));
    kv::db::SetDatabaseFault(nullptr);
    Fill(1);
    EXPECT_THAT(RowsIn(area), testing::SizeIs(6));
}

TEST_F(BuiltMapBoxes, AnAreaWhoseNameCannotBeLookedUpIsNotLeftOutInSilence) {
    Fill(2);
    Change("alter table gulf_mexico_connam2 rename to away");
    EXPECT_THAT(test::FailureOf([&] { Fill(1); }), HasSubstr("no such table"));
    EXPECT_THAT(RowsIn(area), ElementsAre(" -AREA CODE-", " -MMS CODE-"));
}

TEST_F(BuiltMapBoxes, APersonWhoSwitchesTheModeIsToldOfAFailureThere) {
    Fill(0);
    Change("alter table gulf_mexico_lbi rename to away");
    desktop.ExpectMessage("");
    Person().Select(kArea, " -AREA NAME-");
    EXPECT_THAT(desktop.Messages().back(), HasSubstr("no such table"));
    EXPECT_THAT(RowsIn(area), ElementsAre(" -AREA CODE-", " -MMS CODE-"));
}

TEST_F(BuiltMapBoxes, AFailureOfTheFillingStepGoesToTheLog) {
    Fill(2);
    Change("drop table gulf_mexico_connam2");
    Fill(2);
    EXPECT_THAT(RowsIn(area), ElementsAre(" -AREA NAME-", " -MMS CODE-"));
    EXPECT_THAT(folder.Read("log.txt"), HasSubstr("Database error: "));
    EXPECT_THAT(folder.Read("log.txt"), HasSubstr("no such table"));
}

TEST_F(BuiltMapBoxes, SetAreaTakesTheExactRowOrNone) {
    Change("delete from gulf_mexico_lbv where refnum in (1, 2)");
    Fill(1);
    ASSERT_THAT(RowsIn(area), testing::Not(testing::Contains("GRAND ISLE")));
    area.SetArea("017");
    EXPECT_EQ(area.GetArea(), "");
    EXPECT_THAT(folder.Read("log.txt"),
                HasSubstr("Selected area could not be found from the database table"));
    area.SetArea("018");
    EXPECT_EQ(area.GetArea(), "GRAND ISLE SOUTH");
}

TEST_F(BuiltMapBoxes, OnlyTheFirstFillOfTheProcessKeepsWhatTheListHeld) {
    area.AddString("LEFT OVER");
    Fill(2);
    EXPECT_THAT(RowsIn(area), testing::Contains("LEFT OVER"));
    Fill(2);
    EXPECT_THAT(RowsIn(area), testing::Not(testing::Contains("LEFT OVER")));
}

TEST_F(BuiltMapBoxes, TheFirstFillIsCountedApartFromThatOfThePlainBoxes) {
    CKvAreaComboBox plain;
    plain.Create(WS_CHILD | WS_VISIBLE | CBS_DROPDOWN, {0, 0, 100, 100}, &frame, 12);
    plain.V_InitializeCombo();
    area.AddString("LEFT OVER");
    Fill(2);
    EXPECT_THAT(RowsIn(area), testing::Contains("LEFT OVER"));
}

TEST_F(BuiltMapBoxes, ASetterRefillsNothing) {
    Fill(2);
    const auto before = RowsIn(area);
    SetBounds(1, 2, 1, 2);
    EXPECT_EQ(RowsIn(area), before);
}

TEST_F(BuiltMapBoxes, ACancelledLookUpOfOneAreaLeavesTheListEmptyAndNotWithoutThatArea) {
    Change(
        "alter table gulf_mexico_connam2 rename to kept;" +
        test::EndlessView("gulf_mexico_connam2", "areaname, stcode, area_abbr", test::kTextCell));
    kv::SetPatience(std::chrono::milliseconds(50));
    kv::ExpectWait(desktop, [](kv::User& wait) { wait.Click(IDCANCEL); });
    Fill(1);
    EXPECT_THAT(RowsIn(area), IsEmpty());
    EXPECT_TRUE(kv::db::SaysCancelled(area));

    Change("drop view gulf_mexico_connam2; alter table kept rename to gulf_mexico_connam2");
    Person().Drop(kArea);
    EXPECT_THAT(RowsIn(area), Not(IsEmpty()));
}

}  // namespace
