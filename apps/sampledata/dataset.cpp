#include "sampledata/dataset.h"

#include "sampledata/areas.h"
#include "sampledata/blocks.h"
#include "sampledata/counties.h"
#include "sampledata/leases.h"
#include "sampledata/pipelines.h"
#include "sampledata/scaled_areas.h"
#include "sampledata/wells.h"
#include "sampledata/zones.h"

namespace kv::sample {
namespace {

void WriteAreas(std::span<const Area> areas, Sink& sink) {
    sink.Begin(TableNamed("gulf_mexico_connam2"));
    for (const Area& area : areas)
        sink.Add({area.name, area.code, area.mmsCode});
    sink.End();

    sink.Begin(TableNamed("gulf_mexico_area_projection"));
    for (const Area& area : areas)
        sink.Add({area.code, std::to_string(area.projection)});
    sink.End();

    sink.Begin(TableNamed("nvd2000_area_order"));
    int place = 0;
    for (const Area& area : areas) {
        const std::string text = std::to_string(++place);
        sink.Add({area.name, text, text});
    }
    sink.End();
}

void WriteBlocks(const std::vector<Block>& blocks, Sink& sink) {
    sink.Begin(TableNamed("gulf_mexico_lbi"));
    for (const Block& block : blocks) {
        sink.Add({block.area->code, std::to_string(block.number), block.ext,
                  std::to_string(block.refnum)});
    }
    sink.End();

    sink.Begin(TableNamed("gulf_mexico_lbv"));
    for (const Block& block : blocks) {
        int point = 0;
        for (const GeoPoint& corner : block.outline) {
            sink.Add({std::to_string(block.refnum), std::to_string(++point),
                      DegreesText(corner.lat), DegreesText(corner.lon)});
        }
    }
    sink.End();
}

/// The work table of block selections is there, and empty.
void WriteWorkTable(Sink& sink) {
    sink.Begin(TableNamed("nvd2000_tmp_abe2"));
    sink.End();
}

}  // namespace

void WriteDataset(Sink& sink, const std::function<void(const std::string&)>& progress, int scale) {
    const ScaledAreas areas(scale);
    progress("areas, counties and projection zones");
    WriteAreas(areas.All(), sink);
    WriteZones(sink);
    WriteCounties(sink);
    WriteWorkTable(sink);

    progress("blocks");
    const std::vector<Block> blocks = LayOutBlocks(areas.All());
    WriteBlocks(blocks, sink);

    progress("leases, owners and bids");
    const std::vector<Lease> leases = MakeLeases(blocks);
    WriteLeases(leases, sink);

    progress("wells and completions");
    const std::vector<Well> wells = DrillWells(leases);
    WriteWells(wells, sink);

    progress("platforms, plans, permits, prospects, fields and shotpoints");
    const std::vector<Site> platforms = WriteSites(leases, scale, sink);

    progress("pipelines");
    WritePipelines(blocks, platforms, sink);
}

}  // namespace kv::sample
