// What the drawing tools show over the map: what is being drawn, and what is selected.

#include <algorithm>

#include "workbench/drawing_tools/drawing_tools.h"

namespace workbench {

namespace {

constexpr double kHandle = 3.5;
constexpr double kLine = 1.6;
constexpr double kHalo = 4;
constexpr double kCross = 9;
/// More handles than that only cover the line.
constexpr std::size_t kMostHandles = 400;

/// Draws what is seen on any ground.
void Stroke(QPainter& painter, const QPalette& palette, const QPainterPath& path) {
    painter.setBrush(Qt::NoBrush);
    QColor halo = palette.color(QPalette::Base);
    halo.setAlphaF(0.8F);
    painter.setPen(QPen(halo, kHalo));
    painter.drawPath(path);
    painter.setPen(QPen(palette.color(QPalette::Highlight), kLine, Qt::DashLine));
    painter.drawPath(path);
}

void DrawHandle(QPainter& painter, const QPalette& palette, const QPointF& at) {
    painter.setBrush(palette.color(QPalette::Base));
    painter.setPen(QPen(palette.color(QPalette::Highlight), kLine));
    painter.drawRect(QRectF(at - QPointF(kHandle, kHandle), QSizeF(2 * kHandle, 2 * kHandle)));
}

}  // namespace

std::vector<Point> DrawingTools::OnMap(const std::vector<Place>& places) const {
    std::vector<Point> points;
    for (const Place& place : places) {
        if (const auto point = canvas_->Projection().ToMap(place)) points.push_back(*point);
    }
    return points;
}

void DrawingTools::Paint(QPainter& painter, const MapView& view) const {
    if (tool_ == Tool::kNone) return;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    PaintSelected(painter, view);
    if (line_ && line_->m_hWnd) PaintLine(painter, view);
    if (text_ || ready_) PaintText(painter, view);
    if (byKeys_ && HasMouse()) {
        const QPointF middle(view.Width() / 2.0, view.Height() / 2.0);
        QPainterPath cross;
        for (const QPointF arm : {QPointF(kCross, 0), QPointF(0, kCross)}) {
            cross.moveTo(middle - arm);
            cross.lineTo(middle + arm);
        }
        Stroke(painter, canvas_->palette(), cross);
    }
    painter.restore();
}

/// With a rubber band it goes on to where the mouse is.
void DrawingTools::PaintLine(QPainter& painter, const MapView& view) const {
    std::vector<Place> places = PointsNow();
    const std::size_t handles = std::min(places.size(), kMostHandles);
    const bool rubber = line_->RubberBand() && line_->ByMouse() && !changed_ && !places.empty();
    if (rubber) {
        if (const auto end = byKeys_ ? MiddleOfMap() : pointer_) places.push_back(*end);
    }
    std::vector<Point> points = OnMap(places);
    if (points.empty()) return;
    const DrawnLine look = line_->Look();
    if (look.closed) points.push_back(points.front());
    layer_.DrawLine(painter, view, look, points);
    for (std::size_t i = 0; i < std::min(handles, points.size()); ++i) {
        const ScreenPoint at = view.ToScreen(points[i]);
        DrawHandle(painter, canvas_->palette(), {at.x, at.y});
    }
}

void DrawingTools::PaintText(QPainter& painter, const MapView& view) const {
    DrawnText text = ready_ ? *ready_ : static_cast<const TextDialog*>(text_)->Shown();
    std::optional<Place> place = byKeys_ ? MiddleOfMap() : pointer_;
    if (!points_.empty()) place = points_.front();
    if (changed_) place = Current().texts[changed_->number].at;
    if (!place) return;
    text.at = *place;
    const std::vector<Point> at = OnMap({*place});
    if (at.empty()) return;
    layer_.DrawText(painter, view, text, at.front());
    const ScreenPoint onScreen = view.ToScreen(at.front());
    DrawHandle(painter, canvas_->palette(), {onScreen.x, onScreen.y});
}

void DrawingTools::PaintSelected(QPainter& painter, const MapView& view) const {
    if (!selected_) return;
    QPainterPath outline = layer_.OutlineOf(view, *selected_);
    if (move_) {
        const auto from = canvas_->ScreenAt(move_->from);
        const auto to = canvas_->ScreenAt(move_->to);
        if (from && to) outline.translate(*to - *from);
    }
    Stroke(painter, canvas_->palette(), outline);
    if (selected_->kind != DrawingRef::kLine || move_) return;
    const auto points = layer_.PointsOf(selected_->number);
    for (const Point& point : points.first(std::min(points.size(), kMostHandles))) {
        const ScreenPoint at = view.ToScreen(point);
        DrawHandle(painter, canvas_->palette(), {at.x, at.y});
    }
}

}  // namespace workbench
