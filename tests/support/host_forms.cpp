#include "support/host_forms.h"

namespace kv::test {
namespace {

using Forms = std::vector<DialectForm>;

void AddNamedQueries(Forms& forms) {
    forms.insert(
        forms.end(),
        {{"WithOneName",
          "with x as (select lbnum n, lbext e from gulf_mexico_lbi where areacode = '426A') select "
          "n||e from x where e is not null order by 1",
          {"100B", "100a", "12A"}},
         {"WithAnEmptyText",
          "with x as (select '' e from dual) select nvl(e, 'null') from x where e is null",
          {"null"}},
         {"WithColumnNames",
          "with x (a, b) as (select areacode, refnum from gulf_mexico_lbi) select a, b from x "
          "where "
          "b > 6 order by b",
          {"700|7", "700|8", "427C|9"}},
         {"WithOneThatUsesAnother",
          "with x as (select refnum r from NORVADON.gulf_mexico_lbi), y as (select max(r) m from "
          "x) "
          "select m, count(*) from x, y group by m",
          {"9|9"}},
         {"WithAUnionOfTheNamed",
          "with x as (select 'b' t from dual), y as (select 'a' t from dual) select t from x union "
          "select t from y",
          {"a", "b"}},
         {"WithInsideOfAFrom",
          "select c + 1 from (with x as (select count(*) c from plans) select c from x) y",
          {"4"}},
         {"WithTextsBesideNumbers",
          "with x as (select lbnum n from gulf_mexico_lbi) select count(*) from x where n > 9",
          {"5"}}});
}

void AddCasts(Forms& forms) {
    forms.insert(
        forms.end(),
        {{"CastToANumber", "select cast('12' as number) + 1 from dual", {"13"}},
         {"CastToRoundedNumbers",
          "select cast(2.567 as number(5,2)), cast(2.5 as integer), cast('7' as number(3)) from "
          "dual",
          {"2.57|3|7"}},
         {"CastToATextThatIsCut",
          "select cast(3 as varchar2(5)) || 'x', cast('abcdef' as varchar2(3)) from dual",
          {"3x|abc"}},
         {"CastOfAnEmptyText", "select nvl(cast('' as varchar2(3)), 'null') from dual", {"null"}},
         {"CastThatFillsUp", "select cast('ab' as char(4)) || 'c' from dual", {"ab  c"}}});
}

void AddJoins(Forms& forms) {
    forms.insert(
        forms.end(),
        {{"JoinUsing",
          "select areacode, count(*) from gulf_mexico_lbi join gulf_mexico_lbv using (refnum) "
          "group "
          "by areacode order by areacode",
          {"426A|5", "427C|1", "428B|1", "700|1"}},
         {"JoinUsingGivesMergedColumnsFirst",
          "select * from gulf_mexico_lbi join gulf_mexico_lbv using (refnum) where refnum = 9",
          {"9|427C|7|X|28|-80|1"}},
         {"NaturalJoin",
          "select * from gulf_mexico_lbi natural join gulf_mexico_lbv where refnum = 7",
          {"7|700|33||10|-90.5|1"}},
         {"NaturalLeftJoin",
          "select refnum, ptnum from gulf_mexico_lbi natural left outer join gulf_mexico_lbv where "
          "refnum in (4, 9) order by refnum",
          {"4|", "9|1"}}});
}

void AddBounds(Forms& forms) {
    const std::string numbers = "select refnum from gulf_mexico_lbi ";
    forms.insert(
        forms.end(),
        {{"FetchFirst", numbers + "order by refnum desc fetch first 2 rows only", {"9", "8"}},
         {"FetchFirstRow", numbers + "order by refnum fetch first row only", {"1"}},
         {"Offset", numbers + "order by refnum offset 7 rows", {"8", "9"}},
         {"OffsetAndFetch", numbers + "order by 1 offset 2 rows fetch next 1 row only", {"3"}},
         {"FetchInsideOfAFrom",
          "select count(*) from (" + numbers + "fetch first 4 rows only) x",
          {"4"}},
         {"FetchOfAUnion",
          "select '2' from dual union select '1' from dual fetch first 1 rows only",
          {"1"}},
         {"FetchOfAMember",
          "(select areacode from gulf_mexico_lbi order by refnum fetch first 1 row only) union "
          "select stcode from gulf_mexico_connam2 where stcode < '428' order by 1 desc",
          {"426A"}},
         {"FetchOfWhatIsFetched",
          "(" + numbers +
              "order by refnum fetch first 5 rows only) order by 1 desc fetch first 2 "
              "rows only",
          {"5", "4"}},
         {"OrderBehindAMemberThatIsBounded",
          "(" + numbers + "order by refnum fetch first 3 rows only) order by refnum desc",
          {"3", "2", "1"}},
         {"OrderBehindAMemberInBrackets",
          "(" + numbers + "order by refnum) order by refnum desc fetch first 3 rows only",
          {"9", "8", "7"}},
         {"OffsetOfAMember", "select count(*) from ((" + numbers + ") offset 8 rows) x", {"1"}},
         {"FetchOfAMemberInBrackets",
          "select count(*) from ((" + numbers + ") fetch first 4 rows only) x",
          {"4"}},
         {"RowNumberBesideTwoConditions",
          numbers + "where rownum <= 5 and refnum > 2 and refnum < 5 order by 1",
          {"3", "4"}},
         {"RowNumberOfACount", "select count(*) from gulf_mexico_lbi where rownum <= 4", {"4"}},
         {"RowNumberOfAnOrderedQuery",
          "select refnum from (" + numbers + "order by refnum desc) where rownum < 4",
          {"9", "8", "7"}},
         {"RowNumberOfTies",
          "select lbnum from (select lbnum, refnum from gulf_mexico_lbi where areacode = '426A' "
          "order by areacode) where rownum <= 2",
          {"100", "100"}},
         {"RowNumberAheadOfTheOrder",
          numbers + "where 2 >= rownum and refnum > 7 order by refnum desc",
          {"9", "8"}},
         {"RowNumberAheadOfDistinct",
          "select distinct areacode from gulf_mexico_lbi b where b.areacode = '700' and rownum < 9",
          {"700"}},
         {"RowNumberOne", "select 1 from gulf_mexico_lbi, plans where rownum = 1", {"1"}},
         {"RowNumberOfAMember",
          "select 'x' from plans where rownum <= 2 union all select 'y' from dual order by 1",
          {"x", "x", "y"}},
         {"RowNumberZero", "select 1 from dual where rownum < 1", {}}});
}

void AddDates(Forms& forms) {
    forms.insert(
        forms.end(),
        {{"SysdateIsNow",
          "select count(*) from dual where sysdate > to_date('2020-01-01', 'YYYY-MM-DD') and "
          "sysdate "
          "< date '9999-12-31'",
          {"1"}},
         {"SysdateHasATime",
          "select length(to_char(sysdate, 'YYYY-MM-DD HH24:MI:SS')) from dual",
          {"19"}},
         {"DaysBetweenDates", "select trunc(sysdate) - trunc(sysdate - 7) from dual", {"7"}},
         {"DatesAsText",
          "select to_date('1/5/2024 3:07', 'MM/DD/YYYY HH24:MI'), date '2024-02-29', timestamp "
          "'2024-12-31 23:59:58' from dual",
          {"2024-01-05 03:07:00|2024-02-29 00:00:00|2024-12-31 23:59:58"}},
         {"DatesInAFormat",
          "select to_char(to_date('05-jan-24', 'DD-MON-RR'), 'DD-Mon-YYYY HH:MI PM'), "
          "to_char(to_date('31.12.1999 17:05', 'DD.MM.YYYY HH24:MI'), 'mm/dd/yy hh12:mi:ss am'), "
          "to_char(date '2024-02-01', 'MON mon YYYYMMDD') from dual",
          {"05-Jan-2024 12:00 AM|12/31/99 05:05:00 pm|FEB feb 20240201"}},
         {"DaysMore",
          "select to_date('20240228', 'YYYYMMDD') + 2, 1 + date '2024-02-28', date '2024-03-01' - "
          "0.5, date '2024-03-01' - 1/24 from dual",
          {"2024-03-01 00:00:00|2024-02-29 00:00:00|2024-02-29 12:00:00|2024-02-29 23:00:00"}},
         {"PartsOfDays",
          "select to_date('2024-03-01 12:00', 'YYYY-MM-DD HH24:MI') - date '2024-02-29' from dual",
          {"1.5"}},
         {"DatesInOrder",
          "select d from (select date '2024-02-01' d from dual union select date '2023-12-31' d "
          "from "
          "dual union select null d from dual) x order by d",
          {"2023-12-31 00:00:00", "2024-02-01 00:00:00", ""}},
         {"DatesCutToTheirUnits",
          "select trunc(d), trunc(d, 'DD'), trunc(d, 'DDD'), trunc(d, 'mm'), trunc(d, 'MON'), "
          "trunc(d, 'Month') from (select timestamp '2024-05-17 13:45:09' d from dual) x",
          {"2024-05-17 00:00:00|2024-05-17 00:00:00|2024-05-17 00:00:00|2024-05-01 00:00:00|"
           "2024-05-01 00:00:00|2024-05-01 00:00:00"}},
         {"DatesCutToTheirYears",
          "select trunc(d, 'YY'), trunc(d, 'YEAR'), trunc(d, 'YYYY') from (select timestamp "
          "'2024-05-17 13:45:09' d from dual) x",
          {"2024-01-01 00:00:00|2024-01-01 00:00:00|2024-01-01 00:00:00"}},
         {"NoTextIsNoDate",
          "select nvl(to_char(to_date('', 'YYYY'), 'YYYY'), 'none') from dual",
          {"none"}},
         {"TimesCutToTheirUnits",
          "select trunc(d, 'HH'), trunc(d, 'HH24'), trunc(d, 'MI') from (select timestamp "
          "'2024-05-17 13:45:09' d from dual) x",
          {"2024-05-17 13:00:00|2024-05-17 13:00:00|2024-05-17 13:45:00"}},
         {"NoNumberInAFormat",
          "select to_char(state_plane_code, '990.00') from gulf_mexico_zone_code where zone_code "
          "= 100",
          {""}},
         {"NumbersInAFormat",
          "select to_char(12, '999'), to_char(-12, '999'), to_char(5, '000'), to_char(0.5, "
          "'9.99'), "
          "to_char(0.5, '0.99'), to_char(1234, '999'), to_char(7, 'FM00'), to_char(0, '999'), "
          "to_char(1.5, 'FM990.00'), to_char(-3.14159, '99.99') from dual",
          {"  12| -12| 005|  .50| 0.50|####|07|   0|1.50| -3.14"}}});
}

/// A chain of `count` pieces; `piece` makes one of a number.
template <typename Piece>
std::string Chain(int count, const std::string& between, Piece piece) {
    std::string chain;
    for (int i = 0; i < count; ++i)
        chain += (i > 0 ? between : "") + piece(std::to_string(i));
    return chain;
}

void AddLongOnes(Forms& forms) {
    const std::string members = Chain(
        1201, " union ", [](const std::string& n) { return "select 'L" + n + "' l from dual"; });
    const std::string conditions =
        Chain(1500, " or ", [](const std::string& n) { return "refnum = 1" + n + "00"; });
    const std::string parts =
        Chain(1500, "||", [](const std::string& n) { return "substr('" + n + "', 1, 1)"; });
    const std::string removed = Chain(700, " minus ", [](const std::string& n) {
        return n == "0" ? std::string("select lbext from gulf_mexico_lbi")
                        : "select '" + n + "' from dual";
    });
    forms.insert(
        forms.end(),
        {{"TwelveHundredMembers", "select count(*) from (" + members + ") x", {"1201"}},
         {"SevenHundredThatAreRemoved", removed, {"A", "B", "X", "a", ""}},
         {"FifteenHundredConditions",
          "select refnum from gulf_mexico_lbi where " + conditions + " or refnum = 7",
          {"7"}},
         {"FifteenHundredPartsOfAText", "select length(" + parts + ") from dual", {"1500"}}});
}

void AddNumbersBesideTexts(Forms& forms) {
    const std::string numbers = "select refnum from gulf_mexico_lbi where ";
    forms.insert(
        forms.end(),
        {{"ATextAboveANumber", numbers + "lbnum > 9 order by 1", {"1", "2", "4", "5", "7"}},
         {"ANumberAboveAText", numbers + "10 > lbnum order by 1", {"3", "6", "9"}},
         {"ATextEqualToANumber", numbers + "lbnum = 9.0", {"6"}},
         {"ATextBetweenNumbers",
          numbers + "lbnum between 5 and 12 order by 1",
          {"1", "2", "6", "9"}},
         {"ATextAmongNumbersThatTheLargestIsOf",
          "select greatest(refnum, '10'), least(refnum, '10') from gulf_mexico_lbi where refnum = "
          "9",
          {"10|9"}},
         {"AReckonedNumberBetweenANumberAndAText",
          numbers + "refnum + 1 between refnum and '5' order by 1",
          {"1", "2", "3", "4"}},
         {"ATextInAListOfNumbers", numbers + "'9' in (refnum, 5)", {"9"}},
         {"AReckonedNumberInAListOfTexts",
          numbers + "refnum + 1 in ('9', '3') order by 1",
          {"2", "8"}},
         {"AReckonedColumnOfAnInnerQueryAboveAText",
          "select n from (select refnum + 1 n from gulf_mexico_lbi) x where n > '8' order by n",
          {"9", "10"}},
         {"ANumberDecodedByTexts",
          "select decode(refnum + 1, '9', 'y', 'n') from gulf_mexico_lbi where refnum in (8, 9) "
          "order by 1",
          {"n", "y"}},
         {"ANumberDecodedByATextThatIsNone",
          "select decode(refnum, 'A', 'x', 'n') from gulf_mexico_lbi where refnum = 9",
          {"n"}},
         {"AWrittenTextInPlaceOfANumber",
          "select zone_code from gulf_mexico_zone_code where nvl(state_plane_code, '0') > 5 order "
          "by 1",
          {"1", "4"}},
         {"AWrittenTextBesideTheOtherChoiceOfANumber",
          "select zone_code from gulf_mexico_zone_code where nvl2(state_plane_code, 9, '3') > 5 "
          "order by 1",
          {"1", "4"}},
         {"AChosenTextAboveANumber",
          numbers + "nvl2(lbext, lbnum, '0') > 9 order by 1",
          {"1", "4", "5"}},
         {"ATextBesideANumberInHaving",
          "select max(refnum) from gulf_mexico_lbi group by lbnum having lbnum > 9 order by 1",
          {"2", "5", "7"}},
         {"ATextNotBetweenNumbers",
          numbers + "lbnum not between 5 and 12 order by 1",
          {"3", "4", "5", "7"}},
         {"ATextInNumbers", numbers + "lbnum in (9, 33) order by 1", {"6", "7"}},
         {"ATextInAQueryOfNumbers",
          numbers + "lbnum in (select refnum from gulf_mexico_lbv) order by 1",
          {"3", "6", "9"}},
         {"ANumberEqualToAText", numbers + "refnum = '7'", {"7"}},
         {"AReckonedNumberEqualToAText", numbers + "length(lbnum) = '3' order by 1", {"4", "5"}},
         {"ANumberColumnBesideATextColumn",
          "select a.refnum from gulf_mexico_lbi a join gulf_mexico_lbi b on a.refnum = b.lbnum "
          "order "
          "by 1",
          {"2", "7", "9"}},
         {"ATextThatIsCutBesideANumber",
          "select stcode from gulf_mexico_connam2 where substr(stcode, 1, 3) < 430 order by 1",
          {"426A", "428B"}},
         {"ReckoningWithATextColumn",
          "select lbnum + 1, -1 * lbnum, abs(lbnum), mod(lbnum, 2) from gulf_mexico_lbi where "
          "refnum "
          "= 6",
          {"10|-9|9|1"}},
         {"SumOfATextColumn",
          "select sum(lbnum), avg(lbnum) from gulf_mexico_lbi where areacode = '426A'",
          {"226|45.2"}},
         {"TextFunctionsOfANumber",
          "select length(refnum), upper(refnum), instr(refnum, 9), lpad(refnum, 1) || "
          "rtrim(refnum) "
          "from gulf_mexico_lbi where refnum = 9",
          {"1|9|1|99"}}});
    // SQLite has no "lpad".
    forms.back() = {"TextFunctionsOfANumber",
                    "select length(refnum), upper(refnum), instr(refnum, 9), 'x' || rtrim(refnum) "
                    "from gulf_mexico_lbi where refnum = 9",
                    {"1|9|1|x9"}};
}

void AddFunctions(Forms& forms) {
    forms.insert(
        forms.end(),
        {{"Replace",
          "select replace('a b c', ' '), replace('abc', 'b', ''), nvl(replace('aaa', 'a'), "
          "'null'), "
          "replace('abc', '', 'x'), nvl(replace('', 'a'), 'null'), replace('abc', 'b', lbext) from "
          "gulf_mexico_lbi where refnum = 2",
          {"abc|ac|null|abc|null|ac"}},
         {"Trim",
          "select nvl(trim('   '), 'null'), trim('  a '), ltrim('xxa', 'x'), nvl(rtrim('xx', 'x'), "
          "'null') from dual",
          {"null|a|a|null"}},
         {"TrimmedBlanksAreNull",
          "select count(*) from dual where trim(' ') is null and not (trim(' ') = 'x')",
          {"0"}},
         {"Concat", "select concat('a', ''), nvl(concat('', ''), 'null') from dual", {"a|null"}},
         {"Nvl2", "select nvl2('', 'a', 'b'), nvl2('x', 'a', 'b') from dual", {"b|a"}},
         {"Quotients",
          "select 6/2, 7/2, 1/4+1, (7-2)/2*2, 10/4||'x', -6/3 from dual",
          {"3|3.5|1.25|5|2.5x|-2"}},
         {"QuotientsOfColumns",
          "select avg(refnum), sum(refnum)/9, max(refnum)/2 from gulf_mexico_lbi where 9/3 = 3",
          {"5|5|4.5"}},
         {"RoundedNumbers",
          "select round(2.567, 2), round(2.5), floor(2.5), ceil(2.5), power(2, 3), mod(7, 2), "
          "trunc(2.7) from dual",
          {"2.57|3|2|3|8|1|2"}},
         {"Choices",
          "select case lbext when 'A' then 'first' when '' then 'never' else 'other' end, case "
          "when "
          "lbext = '' then 'never' when refnum = 1 then lbext end from gulf_mexico_lbi where "
          "refnum "
          "<= 2 order by refnum",
          {"first|A", "other|"}}});
}

void AddOrders(Forms& forms) {
    const std::string leases = "select lease from gulf_mexico_lease where ";
    forms.insert(
        forms.end(),
        {{"ByAColumnBehindAnInnerQuery",
          "select distinct areacode from gulf_mexico_lbi order by (select count(*) from plans) + "
          "length(areacode), areacode desc",
          {"700", "428B", "427C", "426A"}},
         {"AColumnBelowAnother",
          leases + "lessee < operator order by 1",
          {"G01234", "OCS-G 01234"}},
         {"AColumnBetweenOthers",
          leases + "lessee between 'SH' and operator order by 1",
          {"G01234", "OCS-G 01234", "SL 123"}},
         {"ATextBelowOneWithADigitAhead",
          "select lbext from gulf_mexico_lbi where '1'||lbext < '1a' and lbext is not null order "
          "by 1",
          {"A", "B", "X"}},
         {"ATextColumnBelowADigit",
          "select operator from gulf_mexico_lease where operator < '5' order by 1",
          {" SH", "-SH"}},
         {"WrittenTextsWithDigits",
          "select count(*) from dual where '1B' < '1a' and '9' > '10'",
          {"1"}},
         {"LeastAndMost", "select min(lbext), max(lbext) from gulf_mexico_lbi", {"A|a"}},
         {"GreatestAndLeast",
          "select greatest('a', 'B'), least('a', 'B'), nvl(greatest('a', null), 'null'), "
          "greatest(2, "
          "10), least('9', '10'), greatest(lbext, 'B') from gulf_mexico_lbi where refnum = 4",
          {"a|B|null|10|10|a"}},
         {"ALiteralIsNoPlace",
          "select areaname, 1 from gulf_mexico_connam2 where area_abbr = 'GA' order by 2, areaname "
          "desc",
          {"GALVESTON BAY|1", "GALVESTON|1"}},
         {"ALiteralThatIsTheOnlyOrder",
          "select refnum, 5, 'x' from gulf_mexico_lbi where refnum < 3 order by 2, 3, 'y'",
          {"1|5|x", "2|5|x"}},
         {"ThreeLiteralsBesideANumber",
          "select 1 from dual union select 2 from dual union select 3 from dual union select "
          "refnum "
          "from gulf_mexico_lbi where refnum = 9",
          {"1", "2", "3", "9"}},
         {"NullsBesideANumber",
          "select null from dual union select '' from dual union select refnum from "
          "gulf_mexico_lbi "
          "where refnum = 9",
          {"9", ""}},
         {"FractionsBesideTexts",
          "select 'ALL', 1.5 from dual union select areacode, lbnum from gulf_mexico_lbi where "
          "refnum "
          "= 6 order by 1",
          {"428B|9", "ALL|1.5"}},
         {"ATextColumnOfAnInnerQuery",
          "select e from (select lbext e from gulf_mexico_lbi) x where e < 'a' order by e",
          {"A", "B", "X"}}});
}

Forms MakeForms() {
    Forms forms;
    AddNamedQueries(forms);
    AddCasts(forms);
    AddJoins(forms);
    AddBounds(forms);
    AddDates(forms);
    AddLongOnes(forms);
    AddNumbersBesideTexts(forms);
    AddFunctions(forms);
    AddOrders(forms);
    return forms;
}

}  // namespace

const std::vector<DialectForm>& HostQueries() {
    static const Forms forms = MakeForms();
    return forms;
}

const std::vector<RefusedForm>& RefusedForms() {
    static const std::vector<RefusedForm> forms = {
        {"select row_number() over (order by refnum) from plans, gulf_mexico_lbi",
         "at character 26: (order by refnum)"},
        {"select refnum from gulf_mexico_lbi limit 1", "at character 42: 1"},
        {"select refnum from gulf_mexico_lbi order by 1 limit 1", "at character 47: limit 1"},
        {"select * from plans, gulf_mexico_lbi natural join gulf_mexico_lbv",
         "at character 38: natural join"},
        {"select cast('2024-01-01' as date) from plans", "at character 29: date", false},
        {"select sum(refnum) from gulf_mexico_lbi, plans where rownum < 3",
         "at character 54: rownum < 3", false, false},
        {"select area1 || current_date from plans", "at character 17: current_date"},
        {"select to_char(date '2024-01-01', 'Q') from dual", "at character 35: 'Q'"},
        {"select to_date('2024-02-30', 'YYYY-MM-DD') from dual", "at character 16: '2024-02-30'"},
        {"select date '2024-01-01' * 2 from dual", "at character 13: '2024-01-01' * 2"},
        {"select area1 collate nocase from plans", "at character 22: nocase", true, false},
        {"select area1::text from plans", "at character 13: ::text", false},
        {"select 1 from plans where area1 = ? ", "at character 35: ?", true, false},
        {"values (1)", "at character 1: values (1)"},
        {"select $$x$$ from plans", "at character 8: $$x$$", false},
        {"select area1 from plans where area1 ilike '7%'", "at character 37: ilike", false},
        {"select area1 from plans where area1 glob '7*'", "at character 37: glob", true, false},
        {"pragma table_info(plans)", "at character 1: pragma", true, false}};
    return forms;
}

}  // namespace kv::test
