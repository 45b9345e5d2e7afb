#pragma once

#include <string>
#include <string_view>

#include "base/export.h"
#include "services/kvdbkvn/dialect/column.h"
#include "services/kvdbkvn/engines/engine.h"

/// How an engine is asked for the columns of a table. The rows hold a name and what tells the type.
namespace kv::db {

/// The schema may be empty.
KVGUICTL_API std::string ColumnsQuery(dialect::Target target, const std::string& schema,
                                      const std::string& table);

/// What the rows of that query tell.
KVGUICTL_API dialect::Columns ColumnsIn(const Rows& rows, dialect::Target target);

/// Whether a statement may change what columns there are.
KVGUICTL_API bool MayDefine(std::string_view sql);

}  // namespace kv::db
