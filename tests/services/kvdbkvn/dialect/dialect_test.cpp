#include "services/kvdbkvn/dialect/translate.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sqlite3.h>

#include <map>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "base/text.h"
#include "services/kvdbkvn/dialect/lease_sort.h"
#include "support/dialect_forms.h"

namespace {

using kv::dialect::Context;
using kv::dialect::Kind;
using kv::dialect::LeaseSortKey;
using kv::dialect::Target;
using kv::dialect::Translate;
using kv::dialect::Translation;
using kv::test::DialectForm;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

Context For(Target target) {
    Context context;
    context.target = target;
    return context;
}

Context WithSchema(Target target) {
    Context context = For(target);
    context.hasSchema = [](const std::string& name) { return kv::EqualsNoCase(name, "norvadon"); };
    return context;
}

std::string OnSqlite(const std::string& sql) {
    return Translate(sql, For(Target::kSqlite)).text;
}
std::string OnPostgres(const std::string& sql) {
    return Translate(sql, For(Target::kPostgres)).text;
}
Kind KindOf(const std::string& sql) {
    return Translate(sql, For(Target::kSqlite)).kind;
}

/// A database in memory, set up as the engine sets up its sessions.
class Database {
public:
    explicit Database(bool hasOwnFunctions = true) {
        sqlite3* raw = nullptr;
        const int code = sqlite3_open(":memory:", &raw);
        database_.reset(raw);
        if (code != SQLITE_OK) throw std::runtime_error("no database in memory");
        Run("pragma case_sensitive_like=on");
        if (hasOwnFunctions)
            sqlite3_create_function_v2(raw, "lesort", 1, SQLITE_UTF8 | SQLITE_DETERMINISTIC,
                                       nullptr, &LeaseSort, nullptr, nullptr, nullptr);
        sqlite3_create_function_v2(raw, "kv_number", 1, SQLITE_UTF8 | SQLITE_DETERMINISTIC, nullptr,
                                   &Same, nullptr, nullptr, nullptr);
    }

    /// Any number of statements; the rows of the last, cells joined by "|".
    std::vector<std::string> Run(const std::string& sql) {
        std::vector<std::string> rows;
        char* error = nullptr;
        const int code = sqlite3_exec(database_.get(), sql.c_str(), &AddRow, &rows, &error);
        if (code == SQLITE_OK) return rows;
        const std::string message = error;
        sqlite3_free(error);
        throw std::runtime_error(message + ": " + sql);
    }

private:
    struct Close {
        void operator()(sqlite3* database) const { sqlite3_close(database); }
    };

    static void LeaseSort(sqlite3_context* context, int, sqlite3_value** values) {
        const auto* text = reinterpret_cast<const char*>(sqlite3_value_text(values[0]));
        if (!text) return sqlite3_result_null(context);
        sqlite3_result_text(context, LeaseSortKey(text).c_str(), -1, SQLITE_TRANSIENT);
    }

    static void Same(sqlite3_context* context, int, sqlite3_value** values) {
        sqlite3_result_value(context, values[0]);
    }

    static int AddRow(void* rows, int columns, char** cells, char**) {
        std::string row;
        for (int i = 0; i < columns; ++i)
            row += (i ? "|" : "") + std::string(cells[i] ? cells[i] : "");
        static_cast<std::vector<std::string>*>(rows)->push_back(row);
        return 0;
    }

    std::unique_ptr<sqlite3, Close> database_;
};

std::vector<std::string> Select(const std::string& sql) {
    Database database;
    database.Run(kv::test::kDialectTables);
    return database.Run(OnSqlite(sql));
}

/// What a select list of constants comes to.
std::string Value(const std::string& expression) {
    return Select("select " + expression + " from dual").at(0);
}

std::string NameOf(const testing::TestParamInfo<DialectForm>& info) {
    return info.param.name;
}

class DialectQuery : public testing::TestWithParam<DialectForm> {};

TEST_P(DialectQuery, IsReadAsAQueryForEveryEngine) {
    for (const Target target : {Target::kSqlite, Target::kPostgres, Target::kOracle}) {
        const Translation translation = Translate(GetParam().sql, For(target));
        EXPECT_EQ(translation.kind, Kind::kRead);
        EXPECT_THAT(translation.refusal, IsEmpty());
        EXPECT_THAT(translation.text, testing::Not(IsEmpty()));
    }
}

TEST_P(DialectQuery, IsSentToOracleAsItStands) {
    std::string sql = GetParam().sql;
    if (GetParam().name.ends_with("WithABracketTooMany")) sql.pop_back();
    EXPECT_EQ(Translate(GetParam().sql, For(Target::kOracle)).text, sql);
}

TEST_P(DialectQuery, GivesItsRowsOnSqlite) {
    EXPECT_EQ(Select(GetParam().sql), GetParam().rows);
}

TEST_P(DialectQuery, GivesItsRowsOnSqliteWithoutTheLeaseFunction) {
    Database database(false);
    database.Run(kv::test::kDialectTables);
    Context context = For(Target::kSqlite);
    context.hasOwnFunctions = false;
    EXPECT_EQ(database.Run(Translate(GetParam().sql, context).text), GetParam().rows);
}

INSTANTIATE_TEST_SUITE_P(Form, DialectQuery, testing::ValuesIn(kv::test::DialectQueries()), NameOf);

class DialectChange : public testing::TestWithParam<DialectForm> {
protected:
    static Kind ExpectedKind() {
        if (GetParam().name.starts_with("Grant")) return Kind::kGrant;
        if (GetParam().name == "Commit") return Kind::kCommit;
        return GetParam().name.starts_with("Create") ? Kind::kDefine : Kind::kChange;
    }
};

TEST_P(DialectChange, IsOfItsKindForEveryEngine) {
    for (const Target target : {Target::kSqlite, Target::kPostgres, Target::kOracle}) {
        const Translation translation = Translate(GetParam().sql, For(target));
        EXPECT_EQ(translation.kind, ExpectedKind());
        EXPECT_THAT(translation.refusal, IsEmpty());
    }
}

TEST_P(DialectChange, IsSentToOracleWithoutItsSemicolon) {
    std::string sql = GetParam().sql;
    if (sql.ends_with(';')) sql.pop_back();
    EXPECT_EQ(Translate(GetParam().sql, For(Target::kOracle)).text, sql);
}

TEST_P(DialectChange, HasItsEffectOnSqlite) {
    Database database;
    database.Run(kv::test::kDialectTables);
    database.Run("begin");
    database.Run(OnSqlite(GetParam().sql));
    EXPECT_EQ(database.Run(OnSqlite(GetParam().shows)), GetParam().rows);
}

INSTANTIATE_TEST_SUITE_P(Form, DialectChange, testing::ValuesIn(kv::test::DialectChanges()),
                         NameOf);

// Letter by letter

TEST(Dialect, PrintsAnAreaListForSqlite) {
    EXPECT_EQ(OnSqlite("select ' -AREA NAME-' from dual union select ' -MMS CODE-' from dual union "
                       "select distinct stcode from NORVADON.gulf_mexico_connam2"),
              "select ' -AREA NAME-' union select ' -MMS CODE-' union select distinct stcode from "
              "gulf_mexico_connam2 order by 1 nulls last");
}

TEST(Dialect, PrintsAnAreaListForPostgres) {
    EXPECT_EQ(OnPostgres("select ' -AREA NAME-' from dual union select ' -MMS CODE-' from dual "
                         "union select distinct stcode from NORVADON.gulf_mexico_connam2"),
              "select kv1 from (select ' -AREA NAME-' as kv1 union select ' -MMS CODE-' union "
              "select distinct stcode from gulf_mexico_connam2) as kv order by kv1 collate \"C\"");
}

const std::string kBlocks =
    "select 'ALL',-1 from dual union select decode(substr(areacode, 1, 3), '426', lbnum||lbext || "
    "'-S',lbnum||lbext), lbnum from NORVADON.gulf_mexico_lbi where areacode = '426A'order by 2";

TEST(Dialect, PrintsABlockListForSqlite) {
    EXPECT_EQ(OnSqlite(kBlocks),
              "select 'ALL', -1 union select case substr(areacode, 1, 3) when '426' then "
              "coalesce(lbnum, '') || coalesce(lbext, '') || '-S' else nullif(coalesce(lbnum, '') "
              "|| coalesce(lbext, ''), '') end, lbnum from gulf_mexico_lbi where areacode = '426A' "
              "order by 2 nulls last, 1 nulls last");
}

TEST(Dialect, PrintsABlockListForPostgres) {
    EXPECT_EQ(
        OnPostgres(kBlocks),
        "select kv1, kv2 from (select 'ALL' as kv1, '-1' as kv2 union select case "
        "substr(cast(areacode as text), 1, 3) when '426' then concat(lbnum, lbext, '-S') else "
        "nullif(concat(lbnum, lbext), '') end, lbnum from gulf_mexico_lbi where areacode = "
        "'426A') as kv order by case when pg_typeof(kv2) in ('int2', 'int4', 'int8', "
        "'numeric', 'float4', 'float8') then cast(cast(kv2 as text) as numeric) end, "
        "cast(kv2 as text) collate \"C\", kv1 collate \"C\"");
}

const std::string kLeases =
    "(select distinct lease from NORVADON.t where lease like 'G%') order by lesort(lease) ";

TEST(Dialect, PrintsALeaseListForSqlite) {
    EXPECT_EQ(OnSqlite(kLeases),
              "select kv1 from (select distinct lease as kv1 from t where lease like 'G%') as kv "
              "order by lesort(kv1) nulls last, kv1 nulls last");
}

TEST(Dialect, PrintsALeaseListForPostgres) {
    EXPECT_EQ(OnPostgres(kLeases),
              "select kv1 from (select distinct lease as kv1 from t where cast(lease as text) like "
              "'G%' escape '') as kv order by regexp_replace(regexp_replace(cast(kv1 as text), "
              "'([0-9]+)', '00000000000000000000\\1', 'g'), '0*([0-9]{20,})', '\\1', 'g') collate "
              "\"C\", case when pg_typeof(kv1) in ('int2', 'int4', 'int8', 'numeric', 'float4', "
              "'float8') then cast(cast(kv1 as text) as numeric) end, cast(kv1 as text) collate "
              "\"C\"");
}

const std::string kZones =
    "select 'Zone: ' || to_char(-1*state_plane_code) || ': ' || description from "
    "NORVADON.zones order by to_number(code)";

TEST(Dialect, PrintsAZoneListForSqlite) {
    EXPECT_EQ(
        OnSqlite(kZones),
        "select 'Zone: ' || coalesce(cast(-1 * state_plane_code as text), '') || ': ' || "
        "coalesce(description, '') from zones order by cast(kv_number(code) as numeric) nulls "
        "last, 1 nulls last");
}

TEST(Dialect, PrintsAZoneListForPostgres) {
    EXPECT_EQ(OnPostgres(kZones),
              "select concat('Zone: ', cast(-1 * state_plane_code as text), ': ', description) "
              "from zones order by cast(code as numeric), concat('Zone: ', cast(-1 * "
              "state_plane_code as text), ': ', description) collate \"C\"");
}

TEST(Dialect, PrintsTheTableDictionary) {
    const std::string sql = "select table_name from all_tables t where t.owner='NORVADON'";
    EXPECT_EQ(OnSqlite(sql),
              "select table_name from (select 'NORVADON' as owner, upper(name) as table_name from "
              "sqlite_master where type = 'table' and substr(name, 1, 7) <> 'sqlite_') as t where "
              "t.owner = 'NORVADON' order by 1 nulls last");
    const std::string rest =
        " as owner, upper(table_name) as table_name from information_schema.tables where "
        "table_type = 'BASE TABLE') as t where t.owner = 'NORVADON' order by ";
    EXPECT_THAT(Translate(sql, WithSchema(Target::kPostgres)).text,
                StartsWith("select table_name from (select upper(table_schema)" + rest));
    EXPECT_THAT(OnPostgres(sql),
                StartsWith("select table_name from (select case when table_schema = "
                           "current_schema() then 'NORVADON' else upper(table_schema) end" +
                           rest));
}

const std::string kCreate =
    "Create table NORVADON.T_WELL_COMMENT(ID VARCHAR2(20) NOT NULL ENABLE,REC_SEQ NUMBER NOT NULL "
    "ENABLE,REVISION_DATE DATE, PRIMARY KEY (ID, REC_SEQ))";

TEST(Dialect, PrintsACreatedTableForSqlite) {
    EXPECT_EQ(OnSqlite(kCreate),
              "create table T_WELL_COMMENT (ID varchar(20) not null, REC_SEQ numeric not null, "
              "REVISION_DATE text, primary key (ID, REC_SEQ))");
}

TEST(Dialect, PrintsACreatedTableForPostgres) {
    EXPECT_EQ(Translate(kCreate, WithSchema(Target::kPostgres)).text,
              "create table NORVADON.T_WELL_COMMENT (ID varchar(20) collate \"C\" not null, "
              "REC_SEQ numeric not null, REVISION_DATE timestamp(0), primary key (ID, REC_SEQ))");
}

TEST(Dialect, PrintsAUnionOfLiteralsAsRowsOfValues) {
    EXPECT_EQ(OnSqlite("insert into t(select 'a','' from dual)  union (select 'b','c' from dual) "),
              "insert into t select distinct * from (values ('a', null), ('b', 'c')) as kv");
    EXPECT_EQ(OnPostgres("insert into t(select 'a',1 from dual) "), "insert into t select 'a', 1");
}

// Names

TEST(Dialect, KeepsTheOwnerWhereTheEngineHasSuchASchema) {
    const std::string sql = "delete from NORVADON.t where NORVADON.t.a = 1";
    EXPECT_EQ(Translate(sql, WithSchema(Target::kPostgres)).text,
              "delete from NORVADON.t where NORVADON.t.a = 1");
    EXPECT_EQ(OnPostgres(sql), "delete from t where t.a = 1");
    EXPECT_EQ(Translate("delete from other.t", WithSchema(Target::kPostgres)).text,
              "delete from t");
}

TEST(Dialect, FoldsQuotedNamesAsTheEngineFoldsThem) {
    EXPECT_EQ(OnPostgres("delete from \"T\" where \"Mixed\" = a#1"),
              "delete from \"t\" where \"Mixed\" = \"a#1\"");
    EXPECT_EQ(OnSqlite("delete from \"T\" where a# = 1"), "delete from `T` where `a#` = 1");
    EXPECT_EQ(OnSqlite("delete from \"a\"\"b`c\""), "delete from `a\"b``c`");
}

TEST(Dialect, TakesWordsInAnyCase) {
    EXPECT_EQ(OnSqlite("SeLeCt Decode(a, 'x', NVL(b, c)) FROM Dual WHERE a Is Not Null"),
              "select case a when 'x' then coalesce(b, c) end where a is not null");
}

// Values

TEST(Dialect, TakesAnEmptyTextAsNull) {
    EXPECT_EQ(OnSqlite("delete from t where a = ''"), "delete from t where a = null");
    EXPECT_EQ(OnSqlite("insert into t values ('', n'')"), "insert into t values (null, null)");
    EXPECT_EQ(Value("nvl('', 'instead')"), "instead");
    EXPECT_THAT(Select("select lbnum from gulf_mexico_lbi where lbext = '' or lbext <> ''"),
                IsEmpty());
}

TEST(Dialect, JoinsNullAsAnEmptyText) {
    EXPECT_EQ(Value("'a'||null||'b'"), "ab");
    EXPECT_EQ(Value("nvl(null||null||'', 'null')"), "null");
    EXPECT_EQ(Value("nvl(null||'x', 'null')"), "x");
    EXPECT_EQ(Value("1||2"), "12");
}

TEST(Dialect, TakesNullAsEqualToNullInADecodeAlone) {
    EXPECT_EQ(Value("decode(null, null, 'same', 'other')"), "same");
    EXPECT_EQ(Value("decode('a', '', 'empty', 'a', 'found')"), "found");
    EXPECT_THAT(Select("select decode(lbext, areacode, 'x', null, 'none', 'some') from "
                       "gulf_mexico_lbi where areacode = '428B' or lbext = 'X' order by refnum"),
                ElementsAre("none", "some"));
    EXPECT_EQ(OnPostgres("select decode(a, b, 'x', null, 'y') from t"),
              "select case when a is not distinct from b then 'x' when a is null then 'y' end "
              "from t");
}

TEST(Dialect, GivesTheResultsOfADecodeTheTypeOfTheFirst) {
    EXPECT_EQ(OnPostgres("select decode(a, 1, 'x'||b, 2, 3, n) from t"),
              "select case a when '1' then concat('x', b) when '2' then cast(3 as text) else "
              "cast(n as text) end from t");
    EXPECT_EQ(Value("decode(substr('4261', 1, 3), 426, 'S', 'none')"), "S");
}

TEST(Dialect, LeavesADecodeWithoutAResultToTheEngine) {
    EXPECT_EQ(OnSqlite("select decode(a, 1) from dual"), "select decode(a, 1)");
}

TEST(Dialect, CutsTextsAsOracleDoes) {
    const std::map<std::string, std::string> cuts = {
        {"1, 3", "abc"},  {"0, 3", "abc"},  {"0", "abcdef"},  {"3", "cdef"},    {"-2", "ef"},
        {"-3, 2", "de"},  {"-6, 1", "a"},   {"-7, 3", "-"},   {"7", "-"},       {"2, 0", "-"},
        {"2, -1", "-"},   {"1+1, 2", "bc"}, {"1-1, 2", "ab"}, {"1-3, 2", "ef"}, {"1-9, 2", "-"},
        {"5, 1+8", "ef"}, {"2, 1-1", "-"}};
    for (const auto& [arguments, cut] : cuts)
        EXPECT_EQ(Value("nvl(substr('abcdef', " + arguments + "), '-')"), cut) << arguments;
}

TEST(Dialect, DividesWithoutCutting) {
    EXPECT_EQ(Value("1/4"), "0.25");
    EXPECT_EQ(Value("(7-2)/2*2"), "5");
    EXPECT_EQ(OnPostgres("select (max(a) - min(a))/5 from t"),
              "select trim_scale(cast((max(a) - min(a)) * 1.0 / 5 as numeric)) from t");
}

TEST(Dialect, LeavesAQuotientThatIsOnlyComparedAsItIs) {
    EXPECT_EQ(OnPostgres("delete from t where a < b/2"), "delete from t where a < b * 1.0 / 2");
}

TEST(Dialect, KeepsTheOrderOfReckoning) {
    EXPECT_EQ(Value("(1+2)*3-(4-5)"), "10");
    EXPECT_EQ(Value("2-3-4"), "-5");
    EXPECT_EQ(Value("- -3"), "3");
    EXPECT_EQ(Value("1-(-2)"), "3");
    EXPECT_EQ(Value("'a'||(1+2)||'b'"), "a3b");
    EXPECT_THAT(Select("select stcode from gulf_mexico_connam2 where (stcode = '700' or stcode = "
                       "'710') and not (area_abbr is null or areaname like 'x')"),
                ElementsAre("700"));
}

TEST(Dialect, MatchesPatternsByByteOnPostgres) {
    EXPECT_EQ(OnPostgres("delete from t where a like 'x\\%' and b||c not like '%y' escape '!'"),
              "delete from t where cast(a as text) like 'x\\%' escape '' and nullif(concat(b, c), "
              "'') not like '%y' escape '!'");
}

TEST(Dialect, ComparesTextsByByteOnPostgres) {
    EXPECT_EQ(OnPostgres("delete from t where a < 'M' and b >= '28.5' and c between 'A' and 'F'"),
              "delete from t where a < 'M' collate \"C\" and b >= '28.5' and c between ('A' "
              "collate \"C\") and ('F' collate \"C\")");
}

TEST(Dialect, TakesWhatATextFunctionGivesForANumberBesideOne) {
    for (const std::string call :
         {"concat(a, 'x')", "initcap(a)", "lesort(a)", "lower(a)", "lpad(a, 5)", "ltrim(a)",
          "replace(a, 'x')", "rpad(a, 5)", "rtrim(a)", "substr(a, 2)", "to_char(a)", "trim(a)",
          "upper(a)", "regexp_replace(a, 'x')", "translate(a, 'x', 'y')", "nvl2(a, b||'x', 'y')"})
        EXPECT_THAT(OnPostgres("select 1 from t where " + call + " > 9"),
                    testing::EndsWith(" as numeric) > 9"))
            << call;
}

TEST(Dialect, ComparesWhatANumberFunctionGivesWithATextByNumber) {
    for (const std::string call :
         {"abs(a)", "ceil(a)", "floor(a)", "instr(a, 'x')", "length(a)", "mod(a, 2)", "power(a, 2)",
          "round(a)", "sign(a)", "sqrt(a)", "to_number(a)"})
        EXPECT_THAT(OnPostgres("select 1 from t where " + call + " > 'x'"),
                    testing::EndsWith(" > 'x'"))
            << call;
    for (const std::string call : {"avg(a)", "count(a)", "sum(a)"})
        EXPECT_THAT(OnPostgres("select 1 from t having " + call + " > 'x'"),
                    testing::EndsWith(" > 'x'"))
            << call;
}

TEST(Dialect, KnowsNoTypeOfWhatAnotherFunctionGives) {
    EXPECT_EQ(OnPostgres("select 1 from t where own_code(a||'x') > 9"),
              "select 1 from t where own_code(concat(a, 'x')) > 9");
    EXPECT_EQ(OnPostgres("select 1 from t where own_code() > 9"),
              "select 1 from t where own_code() > 9");
    EXPECT_EQ(OnPostgres("select 1 from t where own_code(length(a)) > 'x'"),
              "select 1 from t where own_code(length(a)) > 'x' collate \"C\"");
    EXPECT_EQ(OnPostgres("select 1 from t where own_code(a, length(a), a) > 'x'"),
              "select 1 from t where own_code(a, length(a), a) > 'x' collate \"C\"");
}

TEST(Dialect, CutsDatesToTheirUnitsOnPostgres) {
    for (const auto& [unit, name] : {std::pair{"DD", "day"},
                                     {"DDD", "day"},
                                     {"HH", "hour"},
                                     {"HH24", "hour"},
                                     {"MI", "minute"},
                                     {"MM", "month"},
                                     {"MON", "month"},
                                     {"MONTH", "month"},
                                     {"YY", "year"},
                                     {"YEAR", "year"},
                                     {"YYYY", "year"}}) {
        EXPECT_EQ(OnPostgres(std::string("select trunc(date '2024-05-17', '") + unit + "') from t"),
                  std::string("select date_trunc('") + name +
                      "', cast(timestamp '2024-05-17 00:00:00' as timestamp)) from t");
    }
}

TEST(Dialect, TakesYearsOfTwoDigitsInTheirCenturyOnPostgres) {
    const std::string date = "cast(to_timestamp(cast(a as text), 'YYMMDD') as timestamp)";
    EXPECT_EQ(OnPostgres("select to_date(a, 'RRMMDD') from t"),
              "select case when " + date + " >= timestamp '2050-01-01' then " + date +
                  " - interval '100 years' else " + date + " end from t");
    EXPECT_EQ(OnPostgres("select to_date(a, 'YYMMDD') from t"),
              "select case when " + date + " < timestamp '2000-01-01' then " + date +
                  " + interval '100 years' else " + date + " end from t");
    EXPECT_THAT(OnPostgres("select to_date(a, 'DD.MM.YY') from t"),
                HasSubstr(" and cast(a as text) !~ '(^|[^0-9])[0-9]{4}([^0-9]|$)' then "));
}

TEST(Dialect, TakesTheTypeOfTheFirstForTruncAndNullif) {
    for (const std::string call : {"trunc(length(a))", "nullif(length(a), 3)"})
        EXPECT_THAT(OnPostgres("select 1 from t where " + call + " > '9'"),
                    testing::EndsWith(" > '9'"))
            << call;
    EXPECT_THAT(OnPostgres("select 1 from t where nullif(a||'x', 'y') > 9"),
                testing::EndsWith(" as numeric) > 9"));
}

TEST(Dialect, RoundsToTensAndHundreds) {
    EXPECT_EQ(Value("round(1250, -2)"), "1300");
    EXPECT_EQ(Value("1000 / round(249, -2)"), "5");
    EXPECT_EQ(Value("round(12.345, 2)"), "12.35");
    EXPECT_EQ(OnPostgres("select round(a, -2) from t"),
              "select trim_scale(cast(round(cast(a as numeric), -2) as numeric)) from t");
}

TEST(Dialect, LeavesAllOfWhatNothingDivides) {
    EXPECT_EQ(Value("mod(5, 0)"), "5");
    EXPECT_EQ(Value("mod(5, 3)"), "2");
    EXPECT_EQ(Value("mod(5, 1 - 1)"), "5");
    EXPECT_EQ(OnPostgres("select mod(a, 0) from t"),
              "select trim_scale(cast(case 0 when 0 then a else mod(cast(a as numeric), cast(0 as "
              "numeric)) end as numeric)) from t");
}

TEST(Dialect, PadsToNoLengthWithNull) {
    EXPECT_EQ(OnPostgres("select lpad(a, 0), rpad(a, b), lpad(a, 5) from t"),
              "select nullif(lpad(a, 0), ''), nullif(rpad(a, b), ''), lpad(a, 5) from t");
}

TEST(Dialect, ReplacesEachPlaceOfAPatternOnPostgres) {
    EXPECT_EQ(OnPostgres("select regexp_replace(a, 'x', '') from t"),
              "select nullif(regexp_replace(cast(a as text), 'x', coalesce(cast(null as text), "
              "''), 'g'), '') from t");
    EXPECT_EQ(OnPostgres("select regexp_replace(a, 'x', 'y', 2) from t"),
              "select nullif(regexp_replace(cast(a as text), 'x', coalesce('y', ''), cast(2 as "
              "integer), 0), '') from t");
    EXPECT_EQ(OnPostgres("select regexp_replace(a, 'x') from t"),
              "select nullif(regexp_replace(cast(a as text), 'x', coalesce('', ''), 'g'), '') "
              "from t");
}

TEST(Dialect, RefusesWhatWouldBeAnotherValue) {
    const auto refusal = [](const std::string& sql) {
        return Translate(sql, For(Target::kSqlite)).refusal;
    };
    EXPECT_THAT(refusal("select trunc(sysdate, 'Q') from dual"),
                HasSubstr("it has no counterpart at character 23: 'Q'"));
    EXPECT_THAT(refusal("select trunc(sysdate, a) from t"), HasSubstr("at character 8: trunc"));
    EXPECT_THAT(refusal("select round(sysdate) from dual"), HasSubstr("at character 8: round"));
    EXPECT_THAT(refusal("with t as (select 1 a from dual) select a from norvadon.t"),
                HasSubstr("at character 48: norvadon"));
    EXPECT_THAT(refusal("with u as (select a from norvadon.t), t as (select 1 a from dual) select "
                        "a from u"),
                HasSubstr("at character 26: norvadon"));
    EXPECT_THAT(refusal("with t as (select a from norvadon.t) select a from t"),
                HasSubstr("at character 26: norvadon"));
    EXPECT_EQ(
        Translate("with t as (select a from norvadon.t) select a from t", For(Target::kPostgres))
            .refusal,
        "");
    EXPECT_EQ(refusal("with dual as (select 1 a from t) select a from sys.dual"), "");
    EXPECT_EQ(refusal("with t as (select 1 a from dual) select a from (with u as (select a from "
                      "t) select a from u) x"),
              "");
    EXPECT_EQ(refusal("with t as (select 1 a from dual) select a from t"), "");
    EXPECT_EQ(Translate("with t as (select 1 a from dual) select a from norvadon.t",
                        WithSchema(Target::kSqlite))
                  .refusal,
              "");
}

TEST(Dialect, AnOrderBehindTheBracketsReplacesTheOneWithin) {
    EXPECT_EQ(OnSqlite("(select a from t order by a) order by a desc"),
              "select a from t order by 1 desc nulls first");
    EXPECT_EQ(OnSqlite("(select a from t order by a)"), "select a from t order by 1 nulls last");
}

TEST(Dialect, GivesTheSecondValueOfNvlTheTypeOfTheFirstOnPostgres) {
    EXPECT_EQ(OnPostgres("select nvl(length(a), 0) from t"),
              "select coalesce(length(a), 0) from t");
    EXPECT_EQ(OnPostgres("select nvl(a, 0) from t"), "select coalesce(a, '0') from t");
    EXPECT_EQ(OnSqlite("select nvl(a, 0) from t"), "select coalesce(a, 0) from t");
}

TEST(Dialect, KeepsNullFromACondition) {
    EXPECT_THAT(Select("select refnum from gulf_mexico_lbi where areacode = '700' and not "
                       "(lbnum||lbext = '33')"),
                IsEmpty());
}

TEST(Dialect, TakesRowsOfValuesInAList) {
    EXPECT_THAT(Select("select stcode from gulf_mexico_connam2 where (stcode, area_abbr) in "
                       "(('700', 'WD'), ('710', 'WD'))"),
                ElementsAre("700"));
}

// Sets and order

TEST(Dialect, JoinsSetsFromLeftToRight) {
    const std::string mixed =
        "select '1' from dual union select '2' from dual intersect select '2' from dual";
    EXPECT_THAT(Select(mixed), ElementsAre("2"));
    EXPECT_THAT(OnPostgres(mixed), HasSubstr("((select '1' as kv1 union select '2') intersect"));
}

TEST(Dialect, KeepsTheGroupingOfBrackets) {
    const std::string grouped =
        "(select '1' from dual minus (select '2' from dual union select '1' from dual)) union all "
        "select '3' from dual";
    EXPECT_THAT(Select(grouped), ElementsAre("3"));
    EXPECT_EQ(OnSqlite(grouped),
              "select '1' except select * from (select '2' union select '1') union all select '3'");
    EXPECT_EQ(OnPostgres(grouped),
              "select '1' except (select '2' union select '1') union all select '3'");
}

TEST(Dialect, PutsNullsAtTheEndOfARisingOrderAndAheadOfAFallingOne) {
    const std::string codes = "select area_abbr from gulf_mexico_connam2 order by area_abbr";
    EXPECT_THAT(Select(codes), ElementsAre("GA", "GA", "WD", "_X", ""));
    EXPECT_THAT(Select(codes + " desc"), ElementsAre("", "_X", "WD", "GA", "GA"));
    EXPECT_THAT(Select(codes + " nulls first"), ElementsAre("", "GA", "GA", "WD", "_X"));
}

TEST(Dialect, GroupsTextsThatArePutTogetherFromColumnsOnSqliteWhichSortsThemFaster) {
    const std::string texts = "select distinct areacode||lbext from gulf_mexico_lbi";
    EXPECT_EQ(OnSqlite(texts),
              "select nullif(coalesce(areacode, '') || coalesce(lbext, ''), '') from "
              "gulf_mexico_lbi group by 1 order by 1 nulls last");
    EXPECT_THAT(OnPostgres(texts), HasSubstr("select distinct nullif("));
    EXPECT_EQ(Select(texts), Select("select areacode||lbext from gulf_mexico_lbi union select "
                                    "areacode||lbext from gulf_mexico_lbi"));
    EXPECT_THAT(Select("select distinct lbext||lbext from gulf_mexico_lbi"),
                ElementsAre("AA", "BB", "XX", "aa", ""));
    for (const char* others :
         {"areacode", "areacode||'-'", "areacode||lbext, lbnum", "max(areacode)||lbext"})
        EXPECT_THAT(OnSqlite(std::string("select distinct ") + others + " from gulf_mexico_lbi"),
                    StartsWith("select distinct "));
}

TEST(Dialect, OrdersByNumberAliasAndName) {
    const std::string from = " from gulf_mexico_connam2 c where area_abbr = 'GA' order by ";
    EXPECT_THAT(Select("select areaname, stcode" + from + "2 desc"),
                ElementsAre("GALVESTON BAY|428B", "GALVESTON|426A"));
    EXPECT_THAT(Select("select areaname, stcode code" + from + "code desc"),
                ElementsAre("GALVESTON BAY|428B", "GALVESTON|426A"));
    EXPECT_THAT(Select("select distinct c.areaname" + from + "areaname desc"),
                ElementsAre("GALVESTON BAY", "GALVESTON"));
}

TEST(Dialect, LeavesTheOrderOfAPlainQueryAndOfUnionAllOpen) {
    EXPECT_EQ(OnSqlite("select a from t"), "select a from t");
    EXPECT_EQ(OnPostgres("select a from t union all select b from t"),
              "select a from t union all select b from t");
}

TEST(Dialect, SortsOnlyTheOutermostQuery) {
    EXPECT_EQ(OnSqlite("select a from t where a in (select distinct b from t)"),
              "select a from t where a in (select distinct b from t)");
}

TEST(Dialect, GivesNumbersOfAUnionTheOrderOfNumbers) {
    EXPECT_THAT(Select("select 'ALL',-1 from dual union select category, zone_code from "
                       "gulf_mexico_zone_code where zone_code > 3 order by 2"),
                ElementsAre("ALL|-1", "misc_other|4", "misc_other|20", "utm_spheroids|100",
                            "utm_spheroids|200"));
}

TEST(Dialect, NamesAQueryInAFromForPostgres) {
    EXPECT_EQ(OnPostgres("select a from (select a from t), (select b from t) x"),
              "select a from (select a from t) as kv_1, (select b from t) as x");
}

TEST(Dialect, KnowsTheTableOfOneRow) {
    EXPECT_EQ(OnPostgres("select 1 from dual"), "select 1");
    EXPECT_EQ(OnPostgres("select a from dual, t"), "select a from t");
    EXPECT_THAT(Select("select * from dual"), ElementsAre("X"));
    EXPECT_THAT(Select("select d.* from dual d cross join plans where area1 = '700'"),
                ElementsAre("X"));
}

TEST(Dialect, ReadsJoinsGroupsAndChoices) {
    EXPECT_THAT(
        Select("select c.area_abbr, count(*), count(distinct i.lbnum) from gulf_mexico_connam2 c "
               "left outer join gulf_mexico_lbi i on i.areacode = c.stcode where exists (select 1 "
               "from gulf_mexico_lbi b where b.areacode = c.stcode) group by c.area_abbr having "
               "count(*) > 1 order by 1"),
        ElementsAre("GA|6|4", "WD|2|1"));
    EXPECT_EQ(Value("case 1 when 2 then 'a' else case when 1 < 2 then 'b' end end"), "b");
}

// Grants, commits, definitions

TEST(Dialect, LeavesOutGrantsOnSqliteWithANote) {
    const Translation grant = Translate(" GRANT INSERT ON T TO PUBLIC;", For(Target::kSqlite));
    EXPECT_EQ(grant.kind, Kind::kGrant);
    EXPECT_EQ(grant.text, "");
    EXPECT_THAT(grant.notes,
                ElementsAre("The privilege INSERT on T is left out: SQLite knows none"));
}

TEST(Dialect, GrantsOnPostgresWhatItKnows) {
    const auto grant = [](const std::string& privileges) {
        return Translate(" GRANT " + privileges + " ON T TO PUBLIC;", For(Target::kPostgres));
    };
    for (const char* known : {"DELETE", "INSERT", "UPDATE", "REFERENCES", "SELECT"}) {
        EXPECT_EQ(grant(known).text, "grant " + kv::ToLower(known) + " on T to PUBLIC");
        EXPECT_THAT(grant(known).notes, IsEmpty());
    }
    for (const char* unknown : {"ALTER", "INDEX"}) {
        EXPECT_EQ(grant(unknown).text, "");
        EXPECT_THAT(grant(unknown).notes, ElementsAre(HasSubstr(unknown)));
    }
    EXPECT_EQ(grant("ALTER, INSERT").text, "grant insert on T to PUBLIC");
    EXPECT_EQ(OnPostgres("revoke all privileges on t from public"), "revoke all on t from public");
}

TEST(Dialect, KnowsACommit) {
    for (const char* sql : {" Commit;", "commit work", "COMMIT"})
        EXPECT_EQ(KindOf(sql), Kind::kCommit) << sql;
    EXPECT_EQ(Translate(" Commit;", For(Target::kOracle)).text, " Commit");
}

TEST(Dialect, TranslatesOraclesColumnTypes) {
    const std::string sql =
        "create table t (a char(3) default 'x' unique, b number(9,2), c integer primary key, d "
        "float, e clob, f timestamp(3), g blob, h varchar2(5 char), constraint u unique (a, b))";
    EXPECT_EQ(OnSqlite(sql),
              "create table t (a char(3) default 'x' unique, b numeric(9, 2), c numeric(38) not "
              "null primary key, d real, e text, f text, g blob, h varchar(5), constraint u unique "
              "(a, b))");
    EXPECT_EQ(OnPostgres(sql),
              "create table t (a char(3) collate \"C\" default 'x' unique, b numeric(9, 2), c "
              "numeric(38) not null primary key, d double precision, e text collate \"C\", f "
              "timestamp(3), g bytea, h varchar(5) collate \"C\", constraint u unique (a, b))");
}

TEST(Dialect, LeavesOtherDefinitionsAsTheyStand) {
    for (const char* sql :
         {"create index i on t(a)", "alter table t add b number", "truncate table t"}) {
        const Translation translation = Translate(sql, For(Target::kPostgres));
        EXPECT_EQ(translation.kind, Kind::kDefine);
        EXPECT_EQ(translation.text, sql);
        EXPECT_EQ(translation.notes.size(), 1u);
    }
    EXPECT_EQ(OnSqlite("drop table NORVADON.t cascade constraints purge;"), "drop table t");
}

TEST(Dialect, TranslatesUpdates) {
    EXPECT_EQ(KindOf("update t set a = 1"), Kind::kChange);
    EXPECT_EQ(OnPostgres("update NORVADON.t x set a = a||'1', (b, c) = (select 'p', '' from dual) "
                         "where b is null"),
              "update t as x set a = concat(a, '1'), (b, c) = (select 'p', null) where b is null");
}

// What must not run

TEST(Dialect, RefusesAnEmptyList) {
    const std::string sql = "select a from t where (b in ())";
    for (const Target target : {Target::kSqlite, Target::kPostgres})
        EXPECT_EQ(Translate(sql, For(target)).refusal,
                  "missing expression: the list behind \"in\" is empty");
    const Translation oracle = Translate(sql, For(Target::kOracle));
    EXPECT_EQ(oracle.text, sql);
    EXPECT_EQ(oracle.refusal, "");
}

TEST(Dialect, RefusesTwoStatements) {
    for (const Target target : {Target::kSqlite, Target::kPostgres, Target::kOracle})
        for (const char* sql :
             {"select a from t; delete from t", "delete from t;x",
              "select 1 from dual where a = '';drop table t --'", "x; select 'no end"})
            EXPECT_EQ(Translate(sql, For(target)).refusal,
                      "Refused: the text holds more than one statement")
                << sql;
}

TEST(Dialect, TakesASemicolonInATextAsText) {
    EXPECT_EQ(OnSqlite("select 'a;b' from dual ; \n"), "select 'a;b'");
    EXPECT_EQ(OnSqlite("delete from t;; -- done; really"), "delete from t");
}

TEST(Dialect, RefusesATextWithoutAStatement) {
    for (const char* sql : {"", "  \t", ";", "-- nothing", "/* nothing */ ;"})
        EXPECT_EQ(Translate(sql, For(Target::kSqlite)).refusal,
                  "Refused: the text holds no statement")
            << sql;
}

TEST(Dialect, LeavesAProgramForOracleAsItStands) {
    for (const char* sql : {"begin p; end;", "declare n number; begin n := 1; end;",
                            "create or replace trigger r before insert on t begin p; end;"}) {
        const Translation translation = Translate(sql, For(Target::kOracle));
        EXPECT_EQ(translation.text, sql);
        EXPECT_EQ(translation.kind, Kind::kUnknown);
        EXPECT_EQ(translation.refusal, "");
    }
}

TEST(Dialect, NeverTakesAChangeForAQuery) {
    for (const char* sql :
         {"with x as (delete from t returning a) select a from x", "select a into b from t",
          "with x as (select 1) insert into t select 1", "select a from t for update",
          "select a from (delete from t)", "select a from t where a in (insert into t values (1))",
          "(select a from t) delete from t", "select a from t union delete from t",
          "explain delete from t", "select a from t returning b", "call p()"})
        EXPECT_EQ(KindOf(sql), Kind::kUnknown) << sql;
}

TEST(Dialect, RefusesWhatItCannotReadAndLeavesItForOracleAsItStands) {
    const std::string tooDeep =
        "select " + std::string(5000, '(') + "1" + std::string(5000, ')') + " from dual";
    const std::string why = "Refused: the statement cannot be translated, since ";
    const std::string notUnderstood = why + "it is not understood at character ";
    const std::string notEnded = why + "it does not end what begins at character ";
    for (const auto& [sql, refusal] : std::vector<std::pair<std::string, std::string>>{
             {"select distinct  from T where  like '%A%'",
              notUnderstood + "18: from T where  like '%A%'"},
             {"select a from t where b = 'O'BRIEN'", notEnded + "35: '"},
             {"insert into t values ('it's', 3,1)", notEnded + "28: ', 3,1)"},
             {"select a from", notUnderstood + "14, its end"},
             {"select a, from t", notUnderstood + "11: from t"},
             {"select q'[it's]' from dual", notEnded + "8: q'[it's]' from dual"},
             {"select a from t where (b = 1", notUnderstood + "29, its end"},
             {"select a) from t", notUnderstood + "9: ) from t"},
             {"select /* no end", notEnded + "8: /* no end"},
             {"select a from t@link", notUnderstood + "16: @link"},
             {"select a from t where b(+) = c", notUnderstood + "26: ) = c"},
             {"select a from t where b = :x", notUnderstood + "27: :x"},
             {"select a from t where b in 1", notUnderstood + "28: 1"},
             {"hello", notUnderstood + "1: hello"},
             {"select '\xC3\x84\xC3\x96\xC3\x9C' || ? from t", notUnderstood + "17: ? from t"},
             {"select a ? " + std::string(38, 'x') + "\xC3\x84",
              notUnderstood + "10: ? " + std::string(38, 'x')},
             {tooDeep, notUnderstood + "107: " + std::string(40, '(')}}) {
        for (const Target target : {Target::kSqlite, Target::kPostgres, Target::kOracle}) {
            const Translation translation = Translate(sql, For(target));
            EXPECT_EQ(translation.kind, Kind::kUnknown) << sql;
            EXPECT_EQ(translation.text, sql);
            EXPECT_EQ(translation.refusal, target == Target::kOracle ? "" : refusal);
            EXPECT_EQ(translation.notes.size(), target == Target::kOracle ? 1u : 0u);
        }
    }
}

TEST(Dialect, ReadsABracketTooManyAtTheEndAndNowhereElse) {
    const Translation read = Translate("select a from t where (b = 1)) )", For(Target::kSqlite));
    EXPECT_EQ(read.text, "select a from t where b = 1");
    EXPECT_THAT(read.notes,
                ElementsAre("A statement was read without the bracket that it closes at "
                            "its end and never opened"));
    const Translation toOracle =
        Translate("select  A from t where (b = 1)) );", For(Target::kOracle));
    EXPECT_EQ(toOracle.text, "select  A from t where (b = 1)");
    EXPECT_EQ(toOracle.notes, read.notes);
    EXPECT_EQ(Translate("begin null; end)", For(Target::kOracle)).text, "begin null; end)");
    EXPECT_EQ(Translate("select a b c from t)", For(Target::kOracle)).text, "select a b c from t)");
    EXPECT_EQ(KindOf("select a from t) where (b = 1)"), Kind::kUnknown);
    EXPECT_THAT(Translate("select a from t", For(Target::kSqlite)).notes, IsEmpty());
}

TEST(Dialect, SkipsComments) {
    EXPECT_EQ(OnSqlite("select /* it's; */ a -- 'b'\n from t"), "select a from t");
}

TEST(Dialect, KeepsMinusSignsApart) {
    EXPECT_EQ(OnSqlite("select a - -1, - (-b) from t"), "select a - -1, -(-b) from t");
}

TEST(Dialect, StaysInProportionToTheText) {
    std::string nested = "a";
    for (int i = 0; i < 30; ++i)
        nested = "substr(" + nested + ", b)";
    const std::string sql = "select " + nested + " from t";
    const Translation translation = Translate(sql, For(Target::kSqlite));
    EXPECT_EQ(translation.text, "");
    EXPECT_EQ(translation.refusal,
              "Refused: the statement cannot be translated, since it would become too long");
}

TEST(Dialect, ReadsLongChainsWithoutDepth) {
    std::string condition = "a = 0";
    for (int i = 1; i < 20000; ++i)
        condition += " or a = " + std::to_string(i);
    EXPECT_EQ(OnPostgres("delete from t where " + condition), "delete from t where " + condition);
    Database database;
    database.Run("create table t (a); insert into t values (19999), (20000)");
    database.Run(OnSqlite("delete from t where " + condition));
    EXPECT_THAT(database.Run("select a from t"), ElementsAre("20000"));
}

TEST(Dialect, ReadsManyMembersIntoOneInsert) {
    std::string sql = "insert into onshore_lease(select 'L0' from dual) ";
    for (int i = 1; i < 3000; ++i)
        sql += " union (select 'L" + std::to_string(i) + "' from dual) ";
    Database database;
    database.Run(kv::test::kDialectTables);
    database.Run(OnSqlite(sql));
    EXPECT_THAT(database.Run("select count(*) from onshore_lease where lease like 'L%'"),
                ElementsAre("3000"));
}

TEST(Dialect, LetsAFailureOfTheSessionThrough) {
    Context context;
    context.hasSchema = [](const std::string&) -> bool { throw std::runtime_error("gone"); };
    EXPECT_THROW(Translate("delete from o.t", context), std::runtime_error);
    context.hasSchema = nullptr;
    context.columnsOf = [](const auto&, const auto&) -> kv::dialect::Columns {
        throw std::runtime_error("gone");
    };
    EXPECT_THROW(Translate("delete from t where a = 1", context), std::runtime_error);
}

// Lease numbers

TEST(LeaseSort, FillsUpNumbersAndNothingElse) {
    EXPECT_EQ(LeaseSortKey("OCS-G 01234"), "OCS-G 00000000000000001234");
    EXPECT_EQ(LeaseSortKey("0A00"), "00000000000000000000A00000000000000000000");
    EXPECT_EQ(LeaseSortKey("000123456789012345678901234"), "123456789012345678901234");
    EXPECT_EQ(LeaseSortKey(""), "");
}

TEST(LeaseSort, PutsLeasesInTheOrderOfTheirNumbers) {
    const std::vector<std::string>& leases = kv::test::LeasesInOrder();
    for (std::size_t i = 1; i < leases.size(); ++i)
        EXPECT_LT(LeaseSortKey(leases[i - 1]), LeaseSortKey(leases[i])) << leases[i];
}

TEST(LeaseSort, IsTheSameAsAnExpressionOfSqlite) {
    Database database(false);
    Context context = For(Target::kSqlite);
    context.hasOwnFunctions = false;
    std::vector<std::string> leases = kv::test::LeasesInOrder();
    leases.insert(leases.end(), {"0", "00A000", "000123456789012345678901234", "7 08 9"});
    for (const std::string& lease : leases) {
        const std::string sql = "select lesort('" + lease + "') from dual";
        EXPECT_THAT(database.Run(Translate(sql, context).text), ElementsAre(LeaseSortKey(lease)));
    }
    EXPECT_THAT(database.Run(Translate("select nvl(lesort(''), 'null') from dual", context).text),
                ElementsAre("null"));
}

}  // namespace
