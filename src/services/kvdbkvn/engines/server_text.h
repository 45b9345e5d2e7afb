#pragma once

#include <string>
#include <string_view>

#include "frame/kvdbkvn/db_info.h"

namespace kv::db {

/// The same connection with user and password in their own places and out of the server text,
/// where URLs and ODBC texts may hold them. Those of the record itself count ahead of those.
CKvDbInfo TakenApart(const CKvDbInfo& info);

/// What a part of a URL means: "%41" is "A".
std::string PercentDecoded(std::string_view text);

}  // namespace kv::db
