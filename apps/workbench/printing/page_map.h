#pragma once

#include <functional>

#include "workbench/printing/page_labels.h"
#include "workbench/printing/page_view.h"

namespace workbench {

// From how many points for a usual block on its area's wells and platforms are dots, and then
// symbols, and its pipelines are drawn.
inline constexpr double kDotsOnPaperFrom = 4;
inline constexpr double kSymbolsOnPaperFrom = 25;
inline constexpr double kPipelinesOnPaperFrom = 10;
/// Points of a symbol for a pixel of it on the screen.
inline constexpr double kSymbolSize = 0.75;

/// The ink of a kind of pipelines. Where colours do not tell them apart, dashes do.
Ink PipelineInk(const MapLook& look, InkMode mode, std::uint8_t kind);

/// Draws the symbol of a well or a platform.
void DrawSymbol(Paper& paper, const std::vector<SymbolPart>& parts, const QPointF& middle);

/// Draws what of the map a page shows, cut at the line around it.
class PageMap {
public:
    /// All of them outlive it.
    PageMap(const PrintPlan& plan, const PageView& view, const MapLook& look, Paper& paper);

    /// Draws areas, blocks, pipelines, wells and platforms, and marks for the labels where they
    /// are.
    /// `drawFills` is called under the lines of blocks.
    void DrawShapes(PageLabels& labels, const std::function<void()>& drawFills);
    void DrawLabels(PageLabels& labels);

private:
    double BlockSize(const AreaMap& area) const { return area.blockSize * view_.Scale(); }
    std::vector<Point> OnPage(std::span<const Point> points) const;
    void AddLine(QPainterPath& path, std::span<const Point> onPage) const;
    bool Shows(const QPointF& at) const { return view_.Neat().contains(at); }

    void DrawAreas();
    void DrawBlockLines();
    void DrawAreaLines(PageLabels& labels);
    void DrawPipelines();
    void DrawSpots(bool platforms, PageLabels& labels);
    void DrawSpot(const std::vector<SymbolPart>& parts, const QPointF& at);

    void LabelAreas(PageLabels& labels);
    void LabelBlocks(const AreaMap& area, PageLabels& labels);
    void LabelSpots(const AreaMap& area, bool platforms, PageLabels& labels);
    void LabelPipelines(const AreaMap& area, PageLabels& labels);
    Writing Style(std::string_view text, double size, const QColor& color) const;

    const PrintPlan& plan_;
    const PageView& view_;
    const MapLook& look_;
    Paper& paper_;
    Box neat_;  ///< in points
};

}  // namespace workbench
