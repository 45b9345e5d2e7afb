#pragma once

#include <chrono>
#include <memory>
#include <string>

#include "frame/kvdbkvn/db_info.h"
#include "services/kvdbkvn/engines/engine.h"

/// Engines that live in libraries of their own, loaded when a connection record first asks for one,
/// so that a machine without their client library still runs.
namespace kv::db {

/// A session as such a library gives it. No exception crosses the border: a failure is a text, and
/// what comes back with it is null, negative or false.
class KVGUICTL_API ModuleSession {
public:
    /// Whether a query that runs is to stop; lets the windows live meanwhile.
    using IsOver = bool() noexcept;

    virtual ~ModuleSession() = default;
    /// Asked while a query runs, by sessions that can stop one.
    virtual void StopQueryWhen(IsOver*) noexcept {}
    virtual bool LimitStatements(std::chrono::milliseconds limit,
                                 std::string& failure) noexcept = 0;
    virtual dialect::Target Target() const noexcept = 0;
    virtual bool IsAlive() noexcept = 0;
    virtual bool WasGoneAhead() const noexcept { return false; }
    virtual bool HasSchema(const std::string& name) noexcept = 0;
    virtual const dialect::Columns* ColumnsOf(const std::string& schema, const std::string& table,
                                              std::string& failure) noexcept = 0;
    virtual bool Check(const std::string& sql, std::string& failure) noexcept = 0;
    virtual std::unique_ptr<Rows> Query(const std::string& sql, std::string& failure) noexcept = 0;
    virtual int Execute(const std::string& sql, std::string& failure) noexcept = 0;
    virtual bool Commit(std::string& failure) noexcept = 0;
    virtual bool Rollback() noexcept = 0;
};

/// The function that such a library exports, and its name. The caller owns the session.
using OpenModuleSession = ModuleSession*(const CKvDbInfo& info, std::string& failure);
inline constexpr const char* kOpenModuleSession = "KVGuiCtlOpenSession";

/// Opens a session through the library of that name, which is loaded from the folder that the
/// environment variable KVGUICTL_ENGINES names, otherwise from beside this one or from the folder
/// "lib" next to its own. `client` names what the user must install when it cannot be loaded.
std::unique_ptr<Session> OpenThroughModule(const char* library, const char* client,
                                           const CKvDbInfo& info);

}  // namespace kv::db
