#pragma once

#include <QLineF>
#include <QPainter>
#include <QPainterPath>
#include <QRectF>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "workbench/map/graticule.h"
#include "workbench/map/label_art.h"
#include "workbench/map/label_board.h"
#include "workbench/map/map_frame.h"
#include "workbench/map/map_look.h"
#include "workbench/map/map_model.h"
#include "workbench/map/map_overlay.h"
#include "workbench/map/map_projection.h"
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
    bool legendFolded = false;
    bool drawings = true;
};

/// What stands out on the map.
struct MapMarks {
    Pick pick;
    std::optional<BlockRef> hovered;
    /// The blocks of a selection, and those beside them.
    std::vector<BlockRef> selected = {};
    std::vector<BlockRef> neighbors = {};
    /// What a row of the results tells of.
    std::optional<BlockRef> rowBlock = {};
    std::optional<Place> rowPlace = {};
};

/// Draws the map: areas from afar, then blocks, and from near what stands and lies in them.
class MapPainter {
public:
    void SetLook(const MapLook& look) { look_ = look; }
    const MapLook& Look() const { return look_; }
    void SetFont(const QFont& font) { font_ = font; }
    /// That of the model that is drawn.
    void SetProjection(const MapProjection& projection) { projection_ = projection; }
    /// A map that was built: its edge is drawn, and what lies outside is dimmed.
    void SetFrame(std::optional<MapFrame> frame) { frame_ = std::move(frame); }
    /// Draws that into the map, too. Not owned; null for nothing.
    void SetOverlay(const MapOverlay* overlay) { overlay_ = overlay; }
    /// Whether wells and platforms can be told apart in this view.
    static bool ShowsSpots(const MapView& view);

    void Draw(QPainter& painter, const MapModel& model, const MapView& view,
              const MapLayers& layers, const MapMarks& marks);
    /// Where the heading of the legend was drawn; empty where there is no legend.
    const QRectF& LegendHeading() const { return legendHeading_; }

private:
    /// A way to write a name, and where.
    struct Placed {
        std::string_view label;
        QPointF middle;
        int cost;
    };
    struct LegendLine {
        QString text;
        std::function<void(QPointF middle)> draw;
    };

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
    void DrawHairlines(const QColor& color);
    void DrawAreaLines();
    void DrawPipelines();
    void DrawSpots(bool platforms);
    void DrawDots(bool platforms);
    void DrawMarks(const MapMarks& marks);
    void DrawRowMark(const MapMarks& marks);
    void DrawMarkedBlocks(const std::vector<BlockRef>& blocks, const QColor& color);

    void DrawGraticule();
    void DrawCurves(const std::vector<GraticuleCurve>& curves, const QColor& color);
    void DrawEdgeLabels();
    void PutEdgeLabel(const std::string& label, QPointF middle);
    void DrawAreaLabels();
    /// Those that are not picked.
    void DrawBlockLabels(const Pick& pick);
    void DrawSpotLabels(bool platforms);
    void DrawPipelineLabels();
    std::string_view LabelOf(LabelLayer layer, const AreaMap& area, std::string_view label) const {
        return overlay_ ? overlay_->Label(layer, area.code, label) : label;
    }
    void DrawPickLabel(const Pick& pick);
    void DrawBlockLabel(const BlockRef& block);
    /// False when it would lie over another label, or not wholly on the screen.
    bool PutLabel(LabelArt& art, std::string_view label, QPointF middle);
    /// Puts it at the place that covers least, of those that are free; the first of equals.
    void PutLabelAtBest(LabelArt& art, std::string_view label, std::span<const QPointF> middles);
    std::optional<int> CostOf(LabelArt& art, std::string_view label, QPointF middle);
    std::optional<Placed> BestForArea(std::string_view label, const QSizeF& room, QPointF middle);
    void DrawLegend();
    std::vector<LegendLine> LegendLines();
    void DrawSpotSample(QPointF middle, bool platform, std::uint8_t kind, bool symbol);
    void AddWaters(std::vector<LegendLine>& lines);
    void DrawScaleBar();
    QRectF DrawPanel(const QRectF& panel);
    void DrawTitle();
    QPolygonF FrameOnScreen() const;
    void DrawFrame();

    MapProjection projection_;
    std::optional<MapFrame> frame_;
    MapLook look_ = LightLook();
    QFont font_;
    const MapOverlay* overlay_ = nullptr;
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
    std::vector<QLineF> pieces_;
    std::vector<QRectF> dots_;
    GraticuleCurves curves_;
    std::vector<QRectF> panels_;
    /// The labels of the graticule, and where they stand.
    std::vector<std::pair<std::string, QPointF>> edges_;
    QRectF legendHeading_;
};

}  // namespace workbench
