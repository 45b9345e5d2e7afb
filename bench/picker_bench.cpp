// Filling the block box of the largest area beside a bare loop over the same statement in the
// engine's own client.

#include <sqlite3.h>
#include <unistd.h>

#include <filesystem>
#include <string>

#include "frame/db_abs_data_mgr.h"
#include "frame/statement_trace.h"
#include "pickers/blk_combo_box.h"
#include "ratio.h"
#include "sampledata/dataset.h"
#include "sampledata/loader_sqlite.h"
#include "services/kvdbkvn/dialect.h"
#include "window/frame_wnd.h"

namespace {

/// The sample database in a file of its own, gone when the program ends.
class SampleFile {
public:
    SampleFile()
        : path_((std::filesystem::temp_directory_path() /
                 ("kvbench-sample-" + std::to_string(getpid()) + ".db"))
                    .string()) {
        kv::sample::SqliteLoader loader(path_);
        kv::sample::WriteDataset(loader, [](const std::string&) {});
        loader.Finish();
    }
    ~SampleFile() { std::filesystem::remove(path_); }
    const std::string& Path() const { return path_; }

private:
    std::string path_;
};

const std::string& SamplePath() {
    static const SampleFile file;
    return file.Path();
}

/// The block box in a window of its own, on the area with the most blocks.
struct BlockBox {
    BlockBox() {
        CKvDbInfo info("", "", ("sqlite:" + SamplePath()).c_str());
        CKvDbAbsDataMgr manager(1);
        manager.SetDbInfo(info);
        manager.Connect();
        manager.Select(
            "select areacode, count(*) from NORVADON.gulf_mexico_lbi group by areacode order by 2 "
            "desc");
        combo.SetArea(manager.GetItem(0, 0));
        manager.Disconnect();
        combo.SetMode(kv::catalogue::kAreaCode);
        frame.Create("Host");
        combo.Create(WS_CHILD | WS_VISIBLE | CBS_DROPDOWN, {0, 0, 200, 400}, &frame, 1);
    }
    CFrameWnd frame;
    CKvBlkComboBox combo;
};

void FillOurs(benchmark::State& state) {
    BlockBox box;
    for (auto _ : state)
        box.combo.V_InitializeCombo();
}

void FillPeer(benchmark::State& state) {
    BlockBox box;
    std::string statementText;
    kv::db::SetStatementTrace([&](const std::string& sql) { statementText = sql; });
    box.combo.V_InitializeCombo();
    kv::db::SetStatementTrace(nullptr);
    const std::string sql = kv::dialect::Translate(statementText, {}).text;
    sqlite3* database = nullptr;
    sqlite3_open_v2(SamplePath().c_str(), &database, SQLITE_OPEN_READONLY, nullptr);
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

const bench::Subject kFill("pickers/fill the block box", 1.5, FillOurs, FillPeer);

}  // namespace
