#include <algorithm>
#include <array>
#include <charconv>
#include <string>

#include "services/kvdbkvn/dialect/lease_sort.h"
#include "services/kvdbkvn/dialect/printer.h"

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
    static constexpr std::array<Function, 6> kFunctions = {
        {{"decode", 3, kAny, &Printer::PutDecode},
         {"lesort", 1, 1, &Printer::PutLeaseSort},
         {"nvl", 2, 2, &Printer::PutNvl},
         {"substr", 2, 3, &Printer::PutSubstr},
         {"to_char", 1, 1, &Printer::PutToChar},
         {"to_number", 1, 1, &Printer::PutToNumber}}};
    const auto row = std::ranges::find_if(kFunctions, [&](const Function& function) {
        return IsCallOf(call, function.name) && call.items.size() >= function.fewest &&
               call.items.size() <= function.most;
    });
    return row == kFunctions.end() ? nullptr : &*row;
}

void Printer::PutCall(const Expr& call) {
    if (const Function* function = FindFunction(call)) return (this->*function->put)(call);
    PutNames(call.names);
    Put(call.distinct ? "(distinct " : "(");
    PutList(call.items, [&](const Expr* item) { PutExpr(*item); });
    Put(")");
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
    const bool adapts = type == Type::kText || (ForPostgres() && type == Type::kUnknown);
    if (adapts && IsLiteral(search)) return PutAsTextLiteral(search);
    PutExpr(search, Rank::kSum);
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
    if (ForPostgres() && TypeOf(value) != Type::kNumber)
        PutAsTextLiteral(instead);
    else
        PutExpr(instead);
    Put(")");
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
    Put("cast(");
    PutExpr(*call.items.front());
    Put(" as text)");
}

/// A text that is no number is an error on PostgreSQL; SQLite knows none here and takes what number
/// the text begins with, or 0.
void Printer::PutToNumber(const Expr& call) {
    Put("cast(");
    PutExpr(*call.items.front());
    Put(" as numeric)");
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
    if (context_.hasLeaseSort) {
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
