#pragma once

#include <QPainterPath>
#include <QRectF>
#include <span>

#include "workbench/printing/paper.h"
#include "workbench/printing/print_plan.h"

namespace workbench {

/// Where a page's part of the map lies on its sheet, in points.
class PageView {
public:
    PageView(const PrintPlan& plan, std::int64_t page)
        : box_(plan.grid.BoxOf(page)),
          scale_(kPointsPerInch / plan.scale),
          neat_((plan.sheet.width - plan.sheet.roomWidth) / 2 * kPointsPerInch,
                (plan.sheet.height - plan.sheet.roomHeight) / 2 * kPointsPerInch,
                plan.sheet.roomWidth * kPointsPerInch, plan.sheet.roomHeight * kPointsPerInch) {}

    const Box& Shown() const { return box_; }
    /// The line around the map.
    const QRectF& Neat() const { return neat_; }
    /// Points for a foot.
    double Scale() const { return scale_; }
    QPointF At(const Point& point) const {
        return {neat_.left() + (point.x - box_.minX) * scale_,
                neat_.top() + (box_.maxY - point.y) * scale_};
    }
    Point XyAt(const QPointF& at) const {
        return {box_.minX + (at.x() - neat_.left()) / scale_,
                box_.maxY - (at.y() - neat_.top()) / scale_};
    }

private:
    Box box_;
    double scale_;
    QRectF neat_;
};

}  // namespace workbench
