#pragma once

#include "workbench/drawings/drawings.h"
#include "workbench/printing/page_view.h"

namespace workbench {

/// Draws what of the drawings a page shows, cut at the line around its map.
class PageDrawings {
public:
    /// All of them outlive it.
    PageDrawings(const PrintPlan& plan, const PageView& view, Paper& paper);

    /// Ahead of the lines of blocks.
    void DrawFills();
    void DrawLinesAndTexts();

private:
    void DrawLine(const DrawnLine& line, std::span<const Point> points);
    void WriteText(const DrawnText& text, const Point& at);
    std::vector<QPointF> OnPage(std::span<const Point> points) const;
    void Fill(std::span<const Point> points, int color);
    QColor LineColor(int index) const;

    const PrintPlan& plan_;
    const PageView& view_;
    Paper& paper_;
    Box neat_;  ///< in points
};

}  // namespace workbench
