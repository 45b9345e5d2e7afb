#pragma once

#include <cstdint>
#include <deque>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "services/kvdbkvn/dialect/column.h"

/// A statement as it was read. All texts are views into the statement's own; all nodes are owned by
/// the `Arena` that they were made in. Chains of one operator are one node, so that the depth of a
/// tree is that of the text's brackets.
namespace kv::dialect {

struct Expr;
struct Query;

enum class ExprKind : std::uint8_t {
    kNull,        ///< also the empty text
    kText,        ///< text: with its quotes; never empty
    kNumber,      ///< text
    kDate,        ///< text: of "date '...'" and "timestamp '...'", with its quotes
    kColumn,      ///< names: up to three, the column's last; type
    kStar,        ///< names: none, or those of a table; text: of one without a table's name
    kCall,        ///< names: the function's; items: arguments; distinct
    kConcat,      ///< items
    kArithmetic,  ///< items; text: a sign between each two, all of one rank
    kNegate,      ///< items: one
    kCompare,     ///< items: two; text: the sign
    kLike,        ///< items: value, pattern, perhaps escape; negated
    kBetween,     ///< items: value, low, high; negated
    kIn,          ///< items: value, then the list unless there is a query; negated
    kIsNull,      ///< items: one; negated
    kExists,      ///< query
    kNot,         ///< items: one
    kAnd,         ///< items
    kOr,          ///< items
    kCast,        ///< items: one; text: the type's name; names: its sizes
    kCase,        ///< items: operand or null, pairs of when and then, else or null
    kRow,         ///< items
    kQuery,       ///< query
};

struct Expr {
    ExprKind kind = ExprKind::kNull;
    bool negated = false;
    bool distinct = false;
    std::string_view text = {};
    std::vector<std::string_view> names = {};
    std::vector<Expr*> items = {};
    /// Of kArithmetic: the sign ahead of each item but the first.
    std::vector<char> signs = {};
    Query* query = nullptr;
    /// Of kColumn, once it is resolved.
    Type type = Type::kUnknown;
};

struct TableName {
    std::string_view schema;
    std::string_view name;
};

enum class Join : std::uint8_t { kComma, kInner, kLeft, kRight, kFull, kCross };

struct TableRef {
    Join join = Join::kComma;
    TableName table = {};
    /// In place of a table.
    Query* query = nullptr;
    std::string_view alias = {};
    Expr* on = nullptr;
    bool natural = false;
    /// The columns behind "using".
    std::vector<std::string_view> common = {};
};

struct SelectItem {
    Expr* expr = nullptr;
    std::string_view alias = {};
};

struct Select {
    bool distinct = false;
    std::vector<SelectItem> items = {};
    std::vector<TableRef> from = {};
    Expr* where = nullptr;
    std::vector<Expr*> groupBy = {};
    Expr* having = nullptr;
};

enum class SetOperator : std::uint8_t { kUnion, kUnionAll, kIntersect, kMinus };

/// A select, or a query in brackets that could not be taken apart.
struct Member {
    SetOperator op = SetOperator::kUnion;
    Select* select = nullptr;
    Query* query = nullptr;
};

enum class Nulls : std::uint8_t { kDefault, kFirst, kLast };

struct OrderItem {
    Expr* key = nullptr;
    bool descending = false;
    Nulls nulls = Nulls::kDefault;
};

/// A query that has a name, ahead of the one that uses it.
struct NamedQuery {
    std::string_view name = {};
    std::vector<std::string_view> columns = {};
    Query* query = nullptr;
};

/// Members are joined from left to right, whatever the operator.
struct Query {
    std::vector<NamedQuery> with = {};
    std::vector<Member> members = {};
    std::vector<OrderItem> orderBy = {};
    std::uint64_t skippedRows = 0;
    std::optional<std::uint64_t> mostRows = {};
    /// Whether which rows come first matters to the query around it.
    bool orderMatters = false;
};

struct InsertStatement {
    TableName table;
    std::vector<std::string_view> columns;
    /// Without a query.
    std::vector<Expr*> values;
    Query* query = nullptr;
};

struct DeleteStatement {
    TableName table;
    std::string_view alias;
    Expr* where = nullptr;
};

struct Assignment {
    /// Several only with a query as value.
    std::vector<std::string_view> columns;
    Expr* value = nullptr;
};

struct UpdateStatement {
    TableName table;
    std::string_view alias;
    std::vector<Assignment> set;
    Expr* where = nullptr;
};

struct ColumnDefinition {
    std::string_view name = {};
    std::string_view type = {};
    std::vector<std::string_view> sizes = {};
    Expr* defaultValue = nullptr;
    bool notNull = false;
    bool primaryKey = false;
    bool unique = false;
};

struct KeyDefinition {
    bool primary = false;
    std::string_view name = {};
    std::vector<std::string_view> columns = {};
};

struct CreateTableStatement {
    TableName table;
    std::vector<ColumnDefinition> columns;
    std::vector<KeyDefinition> keys;
};

struct DropTableStatement {
    TableName table;
};

/// Any other definition: known by its first word alone.
struct OtherDefinition {};

struct GrantStatement {
    bool revoke = false;
    std::vector<std::string_view> privileges;
    TableName table;
    std::vector<std::string_view> grantees;
    bool grantOption = false;
};

struct CommitStatement {};

using Statement =
    std::variant<Query*, InsertStatement, DeleteStatement, UpdateStatement, CreateTableStatement,
                 DropTableStatement, OtherDefinition, GrantStatement, CommitStatement>;

/// Owns the nodes of one statement.
struct Arena {
    std::deque<Expr> exprs;
    std::deque<Select> selects;
    std::deque<Query> queries;
    /// Names that the statement's text does not hold.
    std::deque<std::string> texts;
};

/// Whether both are the same name, with or without quotes.
bool SameName(std::string_view a, std::string_view b);

/// Whether both are the same expression, but for the case of names and the blanks in it. No two
/// expressions with a query inside are.
bool SameExpr(const Expr& a, const Expr& b);

/// Whether the function called is the one of that name.
bool IsCallOf(const Expr& expr, std::string_view function);

/// A number without a point, or one with a minus ahead of it.
bool IsInteger(const Expr& expr);

/// Whether only some of the rows are wanted.
bool IsBounded(const Query& query);

/// A text, a number or null.
bool IsLiteral(const Expr& expr);

}  // namespace kv::dialect
