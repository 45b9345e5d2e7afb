#include "support/host_forms_contract.h"
#include "support/sqlite_file.h"
#include "support/temp_folder.h"

namespace test {
namespace {

class SqliteHost : public HostDatabase {
public:
    explicit SqliteHost(std::string prefix) : prefix_(std::move(prefix)) {
        MakeSqliteFile(path_);
        RunOnSqliteFile(path_, kv::test::kDialectTables);
    }
    std::string Server() const override { return prefix_ + path_; }

private:
    TempFolder folder_;
    std::string path_ = folder_.Native("host.db");
    std::string prefix_;
};

HostEngine Sqlite(const char* name, const char* prefix) {
    return {name, false, [prefix] { return std::make_unique<SqliteHost>(prefix); }};
}

INSTANTIATE_TEST_SUITE_P(Engines, HostForms,
                         testing::Values(Sqlite("Sqlite", "sqlite:"),
                                         Sqlite("SqliteOverOdbc", "odbc:Driver=SQLite3;Database=")),
                         [](const auto& engine) { return engine.param.name; });

}  // namespace
}  // namespace test
