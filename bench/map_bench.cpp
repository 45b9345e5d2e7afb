// The bounds of a map of many picked blocks, beside the queries and the calls of the coordinate
// driver that they take, made one after the other with nothing around them.

#include <algorithm>
#include <limits>
#include <memory>
#include <string>
#include <vector>

#include "base/numbers.h"
#include "frame/kvcom/min_max_2dd.h"
#include "frame/kvcom/util_lldrv.h"
#include "frame/kvdbkvn/db_abs_data_mgr.h"
#include "frame/kvdbkvn/statement_trace.h"
#include "mapbuild/builders/quick_off_bld_dlg.h"
#include "peers.h"
#include "ratio.h"

namespace {

constexpr int kBlocks = 500;
constexpr int kProjection = 115;
constexpr int kMeters = 1;
constexpr const char* kCorners = "select refnum, lat, lon";

using bench::BareEngine;

/// Blocks of several areas.
std::vector<std::string> Picks() {
    std::vector<std::string> picks;
    BareEngine().Read(
        "select areaname, lbnum || coalesce(lbext, '') from gulf_mexico_lbi join "
        "gulf_mexico_connam2 on stcode = areacode where area_abbr is not null and stcode > '435' "
        "order by refnum limit " +
            std::to_string(kBlocks),
        [&](sqlite3_stmt* row) {
            const auto text = [row](int column) {
                return std::string(reinterpret_cast<const char*>(sqlite3_column_text(row, column)));
            };
            picks.push_back(text(0) + "#" + text(1));
        });
    return picks;
}

/// A dialog that has asked for nothing yet.
std::unique_ptr<CKvGuiQuickOffBldDlg> DialogFor(std::vector<std::string>& picks) {
    auto dialog = std::make_unique<CKvGuiQuickOffBldDlg>(nullptr);
    dialog->SetIDs(picks);
    dialog->SetMode(0, 1, 0);
    dialog->SetProj(kProjection);
    dialog->SetXYBounded(true);
    return dialog;
}

void ComputeOurs(benchmark::State& state) {
    bench::ConnectToSample();
    std::vector<std::string> picks = Picks();
    std::unique_ptr<CKvGuiQuickOffBldDlg> dialog;
    for (auto _ : state) {
        state.PauseTiming();
        dialog = DialogFor(picks);
        state.ResumeTiming();
        dialog->ComputeALL();
    }
    const CMinMax2Dd_t bounds = dialog->GetXYMapBounds();
    if (bounds.minX >= bounds.maxX) state.SkipWithError("no bounds");
}

std::vector<std::string> StatementsOf(std::vector<std::string>& picks) {
    bench::ConnectToSample();
    std::vector<std::string> statements;
    kv::db::SetStatementTrace([&](const std::string& sql) { statements.push_back(sql); });
    DialogFor(picks)->ComputeALL();
    kv::db::SetStatementTrace(nullptr);
    return statements;
}

/// Around the corners, in meters and in degrees.
class Bounds {
public:
    void Add(double lat, double lon) {
        double x = 0.0;
        double y = 0.0;
        CKvUtilLLdrv::LLdrv(lat, lon, &x, &y, kProjection, kMeters, 1, 100.0, 0.0, 0.0);
        Take(xy_, x, y);
        Take(angles_, lat, lon);
    }
    const CMinMax2Dd_t& XY() const { return xy_; }

private:
    static constexpr double kFar = std::numeric_limits<double>::infinity();
    static void Take(CMinMax2Dd_t& bounds, double x, double y) {
        bounds = {std::min(bounds.minX, x), std::max(bounds.maxX, x), std::min(bounds.minY, y),
                  std::max(bounds.maxY, y)};
    }
    CMinMax2Dd_t xy_{kFar, -kFar, kFar, -kFar};
    CMinMax2Dd_t angles_{kFar, -kFar, kFar, -kFar};
};

void ComputePeer(benchmark::State& state) {
    std::vector<std::string> picks = Picks();
    const std::vector<std::string> statements = StatementsOf(picks);
    Bounds bounds;
    for (auto _ : state) {
        bounds = {};
        CKvDbAbsDataMgr manager(1);
        manager.Connect();
        for (const std::string& statement : statements) {
            manager.Select(statement);
            if (!statement.starts_with(kCorners)) continue;
            for (int row = 0; row < manager.NumberOfRows(); ++row)
                bounds.Add(kv::Atof(manager.GetItem(row, 1)), kv::Atof(manager.GetItem(row, 2)));
        }
        manager.Disconnect();
    }
    if (bounds.XY().minX >= bounds.XY().maxX) state.SkipWithError("no bounds");
}

const bench::Subject kSubject{"map bounds/500 picked blocks",
                              1.2,
                              ComputeOurs,
                              ComputePeer,
                              bench::Clock::kCpu,
                              bench::Turns::kShort};

}  // namespace
