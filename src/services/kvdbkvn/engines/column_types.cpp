#include "services/kvdbkvn/engines/column_types.h"

#include <algorithm>
#include <array>

#include "base/text.h"

namespace kv::db {
namespace {

using dialect::Target;
using dialect::Type;

std::string Quoted(const std::string& text, const std::string& quote) {
    return quote + ReplaceAll(text, quote, quote + quote) + quote;
}

/// By the letter of PostgreSQL's category of types.
Type TypeOfCategory(std::string_view category) {
    if (category == "S") return Type::kText;
    if (category == "N") return Type::kNumber;
    return category == "D" ? Type::kDate : Type::kUnknown;
}

/// By SQLite's rules, which look for parts of the declared type's name.
Type TypeOfDeclared(const std::string& declared) {
    struct Row {
        std::string_view part;
        Type type;
    };
    static constexpr std::array<Row, 12> kRows = {{{"INT", Type::kNumber},
                                                   {"CHAR", Type::kText},
                                                   {"CLOB", Type::kText},
                                                   {"TEXT", Type::kText},
                                                   {"BLOB", Type::kUnknown},
                                                   {"REAL", Type::kNumber},
                                                   {"FLOA", Type::kNumber},
                                                   {"DOUB", Type::kNumber},
                                                   {"NUM", Type::kNumber},
                                                   {"DEC", Type::kNumber},
                                                   {"DATE", Type::kDate},
                                                   {"TIME", Type::kDate}}};
    const std::string upper = ToUpper(declared);
    const auto row = std::ranges::find_if(
        kRows, [&](const Row& r) { return upper.find(r.part) != std::string::npos; });
    return row == kRows.end() ? Type::kUnknown : row->type;
}

}  // namespace

std::string ColumnsQuery(Target target, const std::string& schema, const std::string& table) {
    if (target == Target::kPostgres) {
        const std::string name =
            (schema.empty() ? "" : Quoted(schema, "\"") + ".") + Quoted(table, "\"");
        return "select a.attname, t.typcategory from pg_attribute a join pg_type t on t.oid = "
               "a.atttypid where a.attrelid = to_regclass(" +
               Quoted(name, "'") + ") and a.attnum > 0 and not a.attisdropped order by a.attnum";
    }
    return "select name, type from pragma_table_info(" + Quoted(table, "'") +
           (schema.empty() ? "" : ", " + Quoted(schema, "'")) + ")";
}

dialect::Columns ColumnsIn(const Rows& rows, Target target) {
    dialect::Columns columns;
    for (int row = 0; row < rows.Count(); ++row) {
        const std::string type = rows.Cell(row, 1);
        columns.push_back({rows.Cell(row, 0), target == Target::kPostgres ? TypeOfCategory(type)
                                                                          : TypeOfDeclared(type)});
    }
    return columns;
}

bool MayDefine(std::string_view sql) {
    static constexpr std::array<std::string_view, 3> kChanges = {"insert", "update", "delete"};
    return std::ranges::none_of(kChanges,
                                [&](std::string_view word) { return StartsWithNoCase(sql, word); });
}

}  // namespace kv::db
