#pragma once

#include <QRectF>
#include <optional>
#include <span>

#include "workbench/map/label_board.h"
#include "workbench/printing/paper.h"

namespace workbench {

/// Writes names on a page so that none covers another, nor what has taken its place before.
class PageLabels {
public:
    explicit PageLabels(const QRectF& neat);

    /// Nothing is written there.
    void Keep(const QRectF& place);
    /// What lies there, or under a line, is covered only where there is no room elsewhere.
    void Spare(const QRectF& place, LabelBoard::Weight weight);
    void SpareLine(const QPointF& from, const QPointF& to, LabelBoard::Weight weight);

    /// Writes around the one of these points at which it covers least, the first of equals; where
    /// all are taken, nowhere. Of `style`, all but the place counts.
    void Put(Paper& paper, Writing style, std::span<const QPointF> middles);

private:
    std::optional<int> CostOf(const QPointF& middle, const QSizeF& size) const;

    QPointF corner_;
    LabelBoard board_;
};

}  // namespace workbench
