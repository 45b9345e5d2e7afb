#include "services/kvdbkvn/engines/database_fault.h"

#include <string>
#include <utility>

#include "frame/kvcom/exception.h"
#include "frame/kvdbkvn/database_fault.h"

namespace kv::db {

namespace {

using Fails = std::function<bool(std::string_view)>;

Fails& Asked() {
    static auto* const fails = new Fails;
    return *fails;
}

}  // namespace

void SetDatabaseFault(Fails fails) {
    Asked() = std::move(fails);
}

void FailWhereAsked(const char* call) {
    if (Asked() && Asked()(call))
        throw CKvException("The call \"" + std::string(call) + "\" was made to fail");
}

}  // namespace kv::db
