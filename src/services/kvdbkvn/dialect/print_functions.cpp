#include <algorithm>
#include <array>
#include <charconv>
#include <string>

#include "base/text.h"
#include "services/kvdbkvn/dialect/lease_sort.h"
#include "services/kvdbkvn/dialect/printer.h"
#include "services/kvdbkvn/dialect/refusals.h"
#include "services/kvdbkvn/dialect/type_names.h"

namespace kv::dialect {
namespace {

/// Of a written integer that is small enough to reckon with.
std::optional<int> IntegerOf(const Expr& expr) {
    if (!IsInteger(expr)) return std::nullopt;
    const bool negative = expr.kind == ExprKind::kNegate;
    const std::string_view digits = negative ? expr.items.front()->text : expr.text;
    static constexpr std::size_t kMostDigits = 8;
    if (digits.size() > kMostDigits) return std::nullopt;
    int value = 0;
    std::from_chars(digits.data(), digits.data() + digits.size(), value);
    return negative ? -value : value;
}

/// A format of digits: "9" where zeros ahead of the number are left out, "0" from where they stay.
struct NumberFormat {
    bool fills = false;  ///< "FM": no blanks ahead
    std::size_t digits = 0;
    std::size_t fewestDigits = 0;
    bool hasPoint = false;
    std::size_t decimals = 0;

    static std::optional<NumberFormat> Read(std::string_view format) {
        NumberFormat read;
        read.fills = StartsWithNoCase(format, "FM");
        if (read.fills) format.remove_prefix(2);
        const std::size_t point = std::min(format.find('.'), format.size());
        const std::string_view whole = format.substr(0, point);
        const std::string_view fraction = format.substr(std::min(point + 1, format.size()));
        // With "FM" the zeros at the end go, too, where a "9" stands.
        const std::string_view known = read.fills ? "0" : "09";
        if (whole.empty() || whole.find_first_not_of("09") != std::string_view::npos ||
            fraction.find_first_not_of(known) != std::string_view::npos)
            return std::nullopt;
        read.digits = whole.size();
        read.fewestDigits = whole.size() - std::min(whole.find('0'), whole.size());
        read.hasPoint = point < format.size();
        read.decimals = fraction.size();
        if (read.hasPoint && read.decimals == 0) return std::nullopt;
        return read;
    }
};

bool IsKnown(const Expr& search) {
    return IsLiteral(search) && search.kind != ExprKind::kNull;
}

}  // namespace

/// A function that the engines have under another form.
struct Printer::Function {
    std::string_view name;
    std::size_t fewest;
    std::size_t most;
    void (Printer::*put)(const Expr& call);
};

const Printer::Function* Printer::FindFunction(const Expr& call) {
    static constexpr std::size_t kAny = static_cast<std::size_t>(-1);
    static constexpr std::array<Function, 36> kFunctions = {
        {{"abs", 1, 1, &Printer::PutNumberOf},
         {"avg", 1, 1, &Printer::PutTidiedNumberOf},
         {"ceil", 1, 1, &Printer::PutTidiedNumberOf},
         {"concat", 2, 2, &Printer::PutConcatOf},
         {"decode", 3, kAny, &Printer::PutDecode},
         {"floor", 1, 1, &Printer::PutTidiedNumberOf},
         {"greatest", 1, kAny, &Printer::PutLargestOrSmallest},
         {"initcap", 1, 1, &Printer::PutTextOf},
         {"instr", 2, 2, &Printer::PutInstr},
         {"least", 1, kAny, &Printer::PutLargestOrSmallest},
         {"length", 1, 1, &Printer::PutTextOf},
         {"lesort", 1, 1, &Printer::PutLeaseSort},
         {"lower", 1, 1, &Printer::PutTextOf},
         {"lpad", 2, 3, &Printer::PutPadded},
         {"ltrim", 1, 2, &Printer::PutTrimmed},
         {"max", 1, 1, &Printer::PutExtreme},
         {"min", 1, 1, &Printer::PutExtreme},
         {"mod", 2, 2, &Printer::PutMod},
         {"nvl", 2, 2, &Printer::PutNvl},
         {"nvl2", 3, 3, &Printer::PutNvl2},
         {"power", 2, 2, &Printer::PutTidiedNumberOf},
         {"regexp_replace", 2, 4, &Printer::PutRegexpReplace},
         {"replace", 2, 3, &Printer::PutReplace},
         {"round", 1, 2, &Printer::PutRound},
         {"rpad", 2, 3, &Printer::PutPadded},
         {"rtrim", 1, 2, &Printer::PutTrimmed},
         {"sqrt", 1, 1, &Printer::PutTidiedNumberOf},
         {"substr", 2, 3, &Printer::PutSubstr},
         {"sum", 1, 1, &Printer::PutTidiedNumberOf},
         {"sysdate", 0, 0, &Printer::PutSysdate},
         {"to_char", 1, 2, &Printer::PutToChar},
         {"to_date", 2, 2, &Printer::PutToDate},
         {"to_number", 1, 1, &Printer::PutToNumber},
         {"trim", 1, 1, &Printer::PutTrimmed},
         {"trunc", 1, 2, &Printer::PutTrunc},
         {"upper", 1, 1, &Printer::PutTextOf}}};
    const auto row = std::ranges::find_if(kFunctions, [&](const Function& function) {
        return IsCallOf(call, function.name) && call.items.size() >= function.fewest &&
               call.items.size() <= function.most;
    });
    return row == kFunctions.end() ? nullptr : &*row;
}

void Printer::PutCall(const Expr& call) {
    if (const Function* function = FindFunction(call)) return (this->*function->put)(call);
    PutPlainCall(call, [&](const Expr& item) { PutExpr(item); });
}

void Printer::PutPlainCall(const Expr& call, const std::function<void(const Expr&)>& putArgument) {
    PutNames(call.names);
    Put(call.distinct ? "(distinct " : "(");
    PutList(call.items, [&](const Expr* item) { putArgument(*item); });
    Put(")");
}

/// A function of numbers takes texts as numbers.
void Printer::PutNumberOf(const Expr& call) {
    PutPlainCall(call, [&](const Expr& item) { PutOperand(item, Rank::kAny); });
}

/// PostgreSQL has some functions for its type numeric alone: so many arguments are taken as that.
void Printer::PutNumericOf(const Expr& call, std::size_t numeric) {
    if (!ForPostgres()) return PutNumberOf(call);
    std::size_t left = numeric;
    PutPlainCall(call, [&](const Expr& item) {
        if (left == 0) return PutOperand(item, Rank::kAny);
        --left;
        Put("cast(");
        PutOperand(item, Rank::kAny);
        Put(" as numeric)");
    });
}

void Printer::PutTidiedNumberOf(const Expr& call) {
    PutTidied([&] { PutNumberOf(call); });
}

/// A function of texts takes a number as its text.
void Printer::PutTextOf(const Expr& call) {
    PutPlainCall(call, [&](const Expr& item) {
        const bool cast = &item == call.items.front() && TypeOf(item) == Type::kNumber;
        cast ? PutText(item) : PutExpr(item);
    });
}

void Printer::PutInstr(const Expr& call) {
    Put(ForPostgres() ? "strpos(" : "instr(");
    PutList(call.items, [&](const Expr* item) { PutText(*item); });
    Put(")");
}

void Printer::PutConcatOf(const Expr& call) {
    Expr concat;
    concat.kind = ExprKind::kConcat;
    concat.items = call.items;
    PutConcat(concat, true);
}

/// What is left may be nothing.
void Printer::PutTrimmed(const Expr& call) {
    Put("nullif(");
    PutTextOf(call);
    Put(", '')");
}

/// To no length is null.
void Printer::PutPadded(const Expr& call) {
    const std::optional<int> length = IntegerOf(*call.items[1]);
    if (length && *length > 0) return PutTextOf(call);
    PutTrimmed(call);
}

/// To tens and hundreds SQLite does not round by itself.
void Printer::PutRound(const Expr& call) {
    if (TypeOf(*call.items.front()) == Type::kDate) throw Unreadable{call.names.front()};
    const int digits = call.items.size() > 1 ? IntegerOf(*call.items[1]).value_or(0) : 0;
    if (ForPostgres() || digits >= 0) return PutTidied([&] { PutNumericOf(call, 1); });
    const std::string unit = "1e" + std::to_string(-digits);
    PutTidied([&] {
        Put("(round(");
        PutOperand(*call.items.front(), Rank::kSign);
        Put(" / " + unit + ") * " + unit + ")");
    });
}

/// What nothing divides is its own remainder.
void Printer::PutMod(const Expr& call) {
    const Expr& divisor = *call.items[1];
    const std::optional<int> written = IntegerOf(divisor);
    if (written && *written != 0) return PutTidied([&] { PutNumericOf(call, 2); });
    PutTidied([&] {
        Put("case ");
        PutOperand(divisor, Rank::kSum);
        Put(" when 0 then ");
        PutOperand(*call.items[0], Rank::kAny);
        Put(" else ");
        PutNumericOf(call, 2);
        Put(" end");
    });
}

/// Each place is replaced; by what may be nothing.
void Printer::PutRegexpReplace(const Expr& call) {
    if (!ForPostgres()) return PutPlainCall(call, [&](const Expr& item) { PutExpr(item); });
    Put("nullif(regexp_replace(");
    PutText(*call.items[0]);
    Put(", ");
    PutText(*call.items[1]);
    Put(", coalesce(");
    if (call.items.size() > 2)
        PutText(*call.items[2]);
    else
        Put("''");
    Put(", ''), ");
    if (call.items.size() > 3) {
        PutInteger(*call.items[3]);
        return Put(", 0), '')");
    }
    Put("'g'), '')");
}

/// What is to be replaced, and by what, may be nothing.
void Printer::PutReplace(const Expr& call) {
    Put("nullif(replace(");
    PutText(*call.items[0]);
    for (std::size_t i = 1; i < 3; ++i) {
        Put(", ");
        if (i == call.items.size() || call.items[i]->kind == ExprKind::kNull) {
            Put("''");
            continue;
        }
        const bool known = call.items[i]->kind == ExprKind::kText;
        if (!known) Put("coalesce(");
        PutText(*call.items[i]);
        if (!known) Put(", '')");
    }
    Put("), '')");
}

void Printer::PutExtreme(const Expr& call) {
    PutPlainCall(call, [&](const Expr& item) { PutSide(item, call.items, true); });
}

/// Null beside others makes the result null. The others are taken as what the first one is.
void Printer::PutLargestOrSmallest(const Expr& call) {
    const bool largest = IsCallOf(call, "greatest");
    const bool ofTexts = TypeOf(*call.items.front()) == Type::kText;
    const auto putItem = [&](const Expr* item) {
        if (!ofTexts) return PutSide(*item, call.items, true);
        PutText(*item);
        if (ForPostgres()) Put(" collate \"C\"");
    };
    if (!ForPostgres()) {
        if (call.items.size() == 1) return PutExpr(*call.items.front());
        Put(largest ? "max(" : "min(");
        PutList(call.items, putItem);
        return Put(")");
    }
    Put("case when ");
    for (const Expr* item : call.items) {
        if (item != call.items.front()) Put(" and ");
        PutExpr(*item, Rank::kSum);
        Put(" is not null");
    }
    Put(largest ? " then greatest(" : " then least(");
    PutList(call.items, putItem);
    Put(") end");
}

/// Here, and nowhere else, null equals null.
void Printer::PutDecode(const Expr& call) {
    const std::vector<Expr*>& items = call.items;
    const std::size_t pairsEnd = 1 + (items.size() - 1) / 2 * 2;
    bool simple = true;
    for (std::size_t i = 1; i < pairsEnd; i += 2)
        simple = simple && IsKnown(*items[i]);
    const Type first = TypeOf(*items[2]);

    Put(simple ? "case " : "case");
    if (simple) PutExpr(*items[0]);
    for (std::size_t i = 1; i < pairsEnd; i += 2) {
        Put(" when ");
        if (simple)
            PutDecodeSearch(*items[0], *items[i]);
        else
            PutDecodeTest(*items[0], *items[i]);
        Put(" then ");
        PutDecodeResult(*items[i + 1], first);
    }
    if (pairsEnd < items.size()) {
        Put(" else ");
        PutDecodeResult(*items[pairsEnd], first);
    }
    Put(" end");
}

void Printer::PutDecodeTest(const Expr& value, const Expr& search) {
    PutExpr(value, Rank::kSum);
    if (search.kind == ExprKind::kNull) return Put(" is null");
    if (IsKnown(search))
        Put(" = ");
    else
        Put(ForPostgres() ? " is not distinct from " : " is ");
    PutDecodeSearch(value, search);
}

/// A number that a text, or on PostgreSQL a column, is compared with is left for the engine to take
/// as what the value is.
void Printer::PutDecodeSearch(const Expr& value, const Expr& search) {
    const Type type = TypeOf(value);
    // A number is no text that reads as none.
    const bool never = search.kind == ExprKind::kText && TypeOf(search) == Type::kText;
    if (type == Type::kNumber) return never ? Put("null") : PutBesideNumber(search);
    const bool adapts = type == Type::kText || (ForPostgres() && type == Type::kUnknown);
    if (adapts && IsLiteral(search)) return PutAsTextLiteral(search);
    PutExpr(search, Rank::kSum);
}

/// A written text that SQLite would keep as one.
void Printer::PutBesideNumber(const Expr& expr) {
    const bool isText = TypeOf(expr) == Type::kNumberAsText;
    isText && !ForPostgres() ? PutAsNumber(expr) : PutExpr(expr, Rank::kSum);
}

/// What is chosen in place of a value of that type.
void Printer::PutChoice(const Expr& choice, Type type) {
    type == Type::kNumber ? PutBesideNumber(choice) : PutExpr(choice);
}

/// All results are of the first one's type.
void Printer::PutDecodeResult(const Expr& result, Type first) {
    const Type type = TypeOf(result);
    if (first != Type::kText || (type != Type::kNumber && type != Type::kUnknown))
        return PutExpr(result);
    Put("cast(");
    PutExpr(result);
    Put(" as text)");
}

void Printer::PutNvl(const Expr& call) {
    const Expr& value = *call.items[0];
    const Expr& instead = *call.items[1];
    Put("coalesce(");
    PutExpr(value);
    Put(", ");
    const Type type = TypeOf(value);
    if (ForPostgres() && type != Type::kNumber)
        PutAsTextLiteral(instead);
    else
        PutChoice(instead, type);
    Put(")");
}

void Printer::PutNvl2(const Expr& call) {
    Put("case when ");
    PutExpr(*call.items[0], Rank::kSum);
    Put(" is not null then ");
    PutExpr(*call.items[1]);
    Put(" else ");
    PutChoice(*call.items[2], TypeOf(*call.items[1]));
    Put(" end");
}

/// A written number in quotes, so that the engine takes it as the type that is wanted; anything
/// else as it is.
void Printer::PutAsTextLiteral(const Expr& expr) {
    const bool quote = IsLiteral(expr) && TypeOf(expr) == Type::kNumber;
    if (quote) Put("'");
    PutExpr(expr);
    if (quote) Put("'");
}

/// Counts from 1, where 0 means 1; a negative start counts from the end. What lies outside is null.
void Printer::PutSubstr(const Expr& call) {
    const std::optional<int> start = IntegerOf(*call.items[1]);
    const bool hasLength = call.items.size() > 2;
    const std::optional<int> length = hasLength ? IntegerOf(*call.items[2]) : std::nullopt;
    if (length && *length < 1) return Put("null");
    if (!start) return PutSubstrAnywhere(call);

    const bool takesSome = !hasLength || length.has_value();
    const bool guard = *start > 1 || !takesSome;
    if (guard) Put("nullif(");
    if (*start < 0) {
        const auto fromEnd = static_cast<std::size_t>(-*start);
        Put("case when length(");
        PutText(*call.items[0]);
        Put(") >= ");
        Put(fromEnd);
        Put(" then ");
        PutSubstrFrom(call, [&] {
            Put("length(");
            PutText(*call.items[0]);
            Put(") - ");
            Put(fromEnd - 1);
        });
        Put(" end");
    } else {
        PutSubstrFrom(call, [&] { Put(static_cast<std::size_t>(std::max(*start, 1))); });
    }
    if (guard) Put(", '')");
}

void Printer::PutSubstrFrom(const Expr& call, const std::function<void()>& putStart) {
    Put("substr(");
    PutText(*call.items[0]);
    Put(", ");
    putStart();
    if (call.items.size() > 2) {
        Put(", ");
        const Expr& length = *call.items[2];
        if (IntegerOf(length)) {
            PutExpr(length);
        } else {
            Put(ForPostgres() ? "greatest(" : "max(");
            PutInteger(length);
            Put(", 0)");
        }
    }
    Put(")");
}

void Printer::PutSubstrAnywhere(const Expr& call) {
    const Expr& start = *call.items[1];
    Put("nullif(case when ");
    PutInteger(start);
    Put(" > 0 then ");
    PutSubstrFrom(call, [&] { PutInteger(start); });
    Put(" when ");
    PutInteger(start);
    Put(" = 0 then ");
    PutSubstrFrom(call, [&] { Put("1"); });
    Put(" when length(");
    PutText(*call.items[0]);
    Put(") >= -");
    PutInteger(start);
    Put(" then ");
    PutSubstrFrom(call, [&] {
        Put("length(");
        PutText(*call.items[0]);
        Put(") + ");
        PutInteger(start);
        Put(" + 1");
    });
    Put(" end, '')");
}

void Printer::PutInteger(const Expr& expr) {
    Put("cast(");
    PutExpr(expr);
    Put(" as integer)");
}

void Printer::PutToChar(const Expr& call) {
    const Expr& value = *call.items.front();
    if (call.items.size() == 1) {
        Put("cast(");
        PutExpr(value);
        return Put(" as text)");
    }
    const Expr& written = *call.items[1];
    if (written.kind != ExprKind::kText) throw Unreadable{call.names.front()};
    const std::string_view format = written.text.substr(1, written.text.size() - 2);
    const auto date = ReadDateFormat(format);
    const bool isNumber = NumberFormat::Read(format).has_value();
    if (!isNumber && !date) throw Unreadable{written.text};
    if (isNumber)
        PutNumberToChar(value, format);
    else
        PutDateToChar(value, *date);
}

/// Ahead of the number stands its sign, or a blank, and as many blanks as the format has digits
/// more. What needs more digits than it has is all number signs.
void Printer::PutNumberToChar(const Expr& number, std::string_view format) {
    const NumberFormat f = *NumberFormat::Read(format);
    const std::size_t behindPoint = f.decimals + (f.hasPoint ? 1 : 0);
    const std::string tooLong(f.digits + behindPoint + 1, '#');
    if (ForPostgres()) {
        const auto put = [&] {
            Put("to_char(");
            PutOperand(number, Rank::kAny);
            Put(", '" + std::string(format) + "')");
        };
        Put("case when strpos(");
        put();
        Put(", '#') > 0 then '" + tooLong + "' else ");
        put();
        return Put(" end");
    }
    const std::string decimals = std::to_string(f.decimals);
    const std::string width = std::to_string(f.digits + behindPoint);
    const auto putRounded = [&] {
        Put("round(");
        PutOperand(number, Rank::kAny);
        Put(", " + decimals + ")");
    };
    const auto putDigits = [&] {
        if (f.fewestDigits == 0 && f.decimals > 0) Put("ltrim(");
        Put("printf('%0" + std::to_string(std::max<std::size_t>(f.fewestDigits, 1) + behindPoint) +
            "." + decimals + "f', abs(");
        putRounded();
        Put("))");
        if (f.fewestDigits == 0 && f.decimals > 0) Put(", '0')");
    };
    Put("case when ");
    putRounded();
    Put(" is null then null when length(");
    putDigits();
    Put(") > " + width + " then '" + tooLong + "' else ");
    if (!f.fills) Put("substr('" + std::string(f.digits + behindPoint + 1, ' ') + "' || ");
    Put("case when ");
    putRounded();
    Put(" < 0 then '-' else '' end || ");
    putDigits();
    if (!f.fills) Put(", -" + std::to_string(f.digits + behindPoint + 1) + ")");
    Put(" end");
}

void Printer::PutToNumber(const Expr& call) {
    PutAsNumber(*call.items.front());
}

/// A text that is no number is an error, but for a SQLite that knows no function of ours: that one
/// takes what number the text begins with, or 0.
void Printer::PutAsNumber(const Expr& expr) {
    const bool checks = !ForPostgres() && context_.hasOwnFunctions;
    Put(checks ? "cast(kv_number(" : "cast(");
    PutExpr(expr);
    Put(checks ? ") as numeric)" : " as numeric)");
}

/// Cut and rounded as the sizes say.
void Printer::PutCast(const Expr& cast) {
    const Expr& value = *cast.items.front();
    const TypeName type = FindTypeName(cast.text);
    const bool sized = type.sized && !cast.names.empty();
    if (ForPostgres()) {
        Put("cast(");
        PutExpr(value);
        Put(" as ");
        Put(type.postgres);
        if (sized) {
            Put("(");
            PutList(cast.names, [&](std::string_view size) { Put(size); });
            Put(")");
        }
        return Put(")");
    }
    if (type.type == Type::kText) {
        if (sized) Put("substr(");
        Put("cast(");
        PutExpr(value);
        Put(" as text)");
        if (!sized) return;
        // Those of a fixed length are filled up with blanks.
        if (type.sqlite == "char")
            Put(" || printf('%" + std::string(cast.names.front()) + "s', '')");
        Put(", 1, ");
        Put(cast.names.front());
        return Put(")");
    }
    const bool whole = type.sqlite.ends_with("(38)") || cast.names.size() == 1;
    if (type.sqlite == "real" || (!whole && !sized)) {
        if (TypeOf(value) == Type::kNumber) return PutExpr(value, Rank::kPrimary);
        return PutAsNumber(value);
    }
    PutTidied([&] {
        Put("round(");
        PutOperand(value, Rank::kAny);
        if (!whole) {
            Put(", ");
            Put(cast.names[1]);
        }
        Put(")");
    });
}

/// The text of `LeaseSortKey`, by the engine's own means where it has no function for it.
void Printer::PutLeaseSort(const Expr& call) {
    const Expr& lease = *call.items.front();
    const std::string digits = std::to_string(kLeaseDigits);
    const std::string zeros(kLeaseDigits, '0');
    if (ForPostgres()) {
        Put("regexp_replace(regexp_replace(");
        PutText(lease);
        Put(", '([0-9]+)', '" + zeros + "\\1', 'g'), '0*([0-9]{" + digits + ",})', '\\1', 'g')");
        return;
    }
    if (context_.hasOwnFunctions) {
        Put("lesort(");
        PutExpr(lease);
        return Put(")");
    }
    // Byte by byte: `number` gathers digits, and goes into the key when something else comes.
    const std::string filled = "case when number = '' then '' when length(ltrim(number, '0')) > " +
                               digits + " then ltrim(number, '0') else substr('" + zeros +
                               "' || number, -" + digits + ") end";
    Put("(with recursive kv_key(done, number, rest) as (select '', '', cast(");
    PutExpr(lease);
    Put(" as text) union all select case when substr(rest, 1, 1) between '0' and '9' then done "
        "else done || " +
        filled +
        " || substr(rest, 1, 1) end, case when substr(rest, 1, 1) "
        "between '0' and '9' then number || substr(rest, 1, 1) else '' end, substr(rest, 2) "
        "from kv_key where rest <> '') select done || " +
        filled + " from kv_key where rest = '')");
}

}  // namespace kv::dialect
