// Filling the area box of a built map, the whole Gulf and a small box of it, beside the same
// statements and look-ups on bare SQLite.

#include <sqlite3.h>

#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "frame/kvdbkvn/db_abs_data_mgr.h"
#include "frame/kvdbkvn/statement_trace.h"
#include "peers.h"
#include "pickers/built_map_area_combo_box.h"
#include "pickers/built_map_blk_combo_box.h"
#include "ratio.h"
#include "services/kvdbkvn/dialect/translate.h"
#include "window/frames/frame_wnd.h"

namespace {

struct Map {
    double minLat, maxLat, minLon, maxLon;
};
constexpr Map kGulf{23, 31, -98, -80};
constexpr Map kSmall{27.4, 27.8, -91.2, -90.6};

/// A box in a window of its own, inside a map.
template <typename Box>
struct MapBox {
    explicit MapBox(const Map& map) {
        bench::ConnectToSample();
        frame.Create("Host");
        box.Create(WS_CHILD | WS_VISIBLE | CBS_DROPDOWN, {0, 0, 200, 400}, &frame, 1);
        box.SetMinLat(map.minLat);
        box.SetMaxLat(map.maxLat);
        box.SetMinLon(map.minLon);
        box.SetMaxLon(map.maxLon);
    }
    CFrameWnd frame;
    Box box;
};

using AreaBox = MapBox<CKvBuiltMapAreaComboBox>;
using BlockBox = MapBox<CKvBuiltMapBlkComboBox>;

AreaBox& Prepared(AreaBox& area) {
    area.box.SetMode(kv::catalogue::kAreaName);
    return area;
}

BlockBox& Prepared(BlockBox& block) {
    block.box.SetMode(kv::catalogue::kAreaName);
    block.box.SetArea("GREEN CANYON");
    return block;
}

template <typename Box, const Map& map>
void Ours(benchmark::State& state) {
    Box box(map);
    Prepared(box);
    for (auto _ : state)
        box.box.V_InitializeCombo();
}

struct Close {
    void operator()(sqlite3* database) const { sqlite3_close(database); }
    void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
};

std::vector<std::string> Column(sqlite3* database, const std::string& sql) {
    sqlite3_stmt* raw = nullptr;
    if (sqlite3_prepare_v2(database, sql.c_str(), -1, &raw, nullptr) != SQLITE_OK)
        throw std::runtime_error(sqlite3_errmsg(database));
    const std::unique_ptr<sqlite3_stmt, Close> statement(raw);
    std::vector<std::string> rows;
    while (sqlite3_step(raw) == SQLITE_ROW) {
        const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(raw, 0));
        rows.emplace_back(text ? text : "");
    }
    return rows;
}

/// All that the box asks, one behind the other.
template <typename Box, const Map& map>
void Peer(benchmark::State& state) {
    std::vector<std::string> statements;
    {
        Box box(map);
        Prepared(box);
        kv::db::SetStatementTrace([&](const std::string& sql) {
            statements.push_back(kv::dialect::Translate(sql, {}).text);
        });
        box.box.V_InitializeCombo();
        kv::db::SetStatementTrace(nullptr);
    }
    sqlite3* raw = nullptr;
    sqlite3_open_v2(bench::SamplePath().c_str(), &raw, SQLITE_OPEN_READONLY, nullptr);
    const std::unique_ptr<sqlite3, Close> database(raw);
    for (auto _ : state) {
        for (const std::string& sql : statements)
            benchmark::DoNotOptimize(Column(raw, sql));
    }
}

const bench::Subject kAreasOfTheGulf("built map/areas of the whole Gulf", 1.2, Ours<AreaBox, kGulf>,
                                     Peer<AreaBox, kGulf>, bench::Clock::kCpu,
                                     bench::Turns::kShort);
const bench::Subject kAreasOfABox("built map/areas of a small box", 1.2, Ours<AreaBox, kSmall>,
                                  Peer<AreaBox, kSmall>, bench::Clock::kCpu, bench::Turns::kShort);
const bench::Subject kBlocksOfTheGulf("built map/blocks of the whole Gulf", 1.2,
                                      Ours<BlockBox, kGulf>, Peer<BlockBox, kGulf>,
                                      bench::Clock::kCpu, bench::Turns::kShort);
const bench::Subject kBlocksOfABox("built map/blocks of a small box", 1.2, Ours<BlockBox, kSmall>,
                                   Peer<BlockBox, kSmall>, bench::Clock::kCpu,
                                   bench::Turns::kShort);

}  // namespace
