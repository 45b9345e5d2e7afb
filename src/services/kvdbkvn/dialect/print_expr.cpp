#include <algorithm>
#include <array>
#include <string>

#include "base/text.h"
#include "services/kvdbkvn/dialect/printer.h"

namespace kv::dialect {
namespace {

bool IsNeverEmpty(const Expr& expr) {
    return expr.kind == ExprKind::kText || expr.kind == ExprKind::kNumber;
}

bool IsWritten(Type type) {
    return type == Type::kText || type == Type::kNumberAsText;
}

}  // namespace

Printer::Rank Printer::RankOf(const Expr& expr) const {
    if (OutputOf(expr)) return Rank::kPrimary;
    switch (expr.kind) {
        case ExprKind::kOr:
            return Rank::kAny;
        case ExprKind::kAnd:
            return Rank::kAnd;
        case ExprKind::kNot:
            return Rank::kNot;
        case ExprKind::kCompare:
        case ExprKind::kLike:
        case ExprKind::kBetween:
        case ExprKind::kIn:
        case ExprKind::kIsNull:
            return Rank::kPredicate;
        case ExprKind::kConcat:
            return ForPostgres() ? Rank::kPrimary : Rank::kSum;
        case ExprKind::kArithmetic:
            if (IsTidied(expr) || TypeOf(expr) == Type::kDate) return Rank::kPrimary;
            return expr.signs.front() == '+' || expr.signs.front() == '-' ? Rank::kSum
                                                                          : Rank::kProduct;
        case ExprKind::kNegate:
            return Rank::kSign;
        default:
            return Rank::kPrimary;
    }
}

void Printer::PutExpr(const Expr& expr, Rank atLeast) {
    const bool brackets = RankOf(expr) < atLeast;
    if (brackets) Put("(");
    PutExpr(expr);
    if (brackets) Put(")");
}

void Printer::PutExpr(const Expr& expr) {
    if (const auto output = OutputOf(expr)) {
        Put("kv");
        return Put(*output + 1);
    }
    switch (expr.kind) {
        case ExprKind::kNull:
            return Put("null");
        case ExprKind::kText:
        case ExprKind::kNumber:
            return Put(expr.text);
        case ExprKind::kDate:
            return PutDate(expr);
        case ExprKind::kColumn:
            return PutColumnName(expr);
        case ExprKind::kStar:
            PutNames(expr.names);
            return Put(expr.names.empty() ? "*" : ".*");
        case ExprKind::kCall:
            return PutCall(expr);
        case ExprKind::kConcat:
            return PutConcat(expr, true);
        case ExprKind::kArithmetic:
            return PutArithmetic(expr);
        case ExprKind::kNegate:
            Put("-");
            return PutExpr(*expr.items.front(), Rank::kPrimary);
        case ExprKind::kCompare:
            return PutComparison(expr);
        case ExprKind::kLike:
            return PutLike(expr);
        case ExprKind::kBetween:
            return PutBetween(expr);
        case ExprKind::kIn:
            return PutIn(expr);
        case ExprKind::kIsNull:
            PutExpr(*expr.items.front(), Rank::kSum);
            return Put(expr.negated ? " is not null" : " is null");
        case ExprKind::kExists:
            Put("exists ");
            return PutNested(*expr.query);
        case ExprKind::kNot:
            ++insideNot_;
            Put("not ");
            PutExpr(*expr.items.front(), Rank::kNot);
            --insideNot_;
            return;
        case ExprKind::kAnd:
            return PutChain(expr, " and ", Rank::kNot);
        case ExprKind::kOr:
            return PutChain(expr, " or ", Rank::kAnd);
        case ExprKind::kCast:
            return PutCast(expr);
        case ExprKind::kCase:
            return PutCase(expr);
        case ExprKind::kRow:
            Put("(");
            PutList(expr.items, [&](const Expr* item) { PutExpr(*item); });
            return Put(")");
        case ExprKind::kQuery:
            return PutNested(*expr.query);
    }
}

void Printer::PutNested(const Query& query) {
    const auto* outputs = std::exchange(outputs_, nullptr);
    Put("(");
    PutQuery(query, false);
    Put(")");
    outputs_ = outputs;
}

void Printer::PutText(const Expr& expr) {
    const Type type = TypeOf(expr);
    const bool isText = expr.kind == ExprKind::kText || (type == Type::kText && !OutputOf(expr));
    if (!ForPostgres() || isText) return PutExpr(expr, Rank::kSum);
    Put("cast(");
    PutExpr(expr);
    Put(" as text)");
}

void Printer::PutColumnName(const Expr& column) {
    const bool hasSchema = column.names.size() == 3;
    if (!hasSchema || HasSchema(column.names.front())) return PutNames(column.names);
    PutNames({column.names.begin() + 1, column.names.end()});
}

void Printer::PutConcat(const Expr& concat, bool emptyIsNull) {
    const bool mayBeEmpty =
        std::ranges::none_of(concat.items, [](const Expr* item) { return IsNeverEmpty(*item); });
    const bool guard = mayBeEmpty && emptyIsNull;
    std::vector<const Expr*> parts;
    for (const Expr* item : concat.items)
        if (item->kind != ExprKind::kNull) parts.push_back(item);
    if (parts.empty()) return Put("null");

    if (guard) Put("nullif(");
    if (ForPostgres()) {
        PutConcatCall(parts);
    } else {
        PutInGroups(parts, " || ", [&](const Expr* part) { PutConcatPart(*part); });
        // A lone part is no text yet where it is a number.
        if (parts.size() == 1) Put(" || ''");
    }
    if (guard) Put(", '')");
}

/// A function of PostgreSQL takes so many arguments at most.
void Printer::PutConcatCall(std::span<const Expr* const> parts) {
    static constexpr std::size_t kMostArguments = 100;
    const std::size_t step = (parts.size() + kMostArguments - 1) / kMostArguments;
    Put("concat(");
    for (std::size_t i = 0; i < parts.size(); i += step) {
        if (i > 0) Put(", ");
        if (step == 1)
            PutExpr(*parts[i]);
        else
            PutConcatCall(parts.subspan(i, std::min(step, parts.size() - i)));
    }
    Put(")");
}

void Printer::PutConcatPart(const Expr& part) {
    if (IsNeverEmpty(part)) return PutExpr(part);
    Put("coalesce(");
    PutExpr(part);
    Put(", '')");
}

/// Whether its value would show that the engine divides otherwise.
bool Printer::IsTidied(const Expr& expr) const {
    const auto divides = [](const auto& self, const Expr& e) -> bool {
        if (e.kind != ExprKind::kArithmetic) return false;
        return std::ranges::find(e.signs, '/') != e.signs.end() ||
               std::ranges::any_of(e.items, [&](const Expr* item) { return self(self, *item); });
    };
    return !insideNumber_ && divides(divides, expr) && TypeOf(expr) == Type::kNumber;
}

/// A number without the zeros that an engine leaves at the end of a fraction.
void Printer::PutTidied(const std::function<void()>& putNumber) {
    if (insideNumber_) return putNumber();
    Put(ForPostgres() ? "trim_scale(cast(" : "cast(cast(");
    putNumber();
    Put(ForPostgres() ? " as numeric))" : " as text) as numeric)");
}

void Printer::PutArithmetic(const Expr& expr) {
    if (std::ranges::any_of(expr.items,
                            [](const Expr* item) { return TypeOf(*item) == Type::kDate; }))
        return PutDateArithmetic(expr);
    if (!IsTidied(expr)) return PutReckoning(expr);
    PutTidied([&] { PutUntidied(expr, [&] { PutReckoning(expr); }); });
}

/// What is only reckoned or compared with stays as the engine has it.
void Printer::PutUntidied(const Expr& expr, const std::function<void()>& put) {
    const bool ofNumbers = expr.kind == ExprKind::kArithmetic || expr.kind == ExprKind::kNegate;
    const bool outer = std::exchange(insideNumber_, ofNumbers);
    put();
    insideNumber_ = outer;
}

void Printer::PutReckoning(const Expr& expr) {
    const bool sum = expr.signs.front() == '+' || expr.signs.front() == '-';
    const Rank operandRank = sum ? Rank::kProduct : Rank::kSign;
    PutOperand(*expr.items.front(), operandRank);
    for (std::size_t i = 1; i < expr.items.size(); ++i) {
        const char sign = expr.signs[i - 1];
        // The engines cut the quotient of two integers.
        if (sign == '/') Put(" * 1.0");
        Put(" ");
        Put(std::string_view(&sign, 1));
        Put(" ");
        PutOperand(*expr.items[i], operandRank);
    }
}

void Printer::PutOperand(const Expr& expr, Rank atLeast) {
    if (TypeOf(expr) == Type::kText) return PutAsNumber(expr);
    if (!insideNumber_) return PutExpr(expr, atLeast);
    PutUntidied(expr, [&] { PutExpr(expr, atLeast); });
}

/// Fewer than the depth of a tree that SQLite takes.
constexpr std::size_t kMostInGroup = 200;

/// A chain of one operator, which SQLite reads as a tree that is as deep as the chain is long.
void Printer::PutInGroups(std::span<const Expr* const> items, std::string_view between,
                          const std::function<void(const Expr*)>& putItem) {
    const bool plain = ForPostgres() || items.size() <= kMostInGroup;
    const std::size_t step = plain ? 1 : (items.size() + kMostInGroup - 1) / kMostInGroup;
    for (std::size_t i = 0; i < items.size(); i += step) {
        if (i > 0) Put(between);
        if (plain) {
            putItem(items[i]);
            continue;
        }
        Put("(");
        PutInGroups(items.subspan(i, std::min(step, items.size() - i)), between, putItem);
        Put(")");
    }
}

void Printer::PutChain(const Expr& chain, std::string_view between, Rank atLeast) {
    const std::vector<const Expr*> items(chain.items.begin(), chain.items.end());
    PutInGroups(items, between, [&](const Expr* item) { PutExpr(*item, atLeast); });
}

// Comparisons

/// Texts beside a number are taken as numbers.
bool Printer::ComparesNumbers(Sides sides) {
    return std::ranges::any_of(sides, [](const Expr* e) { return TypeOf(*e) == Type::kNumber; });
}

/// A written text is left to PostgreSQL, which takes it as what it is compared with. SQLite does
/// so beside some columns only: not beside those of an inner query, nor in a list or a range.
bool Printer::Adapts(const Expr& expr) const {
    return ForPostgres() && expr.kind == ExprKind::kText;
}

/// Texts go by byte: a text that reads as a number, too, where it stands beside a text.
bool Printer::ComparesByByte(const Expr& expr, Sides sides) const {
    if (!ForPostgres() || ComparesNumbers(sides)) return false;
    if (expr.kind != ExprKind::kText) return TypeOf(expr) == Type::kText;
    const char first = expr.text[1];
    const bool mayBeOther = IsDigit(first) || first == '+' || first == '-' || first == '.';
    return !mayBeOther ||
           std::ranges::all_of(sides, [](const Expr* e) { return IsWritten(TypeOf(*e)); });
}

void Printer::PutComparison(const Expr& comparison) {
    const std::array<const Expr*, 2> sides = {comparison.items[0], comparison.items[1]};
    PutComparand(*sides[0], *sides[1], comparison.text);
    Put(" ");
    Put(comparison.text);
    Put(" ");
    PutComparand(*sides[1], *sides[0], comparison.text);
}

void Printer::PutComparand(const Expr& expr, const Expr& other, std::string_view sign) {
    // An empty text is as unequal to another as null is, where nothing turns that round.
    const bool emptyIsNull = sign != "=" || other.kind != ExprKind::kText || insideNot_ > 0;
    if (expr.kind == ExprKind::kConcat && !emptyIsNull && !OutputOf(expr))
        return PutConcat(expr, false);
    const std::array<const Expr*, 2> sides = {&expr, &other};
    PutSide(expr, sides, sign != "=" && sign != "<>");
}

/// `byOrder`: whether it matters which of two texts comes first.
void Printer::PutSide(const Expr& expr, Sides sides, bool byOrder) {
    if (ComparesNumbers(sides) && IsWritten(TypeOf(expr)) && !Adapts(expr))
        return PutAsNumber(expr);
    if (!byOrder || !ComparesByByte(expr, sides))
        return PutUntidied(expr, [&] { PutExpr(expr, Rank::kSum); });
    PutExpr(expr, Rank::kPrimary);
    Put(" collate \"C\"");
}

void Printer::PutLike(const Expr& like) {
    PutText(*like.items[0]);
    Put(like.negated ? " not like " : " like ");
    PutExpr(*like.items[1], Rank::kSum);
    if (like.items.size() > 2) {
        Put(" escape ");
        PutExpr(*like.items[2], Rank::kSum);
    } else if (ForPostgres()) {
        Put(" escape ''");
    }
}

void Printer::PutBetween(const Expr& between) {
    const std::array<const Expr*, 3> sides = {between.items[0], between.items[1], between.items[2]};
    PutSide(*sides[0], sides, true);
    Put(between.negated ? " not between (" : " between (");
    PutSide(*sides[1], sides, true);
    Put(") and (");
    PutSide(*sides[2], sides, true);
    Put(")");
}

void Printer::PutIn(const Expr& in) {
    const Expr& value = *in.items.front();
    if (in.query) return PutInQuery(in);
    const std::vector<const Expr*> sides(in.items.begin(), in.items.end());
    PutSide(value, sides, false);
    Put(in.negated ? " not in " : " in ");
    // SQLite knows rows of values in a list only so.
    const bool ofRows = value.kind == ExprKind::kRow && !ForPostgres();
    Put(ofRows ? "(values " : "(");
    const Sides list = std::span(sides).subspan(1);
    PutList(list, [&](const Expr* item) { PutSide(*item, sides, false); });
    Put(")");
}

void Printer::PutInQuery(const Expr& in) {
    const Expr& value = *in.items.front();
    Expr query;
    query.kind = ExprKind::kQuery;
    query.query = in.query;
    const std::array<const Expr*, 2> sides = {&value, &query};
    PutSide(value, sides, false);
    Put(in.negated ? " not in " : " in ");
    PutNested(*in.query);
}

void Printer::PutCase(const Expr& choice) {
    Put("case");
    if (const Expr* operand = choice.items.front()) {
        Put(" ");
        PutExpr(*operand);
    }
    for (std::size_t i = 1; i + 1 < choice.items.size(); i += 2) {
        Put(" when ");
        PutExpr(*choice.items[i]);
        Put(" then ");
        PutExpr(*choice.items[i + 1]);
    }
    if (const Expr* otherwise = choice.items.back()) {
        Put(" else ");
        PutExpr(*otherwise);
    }
    Put(" end");
}

std::optional<std::size_t> Printer::OutputOf(const Expr& expr) const {
    if (!outputs_ || IsLiteral(expr)) return std::nullopt;
    return FindItem(*outputs_, expr);
}

}  // namespace kv::dialect
