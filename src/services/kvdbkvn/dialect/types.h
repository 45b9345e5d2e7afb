#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "services/kvdbkvn/dialect/ast.h"

/// What can be told of the type of a value without knowing the tables.
namespace kv::dialect {

enum class Type : std::uint8_t {
    kUnknown,       ///< a column, or what takes its type from one
    kNumberAsText,  ///< a text that reads as a number: an engine may take it as either
    kText,
    kNumber,
    kNull,
};

Type TypeOf(const Expr& expr);

/// Of a value that may be either.
Type Combine(Type a, Type b);

/// The selects of a query from left to right, those in brackets among them.
std::vector<const Select*> SelectsOf(const Query& query);

/// How many columns the query's rows have; 0 where a star hides it.
std::size_t CountColumns(const Query& query);

}  // namespace kv::dialect
