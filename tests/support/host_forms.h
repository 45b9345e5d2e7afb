#pragma once

#include <string>
#include <vector>

#include "support/dialect_forms.h"

namespace kv::test {

/// Queries such as hosts write them, beside those of the dialogs, and the rows that Oracle's rules
/// give on the tables of `kDialectTables`.
const std::vector<DialectForm>& HostQueries();

/// A text that some engine would take, but that is not read.
struct RefusedForm {
    std::string sql;
    /// What stands where it could not be read on.
    std::string place;
    bool onSqlite = true;
    bool onPostgres = true;
};

const std::vector<RefusedForm>& RefusedForms();

}  // namespace kv::test
