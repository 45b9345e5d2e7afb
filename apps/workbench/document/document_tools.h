#pragma once

#include <QObject>
#include <functional>
#include <optional>
#include <string>

#include "workbench/commands.h"
#include "workbench/document/document_history.h"
#include "workbench/document/picked_blocks.h"
#include "workbench/document/recent_files.h"
#include "workbench/main_frame.h"
#include "workbench/map/map_canvas.h"
#include "workbench/printing/printing.h"
#include "workbench/readouts/map_positions.h"
#include "workbench/readouts/readouts.h"
#include "workbench/results/result_table.h"
#include "workbench/status_line.h"

class QAction;
class QMenu;
class CKvGuiQuickOffBldDlg;

namespace workbench {

/// The map document: builds maps, keeps them in files, and shows the one there is on the canvas.
class DocumentTools : public QObject {
    Q_OBJECT
public:
    /// What the tools work on; it outlives them.
    struct Host {
        MainFrame& frame;
        const MapModel& model;
        MapCanvas& canvas;
        StatusLine& status;
        Commands& commands;
        DocumentHistory& history;
        Readouts& readouts;
        Printing& printing;
        std::function<void(const QString&)> fail;
        std::function<void(const QString&)> tell;
        std::function<void()> titleChanged;
    };

    DocumentTools(Host host, QObject* parent);

    /// Fills the menu of the map, and puts what undoes into the menu of editing.
    void MakeMenu(QMenu& menu);
    void AddUndo(QMenu& edit);

    /// What was picked last, of which maps are made.
    void TakePicks(Picks picks);

    const MapDocument& Document() const { return host_.history.Current(); }
    /// What the document is called, with a mark where it is not saved; empty where there is none.
    QString Title() const;
    /// Puts X and Y behind a report, where a map was built.
    void AddCoordinates(ResultTable& table);

    /// Asks what becomes of changes that are not saved. False where the document is to stay.
    bool MayLeave();
    /// Another database is worked on: the document, which belongs to the one before, is closed.
    void Reset();
    /// Opens a file; what there is stays where that fails.
    void OpenFile(const std::string& path);

private:
    /// A map that a builder has ended with.
    using Built = std::optional<BuiltMap>;

    void NewFromPicks();
    void NewFromCounties();
    void NewCustom();
    void Properties();
    void ExportBoundary();
    void ChooseReportProjection();
    void Open();
    bool Save();
    bool SaveAs();
    bool SaveTo(const std::string& path);

    bool LeaveOutUnknown(Picks& picks);
    Built RunBuilder(CKvGuiQuickOffBldDlg& dialog, const Picks& picks);
    bool MayBegin();
    void BeginWith(BuiltMap map);
    void Show();
    void ShowMap();
    void Project();
    void FillRecent();
    QString NoMap() const;
    QString NoPicks() const;
    QString NothingToSave() const;
    bool IsEmpty() const;

    Host host_;
    RecentFiles recent_;
    MapPositions usual_;
    Picks picks_;
    std::string path_;  ///< empty as long as it is in no file
    std::optional<BuiltMap> shown_;
    std::optional<DriverPlane> plane_;
    QAction* undo_ = nullptr;
    QAction* redo_ = nullptr;
    QMenu* recentMenu_ = nullptr;
};

}  // namespace workbench
