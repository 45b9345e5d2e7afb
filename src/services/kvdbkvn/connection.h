#pragma once

#include "frame/kvdbkvn/db_info.h"

/// The connection record of the whole process.
namespace kv::db {

/// The record in force: the one that was set last. Until one is set, it names the server of
/// `KVGUICTL_DB`, or else the sample database in the user's data folder ("kvguictl/sample.db" under
/// `XDG_DATA_HOME`, or under ".local/share" of the home folder), with no user and password. A
/// relative path in `KVGUICTL_DB` counts from the folder in which the program was started. Valid
/// until the next call.
const CKvDbInfo& ConnectionInForce();
/// A relative path of a database file counts from the folder that is current now. An empty record
/// goes back to the one that is in force when none was set.
void SetConnectionInForce(const CKvDbInfo& info);

}  // namespace kv::db
