#include "services/kvdbkvn/connection.h"

#include <string>

#include "base/user_folders.h"

namespace kv::db {

namespace {

/// Empty while none is set.
CKvDbInfo& WasSet() {
    static CKvDbInfo info;
    return info;
}

CKvDbInfo Default() {
    const std::string sample = "sqlite:" + DataFolder() + "/sample.db";
    return {"", "", FromEnvironment("KVGUICTL_DB", sample).c_str()};
}

}  // namespace

const CKvDbInfo& ConnectionInForce() {
    if (WasSet() != CKvDbInfo()) return WasSet();
    static CKvDbInfo fallback;
    fallback = Default();
    return fallback;
}

void SetConnectionInForce(const CKvDbInfo& info) {
    WasSet() = info;
}

}  // namespace kv::db
