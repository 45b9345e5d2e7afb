#include "workbench/printing/page_frame.h"

#include <QLineF>
#include <algorithm>
#include <cmath>

#include "workbench/printing/page_ticks.h"

namespace workbench {

namespace {

constexpr double kNeatWidth = 1;
constexpr double kTick = 7;
constexpr double kTickWidth = 0.5;
constexpr double kGap = 2;
constexpr double kText = 7;
constexpr double kLeastApart = 1.2;  ///< ticks, in inches
constexpr double kLineHeight = 1.25;
constexpr double kSecondsPerDegree = 3600;

QPainterPath LinePath(const QPointF& from, const QPointF& to) {
    QPainterPath path(from);
    path.lineTo(to);
    return path;
}

}  // namespace

PageFrame::PageFrame(const PrintPlan& plan, const PageView& view, const MapLook& look, Paper& paper)
    : plan_(plan), view_(view), look_(look), paper_(paper) {}

std::array<PageFrame::Side, 4> PageFrame::Sides() const {
    const QRectF& neat = view_.Neat();
    return {{{neat.topLeft(), neat.topRight(), {0, -1}, false, 0, -1},
             {neat.bottomLeft(), neat.bottomRight(), {0, 1}, false, 0, 1},
             {neat.bottomLeft(), neat.topLeft(), {-1, 0}, true, -1, 0},
             {neat.bottomRight(), neat.topRight(), {1, 0}, true, 1, 0}}};
}

void PageFrame::Draw(std::int64_t page) {
    QPainterPath neat;
    neat.addRect(view_.Neat());
    paper_.Draw(neat, {{}, look_.panelText, kNeatWidth});
    const double step = plan_.layers.graticule ? StepOfTicks() : 0;
    for (const Side& side : Sides()) {
        const double kept = DrawJoin(side, page);
        if (step > 0) DrawTicks(side, step, kept);
    }
    if (plan_.grid.Count() > 1) DrawCornerMarks();
}

double PageFrame::AngleOn(const Side& side, double part) const {
    const Place place =
        plan_.map.projection.PlaceOf(view_.XyAt(side.from + (side.to - side.from) * part));
    return side.latitudes ? place.lat : place.lon;
}

/// One for all sides; 0 where a corner has no place.
double PageFrame::StepOfTicks() const {
    double most = 0;
    for (const Side& side : Sides()) {
        const double span = std::abs(AngleOn(side, 1) - AngleOn(side, 0)) * kSecondsPerDegree;
        const double inches = QLineF(side.from, side.to).length() / kPointsPerInch;
        if (!std::isfinite(span)) return 0;
        most = std::max(most, span / inches);
    }
    return TickStep(most, kLeastApart);
}

void PageFrame::DrawTicks(const Side& side, double step, double kept) {
    const double length = QLineF(side.from, side.to).length();
    for (const Tick& tick : TicksOn([&](double part) { return AngleOn(side, part); }, step)) {
        const QPointF at = side.from + (side.to - side.from) * tick.at;
        paper_.Draw(LinePath(at, at + side.outward * kTick), {{}, look_.edgeText, kTickWidth});
        const QString text = QString::fromStdString(
            side.latitudes ? TickLabel(tick.seconds, 'N', 'S') : TickLabel(tick.seconds, 'E', 'W'));
        const double half = SizeOf(text, TextSize()).width() / 2;
        // Not into the next side's margin, nor over the number of the page that joins on.
        const double along = tick.at * length;
        const bool fits = along + kTick >= half && length - along + kTick >= half;
        const bool free = kept == 0 || std::abs(along - length / 2) >= half + kept;
        if (fits && free) WriteAlong(side, at, text);
    }
}

double PageFrame::DrawJoin(const Side& side, std::int64_t page) {
    const auto beside = plan_.grid.Beside(page, side.right, side.down);
    if (!beside) return 0;
    const QString text = QStringLiteral("joins page %1").arg(*beside + 1);
    WriteAlong(side, (side.from + side.to) / 2, text);
    return SizeOf(text, TextSize()).width() / 2 + TextSize();
}

/// Sheets are laid on each other by them.
void PageFrame::DrawCornerMarks() {
    constexpr double kLength = 18;
    for (const Side& side : Sides()) {
        for (const QPointF& corner : {side.from, side.to})
            paper_.Draw(LinePath(corner, corner + side.outward * kLength),
                        {{}, look_.panelText, kTickWidth});
    }
}

/// Texts of the left and of the right side are read from the right.
void PageFrame::WriteAlong(const Side& side, const QPointF& at, const QString& text) {
    const double size = TextSize();
    const QPointF middle = at + side.outward * (kTick + kGap + size * kLineHeight / 2);
    const QPointF base = side.latitudes ? QPointF(BaseLine(size), 0) : QPointF(0, BaseLine(size));
    paper_.Write({text,
                  middle + base,
                  size,
                  look_.edgeText,
                  Anchor::kMiddle,
                  false,
                  {},
                  side.latitudes ? -90.0 : 0.0});
}

/// As large as was asked for, as far as the margin has room for it.
double PageFrame::TextSize() const {
    const double margin = std::min(view_.Neat().left(), view_.Neat().top());
    return std::min(plan_.TextSize(kText), (margin - kTick - kGap) / kLineHeight);
}

}  // namespace workbench
