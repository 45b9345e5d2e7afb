#include <algorithm>
#include <array>
#include <string>
#include <string_view>

#include "base/text.h"
#include "services/kvdbkvn/dialect/printer.h"
#include "services/kvdbkvn/dialect/refusals.h"

/// Dates. SQLite has none: they are texts in the `kWholeDateFormat`.
namespace kv::dialect {
namespace {

std::string_view WithoutQuotes(std::string_view quoted) {
    return quoted.substr(1, quoted.size() - 2);
}

/// Some part of the statement's text that the expression was read from.
std::string_view PlaceOf(const Expr& expr) {
    if (!expr.names.empty()) return expr.names.front();
    if (!expr.text.empty()) return expr.text;
    for (const Expr* item : expr.items)
        if (const std::string_view place = item ? PlaceOf(*item) : ""; !place.empty()) return place;
    return {};
}

bool IsLower(char ch) {
    return ch >= 'a' && ch <= 'z';
}

/// The letters of a month's name in the case of the format's.
std::string MonthNamesAs(std::string_view format) {
    std::string names = kMonthNames;
    if (IsLower(format[0])) return ToLower(names);
    if (!IsLower(format[1])) return names;
    for (std::size_t i = 0; i < names.size(); ++i)
        if (i % format.size() != 0) names[i] = ToLower(names[i]);
    return names;
}

/// What `strftime` calls a part; empty for those that it does not know.
std::string_view LetterOf(DateField field) {
    switch (field) {
        case DateField::kYear:
            return "%Y";
        case DateField::kMonth:
            return "%m";
        case DateField::kDay:
            return "%d";
        case DateField::kHour:
            return "%H";
        case DateField::kMinute:
            return "%M";
        case DateField::kSecond:
            return "%S";
        default:
            return {};
    }
}

/// What a date is cut to, and how each engine says it.
struct DateUnit {
    std::string_view name;
    std::string_view postgres;
    std::string_view sqlite;
};

constexpr std::string_view kStartOfDay = "%Y-%m-%d 00:00:00";
constexpr std::array<DateUnit, 11> kDateUnits = {{{"dd", "day", kStartOfDay},
                                                  {"ddd", "day", kStartOfDay},
                                                  {"hh", "hour", "%Y-%m-%d %H:00:00"},
                                                  {"hh24", "hour", "%Y-%m-%d %H:00:00"},
                                                  {"mi", "minute", "%Y-%m-%d %H:%M:00"},
                                                  {"mm", "month", "%Y-%m-01 00:00:00"},
                                                  {"mon", "month", "%Y-%m-01 00:00:00"},
                                                  {"month", "month", "%Y-%m-01 00:00:00"},
                                                  {"yy", "year", "%Y-01-01 00:00:00"},
                                                  {"year", "year", "%Y-01-01 00:00:00"},
                                                  {"yyyy", "year", "%Y-01-01 00:00:00"}}};

/// Whether digits stand beside digits.
bool AreDigits(const DatePart& part, const DatePart& next) {
    const auto isText = [](const DatePart& each) {
        return each.field == DateField::kSigns || each.field == DateField::kMonthName ||
               each.field == DateField::kHalfDay;
    };
    return !isText(part) && !isText(next);
}

/// The format as PostgreSQL knows it.
std::string PostgresFormat(const DateFormat& format) {
    std::string text;
    for (const DatePart& part : format) {
        if (part.field == DateField::kYear)
            text += "YYYY";
        else if (part.field == DateField::kYearOfCentury || part.field == DateField::kYearNearby)
            text += "YY";
        else
            text += part.text;
    }
    return text;
}

}  // namespace

void Printer::PutDate(const Expr& date) {
    const std::string_view text = WithoutQuotes(date.text);
    PutDateText(*DateOf(text, *ReadDateFormat(kWholeDateFormat)));
}

void Printer::PutDateText(const std::string& date) {
    Put((ForPostgres() ? "timestamp '" : "'") + date + "'");
}

void Printer::PutSysdate(const Expr&) {
    Put(ForPostgres() ? "date_trunc('second', cast(statement_timestamp() as timestamp))"
                      : "datetime('now', 'localtime')");
}

void Printer::PutToDate(const Expr& call) {
    const Expr& text = *call.items[0];
    const Expr& written = *call.items[1];
    const std::string_view place = PlaceOf(call);
    if (text.kind == ExprKind::kNull)
        return Put(ForPostgres() ? "cast(null as timestamp)" : "null");
    if (written.kind != ExprKind::kText) throw Unreadable{place};
    const auto format = ReadDateFormat(WithoutQuotes(written.text));
    if (!format) throw Unreadable{written.text};
    if (text.kind == ExprKind::kText) {
        const auto date = DateOf(WithoutQuotes(text.text), *format);
        if (!date) throw Unreadable{text.text};
        return PutDateText(*date);
    }
    const bool bySqlite = !ForPostgres() && context_.hasOwnFunctions;
    if (!ForPostgres() && !bySqlite) throw Unreadable{place};
    if (bySqlite) {
        Put("kv_to_date(");
        PutText(text);
        Put(", ");
        Put(written.text);
        return Put(")");
    }
    PutInCentury(*format, text, [&] {
        Put("cast(to_timestamp(");
        PutText(text);
        Put(", '" + PostgresFormat(*format) + "') as timestamp)");
    });
}

/// PostgreSQL takes years of two digits as those from 1970 to 2069, and years of four digits, which
/// may stand where signs end them, as they are.
void Printer::PutInCentury(const DateFormat& format, const Expr& text,
                           const std::function<void()>& putDate) {
    const auto has = [&](DateField field) {
        return std::ranges::find(format, field, &DatePart::field) != format.end();
    };
    const bool nearby = has(DateField::kYearNearby);
    if (!nearby && !has(DateField::kYearOfCentury)) return putDate();
    Put("case when ");
    putDate();
    Put(nearby ? " >= timestamp '2050-01-01'" : " < timestamp '2000-01-01'");
    if (std::ranges::adjacent_find(format, AreDigits) == format.end()) {
        Put(" and ");
        PutText(text);
        Put(" !~ '(^|[^0-9])[0-9]{4}([^0-9]|$)'");
    }
    Put(" then ");
    putDate();
    Put(nearby ? " - interval '100 years' else " : " + interval '100 years' else ");
    putDate();
    Put(" end");
}

void Printer::PutTrunc(const Expr& call) {
    if (TypeOf(*call.items.front()) == Type::kDate) return PutTruncatedDate(call);
    PutTidied([&] { PutNumericOf(call, 1); });
}

void Printer::PutTruncatedDate(const Expr& call) {
    std::string_view unit = "dd";
    if (call.items.size() > 1) {
        const Expr& written = *call.items[1];
        if (written.kind != ExprKind::kText) throw Unreadable{PlaceOf(call)};
        unit = WithoutQuotes(written.text);
    }
    const auto row = std::ranges::find_if(
        kDateUnits, [&](const DateUnit& each) { return EqualsNoCase(each.name, unit); });
    if (row == kDateUnits.end()) throw Unreadable{call.items[1]->text};
    Put(ForPostgres() ? "date_trunc('" : "strftime('");
    Put(ForPostgres() ? row->postgres : row->sqlite);
    Put(ForPostgres() ? "', cast(" : "', ");
    PutExpr(*call.items.front());
    Put(ForPostgres() ? " as timestamp))" : ")");
}

void Printer::PutDateToChar(const Expr& date, const DateFormat& format) {
    if (ForPostgres()) {
        Put("to_char(");
        PutExpr(date);
        return Put(", '" + PostgresFormat(format) + "')");
    }
    const auto putPart = [&](std::string_view letters) {
        Put("strftime('" + std::string(letters) + "', ");
        PutExpr(date);
        Put(")");
    };
    for (const DatePart& part : format) {
        if (&part != &format.front()) Put(" || ");
        switch (part.field) {
            case DateField::kSigns:
                Put("'" + std::string(part.text) + "'");
                break;
            case DateField::kYearOfCentury:
            case DateField::kYearNearby:
                Put("substr(");
                putPart("%Y");
                Put(", 3)");
                break;
            case DateField::kMonthName:
                Put("substr('" + MonthNamesAs(part.text) + "', ");
                putPart("%m");
                Put(" * 3 - 2, 3)");
                break;
            case DateField::kHourOfHalfDay:
                Put("printf('%02d', (");
                putPart("%H");
                Put(" + 11) % 12 + 1)");
                break;
            case DateField::kHalfDay:
                Put("case when ");
                putPart("%H");
                Put(IsLower(part.text[0]) ? " < '12' then 'am' else 'pm' end"
                                          : " < '12' then 'AM' else 'PM' end");
                break;
            default:
                putPart(LetterOf(part.field));
        }
    }
}

/// Dates and days in a sum.
void Printer::PutDateArithmetic(const Expr& expr) {
    const auto isDate = [](const Expr* item) { return TypeOf(*item) == Type::kDate; };
    const auto date = std::ranges::find_if(expr.items, isDate);
    const auto at = static_cast<std::size_t>(date - expr.items.begin());
    const auto dates = std::ranges::count_if(expr.items, isDate);
    const bool ofSums = expr.signs.front() == '+' || expr.signs.front() == '-';
    const bool added = at == 0 || expr.signs[at - 1] == '+';
    if (ofSums && dates == 2 && expr.items.size() == 2 && expr.signs.front() == '-') {
        return PutTidied([&] {
            Put(ForPostgres() ? "extract(epoch from (" : "(strftime('%s', ");
            PutExpr(*expr.items[0], Rank::kPrimary);
            Put(ForPostgres() ? " - " : ") - strftime('%s', ");
            PutExpr(*expr.items[1], Rank::kPrimary);
            Put(ForPostgres() ? ")) / 86400" : ")) / 86400.0");
        });
    }
    if (!ofSums || dates != 1 || !added) throw Unreadable{PlaceOf(expr)};
    std::function<void()> put = [&] { PutExpr(**date, Rank::kPrimary); };
    for (std::size_t i = 0; i < expr.items.size(); ++i) {
        if (i == at) continue;
        const char sign = i == 0 ? '+' : expr.signs[i - 1];
        put = [this, put, sign, days = expr.items[i]] { PutDays(*days, sign, put); };
    }
    put();
}

void Printer::PutDays(const Expr& days, char sign, const std::function<void()>& putDate) {
    const bool minus = sign == '-';
    Put(ForPostgres() ? "cast(" : "datetime(");
    putDate();
    if (ForPostgres())
        Put(minus ? " - (" : " + (");
    else
        Put(minus ? ", (-(" : ", ((");
    PutOperand(days, Rank::kAny);
    Put(ForPostgres() ? ") * interval '1 day' as timestamp(0))" : ")) || ' days')");
}

}  // namespace kv::dialect
