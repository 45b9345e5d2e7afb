#pragma once

#include <QString>
#include <cstddef>
#include <functional>
#include <string>
#include <vector>

#include "workbench/document/map_document.h"
#include "workbench/exports/export_tables.h"
#include "workbench/map/map_model.h"
#include "workbench/map/map_painter.h"
#include "workbench/step_work.h"

namespace workbench {

/// What is exported, and where to.
struct ExportPlan {
    std::string path;  ///< in either form
    Box seen;          ///< in map units
    MapLayers layers;
    MapDocument document;
    /// The bytes of the file. What it throws is shown.
    std::function<std::string(const std::vector<geofiles::Table>&)> bytesOf;
};

/// How an export has ended.
struct ExportEnd {
    bool whole = false;  ///< the file was written; otherwise it failed or was cancelled
    QString failure;     ///< empty where it did not fail
    std::size_t things = 0;
    std::size_t leftOut = 0;  ///< things that have too few places to be drawn
};

/// Reads what is shown, an area at a step, and writes the file in the last one.
class ExportJob final : public StepWork {
public:
    /// `model` outlives it.
    ExportJob(const MapModel& model, ExportPlan plan, std::function<void(const ExportEnd&)> ended);

    std::string Title() const override { return "Exporting the map"; }
    int Done() const override { return static_cast<int>(next_); }
    int Total() const override { return static_cast<int>(areas_.size()) + 1; }
    bool Step() override;
    void Finished(bool) override { ended_(end_); }
    bool Writes() const override { return true; }

private:
    bool ReadArea();
    void Write();

    const MapModel& model_;
    ExportPlan plan_;
    std::function<void(const ExportEnd&)> ended_;
    std::vector<std::string> areas_;  ///< their codes, since the map may be read anew meanwhile
    std::size_t next_ = 0;
    ExportTables tables_;
    ExportEnd end_;
};

}  // namespace workbench
