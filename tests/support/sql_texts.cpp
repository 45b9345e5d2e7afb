#include "support/sql_texts.h"

#include <algorithm>
#include <array>
#include <stdexcept>

#include "base/numbers.h"
#include "base/text.h"

namespace kv::test {
namespace {

using Texts = std::vector<SqlText>;

const std::string kAll = "select 'ALL',-1 from dual union ";

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

std::string Labels(const std::string& one, const std::string& other) {
    return "select '" + one + "' from dual union select '" + other + "' from dual union ";
}

std::string Listed(const std::vector<std::string>& texts) {
    std::string list;
    for (const std::string& text : texts)
        list += (list.empty() ? "'" : ",'") + text + "'";
    return list;
}

std::string Matching(const std::string& column, const std::string& table,
                     const std::string& pattern) {
    return "select distinct " + column + " from " + table + " where " + column + " like '" +
           pattern + "'";
}

/// Builds the texts from one set of values.
class Builder {
public:
    explicit Builder(const SqlValues& values) : v_(values) {}

    Texts Queries() {
        AddAreaLists();
        AddBlockLists();
        AddQualifiers();
        AddLeases();
        AddOperators();
        AddAreaSearches();
        AddBlockSearches();
        AddBlocksOfPlans();
        AddCandidates();
        AddOutlines();
        AddAreaOrder();
        AddZones();
        AddTableNames();
        return std::move(texts_);
    }

    Texts Changes() {
        AddOrderChanges();
        AddWorkTableChanges();
        AddCommentTable();
        return std::move(texts_);
    }

    Texts Failures() {
        Add("AreaNamesOfAnEmptyList", AreaNamesIn(""));
        Add("MmsCodesOfAnEmptyList", MmsCodesIn(""));
        Add("QualifiersOfNoColumn", Matching("", v_.leaseTables[0], "%%"));
        Add("QualifiersOfATableAndNone", " " + Matching(v_.leaseColumn, v_.leaseTables[0], "%%") +
                                             " UNION " + Matching(v_.leaseColumn, "", "%%"));
        Add("BlocksOfAnAreaWithAQuote", BlocksOf("O'BRIEN", "order by 2"));
        return std::move(texts_);
    }

private:
    void Add(const std::string& name, const std::string& sql) { texts_.push_back({name, sql}); }
    void AddChange(const std::string& name, const std::string& sql, const std::string& shows) {
        texts_.push_back({name, sql, shows});
    }

    // Tables

    std::string Owned(const std::string& table) const { return v_.owner + "." + table; }
    std::string Dataset() const { return Owned(v_.dataset); }
    std::string Areas() const { return Dataset() + "_connam2"; }
    std::string Blocks() const { return Dataset() + "_lbi"; }
    std::string Vertices() const { return Dataset() + "_lbv"; }
    std::string Order() const { return Owned("nvd2000_area_order"); }
    std::string Work() const { return Owned("nvd2000_tmp_abe2"); }
    std::string Zones() const { return Owned("gulf_mexico_zone_code"); }
    std::string Comments() const { return ToUpper(v_.dataset) + "_WELL_COMMENT"; }

    // Area and block boxes

    std::string Box() const {
        const auto between = [](const char* axis, double min, double max) {
            return std::string(" and (V.") + axis + " between " + FormatFixed(min, 6) + " and " +
                   FormatFixed(max, 6) + ")";
        };
        return between("lat", v_.box.minLat, v_.box.maxLat) +
               between("lon", v_.box.minLon, v_.box.maxLon);
    }
    /// What follows the column that is asked for.
    std::string InsideBox() const {
        return " areacode from " + Dataset() + "_LBI I, " + Dataset() +
               "_LBV V  where (I.refnum = V.refnum)" + Box();
    }
    std::string AreaNamesIn(const std::string& list) const {
        return Labels(" -AREA CODE-", " -MMS CODE-") + "(select distinct areaname from " + Areas() +
               " where areaname in (" + list + "))";
    }
    std::string MmsCodesIn(const std::string& list) const {
        return Labels(" -AREA NAME-", " -AREA CODE-") + "(select distinct area_abbr from " +
               Areas() + " where area_abbr is not null and (area_abbr in (" + list + ")))";
    }

    void AddAreaLists() {
        const std::string distinct = "select distinct ";
        Add("AreaCodes",
            Labels(" -AREA NAME-", " -MMS CODE-") + distinct + "stcode from " + Areas());
        Add("AreaNames",
            Labels(" -AREA CODE-", " -MMS CODE-") + distinct + "areaname from " + Areas());
        Add("MmsCodes", Labels(" -AREA NAME-", " -AREA CODE-") + distinct + "area_abbr from " +
                            Areas() + " where area_abbr is not null");
        Add("AreaCodesInsideABoxWithABracketTooMany",
            Labels(" -AREA NAME-", " -MMS CODE-") + "(select distinct stcode from " + Areas() +
                " where stcode in (select" + InsideBox() + ")))");
        Add("DistinctAreaCodesInsideABox", "select distinct" + InsideBox());
        Add("AreaNamesOfAList", AreaNamesIn(Listed(v_.namesInBox)));
        Add("MmsCodesOfAList", MmsCodesIn(Listed(v_.mmsCodesInBox)));
    }

    std::string CodeOfName() const {
        return "(select stcode from " + Areas() + " where areaname = '" + v_.areaName + "')";
    }
    std::string CodesOfMmsCode() const {
        return "(select stcode from " + Areas() + " where area_abbr = '" + v_.mmsCode + "')";
    }
    std::string BlocksOf(const std::string& areaCode, const std::string& tail) const {
        return BlockHead("select ") + Blocks() + " where areacode = '" + areaCode + "'" + tail;
    }

    void AddBlockLists() {
        struct Condition {
            const char* name;
            std::string areacode;
            const char* order;
        };
        const std::array<Condition, 3> conditions = {
            {{"AnAreaName", " where areacode = " + CodeOfName(), "order by\t2"},
             {"AnAreaCode", " where areacode = '" + v_.areaCode + "'", "order by 2"},
             {"AnMmsCode", " where areacode in " + CodesOfMmsCode(), "order by 2"}}};
        const std::string boxed = Blocks() + " I, " + Vertices() + " V ";
        for (const auto& [name, areacode, order] : conditions) {
            const std::string label = std::string("BlocksOf") + name;
            const std::string plain = BlockHead("select ") + Blocks() + areacode + order;
            const std::string inside = BlockHead("select distinct ") + boxed + areacode +
                                       " and (I.refnum = V.refnum)" + Box() + order;
            Add(label, plain);
            Add(label + "BehindAll", kAll + plain);
            Add(label + "InsideABox", inside);
            Add(label + "InsideABoxBehindAll", kAll + inside);
        }
    }

    // Qualifiers

    std::string OfTables(std::size_t count, const std::string& pattern) const {
        std::string sql;
        for (std::size_t i = 0; i < count; ++i)
            sql +=
                (i == 0 ? " " : " UNION ") + Matching(v_.leaseColumn, v_.leaseTables[i], pattern);
        return sql;
    }
    std::string ByLease(const std::string& query) const {
        return "(" + query + ") order by lesort(" + v_.leaseColumn + ") ";
    }
    void AddBothOrders(const std::string& name, const std::string& query) {
        Add(name, query);
        Add(name + "InTheOrderOfLeases", ByLease(query));
    }

    void AddQualifiers() {
        const std::string& table = v_.leaseTables[0];
        const auto half = [&](const std::string& column) {
            return "(SELECT DISTINCT " + column + " FROM " + table + " WHERE " + column +
                   " LIKE '%" + v_.companyPart + "%')";
        };
        Add("QualifiersOfTwoColumns",
            "(" + half("lessee") + " UNION " + half("operator") + ") ORDER BY lessee");
        AddBothOrders("QualifiersThatContainAText",
                      Matching(v_.leaseColumn, table, "%" + v_.leasePart + "%"));
        AddBothOrders("QualifiersThatStartWithAText",
                      Matching(v_.leaseColumn, table, v_.leaseStart + "%"));
        AddBothOrders("QualifiersThatEndWithAText",
                      Matching(v_.leaseColumn, table, "%" + v_.leaseEnd));
        Add("QualifiersOfAWholeColumn", Matching("lplana", table, "%%"));
        Add("QualifiersOfAnExpression",
            Matching("lplana||" + v_.leaseColumn, table, v_.expressionStart + "%"));
        AddBothOrders("QualifiersOfTwoTables", OfTables(2, "%" + v_.leasePart + "%"));
        AddBothOrders("QualifiersOfThreeTables", OfTables(3, "%" + v_.leasePart + "%"));
    }

    void AddLeases() {
        constexpr std::array<std::pair<const char*, const char*>, 3> kDatasets = {
            {{"Federal", "'C', 'E', 'W'"}, {"Louisiana", "'L'"}, {"Texas", "'T'"}}};
        const std::string all =
            Matching(v_.leaseColumn, v_.leaseTables[0], "%" + v_.datasetPart + "%");
        for (unsigned checked = 1; checked < 7; ++checked) {
            std::string name = "LeasesOf";
            std::string list;
            for (std::size_t i = 0; i < kDatasets.size(); ++i) {
                if (!(checked >> i & 1)) continue;
                list += (list.empty() ? "" : ", ") + std::string(kDatasets[i].second);
                name += kDatasets[i].first;
            }
            AddBothOrders(name, all + " and lplana in (" + list + ") ");
        }
        AddBothOrders("LeasesOfAllDatasets", all);
    }

    void AddOperators() {
        const std::string head = "SELECT DISTINCT operator FROM " + v_.leaseTables[0] + " WHERE ";
        Add("OperatorsOfAList", head + "lplana in ('C','W') AND operator LIKE '" +
                                    v_.operatorStart + "%' ORDER BY operator");
        Add("OperatorsOfASubquery", head + v_.leaseColumn + " in (select " + v_.leaseColumn +
                                        " from " + v_.leaseTables[1] +
                                        ") AND operator LIKE '%' ORDER BY operator");
    }

    // Searches of areas and blocks

    void AddAreaSearches() {
        Add("AreaNamesLikeAPattern", Matching("areaname", Areas(), "%" + v_.namePart + "%"));
        Add("AreaCodesLikeAPattern", Matching("stcode", Areas(), v_.codeStart + "%"));
        Add("MmsCodesLikeAPattern", Matching("area_abbr", Areas(), "%" + v_.mmsEnd));

        const std::string from = " from " + Areas() + " c, " + Owned(v_.planTable) + " abe where ";
        const auto add = [&](const char* name, const std::string& field, const std::string& start,
                             const char* secondEqual) {
            const std::string tail = " and c." + field + " like '" + start + "%%'";
            const std::string head = "select distinct " + field + from;
            Add(std::string(name) + "OfATable", head + "stcode = abe." + v_.plan.area + tail);
            Add(std::string(name) + "OfATableWithTwoSets",
                head + "(stcode = abe." + v_.plan.area + " or stcode " + secondEqual + "abe." +
                    v_.otherPlan.area + ")" + tail);
        };
        add("AreaCodes", "stcode", v_.codeStart, "= ");
        add("AreaNames", "areaname", v_.nameStart, "=");
        add("MmsCodes", "area_abbr", v_.mmsStart, "=");
    }

    void AddBlockSearches() {
        const std::string head =
            "select " + Label("areacode", "lbnum||lbext") + "lbnum||lbext) from " + Blocks();
        Add("BlocksOfAnAreaNameByNumber",
            head + " where areacode = " + CodeOfName() + "order by\tto_number(lbnum)");
        Add("BlocksOfAnAreaCodeByNumber",
            head + " where areacode = '" + v_.areaCode + "'order by to_number(lbnum)");
        Add("BlocksOfAnMmsCodeByNumber",
            head + " where areacode in " + CodesOfMmsCode() + "order by to_number(lbnum)");
    }

    /// One statement on the columns of an area and a block. The first "||" has no blank ahead of
    /// it.
    static std::string PlanHead(const std::string& prefix, const std::string& area,
                                const std::string& block, const std::string& number) {
        std::string label = Label(prefix + area, block);
        const std::string first = block + " || '-S'";
        label.replace(label.find(first), first.size(), block + "|| '-S'");
        return "select " + label + block + ")," + number + " from ";
    }
    std::string PlannedByField(const SqlPlace& place, const std::string& field,
                               const std::string& area) const {
        return PlanHead("a.", place.area, place.block + "||" + place.ext, place.block) +
               Owned(v_.planTable) + " a, " + Areas() + " c where c.stcode = a." + place.area +
               " and " + field + " = '" + area + "'";
    }
    std::string PlannedByCode(const SqlPlace& place) const {
        return PlanHead("", place.area, place.block + "||" + place.ext, place.block) +
               Owned(v_.planTable) + " where " + place.area + " = '" + v_.areaCode + "'";
    }

    void AddBlocksOfPlans() {
        const auto add = [&](const std::string& name, const std::string& one,
                             const std::string& other) {
            Add("PlannedBlocksOf" + name, one + " order by 2");
            Add("PlannedBlocksOf" + name + "InTwoSets", one + " union " + other + " order by 2");
        };
        add("AnAreaName", PlannedByField(v_.plan, "areaname", v_.areaName),
            PlannedByField(v_.otherPlan, "areaname", v_.areaName));
        add("AnAreaCode", PlannedByCode(v_.plan), PlannedByCode(v_.otherPlan));
        add("AnMmsCode", PlannedByField(v_.plan, "area_abbr", v_.mmsCode),
            PlannedByField(v_.otherPlan, "area_abbr", v_.mmsCode));
        Add("PlannedBlocksWithoutExtension",
            PlanHead("", v_.plan.area, v_.plan.block, v_.plan.block) + Owned(v_.planTable) +
                " where " + v_.plan.area + " = '" + v_.areaCode + "' order by 2");
    }

    // Neighbors

    struct AreaType {
        const char* name;
        const char* column;
        std::string area;
        bool joinsAreas;
    };
    std::array<AreaType, 3> AreaTypes() const {
        return {{{"AnAreaName", "areaname", v_.areaName, true},
                 {"AnAreaCode", "areacode", v_.areaCode, false},
                 {"AnMmsCode", "area_abbr", v_.mmsCode, true}}};
    }

    std::string Candidates(const AreaType& type, const std::string& block) const {
        constexpr const char* kConditions[][4] = {{"lat", "<", "max", "+"},
                                                  {"lat", ">", "min", "-"},
                                                  {"lon", "<", "max", "+"},
                                                  {"lon", ">", "min", "-"}};
        const std::string column = type.column;
        const std::string from = Blocks() + " i, " + Vertices() + " v" +
                                 (type.joinsAreas ? ", " + Areas() + " c " : " ");
        const std::string join = std::string("i.refnum = v.refnum ") +
                                 (type.joinsAreas ? "and c.stcode = i.areacode " : "");
        std::string sql =
            "select distinct " + column + ", lbnum||lbext from " + from + "where " + join;
        for (const auto& [axisText, less, bound, sign] : kConditions) {
            const std::string axis = axisText;
            sql += " and " + axis + " " + less + " (select " + bound + "(" + axis + ") " + sign +
                   " (max(" + axis + ") - min(" + axis + "))/5 from " + from + "where " + join +
                   "and " + column + "='" + type.area + "' and lbnum||lbext = '" + block + "')";
        }
        return sql;
    }

    void AddCandidates() {
        for (const AreaType& type : AreaTypes()) {
            Add(std::string("CandidatesBy") + type.name, Candidates(type, v_.block));
            Add(std::string("CandidatesOfAWholeAreaBy") + type.name, Candidates(type, ""));
        }
    }

    void AddOutlines() {
        for (const AreaType& type : AreaTypes()) {
            const std::string extra = type.joinsAreas ? ", " + Areas() + " c " : "";
            const std::string join = type.joinsAreas ? " and c.stcode = i.areacode " : "";
            Add(std::string("OutlineBy") + type.name,
                "select lat, lon from " + Blocks() + " i, " + Vertices() + " v " + extra +
                    "where i.refnum = v.refnum " + join + " and " + type.column + " = '" +
                    type.area + "' and lbnum||lbext = '" + v_.block + "' order by ptnum");
        }
    }

    // Area order, projections, the dictionary

    void AddAreaOrder() {
        Add("AreasInTheUsersOrder", "select areaname from " + Order() + " order by seq");
        Add("AreasInTheDefaultOrder", "select areaname from " + Order() + " order by defseq");
    }

    void AddZones() {
        const std::string from = " from " + Zones() + " where ";
        const std::string statePlane =
            "select 'Zone: ' || to_char(-1*state_plane_code) || ': ' || description,";
        const std::string statePlaneTail =
            "state_plane_code" + from + "state_plane_code is not null order by description";
        Add("Zones",
            "select zone_code, description, category from " + Zones() + " order by zone_code");
        Add("StatePlaneZonesOfTheCatalogue", statePlane + " " + statePlaneTail);
        Add("StatePlaneZonesOfTheList", statePlane + statePlaneTail);
        Add("Spheroids",
            "select description,zone_code" + from + "category='utm_spheroids' order by zone_code");
        for (const auto& [name, category] :
             {std::pair{"StateLambert", "state_lambert"},
              {"StateTransverseMercator", "state_trans_mercator"},
              {"MiscLambert", "misc_lambert"},
              {"MiscTransverseMercator", "misc_trans_mercator"},
              {"MiscOther", "misc_boone','misc_cassini', 'misc_other"}})
            Add(std::string("ZonesOf") + name,
                "select 'Zone: ' || to_char(zone_code) || ': ' || description,zone_code" + from +
                    "category in ('" + category + "') order by zone_code");
    }

    void AddTableNames() {
        const std::string head = "select table_name from all_tables where table_name ";
        const std::string tail = "' and owner='NORVADON'";
        Add("TablesLikeAPattern", head + "like '%WELL_HDR" + tail);
        Add("ATableThatIsNotThere", head + "= '" + Comments() + tail);
        Add("ATableThatIsThere", head + "= '" + ToUpper(v_.planTable) + tail);
    }

    // Changes

    void AddOrderChanges() {
        const std::string shows =
            "select areaname, seq, defseq from " + Order() + " order by defseq, seq, areaname";
        const std::string place = std::to_string(v_.place);
        AddChange("DeleteByPlace", "delete from " + Order() + " where seq = " + place, shows);
        AddChange("InsertOfValues",
                  "insert into " + Order() + " values ('" + v_.movedArea + "', " + place + "," +
                      std::to_string(v_.defaultPlace) + ")",
                  shows);
    }

    std::string NeighborRow(const std::string& neighbor) const {
        return "(select '" + v_.machine + "','" + v_.areaName + "','" + v_.block + "','" +
               v_.areaName + "','" + neighbor + "','N' from dual) ";
    }

    void AddWorkTableChanges() {
        const std::string shows =
            "select machine_ID, o_area, o_bext, n_area, n_bext, area_type from " + Work() +
            " order by machine_ID, o_bext, n_bext";
        std::string rows;
        for (const std::string& neighbor : v_.neighbors)
            rows += (rows.empty() ? "" : " union ") + NeighborRow(neighbor);
        AddChange("InsertOfOneRowInBrackets",
                  "insert into " + Work() + NeighborRow(v_.neighbors.front()), shows);
        AddChange("InsertOfAUnion", "insert into " + Work() + rows, shows);
        AddChange("DeleteByMachine",
                  "delete from " + Work() + " where machine_ID = '" + v_.machine + "'", shows);
        AddChange("DeleteOfRowsInASubquery",
                  "delete from " + Work() +
                      " where (n_area, n_bext) in (select o_area, o_bext from " + Work() + ")",
                  shows);
    }

    void AddCommentTable() {
        const std::string shows = "select ID, REC_SEQ, COMMENTS from " + Comments();
        AddChange("CreateTable",
                  "Create table " + Owned(Comments()) +
                      "(ID VARCHAR2(20) NOT NULL ENABLE,REC_SEQ NUMBER NOT NULL ENABLE,COMMENTS "
                      "VARCHAR2(80),USER_ID VARCHAR2(20),REVISION_DATE DATE, PRIMARY KEY (ID, "
                      "REC_SEQ))",
                  shows);
        const std::string order = "select areaname from " + Order() + " order by seq";
        for (const char* privilege : {"ALTER", "DELETE", "INDEX", "INSERT", "UPDATE", "REFERENCES"})
            AddChange(std::string("Grant") + privilege,
                      std::string(" GRANT ") + privilege + " ON " + v_.grantedTable + " TO PUBLIC;",
                      order);
        AddChange("Commit", " Commit;", order);
    }

    const SqlValues& v_;
    Texts texts_;
};

}  // namespace

std::vector<SqlText> SqlQueries(const SqlValues& values) {
    return Builder(values).Queries();
}

std::vector<SqlText> SqlChanges(const SqlValues& values) {
    return Builder(values).Changes();
}

std::vector<SqlText> SqlFailures(const SqlValues& values) {
    return Builder(values).Failures();
}

std::string SqlQueryNamed(const std::string& name, const SqlValues& values) {
    const std::vector<SqlText> texts = SqlQueries(values);
    const auto found = std::ranges::find(texts, name, &SqlText::name);
    if (found == texts.end()) throw std::out_of_range("No query " + name);
    return found->sql;
}

}  // namespace kv::test
