// Each statement of the block selection dialogs to the letter, and its rows.

#include <gmock/gmock.h>

#include "blocks/block_fixture.h"
#include "blocks/dyn_blk_ext_dlg.h"
#include "frame/kvdbkvn/db_dataset_set.h"
#include "support/sql_texts.h"
#include "support/sqlite_file.h"

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using namespace kv::blk_ext;

constexpr const char* kTable = "NORVADON.gulf_mexico_connam2";

class BlkExtQuery : public BlockTest {
protected:
    /// What the dialog lists: the areas that a search with those radios finds, and the blocks of
    /// the first of them.
    struct Listed {
        std::vector<std::string> areas;
        std::vector<std::string> blocks;
    };
    Listed Lists(CKvGuiBlkExtDlg& each, const std::string& text, int radio = kContain) {
        Listed listed;
        Run(each, [&](kv::User& user) {
            user.Click(radio);
            Search(user, text);
            listed.areas = user.Rows(kAvailable);
            if (!listed.areas.empty()) user.DoubleClick(kAvailable, 0);
            listed.blocks = user.Rows(kBlocks);
        });
        return listed;
    }
};

TEST_F(BlkExtQuery, OfAreaNames) {
    const Listed listed = Lists(dialog, "grand isle");
    EXPECT_THAT(listed.areas, ElementsAre("GRAND ISLE", "GRAND ISLE SOUTH"));
    EXPECT_THAT(listed.blocks, ElementsAre("9", "9A", "10", "100"));
    EXPECT_THAT(
        statements,
        ElementsAre(
            "select distinct areaname from NORVADON.gulf_mexico_connam2 where areaname like "
            "'%GRAND ISLE%'",
            "select decode(substr(areacode, 1, 3), '426', lbnum||lbext || '-S','427', lbnum||lbext "
            "|| '-L','420', lbnum||lbext || '-BAY','421', lbnum||lbext || '-BAY','422', "
            "lbnum||lbext || '-BAY','423', lbnum||lbext || '-BAY','424', lbnum||lbext || "
            "'-BAY','425', lbnum||lbext || '-BAY','428', lbnum||lbext || '-BAY','429', "
            "lbnum||lbext || '-BAY',lbnum||lbext) from NORVADON.GULF_MEXICO_lbi where areacode = "
            "(select stcode from NORVADON.GULF_MEXICO_connam2 where areaname = 'GRAND ISLE')order "
            "by\tto_number(lbnum)"));
}

TEST_F(BlkExtQuery, OfAreaCodes) {
    dialog.SetFieldString("stcode");
    const Listed listed = Lists(dialog, "426", kStartWith);
    EXPECT_THAT(listed.areas, ElementsAre("4261"));
    EXPECT_THAT(listed.blocks, ElementsAre("123A-S"));
    EXPECT_THAT(
        statements,
        ElementsAre(
            "select distinct stcode from NORVADON.gulf_mexico_connam2 where stcode like '426%'",
            "select decode(substr(areacode, 1, 3), '426', lbnum||lbext || '-S','427', lbnum||lbext "
            "|| '-L','420', lbnum||lbext || '-BAY','421', lbnum||lbext || '-BAY','422', "
            "lbnum||lbext || '-BAY','423', lbnum||lbext || '-BAY','424', lbnum||lbext || "
            "'-BAY','425', lbnum||lbext || '-BAY','428', lbnum||lbext || '-BAY','429', "
            "lbnum||lbext || '-BAY',lbnum||lbext) from NORVADON.GULF_MEXICO_lbi where areacode = "
            "'4261'order by to_number(lbnum)"));
}

TEST_F(BlkExtQuery, OfMmsCodes) {
    dialog.SetFieldString("area_abbr");
    const Listed listed = Lists(dialog, "i", kEndWith);
    EXPECT_THAT(listed.areas, ElementsAre("GI"));
    EXPECT_THAT(listed.blocks, ElementsAre("9", "9A", "10", "45", "46B", "100"));
    EXPECT_THAT(
        statements,
        ElementsAre(
            "select distinct area_abbr from NORVADON.gulf_mexico_connam2 where area_abbr like '%I'",
            "select decode(substr(areacode, 1, 3), '426', lbnum||lbext || '-S','427', lbnum||lbext "
            "|| '-L','420', lbnum||lbext || '-BAY','421', lbnum||lbext || '-BAY','422', "
            "lbnum||lbext || '-BAY','423', lbnum||lbext || '-BAY','424', lbnum||lbext || "
            "'-BAY','425', lbnum||lbext || '-BAY','428', lbnum||lbext || '-BAY','429', "
            "lbnum||lbext || '-BAY',lbnum||lbext) from NORVADON.GULF_MEXICO_lbi where areacode in "
            "(select stcode from NORVADON.GULF_MEXICO_connam2 where area_abbr = 'GI')order by "
            "to_number(lbnum)"));
}

TEST_F(BlkExtQuery, AnotherFieldIsSearchedAsItStandsAndItsBlocksAreThoseOfMmsCodes) {
    dialog.SetFieldString("region");
    EXPECT_EQ(dialog.GetAreaQuery("A%"),
              "select distinct region from NORVADON.gulf_mexico_connam2 where region like 'A%'");
    EXPECT_TRUE(
        dialog.GetBlkExtQuery("A").ends_with("where area_abbr = 'A')order by to_number(lbnum)"));
}

TEST_F(BlkExtQuery, TheOwnerIsThatOfTheCallerAndTheDatasetThatInForce) {
    dialog.SetType(selection, "SOMEBODY");
    dialog.SetFieldString("stcode");
    EXPECT_TRUE(dialog.GetBlkExtQuery("1").ends_with(
        " from SOMEBODY.GULF_MEXICO_lbi where areacode = '1'order by to_number(lbnum)"));
}

// Of a table of the caller's.

constexpr const char* kPlans = R"(
create table plan (areacode text, lbnum text, lbext text, to_code text, to_block text);
insert into plan values
    ('017', '9', 'A', '4261', '123'), ('017', '10', null, '4301', '55'), ('4261', '7', 'B', '018',
    '45'), ('4261', '12', null, '4281', '8');
)";

class DynBlkExtQuery : public BlkExtQuery {
protected:
    DynBlkExtQuery() {
        test::RunOnSqliteFile(folder.Native("blocks.db"), kPlans);
        for (CKvGuiBlkExtDlg* each : {&single_, &either_})
            SetUp(*each, "areaname");
    }
    void Field(const std::string& field) {
        single_.SetFieldString(field);
        either_.SetFieldString(field);
    }

    CKvGuiDynBlkExtDlg single_{"NORVADON.plan", "areacode", "lbnum||lbext", "", "", true};
    CKvGuiDynBlkExtDlg either_{"NORVADON.plan", "areacode", "lbnum||lbext",
                               "to_code",       "to_block", false};
};

TEST_F(DynBlkExtQuery, OfAreaNames) {
    EXPECT_THAT(Lists(single_, "s").areas, ElementsAre("GRAND ISLE", "SHORE LANDS"));
    EXPECT_THAT(statements[0],
                "select distinct areaname from NORVADON.gulf_mexico_connam2 c, NORVADON.plan abe "
                "where stcode = abe.areacode and c.areaname like '%S%%'");
    statements.clear();
    EXPECT_THAT(Lists(either_, "s").areas,
                ElementsAre("GRAND ISLE", "GRAND ISLE SOUTH", "SHORE LANDS"));
    EXPECT_THAT(statements[0],
                "select distinct areaname from NORVADON.gulf_mexico_connam2 c, NORVADON.plan abe "
                "where (stcode = abe.areacode or stcode =abe.to_code) and c.areaname like '%S%%'");
}

TEST_F(DynBlkExtQuery, OfAreaCodes) {
    Field("stcode");
    EXPECT_THAT(Lists(single_, "0", kStartWith).areas, ElementsAre("017"));
    EXPECT_THAT(statements[0],
                "select distinct stcode from NORVADON.gulf_mexico_connam2 c, NORVADON.plan abe "
                "where stcode = abe.areacode and c.stcode like '0%%'");
    statements.clear();
    EXPECT_THAT(Lists(either_, "0", kStartWith).areas, ElementsAre("017", "018"));
    EXPECT_THAT(statements[0],
                "select distinct stcode from NORVADON.gulf_mexico_connam2 c, NORVADON.plan abe "
                "where (stcode = abe.areacode or stcode = abe.to_code) and c.stcode like '0%%'");
}

TEST_F(DynBlkExtQuery, OfMmsCodesAndEndWithActsAsContain) {
    Field("area_abbr");
    EXPECT_THAT(Lists(single_, "g", kEndWith).areas, ElementsAre("GI"));
    EXPECT_THAT(statements[0],
                "select distinct area_abbr from NORVADON.gulf_mexico_connam2 c, NORVADON.plan abe "
                "where stcode = abe.areacode and c.area_abbr like '%G%'");
    statements.clear();
    EXPECT_THAT(Lists(either_, "l", kEndWith).areas, ElementsAre("PL", "SL"));
    EXPECT_THAT(statements[0],
                "select distinct area_abbr from NORVADON.gulf_mexico_connam2 c, NORVADON.plan abe "
                "where (stcode = abe.areacode or stcode =abe.to_code) and c.area_abbr like '%L%'");
}

TEST_F(DynBlkExtQuery, AnotherFieldIsListedByItsMmsCode) {
    Field("region");
    EXPECT_EQ(single_.GetAreaQuery("A%"),
              std::string("select distinct region from ") + kTable +
                  " c, NORVADON.plan abe where stcode = abe.areacode and c.area_abbr like 'A%%'");
}

TEST_F(DynBlkExtQuery, OfBlocksOfAnAreaName) {
    const std::string first =
        "select decode(substr(a.areacode, 1, 3), '426', lbnum||lbext|| '-S','427', lbnum||lbext || "
        "'-L','420', lbnum||lbext || '-BAY','421', lbnum||lbext || '-BAY','422', lbnum||lbext || "
        "'-BAY','423', lbnum||lbext || '-BAY','424', lbnum||lbext || '-BAY','425', lbnum||lbext || "
        "'-BAY','428', lbnum||lbext || '-BAY','429', lbnum||lbext || '-BAY',lbnum||lbext),lbnum "
        "from NORVADON.plan a, NORVADON.gulf_mexico_connam2 c where c.stcode = a.areacode and "
        "areaname = 'SHORE LANDS'";
    EXPECT_THAT(Lists(single_, "shore").blocks, ElementsAre("12-S", "7B-S"));
    EXPECT_EQ(statements[1], first + " order by 2");
    statements.clear();
    EXPECT_THAT(Lists(either_, "shore").blocks, ElementsAre("12-S", "123-S", "7B-S"));
    EXPECT_EQ(statements[1],
              first +
                  " union select decode(substr(a.to_code, 1, 3), '426', to_block|| '-S','427', "
                  "to_block || '-L','420', to_block || '-BAY','421', to_block || '-BAY','422', "
                  "to_block || '-BAY','423', to_block || '-BAY','424', to_block || '-BAY','425', "
                  "to_block || '-BAY','428', to_block || '-BAY','429', to_block || "
                  "'-BAY',to_block),to_block from NORVADON.plan a, NORVADON.gulf_mexico_connam2 c "
                  "where c.stcode = a.to_code and areaname = 'SHORE LANDS' order by 2");
}

TEST_F(DynBlkExtQuery, OfBlocksOfAnAreaCode) {
    Field("stcode");
    const std::string first =
        "select decode(substr(areacode, 1, 3), '426', lbnum||lbext|| '-S','427', lbnum||lbext || "
        "'-L','420', lbnum||lbext || '-BAY','421', lbnum||lbext || '-BAY','422', lbnum||lbext || "
        "'-BAY','423', lbnum||lbext || '-BAY','424', lbnum||lbext || '-BAY','425', lbnum||lbext || "
        "'-BAY','428', lbnum||lbext || '-BAY','429', lbnum||lbext || '-BAY',lbnum||lbext),lbnum "
        "from NORVADON.plan where areacode = '4281'";
    EXPECT_EQ(single_.GetBlkExtQuery("4281"), first + " order by 2");
    EXPECT_THAT(Lists(either_, "428").blocks, ElementsAre("8-BAY"));
    EXPECT_EQ(statements[1],
              first +
                  " union select decode(substr(to_code, 1, 3), '426', to_block|| '-S','427', "
                  "to_block || '-L','420', to_block || '-BAY','421', to_block || '-BAY','422', "
                  "to_block || '-BAY','423', to_block || '-BAY','424', to_block || '-BAY','425', "
                  "to_block || '-BAY','428', to_block || '-BAY','429', to_block || "
                  "'-BAY',to_block),to_block from NORVADON.plan where to_code = '4281' order by 2");
}

TEST_F(DynBlkExtQuery, OfBlocksOfAnMmsCode) {
    Field("area_abbr");
    EXPECT_TRUE(single_.GetBlkExtQuery("GI").ends_with(
        " from NORVADON.plan a, NORVADON.gulf_mexico_connam2 c where c.stcode = a.areacode and "
        "area_abbr = 'GI' order by 2"));
    const std::string query = either_.GetBlkExtQuery("GI");
    EXPECT_NE(query.find("area_abbr = 'GI' union select decode(substr(a.to_code, 1, 3), '426', "),
              std::string::npos);
    EXPECT_TRUE(query.ends_with("c.stcode = a.to_code and area_abbr = 'GI' order by 2"));
    EXPECT_THAT(Lists(either_, "gi").blocks, ElementsAre("10", "45", "9A"));
}

TEST_F(DynBlkExtQuery, OfABlockColumnItsTextAheadOfTheFirstBarsIsTheNumber) {
    const auto numberOf = [this](const std::string& block) {
        CKvGuiDynBlkExtDlg each("T", "A", block, "", "", true);
        SetUp(each, "stcode");
        const std::string query = each.GetBlkExtQuery("1");
        const std::size_t begin = query.find("'-BAY'," + block + "),");
        return query.substr(begin + 9 + block.size(),
                            query.find(" from ") - begin - 9 - block.size());
    };
    EXPECT_EQ(numberOf("blk"), "blk");
    EXPECT_EQ(numberOf("num||ext"), "num");
    EXPECT_EQ(numberOf("num ||ext||x"), "num ");
    EXPECT_EQ(numberOf("||ext"), "||ext");
}

TEST_F(DynBlkExtQuery, ATableThatIsNotThereIsTold) {
    CKvGuiDynBlkExtDlg missing("NORVADON.missing", "a", "b", "", "", true);
    SetUp(missing, "areaname");
    desktop.ExpectMessage("");
    EXPECT_THAT(Lists(missing, "x").areas, IsEmpty());
}

// The texts that every engine answers in the tests of the sample dataset are these.

class BlkExtStatements : public BlkExtQuery {
protected:
    BlkExtStatements() {
        CKvDbDatasetSet::S_SetGlobalDataset(values_.dataset);
        values_.areaName = "HIGH ISLAND";
        values_.areaCode = "43008";
        values_.mmsCode = "HI";
        values_.leaseTables = {"lease", "bid", "well"};
        values_.namePart = "ISLAND";
        values_.codeStart = "430";
        values_.mmsEnd = "I";
        values_.nameStart = "HIGH";
        values_.mmsStart = "H";
        values_.planTable = "gulf_mexico_pipeline";
        values_.plan = {"areacode", "lbnum", "lbext"};
        values_.otherPlan = {"to_areacode", "to_lbnum", "to_lbext"};
    }
    ~BlkExtStatements() override { CKvDbDatasetSet::S_SetGlobalDataset(""); }

    std::string Text(const std::string& name) const {
        for (const auto& each : kv::test::SqlQueries(values_)) {
            if (each.name == name) return each.sql;
        }
        ADD_FAILURE() << "no statement is named " << name;
        return {};
    }
    CKvGuiDynBlkExtDlg Dynamic(bool single) const {
        const auto& [area, block, ext] = values_.plan;
        const auto& [area2, block2, ext2] = values_.otherPlan;
        return {"NORVADON." + values_.planTable,
                area,
                block + "||" + ext,
                area2,
                block2 + "||" + ext2,
                single};
    }

    kv::test::SqlValues values_;
};

TEST_F(BlkExtStatements, OfTheDatasetsTables) {
    dialog.SetFieldString("areaname");
    EXPECT_EQ(dialog.GetAreaQuery("%ISLAND%"), Text("AreaNamesLikeAPattern"));
    EXPECT_EQ(dialog.GetBlkExtQuery("HIGH ISLAND"), Text("BlocksOfAnAreaNameByNumber"));
    dialog.SetFieldString("stcode");
    EXPECT_EQ(dialog.GetAreaQuery("430%"), Text("AreaCodesLikeAPattern"));
    EXPECT_EQ(dialog.GetBlkExtQuery("43008"), Text("BlocksOfAnAreaCodeByNumber"));
    dialog.SetFieldString("area_abbr");
    EXPECT_EQ(dialog.GetAreaQuery("%I"), Text("MmsCodesLikeAPattern"));
    EXPECT_EQ(dialog.GetBlkExtQuery("HI"), Text("BlocksOfAnMmsCodeByNumber"));
}

TEST_F(BlkExtStatements, OfATableOfTheCallers) {
    for (const bool single : {true, false}) {
        const std::string areas = single ? "OfATable" : "OfATableWithTwoSets";
        const std::string blocks = single ? "" : "InTwoSets";
        CKvGuiDynBlkExtDlg dynamic = Dynamic(single);
        SetUp(dynamic, "areaname");
        EXPECT_EQ(dynamic.GetAreaQuery("HIGH%"), Text("AreaNames" + areas));
        EXPECT_EQ(dynamic.GetBlkExtQuery("HIGH ISLAND"),
                  Text("PlannedBlocksOfAnAreaName" + blocks));
        dynamic.SetFieldString("stcode");
        EXPECT_EQ(dynamic.GetAreaQuery("430%"), Text("AreaCodes" + areas));
        EXPECT_EQ(dynamic.GetBlkExtQuery("43008"), Text("PlannedBlocksOfAnAreaCode" + blocks));
        dynamic.SetFieldString("area_abbr");
        EXPECT_EQ(dynamic.GetAreaQuery("H%"), Text("MmsCodes" + areas));
        EXPECT_EQ(dynamic.GetBlkExtQuery("HI"), Text("PlannedBlocksOfAnMmsCode" + blocks));
    }
}

}  // namespace
