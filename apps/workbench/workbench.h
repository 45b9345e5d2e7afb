#pragma once

#include <QMainWindow>
#include <QObject>
#include <QPointer>
#include <functional>
#include <memory>
#include <optional>

#include "adaptors/adaptor.h"
#include "frame/kvdbkvn/db_info.h"
#include "workbench/commands.h"
#include "workbench/document/document_history.h"
#include "workbench/document/document_tools.h"
#include "workbench/drawing_tools/drawing_tools.h"
#include "workbench/focus_round.h"
#include "workbench/main_frame.h"
#include "workbench/map/map_canvas.h"
#include "workbench/map_loader.h"
#include "workbench/map_mouse.h"
#include "workbench/map_tools.h"
#include "workbench/outcome_pane.h"
#include "workbench/printing/printing.h"
#include "workbench/readouts/readouts.h"
#include "workbench/recording/dialog_recorder.h"
#include "workbench/records/record_tools.h"
#include "workbench/results/report_layers.h"
#include "workbench/results/results_pane.h"
#include "workbench/selected_blocks.h"
#include "workbench/status_line.h"
#include "workbench/work_runner.h"

class QAction;
class QDockWidget;
class QMenu;

namespace workbench {

/// The desktop host: a frame with the bar, the map in the middle, and panes for results. Needs a
/// `QtDesktop` and `InitControlDll`.
class Workbench : public QObject {
    Q_OBJECT
public:
    /// Makes the window; the connection record in force must be `database`.
    explicit Workbench(CKvDbInfo database = {});
    ~Workbench() override;

    /// Shows the window as the user left it. Once it is painted, reads the map, and opens the map
    /// document in `file`, where one is named.
    void Show(const std::string& file = {});
    /// Reads the map anew.
    void LoadMap();
    /// Works on another database. False, with the words of the failure, when it holds no areas; the
    /// one before is then still in force.
    bool UseDatabase(const CKvDbInfo& info, QString& failure);

    /// Runs a dialog with its sample inputs, and shows its outcome; of a dialog that builds a
    /// qualifier also the rows that match it.
    void RunDialog(const adaptors::Adaptor& adaptor);
    /// Runs a dialog, or shows a modeless tool beside the map, which hands it the places that are
    /// clicked.
    void OpenDialog(const adaptors::Adaptor& adaptor);

    /// Marks on the map the blocks that touch those of the last selection of a block dialog, if
    /// there was one.
    void ShowNeighbors();
    /// Shows what a person typed, an area, a block or a place, on the map and in the bar. False
    /// when the map has no such thing.
    bool GoTo(const QString& text);
    /// Whether the map moves to what is reported, and to the row that is chosen.
    void SetMapFollows(bool follows);

    /// Shows an area's block, or all of its blocks, on the map.
    void ShowOnMap(const std::vector<std::string>& areaCodes, const std::string& block);
    /// Puts an area and a block, or all of its blocks, into the bar's boxes.
    void PickInBar(const AreaMap& area, std::string_view block);
    void PickInBar(const BlockRef& block) { PickInBar(*block.area, block.Label()); }

    /// What is told of failures: a message box, unless this is set.
    void SetFailureShown(std::function<void(const QString&)> shown) { failure_ = std::move(shown); }
    /// What is told beside: a message box, unless this is set.
    void SetNoteShown(std::function<void(const QString&)> shown) { note_ = std::move(shown); }
    void SetProjected(ProjectedText projected) { status_->SetProjected(std::move(projected)); }

    MainFrame& Frame() { return frame_; }
    QMainWindow& Window() { return *window_; }
    MapCanvas& Canvas() { return *canvas_; }
    const MapModel& Model() const { return model_; }
    ResultsPane& Results() { return *results_; }
    OutcomePane& Outcome() { return *outcome_; }
    MapTools& Tools() { return tools_; }
    const Readouts& ReadoutTools() const { return *readouts_; }
    DrawingTools& Drawing() { return *drawing_; }
    RecordTools& Records() { return *records_; }
    DocumentTools& Documents() { return *documents_; }
    DocumentHistory& History() { return history_; }
    WellPane& Well() { return *well_; }
    WorkRunner& Runner() { return runner_; }
    StatusLine& Status() { return *status_; }

signals:
    void FirstPainted();

private:
    /// What the boxes of the bar say.
    struct BarPick {
        std::string area;
        std::string block;
        bool operator==(const BarPick&) const = default;
    };

    void MakePanes();
    QDockWidget* MakePane(const QString& title, const char* name, QWidget* widget);
    void ConnectAll();
    void Restore();
    void Save();

    void MakeMenus();
    void MakeFileMenu();
    void MakeEditMenu();
    void MakeViewMenu();
    void MakeLayersMenu(QMenu& view);
    void MakeDialogsMenu();
    void MakeDialogRow(QMenu& menu, const adaptors::Adaptor& adaptor, QString& taken);
    void MakeHelpMenu();
    std::vector<FocusPart> FocusParts();
    FocusPart PanePart(QDockWidget& pane, std::function<void()> enter);
    void BringUpMain();

    void OnRun();
    void RunMap();
    void RunReport();
    QString UnknownArea() const;
    BarPick PickOfBar() const;
    std::optional<std::string> CodesOfPick(bool quoted);
    std::string WordsOfPick(const std::vector<std::string>& areas) const;
    void ShowTitle();
    void ShowChosenRow(int row);
    void OfferSample(const QString& path);
    void ShowTable(ResultTable table);
    void ShowMatch(const adaptors::Adaptor& adaptor, const adaptors::Run& run);
    void ShowSelected(const adaptors::Adaptor& adaptor, const adaptors::Run& run);
    void Fail(const QString& message);
    void Tell(const QString& note);
    void MakeRecordTools();
    void MakeDocumentTools();

    /// Whether the map and the database may go: what would be lost is asked about.
    bool MayLeave();
    bool MayEndWork();
    void OpenDatabase();
    void Run();
    void SaveResults();
    void ZoomTo();
    void FindCommand();
    void ExplainKeys();
    void RecordDialogs();
    // Why a command would do nothing now; empty where it acts.
    QString NoMap() const;
    QString NoPick() const;
    QString NoSelectedBlocks() const;
    QString NoRows() const;
    QString NoSelectedRows() const;

    CWinApp app_;
    MainFrame frame_;
    MapTools tools_{frame_};
    CKvDbInfo database_;
    MapModel model_;
    WorkRunner runner_;
    std::shared_ptr<MapLoader> loader_;
    std::optional<SelectedBlocks> selected_;
    std::function<void(const QString&)> failure_;
    std::function<void(const QString&)> note_;
    BarPick reported_;
    bool follows_ = false;

    // Of the main window, and gone with it.
    QPointer<QMainWindow> window_;
    QPointer<MapCanvas> canvas_;
    QPointer<ResultsPane> results_;
    QPointer<OutcomePane> outcome_;
    QPointer<WellPane> well_;
    QPointer<RecordTools> records_;
    QPointer<QDockWidget> resultsDock_;
    QPointer<QDockWidget> outcomeDock_;
    QPointer<StatusLine> status_;
    QPointer<Commands> commands_;
    QPointer<Printing> printing_;
    QPointer<DocumentTools> documents_;
    QPointer<QAction> recordRow_;

    DialogRecorder recorder_;
    DocumentHistory history_;
    std::unique_ptr<MapMouse> mouse_;
    std::unique_ptr<Readouts> readouts_;
    std::unique_ptr<DrawingTools> drawing_;
};

}  // namespace workbench
