#pragma once

#include <chrono>

#include "base/export.h"
#include "frame/kvdbkvn/db_info.h"

namespace kv::db {

/// A connection record whose server text tells how long a statement may take, and the same without
/// that.
struct TimeLimited {
    CKvDbInfo info;
    /// 0 for no limit.
    std::chrono::milliseconds limit{0};
};

/// Of every kind of server alike: "statement_timeout=5000" behind a "?", "&" or ";" of the text
/// lets a statement run for five seconds. Throws CKvException where that is no number of
/// milliseconds.
KVGUICTL_API TimeLimited TakeTimeLimit(const CKvDbInfo& info);

}  // namespace kv::db
