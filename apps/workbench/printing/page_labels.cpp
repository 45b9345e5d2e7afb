#include "workbench/printing/page_labels.h"

#include <cmath>

namespace workbench {

PageLabels::PageLabels(const QRectF& neat) : corner_(neat.topLeft()) {
    board_.Reset(static_cast<int>(std::floor(neat.width())),
                 static_cast<int>(std::floor(neat.height())));
}

void PageLabels::Keep(const QRectF& place) {
    board_.Take(place.x() - corner_.x(), place.y() - corner_.y(), place.width(), place.height());
}

void PageLabels::Spare(const QRectF& place, LabelBoard::Weight weight) {
    board_.Spare(place.x() - corner_.x(), place.y() - corner_.y(), place.width(), place.height(),
                 weight);
}

void PageLabels::SpareLine(const QPointF& from, const QPointF& to, LabelBoard::Weight weight) {
    board_.SpareLine(from.x() - corner_.x(), from.y() - corner_.y(), to.x() - corner_.x(),
                     to.y() - corner_.y(), weight);
}

std::optional<int> PageLabels::CostOf(const QPointF& middle, const QSizeF& size) const {
    return board_.CostOf(middle.x() - size.width() / 2 - corner_.x(),
                         middle.y() - size.height() / 2 - corner_.y(), size.width(), size.height());
}

void PageLabels::Put(Paper& paper, Writing style, std::span<const QPointF> middles) {
    const QSizeF size = SizeOf(style.text, style.size, style.bold);
    const QPointF* best = nullptr;
    int least = 0;
    for (const QPointF& middle : middles) {
        const auto cost = CostOf(middle, size);
        if (!cost || (best && *cost >= least)) continue;
        best = &middle, least = *cost;
        if (least == 0) break;
    }
    if (!best) return;
    Keep(
        {best->x() - size.width() / 2, best->y() - size.height() / 2, size.width(), size.height()});
    style.at = *best + QPointF(0, BaseLine(style.size));
    style.anchor = Anchor::kMiddle;
    paper.Write(style);
}

}  // namespace workbench
