#pragma once

namespace kv::db {

/// Throws the CKvException of that call where `SetDatabaseFault` named a function that lets it
/// fail.
void FailWhereAsked(const char* call);

}  // namespace kv::db
