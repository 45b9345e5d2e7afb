#pragma once

#include <memory>

#include "frame/kvdbkvn/db_info.h"
#include "services/kvdbkvn/engines/engine.h"

namespace kv::db {

/// Opens the database file that stands behind "sqlite:" in the server text; a file that is not
/// there is an error, and none is made.
std::unique_ptr<Session> OpenSqlite(const CKvDbInfo& info);

}  // namespace kv::db
