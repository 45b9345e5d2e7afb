#pragma once

#include <functional>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "workbench/map/map_model.h"
#include "workbench/step_work.h"

namespace workbench {

/// Reads the map from the database in force into a model, an area at a step.
///
/// Areas and blocks have to be there. Where a table of wells, platforms or pipelines cannot be
/// read, the log says so, and the map goes without it.
class MapLoader final : public StepWork {
public:
    /// `model`, which outlives the loader, must be empty. `areaAdded` is called behind each step
    /// that added an area.
    MapLoader(MapModel& model, std::function<void()> areaAdded);

    std::string Title() const override { return "Reading the map"; }
    int Done() const override { return done_; }
    int Total() const override { return static_cast<int>(areas_.size()); }
    /// The first step reads the list of areas.
    bool Step() override;

    /// Reads these areas now, where that has not been done yet.
    void Need(const std::vector<std::string>& areaCodes);

private:
    struct AreaRow {
        std::string code;
        std::string name;
        std::string mmsCode;
        bool read = false;
    };
    using Reader = void (*)(AreaMap& area);

    void ReadAreas();
    void ReadBounds();
    void ReadArea(AreaRow& row);
    void ReadOptional(Reader reader, AreaMap& area);

    MapModel& model_;
    std::function<void()> areaAdded_;
    std::vector<AreaRow> areas_;
    bool listRead_ = false;
    int done_ = 0;
    std::size_t next_ = 0;
    std::set<Reader> failed_;
};

}  // namespace workbench
