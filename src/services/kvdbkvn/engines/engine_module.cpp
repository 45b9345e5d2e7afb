#include "services/kvdbkvn/engines/engine_module.h"

#include <dlfcn.h>
#include <link.h>

#include <array>
#include <cstdlib>
#include <filesystem>
#include <map>
#include <utility>
#include <vector>

#include "frame/kvcom/exception.h"
#include "services/kvdbkvn/engines/database_fault.h"
#include "services/kvdbkvn/engines/statement_wait.h"

namespace kv::db {
namespace {

namespace fs = std::filesystem;

/// Puts exceptions in the place of a module's failure texts.
class SessionOfModule final : public Session {
public:
    explicit SessionOfModule(std::unique_ptr<ModuleSession> session)
        : session_(std::move(session)) {
        session_->StopQueryWhen(&StatementWait::IsOver);
    }

    dialect::Target Target() const override { return session_->Target(); }
    bool HasOwnFunctions() const override { return session_->Target() == dialect::Target::kOracle; }
    bool IsAlive() override { return session_->IsAlive(); }
    bool WasGoneAhead() const override { return session_->WasGoneAhead(); }
    bool HasSchema(const std::string& name) override { return session_->HasSchema(name); }

    const dialect::Columns& ColumnsOf(const std::string& schema,
                                      const std::string& table) override {
        std::string failure;
        const dialect::Columns* columns = session_->ColumnsOf(schema, table, failure);
        if (!columns) throw CKvException(failure);
        return *columns;
    }

    void LimitStatements(std::chrono::milliseconds limit) override {
        std::string failure;
        if (!session_->LimitStatements(limit, failure)) throw CKvException(failure);
    }

    void Check(const std::string& sql) override {
        std::string failure;
        if (!session_->Check(sql, failure)) throw CKvException(failure, sql);
    }
    std::unique_ptr<Rows> Query(const std::string& sql) override {
        FailWhereAsked("query");
        std::string failure;
        auto rows = session_->Query(sql, failure);
        if (!rows) throw CKvException(failure, sql);
        return rows;
    }
    int Execute(const std::string& sql) override {
        FailWhereAsked("execute");
        std::string failure;
        const int changed = session_->Execute(sql, failure);
        if (changed < 0) throw CKvException(failure, sql);
        return changed;
    }
    void Commit() override {
        try {
            FailWhereAsked("commit");
        } catch (const CKvException& failure) {
            session_->Rollback();
            throw CKvException(CommitFailure(failure.what()));
        }
        std::string failure;
        if (!session_->Commit(failure)) throw CKvException(failure);
    }
    bool Rollback() noexcept override { return session_->Rollback(); }

private:
    std::unique_ptr<ModuleSession> session_;
};

/// The folder of the file that this code was loaded from. The program itself has no name in the
/// loader's list.
fs::path OwnFolder() {
    Dl_info info{};
    link_map* map = nullptr;
    const bool found = dladdr1(reinterpret_cast<const void*>(&OpenThroughModule), &info,
                               reinterpret_cast<void**>(&map), RTLD_DL_LINKMAP) != 0;
    std::error_code ignored;
    if (found && map && map->l_name && *map->l_name)
        return fs::weakly_canonical(map->l_name, ignored).parent_path();
    return fs::read_symlink("/proc/self/exe", ignored).parent_path();
}

/// Below the library, or below the folder "lib" beside a program that is linked without it.
std::vector<fs::path> ModuleFolders() {
    if (const char* folder = std::getenv("KVGUICTL_ENGINES"); folder && *folder) return {folder};
    const fs::path own = OwnFolder();
    return {own / "KVGuiCtl", own.parent_path() / "lib" / "KVGuiCtl"};
}

fs::path FindModule(const std::string& library) {
    for (const fs::path& folder : ModuleFolders()) {
        std::error_code ignored;
        fs::path file = folder / (library + ".so");
        if (fs::exists(file, ignored)) return file;
    }
    return {};
}

/// Modules stay loaded: their client libraries do not all survive being unloaded.
OpenModuleSession* Load(const std::string& library, const std::string& client) {
    static std::map<std::string, OpenModuleSession*> loaded;
    if (auto known = loaded.find(library); known != loaded.end()) return known->second;

    const fs::path file = FindModule(library);
    if (file.empty())
        throw CKvException("The engine for " + client + " is not installed (" + library +
                           ".so is missing)");
    void* handle = dlopen(file.c_str(), RTLD_NOW | RTLD_LOCAL);
    void* entry = handle ? dlsym(handle, kOpenModuleSession) : nullptr;
    if (!entry) {
        const char* reason = dlerror();
        throw CKvException("The " + client + " client library is not installed (" +
                           (reason ? reason : library) + ")");
    }
    return loaded[library] = reinterpret_cast<OpenModuleSession*>(entry);
}

}  // namespace

std::unique_ptr<Session> OpenThroughModule(const char* library, const char* client,
                                           const CKvDbInfo& info) {
    OpenModuleSession* open = Load(library, client);
    std::string failure;
    std::unique_ptr<ModuleSession> session(open(info, failure));
    if (!session) throw CKvException(failure);
    return std::make_unique<SessionOfModule>(std::move(session));
}

}  // namespace kv::db
