#pragma once

#include <QObject>
#include <functional>
#include <optional>

#include "window/dialogs/print_dialog.h"
#include "workbench/commands.h"
#include "workbench/main_frame.h"
#include "workbench/map/map_canvas.h"
#include "workbench/printing/page_sink.h"
#include "workbench/printing/print_plan.h"
#include "workbench/status_line.h"
#include "workbench/work_runner.h"

namespace workbench {

/// Prints, shows and exports the map: what is picked on it, or what is seen. Scale and paper are
/// asked for first.
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
    /// What is seen is printed, also where something is picked.
    void SetViewOnly(bool viewOnly) { viewOnly_ = viewOnly; }

private:
    /// What is to come out, in the projection that is usual there.
    struct Subject {
        PaperProjection projection;
        Box bounds;
        QString title;
    };
    /// A kind of file that the map is exported to.
    struct Format {
        const char* name;
        const char* extension;
        const char* filter;
    };
    using MakeSink =
        std::function<std::unique_ptr<PageSink>(const std::string& path, const PrintPlan& plan)>;

    std::optional<Subject> FindSubject();
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
    DEVMODE exportPaper_;
    bool viewOnly_ = false;
};

}  // namespace workbench
