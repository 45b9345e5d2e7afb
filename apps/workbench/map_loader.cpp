#include "workbench/map_loader.h"

#include <algorithm>
#include <utility>

#include "frame/catalogue.h"
#include "frame/kvcom/cancelled.h"
#include "workbench/dataset.h"
#include "workbench/failure_words.h"

namespace workbench {

namespace {

std::string OfArea(const AreaMap& area, const char* table) {
    return std::string(table) + ".areacode = " + Quoted(area.code);
}

/// Outlines or lines, from rows of (number, label, kind, latitude, longitude): rows with one number
/// behind each other are one thing.
template <typename KindOf>
void AddThings(FeatureLayer& layer, const std::string& statement, KindOf&& kindOf) {
    const Rows rows(statement);
    std::string number;
    for (int row = 0; row < rows.Count(); ++row) {
        if (row == 0 || number != rows.Cell(row, 0)) {
            number = rows.Cell(row, 0);
            layer.Begin(rows.Cell(row, 1), kindOf(rows.Cell(row, 2)));
        }
        layer.Add(ToMap({rows.Number(row, 3), rows.Number(row, 4)}));
    }
}

void ReadBlocks(AreaMap& area) {
    AddThings(area.blocks,
              "select b.refnum, b.lbnum||b.lbext, '', v.lat, v.lon from " +
                  TableName(kv::catalogue::kBlockTable) + " b, " +
                  TableName(kv::catalogue::kVertexTable) + " v where " + OfArea(area, "b") +
                  " and v.refnum = b.refnum order by b.refnum, v.ptnum",
              [](const char*) { return std::uint8_t{0}; });
}

void ReadWells(AreaMap& area) {
    AddThings(area.wells,
              "select w.api_no, w.well_name, w.status, w.surf_lat, w.surf_lon from " +
                  TableName("_well_hdr") + " w where " + OfArea(area, "w") +
                  " and w.surf_lat is not null order by w.api_no",
              [](const char* status) { return WellKindOf(status); });
}

void ReadPlatforms(AreaMap& area) {
    AddThings(area.platforms,
              "select p.complex_id, p.structure||'-'||p.complex_id, p.removal_date, p.lat, p.lon "
              "from " +
                  TableName("_platform") + " p where " + OfArea(area, "p") +
                  " and p.lat is not null order by p.complex_id",
              [](const char* removed) { return *removed ? kPlatformRemoved : kPlatformStanding; });
}

void ReadPipelines(AreaMap& area) {
    AddThings(area.pipelines,
              "select p.segment_no, p.segment_no, p.product, v.lat, v.lon from " +
                  TableName("_pipeline") + " p, " + TableName("_pipeline_pt") + " v where " +
                  OfArea(area, "p") +
                  " and v.segment_no = p.segment_no order by p.segment_no, v.ptnum",
              [](const char* product) { return PipelineKindOf(product); });
}

}  // namespace

const MapLoader::Layer MapLoader::kLayers[] = {
    {"wells", &ReadWells}, {"platforms", &ReadPlatforms}, {"pipelines", &ReadPipelines}};

MapLoader::MapLoader(MapModel& model, std::function<void()> areaAdded,
                     std::function<void(const QString&)> lacks)
    : model_(model), areaAdded_(std::move(areaAdded)), lacks_(std::move(lacks)) {}

bool MapLoader::Step() {
    if (!listRead_) {
        ReadAreas();
        return !areas_.empty();
    }
    while (next_ < areas_.size() && areas_[next_].read)
        ++next_;
    if (next_ == areas_.size()) return false;
    ReadArea(areas_[next_]);
    return done_ < Total();
}

void MapLoader::ReadAreas() {
    const Rows rows(std::string("select ") + kv::catalogue::kColumnAreaCode + ", " +
                    kv::catalogue::kColumnAreaName + ", " + kv::catalogue::kColumnMmsCode +
                    " from " + TableName(kv::catalogue::kAreaTable) + " order by " +
                    kv::catalogue::kColumnAreaCode);
    listRead_ = true;
    for (int row = 0; row < rows.Count(); ++row) {
        areas_.push_back({rows.Cell(row, 0), rows.Cell(row, 1), rows.Cell(row, 2)});
    }
    ReadBounds();
    // The widest areas first, so that the map is soon seen as a whole.
    std::stable_partition(areas_.begin(), areas_.end(),
                          [](const AreaRow& area) { return WaterOf(area.code) == Water::kDeep; });
}

/// So that the map need not grow with each area.
void MapLoader::ReadBounds() {
    const Rows rows("select min(lat), min(lon), max(lat), max(lon) from " +
                    TableName(kv::catalogue::kVertexTable));
    if (rows.Count() == 0 || !*rows.Cell(0, 0)) return;
    Box bounds;
    bounds.Include(ToMap({rows.Number(0, 0), rows.Number(0, 1)}));
    bounds.Include(ToMap({rows.Number(0, 2), rows.Number(0, 3)}));
    model_.Expect(bounds);
}

void MapLoader::ReadArea(AreaRow& row) {
    auto area = std::make_unique<AreaMap>();
    area->code = row.code, area->name = row.name, area->mmsCode = row.mmsCode;
    ReadBlocks(*area);
    for (const Layer& layer : kLayers)
        ReadOptional(layer, *area);
    area->Finish();
    model_.Add(std::move(area));
    row.read = true;
    ++done_;
    areaAdded_();
}

void MapLoader::ReadOptional(const Layer& layer, AreaMap& area) {
    if (failed_.count(&layer)) return;
    try {
        layer.read(area);
    } catch (const CKvCancelled&) {
        throw;
    } catch (const CKvException& e) {
        failed_.insert(&layer);
        if (untold_.isEmpty()) why_ = FailureWords(e);
        untold_ << QString::fromLatin1(layer.name);
    }
}

/// Of all that failed by now at once.
void MapLoader::TellWhatLacks() {
    const QStringList names = std::exchange(untold_, {});
    if (names.isEmpty()) return;
    lacks_(QStringLiteral("The map goes without %1, which could not be read.\n%2")
               .arg(names.join(QStringLiteral(", ")), why_));
}

void MapLoader::Need(const std::vector<std::string>& areaCodes) {
    if (!listRead_) ReadAreas();
    for (AreaRow& row : areas_) {
        const bool asked =
            std::find(areaCodes.begin(), areaCodes.end(), row.code) != areaCodes.end();
        if (asked && !row.read) ReadArea(row);
    }
    TellWhatLacks();
}

}  // namespace workbench
