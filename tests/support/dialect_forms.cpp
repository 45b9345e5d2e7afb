#include "support/dialect_forms.h"

#include <tuple>

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

const std::string kDataset = "NORVADON.gulf_mexico";
const std::string kAreas = kDataset + "_connam2";
const std::string kBlocks = kDataset + "_lbi";
const std::string kVertices = kDataset + "_lbv";
const std::string kLeases = "NORVADON.gulf_mexico_lease";
const std::string kOrder = "NORVADON.nvd2000_area_order";
const std::string kZones = "NORVADON.gulf_mexico_zone_code";
const std::string kWork = "NORVADON.nvd2000_tmp_abe2";
const std::string kPlans = "NORVADON.plans";
const std::string kAll = "select 'ALL',-1 from dual union ";
const std::string kBox =
    " and (V.lat between 28.000000 and 29.100000)"
    " and (V.lon between -91.000000 and -89.000000)";
const std::string kComment = "GULF_MEXICO_WELL_COMMENT";

/// The block label, from "decode(" to the comma ahead of the last value.
std::string Label(const std::string& areacode, const std::string& block) {
    std::string text = "decode(substr(" + areacode + ", 1, 3), '426', " + block +
                       " || '-S','427', " + block + " || '-L',";
    for (const char* code : {"420", "421", "422", "423", "424", "425", "428", "429"})
        text += "'" + std::string(code) + "', " + block + " || '-BAY',";
    return text;
}

std::string BlockHead(const std::string& select) {
    return select + Label("areacode", "lbnum||lbext") + "lbnum||lbext), lbnum from ";
}

const std::string kByNumber = "select " + Label("areacode", "lbnum||lbext") + "lbnum||lbext) from ";

std::string CodeOfName(const std::string& name) {
    return "(select stcode from " + kAreas + " where areaname = '" + name + "')";
}
std::string CodesOfAbbreviation(const std::string& abbreviation) {
    return "(select stcode from " + kAreas + " where area_abbr = '" + abbreviation + "')";
}

std::string Labels(const std::string& one, const std::string& other) {
    return "select '" + one + "' from dual union select '" + other + "' from dual union ";
}

using Forms = std::vector<DialectForm>;

void AddAreaLists(Forms& forms) {
    const std::string distinct = "select distinct ";
    const std::string inBox = "select areacode from " + kDataset + "_LBI I, " + kDataset +
                              "_LBV V  where (I.refnum = V.refnum)" + kBox;
    forms.push_back({"AreaCodes",
                     Labels(" -AREA NAME-", " -MMS CODE-") + distinct + "stcode from " + kAreas,
                     {" -AREA NAME-", " -MMS CODE-", "426A", "428B", "700", "710", "730"}});
    forms.push_back({"AreaNames",
                     Labels(" -AREA CODE-", " -MMS CODE-") + distinct + "areaname from " + kAreas,
                     {" -AREA CODE-", " -MMS CODE-", "A_B\\C", "GALVESTON", "GALVESTON BAY",
                      "WEST DELTA", "west low"}});
    forms.push_back({"MmsCodes",
                     Labels(" -AREA NAME-", " -AREA CODE-") + distinct + "area_abbr from " +
                         kAreas + " where area_abbr is not null",
                     {" -AREA CODE-", " -AREA NAME-", "GA", "WD", "_X"}});
    forms.push_back({"AreaCodesInsideABoxWithABracketTooMany",
                     Labels(" -AREA NAME-", " -MMS CODE-") + "(select distinct stcode from " +
                         kAreas + " where stcode in (" + inBox + ")))",
                     {" -AREA NAME-", " -MMS CODE-", "426A", "428B"}});
    forms.push_back({"DistinctAreaCodesInsideABox",
                     "select distinct areacode from " + kDataset + "_LBI I, " + kDataset +
                         "_LBV V  where (I.refnum = V.refnum)" + kBox,
                     {"426A", "428B"}});
    forms.push_back({"AreaNamesOfAList",
                     Labels(" -AREA CODE-", " -MMS CODE-") + "(select distinct areaname from " +
                         kAreas + " where areaname in ('WEST DELTA','GALVESTON'))",
                     {" -AREA CODE-", " -MMS CODE-", "GALVESTON", "WEST DELTA"}});
    forms.push_back({"MmsCodesOfAList",
                     Labels(" -AREA NAME-", " -AREA CODE-") + "(select distinct area_abbr from " +
                         kAreas + " where area_abbr is not null and (area_abbr in ('GA','WD')))",
                     {" -AREA CODE-", " -AREA NAME-", "GA", "WD"}});
}

void AddBlockLists(Forms& forms) {
    const std::string plain = BlockHead("select ");
    const Forms::value_type rows[] = {
        {"BlocksOfAnAreaName",
         plain + kBlocks + " where areacode = " + CodeOfName("GALVESTON") + "order by\t2",
         {"100B-S|100", "100a-S|100", "12-S|12", "12A-S|12", "2-S|2"}},
        {"BlocksOfAnAreaCode", plain + kBlocks + " where areacode = '427C'order by 2", {"7X-L|7"}},
        {"BlocksOfAnMmsCode",
         plain + kBlocks + " where areacode in " + CodesOfAbbreviation("GA") + "order by 2",
         {"100B-S|100", "100a-S|100", "12-S|12", "12A-S|12", "2-S|2", "9-BAY|9"}},
        {"BlocksWithoutNumberComeLast",
         plain + kBlocks + " where areacode = '700'order by 2",
         {"33|33", "|"}},
    };
    for (const DialectForm& row : rows) {
        forms.push_back(row);
        DialectForm withAll = row;
        withAll.name += "BehindAll";
        withAll.sql = kAll + withAll.sql;
        withAll.rows.insert(withAll.rows.begin(), "ALL|-1");
        forms.push_back(withAll);
    }
}

void AddBlockListsInsideABox(Forms& forms) {
    const std::string head = BlockHead("select distinct ") + kBlocks + " I, " + kVertices + " V ";
    const std::string tail = " and (I.refnum = V.refnum)" + kBox;
    const Forms::value_type rows[] = {
        {"BlocksOfAnAreaNameInsideABox",
         head + " where areacode = " + CodeOfName("GALVESTON") + tail + "order by\t2",
         {"12-S|12", "12A-S|12"}},
        {"BlocksOfAnAreaCodeInsideABox",
         head + " where areacode = '426A'" + tail + "order by 2",
         {"12-S|12", "12A-S|12"}},
        {"BlocksOfAnMmsCodeInsideABox",
         head + " where areacode in " + CodesOfAbbreviation("GA") + tail + "order by 2",
         {"12-S|12", "12A-S|12", "9-BAY|9"}},
    };
    for (const DialectForm& row : rows) {
        forms.push_back(row);
        DialectForm withAll = row;
        withAll.name += "BehindAll";
        withAll.sql = kAll + withAll.sql;
        withAll.rows.insert(withAll.rows.begin(), "ALL|-1");
        forms.push_back(withAll);
    }
}

void AddQualifiers(Forms& forms) {
    const auto matching = [](const std::string& column, const std::string& table,
                             const std::string& pattern) {
        return "select distinct " + column + " from " + table + " where " + column + " like '" +
               pattern + "'";
    };
    const std::string one = matching("lease", kLeases, "%1%");
    const std::string two =
        " " + one + " UNION " + matching("lease", "NORVADON.onshore_lease", "%1%");
    const auto byLease = [](const std::string& query) {
        return "(" + query + ") order by lesort(lease) ";
    };
    const std::string operators = "SELECT DISTINCT operator FROM " + kLeases + " WHERE ";
    forms.push_back({"QualifiersOfTwoColumns",
                     "((SELECT DISTINCT lessee FROM " + kLeases +
                         " WHERE lessee LIKE '%SH%') UNION (SELECT DISTINCT operator FROM " +
                         kLeases + " WHERE operator LIKE '%SH%')) ORDER BY lessee",
                     {" SH", "-SH", "ASH", "SH", "SHALE", "SHORE", "b SHORE"}});
    forms.push_back({"QualifiersOfOneTable",
                     one,
                     {"G01234", "OCS-G 01234", "OCS-G 1234", "OCS-G 1235", "SL 123"}});
    forms.push_back(
        {"QualifiersOfAWholeColumn", matching("lplana", kLeases, "%%"), {"C", "E", "L", "T", "W"}});
    forms.push_back({"QualifiersOfAnExpression",
                     matching("lplana||lease", kLeases, "CO%"),
                     {"COCS-G 01234", "COCS-G 1234"}});
    forms.push_back(
        {"QualifiersOfTwoTables",
         two,
         {"G01234", "OCS-G 01234", "OCS-G 1234", "OCS-G 1235", "OCS-G 199", "SL 123", "a1"}});
    forms.push_back({"QualifiersInTheOrderOfLeases",
                     byLease(one),
                     {"G01234", "OCS-G 01234", "OCS-G 1234", "OCS-G 1235", "SL 123"}});
    forms.push_back(
        {"QualifiersOfTwoTablesInTheOrderOfLeases",
         byLease(two),
         {"G01234", "OCS-G 199", "OCS-G 01234", "OCS-G 1234", "OCS-G 1235", "SL 123", "a1"}});
    forms.push_back({"LeasesOfSomeDatasets",
                     one + " and lplana in ('C', 'E', 'W', 'T') ",
                     {"G01234", "OCS-G 01234", "OCS-G 1234", "OCS-G 1235"}});
    forms.push_back({"LeasesOfSomeDatasetsInTheOrderOfLeases",
                     byLease(matching("lease", kLeases, "SL%") + " and lplana in ('L', 'T') "),
                     {"SL 99", "SL 123"}});
    forms.push_back({"OperatorsOfAList",
                     operators + "lplana in ('C','W') AND operator LIKE 'SH%' ORDER BY operator",
                     {"SHORE"}});
    forms.push_back({"OperatorsOfASubquery",
                     operators + "lease in (select lease from NORVADON.onshore_lease) AND operator "
                                 "LIKE '%' ORDER BY operator",
                     {"b SHORE"}});
}

void AddAreaSearches(Forms& forms) {
    forms.push_back({"AreasLikeAPattern",
                     "select distinct areaname from " + kAreas + " where areaname like '%EST%'",
                     {"GALVESTON", "GALVESTON BAY", "WEST DELTA"}});
    forms.push_back({"ABackslashInAPatternIsItself",
                     "select distinct areaname from " + kAreas + " where areaname like 'A_B\\C'",
                     {"A_B\\C"}});
    const std::string from = " from " + kAreas + " c, " + kPlans + " abe where ";
    const std::string either = "(stcode = abe.area1 or stcode =abe.area2)";
    forms.push_back({"AreaCodesOfATable",
                     "select distinct stcode" + from + "stcode = abe.area1 and c.stcode like '%%'",
                     {"426A", "700"}});
    forms.push_back(
        {"AreaNamesOfATable",
         "select distinct areaname" + from + "stcode = abe.area1 and c.areaname like 'G%%'",
         {"GALVESTON"}});
    forms.push_back(
        {"MmsCodesOfATable",
         "select distinct area_abbr" + from + "stcode = abe.area1 and c.area_abbr like '%%'",
         {"GA", "WD"}});
    forms.push_back({"AreaCodesOfATableWithTwoSets",
                     "select distinct stcode" + from +
                         "(stcode = abe.area1 or stcode = abe.area2) and c.stcode like '7%%'",
                     {"700"}});
    forms.push_back({"AreaNamesOfATableWithTwoSets",
                     "select distinct areaname" + from + either + " and c.areaname like '%%'",
                     {"GALVESTON", "WEST DELTA"}});
    forms.push_back({"MmsCodesOfATableWithTwoSets",
                     "select distinct area_abbr" + from + either + " and c.area_abbr like 'G%%'",
                     {"GA"}});
}

void AddBlockSearches(Forms& forms) {
    forms.push_back({"BlocksOfAnAreaNameByNumber",
                     kByNumber + kBlocks + " where areacode = " + CodeOfName("GALVESTON") +
                         "order by\tto_number(lbnum)",
                     {"2-S", "12-S", "12A-S", "100B-S", "100a-S"}});
    forms.push_back({"BlocksOfAnAreaCodeByNumber",
                     kByNumber + kBlocks + " where areacode = '428B'order by to_number(lbnum)",
                     {"9-BAY"}});
    forms.push_back({"BlocksOfAnMmsCodeByNumber",
                     kByNumber + kBlocks + " where areacode in " + CodesOfAbbreviation("GA") +
                         "order by to_number(lbnum)",
                     {"2-S", "9-BAY", "12-S", "12A-S", "100B-S", "100a-S"}});
}

/// One statement on the columns `area` and `block` of the table of plans. The first "||" has no
/// blank ahead of it.
std::string PlanHead(const std::string& prefix, const std::string& area, const std::string& block,
                     const std::string& number) {
    std::string label = Label(prefix + area, block);
    const std::string first = block + " || '-S'";
    label.replace(label.find(first), first.size(), block + "|| '-S'");
    return "select " + label + block + ")," + number + " from ";
}

void AddBlocksOfPlans(Forms& forms) {
    const auto joined = [](const std::string& set, const std::string& field,
                           const std::string& area) {
        return PlanHead("a.", "area" + set, "blk" + set + "||ext" + set, "blk" + set) + kPlans +
               " a, " + kAreas + " c where c.stcode = a.area" + set + " and " + field + " = '" +
               area + "'";
    };
    const auto plain = [](const std::string& set) {
        return PlanHead("", "area" + set, "blk" + set + "||ext" + set, "blk" + set) + kPlans +
               " where area" + set + " = '426A'";
    };
    const std::vector<std::string> one = {"12A-S|12", "2-S|2"};
    const std::vector<std::string> both = {"10Z-S|10", "12A-S|12", "2-S|2"};
    for (const auto& [field, area, name] : {std::tuple{"areaname", "GALVESTON", "AreaName"},
                                            std::tuple{"area_abbr", "GA", "MmsCode"}}) {
        forms.push_back({std::string("PlannedBlocksOfAn") + name,
                         joined("1", field, area) + " order by 2", one});
        forms.push_back(
            {std::string("PlannedBlocksOfAn") + name + "InTwoSets",
             joined("1", field, area) + " union " + joined("2", field, area) + " order by 2",
             both});
    }
    forms.push_back({"PlannedBlocksOfAnAreaCode", plain("1") + " order by 2", one});
    forms.push_back({"PlannedBlocksOfAnAreaCodeInTwoSets",
                     plain("1") + " union " + plain("2") + " order by 2", both});
    forms.push_back(
        {"PlannedBlocksWithoutExtension",
         PlanHead("", "area1", "blk1", "blk1") + kPlans + " where area1 = '700' order by 2",
         {"5|5"}});
}

void AddNeighbors(Forms& forms) {
    struct Row {
        const char* name;
        const char* column;
        const char* area;
        std::string from;
        std::string join;
        std::vector<std::string> rows;
    };
    const std::string bare = kBlocks + " i, " + kVertices + " v ";
    const std::string withAreas = kBlocks + " i, " + kVertices + " v, " + kAreas + " c ";
    const std::string same = "i.refnum = v.refnum ";
    const std::string sameArea = "i.refnum = v.refnum and c.stcode = i.areacode ";
    const Row rows[] = {
        {"AreaName",
         "areaname",
         "GALVESTON",
         withAreas,
         sameArea,
         {"GALVESTON|12", "GALVESTON|12A", "GALVESTON BAY|9"}},
        {"AreaCode", "areacode", "426A", bare, same, {"426A|12", "426A|12A", "428B|9"}},
        {"MmsCode", "area_abbr", "GA", withAreas, sameArea, {"GA|12", "GA|12A", "GA|9"}},
    };
    const char* const conditions[][4] = {{"lat", "<", "max", "+"},
                                         {"lat", ">", "min", "-"},
                                         {"lon", "<", "max", "+"},
                                         {"lon", ">", "min", "-"}};
    for (const Row& row : rows) {
        const std::string column = row.column;
        const std::string block = column + "='" + row.area + "' and lbnum||lbext = '12A'";
        std::string sql =
            "select distinct " + column + ", lbnum||lbext from " + row.from + "where " + row.join;
        for (const auto& [axis, less, bound, sign] : conditions) {
            const std::string a = axis;
            sql += " and " + a + " " + less + " (select " + bound + "(" + a + ") " + sign +
                   " (max(" + a + ") - min(" + a + "))/5 from " + row.from + "where " + row.join +
                   "and " + block + ")";
        }
        DialectForm form{std::string("CandidatesByAn") + row.name, sql, row.rows};
        // Outlines are one unit high and wide: 29.1 lies inside of 29 and a fifth, 29.25 does not.
        forms.push_back(form);
    }
    forms.push_back({"OutlineByAnAreaName",
                     "select lat, lon from " + kBlocks + " i, " + kVertices + " v , " + kAreas +
                         " c where i.refnum = v.refnum  and c.stcode = i.areacode  and areaname = "
                         "'GALVESTON' and lbnum||lbext = '12A' order by ptnum",
                     {"29|-90", "28|-90", "29|-91"}});
    forms.push_back({"OutlineByAnAreaCode",
                     "select lat, lon from " + kBlocks + " i, " + kVertices +
                         " v where i.refnum = v.refnum  and areacode = '426A' and lbnum||lbext = "
                         "'12A' order by ptnum",
                     {"29|-90", "28|-90", "29|-91"}});
}

void AddTables(Forms& forms) {
    const std::string zones = "' || description,zone_code from " + kZones + " where category ";
    const std::string statePlanes =
        "select 'Zone: ' || to_char(-1*state_plane_code) || ': ' || description, "
        "state_plane_code from " +
        kZones + " where state_plane_code is not null order by description";
    forms.push_back({"AreasInTheUsersOrder",
                     "select areaname from " + kOrder + " order by seq",
                     {"OLD", "GALVESTON", "WEST DELTA"}});
    forms.push_back({"AreasInTheDefaultOrder",
                     "select areaname from " + kOrder + " order by defseq",
                     {"WEST DELTA", "GALVESTON", "OLD"}});
    forms.push_back(
        {"Zones",
         "select zone_code, description, category from " + kZones + " order by zone_code",
         {"1|Texas South|state_lambert", "3|Misc A|misc_boone", "4||misc_other",
          "20|misc b|misc_other", "100|Clarke|utm_spheroids", "200|Bessel|utm_spheroids"}});
    forms.push_back(
        {"StatePlaneZones", statePlanes, {"Zone: -4204: Texas South|4204", "Zone: -1702: |1702"}});
    forms.push_back({"Spheroids",
                     "select description,zone_code from " + kZones +
                         " where category='utm_spheroids' order by zone_code",
                     {"Clarke|100", "Bessel|200"}});
    forms.push_back({"ZonesOfSomeCategories",
                     "select 'Zone: ' || to_char(zone_code) || ': " + zones +
                         "in ('misc_boone','misc_cassini', 'misc_other') order by zone_code",
                     {"Zone: 3: Misc A|3", "Zone: 4: |4", "Zone: 20: misc b|20"}});
    forms.push_back({"TablesLikeAPattern",
                     "select table_name from all_tables where table_name like '%WELL_HDR' and "
                     "owner='NORVADON'",
                     {"GULF_MEXICO_WELL_HDR", "OTHER_WELL_HDR"}});
    forms.push_back({"ATableThatIsNotThere",
                     "select table_name from all_tables where table_name = '" + kComment +
                         "' and owner='NORVADON'",
                     {}});
    forms.push_back({"ATableThatIsThere",
                     "select table_name from all_tables where table_name = 'PLANS' and "
                     "owner='NORVADON'",
                     {"PLANS"}});
}

Forms MakeQueries() {
    Forms forms;
    AddAreaLists(forms);
    AddBlockLists(forms);
    AddBlockListsInsideABox(forms);
    AddQualifiers(forms);
    AddAreaSearches(forms);
    AddBlockSearches(forms);
    AddBlocksOfPlans(forms);
    AddNeighbors(forms);
    AddTables(forms);
    return forms;
}

std::string NeighborRow(const std::string& block) {
    return "(select 'PC 9','GALVESTON','12A','GALVESTON','" + block + "','N' from dual) ";
}

Forms MakeChanges() {
    const std::string showOrder =
        "select areaname, seq, defseq from " + kOrder + " order by defseq, seq";
    const std::string showWork = "select machine_ID, o_bext, n_area, n_bext from " + kWork +
                                 " order by machine_ID, o_bext, n_bext";
    const std::string showComment = "select ID, REC_SEQ, COMMENTS from " + kComment;
    Forms forms = {
        {"DeleteByPosition",
         "delete from " + kOrder + " where seq = 3",
         {"WEST DELTA|10|1", "GALVESTON|9|2"},
         showOrder},
        {"InsertOfValues",
         "insert into " + kOrder + " values ('EAST BREAKS', 4,7)",
         {"WEST DELTA|10|1", "GALVESTON|9|2", "OLD|3|3", "EAST BREAKS|4|7"},
         showOrder},
        {"DeleteByMachine",
         "delete from " + kWork + " where machine_ID = 'PC 7'",
         {"PC 8|2|X|1"},
         showWork},
        {"InsertOfOneRowInBrackets",
         "insert into " + kWork + NeighborRow("13"),
         {"PC 7|1|Y|2", "PC 8|2|X|1", "PC 9|12A|GALVESTON|13"},
         showWork},
        {"InsertOfAUnion",
         "insert into " + kWork + NeighborRow("13") + " union " + NeighborRow("2") + " union " +
             NeighborRow("") + " union " + NeighborRow("13"),
         {"PC 7|1|Y|2", "PC 8|2|X|1", "PC 9|12A|GALVESTON|13", "PC 9|12A|GALVESTON|2",
          "PC 9|12A|GALVESTON|"},
         showWork},
        {"DeleteOfRowsInASubquery",
         "delete from " + kWork + " where (n_area, n_bext) in (select o_area, o_bext from " +
             kWork + ")",
         {"PC 7|1|Y|2"},
         showWork},
        {"CreateTable",
         "Create table NORVADON." + kComment +
             "(ID VARCHAR2(20) NOT NULL ENABLE,REC_SEQ NUMBER NOT NULL ENABLE,COMMENTS "
             "VARCHAR2(80),USER_ID VARCHAR2(20),REVISION_DATE DATE, PRIMARY KEY (ID, REC_SEQ))",
         {},
         showComment},
    };
    for (const char* privilege : {"ALTER", "DELETE", "INDEX", "INSERT", "UPDATE", "REFERENCES"})
        forms.push_back({std::string("Grant") + privilege,
                         std::string(" GRANT ") + privilege + " ON plans TO PUBLIC;",
                         {"WEST DELTA|10|1", "GALVESTON|9|2", "OLD|3|3"},
                         showOrder});
    return forms;
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
