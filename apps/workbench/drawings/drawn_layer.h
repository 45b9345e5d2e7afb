#pragma once

#include <QPainterPath>
#include <QPixmap>
#include <QTimer>
#include <functional>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

#include "workbench/drawings/drawings.h"
#include "workbench/drawings/text_shape.h"
#include "workbench/map/feature_layer.h"
#include "workbench/map/map_model.h"
#include "workbench/map/map_overlay.h"
#include "workbench/map/map_projection.h"

namespace workbench {

/// Drawings as they lie on the map that is shown: paints them, and finds what is at a point.
class DrawnLayer final : public MapOverlay {
public:
    /// `model`, in Mercator's projection, outlives it.
    explicit DrawnLayer(const MapModel& model);

    /// Who paints the map anew. Very many drawings are stretched while the map is zoomed step
    /// after step; it is called when the last step is over.
    void SetRepaint(std::function<void()> repaint) { repaint_ = std::move(repaint); }

    /// Shows these drawings, null for none, on a map of that projection, at whose scale an inch is
    /// so many feet. What the projection cannot show is not there.
    void Show(std::shared_ptr<const Drawings> drawings, const MapProjection& projection,
              double feetPerInch);
    /// Whether the map is dark.
    void SetDark(bool dark);

    const Drawings& Shown() const { return *drawings_; }

    void DrawFills(QPainter& painter, const MapModel& model, const MapView& view) const override;
    void DrawOnTop(QPainter& painter, const MapView& view) const override;
    std::string_view Label(LabelLayer layer, std::string_view area,
                           std::string_view label) const override {
        return TextOf(drawings_->labels, layer, area, label);
    }
    /// As it would be drawn if it were among the others; `points` are on the map.
    void DrawLine(QPainter& painter, const MapView& view, const DrawnLine& line,
                  std::span<const Point> points) const;
    void DrawText(QPainter& painter, const MapView& view, const DrawnText& text,
                  const Point& at) const;

    /// What lies uppermost there, at most a few pixels away.
    std::optional<DrawingRef> At(const MapView& view, const ScreenPoint& at) const;
    /// What tells on the screen where it is: the line, or a frame; empty where it is not shown.
    QPainterPath OutlineOf(const MapView& view, const DrawingRef& ref) const;
    /// The points of a line on the map; empty where it is not shown.
    std::span<const Point> PointsOf(std::size_t line) const { return lines_.Points(line); }

private:
    /// What was painted last, of very many drawings, and of what view: a map that is dragged or
    /// zoomed shows it again.
    struct Painted {
        QPixmap pixels;
        Point middle;
        double scale = 0;
    };
    struct PlacedText {
        Point at;
        double unit = 0;  ///< height of its capital letters, in map units; 0 where it is not shown
        TextShape shape;
    };
    void DrawWithin(QPainter& painter, const MapView& view, const Box& box) const;
    void DrawKept(QPainter& painter, const MapView& view) const;
    bool MoveKept(const MapView& view) const;
    bool CanStretch(const MapView& view) const;
    void DrawStretched(QPainter& painter, const MapView& view) const;
    void Repaint(const MapView& view, const QRect& part) const;
    double UnitAt(const Place& place) const;
    PlacedText Put(const DrawnText& text) const;
    std::vector<std::size_t> Seen(const FeatureLayer& layer, const Box& box) const;
    void Draw(QPainter& painter, const MapView& view, const DrawnText& text,
              const PlacedText& placed) const;
    QColor ColorOf(int index) const;
    bool IsAt(const MapView& view, const DrawnLine& line, std::span<const Point> points,
              const ScreenPoint& at) const;

    const MapModel& model_;
    std::shared_ptr<const Drawings> drawings_ = std::make_shared<const Drawings>();
    MapProjection projection_;
    double feetPerInch_ = 1;
    bool dark_ = false;
    FeatureLayer lines_;
    std::vector<PlacedText> texts_;
    FeatureLayer textBoxes_;
    mutable Painted painted_;
    /// Runs since a frame of another scale than the one before.
    mutable QTimer zooming_;
    mutable bool stretched_ = false;
    std::function<void()> repaint_;
};

}  // namespace workbench
