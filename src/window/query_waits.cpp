#include "window/query_waits.h"

#include <utility>

namespace kv {

namespace {

QueryWaits& Present() {
    static QueryWaits waits;
    return waits;
}

}  // namespace

QueryWaits SetQueryWaits(QueryWaits waits) {
    return std::exchange(Present(), std::move(waits));
}

ActOnWait TellQueryBegins(const std::string& sql) {
    return Present().begins ? Present().begins(sql) : nullptr;
}

void TellQueryEnds() {
    if (Present().ends) Present().ends();
}

}  // namespace kv
