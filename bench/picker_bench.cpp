// Filling the block box of the largest area beside a bare loop over the same statement in the
// engine's own client.

#include <string>

#include "frame/kvdbkvn/db_abs_data_mgr.h"
#include "frame/kvdbkvn/statement_trace.h"
#include "peers.h"
#include "pickers/blk_combo_box.h"
#include "ratio.h"
#include "services/kvdbkvn/dialect/translate.h"
#include "window/frames/frame_wnd.h"

namespace {

/// The block box in a window of its own, on the area with the most blocks.
struct BlockBox {
    BlockBox() {
        CKvDbInfo info("", "", ("sqlite:" + bench::SamplePath()).c_str());
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
    bench::QueryBareEngine(state, bench::SamplePath(), sql);
}

const bench::Subject kFill("pickers/fill the block box", 1.5, FillOurs, FillPeer);

}  // namespace
