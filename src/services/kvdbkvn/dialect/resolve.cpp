#include "services/kvdbkvn/dialect/resolve.h"

#include <algorithm>
#include <map>
#include <string>

#include "base/text.h"
#include "services/kvdbkvn/dialect/names.h"
#include "services/kvdbkvn/dialect/refusals.h"
#include "services/kvdbkvn/dialect/types.h"

namespace kv::dialect {
namespace {

/// A table, or a query in its place. Without columns where nobody tells them.
struct Source {
    std::string_view name;
    Columns columns;
};

/// What the names in an expression may mean: columns of these, else of those around.
struct Scope {
    const Scope* outer = nullptr;
    std::vector<Source> sources = {};
};

std::string BareName(std::string_view name) {
    return EngineName(name, Target::kSqlite);
}

const Column* Find(const Columns& columns, std::string_view name) {
    const auto column = std::ranges::find_if(
        columns, [bare = BareName(name)](const Column& c) { return EqualsNoCase(c.name, bare); });
    return column == columns.end() ? nullptr : &*column;
}

Type TypeIn(const Scope& scope, const std::vector<std::string_view>& names) {
    for (const Scope* at = &scope; at; at = at->outer) {
        for (const Source& source : at->sources) {
            if (names.size() > 1 && !SameName(source.name, names[names.size() - 2])) continue;
            if (const Column* column = Find(source.columns, names.back())) return column->type;
            // It may be one of those that nobody tells.
            if (source.columns.empty()) return Type::kUnknown;
        }
    }
    return Type::kUnknown;
}

class Resolver {
public:
    Resolver(const Context& context, Arena& arena) : context_(context), arena_(arena) {}

    void operator()(Query* const& query) { ResolveQuery(*query, nullptr); }
    void operator()(const InsertStatement& insert) {
        for (Expr* value : insert.values)
            ResolveExpr(value, {});
        if (insert.query) ResolveQuery(*insert.query, nullptr);
    }
    void operator()(const DeleteStatement& statement) {
        ResolveExpr(statement.where, ScopeOf(statement));
    }
    void operator()(const UpdateStatement& update) {
        const Scope scope = ScopeOf(update);
        for (const Assignment& assignment : update.set)
            ResolveExpr(assignment.value, scope);
        ResolveExpr(update.where, scope);
    }
    void operator()(const auto&) {}

private:
    Scope ScopeOf(const auto& statement) {
        const std::string_view name =
            statement.alias.empty() ? statement.table.name : statement.alias;
        return {nullptr, {{name, ColumnsOf(statement.table)}}};
    }

    Columns ColumnsOf(const TableName& table) {
        const auto known = std::find_if(named_.rbegin(), named_.rend(), [&](const Source& source) {
            return SameName(source.name, table.name);
        });
        const bool isNamed = known != named_.rend();
        if (isNamed && table.schema.empty()) return known->columns;
        if (EqualsNoCase(table.name, "dual")) return {{"dummy", Type::kText}};
        if (EqualsNoCase(table.name, "all_tables"))
            return {{"owner", Type::kText}, {"table_name", Type::kText}};
        std::string schema = EngineName(table.schema, context_.target);
        if (!context_.hasSchema || !context_.hasSchema(schema)) schema.clear();
        const bool hidden = isNamed || std::ranges::any_of(forward_, [&](std::string_view name) {
                                return SameName(name, table.name);
                            });
        // Without its schema the engine would take the table for the query of that name.
        if (hidden && schema.empty() && !table.schema.empty()) throw Unreadable{table.schema};
        if (!context_.columnsOf) return {};
        const std::string name = EngineName(table.name, context_.target);
        const auto [tables, isNew] = tables_.try_emplace(schema + "." + name);
        if (isNew) tables->second = context_.columnsOf(schema, name);
        return tables->second;
    }

    Columns ResolveQuery(Query& query, const Scope* outer) {
        const std::size_t before = named_.size();
        const std::size_t forward = forward_.size();
        if (context_.target == Target::kSqlite)
            for (const NamedQuery& named : query.with)
                forward_.push_back(named.name);
        for (const NamedQuery& named : query.with)
            named_.push_back({named.name, Renamed(ResolveQuery(*named.query, outer), named)});
        Columns columns;
        for (Member& member : query.members) {
            const bool alone = query.members.size() == 1;
            Columns more = member.select
                               ? ResolveSelect(*member.select, outer, alone ? &query : nullptr)
                               : ResolveQuery(*member.query, outer);
            columns = &member == &query.members.front() ? std::move(more) : Joined(columns, more);
        }
        if (query.members.size() > 1 || !query.members.front().select)
            ResolveOrder(query, {nullptr, {{{}, columns}}});
        named_.resize(before);
        forward_.resize(forward);
        return columns;
    }

    static Columns Renamed(Columns columns, const NamedQuery& named) {
        if (named.columns.empty()) return columns;
        if (named.columns.size() != columns.size()) return {};
        for (std::size_t i = 0; i < columns.size(); ++i)
            columns[i].name = BareName(named.columns[i]);
        return columns;
    }

    static Columns Joined(Columns columns, const Columns& more) {
        if (columns.size() != more.size()) return {};
        for (std::size_t i = 0; i < columns.size(); ++i)
            columns[i].type = Combine(columns[i].type, more[i].type);
        return columns;
    }

    void ResolveOrder(const Query& query, const Scope& scope) {
        for (const OrderItem& item : query.orderBy)
            ResolveExpr(item.key, scope);
    }

    /// `query`: the one whose rows are those of the select alone.
    Columns ResolveSelect(Select& select, const Scope* outer, const Query* query) {
        Scope scope{outer, {}};
        for (TableRef& ref : select.from) {
            const std::string_view name = ref.alias.empty() ? ref.table.name : ref.alias;
            scope.sources.push_back(
                {name, ref.query ? ResolveQuery(*ref.query, outer) : ColumnsOf(ref.table)});
        }
        NameMergedColumns(select, scope);
        for (const TableRef& ref : select.from)
            ResolveExpr(ref.on, scope);
        for (const SelectItem& item : select.items)
            ResolveExpr(item.expr, scope);
        ResolveExpr(select.where, scope);
        for (Expr* key : select.groupBy)
            ResolveExpr(key, scope);
        ResolveExpr(select.having, scope);
        if (query) ResolveOrder(*query, scope);
        return OutputsOf(select, scope);
    }

    /// None where a star hides some that are not known.
    static Columns OutputsOf(const Select& select, const Scope& scope) {
        Columns columns;
        for (const SelectItem& item : select.items) {
            if (item.expr->kind != ExprKind::kStar) {
                const bool isColumn = item.expr->kind == ExprKind::kColumn;
                const std::string_view name =
                    item.alias.empty() && isColumn ? item.expr->names.back() : item.alias;
                columns.push_back({BareName(name), TypeOf(*item.expr)});
                continue;
            }
            for (const Source& source : scope.sources) {
                const std::vector<std::string_view>& names = item.expr->names;
                if (!names.empty() && !SameName(source.name, names.back())) continue;
                if (source.columns.empty()) return {};
                columns.insert(columns.end(), source.columns.begin(), source.columns.end());
            }
        }
        return columns;
    }

    // Joins that merge columns

    /// A column of the rows of a join: of one table, or merged.
    struct JoinedColumn {
        std::string name;
        const Source* source = nullptr;
    };

    /// Engines differ in the order of what a star gives of such a join: what is merged goes ahead.
    void NameMergedColumns(Select& select, const Scope& scope) {
        const auto merges = [](const TableRef& ref) { return ref.natural || !ref.common.empty(); };
        const auto star = std::ranges::find_if(select.items, [](const SelectItem& item) {
            return item.expr->kind == ExprKind::kStar && item.expr->names.empty();
        });
        if (star == select.items.end() || std::ranges::none_of(select.from, merges)) return;
        std::vector<JoinedColumn> columns;
        for (std::size_t i = 0; i < select.from.size(); ++i) {
            if (scope.sources[i].columns.empty()) throw Unreadable{star->expr->text};
            columns = JoinedWith(std::move(columns), select.from[i], scope.sources[i]);
        }
        std::vector<SelectItem> items;
        for (const JoinedColumn& column : columns)
            items.push_back({NameOf(column)});
        select.items.insert(select.items.erase(star), items.begin(), items.end());
    }

    static std::vector<JoinedColumn> JoinedWith(std::vector<JoinedColumn> left, const TableRef& ref,
                                                const Source& right) {
        const auto isCommon = [&](const std::string& name) {
            if (ref.natural) return Find(right.columns, name) != nullptr;
            return std::ranges::any_of(ref.common, [&](std::string_view common) {
                return EqualsNoCase(BareName(common), name);
            });
        };
        std::vector<JoinedColumn> joined;
        std::vector<JoinedColumn> rest;
        for (JoinedColumn& column : left) {
            const bool common = isCommon(column.name);
            if (common) column.source = nullptr;
            (common ? joined : rest).push_back(std::move(column));
        }
        for (const Column& column : right.columns)
            if (std::ranges::none_of(joined, [&](const JoinedColumn& c) {
                    return EqualsNoCase(c.name, column.name);
                }))
                rest.push_back({column.name, &right});
        joined.insert(joined.end(), rest.begin(), rest.end());
        return joined;
    }

    Expr* NameOf(const JoinedColumn& column) {
        Expr& expr = arena_.exprs.emplace_back();
        expr.kind = ExprKind::kColumn;
        if (column.source && !column.source->name.empty())
            expr.names.push_back(column.source->name);
        expr.names.push_back(arena_.texts.emplace_back(Quoted(column.name)));
        return &expr;
    }

    /// In quotes where it needs them.
    static std::string Quoted(const std::string& name) {
        const bool plain = std::ranges::all_of(name, [](char ch) {
            return IsDigit(ch) || ch == '_' || (ToLower(ch) >= 'a' && ToLower(ch) <= 'z');
        });
        return plain ? name : "\"" + ReplaceAll(name, "\"", "\"\"") + "\"";
    }

    // Expressions

    void ResolveExpr(Expr* expr, const Scope& scope) {
        if (!expr) return;
        if (expr->kind == ExprKind::kColumn) expr->type = TypeIn(scope, expr->names);
        for (Expr* item : expr->items)
            ResolveExpr(item, scope);
        if (expr->query) ResolveQuery(*expr->query, &scope);
    }

    const Context& context_;
    Arena& arena_;
    /// Queries that have a name; the innermost last.
    std::vector<Source> named_;
    /// The names of queries that SQLite knows ahead of them, too.
    std::vector<std::string_view> forward_;
    std::map<std::string, Columns> tables_;
};

}  // namespace

void Resolve(const Statement& statement, const Context& context, Arena& arena) {
    Resolver resolver(context, arena);
    std::visit(resolver, statement);
}

}  // namespace kv::dialect
