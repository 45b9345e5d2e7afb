#include "peers.h"

#include <sqlite3.h>
#include <unistd.h>

#include <filesystem>
#include <vector>

#include "frame/kvdbkvn/db_abs_data_mgr.h"
#include "sampledata/dataset.h"
#include "sampledata/loader_sqlite.h"

namespace bench {

PassingFile::PassingFile(const std::string& name)
    : path_((std::filesystem::temp_directory_path() /
             ("kvbench-" + name + "-" + std::to_string(getpid()) + ".db"))
                .string()) {}

PassingFile::~PassingFile() {
    std::filesystem::remove(path_);
}

const std::string& SamplePath() {
    struct SampleFile : PassingFile {
        SampleFile() : PassingFile("sample") {
            kv::sample::SqliteLoader loader(Path());
            kv::sample::WriteDataset(loader, [](const std::string&) {});
            loader.Finish();
        }
    };
    static const SampleFile file;
    return file.Path();
}

void ConnectToSample() {
    CKvDbInfo info("", "", ("sqlite:" + SamplePath()).c_str());
    CKvDbAbsDataMgr(1).SetDbInfo(info);
}

void QueryBareEngine(benchmark::State& state, const std::string& path, const std::string& sql) {
    sqlite3* database = nullptr;
    sqlite3_open_v2(path.c_str(), &database, SQLITE_OPEN_READONLY, nullptr);
    for (auto _ : state) {
        std::vector<std::string> rows;
        sqlite3_stmt* statement = nullptr;
        if (sqlite3_prepare_v2(database, sql.c_str(), -1, &statement, nullptr) != SQLITE_OK) {
            state.SkipWithError(sqlite3_errmsg(database));
            break;
        }
        while (sqlite3_step(statement) == SQLITE_ROW) {
            rows.emplace_back(reinterpret_cast<const char*>(sqlite3_column_text(statement, 0)));
        }
        sqlite3_finalize(statement);
        benchmark::DoNotOptimize(rows);
    }
    sqlite3_close(database);
}

}  // namespace bench
