#include "workbench/exports/export_job.h"

#include <stdexcept>
#include <utility>

#include "base/paths.h"
#include "workbench/exports/area_tables.h"
#include "workbench/exports/drawn_tables.h"
#include "workbench/failure_words.h"

namespace workbench {

ExportJob::ExportJob(const MapModel& model, ExportPlan plan,
                     std::function<void(const ExportEnd&)> ended)
    : model_(model), plan_(std::move(plan)), ended_(std::move(ended)), tables_(plan_.seen) {
    for (const auto& area : model_.Areas())
        if (ReachOf(*area).Meets(plan_.seen)) areas_.push_back(area->code);
}

bool ExportJob::Step() {
    try {
        if (ReadArea()) return true;
        Write();
        end_.whole = true;
    } catch (const CKvException& failure) {
        end_.failure = FailureWords(failure);
    } catch (const std::exception& failure) {
        end_.failure = QString::fromUtf8(failure.what());
    }
    return false;
}

/// False where all were read.
bool ExportJob::ReadArea() {
    if (next_ == areas_.size()) return false;
    const AreaMap* area = model_.FindArea(areas_[next_++]);
    if (!area) throw std::runtime_error("The map was read anew meanwhile.");
    static const Drawings kNone;
    const auto& drawings = plan_.document.drawings;
    AddArea(tables_, *area, plan_.layers, (drawings ? *drawings : kNone).labels);
    return true;
}

void ExportJob::Write() {
    const MapDocument& document = plan_.document;
    if (document.drawings && plan_.layers.drawings)
        AddDrawings(tables_, *document.drawings, model_);
    if (document.map) AddFrame(tables_, *document.map);
    end_.things = tables_.Count();
    end_.leftOut = tables_.LeftOut();
    if (end_.things == 0)
        throw std::runtime_error("There is nothing on this part of the map to export.");
    std::string failure;
    if (!kv::WriteFileWhole(plan_.path, plan_.bytesOf(tables_.Take()), &failure))
        throw std::runtime_error(failure);
}

}  // namespace workbench
