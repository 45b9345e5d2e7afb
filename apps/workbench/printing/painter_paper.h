#pragma once

#include <QPainter>

#include "workbench/printing/paper.h"

namespace workbench {

/// Paper that a painter draws: of a printer, a PDF, or the screen.
class PainterPaper : public Paper {
public:
    /// `painter` outlives the paper; its origin is the sheet's corner. `pixels` are the painter's
    /// for each point.
    PainterPaper(QPainter& painter, double pixels);

    void Draw(const QPainterPath& shape, const Ink& ink) override;
    void Write(const Writing& writing) override;

private:
    QPainter& painter_;
    double pixels_;
};

}  // namespace workbench
