#pragma once

#include <QCursor>
#include <functional>

#include "qt/map/map_widget.h"
#include "workbench/map/map_model.h"
#include "workbench/map/map_painter.h"
#include "workbench/map/map_projection.h"
#include "workbench/map/map_view.h"
#include "workbench/map/projected_map.h"

namespace workbench {

/// What of the left mouse button is a tool's, while one waits for places.
enum class Taken {
    kNothing,
    kClicks,  ///< a click does nothing else, and a double click is two
    kDrags,   ///< nor does a drag move the map
};

/// Shows the map. Dragging moves it, too, with the left button or the middle one, and a double
/// click zooms in, with Shift out. A click on the heading of the legend, or the key L, folds it and
/// unfolds it.
class MapCanvas : public kv::map::MapWidget {
    Q_OBJECT
public:
    /// `model` outlives the canvas.
    explicit MapCanvas(const MapModel& model, QWidget* parent = nullptr);

    /// Areas were added to the model. The first ones are all shown, as long as the user has not
    /// moved the map.
    void ModelChanged();
    /// The model is about to be emptied: forgets what it knew of it.
    void ModelGoes();

    /// Highlights a pick and brings it to the middle, with some of what is around it.
    void ShowPick(const Pick& pick);
    /// Highlights a pick without moving the map.
    void MarkPick(const Pick& pick);
    const Pick& GetPick() const { return marks_.pick; }
    /// Marks blocks and brings them all into sight. Those beside the ones before go.
    void ShowSelected(std::vector<BlockRef> blocks);
    /// Marks, in another colour, blocks beside those.
    void ShowNeighbors(std::vector<BlockRef> blocks);
    /// Marks what a row of a table tells of: a block, and a place in it, as far as there are any.
    void MarkRow(std::optional<BlockRef> block, std::optional<Place> place);
    /// Brings that into sight, where it is not.
    void BringRowUp();
    const MapMarks& Marks() const { return marks_; }
    /// Brings a place to the middle, near enough for its block to be told.
    void ShowPlace(const Place& place);

    /// Where a click folds the legend.
    const QRectF& LegendHeading() const { return painter_.LegendHeading(); }

    /// `cursor` is the one that the canvas has where nothing is dragged.
    void SetTaken(Taken taken, const QCursor& cursor);
    /// Draws that into the map. Not owned; null for nothing.
    void SetOverlay(const MapOverlay* overlay);
    bool IsDark() const;
    /// Draws over the map, and over what was added before.
    void AddDrawnOver(std::function<void(QPainter&, const MapView&)> draw);

    /// The projection that the map is drawn in. What was in the middle stays there.
    const MapProjection& Projection() const { return projected_.Projection(); }
    void SetProjection(const MapProjection& projection);
    /// How many things of the map the projection cannot show.
    std::int64_t LeftOut() const { return projected_.LeftOut(); }
    /// The edge of the map that was built, in that projection.
    void SetFrame(std::optional<MapFrame> frame);
    /// Brings all within the edge into sight.
    void ShowFrame();
    /// A box around what is seen, in Mercator's projection as the model is.
    Box Seen() const;
    /// Where a place is in the widget, and the place that is there; none where the projection has
    /// no answer.
    std::optional<QPointF> ScreenAt(const Place& place) const;
    std::optional<Place> PlaceAt(const QPointF& at) const;

    const MapLayers& Layers() const { return layers_; }
    void SetLayers(const MapLayers& layers);

    QSize sizeHint() const override { return {900, 560}; }
    QSize minimumSizeHint() const override { return {240, 160}; }

signals:
    void PickChanged();
    /// The mouse is at that place.
    void Pointed(const workbench::Place& place);
    void PointedNowhere();
    /// That place was clicked.
    void PlaceClicked(const workbench::Place& place);
    /// A block was clicked.
    void BlockClicked(const workbench::BlockRef& block);
    /// The mouse is dragged from one place to another, where drags are taken; `done` when its
    /// button is let go.
    void PlaceDragged(const workbench::Place& from, const workbench::Place& to, bool done);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool event(QEvent* event) override;

private:
    void ChooseLook();
    bool DragsLine() const { return held_ == Qt::LeftButton && taken_ == Taken::kDrags; }
    void Drag(const QPointF& at);
    void DragPlace(const QPointF& at, bool done);
    void Click(const QPointF& at);
    void Hover(const QPointF& at);
    void ShowMarked();
    void FitBounds();
    std::optional<BlockRef> BlockAt(const QPointF& at) const;
    Pick Drawn(const Pick& pick) const;
    std::vector<BlockRef> Drawn(const std::vector<BlockRef>& blocks) const;
    MapMarks DrawnMarks() const;
    void FoldLegend();
    QString TipAt(const QPointF& at) const;

    const MapModel& model_;
    ProjectedMap projected_{model_};
    std::optional<MapFrame> frame_;
    MapPainter painter_;
    MapLayers layers_;
    MapMarks marks_;
    std::vector<std::function<void(QPainter&, const MapView&)>> drawnOver_;
    Taken taken_ = Taken::kNothing;
    QCursor cursor_ = Qt::CrossCursor;
    Qt::MouseButton held_ = Qt::NoButton;
    bool dragging_ = false;
    std::optional<Place> pressedPlace_;
    QPointF pressedAt_;
    QPointF lastAt_;
};

}  // namespace workbench
