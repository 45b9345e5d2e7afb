#include "workbench/printing/page_insets.h"

#include <algorithm>
#include <cmath>
#include <set>

#include "workbench/map/graticule.h"
#include "workbench/map/map_legend.h"
#include "workbench/printing/page_map.h"

namespace workbench {

namespace {

constexpr double kFromNeat = 8;  ///< points between the neat line and a panel
constexpr double kInside = 7;    ///< between a panel's line and what it holds
constexpr double kBetween = 6;   ///< between what is drawn and its text
constexpr double kLineHeight = 1.3;
constexpr double kTitle = 13;
constexpr double kText = 8;
constexpr double kLineWidth = 0.6;
constexpr QSizeF kSample(18, 11);
constexpr double kLongestBar = 2.2 * kPointsPerInch;
constexpr double kLongestKey = 1.1 * kPointsPerInch;

/// The kinds of a layer that are drawn, where it is drawn from so many points for a block on.
std::set<std::uint8_t> KindsOf(const PrintPlan& plan, FeatureLayer AreaMap::*layer, double from) {
    std::set<std::uint8_t> kinds;
    for (const AreaMap& area : plan.map.areas) {
        if (area.blockSize * kPointsPerInch / plan.scale < from) continue;
        (area.*layer).ForEachIn(plan.grid.Covered(), [&](std::size_t number) {
            kinds.insert((area.*layer).Kind(number));
        });
    }
    return kinds;
}

QPainterPath Rectangle(const QRectF& place) {
    QPainterPath path;
    path.addRect(place);
    return path;
}

}  // namespace

PageInsets::PageInsets(const PrintPlan& plan, const PageView& view, const MapLook& look,
                       Paper& paper, PageLabels& labels)
    : plan_(plan), view_(view), look_(look), paper_(paper), labels_(labels) {}

QStringList PageInsets::Draw(std::int64_t page) {
    if (page == 0) DrawTitle();
    if (plan_.grid.Count() > 1) DrawKey(page);
    if (page == 0 && plan_.layers.legend) DrawLegend();
    return leftOut_;
}

PageInsets::Row PageInsets::Line(const QString& text) const {
    return {text, plan_.TextSize(kText)};
}

PageInsets::Row PageInsets::Heading(const QString& text) const {
    return {text, plan_.TextSize(kText), true};
}

// The panels.

std::optional<QRectF> PageInsets::FindPlace(Corner wanted, const QSizeF& size) const {
    const QRectF room = view_.Neat().adjusted(kFromNeat, kFromNeat, -kFromNeat, -kFromNeat);
    if (size.width() > room.width() || size.height() > room.height()) return {};
    for (int turn = 0; turn < 4; ++turn) {
        const int corner = (wanted + turn) % 4;
        const bool right = corner == kTopRight || corner == kBottomRight;
        const bool bottom = corner == kBottomLeft || corner == kBottomRight;
        const QRectF place(right ? room.right() - size.width() : room.left(),
                           bottom ? room.bottom() - size.height() : room.top(), size.width(),
                           size.height());
        const bool isFree = std::none_of(taken_.begin(), taken_.end(), [&](const QRectF& other) {
            return other.intersects(place);
        });
        if (isFree) return place;
    }
    return {};
}

void PageInsets::DrawPanel(const QString& name, Corner wanted, const std::vector<Row>& rows) {
    double indent = 0;
    for (const Row& row : rows)
        if (row.draw && !row.text.isEmpty()) indent = row.drawn.width() + kBetween;
    QSizeF size(0, 2 * kInside);
    const auto heightOf = [](const Row& row) {
        return std::max(row.size * kLineHeight, row.drawn.height());
    };
    for (const Row& row : rows) {
        const double ahead = row.draw && !row.text.isEmpty() ? indent : row.drawn.width();
        const double width = ahead + SizeOf(row.text, row.size, row.bold).width();
        size = {std::max(size.width(), width + 2 * kInside), size.height() + heightOf(row)};
    }
    const auto place = FindPlace(wanted, size);
    if (!place) {
        leftOut_ << name;
        return;
    }
    taken_.push_back(*place);
    labels_.Keep(*place);
    paper_.Draw(Rectangle(*place), {look_.panel, look_.panelLine, kLineWidth});
    QPointF at = place->topLeft() + QPointF(kInside, kInside);
    for (const Row& row : rows) {
        const double height = heightOf(row);
        if (row.draw) row.draw({at + QPointF(0, (height - row.drawn.height()) / 2), row.drawn});
        if (!row.text.isEmpty()) {
            const QPointF base(row.draw ? indent : 0, height / 2 + BaseLine(row.size));
            paper_.Write({row.text, at + base, row.size, look_.panelText, Anchor::kLeft, row.bold});
        }
        at += QPointF(0, height);
    }
}

// What is in them.

void PageInsets::DrawTitle() {
    const double most = view_.Neat().width() / 2;
    Row title{plan_.title, plan_.TextSize(kTitle), true};
    while (title.text.size() > 1 && SizeOf(title.text, title.size, true).width() > most) {
        title.text.chop(title.text.endsWith(u'\u2026') ? 2 : 1);
        title.text += u'\u2026';
    }
    std::vector<Row> rows{title, Line(plan_.date),
                          Line(QString::fromStdString(plan_.map.projection.name)),
                          Line(QStringLiteral("1 Inch = %1 Feet").arg(plan_.scale))};
    const double feet = BarFeet();
    if (feet > 0) {
        const double size = plan_.TextSize(kText);
        const double overhang = SizeOf(QStringLiteral("%1 Feet").arg(feet), size).width();
        rows.push_back({{},
                        size,
                        false,
                        {feet * view_.Scale() + overhang, 2 * size + kInside},
                        [this](const QRectF& place) { DrawScaleBar(place); }});
    }
    DrawPanel(QStringLiteral("title and scale"), kTopLeft, rows);
}

/// Length of the scale bar; 0 where none is that short.
double PageInsets::BarFeet() const {
    const double longest = std::min(kLongestBar, view_.Neat().width() / 3) / view_.Scale();
    return longest >= 1 ? RoundBelow(longest) : 0;
}

/// Two halves, one of them filled, and the lengths above their ends.
void PageInsets::DrawScaleBar(const QRectF& place) {
    constexpr double kHeight = 4;
    const double size = plan_.TextSize(kText);
    const double feet = BarFeet();
    const double half = feet * view_.Scale() / 2;
    const double left = place.left() + SizeOf(QStringLiteral("0"), size).width() / 2;
    const double top = place.bottom() - kHeight - 1;
    for (const int part : {0, 1}) {
        paper_.Draw(Rectangle({left + part * half, top, half, kHeight}),
                    {part == 0 ? look_.panelText : look_.panel, look_.panelText, kLineWidth});
    }
    const auto write = [&](int part, const QString& text, Anchor anchor) {
        paper_.Write({text, {left + part * half, top - 3}, size, look_.panelText, anchor});
    };
    write(0, QStringLiteral("0"), Anchor::kMiddle);
    // Its unit stands behind the last length, whose first digits stand above the end.
    const QString last = QString::number(feet, 'f', 0);
    const double digits = SizeOf(last, size).width();
    paper_.Write({last + QStringLiteral(" Feet"),
                  {left + 2 * half - digits / 2, top - 3},
                  size,
                  look_.panelText});
    const QString middle = QString::number(feet / 2);
    if (SizeOf(middle, size).width() + digits < half * 1.5) write(1, middle, Anchor::kMiddle);
}

void PageInsets::AddWaters(std::vector<Row>& rows) {
    if (plan_.ink == InkMode::kBlackAndWhite) return;
    for (const WaterRow& row : kWaterRows) {
        const bool shown =
            std::any_of(plan_.map.areas.begin(), plan_.map.areas.end(), [&](const AreaMap& area) {
                bool any = false;
                area.blocks.ForEachIn(plan_.grid.Covered(), [&](std::size_t) { any = true; });
                return any && area.water == row.water;
            });
        if (!shown) continue;
        rows.push_back({QString::fromLatin1(row.text), plan_.TextSize(kText), false, kSample,
                        [this, water = row.water](const QRectF& place) {
                            paper_.Draw(Rectangle(place.adjusted(1, 1, -1, -1)),
                                        {WaterColor(look_, water), look_.areaLine, kLineWidth});
                        }});
    }
}

void PageInsets::AddSpots(std::vector<Row>& rows, bool platforms) {
    const auto kinds =
        KindsOf(plan_, platforms ? &AreaMap::platforms : &AreaMap::wells, kDotsOnPaperFrom);
    const std::span<const LegendRow> known = platforms ? std::span<const LegendRow>(kPlatformRows)
                                                       : std::span<const LegendRow>(kWellRows);
    for (const LegendRow& row : known) {
        if (!kinds.contains(row.kind)) continue;
        rows.push_back(
            {QString::fromLatin1(row.text), plan_.TextSize(kText), false, kSample,
             [this, platforms, kind = row.kind](const QRectF& place) {
                 DrawSymbol(paper_, platforms ? PlatformParts(look_, kind) : WellParts(look_, kind),
                            place.center());
             }});
    }
}

void PageInsets::AddPipelines(std::vector<Row>& rows) {
    const auto kinds = KindsOf(plan_, &AreaMap::pipelines, kPipelinesOnPaperFrom);
    for (const LegendRow& row : kPipelineRows) {
        if (!kinds.contains(row.kind)) continue;
        rows.push_back({QString::fromLatin1(row.text), plan_.TextSize(kText), false, kSample,
                        [this, kind = row.kind](const QRectF& place) {
                            QPainterPath line({place.left(), place.center().y()});
                            line.lineTo(place.right(), place.center().y());
                            paper_.Draw(line, PipelineInk(look_, plan_.ink, kind));
                        }});
    }
}

void PageInsets::DrawLegend() {
    std::vector<Row> rows{Heading(QStringLiteral("Legend"))};
    AddWaters(rows);
    if (plan_.layers.wells) AddSpots(rows, false);
    if (plan_.layers.platforms) AddSpots(rows, true);
    if (plan_.layers.pipelines) AddPipelines(rows);
    if (rows.size() > 1) DrawPanel(QStringLiteral("legend"), kTopRight, rows);
}

void PageInsets::DrawKey(std::int64_t page) {
    const double across = plan_.sheet.roomWidth * static_cast<double>(plan_.grid.Columns());
    const double down = plan_.sheet.roomHeight * static_cast<double>(plan_.grid.Rows());
    const QSizeF cells = QSizeF(across, down) * (kLongestKey / std::max(across, down));
    std::vector<Row> rows{
        Heading(QStringLiteral("Page %1 of %2").arg(page + 1).arg(plan_.grid.Count()))};
    // The first page tells the scale beside the title.
    if (page > 0) rows.push_back(Line(QStringLiteral("1 Inch = %1 Feet").arg(plan_.scale)));
    rows.push_back({{}, 0, false, cells + QSizeF(0, kBetween), [this, page](const QRectF& place) {
                        DrawKeyCells(place, page);
                    }});
    DrawPanel(QStringLiteral("key of the pages"), kBottomRight, rows);
}

/// A cell for each page, with its number where there is room; this page's is filled.
void PageInsets::DrawKeyCells(const QRectF& place, std::int64_t page) {
    constexpr double kLeastCell = 2;
    const QRectF all = place.adjusted(0, kBetween, 0, 0);
    const QSizeF cell(all.width() / static_cast<double>(plan_.grid.Columns()),
                      all.height() / static_cast<double>(plan_.grid.Rows()));
    const auto placeOf = [&](std::int64_t number) {
        const auto column = static_cast<double>(number % plan_.grid.Columns());
        const auto row = static_cast<double>(number / plan_.grid.Columns());
        return QRectF(all.topLeft() + QPointF(column * cell.width(), row * cell.height()), cell);
    };
    paper_.Draw(Rectangle(placeOf(page)), {look_.edgeText, {}});
    paper_.Draw(Rectangle(all), {{}, look_.panelText, kLineWidth});
    if (std::min(cell.width(), cell.height()) < kLeastCell) return;
    QPainterPath lines;
    const double size = plan_.TextSize(kText);
    for (std::int64_t number = 0; number < plan_.grid.Count(); ++number) {
        const QRectF at = placeOf(number);
        lines.addRect(at);
        const QString text = QString::number(number + 1);
        const QSizeF room = SizeOf(text, size);
        if (room.width() > cell.width() || room.height() > cell.height()) continue;
        paper_.Write({text, at.center() + QPointF(0, BaseLine(size)), size,
                      number == page ? look_.panel : look_.panelText, Anchor::kMiddle});
    }
    paper_.Draw(lines, {{}, look_.panelText, kLineWidth / 2});
}

}  // namespace workbench
