#pragma once

#include <ostream>
#include <string>
#include <vector>

namespace kv::test {

/// A statement in the dialect of the dialogs, and what it comes to on the tables of
/// `kDialectTables`.
struct DialectForm {
    /// Fit for the name of a test.
    std::string name;
    std::string sql;
    /// A query's rows, in order: cells joined by "|", null as "". Of another statement, the rows of
    /// the query `shows` after it ran.
    std::vector<std::string> rows;
    /// Empty for a query.
    std::string shows = {};
};

inline void PrintTo(const DialectForm& form, std::ostream* out) {
    *out << form.name;
}

/// Statements for an empty database that make small tables and fill them. Plain enough for every
/// engine. The tables stand in the schema in force.
extern const char* const kDialectTables;

/// Every form of query that the dialogs build (see sql_texts.h), on the owner "NORVADON" and the
/// dataset "gulf_mexico".
const std::vector<DialectForm>& DialectQueries();

/// Every other statement that they build. Each is meant to run on fresh tables.
const std::vector<DialectForm>& DialectChanges();

/// Lease numbers in the order in which they sort.
const std::vector<std::string>& LeasesInOrder();

}  // namespace kv::test
