#include "workbench/printing/page_painter.h"

#include "workbench/printing/page_drawings.h"
#include "workbench/printing/page_frame.h"
#include "workbench/printing/page_insets.h"
#include "workbench/printing/page_map.h"

namespace workbench {

QStringList DrawPage(const PrintPlan& plan, std::int64_t page, Paper& paper) {
    const PageView view(plan, page);
    const MapLook look = LookOnPaper(plan.ink);
    PageLabels labels(view.Neat());
    PageMap map(plan, view, look, paper);
    PageDrawings drawings(plan, view, paper);
    map.DrawShapes(labels, [&] {
        if (plan.layers.drawings) drawings.DrawFills();
    });
    if (plan.layers.drawings) drawings.DrawLinesAndTexts();
    const QStringList leftOut = PageInsets(plan, view, look, paper, labels).Draw(page);
    if (plan.layers.labels) map.DrawLabels(labels);
    PageFrame(plan, view, look, paper).Draw(page);
    return leftOut;
}

QString NoRoomFor(const QStringList& leftOut) {
    if (leftOut.isEmpty()) return {};
    return QStringLiteral("The paper has no room for: %1.").arg(leftOut.join(QStringLiteral(", ")));
}

}  // namespace workbench
