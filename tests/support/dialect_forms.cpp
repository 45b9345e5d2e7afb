#include "support/dialect_forms.h"

#include <map>
#include <stdexcept>

#include "support/sql_texts.h"

namespace kv::test {

const char* const kDialectTables = R"sql(
create table gulf_mexico_connam2 (areaname varchar(40), stcode varchar(10), area_abbr varchar(4));
insert into gulf_mexico_connam2 values ('GALVESTON', '426A', 'GA'), ('GALVESTON BAY', '428B', 'GA'),
  ('WEST DELTA', '700', 'WD'), ('west low', '710', null), ('A_B\C', '730', '_X');
create table gulf_mexico_lbi (areacode varchar(10), lbnum varchar(10), lbext varchar(10),
  refnum numeric);
insert into gulf_mexico_lbi values ('426A', '12', 'A', 1), ('426A', '12', null, 2),
  ('426A', '2', null, 3), ('426A', '100', 'a', 4), ('426A', '100', 'B', 5), ('428B', '9', null, 6),
  ('700', '33', null, 7), ('700', null, null, 8), ('427C', '7', 'X', 9);
create table gulf_mexico_lbv (refnum numeric, lat numeric, lon numeric, ptnum numeric);
insert into gulf_mexico_lbv values (1, 28, -90, 2), (1, 29, -90, 1), (1, 29, -91, 3),
  (2, 29.1, -90.5, 1), (3, 29.25, -90.5, 1), (6, 28.5, -90.5, 1), (7, 10, -90.5, 1), (9, 28, -80, 1);
create table gulf_mexico_lease (lease varchar(40), lessee varchar(40), operator varchar(40),
  lplana varchar(1));
insert into gulf_mexico_lease values ('OCS-G 01234', 'SHALE', 'SHORE', 'C'),
  ('G01234', 'Shy', 'b SHORE', 'E'), ('SL 123', 'SHALE', 'SHALE', 'L'), ('SL 99', 'a', '-SH', 'T'),
  ('OCS-G 1235', 'ASH', ' SH', 'W'), ('OCS-G 1234', 'SH', null, 'C');
create table onshore_lease (lease varchar(40));
insert into onshore_lease values ('OCS-G 199'), ('G01234'), ('a1');
create table old_lease (lease varchar(40));
insert into old_lease values ('SL 101'), ('a1'), ('SL 22');
create table plans (area1 varchar(10), blk1 varchar(10), ext1 varchar(10), area2 varchar(10),
  blk2 varchar(10), ext2 varchar(10));
insert into plans values ('426A', '12', 'A', '700', '1', null),
  ('426A', '2', null, '426A', '10', 'Z'), ('700', '5', 'B', '426A', '12', 'A');
create table nvd2000_area_order (areaname varchar(40), seq numeric, defseq numeric);
insert into nvd2000_area_order values ('WEST DELTA', 10, 1), ('GALVESTON', 9, 2), ('OLD', 3, 3);
create table nvd2000_tmp_abe2 (machine_ID varchar(20), o_area varchar(40), o_bext varchar(10),
  n_area varchar(40), n_bext varchar(10), area_type varchar(1));
insert into nvd2000_tmp_abe2 values ('PC 7', 'X', '1', 'Y', '2', 'N'),
  ('PC 8', 'X', '2', 'X', '1', 'N');
create table gulf_mexico_zone_code (zone_code numeric, description varchar(60),
  category varchar(30), state_plane_code numeric);
insert into gulf_mexico_zone_code values (100, 'Clarke', 'utm_spheroids', null),
  (20, 'misc b', 'misc_other', null), (3, 'Misc A', 'misc_boone', null),
  (4, null, 'misc_other', 1702), (1, 'Texas South', 'state_lambert', 4204),
  (200, 'Bessel', 'utm_spheroids', null);
create table GULF_MEXICO_WELL_HDR (api varchar(12));
create table other_well_hdr (api varchar(12));
)sql";

namespace {

using Forms = std::vector<DialectForm>;
using Rows = std::vector<std::string>;

SqlValues Values() {
    SqlValues values;
    values.areaName = "GALVESTON";
    values.areaCode = "426A";
    values.mmsCode = "GA";
    values.block = "12A";
    values.box = {28, 29.1, -91, -89};
    values.namesInBox = {"WEST DELTA", "GALVESTON"};
    values.mmsCodesInBox = {"GA", "WD"};
    values.namePart = "EST";
    values.codeStart = "7";
    values.mmsEnd = "A";
    values.nameStart = "G";
    values.leaseColumn = "lease";
    values.leaseTables = {"NORVADON.gulf_mexico_lease", "NORVADON.onshore_lease",
                          "NORVADON.old_lease"};
    values.leasePart = "1";
    values.leaseStart = "OCS";
    values.leaseEnd = "4";
    values.companyPart = "SH";
    values.expressionStart = "CO";
    values.operatorStart = "SH";
    values.planTable = "plans";
    values.plan = {"area1", "blk1", "ext1"};
    values.otherPlan = {"area2", "blk2", "ext2"};
    values.place = 3;
    values.movedArea = "EAST BREAKS";
    values.defaultPlace = 7;
    values.machine = "PC 7";
    values.neighbors = {"13", "2", "", "13"};
    values.grantedTable = "plans";
    return values;
}

/// The rows that each query gives on the small tables.
const std::map<std::string, Rows>& RowsOfQueries() {
    static const Rows blocks = {"100B-S|100", "100a-S|100", "12-S|12", "12A-S|12", "2-S|2"};
    static const Rows blocksOfMmsCode = {"100B-S|100", "100a-S|100", "12-S|12",
                                         "12A-S|12",   "2-S|2",      "9-BAY|9"};
    static const Rows inBox = {"12-S|12", "12A-S|12"};
    static const Rows inBoxOfMmsCode = {"12-S|12", "12A-S|12", "9-BAY|9"};
    static const Rows plans = {"12A-S|12", "2-S|2"};
    static const Rows allPlans = {"10Z-S|10", "12A-S|12", "2-S|2"};
    static const Rows outline = {"29|-90", "28|-90", "29|-91"};
    static const Rows statePlane = {"Zone: -4204: Texas South|4204", "Zone: -1702: |1702"};
    static const Rows federal = {"G01234", "OCS-G 01234", "OCS-G 1234", "OCS-G 1235"};
    const auto behindAll = [](Rows rows) {
        rows.insert(rows.begin(), "ALL|-1");
        return rows;
    };
    const auto with = [](Rows rows, const Rows& more) {
        rows.insert(rows.end(), more.begin(), more.end());
        return rows;
    };
    static const std::map<std::string, Rows> rows = {
        {"AreaCodes", {" -AREA NAME-", " -MMS CODE-", "426A", "428B", "700", "710", "730"}},
        {"AreaNames",
         {" -AREA CODE-", " -MMS CODE-", "A_B\\C", "GALVESTON", "GALVESTON BAY", "WEST DELTA",
          "west low"}},
        {"MmsCodes", {" -AREA CODE-", " -AREA NAME-", "GA", "WD", "_X"}},
        {"AreaCodesInsideABoxWithABracketTooMany", {" -AREA NAME-", " -MMS CODE-", "426A", "428B"}},
        {"DistinctAreaCodesInsideABox", {"426A", "428B"}},
        {"AreaNamesOfAList", {" -AREA CODE-", " -MMS CODE-", "GALVESTON", "WEST DELTA"}},
        {"MmsCodesOfAList", {" -AREA CODE-", " -AREA NAME-", "GA", "WD"}},
        {"BlocksOfAnAreaName", blocks},
        {"BlocksOfAnAreaNameBehindAll", behindAll(blocks)},
        {"BlocksOfAnAreaNameInsideABox", inBox},
        {"BlocksOfAnAreaNameInsideABoxBehindAll", behindAll(inBox)},
        {"BlocksOfAnAreaCode", blocks},
        {"BlocksOfAnAreaCodeBehindAll", behindAll(blocks)},
        {"BlocksOfAnAreaCodeInsideABox", inBox},
        {"BlocksOfAnAreaCodeInsideABoxBehindAll", behindAll(inBox)},
        {"BlocksOfAnMmsCode", blocksOfMmsCode},
        {"BlocksOfAnMmsCodeBehindAll", behindAll(blocksOfMmsCode)},
        {"BlocksOfAnMmsCodeInsideABox", inBoxOfMmsCode},
        {"BlocksOfAnMmsCodeInsideABoxBehindAll", behindAll(inBoxOfMmsCode)},
        {"QualifiersOfTwoColumns", {" SH", "-SH", "ASH", "SH", "SHALE", "SHORE", "b SHORE"}},
        {"QualifiersThatContainAText", with(federal, {"SL 123"})},
        {"QualifiersThatContainATextInTheOrderOfLeases", with(federal, {"SL 123"})},
        {"QualifiersThatStartWithAText", {"OCS-G 01234", "OCS-G 1234", "OCS-G 1235"}},
        {"QualifiersThatStartWithATextInTheOrderOfLeases",
         {"OCS-G 01234", "OCS-G 1234", "OCS-G 1235"}},
        {"QualifiersThatEndWithAText", {"G01234", "OCS-G 01234", "OCS-G 1234"}},
        {"QualifiersThatEndWithATextInTheOrderOfLeases", {"G01234", "OCS-G 01234", "OCS-G 1234"}},
        {"QualifiersOfAWholeColumn", {"C", "E", "L", "T", "W"}},
        {"QualifiersOfAnExpression", {"COCS-G 01234", "COCS-G 1234"}},
        {"QualifiersOfTwoTables", with(federal, {"OCS-G 199", "SL 123", "a1"})},
        {"QualifiersOfTwoTablesInTheOrderOfLeases",
         {"G01234", "OCS-G 199", "OCS-G 01234", "OCS-G 1234", "OCS-G 1235", "SL 123", "a1"}},
        {"QualifiersOfThreeTables", with(federal, {"OCS-G 199", "SL 101", "SL 123", "a1"})},
        {"QualifiersOfThreeTablesInTheOrderOfLeases",
         {"G01234", "OCS-G 199", "OCS-G 01234", "OCS-G 1234", "OCS-G 1235", "SL 101", "SL 123",
          "a1"}},
        {"LeasesOfFederal", federal},
        {"LeasesOfFederalInTheOrderOfLeases", federal},
        {"LeasesOfLouisiana", {"SL 123"}},
        {"LeasesOfLouisianaInTheOrderOfLeases", {"SL 123"}},
        {"LeasesOfTexas", {"SL 99"}},
        {"LeasesOfTexasInTheOrderOfLeases", {"SL 99"}},
        {"LeasesOfFederalLouisiana", with(federal, {"SL 123"})},
        {"LeasesOfFederalLouisianaInTheOrderOfLeases", with(federal, {"SL 123"})},
        {"LeasesOfFederalTexas", with(federal, {"SL 99"})},
        {"LeasesOfFederalTexasInTheOrderOfLeases", with(federal, {"SL 99"})},
        {"LeasesOfLouisianaTexas", {"SL 123", "SL 99"}},
        {"LeasesOfLouisianaTexasInTheOrderOfLeases", {"SL 99", "SL 123"}},
        {"LeasesOfAllDatasets", with(federal, {"SL 123", "SL 99"})},
        {"LeasesOfAllDatasetsInTheOrderOfLeases", with(federal, {"SL 99", "SL 123"})},
        {"OperatorsOfAList", {"SHORE"}},
        {"OperatorsOfASubquery", {"b SHORE"}},
        {"AreaNamesLikeAPattern", {"GALVESTON", "GALVESTON BAY", "WEST DELTA"}},
        {"AreaCodesLikeAPattern", {"700", "710", "730"}},
        {"MmsCodesLikeAPattern", {"GA"}},
        {"AreaCodesOfATable", {"700"}},
        {"AreaCodesOfATableWithTwoSets", {"700"}},
        {"AreaNamesOfATable", {"GALVESTON"}},
        {"AreaNamesOfATableWithTwoSets", {"GALVESTON"}},
        {"MmsCodesOfATable", {"GA", "WD"}},
        {"MmsCodesOfATableWithTwoSets", {"GA", "WD"}},
        {"BlocksOfAnAreaNameByNumber", {"2-S", "12-S", "12A-S", "100B-S", "100a-S"}},
        {"BlocksOfAnAreaCodeByNumber", {"2-S", "12-S", "12A-S", "100B-S", "100a-S"}},
        {"BlocksOfAnMmsCodeByNumber", {"2-S", "9-BAY", "12-S", "12A-S", "100B-S", "100a-S"}},
        {"PlannedBlocksOfAnAreaName", plans},
        {"PlannedBlocksOfAnAreaNameInTwoSets", allPlans},
        {"PlannedBlocksOfAnAreaCode", plans},
        {"PlannedBlocksOfAnAreaCodeInTwoSets", allPlans},
        {"PlannedBlocksOfAnMmsCode", plans},
        {"PlannedBlocksOfAnMmsCodeInTwoSets", allPlans},
        {"PlannedBlocksWithoutExtension", {"12-S|12", "2-S|2"}},
        // Outlines are one unit high and wide: 29.1 lies inside of 29 and a fifth, 29.25 does not.
        {"CandidatesByAnAreaName", {"GALVESTON|12", "GALVESTON|12A", "GALVESTON BAY|9"}},
        {"CandidatesByAnAreaCode", {"426A|12", "426A|12A", "428B|9"}},
        {"CandidatesByAnMmsCode", {"GA|12", "GA|12A", "GA|9"}},
        {"CandidatesOfAWholeAreaByAnAreaName", {}},
        {"CandidatesOfAWholeAreaByAnAreaCode", {}},
        {"CandidatesOfAWholeAreaByAnMmsCode", {}},
        {"OutlineByAnAreaName", outline},
        {"OutlineByAnAreaCode", outline},
        {"OutlineByAnMmsCode", outline},
        {"AreasInTheUsersOrder", {"OLD", "GALVESTON", "WEST DELTA"}},
        {"AreasInTheDefaultOrder", {"WEST DELTA", "GALVESTON", "OLD"}},
        {"Zones",
         {"1|Texas South|state_lambert", "3|Misc A|misc_boone", "4||misc_other",
          "20|misc b|misc_other", "100|Clarke|utm_spheroids", "200|Bessel|utm_spheroids"}},
        {"StatePlaneZonesOfTheCatalogue", statePlane},
        {"StatePlaneZonesOfTheList", statePlane},
        {"Spheroids", {"Clarke|100", "Bessel|200"}},
        {"ZonesOfStateLambert", {"Zone: 1: Texas South|1"}},
        {"ZonesOfStateTransverseMercator", {}},
        {"ZonesOfMiscLambert", {}},
        {"ZonesOfMiscTransverseMercator", {}},
        {"ZonesOfMiscOther", {"Zone: 3: Misc A|3", "Zone: 4: |4", "Zone: 20: misc b|20"}},
        {"TablesLikeAPattern", {"GULF_MEXICO_WELL_HDR", "OTHER_WELL_HDR"}},
        {"ATableThatIsNotThere", {}},
        {"ATableThatIsThere", {"PLANS"}},
    };
    return rows;
}

/// What each change leaves in the table that it is about.
const std::map<std::string, Rows>& RowsAfterChanges() {
    static const Rows areas = {"OLD", "GALVESTON", "WEST DELTA"};
    static const std::map<std::string, Rows> rows = {
        {"DeleteByPlace", {"WEST DELTA|10|1", "GALVESTON|9|2"}},
        {"InsertOfValues", {"WEST DELTA|10|1", "GALVESTON|9|2", "OLD|3|3", "EAST BREAKS|3|7"}},
        {"DeleteByMachine", {"PC 8|X|2|X|1|N"}},
        {"InsertOfOneRowInBrackets",
         {"PC 7|X|1|Y|2|N", "PC 7|GALVESTON|12A|GALVESTON|13|N", "PC 8|X|2|X|1|N"}},
        {"InsertOfAUnion",
         {"PC 7|X|1|Y|2|N", "PC 7|GALVESTON|12A|GALVESTON|13|N", "PC 7|GALVESTON|12A|GALVESTON|2|N",
          "PC 7|GALVESTON|12A|GALVESTON||N", "PC 8|X|2|X|1|N"}},
        {"DeleteOfRowsInASubquery", {"PC 7|X|1|Y|2|N"}},
        {"CreateTable", {}},
        {"GrantALTER", areas},
        {"GrantDELETE", areas},
        {"GrantINDEX", areas},
        {"GrantINSERT", areas},
        {"GrantUPDATE", areas},
        {"GrantREFERENCES", areas},
        {"Commit", areas},
    };
    return rows;
}

Forms WithRows(const std::vector<SqlText>& texts, const std::map<std::string, Rows>& rows) {
    if (texts.size() != rows.size()) throw std::logic_error("Rows of a text that is not there");
    Forms forms;
    for (const auto& [name, sql, shows] : texts)
        forms.push_back({name, sql, rows.at(name), shows});
    return forms;
}

/// Values that other rows show something with.
void AddSpecialQueries(Forms& forms) {
    const auto blocksOf = [](const std::string& areaCode, const std::string& query) {
        SqlValues values = Values();
        values.areaCode = areaCode;
        return SqlQueryNamed(query, values);
    };
    forms.push_back({"BlocksOfALake", blocksOf("427C", "BlocksOfAnAreaCode"), {"7X-L|7"}});
    forms.push_back({"BlocksOfABay", blocksOf("428B", "BlocksOfAnAreaCodeByNumber"), {"9-BAY"}});
    forms.push_back({"BlocksWithoutNumberComeLast",
                     blocksOf("700", "BlocksOfAnAreaCodeBehindAll"),
                     {"ALL|-1", "33|33", "|"}});
    SqlValues backslash = Values();
    backslash.namePart = "_B\\C";
    forms.push_back({"ABackslashInAPatternIsItself",
                     SqlQueryNamed("AreaNamesLikeAPattern", backslash),
                     {"A_B\\C"}});
}

Forms MakeQueries() {
    Forms forms = WithRows(SqlQueries(Values()), RowsOfQueries());
    AddSpecialQueries(forms);
    return forms;
}

Forms MakeChanges() {
    return WithRows(SqlChanges(Values()), RowsAfterChanges());
}

}  // namespace

const std::vector<DialectForm>& DialectQueries() {
    static const Forms forms = MakeQueries();
    return forms;
}

const std::vector<DialectForm>& DialectChanges() {
    static const Forms forms = MakeChanges();
    return forms;
}

const std::vector<std::string>& LeasesInOrder() {
    static const std::vector<std::string> leases = {
        " 5",        "G",           "G 1",        "G 2",           "G 10",
        "G00999",    "G01234",      "G1235",      "G123456789012", "M-0",
        "M-9",       "M-5678",      "M-5678 A1",  "M-5678 A02",    "M-5678 A10",
        "OCS-G 099", "OCS-G 01234", "OCS-G 1235", "OCS-G 12340",   "SL 99",
        "SL 123",    "SL 123A",     "SL 124",     "g 1",           "\xC3\x84 3"};
    return leases;
}

}  // namespace kv::test
