#include "blocks/neighbor_blocks.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "controls/progress_dlg_ids.h"
#include "frame/kvcom/misc.h"
#include "frame/kvdbkvn/database_fault.h"
#include "frame/kvdbkvn/db_abs_data_mgr.h"
#include "frame/kvdbkvn/statement_trace.h"
#include "frame/module.h"
#include "services/kvdbkvn/session_pool.h"
#include "support/database_helpers.h"
#include "support/dialog_fixture.h"
#include "support/neighbor_database.h"
#include "support/sqlite_file.h"
#include "support/temp_folder.h"
#include "window/frames/frame_wnd.h"

namespace {

using kv::blocks::NeighborRelation;
using kv::blocks::Place;
using kv::blocks::Selection;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

using Places = std::vector<Place>;

class Neighbors : public CNeighborBlocks {
public:
    using CNeighborBlocks::BuildQuery;
    using CNeighborBlocks::CNeighborBlocks;
    using CNeighborBlocks::m_mapTables;
};

class NeighborBlocks : public test::DialogTest {
protected:
    NeighborBlocks() {
        InitControlDll();
        app.m_pMainWnd = &frame;
        frame.Create("Host");
        frame.ShowWindow(SW_SHOW);
        path = test::MakeNeighborDatabase(folder.Native("blocks.db"));
        test::ConnectTo(CKvDbInfo("", "", ("sqlite:" + path).c_str()));
        kv::db::SetStatementTrace([this](const std::string& sql) { statements.push_back(sql); });
    }
    ~NeighborBlocks() override { kv::db::SetStatementTrace(nullptr); }

    void Select(const Places& places) {
        for (const auto& [area, block] : places) {
            selection.first.push_back(area);
            selection.second.push_back(block);
        }
    }
    Places Selected() const {
        Places places;
        for (std::size_t i = 0; i < selection.first.size(); ++i)
            places.emplace_back(selection.first[i], selection.second.at(i));
        return places;
    }
    Neighbors Finder(int type = 0) { return {selection, relation, type, "NORVADON"}; }
    bool Populate(int type = 0) { return Finder(type).PopulateNeighbor(); }

    /// What a statement gives past the library's own translation of dialogs' statements.
    std::string Rows(const std::string& sql, int columns) {
        CKvDbAbsDataMgr db(1);
        db.Connect();
        db.Select(sql);
        statements.pop_back();
        return test::RowsOf(db, columns);
    }
    std::string WorkTable() {
        return Rows(
            "select o_area, o_bext, n_area, n_bext, area_type from nvd2000_tmp_abe2 order "
            "by o_area, o_bext, n_area, n_bext",
            5);
    }
    void Run(const std::string& sql) { test::RunOnSqliteFile(path, sql); }
    static std::string Machine() { return CKvMisc::GetMachineID(true).str(); }

    test::TempFolder folder;
    std::string path;
    std::vector<std::string> statements;
    CWinApp app;
    CFrameWnd frame;
    Selection selection;
    NeighborRelation relation;
};

Places InArea(const std::string& area, const std::vector<std::string>& blocks) {
    Places places;
    for (const std::string& block : blocks)
        places.emplace_back(area, block);
    return places;
}

// The statements.

TEST_F(NeighborBlocks, AreLookedForByAreaName) {
    const std::string from =
        "NORVADON.gulf_mexico_lbi i, NORVADON.gulf_mexico_lbv v, NORVADON.gulf_mexico_connam2 c "
        "where i.refnum = v.refnum and c.stcode = i.areacode ";
    const std::string one = "and areaname='GREEN CANYON' and lbnum||lbext = '12A')";
    EXPECT_EQ(Finder(0).BuildQuery("GREEN CANYON", "12A", 10).str(),
              "select distinct areaname, lbnum||lbext from " + from +
                  " and lat < (select max(lat) + (max(lat) - min(lat))/5 from " + from + one +
                  " and lat > (select min(lat) - (max(lat) - min(lat))/5 from " + from + one +
                  " and lon < (select max(lon) + (max(lon) - min(lon))/5 from " + from + one +
                  " and lon > (select min(lon) - (max(lon) - min(lon))/5 from " + from + one);
}

TEST_F(NeighborBlocks, AreLookedForByAreaCodeWithoutTheTableOfAreas) {
    const std::string from =
        "NORVADON.gulf_mexico_lbi i, NORVADON.gulf_mexico_lbv v where i.refnum = v.refnum ";
    const std::string one = "and areacode='43608' and lbnum||lbext = '500')";
    EXPECT_EQ(Finder(1).BuildQuery("43608", "500", 10).str(),
              "select distinct areacode, lbnum||lbext from " + from +
                  " and lat < (select max(lat) + (max(lat) - min(lat))/5 from " + from + one +
                  " and lat > (select min(lat) - (max(lat) - min(lat))/5 from " + from + one +
                  " and lon < (select max(lon) + (max(lon) - min(lon))/5 from " + from + one +
                  " and lon > (select min(lon) - (max(lon) - min(lon))/5 from " + from + one);
    EXPECT_THAT(Finder(1).BuildQuery("43608", "500", 10).str(),
                testing::Not(testing::AnyOf(HasSubstr("connam2"), HasSubstr("c."))));
}

TEST_F(NeighborBlocks, AreLookedForByMmsCodeForAnyOtherType) {
    std::string names = Finder(0).BuildQuery("GC", "500", 10).str();
    const std::string codes = Finder(2).BuildQuery("GC", "500", 10).str();
    for (std::size_t at; (at = names.find("areaname")) != std::string::npos;)
        names.replace(at, 8, "area_abbr");
    EXPECT_EQ(codes, names);
    EXPECT_EQ(Finder(-1).BuildQuery("GC", "500", 10).str(), codes);
}

TEST_F(NeighborBlocks, TheMarginChangesNothing) {
    EXPECT_EQ(Finder().BuildQuery("ALPHA", "5", 0), Finder().BuildQuery("ALPHA", "5", 10));
}

TEST_F(NeighborBlocks, TheTablesAreTheOwners) {
    EXPECT_THAT(Neighbors(selection, relation, 0, "SOMEBODY").m_mapTables,
                ElementsAre(testing::Pair("gulf_mexico_connam2", "SOMEBODY.gulf_mexico_connam2"),
                            testing::Pair("gulf_mexico_lbi", "SOMEBODY.gulf_mexico_lbi"),
                            testing::Pair("gulf_mexico_lbv", "SOMEBODY.gulf_mexico_lbv"),
                            testing::Pair("nvd2000_tmp_abe2", "SOMEBODY.nvd2000_tmp_abe2")));
    folder.Write("registry.ini", "[SOFTWARE\\KVI]\nTABLE_OWNER=OTHERS\n");
    EXPECT_EQ(Neighbors(selection, relation, 0, "").m_mapTables.at("gulf_mexico_lbi"),
              "OTHERS.gulf_mexico_lbi");
}

TEST_F(NeighborBlocks, EachCandidateIsComparedByTheCornersOfBothWhichAreReadOnceInASearch) {
    Select({{"BETA ISLE", "1A"}, {"ALPHA", "3"}});
    Neighbors finder = Finder(0);
    ASSERT_TRUE(Populate(0));
    const auto outline = [](const std::string& area, const std::string& block) {
        return "select lat, lon from NORVADON.gulf_mexico_lbi i, NORVADON.gulf_mexico_lbv v , "
               "NORVADON.gulf_mexico_connam2 c where i.refnum = v.refnum  and c.stcode = "
               "i.areacode  and areaname = '" +
               area + "' and lbnum||lbext = '" + block + "' order by ptnum";
    };
    EXPECT_THAT(
        statements,
        ElementsAre(finder.BuildQuery("BETA ISLE", "1A", 10).str(), outline("BETA ISLE", "1A"),
                    outline("ALPHA", "3"), outline("ALPHA", "6"), outline("ALPHA", "9"),
                    finder.BuildQuery("ALPHA", "3", 10).str(), outline("ALPHA", "2"),
                    outline("ALPHA", "5"), outline("GULF BAY", "1")));
}

TEST_F(NeighborBlocks, CornersThatChangedAreReadByTheNextSearch) {
    Select({{"ALPHA", "5"}});
    Neighbors finder = Finder();
    ASSERT_TRUE(finder.PopulateNeighbor());
    EXPECT_THAT(relation.at({"ALPHA", "5"}), SizeIs(8));
    Run("delete from gulf_mexico_lbv where refnum = 6 and ptnum > 2");
    selection = {{"ALPHA"}, {"5"}};
    ASSERT_TRUE(finder.PopulateNeighbor());
    EXPECT_EQ(relation.at({"ALPHA", "5"}), InArea("ALPHA", {"1", "2", "3", "4", "7", "8", "9"}));
}

TEST_F(NeighborBlocks, ByAreaCodeTheCornersComeWithoutTheTableOfAreas) {
    Select({{"A01", "99"}});
    ASSERT_TRUE(Populate(1));
    EXPECT_EQ(statements.back(),
              "select lat, lon from NORVADON.gulf_mexico_lbi i, NORVADON.gulf_mexico_lbv v where "
              "i.refnum = v.refnum  and areacode = 'A01' and lbnum||lbext = '99' order by ptnum");
}

TEST_F(NeighborBlocks, ByMmsCodeTheCornersComeByItsColumn) {
    Select({{"AL", "99"}});
    ASSERT_TRUE(Populate(2));
    EXPECT_EQ(statements.back(),
              "select lat, lon from NORVADON.gulf_mexico_lbi i, NORVADON.gulf_mexico_lbv v , "
              "NORVADON.gulf_mexico_connam2 c where i.refnum = v.refnum  and c.stcode = i.areacode "
              " and area_abbr = 'AL' and lbnum||lbext = '99' order by ptnum");
}

// What is found.

TEST_F(NeighborBlocks, AreTheBlocksAllAround) {
    Select({{"ALPHA", "5"}});
    ASSERT_TRUE(Populate());
    const Places around = InArea("ALPHA", {"1", "2", "3", "4", "6", "7", "8", "9"});
    Places all = {{"ALPHA", "5"}};
    all.insert(all.end(), around.begin(), around.end());
    EXPECT_EQ(Selected(), all);
    EXPECT_EQ(relation, (NeighborRelation{{{"ALPHA", "5"}, around}}));
    EXPECT_THAT(desktop.Messages(), IsEmpty());
}

TEST_F(NeighborBlocks, MayLieInOtherAreas) {
    Select({{"ALPHA", "6"}, {"ALPHA", "8"}});
    ASSERT_TRUE(Populate());
    Places east = InArea("ALPHA", {"2", "3", "5", "8", "9"});
    east.emplace_back("BETA ISLE", "1A");
    Places south = InArea("ALPHA", {"4", "5", "6", "7", "9"});
    south.emplace_back("SHORE", "7");
    EXPECT_EQ(relation, (NeighborRelation{{{"ALPHA", "6"}, east}, {{"ALPHA", "8"}, south}}));
}

TEST_F(NeighborBlocks, AreNotAddedTwice) {
    Select({{"ALPHA", "1"}, {"ALPHA", "5"}, {"ALPHA", "2"}});
    ASSERT_TRUE(Populate(0));
    Places all = Selected();
    std::ranges::sort(all);
    EXPECT_EQ(std::ranges::adjacent_find(all), all.end());
    EXPECT_THAT(all, SizeIs(10));
    EXPECT_EQ(relation.at({"ALPHA", "1"}), InArea("ALPHA", {"2", "4", "5"}));
}

TEST_F(NeighborBlocks, OfABlockFarFromAllAreNone) {
    Select({{"ALPHA", "99"}});
    ASSERT_TRUE(Populate());
    EXPECT_EQ(Selected(), InArea("ALPHA", {"99"}));
    EXPECT_THAT(relation, IsEmpty());
    EXPECT_THAT(desktop.Messages(), IsEmpty());
}

TEST_F(NeighborBlocks, AreFoundByCodesToo) {
    Select({{"B01", "1A"}});
    ASSERT_TRUE(Populate(1));
    EXPECT_EQ(relation, (NeighborRelation{{{"B01", "1A"}, InArea("A01", {"3", "6", "9"})}}));
    selection = {{"BI"}, {"1A"}};
    ASSERT_TRUE(Populate(2));
    EXPECT_EQ(relation, (NeighborRelation{{{"BI", "1A"}, InArea("AL", {"3", "6", "9"})}}));
}

TEST_F(NeighborBlocks, OfThoseThatWereAddedAreFoundByTheNextSearch) {
    Select({{"ALPHA", "1"}});
    ASSERT_TRUE(Populate());
    EXPECT_THAT(Selected(), SizeIs(4));
    EXPECT_THAT(relation, SizeIs(1));
    ASSERT_TRUE(Populate());
    EXPECT_THAT(Selected(), SizeIs(10));
    EXPECT_THAT(relation, SizeIs(4));
    EXPECT_EQ(relation.at({"ALPHA", "1"}), InArea("ALPHA", {"2", "4", "5"}));
}

TEST_F(NeighborBlocks, OfAnEmptySelectionAreNoneAndTheRelationIsEmptied) {
    relation[{"ALPHA", "1"}] = InArea("ALPHA", {"2"});
    EXPECT_TRUE(Populate());
    EXPECT_THAT(relation, IsEmpty());
    EXPECT_THAT(Selected(), IsEmpty());
    EXPECT_THAT(statements, IsEmpty());
}

TEST_F(NeighborBlocks, ACopyWorksOnTheSameSelection) {
    Select({{"ALPHA", "1"}});
    const Neighbors finder = Finder();
    Neighbors copy = finder;
    ASSERT_TRUE(copy.PopulateNeighbor());
    EXPECT_THAT(Selected(), SizeIs(4));
    copy.m_mapTables["gulf_mexico_lbi"] = "elsewhere";
    EXPECT_EQ(finder.m_mapTables.at("gulf_mexico_lbi"), "NORVADON.gulf_mexico_lbi");
}

// What cannot be searched.

TEST_F(NeighborBlocks, AWholeAreaIsSkippedWithAMessageEach) {
    Select({{"ALPHA", ""}, {"BETA ISLE", ""}});
    relation[{"ALPHA", "1"}] = InArea("ALPHA", {"2"});
    desktop.ExpectMessage("Operation skipped for area ALPHA\nPlease provide block number");
    desktop.ExpectMessage("Operation skipped for area BETA ISLE\nPlease provide block number");
    EXPECT_TRUE(Populate());
    EXPECT_EQ(Selected(), (Places{{"ALPHA", ""}, {"BETA ISLE", ""}}));
    EXPECT_THAT(relation, IsEmpty());
}

TEST_F(NeighborBlocks, AnUnknownBlockIsToldAndTheSearchGoesOn) {
    Select({{"ALPHA", "77"}, {"SHORE", "7-S"}, {"ALPHA", "1"}});
    desktop.ExpectMessage("No Matches found for area ALPHA block 77");
    desktop.ExpectMessage("No Matches found for area SHORE block 7-S");
    EXPECT_TRUE(Populate());
    EXPECT_THAT(relation, SizeIs(1));
    EXPECT_THAT(Selected(), SizeIs(6));
}

TEST_F(NeighborBlocks, ACandidateWithoutAnAreaIsToldAndTheNextOneTaken) {
    Select({{"AL", "2"}});
    desktop.ExpectMessage("The area is blank for the block 1");
    EXPECT_TRUE(Populate(2));
    EXPECT_EQ(relation.at({"AL", "2"}), InArea("AL", {"1", "3", "4", "5", "6"}));
}

TEST_F(NeighborBlocks, ABlockWithBrokenCornersTouchesNothing) {
    Run("update gulf_mexico_lbv set lat = 'unknown' where refnum = 4 and ptnum = 2;"
        "delete from gulf_mexico_lbv where refnum = 6 and ptnum > 2");
    Select({{"ALPHA", "5"}});
    EXPECT_TRUE(Populate());
    // The corner that reads as 0 pulls its block across the Equator, still through its neighbor.
    EXPECT_EQ(relation.at({"ALPHA", "5"}), InArea("ALPHA", {"1", "2", "3", "4", "7", "8", "9"}));
}

// A database that fails.

TEST_F(NeighborBlocks, AFailureIsShownAndWhatWasFoundStays) {
    Select({{"ALPHA", "1"}, {"O'NEIL", "1"}, {"ALPHA", "9"}});
    desktop.ExpectMessage("");
    EXPECT_FALSE(Populate());
    EXPECT_THAT(desktop.Messages(), ElementsAre(HasSubstr("O'NEIL")));
    EXPECT_EQ(relation, (NeighborRelation{{{"ALPHA", "1"}, InArea("ALPHA", {"2", "4", "5"})}}));
    EXPECT_THAT(Selected(), SizeIs(6));
    EXPECT_TRUE(frame.IsWindowEnabled());
}

TEST_F(NeighborBlocks, ADatabaseThatIsNotThereIsShownAndChangesNothing) {
    test::ConnectTo(CKvDbInfo("", "", ("sqlite:" + folder.Native("none.db")).c_str()));
    Select({{"ALPHA", "1"}});
    relation[{"ALPHA", "1"}] = InArea("ALPHA", {"2"});
    for (int i = 0; i < 3; ++i)
        desktop.ExpectMessage("");
    EXPECT_FALSE(Populate());
    Finder().InsertMapToTable(relation);
    Finder().DeleteFromABE2("nvd2000_tmp_abe2");
    EXPECT_THAT(desktop.Messages(), testing::Each(HasSubstr("none.db")));
    EXPECT_THAT(relation, SizeIs(1));
    EXPECT_THAT(Selected(), SizeIs(1));
}

// Progress.

TEST_F(NeighborBlocks, ProgressIsShownAndHoldsTheWindowBelow) {
    Select({{"ALPHA", "1"}, {"ALPHA", "9"}});
    std::vector<std::string> seen;
    const auto look = [&](kv::User& user) {
        EXPECT_EQ(kv::ClassName(user.Window()), "CKvGuiProgressDlg");
        EXPECT_EQ(user.Window().WindowText(), "Progress");
        EXPECT_FALSE(frame.IsWindowEnabled());
        seen.push_back(user.Text(kv::progress_dlg::kPercent));
    };
    // Asked whether it was cancelled ahead of each block, and stepped behind it.
    for (int i = 0; i < 4; ++i)
        desktop.ExpectPump(look);
    EXPECT_TRUE(Populate());
    EXPECT_THAT(seen, ElementsAre(" 0 %", " 0 %", "50%", "50%"));
    EXPECT_TRUE(frame.IsWindowEnabled());
}

TEST_F(NeighborBlocks, CancelAtOnceLeavesTheRelationEmpty) {
    Select({{"ALPHA", "1"}, {"ALPHA", "9"}});
    relation[{"ALPHA", "1"}] = InArea("ALPHA", {"2"});
    desktop.ExpectPump([](kv::User& user) { user.Click(IDCANCEL); });
    EXPECT_TRUE(Populate());
    EXPECT_THAT(relation, IsEmpty());
    EXPECT_THAT(Selected(), SizeIs(2));
    EXPECT_THAT(statements, IsEmpty());
    EXPECT_TRUE(frame.IsWindowEnabled());
}

TEST_F(NeighborBlocks, CancelKeepsWhatWasFoundAndIsAnsweredBeforeTheNextBlock) {
    Select({{"ALPHA", "1"}, {"ALPHA", "9"}, {"ALPHA", "99"}});
    desktop.ExpectPump([](kv::User& user) { user.Click(IDCANCEL); }, 1);
    EXPECT_TRUE(Populate());
    EXPECT_EQ(relation, (NeighborRelation{{{"ALPHA", "1"}, InArea("ALPHA", {"2", "4", "5"})}}));
    EXPECT_THAT(Selected(), SizeIs(6));
}

TEST_F(NeighborBlocks, ASelectionThatIsChangedDuringTheSearchIsFollowed) {
    Select({{"ALPHA", "1"}, {"ALPHA", "9"}});
    // Takes out what was added for the first block.
    desktop.ExpectPump([this](kv::User&) { selection = {{"ALPHA", "ALPHA"}, {"1", "9"}}; }, 2);
    EXPECT_TRUE(Populate());
    Places left = InArea("ALPHA", {"1", "9", "5", "6", "8"});
    left.insert(left.end(), {{"BETA ISLE", "1A"}, {"SHORE", "7"}});
    EXPECT_EQ(Selected(), left);
}

TEST_F(NeighborBlocks, ASelectionThatIsEmptiedDuringTheSearchEndsIt) {
    Select({{"ALPHA", "1"}, {"ALPHA", "9"}});
    desktop.ExpectPump([this](kv::User&) { selection = {}; }, 2);
    EXPECT_TRUE(Populate());
    EXPECT_THAT(Selected(), IsEmpty());
    EXPECT_THAT(relation, SizeIs(1));
}

// The work table.

class NeighborTable : public NeighborBlocks {
protected:
    /// So many keys, A1 on, each with one neighbor of its own.
    void Relate(int keys) {
        relation.clear();
        for (int i = 0; i < keys; ++i) {
            relation[{"AREA", KeyOf(i)}] = InArea("NEAR", {std::to_string(i)});
        }
    }
    static std::string KeyOf(int i) { return "A" + std::to_string(100 + i); }
    static std::string RowOf(int i, const std::string& type = "N") {
        return "(select '" + Machine() + "','AREA','" + KeyOf(i) + "','NEAR','" +
               std::to_string(i) + "','" + type + "' from dual) ";
    }
    static std::string InsertOf(int first, int behind) {
        std::string sql = "insert into NORVADON.nvd2000_tmp_abe2";
        for (int i = first; i < behind; ++i)
            sql += (i > first ? " union " : "") + RowOf(i);
        return sql;
    }
    static std::string DeleteOfMachine() {
        return "delete from NORVADON.nvd2000_tmp_abe2 where machine_ID = '" + Machine() + "'";
    }
    static constexpr const char* kDeleteOfSelected =
        "delete from NORVADON.nvd2000_tmp_abe2 where (n_area, n_bext) in (select o_area, o_bext "
        "from NORVADON.nvd2000_tmp_abe2)";
};

TEST_F(NeighborTable, TakesTenKeysInOneStatement) {
    Relate(10);
    Finder().InsertMapToTable(relation);
    EXPECT_THAT(statements, ElementsAre(DeleteOfMachine(), InsertOf(0, 10), kDeleteOfSelected));
    EXPECT_EQ(Rows("select count(*) from nvd2000_tmp_abe2", 1), "10");
}

TEST_F(NeighborTable, TakesElevenKeysInTwo) {
    Relate(11);
    Finder().InsertMapToTable(relation);
    EXPECT_THAT(statements, ElementsAre(DeleteOfMachine(), InsertOf(0, 10), InsertOf(10, 11),
                                        kDeleteOfSelected));
    EXPECT_EQ(Rows("select count(*) from nvd2000_tmp_abe2", 1), "11");
}

TEST_F(NeighborTable, TakesNoStatementForNoKeys) {
    Finder().InsertMapToTable(relation);
    EXPECT_THAT(statements, ElementsAre(DeleteOfMachine(), kDeleteOfSelected));
}

TEST_F(NeighborTable, TakesNoRowForAKeyWithoutNeighbors) {
    relation[{"AREA", "1"}];
    relation[{"AREA", "2"}] = InArea("NEAR", {"3"});
    Finder().InsertMapToTable(relation);
    EXPECT_EQ(WorkTable(), "AREA|2|NEAR|3|N");
}

TEST_F(NeighborTable, JoinsTheRowsOfAKeyAndOfKeysAlike) {
    relation[{"ALPHA", "1"}] = {{"ALPHA", "2"}, {"BETA ISLE", "1A"}};
    relation[{"ALPHA", "9"}] = {{"SHORE", "7"}};
    Finder(1).InsertMapToTable(relation);
    const std::string id = Machine();
    EXPECT_EQ(statements.at(1), "insert into NORVADON.nvd2000_tmp_abe2(select '" + id +
                                    "','ALPHA','1','ALPHA','2','C' from dual)  union (select '" +
                                    id +
                                    "','ALPHA','1','BETA ISLE','1A','C' from dual)  union (select "
                                    "'" +
                                    id + "','ALPHA','9','SHORE','7','C' from dual) ");
    EXPECT_EQ(WorkTable(), "ALPHA|1|ALPHA|2|C ALPHA|1|BETA ISLE|1A|C ALPHA|9|SHORE|7|C");
    EXPECT_EQ(Rows("select distinct machine_ID from nvd2000_tmp_abe2", 1), id);
}

TEST_F(NeighborTable, TellsTheKindOfAreasByALetter) {
    Relate(1);
    for (const auto& [type, letter] : {std::pair(0, "N"), {1, "C"}, {2, "M"}, {9, "M"}}) {
        Finder(type).InsertMapToTable(relation);
        EXPECT_EQ(Rows("select area_type from nvd2000_tmp_abe2", 1), letter) << type;
    }
}

TEST_F(NeighborTable, RowsOfAnEarlierRunGiveWayAndThoseOfOtherMachinesStay) {
    Run("insert into nvd2000_tmp_abe2 values ('" + Machine() +
        "', 'OLD', '1', 'OLD', '2', 'N'), "
        "('ELSEWHERE', 'THEIRS', '1', 'THEIRS', '2', 'N')");
    Relate(1);
    Finder().InsertMapToTable(relation);
    EXPECT_EQ(WorkTable(), "AREA|A100|NEAR|0|N THEIRS|1|THEIRS|2|N");
}

TEST_F(NeighborTable, NeighborsThatAreSelectedThemselvesGoOnEveryMachine) {
    Run("insert into nvd2000_tmp_abe2 values ('ELSEWHERE', 'THEIRS', '1', 'ALPHA', '1', 'N'), "
        "('ELSEWHERE', 'ALPHA', '3', 'THEIRS', '4', 'N')");
    relation[{"ALPHA", "1"}] = InArea("ALPHA", {"2", "3", "4"});
    relation[{"ALPHA", "2"}] = InArea("ALPHA", {"1", "5"});
    Finder().InsertMapToTable(relation);
    EXPECT_EQ(WorkTable(), "ALPHA|1|ALPHA|4|N ALPHA|2|ALPHA|5|N ALPHA|3|THEIRS|4|N");
}

TEST_F(NeighborTable, AFailureIsShownEndsItAndLeavesTheTableAsItWas) {
    Run("insert into nvd2000_tmp_abe2 values ('" + Machine() + "', 'OLD', '1', 'OLD', '2', 'N')");
    Relate(25);
    relation[{"AREA", KeyOf(15)}] = InArea("O'NEIL", {"1"});
    desktop.ExpectMessage("");
    Finder().InsertMapToTable(relation);
    EXPECT_THAT(desktop.Messages(), ElementsAre(HasSubstr("O'NEIL")));
    EXPECT_THAT(statements, SizeIs(3));
    EXPECT_EQ(WorkTable(), "OLD|1|OLD|2|N");
}

TEST_F(NeighborTable, NobodyIsKeptWaitingWhileAFailureIsShown) {
    relation[{"AREA", "1"}] = InArea("O'NEIL", {"1"});
    class Looking : public test::TestDesktop {
    public:
        std::function<void()> look;
        int RunMessageBox(const kv::MessageBoxRequest&) override {
            look();
            return IDOK;
        }
    } looking;
    // Who writes would wait for the lock, and then fail.
    looking.look = [this] { Run("delete from nvd2000_tmp_abe2"); };
    kv::WindowSystem::Get().SetDesktop(&looking);
    EXPECT_NO_THROW(Finder().InsertMapToTable(relation));
    kv::WindowSystem::Get().SetDesktop(&desktop);
}

TEST_F(NeighborTable, ACommitThatFailsBecauseOthersReadIsShownAndNothingIsStored) {
    Run("insert into nvd2000_tmp_abe2 values ('" + Machine() + "', 'OLD', '1', 'OLD', '2', 'N')");
    Relate(3);
    desktop.ExpectMessage("");
    {
        const test::SqliteReader reader(path, "select * from gulf_mexico_lbi");
        Finder().InsertMapToTable(relation);
    }
    EXPECT_THAT(desktop.Messages(),
                ElementsAre("Database error: The changes could not be committed, and are undone: "
                            "database is locked"));
    EXPECT_EQ(WorkTable(), "OLD|1|OLD|2|N");
}

TEST_F(NeighborTable, WithAWriteAheadLogThoseWhoReadHoldUpNobody) {
    Run("pragma journal_mode = wal");
    Relate(3);
    const test::SqliteReader reader(path, "select * from gulf_mexico_lbi");
    Finder().InsertMapToTable(relation);
    EXPECT_EQ(Rows("select count(*) from nvd2000_tmp_abe2", 1), "3");
}

TEST_F(NeighborTable, WhicheverCallFailsIsShownOnceAndAllOrNothingIsStored) {
    const std::string old =
        "insert into nvd2000_tmp_abe2 values ('" + Machine() + "', 'OLD', '1', 'OLD', '2', 'N')";
    const auto failAt = [&](int nth, const std::function<void()>& change) {
        int calls = 0;
        Run("delete from nvd2000_tmp_abe2; " + old);
        // So that each run makes the same calls.
        kv::db::SessionPool::Instance().Clear();
        kv::db::SetDatabaseFault([&](std::string_view) { return ++calls == nth; });
        if (nth > 0) desktop.ExpectMessage("");
        change();
        kv::db::SetDatabaseFault(nullptr);
        EXPECT_EQ(desktop.ScenesLeft(), 0);
        return calls;
    };
    Relate(11);
    const auto insert = [&] { Finder().InsertMapToTable(relation); };
    const auto clear = [&] { Finder().DeleteFromABE2("nvd2000_tmp_abe2"); };
    const int ofInsert = failAt(0, insert);
    EXPECT_EQ(Rows("select count(*) from nvd2000_tmp_abe2", 1), "11");
    const int ofClear = failAt(0, clear);
    EXPECT_EQ(Rows("select count(*) from nvd2000_tmp_abe2", 1), "0");
    EXPECT_GT(ofInsert, ofClear);
    EXPECT_GE(ofClear, 4);
    for (const auto& [calls, change] :
         {std::pair<int, std::function<void()>>(ofInsert, insert), {ofClear, clear}}) {
        for (int nth = 1; nth <= calls; ++nth) {
            SCOPED_TRACE(nth);
            failAt(nth, change);
            EXPECT_EQ(WorkTable(), "OLD|1|OLD|2|N");
        }
    }
}

TEST_F(NeighborTable, IsClearedOfThisMachinesRowsUnderTheNameThatIsGiven) {
    Run("create table other (machine_ID text); insert into other values ('" + Machine() +
        "'), ('ELSEWHERE')");
    Finder().DeleteFromABE2("NORVADON.other");
    EXPECT_THAT(statements,
                ElementsAre("delete from NORVADON.other where machine_ID = '" + Machine() + "'"));
    EXPECT_EQ(Rows("select machine_ID from other", 1), "ELSEWHERE");
}

TEST_F(NeighborTable, WhatASearchFoundComesBackFromIt) {
    Select({{"ALPHA", "5"}, {"ALPHA", "6"}});
    ASSERT_TRUE(Populate());
    Finder().InsertMapToTable(relation);
    EXPECT_EQ(Rows("select count(*) from nvd2000_tmp_abe2", 1), "12");
    EXPECT_EQ(
        Rows("select n_area, n_bext from nvd2000_tmp_abe2 where o_bext = '6' order by 1, 2", 2),
        "ALPHA|2 ALPHA|3 ALPHA|8 ALPHA|9 BETA ISLE|1A");
}

}  // namespace
