#include <algorithm>
#include <charconv>
#include <string>

#include "base/text.h"
#include "services/kvdbkvn/dialect/printer.h"

namespace kv::dialect {
namespace {

bool IsDual(const TableRef& ref) {
    return !ref.query && EqualsNoCase(ref.table.name, "dual");
}

bool IsTableDictionary(const TableRef& ref) {
    return !ref.query && EqualsNoCase(ref.table.name, "all_tables");
}

/// One select without "distinct": its order may name what its rows do not hold.
bool IsPlain(const Query& query) {
    return query.members.size() == 1 && query.members.front().select &&
           !query.members.front().select->distinct;
}

/// Whether the rows are distinct texts, each put together from columns.
bool IsDistinctConcat(const Select& select) {
    if (!select.distinct || select.items.size() != 1 || !select.groupBy.empty()) return false;
    const Expr& expr = *select.items.front().expr;
    return expr.kind == ExprKind::kConcat && std::ranges::all_of(expr.items, [](const Expr* part) {
               return part->kind == ExprKind::kColumn;
           });
}

/// Rows that come in the order of their columns although none is asked for: the server sorts to
/// find doubles. The dictionary has no order of its own that engines could share.
bool IsSortedUnasked(const Query& query) {
    const Member& last = query.members.back();
    if (query.members.size() > 1) return last.op != SetOperator::kUnionAll;
    if (!last.select) return false;
    return last.select->distinct || std::ranges::any_of(last.select->from, IsTableDictionary);
}

std::string_view OperatorWords(SetOperator op) {
    switch (op) {
        case SetOperator::kUnion:
            return " union ";
        case SetOperator::kUnionAll:
            return " union all ";
        case SetOperator::kIntersect:
            return " intersect ";
        case SetOperator::kMinus:
            break;
    }
    return " except ";
}

std::string_view JoinWords(Join join) {
    switch (join) {
        case Join::kComma:
            return ", ";
        case Join::kInner:
            return " join ";
        case Join::kLeft:
            return " left join ";
        case Join::kRight:
            return " right join ";
        case Join::kFull:
            return " full join ";
        case Join::kCross:
            break;
    }
    return " cross join ";
}

bool IsColumnNamed(const Expr& expr, std::string_view name) {
    return expr.kind == ExprKind::kColumn && SameName(expr.names.back(), name);
}

/// The place in the rows that a written number means, from 0.
std::optional<std::size_t> OrdinalOf(const Expr& key, std::size_t columns) {
    if (key.kind != ExprKind::kNumber || !IsInteger(key)) return std::nullopt;
    std::size_t place = 0;
    const char* end = key.text.data() + key.text.size();
    if (std::from_chars(key.text.data(), end, place).ec != std::errc()) return std::nullopt;
    return place >= 1 && place <= columns ? std::optional(place - 1) : std::nullopt;
}

}  // namespace

std::optional<std::size_t> FindItem(const std::vector<SelectItem>& items, const Expr& key) {
    if (const auto ordinal = OrdinalOf(key, items.size())) return ordinal;
    const auto find = [&](auto matches) -> std::optional<std::size_t> {
        const auto item = std::ranges::find_if(items, matches);
        if (item == items.end()) return std::nullopt;
        return static_cast<std::size_t>(item - items.begin());
    };
    const bool bare = key.kind == ExprKind::kColumn && key.names.size() == 1;
    if (bare) {
        const auto aliased = find([&](const SelectItem& item) {
            return !item.alias.empty() && SameName(item.alias, key.names.front());
        });
        if (aliased) return aliased;
    }
    if (const auto same = find([&](const SelectItem& i) { return SameExpr(*i.expr, key); }))
        return same;
    if (!bare) return std::nullopt;
    return find([&](const SelectItem& item) {
        return item.alias.empty() && IsColumnNamed(*item.expr, key.names.front());
    });
}

void Printer::PutQuery(const Query& query, bool outermost, bool named) {
    PutNamedQueries(query);
    const bool sorted = outermost || query.orderMatters || IsBounded(query);
    const ColumnForms forms = FormsOf(query);
    const std::vector<SortKey> keys = SortKeysOf(query, sorted);
    const bool byColumns =
        std::ranges::all_of(keys, [](const SortKey& k) { return k.column.has_value(); });
    const bool ofRows = !IsPlain(query) && CountColumns(query) > 0;
    if (ofRows && !keys.empty() && (ForPostgres() || !byColumns)) {
        PutWrapped(query, forms, keys);
    } else {
        PutMembers(query, forms, named);
        if (!keys.empty()) PutOrderOfRows(query, keys);
    }
    PutRowLimits(query);
}

void Printer::PutNamedQueries(const Query& query) {
    if (query.with.empty()) return;
    Put("with ");
    PutList(query.with, [&](const NamedQuery& named) {
        PutName(named.name);
        if (!named.columns.empty()) {
            Put(" ");
            PutNamesInBrackets(named.columns);
        }
        Put(" as ");
        PutNested(*named.query);
    });
    Put(" ");
}

void Printer::PutRowLimits(const Query& query) {
    if (!IsBounded(query)) return;
    // SQLite knows no offset alone.
    if (query.mostRows || !ForPostgres()) Put(" limit ");
    if (query.mostRows)
        Put(*query.mostRows);
    else if (!ForPostgres())
        Put("-1");
    if (query.skippedRows == 0) return;
    Put(" offset ");
    Put(query.skippedRows);
}

/// PostgreSQL settles the type of a column by the first two members, where literals alone are
/// texts.
Printer::ColumnForms Printer::FormsOf(const Query& query) const {
    ColumnForms forms(CountColumns(query), Type::kUnknown);
    if (!ForPostgres() || query.members.size() < 2) return forms;
    const std::vector<const Select*> selects = SelectsOf(query);
    for (std::size_t i = 0; i < forms.size(); ++i) {
        Type type = Type::kNull;
        bool numbers = true;
        for (const Select* select : selects) {
            const Type one = TypeOf(*select->items[i].expr);
            type = Combine(type, one);
            numbers = numbers && (one == Type::kNumber || one == Type::kNull);
        }
        if (!numbers && type != Type::kDate)
            forms[i] = Type::kText;
        else if (type != Type::kNull)
            forms[i] = type;
    }
    return forms;
}

void Printer::PutMembers(const Query& query, const ColumnForms& forms, bool named) {
    const std::vector<Member>& members = query.members;
    // On PostgreSQL "intersect" binds tighter than the others: what stands before it goes into
    // brackets.
    const auto breaks = [&](std::size_t i) {
        return ForPostgres() && i > 1 && members[i].op == SetOperator::kIntersect;
    };
    // SQLite takes so many members at most.
    static constexpr std::size_t kMostMembers = 400;
    const auto splits = [&](std::size_t i) {
        return !ForPostgres() && i > 0 && i % kMostMembers == 0;
    };
    for (std::size_t i = 0; i < members.size(); ++i) {
        if (breaks(i)) Put("(");
        if (splits(i)) Put("select * from (");
    }
    for (std::size_t i = 0; i < members.size(); ++i) {
        if (breaks(i) || splits(i)) Put(")");
        if (i > 0) Put(OperatorWords(members[i].op));
        PutMember(members[i], forms, named && i == 0);
    }
}

void Printer::PutMember(const Member& member, const ColumnForms& forms, bool named) {
    if (member.select) return PutSelect(*member.select, forms, named);
    const bool bare =
        member.query->orderBy.empty() && member.query->with.empty() && !IsBounded(*member.query);
    // SQLite takes no member in brackets.
    Put(ForPostgres() ? "(" : "select * from (");
    if (bare)
        PutMembers(*member.query, forms, named);
    else
        PutQuery(*member.query, false, named);
    Put(")");
}

/// SQLite looks each row up among those that are distinct so far, page by page once they are many.
/// Groups are sorted in one go instead. No index helps with a text that is put together, and nearly
/// each is another.
void Printer::PutSelect(const Select& select, const ColumnForms& forms, bool named) {
    const bool grouped = !ForPostgres() && IsDistinctConcat(select);
    Put(select.distinct && !grouped ? "select distinct " : "select ");
    std::size_t column = 0;
    PutList(select.items, [&](const SelectItem& item) {
        PutSelectItem(item, column < forms.size() ? forms[column] : Type::kUnknown);
        ++column;
        if (named) {
            Put(" as kv");
            Put(column);
        } else if (!item.alias.empty()) {
            Put(" as ");
            PutName(item.alias);
        }
    });
    PutFrom(select);
    PutWhere(select.where);
    if (!select.groupBy.empty()) {
        Put(" group by ");
        PutList(select.groupBy, [&](const Expr* key) { PutExpr(*key); });
    }
    if (grouped) Put(" group by 1");
    if (select.having) {
        Put(" having ");
        PutExpr(*select.having);
    }
}

/// An integer that stands beside texts goes in quotes, which PostgreSQL takes as whatever type the
/// column has.
/// `form`: what the column is to be, where that must be said.
void Printer::PutSelectItem(const SelectItem& item, Type form) {
    const Expr& expr = *item.expr;
    const bool isNumber = IsLiteral(expr) && TypeOf(expr) == Type::kNumber;
    const bool isNull = expr.kind == ExprKind::kNull;
    if (form == Type::kText && isNumber) return PutAsTextLiteral(expr);
    if (isNull && form == Type::kNumber) return Put("cast(null as numeric)");
    if (isNull && form == Type::kDate) return Put("cast(null as timestamp)");
    PutExpr(expr);
}

void Printer::PutFrom(const Select& select) {
    const std::vector<TableRef>& from = select.from;
    const auto isJoined = [&](std::size_t i) {
        return from[i].join != Join::kComma ||
               (i + 1 < from.size() && from[i + 1].join != Join::kComma);
    };
    const bool needsTable = std::ranges::any_of(
        select.items, [](const SelectItem& item) { return item.expr->kind == ExprKind::kStar; });
    bool first = true;
    for (std::size_t i = 0; i < from.size(); ++i) {
        if (IsDual(from[i]) && !isJoined(i) && !needsTable) continue;
        Put(first ? " from " : from[i].natural ? " natural" : "");
        if (!first) Put(JoinWords(from[i].join));
        first = false;
        PutTableRef(from[i]);
        if (!from[i].common.empty()) {
            Put(" using ");
            PutNamesInBrackets(from[i].common);
        }
        if (!from[i].on) continue;
        Put(" on ");
        PutExpr(*from[i].on);
    }
}

void Printer::PutTableRef(const TableRef& ref) {
    std::string_view alias = ref.alias;
    if (ref.query) {
        PutNested(*ref.query);
        if (alias.empty() && ForPostgres()) {
            Put(" as kv_");
            return Put(++unnamedQueries_);
        }
    } else if (IsTableDictionary(ref)) {
        PutTableDictionary();
        if (alias.empty()) alias = "all_tables";
    } else if (IsDual(ref)) {
        Put("(select 'X')");
        if (alias.empty()) alias = "dual";
    } else {
        PutTableName(ref.table);
    }
    if (alias.empty()) return;
    Put(" as ");
    PutName(alias);
}

void Printer::PutTableDictionary() {
    const bool hasOwner = HasSchema("NORVADON");
    if (ForPostgres()) {
        Put("(select ");
        Put(hasOwner ? "upper(table_schema)"
                     : "case when table_schema = current_schema() then 'NORVADON' "
                       "else upper(table_schema) end");
        return Put(
            " as owner, upper(table_name) as table_name "
            "from information_schema.tables where table_type = 'BASE TABLE')");
    }
    // The one owner of a database without owners.
    Put("(select 'NORVADON' as owner, upper(name) as table_name from ");
    if (hasOwner) Put("NORVADON.");
    Put("sqlite_master where type = 'table' and substr(name, 1, 7) <> 'sqlite_')");
}

// Order

std::vector<Printer::SortKey> Printer::SortKeysOf(const Query& query, bool settled) const {
    const std::size_t columns = CountColumns(query);
    const std::vector<SelectItem>& items = SelectsOf(query).front()->items;
    std::vector<SortKey> keys;
    std::vector<bool> used(columns, false);
    for (const OrderItem& item : query.orderBy) {
        SortKey key{std::nullopt, item.key, item.descending, item.nulls};
        if (columns > 0) key.column = FindItem(items, *item.key);
        if (key.column) used[*key.column] = true;
        const Expr& expr = key.column && IsPlain(query) ? *items[*key.column].expr : *item.key;
        // What is the same for all rows is no order, and PostgreSQL would read a number as a place.
        const bool isPlace = !key.column && expr.kind == ExprKind::kNumber && IsInteger(expr);
        const bool isColumn = key.column && !IsPlain(query);
        if (isColumn || isPlace || !IsLiteral(expr)) keys.push_back(key);
    }
    // Rows that are equal by the keys come in one order on every engine.
    const bool sorted = settled && (!query.orderBy.empty() || IsSortedUnasked(query));
    for (std::size_t i = 0; sorted && i < columns; ++i) {
        const bool constant = IsPlain(query) && IsLiteral(*items[i].expr);
        if (!used[i] && !constant) keys.push_back({i, nullptr});
    }
    return keys;
}

void Printer::PutOrderOfRows(const Query& query, const std::vector<SortKey>& keys) {
    Put(" order by ");
    if (!ForPostgres()) return PutOrdinals(keys);
    const std::vector<SelectItem>& items = SelectsOf(query).front()->items;
    PutList(keys, [&](const SortKey& key) {
        const Expr& expr = key.column ? *items[*key.column].expr : *key.expr;
        PutSortKey(key, TypeOf(expr), [&] { PutExpr(expr, Rank::kPrimary); });
    });
}

void Printer::PutOrdinals(const std::vector<SortKey>& keys) {
    PutList(keys, [&](const SortKey& key) {
        if (key.column)
            Put(*key.column + 1);
        else
            PutExpr(*key.expr);
        PutDirection(key);
    });
}

/// Orders rows by columns of which the first select's items are the names: its items get short
/// names, and the keys are said with them.
void Printer::PutWrapped(const Query& query, const ColumnForms& forms,
                         const std::vector<SortKey>& keys) {
    std::vector<std::size_t> columns(CountColumns(query));
    std::ranges::generate(columns, [n = std::size_t{0}]() mutable { return ++n; });
    const auto putColumn = [&](std::size_t number) {
        Put("kv");
        Put(number);
    };
    Put("select ");
    PutList(columns, putColumn);
    Put(" from (");
    PutMembers(query, forms, true);
    Put(") as kv order by ");
    const auto* outer = std::exchange(outputs_, &SelectsOf(query).front()->items);
    PutList(keys, [&](const SortKey& key) {
        const Type type = key.column ? ColumnType(query, *key.column, forms) : TypeOf(*key.expr);
        PutSortKey(key, type, [&] {
            if (key.column)
                putColumn(*key.column + 1);
            else
                PutExpr(*key.expr, Rank::kPrimary);
        });
    });
    outputs_ = outer;
}

Type Printer::ColumnType(const Query& query, std::size_t column, const ColumnForms& forms) {
    Type type = Type::kNull;
    for (const Select* select : SelectsOf(query)) {
        const Expr& expr = *select->items[column].expr;
        const bool quoted = forms[column] == Type::kText && IsLiteral(expr);
        const Type one = TypeOf(expr);
        type = Combine(type, quoted && one == Type::kNumber ? Type::kNumberAsText : one);
    }
    return type;
}

/// Texts go by byte. PostgreSQL takes a collation for nothing but texts, so where the type is not
/// known numbers go ahead by their value and texts follow by their bytes.
void Printer::PutSortKey(const SortKey& key, Type type, const std::function<void()>& putValue) {
    if (ForPostgres() && type == Type::kUnknown) {
        Put("case when pg_typeof(");
        putValue();
        Put(") in ('int2', 'int4', 'int8', 'numeric', 'float4', 'float8') then cast(cast(");
        putValue();
        Put(" as text) as numeric) end");
        PutDirection(key);
        Put(", cast(");
        putValue();
        Put(" as text) collate \"C\"");
    } else {
        putValue();
        if (ForPostgres() && (type == Type::kText || type == Type::kNumberAsText))
            Put(" collate \"C\"");
    }
    PutDirection(key);
}

/// Null counts as larger than all else; to SQLite it is smaller.
void Printer::PutDirection(const SortKey& key) {
    if (key.descending) Put(" desc");
    Nulls nulls = key.nulls;
    if (nulls == Nulls::kDefault && !ForPostgres())
        nulls = key.descending ? Nulls::kFirst : Nulls::kLast;
    if (nulls != Nulls::kDefault) Put(nulls == Nulls::kFirst ? " nulls first" : " nulls last");
}

}  // namespace kv::dialect
