#include <algorithm>
#include <string>

#include "base/text.h"
#include "services/kvdbkvn/dialect/printer.h"

namespace kv::dialect {
namespace {

bool IsNeverEmpty(const Expr& expr) {
    return expr.kind == ExprKind::kText || expr.kind == ExprKind::kNumber;
}

/// A text that begins like a number or a date takes the type of what it is compared with.
bool ComparesByByte(const Expr& expr) {
    if (expr.kind != ExprKind::kText) return TypeOf(expr) == Type::kText;
    const char first = expr.text[1];
    return !IsDigit(first) && first != '+' && first != '-' && first != '.';
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
        Put("concat(");
        PutList(parts, [&](const Expr* part) { PutExpr(*part); });
        Put(")");
    } else {
        for (std::size_t i = 0; i < parts.size(); ++i) {
            if (i > 0) Put(" || ");
            PutConcatPart(*parts[i]);
        }
        // A lone part is no text yet where it is a number.
        if (parts.size() == 1) Put(" || ''");
    }
    if (guard) Put(", '')");
}

void Printer::PutConcatPart(const Expr& part) {
    if (IsNeverEmpty(part)) return PutExpr(part);
    Put("coalesce(");
    PutExpr(part);
    Put(", '')");
}

void Printer::PutArithmetic(const Expr& expr) {
    const Rank rank = RankOf(expr);
    const Rank operandRank = rank == Rank::kSum ? Rank::kProduct : Rank::kSign;
    PutExpr(*expr.items.front(), operandRank);
    for (std::size_t i = 1; i < expr.items.size(); ++i) {
        const char sign = expr.signs[i - 1];
        // The engines cut the quotient of two integers.
        if (sign == '/') Put(" * 1.0");
        Put(" ");
        Put(std::string_view(&sign, 1));
        Put(" ");
        PutExpr(*expr.items[i], operandRank);
    }
}

void Printer::PutChain(const Expr& chain, std::string_view between, Rank atLeast) {
    for (std::size_t i = 0; i < chain.items.size(); ++i) {
        if (i > 0) Put(between);
        PutExpr(*chain.items[i], atLeast);
    }
}

void Printer::PutComparison(const Expr& comparison) {
    const Expr& left = *comparison.items[0];
    const Expr& right = *comparison.items[1];
    PutComparand(left, right, comparison.text);
    Put(" ");
    Put(comparison.text);
    Put(" ");
    PutComparand(right, left, comparison.text);
}

void Printer::PutComparand(const Expr& expr, const Expr& other, std::string_view sign) {
    // An empty text is as unequal to another as null is, where nothing turns that round.
    const bool emptyIsNull = sign != "=" || other.kind != ExprKind::kText || insideNot_ > 0;
    if (expr.kind == ExprKind::kConcat && !emptyIsNull && !OutputOf(expr))
        return PutConcat(expr, false);
    if (sign == "=" || sign == "<>") return PutExpr(expr, Rank::kSum);
    PutInByteOrder(expr);
}

void Printer::PutInByteOrder(const Expr& expr) {
    const bool collate = ForPostgres() && ComparesByByte(expr);
    PutExpr(expr, collate ? Rank::kPrimary : Rank::kSum);
    if (collate) Put(" collate \"C\"");
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
    PutInByteOrder(*between.items[0]);
    Put(between.negated ? " not between (" : " between (");
    PutInByteOrder(*between.items[1]);
    Put(") and (");
    PutInByteOrder(*between.items[2]);
    Put(")");
}

void Printer::PutIn(const Expr& in) {
    const Expr& value = *in.items.front();
    PutExpr(value, Rank::kSum);
    Put(in.negated ? " not in " : " in ");
    if (in.query) return PutNested(*in.query);
    // SQLite knows rows of values in a list only so.
    const bool ofRows = value.kind == ExprKind::kRow && !ForPostgres();
    Put(ofRows ? "(values " : "(");
    const std::vector<const Expr*> list(in.items.begin() + 1, in.items.end());
    PutList(list, [&](const Expr* item) { PutExpr(*item); });
    Put(")");
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
