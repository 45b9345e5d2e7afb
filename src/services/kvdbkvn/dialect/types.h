#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "services/kvdbkvn/dialect/ast.h"

/// What can be told of the type of a value. That of a column is known where the session told it.
namespace kv::dialect {

/// Whether a text without blanks around it is a number as statements write them.
bool ReadsAsNumber(std::string_view text);

Type TypeOf(const Expr& expr);

/// Of a value that may be either.
Type Combine(Type a, Type b);

/// The selects of a query from left to right, those in brackets among them.
std::vector<const Select*> SelectsOf(const Query& query);

/// How many columns the query's rows have; 0 where a star hides it.
std::size_t CountColumns(const Query& query);

}  // namespace kv::dialect
