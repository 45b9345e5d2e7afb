#include "sample_map.h"

#include <cstdlib>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "sampledata/dataset.h"

namespace bench {

namespace {

using workbench::AreaMap;
using workbench::FeatureLayer;
using workbench::Point;

/// Takes the dataset's rows and sorts those that the map shows by area.
class MapSink final : public kv::sample::Sink {
public:
    void Begin(const kv::sample::Table& table) override { table_ = &table; }
    void Add(const kv::sample::Row& row) override {
        const std::string_view name = table_->name;
        const auto ends = [name](std::string_view end) { return name.ends_with(end); };
        if (ends("_connam2")) {
            AreaOf(Cell(row, "stcode")).name = Cell(row, "areaname");
            AreaOf(Cell(row, "stcode")).mmsCode = Cell(row, "area_abbr");
        } else if (ends("_lbi")) {
            blocks_[Cell(row, "refnum")] = {&AreaOf(Cell(row, "areacode")),
                                            Cell(row, "lbnum") + Cell(row, "lbext")};
        } else if (ends("_lbv")) {
            AddCorner(row);
        } else if (ends("_well_hdr")) {
            FeatureLayer& wells = AreaOf(Cell(row, "areacode")).wells;
            wells.Begin(Cell(row, "well_name"), workbench::WellKindOf(Cell(row, "status")));
            wells.Add(PlaceOf(row, "surf_lat", "surf_lon"));
        } else if (ends("_platform")) {
            FeatureLayer& platforms = AreaOf(Cell(row, "areacode")).platforms;
            platforms.Begin(Cell(row, "structure"), Cell(row, "removal_date").empty()
                                                        ? workbench::kPlatformStanding
                                                        : workbench::kPlatformRemoved);
            platforms.Add(PlaceOf(row, "lat", "lon"));
        } else if (ends("_pipeline")) {
            pipelines_[Cell(row, "segment_no")] = {&AreaOf(Cell(row, "areacode")),
                                                   Cell(row, "product")};
        } else if (ends("_pipeline_pt")) {
            AddVertex(row);
        }
    }
    void End() override {}

    workbench::MapModel Finish() {
        workbench::MapModel model;
        for (auto& [code, area] : areas_) {
            area->Finish();
            model.Add(std::move(area));
        }
        return model;
    }

private:
    struct Part {
        AreaMap* area;
        std::string text;
    };

    AreaMap& AreaOf(const std::string& code) {
        std::unique_ptr<AreaMap>& area = areas_[code];
        if (!area) {
            area = std::make_unique<AreaMap>();
            area->code = code;
        }
        return *area;
    }
    const std::string& Cell(const kv::sample::Row& row, std::string_view column) const {
        std::size_t at = 0;
        while (table_->columns[at].name != column)
            ++at;
        return row[at];
    }
    Point PlaceOf(const kv::sample::Row& row, const char* lat, const char* lon) const {
        return workbench::ToMap(
            {std::atof(Cell(row, lat).c_str()), std::atof(Cell(row, lon).c_str())});
    }
    void AddCorner(const kv::sample::Row& row) {
        const Part& block = blocks_.at(Cell(row, "refnum"));
        if (Cell(row, "ptnum") == "1") block.area->blocks.Begin(block.text);
        block.area->blocks.Add(PlaceOf(row, "lat", "lon"));
    }
    void AddVertex(const kv::sample::Row& row) {
        const Part& line = pipelines_.at(Cell(row, "segment_no"));
        if (Cell(row, "ptnum") == "1") {
            line.area->pipelines.Begin("", workbench::PipelineKindOf(line.text));
        }
        line.area->pipelines.Add(PlaceOf(row, "lat", "lon"));
    }

    const kv::sample::Table* table_ = nullptr;
    std::map<std::string, std::unique_ptr<AreaMap>> areas_;
    std::unordered_map<std::string, Part> blocks_;
    std::unordered_map<std::string, Part> pipelines_;
};

workbench::MapModel Make() {
    MapSink sink;
    kv::sample::WriteDataset(sink, [](const std::string&) {});
    return sink.Finish();
}

}  // namespace

const workbench::MapModel& SampleMap() {
    static const workbench::MapModel map = Make();
    return map;
}

}  // namespace bench
