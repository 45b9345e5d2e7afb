#include "services/kvdbkvn/engines/open_session.h"

#include <algorithm>
#include <string_view>

#include "base/text.h"
#include "frame/kvcom/exception.h"
#include "services/kvdbkvn/engines/database_fault.h"
#include "services/kvdbkvn/engines/engine_module.h"
#include "services/kvdbkvn/engines/secrets.h"
#include "services/kvdbkvn/engines/sqlite_engine.h"
#include "services/kvdbkvn/engines/time_limit.h"

namespace kv::db {
namespace {

std::unique_ptr<Session> OpenPostgres(const CKvDbInfo& info) {
    return OpenThroughModule("KVGuiCtlPostgres", "PostgreSQL", info);
}

std::unique_ptr<Session> OpenOdbc(const CKvDbInfo& info) {
    return OpenThroughModule("KVGuiCtlOdbc", "ODBC", info);
}

struct Engine {
    std::string_view prefix;
    std::unique_ptr<Session> (*open)(const CKvDbInfo& info);
};

constexpr Engine kEngines[] = {{"sqlite:", OpenSqlite},
                               {"postgresql://", OpenPostgres},
                               {"postgres://", OpenPostgres},
                               {"odbc:", OpenOdbc}};

/// A server text may hold a password: it is repeated only where it is a plain name.
[[noreturn]] void ThrowUnknownServer(const std::string& server) {
    static constexpr const char* kExpected =
        "expected sqlite:PATH, postgresql://..., odbc:DSN or odbc:Driver=...";
    if (server.empty())
        throw CKvException(std::string("The connection record names no server: ") + kExpected);
    const bool plainName = server.find_first_of(":=@;/") == std::string::npos;
    throw CKvException("The server text " + (plainName ? "\"" + server + "\" " : std::string()) +
                       "is not of a kind that is known: " + kExpected);
}

}  // namespace

std::unique_ptr<Session> Open(const CKvDbInfo& info) {
    const auto engine = std::ranges::find_if(
        kEngines, [&](const Engine& e) { return StartsWithNoCase(info.GetServer(), e.prefix); });
    try {
        if (engine == std::end(kEngines)) ThrowUnknownServer(info.GetServer());
        FailWhereAsked("open");
        const TimeLimited limited = TakeTimeLimit(info);
        auto session = engine->open(limited.info);
        if (limited.limit.count() > 0) session->LimitStatements(limited.limit);
        return session;
    } catch (const CKvException& failure) {
        throw CKvException(Scrub(failure.GetErrorMessage(false, false), info));
    }
}

}  // namespace kv::db
