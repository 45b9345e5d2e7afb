#pragma once

#include <QLineF>
#include <QPainter>
#include <QPainterPath>
#include <QRectF>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "workbench/map/label_art.h"
#include "workbench/map/label_board.h"
#include "workbench/map/map_look.h"
#include "workbench/map/map_model.h"
#include "workbench/map/map_symbols.h"
#include "workbench/map/map_view.h"

namespace workbench {

/// Which layers are shown, each where the map is large enough for it.
struct MapLayers {
    bool wells = true;
    bool platforms = true;
    bool pipelines = true;
    bool labels = true;
    bool graticule = true;
    bool legend = true;
};

/// What stands out on the map.
struct MapMarks {
    Pick pick;
    std::optional<BlockRef> hovered;
    /// The blocks of a selection, and those beside them.
    std::vector<BlockRef> selected = {};
    std::vector<BlockRef> neighbors = {};
};

/// Draws the map: areas from afar, then blocks, and from near what stands and lies in them.
class MapPainter {
public:
    void SetLook(const MapLook& look) { look_ = look; }
    const MapLook& Look() const { return look_; }
    void SetFont(const QFont& font) { font_ = font; }
    /// Whether wells and platforms can be told apart in this view.
    static bool ShowsSpots(const MapView& view);

    void Draw(QPainter& painter, const MapModel& model, const MapView& view,
              const MapLayers& layers, const MapMarks& marks);

private:
    QPointF At(const Point& point) const;
    QPolygonF Ring(std::span<const Point> points) const;
    QPainterPath Outline(const AreaMap& area) const;
    double BlockPixels(const AreaMap& area) const { return area.blockSize * view_->Scale(); }

    void PrepareArt();
    void FindVisible(const MapModel& model);
    /// Puts a line that may be seen among those to draw.
    void AddLine(const Segment& line, const Box& seen);
    void DrawAreas();
    void DrawBlockLines();
    void DrawAreaLines();
    void DrawPipelines();
    void DrawSpots(bool platforms);
    void DrawDots(bool platforms);
    void DrawMarks(const MapMarks& marks);
    void DrawMarkedBlocks(const std::vector<BlockRef>& blocks, const QColor& color);

    void DrawGraticule();
    void DrawEdgeLabels();
    void DrawAreaLabels();
    void DrawBlockLabels();
    void DrawSpotLabels(bool platforms);
    void DrawPickLabel(const Pick& pick);
    void DrawBlockLabel(const BlockRef& block);
    /// False when it would lie over another label, or not wholly on the screen.
    bool PutLabel(LabelArt& art, std::string_view label, QPointF middle);
    bool PutAreaLabel(std::string_view label, const QSizeF& room, QPointF middle);
    void DrawLegend();
    void DrawScaleBar();

    MapLook look_ = LightLook();
    QFont font_;
    LabelArt areaLabels_;
    LabelArt blockLabels_;
    LabelArt spotLabels_;
    LabelArt edgeLabels_;
    MapSymbols symbols_;
    LabelBoard board_;

    // Of the drawing that goes on.
    QPainter* painter_ = nullptr;
    const MapView* view_ = nullptr;
    MapLayers layers_;
    std::vector<const AreaMap*> visible_;
    std::vector<QLineF> lines_;
    std::vector<QRectF> dots_;
};

}  // namespace workbench
