#include "services/kvdbkvn/dialect/type_names.h"

#include <algorithm>
#include <array>

#include "base/text.h"

namespace kv::dialect {
namespace {

constexpr std::array<TypeName, 25> kTypeNames = {{
    {"varchar2", "varchar", "varchar", true, Type::kText},
    {"nvarchar2", "varchar", "varchar", true, Type::kText},
    {"varchar", "varchar", "varchar", true, Type::kText},
    {"char", "char", "char", true, Type::kText},
    {"nchar", "char", "char", true, Type::kText},
    {"clob", "text", "text", false, Type::kText},
    {"nclob", "text", "text", false, Type::kText},
    {"long", "text", "text", false, Type::kText},
    {"number", "numeric", "numeric", true, Type::kNumber},
    {"numeric", "numeric", "numeric", true, Type::kNumber},
    {"decimal", "numeric", "numeric", true, Type::kNumber},
    {"dec", "numeric", "numeric", true, Type::kNumber},
    {"integer", "numeric(38)", "numeric(38)", false, Type::kNumber},
    {"int", "numeric(38)", "numeric(38)", false, Type::kNumber},
    {"smallint", "numeric(38)", "numeric(38)", false, Type::kNumber},
    {"float", "real", "double precision", false, Type::kNumber},
    {"real", "real", "double precision", false, Type::kNumber},
    {"double", "real", "double precision", false, Type::kNumber},
    {"binary_double", "real", "double precision", false, Type::kNumber},
    {"binary_float", "real", "double precision", false, Type::kNumber},
    // A date holds the time of day, too.
    {"date", "text", "timestamp(0)", false, Type::kDate},
    {"timestamp", "text", "timestamp", true, Type::kDate},
    {"blob", "blob", "bytea", false, Type::kUnknown},
    {"raw", "blob", "bytea", false, Type::kUnknown},
    {"rowid", "text", "text", false, Type::kText},
}};

}  // namespace

TypeName FindTypeName(std::string_view name) {
    const auto row = std::ranges::find_if(
        kTypeNames, [&](const TypeName& type) { return EqualsNoCase(type.name, name); });
    return row == kTypeNames.end() ? TypeName{name, name, name, true, Type::kUnknown} : *row;
}

}  // namespace kv::dialect
