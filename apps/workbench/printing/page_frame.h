#pragma once

#include <array>

#include "workbench/map/map_look.h"
#include "workbench/printing/page_view.h"

namespace workbench {

/// Draws what stands around the map of a page: the neat line, in the margin the ticks of latitude
/// and longitude with their angles, and where other pages join on, marks and their numbers.
class PageFrame {
public:
    /// All of them outlive it.
    PageFrame(const PrintPlan& plan, const PageView& view, const MapLook& look, Paper& paper);

    void Draw(std::int64_t page);

private:
    /// One side of the neat line. Its texts run along it.
    struct Side {
        QPointF from;
        QPointF to;
        QPointF outward;  ///< one point away from the map
        bool latitudes;   ///< whether lines of latitude meet it
        int right, down;  ///< where the page lies that joins on
    };

    std::array<Side, 4> Sides() const;
    double AngleOn(const Side& side, double part) const;
    double StepOfTicks() const;
    void DrawTicks(const Side& side, double step, double kept);
    /// Half of the length that it takes of the side, in points; 0 where no page joins on.
    double DrawJoin(const Side& side, std::int64_t page);
    void DrawCornerMarks();
    void WriteAlong(const Side& side, const QPointF& at, const QString& text);
    double TextSize() const;

    const PrintPlan& plan_;
    const PageView& view_;
    const MapLook& look_;
    Paper& paper_;
};

}  // namespace workbench
