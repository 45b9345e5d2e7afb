// The bounds of a map of many picked blocks, beside the same statements on the bare engine and the
// same calls of the coordinate driver.

#include <algorithm>
#include <limits>
#include <string>
#include <vector>

#include "frame/kvcom/min_max_2dd.h"
#include "frame/kvcom/util_lldrv.h"
#include "frame/kvdbkvn/db_abs_data_mgr.h"
#include "frame/kvdbkvn/statement_trace.h"
#include "mapbuild/builders/quick_off_bld_dlg.h"
#include "peers.h"
#include "ratio.h"
#include "services/kvdbkvn/dialect/translate.h"

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

void Connect() {
    CKvDbInfo info("", "", ("sqlite:" + bench::SamplePath()).c_str());
    CKvDbAbsDataMgr(1).SetDbInfo(info);
}

/// All steps, of a dialog that has asked for nothing yet.
CMinMax2Dd_t Compute(std::vector<std::string>& picks) {
    CKvGuiQuickOffBldDlg dialog(nullptr);
    dialog.SetIDs(picks);
    dialog.SetMode(0, 1, 0);
    dialog.SetProj(kProjection);
    dialog.SetXYBounded(true);
    dialog.ComputeALL();
    return dialog.GetXYMapBounds();
}

void ComputeOurs(benchmark::State& state) {
    Connect();
    std::vector<std::string> picks = Picks();
    CMinMax2Dd_t bounds;
    for (auto _ : state)
        bounds = Compute(picks);
    if (bounds.minX >= bounds.maxX) state.SkipWithError("no bounds");
}

std::vector<std::string> StatementsOf(std::vector<std::string>& picks) {
    Connect();
    std::vector<std::string> statements;
    kv::db::SetStatementTrace([&](const std::string& sql) {
        statements.push_back(kv::dialect::Translate(sql, {}).text);
    });
    Compute(picks);
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
    BareEngine engine;
    Bounds bounds;
    for (auto _ : state) {
        bounds = {};
        for (const std::string& statement : statements) {
            const bool corners = statement.starts_with(kCorners);
            engine.Read(statement, [&](sqlite3_stmt* row) {
                if (corners) {
                    bounds.Add(sqlite3_column_double(row, 1), sqlite3_column_double(row, 2));
                } else {
                    benchmark::DoNotOptimize(sqlite3_column_text(row, 0));
                }
            });
        }
    }
    if (bounds.XY().minX >= bounds.XY().maxX) state.SkipWithError("no bounds");
}

const bench::Subject kSubject{"map bounds/500 picked blocks", 1.2, ComputeOurs, ComputePeer};

}  // namespace
