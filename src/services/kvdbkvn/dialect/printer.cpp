#include "services/kvdbkvn/dialect/printer.h"

#include <algorithm>
#include <array>

#include "base/text.h"
#include "services/kvdbkvn/dialect/names.h"
#include "services/kvdbkvn/dialect/type_names.h"

namespace kv::dialect {
namespace {

/// What PostgreSQL knows of the privileges on a table.
constexpr std::array<std::string_view, 6> kPostgresPrivileges = {"select", "insert",     "update",
                                                                 "delete", "references", "all"};

bool HasPostgresPrivilege(std::string_view privilege) {
    return std::ranges::any_of(kPostgresPrivileges,
                               [&](std::string_view p) { return EqualsNoCase(p, privilege); });
}

bool HoldsName(const std::vector<std::string_view>& names, std::string_view name) {
    return std::ranges::any_of(names, [&](std::string_view n) { return SameName(n, name); });
}

/// A union, or a chain of "union all", of selects of nothing but literals.
bool IsOfLiteralRows(const Query& query) {
    const std::vector<Member>& members = query.members;
    if (members.size() < 2 || !query.orderBy.empty() || CountColumns(query) == 0) return false;
    return std::ranges::all_of(members, [&](const Member& member) {
        if (!member.select || member.select->where || member.select->having) return false;
        if (&member != &members.front() && member.op != members.back().op) return false;
        const bool fromDual = std::ranges::all_of(member.select->from, [](const TableRef& ref) {
            return !ref.query && !ref.on && EqualsNoCase(ref.table.name, "dual");
        });
        return fromDual && std::ranges::all_of(member.select->items, [](const SelectItem& item) {
                   return IsLiteral(*item.expr);
               });
    });
}

}  // namespace

Printer::Printer(const Context& context, std::size_t mostText, std::vector<std::string>& notes)
    : context_(context), mostText_(mostText), notes_(notes) {}

std::string Printer::Print(const Statement& statement) {
    std::visit([this](const auto& s) { PutStatement(s); }, statement);
    return std::move(out_);
}

void Printer::Put(std::string_view text) {
    if (out_.size() + text.size() > mostText_) throw TooLong{};
    out_ += text;
}

void Printer::Put(std::size_t number) {
    Put(std::to_string(number));
}

// Names

bool Printer::HasSchema(std::string_view name) {
    const auto known = std::ranges::find(schemas_, name, &std::pair<std::string_view, bool>::first);
    if (known != schemas_.end()) return known->second;
    const bool quoted = name.starts_with('"');
    const std::string bare(quoted ? name.substr(1, name.size() - 2) : name);
    const bool has = context_.hasSchema && context_.hasSchema(bare);
    schemas_.emplace_back(name, has);
    return has;
}

/// SQLite takes a name in double quotes for a text where it knows no such column. A number sign is
/// part of a name only in quotes.
void Printer::PutName(std::string_view name) {
    if (!name.starts_with('"') && name.find('#') == std::string_view::npos) return Put(name);
    const std::string quote = ForPostgres() ? "\"" : "`";
    Put(quote + ReplaceAll(EngineName(name, context_.target), quote, quote + quote) + quote);
}

void Printer::PutNames(const std::vector<std::string_view>& names) {
    for (std::size_t i = 0; i < names.size(); ++i) {
        if (i > 0) Put(".");
        PutName(names[i]);
    }
}

void Printer::PutNamesInBrackets(const std::vector<std::string_view>& names) {
    Put("(");
    PutList(names, [&](std::string_view name) { PutName(name); });
    Put(")");
}

void Printer::PutTableName(const TableName& table) {
    if (!table.schema.empty() && HasSchema(table.schema)) {
        PutName(table.schema);
        Put(".");
    }
    PutName(table.name);
}

// Statements

void Printer::PutStatement(Query* const& query) {
    PutQuery(*query, true);
}

void Printer::PutStatement(const InsertStatement& insert) {
    Put("insert into ");
    PutTableName(insert.table);
    if (!insert.columns.empty()) {
        Put(" ");
        PutNamesInBrackets(insert.columns);
    }
    if (!insert.query) {
        Put(" values (");
        PutList(insert.values, [&](const Expr* value) { PutExpr(*value); });
        return Put(")");
    }
    Put(" ");
    if (!PutLiteralRows(*insert.query)) PutQuery(*insert.query, false);
}

/// Engines limit the members of a union, but not rows of values.
bool Printer::PutLiteralRows(const Query& query) {
    if (!IsOfLiteralRows(query)) return false;
    const SetOperator op = query.members.back().op;
    if (op != SetOperator::kUnion && op != SetOperator::kUnionAll) return false;
    Put(op == SetOperator::kUnion ? "select distinct * from (values " : "select * from (values ");
    PutList(query.members, [&](const Member& member) {
        Put("(");
        PutList(member.select->items, [&](const SelectItem& item) { PutExpr(*item.expr); });
        Put(")");
    });
    Put(") as kv");
    return true;
}

void Printer::PutStatement(const DeleteStatement& statement) {
    Put("delete from ");
    PutTableName(statement.table);
    if (!statement.alias.empty()) {
        Put(" as ");
        PutName(statement.alias);
    }
    PutWhere(statement.where);
}

void Printer::PutStatement(const UpdateStatement& update) {
    Put("update ");
    PutTableName(update.table);
    if (!update.alias.empty()) {
        Put(" as ");
        PutName(update.alias);
    }
    Put(" set ");
    PutList(update.set, [&](const Assignment& assignment) { PutAssignment(assignment); });
    PutWhere(update.where);
}

void Printer::PutAssignment(const Assignment& assignment) {
    if (assignment.columns.size() > 1)
        PutNamesInBrackets(assignment.columns);
    else
        PutName(assignment.columns.front());
    Put(" = ");
    PutExpr(*assignment.value);
}

void Printer::PutWhere(const Expr* where) {
    if (!where) return;
    Put(" where ");
    PutExpr(*where);
}

void Printer::PutStatement(const CreateTableStatement& create) {
    std::vector<std::string_view> keyColumns;
    for (const KeyDefinition& key : create.keys)
        if (key.primary) keyColumns = key.columns;
    Put("create table ");
    PutTableName(create.table);
    Put(" (");
    PutList(create.columns, [&](const ColumnDefinition& column) {
        PutColumn(column, column.primaryKey || HoldsName(keyColumns, column.name));
    });
    for (const KeyDefinition& key : create.keys) {
        Put(", ");
        PutKey(key);
    }
    Put(")");
}

void Printer::PutColumn(const ColumnDefinition& column, bool inPrimaryKey) {
    const TypeName type = FindTypeName(column.type);
    PutName(column.name);
    Put(" ");
    const std::string_view typeName = ForPostgres() ? type.postgres : type.sqlite;
    Put(typeName);
    if (type.sized && typeName != "text" && !column.sizes.empty()) {
        Put("(");
        PutList(column.sizes, [&](std::string_view size) { Put(size); });
        Put(")");
    }
    if (ForPostgres() && type.type == Type::kText) Put(" collate \"C\"");
    if (column.defaultValue) {
        Put(" default ");
        PutExpr(*column.defaultValue, Rank::kPrimary);
    }
    // SQLite lets nulls into a primary key.
    if (column.notNull || inPrimaryKey) Put(" not null");
    if (column.unique) Put(" unique");
    if (column.primaryKey) Put(" primary key");
}

void Printer::PutKey(const KeyDefinition& key) {
    if (!key.name.empty()) {
        Put("constraint ");
        PutName(key.name);
        Put(" ");
    }
    Put(key.primary ? "primary key " : "unique ");
    PutNamesInBrackets(key.columns);
}

void Printer::PutStatement(const DropTableStatement& drop) {
    Put("drop table ");
    PutTableName(drop.table);
}

void Printer::PutStatement(const OtherDefinition&) {}

void Printer::PutStatement(const GrantStatement& grant) {
    const std::vector<std::string_view> privileges = GrantedPrivileges(grant);
    if (privileges.empty()) return;
    Put(grant.revoke ? "revoke " : "grant ");
    PutList(privileges, [&](std::string_view privilege) { Put(ToLower(privilege)); });
    Put(" on ");
    PutTableName(grant.table);
    Put(grant.revoke ? " from " : " to ");
    PutList(grant.grantees, [&](std::string_view grantee) { PutName(grantee); });
    if (grant.grantOption) Put(" with grant option");
}

std::vector<std::string_view> Printer::GrantedPrivileges(const GrantStatement& grant) {
    std::vector<std::string_view> granted;
    for (const std::string_view privilege : grant.privileges) {
        if (ForPostgres() && HasPostgresPrivilege(privilege)) {
            granted.push_back(privilege);
            continue;
        }
        notes_.push_back("The privilege " + ToUpper(privilege) + " on " +
                         std::string(grant.table.name) + " is left out: " +
                         (ForPostgres() ? "PostgreSQL knows none such" : "SQLite knows none"));
    }
    return granted;
}

void Printer::PutStatement(const CommitStatement&) {
    Put("commit");
}

}  // namespace kv::dialect
