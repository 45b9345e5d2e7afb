#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QPointer>
#include <memory>
#include <optional>
#include <vector>

#include "workbench/commands.h"
#include "workbench/document/document_history.h"
#include "workbench/drawing_tools/drawing_dialogs.h"
#include "workbench/drawings/drawn_layer.h"
#include "workbench/main_frame.h"
#include "workbench/map/map_canvas.h"
#include "workbench/map_mouse.h"
#include "workbench/map_tools.h"
#include "workbench/readouts/map_positions.h"
#include "workbench/status_line.h"
#include "workbench/work_runner.h"

class QAction;

namespace workbench {

/// What the drawing tools work on; all of it outlives them.
struct DrawingDesk {
    MainFrame& frame;
    const MapModel& model;
    MapCanvas& canvas;
    MapMouse& mouse;
    MapTools& tools;
    WorkRunner& runner;
    StatusLine& status;
    Commands& commands;
    DocumentHistory& history;
    std::function<void(const QString&)> fail;  ///< tells of failures
};

/// Draws on the map: lines, polygons, texts and filled blocks, each with its dialog beside the map;
/// selects, moves, changes and deletes them. Each deed is a state of the document's history.
///
/// By keys: Space is a click in the middle of the map, Enter accepts, Backspace takes the last
/// point back, Delete deletes, Ctrl with arrows moves what is selected, Escape ends.
class DrawingTools : public QObject {
    Q_OBJECT
public:
    explicit DrawingTools(DrawingDesk desk);
    ~DrawingTools() override;

    void MakeMenu(QMenu& menu, Commands::WhyNot noMap);

    /// Whether clicks on the map are its.
    bool HasMouse() const { return desk_.mouse.Has(this); }
    /// The document, or the projection of the map, is another one.
    void ShowDocument();
    /// Asks what becomes of a drawing that was begun and not accepted. False where it is to stay.
    bool MayLeave();
    /// The map is about to be another one.
    void MapGoes() { End(); }

    /// The dialog that stands beside the map; null for none.
    CDialog* Dialog() const;
    const std::optional<DrawingRef>& Selected() const { return selected_; }
    const DrawnLayer& Layer() const { return layer_; }

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    enum class Tool { kNone, kLine, kPolygon, kText, kFill, kSelect };
    struct Move {
        Place from;
        Place to;
    };

    void AddTool(QMenu& menu, Tool tool, const QString& text, const QKeySequence& key,
                 const Commands::WhyNot& noMap);
    /// Begins with a tool, or ends the one that is in use; asks where a drawing was begun.
    void Choose(Tool tool);
    void Begin(Tool tool);
    /// Closes what stands beside the map, and forgets what was not accepted.
    void End();
    void EndDialogs();
    void GiveKeysToMap();
    void ShowTool();
    MouseUse UseNow() const;
    QString ModeNow() const;

    void OpenLine(const DrawnLine& line, const DriverPlane& plane, bool exists);
    void OpenText(const DrawnText& text);
    void OpenFill();
    DialogHost HostOf(std::function<bool()> mayEnd, std::function<void()> accepted);

    void Clicked(const Place& place);
    void ClickedToSelect(const Place& place, bool twice);
    void FillBlock(const Place& place);
    void Dragged(const Place& from, const Place& to, bool done);
    bool Key(int key, Qt::KeyboardModifiers modifiers);
    bool Escape();
    void Enter();
    void MoveByKeys(int key);
    void TakeBack();

    void AcceptLine();
    bool MayAcceptLine();
    void AcceptText();
    bool MayAcceptText();
    bool HasEnough() const;
    bool HasBegun() const;
    std::optional<std::vector<Place>> NewVertices() const;
    std::vector<Place> PointsNow() const;
    std::optional<DriverPlane> PlaneFor(const std::vector<Place>& places);

    void Select(std::optional<DrawingRef> ref);
    void ChangeSelected();
    void DeleteSelected();
    void Clear();
    void SearchAndReplace();
    void Do(Drawings drawings, const QString& label, const QString& series = {});
    const Drawings& Current() const { return layer_.Shown(); }

    std::optional<DrawingRef> At(const Place& place) const;
    std::optional<Place> MiddleOfMap() const;
    void Paint(QPainter& painter, const MapView& view) const;
    void PaintLine(QPainter& painter, const MapView& view) const;
    void PaintText(QPainter& painter, const MapView& view) const;
    void PaintSelected(QPainter& painter, const MapView& view) const;
    std::vector<Point> OnMap(const std::vector<Place>& places) const;

    DrawingDesk desk_;
    QPointer<MapCanvas> canvas_;
    DrawnLayer layer_;
    MapPositions positions_;
    std::vector<std::pair<Tool, QAction*>> rows_;

    Tool tool_ = Tool::kNone;
    std::shared_ptr<LineDialog> line_;
    CKvNewTextDlg* text_ = nullptr;  ///< deletes itself
    std::shared_ptr<FillDialog> fill_;
    DrawnLine lastLine_;  ///< what the next one begins with
    DrawnText lastText_;
    int lastFill_ = kUsualColor;

    std::vector<Place> points_;
    std::optional<Place> pointer_;    ///< where the next point would be
    std::optional<DrawnText> ready_;  ///< a text that was accepted ahead of its place
    std::optional<DrawingRef> changed_;
    DriverPlane plane_;
    std::optional<DrawingRef> selected_;
    std::optional<Move> move_;
    QElapsedTimer sinceClick_;
    QPointF lastClick_;
    bool byKeys_ = false;
};

}  // namespace workbench
