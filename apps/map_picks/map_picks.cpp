#include "map_picks/map_picks.h"

#include <QApplication>
#include <string>

#include "frame/catalogue.h"
#include "frame/graphics.h"
#include "frame/kvdbkvn/db_abs_data_mgr.h"
#include "frame/kvdbkvn/db_dataset_set.h"
#include "map_picks/block_rows.h"
#include "window/dialogs/message_box.h"

namespace map_picks {

namespace {

enum Column : int { kLabel, kArea, kNumber, kReference, kLat, kLon };

std::string Statement() {
    const std::string stem =
        CKvDbDatasetSet::S_GetGlobalOwner() + "." + CKvDbDatasetSet::S_GetGlobalDataset();
    return kv::catalogue::BlockLabelExpression() +
           "lbnum||lbext), areaname, lbnum, i.refnum, lat, lon from " + stem +
           kv::catalogue::kBlockTable + " i, " + stem + kv::catalogue::kVertexTable + " v, " +
           stem + kv::catalogue::kAreaTable +
           " c where v.refnum = i.refnum and c.stcode = i.areacode and areaname is not null order "
           "by i.refnum, ptnum";
}

/// The map takes a while to be read.
class BusyPointer {
public:
    BusyPointer() { QApplication::setOverrideCursor(Qt::WaitCursor); }
    ~BusyPointer() { QApplication::restoreOverrideCursor(); }
    BusyPointer(const BusyPointer&) = delete;
    BusyPointer& operator=(const BusyPointer&) = delete;
};

std::string Pick() {
    std::vector<kv::qt::MapBlock> blocks;
    try {
        const BusyPointer busy;
        blocks = ReadBlocks();
    } catch (const CKvException& failure) {
        AfxMessageBox(failure.GetErrorMessage(true, true).c_str(), 0, 0);
        return {};
    }
    return kv::qt::PickBlocksOnMap(std::move(blocks));
}

}  // namespace

std::vector<kv::qt::MapBlock> ReadBlocks() {
    CKvDbAbsDataMgr db(1);
    db.Connect();
    db.Select(Statement());
    BlocksOfRows blocks;
    for (int row = 0; row < db.NumberOfRows(); ++row) {
        const auto cell = [&](Column column) { return db.GetItem(row, column); };
        blocks.Add(
            {cell(kLabel), cell(kArea), cell(kNumber), cell(kReference), cell(kLat), cell(kLon)});
    }
    db.FreeData();
    db.Disconnect();
    return blocks.Take();
}

void Install() {
    kv::SetGraphics([](const auto&...) { return Pick(); });
}

}  // namespace map_picks
