#pragma once

#include <QStringList>
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
/// read, the map goes without it from there on.
class MapLoader final : public StepWork {
public:
    /// `model`, which outlives the loader, must be empty. `areaAdded` is called behind each step
    /// that added an area; `lacks` tells what the map goes without, and why, at the end.
    MapLoader(MapModel& model, std::function<void()> areaAdded,
              std::function<void(const QString&)> lacks);

    std::string Title() const override { return "Reading the map"; }
    int Done() const override { return done_; }
    int Total() const override { return static_cast<int>(areas_.size()); }
    /// The first step reads the list of areas.
    bool Step() override;
    void Finished(bool) override { TellWhatLacks(); }

    /// Reads these areas now, where that has not been done yet.
    void Need(const std::vector<std::string>& areaCodes);

private:
    struct AreaRow {
        std::string code;
        std::string name;
        std::string mmsCode;
        bool read = false;
    };
    struct Layer {
        const char* name;
        void (*read)(AreaMap& area);
    };
    static const Layer kLayers[];

    void ReadAreas();
    void ReadBounds();
    void ReadArea(AreaRow& row);
    void ReadOptional(const Layer& layer, AreaMap& area);
    void TellWhatLacks();

    MapModel& model_;
    std::function<void()> areaAdded_;
    std::function<void(const QString&)> lacks_;
    std::vector<AreaRow> areas_;
    bool listRead_ = false;
    int done_ = 0;
    std::size_t next_ = 0;
    std::set<const Layer*> failed_;
    QStringList untold_;  ///< the names of those of them that nobody was told of
    QString why_;
};

}  // namespace workbench
