#pragma once

#include <string>

#include "workbench/printing/paper.h"

namespace workbench {

/// Paper whose drawing is the elements of an SVG file, in points.
class SvgPaper : public Paper {
public:
    void Draw(const QPainterPath& shape, const Ink& ink) override;
    void Write(const Writing& writing) override;

    /// What was drawn so far.
    const std::string& Elements() const { return elements_; }

private:
    std::string elements_;
};

/// The beginning of an SVG file of that size in points, and its end.
std::string SvgHead(double width, double height, const QString& title);
std::string SvgFoot();

}  // namespace workbench
