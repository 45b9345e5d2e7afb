#pragma once

#include <memory>

#include "frame/kvdbkvn/db_info.h"
#include "services/kvdbkvn/engines/engine.h"

namespace kv::db {

/// Opens a session on the engine that `info`'s server text names. Throws CKvException.
std::unique_ptr<Session> Open(const CKvDbInfo& info);

}  // namespace kv::db
