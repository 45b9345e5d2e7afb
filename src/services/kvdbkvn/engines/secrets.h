#pragma once

#include <string>

#include "frame/kvdbkvn/db_info.h"

namespace kv::db {

/// `text` with "***" in place of every password that the record holds: its own, and those in its
/// server text (of a URL whole and in the pieces that a client library may take it for where signs
/// in it are not encoded, of an ODBC connection string the values of its password keywords).
std::string Scrub(const std::string& text, const CKvDbInfo& info);

}  // namespace kv::db
