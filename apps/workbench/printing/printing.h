#pragma once

#include <QObject>
#include <functional>
#include <optional>

#include "window/dialogs/print_dialog.h"
#include "workbench/commands.h"
#include "workbench/document/map_document.h"
#include "workbench/main_frame.h"
#include "workbench/map/map_canvas.h"
#include "workbench/printing/page_sink.h"
#include "workbench/printing/print_plan.h"
#include "workbench/status_line.h"
#include "workbench/work_runner.h"

namespace workbench {

/// Prints, shows and exports the map: that which was built, what is picked, or what is seen. Scale
/// and paper are asked for first.
class Printing : public QObject {
    Q_OBJECT
public:
    using Fail = std::function<void(const QString&)>;

    /// All of them outlive it. The pages are written by the runner, between the user's actions.
    Printing(MainFrame& frame, const MapModel& model, MapCanvas& canvas, WorkRunner& runner,
             StatusLine& status, Fail fail);

    /// `noMap` tells why nothing can be printed; empty where something can.
    void AddTo(QMenu& menu, Commands& commands, Commands::WhyNot noMap);

    void Print();
    void Preview();
    void ExportPdf();
    void ExportSvg();
    /// What is printed. Where there is no such thing it is the next one.
    enum class What { kMap, kPick, kView };
    void SetWhat(What what) { what_ = what; }
    /// The map that was built, if there is one.
    void SetMap(std::optional<BuiltMap> map) { map_ = std::move(map); }
    /// Tells what was drawn on the map, which is printed with it.
    void SetDrawings(std::function<MapDrawings()> drawings) { drawings_ = std::move(drawings); }

private:
    /// What is to come out, in the projection that is usual there.
    struct Subject {
        PaperProjection projection;
        Box bounds;
        QString title;
        int scale = 0;  ///< feet per inch of a map that was built
    };
    /// A kind of file that the map is exported to.
    struct Format {
        const char* name;
        const char* extension;
        const char* filter;
    };
    using MakeSink =
        std::function<std::unique_ptr<PageSink>(const std::string& path, const PrintPlan& plan)>;

    void AddChoice(QMenu& menu);
    std::optional<Subject> FindSubject();
    std::optional<Subject> BuiltSubject();
    /// The plan as the dialog ahead of printing left it; none where it was cancelled, or what was
    /// chosen cannot be printed, which is told. `paper` is one of the caller's own, or null for the
    /// printer's.
    std::optional<PrintPlan> Ask(DEVMODE* paper);
    bool IsPrintable(const PrintPlan& plan);
    void PrintPages(PrintPlan plan);
    void Export(const Format& format, const MakeSink& makeSink);
    void Write(PrintPlan plan, std::unique_ptr<PageSink> sink, const QString& done,
               const QString& failed);

    MainFrame& frame_;
    const MapModel& model_;
    MapCanvas& canvas_;
    WorkRunner& runner_;
    StatusLine& status_;
    Fail fail_;
    std::function<MapDrawings()> drawings_ = [] { return MapDrawings(); };
    DEVMODE exportPaper_;
    What what_ = What::kMap;
    std::optional<BuiltMap> map_;
};

}  // namespace workbench
